#include "UI/Models/CityGMLModel/CityGMLProxyModel.h"

#include "gml/AbstractFeatureType.hxx"
#include "gml/CodeType.hxx"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <QSet>

// How the tree follows the rows of its source.

namespace tolvik {

namespace {

constexpr int nameColumn = 0;

/// Adds a node and everything below it.
void collectBranch(const TreeNode* node, QSet<const TreeNode*>& branch)
{
    branch.insert(node);
    for (const auto& child : node->children()) {
        if (child) {
            collectBranch(child.get(), branch);
        }
    }
}

} // namespace

void CityGMLProxyModel::sourceDataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight)
{
    if (topLeft != bottomRight) {
        const QItemSelection changedNodes = mapSelectionFromSource(QItemSelection(topLeft, bottomRight));
        for (const QItemSelectionRange& range : changedNodes) {
            emit dataChanged(range.topLeft(), range.bottomRight());
        }
        return;
    }
    const QModelIndex changedNode = mapFromSource(topLeft);
    if (!changedNode.isValid()) {
        return;
    }
    if (auto* const node = dynamic_cast<TreeNodeGML*>(treeNode(changedNode))) {
        const auto& names = node->feature()->name();
        if (!names.empty()) {
            node->setName(Fondo::String::fromUTF8(names.front()));
        }
    }
    emit dataChanged(changedNode, changedNode);
}

void CityGMLProxyModel::rowsInsertedInSourceModel(const QModelIndex& /*parent*/, int start, int /*end*/)
{
    if (source == nullptr) {
        return;
    }
    gml::AbstractFeatureType* const feature = document()->getFeature(start);
    if (feature == nullptr || !isAccepted(feature)) {
        return;
    }
    TreeNodeGML* const node = new TreeNodeGML(feature, nullptr);
    nodeMap[feature].emplace_back(node);
    rootNodes.clear();
    updateTreeNodes();

    QModelIndex parentIndex;
    if (auto* const parentNode = dynamic_cast<TreeNodeGML*>(node->parent())) {
        parentIndex = index(parentNode->childNumber(), nameColumn, parentNode);
    }
    const int row = node->childNumber();
    // Nodes that the new one claims have moved without a signal. Those behind the signalled row move with the
    // signal below.
    movePersistentIndexes([&](const QModelIndex& each) {
        const TreeNode* const itsNode = treeNode(each);
        const int itsRow = isLinked(itsNode) ? itsNode->childNumber() : -1;
        if (itsRow < row || itsNode == node || parent(each) != parentIndex) {
            return itsRow;
        }
        return itsRow == row ? -1 : itsRow - 1;
    });
    beginInsertRows(parentIndex, row, row);
    endInsertRows();
}

void CityGMLProxyModel::rowsAboutToBeRemovedInSourceModel(const QModelIndex& parent, int start, int /*end*/)
{
    if (source == nullptr) {
        return;
    }
    gml::AbstractFeatureType* const feature = document()->getFeature(start);
    bool isGone = false;
    for (auto entry = nodeMap.find(feature); !isGone && entry != nodeMap.end();
         entry = nodeMap.find(feature)) {
        const Fondo::RefPtr<TreeNodeGML> node = entry->second.front();
        QModelIndex parentIndex;
        if (const TreeNode* const parentNode = node->parent()) {
            parentIndex = index(parentNode->childNumber(), nameColumn, parent);
        }
        const int row = node->childNumber();
        movePersistentIndexes([&](const QModelIndex& each) {
            return isLinked(treeNode(each)) ? treeNode(each)->childNumber() : -1;
        });
        beginRemoveRows(parentIndex, row, row);
        takeOut(node.get());
        QSet<const TreeNode*> branch;
        collectBranch(node.get(), branch);
        isGone = deleteTreeNode(node.get());
        releaseChildren(branch);
        // Below the second level the signals name another parent, whose rows they move: to where they have
        // been. Nothing may refer to a node when it dies.
        movePersistentIndexes([&](const QModelIndex& each) {
            const TreeNode* const itsNode = treeNode(each);
            if (branch.contains(itsNode)) {
                return -1;
            }
            const bool isMoved = each.row() > row && this->parent(each) == parentIndex;
            return isMoved ? itsNode->childNumber() + 1 : itsNode->childNumber();
        });
        endRemoveRows();
    }
    nodeMap.erase(feature);
}

/// Takes the parent from nodes that are about to lose it: those that no walk claims any more keep their last.
void CityGMLProxyModel::releaseChildren(const QSet<const TreeNode*>& branch)
{
    for (const auto& [feature, nodes] : nodeMap) {
        for (const auto& node : nodes) {
            if (node->parent() != nullptr && branch.contains(node->parent())) {
                node->setParent(nullptr);
            }
        }
    }
}

/// Takes a node from where it stands, and numbers the nodes behind it.
void CityGMLProxyModel::takeOut(TreeNode* node)
{
    const int row = node->childNumber();
    if (TreeNode* const parentNode = node->parent()) {
        auto& siblings = parentNode->children();
        // A node whose feature was moved in the document still has the parent that no longer holds it.
        if (row >= 0 && row < static_cast<int>(siblings.size()) &&
            siblings[static_cast<std::size_t>(row)] == node) {
            siblings.erase(siblings.begin() + row);
        }
        parentNode->renumberChildren();
        return;
    }
    if (row >= 0 && row < rootNodes.size() && rootNodes[row] == node) {
        rootNodes.removeAt(row);
    }
    for (int i = 0; i < rootNodes.size(); ++i) {
        rootNodes[i]->setChildNumber(i);
    }
}

/// Whether a node stands where its parent and its row say.
bool CityGMLProxyModel::isLinked(const TreeNode* node) const
{
    const int row = node->childNumber();
    const TreeNode* const above = node->parent();
    if (row < 0 ||
        row >= (above != nullptr ? static_cast<int>(above->children().size()) : rootNodes.size())) {
        return false;
    }
    return (above != nullptr ? above->children()[static_cast<std::size_t>(row)] : rootNodes[row]) == node;
}

/// Brings persistent indexes in step with the tree, since the signals do not tell all of what has changed.
/// \param rowOf gives the row that an index is to have, -1 to make it invalid
template <class RowOf>
void CityGMLProxyModel::movePersistentIndexes(RowOf rowOf)
{
    QModelIndexList from;
    QModelIndexList to;
    const QModelIndexList indexes = persistentIndexList();
    for (const QModelIndex& each : indexes) {
        const int row = rowOf(each);
        if (row != each.row()) {
            from.append(each);
            to.append(row != -1 ? createIndex(row, each.column(), treeNode(each)) : QModelIndex());
        }
    }
    changePersistentIndexList(from, to);
}

} // namespace tolvik
