#pragma once

#include "framework/TextConversion.h"
#include "framework/TreeNodeProxyModel.h"
#include "support/TestModel.h"

#include <QDataStream>
#include <QHash>
#include <QSet>

namespace testsupport {

/// A node of a TestTree.
class TestNode : public tolvik::TreeNode
{
public:
    explicit TestNode(TestItem* item) : TreeNode(nullptr), item(item)
    {
        name = Fondo::String(item->name.toStdString());
    }

    TestItem* item;
};

/// The rows of a TestModel as a tree by their parents, in the order of the rows. An item of `shownTwice` has
/// a second node, behind the other roots.
class TestTree : public tolvik::TreeNodeProxyModel
{
public:
    explicit TestTree(TestModel* source = nullptr);

    using ProxyModel::actions;
    using ProxyModel::selection;
    using ProxyModel::source;
    using ProxyModel::sourceBusy;
    using TreeNodeProxyModel::index;
    using TreeNodeProxyModel::isDisabled;
    using TreeNodeProxyModel::recursiveCheckState;
    using TreeNodeProxyModel::recursiveChildrenSelection;
    using TreeNodeProxyModel::rootNode;
    using TreeNodeProxyModel::rootNodes;

    QSet<TestItem*> shownTwice;
    QStringList calls;

    /// The index of the first node of that name.
    QModelIndex find(const QString& name, int column = 0) const;

    QList<QModelIndex> find(const QStringList& names) const;

    /// Names in the order on screen, those below a node in brackets behind it.
    QString dump(const QModelIndex& parent = QModelIndex()) const;

    /// Names of the selected rows in the order on screen.
    static QString dump(const QItemSelection& selection);

    QModelIndex mapToSource(const QModelIndex& index) const override;

    QModelIndex mapFromSource(const QModelIndex& index) const override;

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    QList<QModelIndex> listFromSource(const QModelIndex& index) const override;

    void computeNodeMap() override;

protected:
    void rowsInsertedInSourceModel(const QModelIndex& /*parent*/, int start, int /*end*/) override;

    void rowsAboutToBeRemovedInSourceModel(const QModelIndex& /*parent*/, int start, int /*end*/) override;

    void selectSiblings(bool sameType, bool reserved) override;

    void encodeData(const QList<QModelIndex>& indexes, QDataStream& stream) const override;
    QList<QModelIndex> decodeData(QDataStream& /*stream*/) const override { return {}; }

private:
    TestModel* document() const { return static_cast<TestModel*>(source.data()); }

    QModelIndex nodeIndex(TestItem* item) const;

    void link(TestNode* node);

    QHash<TestItem*, QList<Fondo::RefPtr<TestNode>>> nodes;
};

} // namespace testsupport
