#include "apps/viewer/selection/SelectionLink.h"

#include <QAbstractProxyModel>
#include <QScopedValueRollback>
#include <QSignalBlocker>

namespace tolvik::viewer {

namespace {

// From about so many ranges on a user waits for Qt to compare them.
constexpr int manyRanges = 200;

} // namespace

void replaceSelection(QItemSelectionModel& selection, const QItemSelection& rows)
{
    const auto flags = QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
    if (rows.isEmpty() || selection.selection().size() + rows.size() < manyRanges) {
        selection.select(rows, flags);
        return;
    }
    {
        const QSignalBlocker quiet(&selection);
        selection.clearSelection();
    }
    selection.select(rows, QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

SelectionLink::SelectionLink(QItemSelectionModel& view, const QAbstractProxyModel& proxy,
                             QItemSelectionModel& source, QObject* parent)
    : QObject(parent), view(view), proxy(proxy), source(source)
{
    connect(&view, &QItemSelectionModel::selectionChanged, this, &SelectionLink::selectInSource);
    connect(&view, &QItemSelectionModel::currentChanged, this, &SelectionLink::moveInSource);
    connect(&source, &QItemSelectionModel::selectionChanged, this, &SelectionLink::selectInView);
    connect(&source, &QItemSelectionModel::currentChanged, this, &SelectionLink::moveInView);
    follow();
}

SelectionLink::~SelectionLink() = default;

void SelectionLink::follow()
{
    selectInView();
    moveInView();
}

void SelectionLink::selectInSource()
{
    if (!isPassing) {
        const QScopedValueRollback<bool> passing(isPassing, true);
        replaceSelection(source, proxy.mapSelectionToSource(view.selection()));
    }
}

void SelectionLink::selectInView()
{
    if (!isPassing) {
        const QScopedValueRollback<bool> passing(isPassing, true);
        replaceSelection(view, proxy.mapSelectionFromSource(source.selection()));
    }
}

void SelectionLink::moveInSource(const QModelIndex& current)
{
    const QModelIndex index = proxy.mapToSource(current);
    if (!isPassing && index.isValid()) {
        const QScopedValueRollback<bool> passing(isPassing, true);
        source.setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    }
}

void SelectionLink::moveInView()
{
    const QModelIndex index = proxy.mapFromSource(source.currentIndex());
    if (!isPassing && index.isValid()) {
        const QScopedValueRollback<bool> passing(isPassing, true);
        view.setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    }
}

} // namespace tolvik::viewer
