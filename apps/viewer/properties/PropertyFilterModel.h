#pragma once

#include <QSortFilterProxyModel>
#include <QString>

namespace tolvik::viewer {

/// Shows of a PropertyTreeModel what has a text in its name or value, with the groups around and everything
/// inside it, and absent attributes only where they are wanted.
class PropertyFilterModel : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit PropertyFilterModel(QObject* parent = nullptr);

    /// \param text empty to show everything; upper and lower case count alike
    void setText(const QString& text);
    void setAbsentShown(bool shown);
    bool isAbsentShown() const { return absentShown; }

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    bool hasText(const QModelIndex& name) const;

    QString wanted;
    bool absentShown = false;
};

} // namespace tolvik::viewer
