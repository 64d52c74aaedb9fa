#include "support/CityGMLTreeFixture.h"
#include "support/TestClass.h"

#include <QtTest>
#include <sstream>

using namespace testsupport;

using tolvik::TreeNodeGML;

namespace {

/// A document model that counts how often it is asked for the feature of an index.
class CountingModel : public tolvik::CityGMLModel
{
public:
    CountingModel() : CityGMLModel(nullptr, nullptr)
    {
        std::istringstream stream(village().toStdString());
        load(stream);
    }

    using CityGMLModel::getFeature;
    gml::AbstractFeatureType* getFeature(const QModelIndex& index) const override
    {
        ++calls;
        return CityGMLModel::getFeature(index);
    }

    mutable int calls = 0;
};

QString addressOf(const TreeNodeGML* node)
{
    std::ostringstream text;
    text << node;
    return QString::fromStdString(text.str());
}

/// Gives a feature a second node, as yet without a row.
TreeNodeGML* addNode(OpenTree& tree, gml::AbstractFeatureType* feature)
{
    auto* const node = new TreeNodeGML(feature, nullptr);
    tree.nodeMap[feature].emplace_back(node);
    return node;
}

} // namespace

class CityGMLProxyMappingTest : public QObject
{
    Q_OBJECT

private slots:
    void everyShownRowHasItsNode()
    {
        const CityTree city;
        for (const char* const id : {"city", "b1", "w1", "d1", "d2", "w2", "b2"}) {
            for (int column = 0; column < 2; ++column) {
                const QModelIndex node = city.tree.mapFromSource(city.source(id, column));
                QVERIFY(node.isValid());
                QCOMPARE(node.model(), static_cast<const QAbstractItemModel*>(&city.tree));
                QCOMPARE(node.internalPointer(), static_cast<void*>(city.node(id)));
                QCOMPARE(node.row(), city.node(id)->childNumber());
                QCOMPARE(node.column(), column);
                QCOMPARE(city.tree.mapToSource(node), city.source(id, column));
                QCOMPARE(city.tree.listFromSource(city.source(id, column)), QList<QModelIndex>{node});
            }
        }
    }

    void appearanceHasNoNode()
    {
        const CityTree city;
        ModelLog log;
        QVERIFY(city.source("a1").isValid());
        QVERIFY(!city.tree.mapFromSource(city.source("a1")).isValid());
        QVERIFY(city.tree.listFromSource(city.source("a1")).isEmpty());
        QCOMPARE(log.take(), QStringList());
    }

    void invalidIndexDoesNotReachTheSource()
    {
        CountingModel model;
        OpenTree tree;
        tree.setSourceModel(&model);
        model.calls = 0;
        QVERIFY(!tree.mapFromSource(QModelIndex()).isValid());
        QVERIFY(tree.listFromSource(QModelIndex()).isEmpty());
        QVERIFY(!tree.mapToSource(QModelIndex()).isValid());
        QCOMPARE(model.calls, 0);
        QVERIFY(tree.mapFromSource(model.index(0, 0)).isValid());
        QCOMPARE(model.calls, 1);
    }

    void anOldIndexMeansTheFeatureOfItsRow()
    {
        CityTree city;
        const QModelIndex row = city.source("d1");
        const QModelIndex old = city.model.index(row.row(), 0);
        city.model.removeFeature(city.feature("d1"));
        gml::AbstractFeatureType* const now = city.model.getFeature(old.row());
        QVERIFY(old.internalPointer() != now);
        QCOMPARE(city.tree.mapFromSource(old), city.tree.index(now));
        QVERIFY(city.tree.mapFromSource(old).isValid());
    }

    void indexOfANode()
    {
        const CityTree city;
        const QModelIndex wall = city.tree.index(0, 1, city.at("b1"));
        QCOMPARE(city.tree.mapToSource(wall), city.source("w1", 1));
        // The index of a node itself takes row and column as they come.
        const QModelIndex itself = city.tree.index(4, 1, static_cast<tolvik::TreeNode*>(city.node("w1")));
        QCOMPARE(itself.row(), 4);
        QCOMPARE(itself.column(), 1);
        QCOMPARE(itself.internalPointer(), static_cast<void*>(city.node("w1")));
        QVERIFY(!city.tree.index(2, 0, city.at("b1")).isValid());
        QVERIFY(!city.tree.index(0, 2, city.at("b1")).isValid());
    }

    void indexOfAFeature()
    {
        const CityTree city;
        QCOMPARE(city.tree.index(city.feature("d2")), city.at("d2"));
        QVERIFY(!city.tree.index(city.feature("a1")).isValid());
        QVERIFY(!city.tree.index(static_cast<gml::AbstractFeatureType*>(nullptr)).isValid());
        const OpenTree withoutSource;
        QVERIFY(!withoutSource.index(city.feature("d2")).isValid());
    }

    void featureThatTheSourceNoLongerHolds()
    {
        CityTree city;
        gml::AbstractFeatureType* const door = city.feature("d1");
        // The tree does not hear of the removal, and so keeps the node.
        const QModelIndex node = city.at("d1");
        disconnect(&city.model, &QAbstractItemModel::rowsAboutToBeRemoved, &city.tree, nullptr);
        city.model.removeFeature(door);
        QVERIFY(city.tree.treeNode(door) != nullptr);
        QVERIFY(!city.tree.index(door).isValid());
        QVERIFY(!city.tree.mapToSource(node).isValid());
    }

    void featureWithTwoNodes()
    {
        CityTree city;
        gml::AbstractFeatureType* const church = city.feature("b2");
        TreeNodeGML* const older = city.node("b2");
        TreeNodeGML* const newer = addNode(city.tree, church);
        newer->setChildNumber(5);

        const QModelIndex first = city.tree.index(1, 1, static_cast<tolvik::TreeNode*>(older));
        const QModelIndex second = city.tree.index(5, 1, static_cast<tolvik::TreeNode*>(newer));
        QCOMPARE(city.tree.listFromSource(city.source("b2", 1)), QList<QModelIndex>({first, second}));
        QCOMPARE(city.tree.mapFromSource(city.source("b2", 1)), first);
        QCOMPARE(city.tree.index(church), first.siblingAtColumn(0));
        QCOMPARE(city.tree.mapToSource(first), city.source("b2", 1));
        QCOMPARE(city.tree.mapToSource(second), city.source("b2", 1));
    }

    void nodeWithoutRow()
    {
        CityTree city;
        city.model.setObjectName("list");
        TreeNodeGML* const newer = addNode(city.tree, city.feature("b2"));
        newer->setChildNumber(2);
        city.node("b2")->setChildNumber(-1);
        ModelLog log;

        const QList<QModelIndex> nodes = city.tree.listFromSource(city.source("b2"));
        QCOMPARE(nodes.size(), 1);
        QCOMPARE(nodes.front().internalPointer(), static_cast<void*>(newer));
        QCOMPARE(nodes.front().row(), 2);
        QCOMPARE(log.take(), QStringList("WARN [tree] tree(list) listFromSource row unset : " +
                                         addressOf(city.node("b2"))));

        QVERIFY(!city.tree.mapFromSource(city.source("b2")).isValid());
        QCOMPARE(log.take(),
                 QStringList("WARN [tree] mapFromSource row unset : " + addressOf(city.node("b2"))));
    }

    void otherNegativeRows()
    {
        CityTree city;
        city.node("b2")->setChildNumber(-2);
        ModelLog log;
        QVERIFY(!city.tree.mapFromSource(city.source("b2")).isValid());
        QCOMPARE(log.take().size(), 1);
        QCOMPARE(city.tree.listFromSource(city.source("b2")).size(), 1);
        QCOMPARE(log.take(), QStringList());
    }

    void whileTheSourceIsBusy()
    {
        CityTree city;
        const QModelIndex row = city.source("b1");
        const QModelIndex node = city.at("b1");
        city.tree.sourceBusy = true;
        QVERIFY(!city.tree.mapFromSource(row).isValid());
        QVERIFY(!city.tree.mapToSource(node).isValid());
        QVERIFY(city.tree.listFromSource(row).isEmpty());
        QVERIFY(!city.tree.index(city.feature("b1")).isValid());
        city.tree.sourceBusy = false;
        QCOMPARE(city.tree.mapFromSource(row), node);
    }

    void selectionsAreMapped()
    {
        const CityTree city;
        // b1 w1 d1 of the list: three places of the tree.
        const QItemSelection rows(city.source("b1"), city.source("d1", 1));
        const QItemSelection nodes = city.tree.mapSelectionFromSource(rows);
        QCOMPARE(nodes.size(), 3);
        QCOMPARE(nodes.at(0), QItemSelectionRange(city.at("b1"), city.at("b1", 1)));
        QCOMPARE(nodes.at(1), QItemSelectionRange(city.at("w1"), city.at("w1", 1)));
        QCOMPARE(nodes.at(2), QItemSelectionRange(city.at("d1"), city.at("d1", 1)));
        QCOMPARE(city.tree.mapSelectionToSource(nodes), rows);
    }

    void searchGoesThroughTheTree()
    {
        CityTree city;
        QCOMPARE(city.tree.search(QModelIndex(), "gate", Qt::CaseInsensitive), city.at("d1"));
        QVERIFY(!city.tree.search(QModelIndex(), "gate", Qt::CaseSensitive).isValid());
        QCOMPARE(city.tree.search(city.at("d1"), "door", Qt::CaseInsensitive), city.at("d2")); // its type
        QCOMPARE(city.tree.search(city.at("d2"), "gate", Qt::CaseInsensitive), city.at("d1"));
    }
};

TEST_CLASS(CityGMLProxyMappingTest, Widgets)
#include "citygmlproxymappingtest.moc"
