#include "apps/viewer/recovery/Recovery.h"
#include "apps/viewer/document/Document.h"
#include "apps/viewer/document/RecordedEdit.h"
#include "apps/viewer/recovery/Journal.h"
#include "support/Files.h"
#include "support/PanelFixture.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "viewer/OpenedWindow.h"

#include <csignal>
#include <QDir>
#include <QLabel>
#include <QProcess>
#include <QtTest>

using namespace testsupport;
using namespace tolvik::viewer;

namespace {

/// An edit that is simpler than those of the program.
class Renaming : public RecordedEdit
{
public:
    Renaming(Document& document, QJsonObject what)
        : document(document), what(std::move(what)), former(name().data().toString())
    {
        setText("rename");
    }

    void redo() override { document.model().setData(name(), what.value("name").toString()); }
    void undo() override { document.model().setData(name(), former); }
    QString kind() const override { return "test renaming"; }
    QJsonObject record() const override { return what; }

private:
    QModelIndex name() const { return document.model().index(what.value("row").toInt(), 0); }

    Document& document;
    const QJsonObject what;
    const QString former;
};

void rename(Document& document, int row, const QString& name)
{
    document.undoStack().push(new Renaming(document, {{"row", row}, {"name", name}}));
}

QStringList journals()
{
    return QDir(Journal::folder()).entryList({"*.journal"});
}

// The folder of the process that is to be killed.
constexpr const char* victim = "TOLVIK_TEST_VICTIM";
/// In milliseconds: with a sanitizer on a busy machine, a window takes a while.
constexpr int longest = 300000;

} // namespace

/// Edits that outlive the program.
class RecoveryTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        RecordedEdit::addMaker("test renaming", [](Document& document, const QJsonObject& record) {
            return std::unique_ptr<RecordedEdit>(new Renaming(document, record));
        });
    }

    void init()
    {
        OpenedWindow::useFoldersOfTests();
        QDir(Journal::folder()).removeRecursively();
    }

    /// Edits and is killed. What happens only in a process of its own, which the others start.
    void aSessionThatIsKilled()
    {
        if (!qEnvironmentVariableIsSet(victim)) {
            return;
        }
        OpenedWindow opened(QString{});
        opened.open(qEnvironmentVariable(victim));
        rename(opened.document(), 1, "One");
        rename(opened.document(), 2, "Two");
        QTreeView* const properties = opened.view("propertyTree");
        opened.select({"annex"});
        QTRY_VERIFY(cellAt(*properties, "Fields/MeasuredHeight").isValid());
        typeInto(*properties, cellAt(*properties, "Fields/MeasuredHeight"), "5.25");
        opened.select({"walk"});
        opened.action("removeFeature")->trigger();
        rename(opened.document(), 3, "Three");
        opened.document().undoStack().undo();
        rename(opened.document(), 4, "Four");
        rename(opened.document(), 5, "Five");
        opened.document().undoStack().undo();
        opened.document().undoStack().undo();
        opened.document().undoStack().redo();
        QTRY_VERIFY(!journals().isEmpty());
        ::raise(SIGKILL);
    }

    void editsAreDoneAgain()
    {
        QVERIFY(kill());
        OpenedWindow opened(QString{});
        offer(opened);
        QVERIFY2(notice(opened).contains("5 unsaved"), qPrintable(notice(opened)));
        recover(opened);
        QTRY_COMPARE(name(opened, 1), QString("One"));
        QCOMPARE(name(opened, 2), QString("Two"));
        QVERIFY(name(opened, 3) != "Three");
        QCOMPARE(name(opened, 4), QString("Four"));
        QVERIFY(name(opened, 5) != "Five");
        QVERIFY(opened.document().isModified());
        opened.document().undoStack().redo();
        QCOMPARE(name(opened, 5), QString("Five"));
        // The edits are in the journal of this window, and no longer in that of the killed one.
        QTRY_COMPARE(journals().size(), 1);
        QCOMPARE(opened.row("walk"), -1);
        opened.action("save")->trigger();
        QVERIFY(contentOf(file()).contains("Five"));
        QVERIFY(contentOf(file()).contains(">5.25</bldg:measuredHeight>"));
        QVERIFY(!contentOf(file()).contains("Heritage walk"));
        QCOMPARE(journals(), QStringList());
    }

    void aCancelledRecoveryCanBeDoneLater()
    {
        QVERIFY(kill());
        {
            OpenedWindow opened(QString{});
            offer(opened);
            connect(&opened.document().editRunner(), &EditRunner::begun, &opened.document().editRunner(),
                    &EditRunner::cancel);
            recover(opened);
            QVERIFY2(notice(opened).contains("cancelled"), qPrintable(notice(opened)));
            QVERIFY(name(opened, 1) != "One");
            QVERIFY(!opened.document().editRunner().isRunning());
        }
        OpenedWindow opened(QString{});
        offer(opened);
        recover(opened);
        QCOMPARE(name(opened, 1), QString("One"));
    }

    void anotherFileIsRefused_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::newRow("of another size") << QByteArray("Heron Viaduct");
        QTest::newRow("of the same size") << QByteArray("Crane Bridge");
    }
    void anotherFileIsRefused()
    {
        QFETCH(QByteArray, name);
        QVERIFY(kill());
        const QByteArray edited = contentOf(file());
        QVERIFY(edited.contains("Heron Bridge"));
        writeFile(file(), QByteArray(edited).replace("Heron Bridge", name));
        OpenedWindow opened(QString{});
        offer(opened);
        opened.button("recover")->click();
        QVERIFY2(notice(opened).contains("not the one"), qPrintable(notice(opened)));
        QVERIFY(!opened.document().isOpen());
        opened.button("discardRecovery")->click();
        QCOMPARE(journals(), QStringList());
    }

    void editsAreDiscarded()
    {
        QVERIFY(kill());
        OpenedWindow opened(QString{});
        offer(opened);
        opened.button("discardRecovery")->click();
        QCOMPARE(journals(), QStringList());
        QCOMPARE(Recovery::findAll().size(), std::size_t(0));
    }

    void aWindowThatIsOpenKeepsItsJournal()
    {
        OpenedWindow opened(examples() + "/district.gml");
        rename(opened.document(), 1, "One");
        QTRY_COMPARE(journals().size(), 1);
        QCOMPARE(Recovery::findAll().size(), std::size_t(0));
        opened.window.reset();
        QCOMPARE(journals(), QStringList());
    }

private:
    QString file() const { return folder.filePath("killed.gml"); }

    bool kill()
    {
        QFile::remove(file());
        QFile::copy(examples() + "/district.gml", file());
        QFile::setPermissions(file(), QFile::ReadOwner | QFile::WriteOwner);
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(victim, file());
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationFilePath(), {"aSessionThatIsKilled"});
        return process.waitForFinished(longest) && process.exitStatus() == QProcess::CrashExit &&
               journals().size() == 1;
    }

    static void offer(OpenedWindow& opened)
    {
        std::vector<std::unique_ptr<Recovery>> found = Recovery::findAll();
        QCOMPARE(found.size(), std::size_t(1));
        opened.window->offer(std::move(found.front()));
    }

    static void recover(OpenedWindow& opened)
    {
        QSignalSpy done(&opened.document().editRunner(), &EditRunner::ended);
        opened.button("recover")->click();
        QTRY_COMPARE(done.count(), 1);
    }

    static QString notice(const OpenedWindow& opened)
    {
        return opened.window->findChild<QLabel*>("noticeText")->text();
    }
    static QString name(OpenedWindow& opened, int row)
    {
        return opened.document().model().index(row, 0).data().toString();
    }

    QTemporaryDir folder;
};

TEST_CLASS(RecoveryTest, Widgets)
#include "recoverytest.moc"
