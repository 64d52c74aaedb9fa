#include "citygml/CityGmlUtils.h"
#include "citygml/CityModel.h"
#include "gml/BoundingShapeType.hxx"
#include "gml/CodeType.hxx"
#include "gml/DirectPositionType.hxx"
#include "gml/EnvelopeType.hxx"
#include "gml/FeaturePropertyType.hxx"
#include "support/Documents.h"
#include "support/SchemaObjects.h"
#include "support/TestClass.h"
#include "support/XmlTree.h"

#include <clocale>
#include <QDirIterator>
#include <QRegularExpression>
#include <QSet>
#include <QtTest>
#include <random>

using namespace testsupport;

/// Reading and writing by the schema tables: what a document says comes back.
class DocumentRoundTripTest : public QObject
{
    Q_OBJECT

private slots:
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
            documentWithBuilding("<gml:boundedBy><gml:Envelope><gml:lowerCorner>" + numbers +
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
            write(*read(documentText("<gml:featureMember><bldg:Building/></gml:featureMember>"
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
        const QByteArray original = documentWithBuilding(content);
        const QByteArray saved = write(*read(original));
        QCOMPARE(XmlNode::differences(XmlNode::parse(original), XmlNode::parse(saved)), QStringList());
        QCOMPARE(write(*read(saved)), saved);
    }

    void alternatingElementsKeepTheirOrder()
    {
        const QByteArray original = documentWithBuilding(
            "<bldg:lod0FootPrint><gml:MultiSurface><gml:surfaceMember><gml:Polygon><gml:exterior><"
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
        const QByteArray original = documentText(
            "<gml:featureMember><gml:GridCoverage><gml:gridDomain/><gml:rangeSet><gml:ValueArray>"
            "<gml:valueComponents><gml:Boolean>true</gml:Boolean><gml:Count>3</gml:Count>"
            "<gml:Boolean>false</gml:Boolean></gml:valueComponents>"
            "</gml:ValueArray></gml:rangeSet></gml:GridCoverage></gml:featureMember>");
        QCOMPARE(XmlNode::differences(XmlNode::parse(original), XmlNode::parse(write(*read(original)))),
                 QStringList());
    }

    void anUnexpectedOrderIsRead()
    {
        const QByteArray original =
            documentWithBuilding("<bldg:roofType>flat</bldg:roofType><gml:name>n</gml:name>");
        for (const auto& reading : {&read, &readStrictly}) {
            const Document document = reading(original);
            const auto& object = *document->featureMember().front()._Feature();
            QCOMPARE(object.name().size(), std::size_t(1));
            QCOMPARE(XmlNode::differences(XmlNode::parse(original), XmlNode::parse(write(*document))),
                     QStringList());
        }
    }

    void anEditChangesOnlyWhatWasEdited()
    {
        const QByteArray original =
            documentWithBuilding("<gml:name codeSpace='c' xml:lang='fr'>old</gml:name><x:a/>"
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
        QTest::newRow("number") << documentWithBuilding(
                                       "\n<bldg:measuredHeight uom='m'>high</bldg:measuredHeight>")
                                << "2:34 error: 'high' is not a number" + inBuilding + "/bldg:measuredHeight";
        QTest::newRow("number of a list")
            << documentWithBuilding(
                   "\n<gml:boundedBy><gml:Envelope>\n<gml:lowerCorner>1 2 3,5</gml:lowerCorner>"
                   "<gml:upperCorner>1</gml:upperCorner></gml:Envelope></gml:boundedBy>")
            << "3:25 error: '3,5' is not a number" + inBuilding +
                   "/gml:boundedBy/gml:Envelope/gml:lowerCorner";
        QTest::newRow("whole number")
            << documentWithBuilding("\n\n <bldg:storeysAboveGround>-1</bldg:storeysAboveGround>")
            << "3:29 error: '-1' is not a whole number without sign" + inBuilding +
                   "/bldg:storeysAboveGround";
        QTest::newRow("number out of range")
            << documentWithBuilding("\n<bldg:measuredHeight uom='m'>1e999</bldg:measuredHeight>")
            << "2:35 error: '1e999' is not a number within range" + inBuilding + "/bldg:measuredHeight";
        QTest::newRow("boolean")
            << documentText("\n<app:appearanceMember><app:Appearance><app:surfaceDataMember>"
                            "<app:X3DMaterial><app:isFront>yes</app:isFront></app:X3DMaterial>"
                            "</app:surfaceDataMember></app:Appearance></app:appearanceMember>")
            << "2:95 error: 'yes' is not true or false, in "
               "/core:CityModel/app:appearanceMember/app:Appearance/app:surfaceDataMember/"
               "app:X3DMaterial/app:isFront";
        QTest::newRow("literal") << documentWithBuilding(
                                        "\n<core:relativeToTerrain>beside</core:relativeToTerrain>")
                                 << "2:31 error: 'beside' is not a value of RelativeToTerrainType" +
                                        inBuilding + "/core:relativeToTerrain";
        QTest::newRow("value of an attribute")
            << documentWithBuilding("\n<bldg:lod1Solid xlink:show='often'/>")
            << "2:1 error: 'often' is not a value of ";
        QTest::newRow("date") << documentWithBuilding("\n<core:creationDate>2026-13-01</core:creationDate>")
                              << "2:30 error: '2026-13-01' is not a date" + inBuilding + "/core:creationDate";
        QTest::newRow("missing attribute")
            << documentWithBuilding("\n<bldg:measuredHeight>3</bldg:measuredHeight>")
            << "2:23 error: the required attribute 'uom' is missing" + inBuilding + "/bldg:measuredHeight";
        QTest::newRow("missing element")
            << documentWithBuilding("\n<core:externalReference/>")
            << "2:26 error: the required element 'core:externalObject' is missing" + inBuilding +
                   "/core:externalReference";
        QTest::newRow("abstract element")
            << documentWithBuilding("\n<core:generalizesTo><core:_CityObject/></core:generalizesTo>")
            << "2:21 error: the element 'core:_CityObject' is abstract" + inBuilding + "/core:generalizesTo";
        QTest::newRow("abstract type")
            << documentWithBuilding(
                   "\n<core:generalizesTo><core:_CityObject xsi:type='core:AbstractSiteType'/>"
                   "</core:generalizesTo>")
            << "2:21 error: the element 'core:_CityObject' is abstract" + inBuilding + "/core:generalizesTo";
        QTest::newRow("type of another kind")
            << documentWithBuilding("\n<bldg:measuredHeight xsi:type='bldg:RoomType'/>")
            << "2:1 error: the type 'bldg:RoomType' cannot stand for 'LengthType'" + inBuilding;
        QTest::newRow("prefix of an element")
            << documentWithBuilding("\n<y:a/>")
            << "2:1 error: the prefix 'y' is not bound to a namespace" + inBuilding;
        QTest::newRow("prefix within an unknown element")
            << documentWithBuilding("\n<x:a><y:b/></x:a>")
            << "2:6 error: the prefix 'y' is not bound to a namespace" + inBuilding + "/...";
        QTest::newRow("prefix of an attribute")
            << documentWithBuilding("\n<gml:name y:a=''/>")
            << "2:1 error: the prefix 'y' is not bound to a namespace" + inBuilding + "/gml:name";
        QTest::newRow("prefix of an attribute of an unknown element")
            << documentWithBuilding("\n<x:a y:b=''/>")
            << "2:1 error: the prefix 'y' is not bound to a namespace" + inBuilding;
        QTest::newRow("prefix of a type")
            << documentWithBuilding("\n<gml:name xsi:type='y:T'/>")
            << "2:1 error: the prefix 'y' is not bound to a namespace" + inBuilding;
        QTest::newRow("two colons") << documentWithBuilding("\n<gml:na:me/>")
                                    << "2:1 error: 'gml:na:me' is not a qualified name" + inBuilding;
        QTest::newRow("attribute under two prefixes")
            << documentWithBuilding("\n<x:a xmlns:z='urn:unknown' x:b='1' z:b='2'/>")
            << "2:1 error: the attribute 'b' stands twice in an element" + inBuilding;
        QTest::newRow("reserved prefix")
            << documentWithBuilding("\n<x:a xmlns:xml='urn:unknown'/>")
            << "2:1 error: the prefix 'xml' cannot stand for the namespace 'urn:unknown'" + inBuilding;
        QTest::newRow("prefix for no namespace")
            << documentWithBuilding("\n<x:a xmlns:y=''/>")
            << "2:1 error: the prefix 'y' cannot stand for the namespace ''" + inBuilding;
        QTest::newRow("syntax") << documentWithBuilding("\n<gml:name></gml:nam>")
                                << "2:13 error: mismatched tag" + inBuilding + "/gml:name";
        QTest::newRow("entity") << documentWithBuilding("\n<gml:name>&no;</gml:name>")
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
        const QByteArray xml =
            documentWithBuilding("<bldg:boundedBy><bldg:WallSurface gml:id='b'/></bldg:boundedBy>");
        QVERIFY_EXCEPTION_THROWN(read(xml), xsd::cxx::tree::duplicate_id<char>);
        QCOMPARE(errorOf(xml), QString("ID 'b' already exist"));
    }

    void writingRefusesWhatXmlCannotHold()
    {
        const Document document = read(documentWithBuilding("<gml:name>n</gml:name>"));
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
        const Document document = read(documentText(""));
        std::ostringstream stream;
        QVERIFY_EXCEPTION_THROWN(
            core::CityModel(stream, *document, xsd::cxx::xml::dom::namespace_infomap<char>(), "UTF-16"),
            xsd::cxx::tree::serialization<char>);
    }
};

TEST_CLASS(DocumentRoundTripTest, Core)
#include "documentroundtriptest.moc"
