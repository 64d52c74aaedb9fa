#include "support/CityGMLTreeFixture.h"
#include "support/TestClass.h"

#include <memory>
#include <QAction>
#include <QDataStream>
#include <QItemSelectionModel>
#include <QMimeData>
#include <QRegularExpression>
#include <QtTest>

using namespace testsupport;

using tolvik::CityGMLProxyModel;
using tolvik::TreeNode;

namespace {

/// b1(w1 w2 r1) b2, with a selection over the tree.
struct Streets : CityTree
{
    Streets()
        : CityTree(cityDocument(R"(
  <cityObjectMember>
    <bldg:Building gml:id="b1">
      <bldg:boundedBy><bldg:WallSurface gml:id="w1"/></bldg:boundedBy>
      <bldg:boundedBy><bldg:RoofSurface gml:id="r1"/></bldg:boundedBy>
      <bldg:boundedBy><bldg:WallSurface gml:id="w2"/></bldg:boundedBy>
    </bldg:Building>
  </cityObjectMember>
  <cityObjectMember><bldg:Building gml:id="b2"/></cityObjectMember>
)"))
    {
        tree.setSelectionModel(&selection);
    }

    void makeCurrent(const char* id) { selection.setCurrentIndex(at(id), QItemSelectionModel::NoUpdate); }

    /// The identifiers of the features that are selected over the whole row.
    QString selected() const
    {
        QStringList ids;
        const QModelIndexList rows = selection.selectedRows();
        for (const QModelIndex& row : rows) {
            ids.append(idOf(CityGMLProxyModel::getFeature(row)));
        }
        ids.sort();
        return ids.join(' ');
    }

    QByteArray payload(const QModelIndexList& indexes) const
    {
        const std::unique_ptr<QMimeData> data(tree.mimeData(indexes));
        return data->data(CityGMLProxyModel::MimeType);
    }

    QList<QModelIndex> decoded(const QByteArray& payload) const
    {
        QDataStream stream(payload);
        return tree.decodeData(stream);
    }

    QItemSelectionModel selection{&tree};
};

/// Keys as they stand in a payload: eight bytes each, the highest first.
QByteArray keys(const QList<qint64>& values)
{
    QByteArray bytes;
    for (const qint64 value : values) {
        for (int shift = 56; shift >= 0; shift -= 8) {
            bytes.append(static_cast<char>((static_cast<quint64>(value) >> shift) & 0xFFU));
        }
    }
    return bytes;
}

/// Exchanges the children of a node when the first index is made.
class Exchanging : public OpenTree
{
public:
    QModelIndex index(int row, int column, TreeNode* node) const override
    {
        const auto& gmlNode = dynamic_cast<const tolvik::TreeNodeGML&>(*node);
        if (parent != nullptr) {
            std::swap(parent->children()[1], parent->children()[2]);
            parent = nullptr;
        }
        asked.append(QString("%1 %2").arg(CityTree::idOf(gmlNode.feature())).arg(row));
        return OpenTree::index(row, column, node);
    }
    using OpenTree::index;

    mutable TreeNode* parent = nullptr;
    mutable QStringList asked;
};

/// A proxy with a slot of the same name as that of its base.
class Shadowing : public OpenTree
{
    Q_OBJECT

public:
    int calls = 0;

public slots:
    void selectSiblingsWithSameType() { ++calls; }
};

} // namespace

class CityGMLProxySelectionTest : public QObject
{
    Q_OBJECT

private slots:
    void siblingsWithoutSelectionModel()
    {
        Streets city;
        city.makeCurrent("w1");
        city.tree.setSelectionModel(nullptr);
        city.tree.selectSiblings(false, false);
        QCOMPARE(city.selected(), QString());
    }

    void siblingsWithoutCurrentIndex()
    {
        Streets city;
        city.tree.selectSiblings(false, false);
        QCOMPARE(city.selected(), QString());
    }

    void rootsHaveNoSiblings()
    {
        Streets city;
        city.makeCurrent("city");
        city.tree.selectSiblings(false, false);
        city.tree.selectSiblings(true, false);
        QCOMPARE(city.selected(), QString());

        city.tree.setTraverseChildrenVisitor(nullptr);
        city.makeCurrent("w1");
        city.tree.selectSiblings(true, false);
        QCOMPARE(city.selected(), QString());
    }

    void allSiblings()
    {
        Streets city;
        city.makeCurrent("r1");
        city.tree.selectSiblings(false, false);
        QCOMPARE(city.selected(), QString("r1 w1 w2"));
        QCOMPARE(city.selection.selection().indexes().size(), 6); // both columns of each
        QCOMPARE(city.selection.selection().size(), 1);           // as one range
    }

    void secondArgumentHasNoEffect()
    {
        Streets city;
        city.makeCurrent("r1");
        city.tree.selectSiblings(false, true);
        QCOMPARE(city.selected(), QString("r1 w1 w2"));
    }

    void siblingsOfTheSameType()
    {
        Streets city;
        city.selection.select(city.at("b2"), QItemSelectionModel::Select | QItemSelectionModel::Rows);
        city.makeCurrent("w2");
        city.tree.selectSiblings(true, false);
        QCOMPARE(city.selected(), QString("b2 w1 w2"));
        QCOMPARE(city.selection.currentIndex(), city.at("w2"));
    }

    void siblingsAreThoseOfTheBeginning()
    {
        Streets city;
        Exchanging tree;
        tree.setSourceModel(&city.model);
        QItemSelectionModel selection(&tree);
        tree.setSelectionModel(&selection);
        selection.setCurrentIndex(tree.index(city.feature("w1")), QItemSelectionModel::NoUpdate);
        tree.parent = tree.treeNode(city.feature("b1"));
        tree.asked.clear();
        tree.selectSiblings(false, false);
        tree.asked.removeDuplicates();
        tree.asked.sort();
        QCOMPARE(tree.asked.filter(QRegularExpression("^[rw]")), QStringList({"r1 1", "w1 0", "w2 2"}));
    }

    void siblingsThatAreNoFeatures()
    {
        Streets city;
        city.makeCurrent("w1");
        auto& children = city.node("b1")->children();
        const auto real = children;
        children[1] = new TreeNode(city.node("b1"));
        children[1]->setChildNumber(1);
        children.emplace_back(new tolvik::TreeNodeGML(nullptr, city.node("b1")));
        children.emplace_back();
        city.tree.selectSiblings(false, false);
        QCOMPARE(city.selection.selection().indexes().size(), 4);
        QCOMPARE(city.selected(), QString("w1 w2"));
        city.selection.clear();
        children = real;
    }

    void siblingsWhileTheSourceIsReset()
    {
        Streets city;
        city.makeCurrent("w1");
        bool wasCurrent = false;
        bool wasSelected = true;
        connect(&city.model, &QAbstractItemModel::modelAboutToBeReset, &city.tree, [&] {
            wasCurrent = city.selection.currentIndex().isValid();
            city.tree.selectSiblings(true, false);
            wasSelected = city.selection.hasSelection();
        });
        city.model.dataSetChanged();
        QVERIFY(wasCurrent);
        QVERIFY(!wasSelected);
    }

    void actionSelectsSiblings()
    {
        Streets city;
        city.tree.createActions();
        tolvik::Action* const action = city.tree.actions.last();
        QCOMPARE(action->action()->text(), QString("Select siblings of same type"));
        QCOMPARE(action->action()->toolTip(), QString("Select all brothers of the same type"));
        QCOMPARE(action->groupHint(), 2);
        QCOMPARE(action->subGroupNameHint(), QString("Select"));
        QVERIFY(action->isValid(city.at("w1")));
        QVERIFY(!action->isValid(city.source("w1")));

        QCOMPARE(action->action()->parent(), &city.tree);

        city.makeCurrent("w1");
        action->action()->trigger();
        QCOMPARE(city.selected(), QString("w1 w2"));
    }

    void actionIsConnectedByName()
    {
        Shadowing tree;
        tree.createActions();
        tree.actions.last()->action()->trigger();
        QCOMPARE(tree.calls, 1);
    }

    void actionsOfTheBaseStandInFront()
    {
        CityGMLProxyModel tree;
        const QList<tolvik::Action*>& actions = tree.getActions();
        QCOMPARE(actions.size(), 2);
        QCOMPARE(actions.at(0)->action()->text(), QString("Select children"));
        QCOMPARE(actions.at(1)->action()->text(), QString("Select siblings of same type"));
    }

    void mimeType()
    {
        const OpenTree tree;
        QCOMPARE(CityGMLProxyModel::MimeType, "application/x-modelkeylist");
        QCOMPARE(tree.mimeTypes(), QStringList("application/x-modelkeylist"));
        QVERIFY(tree.mimeData(QModelIndexList()) == nullptr);
    }

    void payloadHasOneKeyForEachRow()
    {
        const Streets city;
        const std::unique_ptr<QMimeData> data(city.tree.mimeData({city.at("w1"), city.at("w1", 1)}));
        QCOMPARE(data->formats(), QStringList("application/x-modelkeylist"));
        QCOMPARE(data->data(CityGMLProxyModel::MimeType), keys({city.row("w1")}));
    }

    void payloadStandsInTheOrderOfTheSet()
    {
        const Streets city;
        const QByteArray payload = city.payload({city.at("b2"), city.at("b1"), city.at("w1")});
        QSet<qint64> rows;
        for (const char* const id : {"b2", "b1", "w1"}) {
            rows.insert(city.row(id));
        }
        QCOMPARE(payload.size(), 24);
        QCOMPARE(payload, keys(QList<qint64>(rows.begin(), rows.end())));
    }

    void payloadOfTwoNodesOfOneFeature()
    {
        Streets city;
        auto& nodes = city.tree.nodeMap.at(city.feature("b2"));
        nodes.emplace_back(new tolvik::TreeNodeGML(city.feature("b2"), nullptr));
        const QModelIndex second = city.tree.index(7, 0, static_cast<TreeNode*>(nodes.back().get()));
        QCOMPARE(city.payload({city.at("b2"), second}), keys({city.row("b2")}));
    }

    void payloadOfWhatHasNoRow()
    {
        Streets city;
        QCOMPARE(city.payload({QModelIndex()}), keys({-1}));
        QCOMPARE(city.payload({QModelIndex()}), QByteArray(8, '\xFF'));
    }

    void payloadWithoutSource()
    {
        const Streets city;
        const OpenTree withoutSource;
        const std::unique_ptr<QMimeData> data(withoutSource.mimeData({city.at("b1")}));
        QVERIFY(data != nullptr);
        QCOMPARE(data->formats(), QStringList("application/x-modelkeylist"));
        QCOMPARE(data->data(CityGMLProxyModel::MimeType), QByteArray());
        QDataStream stream(keys({0}));
        QVERIFY(withoutSource.decodeData(stream).isEmpty());
        QVERIFY(!stream.atEnd());
    }

    void payloadIsReadAsIndexesOfTheSource()
    {
        const Streets city;
        QCOMPARE(city.decoded(city.payload({city.at("b2", 1)})), QList<QModelIndex>{city.source("b2")});
        QCOMPARE(
            city.decoded(keys({4, 0, 4})),
            QList<QModelIndex>({city.model.index(4, 0), city.model.index(0, 0), city.model.index(4, 0)}));
    }

    void keysWithoutRowAreSkipped()
    {
        const Streets city;
        QVERIFY(city.decoded(QByteArray()).isEmpty());
        QVERIFY(city.decoded(keys({-1})).isEmpty());
        QVERIFY(city.decoded(keys({city.model.rowCount(), 1000})).isEmpty());
        QCOMPARE(city.decoded(keys({-1, 1, 99})), QList<QModelIndex>{city.model.index(1, 0)});
    }

    void keysAreReadBy32Bits()
    {
        const Streets city;
        QCOMPARE(city.decoded(keys({(qint64(7) << 32) + 2})), QList<QModelIndex>{city.model.index(2, 0)});
    }

    void cutKeyReadsAsRowZero()
    {
        const Streets city;
        QCOMPARE(city.decoded(keys({2, 3}).left(13)),
                 QList<QModelIndex>({city.model.index(2, 0), city.model.index(0, 0)}));
    }

    void rowOfAFeatureThatIsOnTwo()
    {
        // A feature on two rows is known by the later.
        class Repeating : public tolvik::CityGMLModel
        {
        public:
            Repeating() : CityGMLModel(nullptr, nullptr) {}
            void appendAgain(int row)
            {
                beginResetModel();
                append(getFeature(row));
                endResetModel();
            }
        } model;
        std::istringstream stream(village().toStdString());
        model.load(stream);
        OpenTree tree;
        tree.setSourceModel(&model);
        model.appendAgain(2);
        const QByteArray payload = keys({2});
        QDataStream data(payload);
        QCOMPARE(tree.decodeData(data), QList<QModelIndex>{model.index(8, 0)});
    }

    void dropsAreThoseOfTheBase()
    {
        const Streets city;
        QCOMPARE(city.tree.supportedDropActions(), city.model.supportedDropActions());
        QCOMPARE(city.tree.supportedDragActions(), city.model.supportedDragActions());
    }
};

TEST_CLASS(CityGMLProxySelectionTest, Widgets)
#include "citygmlproxyselectiontest.moc"
