#include "apps/viewer/selection/RowSelectionModel.h"

#include <QSignalBlocker>

namespace tolvik::viewer {

namespace {

// From about so many ranges on a user waits for Qt to compare them.
constexpr int manyRanges = 200;

} // namespace

RowSelectionModel::RowSelectionModel(QAbstractItemModel* model, QObject* parent)
    : QItemSelectionModel(model, parent)
{
}

RowSelectionModel::~RowSelectionModel() = default;

void RowSelectionModel::select(const QItemSelection& selection, SelectionFlags command)
{
    if (selection.size() < manyRanges || (command & Clear) == 0) {
        QItemSelectionModel::select(selection, command);
        return;
    }
    QItemSelection rows;
    rows.reserve(selection.size());
    for (const QItemSelectionRange& range : selection) {
        const int lastColumn = model()->columnCount(range.parent()) - 1;
        if (range.left() == 0 && range.right() == lastColumn) {
            rows.append(range);
        } else {
            rows.append(QItemSelectionRange(model()->index(range.top(), 0, range.parent()),
                                            model()->index(range.bottom(), lastColumn, range.parent())));
        }
    }
    {
        const QSignalBlocker quiet(this);
        clearSelection();
    }
    QItemSelectionModel::select(rows, Select);
}

void RowSelectionModel::replace(const QItemSelection& rows)
{
    select(rows, ClearAndSelect | Rows);
}

} // namespace tolvik::viewer
