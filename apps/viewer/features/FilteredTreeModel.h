#pragma once

#include <deque>
#include <memory>
#include <QAbstractProxyModel>
#include <QHash>
#include <vector>

namespace tolvik {
class CityGMLTreeModel;
}

namespace tolvik::viewer {

/// Some nodes of the feature tree, with all that stand above them.
///
/// Which nodes these are is told from outside, so that the work can be cut into slices: collect() takes one
/// after the other, and show() puts what was collected in place. When the tree gets other nodes, or they
/// move, everything is dropped and stale() asks for a new round.
/// \code
/// filtered.collect(tree.index(feature)); // for each feature that remains, in any order
/// filtered.show();
/// \endcode
class FilteredTreeModel : public QAbstractProxyModel
{
    Q_OBJECT

public:
    /// \param tree is the source for good, and lives longer
    explicit FilteredTreeModel(CityGMLTreeModel& tree, QObject* parent = nullptr);
    ~FilteredTreeModel() override;

    /// Forgets what has been collected and not shown.
    void discard();
    /// Adds a node of the source, and those above it, to what will be shown.
    void collect(const QModelIndex& source);
    /// Shows what has been collected since the last discard() or show(), and nothing else.
    void show();
    /// Number of nodes that are shown.
    int size() const { return branches->size(); }

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    using QObject::parent;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    bool hasChildren(const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex mapToSource(const QModelIndex& index) const override;
    QModelIndex mapFromSource(const QModelIndex& index) const override;
    QItemSelection mapSelectionToSource(const QItemSelection& selection) const override;
    QItemSelection mapSelectionFromSource(const QItemSelection& selection) const override;

signals:
    /// The tree has changed, so that nothing is shown any more.
    void stale();

private:
    struct Entry
    {
        QModelIndex source;
        Entry* parent = nullptr;
        int row = 0;
        std::vector<Entry*> children;
    };
    /// Entries by their node in the source; the top one has none.
    struct Branches
    {
        Entry* add(const QModelIndex& source);
        Entry* find(const QModelIndex& source) const { return byNode.value(source.internalPointer()); }
        int size() const { return static_cast<int>(entries.size()); }

        Entry top;
        std::deque<Entry> entries;
        QHash<const void*, Entry*> byNode;
    };

    const Entry* entryOf(const QModelIndex& index) const;
    QModelIndex indexOf(const Entry* entry, int column) const;
    void drop();
    void passChange(const QModelIndex& topLeft, const QModelIndex& bottomRight, const QVector<int>& roles);

    CityGMLTreeModel& tree;
    std::unique_ptr<Branches> branches;
    std::unique_ptr<Branches> collected;
};

} // namespace tolvik::viewer
