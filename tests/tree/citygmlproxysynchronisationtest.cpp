#include "bldg/BoundarySurfacePropertyType.hxx"
#include "bldg/OpeningPropertyType.hxx"
#include "gml/FeaturePropertyType.hxx"
#include "support/CityGMLTreeFixture.h"
#include "support/TestClass.h"

#include <memory>
#include <QItemSelectionModel>
#include <QtTest>

using namespace testsupport;
using Fondo::RefPtr;
using tolvik::CityGMLProxyModel;
using tolvik::TreeNode;
using tolvik::TreeNodeGML;

// Insertions are signalled when the tree has changed, removals below the second level for another parent. No
// model tester takes that: the tests compare these signals with their form, and run it afterwards.

namespace {

/// The lines of a pair of signals around an insertion.
QStringList inserted(const QString& parentAndRow)
{
    return {"rowsAboutToBeInserted " + parentAndRow, "rowsInserted " + parentAndRow};
}

/// The lines of a removal: those of the features that leave the tree stand between its two signals.
QStringList removed(const QString& parentAndRow, const QStringList& features)
{
    QStringList lines{"rowsAboutToBeRemoved " + parentAndRow};
    for (const QString& id : features) {
        lines.append("removed " + id);
    }
    return lines << "rowsRemoved " + parentAndRow;
}

QString parentAndRow(const QModelIndex& parent, int row)
{
    return QStringLiteral("%1 %2 %2").arg(SignalRecorder::text(parent)).arg(row);
}

struct Town : CityTree
{
    explicit Town(const QByteArray& document = village()) : CityTree(document) {}
    core::CityModelType& city() { return *model.cityGML(); }

    /// Puts a feature into the document and into the list.
    gml::AbstractFeatureType* addBuilding(const char* id)
    {
        gml::AbstractFeatureType* const added = addMember(city(), makeBuilding(id));
        model.addFeature(added);
        return added;
    }

    void rename(const char* id, const QString& name) { QVERIFY(model.setData(source(id), name)); }
    QString shown(const char* id) const { return at(id).data().toString(); }
    TreeRecorder recorder{&tree};
};

} // namespace

class CityGMLProxySynchronisationTest : public QObject
{
    Q_OBJECT

private slots:
    void rejectedFeatureIsNotInserted()
    {
        Town town;
        town.tree.setTraversalVisitor(new Accept([](auto* feature) { return feature->id().get() != "b3"; }));
        town.recorder.clear();
        town.addBuilding("b3");
        QCOMPARE(town.row("b3"), 8);
        QCOMPARE(town.recorder.take(), QStringList());
        QVERIFY(town.node("b3") == nullptr);
        town.check();
    }

    void insertionBelowAParent_data() { addInsertionRows(); }

    void insertionBelowAParent()
    {
        QFETCH(int, level);
        QFETCH(QString, place);
        QFETCH(QString, tree);
        Town town;
        const TreeNodeGML* const wall = town.node("w1");
        addToVillage(town.model, level);
        QCOMPARE(town.recorder.take(), inserted(place));
        QCOMPARE(town.dump(), tree);
        QCOMPARE(town.node("new")->childNumber(), 2);
        QCOMPARE(town.node("new")->parent()->children()[2].get(), static_cast<TreeNode*>(town.node("new")));
        QCOMPARE(town.node("w1"), wall); // nodes are kept
        town.check();
    }

    void insertionIsSignalledWhenItIsDone()
    {
        Town town;
        int rowsBefore = 0;
        connect(&town.tree, &QAbstractItemModel::rowsAboutToBeInserted, &town.tree,
                [&](const QModelIndex& parent) { rowsBefore = town.tree.rowCount(parent); });
        town.addBuilding("b3");
        QCOMPARE(rowsBefore, 3);
    }

    void insertionInTheMiddle()
    {
        Town town;
        auto& wall = town.feature<bldg::AbstractBoundarySurfaceType>("w1");
        gml::AbstractFeatureType* const newWall =
            addSurface(town.feature<bldg::AbstractBuildingType>("b1"), makeWall("w3"));
        town.model.addFeature(addOpening(wall, makeDoor("d3")));
        town.model.addFeature(newWall);
        QCOMPARE(town.dump(), QString("city(b1(w1(d1 d2 d3) w2 w3) b2)"));

        // A row that comes back stands where the document has it.
        QPersistentModelIndex last(town.at("d3"));
        town.model.removeFeature(town.feature("d2"));
        town.recorder.clear();
        QCOMPARE(last.row(), 1);
        gml::AbstractFeatureType* const second = &wall.opening()[1]._Opening().get();
        town.model.addFeature(second);
        QCOMPARE(town.recorder.take(), inserted("0/0/0:0 1 1"));
        QCOMPARE(last.row(), 2);
        QCOMPARE(last, QPersistentModelIndex(town.at("d3")));
        town.check();
    }

    void insertionOfARoot()
    {
        // Buildings below nothing, for the root of the document is not shown.
        Town town(::town(4));
        town.tree.setTraversalVisitor(new Accept([&](auto* feature) { return feature != &town.city(); }));
        QCOMPARE(town.tree.rowCount(), 4);
        QList<QPersistentModelIndex> roots;
        for (int i = 0; i < 4; ++i) {
            roots.append(town.tree.index(i, 1));
        }
        town.recorder.clear();
        gml::AbstractFeatureType* const added = town.addBuilding("b5");
        const auto place =
            static_cast<int>(std::distance(town.tree.nodeMap.begin(), town.tree.nodeMap.find(added)));
        QCOMPARE(town.tree.treeNode(added)->childNumber(), place);
        QCOMPARE(town.recorder.take(), inserted(parentAndRow(QModelIndex(), place)));
        QCOMPARE(town.tree.rootNodes[place].get(), static_cast<TreeNode*>(town.tree.treeNode(added)));
        for (int i = 0; i < 4; ++i) {
            const int row = i < place ? i : i + 1;
            QCOMPARE(roots[i].row(), row);
            QCOMPARE(town.tree.rootNodes[row]->childNumber(), row);
        }
        town.check();
    }

    void insertedFeatureClaimsWhatBelongsToIt()
    {
        Town town;
        bldg::BuildingType house = makeBuilding("b3");
        addSurface(house, makeWall("w3"));
        addSurface(house, makeWall("w4"));
        auto& building = dynamic_cast<bldg::BuildingType&>(*addMember(town.city(), house));
        town.model.addFeature(&building.boundedBy1()[0]._BoundarySurface().get());
        town.model.addFeature(&building.boundedBy1()[1]._BoundarySurface().get());
        QCOMPARE(town.dump(), QString("city(b1(w1(d1 d2) w2) b2) w3 w4"));
        const QPersistentModelIndex wall(town.at("w4", 1));
        town.recorder.clear();

        town.model.addFeature(&building);
        QCOMPARE(town.recorder.take(), inserted("0:0 2 2")); // nothing of the walls
        QCOMPARE(town.dump(), QString("city(b1(w1(d1 d2) w2) b2 b3(w3 w4))"));
        QCOMPARE(wall, QPersistentModelIndex(town.at("w4", 1)));
        town.check();
    }

    void insertionBelowANodeWithoutFeature()
    {
        // It is signalled for the top.
        Town town;
        const RefPtr<TreeNode> plain = new TreeNode(nullptr);
        plain->setChildNumber(1);
        town.tree.setTraverseChildrenVisitor(
            new Claim(town.tree.nodeMap, [&](TreeNodeGML* node, auto& /*nodes*/) {
                if (node->feature() == town.feature("b3")) {
                    node->setParent(plain.get());
                    node->setChildNumber(2);
                }
            }));
        QList<QPersistentModelIndex> roots;
        for (int i = 0; i < town.tree.rowCount(); ++i) {
            roots.append(town.tree.index(i, 0));
        }
        const QList<RefPtr<TreeNode>> nodes = town.tree.rootNodes;
        town.recorder.clear();
        town.addBuilding("b3");
        QCOMPARE(town.recorder.take(), inserted("- 2 2"));
        for (int i = 0; i < roots.size(); ++i) {
            QVERIFY(!roots[i].isValid() || roots[i] == QPersistentModelIndex(town.tree.index(i, 0)));
            QVERIFY(!roots[i].isValid() || OpenTree::treeNode(roots[i]) == nodes[i].get());
        }
    }

    void secondInsertionOfAFeature()
    {
        Town town(cityDocument(""));
        TreeNodeGML* const first = town.node("city");
        town.tree.rowsInsertedInSourceModel(QModelIndex(), 0, 0);
        const auto& nodes = town.tree.nodeMap.at(town.feature("city"));
        QCOMPARE(nodes.size(), std::size_t(2));
        QCOMPARE(nodes.front().get(), first);
        TreeNodeGML* const second = nodes.back().get();
        QVERIFY(second->parent() == nullptr);
        QCOMPARE(town.tree.rootNodes, QList<RefPtr<TreeNode>>{second});
        QCOMPARE(town.recorder.take(), inserted("- 0 0"));
    }

    void insertionOfARowThatIsNotThere()
    {
        Town town;
        town.tree.rowsInsertedInSourceModel(QModelIndex(), 8, 8);
        town.tree.rowsInsertedInSourceModel(QModelIndex(), -1, -1);
        town.tree.rowsAboutToBeRemovedInSourceModel(QModelIndex(), 8, 8);
        OpenTree withoutSource;
        withoutSource.rowsInsertedInSourceModel(QModelIndex(), 0, 0);
        withoutSource.rowsAboutToBeRemovedInSourceModel(QModelIndex(), 0, 0);
        QCOMPARE(town.recorder.take(), QStringList());
        QCOMPARE(town.dump(), QString("city(b1(w1(d1 d2) w2) b2)"));
    }

    void removalOfAFeatureWithoutNode()
    {
        Town town;
        const QAbstractItemModelTester tester(&town.tree,
                                              QAbstractItemModelTester::FailureReportingMode::Fatal);
        town.model.removeFeature(town.feature("a1"));
        QCOMPARE(town.recorder.take(), QStringList());
        QCOMPARE(town.dump(), QString("city(b1(w1(d1 d2) w2) b2)"));
    }

    void removalOnTheSecondLevel()
    {
        Town town;
        const QAbstractItemModelTester tester(&town.tree,
                                              QAbstractItemModelTester::FailureReportingMode::Fatal);
        const QPersistentModelIndex church(town.at("b2"));
        const QPersistentModelIndex door(town.at("d1"));
        town.model.removeFeature(town.feature("b1"));
        QCOMPARE(town.recorder.take(), removed("0:0 0 0", {"d1", "d2", "w1", "w2", "b1"}));
        QCOMPARE(town.dump(), QString("city(b2)"));
        QCOMPARE(church.row(), 0);
        QVERIFY(!door.isValid());
    }

    void rowsBelowARemovedFeatureStay()
    {
        Town town;
        const QAbstractItemModelTester tester(&town.tree,
                                              QAbstractItemModelTester::FailureReportingMode::Fatal);
        town.model.removeFeature(town.feature("b1"));
        town.recorder.clear();
        for (const char* const id : {"w1", "d1", "d2", "w2"}) {
            QVERIFY(town.source(id).isValid());
            QVERIFY(!town.at(id).isValid());
        }
        town.model.removeFeature(town.feature("w1"));
        town.rename("d1", "Portal");
        QCOMPARE(town.recorder.take(), QStringList());
        town.model.dataSetChanged();
        QCOMPARE(town.dump(), QString("city(b1(w1(d1 d2) w2) b2)"));
        QCOMPARE(town.shown("d1"), QString("Portal"));
    }

    void removalOfARoot()
    {
        Town town;
        const QAbstractItemModelTester tester(&town.tree,
                                              QAbstractItemModelTester::FailureReportingMode::Fatal);
        town.model.removeFeature(town.feature("city"));
        QCOMPARE(town.recorder.take(), removed("- 0 0", {"d1", "d2", "w1", "w2", "b1", "b2", "city"}));
        QCOMPARE(town.tree.rowCount(), 0);
        QVERIFY(town.tree.nodeMap.empty());
    }

    void removalOfOneOfManyRoots()
    {
        Town town;
        const QAbstractItemModelTester tester(&town.tree,
                                              QAbstractItemModelTester::FailureReportingMode::Fatal);
        town.tree.setTraverseChildrenVisitor(nullptr);
        town.recorder.clear();
        const int row = town.at("w1").row();
        const QPersistentModelIndex other(town.at("b1"));
        town.model.removeFeature(town.feature("w1"));
        QCOMPARE(town.recorder.take(), removed(parentAndRow(QModelIndex(), row), {"w1"}));
        QCOMPARE(town.dump(), QString("city b1 d1 d2 w2 b2"));
        for (int i = 0; i < town.tree.rowCount(); ++i) {
            QCOMPARE(town.tree.rootNodes[i]->childNumber(), i);
        }
        QCOMPARE(other, QPersistentModelIndex(town.at("b1")));
    }

    void removalOnTheThirdLevel()
    {
        // The parent b1 has row 0 in the city, so the removal is signalled for the root of row 0.
        Town town;
        town.model.removeFeature(town.feature("w2"));
        QCOMPARE(town.recorder.take(), removed("0:0 1 1", {"w2"}));
        QCOMPARE(town.dump(), QString("city(b1(w1(d1 d2)) b2)"));
        town.check();

        town.model.removeFeature(town.feature("w1"));
        QCOMPARE(town.recorder.take(), removed("0:0 0 0", {"d1", "d2", "w1"}));
        QCOMPARE(town.dump(), QString("city(b1 b2)"));
        town.check();
    }

    void removalOnTheFourthLevel()
    {
        Town town;
        town.model.removeFeature(town.feature("d2"));
        QCOMPARE(town.recorder.take(), removed("0:0 1 1", {"d2"}));
        QCOMPARE(town.dump(), QString("city(b1(w1(d1) w2) b2)"));
        QCOMPARE(town.node("d1")->childNumber(), 0);
        town.check();
    }

    void removalBelowARowThatNoRootHas()
    {
        // The parent b2 has row 1 in the city, and there is one root.
        Town town;
        town.model.addFeature(addSurface(town.feature<bldg::AbstractBuildingType>("b2"), makeWall("w3")));
        QCOMPARE(town.dump(), QString("city(b1(w1(d1 d2) w2) b2(w3))"));
        town.recorder.clear();
        town.model.removeFeature(town.feature("w3"));
        QCOMPARE(town.recorder.take(), removed("- 0 0", {"w3"}));
        QCOMPARE(town.dump(), QString("city(b1(w1(d1 d2) w2) b2)"));
        town.check();
    }

    void parentOfARemovalIsLookedUpBelowThatOfTheSource()
    {
        // The node of d1 stands below that of row 0.
        Town town;
        town.tree.rowsAboutToBeRemovedInSourceModel(town.at("city"), town.row("d1"), town.row("d1"));
        QCOMPARE(town.recorder.take(), removed("0/0:0 0 0", {"d1"}));
        QCOMPARE(town.dump(), QString("city(b1(w1(d2) w2) b2)"));
    }

    void persistentIndexesStayWithTheirNodes()
    {
        // The removal on the third level is signalled for the second: of b1, which loses its indexes so.
        Town town;
        town.addBuilding("b3");
        QMap<QString, QPersistentModelIndex> indexes;
        for (const char* const id : {"city", "b1", "b2", "b3", "w2"}) {
            indexes[id] = town.at(id, 1);
        }
        town.model.removeFeature(town.feature("w1"));
        QVERIFY(!indexes.take("b1").isValid());
        QVERIFY(!indexes.take("w2").isValid());
        QCOMPARE(indexes.size(), 3);
        for (auto each = indexes.cbegin(); each != indexes.cend(); ++each) {
            QCOMPARE(QModelIndex(each.value()), town.at(qPrintable(each.key()), 1));
        }
    }

    void persistentIndexesEndBeforeTheirNodes()
    {
        Town town;
        const QPersistentModelIndex wall(town.at("w1"));
        bool wasValid = true;
        town.tree.setTraversalVisitor(new Accept([&](auto* /*feature*/) {
            wasValid = wall.isValid();
            return true;
        }));
        QVERIFY(!wasValid);
    }

    void noPersistentIndexOutlivesItsNode()
    {
        // Both removals are signalled for row 1 of the city, which is b2.
        Town town;
        auto& south = town.feature<bldg::AbstractBoundarySurfaceType>("w1");
        auto& roof = town.feature<bldg::AbstractBoundarySurfaceType>("w2");
        town.model.addFeature(addOpening(south, makeDoor("d3")));
        town.model.addFeature(addOpening(roof, makeDoor("d4")));
        const QPersistentModelIndex removedDoor(town.at("d2"));
        const QPersistentModelIndex nextDoor(town.at("d3", 1));
        const QPersistentModelIndex doorBelow(town.at("d4"));

        town.model.removeFeature(town.feature("d2"));
        QVERIFY(!removedDoor.isValid());
        QCOMPARE(nextDoor, QPersistentModelIndex(town.at("d3", 1)));
        QCOMPARE(doorBelow, QPersistentModelIndex(town.at("d4")));

        town.model.removeFeature(town.feature("w2"));
        QVERIFY(!doorBelow.isValid());
        QCOMPARE(town.tree.persistentIndexList(), QModelIndexList{town.at("d3", 1)});
    }

    void removalOfAFeatureWithTwoNodes()
    {
        Town town(cityDocument(""));
        town.tree.rowsInsertedInSourceModel(QModelIndex(), 0, 0);
        const auto& nodes = town.tree.nodeMap.at(town.feature("city"));
        QCOMPARE(nodes.front()->parent(), static_cast<TreeNode*>(nodes.back().get()));
        town.recorder.clear();
        town.model.removeFeature(town.feature("city"));
        QCOMPARE(town.recorder.take(), removed("0:0 0 0", {}) + removed("- 0 0", {"city"}));
        QCOMPARE(town.tree.rowCount(), 0);
        QVERIFY(town.tree.nodeMap.empty());
    }

    void featureIsAliveWhileItIsRemoved()
    {
        Town town;
        QStringList seen;
        connect(&town.tree, &CityGMLProxyModel::featureRemovedFromModel, &town.tree,
                [&](gml::AbstractFeatureType* feature) {
                    seen.append(QStringLiteral("%1 in row %2")
                                    .arg(CityTree::idOf(feature))
                                    .arg(town.model.getRow(feature)));
                });
        town.model.removeFeature(town.feature("d2"));
        QCOMPARE(seen, QStringList("d2 in row 5"));
    }

    void treeIsReadWhileAFeatureIsRemoved()
    {
        Town town;
        QStringList seen;
        connect(&town.tree, &CityGMLProxyModel::featureRemovedFromModel, &town.tree,
                [&](gml::AbstractFeatureType* feature) {
                    // What has been reported is gone, and what is above it still there.
                    QVERIFY(town.tree.treeNode(feature) == nullptr);
                    QVERIFY(!town.tree.index(feature).isValid());
                    QVERIFY(town.tree.listFromSource(town.model.index(feature)).isEmpty());
                    QCOMPARE(town.tree.nodeMap.count(feature), std::size_t(1));
                    QStringList left;
                    for (const char* const id : {"b1", "w1", "d1", "d2", "w2"}) {
                        if (town.node(id) != nullptr) {
                            left.append(id);
                        }
                    }
                    seen.append(left.join(' '));
                });
        town.model.removeFeature(town.feature("b1"));
        QCOMPARE(seen, QStringList({"b1 w1 d2 w2", "b1 w1 w2", "b1 w2", "b1", ""}));
    }

    void onlyTheFirstOfSeveralRemovedRowsIsHandled()
    {
        Town town;
        town.tree.rowsAboutToBeRemovedInSourceModel(QModelIndex(), town.row("d1"), town.row("d2"));
        QCOMPARE(town.recorder.take(), removed("0:0 0 0", {"d1"}));
        QCOMPARE(town.dump(), QString("city(b1(w1(d2) w2) b2)"));
    }

    void nodeDiesWithItsRemoval()
    {
        Town town;
        const RefPtr<TreeNodeGML> wall = town.node("w1");
        const RefPtr<TreeNodeGML> door = town.node("d1");
        town.model.removeFeature(town.feature("w1"));
        QCOMPARE(wall->referenceCount(), 1);
        QCOMPARE(door->referenceCount(), 2); // the wall's and this one
    }

    void removalOfANodeThatNothingClaimsAnyMore()
    {
        Town town;
        bool isClaimed = true;
        town.tree.setTraverseChildrenVisitor(
            new Claim(town.tree.nodeMap, [&](TreeNodeGML* node, auto& nodes) {
                if (node->feature() != town.feature("w1")) {
                    return;
                }
                if (isClaimed) {
                    node->children().emplace_back(nodes.at(town.feature("d1")).front().get());
                }
                node->children().emplace_back(nodes.at(town.feature("d2")).front().get());
            }));
        isClaimed = false;
        town.addBuilding("b3");
        TreeNodeGML* const wall = town.node("w1");
        QCOMPARE(town.node("d1")->parent(), static_cast<TreeNode*>(wall));
        QCOMPARE(wall->children().size(), std::size_t(1));
        town.model.removeFeature(town.feature("d1"));
        QVERIFY(town.node("d1") == nullptr);
        QCOMPARE(wall->children().size(), std::size_t(1));
        QCOMPARE(wall->children().front().get(), static_cast<TreeNode*>(town.node("d2")));
    }

    void parentThatNoLongerClaimsItsNodeIsRemoved()
    {
        Town town;
        bool isClaimed = true;
        town.tree.setTraverseChildrenVisitor(
            new Claim(town.tree.nodeMap, [&](TreeNodeGML* node, auto& nodes) {
                if (node->feature() == town.feature("w1") && isClaimed) {
                    node->children().emplace_back(nodes.at(town.feature("d1")).front().get());
                }
            }));
        const QPersistentModelIndex door(town.at("d1"));
        isClaimed = false;
        town.addBuilding("b3");
        QCOMPARE(town.node("d1")->parent(), static_cast<TreeNode*>(town.node("w1")));
        town.model.removeFeature(town.feature("w1"));
        QVERIFY(town.node("d1")->parent() == nullptr);
        QVERIFY(!door.isValid());
        const int roots = town.tree.rowCount();
        town.model.removeFeature(town.feature("d1"));
        QCOMPARE(town.tree.rowCount(), roots); // it was none of them
        QVERIFY(town.node("d1") == nullptr);
    }

    void indexOfANodeThatNothingClaimsAnyMore()
    {
        Town town;
        QList<const char*> claimed{"d1", "d2", "b2", "w2"};
        town.tree.setTraverseChildrenVisitor(
            new Claim(town.tree.nodeMap, [&](TreeNodeGML* node, auto& nodes) {
                if (node->feature() == town.feature("w1")) {
                    for (const char* const id : qAsConst(claimed)) {
                        node->children().emplace_back(nodes.at(town.feature(id)).front().get());
                    }
                }
            }));
        claimed.removeAt(1);
        town.addBuilding("b3");
        const QPersistentModelIndex door(town.at("d2"));
        town.model.removeFeature(town.feature("d1"));
        QVERIFY(!door.isValid() || QModelIndex(door) == town.at("d2"));
    }

    void renamingShowsAtOnce()
    {
        Town town;
        const QAbstractItemModelTester tester(&town.tree,
                                              QAbstractItemModelTester::FailureReportingMode::Fatal);
        town.rename("d2", "Portal");
        QCOMPARE(town.recorder.take(), QStringList("dataChanged 0/0/0/1:0 0/0/0/1:0 []"));
        QCOMPARE(town.shown("d2"), QString("Portal"));
        town.rename("d2", QString::fromUtf8("Br\xC3\xBC"
                                            "cke"));
        QCOMPARE(town.shown("d2"), QString::fromUtf8("Br\xC3\xBC"
                                                     "cke"));
    }

    void changeInColumnOneRenamesToo()
    {
        Town town;
        const QAbstractItemModelTester tester(&town.tree,
                                              QAbstractItemModelTester::FailureReportingMode::Fatal);
        town.feature("b2")->name().front() = gml::CodeType("Chapel");
        town.model.updateData(town.source("b2", 1));
        QCOMPARE(town.recorder.take(), QStringList("dataChanged 0/1:1 0/1:1 []"));
        QCOMPARE(town.shown("b2"), QString("Chapel"));
    }

    void rolesOfTheSourceAreNotPassedOn()
    {
        Town town;
        town.feature("b2")->name().front() = gml::CodeType("Chapel");
        town.model.propertyChanged(town.source("b2"), false);
        QCOMPARE(town.recorder.take(), QStringList("dataChanged 0/1:0 0/1:0 []"));
        QCOMPARE(town.shown("b2"), QString("Chapel"));
    }

    void emptiedNamesLeaveTheOldText()
    {
        Town town;
        town.feature("b2")->name().clear();
        town.model.updateData(town.source("b2"));
        QCOMPARE(town.recorder.take(), QStringList("dataChanged 0/1:0 0/1:0 []"));
        QCOMPARE(town.shown("b2"), QString("Church"));
        town.model.dataSetChanged();
        QCOMPARE(town.shown("b2"), QString("Building"));
    }

    void changeOfARejectedFeature()
    {
        Town town;
        town.rename("a1", "Colours");
        town.model.updateData(QModelIndex());
        QCOMPARE(town.recorder.take(), QStringList());
    }

    void changeOfSeveralRowsLeavesTheNames()
    {
        Town town;
        const QAbstractItemModelTester tester(&town.tree,
                                              QAbstractItemModelTester::FailureReportingMode::Fatal);
        for (const char* const id : {"b1", "d1"}) {
            town.feature(id)->name().front() = gml::CodeType("new");
        }
        town.tree.sourceDataChanged(town.source("b1"), town.source("d2", 1));
        QCOMPARE(town.recorder.take(),
                 QStringList({"dataChanged 0/0:0 0/0:1 []", "dataChanged 0/0/0:0 0/0/0:1 []",
                              "dataChanged 0/0/0/0:0 0/0/0/1:1 []"}));
        QCOMPARE(town.shown("b1"), QString("Town hall"));
        QCOMPARE(town.shown("d1"), QString("Gate"));
    }

    void changeOfTwoColumnsLeavesTheName()
    {
        Town town;
        town.feature("b2")->name().front() = gml::CodeType("Chapel");
        town.tree.sourceDataChanged(town.source("b2"), town.source("b2", 1));
        QCOMPARE(town.recorder.take(), QStringList("dataChanged 0/1:0 0/1:1 []"));
        QCOMPARE(town.shown("b2"), QString("Church"));
    }

    void renamingReachesTheFirstNodeAlone()
    {
        Town town;
        auto& nodes = town.tree.nodeMap.at(town.feature("b2"));
        nodes.emplace_back(new TreeNodeGML(town.feature("b2"), nullptr));
        nodes.back()->setChildNumber(3);
        town.rename("b2", "Chapel");
        QCOMPARE(town.recorder.take(), QStringList("dataChanged 0/1:0 0/1:0 []"));
        QVERIFY(nodes.front()->getName() == Fondo::String("Chapel"));
        QVERIFY(nodes.back()->getName() == Fondo::String("Church"));
    }

    void changeWhileTheSourceIsBusy()
    {
        Town town;
        town.tree.sourceBusy = true;
        town.rename("b2", "Chapel");
        QCOMPARE(town.recorder.take(), QStringList());
        town.tree.sourceBusy = false;
        QCOMPARE(town.shown("b2"), QString("Church"));
    }

    void visibilityComesThrough()
    {
        Town town;
        const QAbstractItemModelTester tester(&town.tree,
                                              QAbstractItemModelTester::FailureReportingMode::Fatal);
        town.tree.setCheckColumnEnabled(true);
        town.recorder.clear();
        town.model.hide(town.source("w2"));
        // The row has changed; and its state shows in what stands above it, too.
        QCOMPARE(town.recorder.take(),
                 QStringList({"dataChanged 0/0/1:0 0/0/1:0 []", "dataChanged 0/0/1:0 0/0/1:0 [10]",
                              "dataChanged 0/0:0 0/0:0 [10]", "dataChanged 0:0 0:0 [10]"}));
    }

    void visibilityWhileTheSourceIsBusy()
    {
        Town town;
        town.tree.setCheckColumnEnabled(true);
        town.recorder.clear();
        town.tree.sourceBusy = true;
        town.model.hide(town.source("w2"));
        town.model.showAll();
        QCOMPARE(town.recorder.take(), QStringList());
        town.tree.sourceBusy = false;
    }

    void selectionSurvivesWhatIsSignalledInFull()
    {
        Town town;
        QItemSelectionModel selection(&town.tree);
        selection.select(town.at("b2"), QItemSelectionModel::Select | QItemSelectionModel::Rows);
        town.addBuilding("b3");
        town.rename("b2", "Chapel");
        town.model.removeFeature(town.feature("b1"));
        QCOMPARE(selection.selectedRows(), QModelIndexList{town.at("b2")});
        town.tree.computeNodeMap();
        QVERIFY(!selection.hasSelection());
    }
};

TEST_CLASS(CityGMLProxySynchronisationTest, Widgets)
#include "citygmlproxysynchronisationtest.moc"
