#include "apps/viewer/properties/PropertyView.h"

#include "apps/viewer/properties/PropertyTreeModel.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>

namespace tolvik::viewer {

namespace {

QModelIndex valueBeside(const QModelIndex& index)
{
    return index.sibling(index.row(), PropertyTreeModel::ValueColumn);
}

/// The row as a line of a table.
QString lineOf(const QModelIndex& index)
{
    QStringList cells;
    for (int column = 0; column < PropertyTreeModel::ColumnCount; ++column) {
        cells += index.sibling(index.row(), column).data().toString();
    }
    return cells.join('\t');
}

} // namespace

PropertyView::PropertyView(QWidget* parent) : QTreeView(parent)
{
    setUniformRowHeights(false);
    setIndentation(12);
    setAllColumnsShowFocus(true);
    setEditTriggers(DoubleClicked | EditKeyPressed | AnyKeyPressed);
    setSelectionMode(SingleSelection);
    setExpandsOnDoubleClick(true);
    setContextMenuPolicy(Qt::CustomContextMenu);
    header()->setStretchLastSection(false);
}

void PropertyView::editCurrent(int column)
{
    setCurrentIndex(currentIndex().siblingAtColumn(column));
    edit(currentIndex(), AllEditTriggers, nullptr);
}

bool PropertyView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    const bool isUnit =
        index.column() == PropertyTreeModel::UnitColumn && (index.flags() & Qt::ItemIsEditable) != 0;
    return QTreeView::edit(index.isValid() && !isUnit ? valueBeside(index) : index, trigger, event);
}

void PropertyView::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy) && currentIndex().isValid()) {
        QApplication::clipboard()->setText(lineOf(currentIndex()));
    } else if (event->matches(QKeySequence::Delete) && state() != EditingState) {
        emit removalRequested();
    } else if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && state() != EditingState) {
        edit(currentIndex(), AllEditTriggers, nullptr);
    } else {
        QTreeView::keyPressEvent(event);
    }
}

} // namespace tolvik::viewer
