#include "framework/ProxyModel.h"

#include "framework/Model.h"

#include <algorithm>
#include <QAction>
#include <QScopedValueRollback>
#include <QStack>

namespace tolvik {

ProxyModel::ProxyModel(const QString& name, QObject* parent) : QAbstractProxyModel(parent)
{
    setObjectName(name);
}

ProxyModel::~ProxyModel()
{
    keepActions();
    for (Action* const action : qAsConst(actions)) {
        // The action has its entry in a shared pointer, so this model must not delete it as its child as
        // well.
        QAction* const entry = action->action();
        if (entry != nullptr && entry->parent() == this) {
            entry->setParent(nullptr);
        }
    }
}

void ProxyModel::setSourceModel(QAbstractItemModel* model)
{
    source = model;
    QAbstractProxyModel::setSourceModel(model);
}

QModelIndex ProxyModel::buddy(const QModelIndex& index) const
{
    return index;
}

QItemSelectionModel* ProxyModel::selectionModel()
{
    return selection;
}

Model* ProxyModel::model()
{
    return qobject_cast<Model*>(source);
}

QModelIndex ProxyModel::search(const QModelIndex& start, const QString& text, Qt::CaseSensitivity sensitivity)
{
    if (text.isEmpty()) {
        return QModelIndex();
    }
    // From the top over everything, without going up through parent(): a node may be met below several
    // parents.
    QStack<QModelIndex> open;
    const auto openBelow = [this, &open](const QModelIndex& parent) {
        for (int row = rowCount(parent) - 1; row >= 0; --row) {
            open.push(index(row, 0, parent));
        }
    };
    const auto isStart = [&start](const QModelIndex& index) {
        return start.isValid() && index.row() == start.row() && index.internalId() == start.internalId();
    };

    bool behindStart = !start.isValid();
    QModelIndex firstMatch;
    openBelow(QModelIndex());
    while (!open.isEmpty()) {
        const QModelIndex index = open.pop();
        if ((behindStart || !firstMatch.isValid()) && searchIndex(index, text, sensitivity)) {
            if (behindStart) {
                return index;
            }
            firstMatch = index;
        }
        behindStart = behindStart || isStart(index);
        openBelow(index);
    }
    return firstMatch;
}

QVector<int> ProxyModel::searchFilter()
{
    QVector<int> columns;
    for (int column = 0; column < columnCount(); ++column) {
        columns.append(column);
    }
    return columns;
}

int ProxyModel::defaultExpandDepth()
{
    return 0;
}

bool ProxyModel::searchIndex(const QModelIndex& index, const QString& text, Qt::CaseSensitivity sensitivity)
{
    const QVector<int> columns = searchFilter();
    return std::any_of(columns.begin(), columns.end(), [&](int column) {
        const QVariant shown = data(index.sibling(index.row(), column), Qt::DisplayRole);
        return shown.toString().contains(text, sensitivity);
    });
}

void ProxyModel::sourceDataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight)
{
    const QItemSelection changedNodes = mapSelectionFromSource(QItemSelection(topLeft, bottomRight));
    for (const QItemSelectionRange& range : changedNodes) {
        emit dataChanged(range.topLeft(), range.bottomRight());
    }
}

void ProxyModel::sourceLayoutChanged()
{
    rebuild();
}

void ProxyModel::sourceLayoutAboutToBeChanged()
{
    sourceBusy = true;
}

void ProxyModel::sourceModelAboutToBeReset()
{
    sourceBusy = true;
}

void ProxyModel::sourceModelReset()
{
    rebuild();
}

void ProxyModel::setSelectionModel(QItemSelectionModel* model)
{
    if (selection != nullptr) {
        disconnect(selection, &QItemSelectionModel::selectionChanged, this, &ProxyModel::selectionChanged);
    }
    selection = model;
    if (selection != nullptr) {
        connect(selection, &QItemSelectionModel::selectionChanged, this, &ProxyModel::selectionChanged);
    }
}

const QList<Action*>& ProxyModel::getActions()
{
    if (actions.isEmpty()) {
        createActions();
    }
    keepActions();
    return actions;
}

void ProxyModel::selectSiblingsWithSameType()
{
    selectSiblings(true, false);
}

void ProxyModel::rebuild()
{
    sourceBusy = true;
    {
        const QScopedValueRollback<bool> guard(rebuilding, true);
        computeNodeMap();
    }
    sourceBusy = false;
}

void ProxyModel::rebuilt()
{
    // A reset for another reason, while the source itself is being reset, leaves the source busy.
    if (rebuilding) {
        sourceBusy = false;
    }
}

void ProxyModel::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    if (isRecursiveSelection()) {
        doRecursiveSelection(selected, deselected);
    }
}

void ProxyModel::keepActions()
{
    for (int i = keptActions.size(); i < actions.size(); ++i) {
        keptActions.append(actions[i]);
    }
}

} // namespace tolvik
