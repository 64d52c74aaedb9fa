#include "apps/viewer/features/FilteredTreeModel.h"

#include "UI/Models/CityGMLModel/CityGMLTreeModel.h"

#include <algorithm>

namespace tolvik::viewer {

namespace {

/// Maps a selection row by row; adjacent rows become one range.
template <class Map>
QItemSelection mapped(const QItemSelection& selection, Map map)
{
    QItemSelection result;
    for (const QItemSelectionRange& range : selection) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            const QModelIndex left = map(range.topLeft().sibling(row, 0));
            if (!left.isValid()) {
                continue;
            }
            const QModelIndex right = left.siblingAtColumn(left.model()->columnCount() - 1);
            const bool goesOn = !result.isEmpty() && result.last().bottom() == left.row() - 1 &&
                                result.last().parent() == left.parent();
            const QModelIndex top = goesOn ? QModelIndex(result.last().topLeft()) : left;
            if (goesOn) {
                result.removeLast();
            }
            result.append(QItemSelectionRange(top, right));
        }
    }
    return result;
}

} // namespace

/// The entry of a node, made with those above it where there is none.
FilteredTreeModel::Entry* FilteredTreeModel::Branches::add(const QModelIndex& source)
{
    if (!source.isValid()) {
        return &top;
    }
    if (Entry* const present = find(source)) {
        return present;
    }
    Entry* const parent = add(source.parent());
    entries.emplace_back();
    Entry* const entry = &entries.back();
    entry->source = source;
    entry->parent = parent;
    byNode.insert(source.internalPointer(), entry);
    parent->children.push_back(entry);
    return entry;
}

FilteredTreeModel::FilteredTreeModel(CityGMLTreeModel& tree, QObject* parent)
    : QAbstractProxyModel(parent), tree(tree), branches(std::make_unique<Branches>()),
      collected(std::make_unique<Branches>())
{
    QAbstractProxyModel::setSourceModel(&tree);
    connect(&tree, &QAbstractItemModel::dataChanged, this, &FilteredTreeModel::passChange);
    connect(&tree, &QAbstractItemModel::modelAboutToBeReset, this, &FilteredTreeModel::drop);
    connect(&tree, &QAbstractItemModel::rowsAboutToBeInserted, this, &FilteredTreeModel::drop);
    connect(&tree, &QAbstractItemModel::rowsAboutToBeRemoved, this, &FilteredTreeModel::drop);
    connect(&tree, &QAbstractItemModel::rowsAboutToBeMoved, this, &FilteredTreeModel::drop);
}

FilteredTreeModel::~FilteredTreeModel() = default;

void FilteredTreeModel::discard()
{
    collected = std::make_unique<Branches>();
}

void FilteredTreeModel::collect(const QModelIndex& source)
{
    if (source.isValid()) {
        collected->add(source.siblingAtColumn(0));
    }
}

void FilteredTreeModel::show()
{
    const auto arrange = [](Entry& parent) {
        std::sort(parent.children.begin(), parent.children.end(), [](const Entry* left, const Entry* right) {
            return left->source.row() < right->source.row();
        });
        for (std::size_t i = 0; i < parent.children.size(); ++i) {
            parent.children[i]->row = static_cast<int>(i);
        }
    };
    arrange(collected->top);
    std::for_each(collected->entries.begin(), collected->entries.end(), arrange);
    beginResetModel();
    branches = std::move(collected);
    collected = std::make_unique<Branches>();
    endResetModel();
}

void FilteredTreeModel::drop()
{
    const bool hadNodes = branches->size() != 0 || collected->size() != 0;
    discard();
    if (branches->size() != 0) {
        beginResetModel();
        branches = std::make_unique<Branches>();
        endResetModel();
    }
    if (hadNodes) {
        emit stale();
    }
}

const FilteredTreeModel::Entry* FilteredTreeModel::entryOf(const QModelIndex& index) const
{
    return index.isValid() ? static_cast<const Entry*>(index.internalPointer()) : &branches->top;
}

QModelIndex FilteredTreeModel::indexOf(const Entry* entry, int column) const
{
    return entry == nullptr || entry == &branches->top
               ? QModelIndex()
               : createIndex(entry->row, column, const_cast<Entry*>(entry));
}

QModelIndex FilteredTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (row < 0 || row >= rowCount(parent) || column < 0 || column >= columnCount()) {
        return QModelIndex();
    }
    return indexOf(entryOf(parent)->children[static_cast<std::size_t>(row)], column);
}

QModelIndex FilteredTreeModel::parent(const QModelIndex& child) const
{
    return child.isValid() ? indexOf(entryOf(child)->parent, 0) : QModelIndex();
}

int FilteredTreeModel::rowCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : static_cast<int>(entryOf(parent)->children.size());
}

int FilteredTreeModel::columnCount(const QModelIndex& /*parent*/) const
{
    return tree.columnCount();
}

bool FilteredTreeModel::hasChildren(const QModelIndex& parent) const
{
    return rowCount(parent) > 0;
}

QModelIndex FilteredTreeModel::mapToSource(const QModelIndex& index) const
{
    return index.isValid() ? entryOf(index)->source.siblingAtColumn(index.column()) : QModelIndex();
}

QModelIndex FilteredTreeModel::mapFromSource(const QModelIndex& index) const
{
    return index.isValid() ? indexOf(branches->find(index), index.column()) : QModelIndex();
}

QItemSelection FilteredTreeModel::mapSelectionToSource(const QItemSelection& selection) const
{
    return mapped(selection, [this](const QModelIndex& index) { return mapToSource(index); });
}

QItemSelection FilteredTreeModel::mapSelectionFromSource(const QItemSelection& selection) const
{
    // Most of the time nothing is filtered, however much is selected.
    return branches->size() == 0
               ? QItemSelection()
               : mapped(selection, [this](const QModelIndex& index) { return mapFromSource(index); });
}

void FilteredTreeModel::passChange(const QModelIndex& topLeft, const QModelIndex& bottomRight,
                                   const QVector<int>& roles)
{
    const Entry* const parent =
        topLeft.parent().isValid() ? branches->find(topLeft.parent()) : &branches->top;
    if (parent == nullptr) {
        return;
    }
    const auto isBefore = [](const Entry* entry, int row) { return entry->source.row() < row; };
    const auto first =
        std::lower_bound(parent->children.begin(), parent->children.end(), topLeft.row(), isBefore);
    const auto end = std::lower_bound(first, parent->children.end(), bottomRight.row() + 1, isBefore);
    if (first != end) {
        emit dataChanged(indexOf(*first, topLeft.column()), indexOf(*std::prev(end), bottomRight.column()),
                         roles);
    }
}

} // namespace tolvik::viewer
