#include "UI/Models/CityGMLModel/CityGMLTreeModel.h"

#include "gml/AbstractFeatureType.hxx"
#include "UI/Models/CityGMLModel/CityGMLModel.h"
#include "UI/Models/CityGMLModel/FeatureAnswers.h"

#include <algorithm>
#include <iterator>
#include <QHash>
#include <QScopedValueRollback>
#include <utility>

namespace tolvik {

namespace {

// A view measures each row of an announced range anew, with everything that is open between its ends: as long
// as it takes to lay out so many rows.
constexpr int rowsALayout = 16;
constexpr int fewRows = 64;

} // namespace

/// A node with what the model remembers of it.
class Q_DECL_HIDDEN CityGMLTreeModel::Node : public TreeNodeGML
{
public:
    explicit Node(gml::AbstractFeatureType* feature) : TreeNodeGML(feature, nullptr) {}

    Node* above() const { return static_cast<Node*>(parent()); }

    Qt::CheckState state() const
    {
        if (visibleNodes == 0) {
            return Qt::Unchecked;
        }
        return visibleNodes == nodes ? Qt::Checked : Qt::PartiallyChecked;
    }

    // Of the node and everything below it.
    int nodes = 1;
    int visibleNodes = 0;

    // Where its row was last.
    int row = -1;

    bool isVisible = false;
    bool isInTree = true;
    Qt::CheckState announcedState = Qt::Unchecked;

    // The lists of pending announcements that it is in.
    bool isTurned = false;
    bool isTouched = false;
    bool isUnexplained = false;

    // While links are found: the position among all nodes, and the node to stand below.
    std::size_t place = 0;
    Node* claimer = nullptr;
};

/// Adjacent rows.
struct CityGMLTreeModel::Range
{
    Fondo::RefPtr<Node> parent;
    int first;
    int last;
};

/// What is to stand below each node, in the order of the node map, and at the top.
struct CityGMLTreeModel::Links
{
    std::vector<Node*> nodes;
    std::vector<Children> children;
    Children roots;

    bool holds(const Node* node) const { return node->place < nodes.size() && nodes[node->place] == node; }

    const Children& below(const Node* node) const { return node != nullptr ? children[node->place] : roots; }

    /// Keeps of what a node claims each node of the model once, and notes the claim.
    void accept(Node* claimer, Children& claimed)
    {
        const auto isRefused = [&](const Fondo::RefPtr<TreeNode>& each) {
            auto* const node = dynamic_cast<Node*>(each.get());
            if (node == nullptr || node == claimer || !holds(node) || node->claimer == claimer) {
                return true;
            }
            node->claimer = claimer;
            return false;
        };
        claimed.erase(std::remove_if(claimed.begin(), claimed.end(), isRefused), claimed.end());
    }

    /// Gives each node to its last claimer alone.
    void settle()
    {
        for (Node* const node : nodes) {
            Children& claimed = children[node->place];
            const auto isLost = [node](const Fondo::RefPtr<TreeNode>& each) {
                return static_cast<Node*>(each.get())->claimer != node;
            };
            claimed.erase(std::remove_if(claimed.begin(), claimed.end(), isLost), claimed.end());
        }
    }

    /// Makes a root of one node of each circle.
    void cutCircles()
    {
        // Which way up has come by a node: that which starts at the node of that position.
        const std::size_t none = nodes.size();
        std::vector<std::size_t> wayBy(nodes.size(), none);
        for (const Node* const start : nodes) {
            const std::size_t way = start->place;
            Node* node = nodes[way];
            while (node != nullptr && wayBy[node->place] == none) {
                wayBy[node->place] = way;
                node = node->claimer;
            }
            if (node != nullptr && wayBy[node->place] == way) {
                Children& siblings = children[node->claimer->place];
                siblings.erase(std::find(siblings.begin(), siblings.end(), node));
                node->claimer = nullptr;
            }
        }
    }
};

CityGMLTreeModel::CityGMLTreeModel(const QString& name, QObject* parent)
    : CityGMLProxyModel(name, parent), answers(new FeatureAnswers(this))
{
}

CityGMLTreeModel::~CityGMLTreeModel() = default;

CityGMLTreeModel::Node* CityGMLTreeModel::nodeOf(gml::AbstractFeatureType* feature) const
{
    return static_cast<Node*>(treeNode(feature));
}

CityGMLTreeModel::Node* CityGMLTreeModel::nodeAt(const Node* parent, int row) const
{
    TreeNode* const node =
        parent != nullptr ? parent->children()[static_cast<std::size_t>(row)].get() : rootNodes[row].get();
    return static_cast<Node*>(node);
}

int CityGMLTreeModel::childCount(const Node* parent) const
{
    return parent != nullptr ? static_cast<int>(parent->children().size()) : rootNodes.size();
}

/// The row of a node's feature, -1 if it has none. Rows seldom change, so that it is most often where it was.
int CityGMLTreeModel::rowOf(Node& node) const
{
    if (document()->getFeature(node.row) != node.feature()) {
        node.row = document()->getRow(node.feature());
    }
    return node.row;
}

QModelIndex CityGMLTreeModel::mapToSource(const QModelIndex& index) const
{
    TreeNode* const node = CityGMLProxyModel::treeNode(index);
    if (source == nullptr || sourceBusy || node == nullptr) {
        return QModelIndex();
    }
    return document()->index(rowOf(*static_cast<Node*>(node)), index.column());
}

QModelIndex CityGMLTreeModel::indexOf(Node* node) const
{
    return node != nullptr ? nodeIndex(node) : QModelIndex();
}

void CityGMLTreeModel::setSourceModel(QAbstractItemModel* model)
{
    answers->setSource(qobject_cast<CityGMLModel*>(model));
    CityGMLProxyModel::setSourceModel(model);
}

QHash<int, QByteArray> CityGMLTreeModel::roleNames() const
{
    return featureRoleNames(CityGMLProxyModel::roleNames());
}

QVariant CityGMLTreeModel::data(const QModelIndex& index, int role) const
{
    return FeatureAnswers::isFeatureRole(role) ? answers->data(mapToSource(index), role)
                                               : CityGMLProxyModel::data(index, role);
}

bool CityGMLTreeModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (FeatureAnswers::isFeatureRole(role)) {
        return answers->setData(mapToSource(index), value, role);
    }
    if (role != Qt::CheckStateRole) {
        return CityGMLProxyModel::setData(index, value, role);
    }
    TreeNode* const top = CityGMLProxyModel::treeNode(index);
    if (!checkColumnEnabled || sourceBusy || top == nullptr || index.column() != 0 || source == nullptr) {
        return false;
    }
    QList<QModelIndex> branch{nodeIndex(top)};
    for (int i = 0; i < branch.size(); ++i) {
        for (const auto& child : CityGMLProxyModel::treeNode(branch[i])->children()) {
            branch.append(nodeIndex(child.get()));
        }
    }
    changeObjectVisibleField(branch, value.toInt() != Qt::Unchecked);
    return true;
}

QVariant CityGMLTreeModel::recursiveCheckState(const QModelIndex& index) const
{
    return static_cast<int>(static_cast<Node*>(CityGMLProxyModel::treeNode(index))->state());
}

void CityGMLTreeModel::sourceModelAboutToBeReset()
{
    if (!isEmptied) {
        beginResetModel();
        dropNodes();
        isEmptied = true;
    }
    CityGMLProxyModel::sourceModelAboutToBeReset();
}

void CityGMLTreeModel::computeNodeMap()
{
    if (source == nullptr) {
        return;
    }
    if (!isEmptied) {
        beginResetModel();
        dropNodes();
    }
    makeNodes([](gml::AbstractFeatureType* feature) -> TreeNodeGML* { return new Node(feature); });
    for (auto& [feature, nodes] : nodeMap) {
        nodes.resize(1); // a feature may stand on two rows
    }
    updateTreeNodes();
    endResetModel();
}

void CityGMLTreeModel::endResetModel()
{
    isEmptied = false;
    turned.clear();
    touched.clear();
    unexplained.clear();
    CityGMLProxyModel::endResetModel();
}

void CityGMLTreeModel::updateTreeNodes()
{
    Links links = claimedLinks();
    for (Node* const node : links.nodes) {
        node->setParent(node->claimer);
        node->children() = std::move(links.children[node->place]);
        node->renumberChildren();
        node->isVisible = isVisibleInSource(*node);
        node->nodes = 0;
        node->visibleNodes = 0;
    }
    for (const auto& root : links.roots) {
        root->setChildNumber(rootNodes.size());
        rootNodes.append(root);
    }
    for (const Node* const node : links.nodes) {
        for (auto* each = const_cast<Node*>(node); each != nullptr; each = each->above()) {
            each->nodes += 1;
            each->visibleNodes += node->isVisible ? 1 : 0;
        }
    }
    for (Node* const node : links.nodes) {
        node->announcedState = node->state();
    }
}

bool CityGMLTreeModel::deleteTreeNode(TreeNode* node)
{
    if (node != nullptr) {
        static_cast<Node*>(node)->isInTree = false;
    }
    return CityGMLProxyModel::deleteTreeNode(node);
}

/// Has the children visitor walk from all nodes, and leaves their children as they are.
CityGMLTreeModel::Links CityGMLTreeModel::claimedLinks()
{
    Links links;
    links.nodes.reserve(nodeMap.size());
    for (const auto& [feature, nodes] : nodeMap) {
        auto* const node = static_cast<Node*>(nodes.front().get());
        node->place = links.nodes.size();
        node->claimer = nullptr;
        links.nodes.push_back(node);
    }
    links.children.resize(links.nodes.size());
    if (traverseChildrenVisitor) {
        walkNodes([&](TreeNodeGML& each) {
            auto& node = static_cast<Node&>(each);
            Children& claimed = links.children[node.place];
            node.children().swap(claimed);
            fillChildren(node);
            node.children().swap(claimed);
            links.accept(&node, claimed);
        });
    }
    links.settle();
    links.cutCircles();
    for (Node* const node : links.nodes) {
        if (node->claimer == nullptr) {
            links.roots.emplace_back(node);
        }
    }
    return links;
}

void CityGMLTreeModel::rowsInsertedInSourceModel(const QModelIndex& /*parent*/, int start, int /*end*/)
{
    if (source == nullptr || sourceBusy) {
        return;
    }
    added.push_back(document()->getFeature(start));
    if (!document()->isAddingMore()) {
        addNodes(std::exchange(added, {}));
    }
}

/// Makes nodes for features, less those that have no row or are not for the tree.
void CityGMLTreeModel::addNodes(const std::vector<gml::AbstractFeatureType*>& features)
{
    Nodes waiting;
    for (gml::AbstractFeatureType* const feature : features) {
        if (document()->getRow(feature) < 0 || !isAccepted(feature) || treeNode(feature) != nullptr) {
            continue;
        }
        auto* const node = new Node(feature);
        nodeMap[feature].emplace_back(node);
        node->isVisible = isVisibleInSource(*node);
        node->visibleNodes = node->isVisible ? 1 : 0;
        node->announcedState = node->state();
        node->isInTree = false;
        waiting.emplace_back(node);
    }
    if (waiting.empty()) {
        return;
    }
    const Links links = claimedLinks();
    for (const auto& node : waiting) {
        // What is to stand above comes first.
        std::vector<Node*> way;
        for (Node* each = node.get(); each != nullptr && !each->isInTree; each = each->claimer) {
            way.push_back(each);
        }
        std::for_each(way.rbegin(), way.rend(), [&](Node* each) { insert(each, links); });
    }
    rearrange(links);
    announceStates();
}

/// Inserts a node without children: behind the next in front of it that is there already.
void CityGMLTreeModel::insert(Node* node, const Links& links)
{
    Node* const parent = node->claimer;
    const Children& siblings = links.below(parent);
    auto place = std::find(siblings.begin(), siblings.end(), node);
    int row = 0;
    while (row == 0 && place != siblings.begin()) {
        --place;
        if ((*place)->parent() == parent) {
            row = (*place)->childNumber() + 1;
        }
    }
    beginInsertRows(indexOf(parent), row, row);
    insertChildren(parent, row, {node});
    node->isInTree = true;
    endInsertRows();
}

/// Moves nodes until each stands where it is to stand. Parents come before what is below them, so that
/// no node is ever moved below itself.
void CityGMLTreeModel::rearrange(const Links& links)
{
    arrangeChildren(nullptr, links.roots);
    Children open = links.roots;
    while (!open.empty()) {
        auto* const node = static_cast<Node*>(open.back().get());
        open.pop_back();
        const Children& wanted = links.below(node);
        arrangeChildren(node, wanted);
        open.insert(open.end(), wanted.begin(), wanted.end());
    }
}

void CityGMLTreeModel::arrangeChildren(Node* parent, const Children& wanted)
{
    const int size = static_cast<int>(wanted.size());
    for (int row = 0; row < size; ++row) {
        const auto at = [&](int i) { return static_cast<Node*>(wanted[static_cast<std::size_t>(i)].get()); };
        if (row < childCount(parent) && nodeAt(parent, row) == at(row)) {
            continue;
        }
        // Nodes that are to leave make way, or else all behind them would have to move.
        int leaving = row;
        while (leaving < childCount(parent) && nodeAt(parent, leaving)->claimer != parent) {
            ++leaving;
        }
        if (leaving > row && leaving < childCount(parent)) {
            move(parent, row, leaving - row, parent, childCount(parent));
        }
        Node* const from = at(row)->above();
        const int first = at(row)->childNumber();
        if (from == parent && first == row) {
            continue;
        }
        int count = 1;
        while (row + count < size && at(row + count)->above() == from &&
               at(row + count)->childNumber() == first + count) {
            ++count;
        }
        move(from, first, count, parent, row);
        row += count - 1;
    }
}

/// Moves adjacent rows in front of a row, in terms of the rows before the move.
void CityGMLTreeModel::move(Node* from, int row, int count, Node* to, int target)
{
    beginMoveRows(indexOf(from), row, row + count - 1, indexOf(to), target);
    const Children moved = takeChildren(from, row, count);
    insertChildren(to, from == to && target > row ? target - count : target, moved);
    endMoveRows();
}

CityGMLTreeModel::Children CityGMLTreeModel::takeChildren(Node* parent, int row, int count)
{
    Children taken;
    for (int i = row; i < row + count; ++i) {
        Node* const node = nodeAt(parent, i);
        taken.emplace_back(node);
        this->count(parent, -node->nodes, -node->visibleNodes);
    }
    if (parent != nullptr) {
        const auto first = parent->children().begin() + row;
        parent->children().erase(first, first + count);
    } else {
        rootNodes.erase(rootNodes.begin() + row, rootNodes.begin() + row + count);
    }
    numberChildren(parent, row);
    return taken;
}

void CityGMLTreeModel::insertChildren(Node* parent, int row, const Children& children)
{
    for (const auto& child : children) {
        auto* const node = static_cast<Node*>(child.get());
        node->setParent(parent);
        count(parent, node->nodes, node->visibleNodes);
    }
    if (parent != nullptr) {
        parent->children().insert(parent->children().begin() + row, children.begin(), children.end());
    } else {
        const QList<Fondo::RefPtr<TreeNode>> behind = rootNodes.mid(row);
        rootNodes.erase(rootNodes.begin() + row, rootNodes.end());
        std::copy(children.begin(), children.end(), std::back_inserter(rootNodes));
        rootNodes += behind;
    }
    numberChildren(parent, row);
}

/// Numbers the children from a row on.
void CityGMLTreeModel::numberChildren(Node* parent, int row)
{
    for (int i = row; i < childCount(parent); ++i) {
        nodeAt(parent, i)->setChildNumber(i);
    }
}

void CityGMLTreeModel::rowsAboutToBeRemovedInSourceModel(const QModelIndex& /*parent*/, int start,
                                                         int /*end*/)
{
    if (source == nullptr || sourceBusy) {
        return;
    }
    const Fondo::RefPtr<Node> node(nodeOf(document()->getFeature(start)));
    if (!node) {
        return;
    }
    Node* const parent = node->above();
    const int row = node->childNumber();
    beginRemoveRows(indexOf(parent), row, row);
    takeChildren(parent, row, 1);
    deleteTreeNode(node.get());
    endRemoveRows();
    announceStates();
}

void CityGMLTreeModel::sourceDataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight)
{
    if (source == nullptr || sourceBusy) {
        return;
    }
    Nodes changed;
    for (int row = topLeft.row(); row <= bottomRight.row(); ++row) {
        Node* const node = nodeOf(document()->getFeature(row));
        if (node == nullptr) {
            continue;
        }
        const bool isRenamed = updateName(*node);
        const bool isTurned = updateVisibility(*node);
        if (isRenamed || (!isTurned && node->isVisible)) {
            changed.emplace_back(node);
        } else if (!isTurned && !node->isUnexplained) {
            node->isUnexplained = true;
            unexplained.emplace_back(node);
            queueAnnouncement();
        }
    }
    announce(changed, QVector<int>());
}

/// Gives a node the name that a new one would have.
/// \return whether it had another
bool CityGMLTreeModel::updateName(Node& node)
{
    const Fondo::String name = TreeNodeGML::nameOf(*node.feature());
    if (node.getName() == name) {
        return false;
    }
    node.setName(name);
    return true;
}

bool CityGMLTreeModel::isVisibleInSource(Node& node) const
{
    return document()->isVisible(document()->index(rowOf(node), 0));
}

/// Remembers the visibility of a row, and notes its change.
/// \return whether it has changed
bool CityGMLTreeModel::updateVisibility(Node& node)
{
    const bool isVisible = isVisibleInSource(node);
    if (node.isVisible == isVisible) {
        return false;
    }
    node.isVisible = isVisible;
    count(&node, 0, isVisible ? 1 : -1);
    if (!node.isTurned) {
        node.isTurned = true;
        turned.emplace_back(&node);
        queueAnnouncement();
    }
    return true;
}

/// Counts nodes that come below a node, or turn there, for the node and those above it.
void CityGMLTreeModel::count(Node* node, int nodes, int visibleNodes)
{
    for (Node* each = node; each != nullptr; each = each->above()) {
        each->nodes += nodes;
        each->visibleNodes += visibleNodes;
        if (!each->isTouched && each->state() != each->announcedState) {
            each->isTouched = true;
            touched.emplace_back(each);
        }
    }
}

void CityGMLTreeModel::visibilityChangedInSourceModel(const QList<QModelIndex>& indexes)
{
    if (source == nullptr || sourceBusy) {
        return;
    }
    for (const QModelIndex& index : indexes) {
        if (Node* const node = nodeOf(document()->getFeature(index))) {
            updateVisibility(*node);
        }
    }
    announcePending();
}

/// Announces what is pending when the event loop runs, for sources that leave it at signals for single rows.
void CityGMLTreeModel::queueAnnouncement()
{
    if (!isAnnouncementQueued) {
        isAnnouncementQueued = true;
        QMetaObject::invokeMethod(
            this,
            [this] {
                isAnnouncementQueued = false;
                announcePending();
            },
            Qt::QueuedConnection);
    }
}

void CityGMLTreeModel::announcePending()
{
    if (sourceBusy) {
        return;
    }
    const Nodes others = std::exchange(unexplained, Nodes());
    for (const auto& node : others) {
        node->isUnexplained = false;
    }
    announceStates();
    announce(others, QVector<int>());
}

/// Announces the nodes that were hidden or shown, and those of which the subtree has another state.
void CityGMLTreeModel::announceStates()
{
    Nodes changed = std::exchange(turned, Nodes());
    for (const auto& node : changed) {
        node->isTurned = false;
        node->announcedState = node->state();
    }
    const Nodes above = std::exchange(touched, Nodes());
    for (const auto& node : above) {
        node->isTouched = false;
        if (node->announcedState != node->state()) {
            node->announcedState = node->state();
            if (checkColumnEnabled) {
                changed.push_back(node);
            }
        }
    }
    announce(changed, {Qt::CheckStateRole, FeatureVisibilityRole});
}

/// Announces changes of nodes in as few ranges of whole rows as there can be, parents in the order in which
/// they come. If that is much for a view to go through it is told first that it will have to lay out anew,
/// and then looks at none of the ranges.
void CityGMLTreeModel::announce(const Nodes& nodes, const QVector<int>& roles)
{
    const std::vector<Range> ranges = rangesOf(nodes);
    long long toMeasure = 0;
    for (const Range& range : ranges) {
        ++toMeasure;
        for (int row = range.first; row < range.last; ++row) {
            toMeasure += nodeAt(range.parent.get(), row)->nodes;
        }
    }
    if (toMeasure > fewRows && toMeasure * rowsALayout > static_cast<long long>(nodeMap.size())) {
        emit layoutAboutToBeChanged();
        emit layoutChanged();
    }
    const int lastColumn = columnCount() - 1;
    for (const Range& range : ranges) {
        const QModelIndex parent = indexOf(range.parent.get());
        emit dataChanged(index(range.first, 0, parent), index(range.last, lastColumn, parent), roles);
    }
}

std::vector<CityGMLTreeModel::Range> CityGMLTreeModel::rangesOf(const Nodes& nodes) const
{
    std::vector<std::pair<Node*, std::vector<int>>> groups;
    QHash<const Node*, std::size_t> groupOf;
    for (const auto& node : nodes) {
        if (!node->isInTree) {
            continue;
        }
        const auto known = groupOf.constFind(node->above());
        const std::size_t group = known != groupOf.constEnd() ? *known : groups.size();
        if (group == groups.size()) {
            groupOf.insert(node->above(), group);
            groups.push_back({node->above(), {}});
        }
        groups[group].second.push_back(node->childNumber());
    }
    std::vector<Range> ranges;
    for (auto& [parent, rows] : groups) {
        std::sort(rows.begin(), rows.end());
        for (auto first = rows.begin(); first != rows.end();) {
            auto end = first + 1;
            while (end != rows.end() && *end <= *(end - 1) + 1) {
                ++end;
            }
            ranges.push_back({parent, *first, *(end - 1)});
            first = end;
        }
    }
    return ranges;
}

} // namespace tolvik
