#include "UI/Models/CityGMLModel/TreeNodeGML.h"

#include "bldg/BuildingType.hxx"
#include "fondo/ClassType.h"
#include "framework/TextConversion.h"
#include "gml/CodeType.hxx"
#include "support/TestClass.h"

#include <memory>
#include <QtTest>

using namespace testsupport;

using tolvik::TreeNode;
using tolvik::TreeNodeGML;

namespace {

QString nameOf(const TreeNode& node)
{
    return tolvik::toQString(node.getName());
}

} // namespace

class TreeNodeGMLTest : public QObject
{
    Q_OBJECT

private slots:
    void firstNameIsTheName()
    {
        bldg::BuildingType building;
        building.name().push_back(gml::CodeType("Town hall"));
        building.name().push_back(gml::CodeType("Mairie"));
        const TreeNodeGML node(&building, nullptr);
        QCOMPARE(nameOf(node), QString("Town hall"));
    }

    void nameIsUtf8()
    {
        bldg::BuildingType building;
        building.name().push_back(gml::CodeType("Br\xC3\xBC"
                                                "cke \xF0\x9F\x8C\x89"));
        const TreeNodeGML node(&building, nullptr);
        QCOMPARE(nameOf(node), QString::fromUtf8("Br\xC3\xBC"
                                                 "cke \xF0\x9F\x8C\x89"));
    }

    void unnamedFeatureIsNamedAfterItsType()
    {
        bldg::BuildingType building;
        const TreeNodeGML node(&building, nullptr);
        QCOMPARE(nameOf(node), QString("Building"));
    }

    void emptyNameIsAName()
    {
        bldg::BuildingType building;
        building.name().push_back(gml::CodeType(""));
        const TreeNodeGML node(&building, nullptr);
        QCOMPARE(nameOf(node), QString(""));
    }

    void nameStaysWhenTheFeatureIsRenamed()
    {
        bldg::BuildingType building;
        const TreeNodeGML node(&building, nullptr);
        building.name().push_back(gml::CodeType("Town hall"));
        QCOMPARE(nameOf(node), QString("Building"));
    }

    void withoutFeature()
    {
        const TreeNodeGML node(nullptr, nullptr);
        QVERIFY(node.feature() == nullptr);
        QCOMPARE(nameOf(node), QString());
    }

    void stateAtConstruction()
    {
        bldg::BuildingType building;
        TreeNode parent(nullptr);
        const TreeNodeGML node(&building, &parent);
        QCOMPARE(node.feature(), static_cast<gml::AbstractFeatureType*>(&building));
        QCOMPARE(node.parent(), &parent);
        QVERIFY(parent.children().empty());
        QCOMPARE(node.childNumber(), -1);
        QVERIFY(node.children().empty());
        QCOMPARE(node.referenceCount(), 0);
    }

    void typeRecordIsThatOfTreeNode()
    {
        const TreeNodeGML node(nullptr, nullptr);
        const TreeNode plain(nullptr);
        QCOMPARE(&node.getType(), &TreeNode::classType());
        QCOMPARE(node.type(), plain.type());
        QVERIFY(node.isOfType(TreeNode::classType()));
        QVERIFY(plain.isOfType(node.getType()));
    }

    void copyHasStateAndFeature()
    {
        bldg::BuildingType building;
        TreeNode parent(nullptr);
        TreeNodeGML node(&building, &parent);
        node.setChildNumber(3);
        node.children().emplace_back(new TreeNodeGML(nullptr, &node));

        const TreeNodeGML copy(node);
        QCOMPARE(copy.feature(), node.feature());
        QCOMPARE(copy.parent(), &parent);
        QCOMPARE(copy.childNumber(), 3);
        QCOMPARE(nameOf(copy), QString("Building"));
        QCOMPARE(copy.children().size(), std::size_t(1));
        QCOMPARE(copy.children().front().get(), node.children().front().get());
        QCOMPARE(copy.referenceCount(), 0);

        TreeNodeGML assigned(nullptr, nullptr);
        assigned = node;
        QCOMPARE(assigned.feature(), node.feature());
        QCOMPARE(assigned.parent(), &parent);
        QCOMPARE(nameOf(assigned), QString("Building"));
    }
};

TEST_CLASS(TreeNodeGMLTest, None)
#include "treenodegmltest.moc"
