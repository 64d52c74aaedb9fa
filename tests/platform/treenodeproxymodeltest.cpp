#include "support/SignalRecorder.h"
#include "support/TestClass.h"
#include "support/TestTree.h"

#include <memory>
#include <QAbstractItemModelTester>
#include <QAction>
#include <QSignalSpy>
#include <QStringListModel>
#include <QtTest>

using namespace testsupport;
using tolvik::TreeNode;

namespace {

constexpr auto selectRow = QItemSelectionModel::Select | QItemSelectionModel::Rows;
constexpr auto deselectRow = QItemSelectionModel::Deselect | QItemSelectionModel::Rows;
constexpr auto clickRow = QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;

/// city(house(door window) street) park, and rows in the order city, house, street, door, window, park.
struct Fixture
{
    Fixture()
    {
        TestItem* const city = model->addItem("city", nullptr);
        TestItem* const house = model->addItem("house", city);
        model->addItem("street", city);
        model->addItem("door", house);
        model->addItem("window", house);
        model->addItem("park", nullptr);
        tree.setSourceModel(model.get());
        selection = std::make_unique<QItemSelectionModel>(&tree);
        tree.setSelectionModel(selection.get());
    }

    int state(const QString& name) const { return tree.data(tree.find(name), Qt::CheckStateRole).toInt(); }
    void hide(const QString& name) { model->hide(tree.mapToSource(tree.find(name))); }

    void select(const QString& name, QItemSelectionModel::SelectionFlags flags)
    {
        selection->select(tree.find(name), flags);
    }

    QString selected() const
    {
        QStringList names = TestTree::dump(selection->selection()).split(' ', Qt::SkipEmptyParts);
        names.sort();
        return names.join(' ');
    }

    std::unique_ptr<TestModel> model = std::make_unique<TestModel>();
    TestTree tree;
    QAbstractItemModelTester tester{&tree, QAbstractItemModelTester::FailureReportingMode::Fatal};
    std::unique_ptr<QItemSelectionModel> selection;
};

} // namespace

class TreeNodeProxyModelTest : public QObject
{
    Q_OBJECT

private slots:
    void structure()
    {
        Fixture f;
        QCOMPARE(f.tree.dump(), QString("city(house(door window) street) park"));
        QCOMPARE(f.tree.rootNodeSize(), 2);
        QCOMPARE(f.tree.rowCount(), 2);
        QCOMPARE(f.tree.columnCount(), 2);
        const QModelIndex house = f.tree.find("house");
        QCOMPARE(f.tree.parent(house), f.tree.find("city"));
        QCOMPARE(f.tree.parent(f.tree.index(1, 1, house)), house);
        QVERIFY(!f.tree.parent(f.tree.find("park")).isValid());
        QVERIFY(f.tree.hasChildren(house));
        QVERIFY(!f.tree.hasChildren(f.tree.find("street")));
        QVERIFY(f.tree.hasChildren());
        QCOMPARE(f.tree.rowCount(house.siblingAtColumn(1)), 0);
        QVERIFY(!f.tree.hasChildren(house.siblingAtColumn(1)));
    }

    void indexOutsideTheTree()
    {
        const Fixture f;
        const QModelIndex house = f.tree.find("house");
        QVERIFY(!f.tree.index(2, 0).isValid());
        QVERIFY(!f.tree.index(-1, 0).isValid());
        QVERIFY(!f.tree.index(0, 2).isValid());
        QVERIFY(!f.tree.index(0, -1).isValid());
        QVERIFY(!f.tree.index(2, 0, house).isValid());
        QVERIFY(!f.tree.index(0, 0, house.siblingAtColumn(1)).isValid());
    }

    void nodesAndIndexes()
    {
        Fixture f;
        TreeNode* const city = f.tree.rootNode(0);
        QCOMPARE(TestTree::treeNode(f.tree.index(0, 1)), city);
        QVERIFY(TestTree::treeNode(QModelIndex()) == nullptr);
        QVERIFY(f.tree.rootNode(2) == nullptr);
        QVERIFY(f.tree.rootNode(-1) == nullptr);
        // The node is that of the index itself, and row and column are taken as they are.
        const QModelIndex index = f.tree.index(7, 1, city);
        QCOMPARE(index.row(), 7);
        QCOMPARE(index.column(), 1);
        QCOMPARE(TestTree::treeNode(index), city);
    }

    void flags()
    {
        Fixture f;
        const QModelIndex house = f.tree.find("house");
        const Qt::ItemFlags plain = Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled;
        QCOMPARE(f.tree.flags(house), plain);
        QCOMPARE(f.tree.flags(QModelIndex()), Qt::ItemFlags(Qt::NoItemFlags));
        f.tree.setCheckColumnEnabled(true);
        QCOMPARE(f.tree.flags(house), plain | Qt::ItemIsUserCheckable);
        QCOMPARE(f.tree.flags(house.siblingAtColumn(1)), plain);
        f.model->disabledNames = QStringList{"house"};
        QVERIFY(f.tree.isDisabled(TestTree::treeNode(house)));
        QCOMPARE(f.tree.flags(house), Qt::ItemFlags(Qt::NoItemFlags));
        QCOMPARE(f.tree.flags(f.tree.find("door")), plain | Qt::ItemIsUserCheckable);
    }

    void settingASourceResetsOnce()
    {
        TestModel model({"a"});
        TestTree tree;
        SignalRecorder recorder(&tree);
        tree.setSourceModel(&model);
        QCOMPARE(recorder.take(), QStringList({"modelAboutToBeReset", "modelReset"}));
        QCOMPARE(tree.dump(), QString("a"));
        QVERIFY(!tree.sourceBusy);
    }

    void settingTheSameSourceRebuildsAndConnectsOnce()
    {
        Fixture f;
        f.tree.setSourceModel(f.model.get());
        f.tree.calls.clear();
        SignalRecorder recorder(&f.tree);
        f.tree.setSourceModel(f.model.get());
        QCOMPARE(f.tree.calls, QStringList({"computeNodeMap"}));
        QCOMPARE(recorder.take(), QStringList({"modelAboutToBeReset", "modelReset"}));
        f.model->setData(f.model->index(5, 0), "garden");
        QCOMPARE(recorder.take(), QStringList({"dataChanged 1:0 1:0 []"}));
    }

    void formerSourceIsNotFollowed()
    {
        Fixture f;
        TestModel other({"x"});
        f.tree.setSourceModel(&other);
        QCOMPARE(f.tree.dump(), QString("x"));
        f.tree.setCheckColumnEnabled(true);
        SignalRecorder recorder(&f.tree);
        f.model->setData(f.model->index(5, 0), "garden");
        f.model->hide(f.model->index(0, 0));
        f.model->replaceAll({"y"});
        f.model.reset();
        QCOMPARE(recorder.take(), QStringList());
        QCOMPARE(f.tree.dump(), QString("x"));
    }

    void noSourceIsAnEmptyTree()
    {
        Fixture f;
        const QPersistentModelIndex house = f.tree.find("house");
        SignalRecorder recorder(&f.tree);
        f.tree.setSourceModel(nullptr);
        QCOMPARE(recorder.take(), QStringList({"modelAboutToBeReset", "modelReset"}));
        QCOMPARE(f.tree.rowCount(), 0);
        QVERIFY(!house.isValid());
        QVERIFY(f.tree.model() == nullptr);
        QVERIFY(!f.tree.sourceBusy);
        f.tree.setSourceModel(f.model.get());
        QCOMPARE(f.tree.rowCount(), 2);
    }

    void sourceThatDiesFirstLeavesAnEmptyTree()
    {
        Fixture f;
        const QPersistentModelIndex house = f.tree.find("house");
        f.select("door", selectRow);
        SignalRecorder recorder(&f.tree);
        f.model.reset();
        QCOMPARE(recorder.take(), QStringList({"modelAboutToBeReset", "modelReset"}));
        QCOMPARE(f.tree.rowCount(), 0);
        QVERIFY(!house.isValid());
        QVERIFY(!f.selection->hasSelection());
        QVERIFY(f.tree.model() == nullptr);
        QVERIFY(!f.tree.sourceBusy);
        TestModel other({"x"});
        f.tree.setSourceModel(&other);
        QCOMPARE(f.tree.dump(), QString("x"));
    }

    void sourceIsBusyDuringItsReset()
    {
        Fixture f;
        f.tree.setCheckColumnEnabled(true);
        const QModelIndex city = f.tree.index(0, 0);
        QStringList seen;
        const auto look = [&](const QString& when) {
            return [&, when] {
                seen.append(
                    QStringLiteral("%1: %2 %3 %4")
                        .arg(when, f.tree.sourceBusy ? "busy" : "free",
                             f.tree.data(f.tree.index(0, 0)).toString(),
                             f.tree.mapToSource(f.tree.index(0, 0)).isValid() ? "mapped" : "unmapped"));
            };
        };
        connect(f.model.get(), &QAbstractItemModel::modelAboutToBeReset, this,
                look("source about to be reset"));
        connect(&f.tree, &QAbstractItemModel::modelAboutToBeReset, this, look("tree about to be reset"));
        connect(&f.tree, &QAbstractItemModel::modelReset, this, look("tree reset"));
        connect(f.model.get(), &QAbstractItemModel::modelAboutToBeReset, this, [&] {
            QCOMPARE(f.tree.flags(city), Qt::ItemFlags(Qt::NoItemFlags));
            QVERIFY(!f.tree.setData(city, Qt::Unchecked, Qt::CheckStateRole));
        });
        f.model->replaceAll({"new"});
        QCOMPARE(seen,
                 QStringList({"source about to be reset: busy  unmapped",
                              "tree about to be reset: busy  unmapped", "tree reset: free new mapped"}));
        QVERIFY(!f.tree.sourceBusy);
    }

    void ownResetDuringTheSourcesResetLeavesTheSourceBusy()
    {
        Fixture f;
        bool wasBusy = false;
        connect(f.model.get(), &QAbstractItemModel::modelAboutToBeReset, this, [&] {
            f.tree.computeNodeMap();
            wasBusy = f.tree.sourceBusy;
        });
        f.model->replaceAll({"new"});
        QVERIFY(wasBusy);
        QVERIFY(!f.tree.sourceBusy);
        QCOMPARE(f.tree.dump(), QString("new"));
    }

    void newOrderOfTheSourceRebuilds()
    {
        TestModel model({"a", "b", "c"});
        TestTree tree(&model);
        const QAbstractItemModelTester tester(&tree, QAbstractItemModelTester::FailureReportingMode::Fatal);
        bool wasBusy = false;
        connect(&model, &QAbstractItemModel::layoutAboutToBeChanged, this,
                [&] { wasBusy = tree.sourceBusy; });
        model.reverse();
        QVERIFY(wasBusy);
        QVERIFY(!tree.sourceBusy);
        QCOMPARE(tree.dump(), QString("c b a"));
    }

    void rowsOfTheSourceComeAndGo()
    {
        Fixture f;
        SignalRecorder recorder(&f.tree);
        f.model->addItem("lift", f.model->item(1));
        QCOMPARE(recorder.take(), QStringList({"rowsAboutToBeInserted 0/0:0 2 2", "rowsInserted 0/0:0 2 2"}));
        f.model->removeItem(3);
        QCOMPARE(recorder.take(), QStringList({"rowsAboutToBeRemoved 0/0:0 0 0", "rowsRemoved 0/0:0 0 0"}));
        QCOMPARE(f.tree.dump(), QString("city(house(window lift) street) park"));
    }

    void selectionToSourceIsSortedAndJoined()
    {
        Fixture f;
        f.tree.shownTwice = {f.model->item(3)};
        f.tree.computeNodeMap();
        const QModelIndex house = f.tree.find("house");
        QItemSelection selection(f.tree.index(0, 0, house),
                                 f.tree.index(1, 1, house)); // door, window: rows 3 and 4
        selection.append(QItemSelectionRange(f.tree.index(2, 0), f.tree.index(2, 1))); // door again
        selection.append(QItemSelectionRange(f.tree.find("street"), f.tree.find("street", 1)));
        selection.append(QItemSelectionRange(f.tree.find("city"), f.tree.find("city", 1)));
        const QItemSelection rows = f.tree.mapSelectionToSource(selection);
        QCOMPARE(rows.size(), 2);
        QCOMPARE(rows[0], QItemSelectionRange(f.model->index(0, 0), f.model->index(0, 1)));
        QCOMPARE(rows[1], QItemSelectionRange(f.model->index(2, 0), f.model->index(4, 1)));
    }

    void selectionToSourceKeepsColumns()
    {
        Fixture f;
        QItemSelection selection(f.tree.find("house", 1), f.tree.find("house", 1));
        selection.append(QItemSelectionRange(f.tree.find("street")));
        const QItemSelection rows = f.tree.mapSelectionToSource(selection);
        QCOMPARE(rows.size(), 2);
        QCOMPARE(rows[0], QItemSelectionRange(f.model->index(1, 1)));
        QCOMPARE(rows[1], QItemSelectionRange(f.model->index(2, 0)));
    }

    void selectionFromSourceReachesAllNodes()
    {
        Fixture f;
        f.tree.shownTwice = {f.model->item(3)};
        f.tree.computeNodeMap();
        const QItemSelection nodes =
            f.tree.mapSelectionFromSource(QItemSelection(f.model->index(2, 0), f.model->index(5, 1)));
        QCOMPARE(TestTree::dump(nodes), QString("street door door window park"));
        QCOMPARE(nodes[1], QItemSelectionRange(f.tree.find("door"), f.tree.find("door", 1)));
        QCOMPARE(nodes[2], QItemSelectionRange(f.tree.index(2, 0), f.tree.index(2, 1)));
    }

    void selectionFromSourceJoinsSiblings()
    {
        Fixture f;
        const QItemSelection nodes =
            f.tree.mapSelectionFromSource(QItemSelection(f.model->index(1, 0), f.model->index(2, 0)));
        QCOMPARE(nodes.size(), 1);
        QCOMPARE(nodes[0], QItemSelectionRange(f.tree.find("house"), f.tree.find("street")));
    }

    void selectionsOfNothing()
    {
        Fixture f;
        QVERIFY(f.tree.mapSelectionToSource(QItemSelection()).isEmpty());
        QVERIFY(f.tree.mapSelectionFromSource(QItemSelection()).isEmpty());
        f.tree.sourceBusy = true;
        QVERIFY(
            f.tree.mapSelectionToSource(QItemSelection(f.tree.index(0, 0), f.tree.index(1, 1))).isEmpty());
        QVERIFY(f.tree.mapSelectionFromSource(QItemSelection(f.model->index(0, 0), f.model->index(2, 0)))
                    .isEmpty());
        f.tree.sourceBusy = false;
    }

    void mappingThereAndBack()
    {
        Fixture f;
        const QItemSelection all(f.model->index(0, 0), f.model->index(5, 1));
        const QItemSelection back = f.tree.mapSelectionToSource(f.tree.mapSelectionFromSource(all));
        QCOMPARE(back, all);
    }

    void toggleCountsEachRowOnce()
    {
        Fixture f;
        f.tree.shownTwice = {f.model->item(3)};
        f.tree.computeNodeMap();
        f.hide("park");
        f.model->calls.clear();
        f.tree.toggleObjectVisibleField({f.tree.find("door"), f.tree.find("door", 1), f.tree.index(2, 0),
                                         f.tree.find("park", 1), QModelIndex()});
        QCOMPARE(f.model->calls, QStringList({"hide [3]", "show [5]"}));
    }

    void changeLeavesRowsAloneThatAreSoAlready()
    {
        Fixture f;
        f.hide("door");
        f.model->calls.clear();
        f.tree.changeObjectVisibleField(f.tree.find({"park", "door", "city"}), false);
        QCOMPARE(f.model->calls, QStringList({"hide [5 0]"}));
        f.tree.changeObjectVisibleField(f.tree.find({"park", "door", "city"}), false);
        QCOMPARE(f.model->calls.size(), 1);
        f.tree.changeObjectVisibleField(f.tree.find({"door", "house", "park"}), true);
        QCOMPARE(f.model->calls.last(), QString("show [3 5]"));
    }

    void changeCountsEachRowOnce()
    {
        Fixture f;
        f.tree.shownTwice = {f.model->item(3)};
        f.tree.computeNodeMap();
        f.tree.changeObjectVisibleField(
            {f.tree.find("door", 1), f.tree.find("door"), f.tree.index(2, 0), QModelIndex()}, false);
        QCOMPARE(f.model->calls, QStringList({"hide [3]"}));
    }

    void visibilityWithoutADocument()
    {
        TestTree tree;
        tree.toggleObjectVisibleField({QModelIndex()});
        tree.changeObjectVisibleField({QModelIndex()}, false);
        QVERIFY(!tree.setData(QModelIndex(), Qt::Checked, Qt::CheckStateRole));
    }

    void checkStateComparesWithWhatIsBelow()
    {
        Fixture f;
        QVERIFY(!f.tree.data(f.tree.find("city"), Qt::CheckStateRole).isValid());
        f.tree.setCheckColumnEnabled(true);
        QCOMPARE(f.state("city"), int(Qt::Checked));
        f.hide("door");
        QCOMPARE(f.state("door"), int(Qt::Unchecked));
        QCOMPARE(f.state("house"), int(Qt::PartiallyChecked));
        QCOMPARE(f.state("city"), int(Qt::PartiallyChecked));
        QCOMPARE(f.state("park"), int(Qt::Checked));
        f.hide("house");
        f.hide("window");
        QCOMPARE(f.state("house"), int(Qt::Unchecked));
        QCOMPARE(f.state("city"), int(Qt::PartiallyChecked));
    }

    void nodeWithoutARowTakesTheStateOfItsChildren()
    {
        Fixture f;
        f.tree.setCheckColumnEnabled(true);
        TestItem nowhere{"group", nullptr};
        const Fondo::RefPtr<TestNode> group = new TestNode(&nowhere);
        group->setChildNumber(2);
        const QModelIndex index = f.tree.index(2, 0, group.get());
        QCOMPARE(f.tree.recursiveCheckState(index).toInt(), int(Qt::Unchecked));
        group->children() = f.tree.rootNode(0)->children();
        QCOMPARE(f.tree.recursiveCheckState(index).toInt(), int(Qt::Checked));
        f.hide("street");
        QCOMPARE(f.tree.recursiveCheckState(index).toInt(), int(Qt::PartiallyChecked));
        QVERIFY(!f.tree.recursiveCheckState(QModelIndex()).isValid());
    }

    void checkingHidesAndShowsOneRow()
    {
        Fixture f;
        f.tree.setCheckColumnEnabled(true);
        const QModelIndex house = f.tree.find("house");
        QVERIFY(f.tree.setData(house, Qt::Unchecked, Qt::CheckStateRole));
        QCOMPARE(f.model->visibleRows(), QString("+-++++"));
        QVERIFY(f.tree.setData(house, Qt::Checked, Qt::CheckStateRole));
        QCOMPARE(f.model->visibleRows(), QString("++++++"));
        QCOMPARE(f.model->calls, QStringList({"hide [1]", "show [1]"}));
        // A box that is checked already is not an error.
        QVERIFY(f.tree.setData(house, Qt::PartiallyChecked, Qt::CheckStateRole));
        QCOMPARE(f.model->calls.size(), 2);
    }

    void checkingWithRecursiveSelectionGoesBelow()
    {
        Fixture f;
        f.tree.setCheckColumnEnabled(true);
        f.tree.setRecursiveSelection(true);
        f.hide("door");
        f.model->calls.clear();
        QVERIFY(f.tree.setData(f.tree.find("city"), Qt::Unchecked, Qt::CheckStateRole));
        QCOMPARE(f.model->calls, QStringList({"hide [0 1 4 2]"}));
        QCOMPARE(f.model->visibleRows(), QString("-----+"));
        QVERIFY(f.tree.setData(f.tree.find("house"), Qt::Checked, Qt::CheckStateRole));
        QCOMPARE(f.model->visibleRows(), QString("-+-+++"));
        QVERIFY(!f.selection->hasSelection());
    }

    void checkingNeedsTheBox()
    {
        Fixture f;
        const QModelIndex house = f.tree.find("house");
        QVERIFY(!f.tree.setData(house, Qt::Unchecked, Qt::CheckStateRole));
        f.tree.setCheckColumnEnabled(true);
        QVERIFY(!f.tree.setData(house.siblingAtColumn(1), Qt::Unchecked, Qt::CheckStateRole));
        QVERIFY(!f.tree.setData(QModelIndex(), Qt::Unchecked, Qt::CheckStateRole));
        QVERIFY(f.model->calls.isEmpty());
    }

    void otherDataGoesToTheSource()
    {
        Fixture f;
        QVERIFY(f.tree.setData(f.tree.find("door"), "gate"));
        QCOMPARE(f.model->item(3)->name, QString("gate"));
        QVERIFY(!f.tree.setData(f.tree.find("gate"), "red", Qt::ForegroundRole));
    }

    void switchingTheBoxesKeepsTheTree()
    {
        Fixture f;
        SignalRecorder recorder(&f.tree);
        const QPersistentModelIndex door = f.tree.find("door");
        QVERIFY(!f.tree.isCheckColumnEnabled());
        f.tree.setCheckColumnEnabled(true);
        QVERIFY(f.tree.isCheckColumnEnabled());
        f.tree.setCheckColumnEnabled(true);
        QCOMPARE(recorder.take(), QStringList({"layoutAboutToBeChanged", "layoutChanged"}));
        QCOMPARE(QModelIndex(door), f.tree.find("door"));
        f.tree.setCheckColumnEnabled(false);
        QCOMPARE(recorder.take(), QStringList({"layoutAboutToBeChanged", "layoutChanged"}));
    }

    void newVisibilityIsReportedUpToTheTop()
    {
        Fixture f;
        f.tree.shownTwice = {f.model->item(3)};
        f.tree.computeNodeMap();
        f.tree.setCheckColumnEnabled(true);
        SignalRecorder recorder(&f.tree);
        f.hide("door");
        QCOMPARE(recorder.take(), QStringList({"dataChanged 0/0/0:0 0/0/0:0 [10]", "dataChanged 2:0 2:0 [10]",
                                               "dataChanged 0/0:0 0/0:0 [10]", "dataChanged 0:0 0:0 [10]"}));
        f.model->hide(QList<QModelIndex>{f.model->index(1, 1), f.model->index(4, 0), f.model->index(5, 0)});
        QCOMPARE(recorder.take(),
                 QStringList({"dataChanged 0/0:0 0/0:0 [10]", "dataChanged 0/0/1:0 0/0/1:0 [10]",
                              "dataChanged 1:0 1:0 [10]", "dataChanged 0:0 0:0 [10]"}));
        f.model->show(QList<QModelIndex>());
        f.model->hide(QModelIndex());
        QCOMPARE(recorder.take(), QStringList());
    }

    void newVisibilityIsNotReportedWithoutBoxes()
    {
        Fixture f;
        SignalRecorder recorder(&f.tree);
        f.hide("door");
        QCOMPARE(recorder.take(), QStringList());
    }

    void newVisibilityIsNotReportedWhileTheSourceIsBusy()
    {
        class Careless : public TestTree
        {
        public:
            using TreeNodeProxyModel::visibilityChangedInSourceModel;
            QList<QModelIndex> listFromSource(const QModelIndex& /*index*/) const override
            {
                return {index(0, 0)};
            }
        } tree;
        Fixture f;
        tree.setSourceModel(f.model.get());
        tree.setCheckColumnEnabled(true);
        SignalRecorder recorder(&tree);
        tree.sourceBusy = true;
        tree.visibilityChangedInSourceModel(QList<QModelIndex>{f.model->index(0, 0)});
        QCOMPARE(recorder.take(), QStringList());
        tree.sourceBusy = false;
        tree.visibilityChangedInSourceModel(QList<QModelIndex>{f.model->index(0, 0)});
        QCOMPARE(recorder.take().size(), 1);
    }

    void plainSourceHasNoVisibility()
    {
        Fixture f;
        f.tree.setCheckColumnEnabled(true);
        QStringListModel plain;
        f.tree.setSourceModel(nullptr);
        QVERIFY(f.tree.model() == nullptr);
        f.tree.toggleObjectVisibleField({f.tree.index(0, 0)});
    }

    void selectingSelectsWhatIsBelow()
    {
        Fixture f;
        f.select("house", selectRow);
        QCOMPARE(f.selected(), QString("house"));
        f.select("house", deselectRow);
        QVERIFY(!f.tree.isRecursiveSelection());
        f.tree.setRecursiveSelection(true);
        QVERIFY(f.tree.isRecursiveSelection());
        f.select("house", selectRow);
        QCOMPARE(f.selected(), QString("door house window"));
        QVERIFY(f.selection->isSelected(f.tree.find("door", 1)));
        f.select("house", deselectRow);
        QCOMPARE(f.selected(), QString());
        f.select("city", selectRow);
        QCOMPARE(f.selected(), QString("city door house street window"));
    }

    void deselectingSomethingBelowLeavesTheRest()
    {
        Fixture f;
        f.tree.setRecursiveSelection(true);
        f.select("city", selectRow);
        f.select("door", deselectRow);
        QCOMPARE(f.selected(), QString("city house street window"));
        f.select("house", deselectRow);
        QCOMPARE(f.selected(), QString("city street"));
    }

    void clickOnSomethingBelowReplacesTheSelection()
    {
        Fixture f;
        f.tree.setRecursiveSelection(true);
        f.select("city", selectRow);
        f.select("house", clickRow);
        QCOMPARE(f.selected(), QString("door house window"));
        f.select("window", clickRow);
        QCOMPARE(f.selected(), QString("window"));
        f.select("park", clickRow);
        QCOMPARE(f.selected(), QString("park"));
    }

    void clickOnAnOnlyChildReplacesTheSelection()
    {
        Fixture f;
        f.model->addItem("bench", f.model->item(5));
        f.tree.setRecursiveSelection(true);
        f.select("park", selectRow);
        QCOMPARE(f.selected(), QString("bench park"));
        // As a view does it: the current index first.
        f.selection->setCurrentIndex(f.tree.find("bench"), QItemSelectionModel::NoUpdate);
        f.select("bench", clickRow);
        QCOMPARE(f.selected(), QString("bench"));
    }

    void clickOnASelectedParentKeepsWhatIsBelow()
    {
        Fixture f;
        f.tree.setRecursiveSelection(true);
        f.select("city", selectRow);
        f.select("park", selectRow);
        f.selection->setCurrentIndex(f.tree.find("city"), QItemSelectionModel::NoUpdate);
        f.select("city", clickRow);
        QCOMPARE(f.selected(), QString("city door house street window"));
    }

    void deselectingTheCurrentNodeIsNoReplacement()
    {
        Fixture f;
        f.model->addItem("bench", f.model->item(5));
        f.tree.setRecursiveSelection(true);
        f.select("park", selectRow);
        // As a view does it when the user takes one row out.
        f.selection->setCurrentIndex(f.tree.find("bench"), QItemSelectionModel::NoUpdate);
        f.select("bench", deselectRow);
        QCOMPARE(f.selected(), QString("park"));
        f.select("park", clickRow);
        f.selection->setCurrentIndex(f.tree.find("park"), QItemSelectionModel::NoUpdate);
        f.select("park", deselectRow);
        QCOMPARE(f.selected(), QString());
    }

    void switchingOnExtendsTheSelection()
    {
        Fixture f;
        f.select("house", selectRow);
        f.tree.setRecursiveSelection(true);
        QCOMPARE(f.selected(), QString("door house window"));
        f.tree.setRecursiveSelection(false);
        f.select("house", deselectRow);
        QCOMPARE(f.selected(), QString("door window"));
    }

    void recursiveSelectionSurvivesRemovalAndReset()
    {
        Fixture f;
        f.tree.setRecursiveSelection(true);
        f.select("city", selectRow);
        f.model->removeItem(3);
        QCOMPARE(f.selected(), QString("city house street window"));
        f.model->replaceAll({"x"});
        QCOMPARE(f.selected(), QString());
    }

    void rangesOfWhatIsBelowAreJoined()
    {
        Fixture f;
        QItemSelection below;
        f.tree.recursiveChildrenSelection(f.tree.rootNode(0), below);
        QCOMPARE(below.size(), 2);
        QCOMPARE(TestTree::dump(below), QString("house street door window"));
        QCOMPARE(below[0].right(), 1);
    }

    void childOfTwoParentsIsSelectedWhereItIsLinked()
    {
        Fixture f;
        TreeNode* const park = f.tree.rootNode(1);
        park->children().push_back(f.tree.rootNode(0)->children()[0]);
        QItemSelection below;
        f.tree.recursiveChildrenSelection(park, below);
        QVERIFY(below.isEmpty());
        f.tree.recursiveChildrenSelection(f.tree.rootNode(0), below);
        QCOMPARE(TestTree::dump(below), QString("house street door window"));
        park->children().clear();
    }

    void selectChildrenAddsOneLevel()
    {
        Fixture f;
        f.select("city", selectRow);
        f.select("park", selectRow);
        f.tree.selectChildren();
        QCOMPARE(f.selected(), QString("city house park street"));
        f.tree.selectChildren();
        QCOMPARE(f.selected(), QString("city door house park street window"));
    }

    void selectChildrenOfNothing()
    {
        Fixture f;
        f.tree.selectChildren();
        QVERIFY(!f.selection->hasSelection());
        f.select("door", selectRow);
        const QSignalSpy changed(f.selection.get(), &QItemSelectionModel::selectionChanged);
        f.tree.selectChildren();
        QVERIFY(changed.isEmpty());
        f.tree.setSelectionModel(nullptr);
        f.tree.selectChildren();
        f.tree.setRecursiveSelection(true);
    }

    void actionSelectsChildren()
    {
        Fixture f;
        f.select("city", selectRow);
        f.tree.getActions().first()->action()->trigger();
        QCOMPARE(f.selected(), QString("city house street"));
    }
};

TEST_CLASS(TreeNodeProxyModelTest, Widgets)
#include "treenodeproxymodeltest.moc"
