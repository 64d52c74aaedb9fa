#include "gml/AbstractFeatureType.hxx"
#include "support/ExpectedProperties.h"
#include "support/Files.h"
#include "support/PropertyDump.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"
#include "UI/Models/CityGMLModel/properties/GmlCorePropertyCreator.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

using namespace testsupport;

using tolvik::CityGMLModel;
using tolvik::CoreProperty;
using tolvik::GmlCorePropertyCreator;

namespace {

/// Literals of each enumerated row, by the class and label of its property.
QMap<QString, QVariantList> enumeratedRows()
{
    QMap<QString, QVariantList> rows;
    for (const auto& row : readTable("rows.tsv")) {
        if (row.value("kind") == "enum") {
            const QString type = row.value("value_type");
            rows.insert("GmlEnumAttributeProperty<" + row.value("type") + ", " + type + "> " +
                            row.value("label"),
                        enumerationLiterals().value(ValueType(type).base));
        }
    }
    return rows;
}

/// Calls \a use with each enumerated property below, and with its class and label.
template <class Use>
void forEachEnumerated(CoreProperty& property, Use use)
{
    for (const auto& child : property.properties()) {
        const QString type = classOf(*child);
        if (type.startsWith("GmlEnumAttributeProperty")) {
            use(*child, type + ' ' + child->name());
        }
        forEachEnumerated(*child, use);
    }
}

/// The same for all features of a document, in the order of the rows.
template <class Use>
void forEachEnumerated(const CityGMLModel& model, Use use)
{
    for (int row = 0; row < model.rowCount(QModelIndex()); ++row) {
        const Fondo::RefPtr<CoreProperty> root =
            GmlCorePropertyCreator::createProperty(model.getFeature(row), true);
        forEachEnumerated(*root, use);
    }
}

} // namespace

/// Enumerated attributes of the examples: each is edited to each of its literals, through a file and back.
class ExtensionEnumerationsTest : public QObject
{
    Q_OBJECT

private:
    QMap<QString, QVariantList> literals;
    /// Row and literal of each edit that came back.
    QSet<QString> survived;

private slots:
    void initTestCase() { literals = enumeratedRows(); }

    void literalsSurvive_data() { addPathRows(documentsBelow(examples())); }

    void literalsSurvive()
    {
        QFETCH(QString, path);
        const QTemporaryDir directory;
        CityGMLModel model(nullptr, nullptr);
        model.load(path);
        int rounds = 1;
        for (int round = 0; round < rounds; ++round) {
            QStringList edited;
            forEachEnumerated(model, [&](CoreProperty& property, const QString& row) {
                const QVariantList values = literals.value(row);
                QVERIFY2(!values.isEmpty(), qPrintable(row));
                QCOMPARE(property.potentialValues(), values);
                rounds = qMax(rounds, values.size());
                property.setValue(values.at(round % values.size()));
                edited += row + ' ' + values.at(round % values.size()).toString();
            });
            const QString saved = directory.filePath("saved.gml");
            QVERIFY(model.saveAs(saved, true));

            CityGMLModel reloaded(nullptr, nullptr);
            reloaded.load(saved);
            QStringList read;
            forEachEnumerated(reloaded, [&](CoreProperty& property, const QString& row) {
                read += row + ' ' + property.value().toString();
            });
            QCOMPARE(read, edited);
            for (const QString& edit : read) {
                survived += edit;
            }
        }
    }

    /// No pair of an owner and a value type was left out, and no literal of one.
    void everyLiteralWasWritten()
    {
        QSet<QString> expected;
        QSet<QString> pairs;
        for (auto row = literals.begin(); row != literals.end(); ++row) {
            pairs += row.key().section("> ", 0, -2);
            for (const QVariant& literal : *row) {
                expected += row.key() + ' ' + literal.toString();
            }
        }
        QCOMPARE(pairs.size(), 92);
        const QStringList missing = (expected - survived).values();
        QVERIFY2(missing.isEmpty(), qPrintable(missing.join('\n')));
        const QStringList unknown = (survived - expected).values();
        QVERIFY2(unknown.isEmpty(), qPrintable(unknown.join('\n')));
    }
};

TEST_CLASS(ExtensionEnumerationsTest, Core)
#include "extensionenumerationstest.moc"
