#include "apps/viewer/properties/PropertyPanel.h"
#include "apps/viewer/properties/ListEditor.h"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/PanelFixture.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"

#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>
#include <QToolButton>
#include <QTreeView>
#include <QtTest>

using namespace testsupport;
using namespace tolvik::viewer;

namespace {

const QByteArray attributes =
    "<gml:description>Bank</gml:description><gml:name codeSpace=\"town\">Town hall</gml:name>"
    "<core:creationDate>2001-02-03</core:creationDate>"
    "<core:relativeToTerrain>entirelyAboveTerrain</core:relativeToTerrain>"
    "<gen:stringAttribute name=\"owner\"><gen:value>Guild</gen:value></gen:stringAttribute>"
    "<gen:doubleAttribute name=\"ratio\"><gen:value>1.5</gen:value></gen:doubleAttribute>"
    "<gen:uriAttribute name=\"photo\"><gen:value>https://town.example/1</gen:value></gen:uriAttribute>"
    "<bldg:class>1000</bldg:class><bldg:function>1</bldg:function><bldg:function>2</bldg:function>"
    "<bldg:yearOfConstruction>1904</bldg:yearOfConstruction>"
    "<bldg:measuredHeight uom=\"m\">12.5</bldg:measuredHeight>"
    "<bldg:storeysAboveGround>3</bldg:storeysAboveGround>"
    "<bldg:storeyHeightsAboveGround uom=\"m\">3.2 3</bldg:storeyHeightsAboveGround>";

/// The panel over a document.
class Panel
{
public:
    explicit Panel(const QByteArray& xml, const QStringList& selected = {"b"})
        : fixture(xml), panel(fixture.document())
    {
        panel.resize(500, 700);
        panel.show();
        panel.activateWindow();
        fixture.select(selected);
    }

    QTreeView& view() { return *panel.findChild<QTreeView*>("propertyTree"); }
    QModelIndex cell(const QString& path, int column = 1) { return cellAt(view(), path, column); }
    QString text(const QString& path, int column = 1) { return cell(path, column).data().toString(); }
    void type(const QString& path, const QString& text) { typeInto(view(), cell(path), text); }
    QString message()
    {
        const auto* const label = panel.findChild<QLabel*>("propertyMessage");
        return label->isVisible() ? label->text() : QString();
    }
    void showAbsent() { panel.findChild<QToolButton*>("showAbsent")->click(); }
    void press(const QString& path, Qt::Key key)
    {
        view().setFocus();
        view().setCurrentIndex(cell(path));
        QTest::keyClick(&view(), key);
        QTest::qWait(10);
    }
    QUndoStack& stack() { return fixture.document().undoStack(); }
    void undo()
    {
        stack().undo();
        QTest::qWait(10);
    }
    QByteArray saved() { return fixture.saved(); }

    PanelFixture fixture;
    PropertyPanel panel;
};

/// Answers the next dialog: types into its fields and accepts it.
void answerDialog(const QMap<QString, QString>& fields)
{
    QTimer::singleShot(0, [fields] {
        QWidget* const dialog = QApplication::activeModalWidget();
        for (auto field = fields.begin(); field != fields.end(); ++field) {
            if (auto* const choice = dialog->findChild<QComboBox*>(field.key())) {
                choice->setCurrentText(field.value());
            } else {
                auto* const line = field.key().isEmpty() ? dialog->findChild<QLineEdit*>()
                                                         : dialog->findChild<QLineEdit*>(field.key());
                line->setText(field.value());
            }
        }
        QTest::keyClick(dialog, Qt::Key_Return);
    });
}

} // namespace

/// The panel of properties, driven as a user does.
class PropertyPanelTest : public QObject
{
    Q_OBJECT

private slots:
    void theSelectedFeatureIsShown()
    {
        Panel panel(documentWithBuilding(attributes));
        QCOMPARE(panel.panel.findChild<QLabel*>("propertyTitle")->text(),
                 QString::fromUtf8("Building – Town hall"));
        QCOMPARE(panel.text("Fields/MeasuredHeight"), "12.5");
        QCOMPARE(panel.text("Fields/MeasuredHeight", 2), "m");
        QCOMPARE(panel.text("Fields/Function"), "1; 2");
        QCOMPARE(panel.text("Fields/owner"), "Guild");
        QVERIFY(!panel.cell("Fields/RoofType").isValid());
        panel.fixture.select({});
        QCOMPARE(panel.view().model()->rowCount(), 0);
    }

    void valuesOfEveryKindAreEdited_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("text") << "Fields/Description"
                              << "Old <bank>"
                              << "Old <bank>"
                              << QByteArray("<gml:description>Old &lt;bank&gt;</gml:description>");
        QTest::newRow("empty text") << "Fields/Description"
                                    << ""
                                    << "" << QByteArray("<gml:description/>");
        QTest::newRow("year") << "Fields/YearOfConstruction"
                              << "1895"
                              << "1895" << QByteArray(">1895</bldg:yearOfConstruction>");
        QTest::newRow("whole") << "Fields/StoreysAboveGround"
                               << "4"
                               << "4" << QByteArray(">4</bldg:storeysAboveGround>");
        QTest::newRow("measure") << "Fields/MeasuredHeight"
                                 << "0.30000000000000004"
                                 << "0.30000000000000004"
                                 << QByteArray("uom=\"m\">0.30000000000000004</bldg:measuredHeight>");
        QTest::newRow("large") << "Fields/ratio"
                               << "1e300"
                               << "1e+300" << QByteArray("<gen:value>1e+300</gen:value>");
        QTest::newRow("link") << "Fields/photo"
                              << "https://town.example/2"
                              << "https://town.example/2"
                              << QByteArray("<gen:value>https://town.example/2</gen:value>");
    }

    void valuesOfEveryKindAreEdited()
    {
        QFETCH(QString, path);
        QFETCH(QString, typed);
        QFETCH(QString, shown);
        QFETCH(QByteArray, written);
        Panel panel(documentWithBuilding(attributes));
        const QByteArray before = panel.saved();
        QVERIFY(!before.contains(written));
        panel.type(path, typed);
        QCOMPARE(panel.message(), QString());
        QVERIFY(editorIn(panel.view()) == nullptr);
        QCOMPARE(panel.text(path), shown);
        QVERIFY2(panel.saved().contains(written), panel.saved());
        QCOMPARE(panel.stack().count(), 1);
        QVERIFY(panel.stack().undoText().contains("Town hall"));
        panel.undo();
        QCOMPARE(panel.saved(), before);
        panel.stack().redo();
        QVERIFY(panel.saved().contains(written));
    }

    void whatStandsWithAValueStays_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QByteArray>("written");
        const auto add = [](const char* name, const QByteArray& content, const char* path, const char* typed,
                            const QByteArray& written) {
            QTest::newRow(name) << content << path << typed << written;
        };
        add("code space", "<bldg:class codeSpace=\"x\">1000</bldg:class>", "Fields/Class", "1010",
            "<bldg:class codeSpace=\"x\">1010</bldg:class>");
        add("zone", "<bldg:yearOfConstruction>1904+01:00</bldg:yearOfConstruction>",
            "Fields/YearOfConstruction", "1905", ">1905+01:00</bldg:yearOfConstruction>");
        add("more than 32 bits", "<bldg:storeysAboveGround>3</bldg:storeysAboveGround>",
            "Fields/StoreysAboveGround", "9007199254740993", ">9007199254740993</bldg:storeysAboveGround>");
        add("spelling of a link",
            "<gen:uriAttribute name=\"a\"><gen:value>https://town.example/a%20b?c=%C3%BC</gen:value>"
            "</gen:uriAttribute>",
            "Fields/a", "https://town.example/a%20b?c=%C3%BC&d", "a%20b?c=%C3%BC&amp;d</gen:value>");
    }

    void whatStandsWithAValueStays()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, path);
        QFETCH(QString, typed);
        QFETCH(QByteArray, written);
        Panel panel(documentWithBuilding(content));
        const QByteArray before = panel.saved();
        panel.type(path, typed);
        QCOMPARE(panel.message(), QString());
        QVERIFY2(panel.saved().contains(written), panel.saved());
        panel.undo();
        QCOMPARE(panel.saved(), before);
    }

    void entriesOfAListKeepTheirCodeSpaces()
    {
        Panel panel(documentWithBuilding("<bldg:function codeSpace=\"a\">1</bldg:function>"
                                         "<bldg:function codeSpace=\"b\">2</bldg:function>"
                                         "<bldg:function codeSpace=\"c\">3</bldg:function>"));
        const QByteArray before = panel.saved();
        auto* const list = qobject_cast<ListEditor*>(openEditor(panel.view(), panel.cell("Fields/Function")));
        QVERIFY(list != nullptr);
        auto* const table = list->findChild<QTableWidget*>();
        table->item(1, 0)->setText("9");
        table->setCurrentCell(2, 0);
        list->addEntry();
        table->item(3, 0)->setText("4");
        table->setCurrentCell(0, 0);
        list->removeEntry();
        QTest::mouseClick(list->findChild<QToolButton*>("finish"), Qt::LeftButton);
        QTest::qWait(10);
        QCOMPARE(panel.text("Fields/Function"), "9; 3; 4");
        QVERIFY2(panel.saved().contains(">3</bldg:function>"), panel.saved());
        panel.undo();
        QCOMPARE(panel.saved(), before);
    }

    void aPositionIsEdited()
    {
        Panel panel(
            documentWithBuilding("<gml:boundedBy><gml:Envelope><gml:lowerCorner>1 2 3</gml:lowerCorner>"
                                 "<gml:upperCorner>4 5 6</gml:upperCorner></gml:Envelope></gml:boundedBy>"));
        auto* const list =
            qobject_cast<ListEditor*>(openEditor(panel.view(), panel.cell("Fields/Envelope/LowerCorner")));
        QVERIFY(list != nullptr);
        list->findChild<QTableWidget*>()->item(0, 0)->setText("0.5");
        QTest::mouseClick(list->findChild<QToolButton*>("finish"), Qt::LeftButton);
        QTest::qWait(10);
        QVERIFY2(panel.saved().contains(">0.5 2 3</gml:lowerCorner>"), panel.saved());
    }

    void aMomentKeepsItsZone()
    {
        Panel panel(contentOf(examples() + "/ladmfr.gml")
                        .replace("2029-06-03T00:00:00</ladmfr:timeSpec>",
                                 "2029-06-03T00:00:00+02:00</ladmfr:timeSpec>"),
                    {"right-ownership"});
        const QByteArray before = panel.saved();
        auto* const moment =
            qobject_cast<QDateTimeEdit*>(openEditor(panel.view(), panel.cell("Properties/Foncier/timeSpec")));
        QVERIFY(moment != nullptr);
        moment->setDateTime(QDateTime(QDate(2030, 1, 2), QTime(3, 4, 5)));
        QTest::keyClick(moment, Qt::Key_Return);
        QTest::qWait(10);
        QVERIFY(panel.saved().contains(">2030-01-02T03:04:05+02:00</ladmfr:timeSpec>"));
        panel.undo();
        QCOMPARE(panel.saved(), before);
    }

    void aDurationIsEditedAsAText()
    {
        Panel panel(contentOf(examples() + "/energy.gml"), {});
        QModelIndexList found;
        for (int row = 0; found.isEmpty() && row < panel.fixture.document().model().rowCount(); ++row) {
            panel.fixture.document().goTo(row);
            QTest::qWait(1);
            found = panel.view().model()->match(panel.view().model()->index(0, 0), Qt::DisplayRole,
                                                "duration", 1, Qt::MatchExactly | Qt::MatchRecursive);
        }
        QCOMPARE(found.size(), 1);
        const QModelIndex value = found[0].sibling(found[0].row(), 1);
        QCOMPARE(value.data().toString(), "P1Y1M15D");
        typeInto(panel.view(), value, "P2Y");
        QCOMPARE(panel.message(), QString());
        QVERIFY(panel.saved().contains(">P2Y</gml:duration>"));
        typeInto(panel.view(), value, "two years");
        QVERIFY(!panel.message().isEmpty());
    }

    void aMemberThatTheSchemaNeedsStays()
    {
        Panel panel(documentWithBuilding("<gml:boundedBy><gml:Envelope srsName='x'/></gml:boundedBy>"
                                         "<x:note>1</x:note>"));
        const QByteArray before = panel.saved();
        panel.press("Other content/x:note", Qt::Key_Delete);
        QCOMPARE(panel.saved(), before);
        QVERIFY(!panel.message().isEmpty());
        panel.press("Fields/Envelope/SrsName", Qt::Key_Delete);
        QVERIFY(!panel.saved().contains("srsName"));
        QVERIFY(panel.message().isEmpty());
    }

    void aLiteralIsChosen()
    {
        Panel panel(documentWithBuilding(attributes));
        auto* const choice =
            qobject_cast<QComboBox*>(openEditor(panel.view(), panel.cell("Fields/RelativeToTerrain")));
        QVERIFY(choice != nullptr);
        QCOMPARE(choice->currentText(), "entirelyAboveTerrain");
        QTest::keyClick(choice, Qt::Key_Down);
        QTest::keyClick(choice, Qt::Key_Return);
        QTest::qWait(10);
        QCOMPARE(panel.text("Fields/RelativeToTerrain"), "substantiallyAboveTerrain");
        QVERIFY(panel.saved().contains(">substantiallyAboveTerrain</core:relativeToTerrain>"));
    }

    void aTruthValueIsABox()
    {
        const QByteArray bridge =
            "<core:cityObjectMember><brid:Bridge"
            " xmlns:brid='http://www.opengis.net/citygml/bridge/2.0' gml:id='b'>"
            "<brid:isMovable>false</brid:isMovable></brid:Bridge></core:cityObjectMember>";
        Panel panel(documentText(bridge));
        QCOMPARE(panel.cell("Fields/IsMovable").data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
        panel.press("Fields/IsMovable", Qt::Key_Space);
        QCOMPARE(panel.cell("Fields/IsMovable").data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
        QVERIFY(panel.saved().contains("true</brid:isMovable>"));
        panel.undo();
        QVERIFY(panel.saved().contains("false</brid:isMovable>"));
    }

    void aDateIsEdited()
    {
        Panel panel(documentWithBuilding(attributes));
        auto* const date =
            qobject_cast<QDateTimeEdit*>(openEditor(panel.view(), panel.cell("Fields/CreationDate")));
        QVERIFY(date != nullptr);
        QCOMPARE(date->date(), QDate(2001, 2, 3));
        date->setDate(QDate(1987, 6, 5));
        QTest::keyClick(date, Qt::Key_Return);
        QTest::qWait(10);
        QVERIFY(panel.saved().contains(">1987-06-05</core:creationDate>"));
        panel.undo();
        QVERIFY(panel.saved().contains(">2001-02-03</core:creationDate>"));
    }

    void aListIsEditedInATable()
    {
        Panel panel(documentWithBuilding(attributes));
        auto* const list = qobject_cast<ListEditor*>(
            openEditor(panel.view(), panel.cell("Fields/StoreyHeightsAboveGround")));
        QVERIFY(list != nullptr);
        auto* const table = list->findChild<QTableWidget*>();
        QCOMPARE(table->rowCount(), 2);
        table->item(1, 0)->setText("2.75");
        list->findChild<QToolButton*>("moveUp")->click();
        table->setCurrentCell(1, 0);
        list->findChild<QToolButton*>("moveUp")->click();
        QTest::mouseClick(list->findChild<QToolButton*>("finish"), Qt::LeftButton);
        QTest::qWait(10);
        QVERIFY2(panel.saved().contains(">2.75 3.2</bldg:storeyHeightsAboveGround>"), panel.saved());
        QVERIFY(editorIn(panel.view()) == nullptr);
    }

    void whatIsNoValueIsRefused_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("typed");
        QTest::newRow("number") << "Fields/MeasuredHeight"
                                << "high";
        QTest::newRow("two numbers") << "Fields/MeasuredHeight"
                                     << "1 2";
        QTest::newRow("whole") << "Fields/StoreysAboveGround"
                               << "3.5";
        QTest::newRow("negative") << "Fields/StoreysAboveGround"
                                  << "-1";
        QTest::newRow("large") << "Fields/YearOfConstruction"
                               << "99999999999";
        QTest::newRow("no XML") << "Fields/Description" << QString("bell").append(QChar(7));
        QTest::newRow("surrogate") << "Fields/Description" << QString("half").append(QChar(0xD800));
    }

    void whatIsNoValueIsRefused()
    {
        QFETCH(QString, path);
        QFETCH(QString, typed);
        Panel panel(documentWithBuilding(attributes));
        const QByteArray before = panel.saved();
        auto* const line = qobject_cast<QLineEdit*>(openEditor(panel.view(), panel.cell(path)));
        QVERIFY(line != nullptr);
        line->setText(typed);
        QTest::keyClick(line, Qt::Key_Return);
        QCOMPARE(editorIn(panel.view()), line);
        QVERIFY(!panel.message().isEmpty());
        QCOMPARE(panel.saved(), before);
        QCOMPARE(panel.stack().count(), 0);
        QTest::keyClick(line, Qt::Key_Escape);
        QTest::qWait(10);
        QVERIFY(editorIn(panel.view()) == nullptr);
        QCOMPARE(panel.saved(), before);
    }

    void anEditorThatIsLeftUnchangedChangesNothing()
    {
        Panel panel(documentWithBuilding(attributes));
        for (const char* const path : {"Fields/Description", "Fields/MeasuredHeight", "Fields/CreationDate",
                                       "Fields/Function", "Fields/RelativeToTerrain", "Fields/photo"}) {
            QWidget* const editor = openEditor(panel.view(), panel.cell(path));
            QVERIFY2(editor != nullptr, path);
            QTest::keyClick(editor, Qt::Key_Return, Qt::ControlModifier);
            QTest::qWait(10);
            QVERIFY2(editorIn(panel.view()) == nullptr, path);
        }
        QCOMPARE(panel.stack().count(), 0);
    }

    void textsOfSeveralLinesStay()
    {
        Panel panel(documentWithBuilding("<gml:description>one\n two</gml:description>"));
        auto* const lines =
            qobject_cast<QPlainTextEdit*>(openEditor(panel.view(), panel.cell("Fields/Description")));
        QVERIFY(lines != nullptr);
        lines->moveCursor(QTextCursor::End);
        QTest::keyClicks(lines, "!");
        QTest::keyClick(lines, Qt::Key_Return, Qt::ControlModifier);
        QTest::qWait(10);
        QVERIFY2(panel.saved().contains(">one\n two!</gml:description>"), panel.saved());
    }

    void anAbsentAttributeComesAndGoes()
    {
        Panel panel(documentWithBuilding(attributes));
        const QByteArray before = panel.saved();
        QVERIFY(!panel.cell("Fields/RoofType").isValid());
        panel.showAbsent();
        QVERIFY(panel.cell("Fields/RoofType").isValid());
        panel.type("Fields/RoofType", "1030");
        QVERIFY(panel.saved().contains("<bldg:roofType>1030</bldg:roofType>"));
        panel.showAbsent();
        QCOMPARE(panel.text("Fields/RoofType"), "1030");
        panel.press("Fields/RoofType", Qt::Key_Delete);
        QCOMPARE(panel.saved(), before);
        QVERIFY(!panel.cell("Fields/RoofType").isValid());
        panel.undo();
        QCOMPARE(panel.text("Fields/RoofType"), "1030");
        panel.undo();
        QCOMPARE(panel.saved(), before);
    }

    void anAttributeWithACodeSpaceComesBackWithIt()
    {
        Panel panel(documentWithBuilding("<bldg:class codeSpace=\"x\">1000</bldg:class>"));
        const QByteArray before = panel.saved();
        panel.press("Fields/Class", Qt::Key_Delete);
        QVERIFY(!panel.saved().contains("bldg:class"));
        panel.undo();
        QCOMPARE(panel.saved(), before);
    }

    void whatCannotBeChangedLooksSo()
    {
        Panel panel(documentWithBuilding(attributes));
        QVERIFY(!panel.cell("Fields/Id").flags().testFlag(Qt::ItemIsEditable));
        QVERIFY(openEditor(panel.view(), panel.cell("Fields/Id")) == nullptr);
        panel.press("Fields/Id", Qt::Key_Delete);
        QCOMPARE(panel.stack().count(), 0);
    }

    void severalFeaturesShowWhatTheyHaveInCommon()
    {
        Panel panel(
            documentText(buildingMember("<bldg:class>1</bldg:class><bldg:function>7</bldg:function>", "a") +
                         buildingMember("<bldg:class>1</bldg:class><bldg:roofType>2</bldg:roofType>", "b") +
                         buildingMember("<bldg:class>1</bldg:class>", "c")),
            {"a", "b"});
        const QByteArray before = panel.saved();
        QTRY_VERIFY(panel.panel.isComplete());
        QCOMPARE(panel.text("Fields/Class"), "1");
        QCOMPARE(panel.text("Fields/RoofType"), "(different values)");
        QVERIFY(!panel.cell("Fields/Function").isValid());
        panel.type("Fields/RoofType", "5");
        QTRY_COMPARE(panel.text("Fields/RoofType"), "5");
        QCOMPARE(panel.saved().count("<bldg:roofType>5</bldg:roofType>"), 2);
        QCOMPARE(panel.stack().count(), 1);
        panel.undo();
        QCOMPARE(panel.saved(), before);
        QTRY_COMPARE(panel.text("Fields/RoofType"), "(different values)");
        panel.stack().redo();
        QCOMPARE(panel.saved().count("<bldg:roofType>5</bldg:roofType>"), 2);
    }

    void listsOfTextsGetEntries()
    {
        Panel panel(documentWithBuilding("<gml:name codeSpace=\"x\">Old</gml:name>"));
        const QByteArray before = panel.saved();
        answerDialog({{"", "1000"}});
        panel.panel.addEntry("function");
        QTRY_COMPARE(panel.text("Fields/Function"), "1000");
        answerDialog({{"", "New"}});
        panel.panel.addEntry("name");
        QTRY_COMPARE(panel.text("Fields/Name"), "Old; New");
        QVERIFY(panel.saved().contains("<gml:name codeSpace=\"x\">Old</gml:name>"));
        panel.undo();
        panel.undo();
        QCOMPARE(panel.saved(), before);
    }

    void genericAttributesComeAndGo()
    {
        Panel panel(documentWithBuilding(attributes));
        const QByteArray before = panel.saved();
        answerDialog({{"type", "Measure"}, {"name", "eaves"}, {"value", "6.5"}, {"unit", "m"}});
        panel.panel.addAttribute();
        QTRY_COMPARE(panel.text("Fields/eaves"), "6.5");
        QCOMPARE(panel.text("Fields/eaves", 2), "m");
        QVERIFY2(panel.saved().contains("<gen:measureAttribute name=\"eaves\">"), panel.saved());
        panel.view().setCurrentIndex(panel.cell("Fields/eaves"));
        answerDialog({{"", "height of the eaves"}});
        panel.panel.renameCurrent();
        QTRY_COMPARE(panel.text("Fields/height of the eaves"), "6.5");
        panel.press("Fields/owner", Qt::Key_Delete);
        QVERIFY(!panel.saved().contains("owner"));
        panel.undo();
        QCOMPARE(panel.text("Fields/owner"), "Guild");
        panel.undo();
        panel.undo();
        QCOMPARE(panel.saved(), before);
    }

    /// The attributes stand beside the content of extensions, which may hold features.
    void featuresStayWhereAttributesComeAndGo()
    {
        Panel panel(contentOf(examples() + "/component.gml"), {"maison-du-port"});
        const tolvik::CityGMLModel& model = panel.fixture.document().model();
        const auto rows = [&model] {
            std::list<gml::AbstractFeatureType*> features;
            for (int row = 0; row < model.rowCount(); ++row) {
                features.push_back(model.getFeature(row));
            }
            return features;
        };
        const std::list<gml::AbstractFeatureType*> before = rows();
        answerDialog({{"type", "Text"}, {"name", "owner"}, {"value", "Guild"}});
        panel.panel.addAttribute();
        QTRY_COMPARE(panel.text("Fields/owner"), "Guild");
        QCOMPARE(rows(), before);
        panel.undo();
        panel.stack().redo();
        panel.press("Fields/owner", Qt::Key_Delete);
        panel.undo();
        QCOMPARE(rows(), before);
        QCOMPARE(featuresOf(*model.cityGML()), before);
    }

    void genericAttributesOfEveryType_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("Text") << "x y" << QByteArray("<gen:stringAttribute name=\"n\">");
        QTest::newRow("Whole number") << "7" << QByteArray("<gen:intAttribute name=\"n\">");
        QTest::newRow("Number") << "7.25" << QByteArray("<gen:doubleAttribute name=\"n\">");
        QTest::newRow("Date") << "2001-02-03" << QByteArray("<gen:dateAttribute name=\"n\">");
        QTest::newRow("Link") << "https://town.example" << QByteArray("<gen:uriAttribute name=\"n\">");
        QTest::newRow("Measure") << "1.5" << QByteArray("<gen:measureAttribute name=\"n\">");
    }

    void genericAttributesOfEveryType()
    {
        QFETCH(QString, value);
        QFETCH(QByteArray, written);
        Panel panel(documentWithBuilding(""));
        answerDialog({{"type", QTest::currentDataTag()}, {"name", "n"}, {"value", value}});
        panel.panel.addAttribute();
        QVERIFY2(panel.saved().contains(written), panel.saved());
        QVERIFY2(panel.saved().contains(">" + value.toUtf8() + "</gen:value>"), panel.saved());
    }

    void attributesOfASetAreItsOwn()
    {
        Panel panel(
            documentWithBuilding("<gen:genericAttributeSet name=\"contract\"><gen:stringAttribute name=\"a\">"
                                 "<gen:value>1</gen:value></gen:stringAttribute></gen:genericAttributeSet>"));
        const QByteArray before = panel.saved();
        panel.view().setCurrentIndex(panel.cell("Fields/contract"));
        answerDialog({{"type", "Text"}, {"name", "c"}, {"value", "2"}});
        panel.panel.addAttribute();
        QTRY_COMPARE(panel.text("Fields/contract/c"), "2");
        panel.press("Fields/contract/a", Qt::Key_Delete);
        QVERIFY(!panel.cell("Fields/contract/a").isValid());
        panel.undo();
        panel.undo();
        QCOMPARE(panel.saved(), before);
    }

    void otherContentIsEdited()
    {
        Panel panel(documentWithBuilding("<x:note>south</x:note>"));
        const QByteArray before = panel.saved();
        panel.type("Other content/x:note", "north & east");
        QVERIFY(panel.saved().contains("north &amp; east</x:note>"));
        panel.undo();
        QCOMPARE(panel.saved(), before);
    }

    void addressesReadLikeAddresses()
    {
        const QByteArray address =
            "<bldg:address><core:Address gml:id='home'><core:xalAddress><xAL:AddressDetails><xAL:Country>"
            "<xAL:CountryName>Aldland</xAL:CountryName><xAL:Locality Type='Town'>"
            "<xAL:LocalityName>Marrowby</xAL:LocalityName><xAL:Thoroughfare Type='Street'>"
            "<xAL:ThoroughfareName>Lantern Row</xAL:ThoroughfareName>"
            "<xAL:ThoroughfareNumber>17a</xAL:ThoroughfareNumber></xAL:Thoroughfare><xAL:PostalCode>"
            "<xAL:PostalCodeNumber>40 "
            "217</xAL:PostalCodeNumber></xAL:PostalCode></xAL:Locality></xAL:Country>"
            "</xAL:AddressDetails></core:xalAddress></core:Address></bldg:address>";
        Panel panel(documentWithBuilding(address));
        QCOMPARE(panel.text("Fields/Address"), "17a Lantern Row, 40 217 Marrowby, Aldland");
        panel.fixture.select({"home"});
        QCOMPARE(panel.text("Fields/Address"), "17a Lantern Row, 40 217 Marrowby, Aldland");
    }

    void theFilterLeavesWhatHasTheText()
    {
        Panel panel(documentWithBuilding(attributes));
        auto* const line = panel.panel.findChild<QLineEdit*>("propertyFilter");
        QTest::keyClicks(line, "HEIGHT");
        QVERIFY(panel.cell("Fields/MeasuredHeight").isValid());
        QVERIFY(!panel.cell("Fields/Class").isValid());
        line->setText("guild");
        QVERIFY(panel.cell("Fields/owner").isValid());
        QVERIFY(!panel.cell("Fields/MeasuredHeight").isValid());
        line->clear();
        QVERIFY(panel.cell("Fields/Class").isValid());
    }

    void linksAreClicked()
    {
        Panel panel(documentWithBuilding(attributes));
        QSignalSpy spy(&panel.panel, &PropertyPanel::linkActivated);
        panel.view().scrollTo(panel.cell("Fields/photo"));
        const QRect shown = panel.view().visualRect(panel.cell("Fields/photo"));
        QTest::mouseClick(panel.view().viewport(), Qt::LeftButton, {},
                          shown.topLeft() + QPoint(12, shown.height() / 2));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy[0][0].toUrl(), QUrl("https://town.example/1"));
    }

    void featuresWithoutIdentifierAreFoundAgain()
    {
        Panel panel(documentText(buildingMember("<bldg:class>1</bldg:class>", "") +
                                 buildingMember("<bldg:class>2</bldg:class>", "")),
                    {});
        const QByteArray before = panel.saved();
        panel.fixture.document().goTo(2);
        QTest::qWait(10);
        QCOMPARE(panel.text("Fields/Class"), "2");
        panel.type("Fields/Class", "5");
        panel.fixture.document().goTo(1);
        QTest::qWait(10);
        panel.type("Fields/Class", "4");
        QVERIFY(panel.saved().contains(">4</bldg:class>") && panel.saved().contains(">5</bldg:class>"));
        panel.undo();
        panel.undo();
        QCOMPARE(panel.saved(), before);
    }

    void editsAreRecordedAndMadeAgain()
    {
        PropertyEdit::addMaker();
        Panel panel(documentWithBuilding(attributes));
        panel.type("Fields/MeasuredHeight", "17.25");
        answerDialog({{"type", "Text"}, {"name", "n"}, {"value", "v"}});
        panel.panel.addAttribute();
        const QByteArray edited = panel.saved();
        Panel other(documentWithBuilding(attributes));
        for (int i = 0; i < panel.stack().count(); ++i) {
            const auto* const edit = dynamic_cast<const RecordedEdit*>(panel.stack().command(i));
            QVERIFY(edit != nullptr);
            const QJsonObject record =
                QJsonDocument::fromJson(QJsonDocument(edit->record()).toJson()).object();
            auto made = RecordedEdit::make(edit->kind(), other.fixture.document(), record);
            QVERIFY(made != nullptr);
            other.stack().push(made.release());
        }
        QCOMPARE(other.saved(), edited);
        other.undo();
        other.undo();
        QCOMPARE(other.saved(), Panel(documentWithBuilding(attributes)).saved());
    }
};

TEST_CLASS(PropertyPanelTest, Widgets)
#include "propertypaneltest.moc"
