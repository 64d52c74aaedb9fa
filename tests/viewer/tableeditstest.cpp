#include "apps/viewer/exchange/TableEdits.h"
#include "apps/tables/CellType.h"
#include "apps/tables/ColumnTree.h"
#include "apps/tables/TableImport.h"
#include "apps/viewer/edits/EditGroup.h"
#include "apps/viewer/edits/PropertyEdit.h"
#include "framework/AbstractUnit.h"
#include "gml/AbstractFeatureType.hxx"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/PanelFixture.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "UI/Models/CityGMLModel/properties/BoundProperty.h"
#include "UI/Models/CityGMLModel/properties/GmlCorePropertyCreator.h"

#include <QHash>
#include <QtTest>

using namespace testsupport;
using namespace tolvik::tables;
using namespace tolvik::viewer;

namespace {

/// A value of the same kind that is another one.
QString otherText(const QVariant& value)
{
    switch (*cellType(value)) {
    case CellType::Whole:
        return QString::number(value.toLongLong() + 1);
    case CellType::Real:
        return QString::number(value.toDouble() + 0.5);
    case CellType::Boolean:
        return value.toBool() ? "false" : "true";
    case CellType::Date:
        return value.toDate().addDays(1).toString(Qt::ISODate);
    case CellType::DateTime:
        return value.toDateTime().addDays(1).toString(Qt::ISODate);
    case CellType::List:
        return cellText(QVariant(value.toList() << value.toList().last()));
    default:
        return value.toString() + "x";
    }
}

/// Adds a column for each property below a group, with a cell that changes it or that takes it away.
void addColumns(const tolvik::CoreProperty& group, const ColumnPath& path, bool isRemoval, EditTable& table)
{
    QHash<QString, int> met;
    for (const auto& child : group.properties()) {
        const bool isGeneric = isGenericAttribute(*child);
        ColumnPath own = path;
        own.steps += {child->name(), ++met[child->name() + (isGeneric ? "g" : "")]};
        if (isGeneric) {
            own.isGeneric = true;
            own.steps.removeFirst();
        }
        if (cellType(child->value()) && !isTold(own.text())) {
            EditTable::Column column;
            column.name = own.text();
            column.path = own;
            table.columns += column;
            // Entries of lists, and lists of objects, can be put back only as a part of what they are in.
            const auto* const bound = dynamic_cast<const tolvik::BoundProperty*>(child.get());
            const bool isOne =
                bound != nullptr && !bound->member().isList() && !bound->member().list().isList();
            const bool isTexts = cellType(child->value()) == CellType::List && child->unit() == nullptr;
            table.rows.front().cells +=
                isRemoval && (isOne || isTexts || isGeneric) ? "-" : otherText(child->value());
        }
        addColumns(*child, own, isRemoval, table);
    }
}

/// A table a feature, in which each cell differs from the document, some are new, and some take away.
std::vector<EditTable> tablesFor(tolvik::CityGMLModel& model)
{
    std::vector<EditTable> tables;
    for (int row = 0; row < model.rowCount(); ++row) {
        gml::AbstractFeatureType& feature = *model.getFeature(row);
        if (!feature.id().present()) {
            continue;
        }
        EditTable table;
        table.rows.emplace_back();
        table.rows.front().id = QString::fromStdString(feature.id().get());
        const Fondo::RefPtr<tolvik::CoreProperty> properties(
            tolvik::GmlCorePropertyCreator::createProperty(&feature, true));
        addColumns(*properties, ColumnPath(), row % 3 == 2, table);
        const bool hasName = !feature.name().empty();
        for (const char* const name : {"gen:new", "name"}) {
            if (hasName && qstrcmp(name, "name") == 0) {
                // The list of names is among the columns.
                continue;
            }
            EditTable::Column column;
            column.name = name;
            column.path = ColumnPath::parse(name);
            column.role = column.name == "name" ? EditTable::Role::Name : EditTable::Role::Value;
            table.columns += column;
            table.rows.front().cells += QString::number(row);
        }
        tables.push_back(table);
    }
    return tables;
}

ImportOptions options()
{
    ImportOptions wanted;
    wanted.create = true;
    wanted.absentWord = "-";
    return wanted;
}

} // namespace

/// What the desktop program makes of a table, beside what the terminal tool makes of it.
class TableEditsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        PropertyEdit::addMaker();
        EditGroup::addMaker();
    }

    void bothProgramsMakeTheSameOfATable_data() { addPathRows(documentsBelow(examples())); }

    void bothProgramsMakeTheSameOfATable()
    {
        QFETCH(QString, path);
        PanelFixture tool(contentOf(path));
        PanelFixture program(contentOf(path));
        const std::vector<EditTable> tables = tablesFor(tool.document().model());

        TableImport planned(tables, options(), {path});
        std::vector<PlannedChange> changes;
        const QByteArray before = program.saved();
        for (int row = 0; row < program.document().model().rowCount(); ++row) {
            planned.plan(program.document().model(), row, path,
                         [&](const PlannedChange& change) { changes.push_back(change); });
        }
        QCOMPARE(program.saved(), before);

        TableImport applied(tables, options(), {path});
        applied.apply(tool.document().model(), path);
        QStringList reasons;
        QStringList plannedReasons;
        for (const ImportProblem& problem : applied.problems()) {
            reasons += problem.text();
        }
        for (const ImportProblem& problem : planned.problems()) {
            plannedReasons += problem.text();
        }
        QCOMPARE(plannedReasons, reasons);
        QVERIFY(!changes.empty());

        std::unique_ptr<EditGroup> edit = tableEdit(program.document(), "import", changes);
        QCOMPARE(edit->performAll(), QString());
        const QByteArray after = program.saved();
        QCOMPARE(after, tool.saved());
        const QJsonObject record = edit->record();
        edit->undo();
        QCOMPARE(program.saved(), before);
        edit->redo();
        QCOMPARE(program.saved(), after);
        edit->undo();
        QVERIFY(SlicedEdit::remake(edit->kind(), program.document(), record) != nullptr);
        QCOMPARE(program.saved(), after);
    }

    void editsOfAFeatureAreTakenBackFromTheLastOn()
    {
        PanelFixture fixture(documentWithBuilding("<gml:description>one</gml:description>"));
        const QByteArray before = fixture.saved();
        const MemberPlace description{MemberPlace::Property, {{"Fields", 1}, {"Description", 1}}};
        EditGroup group("describe", 1, [&](int, QString& refusal) {
            EditGroup::Edits edits;
            for (const char* const text : {"two", "three"}) {
                edits.push_back(PropertyEdit::make(fixture.document(), {&fixture.feature("b")},
                                                   PropertyEdit::SetValue, description, text, refusal));
            }
            return edits;
        });
        QCOMPARE(group.performAll(), QString());
        QVERIFY(fixture.saved().contains(">three</gml:description>"));
        group.undo();
        QCOMPARE(fixture.saved(), before);
        group.redo();
        QVERIFY(fixture.saved().contains(">three</gml:description>"));
    }
};

TEST_CLASS(TableEditsTest, Widgets)
#include "tableeditstest.moc"
