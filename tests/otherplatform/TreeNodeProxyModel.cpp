#include "framework/TreeNodeProxyModel.h"

namespace tolvik {

QModelIndex TreeNodeProxyModel::index(int row, int column, const QModelIndex& parent) const
{
    if (row < 0 || row >= rowCount(parent) || column < 0 || column >= columnCount(parent)) {
        return QModelIndex();
    }
    const TreeNode* const above = treeNode(parent);
    const auto& node = above != nullptr ? above->children()[static_cast<std::size_t>(row)] : rootNodes[row];
    return index(row, column, node.get());
}

QModelIndex TreeNodeProxyModel::parent(const QModelIndex& index) const
{
    TreeNode* const above = index.isValid() ? treeNode(index)->parent() : nullptr;
    return above != nullptr ? nodeIndex(above) : QModelIndex();
}

int TreeNodeProxyModel::rowCount(const QModelIndex& parent) const
{
    const TreeNode* const node = treeNode(parent);
    if (node == nullptr) {
        return rootNodes.size();
    }
    return parent.column() == 0 ? static_cast<int>(node->children().size()) : 0;
}

Qt::ItemFlags TreeNodeProxyModel::flags(const QModelIndex& index) const
{
    return index.isValid() && !isDisabled(treeNode(index)) ? Qt::ItemIsSelectable | Qt::ItemIsEnabled
                                                           : Qt::NoItemFlags;
}

void TreeNodeProxyModel::setSourceModel(QAbstractItemModel* model)
{
    using Source = QAbstractItemModel;
    using This = TreeNodeProxyModel;
    source = model;
    QAbstractProxyModel::setSourceModel(model);
    connect(model, &Source::dataChanged, this, &This::sourceDataChanged);
    connect(model, &Source::rowsInserted, this, &This::rowsInsertedInSourceModel);
    connect(model, &Source::rowsAboutToBeRemoved, this, &This::rowsAboutToBeRemovedInSourceModel);
    connect(model, &Source::modelAboutToBeReset, this, &This::sourceModelAboutToBeReset);
    connect(model, &Source::modelReset, this, &This::sourceModelReset);
    rebuild();
}

void TreeNodeProxyModel::changeObjectVisibleField(const QList<QModelIndex>& indexes, bool visible)
{
    QList<QModelIndex> rows;
    for (const QModelIndex& index : indexes) {
        rows.append(mapToSource(index));
    }
    visible ? model()->show(rows) : model()->hide(rows);
}

} // namespace tolvik
