#pragma once

#include <QTreeView>

namespace tolvik::viewer {

/// A tree of properties in which editing means the value in whatever column the cursor stands, unless it is
/// on a unit that can be changed.
class PropertyView : public QTreeView
{
    Q_OBJECT

public:
    explicit PropertyView(QWidget* parent = nullptr);

    /// Opens the editor of the current property, if it has one.
    /// \param column that of the value or of the unit
    void editCurrent(int column);

signals:
    /// The current property is to go.
    void removalRequested();

protected:
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace tolvik::viewer
