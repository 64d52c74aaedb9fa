#include "apps/viewer/properties/ListEditor.h"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "viewer/ShownPanel.h"

#include <QApplication>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTableWidget>

using namespace testsupport;
using namespace tolvik::viewer;

/// Values of every kind, each edited in the panel of properties as a user does.
class ValueEditingTest : public QObject
{
    Q_OBJECT

private slots:
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
        ShownPanel panel(documentWithBuilding(manyAttributes));
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
        ShownPanel panel(documentWithBuilding(content));
        const QByteArray before = panel.saved();
        panel.type(path, typed);
        QCOMPARE(panel.message(), QString());
        QVERIFY2(panel.saved().contains(written), panel.saved());
        panel.undo();
        QCOMPARE(panel.saved(), before);
    }

    void entriesOfAListKeepTheirCodeSpaces()
    {
        ShownPanel panel(documentWithBuilding("<bldg:function codeSpace=\"a\">1</bldg:function>"
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

    void aListIsEmptied_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QByteArray>("former");
        QTest::addColumn<QByteArray>("empty");
        QTest::newRow("elements") << "Fields/Function" << QByteArray("<bldg:function") << QByteArray();
        QTest::newRow("one element") << "Fields/StoreyHeightsAboveGround" << QByteArray(">3.2 3<")
                                     << QByteArray("<bldg:storeyHeightsAboveGround uom=\"m\"/>");
    }

    void aListIsEmptied()
    {
        QFETCH(QString, path);
        QFETCH(QByteArray, former);
        QFETCH(QByteArray, empty);
        ShownPanel panel(documentWithBuilding(manyAttributes));
        const QByteArray before = panel.saved();
        QVERIFY(before.contains(former));
        auto* const list = qobject_cast<ListEditor*>(openEditor(panel.view(), panel.cell(path)));
        QVERIFY(list != nullptr);
        auto* const table = list->findChild<QTableWidget*>();
        table->setCurrentCell(1, 0);
        QVERIFY(list->isAncestorOf(QApplication::focusWidget()));
        while (table->rowCount() > 0) {
            QTest::mouseClick(list->findChild<QToolButton*>("removeEntry"), Qt::LeftButton);
            QCOMPARE(editorIn(panel.view()), list);
        }
        QTest::mouseClick(list->findChild<QToolButton*>("finish"), Qt::LeftButton);
        QTest::qWait(10);
        QCOMPARE(panel.message(), QString());
        QVERIFY(!panel.saved().contains(former));
        QVERIFY2(panel.saved().contains(empty), panel.saved());
        QCOMPARE(panel.stack().count(), 1);
        panel.undo();
        QCOMPARE(panel.saved(), before);
        QTRY_VERIFY(panel.cell(path).isValid());
        panel.stack().redo();
        QVERIFY(!panel.saved().contains(former));
    }

    void aPositionIsEdited()
    {
        ShownPanel panel(
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
        ShownPanel panel(contentOf(examples() + "/ladmfr.gml")
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
        ShownPanel panel(contentOf(examples() + "/energy.gml"), {});
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

    void anAbsentDurationComesIntoBeing()
    {
        ShownPanel panel(
            contentOf(examples() + "/energy.gml").replace("<gml:duration>P1Y1M15D</gml:duration>", ""), {});
        panel.showAbsent();
        QModelIndexList found;
        for (int row = 0; found.isEmpty() && row < panel.fixture.document().model().rowCount(); ++row) {
            panel.fixture.document().goTo(row);
            QTest::qWait(1);
            found = panel.view().model()->match(panel.view().model()->index(0, 0), Qt::DisplayRole,
                                                "duration", 1, Qt::MatchExactly | Qt::MatchRecursive);
        }
        QVERIFY(!found.isEmpty());
        const QByteArray before = panel.saved();
        QVERIFY(!before.contains("gml:duration"));
        const QPersistentModelIndex value = found[0].siblingAtColumn(1);
        typeInto(panel.view(), value, "a year");
        QVERIFY(!panel.message().isEmpty());
        QTest::keyClick(editorIn(panel.view()), Qt::Key_Escape);
        QCOMPARE(panel.saved(), before);
        typeInto(panel.view(), value, "P2Y3M");
        QCOMPARE(panel.message(), QString());
        QVERIFY(panel.saved().contains("<gml:duration>P2Y3M</gml:duration>"));
        panel.undo();
        QCOMPARE(panel.saved(), before);
    }

    void aUnitIsChanged()
    {
        ShownPanel panel(documentWithBuilding(manyAttributes));
        const QByteArray before = panel.saved();
        QCOMPARE(panel.text("Fields/MeasuredHeight", 2), QString("m"));
        typeInto(panel.view(), panel.cell("Fields/MeasuredHeight", 2), "ft");
        QCOMPARE(panel.message(), QString());
        QCOMPARE(panel.text("Fields/MeasuredHeight", 2), QString("ft"));
        QCOMPARE(panel.saved(), QByteArray(before).replace("uom=\"m\">12.5", "uom=\"ft\">12.5"));
        QCOMPARE(panel.stack().undoText(), QString("change the unit of MeasuredHeight of Town hall"));
        panel.undo();
        QCOMPARE(panel.text("Fields/MeasuredHeight", 2), QString("m"));
        QCOMPARE(panel.saved(), before);
        panel.stack().redo();
        QVERIFY(panel.saved().contains("uom=\"ft\""));
    }

    void aUnitIsChosen()
    {
        ShownPanel panel(documentWithBuilding(manyAttributes));
        auto* const editor =
            qobject_cast<QComboBox*>(openEditor(panel.view(), panel.cell("Fields/MeasuredHeight", 2)));
        QVERIFY(editor != nullptr);
        QCOMPARE(editor->currentText(), QString("m"));
        QVERIFY(editor->findText("m2") > 0);
        editor->setCurrentIndex(editor->findText("m2"));
        QTest::keyClick(editor, Qt::Key_Return);
        QVERIFY(panel.saved().contains("uom=\"m2\">12.5"));
        QTRY_COMPARE(panel.text("Fields/MeasuredHeight", 2), QString("m2"));
        typeInto(panel.view(), panel.cell("Fields/MeasuredHeight", 2), "m2");
        QCOMPARE(panel.stack().count(), 1);
    }

    void unitsOfSeveralFeaturesBecomeOne()
    {
        const auto building = [](const QByteArray& unit, const QByteArray& id) {
            return buildingMember("<bldg:measuredHeight uom=\"" + unit + "\">7</bldg:measuredHeight>", id);
        };
        ShownPanel panel(documentText(building("m", "a") + building("ft", "b") + building("ft", "c")),
                         {"a", "b", "c"});
        QTRY_COMPARE(panel.text("Fields/MeasuredHeight"), QString("7"));
        QCOMPARE(panel.text("Fields/MeasuredHeight", 2), QString::fromUtf8("…"));
        const QByteArray before = panel.saved();
        typeInto(panel.view(), panel.cell("Fields/MeasuredHeight", 2), "m");
        QTRY_COMPARE(panel.text("Fields/MeasuredHeight", 2), QString("m"));
        QCOMPARE(panel.saved().count("uom=\"m\">7"), 3);
        panel.undo();
        QCOMPARE(panel.saved(), before);
    }

    void aUnitThatIsNoneIsRefused_data()
    {
        QTest::addColumn<QString>("unit");
        QTest::newRow("nothing") << " ";
        QTest::newRow("words") << "square metre";
    }
    void aUnitThatIsNoneIsRefused()
    {
        QFETCH(QString, unit);
        ShownPanel panel(documentWithBuilding(manyAttributes));
        const QByteArray before = panel.saved();
        typeInto(panel.view(), panel.cell("Fields/MeasuredHeight", 2), unit);
        QVERIFY(!panel.message().isEmpty());
        QVERIFY(editorIn(panel.view()) != nullptr);
        QTest::keyClick(editorIn(panel.view()), Qt::Key_Escape);
        QCOMPARE(panel.saved(), before);
        QCOMPARE(panel.stack().count(), 0);
    }

    void onlyMeasuresHaveUnitsToChange()
    {
        ShownPanel panel(documentWithBuilding(manyAttributes));
        panel.showAbsent();
        for (const char* const path : {"Fields/StoreysAboveGround", "Fields/ratio", "Fields/Description"}) {
            QVERIFY2(!(panel.cell(path, 2).flags() & Qt::ItemIsEditable), path);
        }
        panel.press("Fields/MeasuredHeight", Qt::Key_Delete);
        QVERIFY(!(panel.cell("Fields/MeasuredHeight", 2).flags() & Qt::ItemIsEditable));
    }

    void aMemberThatTheSchemaNeedsStays()
    {
        ShownPanel panel(documentWithBuilding("<gml:boundedBy><gml:Envelope srsName='x'/></gml:boundedBy>"
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
        ShownPanel panel(documentWithBuilding(manyAttributes));
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
        ShownPanel panel(documentText(bridge));
        QCOMPARE(panel.cell("Fields/IsMovable").data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
        panel.press("Fields/IsMovable", Qt::Key_Space);
        QCOMPARE(panel.cell("Fields/IsMovable").data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
        QVERIFY(panel.saved().contains("true</brid:isMovable>"));
        panel.undo();
        QVERIFY(panel.saved().contains("false</brid:isMovable>"));
    }

    void aDateIsEdited()
    {
        ShownPanel panel(documentWithBuilding(manyAttributes));
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
        ShownPanel panel(documentWithBuilding(manyAttributes));
        auto* const list = qobject_cast<ListEditor*>(
            openEditor(panel.view(), panel.cell("Fields/StoreyHeightsAboveGround")));
        QVERIFY(list != nullptr);
        auto* const table = list->findChild<QTableWidget*>();
        QCOMPARE(table->rowCount(), 2);
        table->item(1, 0)->setText("2.75");
        QTest::mouseClick(list->findChild<QToolButton*>("moveUp"), Qt::LeftButton);
        table->setCurrentCell(1, 0);
        QTest::mouseClick(list->findChild<QToolButton*>("moveUp"), Qt::LeftButton);
        // The cursor goes with the entry.
        QCOMPARE(table->currentRow(), 0);
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
        ShownPanel panel(documentWithBuilding(manyAttributes));
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
        ShownPanel panel(documentWithBuilding(manyAttributes));
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
        ShownPanel panel(documentWithBuilding("<gml:description>one\n two</gml:description>"));
        auto* const lines =
            qobject_cast<QPlainTextEdit*>(openEditor(panel.view(), panel.cell("Fields/Description")));
        QVERIFY(lines != nullptr);
        lines->moveCursor(QTextCursor::End);
        QTest::keyClicks(lines, "!");
        QTest::keyClick(lines, Qt::Key_Return, Qt::ControlModifier);
        QTest::qWait(10);
        QVERIFY2(panel.saved().contains(">one\n two!</gml:description>"), panel.saved());
    }
};

TEST_CLASS(ValueEditingTest, Widgets)
#include "valueeditingtest.moc"
