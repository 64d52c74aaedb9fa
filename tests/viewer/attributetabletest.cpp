#include "apps/viewer/table/AttributeTable.h"
#include "apps/viewer/edits/PropertyEdit.h"
#include "apps/viewer/table/ColumnsDialog.h"
#include "support/Documents.h"
#include "support/PanelFixture.h"
#include "support/TestClass.h"

#include <QAbstractItemModelTester>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSettings>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

using namespace testsupport;
using namespace tolvik::viewer;

namespace {

QByteArray town()
{
    const auto building = [](const char* id, const char* height, const char* storeys, const char* name) {
        return buildingMember(QByteArray("<gml:name>") + name + "</gml:name><bldg:measuredHeight uom=\"m\">" +
                                  height + "</bldg:measuredHeight><bldg:storeysAboveGround>" + storeys +
                                  "</bldg:storeysAboveGround>",
                              id);
    };
    return documentText(building("a", "12.5", "3", "Mill") + building("b", "9", "10", "Barn") +
                        building("c", "30.25", "2", "Church") +
                        buildingMember("<bldg:class>7</bldg:class>", "d"));
}

class Table
{
public:
    explicit Table(const QByteArray& xml = town()) : fixture(xml), table(fixture.document())
    {
        table.resize(700, 300);
        table.show();
        table.activateWindow();
        table.showType("Building");
    }

    QTableView& view() { return *table.findChild<QTableView*>("attributeTable"); }
    int column(const QString& title)
    {
        for (int column = 0; column < view().model()->columnCount(); ++column) {
            if (view().model()->headerData(column, Qt::Horizontal).toString() == title) {
                return column;
            }
        }
        return -1;
    }
    QModelIndex cell(int row, const QString& title) { return view().model()->index(row, column(title)); }
    QStringList texts(const QString& title)
    {
        QStringList texts;
        for (int row = 0; row < view().model()->rowCount(); ++row) {
            texts += cell(row, title).data().toString();
        }
        return texts;
    }
    QString figures() { return table.findChild<QLabel*>("tableFigures")->text(); }

    PanelFixture fixture;
    AttributeTable table;
    QAbstractItemModelTester tester{view().model()};
};

} // namespace

/// The table of all features of a type, driven as a user does.
class AttributeTableTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        settings = std::make_unique<QTemporaryDir>();
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings->path());
    }

    void featuresOfATypeAreRows()
    {
        Table table;
        QCOMPARE(table.texts("Id"), QStringList({"a", "b", "c", "d"}));
        QCOMPARE(table.texts("MeasuredHeight"), QStringList({"12.5 m", "9 m", "30.25 m", ""}));
        QCOMPARE(table.table.findChild<QComboBox*>("tableType")->currentText(), "Building (4)");
        table.table.showType("CityModel");
        QCOMPARE(table.view().model()->rowCount(), 1);
    }

    void columnsAreSorted()
    {
        Table table;
        table.view().setCurrentIndex(table.cell(1, "Id"));
        table.view().sortByColumn(table.column("MeasuredHeight"), Qt::AscendingOrder);
        QTRY_COMPARE(table.texts("Id"), QStringList({"b", "a", "c", "d"}));
        QCOMPARE(table.view().currentIndex().row(), 0);
        table.view().sortByColumn(table.column("StoreysAboveGround"), Qt::DescendingOrder);
        QTRY_COMPARE(table.texts("Id"), QStringList({"b", "a", "c", "d"}));
        table.view().sortByColumn(table.column("Name"), Qt::DescendingOrder);
        QTRY_COMPARE(table.texts("Id"), QStringList({"a", "c", "b", "d"}));
        table.view().sortByColumn(-1, Qt::AscendingOrder);
        QTRY_COMPARE(table.texts("Id"), QStringList({"a", "b", "c", "d"}));
    }

    void rowsAreFiltered()
    {
        Table table;
        auto* const line = table.table.findChild<QLineEdit*>("tableFilter");
        QTest::keyClicks(line, "CHUR");
        QTRY_COMPARE(table.texts("Id"), QStringList({"c"}));
        QTRY_VERIFY(table.figures().contains("1 of 4"));
        line->clear();
        QTRY_COMPARE(table.view().model()->rowCount(), 4);
    }

    void cellsAreEdited()
    {
        Table table;
        const QByteArray before = table.fixture.saved();
        typeInto(table.view(), table.cell(1, "MeasuredHeight"), "9.75");
        QCOMPARE(table.texts("MeasuredHeight"), QStringList({"12.5 m", "9.75 m", "30.25 m", ""}));
        QVERIFY(table.fixture.saved().contains("uom=\"m\">9.75</bldg:measuredHeight>"));
        typeInto(table.view(), table.cell(3, "StoreysAboveGround"), "5");
        QVERIFY(table.fixture.saved().contains(">5</bldg:storeysAboveGround>"));
        QVERIFY(openEditor(table.view(), table.cell(0, "Id")) == nullptr);
        table.fixture.document().undoStack().undo();
        table.fixture.document().undoStack().undo();
        QCOMPARE(table.texts("MeasuredHeight")[1], "9 m");
        QCOMPARE(table.fixture.saved(), before);
    }

    void aWrongValueIsRefused()
    {
        Table table;
        const QByteArray before = table.fixture.saved();
        typeInto(table.view(), table.cell(1, "MeasuredHeight"), "high");
        QVERIFY(editorIn(table.view()) != nullptr);
        QVERIFY(table.table.findChild<QLabel*>("tableMessage")->text().contains("high"));
        QCOMPARE(table.fixture.saved(), before);
    }

    void editsElsewhereShow()
    {
        Table table;
        QSignalSpy spy(table.view().model(), &QAbstractItemModel::dataChanged);
        QString refusal;
        auto edit = PropertyEdit::make(
            table.fixture.document(), {&table.fixture.feature("c")}, PropertyEdit::SetValue,
            {MemberPlace::Property, {{"Fields", 1}, {"MeasuredHeight", 1}}}, 31.0, refusal);
        QVERIFY(edit != nullptr);
        table.fixture.document().undoStack().push(edit.release());
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy[0][0].toModelIndex().row(), 2);
        QCOMPARE(table.texts("MeasuredHeight")[2], "31 m");
    }

    void columnsAreChosen()
    {
        Table table;
        QCOMPARE(table.column("RoofType"), -1);
        QVERIFY(table.column("MeasuredHeight") >= 0);
        QTimer::singleShot(0, [] {
            auto* const dialog = qobject_cast<ColumnsDialog*>(QApplication::activeModalWidget());
            auto* const list = dialog->findChild<QListWidget*>("columns");
            for (QListWidgetItem* const item :
                 list->findItems("Fields/RoofType", Qt::MatchExactly) +
                     list->findItems("Fields/MeasuredHeight", Qt::MatchExactly)) {
                item->setCheckState(item->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
            }
            dialog->accept();
        });
        table.table.chooseColumns();
        QVERIFY(table.column("RoofType") >= 0);
        QCOMPARE(table.column("MeasuredHeight"), -1);
        table.table.showType("CityModel");
        QCOMPARE(table.column("RoofType"), -1);
        table.table.showType("Building");
        QVERIFY(table.column("RoofType") >= 0);
        // So it stays, also for a document of which no feature has the attribute.
        Table next(documentText(buildingMember("", "e")));
        QVERIFY(next.column("RoofType") >= 0);
        QCOMPARE(next.column("MeasuredHeight"), -1);
    }

    void columnsAreMoved()
    {
        QStringList order;
        {
            Table table;
            QHeaderView& header = *table.view().horizontalHeader();
            header.moveSection(header.visualIndex(table.column("MeasuredHeight")), 0);
            order = titles(table.view());
            QCOMPARE(order.first(), QString("MeasuredHeight"));
            QCOMPARE(order.mid(1, 2), QStringList({"Id", "Name"}));
            table.table.showType("CityModel");
            table.table.showType("Building");
            QCOMPARE(titles(table.view()), order);
        }
        Table next;
        QCOMPARE(titles(next.view()), order);
    }

    void columnsAreAsWideAsTheirTexts()
    {
        const QByteArray longName(200, 'x');
        QByteArray members;
        for (int i = 0; i < 30; ++i) {
            members += buildingMember("<gml:description>" + (i == 20 ? longName : "x") +
                                          "</gml:description><gml:name>" +
                                          (i == 20 ? "Old Weigh House" : "x") + "</gml:name>",
                                      "b" + QByteArray::number(i));
        }
        Table table(documentText(members));
        const auto needed = [&](const QString& title) {
            return table.view().sizeHintForIndex(table.cell(20, title)).width();
        };
        QVERIFY(table.view().columnWidth(table.column("Name")) >= needed("Name"));
        const int width = table.view().columnWidth(table.column("Description"));
        QVERIFY(width < needed("Description"));
        QVERIFY(width < table.view().width() / 2);
    }

    /// Anybody may write into the settings.
    void aColumnStandsOnce()
    {
        QSettings().setValue(
            "table/columns/Building",
            R"([[["Fields",1],["Class",1]],[["Fields",1],["Id",1]],[["Fields",1],["Class",1]]])");
        Table table;
        QCOMPARE(titles(table.view()), QStringList({"Class", "Id"}));
    }

    void figuresOfTheSelection()
    {
        Table table;
        const int column = table.column("MeasuredHeight");
        table.view().selectColumn(column);
        QTRY_VERIFY2(table.figures().contains("sum 51.75 m, mean 17.25 m, smallest 9 m, largest 30.25 m"),
                     qPrintable(table.figures()));
        table.view().selectionModel()->select(table.cell(0, "MeasuredHeight"),
                                              QItemSelectionModel::ClearAndSelect);
        QTRY_VERIFY(table.figures().contains("sum 12.5 m"));
        typeInto(table.view(), table.cell(0, "MeasuredHeight"), "20");
        QTRY_VERIFY(table.figures().contains("sum 20 m"));
    }

    void cellsAreCopied()
    {
        Table table;
        table.view().selectionModel()->select(QItemSelection(table.cell(0, "Id"), table.cell(1, "Name")),
                                              QItemSelectionModel::ClearAndSelect);
        table.view().setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&table.table));
        QTest::keyClick(&table.view(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), "a\tMill\nb\tBarn");
        table.table.copyWithTitles();
        QCOMPARE(QApplication::clipboard()->text(), "Id\tName\na\tMill\nb\tBarn");
    }

    void selectedRowsSelectFeatures()
    {
        Table table;
        table.view().selectRow(2);
        table.table.selectFeatures();
        const QModelIndexList rows = table.fixture.document().selection().selectedRows();
        QCOMPARE(rows.size(), 1);
        QCOMPARE(table.fixture.document().model().getFeature(rows[0]), &table.fixture.feature("c"));
    }

private:
    /// The names of the columns from left to right.
    static QStringList titles(const QTableView& view)
    {
        QStringList titles;
        for (int place = 0; place < view.model()->columnCount(); ++place) {
            const int column = view.horizontalHeader()->logicalIndex(place);
            titles += view.model()->headerData(column, Qt::Horizontal).toString();
        }
        return titles;
    }

    std::unique_ptr<QTemporaryDir> settings;
};

TEST_CLASS(AttributeTableTest, Widgets)
#include "attributetabletest.moc"
