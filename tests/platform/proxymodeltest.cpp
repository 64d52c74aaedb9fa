#include "support/SignalRecorder.h"
#include "support/TestClass.h"
#include "support/TestTree.h"

#include <QAction>
#include <QStringListModel>
#include <QtTest>

using namespace testsupport;

using Fondo::RefPtr;
using tolvik::Action;

namespace {

/// City: house(door window) street(Door) tower
struct City
{
    City()
    {
        TestItem* const house = model.addItem("house", nullptr);
        model.addItem("door", house);
        model.addItem("window", house);
        TestItem* const street = model.addItem("street", nullptr);
        model.addItem("Door", street);
        model.addItem("tower", nullptr);
        tree.setSourceModel(&model);
    }

    QString search(const QModelIndex& start, const QString& text,
                   Qt::CaseSensitivity sensitivity = Qt::CaseInsensitive)
    {
        return tree.search(start, text, sensitivity).data().toString();
    }

    TestModel model;
    TestTree tree;
};

class NameSearch : public TestTree
{
public:
    using TestTree::TestTree;
    QVector<int> searchFilter() override { return {0}; }
};

class StillTree : public TestTree
{
public:
    using TestTree::TestTree;
    void computeNodeMap() override
    {
        if (!isStill) {
            TestTree::computeNodeMap();
        }
    }

    bool isStill = false;
};

} // namespace

class ProxyModelTest : public QObject
{
    Q_OBJECT

private slots:
    void freshProxy()
    {
        TestTree tree;
        QCOMPARE(tree.objectName(), QString("tree"));
        QVERIFY(tree.model() == nullptr);
        QVERIFY(tree.selectionModel() == nullptr);
        QCOMPARE(tree.rowCount(), 0);
        QCOMPARE(tree.columnCount(), 0);
        QCOMPARE(tree.defaultExpandDepth(), 0);
        QVERIFY(!tree.search(QModelIndex(), "a", Qt::CaseInsensitive).isValid());
        QVERIFY(tree.calls.isEmpty());
        QVERIFY(tree.inherits("tolvik::TreeNodeProxyModel"));
        QVERIFY(tree.inherits("tolvik::ProxyModel"));
        QVERIFY(tree.inherits("QAbstractProxyModel"));
    }

    void modelIsTheSourceIfThatIsADocument()
    {
        TestModel model({"a"});
        TestTree tree(&model);
        QCOMPARE(tree.model(), &model);
        QCOMPARE(tree.sourceModel(), &model);
    }

    void searchGoesOnAndComesBack()
    {
        City city;
        const QModelIndex first = city.tree.search(QModelIndex(), "door", Qt::CaseInsensitive);
        QCOMPARE(first, city.tree.find("door"));
        const QModelIndex second = city.tree.search(first, "door", Qt::CaseInsensitive);
        QCOMPARE(second, city.tree.find("Door"));
        QCOMPARE(city.tree.search(second, "door", Qt::CaseInsensitive), first);
    }

    void searchFindsTheStartLast()
    {
        City city;
        QCOMPARE(city.search(city.tree.find("window"), "WIN"), QString("window"));
    }

    void searchRespectsCase()
    {
        City city;
        QCOMPARE(city.search(QModelIndex(), "Door", Qt::CaseSensitive), QString("Door"));
        QVERIFY(!city.tree.search(QModelIndex(), "DOOR", Qt::CaseSensitive).isValid());
    }

    void searchFindsParts()
    {
        City city;
        QCOMPARE(city.search(QModelIndex(), "owe"), QString("tower"));
        QCOMPARE(city.search(city.tree.find("tower"), "o"), QString("house"));
    }

    void searchStartsFromAnyColumn()
    {
        City city;
        const QModelIndex found = city.tree.search(city.tree.find("door", 1), "door", Qt::CaseInsensitive);
        QCOMPARE(found, city.tree.find("Door"));
        QCOMPARE(found.column(), 0);
    }

    /// A node that is met below two parents is where it was found.
    void searchStartsFromOnePlaceOfANode()
    {
        City city;
        TestTree& tree = city.tree;
        tree.rootNode(1)->children().push_back(tree.rootNode(0)->children()[0]);
        QCOMPARE(city.search(tree.find("door"), "o"), QString("window"));
        const QModelIndex second = tree.index(1, 0, tree.index(1, 0));
        QCOMPARE(second.data().toString(), QString("door"));
        QCOMPARE(city.search(second, "o"), QString("tower"));
    }

    void searchForNothing()
    {
        City city;
        QVERIFY(!city.tree.search(QModelIndex(), "", Qt::CaseInsensitive).isValid());
        QVERIFY(!city.tree.search(QModelIndex(), "nothing", Qt::CaseInsensitive).isValid());
    }

    void searchLooksAtTheColumnsOfTheFilter()
    {
        City city;
        QCOMPARE(city.tree.searchFilter(), QVector<int>({0, 1}));
        QCOMPARE(city.search(city.tree.find("house"), "item"), QString("door"));

        NameSearch byName(&city.model);
        QVERIFY(!byName.search(QModelIndex(), "item", Qt::CaseInsensitive).isValid());
        QCOMPARE(byName.search(QModelIndex(), "door", Qt::CaseInsensitive), byName.find("door"));
    }

    void buddyIsTheIndexItself()
    {
        City city;
        city.tree.shownTwice = {city.model.item(1)};
        city.tree.computeNodeMap();
        const QModelIndex second = city.tree.index(3, 0);
        QCOMPARE(second.data().toString(), QString("door"));
        QCOMPARE(city.tree.buddy(second), second);
        QVERIFY(!city.tree.buddy(QModelIndex()).isValid());
    }

    void sourceDataChangedReportsAllNodes()
    {
        City city;
        city.tree.shownTwice = {city.model.item(1)};
        city.tree.computeNodeMap();
        SignalRecorder recorder(&city.tree);
        city.model.setData(city.model.index(1, 0), "gate");
        QCOMPARE(recorder.take(), QStringList({"dataChanged 0/0:0 0/0:0 []", "dataChanged 3:0 3:0 []"}));
        emit city.model.dataChanged(city.model.index(1, 0), city.model.index(3, 1));
        QCOMPARE(recorder.take(), QStringList({"dataChanged 0/0:0 0/0:1 []", "dataChanged 3:0 3:1 []",
                                               "dataChanged 0/1:0 0/1:1 []", "dataChanged 1:0 1:1 []"}));
    }

    /// Also where a subclass finds nothing to do, so that no reset says that the tree is ready.
    void nodesAreThereAgainWhenTheSourceIsReady()
    {
        StillTree tree;
        TestModel model({"a"});
        tree.setSourceModel(&model);
        tree.isStill = true;
        QVERIFY(tree.find("a").flags().testFlag(Qt::ItemIsEnabled));
        emit model.layoutAboutToBeChanged();
        QCOMPARE(tree.find("a").flags(), Qt::ItemFlags(Qt::NoItemFlags));
        emit model.layoutChanged();
        QVERIFY(tree.find("a").flags().testFlag(Qt::ItemIsEnabled));
    }

    void selectionModelIsAttachedAndDetached()
    {
        City city;
        {
            QItemSelectionModel selection(&city.tree);
            city.tree.setSelectionModel(&selection);
            QCOMPARE(city.tree.selectionModel(), &selection);
            city.tree.setSelectionModel(nullptr);
            QVERIFY(city.tree.selectionModel() == nullptr);
            city.tree.setSelectionModel(&selection);
        }
        QVERIFY(city.tree.selectionModel() == nullptr);
    }

    void formerSelectionModelIsNotFollowed()
    {
        City city;
        QItemSelectionModel former(&city.tree);
        QItemSelectionModel present(&city.tree);
        city.tree.setRecursiveSelection(true);
        city.tree.setSelectionModel(&former);
        city.tree.setSelectionModel(&present);
        former.select(city.tree.find("house"), QItemSelectionModel::Select | QItemSelectionModel::Rows);
        QVERIFY(!present.hasSelection());
        QCOMPARE(TestTree::dump(former.selection()), QString("house"));
    }

    void siblingSlotAsksForTheSameType()
    {
        City city;
        city.tree.calls.clear();
        // Actions are connected by name.
        QVERIFY(QMetaObject::invokeMethod(&city.tree, "selectSiblingsWithSameType"));
        QCOMPARE(city.tree.calls, QStringList({"siblings of same type, false"}));
    }

    void actionsAreMadeOnce()
    {
        City city;
        const QList<Action*> actions = city.tree.getActions();
        QCOMPARE(actions.size(), 1);
        QCOMPARE(city.tree.getActions(), actions);
        QCOMPARE(actions.first()->action()->text(), QString("Select children"));
        QCOMPARE(actions.first()->subGroupNameHint(), QString("Select"));
        QVERIFY(actions.first()->isValid(city.tree.find("door")));
    }

    void actionsAreNotMadeAgainForAHostThatMadeThem()
    {
        City city;
        city.tree.createActions();
        QCOMPARE(city.tree.getActions().size(), 1);
    }

    void actionsDieWithTheModel()
    {
        QPointer<QAction> entry;
        QPointer<QAction> neverAskedFor;
        {
            City city;
            entry = city.tree.getActions().first()->action();
            City other;
            other.tree.createActions();
            neverAskedFor = other.tree.actions.first()->action();
        }
        QVERIFY(entry.isNull());
        QVERIFY(neverAskedFor.isNull());
    }

    void actionHeldByTheHostOutlivesTheModel()
    {
        RefPtr<Action> kept;
        {
            City city;
            kept = city.tree.getActions().first();
        }
        QCOMPARE(kept->action()->text(), QString("Select children"));
        QVERIFY(!kept->isValid(QModelIndex()));
        kept->action()->trigger();
    }

    void actionReleasedByTheHostStaysInTheModel()
    {
        City city;
        {
            const RefPtr<Action> menuEntry = city.tree.getActions().first();
        }
        QCOMPARE(city.tree.getActions().first()->action()->text(), QString("Select children"));
    }
};

TEST_CLASS(ProxyModelTest, Widgets)
#include "proxymodeltest.moc"
