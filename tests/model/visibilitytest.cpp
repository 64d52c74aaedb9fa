#include "support/CityGMLModelFixture.h"
#include "support/SignalRecorder.h"
#include "support/TestClass.h"

#include <QItemSelectionModel>
#include <QtTest>

using namespace testsupport;

using tolvik::Model;

namespace {

/// A model of a root and buildings, with a list of all its signals.
class RecordedModel : public OpenModel
{
public:
    explicit RecordedModel(int buildings) : recorder(this)
    {
        recorder.watch(this, QOverload<const QModelIndex&>::of(&Model::visibilityChanged), "visible");
        recorder.watch(this, QOverload<const QList<QModelIndex>&>::of(&Model::visibilityChanged), "visible");
        loadText(town(buildings));
        recorder.clear();
    }

    QModelIndex at(int row, int column = 0) const { return index(row, column); }

    /// Hides rows without a signal.
    void hideSilently(const QList<int>& rows)
    {
        for (int row : rows) {
            setVisibility(at(row), false);
        }
    }

    SignalRecorder recorder;
};

const QList<QModelIndex> onlyInvalid{QModelIndex(), QModelIndex()};

} // namespace

class VisibilityTest : public QObject
{
    Q_OBJECT

private slots:
    void disablingOneRow()
    {
        RecordedModel model(2);
        model.disable(model.at(1, 1));
        model.disable(model.at(1));
        model.disable(QModelIndex());
        QCOMPARE(model.recorder.take(), QStringList({"dataChanged 1:1 1:1 []", "dataChanged 1:0 1:0 []"}));
        QCOMPARE(model.states(), QString("vVv"));
        model.enable(model.at(1));
        model.enable(model.at(2));
        model.enable(QModelIndex());
        QCOMPARE(model.recorder.take(), QStringList({"dataChanged 1:0 1:0 []", "dataChanged 2:0 2:0 []"}));
        QCOMPARE(model.states(), QString("vvv"));
        QVERIFY(!model.dirty());
    }

    void disablingAListSetsAllFlagsFirst()
    {
        RecordedModel model(3);
        QStringList statesSeen;
        connect(&model, &QAbstractItemModel::dataChanged, this, [&] { statesSeen.append(model.states()); });
        model.disable({model.at(3), QModelIndex(), model.at(1, 1), model.at(3)});
        QCOMPARE(model.recorder.take(),
                 QStringList({"dataChanged 3:0 3:0 []", "dataChanged 1:1 1:1 []", "dataChanged 3:0 3:0 []"}));
        QCOMPARE(statesSeen, QStringList({"vVvV", "vVvV", "vVvV"}));
        statesSeen.clear();
        model.enable({model.at(0), model.at(3)});
        QCOMPARE(model.recorder.take(), QStringList({"dataChanged 0:0 0:0 []", "dataChanged 3:0 3:0 []"}));
        QCOMPARE(statesSeen, QStringList({"vVvv", "vVvv"}));
    }

    void disablingNothing()
    {
        RecordedModel model(1);
        model.disable(QList<QModelIndex>());
        model.disable(onlyInvalid);
        model.enable(QList<QModelIndex>());
        model.enable(onlyInvalid);
        QCOMPARE(model.recorder.take(), QStringList());
        QCOMPARE(model.states(), QString("vv"));
    }

    void aFeatureWithoutARowIsDisabled()
    {
        RecordedModel model(1);
        bldg::BuildingType stranger;
        QVERIFY(model.isDisabled(&stranger));
        QVERIFY(model.isDisabled(nullptr));
        QVERIFY(!model.isDisabled(model.getFeature(1)));
    }

    void aDisabledRowIsShownAsBefore()
    {
        RecordedModel model(2);
        model.hideSilently({2});
        model.disable({model.at(1), model.at(2)});
        QCOMPARE(model.states(), QString("vVH"));
        QCOMPARE(model.flags(model.at(1)), Qt::ItemFlags(Qt::NoItemFlags));
        QCOMPARE(model.data(model.at(1)), QVariant("b1"));
        QCOMPARE(model.data(model.at(1), Qt::CheckStateRole), QVariant(2));
        QCOMPARE(model.data(model.at(2), Qt::CheckStateRole), QVariant(0));
    }

    void hidingOneRow()
    {
        RecordedModel model(2);
        model.reallyDoHide(model.at(1, 1));
        QCOMPARE(model.recorder.take(), QStringList({"dataChanged 1:0 1:0 []", "visible 1:1"}));
        QCOMPARE(model.states(), QString("vhv"));
        model.reallyDoHide(model.at(1));
        model.reallyDoHide(QModelIndex());
        QCOMPARE(model.recorder.take(), QStringList());
        QVERIFY(!model.dirty());
    }

    void showingOneRow()
    {
        RecordedModel model(2);
        model.hideSilently({1});
        model.reallyDoShow(model.at(2, 1));
        model.reallyDoShow(QModelIndex());
        QCOMPARE(model.recorder.take(), QStringList());
        model.reallyDoShow(model.at(1, 1));
        QCOMPARE(model.recorder.take(), QStringList({"dataChanged 1:0 1:0 []", "visible 1:1"}));
        QCOMPARE(model.states(), QString("vvv"));
    }

    void hidingAList()
    {
        RecordedModel model(4);
        model.hideSilently({3});
        QStringList statesSeen;
        connect(&model, &QAbstractItemModel::dataChanged, this, [&] { statesSeen.append(model.states()); });
        model.reallyDoHide({model.at(4), QModelIndex(), model.at(3, 1), model.at(3), model.at(1)});
        QCOMPARE(model.recorder.take(),
                 QStringList({"dataChanged 4:0 4:0 []", "dataChanged 3:1 3:1 []", "dataChanged 3:0 3:0 []",
                              "dataChanged 1:0 1:0 []", "visible [1:0 3:0 3:1 4:0]"}));
        QCOMPARE(statesSeen, QStringList({"vvvhh", "vvvhh", "vvvhh", "vhvhh"}));
    }

    void hidingHiddenRowsIsAnnounced()
    {
        RecordedModel model(2);
        model.hideSilently({1, 2});
        model.reallyDoHide({model.at(2), model.at(1)});
        QCOMPARE(model.recorder.take(),
                 QStringList({"dataChanged 2:0 2:0 []", "dataChanged 1:0 1:0 []", "visible [1:0 2:0]"}));
    }

    void showingAList()
    {
        RecordedModel model(4);
        model.hideSilently({1, 3});
        model.reallyDoShow({model.at(3, 1), model.at(2), model.at(3), QModelIndex(), model.at(1)});
        QCOMPARE(model.recorder.take(),
                 QStringList({"dataChanged 3:1 3:1 []", "dataChanged 1:0 1:0 []", "visible [1:0 3:1]"}));
        QCOMPARE(model.states(), QString("vvvvv"));
    }

    void showingVisibleRowsIsNotAnnounced()
    {
        RecordedModel model(2);
        model.reallyDoShow({model.at(2), model.at(1)});
        QCOMPARE(model.recorder.take(), QStringList());
    }

    void listsOfInvalidIndexes()
    {
        RecordedModel model(1);
        model.reallyDoHide(onlyInvalid);
        QCOMPARE(model.recorder.take(), QStringList({"visible []"}));
        model.reallyDoShow(onlyInvalid);
        model.reallyDoHide(QList<QModelIndex>());
        model.reallyDoShow(QList<QModelIndex>());
        QCOMPARE(model.recorder.take(), QStringList());
    }

    void hidingAndShowingAll()
    {
        RecordedModel model(3);
        model.showAlls(true);
        QCOMPARE(model.recorder.take(), QStringList());
        model.hideSilently({1});
        QStringList statesSeen;
        connect(&model, &QAbstractItemModel::dataChanged, this, [&] { statesSeen.append(model.states()); });
        model.reallyDoHideAll();
        QCOMPARE(model.recorder.take(), QStringList({"dataChanged 0:0 0:0 []", "dataChanged 2:0 2:0 []",
                                                     "dataChanged 3:0 3:0 []", "visible [0:0 2:0 3:0]"}));
        QCOMPARE(statesSeen, QStringList({"hhvv", "hhhv", "hhhh"}));
        model.reallyDoHideAll();
        QCOMPARE(model.recorder.take(), QStringList());
        model.showAll();
        QCOMPARE(model.recorder.take().last(), QString("visible [0:0 1:0 2:0 3:0]"));
        QCOMPARE(model.states(), QString("vvvv"));
    }

    void withoutRows()
    {
        OpenModel model;
        SignalRecorder recorder(&model);
        model.reallyDoHideAll();
        model.reallyDoShowAll();
        QStringList hidden{"kept"};
        QStringList visible{"too"};
        model.getVisibilityIds(hidden, visible);
        QCOMPARE(hidden, QStringList{"kept"});
        QCOMPARE(visible, QStringList{"too"});
        model.setVisibilityIds({"0"}, true);
        QCOMPARE(model.getIndexList({"0"}), QList<QModelIndex>({QModelIndex()}));
        QCOMPARE(recorder.take(), QStringList());
    }

    void visibilityIds()
    {
        RecordedModel model(3);
        model.hideSilently({0, 2});
        QStringList hidden{"before"};
        QStringList visible;
        model.getVisibilityIds(hidden, visible);
        QCOMPARE(hidden, QStringList({"before", "0", "2"}));
        QCOMPARE(visible, QStringList({"1", "3"}));
        QCOMPARE(model.recorder.take(), QStringList());
    }

    void visibilityIdsComeFromTheCheckState()
    {
        class Checked : public OpenModel
        {
        public:
            QVariant data(const QModelIndex& index, int role) const override
            {
                return role == Qt::CheckStateRole ? QVariant(index.row() == 1 ? 2 : 0)
                                                  : OpenModel::data(index, role);
            }
        };
        Checked model;
        model.loadText(town(2));
        QStringList hidden;
        QStringList visible;
        model.getVisibilityIds(hidden, visible);
        QCOMPARE(hidden, QStringList({"0", "2"}));
        QCOMPARE(visible, QStringList({"1"}));
    }

    void settingVisibilityIdsTogglesTheWrongRows()
    {
        RecordedModel model(2);
        model.hideSilently({0, 2});
        model.setVisibilityIds({"0", "x"}, true);
        QCOMPARE(model.states(), QString("vhh"));
        QCOMPARE(model.recorder.take(), QStringList({"dataChanged 1:0 1:0 []", "visible [1:0]",
                                                     "dataChanged 0:0 0:0 []", "visible [0:0]"}));
        model.setVisibilityIds({"0"}, true);
        QCOMPARE(model.recorder.take(), QStringList());
    }

    void settingHiddenIds()
    {
        RecordedModel model(3);
        model.hideSilently({0, 1});
        model.setVisibilityIds({"3", "1", "", "-1", "17", "1.0", "3", "99999999999"}, false);
        QCOMPARE(model.states(), QString("vhvh"));
    }

    void emptyVisibilityIds()
    {
        RecordedModel model(2);
        model.hideSilently({1});
        model.setVisibilityIds({}, true);
        QCOMPARE(model.states(), QString("hhh"));
        model.setVisibilityIds({}, false);
        QCOMPARE(model.states(), QString("vvv"));
    }

    void visibilityIdsRestoreAState()
    {
        RecordedModel model(5);
        model.hideSilently({0, 3, 4});
        QStringList hidden;
        QStringList visible;
        model.getVisibilityIds(hidden, visible);
        model.dataSetChanged();
        QCOMPARE(model.states(), QString("vvvvvv"));
        model.setVisibilityIds(hidden, false);
        QCOMPARE(model.states(), QString("hvvhhv"));
        model.showAll();
        model.setVisibilityIds(visible, true);
        QCOMPARE(model.states(), QString("hvvhhv"));
    }

    void selectionIds()
    {
        RecordedModel model(4);
        QItemSelectionModel selection(&model);
        model.setSelectionModel(&selection);
        model.setSelectedIds({"4", "1", "x", "-1", "5", "1"});
        QStringList ids{"before"};
        model.getSelectedIds(ids);
        QCOMPARE(ids.takeFirst(), QString("before"));
        ids.sort();
        QCOMPARE(ids, QStringList({"1", "4"}));
        QVERIFY(selection.isSelected(model.at(4, 1)));
        QVERIFY(!selection.isSelected(model.at(2)));

        model.setSelectedIds({"2"});
        QVERIFY(!selection.isSelected(model.at(1)));
        QVERIFY(selection.isSelected(model.at(2)));
        model.setSelectedIds({"abc"});
        QVERIFY(!selection.hasSelection());
        model.setSelectedIds({"2"});
        model.setSelectedIds({});
        QVERIFY(!selection.hasSelection());
        QCOMPARE(model.recorder.take(), QStringList());
    }

    void selectedIdsKeepTheOrderOfTheSelection()
    {
        RecordedModel model(4);
        QItemSelectionModel selection(&model);
        model.setSelectionModel(&selection);
        for (int row : {3, 1}) {
            selection.select(model.at(row), QItemSelectionModel::Select | QItemSelectionModel::Rows);
        }
        selection.select(model.at(2), QItemSelectionModel::Select); // one cell is not a row
        QStringList expected;
        const QModelIndexList rows = selection.selectedRows(0);
        for (const QModelIndex& row : rows) {
            expected.append(QString::number(row.row()));
        }
        QStringList ids;
        model.getSelectedIds(ids);
        QCOMPARE(ids, expected);
        QCOMPARE(ids.size(), 2);
    }

    void selectingGoesThroughTheSelectionModel()
    {
        class Watched : public QItemSelectionModel
        {
        public:
            using QItemSelectionModel::QItemSelectionModel;
            using QItemSelectionModel::select;
            void select(const QItemSelection& selection, SelectionFlags command) override
            {
                calls.append(QString("%1 %2").arg(selection.size()).arg(static_cast<int>(command), 0, 16));
                QItemSelectionModel::select(selection, command);
            }
            QStringList calls;
        };
        RecordedModel model(2);
        Watched selection(&model);
        model.setSelectionModel(&selection);
        model.setSelectedIds({"0", "1"});
        model.setSelectedIds({});
        QCOMPARE(selection.calls, QStringList({"2 23", "0 23"}));
    }

    void withoutASelectionModel()
    {
        RecordedModel model(1);
        QStringList ids{"kept"};
        model.getSelectedIds(ids);
        model.setSelectedIds({"1"});
        QCOMPARE(ids, QStringList{"kept"});
        QCOMPARE(model.recorder.take(), QStringList());
    }

    void indexLists()
    {
        RecordedModel model(2);
        QCOMPARE(model.getIndexList({"2", "abc", "3", "-1", "1", "1"}),
                 QList<QModelIndex>(
                     {model.at(2), model.at(0), QModelIndex(), QModelIndex(), model.at(1), model.at(1)}));
        QCOMPARE(model.getIndexList({}), QList<QModelIndex>());
    }
};

TEST_CLASS(VisibilityTest, Widgets)
#include "visibilitytest.moc"
