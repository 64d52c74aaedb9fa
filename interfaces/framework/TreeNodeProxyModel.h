#pragma once

#include "framework/ProxyModel.h"
#include "framework/TreeNode.h"

#include <log4cplus/logger.h>

namespace tolvik {

/// A proxy model in the form of a tree of TreeNode. An index of it has the node as internal pointer and the
/// node's child number as row.
///
/// A subclass builds `rootNodes` and what is below them in computeNodeMap(), and maps indexes between its
/// nodes and the source in mapToSource(), mapFromSource() and, where a row of the source has several nodes,
/// listFromSource().
class TOLVIK_PLATFORM_EXPORT TreeNodeProxyModel : public ProxyModel
{
    Q_OBJECT

public:
    /// \param name the object name, which stands in log lines
    /// \param parent owner of the model, or null
    explicit TreeNodeProxyModel(const QString& name, QObject* parent = nullptr);
    ~TreeNodeProxyModel() override;

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    using QObject::parent;

    /// Only column 0 has rows below it.
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;

    /// As many as the source has.
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    bool hasChildren(const QModelIndex& parent = QModelIndex()) const override;

    /// With the check state role of column 0, shows or hides the row behind the index, and while the
    /// selection is recursive those of everything below it too. Everything else goes to the source.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    /// Selectable, enabled and to be dragged, and with a check box if `checkColumnEnabled`; nothing for a
    /// disabled node.
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// Follows the given source from now on, null for none, and builds the tree for it. To set the present
    /// source again builds it anew. When the source dies first, the tree is empty.
    void setSourceModel(QAbstractItemModel* model) override;

    /// The rows of the source behind a selection, each once, as whole ranges in ascending order.
    QItemSelection mapSelectionToSource(const QItemSelection& selection) const override;

    /// All nodes of the rows of a selection, in its order.
    QItemSelection mapSelectionFromSource(const QItemSelection& selection) const override;

    void toggleObjectVisibleField(const QList<QModelIndex>& indexes) override;
    void changeObjectVisibleField(const QList<QModelIndex>& indexes, bool visible) override;

    /// Switching it on extends the present selection at once.
    void setRecursiveSelection(bool recursive) override;
    bool isRecursiveSelection() override;

    /// Adds "Select children".
    void createActions() override;
    int rootNodeSize() override;

    void selectChildren() override;

protected:
    void doRecursiveSelection(const QItemSelection& selected, const QItemSelection& deselected) override;

    /// The index of the given node itself, with that row and column.
    virtual QModelIndex index(int row, int column, TreeNode* node) const;

    /// The root at that row, null if there is none.
    virtual TreeNode* rootNode(int row);

    /// Ends what beginResetModel() began.
    virtual void endResetModel();

    /// Adds everything below a node, but not the node itself, in whole rows.
    virtual void recursiveChildrenSelection(TreeNode* node, QItemSelection& selected);

    /// Whether a node is shown as disabled: here if the row behind it is.
    virtual bool isDisabled(TreeNode* node) const;

    /// Reports new check states for all nodes of the rows, and for everything above them.
    virtual void visibilityChangedInSourceModel(const QList<QModelIndex>& indexes);

    /// The same for one row.
    virtual void visibilityChangedInSourceModel(const QModelIndex& index);

    /// All indexes of a row of the source. Here that of mapFromSource(), if there is one.
    virtual QList<QModelIndex> listFromSource(const QModelIndex& index) const;

    /// The state of the check box, a Qt::CheckState as int: whether the row behind the node is visible, and
    /// partially checked if the state of a node below it differs. A node without a row takes the common state
    /// of its children.
    virtual QVariant recursiveCheckState(const QModelIndex& index) const;

    /// The index of a node, column 0.
    QModelIndex nodeIndex(TreeNode* node) const;

    /// Adds one row to a selection, as part of its last range if the row goes on where that ends.
    static void appendRow(QItemSelection& selection, const QModelIndex& left, const QModelIndex& right);

public:
    /// The node behind an index of such a model, null for an invalid index.
    static TreeNode* treeNode(const QModelIndex& index);

    /// Whether nodes have a check box, see setCheckColumnEnabled().
    bool isCheckColumnEnabled() const { return checkColumnEnabled; }

    /// Whether nodes have a check box that shows and changes the visibility of the rows behind them. Off at
    /// first.
    void setCheckColumnEnabled(bool enabled);

protected:
    QList<Fondo::RefPtr<TreeNode>> rootNodes; ///< top level of the tree; none is null
    log4cplus::Logger logger;                 ///< takes what goes wrong while a tree is built
    bool checkColumnEnabled = false;          ///< see setCheckColumnEnabled()

private:
    QList<QModelIndex> sourceRows(const QList<QModelIndex>& indexes) const;
    void appendChildren(const TreeNode& node, QItemSelection& selected) const;
    void clearTree();

    QVector<QMetaObject::Connection> connections;
    bool recursiveSelection = false;
    bool extendingSelection = false;
};

} // namespace tolvik
