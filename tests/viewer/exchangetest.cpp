#include "apps/viewer/document/Document.h"
#include "apps/viewer/document/RecordedEdit.h"
#include "apps/viewer/exchange/ExportDialog.h"
#include "apps/viewer/exchange/ImportDialog.h"
#include "apps/viewer/table/AttributeTable.h"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "viewer/OpenedWindow.h"

#include <functional>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QtTest>

using namespace testsupport;
using namespace tolvik::viewer;

namespace {

bool isGdalLoaded()
{
    return contentOf("/proc/self/maps").contains("libgdal");
}

/// Answers dialogs that open one after the other, as they come.
class Answers
{
public:
    /// \param isReady whether the dialog can be answered yet
    template <class Dialog>
    Answers& add(
        const std::function<void(Dialog&)>& answer,
        const std::function<bool(const Dialog&)>& isReady = [](const Dialog&) { return true; })
    {
        steps.append([answer, isReady](QWidget* shown) {
            auto* const dialog = qobject_cast<Dialog*>(shown);
            if (dialog == nullptr || !dialog->isVisible() || !isReady(*dialog)) {
                return false;
            }
            answer(*dialog);
            return true;
        });
        return *this;
    }

    Answers& file(const QString& path, const QString& filter = QString())
    {
        return add<QFileDialog>([path, filter](QFileDialog& dialog) {
            if (!filter.isEmpty()) {
                dialog.selectNameFilter(filter);
            }
            dialog.selectFile(path);
            static_cast<QDialog&>(dialog).done(QDialog::Accepted);
        });
    }

    /// Starts something that opens the dialogs, and goes on when they are closed.
    /// \return whether all of them came
    bool during(QAction* action)
    {
        QTimer timer;
        timer.setInterval(5);
        QObject::connect(&timer, &QTimer::timeout, [this] {
            QWidget* const shown = QApplication::activeModalWidget();
            if (shown != nullptr && !steps.isEmpty() && !isAnswering) {
                isAnswering = true;
                const auto step = steps.first();
                if (step(shown)) {
                    steps.removeFirst();
                }
                isAnswering = false;
            }
        });
        // A dialog that nobody answers would stay for ever.
        QTimer::singleShot(20000, &timer, [] {
            if (auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                dialog->reject();
            }
        });
        timer.start();
        action->trigger();
        return steps.isEmpty();
    }

private:
    QVector<std::function<bool(QWidget*)>> steps;
    bool isAnswering = false;
};

QPushButton& importButton(const ImportDialog& dialog)
{
    return *dialog.findChild<QPushButton*>("import");
}

QString messageOf(const ImportDialog& dialog)
{
    return dialog.findChild<QLabel*>("importMessage")->text();
}

/// The rows of the preview, with bars between the cells.
QStringList previewOf(const ImportDialog& dialog)
{
    const QAbstractItemModel& model = *dialog.findChild<QTableView*>("importPreview")->model();
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column) {
            cells += model.index(row, column).data().toString();
        }
        rows += cells.join('|');
    }
    return rows;
}

bool isCompared(const ImportDialog& dialog)
{
    return messageOf(dialog).contains("change");
}

} // namespace

/// File > Export Table and File > Import Table.
class ExchangeTest : public QObject
{
    Q_OBJECT

private:
    bool writeTable(const QByteArray& text) { return writeFile(opened->path("t.csv"), text); }

    /// Opens the dialog with the table, and gives it away when it has been compared with the document.
    bool compare(const std::function<void(ImportDialog&)>& use)
    {
        return Answers()
            .file(opened->path("t.csv"))
            .add<ImportDialog>(use, isCompared)
            .during(opened->action("importTable"));
    }

    QByteArray saved()
    {
        opened->action("save")->trigger();
        return contentOf(opened->file());
    }

    /// Imports a table, and goes back and forth in the history.
    void verifyImport(const QByteArray& table, const QByteArray& wanted)
    {
        const QByteArray before = contentOf(opened->document().fileName());
        QVERIFY(writeTable(table));
        QVERIFY(compare([](ImportDialog& dialog) {
            QVERIFY2(importButton(dialog).isEnabled(), qPrintable(previewOf(dialog).join('\n')));
            importButton(dialog).click();
        }));
        const auto saved = [this] {
            opened->action("save")->trigger();
            return contentOf(opened->document().fileName());
        };
        QUndoStack& history = opened->document().undoStack();
        QCOMPARE(history.count(), 1);
        const QByteArray after = saved();
        QVERIFY2(after.contains(wanted), after);
        const auto& step = dynamic_cast<const RecordedEdit&>(*history.command(0));
        const QString kind = step.kind();
        const QJsonObject record = step.record();
        history.undo();
        QCOMPARE(saved(), before);
        history.push(SlicedEdit::remake(kind, opened->document(), record).release());
        QCOMPARE(saved(), after);
    }

    std::unique_ptr<OpenedWindow> opened;

private slots:
    void init() { opened = std::make_unique<OpenedWindow>(examples() + "/district.gml"); }
    void cleanup() { opened.reset(); }

    void gdalWaitsUntilItIsAskedFor()
    {
        QVERIFY(!isGdalLoaded());
        QVERIFY(Answers()
                    .add<ExportDialog>([](ExportDialog& dialog) { dialog.reject(); })
                    .during(opened->action("exportTable")));
        QVERIFY(isGdalLoaded());
    }

    void anImportIsShownBeforeItIsDone()
    {
        QVERIFY(writeTable("gml:id,Fields/MeasuredHeight,gen:owner,name\n"
                           "lantern-house,9.5,Society of Lamplighters,\nannex,,,Shed\n"));
        QVERIFY(compare([](ImportDialog& dialog) {
            QCOMPARE(previewOf(dialog),
                     (QStringList{"lantern-house|Fields/MeasuredHeight|9|9.5", "annex|name|Annex|Shed"}));
            QCOMPARE(messageOf(dialog), QString("2 change(s)"));
            dialog.reject();
        }));
        QCOMPARE(opened->document().undoStack().count(), 0);
        QCOMPARE(saved(), contentOf(examples() + "/district.gml"));
    }

    void anImportIsOneStepThatChangesNothingElse()
    {
        QVERIFY(writeTable("gml:id,Fields/MeasuredHeight,gen:owner\n"
                           "lantern-house,9.5,Ada\nannex,3.25,\n"));
        QVERIFY(compare([](ImportDialog& dialog) { importButton(dialog).click(); }));
        QUndoStack& history = opened->document().undoStack();
        QCOMPARE(history.count(), 1);
        QCOMPARE(history.text(0), QString("import of t.csv"));
        QVERIFY(opened->document().isModified());
        const QByteArray before = contentOf(opened->file());
        const QByteArray after = saved();
        QVERIFY(after.contains(">9.5<") && after.contains(">3.25<") && after.contains(">Ada<"));
        const QList<QByteArray> lines = before.split('\n');
        const QList<QByteArray> newLines = after.split('\n');
        QCOMPARE(newLines.size(), lines.size());
        int differing = 0;
        for (int i = 0; i < lines.size(); ++i) {
            differing += lines[i] != newLines[i] ? 1 : 0;
        }
        QCOMPARE(differing, 3);
        opened->action("undo")->trigger();
        QCOMPARE(saved(), before);
        opened->action("redo")->trigger();
        QCOMPARE(saved(), after);
    }

    void anAbsentMeasureComesWithItsUnit()
    {
        QVERIFY(writeFile(opened->path("bare.gml"), documentText(buildingMember("", "bare"))));
        QVERIFY(opened->open(opened->path("bare.gml")));
        verifyImport("gml:id,Fields/MeasuredHeight [ft],name\nbare,12.5,Shed\n",
                     "<bldg:measuredHeight uom=\"ft\">12.5</bldg:measuredHeight>");
    }

    void anImportIsKeptForARecovery()
    {
        QVERIFY(writeTable("gml:id,Fields/MeasuredHeight,gen:new,gen:owner\nlantern-house,9.5,7,-\n"));
        QVERIFY(compare([](ImportDialog& dialog) {
            dialog.findChild<QCheckBox*>("createAttributes")->setChecked(true);
            dialog.findChild<QLineEdit*>("absentWord")->setText("-");
            QTRY_COMPARE(messageOf(dialog), QString("3 change(s)"));
            importButton(dialog).click();
        }));
        tolvik::viewer::Document& document = opened->document();
        const QByteArray after = saved();
        const auto& step = dynamic_cast<const RecordedEdit&>(*document.undoStack().command(0));
        const QString kind = step.kind();
        const QJsonObject record = step.record();
        document.undoStack().undo();
        QVERIFY(saved() != after);
        document.undoStack().push(SlicedEdit::remake(kind, document, record).release());
        QCOMPARE(saved(), after);
    }

    void whatCannotBeSetStopsTheImport()
    {
        QVERIFY(writeTable("gml:id,Fields/MeasuredHeight\nlantern-house,9.5\nannex,tall\nnobody,3\n"));
        QVERIFY(compare([](ImportDialog& dialog) {
            const QStringList rows = previewOf(dialog);
            QCOMPARE(rows.size(), 3);
            QVERIFY(rows[0].startsWith("annex|Fields/MeasuredHeight||Line 3: "));
            QVERIFY(rows[1].startsWith("nobody|||Line 4: "));
            QCOMPARE(messageOf(dialog), QString("1 change(s), 2 problem(s)"));
            QVERIFY(!importButton(dialog).isEnabled());
            dialog.findChild<QCheckBox*>("skipBad")->setChecked(true);
            QVERIFY(importButton(dialog).isEnabled());
            importButton(dialog).click();
        }));
        QCOMPARE(opened->document().undoStack().count(), 1);
        const QByteArray after = saved();
        QVERIFY(after.contains(">9.5<") && !after.contains(">tall<"));
    }

    void optionsShowInThePreview()
    {
        QVERIFY(writeTable("house,gen:demand [kWh]\nlantern-house,12.5\nannex,-\n"));
        QVERIFY(compare([](ImportDialog& dialog) {
            QCOMPARE(dialog.findChild<QComboBox*>("idColumn")->currentText(), QString("house"));
            QCOMPARE(messageOf(dialog), QString("0 change(s), 2 problem(s)"));
            dialog.findChild<QLineEdit*>("absentWord")->setText("-");
            QTRY_COMPARE(messageOf(dialog), QString("0 change(s), 1 problem(s)"));
            QVERIFY(!importButton(dialog).isEnabled());
            dialog.findChild<QCheckBox*>("createAttributes")->setChecked(true);
            QTRY_COMPARE(previewOf(dialog), (QStringList{"lantern-house|gen:demand [kWh]||12.5"}));
            QTRY_VERIFY(importButton(dialog).isEnabled());
            importButton(dialog).click();
        }));
        QVERIFY(saved().contains("<gen:value uom=\"kWh\">12.5</gen:value>"));
    }

    void anotherColumnCanNameTheFeatures()
    {
        QVERIFY(writeTable("id,place,name\n1,annex,Shed\n"));
        QVERIFY(compare([](ImportDialog& dialog) {
            QCOMPARE(messageOf(dialog), QString("0 change(s), 1 problem(s)"));
            dialog.findChild<QComboBox*>("idColumn")->setCurrentText("place");
            QTRY_VERIFY(previewOf(dialog).contains("annex|name|Annex|Shed"));
            dialog.reject();
        }));
    }

    void aLongImportGoesOnBesideTheWindowAndCanBeCancelled()
    {
        QByteArray houses;
        QByteArray table = "gml:id,gen:one,gen:two\n";
        for (int i = 0; i < 450; ++i) {
            const QByteArray id = "h" + QByteArray::number(i);
            houses += buildingMember("", id);
            table += id + ",1,2\n";
        }
        QVERIFY(writeFile(opened->path("houses.gml"), documentText(houses)));
        QVERIFY(opened->open(opened->path("houses.gml")));
        QVERIFY(writeTable(table));
        QUndoStack& history = opened->document().undoStack();
        tolvik::viewer::EditRunner& runner = opened->document().editRunner();
        const auto import = [this] {
            return compare([](ImportDialog& dialog) {
                dialog.findChild<QCheckBox*>("createAttributes")->setChecked(true);
                QTRY_COMPARE(messageOf(dialog), QString("900 change(s)"));
                importButton(dialog).click();
            });
        };
        QVERIFY(import());
        QVERIFY(runner.isRunning());
        QVERIFY(!opened->action("importTable")->isEnabled());
        runner.cancel();
        QTRY_VERIFY(!runner.isRunning());
        QCOMPARE(history.count(), 0);
        const QByteArray before = contentOf(opened->path("houses.gml"));
        QVERIFY(import());
        QTRY_VERIFY(!runner.isRunning());
        QCOMPARE(history.count(), 1);
        opened->action("save")->trigger();
        const QByteArray after = contentOf(opened->path("houses.gml"));
        QCOMPARE(after.count("gen:intAttribute name"), 900);
        opened->action("undo")->trigger();
        QTRY_VERIFY(!runner.isRunning());
        opened->action("save")->trigger();
        QCOMPARE(contentOf(opened->path("houses.gml")), before);
    }

    void whatIsNoTableIsTold()
    {
        QVERIFY(writeFile(opened->path("t.gpkg"), "none"));
        QVERIFY(Answers().file(opened->path("t.gpkg")).during(opened->action("importTable")));
        auto* const log = opened->window->findChild<QAbstractItemView*>("log");
        QVERIFY(log != nullptr);
        const QAbstractItemModel& lines = *log->model();
        QVERIFY(lines.index(lines.rowCount() - 1, 2).data().toString().contains("t.gpkg"));
    }

    void theTableThatIsShownIsExported()
    {
        opened->window->findChild<QDockWidget*>("tableDock")->raise();
        auto* const table = opened->window->findChild<AttributeTable*>();
        QTRY_VERIFY(!table->type().isEmpty());
        table->showType("Building");
        QVERIFY(Answers()
                    .add<ExportDialog>([](ExportDialog& dialog) {
                        QTRY_COMPARE(dialog.findChild<QComboBox*>("exportType")->currentData().toString(),
                                     QString("Building"));
                        QCOMPARE(dialog.findChild<QComboBox*>("exportColumns")->currentIndex(), 1);
                        QTimer::singleShot(0, dialog.findChild<QPushButton*>("export"), &QPushButton::click);
                    })
                    .file(opened->path("houses.csv"))
                    .during(opened->action("exportTable")));
        const QList<QByteArray> lines = contentOf(opened->path("houses.csv")).split('\n');
        QVERIFY(lines[0].startsWith("gml:id,parent,file,type,name,Fields/Name,Fields/Class,Fields/Function"));
        // The table has no more columns at first, though the features have.
        QVERIFY(!lines[0].contains("gen:"));
        QVERIFY(lines[1].startsWith("lantern-house,marrowby,"));
    }

    void anExportThatComesBackChangesNothing()
    {
        QVERIFY(Answers()
                    .add<ExportDialog>([](ExportDialog& dialog) {
                        dialog.findChild<QComboBox*>("exportType")->setCurrentIndex(0);
                        QTimer::singleShot(0, dialog.findChild<QPushButton*>("export"), &QPushButton::click);
                    })
                    .file(opened->path("town"), "GeoPackage (*.gpkg)")
                    .during(opened->action("exportTable")));
        QVERIFY(QFileInfo::exists(opened->path("town.gpkg")));
        QVERIFY(Answers()
                    .file(opened->path("town.gpkg"))
                    .add<ImportDialog>(
                        [](ImportDialog& dialog) {
                            QCOMPARE(messageOf(dialog), QString("0 change(s)"));
                            dialog.reject();
                        },
                        isCompared)
                    .during(opened->action("importTable")));
    }
};

TEST_CLASS(ExchangeTest, Widgets)
#include "exchangetest.moc"
