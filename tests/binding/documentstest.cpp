#include "support/Documents.h"
#include "citygml/CityModel.h"
#include "citygml/SchemaOrder.h"
#include "gml/AbstractFeatureType.hxx"
#include "support/Files.h"
#include "support/SchemaObjects.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "support/XmlTree.h"

#include <algorithm>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>
#include <random>

using namespace testsupport;

namespace {

/// Inserts elements, attributes and comments that no schema knows at random places.
void addNoise(XmlNode& node, std::mt19937& random)
{
    for (XmlNode& child : node.children) {
        addNoise(child, random);
    }
    if (node.kind != XmlNode::Element || node.name.isEmpty()) {
        return;
    }
    if (random() % 4 == 0) {
        node.attributes["{urn:noise}level"] = QString::number(random() % 100);
    }
    const bool hasElements = std::any_of(node.children.begin(), node.children.end(),
                                         [](const XmlNode& child) { return child.kind == XmlNode::Element; });
    const bool hasText = std::any_of(node.children.begin(), node.children.end(),
                                     [](const XmlNode& child) { return child.kind == XmlNode::Text; });
    if (!hasElements || hasText || random() % 3 != 0) {
        return;
    }
    XmlNode noise;
    if (random() % 2 == 0) {
        noise.name = "{urn:noise}Source";
        noise.attributes["{}kind"] = "a < b & c";
    } else {
        noise.kind = XmlNode::Comment;
        noise.text = " heard here ";
    }
    node.children.insert(static_cast<int>(random() % static_cast<unsigned>(node.children.size() + 1)), noise);
}

bool isMixed(const XmlNode& node)
{
    return std::any_of(node.children.begin(), node.children.end(),
                       [](const XmlNode& child) { return child.kind == XmlNode::Text; });
}

/// Brings the children of each element into a random order.
void reorder(XmlNode& node, std::mt19937& random)
{
    for (XmlNode& child : node.children) {
        reorder(child, random);
    }
    if (!isMixed(node) && !node.name.isEmpty()) {
        std::shuffle(node.children.begin(), node.children.end(), random);
    }
}

/// The element at the top of an element's substitution group; its own name where it is in none.
QString topOf(const QString& name)
{
    static const QMap<QString, QString> tops = [] {
        using citygml::binding::ElementRecord;
        QMap<QString, QString> result;
        for (std::size_t i = 0; i < citygml::binding::allElementsCount; ++i) {
            const ElementRecord* element = &citygml::binding::allElements[i];
            const auto nameOf = [](const ElementRecord& e) { return QString("{%1}%2").arg(e.uri, e.name); };
            const QString own = nameOf(*element);
            while (element->head != nullptr) {
                element = element->head;
            }
            result[own] = nameOf(*element);
        }
        return result;
    }();
    return tops.value(name, name);
}

const QSet<QString>& schemaNamespaces()
{
    static const QSet<QString> uris = [] {
        QSet<QString> result;
        for (const auto* record : schemaTypes()) {
            result.insert(record->uri);
        }
        return result;
    }();
    return uris;
}

/// Mixes the children of each element, but leaves those that one member takes in the order that they have.
void reorderMembers(XmlNode& node, std::mt19937& random)
{
    // Below what the schema does not know, nothing has an order of its own.
    const auto isKnown = [](const XmlNode& child) {
        return schemaNamespaces().contains(child.namespaceUri());
    };
    if (isMixed(node) || !isKnown(node) || node.localName() == "metaDataProperty") {
        return;
    }
    for (XmlNode& child : node.children) {
        reorderMembers(child, random);
    }
    // Elements of an address may alternate.
    if (node.namespaceUri().contains(":xAL:") ||
        !std::all_of(node.children.begin(), node.children.end(), isKnown)) {
        return;
    }
    QMap<QString, QVector<XmlNode>> members;
    QStringList order;
    for (const XmlNode& child : node.children) {
        const QString top = topOf(child.name);
        members[top].append(child);
        order << top;
    }
    std::shuffle(order.begin(), order.end(), random);
    node.children.clear();
    for (const QString& top : order) {
        node.children.append(members[top].takeFirst());
    }
}

void removeComments(XmlNode& node)
{
    const auto isOther = [](const XmlNode& child) {
        return child.kind == XmlNode::Comment || child.kind == XmlNode::Instruction;
    };
    node.children.erase(std::remove_if(node.children.begin(), node.children.end(), isOther),
                        node.children.end());
    for (XmlNode& child : node.children) {
        removeComments(child);
    }
}

QByteArray toXml(const XmlNode& node)
{
    switch (node.kind) {
    case XmlNode::Text:
        return node.text.toHtmlEscaped().toUtf8();
    case XmlNode::Comment:
        return "<!--" + node.text.toUtf8() + "-->";
    case XmlNode::Instruction:
        return "<?" + node.name.toUtf8() + ' ' + node.text.toUtf8() + "?>";
    default:
        break;
    }
    QByteArray content;
    for (const XmlNode& child : node.children) {
        content += toXml(child);
    }
    if (node.name.isEmpty()) {
        return content;
    }
    // Every element declares what it needs, which also moves the declarations away from the root.
    QByteArray tag = "<e:" + node.localName().toUtf8() + " xmlns:e='" + node.namespaceUri().toUtf8() + '\'';
    int number = 0;
    for (auto i = node.attributes.begin(); i != node.attributes.end(); ++i) {
        const QString uri = i.key().mid(1, i.key().indexOf('}') - 1);
        const QByteArray local = i.key().mid(i.key().indexOf('}') + 1).toUtf8();
        const QByteArray value = i.value().toHtmlEscaped().toUtf8();
        if (uri.isEmpty()) {
            tag += ' ' + local + "=\"" + value + '"';
        } else if (uri == "http://www.w3.org/XML/1998/namespace") {
            tag += " xml:" + local + "=\"" + value + '"';
        } else {
            const QByteArray prefix = 'a' + QByteArray::number(++number);
            tag +=
                " xmlns:" + prefix + "='" + uri.toUtf8() + "' " + prefix + ':' + local + "=\"" + value + '"';
        }
    }
    return tag + '>' + content + "</e:" + node.localName().toUtf8() + '>';
}

} // namespace

/// Whole documents, the examples and those beside the project: what they say comes back.
class DocumentsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(!documentsBelow(examples()).isEmpty()); }

    void comesBack_data() { addPathRows(exampleAndSharedDocuments()); }
    void comesBack()
    {
        QFETCH(QString, path);
        const QByteArray original = contentOf(path);
        const Document first = read(original);
        const QByteArray saved = write(*first);
        const QStringList differences = XmlNode::differences(XmlNode::parse(original), XmlNode::parse(saved));
        QVERIFY2(differences.isEmpty(), qPrintable(differences.mid(0, 5).join('\n')));
        const Document second = read(saved);
        QCOMPARE(listOf(*second), listOf(*first));
        QCOMPARE(write(*second), saved);
        // A copy says the same.
        const std::unique_ptr<core::CityModelType> copy(first->_clone());
        QCOMPARE(write(*copy), saved);
    }

    void noiseComesBack_data() { comesBack_data(); }
    void noiseComesBack()
    {
        QFETCH(QString, path);
        std::mt19937 random(20261121);
        XmlNode tree = XmlNode::parse(contentOf(path));
        const QStringList features = listOf(*read(contentOf(path)));
        for (XmlNode& child : tree.children) {
            addNoise(child, random);
        }
        const QByteArray noisy = toXml(tree);
        QString error;
        const XmlNode original = XmlNode::parse(noisy, &error);
        QCOMPARE(error, QString());
        const Document document = read(noisy);
        QCOMPARE(listOf(*document), features);
        const QStringList differences = XmlNode::differences(original, XmlNode::parse(write(*document)));
        QVERIFY2(differences.isEmpty(), qPrintable(differences.mid(0, 5).join('\n')));
    }

    void anyOrderIsRead_data() { comesBack_data(); }
    void anyOrderIsRead()
    {
        QFETCH(QString, path);
        std::mt19937 random(20261121);
        XmlNode original = XmlNode::parse(contentOf(path));
        for (XmlNode& child : original.children) {
            reorder(child, random);
        }
        const Document document = read(toXml(original));
        // The first name may be another one now.
        const auto features = [](core::CityModelType& model) {
            QStringList lines = listOf(model).replaceInStrings(QRegularExpression(" '.*"), QString());
            lines.sort();
            return lines;
        };
        QCOMPARE(features(*document), features(*read(contentOf(path))));
        const QByteArray xml = write(*document);
        const QStringList differences = XmlNode::differences(original, XmlNode::parse(xml));
        QVERIFY2(differences.isEmpty(), qPrintable(differences.mid(0, 5).join('\n')));
        QCOMPARE(write(*read(xml)), xml);
    }

    // The documents are in the order of the schema, and so are back in their own order.
    void anyOrderIsPutIntoTheOrderOfTheSchema_data() { comesBack_data(); }
    void anyOrderIsPutIntoTheOrderOfTheSchema()
    {
        QFETCH(QString, path);
        std::mt19937 random(20261122);
        XmlNode original = XmlNode::parse(contentOf(path));
        removeComments(original);
        XmlNode reordered = original;
        for (XmlNode& child : reordered.children) {
            reorderMembers(child, random);
        }
        QVERIFY(!XmlNode::differences(original, reordered).isEmpty());
        const Document document = read(toXml(reordered));
        QVERIFY(citygml::putInSchemaOrder(*document) > 0);
        const XmlNode saved = XmlNode::parse(write(*document));
        const QStringList differences = XmlNode::differences(original, saved);
        QVERIFY2(differences.isEmpty(), qPrintable(differences.mid(0, 5).join('\n')));
    }

    // Counted from the XML alone: what has the name of a feature, unless it stands where the walk does not
    // go.
    void rowsAreTheFeaturesOfTheXml_data()
    {
        SKIP_WITHOUT(sharedDocuments());
        addPathRows(documentsBelow(sharedDocuments()));
    }
    void rowsAreTheFeaturesOfTheXml()
    {
        QFETCH(QString, path);
        QMap<QString, int> expected, actual;
        countFeatures(XmlNode::parse(contentOf(path)), expected);
        const Document document = read(contentOf(path));
        for (const QString& line : listOf(*document)) {
            ++actual[line.section(' ', 0, 0)];
        }
        QCOMPARE(actual, expected);
    }

    void everyFeatureTypeIsInAnExample()
    {
        QSet<QString> found;
        for (const QString& path : documentsBelow(examples())) {
            collectTypes(*read(contentOf(path)), found);
        }
        // A type without an element of its own has no place in a document.
        QSet<const TypeRecord*> elements;
        for (std::size_t i = 0; i < citygml::binding::allElementsCount; ++i) {
            if (!citygml::binding::allElements[i].isAbstract) {
                elements.insert(citygml::binding::allElements[i].type);
            }
        }
        QStringList missing;
        for (const auto* record : schemaTypes()) {
            bool isFeature = false;
            for (const auto* base = record; base != nullptr; base = base->base) {
                isFeature = isFeature || *base->info == typeid(gml::AbstractFeatureType);
            }
            const QString name = className(record);
            if (isFeature && !record->isAbstract && elements.contains(record) && !found.contains(name)) {
                missing << name;
            }
        }
        QCOMPARE(missing.join(' '), QString());
    }

private:
    static void collectTypes(const xml_schema::type& object, QSet<QString>& found)
    {
        const auto* record = citygml::binding::recordOf(object);
        found.insert(className(record));
        for (; record != nullptr; record = record->base) {
            for (std::size_t i = 0; i < record->memberCount; ++i) {
                const auto& member = record->members[i];
                for (std::size_t j = 0; member.type != nullptr && j < member.ops->count(object); ++j) {
                    collectTypes(member.ops->at(object, j), found);
                }
            }
        }
    }

    static void countFeatures(const XmlNode& node, QMap<QString, int>& counts)
    {
        static const QStringList features =
            QString(
                "CityModel Building BuildingPart BuildingInstallation IntBuildingInstallation "
                "BuildingFurniture Room "
                "Door Window RoofSurface WallSurface GroundSurface ClosureSurface CeilingSurface "
                "InteriorWallSurface FloorSurface OuterCeilingSurface OuterFloorSurface Address Appearance "
                "CityFurniture Road Railway Track Square TransportationComplex TrafficArea "
                "AuxiliaryTrafficArea "
                "ReliefFeature TINRelief CityObjectGroup LandUse WaterBody SolitaryVegetationObject "
                "PlantCover "
                "GenericCityObject")
                .split(' ');
        const bool isFeature = node.namespaceUri().startsWith("http://www.opengis.net/citygml/") &&
                               features.contains(node.localName());
        if (isFeature) {
            ++counts[node.localName()];
        }
        // The address of an opening stands below a feature that leads no further.
        if (node.localName() == "Door" || node.localName() == "Window") {
            return;
        }
        for (const XmlNode& child : node.children) {
            countFeatures(child, counts);
        }
    }
};

TEST_CLASS(DocumentsTest, Core)
#include "documentstest.moc"
