#pragma once

#include <QString>
#include <QStringList>

namespace tolvik::tables {

/// Keeps what OGR says from standard error while it lives, and remembers it.
class OgrErrors
{
public:
    OgrErrors();
    OgrErrors(const OgrErrors&) = delete;
    OgrErrors& operator=(const OgrErrors&) = delete;
    ~OgrErrors();

    /// What the last failure was about; a general word where OGR gave no reason.
    QString last() const;
    /// Whether something has failed since the last call of forget().
    bool any() const { return !reason.isEmpty(); }
    void forget() { reason.clear(); }
    void add(const QString& text) { reason = text; }

private:
    QString reason;
};

} // namespace tolvik::tables
