#include "citygml/DocumentChanges.h"
#include "bldg/AbstractBoundarySurfaceType.hxx"
#include "bldg/BoundarySurfacePropertyType.hxx"
#include "bldg/BuildingType.hxx"
#include "citygml/Member.h"
#include "core/CityModelType.hxx"
#include "energy/poly_isLandmarked.hxx"
#include "gml/CodeType.hxx"
#include "gml/FeaturePropertyType.hxx"
#include "gml/LengthType.hxx"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/Mutants.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "support/Variants.h"
#include "support/XmlTree.h"

#include <functional>
#include <QtTest>
#include <sstream>

using namespace testsupport;

namespace {

/// What a save of changes writes; null where it cannot.
QByteArray saved(const QByteArray& original, const core::CityModelType& document)
{
    std::istringstream stream(original.toStdString());
    std::ostringstream target;
    const bool isWritten = citygml::writeChanges(stream, document, target);
    return isWritten ? QByteArray::fromStdString(target.str()) : QByteArray();
}

/// The first place at which two texts part, for messages.
QByteArray parting(const QByteArray& actual, const QByteArray& expected)
{
    int at = 0;
    while (at < actual.size() && at < expected.size() && actual[at] == expected[at]) {
        ++at;
    }
    const int from = qMax(0, at - 100);
    return "\nactual:   ..." + actual.mid(from, 300) + "\nexpected: ..." + expected.mid(from, 300);
}

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
        add("removed", lines, on([](bldg::BuildingType& b) { b.measuredHeight().reset(); }),
            "\t\t\t<bldg:measuredHeight uom='m'> 12.50 </bldg:measuredHeight>\n", "");
        add("removed beside a comment", lines,
            on([](bldg::BuildingType& b) { b.function().erase(b.function().begin()); }),
            "<bldg:function>1</bldg:function> <!-- first -->", " <!-- first -->");
        add("entry", lines, on([](bldg::BuildingType& b) { b.function().push_back(gml::CodeType("<3>")); }),
            "\n>2</bldg:function>\n",
            "\n>2</bldg:function>\n\t\t\t<bldg:function>&lt;3&gt;</bldg:function>\n");
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
        QFETCH(Edit, edit);
        QFETCH(QByteArray, from);
        QFETCH(QByteArray, to);
        const QByteArray original = documentText(members);
        const Document document = read(original);
        edit(*document);
        const QByteArray actual = saved(original, *document);
        const QByteArray expected = QByteArray(original).replace(from, to);
        QVERIFY2(actual == expected, parting(actual, expected));
    }
};

TEST_CLASS(DocumentChangesTest, Core)
#include "documentchangestest.moc"
