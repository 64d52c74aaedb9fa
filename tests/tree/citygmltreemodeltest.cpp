#include "UI/Models/CityGMLModel/CityGMLTreeModel.h"
#include "bldg/BoundarySurfacePropertyType.hxx"
#include "bldg/BuildingType.hxx"
#include "support/CityGMLTreeFixture.h"
#include "support/TestClass.h"

#include <QItemSelectionModel>
#include <QRegularExpression>
#include <QTreeView>
#include <QtTest>

using namespace testsupport;

using tolvik::CityGMLTreeModel;
using tolvik::TreeNodeGML;

namespace {

class OpenTreeModel : public CityGMLTreeModel
{
public:
    using CityGMLTreeModel::computeNodeMap;
    using CityGMLTreeModel::nodeMap;
    using CityGMLTreeModel::rowsInsertedInSourceModel;
    using CityGMLTreeModel::sourceDataChanged;
    using ProxyModel::sourceBusy;
    using QAbstractItemModel::persistentIndexList;
};

/// A list and the tree model over it, watched by the item model tester all the time.
struct Town
{
    explicit Town(const QByteArray& document = village())
    {
        tree.setCheckColumnEnabled(true);
        tree.setSourceModel(&model);
        load(document);
        recorder.clear();
    }

    void load(const QByteArray& document)
    {
        std::istringstream stream(document.toStdString());
        model.load(stream);
    }

    gml::AbstractFeatureType* feature(const char* id) const { return model.getFeature(std::string(id)); }

    template <class T>
    T& feature(const char* id) const
    {
        return dynamic_cast<T&>(*feature(id));
    }

    QModelIndex source(const char* id, int column = 0) const
    {
        return model.index(model.getRow(feature(id)), column);
    }

    QModelIndex at(const char* id, int column = 0) const { return tree.mapFromSource(source(id, column)); }

    /// Puts a feature into the document and into the list.
    void addBuilding(const char* id) { model.addFeature(addMember(*model.cityGML(), makeBuilding(id))); }

    void addWall(const char* building, const char* id)
    {
        model.addFeature(addSurface(feature<bldg::AbstractBuildingType>(building), makeWall(id)));
    }

    QList<QModelIndex> sources(const QList<const char*>& ids) const
    {
        QList<QModelIndex> rows;
        for (const char* const id : ids) {
            rows.append(source(id));
        }
        return rows;
    }

    /// Identifiers in the order on screen, those below a node in brackets behind it; with the states of their
    /// check boxes, if wanted: + checked, - not, ~ partially.
    QString dump(bool states = false, const QModelIndex& parent = QModelIndex()) const
    {
        QStringList parts;
        for (int row = 0; row < tree.rowCount(parent); ++row) {
            const QModelIndex index = tree.index(row, 0, parent);
            QString part = CityTree::idOf(CityGMLTreeModel::getFeature(index));
            if (states) {
                part += "-~+"[index.data(Qt::CheckStateRole).toInt()];
            }
            const QString below = dump(states, index);
            parts.append(below.isEmpty() ? part : part + '(' + below + ')');
        }
        return parts.join(' ');
    }

    tolvik::CityGMLModel model{nullptr, nullptr};
    OpenTreeModel tree;
    QAbstractItemModelTester tester{&tree, QAbstractItemModelTester::FailureReportingMode::Fatal};
    TreeRecorder recorder{&tree};
};

/// Has nodes claimed by identifiers, "b1 w1" for w1 below b1, as \a pairs says at the time of each walk.
void setClaims(Town& town, const QStringList& pairs)
{
    town.tree.setTraverseChildrenVisitor(
        new Claim(town.tree.nodeMap, [&](TreeNodeGML* node, Claim::NodeMap& nodes) {
            for (const QString& pair : pairs) {
                const QStringList ids = pair.split(' ');
                const auto entry = nodes.find(town.feature(qPrintable(ids[1])));
                if (CityTree::idOf(node->feature()) == ids[0] && entry != nodes.end()) {
                    node->children().emplace_back(entry->second.front().get());
                }
            }
        }));
}

QStringList lines(const QString& before, const QString& after, const QString& rest)
{
    return {before + ' ' + rest, after + ' ' + rest};
}

QStringList inserted(const QString& rest)
{
    return lines("rowsAboutToBeInserted", "rowsInserted", rest);
}

QStringList moved(const QString& rest)
{
    return lines("rowsAboutToBeMoved", "rowsMoved", rest);
}

const char boxes[] = "[10 260]";

QString changed(const QString& corners, const char* roles = boxes)
{
    return "dataChanged " + corners + ' ' + roles;
}

} // namespace

class CityGMLTreeModelTest : public QObject
{
    Q_OBJECT

private slots:
    void treeIsThatOfItsBase()
    {
        const Town town;
        QCOMPARE(town.dump(), QString("city(b1(w1(d1 d2) w2) b2)"));
        QCOMPARE(town.at("w1").data().toString(), QString("South"));
        QCOMPARE(town.at("w2", 1).data().toString(), QString("RoofSurface"));
        QVERIFY(!town.at("a1").isValid());
    }

    void insertionIsSignalledAroundTheChange_data() { addInsertionRows(); }

    void insertionIsSignalledAroundTheChange()
    {
        QFETCH(int, level);
        QFETCH(QString, place);
        QFETCH(QString, tree);
        Town town;
        int rowsBefore = 0;
        connect(&town.tree, &QAbstractItemModel::rowsAboutToBeInserted, &town.tree,
                [&](const QModelIndex& parent) { rowsBefore = town.tree.rowCount(parent); });
        addToVillage(town.model, level);
        QCOMPARE(town.recorder.take(), inserted(place));
        QCOMPARE(rowsBefore, 2);
        QCOMPARE(town.dump(), tree);
    }

    void insertedFeatureTakesWhatBelongsToIt()
    {
        Town town;
        bldg::BuildingType house = makeBuilding("b3");
        addSurface(house, makeWall("w3"));
        addSurface(house, makeWall("w4"));
        auto& building = dynamic_cast<bldg::BuildingType&>(*addMember(*town.model.cityGML(), house));
        for (auto& surface : building.boundedBy1()) {
            town.model.addFeature(&surface._BoundarySurface().get());
        }
        QItemSelectionModel selection(&town.tree);
        QTreeView view;
        view.setModel(&town.tree);
        view.expand(town.at("w4"));
        const QPersistentModelIndex wall(town.at("w4", 1));
        selection.select(town.at("w4"), QItemSelectionModel::Select | QItemSelectionModel::Rows);
        selection.setCurrentIndex(town.at("w3"), QItemSelectionModel::NoUpdate);
        const QString city = SignalRecorder::text(town.at("city"));
        town.recorder.clear();

        town.model.addFeature(&building);
        // The walls stand side by side at the top, but the city may stand before, between or behind them.
        const QStringList recorded = town.recorder.take();
        QCOMPARE(recorded.mid(0, 2), inserted(city + " 2 2"));
        QVERIFY(!recorded.filter("rowsMoved").isEmpty());
        QVERIFY(town.dump() == "city(b1(w1(d1 d2) w2) b2 b3(w3 w4))");
        QCOMPARE(wall, QPersistentModelIndex(town.at("w4", 1)));
        QCOMPARE(selection.selectedRows(), QModelIndexList{town.at("w4")});
        QCOMPARE(selection.currentIndex(), town.at("w3"));
        QVERIFY(view.isExpanded(town.at("w4")));
    }

    void otherClaimsMoveWhatIsThere()
    {
        Town town(cityDocument(R"(
  <cityObjectMember><bldg:Building gml:id="b1"/></cityObjectMember>
  <cityObjectMember><bldg:Building gml:id="b2"/></cityObjectMember>
  <cityObjectMember><bldg:Building gml:id="b3"/></cityObjectMember>
  <cityObjectMember><bldg:Building gml:id="b4"/></cityObjectMember>
)"));
        QStringList pairs{"city b1", "city b2", "city b3", "city b4"};
        setClaims(town, pairs);
        QCOMPARE(town.dump(), QString("city(b1 b2 b3 b4)"));

        // Those in front leave: they make way, and the rest stays where it is.
        pairs = QStringList{"city b3", "city b4", "city n1", "b4 b1", "b4 b2"};
        town.recorder.clear();
        town.addBuilding("n1");
        QCOMPARE(town.dump(), QString("city(b3 b4(b1 b2) n1)"));
        QCOMPARE(town.recorder.take(),
                 inserted("0:0 4 4") + moved("0:0 0 1 0:0 5") + moved("0:0 3 4 0/1:0 0"));

        // A new order within one parent, and a parent that is to stand below its child.
        pairs = QStringList{"city n2", "city b4", "city b3", "b4 b2", "b2 n1", "n1 b1"};
        town.addBuilding("n2");
        QCOMPARE(town.dump(), QString("city(n2 b4(b2(n1(b1))) b3)"));
        pairs = QStringList{"city b1", "b1 n1", "n1 b2", "b2 b4", "b4 b3", "b3 n2", "n2 n3"};
        town.addBuilding("n3");
        QCOMPARE(town.dump(), QString("city(b1(n1(b2(b4(b3(n2(n3)))))))"));
    }

    void manyThatComeAreArrangedOnce()
    {
        Town town(cityDocument(R"(
  <cityObjectMember><bldg:Building gml:id="b1"/></cityObjectMember>
  <cityObjectMember><bldg:Building gml:id="b2"/></cityObjectMember>
)"));
        QStringList pairs{"city n3", "city n2", "city b2", "city n4", "n2 n1", "b2 b1"};
        setClaims(town, pairs);
        QCOMPARE(town.dump(), QString("city(b2(b1))"));
        // n1 takes b1 over, and stands below n2, which comes later.
        pairs.last() = "n1 b1";
        QVector<gml::AbstractFeatureType*> added{nullptr, town.feature("b2")};
        for (const char* const id : {"n1", "n2", "n3", "n4"}) {
            added << addMember(*town.model.cityGML(), makeBuilding(id));
        }
        added << added.last();
        // Who looks in between finds no node for those that wait.
        QStringList mapped;
        connect(&town.tree, &QAbstractItemModel::rowsAboutToBeInserted, [&] {
            QStringList present;
            for (const char* const id : {"n1", "n2", "n3", "n4"}) {
                present += town.at(id).isValid() ? id : "-";
            }
            mapped += present.join(' ');
        });
        town.recorder.clear();
        town.model.addFeatures(added);
        QCOMPARE(town.dump(), QString("city(n3 n2(n1(b1)) b2 n4)"));
        QCOMPARE(mapped, QStringList({"- - - -", "- n2 - -", "n1 n2 - -", "n1 n2 n3 -"}));
        QCOMPARE(town.recorder.take(), inserted("0:0 0 0") + inserted("0/0:0 0 0") + inserted("0:0 0 0") +
                                           inserted("0:0 3 3") + moved("0/2:0 0 0 0/1/0:0 0"));
        QVERIFY(!town.model.isAddingMore());
    }

    void whatGoesOrIsResetWhileManyComeIsLeftOut()
    {
        Town town;
        gml::AbstractFeatureType* const gone = addMember(*town.model.cityGML(), makeBuilding("gone"));
        gml::AbstractFeatureType* const stays = addMember(*town.model.cityGML(), makeBuilding("stays"));
        gml::AbstractFeatureType* const last = addMember(*town.model.cityGML(), makeBuilding("last"));
        const auto removal = connect(&town.model, &QAbstractItemModel::rowsInserted, [&] {
            if (town.model.getRow(stays) >= 0 && town.model.getRow(gone) >= 0) {
                town.model.removeFeature(gone);
            }
        });
        town.model.addFeatures({gone, stays, last});
        QCOMPARE(town.dump(), QString("city(b1(w1(d1 d2) w2) b2 stays last)"));
        disconnect(removal);

        town.model.removeFeature(stays);
        town.model.removeFeature(last);
        const auto reset = connect(&town.model, &QAbstractItemModel::rowsInserted, [&] {
            if (town.model.isAddingMore()) {
                town.tree.setSourceModel(&town.model);
            }
        });
        town.model.addFeatures({last, stays});
        QCOMPARE(town.dump(), QString("city(b1(w1(d1 d2) w2) b2 stays last)"));
        disconnect(reset);
    }

    void claimsThatMakeNoTree()
    {
        Town town(cityDocument(R"(
  <cityObjectMember><bldg:Building gml:id="b1"/></cityObjectMember>
  <cityObjectMember><bldg:Building gml:id="b2"/></cityObjectMember>
)"));
        const Fondo::RefPtr<TreeNodeGML> foreign(new TreeNodeGML(town.feature("b1"), nullptr));
        town.tree.setTraverseChildrenVisitor(
            new Claim(town.tree.nodeMap, [&](TreeNodeGML* node, Claim::NodeMap& nodes) {
                // Everything claims everything, itself and nothing included, and more than once.
                for (const auto& entry : nodes) {
                    node->children().emplace_back(entry.second.front().get());
                    node->children().emplace_back(entry.second.front().get());
                }
                node->children().emplace_back();
                node->children().emplace_back(foreign.get());
            }));
        QCOMPARE(town.tree.rowCount(), 1);
        QStringList ids = town.dump().split(QRegularExpression("[() ]"), Qt::SkipEmptyParts);
        ids.sort();
        QCOMPARE(ids, QStringList({"b1", "b2", "city"}));
        town.addBuilding("b3");
        QCOMPARE(town.tree.rowCount(), 1);
        QCOMPARE(town.dump().count('b'), 3);
    }

    void featureOnTwoRowsHasOneNode()
    {
        Town town;
        const TreeNodeGML* const node = town.tree.treeNode(town.feature("b2"));
        town.tree.rowsInsertedInSourceModel(QModelIndex(), town.source("b2").row(), town.source("b2").row());
        QCOMPARE(town.recorder.take(), QStringList());
        QCOMPARE(town.tree.nodeMap.at(town.feature("b2")).size(), std::size_t(1));
        QCOMPARE(town.tree.treeNode(town.feature("b2")), node);

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
        } repeating;
        std::istringstream stream(village().toStdString());
        repeating.load(stream);
        repeating.appendAgain(2);
        town.tree.setSourceModel(&repeating);
        QCOMPARE(town.tree.nodeMap.at(repeating.getFeature(2)).size(), std::size_t(1));
        QCOMPARE(town.dump(), QString("city(b1(w1(d1 d2) w2) b2)"));
        town.tree.setSourceModel(nullptr);
    }

    void removalIsSignalledForTheTrueParent_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("tree");
        QTest::newRow("root") << "city"
                              << "- 0 0"
                              << "";
        QTest::newRow("second level") << "b1"
                                      << "0:0 0 0"
                                      << "city(b2)";
        QTest::newRow("third level") << "w2"
                                     << "0/0:0 1 1"
                                     << "city(b1(w1(d1 d2)) b2)";
        QTest::newRow("fourth level") << "d1"
                                      << "0/0/0:0 0 0"
                                      << "city(b1(w1(d2) w2) b2)";
    }

    void removalIsSignalledForTheTrueParent()
    {
        QFETCH(QString, id);
        QFETCH(QString, line);
        QFETCH(QString, tree);
        Town town;
        town.model.removeFeature(town.feature(qPrintable(id)));
        const QStringList recorded = town.recorder.take();
        QCOMPARE(recorded.first(), "rowsAboutToBeRemoved " + line);
        QCOMPARE(recorded.last(), "rowsRemoved " + line);
        QCOMPARE(recorded[recorded.size() - 2], "removed " + id);
        QCOMPARE(town.dump(), tree);
    }

    void removalKeepsWhatBelongsToOtherFeatures()
    {
        // A wall of the first of five buildings goes while the third is selected, current and expanded.
        const auto surface = [](const char* letter, char id) {
            return QByteArray("<bldg:boundedBy><bldg:WallSurface gml:id='") + letter + id +
                   "'/></bldg:boundedBy>";
        };
        QByteArray members;
        for (const char id : {'1', '2', '3', '4', '5'}) {
            members += QByteArray("<cityObjectMember><bldg:Building gml:id='b") + id + "'>" +
                       surface("v", id) + surface("w", id) + "</bldg:Building></cityObjectMember>";
        }
        Town town(cityDocument(members));
        QTreeView view;
        view.setModel(&town.tree);
        view.expandAll();
        view.collapse(town.at("b2"));
        view.setCurrentIndex(town.at("b3"));
        const QPersistentModelIndex third(town.at("b3"));
        const QPersistentModelIndex wall(town.at("w1"));
        town.model.removeFeature(town.feature("v1"));
        QCOMPARE(view.currentIndex(), town.at("b3"));
        QCOMPARE(view.selectionModel()->selectedRows(), QModelIndexList{town.at("b3")});
        QVERIFY(view.isExpanded(town.at("b3")) && !view.isExpanded(town.at("b2")));
        QCOMPARE(QModelIndex(third), town.at("b3"));
        QCOMPARE(QModelIndex(wall), town.at("w1"));
        QCOMPARE(wall.row(), 0);
    }

    void renaming()
    {
        Town town;
        QVERIFY(town.model.setData(town.source("d2"), "Portal"));
        QCOMPARE(town.recorder.take(), QStringList(changed("0/0/0/1:0 0/0/0/1:1", "[]")));
        QCOMPARE(town.at("d2").data().toString(), QString("Portal"));
        QVERIFY(town.tree.setData(town.at("d2"), "Gate"));
        QCOMPARE(town.at("d2").data().toString(), QString("Gate"));
    }

    void lostNameShowsTheType()
    {
        Town town;
        town.feature("b2")->name().clear();
        town.model.updateData(town.source("b2"));
        QCOMPARE(town.at("b2").data().toString(), QString("Building"));
    }

    void severalRowsAreRenamed()
    {
        Town town;
        for (const char* const id : {"b1", "d1"}) {
            town.feature(id)->name().front() = gml::CodeType("new");
        }
        town.tree.sourceDataChanged(town.source("b1"), town.source("d2"));
        QCOMPARE(town.recorder.take(),
                 QStringList({changed("0/0:0 0/0:1", "[]"), changed("0/0/0:0 0/0/0:1", "[]"),
                              changed("0/0/0/0:0 0/0/0/1:1", "[]")}));
        QCOMPARE(town.at("d1").data().toString(), QString("new"));
    }

    void hiddenRowsAreAnnouncedInRanges()
    {
        Town town;
        town.model.hide(town.sources({"b1", "w1", "w2", "d1", "d2", "a1"}));
        // The rows of the list have each been announced, but here what belongs together comes at once, and
        // then what stands above.
        QCOMPARE(town.recorder.take(), QStringList({changed("0/0:0 0/0:1"), changed("0/0/0:0 0/0/1:1"),
                                                    changed("0/0/0/0:0 0/0/0/1:1"), changed("0:0 0:1")}));
        QCOMPARE(town.dump(true), QString("city~(b1-(w1-(d1- d2-) w2-) b2+)"));
        town.model.hide(town.sources({"b1", "w1", "w2", "d1", "d2"}));
        QCOMPARE(town.recorder.take().size(), 3); // each row again, as the list has it
        town.model.showAll();
        QCOMPARE(town.recorder.lines().size(), 4);
        QCOMPARE(town.dump(true), QString("city+(b1+(w1+(d1+ d2+) w2+) b2+)"));
    }

    void muchThatIsAnnouncedMakesViewsLayOutOnce()
    {
        Town town(::town(100));
        town.model.hideAll();
        QCOMPARE(town.recorder.take(), QStringList({"layoutAboutToBeChanged", "layoutChanged",
                                                    changed("0:0 0:1"), changed("0/0:0 0/99:1")}));
        town.model.show(town.source("b1"));
        QCOMPARE(town.recorder.take(), QStringList({changed("0/0:0 0/0:1"), changed("0:0 0:1")}));
    }

    void stateIsThereBeforeItIsAnnounced()
    {
        Town town;
        QStringList states;
        connect(&town.model, &QAbstractItemModel::dataChanged, &town.tree,
                [&] { states.append(town.dump(true)); });
        town.model.hide(town.sources({"d1", "d2"}));
        QCOMPARE(states,
                 QStringList({"city~(b1~(w1~(d1- d2+) w2+) b2+)", "city~(b1~(w1~(d1- d2-) w2+) b2+)"}));
    }

    void renameOfAHiddenRowIsAnnouncedAtOnce()
    {
        Town town;
        town.model.hide(town.source("b2"));
        town.recorder.clear();
        QVERIFY(town.model.setData(town.source("b2"), "Chapel"));
        QCOMPARE(town.recorder.take(), QStringList(changed("0/1:0 0/1:1", "[]")));
    }

    void changeThatIsNotKnownIsAnnounced()
    {
        Town town;
        town.model.updateData(town.source("b2"));
        QCOMPARE(town.recorder.take(), QStringList(changed("0/1:0 0/1:1", "[]")));
        // Of a hidden row it may be part of a change of visibility, which would follow.
        town.model.hide(town.source("b2"));
        town.recorder.clear();
        town.model.updateData(town.source("b2"));
        town.model.updateData(town.source("b2"));
        QCOMPARE(town.recorder.take(), QStringList());
        QCoreApplication::processEvents();
        QCOMPARE(town.recorder.take(), QStringList(changed("0/1:0 0/1:1", "[]")));
        QCoreApplication::processEvents();
        QCOMPARE(town.recorder.take(), QStringList());
    }

    void whatIsPendingEndsWithItsNode()
    {
        Town town;
        town.model.hide(town.sources({"d1", "b2"}));
        town.recorder.clear();
        town.model.updateData(town.source("d1"));
        town.model.updateData(town.source("b2"));
        town.model.removeFeature(town.feature("w1"));
        town.recorder.clear();
        QCoreApplication::processEvents();
        QCOMPARE(town.recorder.take(), QStringList(changed("0/1:0 0/1:1", "[]")));
        town.model.updateData(town.source("b2"));
        town.model.dataSetChanged();
        town.recorder.clear();
        QCoreApplication::processEvents();
        QCOMPARE(town.recorder.take(), QStringList());
    }

    void nothingIsAnnouncedWhileTheSourceIsBusy()
    {
        Town town;
        town.model.hide(town.source("b2"));
        town.model.updateData(town.source("b2"));
        town.recorder.clear();
        town.tree.sourceBusy = true;
        QCoreApplication::processEvents();
        emit town.model.visibilityChanged(QList<QModelIndex>{town.source("b2")});
        town.model.hide(town.source("w2"));
        QCOMPARE(town.recorder.take(), QStringList());
        town.tree.sourceBusy = false;
        QCOMPARE(town.dump(true), QString("city~(b1+(w1+(d1+ d2+) w2+) b2-)"));
    }

    void boxesOfWhatStandsAboveFollow()
    {
        Town town;
        town.model.hide(town.source("d1"));
        QCOMPARE(town.recorder.take(),
                 QStringList({changed("0/0/0/0:0 0/0/0/0:1"), changed("0/0/0:0 0/0/0:1"),
                              changed("0/0:0 0/0:1"), changed("0:0 0:1")}));
        town.model.hide(town.source("d2"));
        QCOMPARE(town.recorder.take(), QStringList(changed("0/0/0/1:0 0/0/0/1:1"))); // nothing new above
        town.model.removeFeature(town.feature("w1"));
        QCOMPARE(town.recorder.take().mid(5), QStringList({changed("0/0:0 0/0:1"), changed("0:0 0:1")}));
        QCOMPARE(town.dump(true), QString("city+(b1+(w2+) b2+)"));
        town.model.hideAll();
        town.recorder.clear();
        town.addWall("b2", "w3");
        QCOMPARE(town.recorder.take(),
                 inserted("0/1:0 0 0") + QStringList({changed("0/1:0 0/1:1"), changed("0:0 0:1")}));
        QCOMPARE(town.dump(true), QString("city~(b1-(w2-) b2~(w3+))"));
    }

    void withoutBoxesNothingIsAnnouncedAbove()
    {
        Town town;
        town.tree.setCheckColumnEnabled(false);
        town.recorder.clear();
        town.model.hide(town.source("d1"));
        QCOMPARE(town.recorder.take(), QStringList(changed("0/0/0/0:0 0/0/0/0:1")));
    }

    void checkingHidesAndShowsTheBranchAtOnce()
    {
        Town town;
        SignalRecorder list(&town.model);
        list.watch(&town.model, QOverload<const QList<QModelIndex>&>::of(&tolvik::Model::visibilityChanged),
                   "hidden");
        QVERIFY(town.tree.setData(town.at("w1"), Qt::Unchecked, Qt::CheckStateRole));
        QCOMPARE(list.take().filter("hidden").size(), 1);
        QCOMPARE(town.dump(true), QString("city~(b1~(w1-(d1- d2-) w2+) b2+)"));
        QVERIFY(town.tree.setData(town.at("b1"), Qt::Checked, Qt::CheckStateRole));
        const QStringList shown = list.take();
        QCOMPARE(shown.size(), 4); // three rows, and their list
        QCOMPARE(shown.last(), QString("hidden [3:0 4:0 5:0]"));
        QCOMPARE(town.dump(true), QString("city+(b1+(w1+(d1+ d2+) w2+) b2+)"));
        QVERIFY(town.tree.setData(town.at("b1"), Qt::Checked, Qt::CheckStateRole));
        QCOMPARE(list.take(), QStringList());

        QVERIFY(!town.tree.setData(town.at("b1", 1), Qt::Unchecked, Qt::CheckStateRole));
        QVERIFY(!town.tree.setData(QModelIndex(), Qt::Unchecked, Qt::CheckStateRole));
        town.tree.setCheckColumnEnabled(false);
        QVERIFY(!town.tree.setData(town.at("b1"), Qt::Unchecked, Qt::CheckStateRole));
        QCOMPARE(list.take(), QStringList());
    }

    void resetOfTheSourceEnclosesThatOfTheTree()
    {
        Town town;
        connect(&town.model, &QAbstractItemModel::modelAboutToBeReset, &town.tree,
                [&] { town.recorder.add("source begins"); });
        connect(&town.model, &QAbstractItemModel::modelReset, &town.tree,
                [&] { town.recorder.add("source ends"); });
        const QPersistentModelIndex wall(town.at("w1"));
        const QModelIndex plain = town.at("w1");
        bool wasShown = false;
        int rowsBetween = -1;
        connect(&town.tree, &QAbstractItemModel::modelAboutToBeReset, &town.tree,
                [&] { wasShown = plain.data().toString() == "South"; });
        connect(&town.model, &QAbstractItemModel::modelReset, &town.model,
                [&] { rowsBetween = town.tree.rowCount(); });
        connect(&town.model, &QAbstractItemModel::modelAboutToBeReset, &town.tree, [&] {
            rowsBetween = town.tree.rowCount();
            QVERIFY(!wall.isValid());
        });
        town.load(village());
        QVERIFY(wasShown);
        QCOMPARE(rowsBetween, 1);
        QCOMPARE(town.recorder.take(),
                 QStringList({"modelAboutToBeReset", "source begins", "modelReset", "source ends"}));
        QCOMPARE(town.dump(), QString("city(b1(w1(d1 d2) w2) b2)"));
    }

    void failedLoads()
    {
        Town town;
        const ModelLog log;
        town.load("<CityModel");
        QCOMPARE(town.recorder.take(), QStringList({"modelAboutToBeReset", "modelReset"}));
        QCOMPARE(town.dump(), QString("city(b1(w1(d1 d2) w2) b2)"));
        town.model.load(QString("/no such file"));
        QCOMPARE(town.recorder.take(), QStringList({"modelAboutToBeReset", "modelReset"}));
        QCOMPARE(town.tree.rowCount(), 0);
        town.model.dataSetChanged();
        QCOMPARE(town.dump(), QString("city(b1(w1(d1 d2) w2) b2)"));
    }

    void sourceThatComesAndGoes()
    {
        tolvik::CityGMLModel other(nullptr, nullptr);
        Town town;
        town.tree.setSourceModel(&other);
        QCOMPARE(town.tree.rowCount(), 0);
        town.tree.setSourceModel(&town.model);
        QCOMPARE(town.dump(), QString("city(b1(w1(d1 d2) w2) b2)"));
        town.tree.setSourceModel(nullptr);
        QCOMPARE(town.tree.rowCount(), 0);
        QVERIFY(town.tree.nodeMap.empty());
        {
            tolvik::CityGMLModel brief(nullptr, nullptr);
            std::istringstream stream(village().toStdString());
            brief.load(stream);
            town.tree.setSourceModel(&brief);
            QCOMPARE(town.tree.rowCount(), 1);
            brief.updateData(brief.index(0, 0));
        }
        QCOMPARE(town.tree.rowCount(), 0);
        town.tree.resetModel();
        QCoreApplication::processEvents();
    }

    void sourceIsLostDuringItsReset()
    {
        Town town;
        connect(&town.model, &QAbstractItemModel::modelAboutToBeReset, &town.tree,
                [&] { town.tree.setSourceModel(nullptr); });
        town.model.dataSetChanged();
        QCOMPARE(town.tree.rowCount(), 0);
        QCOMPARE(town.recorder.lines().last(), QString("modelReset"));
    }

    void treeStandsWhileItIsWalkedAnew()
    {
        Town town;
        QStringList seen;
        town.tree.setTraverseChildrenVisitor(
            new Claim(town.tree.nodeMap, [&](TreeNodeGML* node, Claim::NodeMap& nodes) {
                if (node->feature() == town.feature("b2")) {
                    seen.append(town.dump());
                }
                if (node->feature() == town.feature("b1")) {
                    node->children().emplace_back(nodes.at(town.feature("w1")).front().get());
                }
            }));
        const QString before = town.dump();
        seen.clear();
        town.addBuilding("b3");
        QCOMPARE(seen, QStringList(before));
    }
};

TEST_CLASS(CityGMLTreeModelTest, Widgets)
#include "citygmltreemodeltest.moc"
