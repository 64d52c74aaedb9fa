#include "citygml/CityGmlUtils.h"
#include "framework/AbstractUnit.h"
#include "support/Files.h"
#include "support/PropertyText.h"
#include "support/TestClass.h"

#include <QtTest>
#include <QXmlStreamReader>

using namespace testsupport;

using namespace tolvik;

namespace {

QStringList linesOf(const core::CityModelType& document)
{
    return QString::fromUtf8(writeWithoutPrefixes(document)).split('\n');
}

/// Each value of a property with its label, and its unit if it has one; a list is several.
void collect(CoreProperty& property, QStringList& values)
{
    const QVariant value = property.value();
    const QVariantList entries =
        value.userType() == QMetaType::QVariantList ? value.toList() : QVariantList{value};
    if (property.name() == "Address" && !value.isValid()) {
        values += "Address";
    }
    for (const QVariant& entry : entries) {
        if (entry.isValid()) {
            values += property.name() + ": " + entry.toString() +
                      (property.unit() == nullptr ? QString() : ' ' + property.unit()->name());
        }
    }
    for (const auto& child : property.properties()) {
        collect(*child, values);
    }
}

/// Elements with rows of the thematic modules and of the generic attributes, as the rows that they must give.
class ElementCollector
{
public:
    /// \param features names of the elements that have a row
    ElementCollector(const QByteArray& xml, const QStringList& features) : reader(xml), features(features)
    {
        for (const NamespacesMap& known : CityGmlUtils::getNamespaces()) {
            namespaces += QString::fromStdString(known.name);
        }
    }

    QStringList collect()
    {
        while (reader.readNextStartElement()) {
            readElement(QString());
        }
        return rows;
    }

    /// How many addresses of buildings there are in what was collected.
    int addressCount() const { return addresses; }

private:
    void readElement(const QString& attributeName)
    {
        // What stands in an extension that is not known is kept, and is no object.
        if (!namespaces.contains(reader.namespaceUri().toString())) {
            reader.skipCurrentElement();
            return;
        }
        static const QHash<QString, QString> labels{{"measuredHeight", "MeasuredHeight"},
                                                    {"yearOfConstruction", "YearOfConstruction"},
                                                    {"yearOfDemolition", "YearOfDemolition"},
                                                    {"roofType", "RoofType"},
                                                    {"creationDate", "CreationDate"},
                                                    {"terminationDate", "TerminationDate"},
                                                    {"storeysAboveGround", "StoreysAboveGround"},
                                                    {"storeysBelowGround", "StoreysBelowGround"},
                                                    {"relativeToTerrain", "RelativeToTerrain"},
                                                    {"relativeToWater", "RelativeToWater"},
                                                    {"species", "Species"},
                                                    {"trunkDiameter", "TrunkDiameter"},
                                                    {"crownDiameter", "CrownDiameter"},
                                                    {"averageHeight", "AverageHeight"},
                                                    {"class", "Class"},
                                                    {"function", "Function"},
                                                    {"usage", "Usage"},
                                                    {"isMovable", "IsMovable"},
                                                    {"surfaceMaterial", "SurfaceMaterial"},
                                                    {"waterLevel", "WaterLevel"}};
        static const QHash<QString, QString> referenceLabels{{"name", "ReferenceName"},
                                                             {"uri", "ReferenceUri"}};
        static const QString gml = "http://www.opengis.net/gml";
        const QString name = reader.name().toString();
        const QString uri = reader.namespaceUri().toString();
        const bool isCityGML = uri.startsWith("http://www.opengis.net/citygml/");
        const QString parent = elements.isEmpty() ? QString() : elements.last();
        QString label;
        if (uri.endsWith("/generics/2.0") && name == "value") {
            label = attributeName;
        } else if (isCityGML && parent == "externalObject" && elements.contains("externalReference")) {
            label = referenceLabels.value(name);
        } else if (isCityGML) {
            label = labels.value(name);
        } else if (uri == gml && isRow(parent, elements.mid(0, elements.size() - 1))) {
            label = name == "name" ? "Name" : name == "description" ? "Description" : QString();
        }
        if (!label.isEmpty()) {
            const QString unit = reader.attributes().value("uom").toString();
            const QString text = reader.readElementText();
            const bool isText = label == "Name" || label == "Description";
            rows += label + ": " + (isText ? text : shown(text.trimmed(), !unit.isEmpty())) +
                    (unit.isEmpty() ? QString() : ' ' + unit);
            return;
        }
        if (isRow(name, elements) && reader.attributes().hasAttribute(gml, "id")) {
            rows += "Id: " + reader.attributes().value(gml, "id").toString();
        }
        addresses +=
            name == "AddressDetails" && elements.contains("Building") && !elements.contains("Door") ? 1 : 0;
        const QString inner = reader.attributes().value("name").toString();
        elements.append(name);
        while (reader.readNextStartElement()) {
            readElement(inner);
        }
        elements.removeLast();
    }

    /// A number as a variant shows it; any other text as it is.
    static QString shown(const QString& text, bool isMeasure)
    {
        bool isNumber = false;
        const double number = text.toDouble(&isNumber);
        return isMeasure && isNumber ? QVariant(number).toString() : text;
    }

    /// Whether an element below those others is a feature with a row. Of doors and occupants nothing is
    /// below.
    bool isRow(const QString& name, const QStringList& above) const
    {
        return features.contains(name) && !above.contains("Door") && !above.contains("Occupants");
    }

    QXmlStreamReader reader;
    QStringList namespaces;
    QStringList features;
    QStringList elements;
    QStringList rows;
    int addresses = 0;
};

/// Bound properties with a text or a number, in the order of the tree.
QVector<CoreProperty*> simpleProperties(CoreProperty& property)
{
    QVector<CoreProperty*> found;
    for (const auto& child : property.properties()) {
        const int type = child->value().userType();
        if (child->editable() && (type == QMetaType::QString || type == QMetaType::Double)) {
            found += child.get();
        }
        found += simpleProperties(*child);
    }
    return found;
}

} // namespace

/// Properties of whole documents, against what stands in their XML.
class DocumentPropertiesTest : public QObject
{
    Q_OBJECT

private:
    int allEdits = 0;

private slots:
    void valuesOfTheXml_data() { addPathRows(exampleAndSharedDocuments()); }

    void valuesOfTheXml()
    {
        QFETCH(QString, path);
        const auto document = readStrictly(contentOf(path));
        QStringList values;
        QStringList types;
        for (gml::AbstractFeatureType* const feature : featuresOf(*document)) {
            types += QString::fromStdString(feature->typeLabel);
            collect(*propertiesOf(*feature, true), values);
        }
        ElementCollector collector(contentOf(path), types);
        for (const QString& row : collector.collect()) {
            QVERIFY2(values.removeOne(row), qPrintable(row));
        }
        QCOMPARE(values.count("Address"), collector.addressCount());
    }

    void anEditChangesOneValue_data() { valuesOfTheXml_data(); }

    /// Of a saved document, with and without an edit, nothing differs but the value.
    void anEditChangesOneValue()
    {
        QFETCH(QString, path);
        const auto document = readStrictly(contentOf(path));
        QStringList before = linesOf(*document);
        int edits = 0;
        for (gml::AbstractFeatureType* const feature : featuresOf(*document)) {
            const Fondo::RefPtr<CoreProperty> root = propertiesOf(*feature, true);
            for (CoreProperty* const property : simpleProperties(*root)) {
                const bool isNumber = property->value().userType() == QMetaType::Double;
                if (!property->potentialValues().isEmpty() || ++edits > 40) {
                    continue;
                }
                const QVariant value =
                    isNumber ? QVariant(edits + 1000.5) : QVariant("edit" + QString::number(edits));
                property->setValue(value);
                const QStringList after = linesOf(*document);
                QCOMPARE(after.size(), before.size());
                int changed = 0;
                for (int i = 0; i < after.size(); ++i) {
                    changed += after.at(i) != before.at(i) ? 1 : 0;
                    QVERIFY2(after.at(i) == before.at(i) || after.at(i).contains(value.toString()),
                             qPrintable(before.at(i) + " becomes " + after.at(i)));
                }
                QVERIFY2(changed == 1, qPrintable(property->name()));
                before = after;
            }
        }
        allEdits += edits;
    }

    void thereWereEdits() { QVERIFY(allEdits > 100); }
};

TEST_CLASS(DocumentPropertiesTest, Core)
#include "documentpropertiestest.moc"
