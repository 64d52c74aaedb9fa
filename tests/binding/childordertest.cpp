#include "citygml/Findings.h"
#include "citygml/SchemaOrder.h"
#include "platform/binding/kept/KeptContent.h"
#include "platform/binding/Tables.h"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "support/XmlTree.h"

#include "bldg/BuildingType.hxx"
#include "bldg/WallSurfaceType.hxx"
#include "gml/CodeType.hxx"
#include "gml/FeaturePropertyType.hxx"
#include "gml/LengthType.hxx"
#include "gml/StringOrRefType.hxx"

#include <algorithm>
#include <functional>
#include <QtTest>

using citygml::binding::KeptContent;
using namespace testsupport;

namespace {

using Edit = std::function<void(bldg::BuildingType&)>;

QByteArray name(const QByteArray& text)
{
    return "<gml:name>" + text + "</gml:name>";
}

QByteArray function(const QByteArray& text)
{
    return "<bldg:function>" + text + "</bldg:function>";
}

QByteArray usage(const QByteArray& text)
{
    return "<bldg:usage>" + text + "</bldg:usage>";
}

QByteArray roof(const QByteArray& text)
{
    return "<bldg:roofType>" + text + "</bldg:roofType>";
}

QByteArray storeys(const QByteArray& text)
{
    return "<bldg:storeysAboveGround>" + text + "</bldg:storeysAboveGround>";
}

QByteArray ring(const QByteArray& points)
{
    return "<bldg:lod0FootPrint><gml:MultiSurface><gml:surfaceMember><gml:Polygon><gml:exterior>"
           "<gml:LinearRing>" +
           points +
           "</gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember></gml:MultiSurface>"
           "</bldg:lod0FootPrint>";
}

const QByteArray position = "<gml:pos>1 2 3</gml:pos>";
const QByteArray point = "<gml:pointProperty xlink:href='#p'/>";

bldg::BuildingType& buildingOf(core::CityModelType& document)
{
    return dynamic_cast<bldg::BuildingType&>(*document.featureMember().front()._Feature());
}

/// In what a document differs from one with a building of that content.
QStringList differencesFrom(const QByteArray& content, const core::CityModelType& document)
{
    return XmlNode::differences(XmlNode::parse(documentText(buildingMember(content))),
                                XmlNode::parse(write(document)));
}

/// Of all objects of a document, those of which the order of the children is kept.
std::size_t ordersIn(const xml_schema::type& object)
{
    const KeptContent* const kept = KeptContent::find(object);
    std::size_t count = kept != nullptr && !kept->childOrder().empty() ? 1 : 0;
    for (const auto* record = citygml::binding::recordOf(object); record != nullptr; record = record->base) {
        for (std::size_t i = 0; i < record->memberCount; ++i) {
            const citygml::binding::Member& member = record->members[i];
            for (std::size_t child = 0; member.type != nullptr && child < member.ops->count(object);
                 ++child) {
                count += ordersIn(member.ops->at(object, child));
            }
        }
    }
    return count;
}

} // namespace

Q_DECLARE_METATYPE(Edit)

/// Children that stand in another order than the schema's, and those that are one too many.
class ChildOrderTest : public QObject
{
    Q_OBJECT

private slots:
    void everyOrderComesBack_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("a late child") << roof("1") + name("a");
        QTest::newRow("late in a list") << function("1") + name("a") + function("2") + name("b");
        QTest::newRow("late plain value") << storeys("3") + name("a") + roof("1");
        QTest::newRow("late value that is nil")
            << roof("1") + "<bldg:storeysAboveGround xsi:nil='true'/>" + name("a");
        QTest::newRow("one too many") << roof("1") + roof("2");
        QTest::newRow("one too many behind others") << roof("1") + storeys("3") + roof("2");
        QTest::newRow("one too many behind a late one") << roof("1") + name("a") + roof("2") + storeys("3");
        QTest::newRow("unknown elements between") << "<x:a/>" + roof("1") + "<x:b/>" + name("a") + "<x:c/>" +
                                                         function("1") + "<x:d/>" + name("b") +
                                                         "<x:e/><x:f/>";
        QTest::newRow("comments between")
            << "<!--a-->" + roof("1") + "<!--b-->" + name("a") + "<!--c--><?d e?>" + name("b") + "<!--f-->";
        QTest::newRow("text between") << "one" + roof("1") + "two" + name("a") + "three" + name("b") + "four";
        QTest::newRow("alternating children")
            << ring("<!--a-->" + position + "<!--b-->" + point + "<x:c/>" + position + "<!--d-->");
        QTest::newRow("alternating and late children")
            << ring(position + "<x:a/>" + point + "<!--b-->" + name("a") + "<!--c-->" + position);
    }
    void everyOrderComesBack()
    {
        QFETCH(QByteArray, content);
        for (const auto& reading : {&read, &readStrictly}) {
            const Document document = reading(documentText(buildingMember(content)));
            QCOMPARE(differencesFrom(content, *document), QStringList());
            const QByteArray saved = write(*document);
            QCOMPARE(write(*reading(saved)), saved);
            // A copy has the order too, and so has what stands in another document.
            QCOMPARE(write(*Document(document->_clone())), saved);
            const Document other = read(documentText(QByteArray()));
            other->featureMember().push_back(document->featureMember().front());
            QCOMPARE(differencesFrom(content, *other), QStringList());
        }
    }

    void othersStayWhereTheyAreWhenOneIsEdited_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<Edit>("edit");
        QTest::addColumn<QByteArray>("after");

        const auto row = [](const char* what, const QByteArray& before, const QByteArray& after,
                            const Edit& edit) { QTest::newRow(what) << before << edit << after; };
        const QByteArray mixed = roof("1") + "<!--a-->" + function("2") + "<!--b-->" + name("c") +
                                 "<!--d-->" + function("3") + "<!--e-->" + storeys("4") + "<!--f-->";
        row("a value", mixed, QByteArray(mixed).replace(roof("1"), roof("9")),
            [](bldg::BuildingType& b) { b.roofType().set(gml::CodeType("9")); });
        row("one less", mixed, QByteArray(mixed).remove(0, roof("1").size()),
            [](bldg::BuildingType& b) { b.roofType().reset(); });
        row("the last of a list less", mixed, QByteArray(mixed).replace(function("3"), ""),
            [](bldg::BuildingType& b) { b.function().pop_back(); });
        row("none of a list", mixed, QByteArray(mixed).replace(function("3"), "").replace(function("2"), ""),
            [](bldg::BuildingType& b) { b.function().clear(); });
        row("one more of a list", mixed,
            QByteArray(mixed).replace("<!--e-->", "<!--e-->" + function("5") + function("6")),
            [](bldg::BuildingType& b) {
                b.function().push_back(gml::CodeType("5"));
                b.function().push_back(gml::CodeType("6"));
            });
        row("a new one between", mixed,
            QByteArray(mixed).replace("<!--e-->", "<!--e-->" + usage("5") + usage("6")),
            [](bldg::BuildingType& b) {
                b.usage().push_back(gml::CodeType("5"));
                b.usage().push_back(gml::CodeType("6"));
            });
        row("two kinds at one place", mixed,
            QByteArray(mixed).replace("<!--e-->",
                                      "<!--e-->" + usage("5") +
                                          "<bldg:yearOfConstruction>1900</bldg:yearOfConstruction>"),
            [](bldg::BuildingType& b) {
                b.yearOfConstruction().set(xml_schema::gyear(1900));
                b.usage().push_back(gml::CodeType("5"));
            });
        row("a new first one", name("a") + roof("1") + storeys("2") + usage("3"),
            "<gml:description>d</gml:description>" + name("a") + roof("1") + storeys("2") + usage("3"),
            [](bldg::BuildingType& b) { b.description().set(gml::StringOrRefType("d")); });
        row("a new last one", roof("1") + name("a"),
            roof("1") + name("a") + "<bldg:storeysBelowGround>2</bldg:storeysBelowGround>",
            [](bldg::BuildingType& b) { b.storeysBelowGround().set(2); });
        // What was one too many becomes none of the object's.
        row("the first of one too many less", name("a") + roof("1") + name("b") + roof("2"),
            name("a") + name("b") + roof("2"), [](bldg::BuildingType& b) { b.roofType().reset(); });
    }
    void othersStayWhereTheyAreWhenOneIsEdited()
    {
        QFETCH(QByteArray, before);
        QFETCH(Edit, edit);
        QFETCH(QByteArray, after);
        const Document document = read(documentText(buildingMember(before)));
        edit(buildingOf(*document));
        QCOMPARE(differencesFrom(after, *document), QStringList());
    }

    // It speaks of members that an object of another type does not have.
    void anOrderOfAnotherTypeIsNoHarm()
    {
        const Document document = read(documentText(buildingMember(storeys("1") + roof("2") + name("a"))));
        bldg::WallSurfaceType wall;
        static_cast<gml::AbstractFeatureType&>(wall) = buildingOf(*document);
        QCOMPARE(ordersIn(wall), std::size_t(1));
        const Document other = read(documentText(QByteArray()));
        other->featureMember().push_back(gml::FeaturePropertyType());
        other->featureMember().back()._Feature(wall);
        QVERIFY(write(*other).contains("<gml:name>a</gml:name>"));
        QCOMPARE(citygml::putInSchemaOrder(*other), std::size_t(1));
        QVERIFY(write(*other).contains("<gml:name>a</gml:name>"));
    }

    void nothingIsKeptOfTheOrderOfTheSchema()
    {
        const Document document =
            read(documentText(buildingMember("<x:a/>" + name("a") + name("b") + function("1") + "<!--b-->" +
                                             storeys("2") + ring(position + position + point) + "<x:b/>")));
        QCOMPARE(ordersIn(*document), std::size_t(0));
        for (const QString& path : documentsBelow(examples())) {
            const Document example = read(contentOf(path));
            const std::size_t orders = ordersIn(*example);
            // What may alternate is in no other order.
            QVERIFY2(citygml::putInSchemaOrder(*example) == 0, qPrintable(path));
            QCOMPARE(ordersIn(*example), orders);
        }
    }

    void lateAndSurplusElementsAreTold_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("reason");
        QTest::addColumn<QString>("path");
        const QString building = "/core:CityModel/core:cityObjectMember/bldg:Building";
        QTest::newRow("late") << roof("1") + '\n' + name("a")
                              << "the element 'gml:name' belongs in front of 'bldg:roofType'"
                              << building + "/gml:name";
        QTest::newRow("late plain value")
            << "<bldg:storeysBelowGround>1</bldg:storeysBelowGround>\n" + storeys("1")
            << "the element 'bldg:storeysAboveGround' belongs in front of 'bldg:storeysBelowGround'"
            << building + "/bldg:storeysAboveGround";
        QTest::newRow("one too many")
            << roof("1") + '\n' + roof("2") << "the element 'bldg:roofType' is one too many"
            << building + "/bldg:roofType";
    }
    void lateAndSurplusElementsAreTold()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, reason);
        QFETCH(QString, path);
        const QByteArray xml = documentText(buildingMember(content, "b"));
        const Document document = read(xml);
        const auto& groups = citygml::findingsOf(*document);
        QCOMPARE(groups.size(), std::size_t(1));
        const citygml::Finding& finding = groups.front().first.front();
        QCOMPARE(QString::fromStdString(finding.reason), reason);
        QCOMPARE(QString::fromStdString(finding.path), path);
        QCOMPARE(QString::fromStdString(finding.featureId), QString("b"));
        const int line = xml.left(xml.indexOf(content)).count('\n') + 2;
        QCOMPARE(finding.line, std::uint64_t(line));
        QCOMPARE(finding.column, std::uint64_t(1));
        // A reading that refuses what is wrong lets it pass.
        QVERIFY(citygml::findingsOf(*readStrictly(xml)).empty());
    }

    void whatMayAlternateIsNotLate()
    {
        const Document document =
            read(documentText(buildingMember(ring(position + point + position) + "<x:a/>")));
        QVERIFY(citygml::findingsOf(*document).empty());
    }

    void putsChildrenIntoTheOrderOfTheSchema_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::addColumn<int>("moved");
        QTest::newRow("nothing to move") << "<!--a-->" + name("a") + "<x:b/>" + function("1") + "<x:c/>"
                                         << "<!--a-->" + name("a") + "<x:b/>" + function("1") + "<x:c/>" << 0;
        QTest::newRow("with what stands behind them")
            << "<!--a-->" + roof("1") + "<!--b--><x:c/>" + function("2") + "<x:d/>" + name("3") + "<x:e/>" +
                   function("4") + "<x:f/>"
            << "<!--a-->" + name("3") + "<x:e/>" + function("2") + "<x:d/>" + function("4") + "<x:f/>" +
                   roof("1") + "<!--b--><x:c/>"
            << 1;
        QTest::newRow("one too many") << roof("1") + name("a") + roof("2") + storeys("3")
                                      << name("a") + roof("1") + roof("2") + storeys("3") << 1;
        QTest::newRow("nothing but one too many")
            << roof("1") + storeys("3") + "<x:a/>" + roof("2") + "<x:b/>"
            << roof("1") + roof("2") + storeys("3") + "<x:a/><x:b/>" << 1;
        const QByteArray description = "<gml:description>d</gml:description>";
        const QByteArray other = "<g:description xmlns:g='http://www.opengis.net/gml'>e</g:description>";
        QTest::newRow("one too many with a declaration of its own")
            << description + name("a") + storeys("3") + other
            << description + other + name("a") + storeys("3") << 1;
        QTest::newRow("what alternates stays") << ring(position + "<x:a/>" + point + position)
                                               << ring(position + "<x:a/>" + point + position) << 0;
        QTest::newRow("what alternates, behind what is late")
            << ring(position + "<x:a/>" + point + name("a") + "<x:b/>" + position)
            << ring(name("a") + "<x:b/>" + position + "<x:a/>" + point + position) << 1;
        QTest::newRow("in two objects")
            << ring(position + name("a")) + name("b") << name("b") + ring(name("a") + position) << 2;
    }
    void putsChildrenIntoTheOrderOfTheSchema()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        QFETCH(int, moved);
        const Document document = read(documentText(buildingMember(before)));
        QCOMPARE(citygml::putInSchemaOrder(*document), static_cast<std::size_t>(moved));
        QCOMPARE(differencesFrom(after, *document), QStringList());
        QCOMPARE(citygml::putInSchemaOrder(*document), std::size_t(0));
        // The file says it as the objects do.
        const QByteArray saved = write(*document);
        QCOMPARE(write(*read(saved)), saved);
    }
};

TEST_CLASS(ChildOrderTest, Core)
#include "childordertest.moc"
