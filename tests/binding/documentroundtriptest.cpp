#include "support/RoundTrip.h"
#include "support/SchemaTables.h"
#include "support/XmlTree.h"

#include "gml/BoundingShapeType.hxx"
#include "gml/DirectPositionType.hxx"
#include "gml/EnvelopeType.hxx"
#include "gml/FeaturePropertyType.hxx"
#include "support/TestPaths.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>

#include <clocale>
#include <log4cplus/initializer.h>
#include <random>

namespace {

using namespace roundtrip;

QStringList documents()
{
    QStringList result;
    for (const QString& directory : {testpaths::examples(), testpaths::sharedFiles() + "/data"}) {
        QDirIterator files(directory, {"*.gml"}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            result << files.next();
        }
    }
    result.sort();
    return result;
}

/// A document with the given members of the root.
QByteArray cityModel(const QByteArray& content)
{
    return "<core:CityModel xmlns:core='http://www.opengis.net/citygml/2.0' "
           "xmlns:gml='http://www.opengis.net/gml'"
           " xmlns:bldg='http://www.opengis.net/citygml/building/2.0' "
           "xmlns:xlink='http://www.w3.org/1999/xlink'"
           " xmlns:gen='http://www.opengis.net/citygml/generics/2.0'"
           " xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'"
           " xmlns:app='http://www.opengis.net/citygml/appearance/2.0'"
           " xmlns:xAL='urn:oasis:names:tc:ciq:xsdschema:xAL:2.0' xmlns:x='urn:unknown'>" +
           content + "</core:CityModel>";
}

QByteArray building(const QByteArray& content)
{
    return cityModel("<core:cityObjectMember><bldg:Building gml:id='b'>" + content +
                     "</bldg:Building></core:cityObjectMember>");
}

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
        for (const auto* record : schematables::types()) {
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

/// Sorts the children of each element by all that they say.
/// \return what the element says
QString sortChildren(XmlNode& node)
{
    QStringList words = node.text.simplified().split(' ');
    for (QString& word : words) {
        bool isNumber = false;
        const double value = word.toDouble(&isNumber);
        if (isNumber) {
            word = QString::number(value, 'g', 17);
        }
    }
    QString result = QString("%1 %2 %3").arg(node.kind).arg(node.name, words.join(' '));
    for (auto i = node.attributes.begin(); i != node.attributes.end(); ++i) {
        result += ' ' + i.key() + '=' + i.value();
    }
    QVector<QPair<QString, XmlNode>> children;
    for (XmlNode& child : node.children) {
        const QString text = sortChildren(child);
        children.append({text, child});
    }
    std::sort(children.begin(), children.end(),
              [](const auto& a, const auto& b) { return a.first < b.first; });
    for (int i = 0; i < children.size(); ++i) {
        node.children[i] = children[i].second;
        result += '(' + children[i].first + ')';
    }
    return result;
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

/// Reading and writing by the schema tables: what a document says comes back.
class DocumentRoundTripTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(!documents().isEmpty()); }

    void comesBack_data()
    {
        QTest::addColumn<QString>("path");
        for (const QString& path : documents()) {
            QTest::newRow(qPrintable(QFileInfo(path).fileName() + ' ' + QFileInfo(path).dir().dirName()))
                << path;
        }
    }
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
        XmlNode saved = XmlNode::parse(xml);
        sortChildren(original);
        sortChildren(saved);
        const QStringList differences = XmlNode::differences(original, saved);
        QVERIFY2(differences.isEmpty(), qPrintable(differences.mid(0, 5).join('\n')));
        QCOMPARE(write(*read(xml)), xml);
    }

    // The documents are in the order of the schema, and so are back in their own order.
    void anyOrderIsSavedInTheOrderOfTheSchema_data() { comesBack_data(); }
    void anyOrderIsSavedInTheOrderOfTheSchema()
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
        const XmlNode saved = XmlNode::parse(write(*read(toXml(reordered))));
        const QStringList differences = XmlNode::differences(original, saved);
        QVERIFY2(differences.isEmpty(), qPrintable(differences.mid(0, 5).join('\n')));
    }

    // Counted from the XML alone: what has the name of a feature, unless it stands where the walk does not
    // go.
    void rowsAreTheFeaturesOfTheXml_data() { comesBack_data(); }
    void rowsAreTheFeaturesOfTheXml()
    {
        QFETCH(QString, path);
        if (path.startsWith(testpaths::examples())) {
            QSKIP("only for the documents of others");
        }
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
        for (const QString& path : documents()) {
            if (path.startsWith(testpaths::examples())) {
                collectTypes(*read(contentOf(path)), found);
            }
        }
        // A type without an element of its own has no place in a document.
        QSet<const schematables::TypeRecord*> elements;
        for (std::size_t i = 0; i < citygml::binding::allElementsCount; ++i) {
            if (!citygml::binding::allElements[i].isAbstract) {
                elements.insert(citygml::binding::allElements[i].type);
            }
        }
        QStringList missing;
        for (const auto* record : schematables::types()) {
            bool isFeature = false;
            for (const auto* base = record; base != nullptr; base = base->base) {
                isFeature = isFeature || *base->info == typeid(gml::AbstractFeatureType);
            }
            const QString name = schematables::className(*record);
            if (isFeature && !record->isAbstract && elements.contains(record) && !found.contains(name)) {
                missing << name;
            }
        }
        QCOMPARE(missing.join(' '), QString());
    }

    void numbersComeBackToTheBit()
    {
        const QByteArray numbers =
            "0.1 -0 1e300 4.9406564584124654e-324 123456789.123456789 500000 0.30000000000000004 "
            "1.7976931348623157e308 INF -INF 3 -17.25 2.2250738585072014E-308";
        const auto valuesOf = [](const Document& document) {
            const auto& members = document->featureMember();
            const auto& object = dynamic_cast<const gml::AbstractFeatureType&>(*members.front()._Feature());
            const auto& corner = *object.boundedBy()->Envelope()->lowerCorner();
            return std::vector<double>(corner.begin(), corner.end());
        };
        const QByteArray xml =
            building("<gml:boundedBy><gml:Envelope><gml:lowerCorner>" + numbers +
                     "</gml:lowerCorner><gml:upperCorner>1 2</gml:upperCorner></gml:Envelope>"
                     "</gml:boundedBy>");
        for (const char* locale : {"C", "de_DE.UTF-8", "fr_FR.UTF-8"}) {
            std::setlocale(LC_ALL, locale);
            const Document document = read(xml);
            const auto values = valuesOf(document);
            QCOMPARE(values.size(), std::size_t(13));
            QCOMPARE(values[0], 0.1);
            QVERIFY(std::signbit(values[1]));
            QCOMPARE(values[3], 4.9406564584124654e-324);
            QCOMPARE(values[5], 500000.0);
            QVERIFY(std::isinf(values[8]) && values[9] < 0);
            const QByteArray saved = write(*document);
            QVERIFY(saved.contains("500000 0.30000000000000004 "));
            const auto again = valuesOf(read(saved));
            QCOMPARE(std::memcmp(again.data(), values.data(), values.size() * sizeof(double)), 0);
        }
        std::setlocale(LC_ALL, "C");
    }

    void keepsNamesOfElementsOfOneType()
    {
        const QByteArray saved =
            write(*read(cityModel("<gml:featureMember><bldg:Building/></gml:featureMember>"
                                  "<core:cityObjectMember><bldg:Building/></core:cityObjectMember>"
                                  "<app:appearanceMember><app:Appearance/></app:appearanceMember>")));
        QVERIFY(saved.contains("<gml:featureMember>"));
        QVERIFY(saved.contains("<core:cityObjectMember>"));
        QVERIFY(saved.contains("<app:appearanceMember>"));
        QVERIFY(!saved.contains("xlink:type"));
        QVERIFY(saved.startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<core:CityModel "));
        QVERIFY(saved.contains(
            "\n  <core:cityObjectMember>\n    <bldg:Building/>\n  </core:cityObjectMember>\n"));
        for (const tolvik::NamespacesMap& entry : tolvik::CityGmlUtils::getNamespaces()) {
            QVERIFY2(saved.contains('"' + QByteArray::fromStdString(entry.name) + '"'), entry.name.c_str());
        }
    }

    void keepsWhatTheClassesHaveNoMemberFor_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("fixed attribute")
            << QByteArray("<bldg:lod1Solid xlink:type='simple' xlink:href='#s'/>");
        QTest::newRow("mixed text") << QByteArray(
            "<bldg:address><core:Address><core:xalAddress><xAL:AddressDetails><xAL:Country><xAL:CountryName>"
            "N &amp; S"
            "</xAL:CountryName><xAL:Locality Type='Town'>before<xAL:LocalityName>Haven</xAL:LocalityName> "
            "after"
            "</xAL:Locality></xAL:Country></xAL:AddressDetails></core:xalAddress></core:Address></"
            "bldg:address>");
        QTest::newRow("unknown element in front")
            << QByteArray("<x:a><x:b c='1'>t</x:b></x:a><gml:name>n</gml:name>");
        QTest::newRow("unknown element between")
            << QByteArray("<gml:name>n</gml:name><x:a/><bldg:measuredHeight uom='m'>3</bldg:measuredHeight>");
        QTest::newRow("unknown attributes")
            << QByteArray("<gml:name x:a='1' xml:lang='fr' b='2'>n</gml:name>");
        QTest::newRow("attribute of a plain value")
            << QByteArray("<bldg:storeysAboveGround x:sure='yes'>3</bldg:storeysAboveGround>");
        QTest::newRow("nil") << QByteArray("<bldg:storeysAboveGround xsi:nil='true'/>");
        QTest::newRow("nil with unit missing") << QByteArray("<bldg:measuredHeight uom='m' xsi:nil='true'/>");
        QTest::newRow("comment and instruction")
            << QByteArray("<!-- one --><gml:name>n</gml:name><?do it?><!--two-->");
        QTest::newRow("second of a single element")
            << QByteArray("<bldg:roofType>1</bldg:roofType><bldg:roofType>2</bldg:roofType>");
        QTest::newRow("known element out of place") << QByteArray("<bldg:opening/>");
        QTest::newRow("xsi:type") << QByteArray(
            "<bldg:measuredHeight uom='m' xsi:type='gml:LengthType'>3</bldg:measuredHeight>");
        QTest::newRow("CDATA") << QByteArray("<gml:name><![CDATA[a <b> & c]]></gml:name>");
    }
    void keepsWhatTheClassesHaveNoMemberFor()
    {
        QFETCH(QByteArray, content);
        const QByteArray original = building(content);
        const QByteArray saved = write(*read(original));
        QCOMPARE(XmlNode::differences(XmlNode::parse(original), XmlNode::parse(saved)), QStringList());
        QCOMPARE(write(*read(saved)), saved);
    }

    void alternatingElementsKeepTheirOrder()
    {
        const QByteArray original =
            building("<bldg:lod0FootPrint><gml:MultiSurface><gml:surfaceMember><gml:Polygon><gml:exterior><"
                     "gml:LinearRing>"
                     "<gml:pos>0 0 0</gml:pos><gml:pointProperty xlink:href='#p'/><gml:pos>1 0 0</gml:pos>"
                     "<gml:pointProperty xlink:href='#q'/><gml:pos>0 0 "
                     "0</gml:pos></gml:LinearRing></gml:exterior></gml:Polygon>"
                     "</gml:surfaceMember></gml:MultiSurface></bldg:lod0FootPrint>");
        QCOMPARE(XmlNode::differences(XmlNode::parse(original), XmlNode::parse(write(*read(original)))),
                 QStringList());
    }

    void repeatedBooleansComeBack()
    {
        const QByteArray original =
            cityModel("<gml:featureMember><gml:GridCoverage><gml:gridDomain/><gml:rangeSet><gml:ValueArray>"
                      "<gml:valueComponents><gml:Boolean>true</gml:Boolean><gml:Count>3</gml:Count>"
                      "<gml:Boolean>false</gml:Boolean></gml:valueComponents>"
                      "</gml:ValueArray></gml:rangeSet></gml:GridCoverage></gml:featureMember>");
        QCOMPARE(XmlNode::differences(XmlNode::parse(original), XmlNode::parse(write(*read(original)))),
                 QStringList());
    }

    void anUnexpectedOrderIsRead()
    {
        const Document document = read(building("<bldg:roofType>flat</bldg:roofType><gml:name>n</gml:name>"));
        const auto& object = *document->featureMember().front()._Feature();
        QCOMPARE(object.name().size(), std::size_t(1));
        const QByteArray saved = write(*document);
        QVERIFY(saved.indexOf("gml:name") < saved.indexOf("bldg:roofType"));
    }

    void anEditChangesOnlyWhatWasEdited()
    {
        const QByteArray original = building("<gml:name codeSpace='c' xml:lang='fr'>old</gml:name><x:a/>"
                                             "<bldg:roofType>flat</bldg:roofType><!--end-->");
        const Document document = read(original);
        auto& object = *document->featureMember().front()._Feature();
        object.name().front() = gml::CodeType("new");
        QCOMPARE(XmlNode::differences(XmlNode::parse(original), XmlNode::parse(write(*document))).size(), 2);
        const QByteArray saved = write(*document);
        QVERIFY(saved.contains("<gml:name xml:lang=\"fr\">new</gml:name>"));
    }

    void prefixesOfTheDocumentStay()
    {
        const QByteArray saved = write(*read("<CityModel xmlns='http://www.opengis.net/citygml/2.0'"
                                             " xmlns:b='http://www.opengis.net/citygml/building/2.0'"
                                             " xmlns:core='urn:other' core:a='1'><cityObjectMember>"
                                             "<b:Building/></cityObjectMember></CityModel>"));
        QVERIFY(saved.contains("<CityModel "));
        QVERIFY(saved.contains("<b:Building/>"));
        QVERIFY(saved.contains("xmlns:core=\"urn:other\""));
        QVERIFY(saved.contains("core:a=\"1\""));
    }

    void otherEncodingsAreRead()
    {
        const QByteArray body =
            "<core:CityModel xmlns:core='http://www.opengis.net/citygml/2.0'"
            " xmlns:gml='http://www.opengis.net/gml'><gml:name>\xE9\x80</gml:name></core:CityModel>";
        const QByteArray saved = write(*read("<?xml version='1.0' encoding='windows-1252'?>" + body));
        QVERIFY(saved.contains("<gml:name>\u00E9\u20AC</gml:name>"));
        QVERIFY(errorOf("<?xml version='1.0' encoding='no-such'?>" + body).contains("unknown encoding"));
    }

    void errorsTellPlaceAndReason_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QString>("expected");
        const QString inBuilding = ", in /core:CityModel/core:cityObjectMember/bldg:Building";
        const QByteArray newLine = "\n";
        QTest::newRow("number") << building("\n<bldg:measuredHeight uom='m'>high</bldg:measuredHeight>")
                                << "2:34 error: 'high' is not a number" + inBuilding + "/bldg:measuredHeight";
        QTest::newRow("number of a list")
            << building("\n<gml:boundedBy><gml:Envelope>\n<gml:lowerCorner>1 2 3,5</gml:lowerCorner>"
                        "<gml:upperCorner>1</gml:upperCorner></gml:Envelope></gml:boundedBy>")
            << "3:25 error: '3,5' is not a number" + inBuilding +
                   "/gml:boundedBy/gml:Envelope/gml:lowerCorner";
        QTest::newRow("whole number")
            << building("\n\n <bldg:storeysAboveGround>-1</bldg:storeysAboveGround>")
            << "3:29 error: '-1' is not a whole number without sign" + inBuilding +
                   "/bldg:storeysAboveGround";
        QTest::newRow("number out of range")
            << building("\n<bldg:measuredHeight uom='m'>1e999</bldg:measuredHeight>")
            << "2:35 error: '1e999' is not a number within range" + inBuilding + "/bldg:measuredHeight";
        QTest::newRow("boolean")
            << cityModel("\n<app:appearanceMember><app:Appearance><app:surfaceDataMember>"
                         "<app:X3DMaterial><app:isFront>yes</app:isFront></app:X3DMaterial>"
                         "</app:surfaceDataMember></app:Appearance></app:appearanceMember>")
            << "2:95 error: 'yes' is not true or false, in "
               "/core:CityModel/app:appearanceMember/app:Appearance/app:surfaceDataMember/"
               "app:X3DMaterial/app:isFront";
        QTest::newRow("literal") << building("\n<core:relativeToTerrain>beside</core:relativeToTerrain>")
                                 << "2:31 error: 'beside' is not a value of RelativeToTerrainType" +
                                        inBuilding + "/core:relativeToTerrain";
        QTest::newRow("value of an attribute")
            << building("\n<bldg:lod1Solid xlink:show='often'/>") << "2:1 error: 'often' is not a value of ";
        QTest::newRow("date") << building("\n<core:creationDate>2026-13-01</core:creationDate>")
                              << "2:30 error: '2026-13-01' is not a date" + inBuilding + "/core:creationDate";
        QTest::newRow("missing attribute")
            << building("\n<bldg:measuredHeight>3</bldg:measuredHeight>")
            << "2:23 error: the required attribute 'uom' is missing" + inBuilding + "/bldg:measuredHeight";
        QTest::newRow("missing element")
            << building("\n<core:externalReference/>")
            << "2:26 error: the required element 'core:externalObject' is missing" + inBuilding +
                   "/core:externalReference";
        QTest::newRow("abstract element")
            << building("\n<core:generalizesTo><core:_CityObject/></core:generalizesTo>")
            << "2:21 error: the element 'core:_CityObject' is abstract" + inBuilding + "/core:generalizesTo";
        QTest::newRow("abstract type")
            << building("\n<core:generalizesTo><core:_CityObject xsi:type='core:AbstractSiteType'/>"
                        "</core:generalizesTo>")
            << "2:21 error: the element 'core:_CityObject' is abstract" + inBuilding + "/core:generalizesTo";
        QTest::newRow("type of another kind")
            << building("\n<bldg:measuredHeight xsi:type='bldg:RoomType'/>")
            << "2:1 error: the type 'bldg:RoomType' cannot stand for 'LengthType'" + inBuilding;
        QTest::newRow("prefix of an element")
            << building("\n<y:a/>") << "2:1 error: the prefix 'y' is not bound to a namespace" + inBuilding;
        QTest::newRow("prefix within an unknown element")
            << building("\n<x:a><y:b/></x:a>")
            << "2:6 error: the prefix 'y' is not bound to a namespace" + inBuilding + "/...";
        QTest::newRow("prefix of an attribute")
            << building("\n<gml:name y:a=''/>")
            << "2:1 error: the prefix 'y' is not bound to a namespace" + inBuilding + "/gml:name";
        QTest::newRow("prefix of an attribute of an unknown element")
            << building("\n<x:a y:b=''/>")
            << "2:1 error: the prefix 'y' is not bound to a namespace" + inBuilding;
        QTest::newRow("prefix of a type")
            << building("\n<gml:name xsi:type='y:T'/>")
            << "2:1 error: the prefix 'y' is not bound to a namespace" + inBuilding;
        QTest::newRow("two colons") << building("\n<gml:na:me/>")
                                    << "2:1 error: 'gml:na:me' is not a qualified name" + inBuilding;
        QTest::newRow("attribute under two prefixes")
            << building("\n<x:a xmlns:z='urn:unknown' x:b='1' z:b='2'/>")
            << "2:1 error: the attribute 'b' stands twice in an element" + inBuilding;
        QTest::newRow("reserved prefix")
            << building("\n<x:a xmlns:xml='urn:unknown'/>")
            << "2:1 error: the prefix 'xml' cannot stand for the namespace 'urn:unknown'" + inBuilding;
        QTest::newRow("prefix for no namespace")
            << building("\n<x:a xmlns:y=''/>")
            << "2:1 error: the prefix 'y' cannot stand for the namespace ''" + inBuilding;
        QTest::newRow("syntax") << building("\n<gml:name></gml:nam>")
                                << "2:13 error: mismatched tag" + inBuilding + "/gml:name";
        QTest::newRow("entity") << building("\n<gml:name>&no;</gml:name>")
                                << "2:11 error: undefined entity" + inBuilding + "/gml:name";
        QTest::newRow("root") << newLine + "<a/>"
                              << "2:1 error: the root element is 'a', not the CityModel of CityGML 2.0";
        QTest::newRow("long name") << "<" + QByteArray(100000, 'a') + "/>"
                                   << "1:1 error: the root element is '" + QString(279, 'a') + "...";
    }
    void errorsTellPlaceAndReason()
    {
        QFETCH(QByteArray, xml);
        QFETCH(QString, expected);
        const QString error = errorOf(xml).trimmed();
        const QString start = "document:";
        if (expected.endsWith(' ')) {
            QVERIFY2(error.startsWith(start + expected), qPrintable(error));
        } else {
            QCOMPARE(error, start + expected);
        }
    }

    void duplicateIdentifiersAreTold()
    {
        const QByteArray xml = building("<bldg:boundedBy><bldg:WallSurface gml:id='b'/></bldg:boundedBy>");
        QVERIFY_EXCEPTION_THROWN(read(xml), xsd::cxx::tree::duplicate_id<char>);
        QCOMPARE(errorOf(xml), QString("ID 'b' already exist"));
    }

    void writingRefusesWhatXmlCannotHold()
    {
        const Document document = read(building("<gml:name>n</gml:name>"));
        auto& object = *document->featureMember().front()._Feature();
        for (const char* text : {"a\x01", "a\xFF", "a\xED\xA0\x80", "\xEF\xBF\xBF"}) {
            object.name().front() = gml::CodeType(text);
            QVERIFY_EXCEPTION_THROWN(write(*document), xsd::cxx::tree::serialization<char>);
        }
        object.name().front() = gml::CodeType("\xF0\x9F\x8F\xA0 <&>\r");
        QVERIFY(write(*document).contains("\xF0\x9F\x8F\xA0 &lt;&amp;&gt;&#13;"));
    }

    void onlyUtf8IsWritten()
    {
        const Document document = read(cityModel(""));
        std::ostringstream stream;
        QVERIFY_EXCEPTION_THROWN(
            core::CityModel(stream, *document, xsd::cxx::xml::dom::namespace_infomap<char>(), "UTF-16"),
            xsd::cxx::tree::serialization<char>);
    }

private:
    static void collectTypes(const xml_schema::type& object, QSet<QString>& found)
    {
        const auto* record = citygml::binding::recordOf(object);
        found.insert(schematables::className(*record));
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

    log4cplus::Initializer m_logging;
};

QTEST_GUILESS_MAIN(DocumentRoundTripTest)
#include "documentroundtriptest.moc"
