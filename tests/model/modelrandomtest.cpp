#include "model/RandomRun.h"
#include "support/LogRecorder.h"
#include "support/TestClass.h"

#include <QtTest>

using namespace testsupport;

namespace {

/// How many operations a run has; with TOLVIK_LONG_RUNS=1 in the environment there are more of them.
int operations()
{
    return qEnvironmentVariableIsSet("TOLVIK_LONG_RUNS") ? 100000 : 10000;
}

} // namespace

/// A list view and a tree view over one model, through a long random run. After each operation, everything
/// that a view can see is compared with the plain model of the same document.
class ModelRandomTest : public QObject
{
    Q_OBJECT

private slots:
    void viewsStayConsistent_data()
    {
        QTest::addColumn<unsigned>("seed");
        QTest::newRow("first seed") << 20131U;
        QTest::newRow("second seed") << 7U;
    }

    void viewsStayConsistent()
    {
        QFETCH(unsigned, seed);
        const ModelLog log; // keeps the errors of failed loads
        RandomRun run(seed);
        QCOMPARE(run.difference(), QString());
        QStringList recent;
        for (int i = 0; i < operations(); ++i) {
            recent.append(run.step());
            if (recent.size() > 5) {
                recent.removeFirst();
            }
            const QString difference = run.difference();
            QVERIFY2(
                difference.isEmpty(),
                qPrintable(QString("operation %1, after %2: %3").arg(i).arg(recent.join(", "), difference)));
            if (i % 20 == 0) {
                QCoreApplication::processEvents(); // the views lay out and paint
            }
            if (i % 50 == 0) {
                run.testTree();
            }
        }
    }
};

TEST_CLASS(ModelRandomTest, Widgets)
#include "modelrandomtest.moc"
