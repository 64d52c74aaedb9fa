#include "component/OpeningComponentTypeType.hxx"
#include "energy/ThermalBoundaryType.hxx"
#include "frn/CityFurnitureType.hxx"
#include "gen/StringAttributeType.hxx"
#include "pivotEnergy/poly_density.hxx"
#include "support/PropertyDump.h"
#include "support/PropertyText.h"
#include "support/TestClass.h"

#include <QtTest>
#include <vector>

using namespace testsupport;

using tolvik::CoreProperty;
using tolvik::GmlCorePropertyCreator;

/// What the catalogues of the other extensions do besides their tables: groups that several objects share,
/// groups that stay or end, bases that are left out, and rows of which another one knows.
class ExtensionCatalogueTest : public QObject
{
    Q_OBJECT

private slots:
    // Utility networks

    void aSupplyOfNothingShowsItsType()
    {
        for (const bool existingOnly : {true, false}) {
            QVERIFY(treeText("<utility:LiquidMediumSupply><utility:type>water</utility:type>"
                             "</utility:LiquidMediumSupply>",
                             existingOnly)
                        .startsWith("Properties\n"
                                    "  UtilityNetwork\n"
                                    "    LiquidMediumSupply\n"
                                    "      type: water\n"
                                    "Fields\n"
                                    "  ClassType: LiquidMediumSupply\n"));
        }
    }

    /// The group is the current one for the rows of the base, and none is behind the supply.
    void aSupplyEndsItsGroup()
    {
        for (const QByteArray medium : {"Electrical", "Gaseous", "Liquid", "Optical", "Solid"}) {
            const QByteArray name = "utility:" + medium + "MediumSupply>";
            const QString text =
                textWithAttributeBehind({'<' + name + "<utility:type>unknown</utility:type></" + name});
            const QString expected("Properties\n"
                                   "  UtilityNetwork\n"
                                   "    %1MediumSupply\n"
                                   "      type: unknown\n"
                                   "Fields\n"
                                   "  ClassType: %1MediumSupply\n"
                                   "  behind: x\n");
            QCOMPARE(text, expected.arg(QString(medium)));
        }
        QCOMPARE(treeText("<utility:LiquidMediumSupply><utility:potentialSupply><utility:Supply>"
                          "<utility:flowRate uom='l'>2</utility:flowRate></utility:Supply>"
                          "</utility:potentialSupply>"
                          "<utility:storages><utility:Storage><utility:fillLevel>0.5</utility:fillLevel>"
                          "</utility:Storage></utility:storages>"
                          "<utility:storages><utility:Storage><utility:fillLevel>0.75</utility:fillLevel>"
                          "</utility:Storage></utility:storages>"
                          "<utility:type>water</utility:type></utility:LiquidMediumSupply>"),
                 QString("Properties\n"
                         "  UtilityNetwork\n"
                         "    LiquidMediumSupply\n"
                         "      type: water\n"
                         "      potentialSupply\n"
                         "        flowRate: 2 l\n"
                         "      storages\n"
                         "        fillLevel: 0.5\n"
                         "        fillLevel: 0.75\n"
                         "Fields\n"
                         "  ClassType: LiquidMediumSupply\n"));
    }

    /// A group that a caller has set up does not come back behind a supply.
    void aSupplyEndsTheGroupAroundIt()
    {
        QCOMPARE(textWithAttributeBehind(
                     {"<energy:ThermalBoundary><energy:thermalBoundaryType>Roof</energy:thermalBoundaryType>"
                      "<energy:relatesTo/></energy:ThermalBoundary>",
                      "<utility:SolidMediumSupply><utility:type>wood</utility:type>"
                      "</utility:SolidMediumSupply>"}),
                 QString("Properties\n"
                         "  Energy\n"
                         "    thermalBoundaryType: Roof\n"
                         "    relatesTo\n"
                         "      relateTo\n"
                         "  UtilityNetwork\n"
                         "    SolidMediumSupply\n"
                         "      type: wood\n"
                         "Fields\n"
                         "  ClassType: ThermalBoundary\n"
                         "  ClassType: SolidMediumSupply\n"
                         "  behind: x\n"));
    }

    void aPipeShowsItsRowsAndThoseOfItsBases()
    {
        QCOMPARE(treeText("<utility:RoundPipe><utility:function>f</utility:function>"
                          "<utility:class>c</utility:class><utility:isGravity>true</utility:isGravity>"
                          "<utility:exteriorDiameter uom='cm'>12</utility:exteriorDiameter>"
                          "<utility:interiorDiameter uom='cm'>10</utility:interiorDiameter>"
                          "</utility:RoundPipe>"),
                 QString("Properties\n"
                         "  UtilityNetwork\n"
                         "    interiorDiameter: 10 cm\n"
                         "    isGravity: true\n"
                         "    exteriorDiameter: 12 cm\n"
                         "    class: c\n"
                         "    function: f\n"
                         "Fields\n"
                         "  ClassType: RoundPipe\n"));
    }

    void fractionsHaveNoUnit()
    {
        FeatureDocument medium("<utility:LiquidMedium><utility:type>oil</utility:type>"
                               "<utility:flammable>0.25</utility:flammable></utility:LiquidMedium>");
        FeatureDocument supply(
            "<utility:LiquidMediumSupply><utility:storages><utility:Storage>"
            "<utility:fillLevel>0.5</utility:fillLevel></utility:Storage></utility:storages>"
            "<utility:type>water</utility:type></utility:LiquidMediumSupply>");
        for (const bool existingOnly : {true, false}) {
            const auto mediumRoot = propertiesOf(medium, existingOnly);
            CoreProperty* const flammable =
                findProperty(mediumRoot, {"Properties", "UtilityNetwork", "flammable"});
            QCOMPARE(flammable->value(), QVariant(0.25));
            QVERIFY(flammable->unit() == nullptr);
            const auto supplyRoot = propertiesOf(supply, existingOnly);
            CoreProperty* const fillLevel = findProperty(
                supplyRoot, {"Properties", "UtilityNetwork", "LiquidMediumSupply", "storages", "fillLevel"});
            QCOMPARE(fillLevel->value(), QVariant(0.5));
            QVERIFY(fillLevel->unit() == nullptr);
        }
    }

    void oneMemberUnderTwoLabels_data()
    {
        QTest::addColumn<QByteArray>("element");
        QTest::addColumn<QString>("extension");
        QTest::newRow("device") << QByteArray("utility:AnyDevice") << "UtilityNetwork";
        QTest::newRow("commodity") << QByteArray("utility:ChemicalClassifier") << "UtilityNetwork";
        QTest::newRow("right") << QByteArray("ladmfr:LA_Right") << "Foncier";
    }

    /// The description of a feature shows once more among the rows of the extension.
    void oneMemberUnderTwoLabels()
    {
        QFETCH(QByteArray, element);
        QFETCH(QString, extension);
        FeatureDocument document('<' + element + "><gml:description>d</gml:description></" + element + '>');
        const auto root = propertiesOf(document);
        CoreProperty* const own = findProperty(root, {"Properties", extension, "description"});
        CoreProperty* const common = findProperty(root, {"Fields", "Description"});
        QVERIFY(own != nullptr && common != nullptr);
        QCOMPARE(own->value(), QVariant("d"));
        QCOMPARE(common->value(), QVariant("d"));
        own->setValue("e");
        QCOMPARE(common->value(), QVariant("e"));
        common->setValue("f");
        QCOMPARE(own->value(), QVariant("f"));
        QVERIFY(document.text().contains("<gml:description>f</gml:description>"));
    }

    // Land administration

    void anActShowsItsRowsAndThoseOfItsBases()
    {
        QCOMPARE(treeText("<ladmfr:FR_Acte><ladmfr:availabilityStatus>copy</ladmfr:availabilityStatus>"
                          "<ladmfr:quality>good</ladmfr:quality><ladmfr:quality>checked</ladmfr:quality>"
                          "<ladmfr:text>t</ladmfr:text><ladmfr:type>sale</ladmfr:type>"
                          "<ladmfr:titre>a title</ladmfr:titre><ladmfr:refAdmi>r</ladmfr:refAdmi>"
                          "</ladmfr:FR_Acte>"),
                 QString("Properties\n"
                         "  Foncier\n"
                         "    titre: a title\n"
                         "    refAdmi: [r]\n"
                         "    text: t\n"
                         "    type: sale\n"
                         "    availabilityStatus: copy\n"
                         "    quality: [good, checked]\n"
                         "Fields\n"
                         "  ClassType: FR_Acte\n"));
    }

    void areasOfASpatialUnit()
    {
        const QByteArray tail = "<ladmfr:suID>s</ladmfr:suID><ladmfr:suNameSpace>n</ladmfr:suNameSpace>"
                                "<ladmfr:pID>p</ladmfr:pID><ladmfr:pNameSpace>q</ladmfr:pNameSpace>"
                                "<ladmfr:pointType>t</ladmfr:pointType></ladmfr:LA_SpatialUnit>";
        for (const bool existingOnly : {true, false}) {
            const QString none = treeText("<ladmfr:LA_SpatialUnit>" + tail, existingOnly);
            QVERIFY2(!none.contains("area") && !none.contains("volume"), qPrintable(none));
            QVERIFY(none.contains("    suNameSpace: n\n    pID: p\n    pNameSpace: q\n    pointType: t\n"));
            const QString two = treeText("<ladmfr:LA_SpatialUnit>"
                                         "<ladmfr:area uom='m2'>5</ladmfr:area>"
                                         "<ladmfr:area uom='ha'>6</ladmfr:area>" +
                                             tail,
                                         existingOnly);
            QVERIFY2(two.contains("    area: [5, 6] m2\n"), qPrintable(two));
            QCOMPARE(two.count("area"), 1);
        }
    }

    void requiredNumbersAlwaysHaveARow()
    {
        const QByteArray parcel =
            "<ladmfr:FR_Cadastre><ladmfr:departement>75</ladmfr:departement>"
            "<ladmfr:codeDirection>0</ladmfr:codeDirection>"
            "<ladmfr:codeCommuneINSEE>75056</ladmfr:codeCommuneINSEE><ladmfr:section>AB</ladmfr:section>"
            "<ladmfr:numero>12</ladmfr:numero></ladmfr:FR_Cadastre>";
        FeatureDocument document(parcel);
        for (const bool existingOnly : {true, false}) {
            const auto root = propertiesOf(document, existingOnly);
            QCOMPARE(findProperty(root, {"Properties", "Foncier", "departement"})->value(), QVariant(75LL));
            QCOMPARE(findProperty(root, {"Properties", "Foncier", "numero"})->value(), QVariant(12LL));
        }
        QCOMPARE(treeText(parcel).count('\n'), 9);
    }

    // Urban furniture

    void aRowStandsTwice()
    {
        const QString absent = treeText("<epadesa:GreenArea/>", false);
        QVERIFY2(absent.startsWith("Properties\n"
                                   "  Epadesa\n"
                                   "    pitOfTreeLength\n"
                                   "    pitOfTreeDepth\n"
                                   "    pitOfTreeLength\n"
                                   "Fields\n"),
                 qPrintable(absent));
        // The member between the two has no row.
        QCOMPARE(treeText("<epadesa:GreenArea><epadesa:pitOfTreeLength uom='m'>2</epadesa:pitOfTreeLength>"
                          "<epadesa:pitOfTreeWidth uom='m'>1</epadesa:pitOfTreeWidth></epadesa:GreenArea>"),
                 QString("Properties\n"
                         "  Epadesa\n"
                         "    pitOfTreeLength: 2 m\n"
                         "    pitOfTreeLength: 2 m\n"
                         "Fields\n"
                         "  ClassType: GreenArea\n"));
    }

    void twinsShowOneAttribute()
    {
        FeatureDocument document("<epadesa:GreenArea/>");
        const auto root = propertiesOf(document, false);
        const auto rows = findProperty(root, {"Properties", "Epadesa"})->properties();
        QCOMPARE(rows.size(), 3);
        QVERIFY(!rows.at(2)->value().isValid());
        rows.at(0)->setValue(1.5);
        QCOMPARE(rows.at(2)->value(), QVariant(1.5));
        rows.at(2)->setValue(2.5);
        QCOMPARE(rows.at(0)->value(), QVariant(2.5));
        QVERIFY(!rows.at(1)->value().isValid());
    }

    void heights()
    {
        FeatureDocument bollard(
            "<epadesa:Bollard><epadesa:height uom='cm'>90</epadesa:height></epadesa:Bollard>");
        for (const bool existingOnly : {true, false}) {
            const auto root = propertiesOf(bollard, existingOnly);
            QCOMPARE(unitOf(findProperty(root, {"Properties", "Epadesa", "height"})), QString("cm"));
        }
        QCOMPARE(treeText("<epadesa:Fence/>"), QString("Fields\n  ClassType: Fence\n"));
        FeatureDocument fence("<epadesa:Fence/>");
        const auto root = propertiesOf(fence, false);
        CoreProperty* const height = findProperty(root, {"Properties", "Epadesa", "height"});
        if (height == nullptr) {
            QFAIL("no row of a height that is absent");
        }
        QVERIFY(height->unit() == nullptr);
    }

    void phasesOfTrafficLights()
    {
        for (const bool existingOnly : {true, false}) {
            QVERIFY(!treeText("<epadesa:Square/>", existingOnly).contains("duringOfTrafficlightPhase"));
        }
        QCOMPARE(treeText("<epadesa:Square><epadesa:duringOfTrafficlightPhase unit='second'>40"
                          "</epadesa:duringOfTrafficlightPhase></epadesa:Square>"),
                 QString("Properties\n"
                         "  Epadesa\n"
                         "    duringOfTrafficlightPhase\n"
                         "      timeIntervalLength: 40\n"
                         "      unit: second\n"
                         "Fields\n"
                         "  ClassType: Square\n"));
    }

    // Building components

    void anOpeningComponentHasTwoGroups()
    {
        QCOMPARE(treeText("<component:OpeningComponentType>"
                          "<component:typeOfComponent>window</component:typeOfComponent>"
                          "<component:width uom='m'>1.25</component:width>"
                          "<component:openingPosition>InTheMiddleOfTheWall</component:openingPosition>"
                          "<component:openingManagement>ManualManagement</component:openingManagement>"
                          "<component:depth uom='m'>0.5</component:depth>"
                          "<pivotEnergy:transmittance><energy:Transmittance>"
                          "<energy:fraction uom='1'>0.5</energy:fraction>"
                          "<energy:wavelengthRange>Solar</energy:wavelengthRange>"
                          "</energy:Transmittance></pivotEnergy:transmittance>"
                          "<pivotEnergy:shading xlink:href='#s'/><pivotEnergy:transmittance xlink:href='#t'/>"
                          "<pivotEnergy:uValue uom='W/(m2.K)'>1.5</pivotEnergy:uValue>"
                          "</component:OpeningComponentType>"),
                 QString("Properties\n"
                         "  Component\n"
                         "    width: 1.25 m\n"
                         "    depth: 0.5 m\n"
                         "    openingManagement: ManualManagement\n"
                         "    openingPosition: InTheMiddleOfTheWall\n"
                         "    typeOfComponent: window\n"
                         "  pivotEnergy\n"
                         "    transmittance\n"
                         "      fraction: 0.5 1\n"
                         "      wavelengthRange: Solar\n"
                         "    shading\n"
                         "    uValue: 1.5 W/(m2.K)\n"
                         "Fields\n"
                         "  ClassType: OpeningComponentType\n"));
    }

    void aThicknessHasItsUnit()
    {
        for (const bool existingOnly : {true, false}) {
            QVERIFY(treeText("<component:LayeredComponentType>"
                             "<component:thickness uom='cm'>12</component:thickness>"
                             "<pivotEnergy:density uom='kg/m3'>7</pivotEnergy:density>"
                             "</component:LayeredComponentType>",
                             existingOnly)
                        .startsWith("Properties\n"
                                    "  Component\n"
                                    "    thickness: 12 cm\n"));
        }
    }

    /// What no row names leaves no trace: neither a row nor a group.
    void anUnknownAttributeLeavesNoTrace()
    {
        component::OpeningComponentTypeType opening;
        const pivotEnergy::poly_density density(7, xml_schema::uri("kg/m3"));
        opening._GenericApplicationPropertyOfOpeningComponentType().push_back(density);
        for (const bool existingOnly : {true, false}) {
            const Fondo::RefPtr<CoreProperty> root =
                GmlCorePropertyCreator::createProperty(&opening, existingOnly);
            QVERIFY2(!treeText(*root).contains("pivotEnergy"), qPrintable(treeText(*root)));
        }
        QCOMPARE(
            treeText(*Fondo::RefPtr<CoreProperty>(GmlCorePropertyCreator::createProperty(&opening, true))),
            QString("Fields\n  ClassType: OpeningComponentType\n"));
    }
};

TEST_CLASS(ExtensionCatalogueTest, Core)
#include "extensioncataloguetest.moc"
