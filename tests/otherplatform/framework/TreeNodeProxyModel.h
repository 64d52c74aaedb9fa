#pragma once

#include "framework/ProxyModel.h"
#include "framework/TreeNode.h"

#include <log4cplus/logger.h>

namespace tolvik {

class TreeNodeProxyModel : public ProxyModel
{
    Q_OBJECT

public:
    using ProxyModel::ProxyModel;

    static TreeNode* treeNode(const QModelIndex& index)
    {
        return static_cast<TreeNode*>(index.internalPointer());
    }

    using QObject::parent;
    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& /*parent*/ = QModelIndex()) const override { return 2; }
    bool hasChildren(const QModelIndex& parent = QModelIndex()) const override
    {
        return rowCount(parent) > 0;
    }
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    void setSourceModel(QAbstractItemModel* model) override;
    void createActions() override {}
    void changeObjectVisibleField(const QList<QModelIndex>& indexes, bool visible);
    void setCheckColumnEnabled(bool enabled) { checkColumnEnabled = enabled; }

protected:
    virtual QModelIndex index(int row, int column, TreeNode* node) const
    {
        return createIndex(row, column, node);
    }
    virtual void endResetModel()
    {
        sourceBusy = false;
        QAbstractItemModel::endResetModel();
    }
    virtual bool isDisabled(TreeNode* /*node*/) const { return false; }
    virtual void visibilityChangedInSourceModel(const QList<QModelIndex>& /*indexes*/) {}
    virtual void visibilityChangedInSourceModel(const QModelIndex& index)
    {
        visibilityChangedInSourceModel(QList<QModelIndex>{index});
    }
    virtual QList<QModelIndex> listFromSource(const QModelIndex& index) const
    {
        return {mapFromSource(index)};
    }
    virtual QVariant recursiveCheckState(const QModelIndex& /*index*/) const { return QVariant(); }
    QModelIndex nodeIndex(TreeNode* node) const { return index(node->childNumber(), 0, node); }
    static void appendRow(QItemSelection& selection, const QModelIndex& left, const QModelIndex& right)
    {
        selection.append(QItemSelectionRange(left, right));
    }

    QList<Fondo::RefPtr<TreeNode>> rootNodes;
    log4cplus::Logger logger = log4cplus::Logger::getRoot();
    bool checkColumnEnabled = false;
};

} // namespace tolvik
