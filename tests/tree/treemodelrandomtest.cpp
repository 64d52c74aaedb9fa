#include "support/LogRecorder.h"
#include "support/RandomCity.h"
#include "support/TestClass.h"
#include "support/TrackedIndexes.h"
#include "UI/Models/CityGMLModel/CityGMLTreeModel.h"

#include <array>
#include <cstdio>
#include <map>
#include <memory>
#include <QAbstractItemModelTester>
#include <QSortFilterProxyModel>
#include <QTreeView>
#include <QtTest>
#include <set>

using namespace testsupport;

// A tree view, a sorted and a filtered proxy model with views of their own above one feature tree, through a
// long random run under the item model tester. After each operation the tree is compared with a plain model
// of the same document; and what belongs to a feature in the views must be with that feature still.

using tolvik::CityGMLProxyModel;
using tolvik::CityGMLProxyModelTraverseChildrenVisitor;
using tolvik::CityGMLTreeModel;

namespace {

using Feature = gml::AbstractFeatureType*;

constexpr auto fatal = QAbstractItemModelTester::FailureReportingMode::Fatal;
constexpr auto wholeRows = QItemSelectionModel::Rows;

class Tree : public CityGMLTreeModel
{
public:
    using CityGMLTreeModel::nodeMap;
};

/// What each node is to claim, however little sense that makes: a node may be claimed twice, or by one below
/// it.
using Claims = std::multimap<Feature, Feature>;

class ClaimVisitor : public CityGMLProxyModelTraverseChildrenVisitor
{
public:
    ClaimVisitor(NodeMap& nodes, const Claims& claims)
        : CityGMLProxyModelTraverseChildrenVisitor(nodes), claims(claims)
    {
    }

    void setTreeNode(tolvik::TreeNodeGML* node) override
    {
        CityGMLProxyModelTraverseChildrenVisitor::setTreeNode(node);
        walkChildren = false;
        const auto [first, last] = claims.equal_range(node->feature());
        for (auto each = first; each != last; ++each) {
            const auto entry = nodeMap.find(each->second);
            node->children().emplace_back(entry != nodeMap.end() ? entry->second.front().get() : nullptr);
        }
    }

private:
    const Claims& claims;
};

/// A tree view over a model, with what it knows of features.
struct Watched
{
    Watched(QAbstractItemModel& model, const std::function<Feature(const QModelIndex&)>& featureOf)
        : featureOf(featureOf), tracked(featureOf), tester(&model, fatal)
    {
        view.setSelectionMode(QAbstractItemView::ExtendedSelection);
        view.setModel(&model);
        view.resize(300, 300);
        view.show();
    }

    /// Notes what the view knows of features.
    void remember()
    {
        tracked.forgetInvalid();
        selected = selectedNow();
        expanded = expandedNow(QModelIndex());
        current = currentNow();
    }

    /// What has gone astray of what was noted; features for which \a isHidden holds may be missing.
    QString difference(const std::function<bool(Feature)>& hasStayed,
                       const std::function<bool(Feature)>& isHidden) const
    {
        if (const int lost = tracked.lost(hasStayed)) {
            return QString("%1 persistent indexes lost").arg(lost);
        }
        if (current != nullptr && hasStayed(current) && currentNow() != current) {
            return QString("another node is current");
        }
        const std::set<Feature> present = selectedNow();
        for (auto* const feature : selected) {
            if (hasStayed(feature) && !isHidden(feature) && present.count(feature) == 0) {
                return QString("a feature is selected no more");
            }
        }
        for (auto* const feature : present) {
            // What is enabled again may be selected still.
            if (!hasStayed(feature)) {
                return QString("a new feature is selected");
            }
        }
        const std::set<Feature> open = expandedNow(QModelIndex());
        for (auto* const feature : expanded) {
            if (hasStayed(feature) && open.count(feature) == 0) {
                return QString("a node is expanded no more");
            }
        }
        for (auto* const feature : open) {
            if (expanded.count(feature) == 0) {
                return QString("another node is expanded");
            }
        }
        return QString();
    }

    std::set<Feature> selectedNow() const
    {
        std::set<Feature> features;
        const QModelIndexList rows = view.selectionModel()->selectedRows();
        for (const QModelIndex& row : rows) {
            features.insert(featureOf(row));
        }
        return features;
    }

    std::set<Feature> expandedNow(const QModelIndex& parent) const
    {
        std::set<Feature> features;
        const QAbstractItemModel& model = *view.model();
        for (int row = 0; row < model.rowCount(parent); ++row) {
            const QModelIndex index = model.index(row, 0, parent);
            if (view.isExpanded(index)) {
                features.insert(featureOf(index));
            }
            features.merge(expandedNow(index));
        }
        return features;
    }

    Feature currentNow() const
    {
        const QModelIndex index = view.currentIndex();
        return index.isValid() ? featureOf(index) : nullptr;
    }

    std::set<Feature> selected;
    std::set<Feature> expanded;
    Feature current = nullptr;

    std::function<Feature(const QModelIndex&)> featureOf;
    TrackedIndexes tracked;
    QAbstractItemModelTester tester;
    QTreeView view;
};

class Run : public RandomCity
{
public:
    explicit Run(unsigned seed) : RandomCity(seed)
    {
        addListOperations();
        add("rename in the tree", 8, &Run::renameInTree);
        add("take the name", 6, &Run::unname);
        add("check a node", 8, &Run::checkNode);
        add("select", 10, &Run::select);
        add("make current", 8, &Run::makeCurrent);
        add("expand one", 8, &Run::expandOne);
        add("expand all", 1, &Run::expandAll);
        add("track", 10, &Run::track);
        add("exchange the traversal visitor", 1, &Run::exchangeTraversal);
        add("exchange the children visitor", 1, &Run::exchangeChildren);
        add("claim at random", 4, &Run::claim);
        add("sort", 2, &Run::sort);
        add("filter", 2, &Run::filter);

        tree.setSourceModel(&model);
        tree.setCheckColumnEnabled(true);
        sorted.setDynamicSortFilter(true);
        sorted.setSourceModel(&tree);
        filtered.setRecursiveFilteringEnabled(true);
        filtered.setDynamicSortFilter(true);
        filtered.setSourceModel(&tree);
        // Of a node that it refuses, Qt's filter misses rows that come and move, with every source, and shows
        // what was there before as soon as it accepts the node: it has to look anew.
        QObject::connect(&tree, &QAbstractItemModel::rowsInserted, &filtered,
                         &QSortFilterProxyModel::invalidate);
        QObject::connect(&tree, &QAbstractItemModel::rowsMoved, &filtered,
                         &QSortFilterProxyModel::invalidate);
        const auto inTree = [](const QModelIndex& index) { return CityGMLProxyModel::getFeature(index); };
        watched[0] = std::make_unique<Watched>(tree, inTree);
        watched[1] = std::make_unique<Watched>(
            sorted, [this](const QModelIndex& index) { return featureBelow(sorted, index); });
        watched[2] = std::make_unique<Watched>(
            filtered, [this](const QModelIndex& index) { return featureBelow(filtered, index); });
        Run::loadDocument();
        sort();
        begin();
    }

    /// To be called before an operation: notes what the views know of features.
    void begin()
    {
        nodesBefore.clear();
        for (const auto& [feature, nodes] : tree.nodeMap) {
            nodesBefore[feature] = nodes.front(); // held, so that no other takes its place
        }
        isDriven = false;
        for (auto& each : watched) {
            each->remember();
        }
    }

    /// What differs from the reference after an operation, or has gone astray in it; empty if nothing has.
    QString difference() const
    {
        QString found = listDifference();
        if (found.isEmpty()) {
            std::set<Feature> seen;
            found = claims.empty() ? treeDifference(QModelIndex(), reference.roots(), seen)
                                   : claimDifference(QModelIndex(), seen);
            if (found.isEmpty() && seen.size() != tree.nodeMap.size()) {
                found = QString("%1 nodes, %2 in the map").arg(seen.size()).arg(tree.nodeMap.size());
            }
        }
        for (const auto& each : watched) {
            if (found.isEmpty()) {
                found = each->tracked.difference();
            }
        }
        return found.isEmpty() ? viewDifference() : found;
    }

private:
    static Feature featureBelow(const QSortFilterProxyModel& proxy, const QModelIndex& index)
    {
        return CityGMLProxyModel::getFeature(proxy.mapToSource(index));
    }

    QModelIndex inTree(const Item* item, int column = 0) const
    {
        return tree.mapFromSource(inList(item, column));
    }

    /// Whether a feature has the node that it had before the operation.
    bool hasStayed(Feature feature) const
    {
        const auto before = nodesBefore.find(feature);
        return before != nodesBefore.end() && before->second == tree.treeNode(feature);
    }

    Watched& anyWatched() { return *watched[std::size_t(below(3))]; }

    /// A node as an index of one of the models; invalid where that filters it out.
    QModelIndex anyIndex(const Watched& in, int column = 0)
    {
        Item* const item = anyNode();
        if (item == nullptr) {
            return QModelIndex();
        }
        const QModelIndex index = inTree(item, column);
        const auto* const proxy = qobject_cast<const QSortFilterProxyModel*>(in.view.model());
        return proxy != nullptr ? proxy->mapFromSource(index) : index;
    }

    void loadDocument() override
    {
        dropClaims();
        RandomCity::loadDocument();
    }

    void removeBranch() override
    {
        dropClaims(); // they would name features that are gone
        RandomCity::removeBranch();
    }

    void remove(Item* item) override
    {
        if (claims.empty()) {
            RandomCity::remove(item);
            return;
        }
        // With the node goes what is below it here, which is not what is below it in the document.
        model.removeFeature(item->feature);
        reference.rows.erase(std::find(reference.rows.begin(), reference.rows.end(), item));
        for (const auto& each : reference.items) {
            each->isNode = tree.treeNode(each->feature) != nullptr;
        }
    }

    void renameInTree()
    {
        if (Item* const item = anyNode()) {
            rename(item, tree, inTree(item));
        }
    }

    void unname()
    {
        if (Item* const item = anyRow()) {
            item->name = QString();
            item->feature->name().clear();
            model.updateData(inList(item));
            item->nodeName = item->label();
        }
    }

    void checkNode()
    {
        Item* const item = anyNode();
        if (item == nullptr) {
            return;
        }
        const bool visible = chance();
        QVERIFY(tree.setData(inTree(item), visible ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole));
        std::vector<QModelIndex> open{inTree(item)};
        while (!open.empty()) {
            const QModelIndex index = open.back();
            open.pop_back();
            reference.rows[std::size_t(tree.mapToSource(index).row())]->isVisible = visible;
            for (int row = 0; row < tree.rowCount(index); ++row) {
                open.push_back(tree.index(row, 0, index));
            }
        }
    }

    void select()
    {
        isDriven = true;
        Watched& in = anyWatched();
        const auto command =
            below(4) == 0 ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::Select;
        in.view.selectionModel()->select(anyIndex(in), command | wholeRows);
    }

    void makeCurrent()
    {
        isDriven = true;
        Watched& in = anyWatched();
        in.view.selectionModel()->setCurrentIndex(anyIndex(in), QItemSelectionModel::NoUpdate);
    }

    void expandOne()
    {
        isDriven = true;
        Watched& in = anyWatched();
        in.view.setExpanded(anyIndex(in), below(4) != 0);
    }

    void expandAll()
    {
        isDriven = true;
        anyWatched().view.expandAll();
    }

    void track()
    {
        for (auto& each : watched) {
            if (each->tracked.size() < 60) {
                each->tracked.track(anyIndex(*each, below(2)));
            }
        }
    }

    void exchangeTraversal()
    {
        reference.showsAppearances = !reference.showsAppearances;
        reference.rebuildTree();
        if (reference.showsAppearances) {
            tree.setTraversalVisitor(new tolvik::CityGMLProxyModelTraverseAllVisitor);
        } else {
            tree.setTraversalVisitor(new tolvik::CityGMLProxyModelTraverseNoApparencesVisitor);
        }
    }

    void exchangeChildren()
    {
        claims.clear();
        reference.isFlat = !reference.isFlat;
        reference.rebuildTree();
        tree.setTraverseChildrenVisitor(
            reference.isFlat ? nullptr
                             : new tolvik::CityGMLProxyModelTraverseChildrenGMLVisitor(tree.nodeMap));
    }

    void dropClaims()
    {
        if (!claims.empty()) {
            reference.isFlat = true;
            exchangeChildren();
        }
    }

    /// Other claims from now on, which take effect with the next insertion.
    void claim()
    {
        if (reference.isFlat) {
            return;
        }
        const bool isNew = claims.empty();
        for (int count = 0; count < 5; ++count) {
            const Item* const claimer = anyNode();
            const Item* const claimed = anyNode();
            if (claimer != nullptr) {
                claims.emplace(claimer->feature, claimed->feature);
            }
        }
        if (claims.size() > 80) {
            claims.erase(claims.begin(), std::next(claims.begin(), 40));
        }
        if (isNew && !claims.empty()) {
            reference.rebuildTree();
            tree.setTraverseChildrenVisitor(new ClaimVisitor(tree.nodeMap, claims));
        }
    }

    void sort() { sorted.sort(below(2), chance() ? Qt::AscendingOrder : Qt::DescendingOrder); }

    void filter() { filtered.setFilterFixedString(chance() ? QString::number(below(10)) : QString()); }

    QString viewDifference() const
    {
        const auto stayed = [this](Feature feature) { return hasStayed(feature); };
        const auto isHidden = [this](Feature feature) { return model.isDisabled(feature); };
        // The filter may refuse what it has shown; the others show everything.
        for (const std::size_t i : {0, 1}) {
            const QString found = isDriven ? QString() : watched[i]->difference(stayed, isHidden);
            if (!found.isEmpty()) {
                return QString("view %1: %2").arg(i).arg(found);
            }
        }
        return QString();
    }

    QString treeDifference(const QModelIndex& parent, const std::vector<Item*>& expected,
                           std::set<Feature>& seen) const
    {
        if (tree.rowCount(parent) != int(expected.size())) {
            return QString("%1 children instead of %2 below %3")
                .arg(tree.rowCount(parent))
                .arg(expected.size())
                .arg(SignalRecorder::text(parent));
        }
        for (int row = 0; row < int(expected.size()); ++row) {
            const Item* const item = expected[std::size_t(row)];
            const QModelIndex index = tree.index(row, 0, parent);
            seen.insert(item->feature);
            if (CityGMLProxyModel::getFeature(index) != item->feature ||
                index.data().toString() != item->nodeName ||
                index.sibling(row, 1).data().toString() != typeOf(item->kind) ||
                index.flags().testFlag(Qt::ItemIsEnabled) == item->isDisabled || index.parent() != parent ||
                tree.mapToSource(index.sibling(row, 1)) != inList(item, 1)) {
                return QString("node %1 shows \"%2\" for \"%3\", or its state is wrong")
                    .arg(SignalRecorder::text(index), index.data().toString(), item->nodeName);
            }
            QString found = treeDifference(index, reference.childNodes(item), seen);
            if (found.isEmpty()) {
                found = stateDifference(index);
            }
            if (!found.isEmpty()) {
                return found;
            }
        }
        return QString();
    }

    /// With claims at random nobody knows the tree beforehand, but each node stands once, below one that
    /// claims it, or has done so at the last insertion.
    QString claimDifference(const QModelIndex& parent, std::set<Feature>& seen) const
    {
        for (int row = 0; row < tree.rowCount(parent); ++row) {
            const QModelIndex index = tree.index(row, 0, parent);
            if (!seen.insert(CityGMLProxyModel::getFeature(index)).second) {
                return QString("node %1 stands twice").arg(SignalRecorder::text(index));
            }
            if (index.parent() != parent || tree.mapFromSource(tree.mapToSource(index)) != index) {
                return QString("node %1 is out of place").arg(SignalRecorder::text(index));
            }
            QString found = claimDifference(index, seen);
            if (found.isEmpty()) {
                found = stateDifference(index);
            }
            if (!found.isEmpty()) {
                return found;
            }
        }
        return QString();
    }

    /// Compares a check box with the rows of the feature and of everything below it.
    QString stateDifference(const QModelIndex& index) const
    {
        int nodes = 0;
        int visible = 0;
        std::vector<QModelIndex> open{index};
        while (!open.empty()) {
            const QModelIndex each = open.back();
            open.pop_back();
            ++nodes;
            visible += model.isVisible(tree.mapToSource(each)) ? 1 : 0;
            for (int row = 0; row < tree.rowCount(each); ++row) {
                open.push_back(tree.index(row, 0, each));
            }
        }
        const int state = visible == 0       ? Qt::Unchecked
                          : visible == nodes ? Qt::Checked
                                             : Qt::PartiallyChecked;
        return index.data(Qt::CheckStateRole).toInt() == state
                   ? QString()
                   : QString("the box of node %1 is wrong").arg(SignalRecorder::text(index));
    }

    Tree tree;
    QSortFilterProxyModel sorted;
    QSortFilterProxyModel filtered;
    Claims claims;
    std::array<std::unique_ptr<Watched>, 3> watched;

    std::map<Feature, Fondo::RefPtr<tolvik::TreeNodeGML>> nodesBefore;
    bool isDriven = false;
};

} // namespace

class TreeModelRandomTest : public QObject
{
    Q_OBJECT

private slots:
    // The models of Qt warn of signals that they do not understand.
    void init()
    {
        warnings().clear();
        formerHandler =
            qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
                if (type == QtFatalMsg) {
                    std::fprintf(stderr, "%s\n", qPrintable(text)); // there is no later for it
                } else if (type != QtDebugMsg && type != QtInfoMsg) {
                    warnings().append(text);
                }
            });
    }

    void cleanup() { qInstallMessageHandler(formerHandler); }

    void viewsStayWithTheirFeatures_data()
    {
        QTest::addColumn<unsigned>("seed");
        // A longer run, or another one, for those who have the time.
        const bool isLong = qEnvironmentVariableIsSet("TOLVIK_LONG_RUNS");
        const unsigned seeds = isLong ? 10 : 2;
        for (unsigned seed = 1; seed <= seeds; ++seed) {
            QTest::addRow("seed %u", seed) << seed;
        }
    }

    void viewsStayWithTheirFeatures()
    {
        QFETCH(unsigned, seed);
        const int operations = qEnvironmentVariableIsSet("TOLVIK_LONG_RUNS") ? 10000 : 1000;
        const ModelLog log; // keeps the errors of failed loads
        Run run(seed);
        QStringList recent;
        for (int i = 0; i < operations; ++i) {
            run.begin();
            recent.append(run.step());
            if (recent.size() > 5) {
                recent.removeFirst();
            }
            const QString difference = warnings().isEmpty() ? run.difference() : warnings().join(", ");
            QVERIFY2(
                difference.isEmpty(),
                qPrintable(QString("operation %1, after %2: %3").arg(i).arg(recent.join(", "), difference)));
            if (i % 20 == 0) {
                QCoreApplication::processEvents(); // the views lay out and paint
            }
        }
    }

private:
    static QStringList& warnings()
    {
        static QStringList list;
        return list;
    }

    QtMessageHandler formerHandler = nullptr;
};

TEST_CLASS(TreeModelRandomTest, Widgets)
#include "treemodelrandomtest.moc"
