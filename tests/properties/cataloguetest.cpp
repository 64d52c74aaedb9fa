#include "support/ExpectedProperties.h"
#include "support/Filler.h"
#include "support/PropertyDump.h"
#include "support/TestClass.h"
#include "UI/Models/CityGMLModel/properties/GmlCorePropertyCreator.h"

#include <QtTest>

using namespace testsupport;

using tolvik::CoreProperty;
using tolvik::GmlCorePropertyCreator;

namespace {

Fondo::RefPtr<CoreProperty> propertiesOf(xml_schema::type& object, bool existingOnly)
{
    GmlCorePropertyCreator creator(existingOnly);
    object.accept(&creator);
    return creator.getProperty();
}

/// Values to edit a property to.
QVariantList editsOf(const ValueType& type)
{
    if (type.isEnumeration()) {
        return enumerationLiterals().value(type.base);
    }
    if (type.form == "sequence") {
        return {type.isMeasure() ? QVariantList{7.25, 8.5} : QVariantList{"edited", "x y"}};
    }
    if (type.isNumber()) {
        return {7.25};
    }
    if (type.base == "bool") {
        return {true, false};
    }
    if (type.base == "gyear" || type.base == "int" || type.base == "long long") {
        return {1789};
    }
    if (type.base == "unsigned long long" || type.base == "core::integerBetween0and4") {
        return {3};
    }
    if (type.base == "date") {
        return {QDate(1999, 12, 31)};
    }
    if (type.base == "date_time") {
        return {QDateTime(QDate(1999, 12, 31), QTime(23, 59, 58))};
    }
    if (type.base == "gml::MeasureListType" || type.base == "gml::integerList" || type.isNullableList()) {
        return {QVariantList{5, 6, 7}};
    }
    return {"edited"};
}

/// Whether an edit of the type removes the attribute, or leaves an empty one.
bool losesEdits(const ValueType& type)
{
    return type.base == "duration" || type.base == "gml::DirectPositionType" || type.base == "simple_type";
}

/// Edits the property, and compares it with the document.
/// \return what is wrong
QString editProperty(CoreProperty& property, const ExpectedNode& node)
{
    const ValueType type(node.valueType);
    if (type.base == "simple_type" && textsOf(*node.owner, node.member) == QStringList{QString()}) {
        return "another property has written here";
    }
    for (const QVariant& value : editsOf(type)) {
        property.setValue(value);
        const QString now = typedText(property.value());
        if (now != typedText(ExpectedProperties::currentValue(node))) {
            return "the document says " + typedText(ExpectedProperties::currentValue(node)) +
                   " and the property " + now;
        }
        const bool isLost = now == typedText(QVariant());
        const bool isSame = type.form == "sequence" || value.userType() == QMetaType::QVariantList
                                ? property.value().toStringList() == value.toStringList()
                                : property.value().toString() == value.toString();
        if (losesEdits(type) ? !isLost : !isSame) {
            return now + " instead of " + typedText(value);
        }
        if (type.base == "simple_type" && textsOf(*node.owner, node.member) != QStringList{QString()}) {
            return "the document says " + textsOf(*node.owner, node.member).join(' ');
        }
        if (node.member != nullptr && type.isMeasure() &&
            ExpectedProperties::uomOf(node.member->ops->at(*node.owner, 0)) != node.unit) {
            return "the unit is another one";
        }
    }
    return QString();
}

/// Edits all bound properties of a tree, in the order of the tree.
/// \return the first thing that is wrong
QString editAll(CoreProperty& property, const ExpectedNode& node)
{
    if (node.owner != nullptr) {
        const QString wrong = editProperty(property, node);
        if (!wrong.isEmpty()) {
            return node.label + " (" + node.valueType + "): " + wrong;
        }
    }
    for (std::size_t i = 0; i < node.children.size(); ++i) {
        QString wrong = editAll(*property.properties().at(static_cast<int>(i)), *node.children.at(i));
        if (!wrong.isEmpty()) {
            return wrong;
        }
    }
    return QString();
}

} // namespace

/// The rows of every schema type, compared with the tables under data/.
class CatalogueTest : public QObject
{
    Q_OBJECT

private:
    QStringList typesWithRows;

private slots:
    void initTestCase()
    {
        for (const auto& row : readTable("rows.tsv")) {
            if (!typesWithRows.contains(row.value("type"))) {
                typesWithRows += row.value("type");
            }
        }
        QCOMPARE(typesWithRows.size(), 254);
        // The last two show nothing themselves and stand in a row of others.
        Filler::wantedTypes() = typesWithRows + QStringList{"gml::ReferenceType", "gml::TimeInstantType"};
    }

    void rowsOfTypes_data()
    {
        QTest::addColumn<QString>("type");
        for (std::size_t i = 0; i < allTypesCount; ++i) {
            const QString name = className(allTypes[i]);
            if (isFeature(allTypes[i]) || typesWithRows.contains(name)) {
                QTest::newRow(qPrintable(name)) << name;
            }
        }
    }

    /// Labels, order, depth, group, values, units, editability, defaults and literals.
    void rowsOfTypes()
    {
        QFETCH(QString, type);
        for (const bool everything : {true, false}) {
            const std::unique_ptr<xml_schema::type> object = Filler(everything).make(recordByClass(type));
            for (const bool existingOnly : {true, false}) {
                const QString expected = dump(*ExpectedProperties(existingOnly).build(*object));
                const QString actual = dump(*propertiesOf(*object, existingOnly));
                QVERIFY2(actual == expected, qPrintable(difference(actual, expected)));
            }
        }
    }

    void editsReachTheDocument_data() { rowsOfTypes_data(); }

    /// Each bound property writes the member that it reads, and no other.
    void editsReachTheDocument()
    {
        QFETCH(QString, type);
        for (const bool everything : {true, false}) {
            const std::unique_ptr<xml_schema::type> object =
                Filler(everything, false).make(recordByClass(type));
            const std::unique_ptr<ExpectedNode> expected = ExpectedProperties(false).build(*object);
            const QString wrong = editAll(*propertiesOf(*object, false), *expected);
            QVERIFY2(wrong.isEmpty(), qPrintable(wrong));
        }
    }

    /// No row of the tables went unseen, but for those that no visit makes.
    void everyRowIsCompared()
    {
        QStringList missing;
        for (const auto& row : readTable("rows.tsv")) {
            const QString key = row.value("type") + ' ' + row.value("order");
            missing += ExpectedProperties::madeRows().contains(key) ? QString() : key;
        }
        for (const auto& row : readTable("generic_rows.tsv")) {
            const QString key = row.value("operation") + ' ' + row.value("order");
            missing += ExpectedProperties::madeRows().contains(key) ? QString() : key;
        }
        missing.removeAll(QString());
        const QStringList unreachable{
            "visit_cityFurniture_genericProperties 1",
            "visit_thermalBoundary_genericProperties 1",
            "visit_thermalBoundary_genericProperties 2",
            "visit_thermalBoundary_genericProperties 3",
        };
        QCOMPARE(missing.join('\n'), unreachable.join('\n'));
    }
};

TEST_CLASS(CatalogueTest, Core)
#include "cataloguetest.moc"
