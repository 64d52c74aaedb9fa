#include "support/Symbols.h"
#include "support/Tables.h"
#include "support/TestClass.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

using namespace testsupport;

namespace {

/// Names of the functions and tables that a library exports. The qualified name of a template stands with its
/// parameters, which are spelled as in the tables.
QStringList exportedNames(const QString& library)
{
    static const QRegularExpression valueClass(
        "\\b(string|uri|date|date_time|duration|gyear)<char, simple_type>");
    static const QRegularExpression container("\\b(optional|sequence)<(.*?), (?:true|false)>");
    QStringList names;
    for (const QString& symbol : exportedSymbols(library)) {
        QString name = demangled(qPrintable(symbol)).replace(" >", ">").remove("xsd::cxx::tree::");
        name.replace("simple_type<char, xml_schema::type>", "simple_type").replace(valueClass, "\\1");
        names += name.replace(container, "\\1<\\2>");
    }
    return names;
}

QStringList sorted(const QSet<QString>& set)
{
    QStringList list = set.values();
    list.sort();
    return list;
}

} // namespace

/// The templates of the library, instantiated for what the tables name and for nothing else.
class InstantiationsTest : public QObject
{
    Q_OBJECT

private:
    QStringList names;

    /// Parameters with which a class template of the library has all that it overrides.
    QSet<QString> parametersOf(const QString& classTemplate) const
    {
        QHash<QString, QSet<QString>> members;
        const QRegularExpression pattern("^tolvik::" + classTemplate + "<(.*)>::(~?\\w+)\\(");
        for (const QString& name : names) {
            const auto match = pattern.match(name);
            if (match.hasMatch()) {
                members[match.captured(1)] += match.captured(2);
            }
        }
        const bool isBase = !classTemplate.startsWith("GmlEnum");
        QSet<QString> wanted{classTemplate, '~' + classTemplate};
        wanted += isBase ? QSet<QString>{"value", "setValue", "defaultValue", "editable", "member"}
                         : QSet<QString>();
        QSet<QString> complete;
        for (auto i = members.cbegin(); i != members.cend(); ++i) {
            if (i.value() == wanted) {
                complete += i.key();
            }
        }
        return complete;
    }

    /// Types with which a function template of the library is exported.
    QSet<QString> typesOf(const QString& function) const
    {
        const QRegularExpression pattern("^[\\w<>:, ]*\\btolvik::" + function + "<(.*)>\\(");
        QSet<QString> types;
        for (const QString& name : names) {
            const auto match = pattern.match(name);
            if (match.hasMatch()) {
                types += match.captured(1);
            }
        }
        return types;
    }

private slots:
    void initTestCase()
    {
        names = exportedNames("CityGMLModel");
        QVERIFY(!names.isEmpty());
    }

    void attributes()
    {
        QSet<QString> attributes;
        QSet<QString> enumerated;
        QSet<QString> valueTypes;
        for (const TableRow& row : readTable("rows.tsv")) {
            const QString owner =
                row.value("type") == "gml::AbstractFeatureType" ? "gml::AbstractGMLType" : row.value("type");
            if (row.value("kind") == "attr" || row.value("kind") == "enum") {
                attributes += owner + ", " + row.value("value_type");
                valueTypes += row.value("value_type");
            }
            if (row.value("kind") == "enum") {
                enumerated += owner + ", " + row.value("value_type");
            }
        }
        QCOMPARE(sorted(parametersOf("GmlAttributeProperty")), sorted(attributes));
        QCOMPARE(sorted(parametersOf("GmlEnumAttributeProperty")), sorted(enumerated));
        QCOMPARE(attributes.size(), 542);
        QCOMPARE(enumerated.size(), 92);
        QCOMPARE(valueTypes.size(), 123);
    }

    void attributesOfExtensions()
    {
        QSet<QString> attributes;
        QSet<QString> enumerated;
        for (const TableRow& row : readTable("generic_rows.tsv")) {
            if (row.value("kind").startsWith("generic")) {
                attributes += row.value("class_matched") + ", " + row.value("value_type");
            }
            if (row.value("kind") == "generic enum") {
                enumerated += row.value("class_matched") + ", " + row.value("value_type");
            }
        }
        QCOMPARE(sorted(parametersOf("GmlGenericApplicationAttributeProperty")), sorted(attributes));
        QCOMPARE(sorted(parametersOf("GmlEnumGenericApplicationAttributeProperty")), sorted(enumerated));
        QCOMPARE(attributes.size(), 31);
        QCOMPARE(enumerated.size(), 4);
    }

    void conversions()
    {
        QSet<QString> types{"double",
                            "bool",
                            "long long",
                            "core::integerBetween0and4",
                            "gml::TimeUnitType",
                            "gml::UnitOfMeasureType",
                            "gml::MeasureListType",
                            "pivotEnergy::LifeCycleStageType",
                            "optional<gml::DirectPositionType>",
                            "optional<gml::integerList>",
                            "optional<gml::MeasureOrNullListType>",
                            "optional<gml::QuantityExtentType>",
                            "optional<simple_type>",
                            "optional<gml::StringOrRefType>",
                            "optional<date_time>",
                            "optional<duration>",
                            "optional<int>",
                            "optional<unsigned long long>",
                            "optional<core::doubleBetween0and1>",
                            "sequence<string>",
                            "sequence<gml::CodeType>",
                            "sequence<gml::AreaType>",
                            "sequence<gml::VolumeType>",
                            "optional<core::RelativeToTerrainType>",
                            "optional<core::RelativeToWaterType>"};
        for (const QString type : {"double", "bool", "long long", "gml::MeasureType", "gml::LengthType",
                                   "gml::AreaType", "gml::VolumeType", "gml::AngleType", "gml::ScaleType",
                                   "string", "gml::CodeType", "uri", "date", "gyear"}) {
            types += type;
            types += "optional<" + type + '>';
        }
        QCOMPARE(types.size(), 50);
        QSet<QString> enumerated;
        for (const TableRow& row : readTable("enumerations.tsv")) {
            if (!row.value("type").startsWith("core::")) {
                enumerated += row.value("type");
                enumerated += "optional<" + row.value("type") + '>';
            }
        }
        QCOMPARE(enumerated.size(), 202);
        QCOMPARE(sorted(typesOf("toQVariant")), sorted(types + enumerated));
        QCOMPARE(sorted(typesOf("fromQVariant")), sorted(types + enumerated));
        QCOMPARE(sorted(typesOf("defaultValue")),
                 sorted(types + enumerated + QSet<QString>{"gml::NullEnumeration"}));
        QCOMPARE(sorted(typesOf("getEnumList")), sorted(enumerated));
    }

    /// Which class answers the visit of each type: the creator, or the nearest of its bases that does.
    void visits()
    {
        const QRegularExpression pattern(
            "^(?:citygml|tolvik)::(GmlCorePropertyCreator|CityGMLPropertiesVisitor|"
            "CityGMLFeaturesVisitor|CityGMLInheritVisitor)::visit_(\\w+)\\(");
        QHash<QString, QSet<QString>> visits;
        QSet<QString> generic;
        for (const QString& name :
             names + exportedNames("TolvikPlatform") + exportedNames("CityGMLBinding")) {
            const auto match = pattern.match(name);
            if (match.captured(2).endsWith("_genericProperties")) {
                generic += match.captured(2);
            } else if (match.hasMatch()) {
                visits[match.captured(1)] += match.captured(2);
            }
        }
        QSet<QString> operations;
        for (const TableRow& row : readTable("generic_rows.tsv")) {
            operations += row.value("operation").mid(6);
        }
        QCOMPARE(sorted(generic), sorted(operations));
        QCOMPARE(generic.size(), 9);
        // Two types have an override that makes no row.
        QSet<QString> typesWithRows{"tran_RailwayType", "tran_SquareType"};
        for (const TableRow& row : readTable("rows.tsv")) {
            typesWithRows += QString(row.value("type")).replace("::", "_");
        }
        QCOMPARE(sorted(visits.value("GmlCorePropertyCreator")), sorted(typesWithRows));
        QCOMPARE(typesWithRows.size(), 256);

        QHash<QString, QVector<int>> answers;
        for (const TableRow& row : readTable("types.tsv")) {
            QVector<int>& counts = answers[row.value("prefix")];
            counts.resize(5);
            ++counts[0];
            const QString operation = row.value("prefix") + '_' + row.value("class");
            int column = 1;
            for (const char* visitor : {"GmlCorePropertyCreator", "CityGMLPropertiesVisitor",
                                        "CityGMLFeaturesVisitor", "CityGMLInheritVisitor"}) {
                if (visits.value(visitor).contains(operation)) {
                    ++counts[column];
                    break;
                }
                ++column;
            }
        }
        QVector<int> all(5);
        for (const QVector<int>& counts : answers) {
            for (int column = 0; column < counts.size(); ++column) {
                all[column] += counts.at(column);
            }
        }
        answers["all"] = all;
        QStringList prefixes;
        for (const TableRow& row : readTable("coverage.tsv")) {
            QVector<int> expected;
            for (const char* const column : {"operations", "property_creator", "properties_visitor",
                                             "features_visitor", "inherit_visitor"}) {
                expected += row.value(column).toInt();
            }
            const QString prefix = row.value("prefix");
            QVERIFY2(answers.value(prefix) == expected, qPrintable(prefix));
            prefixes += prefix;
        }
        QCOMPARE(prefixes.size(), answers.size());
    }
};

TEST_CLASS(InstantiationsTest, Core)
#include "instantiationstest.moc"
