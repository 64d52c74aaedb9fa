#include "citygml/CityModel.h"
#include "gml/FeaturePropertyType.hxx"
#include "support/ExpectedProperties.h"
#include "support/Filler.h"
#include "support/PropertyDump.h"
#include "support/PropertyText.h"
#include "support/TestClass.h"

#include <algorithm>
#include <limits>
#include <QtTest>
#include <sstream>

using namespace testsupport;

using tolvik::CoreProperty;

namespace {

bool hasElement(const TypeRecord* type)
{
    return std::any_of(allElements, allElements + allElementsCount, [&](const ElementRecord& element) {
        return element.type == type && !element.isAbstract;
    });
}

/// What a property is edited to, for its kind.
QVariant editOf(const QString& sort, CoreProperty& property)
{
    if (sort == "empty") {
        return QVariant();
    }
    if (sort == "wrong") {
        return property.defaultValue().userType() == QMetaType::QString ? QVariant(QVariantList{1})
                                                                        : QVariant("no such value");
    }
    if (classOf(property).contains("TimeIndeterminateValueType")) {
        return "now";
    }
    const bool extreme = sort == "extreme";
    if (!property.potentialValues().isEmpty()) {
        return extreme ? property.potentialValues().last() : property.potentialValues().first();
    }
    switch (static_cast<QMetaType::Type>(property.defaultValue().userType())) {
    case QMetaType::Double:
        return extreme ? -std::numeric_limits<double>::max() : 12.25;
    case QMetaType::Int:
        return extreme ? std::numeric_limits<int>::min() + 1 : 1984;
    case QMetaType::ULongLong:
        return extreme ? QVariant(std::numeric_limits<unsigned>::max()) : QVariant(3);
    case QMetaType::Bool:
        return !property.value().toBool();
    case QMetaType::QDate:
        return extreme ? QDate(9999, 12, 31) : QDate(2001, 2, 3);
    case QMetaType::QDateTime:
        return extreme ? QDateTime(QDate(12345, 12, 31), QTime(23, 59, 59))
                       : QDateTime(QDate(2001, 2, 3), QTime(4, 5, 6));
    case QMetaType::QVariantList:
        return extreme ? QVariantList{"-1e300", "1000000", 0.1} : QVariantList{3, 4};
    default:
        return extreme ? QString("<a b='c'>&amp; \"é 日本 𝄞\" ]]> ").repeated(20) + 'x' : QString("edited");
    }
}

void editAll(CoreProperty& property, const QString& sort)
{
    if (typeid(property) != typeid(CoreProperty)) {
        property.setValue(editOf(sort, property));
    }
    for (const auto& child : property.properties()) {
        editAll(*child, sort);
    }
}

} // namespace

/// Edits of every attribute of every feature, saved and read again.
class EditSavingTest : public QObject
{
    Q_OBJECT

private:
    /// Features that can be members of a document.
    static QStringList memberTypes()
    {
        QStringList types;
        for (std::size_t i = 0; i < allTypesCount; ++i) {
            const QString name = className(allTypes[i]);
            if (isFeature(allTypes[i]) && hasElement(allTypes[i]) && name != "core::CityModelType") {
                types += name;
            }
        }
        return types;
    }

private slots:
    void initTestCase()
    {
        for (const auto& row : readTable("rows.tsv")) {
            Filler::wantedTypes() += row.value("type");
        }
    }

    void editsSurvive_data()
    {
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("sort");
        QTest::addColumn<bool>("everything");
        // A quick run takes one of the two ways to fill a feature, in turn.
        const bool both = qEnvironmentVariableIsSet("TOLVIK_LONG_RUNS");
        const QStringList sorts{"ordinary", "empty", "extreme", "wrong"};
        bool turn = false;
        for (const QString& type : memberTypes()) {
            for (const QString& sort : sorts) {
                turn = !turn;
                for (const bool everything : {false, true}) {
                    if (both || everything == turn) {
                        const QString name = type + ' ' + sort + (everything ? ", full" : ", sparse");
                        QTest::newRow(qPrintable(name)) << type << sort << everything;
                    }
                }
            }
            turn = !turn;
        }
    }

    void editsSurvive()
    {
        QFETCH(QString, type);
        QFETCH(QString, sort);
        QFETCH(bool, everything);
        const bool entersFeatures = qEnvironmentVariableIsSet("TOLVIK_LONG_RUNS");
        const std::unique_ptr<xml_schema::type> made =
            Filler(everything, entersFeatures).make(recordByClass(type));
        FeatureDocument document(dynamic_cast<const gml::AbstractFeatureType&>(*made));
        editAll(*propertiesOf(document, false), sort);
        const QString edited = dump(*propertiesOf(document, true));
        const QByteArray xml = document.text();
        try {
            document.reload();
        } catch (const xsd::cxx::tree::exception<char>& error) {
            std::ostringstream reason;
            reason << error;
            QFAIL((QByteArray::fromStdString(reason.str()) + '\n' + xml.left(6000)).constData());
        }
        const QString reloaded = dump(*propertiesOf(document, true));
        QVERIFY2(reloaded == edited, qPrintable(difference(reloaded, edited)));
    }
};

TEST_CLASS(EditSavingTest, Core)
#include "editsavingtest.moc"
