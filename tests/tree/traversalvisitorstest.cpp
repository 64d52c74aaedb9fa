#include "app/AppearanceType.hxx"
#include "frn/CityFurnitureType.hxx"
#include "support/CityGMLTreeFixture.h"
#include "support/TestClass.h"

#include <QtTest>
#include <typeinfo>

using namespace testsupport;

using Fondo::RefPtr;
using tolvik::CityGMLFeaturesVisitor;
using tolvik::CityGMLProxyModelTraverseAllVisitor;
using tolvik::CityGMLProxyModelTraverseChildrenGMLVisitor;
using tolvik::CityGMLProxyModelTraverseChildrenVisitor;
using tolvik::CityGMLProxyModelTraverseNoApparencesVisitor;
using tolvik::TreeNode;
using tolvik::TreeNodeGML;

namespace {

using NodeMap = CityGMLProxyModelTraverseChildrenVisitor::NodeMap;

/// Whether a visitor accepts a feature of type T.
template <class T>
bool accepts(CityGMLFeaturesVisitor& visitor)
{
    T feature;
    return feature.accept(&visitor);
}

/// A visitor with its fields open.
template <class Visitor>
class Open : public Visitor
{
public:
    using Visitor::traversalVisitor;
    using Visitor::treeNode;
    using Visitor::Visitor;
};

/// Counts what a traversal visitor is asked.
class Counting : public CityGMLProxyModelTraverseAllVisitor
{
public:
    int visits = 0;
    bool visit_gml_AbstractFeatureType(gml::AbstractFeatureType* feature) override
    {
        ++visits;
        return CityGMLProxyModelTraverseAllVisitor::visit_gml_AbstractFeatureType(feature);
    }
};

/// A building b(w1(d) w2) with a node for each feature.
struct House
{
    House()
    {
        building = makeBuilding("b");
        wall1 = addSurface(building, makeWall("w1"));
        door = addOpening(*wall1, makeDoor("d"));
        wall2 = addSurface(building, makeWall("w2"));
        for (gml::AbstractFeatureType* const each : features()) {
            nodes[each].emplace_back(new TreeNodeGML(each, nullptr));
        }
    }

    std::vector<gml::AbstractFeatureType*> features() { return {&building, wall1, wall2, door}; }

    TreeNodeGML* node(gml::AbstractFeatureType* feature) { return nodes.at(feature).front().get(); }

    void walk(CityGMLProxyModelTraverseChildrenVisitor& visitor, TreeNodeGML* node)
    {
        visitor.setTreeNode(node);
        visitor.walkStart = true;
        QVERIFY(node->feature()->accept(&visitor));
    }

    /// The identifiers of a node's children.
    static QString children(const TreeNode* node)
    {
        QStringList ids;
        for (const auto& child : node->children()) {
            ids.append(CityTree::idOf(dynamic_cast<const TreeNodeGML&>(*child).feature()));
        }
        return ids.join(' ');
    }

    bldg::BuildingType building;
    bldg::AbstractBoundarySurfaceType* wall1;
    bldg::AbstractBoundarySurfaceType* wall2;
    bldg::AbstractOpeningType* door;
    NodeMap nodes;
};

} // namespace

// The children visitor of features has nothing that a subclass could by-pass.
static_assert(std::is_same_v<decltype(&CityGMLProxyModelTraverseChildrenGMLVisitor::setTreeNode),
                             void (CityGMLProxyModelTraverseChildrenVisitor::*)(TreeNodeGML*)>);
static_assert(sizeof(CityGMLProxyModelTraverseChildrenGMLVisitor) ==
              sizeof(CityGMLProxyModelTraverseChildrenVisitor));

class TraversalVisitorsTest : public QObject
{
    Q_OBJECT

private slots:
    void allAcceptsEveryFeature()
    {
        CityGMLProxyModelTraverseAllVisitor visitor;
        QVERIFY(accepts<core::CityModelType>(visitor));
        QVERIFY(accepts<bldg::BuildingType>(visitor));
        QVERIFY(accepts<bldg::DoorType>(visitor));
        QVERIFY(accepts<frn::CityFurnitureType>(visitor));
        QVERIFY(accepts<app::AppearanceType>(visitor));
    }

    void noAppearancesRejectsAppearancesAlone()
    {
        CityGMLProxyModelTraverseNoApparencesVisitor visitor;
        QVERIFY(accepts<core::CityModelType>(visitor));
        QVERIFY(accepts<bldg::BuildingType>(visitor));
        QVERIFY(accepts<bldg::DoorType>(visitor));
        QVERIFY(accepts<frn::CityFurnitureType>(visitor));
        QVERIFY(!accepts<app::AppearanceType>(visitor));
    }

    void copiesJudgeAlike()
    {
        CityGMLProxyModelTraverseNoApparencesVisitor visitor;
        CityGMLProxyModelTraverseNoApparencesVisitor copy(visitor);
        QVERIFY(!accepts<app::AppearanceType>(copy));
        copy = visitor;
        QVERIFY(!accepts<app::AppearanceType>(copy));
        QVERIFY(accepts<bldg::BuildingType>(copy));
    }

    void featureIsJudgedByItself()
    {
        House house;
        Counting visitor;
        QVERIFY(house.building.accept(&visitor));
        QCOMPARE(visitor.visits, 1);
    }

    void childrenVisitorAtConstruction()
    {
        NodeMap nodes;
        const Open<CityGMLProxyModelTraverseChildrenVisitor> visitor(nodes);
        QVERIFY(visitor.treeNode == nullptr);
        QVERIFY(visitor.traversalVisitor);
        const auto& traversal = *visitor.traversalVisitor;
        QVERIFY(typeid(traversal) == typeid(CityGMLProxyModelTraverseAllVisitor));
        QCOMPARE(visitor.traversalVisitor->referenceCount(), 1);
    }

    void copySharesTheTraversalVisitor()
    {
        House house;
        Open<CityGMLProxyModelTraverseChildrenGMLVisitor> visitor(house.nodes);
        visitor.setTreeNode(house.node(&house.building));
        {
            Open<CityGMLProxyModelTraverseChildrenGMLVisitor> copy(visitor);
            QCOMPARE(copy.treeNode, visitor.treeNode);
            QCOMPARE(copy.traversalVisitor.get(), visitor.traversalVisitor.get());
            QCOMPARE(visitor.traversalVisitor->referenceCount(), 2);
            house.walk(copy, house.node(&house.building)); // over the same map
        }
        QCOMPARE(house.children(house.node(&house.building)), QString("w1 w2"));
        QCOMPARE(visitor.traversalVisitor->referenceCount(), 1);
    }

    void traversalVisitorIsExchanged()
    {
        NodeMap nodes;
        const RefPtr<CityGMLFeaturesVisitor> first = new CityGMLProxyModelTraverseAllVisitor;
        const RefPtr<CityGMLFeaturesVisitor> second = new CityGMLProxyModelTraverseAllVisitor;
        {
            Open<CityGMLProxyModelTraverseChildrenVisitor> visitor(nodes);
            visitor.setTraversalVisitor(first.get());
            QCOMPARE(first->referenceCount(), 2);
            visitor.setTraversalVisitor(first.get());
            QCOMPARE(first->referenceCount(), 2);
            visitor.setTraversalVisitor(second.get());
            QCOMPARE(first->referenceCount(), 1);
            QCOMPARE(visitor.traversalVisitor.get(), second.get());
        }
        QCOMPARE(second->referenceCount(), 1);
    }

    void setTreeNodeArmsTheWalk()
    {
        House house;
        Open<CityGMLProxyModelTraverseChildrenGMLVisitor> visitor(house.nodes);
        TreeNodeGML* const node = house.node(&house.building);
        const RefPtr<TreeNode> child = new TreeNode(nullptr);
        node->children().push_back(child);
        visitor.walkChildren = false;
        visitor.setTreeNode(node);
        QCOMPARE(visitor.treeNode, node);
        QVERIFY(node->children().empty());
        QCOMPARE(child->referenceCount(), 1);
        QVERIFY(visitor.walkChildren);
    }

    void plainChildrenVisitorAddsNothing()
    {
        House house;
        CityGMLProxyModelTraverseChildrenVisitor visitor(house.nodes);
        for (gml::AbstractFeatureType* const each : house.features()) {
            house.walk(visitor, house.node(each));
            QVERIFY(house.node(each)->children().empty());
        }
    }

    void childrenStandInTheOrderOfTheWalk()
    {
        House house;
        CityGMLProxyModelTraverseChildrenGMLVisitor visitor(house.nodes);
        for (gml::AbstractFeatureType* const each : house.features()) {
            house.walk(visitor, house.node(each));
        }
        QCOMPARE(house.children(house.node(&house.building)), QString("w1 w2"));
        QCOMPARE(house.children(house.node(house.wall1)), QString("d"));
        QCOMPARE(house.children(house.node(house.wall2)), QString());
        QCOMPARE(house.children(house.node(house.door)), QString());
        // Parents and numbers are for whoever runs the walks to set.
        QVERIFY(house.node(house.wall1)->parent() == nullptr);
        QCOMPARE(house.node(house.wall1)->childNumber(), -1);
    }

    void walkingTwiceGivesTheSameChildren()
    {
        House house;
        CityGMLProxyModelTraverseChildrenGMLVisitor visitor(house.nodes);
        house.walk(visitor, house.node(&house.building));
        house.walk(visitor, house.node(&house.building));
        QCOMPARE(house.children(house.node(&house.building)), QString("w1 w2"));
        QCOMPARE(house.node(house.wall1)->referenceCount(), 2);
    }

    void nodeIsNeverItsOwnChild()
    {
        House house;
        CityGMLProxyModelTraverseChildrenGMLVisitor visitor(house.nodes);
        TreeNodeGML* const node = house.node(&house.building);
        house.walk(visitor, node);
        QVERIFY(visitor.visit_gml_AbstractFeatureType(&house.building));
        QVERIFY(visitor.visit_gml_AbstractFeatureType(&house.building));
        QCOMPARE(house.children(node), QString("w1 w2"));
    }

    void featureWithoutNodeIsSkipped()
    {
        House house;
        house.nodes.erase(house.wall1);
        CityGMLProxyModelTraverseChildrenGMLVisitor visitor(house.nodes);
        house.walk(visitor, house.node(&house.building));
        QCOMPARE(house.children(house.node(&house.building)), QString("w2"));
    }

    void featureOfTwoWalksIsAChildOfBoth()
    {
        House house;
        CityGMLProxyModelTraverseChildrenGMLVisitor visitor(house.nodes);
        TreeNodeGML* const wall2 = house.node(house.wall2);
        house.walk(visitor, house.node(house.wall1));
        house.walk(visitor, wall2);
        visitor.visit_gml_AbstractFeatureType(house.door);
        QCOMPARE(house.children(wall2), QString("d"));
        QCOMPARE(wall2->children().front().get(), house.node(house.wall1)->children().front().get());
    }

    void featureWithTwoNodesIsAChildThroughTheFirst()
    {
        House house;
        auto& nodes = house.nodes[house.wall1];
        nodes.emplace_back(new TreeNodeGML(house.wall1, nullptr));
        CityGMLProxyModelTraverseChildrenGMLVisitor visitor(house.nodes);
        TreeNodeGML* const building = house.node(&house.building);
        house.walk(visitor, building);
        QCOMPARE(house.children(building), QString("w1 w2"));
        QCOMPARE(building->children().front().get(), static_cast<TreeNode*>(nodes.front().get()));
        QCOMPARE(nodes.back()->referenceCount(), 1);
    }
};

TEST_CLASS(TraversalVisitorsTest, None)
#include "traversalvisitorstest.moc"
