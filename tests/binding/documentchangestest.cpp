#include "citygml/DocumentChanges.h"
#include "bldg/AbstractBoundarySurfaceType.hxx"
#include "bldg/BoundarySurfacePropertyType.hxx"
#include "bldg/BuildingType.hxx"
#include "bldg/InteriorRoomPropertyType.hxx"
#include "bldg/WallSurfaceType.hxx"
#include "citygml/Member.h"
#include "citygml/ReadingThreads.h"
#include "core/CityModelType.hxx"
#include "energy/poly_isLandmarked.hxx"
#include "gen/GenericAttributeSetType.hxx"
#include "gen/IntAttributeType.hxx"
#include "gml/BoundingShapeType.hxx"
#include "gml/CodeType.hxx"
#include "gml/DirectPositionType.hxx"
#include "gml/EnvelopeType.hxx"
#include "gml/FeaturePropertyType.hxx"
#include "gml/LengthType.hxx"
#include "platform/binding/kept/KeptContent.h"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/Mutants.h"
#include "support/SavedChanges.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "support/Variants.h"
#include "support/XmlTree.h"

#include <algorithm>
#include <functional>
#include <QtTest>
#include <random>
#include <sstream>

using namespace testsupport;

namespace {

bldg::BuildingType& buildingIn(core::CityModelType& document, int number = 0)
{
    return dynamic_cast<bldg::BuildingType&>(*document.featureMember()[number]._Feature());
}

using Edit = std::function<void(core::CityModelType&)>;

} // namespace

Q_DECLARE_METATYPE(Edit)

/// Saves that touch only what has changed.
class DocumentChangesTest : public QObject
{
    Q_OBJECT

private:
    /// Makes the edit of a row, which is to show as other bytes at one place.
    static void verifyEdit(const QByteArray& original)
    {
        QFETCH(Edit, edit);
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        const Document document = read(original);
        edit(*document);
        const QByteArray actual = saved(original, *document);
        const QByteArray expected = QByteArray(original).replace(from, to);
        QVERIFY2(actual == expected, parting(actual, expected));
    }

private slots:
    void anUneditedDocumentComesBack_data() { addPathRows(exampleAndSharedDocuments()); }
    void anUneditedDocumentComesBack()
    {
        QFETCH(QString, path);
        int opened = 0;
        for (const Variant& variant : variantsOf(contentOf(path))) {
            Document document;
            try {
                document = read(variant.xml);
            } catch (const xsd::cxx::tree::exception<char>& error) {
                std::ostringstream reason;
                reason << error;
                QFAIL((QByteArray(variant.name) + ": " + reason.str().c_str()).constData());
            }
            const bool isOlder = contentOf(path).contains("citygml/1.0");
            const QByteArray actual = saved(variant.xml, *document);
            const QByteArray expected = isOlder ? QByteArray() : variant.xml;
            QVERIFY2(actual == expected, variant.name + parting(actual, expected));
            ++opened;
        }
        QVERIFY(opened > 10);
    }

    void uneditedMutantsComeBack()
    {
        QByteArrayList documents;
        for (const QString& path : exampleAndSharedDocuments()) {
            documents << contentOf(path);
        }
        mutants::Maker maker(documents);
        int opened = 0;
        const int count = qEnvironmentVariableIsSet("TOLVIK_LONG_RUNS") ? 3000 : 150;
        for (int i = 0; i < count; ++i) {
            const auto mutant = maker.next();
            Document document;
            try {
                document = read(mutant.xml);
            } catch (const xsd::cxx::tree::exception<char>&) {
                continue;
            }
            const QByteArray actual = saved(mutant.xml, *document);
            if (!actual.isEmpty() || !mutant.xml.contains("citygml/1.0")) {
                QVERIFY2(actual == mutant.xml, mutant.change + parting(actual, mutant.xml));
                ++opened;
            }
        }
        QVERIFY(opened > count / 4);
    }

    void onlyTheEditShows_data()
    {
        QTest::addColumn<QByteArray>("members");
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        const auto add = [](const char* name, const QByteArray& members, const Edit& edit,
                            const QByteArray& from,
                            const QByteArray& to) { QTest::newRow(name) << members << edit << from << to; };
        const auto on = [](const std::function<void(bldg::BuildingType&)>& edit) {
            return Edit([edit](core::CityModelType& document) { edit(buildingIn(document)); });
        };
        const QByteArray lines = "\n\t<core:cityObjectMember>\n\t\t<bldg:Building>\n"
                                 "\t\t\t<bldg:class codeSpace='c' >  <!--a-->1&#48;</bldg:class>\n"
                                 "\t\t\t<bldg:function>1</bldg:function> <!-- first -->\n"
                                 "\t\t\t<bldg:function\n>2</bldg:function>\n"
                                 "\t\t\t<x:other x:b = 'c'><![CDATA[x]]></x:other>\n"
                                 "\t\t\t<bldg:measuredHeight uom='m'> 12.50 </bldg:measuredHeight>\n"
                                 "\t\t</bldg:Building>\n\t</core:cityObjectMember>\n";
        const auto setHeight =
            on([](bldg::BuildingType& building) { static_cast<double&>(*building.measuredHeight()) = 13.5; });
        add("number", lines, setHeight, " 12.50 <", " 13.5 <");
        add("attribute", lines, on([](bldg::BuildingType& b) { b.measuredHeight()->uom("it's \"x\""); }),
            "uom='m'", "uom='it&apos;s &quot;x&quot;'");
        add("attribute in front of blanks", buildingMember(QByteArray()).replace("b\">", "b\"\n >"),
            on([](bldg::BuildingType& b) { b.id().reset(); }), " gml:id=\"b\"", "");
        add("new attribute in front of blanks", buildingMember("<bldg:class \n>1</bldg:class>"),
            on([](bldg::BuildingType& b) { b.class_()->codeSpace("c"); }), "<bldg:class \n>",
            "<bldg:class codeSpace=\"c\" \n>");
        add("blanks of a text", buildingMember("<bldg:class> 1 </bldg:class>"),
            on([](bldg::BuildingType& b) { b.class_(gml::CodeType("2")); }), "> 1 <", ">2<");
        add("removed", lines, on([](bldg::BuildingType& b) { b.measuredHeight().reset(); }),
            "\t\t\t<bldg:measuredHeight uom='m'> 12.50 </bldg:measuredHeight>\n", "");
        add("removed beside a comment", lines,
            on([](bldg::BuildingType& b) { b.function().erase(b.function().begin()); }),
            "<bldg:function>1</bldg:function> <!-- first -->", " <!-- first -->");
        add("removed in front of blanks", buildingMember("\n <bldg:class>1</bldg:class> \t\n"),
            on([](bldg::BuildingType& b) { b.class_().reset(); }), "\n <bldg:class>1</bldg:class> \t", "");
        add("entry", lines, on([](bldg::BuildingType& b) { b.function().push_back(gml::CodeType("<3>")); }),
            "\n>2</bldg:function>\n",
            "\n>2</bldg:function>\n\t\t\t<bldg:function>&lt;3&gt;</bldg:function>\n");
        add("entry behind an empty line", buildingMember("\n\n  <bldg:function>1</bldg:function>\n"),
            on([](bldg::BuildingType& b) { b.function().push_back(gml::CodeType("2")); }),
            ">1</bldg:function>", ">1</bldg:function>\n  <bldg:function>2</bldg:function>");
        add("indentation of its own",
            "\n <core:cityObjectMember>\n <bldg:Building>\n     <bldg:class>1</bldg:class>\n "
            "</bldg:Building>\n"
            " </core:cityObjectMember>",
            on([](bldg::BuildingType& b) {
                bldg::BoundarySurfacePropertyType surface;
                surface._BoundarySurface(bldg::WallSurfaceType());
                b.boundedBy1().push_back(surface);
            }),
            "</bldg:class>",
            "</bldg:class>\n     <bldg:boundedBy>\n         <bldg:WallSurface/>\n     </bldg:boundedBy>");
        add("removed between texts", buildingMember("t<bldg:class>1</bldg:class><x:k/>u"),
            on([](bldg::BuildingType& b) { b.class_().reset(); }), "<bldg:class>1</bldg:class>", "");
        add("value between texts", buildingMember("t<bldg:class >1</bldg:class ><x:k/>u"),
            on([](bldg::BuildingType& b) { b.class_(gml::CodeType("2")); }), ">1<", ">2<");
        add("new member", lines, on([](bldg::BuildingType& b) { b.roofType(gml::CodeType("r")); }),
            "\n>2</bldg:function>\n", "\n>2</bldg:function>\n\t\t\t<bldg:roofType>r</bldg:roofType>\n");
        add("identifier", lines, on([](bldg::BuildingType& b) { b.id("new"); }), "<bldg:Building>",
            "<bldg:Building gml:id=\"new\">");
        const auto surface = [](const QByteArray& type, const QByteArray& codeSpace, const QByteArray& name) {
            return "<bldg:boundedBy ><bldg:" + type + " ><gml:name codeSpace='" + codeSpace + "'>" + name +
                   "</gml:name></bldg:" + type + "></bldg:boundedBy>\n";
        };
        const auto addSurfaces = [&](const char* name, const QByteArray& first, const QByteArray& second) {
            const Edit edit = on([](bldg::BuildingType& b) {
                b.boundedBy1().erase(b.boundedBy1().begin());
                static_cast<std::string&>(b.boundedBy1()[0]._BoundarySurface()->name()[0]) = "new";
            });
            add(name, buildingMember('\n' + first + second), edit, first + second,
                QByteArray(second).replace(">2<", ">new<"));
        };
        addSurfaces("entry of another type than the one that is gone", surface("WallSurface", "c", "1"),
                    surface("RoofSurface", "c", "2"));
        addSurfaces("entry of the type of the one that is gone",
                    surface("WallSurface", "c", "1").replace(" >", ">"), surface("WallSurface", "d", "2"));
        add("CDATA",
            "<core:cityObjectMember><bldg:Building><bldg:class><![CDATA[a<b]]></bldg:class></bldg:Building>"
            "</core:cityObjectMember>",
            on([](bldg::BuildingType& b) { b.class_(gml::CodeType("c<d")); }), "a<b", "c<d");
        const QByteArray sets = "<gen:genericAttributeSet name='a' ><gen:intAttribute name='b'><gen:value>1"
                                "</gen:value></gen:intAttribute><gen:intAttribute name='c'><gen:value>1"
                                "</gen:value></gen:intAttribute></gen:genericAttributeSet>";
        const QByteArray other = QByteArray(sets).replace("a' >", "a'>").replace(">1<", ">2<");
        const auto valueIn = [](xml_schema::type & set) -> auto&
        {
            auto& attributes = dynamic_cast<gen::GenericAttributeSetType&>(set)._genericAttribute();
            return dynamic_cast<gen::IntAttributeType&>(attributes.front()).value();
        };
        add("first of two with one name", buildingMember(sets + other), on([valueIn](bldg::BuildingType& b) {
                auto& attributes = b._GenericApplicationPropertyOfCityObject();
                attributes.erase(attributes.begin());
                valueIn(attributes.front()) = 3;
            }),
            sets + other.left(other.indexOf(">2<") + 3), other.left(other.indexOf(">2<")) + ">3<");
        add("like one in front", buildingMember(sets), on([valueIn](bldg::BuildingType& b) {
                auto& attributes = b._GenericApplicationPropertyOfCityObject();
                attributes.insert(attributes.begin(), attributes.front());
                dynamic_cast<gen::GenericAttributeSetType&>(attributes.front())._genericAttribute().clear();
                valueIn(attributes.back()) = 3;
            }),
            sets.left(sets.indexOf(">1<") + 3),
            "<gen:genericAttributeSet name=\"a\"/>" + sets.left(sets.indexOf(">1<")) + ">3<");
        add("empty element", "<core:cityObjectMember><bldg:Building/></core:cityObjectMember>",
            on([](bldg::BuildingType& b) { b.class_(gml::CodeType("c")); }), "<bldg:Building/>",
            "<bldg:Building><bldg:class>c</bldg:class></bldg:Building>");
        add("declared namespace", "<core:cityObjectMember><bldg:Building/></core:cityObjectMember>",
            Edit([](core::CityModelType& document) { document.featureMember()[0].role("r"); }),
            "<core:cityObjectMember>", "<core:cityObjectMember xlink:role=\"r\">");
        add("new namespace", "<core:cityObjectMember>\n <bldg:Building/>\n</core:cityObjectMember>",
            on([](bldg::BuildingType& b) {
                b._GenericApplicationPropertyOfAbstractBuilding().push_back(energy::poly_isLandmarked(true));
            }),
            "xmlns:x='urn:unknown'><core:cityObjectMember>\n <bldg:Building/>",
            "xmlns:x='urn:unknown' "
            "xmlns:ns3=\"http://www.sig3d.org/citygml/2.0/energy/1.0\"><core:cityObjectMember>\n"
            " <bldg:Building>\n  <ns3:isLandmarked>true</ns3:isLandmarked>\n </bldg:Building>");
        add("prefix that has another meaning in the place",
            "<core:cityObjectMember xmlns:gml='urn:q'><bldg:Building/></core:cityObjectMember>",
            on([](bldg::BuildingType& b) { b.name().push_back(gml::CodeType("n")); }),
            "xmlns:x='urn:unknown'><core:cityObjectMember xmlns:gml='urn:q'><bldg:Building/>",
            "xmlns:x='urn:unknown' xmlns:gml1=\"http://www.opengis.net/gml\">"
            "<core:cityObjectMember xmlns:gml='urn:q'>"
            "<bldg:Building><gml1:name>n</gml1:name></bldg:Building>");
        const QByteArray two =
            "<core:cityObjectMember>\n <bldg:Building gml:id='a'/>\n</core:cityObjectMember>\n"
            "<!--between-->\n"
            "<core:cityObjectMember>\n <bldg:Building gml:id='b'/>\n</core:cityObjectMember>\n";
        add("removed feature", "\n" + two, Edit([](core::CityModelType& document) {
                document.featureMember().erase(document.featureMember().begin());
            }),
            "<core:cityObjectMember>\n <bldg:Building gml:id='a'/>\n</core:cityObjectMember>\n", "");
        add("removed feature without a line", QByteArray(two).replace("\n", ""),
            Edit([](core::CityModelType& document) { document.featureMember().pop_back(); }),
            "<core:cityObjectMember> <bldg:Building gml:id='b'/></core:cityObjectMember>", "");
        add("added feature", two, Edit([](core::CityModelType& document) {
                bldg::BuildingType building;
                building.id("c");
                building.class_(gml::CodeType("1"));
                gml::FeaturePropertyType member;
                member._Feature(building);
                document.featureMember().push_back(member);
            }),
            "'b'/>\n</core:cityObjectMember>\n",
            "'b'/>\n</core:cityObjectMember>\n<gml:featureMember>\n <bldg:Building gml:id=\"c\">\n"
            "  <bldg:class>1</bldg:class>\n </bldg:Building>\n</gml:featureMember>\n");
    }

    void onlyTheEditShows()
    {
        QFETCH(QByteArray, members);
        verifyEdit(documentText(members));
    }

    void onlyTheEditsShowInAnyEncoding_data()
    {
        QTest::addColumn<QByteArray>("start");
        QTest::addColumn<QByteArray>("lineEnd");
        const QVector<QPair<const char*, QByteArray>> starts{
            {"UTF-8", ""},
            {"UTF-8 with a mark", "\xEF\xBB\xBF"},
            {"UTF-16, little", "\xFF\xFE"},
            {"UTF-16, big", "\xFE\xFF"},
            {"ISO-8859-1", "<?xml version='1.0' encoding='ISO-8859-1'?>"},
            {"ISO-8859-15 with a mark", "\xEF\xBB\xBF<?xml version='1.0' encoding='ISO-8859-15'?>"},
            {"US-ASCII", "<?xml version='1.0' encoding=\"us-ascii\"?>"},
            {"document type", "<!DOCTYPE core:CityModel [<!ENTITY e 'x'><!ENTITY f 'y'>]>"}};
        for (const auto& start : starts) {
            for (const QByteArray lineEnd : {"\n\t", "\r\n  ", ""}) {
                const QByteArray name = lineEnd.isEmpty() ? ", one line" : lineEnd == "\n\t" ? "" : ", CRLF";
                QTest::newRow(start.first + name) << start.second << lineEnd;
            }
        }
    }

    /// Each kind of edit, with characters of which many encodings have none.
    void onlyTheEditsShowInAnyEncoding()
    {
        QFETCH(QByteArray, start);
        QFETCH(QByteArray, lineEnd);
        const auto member = [&](const QByteArray& content) {
            return lineEnd + "<core:cityObjectMember ><bldg:Building >" + content +
                   "</bldg:Building></core:cityObjectMember>";
        };
        const QByteArray special = "\xC3\xA4\xE2\x82\xAC\xF0\x90\x90\xB7";
        const QByteArray function = lineEnd + "<bldg:function >1</bldg:function>";
        const QByteArray height = lineEnd + "<bldg:measuredHeight uom = 'm' >  12.50 </bldg:measuredHeight>";
        const QByteArray gone = member(lineEnd + "<bldg:class>gone</bldg:class>");
        const QByteArray before = documentText(
            gone + member(lineEnd + "<bldg:class  codeSpace='c'>\xC3\xB6<!--\xC3\xBC--></bldg:class>" +
                          function + height + lineEnd));
        const QByteArray after = documentText(member(
            lineEnd + "<bldg:class  codeSpace='&lt;&apos;" + special + "'>" +
            "\xC3\xB6<!--\xC3\xBC--></bldg:class>" + function + lineEnd + "<bldg:function>" + special +
            "</bldg:function>" +
            QByteArray(height).replace("12.50", "13.5").replace("'m'", "'" + special + "'") + lineEnd));

        const auto encoded = [&](const QByteArray& text) { return start + Variant{"", start}.encoded(text); };
        const QByteArray original = encoded(before);
        const Document document = read(original);
        document->featureMember().erase(document->featureMember().begin());
        bldg::BuildingType& building = buildingIn(*document);
        building.class_()->codeSpace("<'" + special.toStdString());
        building.function().push_back(gml::CodeType(special.toStdString()));
        static_cast<double&>(*building.measuredHeight()) = 13.5;
        building.measuredHeight()->uom(special.toStdString());
        const QByteArray actual = saved(original, *document), expected = encoded(after);
        QVERIFY2(actual == expected, parting(Variant{"", actual}.text(), Variant{"", expected}.text()));
    }

    void onlyTheEditShowsInAnyDocument_data()
    {
        QTest::addColumn<QByteArray>("original");
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        const auto setClass = [](const std::string& text) {
            return Edit([text](core::CityModelType& document) {
                static_cast<std::string&>(*buildingIn(document).class_()) = text;
            });
        };
        const QByteArray section = buildingMember("<bldg:class><![CDATA[1]]></bldg:class>");
        QTest::newRow("CDATA section with what the encoding lacks")
            << "<?xml version='1.0' encoding='ISO-8859-1'?>" + documentText(section)
            << setClass("<\xE2\x82\xAC") << QByteArray("<![CDATA[1]]>") << QByteArray("&lt;&#8364;");
        QTest::newRow("CDATA section with what ends it")
            << documentText(section) << setClass("]]>") << QByteArray("<![CDATA[1]]>")
            << QByteArray("]]&gt;");

        QTest::newRow("CDATA section with a carriage return")
            << documentText(section) << setClass("a\rb") << QByteArray("<![CDATA[1]]>")
            << QByteArray("a&#13;b");

        QTest::newRow("attribute of a document type")
            << "<!DOCTYPE core:CityModel [<!ATTLIST bldg:class codeSpace CDATA 'd'>]>" +
                   documentText(buildingMember("<bldg:class>1</bldg:class>"))
            << Edit([](core::CityModelType& document) { buildingIn(document).class_()->codeSpace("e"); })
            << QByteArray("<bldg:class>") << QByteArray("<bldg:class codeSpace=\"e\">");
        const QByteArray entities = "<!DOCTYPE core:CityModel [<!ENTITY e 'x'>"
                                    "<!ENTITY f '<bldg:function>1</bldg:function>'>]>\n";
        const QByteArray useOfEntities =
            entities +
            documentText(buildingMember("<bldg:class>&e;1</bldg:class>\n <bldg:function>&e;</bldg:function>"
                                        "\n <bldg:roofType >&e;</bldg:roofType>\n"));
        QTest::newRow("value with an entity")
            << useOfEntities << setClass("2") << QByteArray(">&e;1<") << QByteArray(">2<");
        QTest::newRow("value beside entities")
            << useOfEntities
            << Edit([](core::CityModelType& document) { buildingIn(document).function().pop_back(); })
            << QByteArray("\n <bldg:function>&e;</bldg:function>") << QByteArray();
        const QByteArray elementOfEntity =
            entities + documentText(buildingMember("&f;") + buildingMember(section, "c"));
        QTest::newRow("element of an entity")
            << elementOfEntity << Edit([](core::CityModelType& document) {
                   buildingIn(document).function().push_back(gml::CodeType("2"));
               })
            << QByteArray(">&f;<")
            << QByteArray("><bldg:function>1</bldg:function><bldg:function>2</bldg:function><");
        QTest::newRow("element of an entity behind a text")
            << entities + documentText(buildingMember("note&f;<bldg:function>2</bldg:function>"))
            << Edit([](core::CityModelType& document) {
                   buildingIn(document).function().erase(buildingIn(document).function().begin());
               })
            << QByteArray("note&f;<") << QByteArray("note<");

        const QByteArray defaultPrefix =
            "<c:CityModel xmlns:c='http://www.opengis.net/citygml/2.0' xmlns='http://www.opengis.net/gml'"
            " xmlns:b='http://www.opengis.net/citygml/building/2.0'><c:cityObjectMember><b:Building/>"
            "</c:cityObjectMember></c:CityModel>";
        QTest::newRow("attribute of the default namespace")
            << defaultPrefix << Edit([](core::CityModelType& document) { buildingIn(document).id("i"); })
            << QByteArray("><c:cityObjectMember><b:Building/>")
            << QByteArray(
                   " xmlns:ns=\"http://www.opengis.net/gml\"><c:cityObjectMember><b:Building ns:id=\"i\"/>");
        const QByteArray others = "<x:other xmlns:ns3='urn:3'/><core:cityObjectMember><bldg:Building>"
                                  "<bldg:class>1</bldg:class>";
        QTest::newRow("prefix that another element declares")
            << documentText(others + "</bldg:Building></core:cityObjectMember>")
            << Edit([](core::CityModelType& document) {
                   buildingIn(document)._GenericApplicationPropertyOfAbstractBuilding().push_back(
                       energy::poly_isLandmarked(true));
               })
            << "'urn:unknown'>" + others
            << "'urn:unknown' xmlns:ns31=\"http://www.sig3d.org/citygml/2.0/energy/1.0\">" + others +
                   "<ns31:isLandmarked>true</ns31:isLandmarked>";
        const QByteArray prefixes =
            "<CityModel xmlns='http://www.opengis.net/citygml/2.0' xmlns:g='http://www.opengis.net/gml'>\n"
            " <cityObjectMember><b:Building xmlns:b='http://www.opengis.net/citygml/building/2.0'>\n"
            "  <b:class g:codeSpace='c'>1</b:class>\n </b:Building></cityObjectMember>\n</CityModel>";
        QTest::newRow("other prefixes") << prefixes << Edit([](core::CityModelType& document) {
            bldg::BuildingType& building = buildingIn(document);
            building.id("i");
            building.name().push_back(gml::CodeType("n"));
            building.creationDate(xml_schema::date(2001, 2, 3));
        }) << QByteArray("2.0'>\n  <b:")
                                        << QByteArray("2.0' g:id=\"i\">\n  <g:name>n</g:name>\n"
                                                      "  <creationDate>2001-02-03</creationDate>\n  <b:");
    }

    void onlyTheEditShowsInAnyDocument()
    {
        QFETCH(QByteArray, original);
        verifyEdit(original);
    }

    void childrenAreComparedInPieces_data()
    {
        QTest::addColumn<int>("threads");
        QTest::addColumn<QByteArray>("pieceSize");
        for (const int threads : {1, 3}) {
            for (const char* const size : {"1", "700", "5000", ""}) {
                QTest::addRow("%d threads, pieces of '%s'", threads, size) << threads << QByteArray(size);
            }
        }
    }

    /// Children that are gone, edited, new and elsewhere, among many that stay.
    void childrenAreComparedInPieces()
    {
        QFETCH(int, threads);
        QFETCH(QByteArray, pieceSize);
        QByteArrayList members;
        for (int i = 0; i < 100; ++i) {
            const QByteArray number = QByteArray::number(i);
            const QByteArray id = i % 3 != 0 ? "gml:id='b" + number + '\'' : QByteArray();
            members += "\n <core:cityObjectMember  >\n  <bldg:Building  " + id + ">\n   <bldg:class  >" +
                       number + "</bldg:class>\n  </bldg:Building>\n </core:cityObjectMember>";
        }
        members[60] += "\n <!-- behind 60 -->";
        const QByteArray original = documentText(members.join() + '\n');
        const Document document = read(original);
        auto& list = document->featureMember();
        static_cast<std::string&>(*buildingIn(*document, 90).class_()) = "edited";
        const gml::FeaturePropertyType last = list.back();
        list.pop_back();
        list.insert(list.begin() + 70, last);
        list.insert(list.begin() + 50, gml::FeaturePropertyType());
        list.erase(list.begin() + 20, list.begin() + 35);
        list.erase(list.begin());

        members[90].replace(">90<", ">edited<");
        members.move(99, 70);
        members[70].replace("  >", ">").replace("  gml", " gml").replace('\'', '"');
        members.insert(50, "\n <gml:featureMember/>");
        const QByteArray expected = documentText((members.mid(1, 19) + members.mid(35)).join() + '\n');
        citygml::setReadingThreads(static_cast<unsigned>(threads));
        qputenv("TOLVIK_PIECE_SIZE", pieceSize);
        const QByteArray actual = saved(original, *document);
        qunsetenv("TOLVIK_PIECE_SIZE");
        citygml::setReadingThreads(0);
        QVERIFY2(actual == expected, parting(actual, expected));
    }

    /// A child that has gone elsewhere is as it was, but has no bytes there.
    void aChildThatIsElsewhereIsWrittenInFull()
    {
        QByteArrayList members;
        for (int i = 0; i < 10; ++i) {
            members += "\n " + buildingMember("<bldg:class>" + QByteArray::number(i) + "</bldg:class>",
                                              "b" + QByteArray::number(i));
        }
        const QByteArray original = documentText(members.join() + '\n');
        const QVector<QPair<int, int>> moves{{2, 7}, {7, 2}, {3, 4}, {1, 9}, {9, 1}};
        for (const auto& move : moves) {
            QByteArrayList moved = members;
            moved.move(move.first, move.second);
            const QByteArray expected = documentText(moved.join() + '\n');
            const QByteArray actual = saved(original, *read(expected));
            QVERIFY2(actual == expected, QByteArray::number(move.first) + parting(actual, expected));
        }
        QByteArrayList shuffled = members;
        std::shuffle(shuffled.begin(), shuffled.end(), std::mt19937(1));
        const QByteArray expected = documentText(shuffled.join() + '\n');
        QCOMPARE(write(*read(saved(original, *read(expected)))), write(*read(expected)));
    }

    void everyEditInAChildIsSeen_data()
    {
        QTest::addColumn<Edit>("edit");
        const auto add = [](const char* name, const std::function<void(bldg::BuildingType&)>& edit) {
            QTest::newRow(name) << Edit(
                [edit](core::CityModelType& document) { edit(buildingIn(document, 2)); });
        };
        using citygml::binding::KeptContent;
        add("text", [](bldg::BuildingType& b) { b.class_(gml::CodeType("2")); });
        add("code space", [](bldg::BuildingType& b) { b.class_()->codeSpace("d"); });
        add("comment", [](bldg::BuildingType& b) { KeptContent::find(b)->node(0)->xml = "<!--b-->"; });
        add("unknown attribute",
            [](bldg::BuildingType& b) { KeptContent::find(b)->attribute(0)->value = "b"; });
        add("number of a list",
            [](bldg::BuildingType& b) { (*b.boundedBy()->Envelope()->lowerCorner())[1] = 5; });
        add("sign of a zero",
            [](bldg::BuildingType& b) { (*b.boundedBy()->Envelope()->lowerCorner())[0] = -0.0; });
        add("further entry", [](bldg::BuildingType& b) { b.function().push_back(gml::CodeType("f")); });
        add("without entry", [](bldg::BuildingType& b) { b.function().clear(); });
        add("required attribute", [](bldg::BuildingType& b) {
            citygml::Member(*b.measuredHeight(), b.measuredHeight()->uom()).clear();
        });
        add("attribute that is implied now", [](bldg::BuildingType& b) {
            bldg::InteriorRoomPropertyType room;
            room.href(*b.interiorRoom().front().href());
            b.interiorRoom().clear();
            b.interiorRoom().push_back(room);
        });
        QTest::newRow("element that a program made") << Edit([](core::CityModelType& document) {
            gml::FeaturePropertyType member;
            member._Feature(buildingIn(document, 2));
            document.featureMember().erase(document.featureMember().begin() + 2);
            document.featureMember().push_back(member);
        });
    }

    /// In a child that is not there while texts are compared if nothing is edited in it.
    void everyEditInAChildIsSeen()
    {
        QFETCH(Edit, edit);
        QByteArray members;
        for (const char* const id : {"a", "b", "c"}) {
            members += buildingMember(
                           "<gml:boundedBy><gml:Envelope><gml:lowerCorner>0 1 2</gml:lowerCorner>"
                           "<gml:upperCorner>2 3 4</gml:upperCorner></gml:Envelope></gml:boundedBy>"
                           "<bldg:class codeSpace='c'>1</bldg:class><!--a--><bldg:function>1</bldg:function>"
                           "<bldg:measuredHeight uom='m'>1.50</bldg:measuredHeight>"
                           "<bldg:interiorRoom xlink:type='simple' xlink:href='#a'/>",
                           id)
                           .replace("<bldg:Building ", "<bldg:Building x:a='a' ");
        }
        const QByteArray original = documentText(members);
        const Document document = read(original);
        edit(*document);
        const QByteArray plain = write(*document);
        QCOMPARE(write(*read(saved(original, *document))), plain);
        QVERIFY(write(*read(original)) != plain);
    }

    void aCommentBetweenChildrenIsCompared()
    {
        const QByteArray original = documentText(buildingMember("", "a") + buildingMember("", "b") +
                                                 "<!-- <a> -->" + buildingMember("", "c"));
        const Document document = read(original);
        QCOMPARE(saved(original, *document), original);
        citygml::binding::KeptContent::find(*document)->node(0)->xml = "<!--b-->";
        QCOMPARE(saved(original, *document), QByteArray(original).replace("<!-- <a> -->", "<!--b-->"));
    }

    void aChildMayDeclareItsOwnPrefix()
    {
        QByteArray members;
        for (const char* const id : {"a", "b", "c"}) {
            members += buildingMember("<bldg:class>1</bldg:class>", id)
                           .replace("core:cityObjectMember>", "c:cityObjectMember>")
                           .replace("<c:cityObjectMember",
                                    "<c:cityObjectMember xmlns:c='http://www.opengis.net/citygml/2.0'");
        }
        const QByteArray original = documentText(members);
        const Document document = read(original);
        QCOMPARE(saved(original, *document), original);
        buildingIn(*document).class_(gml::CodeType("2"));
        QCOMPARE(saved(original, *document), QByteArray(original).replace(original.indexOf(">1<"), 3, ">2<"));
    }

    void whatIsNoOriginalIsNotCopied_data()
    {
        QTest::addColumn<QByteArray>("original");
        const QByteArray document = documentText(buildingMember("<bldg:class>1</bldg:class>"));
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("no XML") << QByteArray("name;height\n");
        QTest::newRow("another document type") << QByteArray("<html/>");
        QTest::newRow("prefix that is not declared") << QByteArray("<core:CityModel>") + document.mid(1);
        QTest::newRow("cut off") << document.left(document.size() - 20);
        QTest::newRow("older version") << QByteArray(document).replace("citygml/2.0", "citygml/1.0");
        QTest::newRow("older version in another encoding")
            << "<?xml version='1.0' encoding='ISO-8859-1'?>" +
                   QByteArray(document).replace("citygml/2.0", "citygml/1.0");
    }

    void whatIsNoOriginalIsNotCopied()
    {
        QFETCH(QByteArray, original);
        const Document document = read(documentText(buildingMember("<bldg:class>1</bldg:class>")));
        QVERIFY(saved(original, *document).isNull());
    }

    void anIdentifierThatStandsTwiceCanBeChanged()
    {
        const QByteArray twice =
            documentText(buildingMember("<!-- 1 -->", "b") + buildingMember("<!-- 2 -->", "b"));
        const QByteArray repaired = QByteArray(twice).replace("\"b\"><!-- 2", "\"c\"><!-- 2");
        QCOMPARE(saved(twice, *read(repaired)), repaired);
    }

    void anOriginalMayBeginBehindOtherBytes()
    {
        const QByteArray original =
            documentText(buildingMember("", "a") + buildingMember("", "b") + buildingMember("", "c"));
        std::istringstream stream("other bytes" + original.toStdString());
        stream.seekg(11);
        std::ostringstream target;
        QVERIFY(citygml::writeChanges(stream, *read(original), target));
        QCOMPARE(QByteArray::fromStdString(target.str()), original);
    }

    void aCommentHasNoReferences_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("alone") << QByteArray("<!--a-->");
        QTest::newRow("behind a text") << QByteArray("t <!--a--><bldg:class  />");
    }

    void aCommentHasNoReferences()
    {
        QFETCH(QByteArray, content);
        const QByteArray original =
            "<?xml version='1.0' encoding='ISO-8859-1'?>" + documentText(buildingMember(content));
        const Document document = read(original);
        const int number = content.startsWith('t') ? 1 : 0;
        std::string& comment = citygml::binding::KeptContent::find(buildingIn(*document))->node(number)->xml;
        comment = "<!--\xC3\xA4-->";
        QCOMPARE(saved(original, *document), QByteArray(original).replace("<!--a-->", "<!--\xE4-->"));
        comment = "<!--\xE2\x82\xAC-->";
        QVERIFY(saved(original, *document).isNull());
    }
};

TEST_CLASS(DocumentChangesTest, Core)
#include "documentchangestest.moc"
