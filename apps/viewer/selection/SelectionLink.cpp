#include "apps/viewer/selection/SelectionLink.h"

#include "apps/viewer/selection/RowSelectionModel.h"

#include <QAbstractProxyModel>
#include <QScopedValueRollback>

namespace tolvik::viewer {

SelectionLink::SelectionLink(RowSelectionModel& view, const QAbstractProxyModel& proxy,
                             RowSelectionModel& source, QObject* parent)
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
        source.replace(proxy.mapSelectionToSource(view.selection()));
    }
}

void SelectionLink::selectInView()
{
    if (!isPassing) {
        const QScopedValueRollback<bool> passing(isPassing, true);
        view.replace(proxy.mapSelectionFromSource(source.selection()));
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
