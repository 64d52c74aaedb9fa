#include "apps/viewer/features/FeatureTreeView.h"

namespace tolvik::viewer {

FeatureTreeView::~FeatureTreeView() = default;

void FeatureTreeView::selectAll()
{
    QItemSelection rows;
    appendOpen(rootIndex(), rows);
    selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

/// Adds what is below an open node: one range for its children, and what is below these.
void FeatureTreeView::appendOpen(const QModelIndex& parent, QItemSelection& rows) const
{
    const int count = model()->rowCount(parent);
    if (count == 0) {
        return;
    }
    const int lastColumn = model()->columnCount(parent) - 1;
    rows.append(
        QItemSelectionRange(model()->index(0, 0, parent), model()->index(count - 1, lastColumn, parent)));
    for (int row = 0; row < count; ++row) {
        const QModelIndex child = model()->index(row, 0, parent);
        // To ask whether a node is open takes longer than to ask whether it could be.
        if (model()->hasChildren(child) && isExpanded(child)) {
            appendOpen(child, rows);
        }
    }
}

} // namespace tolvik::viewer
