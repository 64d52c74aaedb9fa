#include "support/SchemaObjects.h"

#include "bldg/BuildingType.hxx"
#include "citygml/CityGMLInheritVisitor.h"
#include "core/CityModelType.hxx"
#include "gml/CodeType.hxx"
#include "support/Symbols.h"
#include "support/Tables.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"

#include <QMap>
#include <QRegularExpression>
#include <QtTest>

#include <memory>

using namespace testsupport;

namespace {

/// Notes which operations answered.
class Recorder : public citygml::CityGMLInheritVisitor
{
public:
    QStringList visited;
    bool answer = true;

    bool visit_bldg_BuildingType(bldg::BuildingType* object) override
    {
        visited << "bldg_BuildingType";
        return citygml::CityGMLInheritVisitor::visit_bldg_BuildingType(object);
    }
    bool visit_core_AbstractCityObjectType(core::AbstractCityObjectType* object) override
    {
        visited << "core_AbstractCityObjectType";
        return citygml::CityGMLInheritVisitor::visit_core_AbstractCityObjectType(object);
    }
    bool visit_gml_AbstractFeatureType(gml::AbstractFeatureType*) override
    {
        visited << "gml_AbstractFeatureType";
        return answer;
    }
};

/// A class that a host derives.
class Castle : public bldg::BuildingType
{
};

QStringList operationsOf(const QString& visitor)
{
    QFile file(generatedCode() + "/citygml/" + visitor + ".h");
    if (!file.open(QIODevice::ReadOnly)) {
        return QStringList();
    }
    QStringList result;
    auto matches =
        QRegularExpression("bool visit_(\\w+)\\(([\\w:]+)\\* object\\)").globalMatch(file.readAll());
    while (matches.hasNext()) {
        result << matches.next().captured(1);
    }
    return result;
}

} // namespace

/// The generated classes, visitors and tables against the project's list of types.
class BindingTest : public QObject
{
    Q_OBJECT

private slots:
    void operationsAreThoseOfTheTypes_data()
    {
        QTest::addColumn<QString>("visitor");
        QTest::newRow("base") << "CityGMLBaseVisitor";
        QTest::newRow("inherit") << "CityGMLInheritVisitor";
    }
    void operationsAreThoseOfTheTypes()
    {
        QFETCH(QString, visitor);
        const QStringList operations = operationsOf(visitor);
        QStringList expected;
        for (const TableRow& row : readTable("types.tsv")) {
            expected << row.value("prefix") + '_' + row.value("class");
        }
        QCOMPARE(expected.size(), 1340);
        QStringList sorted = operations;
        sorted.sort();
        expected.sort();
        QCOMPARE(sorted, expected);
    }

    void operationsStandInTheOrderOfTheNamespaces()
    {
        static const QVector<QPair<QString, int>> table = {
            {"gml", 436},    {"SMIL20", 19},  {"namespace", 1}, {"xlink", 2},         {"component", 24},
            {"energy", 168}, {"epadesa", 48}, {"ladmfr", 68},   {"pivotEnergy", 164}, {"utility", 137},
            {"app", 18},     {"brid", 29},    {"bldg", 27},     {"frn", 1},           {"core", 19},
            {"grp", 3},      {"gen", 9},      {"luse", 1},      {"dem", 9},           {"tex", 7},
            {"tran", 10},    {"tun", 27},     {"veg", 3},       {"wtr", 7},           {"xAL_2_0", 103}};
        const QStringList operations = operationsOf("CityGMLBaseVisitor");
        int at = 0;
        for (const auto& entry : table) {
            for (int i = 0; i < entry.second; ++i, ++at) {
                QVERIFY2(operations.value(at).startsWith(entry.first + '_'),
                         qPrintable(operations.value(at)));
            }
        }
        QCOMPARE(operations.size(), at);
    }

    void theLibraryHasTheOperations()
    {
        const QStringList operations =
            exportedSymbols("CityGMLBinding")
                .filter(QRegularExpression("^_ZN7citygml21CityGMLInheritVisitor\\d+visit_"));
        QCOMPARE(operations.size(), 1340);
    }

    void basesAreThoseOfTheTypes()
    {
        QMap<QString, const TypeRecord*> records;
        for (const auto* record : schemaTypes()) {
            records[className(record)] = record;
        }
        QCOMPARE(records.size(), 1340);
        int compared = 0;
        for (const TableRow& row : readTable("types.tsv")) {
            const QString name = (row.value("prefix") == "namespace" ? "namespace_" : row.value("prefix")) +
                                 "::" + row.value("class");
            QVERIFY2(records.contains(name), qPrintable(name));
            const QString base = row.value("base");
            const auto* record = records[name];
            if (base.startsWith("xml_schema::")) {
                QVERIFY2(record->base == nullptr, qPrintable(name));
            } else if (base.contains("::")) {
                QVERIFY2(record->base != nullptr, qPrintable(name));
                QCOMPARE(className(record->base), base);
            } else {
                continue;
            }
            ++compared;
        }
        QVERIFY2(compared > 720, qPrintable(QString::number(compared)));
    }

    void everyObjectNamesItsKindAndTakesAVisitor()
    {
        for (const auto* record : schemaTypes()) {
            const std::unique_ptr<xml_schema::type> object(record->create());
            QCOMPARE(citygml::binding::recordOf(*object), record);
            QString label = className(record).section("::", 1);
            if (label.endsWith("Type") && label.size() > 4) {
                label.chop(4);
            }
            QCOMPARE(QString::fromStdString(object->typeLabel), label);
            citygml::CityGMLInheritVisitor visitor;
            QVERIFY(object->accept(&visitor));
            const std::unique_ptr<xml_schema::type> copy(object->_clone());
            QCOMPARE(citygml::binding::recordOf(*copy), record);
        }
    }

    void literalsAreThoseOfTheTable()
    {
        QMap<QString, QStringList> expected, actual;
        for (const TableRow& row : readTable("enumerations.tsv")) {
            QStringList& literals = expected[row.value("type")];
            QCOMPARE(row.value("number").toInt(), literals.size());
            literals << row.value("literal");
        }
        QCOMPARE(expected.size(), 103);
        for (const auto* record : schemaTypes()) {
            const QString name = className(record);
            for (std::size_t i = 0; expected.contains(name) && i < record->literalCount; ++i) {
                actual[name] << QString::fromUtf8(record->literals[i]);
            }
        }
        QCOMPARE(actual, expected);
    }

    void everyLiteralIsReadAndWritten()
    {
        const NoNames names;
        int literals = 0;
        for (const auto* record : schemaTypes()) {
            for (std::size_t i = 0; i < record->literalCount; ++i, ++literals) {
                const std::unique_ptr<xml_schema::type> object(record->create());
                record->text->parse(*object, record->literals[i], names);
                std::string text;
                record->text->format(*object, text, names);
                QCOMPARE(text, std::string(record->literals[i]));
            }
        }
        QVERIFY(literals >= 544);
    }

    void aVisitRunsUpTheBases()
    {
        bldg::BuildingType building;
        Recorder visitor;
        QVERIFY(building.accept(&visitor));
        QCOMPARE(visitor.visited, QStringList({"bldg_BuildingType", "core_AbstractCityObjectType",
                                               "gml_AbstractFeatureType"}));
        visitor.answer = false;
        QVERIFY(!building.accept(&visitor));
    }

    void aTypeWithoutOverrideReachesThoseOfItsBases()
    {
        core::CityModelType model;
        Recorder visitor;
        QVERIFY(model.accept(&visitor));
        QCOMPARE(visitor.visited, QStringList("gml_AbstractFeatureType"));
    }

    void aClassOfTheHostAnswersThroughItsNearestBase()
    {
        Castle castle;
        Recorder visitor;
        QVERIFY(castle.accept(&visitor));
        QCOMPARE(visitor.visited.first(), QString("bldg_BuildingType"));
        QCOMPARE(std::string(castle.typeLabel), std::string("Building"));
        xml_schema::string text("t");
        QVERIFY(text.accept(&visitor));
    }

    void pushingClones()
    {
        bldg::BuildingType building;
        {
            const std::unique_ptr<gml::CodeType> name(new gml::CodeType("n"));
            building.name().push_back(*name);
        }
        QCOMPARE(std::string(building.name().front()), std::string("n"));
        QCOMPARE(building.name().front()._container(), static_cast<xml_schema::container*>(&building));
    }
};

TEST_CLASS(BindingTest, Core)
#include "bindingtest.moc"
