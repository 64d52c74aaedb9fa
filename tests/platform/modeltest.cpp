#include "support/SignalRecorder.h"
#include "support/TestClass.h"
#include "support/TestModel.h"

#include <QtTest>

using namespace testsupport;

using tolvik::Model;

class ModelTest : public QObject
{
    Q_OBJECT

private slots:
    void publicEntriesLeadToTheModel()
    {
        TestModel model({"a", "b", "c"});
        const QModelIndex b = model.index(1, 0);
        model.hide(b);
        model.show(b);
        model.hide(QList<QModelIndex>{b, model.index(2, 0)});
        model.show(QList<QModelIndex>{b});
        model.hideAll();
        model.showAll();
        // Nothing is filtered on the way: what to do with it is the model's business.
        model.hide(QModelIndex());
        model.show(QList<QModelIndex>());
        QCOMPARE(model.calls, QStringList({"hide 1", "show 1", "hide [1 2]", "show [1]", "hideAll", "showAll",
                                           "hide -1", "show []"}));
    }

    void toggleOfOneRow()
    {
        TestModel model({"a", "b"});
        model.toggleVisibility(model.index(1, 1));
        QCOMPARE(model.visibleRows(), QString("+-"));
        model.toggleVisibility(model.index(1, 1));
        QCOMPARE(model.visibleRows(), QString("++"));
        model.toggleVisibility(QModelIndex());
        QCOMPARE(model.calls, QStringList({"hide 1", "show 1"}));
    }

    void toggleOfAListHidesThenShows()
    {
        TestModel model({"a", "b", "c", "d"});
        model.hide(model.index(1, 0));
        model.hide(model.index(3, 0));
        model.calls.clear();
        model.toggleVisibility({model.index(3, 0), model.index(2, 0), model.index(1, 0), model.index(0, 0)});
        QCOMPARE(model.calls, QStringList({"hide [2 0]", "show [3 1]"}));
        QCOMPARE(model.visibleRows(), QString("-+-+"));
    }

    void toggleOfAListCountsARowOnce()
    {
        TestModel model({"a", "b"});
        model.toggleVisibility({model.index(0, 0), model.index(0, 1), QModelIndex(), model.index(0, 0)});
        QCOMPARE(model.calls, QStringList({"hide [0]"}));
    }

    void toggleOfNothing()
    {
        TestModel model({"a"});
        model.toggleVisibility(QList<QModelIndex>());
        model.toggleVisibility(QList<QModelIndex>{QModelIndex()});
        QVERIFY(model.calls.isEmpty());
    }

    void visibilitySignalsCarryTheirIndexes()
    {
        TestModel model({"a", "b"});
        SignalRecorder recorder(&model);
        recorder.watch(&model, QOverload<const QModelIndex&>::of(&Model::visibilityChanged), "one");
        recorder.watch(&model, QOverload<const QList<QModelIndex>&>::of(&Model::visibilityChanged), "list");
        model.hide(model.index(1, 1));
        model.hide(QList<QModelIndex>{model.index(0, 0), model.index(1, 0)});
        QCOMPARE(recorder.take(), QStringList({"one 1:1", "list [0:0 1:0]"}));
    }

    void selectionModelIsAttachedAndDetached()
    {
        TestModel model({"a"});
        QVERIFY(model.selectionModel() == nullptr);
        {
            QItemSelectionModel selection(&model);
            model.setSelectionModel(&selection);
            QCOMPARE(model.selectionModel(), &selection);
            model.setSelectionModel(nullptr);
            QVERIFY(model.selectionModel() == nullptr);
            model.setSelectionModel(&selection);
        }
        QVERIFY(model.selectionModel() == nullptr);
    }

    void goToWithoutSelectionModel()
    {
        TestModel model({"a"});
        model.goTo(model.index(0, 0), true);
    }

    void goToMakesTheRowCurrent()
    {
        TestModel model({"a", "b", "c"});
        QItemSelectionModel selection(&model);
        model.setSelectionModel(&selection);
        selection.select(model.index(0, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);

        model.goTo(model.index(1, 0), false);
        QCOMPARE(selection.currentIndex(), model.index(1, 0));
        QCOMPARE(selection.selectedRows(), QModelIndexList({model.index(0, 0)}));

        model.goTo(model.index(2, 0), true);
        QCOMPARE(selection.currentIndex(), model.index(2, 0));
        QCOMPARE(selection.selectedRows(), QModelIndexList({model.index(2, 0)}));

        model.goTo(QModelIndex(), true);
        QCOMPARE(selection.currentIndex(), model.index(2, 0));
        QCOMPARE(selection.selectedRows(), QModelIndexList({model.index(2, 0)}));
    }

    void goToSelectsTheRowThatIsCurrentAlready()
    {
        TestModel model({"a", "b"});
        QItemSelectionModel selection(&model);
        model.setSelectionModel(&selection);
        model.goTo(model.index(1, 0), false);
        model.goTo(model.index(1, 0), true);
        QCOMPARE(selection.selectedRows(), QModelIndexList({model.index(1, 0)}));
    }

    void versionIsUnknown()
    {
        TestModel model;
        QVERIFY(model.version().isEmpty());
    }
};

TEST_CLASS(ModelTest, Core)
#include "modeltest.moc"
