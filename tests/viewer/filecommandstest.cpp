#include "apps/viewer/files/FileCommands.h"
#include "apps/viewer/document/Document.h"
#include "apps/viewer/features/FeatureBrowser.h"
#include "apps/viewer/files/RecentFiles.h"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "viewer/OpenedWindow.h"

#include <csignal>
#include <QDropEvent>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QtTest>
#include <sys/resource.h>
#include <unistd.h>

using namespace testsupport;
using namespace tolvik;
using namespace tolvik::viewer;

namespace {

/// Renames a feature as long as nothing else can.
class Rename : public QUndoCommand
{
public:
    Rename(CityGMLModel& model, int row, const QString& name)
        : QUndoCommand("Rename"), model(model), row(row), name(name),
          former(model.index(row, 0).data().toString())
    {
    }
    void redo() override { model.setData(model.index(row, 0), name); }
    void undo() override { model.setData(model.index(row, 0), former); }

private:
    CityGMLModel& model;
    const int row;
    const QString name, former;
};

} // namespace

/// Opening, reloading and saving in the window.
class FileCommandsTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { opened = std::make_unique<OpenedWindow>(examples() + "/district.gml"); }
    void cleanup() { opened.reset(); }

    void theTitleNamesTheDocumentAndItsEdits()
    {
        QCOMPARE(opened->window->windowTitle(), QString("document.gml[*] - Tolvik"));
        QVERIFY(!opened->window->isWindowModified());
        rename("pier", "Other");
        QVERIFY(opened->window->isWindowModified());
        opened->action("undo")->trigger();
        QVERIFY(!opened->window->isWindowModified());
    }

    void aReloadKeepsTheView()
    {
        QTreeView* const tree = opened->view("featureTree");
        opened->select({"chapel"});
        opened->action("hide")->trigger();
        opened->select({"lark-tunnel"});
        opened->action("disable")->trigger();
        opened->select({"pier"});
        tree->collapseAll();
        tree->expand(tree->model()->index(0, 0));
        tree->expand(node("heron-bridge"));
        const QStringList texts = shownTexts(*tree);
        reload();
        QCOMPARE(opened->selected(), QStringList{"pier"});
        QCOMPARE(node("pier"), tree->currentIndex());
        QCOMPARE(shownTexts(*tree), texts);
        QCOMPARE(node("bell").data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
        QCOMPARE(node("pier").data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
        const tolvik::CityGMLModel& model = opened->document().model();
        QVERIFY(model.isDisabled(model.getFeature(opened->row("lark-tunnel"))));
        QVERIFY(!model.isDisabled(model.getFeature(opened->row("pier"))));
    }

    void aDocumentThatCannotBeReadLeavesTheOpenOne()
    {
        opened->select({"pier"});
        const QString broken = opened->path("broken.gml");
        writeFile(broken, documentText("") + "<x>");
        opened->window->open(broken);
        auto* const text = opened->window->findChild<QLabel*>("noticeText");
        QTRY_VERIFY(text->isVisible());
        QVERIFY2(text->text().contains("broken.gml") && text->text().contains("junk"),
                 qPrintable(text->text()));
        QCOMPARE(opened->document().fileName(), opened->file());
        QCOMPARE(opened->window->windowTitle(), QString("document.gml[*] - Tolvik"));
        QCOMPARE(opened->selected(), QStringList{"pier"});
        const QAbstractItemModel* const log = opened->view("log")->model();
        // The view of the former document may tell something after it.
        QCOMPARE(log->match(log->index(0, 2), Qt::DisplayRole, "junk", 1, Qt::MatchContains).size(), 1);
    }

    void aReadingIsCancelled()
    {
        opened->window->open(largeDocument());
        QVERIFY(opened->button("cancel")->isVisible());
        opened->button("cancel")->click();
        QTRY_VERIFY(!opened->window->files().isReading());
        QCOMPARE(opened->document().fileName(), opened->file());
        QVERIFY(!opened->button("cancel")->isVisible());
    }

    void theWindowIsClosedWhileItReads()
    {
        opened->window->open(largeDocument());
        QVERIFY(opened->window->close());
        opened.reset();
    }

    void anotherDocumentIsAskedForWhileOneIsRead()
    {
        opened->window->open(largeDocument());
        QVERIFY(opened->open(examples() + "/energy.gml"));
        QCOMPARE(opened->document().fileName(), QFileInfo(examples() + "/energy.gml").canonicalFilePath());
    }

    void anEditIsSaved()
    {
        rename("pier", "Northern pier");
        opened->action("save")->trigger();
        QVERIFY(!opened->document().isModified());
        QVERIFY(contentOf(opened->file()).contains("Northern pier"));
        reload();
        QCOMPARE(node("pier").data().toString(), QString("Northern pier"));
    }

    void aSaveChangesNothingElse()
    {
        const QByteArray before = contentOf(opened->file());
        opened->action("save")->trigger();
        QCOMPARE(contentOf(opened->file()), before);
        rename("pier", "Northern pier");
        opened->action("save")->trigger();
        QByteArray expected = before;
        QVERIFY(expected.count("<gml:name>Middle pier</gml:name>") == 1);
        expected.replace("<gml:name>Middle pier</gml:name>", "<gml:name>Northern pier</gml:name>");
        QCOMPARE(contentOf(opened->file()), expected);
        opened->action("undo")->trigger();
        QVERIFY(opened->document().isModified());
        opened->action("save")->trigger();
        QCOMPARE(contentOf(opened->file()), before);
    }

    void editsWaitWhileTheDocumentIsWritten()
    {
        rename("pier", "Northern pier");
        QVERIFY(opened->action("undo")->isEnabled());
        QVector<bool> wasEnabled;
        connect(
            &opened->window->files(), &FileCommands::savingChanged, this,
            [&] {
                wasEnabled.append(opened->action("undo")->isEnabled() ||
                                  opened->action("reload")->isEnabled());
            },
            Qt::QueuedConnection);
        opened->action("save")->trigger();
        QCoreApplication::processEvents();
        QCOMPARE(wasEnabled, QVector<bool>({false, true}));
    }

    void aCopyIsRepaired()
    {
        const QString broken = opened->path("twice.gml");
        writeFile(broken, documentText(buildingMember("", "b") + buildingMember("", "b")));
        opened->window->open(broken);
        QTRY_VERIFY(opened->button("repair") != nullptr);
        QTimer::singleShot(200, this, [] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog != nullptr);
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        QSignalSpy done(&opened->window->files(), &FileCommands::opened);
        opened->button("repair")->click();
        QVERIFY(done.size() == 1 || done.wait());
        QCOMPARE(QFileInfo(opened->document().fileName()).fileName(), QString("twice-repaired.gml"));
        QCOMPARE(opened->document().model().rowCount(), 3);
    }

    void aSaveThatFailsSaysSo()
    {
        if (::geteuid() == 0) {
            // Nothing is write-protected for root but what is no file.
            QVERIFY(QFile::remove(opened->file()));
            QVERIFY(QDir().mkdir(opened->file()));
            OpenedWindow::answer(QMessageBox::Save);
        } else {
            QFile::setPermissions(opened->file(), QFile::ReadOwner);
        }
        rename("pier", "Northern pier");
        opened->action("save")->trigger();
        QVERIFY(opened->document().isModified());
        auto* const text = opened->window->findChild<QLabel*>("noticeText");
        QVERIFY(text->isVisible());
        QVERIFY2(text->text().contains("could not be saved"), qPrintable(text->text()));
    }

    void aFullDiskLeavesTheFile()
    {
        const QByteArray before = contentOf(opened->file());
        rename("pier", "Northern pier");
        {
            // No file may become longer than this, as if there were no more room.
            struct ::rlimit former = {};
            ::getrlimit(RLIMIT_FSIZE, &former);
            const struct ::rlimit small = {1000, former.rlim_max};
            std::signal(SIGXFSZ, SIG_IGN);
            ::setrlimit(RLIMIT_FSIZE, &small);
            opened->action("save")->trigger();
            ::setrlimit(RLIMIT_FSIZE, &former);
        }
        QVERIFY(opened->document().isModified());
        auto* const text = opened->window->findChild<QLabel*>("noticeText");
        QVERIFY(text->isVisible());
        QVERIFY2(text->text().contains("could not be saved"), qPrintable(text->text()));
        QCOMPARE(contentOf(opened->file()), before);
        QCOMPARE(QDir(opened->path(QString())).entryList({".document*"}, QDir::Files | QDir::Hidden),
                 QStringList());
        opened->action("save")->trigger();
        QVERIFY(!opened->document().isModified());
    }

    void unsavedEditsAreAskedFor()
    {
        rename("pier", "Northern pier");
        OpenedWindow::answer(QMessageBox::Cancel);
        QVERIFY(!opened->window->close());
        QVERIFY(opened->document().isModified());
        OpenedWindow::answer(QMessageBox::Cancel);
        opened->window->open(examples() + "/energy.gml");
        QVERIFY(!opened->window->files().isReading());
        OpenedWindow::answer(QMessageBox::Save);
        QVERIFY(opened->window->close());
        QVERIFY(contentOf(opened->file()).contains("Northern pier"));
    }

    void editsAreGivenUp()
    {
        const QByteArray before = contentOf(opened->file());
        rename("pier", "Northern pier");
        OpenedWindow::answer(QMessageBox::Discard);
        QVERIFY(opened->window->close());
        QCOMPARE(contentOf(opened->file()), before);
    }

    void aChangeByAnotherProgramIsNoticed()
    {
        QByteArray content = contentOf(opened->file());
        writeFile(opened->file(), content.replace("Lark Tunnel", "Wren Tunnel"));
        auto* const text = opened->window->findChild<QLabel*>("noticeText");
        QTRY_VERIFY(text->isVisible());
        QVERIFY(text->text().contains("Another program"));
        QSignalSpy done(&opened->window->files(), &FileCommands::opened);
        opened->button("reloadChanged")->click();
        QVERIFY(done.wait());
        QCOMPARE(node("lark-tunnel").data().toString(), QString("Wren Tunnel"));
        QVERIFY(!text->isVisible());
        // And so is the next one.
        writeFile(opened->file(), content.replace("Wren Tunnel", "Larch Tunnel"));
        QTRY_VERIFY(text->isVisible());
    }

    void aFileThatAnotherProgramHasChangedIsNotOverwrittenUnasked()
    {
        rename("pier", "Northern pier");
        const QByteArray other = contentOf(opened->file()) + "<!-- other -->";
        writeFile(opened->file(), other);
        OpenedWindow::answer(QMessageBox::Cancel);
        opened->action("save")->trigger();
        QCOMPARE(contentOf(opened->file()), other);
        QVERIFY(opened->document().isModified());
        OpenedWindow::answer(QMessageBox::Save);
        opened->action("save")->trigger();
        QVERIFY(!opened->document().isModified());
    }

    void ofSeveralDroppedDocumentsEachHasAWindow()
    {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(examples() + "/energy.gml"),
                      QUrl::fromLocalFile(examples() + "/utility.gml")});
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(opened->window.get(), &enter);
        QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(opened->window.get(), &drop);
        MainWindow* other = nullptr;
        for (QWidget* const each : QApplication::topLevelWidgets()) {
            auto* const window = qobject_cast<MainWindow*>(each);
            other = window != nullptr && window != opened->window.get() ? window : other;
        }
        if (other == nullptr) {
            QFAIL("no other window");
        }
        QTRY_VERIFY(opened->document().fileName().endsWith("energy.gml"));
        QTRY_VERIFY(other->document().fileName().endsWith("utility.gml"));
        QPointer<MainWindow> closed(other);
        QVERIFY(other->close());
        QTRY_VERIFY(closed.isNull());
    }

    void aDroppedDocumentIsOpened()
    {
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(examples() + "/energy.gml")});
        QSignalSpy done(&opened->window->files(), &FileCommands::opened);
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(opened->window.get(), &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(opened->window.get(), &drop);
        QVERIFY(done.wait());
        QVERIFY(opened->document().fileName().endsWith("energy.gml"));
    }

    void documentsThatWereOpenedAreRemembered()
    {
        QVERIFY(opened->open(examples() + "/energy.gml"));
        QCOMPARE(recentFiles::list(),
                 QStringList({QFileInfo(examples() + "/energy.gml").canonicalFilePath(), opened->file()}));
        QVERIFY(opened->open(opened->file()));
        QCOMPARE(recentFiles::list(),
                 QStringList({opened->file(), QFileInfo(examples() + "/energy.gml").canonicalFilePath()}));
    }

private:
    void rename(const QString& identifier, const QString& name)
    {
        opened->document().undoStack().push(
            new Rename(opened->document().model(), opened->row(identifier), name));
    }
    QModelIndex node(const QString& identifier)
    {
        return opened->document().tree().mapFromSource(
            opened->document().model().index(opened->row(identifier), 0));
    }
    void reload()
    {
        QSignalSpy done(&opened->window->files(), &FileCommands::opened);
        opened->action("reload")->trigger();
        QVERIFY(done.wait());
    }
    QString largeDocument() const
    {
        QByteArray members;
        for (int i = 0; i < 50000; ++i) {
            members += buildingMember("<gml:description>x</gml:description>", "b" + QByteArray::number(i));
        }
        QString path = opened->path("large.gml");
        writeFile(path, documentText(members));
        return path;
    }

    std::unique_ptr<OpenedWindow> opened;
};

TEST_CLASS(FileCommandsTest, Widgets)
#include "filecommandstest.moc"
