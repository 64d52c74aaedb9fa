#include "support/CityGMLTreeFixture.h"
#include "support/TestClass.h"

#include <memory>
#include <QDataStream>
#include <QMimeData>
#include <QtTest>

using namespace testsupport;

using tolvik::TreeNode;
using tolvik::TreeNodeGML;

namespace {

/// A proxy that notes which of its virtual operations are called.
class Noting : public OpenTree
{
public:
    void encodeData(const QList<QModelIndex>& indexes, QDataStream& stream) const override
    {
        notes.append("encodeData");
        OpenTree::encodeData(indexes, stream);
    }
    QItemSelection mapSelectionFromSource(const QItemSelection& rows) const override
    {
        notes.append("mapSelectionFromSource");
        return OpenTree::mapSelectionFromSource(rows);
    }
    bool deleteTreeNode(TreeNode* node) override
    {
        notes.append("deleteTreeNode " + CityTree::idOf(dynamic_cast<TreeNodeGML&>(*node).feature()));
        return OpenTree::deleteTreeNode(node);
    }
    void updateTreeNodes() override
    {
        notes.append("updateTreeNodes");
        OpenTree::updateTreeNodes();
    }
    using OpenTree::treeNode;
    TreeNodeGML* treeNode(gml::AbstractFeatureType* feature) const override
    {
        notes.append("treeNode");
        return OpenTree::treeNode(feature);
    }
    QVariant recursiveCheckState(const QModelIndex& index) const override
    {
        notes.append("recursiveCheckState");
        return OpenTree::recursiveCheckState(index);
    }

    QStringList take() const
    {
        QStringList result;
        result.swap(notes);
        return result;
    }

private:
    mutable QStringList notes;
};

/// Such a proxy over a document, with what it has noted so far, and its first building.
struct Followed
{
    Followed()
    {
        tree.setSourceModel(&city.model);
        noted = tree.take();
        building = tree.index(0, 0, tree.index(0, 0));
        tree.take();
    }

    CityTree city;
    Noting tree;
    QStringList noted;
    QModelIndex building;
};

} // namespace

/// What a host overrides is called wherever its base needs it.
class CityGMLProxyOverridesTest : public QObject
{
    Q_OBJECT

private slots:
    void linking()
    {
        Followed followed;
        QCOMPARE(followed.noted, QStringList("updateTreeNodes"));
        followed.city.model.addFeature(addMember(*followed.city.model.cityGML(), makeBuilding("b3")));
        QCOMPARE(followed.tree.take(), QStringList("updateTreeNodes"));
    }

    void nodeOfARow()
    {
        Followed followed;
        followed.tree.mapFromSource(followed.city.source("b1"));
        QCOMPARE(followed.tree.take(), QStringList("treeNode"));
    }

    void nodeOfAFeature()
    {
        Followed followed;
        followed.tree.getFeatureParent(followed.city.feature("b1"));
        QCOMPARE(followed.tree.take(), QStringList("treeNode"));
    }

    void dragging()
    {
        Followed followed;
        const std::unique_ptr<QMimeData> data(followed.tree.mimeData({followed.building}));
        QCOMPARE(followed.tree.take(), QStringList("encodeData"));
    }

    void checkBoxes()
    {
        Followed followed;
        followed.tree.setCheckColumnEnabled(true);
        followed.building.data(Qt::CheckStateRole);
        QCOMPARE(followed.tree.take(), QStringList("recursiveCheckState"));
    }

    void severalRows()
    {
        Followed followed;
        followed.tree.sourceDataChanged(followed.city.source("b1"), followed.city.source("w1"));
        QCOMPARE(followed.tree.take(), QStringList("mapSelectionFromSource"));
    }

    void removal()
    {
        Followed followed;
        followed.city.model.removeFeature(followed.city.feature("d1"));
        QCOMPARE(followed.tree.take(), QStringList("deleteTreeNode d1"));
    }

    void removalBelow()
    {
        Followed followed;
        followed.tree.deleteTreeNode(static_cast<TreeNode*>(followed.tree.treeNode(followed.building)));
        QCOMPARE(followed.tree.take().mid(1), QStringList({"deleteTreeNode w1", "deleteTreeNode d1",
                                                           "deleteTreeNode d2", "deleteTreeNode w2"}));
    }
};

TEST_CLASS(CityGMLProxyOverridesTest, Widgets)
#include "citygmlproxyoverridestest.moc"
