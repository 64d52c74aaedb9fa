#include "framework/Action.h"
#include "fondo/ClassType.h"
#include "fondo/RefPtr.h"
#include "support/TestClass.h"

#include <memory>
#include <QAction>
#include <QPointer>
#include <QStringListModel>
#include <QtTest>

using namespace testsupport;

using Fondo::RefPtr;
using tolvik::Action;

class ActionTest : public QObject
{
    Q_OBJECT

private slots:
    void keepsWhatItIsGiven()
    {
        const QStringListModel model;
        const QSharedPointer<QAction> entry(new QAction("text"));
        const RefPtr<Action> action = new Action(entry, &model, 2, "Select");
        QCOMPARE(action->action(), entry.data());
        QCOMPARE(action->groupHint(), 2);
        QCOMPARE(action->subGroupNameHint(), QString("Select"));
        QCOMPARE(action->type(), std::string("tolvik::Action"));
        QVERIFY(action->isOfType(Action::classType()));
    }

    void ownsTheEntry()
    {
        const QStringListModel model;
        QSharedPointer<QAction> shared(new QAction("text"));
        const QPointer<QAction> entry = shared.data();
        RefPtr<Action> action = new Action(std::move(shared), &model, 0, "");
        QVERIFY(!entry.isNull());
        action = nullptr;
        QVERIFY(entry.isNull());
    }

    void appliesToIndexesOfItsModel()
    {
        const QStringListModel model({"a", "b"});
        const QStringListModel other({"a"});
        const RefPtr<Action> action = new Action(QSharedPointer<QAction>(new QAction("text")), &model, 0, "");
        QVERIFY(action->isValid(model.index(1)));
        QVERIFY(!action->isValid(other.index(0)));
        QVERIFY(!action->isValid(QModelIndex()));

        QVERIFY(action->areValid({model.index(0), model.index(1)}));
        QVERIFY(!action->areValid({model.index(0), other.index(0)}));
        QVERIFY(!action->areValid({}));
    }

    void appliesToNothingWhenItsModelIsGone()
    {
        auto model = std::make_unique<QStringListModel>(QStringList{"a"});
        const RefPtr<Action> action =
            new Action(QSharedPointer<QAction>(new QAction("text")), model.get(), 0, "");
        model.reset();
        QVERIFY(!action->isValid(QModelIndex()));
        QVERIFY(!action->areValid({QModelIndex()}));
    }
};

TEST_CLASS(ActionTest, Widgets)
#include "actiontest.moc"
