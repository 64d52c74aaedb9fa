#include "apps/viewer/recovery/Recovery.h"
#include "apps/viewer/document/Document.h"
#include "apps/viewer/document/RecordedEdit.h"
#include "apps/viewer/edits/PropertyEdit.h"
#include "apps/viewer/files/FileCommands.h"
#include "apps/viewer/recovery/Journal.h"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/PanelFixture.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "viewer/OpenedWindow.h"

#include <algorithm>
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
    Renaming(tolvik::viewer::Document& document, QJsonObject what)
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

    tolvik::viewer::Document& document;
    const QJsonObject what;
    const QString former;
};

void rename(tolvik::viewer::Document& document, int row, const QString& name)
{
    document.undoStack().push(new Renaming(document, {{"row", row}, {"name", name}}));
}

constexpr int buildings = 400;
// At least so many there are, where each is as short as it can be.
constexpr int slicesOfEdit = buildings / 100;

QByteArray street()
{
    QByteArray members;
    for (int i = 0; i < buildings; ++i) {
        members += buildingMember("<gml:description>old</gml:description>", "b" + QByteArray::number(i));
    }
    return documentText(members);
}

/// Gives all buildings of the street a description.
std::unique_ptr<PropertyEdit> describing(tolvik::viewer::Document& document, const QString& text)
{
    PropertyEdit::Features features;
    for (int row = 1; row < document.model().rowCount(); ++row) {
        features.push_back(document.model().getFeature(row));
    }
    return PropertyEdit::prepare(document, features, PropertyEdit::SetValue,
                                 {MemberPlace::Property, {{"Fields", 1}, {"Description", 1}}}, text);
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
        RecordedEdit::addMaker("test renaming",
                               [](tolvik::viewer::Document& document, const QJsonObject& record) {
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
        EditRunner& runner = opened.document().editRunner();
        QString refusal;
        connect(&runner, &EditRunner::begun, opened.window.get(), [&] {
            // Between two edits that are done again there is no place for another one.
            refusal = runner.perform(describing(opened.document(), "mine"));
        });
        recover(opened);
        QVERIFY(!refusal.isEmpty());
        QCOMPARE(opened.document().undoStack().count(), 6);
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

    /// As the one before, with edits of so many features that each takes slices: the second one is undone.
    void aLargeSessionThatIsKilled()
    {
        if (!qEnvironmentVariableIsSet(victim)) {
            return;
        }
        OpenedWindow opened(QString{});
        opened.open(qEnvironmentVariable(victim));
        EditRunner& runner = opened.document().editRunner();
        for (const char* const text : {"new", "newer"}) {
            QCOMPARE(runner.perform(describing(opened.document(), text)), QString());
            QTRY_VERIFY(!runner.isRunning());
        }
        runner.undo();
        QTRY_VERIFY(!runner.isRunning());
        QTRY_VERIFY(!journals().isEmpty());
        ::raise(SIGKILL);
    }

    void editsOfManyFeaturesAreDoneAgainInSlices()
    {
        QVERIFY(killLarge());
        OpenedWindow opened(QString{});
        offer(opened);
        EditRunner& runner = opened.document().editRunner();
        QVector<int> parts;
        QString refusal;
        connect(&runner, &EditRunner::progressed, opened.window.get(), [&](int done) {
            parts.append(done);
            if (parts.size() > 1 && refusal.isEmpty()) {
                // Nobody else edits or saves meanwhile.
                refusal = runner.perform(describing(opened.document(), "mine"));
                runner.undo();
                QVERIFY(!opened.window->files().save());
                QVERIFY(!opened.window->close());
            }
        });
        recover(opened);
        QVERIFY(!refusal.isEmpty());
        QVERIFY(parts.size() > 3 * slicesOfEdit);
        QVERIFY(std::is_sorted(parts.begin(), parts.end()));
        QCOMPARE(opened.document().undoStack().count(), 2);
        QCOMPARE(opened.document().undoStack().index(), 1);
        QCOMPARE(saved(opened).count(">new</gml:description>"), buildings);
        runner.undo();
        QTRY_VERIFY(!runner.isRunning());
        QCOMPARE(saved(opened), street());
    }

    void aRecoveryIsCancelledWithinAnEdit_data()
    {
        QTest::addColumn<double>("when");
        QTest::addColumn<int>("edits");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("in the first edit") << 0.2 << 0 << QByteArray("old");
        QTest::newRow("in the second edit") << 0.5 << 1 << QByteArray("new");
        QTest::newRow("in the undo") << 0.8 << 2 << QByteArray("newer");
    }

    /// What was under way is taken back, and those before stay.
    void aRecoveryIsCancelledWithinAnEdit()
    {
        QFETCH(double, when);
        QFETCH(int, edits);
        QFETCH(QByteArray, text);
        QVERIFY(killLarge());
        OpenedWindow opened(QString{});
        offer(opened);
        EditRunner& runner = opened.document().editRunner();
        connect(&runner, &EditRunner::progressed, opened.window.get(), [&](int done, int count) {
            if (done > when * count) {
                QMetaObject::invokeMethod(&runner, &EditRunner::cancel, Qt::QueuedConnection);
            }
        });
        recover(opened);
        QVERIFY2(notice(opened).contains("cancelled"), qPrintable(notice(opened)));
        QCOMPARE(opened.document().undoStack().count(), edits);
        QCOMPARE(opened.document().undoStack().index(), edits);
        QCOMPARE(saved(opened).count('>' + text + "</gml:description>"), buildings);
        // The journal is there until it is discarded.
        QCOMPARE(journals().size(), 1);
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

    bool kill() { return kill(contentOf(examples() + "/district.gml"), "aSessionThatIsKilled"); }
    bool killLarge() { return kill(street(), "aLargeSessionThatIsKilled"); }

    /// Lets a session in a process of its own edit a document.
    bool kill(const QByteArray& document, const QString& session)
    {
        writeFile(file(), document);
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(victim, file());
        process.setProcessEnvironment(environment);
        process.start(QCoreApplication::applicationFilePath(), {session});
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
        opened.document().editRunner().setSliceLength(std::chrono::milliseconds(0));
        QSignalSpy done(&opened.document().editRunner(), &EditRunner::ended);
        opened.button("recover")->click();
        // That may be over a thousand slices on a machine that is busy.
        QTRY_COMPARE_WITH_TIMEOUT(done.count(), 1, 60000);
    }

    static QByteArray saved(OpenedWindow& opened)
    {
        opened.window->files().save();
        return contentOf(opened.document().fileName());
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
