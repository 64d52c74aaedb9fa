#include "bldg/BuildingType.hxx"
#include "core/RelativeToTerrainType.hxx"
#include "gml/AbstractFeatureType.hxx"
#include "gml/FeaturePropertyType.hxx"
#include "support/Documents.h"
#include "support/TestClass.h"
#include "support/XmlTree.h"

#include <QtTest>

using namespace testsupport;

namespace {

QByteArray building(const QByteArray& content)
{
    return "<core:CityModel xmlns:core='http://www.opengis.net/citygml/2.0'"
           " xmlns:gml='http://www.opengis.net/gml' xmlns:bldg='http://www.opengis.net/citygml/building/2.0'"
           " xmlns:energy='http://www.sig3d.org/citygml/2.0/energy/1.0'>"
           "<core:cityObjectMember><bldg:Building>" +
           content + "</bldg:Building></core:cityObjectMember></core:CityModel>";
}

QByteArray curve(const QByteArray& interpolation)
{
    return building("<bldg:lod2MultiCurve><gml:MultiCurve><gml:curveMember><gml:Curve><gml:segments>"
                    "<gml:LineStringSegment interpolation='" +
                    interpolation +
                    "'><gml:posList>0 0 1 1</gml:posList></gml:LineStringSegment></gml:segments></gml:Curve>"
                    "</gml:curveMember></gml:MultiCurve></bldg:lod2MultiCurve>");
}

core::RelativeToTerrainType& terrainOf(core::CityModelType& document)
{
    auto& object = dynamic_cast<bldg::BuildingType&>(*document.featureMember().front()._Feature());
    return *object.relativeToTerrain();
}

const QByteArray capital = building("<core:relativeToTerrain>EntirelyAboveTerrain</core:relativeToTerrain>");

} // namespace

/// Literals that a document spells with the other case of their first letter.
class LiteralSpellingTest : public QObject
{
    Q_OBJECT

private slots:
    void theSpellingComesBack_data()
    {
        QTest::addColumn<QByteArray>("original");
        QTest::newRow("element") << capital;
        QTest::newRow("extension")
            << building("<energy:constructionWeight>@</energy:constructionWeight>").replace('@', "medium");
        QTest::newRow("attribute") << curve("Linear");
    }
    void theSpellingComesBack()
    {
        QFETCH(QByteArray, original);
        for (const auto& reading : {&readStrictly, &read}) {
            const Document document = reading(original);
            const QByteArray saved = write(*document);
            QCOMPARE(XmlNode::differences(XmlNode::parse(original), XmlNode::parse(saved)), QStringList());
            const Document copy(document->_clone());
            QCOMPARE(write(*copy), saved);
        }
    }

    void theValueIsTheLiteral()
    {
        const Document document = readStrictly(capital);
        QCOMPARE(QString::fromStdString(terrainOf(*document)), QString("entirelyAboveTerrain"));
    }

    void anEditReplacesTheSpelling()
    {
        const Document document = read(capital);
        terrainOf(*document) = core::RelativeToTerrainType("entirelyBelowTerrain");
        QVERIFY(write(*document).contains(">entirelyBelowTerrain<"));
    }

    void otherLettersMakeNoLiteral()
    {
        QVERIFY_EXCEPTION_THROWN(readStrictly(QByteArray(capital).replace("Above", "above")),
                                 xsd::cxx::tree::parsing<char>);
        QVERIFY_EXCEPTION_THROWN(readStrictly(QByteArray(capital).replace("EntirelyA", "entirelya")),
                                 xsd::cxx::tree::parsing<char>);
    }
};

TEST_CLASS(LiteralSpellingTest, None)
#include "literalspellingtest.moc"
