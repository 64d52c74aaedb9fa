#include "framework/TreeNodeProxyModel.h"

#include "framework/Model.h"

#include <algorithm>
#include <QAction>
#include <QScopedValueRollback>
#include <QSet>
#include <utility>
#include <vector>

namespace tolvik {

namespace {

constexpr int selectionGroup = 2;

/// The nodes with an index in a selection, each once, in the order of the selection.
QList<TreeNode*> nodesOf(const QItemSelection& selection)
{
    QList<TreeNode*> nodes;
    QSet<TreeNode*> seen;
    for (const QItemSelectionRange& range : selection) {
        if (!range.isValid()) {
            continue;
        }
        const QModelIndex first = range.topLeft();
        for (int row = range.top(); row <= range.bottom(); ++row) {
            TreeNode* const node = TreeNodeProxyModel::treeNode(first.sibling(row, first.column()));
            if (node != nullptr && !seen.contains(node)) {
                seen.insert(node);
                nodes.append(node);
            }
        }
    }
    return nodes;
}

/// The first and the last selected cell of a row.
using Cells = std::pair<QModelIndex, QModelIndex>;

/// Rows in ascending order as a selection, with a range for those that follow each other. Each range has Qt
/// register two indexes with the model, and so they are not made row by row.
QItemSelection joined(const std::vector<Cells>& rows)
{
    QItemSelection selection;
    for (std::size_t first = 0, next = 0; first < rows.size(); first = next) {
        const auto& [left, right] = rows[first];
        for (next = first + 1; next < rows.size(); ++next) {
            const auto& [nextLeft, nextRight] = rows[next];
            const int distance = static_cast<int>(next - first);
            if (nextLeft.row() != left.row() + distance || nextLeft.column() != left.column() ||
                nextRight.column() != right.column() || nextLeft.parent() != left.parent()) {
                break;
            }
        }
        selection.append(QItemSelectionRange(left, rows[next - 1].second));
    }
    return selection;
}

/// Whether one of the nodes is somewhere below another one.
bool anyBelow(const TreeNode& top, const QList<TreeNode*>& nodes)
{
    return std::any_of(nodes.begin(), nodes.end(), [&top](const TreeNode* node) {
        const TreeNode* above = node->parent();
        while (above != nullptr && above != &top) {
            above = above->parent();
        }
        return above != nullptr;
    });
}

/// Everything below a node, parents first.
void appendBelow(const TreeNode& node, QList<TreeNode*>& nodes)
{
    for (const auto& child : node.children()) {
        if (child) {
            nodes.append(child.get());
            appendBelow(*child, nodes);
        }
    }
}

} // namespace

TreeNodeProxyModel::TreeNodeProxyModel(const QString& name, QObject* parent)
    : ProxyModel(name, parent),
      logger(log4cplus::Logger::getInstance(LOG4CPLUS_TEXT("tolvik.framework.TreeNodeProxyModel")))
{
}

TreeNodeProxyModel::~TreeNodeProxyModel() = default;

TreeNode* TreeNodeProxyModel::treeNode(const QModelIndex& index)
{
    return index.isValid() ? static_cast<TreeNode*>(index.internalPointer()) : nullptr;
}

QModelIndex TreeNodeProxyModel::index(int row, int column, const QModelIndex& parent) const
{
    if (row < 0 || column < 0 || row >= rowCount(parent) || column >= columnCount(parent)) {
        return QModelIndex();
    }
    const TreeNode* const above = treeNode(parent);
    TreeNode* const node =
        above == nullptr ? rootNodes[row].get() : above->children()[static_cast<std::size_t>(row)].get();
    return node != nullptr ? index(row, column, node) : QModelIndex();
}

QModelIndex TreeNodeProxyModel::index(int row, int column, TreeNode* node) const
{
    return createIndex(row, column, node);
}

QModelIndex TreeNodeProxyModel::nodeIndex(TreeNode* node) const
{
    return index(node->childNumber(), 0, node);
}

QModelIndex TreeNodeProxyModel::parent(const QModelIndex& index) const
{
    const TreeNode* const node = treeNode(index);
    return node != nullptr && node->parent() != nullptr ? nodeIndex(node->parent()) : QModelIndex();
}

int TreeNodeProxyModel::rowCount(const QModelIndex& parent) const
{
    if (parent.column() > 0) {
        return 0;
    }
    const TreeNode* const node = treeNode(parent);
    return node != nullptr ? static_cast<int>(node->children().size()) : rootNodes.size();
}

int TreeNodeProxyModel::columnCount(const QModelIndex& /*parent*/) const
{
    return source != nullptr ? source->columnCount() : 0;
}

bool TreeNodeProxyModel::hasChildren(const QModelIndex& parent) const
{
    return rowCount(parent) > 0;
}

bool TreeNodeProxyModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole) {
        return QAbstractProxyModel::setData(index, value, role);
    }
    TreeNode* const node = treeNode(index);
    if (!checkColumnEnabled || sourceBusy || node == nullptr || index.column() != 0 || model() == nullptr) {
        return false;
    }
    QList<TreeNode*> nodes{node};
    if (recursiveSelection) {
        appendBelow(*node, nodes);
    }
    QList<QModelIndex> indexes;
    indexes.reserve(nodes.size());
    for (TreeNode* const each : qAsConst(nodes)) {
        indexes.append(nodeIndex(each));
    }
    changeObjectVisibleField(indexes, value.toInt() != Qt::Unchecked);
    return true;
}

Qt::ItemFlags TreeNodeProxyModel::flags(const QModelIndex& index) const
{
    TreeNode* const node = treeNode(index);
    if (node == nullptr || sourceBusy || isDisabled(node)) {
        return Qt::NoItemFlags;
    }
    Qt::ItemFlags result = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled;
    if (checkColumnEnabled && index.column() == 0) {
        result |= Qt::ItemIsUserCheckable;
    }
    return result;
}

void TreeNodeProxyModel::setSourceModel(QAbstractItemModel* model)
{
    for (const QMetaObject::Connection& connection : qAsConst(connections)) {
        disconnect(connection);
    }
    connections.clear();

    sourceBusy = true;
    ProxyModel::setSourceModel(model);
    if (source == nullptr) {
        clearTree();
        return;
    }
    using Source = QAbstractItemModel;
    using This = TreeNodeProxyModel;
    connections = {
        connect(model, &Source::dataChanged, this, &This::sourceDataChanged),
        connect(model, &Source::rowsInserted, this, &This::rowsInsertedInSourceModel),
        connect(model, &Source::rowsAboutToBeRemoved, this, &This::rowsAboutToBeRemovedInSourceModel),
        connect(model, &Source::modelAboutToBeReset, this, &This::sourceModelAboutToBeReset),
        connect(model, &Source::modelReset, this, &This::sourceModelReset),
        connect(model, &Source::layoutAboutToBeChanged, this, &This::sourceLayoutAboutToBeChanged),
        connect(model, &Source::layoutChanged, this, &This::sourceLayoutChanged),
        connect(model, &QObject::destroyed, this, &This::clearTree),
    };
    if (const auto* const document = qobject_cast<Model*>(model)) {
        using Index = const QModelIndex&;
        using List = const QList<QModelIndex>&;
        connections.append(connect(document, QOverload<Index>::of(&Model::visibilityChanged), this,
                                   QOverload<Index>::of(&This::visibilityChangedInSourceModel)));
        connections.append(connect(document, QOverload<List>::of(&Model::visibilityChanged), this,
                                   QOverload<List>::of(&This::visibilityChangedInSourceModel)));
    }
    rebuild();
}

void TreeNodeProxyModel::clearTree()
{
    beginResetModel();
    rootNodes.clear();
    sourceBusy = false;
    endResetModel();
}

void TreeNodeProxyModel::endResetModel()
{
    rebuilt();
    QAbstractItemModel::endResetModel();
}

void TreeNodeProxyModel::appendRow(QItemSelection& selection, const QModelIndex& left,
                                   const QModelIndex& right)
{
    if (!selection.isEmpty()) {
        QItemSelectionRange& last = selection.last();
        if (last.bottom() + 1 == left.row() && last.left() == left.column() &&
            last.right() == right.column() && last.parent() == left.parent()) {
            last = QItemSelectionRange(last.topLeft(), right);
            return;
        }
    }
    selection.append(QItemSelectionRange(left, right));
}

QItemSelection TreeNodeProxyModel::mapSelectionToSource(const QItemSelection& selection) const
{
    std::vector<Cells> rows;
    for (const QItemSelectionRange& range : selection) {
        if (!range.isValid()) {
            continue;
        }
        const QModelIndex parent = range.parent();
        for (int row = range.top(); row <= range.bottom(); ++row) {
            const QModelIndex left = mapToSource(index(row, range.left(), parent));
            if (left.isValid()) {
                rows.emplace_back(left, left.siblingAtColumn(range.right()));
            }
        }
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return joined(rows);
}

QItemSelection TreeNodeProxyModel::mapSelectionFromSource(const QItemSelection& selection) const
{
    QItemSelection result;
    for (const QItemSelectionRange& range : selection) {
        for (int row = range.top(); range.isValid() && row <= range.bottom(); ++row) {
            const QList<QModelIndex> nodes = listFromSource(range.topLeft().sibling(row, range.left()));
            for (const QModelIndex& left : nodes) {
                appendRow(result, left, index(left.row(), range.right(), treeNode(left)));
            }
        }
    }
    return result;
}

QList<QModelIndex> TreeNodeProxyModel::listFromSource(const QModelIndex& index) const
{
    const QModelIndex node = mapFromSource(index);
    return node.isValid() ? QList<QModelIndex>{node} : QList<QModelIndex>();
}

/// The rows of the source behind indexes of this model, each once, in column 0.
QList<QModelIndex> TreeNodeProxyModel::sourceRows(const QList<QModelIndex>& indexes) const
{
    QList<QModelIndex> rows;
    QSet<QModelIndex> seen;
    for (const QModelIndex& each : indexes) {
        const QModelIndex row = mapToSource(each.siblingAtColumn(0));
        if (row.isValid() && !seen.contains(row)) {
            seen.insert(row);
            rows.append(row);
        }
    }
    return rows;
}

void TreeNodeProxyModel::toggleObjectVisibleField(const QList<QModelIndex>& indexes)
{
    if (Model* const document = model()) {
        document->toggleVisibility(sourceRows(indexes));
    }
}

void TreeNodeProxyModel::changeObjectVisibleField(const QList<QModelIndex>& indexes, bool visible)
{
    Model* const document = model();
    if (document == nullptr) {
        return;
    }
    QList<QModelIndex> rows = sourceRows(indexes);
    rows.erase(std::remove_if(rows.begin(), rows.end(),
                              [&](const QModelIndex& row) { return document->isVisible(row) == visible; }),
               rows.end());
    if (rows.isEmpty()) {
        return;
    }
    if (visible) {
        document->show(rows);
    } else {
        document->hide(rows);
    }
}

void TreeNodeProxyModel::setRecursiveSelection(bool recursive)
{
    recursiveSelection = recursive;
    if (recursive && selection != nullptr) {
        doRecursiveSelection(selection->selection(), QItemSelection());
    }
}

bool TreeNodeProxyModel::isRecursiveSelection()
{
    return recursiveSelection;
}

void TreeNodeProxyModel::createActions()
{
    const QSharedPointer<QAction> selectBelow(new QAction(tr("Select children"), this));
    selectBelow->setToolTip(tr("Select everything directly below the selection"));
    connect(selectBelow.data(), &QAction::triggered, this, &TreeNodeProxyModel::selectChildren);
    actions.append(new Action(selectBelow, this, selectionGroup, tr("Select")));
}

int TreeNodeProxyModel::rootNodeSize()
{
    return rootNodes.size();
}

TreeNode* TreeNodeProxyModel::rootNode(int row)
{
    return row >= 0 && row < rootNodes.size() ? rootNodes[row].get() : nullptr;
}

void TreeNodeProxyModel::selectChildren()
{
    if (selection == nullptr) {
        return;
    }
    QItemSelection children;
    const QList<TreeNode*> selected = nodesOf(selection->selection());
    for (const TreeNode* const node : selected) {
        appendChildren(*node, children);
    }
    if (!children.isEmpty()) {
        selection->select(children, QItemSelectionModel::Select);
    }
}

/// Adds the children of a node in whole rows: those that are linked to it.
void TreeNodeProxyModel::appendChildren(const TreeNode& node, QItemSelection& selected) const
{
    const int lastColumn = columnCount() - 1;
    for (const auto& child : node.children()) {
        if (child && child->parent() == &node) {
            const int row = child->childNumber();
            appendRow(selected, index(row, 0, child.get()), index(row, lastColumn, child.get()));
        }
    }
}

void TreeNodeProxyModel::recursiveChildrenSelection(TreeNode* node, QItemSelection& selected)
{
    appendChildren(*node, selected);
    for (const auto& child : node->children()) {
        if (child && child->parent() == node) {
            recursiveChildrenSelection(child.get(), selected);
        }
    }
}

void TreeNodeProxyModel::doRecursiveSelection(const QItemSelection& selected,
                                              const QItemSelection& deselected)
{
    if (extendingSelection || selection == nullptr) {
        return;
    }
    const QScopedValueRollback<bool> guard(extendingSelection, true);

    const QList<TreeNode*> offNodes = nodesOf(deselected);
    const QSet<TreeNode*> off(offNodes.begin(), offNodes.end());

    // A click on one node of a selected branch deselects all the others, those above the node included. The
    // node is no news to the selection, but it has been chosen anew: what is above it must not take it along,
    // and what is below it belongs to it again. Such a change is known by the branch having lost nodes above
    // and below the node, or by the node being the current one.
    QSet<TreeNode*> replaced;
    QSet<TreeNode*> chosenAnew;
    const auto judge = [&](TreeNode* node, TreeNode* kept) {
        for (TreeNode* above = node->parent(); above != nullptr; above = above->parent()) {
            if (off.contains(above)) {
                replaced.insert(above);
                if (kept != nullptr) {
                    chosenAnew.insert(kept);
                }
                return;
            }
            if (kept == nullptr && selection->isSelected(nodeIndex(above))) {
                kept = above;
            }
        }
    };
    for (TreeNode* const node : offNodes) {
        judge(node, nullptr);
    }
    const QModelIndex current = selection->currentIndex();
    if (TreeNode* const node = treeNode(current); node != nullptr && selection->isSelected(current)) {
        judge(node, node);
        if (anyBelow(*node, offNodes) && !anyBelow(*node, nodesOf(selection->selection()))) {
            chosenAnew.insert(node);
        }
    }

    QItemSelection toDeselect;
    for (TreeNode* const node : offNodes) {
        if (!replaced.contains(node)) {
            recursiveChildrenSelection(node, toDeselect);
        }
    }
    QItemSelection toSelect;
    for (TreeNode* const node : qAsConst(chosenAnew)) {
        recursiveChildrenSelection(node, toSelect);
    }
    const QList<TreeNode*> onNodes = nodesOf(selected);
    const QSet<TreeNode*> on(onNodes.begin(), onNodes.end());
    for (TreeNode* const node : onNodes) {
        if (!on.contains(node->parent())) {
            recursiveChildrenSelection(node, toSelect);
        }
    }

    if (!toDeselect.isEmpty()) {
        selection->select(toDeselect, QItemSelectionModel::Deselect);
    }
    if (!toSelect.isEmpty()) {
        selection->select(toSelect, QItemSelectionModel::Select);
    }
}

bool TreeNodeProxyModel::isDisabled(TreeNode* node) const
{
    const QModelIndex row = mapToSource(nodeIndex(node));
    return row.isValid() && !row.flags().testFlag(Qt::ItemIsEnabled);
}

void TreeNodeProxyModel::visibilityChangedInSourceModel(const QList<QModelIndex>& indexes)
{
    if (!checkColumnEnabled || sourceBusy) {
        return;
    }
    const QVector<int> roles{Qt::CheckStateRole};
    QSet<TreeNode*> reported;
    QList<TreeNode*> changedNodes;
    const auto report = [&](TreeNode* node) {
        const bool isNew = !reported.contains(node);
        if (isNew) {
            reported.insert(node);
            const QModelIndex box = nodeIndex(node);
            emit dataChanged(box, box, roles);
        }
        return isNew;
    };
    for (const QModelIndex& row : indexes) {
        const QList<QModelIndex> nodes = listFromSource(row.siblingAtColumn(0));
        for (const QModelIndex& node : nodes) {
            if (report(treeNode(node))) {
                changedNodes.append(treeNode(node));
            }
        }
    }
    for (const TreeNode* const node : qAsConst(changedNodes)) {
        for (TreeNode* above = node->parent(); above != nullptr && report(above);) {
            above = above->parent();
        }
    }
}

void TreeNodeProxyModel::visibilityChangedInSourceModel(const QModelIndex& index)
{
    visibilityChangedInSourceModel(QList<QModelIndex>{index});
}

QVariant TreeNodeProxyModel::recursiveCheckState(const QModelIndex& index) const
{
    const TreeNode* const node = treeNode(index);
    if (node == nullptr) {
        return QVariant();
    }
    const auto* const document = qobject_cast<const Model*>(source);
    const QModelIndex row = mapToSource(index.siblingAtColumn(0));
    bool isKnown = document != nullptr && row.isValid();
    int state = isKnown && document->isVisible(row) ? Qt::Checked : Qt::Unchecked;
    for (const auto& child : node->children()) {
        if (!child) {
            continue;
        }
        const int below = recursiveCheckState(nodeIndex(child.get())).toInt();
        if (!isKnown) {
            state = below;
            isKnown = true;
        } else if (below != state) {
            return static_cast<int>(Qt::PartiallyChecked);
        }
    }
    return state;
}

void TreeNodeProxyModel::setCheckColumnEnabled(bool enabled)
{
    if (checkColumnEnabled != enabled) {
        // Every node gains or loses its box, but none changes its place.
        emit layoutAboutToBeChanged();
        checkColumnEnabled = enabled;
        emit layoutChanged();
    }
}

} // namespace tolvik
