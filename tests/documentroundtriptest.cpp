#include "RoundTrip.h"
#include "SchemaTables.h"
#include "XmlTree.h"

#include "gml/BoundingShapeType.hxx"
#include "gml/DirectPositionType.hxx"
#include "gml/EnvelopeType.hxx"
#include "gml/FeaturePropertyType.hxx"

#include <QDirIterator>
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
    for (const QString& directory : {QString(TOLVIK_EXAMPLES), QString(TOLVIK_SHARED "/data")}) {
        QDirIterator files(directory, {"*.gml"}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext())
            result << files.next();
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
    for (XmlNode& child : node.children)
        addNoise(child, random);
    if (node.kind != XmlNode::Element || node.name.isEmpty())
        return;
    if (random() % 4 == 0)
        node.attributes["{urn:noise}level"] = QString::number(random() % 100);
    const bool hasElements = std::any_of(node.children.begin(), node.children.end(),
                                         [](const XmlNode& child) { return child.kind == XmlNode::Element; });
    const bool hasText = std::any_of(node.children.begin(), node.children.end(),
                                     [](const XmlNode& child) { return child.kind == XmlNode::Text; });
    if (!hasElements || hasText || random() % 3 != 0)
        return;
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
    for (const XmlNode& child : node.children)
        content += toXml(child);
    if (node.name.isEmpty())
        return content;
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
        for (const QString& path : documents())
            QTest::newRow(qPrintable(QFileInfo(path).fileName() + ' ' + QFileInfo(path).dir().dirName()))
                << path;
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
        for (XmlNode& child : tree.children)
            addNoise(child, random);
        const QByteArray noisy = toXml(tree);
        QString error;
        const XmlNode original = XmlNode::parse(noisy, &error);
        QCOMPARE(error, QString());
        const Document document = read(noisy);
        QCOMPARE(listOf(*document), features);
        const QStringList differences = XmlNode::differences(original, XmlNode::parse(write(*document)));
        QVERIFY2(differences.isEmpty(), qPrintable(differences.mid(0, 5).join('\n')));
    }

    // Counted from the XML alone: what has the name of a feature, unless it stands where the walk does not
    // go.
    void rowsAreTheFeaturesOfTheXml_data() { comesBack_data(); }
    void rowsAreTheFeaturesOfTheXml()
    {
        QFETCH(QString, path);
        if (path.startsWith(TOLVIK_EXAMPLES))
            QSKIP("only for the documents of others");
        QMap<QString, int> expected, actual;
        countFeatures(XmlNode::parse(contentOf(path)), expected);
        const Document document = read(contentOf(path));
        for (const QString& line : listOf(*document))
            ++actual[line.section(' ', 0, 0)];
        QCOMPARE(actual, expected);
    }

    void everyFeatureTypeIsInAnExample()
    {
        QSet<QString> found;
        for (const QString& path : documents()) {
            if (path.startsWith(TOLVIK_EXAMPLES))
                collectTypes(*read(contentOf(path)), found);
        }
        // A type without an element of its own has no place in a document.
        QSet<const schematables::TypeRecord*> elements;
        for (std::size_t i = 0; i < citygml::binding::allElementsCount; ++i) {
            if (!citygml::binding::allElements[i].isAbstract)
                elements.insert(citygml::binding::allElements[i].type);
        }
        QStringList missing;
        for (const auto* record : schematables::types()) {
            bool isFeature = false;
            for (const auto* base = record; base != nullptr; base = base->base)
                isFeature = isFeature || *base->info == typeid(gml::AbstractFeatureType);
            const QString name = schematables::className(*record);
            if (isFeature && !record->isAbstract && elements.contains(record) && !found.contains(name))
                missing << name;
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
        for (const tolvik::NamespacesMap& entry : tolvik::CityGmlUtils::getNamespaces())
            QVERIFY2(saved.contains('"' + QByteArray::fromStdString(entry.name) + '"'), entry.name.c_str());
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
        QTest::newRow("number") << building("\n<bldg:measuredHeight uom='m'>high</bldg:measuredHeight>")
                                << "document:2:34 error: 'high' is not a number, in "
                                   "/core:CityModel/core:cityObjectMember/bldg:Building/bldg:measuredHeight";
        QTest::newRow("literal")
            << building("\n<core:relativeToTerrain>beside</core:relativeToTerrain>")
            << "document:2:31 error: 'beside' is not a value of RelativeToTerrainType, in "
               "/core:CityModel/core:cityObjectMember/bldg:Building/core:relativeToTerrain";
        QTest::newRow("missing attribute") << building("<bldg:measuredHeight>3</bldg:measuredHeight>")
                                           << "the required attribute 'uom' is missing, in ";
        QTest::newRow("missing element") << building("<core:externalReference/>")
                                         << "the required element 'core:externalObject' is missing, in ";
        QTest::newRow("abstract") << building("<core:generalizesTo><core:_CityObject/></core:generalizesTo>")
                                  << "the element 'core:_CityObject' is abstract";
        QTest::newRow("prefix") << building("<y:a/>") << "the prefix 'y' is not bound to a namespace";
        QTest::newRow("date") << building("<core:creationDate>2026-13-01</core:creationDate>")
                              << "'2026-13-01' is not a date";
        QTest::newRow("root") << QByteArray("<a/>")
                              << "document:1:1 error: the root element is 'a', not the CityModel";
        QTest::newRow("twice") << building(
                                      "<gml:name>n</gml:name><bldg:boundedBy><bldg:WallSurface gml:id='b'/>"
                                      "</bldg:boundedBy>")
                               << "ID 'b' already exist";
    }
    void errorsTellPlaceAndReason()
    {
        QFETCH(QByteArray, xml);
        QFETCH(QString, expected);
        const QString error = errorOf(xml);
        QVERIFY2(error.contains(expected), qPrintable(error));
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
                for (std::size_t j = 0; member.type != nullptr && j < member.ops->count(object); ++j)
                    collectTypes(member.ops->at(object, j), found);
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
        if (isFeature)
            ++counts[node.localName()];
        // The address of an opening stands below a feature that leads no further.
        if (node.localName() == "Door" || node.localName() == "Window")
            return;
        for (const XmlNode& child : node.children)
            countFeatures(child, counts);
    }

    log4cplus::Initializer m_logging;
};

QTEST_GUILESS_MAIN(DocumentRoundTripTest)
#include "documentroundtriptest.moc"
