#include "apps/viewer/document/EditRunner.h"
#include "apps/viewer/edits/PropertyEdit.h"
#include "apps/viewer/files/FileCommands.h"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/PanelFixture.h"
#include "support/TestClass.h"
#include "viewer/OpenedWindow.h"

#include <functional>
#include <QAction>
#include <QLabel>
#include <QMessageBox>
#include <QtTest>

using namespace testsupport;
using namespace tolvik::viewer;

namespace {

constexpr int buildings = 400;
// Rows go one by one, and each has all others numbered anew.
constexpr int goingBuildings = 300;

/// A window with many buildings, all of them selected.
class Street : public OpenedWindow
{
public:
    /// \param note of each building, and of the last one
    explicit Street(const QByteArray& note = {}, const QByteArray& lastNote = {}, int size = buildings)
        : OpenedWindow(QString()), size(size)
    {
        QByteArray members;
        for (int i = 0; i < size; ++i) {
            members +=
                buildingMember("<gml:description>old</gml:description>" + (i == size - 1 ? lastNote : note),
                               "b" + QByteArray::number(i));
        }
        writeFile(file(), documentText(members));
        open(file());
        // No machine does an edit of so many features in a single slice then.
        runner().setSliceLength(std::chrono::milliseconds(1));
        selectBuildings();
        QObject::connect(&runner(), &EditRunner::ended, [this](const QString& why) {
            ++ends;
            refusal = why;
        });
    }

    EditRunner& runner() { return document().editRunner(); }
    QUndoStack& history() { return document().undoStack(); }
    QTreeView& properties() { return *view("propertyTree"); }

    void selectBuildings()
    {
        document().selection().select(
            QItemSelection(document().model().index(1, 0), document().model().index(size, 1)),
            QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        QTRY_VERIFY(cellAt(properties(), "Fields/Description").isValid());
        QTRY_VERIFY(text("propertyTitle").contains(QString::number(size)));
        QTRY_VERIFY(!text("propertyTitle").contains("Reading"));
    }
    QString text(const char* label) { return window->findChild<QLabel*>(label)->text(); }
    /// Makes all descriptions say something else, and waits for the end of that.
    bool describe(const QString& text)
    {
        const int before = ends;
        typeInto(properties(), cellAt(properties(), "Fields/Description"), text);
        return QTest::qWaitFor([this, before] { return ends > before; });
    }
    QByteArray saved()
    {
        action("save")->trigger();
        return contentOf(file());
    }
    /// Does something once when a part of the next edit is done.
    void onTheWay(const std::function<void()>& what)
    {
        auto* const once = new QObject(window.get());
        QObject::connect(&runner(), &EditRunner::progressed, once, [this, once, what](int done, int count) {
            if (done < count) {
                seenOnTheWay = done;
                once->deleteLater();
                // As a user, who acts before the next slice.
                QMetaObject::invokeMethod(window.get(), what, Qt::QueuedConnection);
            }
        });
    }

    const int size;
    int ends = 0;
    int seenOnTheWay = 0;
    QString refusal;
};

/// A generic attribute that is the number 7, or the text.
QByteArray attribute(const QByteArray& type)
{
    return "<gen:" + type + "Attribute name=\"note\"><gen:value>7</gen:value></gen:" + type + "Attribute>";
}

} // namespace

/// Edits of so many features that the window goes on meanwhile.
class EditRunnerTest : public QObject
{
    Q_OBJECT

private slots:
    void anEditOfManyIsOneStep()
    {
        Street street;
        const QByteArray before = contentOf(street.file());
        QVERIFY(street.describe("new"));
        QCOMPARE(street.history().count(), 1);
        QTRY_COMPARE(cellAt(street.properties(), "Fields/Description").data().toString(), QString("new"));
        QCOMPARE(street.saved().count(">new</gml:description>"), buildings);
        street.action("undo")->trigger();
        QVERIFY(street.runner().isRunning());
        QTRY_COMPARE(street.ends, 2);
        QCOMPARE(street.history().index(), 0);
        QTRY_COMPARE(cellAt(street.properties(), "Fields/Description").data().toString(), QString("old"));
        QCOMPARE(street.saved(), before);
        street.action("redo")->trigger();
        QTRY_COMPARE(street.ends, 3);
        QCOMPARE(street.history().index(), 1);
        QCOMPARE(street.saved().count(">new</gml:description>"), buildings);
    }

    void aCancelledEditLeavesNothing()
    {
        Street street;
        const QByteArray before = contentOf(street.file());
        street.onTheWay([&] { street.runner().cancel(); });
        QVERIFY(street.describe("new"));
        QVERIFY(street.seenOnTheWay > 0);
        QCOMPARE(street.refusal, QString());
        QCOMPARE(street.history().count(), 0);
        QVERIFY(!street.document().isModified());
        QTRY_COMPARE(cellAt(street.properties(), "Fields/Description").data().toString(), QString("old"));
        QCOMPARE(street.saved(), before);
    }

    void aCancelledUndoLeavesTheEdit()
    {
        Street street;
        const QByteArray before = contentOf(street.file());
        QVERIFY(street.describe("new"));
        street.onTheWay([&] { street.runner().cancel(); });
        street.action("undo")->trigger();
        QTRY_COMPARE(street.ends, 2);
        QVERIFY(street.seenOnTheWay > 0);
        QCOMPARE(street.history().index(), 1);
        QCOMPARE(street.saved().count(">new</gml:description>"), buildings);
        street.action("undo")->trigger();
        QTRY_COMPARE(street.ends, 3);
        QCOMPARE(street.saved(), before);
        street.onTheWay([&] { street.runner().cancel(); });
        street.action("redo")->trigger();
        QTRY_COMPARE(street.ends, 4);
        QCOMPARE(street.history().index(), 0);
        QCOMPARE(street.saved(), before);
    }

    void featuresAreRemovedInOneStep()
    {
        Street street({}, {}, goingBuildings);
        const QByteArray before = contentOf(street.file());
        street.action("removeFeature")->trigger();
        QVERIFY(street.runner().isRunning());
        QTRY_COMPARE(street.ends, 1);
        QCOMPARE(street.history().count(), 1);
        QCOMPARE(street.document().model().rowCount(), 1);
        QVERIFY(!street.saved().contains("Building"));
        street.action("undo")->trigger();
        QTRY_COMPARE(street.ends, 2);
        QCOMPARE(street.document().model().rowCount(), goingBuildings + 1);
        QCOMPARE(street.saved(), before);
        street.action("redo")->trigger();
        QTRY_COMPARE(street.ends, 3);
        QVERIFY(!street.saved().contains("Building"));
    }

    /// The last of the features refuses what all others take.
    void aRefusedEditLeavesNothing()
    {
        Street street(attribute("string"), attribute("int"));
        const QByteArray before = contentOf(street.file());
        PropertyEdit::Features features;
        for (int row = 1; row <= buildings; ++row) {
            features.push_back(street.document().model().getFeature(row));
        }
        const PropertyPath note{{"Fields", 1}, {"note", 1}};
        street.onTheWay([] {});
        QCOMPARE(
            street.runner().perform(PropertyEdit::prepare(street.document(), features, PropertyEdit::SetValue,
                                                          {MemberPlace::Property, note}, "many")),
            QString());
        QTRY_COMPARE(street.ends, 1);
        QVERIFY(street.seenOnTheWay > 0);
        QVERIFY2(street.refusal.contains("many"), qPrintable(street.refusal));
        QVERIFY(street.text("propertyMessage").contains("many"));
        QCOMPARE(street.history().count(), 0);
        QCOMPARE(street.saved(), before);
    }

    void nothingElseChangesTheDocumentMeanwhile()
    {
        Street street;
        const QByteArray before = contentOf(street.file());
        QString refusal;
        street.onTheWay([&] {
            refusal = street.runner().perform(PropertyEdit::prepare(
                street.document(), {street.document().model().getFeature(1)}, PropertyEdit::SetValue,
                {MemberPlace::Property, {{"Fields", 1}, {"Description", 1}}}, "mine"));
            QVERIFY(!street.action("save")->isEnabled());
            QVERIFY(!street.window->files().save());
            street.window->open(street.file());
            QVERIFY(!street.window->close());
        });
        QVERIFY(street.describe("new"));
        QVERIFY(!refusal.isEmpty());
        QCOMPARE(street.history().count(), 1);
        QCOMPARE(contentOf(street.file()), before);
        QVERIFY(!street.window->files().isReading());
        QVERIFY(street.action("save")->isEnabled());
        QCOMPARE(street.saved().count(">new</gml:description>"), buildings);
    }

    /// A document that was being read takes the place of the present one only when the edit is done.
    void aDocumentThatHasBeenReadWaits()
    {
        Street street;
        QSignalSpy opened(&street.window->files(), &FileCommands::opened);
        street.action("reload")->trigger();
        street.onTheWay([&] {
            QThread::msleep(200);
            QCOMPARE(opened.count(), 0);
        });
        OpenedWindow::answer(QMessageBox::Discard);
        QVERIFY(street.describe("new"));
        QTRY_COMPARE(opened.count(), 1);
        QVERIFY(!street.document().isModified());
        QVERIFY(!street.saved().contains("new"));
    }
};

TEST_CLASS(EditRunnerTest, Widgets)
#include "editrunnertest.moc"
