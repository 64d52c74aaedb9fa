#include "framework/OperationStatus.h"
#include "support/OperationRecorder.h"
#include "support/TestClass.h"

#include <memory>
#include <QElapsedTimer>
#include <QStringList>
#include <QtTest>

using namespace testsupport;

using tolvik::OperationStatus;

class OperationStatusTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { OperationStatus::setListener(nullptr); }

    void withoutListenerNothingHappens()
    {
        OperationStatus status("title", 10, true);
        status.addStep(1);
        status.addStep(100);
    }

    void beginAndEndAreAlwaysTold()
    {
        OperationLog recorder;
        QVERIFY(OperationStatus::setListener(&recorder) == nullptr);
        for (int i = 0; i < 3; ++i) {
            const OperationStatus status(QString::number(i), i * 10LL, i != 1);
        }
        QCOMPARE(recorder.lines, QStringList({"begin 0 0 blocking 0", "end 0", "begin 1 10 free 0", "end 0",
                                              "begin 2 20 blocking 0", "end 0"}));
        QVERIFY(OperationStatus::setListener(nullptr) == &recorder);
    }

    void operationsNest()
    {
        OperationLog recorder;
        OperationStatus::setListener(&recorder);
        {
            const OperationStatus outer("outer", 2, true);
            {
                const OperationStatus inner("inner", 5, true);
                const OperationStatus innermost("innermost", 7, true);
            }
            const OperationStatus second("second", 5, true);
        }
        QCOMPARE(recorder.lines, QStringList({"begin outer 2 blocking 0", "begin inner 5 blocking 1",
                                              "begin innermost 7 blocking 2", "end 2", "end 1",
                                              "begin second 5 blocking 1", "end 1", "end 0"}));
    }

    void operationsMayEndInAnyOrder()
    {
        OperationLog recorder;
        OperationStatus::setListener(&recorder);
        auto outer = std::make_unique<OperationStatus>("outer", 1, true);
        auto inner = std::make_unique<OperationStatus>("inner", 1, true);
        outer.reset();
        const OperationStatus third("third", 1, true);
        inner.reset();
        QCOMPARE(recorder.lines, QStringList({"begin outer 1 blocking 0", "begin inner 1 blocking 1", "end 0",
                                              "begin third 1 blocking 2", "end 1"}));
    }

    void listenerRegisteredMeanwhileHearsOfNewOperationsOnly()
    {
        OperationLog recorder;
        {
            OperationStatus early("early", 1, true);
            OperationStatus::setListener(&recorder);
            early.addStep(1);
            const OperationStatus late("late", 1, true);
        }
        QCOMPARE(recorder.lines, QStringList({"begin late 1 blocking 0", "end 0"}));
        QVERIFY(recorder.doneByReport.isEmpty());
    }

    void listenerUnregisteredMeanwhileHearsNothingMore()
    {
        OperationLog second;
        {
            auto first = std::make_unique<OperationLog>();
            OperationStatus::setListener(first.get());
            OperationStatus status("status", 100, true);
            QVERIFY(OperationStatus::setListener(&second) == first.get());
            QCOMPARE(first->lines, QStringList({"begin status 100 blocking 0"}));
            first.reset();
            status.addStep(50);
        }
        QVERIFY(second.lines.isEmpty());
        QVERIFY(second.doneByReport.isEmpty());
    }

    void progressIsToldAtMostTwentyTimesASecond()
    {
        OperationLog recorder;
        OperationStatus::setListener(&recorder);
        QElapsedTimer timer;
        timer.start();
        long long steps = 0;
        {
            OperationStatus status("many steps", 0, true);
            OperationStatus inner("in two operations", 0, true);
            // The second limit is for a machine that stands still; without any report it fails below.
            while (recorder.doneByReport.size() < 4 && timer.elapsed() < 60000) {
                status.addStep(2);
                inner.addStep(3);
                ++steps;
            }
        }
        const qint64 milliseconds = timer.elapsed();
        QVERIFY(recorder.doneByReport.size() >= 2);
        QVERIFY2(
            recorder.doneByReport.size() <= milliseconds / 50 + 1,
            qPrintable(
                QStringLiteral("%1 reports in %2 ms").arg(recorder.doneByReport.size()).arg(milliseconds)));
        for (int i = 0; i < recorder.doneByReport.size(); ++i) {
            const int perStep = recorder.levelByReport[i] == 0 ? 2 : 3;
            QCOMPARE(recorder.doneByReport[i] % perStep, 0LL);
            QVERIFY(recorder.doneByReport[i] <= steps * perStep);
        }
    }

    void slowStepsAreToldToo()
    {
        OperationLog recorder;
        OperationStatus::setListener(&recorder);
        OperationStatus status("slow", 8, true);
        for (int i = 0; i < 8; ++i) {
            QTest::qSleep(60);
            status.addStep(1);
        }
        QCOMPARE(recorder.doneByReport, QVector<long long>({1, 2, 3, 4, 5, 6, 7, 8}));
    }

    void slowStepsBehindQuickOnesAreTold()
    {
        OperationLog recorder;
        OperationStatus::setListener(&recorder);
        OperationStatus status("quick, then slow", 0, true);
        for (int i = 0; i < 100000; ++i) {
            status.addStep(1);
        }
        recorder.doneByReport.clear();
        // However slow the machine is: of 600 ms and more, the first 256 steps at most may go by unseen.
        for (int i = 0; i < 600; ++i) {
            QTest::qSleep(1);
            status.addStep(1);
        }
        QVERIFY(recorder.doneByReport.size() >= 4);
    }
};

TEST_CLASS(OperationStatusTest, Core)
#include "operationstatustest.moc"
