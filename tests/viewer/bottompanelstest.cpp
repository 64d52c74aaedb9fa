#include "apps/viewer/document/Document.h"
#include "apps/viewer/log/LogAppender.h"
#include "framework/EditRangeDialog.h"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/PanelFixture.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "viewer/OpenedWindow.h"

#include <log4cplus/logger.h>
#include <log4cplus/loggingmacros.h>
#include <QClipboard>
#include <QComboBox>
#include <QDockWidget>
#include <QDoubleSpinBox>
#include <QSemaphore>
#include <QThreadPool>
#include <QtTest>

using namespace testsupport;
using namespace tolvik::viewer;

/// The findings, the log, and what else the window tells and lets set.
class BottomPanelsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { LogAppender::install(); }
    void init()
    {
        opened = std::make_unique<OpenedWindow>(QString());
        const QByteArray fault = "<bldg:measuredHeight uom=\"m\">tall</bldg:measuredHeight>";
        writeFile(opened->path("faults.gml"),
                  documentText(buildingMember("", "sound") + buildingMember(fault, "faulty")));
        QVERIFY(opened->open(opened->path("faults.gml")));
    }
    void cleanup() { opened.reset(); }

    void aFindingLeadsToItsFeature()
    {
        QTreeView* const findings = opened->view("findings");
        QCOMPARE(findings->model()->rowCount(), 1);
        const QModelIndex reason = findings->model()->index(0, 1);
        QVERIFY2(reason.data().toString().contains("tall"), qPrintable(reason.data().toString()));
        QCOMPARE(opened->window->findChild<QDockWidget*>("findingsPanelDock")->windowTitle(),
                 QString("Findings (1)"));
        QTRY_VERIFY(findings->isVisible());
        QTest::mouseClick(findings->viewport(), Qt::LeftButton, Qt::NoModifier,
                          findings->visualRect(reason).center());
        QCOMPARE(opened->selected(), QStringList{"faulty"});
    }

    void anotherDocumentHasOtherFindings()
    {
        writeFile(opened->path("sound.gml"), documentText(buildingMember("", "sound")));
        QVERIFY(opened->open(opened->path("sound.gml")));
        QCOMPARE(opened->view("findings")->model()->rowCount(), 0);
        QCOMPARE(opened->window->findChild<QDockWidget*>("findingsPanelDock")->windowTitle(),
                 QString("Findings"));
    }

    void manyFindingsOfAKindAreCounted()
    {
        QByteArray members;
        for (int i = 0; i < 1002; ++i) {
            members += buildingMember("<bldg:measuredHeight uom=\"m\">tall</bldg:measuredHeight>",
                                      "b" + QByteArray::number(i));
        }
        writeFile(opened->path("faults.gml"), documentText(members));
        QVERIFY(opened->open(opened->path("faults.gml")));
        const QStringList all = reasons(*opened->view("findings"));
        QCOMPARE(all.size(), 1001);
        QVERIFY2(all.last().startsWith("2 more"), qPrintable(all.last()));
        QCOMPARE(opened->window->findChild<QDockWidget*>("findingsPanelDock")->windowTitle(),
                 "Findings (" + QLocale().toString(1002) + ')');
    }

    void aSaveBringsTheFindingsOfWhatWasSaved()
    {
        const QByteArray faults =
            buildingMember("<bldg:measuredHeight>tall</bldg:measuredHeight>", "faulty") + "\n" +
            buildingMember("<bldg:storeysAboveGround>few</bldg:storeysAboveGround>", "low");
        writeFile(opened->path("faults.gml"), documentText(faults));
        QVERIFY(opened->open(opened->path("faults.gml")));
        QTreeView* const findings = opened->view("findings");
        const QStringList former = reasons(*findings);
        QCOMPARE(former.size(), 3);
        opened->select({"low"});
        QTreeView* const properties = opened->view("propertyTree");
        opened->button("showAbsent")->setChecked(true);
        QTRY_VERIFY(cellAt(*properties, "Fields/StoreysAboveGround").isValid());
        typeInto(*properties, cellAt(*properties, "Fields/StoreysAboveGround"), "3");
        QCOMPARE(reasons(*findings), former);
        opened->action("save")->trigger();
        QTRY_COMPARE(reasons(*findings).size(), 2);
        QVERIFY(former.filter("few").size() == 1);
        QVERIFY(reasons(*findings).filter("few").isEmpty());
        QCOMPARE(opened->window->findChild<QDockWidget*>("findingsPanelDock")->windowTitle(),
                 QString("Findings (2)"));
    }

    void anotherDocumentEndsTheLookAtTheSavedOne()
    {
        QThreadPool& pool = *QThreadPool::globalInstance();
        const int threads = pool.maxThreadCount();
        pool.setMaxThreadCount(1);
        QSemaphore isOpen;
        pool.start([&isOpen] { isOpen.acquire(); });
        opened->action("save")->trigger();
        writeFile(opened->path("sound.gml"), documentText(buildingMember("", "sound")));
        const bool isThere = opened->open(opened->path("sound.gml"));
        isOpen.release();
        pool.waitForDone();
        pool.setMaxThreadCount(threads);
        QVERIFY(isThere);
        QCoreApplication::processEvents();
        QCOMPARE(opened->view("findings")->model()->rowCount(), 0);
    }

    void theLogIsFilteredAndCopied()
    {
        const log4cplus::Logger logger = log4cplus::Logger::getInstance("viewertest");
        LOG4CPLUS_ERROR(logger, "something is broken");
        LOG4CPLUS_WARN(logger, "something is odd");
        QTreeView* const log = opened->view("log");
        const QStringList all = texts(*log);
        QVERIFY(all.contains("something is broken"));
        QVERIFY(all.contains("something is odd"));
        auto* const levels = opened->window->findChild<QComboBox*>("logLevel");
        levels->setCurrentIndex(2);
        QCOMPARE(texts(*log), QStringList{"something is broken"});
        log->setFocus();
        log->selectAll();
        QTest::keyClick(log, Qt::Key_C, Qt::ControlModifier);
        const QStringList fields = QGuiApplication::clipboard()->text().split('\t');
        QCOMPARE(fields.size(), 3);
        QCOMPARE(fields.mid(1), QStringList({"Error", "something is broken"}));
    }

    void theSettingsAreReachedAndRemembered()
    {
        double first = 0;
        const auto inDialog =
            [&](const std::function<void(tolvik::EditRangeDialog&, QDoubleSpinBox&)>& work) {
                bool wasShown = false;
                QTimer::singleShot(0, this, [&] {
                    auto* const dialog =
                        qobject_cast<tolvik::EditRangeDialog*>(QApplication::activeModalWidget());
                    QVERIFY(dialog != nullptr);
                    wasShown = true;
                    work(*dialog, *dialog->findChild<QDoubleSpinBox*>());
                });
                opened->action("settings")->trigger();
                QVERIFY(wasShown);
            };
        inDialog([&](tolvik::EditRangeDialog& dialog, QDoubleSpinBox& line) {
            first = line.value();
            line.setValue(first - 5);
            dialog.accept();
        });
        inDialog([&](tolvik::EditRangeDialog& dialog, QDoubleSpinBox& line) {
            QCOMPARE(line.value(), first - 5);
            line.setValue(1);
            dialog.reject();
        });
        inDialog([&](tolvik::EditRangeDialog& dialog, QDoubleSpinBox& line) {
            QCOMPARE(line.value(), first - 5);
            dialog.reject();
        });
    }

private:
    static QStringList reasons(const QTreeView& findings)
    {
        QStringList all;
        for (int row = 0; row < findings.model()->rowCount(); ++row) {
            all.append(findings.model()->index(row, 1).data().toString());
        }
        return all;
    }

    static QStringList texts(const QTreeView& log)
    {
        QStringList messages;
        for (int row = 0; row < log.model()->rowCount(); ++row) {
            messages.append(log.model()->index(row, 2).data().toString());
        }
        return messages;
    }

    std::unique_ptr<OpenedWindow> opened;
};

TEST_CLASS(BottomPanelsTest, Widgets)
#include "bottompanelstest.moc"
