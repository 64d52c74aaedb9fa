#include "support/TestTree.h"

namespace testsupport {

TestTree::TestTree(TestModel* source) : TreeNodeProxyModel("tree")
{
    if (source != nullptr) {
        setSourceModel(source);
    }
}

QModelIndex TestTree::find(const QString& name, int column) const
{
    for (int row = 0; row < document()->rowCount(); ++row) {
        if (document()->item(row)->name == name) {
            return mapFromSource(document()->index(row, column));
        }
    }
    return QModelIndex();
}

QList<QModelIndex> TestTree::find(const QStringList& names) const
{
    QList<QModelIndex> indexes;
    for (const QString& name : names) {
        indexes.append(find(name));
    }
    return indexes;
}

QString TestTree::dump(const QModelIndex& parent) const
{
    QStringList parts;
    for (int row = 0; row < rowCount(parent); ++row) {
        const QModelIndex child = index(row, 0, parent);
        const QString below = dump(child);
        parts.append(child.data().toString() + (below.isEmpty() ? below : '(' + below + ')'));
    }
    return parts.join(' ');
}

QString TestTree::dump(const QItemSelection& selection)
{
    QStringList names;
    for (const QItemSelectionRange& range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            names.append(range.topLeft().sibling(row, 0).data().toString());
        }
    }
    return names.join(' ');
}

QModelIndex TestTree::mapToSource(const QModelIndex& index) const
{
    const auto* const node = static_cast<const TestNode*>(treeNode(index));
    if (source == nullptr || sourceBusy || node == nullptr) {
        return QModelIndex();
    }
    return document()->index(document()->rowOf(node->item), index.column());
}

QModelIndex TestTree::mapFromSource(const QModelIndex& index) const
{
    const QList<QModelIndex> all = listFromSource(index);
    return all.isEmpty() ? QModelIndex() : all.first();
}

QVariant TestTree::data(const QModelIndex& index, int role) const
{
    if (source == nullptr || sourceBusy) {
        return QVariant();
    }
    if (role == Qt::CheckStateRole && index.column() == 0) {
        return checkColumnEnabled ? recursiveCheckState(index) : QVariant();
    }
    if (role == Qt::DisplayRole && index.column() == 0) {
        return tolvik::toQString(treeNode(index)->getName());
    }
    return TreeNodeProxyModel::data(index, role);
}

QList<QModelIndex> TestTree::listFromSource(const QModelIndex& index) const
{
    QList<QModelIndex> all;
    if (source == nullptr || sourceBusy || !index.isValid()) {
        return all;
    }
    for (const auto& node : nodes.value(document()->item(index.row()))) {
        all.append(createIndex(node->childNumber(), index.column(), node.get()));
    }
    return all;
}

void TestTree::computeNodeMap()
{
    calls.append("computeNodeMap");
    if (source == nullptr) {
        return;
    }
    beginResetModel();
    nodes.clear();
    rootNodes.clear();
    for (int row = 0; row < document()->rowCount(); ++row) {
        TestItem* const item = document()->item(row);
        nodes[item].append(new TestNode(item));
        link(nodes[item].first().get());
    }
    for (TestItem* const item : qAsConst(shownTwice)) {
        const Fondo::RefPtr<TestNode> second = new TestNode(item);
        nodes[item].append(second);
        second->setChildNumber(rootNodes.size());
        rootNodes.append(second);
    }
    endResetModel();
}

void TestTree::rowsInsertedInSourceModel(const QModelIndex& /*parent*/, int start, int /*end*/)
{
    TestItem* const item = document()->item(start);
    nodes[item].append(new TestNode(item));
    const QModelIndex parent = item->parent != nullptr ? nodeIndex(item->parent) : QModelIndex();
    beginInsertRows(parent, rowCount(parent), rowCount(parent));
    link(nodes[item].first().get());
    endInsertRows();
}

void TestTree::rowsAboutToBeRemovedInSourceModel(const QModelIndex& /*parent*/, int start, int /*end*/)
{
    TestItem* const item = document()->item(start);
    while (!nodes.value(item).isEmpty()) {
        const Fondo::RefPtr<TestNode> node = nodes[item].takeFirst();
        tolvik::TreeNode* const parent = node->parent();
        const QModelIndex above =
            parent != nullptr ? createIndex(parent->childNumber(), 0, parent) : QModelIndex();
        beginRemoveRows(above, node->childNumber(), node->childNumber());
        if (parent != nullptr) {
            parent->children().erase(parent->children().begin() + node->childNumber());
            parent->renumberChildren();
        } else {
            rootNodes.removeAt(node->childNumber());
            for (int row = 0; row < rootNodes.size(); ++row) {
                rootNodes[row]->setChildNumber(row);
            }
        }
        endRemoveRows();
    }
}

void TestTree::selectSiblings(bool sameType, bool reserved)
{
    calls.append(QString(sameType ? "siblings of same type" : "siblings") +
                 (reserved ? ", true" : ", false"));
}

void TestTree::encodeData(const QList<QModelIndex>& indexes, QDataStream& stream) const
{
    stream << indexes.size();
}

QModelIndex TestTree::nodeIndex(TestItem* item) const
{
    TestNode* const node = nodes.value(item).first().get();
    return createIndex(node->childNumber(), 0, node);
}

void TestTree::link(TestNode* node)
{
    if (node->item->parent != nullptr && nodes.contains(node->item->parent)) {
        TestNode* const parent = nodes[node->item->parent].first().get();
        node->setParent(parent);
        node->setChildNumber(static_cast<int>(parent->children().size()));
        parent->children().push_back(node);
    } else {
        node->setChildNumber(rootNodes.size());
        rootNodes.append(Fondo::RefPtr<tolvik::TreeNode>(node));
    }
}

} // namespace testsupport
