#pragma once

#include "apps/viewer/properties/ValueText.h"

#include <optional>
#include <QVariant>

class QWidget;

namespace tolvik::viewer {

/// An editor of one value; every one that makeValueEditor() makes is a QWidget and this.
class ValueEditor
{
public:
    virtual ~ValueEditor();
    ValueEditor(const ValueEditor&) = delete;
    ValueEditor& operator=(const ValueEditor&) = delete;

    /// \param value of the kind that the editor was made for
    virtual void setValue(const QVariant& value) = 0;
    /// What is entered now.
    /// \param[out] reason why that is no value, for people
    virtual std::optional<QVariant> value(QString& reason) const = 0;
    /// Whether the user has changed anything since setValue().
    virtual bool isChanged() const = 0;
    /// Whether the Enter key belongs to the editor, since a value may have several lines.
    virtual bool hasLines() const { return false; }

protected:
    ValueEditor() = default;
};

/// The editor for values like \a offered.
/// \param choices literals to choose from, or none
/// \param suggestions texts to choose from where any other text can be entered too, or none
/// \return null where there is nothing to edit; owned by \a parent
QWidget* makeValueEditor(const QVariant& offered, const QVariantList& choices, const QStringList& suggestions,
                         const ValueText& text, QWidget* parent);

} // namespace tolvik::viewer
