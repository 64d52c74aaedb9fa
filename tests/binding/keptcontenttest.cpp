#include "citygml/CityGmlUtils.h"
#include "support/Documents.h"
#include "support/XmlTree.h"

#include "bldg/BuildingType.hxx"
#include "gml/AbstractRingPropertyType.hxx"
#include "gml/BoundingShapeType.hxx"
#include "gml/CodeType.hxx"
#include "gml/DirectPositionType.hxx"
#include "gml/EnvelopeType.hxx"
#include "gml/FeaturePropertyType.hxx"
#include "gml/LengthType.hxx"
#include "gml/LinearRingType.hxx"
#include "gml/MultiSurfacePropertyType.hxx"
#include "gml/MultiSurfaceType.hxx"
#include "gml/PolygonType.hxx"
#include "gml/StringOrRefType.hxx"
#include "gml/SurfacePropertyType.hxx"
#include "support/LogRecorder.h"
#include "support/TestClass.h"

#include <QtTest>

#include <cstring>
#include <functional>
#include <random>

using namespace testsupport;

namespace {

using Edit = std::function<void(bldg::BuildingType&)>;

/// Buildings with unknown content between all that is known.
QByteArray city(int count)
{
    QByteArray members;
    for (int i = 0; i < count; ++i) {
        const QByteArray number = QByteArray::number(i);
        members += buildingMember(
            "<!--of the register-->"
            "<gml:name x:since='1998'>House " +
                number +
                "</gml:name><x:street>Long Lane</x:street>"
                "<bldg:class>1000</bldg:class><?check class?>"
                "<bldg:function>1010</bldg:function><bldg:function>1020</bldg:function><x:function/>"
                "<bldg:yearOfConstruction>1900</bldg:yearOfConstruction>"
                "<bldg:measuredHeight uom='m'>" +
                number +
                ".25</bldg:measuredHeight><x:measured by='hand'/>"
                "<bldg:storeysAboveGround x:attic='no'>2</bldg:storeysAboveGround>"
                "<bldg:lod1Solid><gml:Solid><gml:exterior><gml:CompositeSurface><gml:surfaceMember><gml:"
                "Polygon>"
                "<gml:exterior><gml:LinearRing><gml:posList>0 0 0 1 0 0 1 1 0 0 0 0</gml:posList>"
                "</gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember></gml:CompositeSurface>"
                "</gml:exterior></gml:Solid></bldg:lod1Solid>"
                "<x:inspected>2026</x:inspected>",
            "b" + number);
    }
    return documentText(members);
}

bldg::BuildingType& buildingOf(core::CityModelType& document, std::size_t number = 0)
{
    return dynamic_cast<bldg::BuildingType&>(*document.featureMember()[number]._Feature());
}

/// The values of the lower corner of the first feature.
std::vector<double> cornerOf(core::CityModelType& document)
{
    const auto& corner = *document.featureMember().front()._Feature()->boundedBy()->Envelope()->lowerCorner();
    return std::vector<double>(corner.begin(), corner.end());
}

QByteArray withCorner(const QByteArray& numbers)
{
    return documentText(buildingMember("<gml:boundedBy><gml:Envelope><gml:lowerCorner>" + numbers +
                                       "</gml:lowerCorner><gml:upperCorner>0</gml:upperCorner></gml:Envelope>"
                                       "</gml:boundedBy>"));
}

} // namespace

Q_DECLARE_METATYPE(Edit)

/// What a document says besides the schema: it comes back, and stays where it is when something is edited.
class KeptContentTest : public QObject
{
    Q_OBJECT

private slots:
    void anEditChangesOnePlaceOfALargeDocument_data()
    {
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");

        const QByteArray none;
        const auto row = [](const char* name, const QByteArray& before, const QByteArray& after,
                            const Edit& edit) { QTest::newRow(name) << edit << before << after; };
        row("a text", "<gml:name x:since=\"1998\">House 150</gml:name>",
            "<gml:name x:since=\"1998\">Tall house</gml:name>",
            [](bldg::BuildingType& b) { b.name().front() = gml::CodeType("Tall house"); });
        row("a number", "<bldg:measuredHeight uom=\"m\">150.25</bldg:measuredHeight>",
            "<bldg:measuredHeight uom=\"m\">3.5</bldg:measuredHeight>",
            [](bldg::BuildingType& b) { static_cast<double&>(*b.measuredHeight()) = 3.5; });
        row("a plain value", "<bldg:storeysAboveGround x:attic=\"no\">2</bldg:storeysAboveGround>",
            "<bldg:storeysAboveGround x:attic=\"no\">3</bldg:storeysAboveGround>",
            [](bldg::BuildingType& b) { b.storeysAboveGround().set(3); });
        row("a new first child", none, "<gml:description>tall</gml:description>",
            [](bldg::BuildingType& b) { b.description().set(gml::StringOrRefType("tall")); });
        row("a new child between", none, "<bldg:roofType>1030</bldg:roofType>",
            [](bldg::BuildingType& b) { b.roofType().set(gml::CodeType("1030")); });
        row("one more of a list", none, "<bldg:function>1030</bldg:function>",
            [](bldg::BuildingType& b) { b.function().push_back(gml::CodeType("1030")); });
        row("a child less", "<bldg:class>1000</bldg:class>", none,
            [](bldg::BuildingType& b) { b.class_().reset(); });
        row("a plain value less", "<bldg:storeysAboveGround x:attic=\"no\">2</bldg:storeysAboveGround>", none,
            [](bldg::BuildingType& b) { b.storeysAboveGround().reset(); });
        row("the last of a list less", "<bldg:function>1020</bldg:function>", none,
            [](bldg::BuildingType& b) { b.function().pop_back(); });
    }
    void anEditChangesOnePlaceOfALargeDocument()
    {
        QFETCH(Edit, edit);
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        const Document document = read(city(300));
        const QList<QByteArray> original = write(*document).split('\n');
        edit(buildingOf(*document, 150));
        const QList<QByteArray> edited = write(*document).split('\n');

        int first = 0, last = 0;
        while (first < qMin(original.size(), edited.size()) && original[first] == edited[first]) {
            ++first;
        }
        while (last < qMin(original.size(), edited.size()) - first &&
               original[original.size() - 1 - last] == edited[edited.size() - 1 - last]) {
            ++last;
        }
        const auto middle = [&](const QList<QByteArray>& lines) {
            QByteArray text;
            for (int i = first; i < lines.size() - last; ++i) {
                text += lines[i].trimmed();
            }
            return text;
        };
        QCOMPARE(middle(original), before);
        QCOMPARE(middle(edited), after);
        // The new file says so itself, and all else stands where it did.
        const QByteArray saved = edited.join('\n');
        QCOMPARE(write(*read(saved)), saved);
    }

    void alternatingChildrenKeepTheirOrderWhenOneMoreComes()
    {
        const QByteArray ring =
            "<bldg:lod0FootPrint><gml:MultiSurface><gml:surfaceMember><gml:Polygon>"
            "<gml:exterior><gml:LinearRing>%1</gml:LinearRing></gml:exterior></gml:Polygon>"
            "</gml:surfaceMember></gml:MultiSurface></bldg:lod0FootPrint>";
        const QByteArray original = documentText(buildingMember(
            "<x:a/>" +
            QByteArray(ring).replace("%1", "<gml:pos>0 0</gml:pos><!--one--><gml:pointRep xlink:href='#p'/>"
                                           "<x:two/><gml:pos>1 1</gml:pos><!--three--><gml:pos>2 2</gml:pos>"
                                           "<gml:pointRep xlink:href='#q'/><!--four-->")));
        const Document document = read(original);
        const QByteArray saved = write(*document);
        QCOMPARE(XmlNode::differences(XmlNode::parse(original), XmlNode::parse(saved)), QStringList());

        auto& surfaces = buildingOf(*document).lod0FootPrint()->MultiSurface()->surfaceMember();
        auto& polygon = dynamic_cast<gml::PolygonType&>(*surfaces[0]._Surface());
        auto& line = dynamic_cast<gml::LinearRingType&>(polygon.exterior()->_Ring());
        line.pos().push_back(line.pos().front());
        // It comes behind the others, in front of nothing that was there.
        const QByteArray last = "<gml:pointRep xlink:href=\"#q\"/>\n";
        QByteArray expected = saved;
        const int begin = expected.lastIndexOf('\n', expected.indexOf(last)) + 1;
        const QByteArray indent = expected.mid(begin, expected.indexOf('<', begin) - begin);
        expected.insert(expected.indexOf("<!--four-->") + 11, '\n' + indent + "<gml:pos>0 0</gml:pos>");
        QCOMPARE(write(*document), expected);
    }

    void otherSpellingsComeBack_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("date with zone")
            << buildingMember("<core:creationDate>2009-04-02+00:00</core:creationDate>");
        QTest::newRow("date of another zone")
            << buildingMember("<core:creationDate>2009-04-02+01:30</core:creationDate>");
        QTest::newRow("year") << buildingMember(
            "<bldg:yearOfConstruction>1900+00:00</bldg:yearOfConstruction>");
        QTest::newRow("boolean") << QByteArray(
            "<app:appearanceMember><app:Appearance><app:surfaceDataMember><app:X3DMaterial>"
            "<app:isFront>1</app:isFront><app:isSmooth>0</app:isSmooth></app:X3DMaterial>"
            "</app:surfaceDataMember></app:Appearance></app:appearanceMember>");
        QTest::newRow("date attribute") << buildingMember(
            "<gen:dateAttribute name='d'><gen:value>2009-04-02-00:00</gen:value></gen:dateAttribute>");
    }
    void otherSpellingsComeBack()
    {
        QFETCH(QByteArray, content);
        const QByteArray original = documentText(content);
        const QByteArray saved = write(*read(original));
        QCOMPARE(XmlNode::differences(XmlNode::parse(original), XmlNode::parse(saved)), QStringList());
        QCOMPARE(write(*read(saved)), saved);
    }

    void aNewValueIsNotSpelledLikeTheOldOne()
    {
        const Document document =
            read(documentText(buildingMember("<core:creationDate>2009-04-02+00:00</core:creationDate>")));
        buildingOf(*document).creationDate()->day(3);
        QVERIFY(write(*document).contains("<core:creationDate>2009-04-03Z</core:creationDate>"));
    }

    void nodesWithinValuesComeBack_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("text") << buildingMember("<gml:name>ab<x:a/>cd<x:b>in</x:b></gml:name>");
        QTest::newRow("text of many bytes") << buildingMember("<gml:name>\u00e4<x:a/>\u20ac</gml:name>");
        QTest::newRow("in front of a number")
            << buildingMember("<bldg:measuredHeight uom='m'><x:a/>12.50</bldg:measuredHeight>");
        QTest::newRow("behind a number")
            << buildingMember("<bldg:measuredHeight uom='m'>12.50<x:a/></bldg:measuredHeight>");
        QTest::newRow("comment and instruction in a text")
            << buildingMember("<gml:name>a<!--one-->b<?two 2?> c<!--three--></gml:name>");
        QTest::newRow("comment alone") << buildingMember("<gml:name><!--none--></gml:name>");
        QTest::newRow("comments beside a number")
            << buildingMember("<bldg:measuredHeight uom='m'><!--a-->12.50<!--b--></bldg:measuredHeight>");
        QTest::newRow("comments beside a plain value")
            << buildingMember("<bldg:storeysAboveGround><!--a-->2<?b?></bldg:storeysAboveGround>");
        QTest::newRow("comment beside a value that is nil")
            << buildingMember("<bldg:storeysAboveGround xsi:nil='true'><!--a--></bldg:storeysAboveGround>");
        QTest::newRow("comments between lines of a list")
            << buildingMember("<gml:boundedBy><gml:Envelope><gml:lowerCorner><!--a-->\n 1.50   2.250\n"
                              " <!--b--><?c?>\n 3.00  4 <!--d--> 5 6<!--e--></gml:lowerCorner>"
                              "<gml:upperCorner>0</gml:upperCorner></gml:Envelope></gml:boundedBy>");
        QTest::newRow("comment in a wrong value")
            << buildingMember("<bldg:storeysAboveGround>ma<!--a-->ny</bldg:storeysAboveGround>");
        QTest::newRow("plain value") << buildingMember(
            "<bldg:storeysAboveGround x:b='1'>2<x:a/></bldg:storeysAboveGround>");
        QTest::newRow("in front of a plain value")
            << buildingMember("<bldg:storeysAboveGround><x:a/>2</bldg:storeysAboveGround>");
        QTest::newRow("list") << buildingMember(
            "<bldg:lod1MultiCurve><gml:MultiCurve/></bldg:lod1MultiCurve>"
            "<gml:boundedBy><gml:Envelope><gml:lowerCorner>1 2<x:a/></gml:lowerCorner>"
            "<gml:upperCorner><x:b/>3 4</gml:upperCorner></gml:Envelope></gml:boundedBy>");
    }
    void nodesWithinValuesComeBack()
    {
        QFETCH(QByteArray, content);
        const QByteArray original = documentText(content);
        const QByteArray saved = write(*read(original));
        QCOMPARE(XmlNode::differences(XmlNode::parse(original), XmlNode::parse(saved)), QStringList());
        QCOMPARE(write(*read(saved)), saved);
    }

    // Its words are in one piece, and behind as many of them as before.
    void aNodeWithinANumberGoesBehindIt()
    {
        const QByteArray saved = write(*read(withCorner("1.50 2<!--a-->.250 3.00")));
        QVERIFY(saved.contains("<gml:lowerCorner>1.5 2.25<!--a--> 3</gml:lowerCorner>"));
    }

    void nilValues()
    {
        const QByteArray original = documentText(
            buildingMember("<gen:intAttribute name='i'><gen:value xsi:nil='true'/></gen:intAttribute>"
                           "<x:a/><bldg:storeysAboveGround xsi:nil='1' nilReason='unknown'/><x:b/>"
                           "<bldg:storeysBelowGround xsi:nil='true'><x:c/></bldg:storeysBelowGround>"));
        const Document document = read(original);
        QVERIFY(!buildingOf(*document).storeysAboveGround().present());
        const QByteArray saved = write(*document);
        QCOMPARE(XmlNode::differences(XmlNode::parse(original), XmlNode::parse(saved)), QStringList());
        QCOMPARE(write(*read(saved)), saved);
        // Once there is a value, it is no longer nil.
        buildingOf(*document).storeysAboveGround().set(4);
        const QByteArray edited = write(*document);
        QVERIFY(edited.contains("<bldg:storeysAboveGround>4</bldg:storeysAboveGround>"));
        QVERIFY(!edited.contains("nilReason"));
        QCOMPARE(edited.count("nil="), 2);
    }

    void aValueBehindANilOneIsKept()
    {
        const QByteArray original =
            documentText(buildingMember("<bldg:storeysAboveGround xsi:nil='true'/>"
                                        "<bldg:storeysAboveGround>3</bldg:storeysAboveGround>"));
        const Document document = read(original);
        QCOMPARE(XmlNode::differences(XmlNode::parse(original), XmlNode::parse(write(*document))),
                 QStringList());
    }

    void xmlAttributesComeBack()
    {
        const QByteArray original = documentText(
            buildingMember("<gml:name xml:space='preserve' xml:lang='fr-CA'>  two  blanks </gml:name>"
                           "<x:a xml:space='preserve'>  <x:b/> </x:a>"),
            " xml:lang='en' xml:base='http://city.example/'");
        const QByteArray saved = write(*read(original));
        QCOMPARE(XmlNode::differences(XmlNode::parse(original), XmlNode::parse(saved)), QStringList());
        QVERIFY(saved.contains(">  two  blanks </gml:name>"));
        QVERIFY(saved.contains("<x:a xml:space=\"preserve\">  <x:b></x:b> </x:a>"));
    }

    void linksComeBack()
    {
        const QByteArray original = documentText(buildingMember(
            "<bldg:lod1Solid xlink:href='#s' xlink:title='a &quot;solid&quot;' xlink:show='embed'"
            " xlink:actuate='onRequest' xlink:role='urn:r' xlink:arcrole='urn:a' "
            "gml:remoteSchema='urn:s'/>"));
        const QByteArray saved = write(*read(original));
        QCOMPARE(XmlNode::differences(XmlNode::parse(original), XmlNode::parse(saved)), QStringList());
    }

    void markupAroundTheRootComesBack()
    {
        const QByteArray original = "<?style sheet?><!-- first -->" +
                                    documentText("<!--inner--><?in root?>") + "<!-- behind --><?last one?>";
        const QByteArray saved = write(*read(original));
        QCOMPARE(XmlNode::differences(XmlNode::parse(original), XmlNode::parse(saved)), QStringList());
        QVERIFY(saved.indexOf("<?style sheet?>") < saved.indexOf("<!-- first -->"));
        QVERIFY(saved.indexOf("<!-- first -->") < saved.indexOf("<core:CityModel"));
        QVERIFY(saved.indexOf("<!-- behind -->") > saved.indexOf("</core:CityModel>"));
        QCOMPARE(write(*read(saved)), saved);
    }

    void schemaLocationsAreJoined()
    {
        const QByteArray own = "http://www.opengis.net/citygml/2.0 my/base.xsd urn:unknown x.xsd";
        const QByteArray saved =
            write(*read(documentText(QByteArray(), " xsi:schemaLocation='\n " + own + "\t'")));
        const XmlNode tree = XmlNode::parse(saved);
        const QString text =
            tree.children[0].attributes.value("{http://www.w3.org/2001/XMLSchema-instance}schemaLocation");
        QVERIFY(text.startsWith(QString::fromUtf8(own) + ' '));
        QCOMPARE(text.count("http://www.opengis.net/citygml/2.0 "), 1);
        for (const tolvik::NamespacesMap& entry : tolvik::CityGmlUtils::getNamespaces()) {
            if (!entry.schemaLocation.empty() && entry.prefix != "core") {
                QVERIFY2(text.contains(QString::fromStdString(entry.name + ' ' + entry.schemaLocation)),
                         entry.name.c_str());
            }
        }
        QCOMPARE(write(*read(saved)), saved);
        QVERIFY(!write(*read(documentText(QByteArray()))).contains("schemaLocation"));
    }

    // Prefixes that only one element declares are not there for the others.
    void localDeclarationsComeBack()
    {
        const QByteArray original = documentText(buildingMember(
            "<g:name xmlns:g='http://www.opengis.net/gml' xmlns:y='urn:y' y:a='1' x:b='2'>n</g:name>"
            "<y:a xmlns:y='urn:other'><y:b/></y:a>"
            "<a xmlns='urn:default' xmlns:z='urn:z' z:c='3'><b/></a><plain/>"
            "<b:measuredHeight xmlns:b='http://www.opengis.net/citygml/building/2.0'"
            " xmlns:g='http://www.opengis.net/gml' uom='m' xsi:type='g:LengthType'>3</b:measuredHeight>"
            "<i:consistsOfBuildingPart xmlns:i='http://www.opengis.net/citygml/building/2.0' xmlns:y='urn:y'>"
            "<i:BuildingPart><y:inner q='y:value'/></i:BuildingPart></i:consistsOfBuildingPart>"));
        const QByteArray saved = write(*read(original));
        QString error;
        const XmlNode tree = XmlNode::parse(saved, &error);
        QCOMPARE(error, QString());
        QStringList differences = XmlNode::differences(XmlNode::parse(original), tree);
        // The one name in a value that the reader knows has the document's prefix now.
        QCOMPARE(differences.size(), 1);
        QVERIFY2(differences.first().contains("type 'g:LengthType' became 'gml:LengthType'"),
                 qPrintable(differences.first()));
        QVERIFY(saved.contains("<y:inner xmlns:y=\"urn:y\" q=\"y:value\">"));
        QCOMPARE(write(*read(saved)), saved);
    }

    void whatIsKeptMovesWithCopies()
    {
        const QByteArray content =
            "<gml:name x:a='1' xml:lang='fr'>n<x:in/></gml:name><x:b><x:c/></x:b><!--c-->"
            "<core:creationDate>2009-04-02+00:00</core:creationDate><?p i?>"
            "<bldg:storeysAboveGround xsi:nil='true'/><core:unknown/>";
        const Document document = read(documentText(buildingMember(content)));
        const QByteArray original = write(*document);
        const auto bodyOf = [](const QByteArray& saved, const char* tag) {
            const int begin = saved.indexOf(QByteArray("<") + tag),
                      end = saved.lastIndexOf(QByteArray("</") + tag);
            return saved.mid(begin, end - begin);
        };
        const QByteArray expected = bodyOf(original, "bldg:Building");
        QVERIFY(expected.contains("<x:b><x:c></x:c></x:b>"));

        // Of a clone of the whole, of the feature alone, and of one assigned to another.
        const Document copy(document->_clone());
        QCOMPARE(write(*copy), original);
        const Document other = read(documentText(QByteArray()));
        other->featureMember().push_back(document->featureMember().front());
        QCOMPARE(bodyOf(write(*other), "bldg:Building"), expected);
        const Document third = read(documentText(buildingMember("<gml:name>old</gml:name>", "c")));
        third->featureMember().front() = document->featureMember().front();
        QCOMPARE(bodyOf(write(*third), "bldg:Building"), expected);
        // The original still has it.
        QCOMPARE(write(*document), original);
    }

    // The other document knows other prefixes.
    void copiesBringTheirNamespaces()
    {
        const Document document = read(documentText(buildingMember(
            "<x:b x:c='1'><core:d xsi:type='x:t'/>x:e<none/></x:b><gml:name x:f='2'>n</gml:name>")));
        const Document other =
            read("<CityModel xmlns='http://www.opengis.net/citygml/2.0' xmlns:x='urn:other'"
                 " xmlns:core='urn:another'/>");
        other->featureMember().push_back(document->featureMember().front());
        const QByteArray saved = write(*other);
        QString error;
        const XmlNode tree = XmlNode::parse(saved, &error);
        QCOMPARE(error, QString());
        const XmlNode& copy = tree.children[0].children[0].children[0];
        const XmlNode original = XmlNode::parse(write(*document)).children[0].children[0].children[0];
        QCOMPARE(XmlNode::differences(original, copy), QStringList());
        QVERIFY(saved.contains("xmlns:x=\"urn:unknown\""));
        QCOMPARE(write(*read(saved)), saved);
        // A document that a program made declares nothing of its own.
        core::CityModelType fresh;
        fresh.featureMember().push_back(document->featureMember().front());
        const XmlNode made = XmlNode::parse(write(fresh), &error);
        QCOMPARE(error, QString());
        QCOMPARE(XmlNode::differences(original, made.children[0].children[0].children[0]), QStringList());
    }

    void eachKindOfKeptContentIsLoggedOnce()
    {
        const QByteArray content =
            "text<x:a/><x:a/><x:b><x:c/></x:b><!--one--><!--two--><?p i?>"
            "<gml:name x:d='1' xml:lang='fr'>n</gml:name><gml:name x:d='2'>m</gml:name>"
            "<core:creationDate>2009-04-02+00:00</core:creationDate>"
            "<bldg:storeysAboveGround x:e='1'>3</bldg:storeysAboveGround><bldg:opening/>";
        ReaderLog log(log4cplus::DEBUG_LOG_LEVEL);
        read(documentText(buildingMember(content)));
        const QStringList expected{
            "DEBUG kept as it stands: attribute x:d (2)",
            "DEBUG kept as it stands: attribute x:e (1)",
            "DEBUG kept as it stands: attribute xml:lang (1)",
            "DEBUG kept as it stands: comment (2)",
            "DEBUG kept as it stands: element bldg:opening (1)",
            "DEBUG kept as it stands: element x:a (2)",
            "DEBUG kept as it stands: element x:b (1)",
            "DEBUG kept as it stands: processing instruction (1)",
            "DEBUG kept as it stands: spelling of core:creationDate (1)",
            "DEBUG kept as it stands: text in bldg:Building (1)",
        };
        QCOMPARE(log.take(), expected);
        // Nothing to say about a document that is all known, and nothing above the debug level.
        read(documentText(buildingMember("<gml:name>n</gml:name>")));
        QCOMPARE(log.take(), QStringList());
        ReaderLog quiet(log4cplus::INFO_LOG_LEVEL);
        read(documentText(buildingMember(content)));
        QCOMPARE(quiet.take(), QStringList());
    }

    void numbersAreAsShortAsCanBe()
    {
        std::mt19937_64 random(20261121);
        QByteArray numbers;
        std::vector<double> values;
        while (values.size() < 5000) {
            const std::uint64_t bits = random();
            double value = 0;
            std::memcpy(&value, &bits, sizeof(value));
            // Half of them any number, half of them as in coordinates.
            if (values.size() % 2 != 0) {
                value = static_cast<double>(static_cast<std::int64_t>(bits % 2000000000)) / 1000;
            }
            if (!std::isfinite(value)) {
                continue;
            }
            values.push_back(value);
            numbers += QByteArray::number(value, 'e', 17) + ' ';
        }
        const Document document = read(withCorner(numbers));
        QCOMPARE(std::memcmp(cornerOf(*document).data(), values.data(), values.size() * sizeof(double)), 0);
        const QByteArray saved = write(*document);
        const int begin = saved.indexOf("<gml:lowerCorner>") + 17;
        const QList<QByteArray> words =
            saved.mid(begin, saved.indexOf("</gml:lowerCorner>") - begin).split(' ');
        QCOMPARE(words.size(), 5000);
        for (int i = 0; i < words.size(); ++i) {
            const double value = values[static_cast<std::size_t>(i)];
            QCOMPARE(words[i].toDouble(), value);
            int least = 1;
            while (QByteArray::number(value, 'e', least - 1).toDouble() != value) {
                ++least;
            }
            QByteArray digits =
                words[i].left(words[i].indexOf('e') < 0 ? words[i].size() : words[i].indexOf('e'));
            digits.replace("-", "").replace(".", "");
            while (digits.startsWith('0')) {
                digits.remove(0, 1);
            }
            while (words[i].indexOf('.') < 0 && digits.endsWith('0')) {
                digits.chop(1);
            }
            QVERIFY2(digits.size() == least, words[i]);
        }
    }
};

TEST_CLASS(KeptContentTest, Core)
#include "keptcontenttest.moc"
