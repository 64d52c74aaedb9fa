#include "component/OpeningComponentTypeType.hxx"
#include "energy/ThermalBoundaryType.hxx"
#include "frn/CityFurnitureType.hxx"
#include "gen/StringAttributeType.hxx"
#include "pivotEnergy/poly_density.hxx"
#include "support/PropertyDump.h"
#include "support/PropertyText.h"

#include <QtTest>
#include <vector>

using namespace propertytext;
using tolvik::CoreProperty;
using tolvik::GmlCorePropertyCreator;

namespace {

/// Text of features that are entered one after the other by a creator of a caller, and of what the caller
/// enters then: a generic attribute, which goes to the group that is the current one.
QString textWithAttributeBehind(const QByteArrayList& features)
{
    gen::StringAttributeType attribute;
    attribute.name("behind");
    attribute.value("x");
    GmlCorePropertyCreator creator;
    const Fondo::RefPtr<CoreProperty> root = creator.getProperty();
    std::vector<Document> documents;
    for (const QByteArray& feature : features) {
        documents.emplace_back(feature);
        documents.back().feature().accept(&creator);
    }
    attribute.accept(&creator);
    return treeText(*root);
}

// Two private functions are called by nothing. An explicit instantiation may name them.
void showAttributes(GmlCorePropertyCreator& creator, energy::ThermalBoundaryType& boundary);
void showAttributes(GmlCorePropertyCreator& creator, frn::CityFurnitureType& furniture);

template <class T, void (GmlCorePropertyCreator::*function)(T*)>
struct UncalledFunction
{
    friend void showAttributes(GmlCorePropertyCreator& creator, T& object) { (creator.*function)(&object); }
};

template struct UncalledFunction<energy::ThermalBoundaryType,
                                 &GmlCorePropertyCreator::visit_thermalBoundary_genericProperties>;
template struct UncalledFunction<frn::CityFurnitureType,
                                 &GmlCorePropertyCreator::visit_cityFurniture_genericProperties>;

/// What such a function shows of a feature.
template <class T>
QString attributesText(const QByteArray& feature)
{
    Document document(feature);
    GmlCorePropertyCreator creator;
    const Fondo::RefPtr<CoreProperty> root = creator.getProperty();
    showAttributes(creator, dynamic_cast<T&>(document.feature()));
    return propertydump::dump(*root);
}

const QByteArray genericAttribute =
    "<gen:stringAttribute name='note'><gen:value>x</gen:value></gen:stringAttribute>";

QString unitOf(CoreProperty* property)
{
    return property->unit() == nullptr ? QString() : property->unit()->name();
}

} // namespace

/// What the catalogues of the extensions do besides their tables: groups that several objects share, groups
/// that stay or end, bases that are left out, and rows of which another one knows.
class ExtensionCatalogueTest : public QObject
{
    Q_OBJECT

private slots:
    // Energy

    void objectsOfABuildingShareAGroup()
    {
        const QByteArray certification =
            "<energy:energyPerformanceCertification><energy:EnergyPerformanceCertification>"
            "<energy:certificationRating>B</energy:certificationRating>"
            "<energy:certificationName>n</energy:certificationName>"
            "</energy:EnergyPerformanceCertification></energy:energyPerformanceCertification>";
        const QByteArray area =
            "<energy:floorArea><energy:FloorArea><energy:type>net</energy:type>"
            "<energy:value uom='m2'>12</energy:value></energy:FloorArea></energy:floorArea>";
        const QByteArray height = "<energy:heightAboveGround><energy:HeightAboveGround>"
                                  "<energy:heightReference>highestEave</energy:heightReference>"
                                  "<energy:value uom='m'>9</energy:value>"
                                  "</energy:HeightAboveGround></energy:heightAboveGround>";
        const QByteArray measure = "<energy:refurbishmentMeasure><energy:RefurbishmentMeasure>"
                                   "<energy:dateOfRefurbishment xlink:href='#d'/>"
                                   "<energy:levelOfRefurbishment>full</energy:levelOfRefurbishment>"
                                   "</energy:RefurbishmentMeasure></energy:refurbishmentMeasure>";
        const QByteArray volume =
            "<energy:volume><energy:VolumeType><energy:type>NetVolume</energy:type>"
            "<energy:value uom='m3'>30</energy:value></energy:VolumeType></energy:volume>";
        const QByteArray weather = "<energy:weatherData><energy:WeatherData>"
                                   "<energy:weatherDataType>Humidity</energy:weatherDataType>"
                                   "<energy:values xlink:href='#v'/>"
                                   "</energy:WeatherData></energy:weatherData>";
        const QByteArray once = certification + area + height + measure + volume;
        QCOMPARE(treeText("<bldg:Building>" + weather + weather + once + once + "</bldg:Building>"),
                 QString("Properties\n"
                         "  Energy\n"
                         "    energyPerformanceCertifications\n"
                         "      energyPerformanceCertification\n"
                         "        certificationRating: B\n"
                         "        certificationName: n\n"
                         "      energyPerformanceCertification\n"
                         "        certificationRating: B\n"
                         "        certificationName: n\n"
                         "    floorAreas\n"
                         "      floorArea\n"
                         "        type: net\n"
                         "        value: 12 m2\n"
                         "      floorArea\n"
                         "        type: net\n"
                         "        value: 12 m2\n"
                         "    heightsAboveGround\n"
                         "      heightAboveGround\n"
                         "        heightReference: highestEave\n"
                         "        value: 9 m\n"
                         "      heightAboveGround\n"
                         "        heightReference: highestEave\n"
                         "        value: 9 m\n"
                         "    refurbishmentMeasures\n"
                         "      refurbishmentMeasure\n"
                         "        levelOfRefurbishment: full\n"
                         "      refurbishmentMeasure\n"
                         "        levelOfRefurbishment: full\n"
                         "    volumes\n"
                         "      volume\n"
                         "        type: NetVolume\n"
                         "        value: 30 m3\n"
                         "      volume\n"
                         "        type: NetVolume\n"
                         "        value: 30 m3\n"
                         "    weatherDatas\n"
                         "      weatherData\n"
                         "        weatherDataType: Humidity\n"
                         "      weatherData\n"
                         "        weatherDataType: Humidity\n"
                         "Fields\n"
                         "  ClassType: Building\n"));
    }

    void unitsOfAbsentAndRequiredMeasures()
    {
        Document construction("<energy:Construction/>");
        const auto absent = propertiesOf(construction, false);
        CoreProperty* const uValue = findProperty(absent, {"Properties", "Energy", "uValue"});
        QVERIFY(uValue != nullptr);
        QVERIFY(uValue->unit() == nullptr);
        QVERIFY(treeText("<energy:Construction/>").indexOf("uValue") < 0);

        const QByteArray zone =
            "<energy:UsageZone><energy:heatingSchedule><energy:ConstantValueSchedule>"
            "<energy:averageValue uom='°C'>19</energy:averageValue></energy:ConstantValueSchedule>"
            "</energy:heatingSchedule><energy:usageZoneType>u</energy:usageZoneType></energy:UsageZone>";
        Document usage(zone);
        for (const bool existingOnly : {true, false}) {
            const auto root = propertiesOf(usage, existingOnly);
            CoreProperty* const average =
                findProperty(root, {"Properties", "Energy", "heatingSchedule", "averageValue"});
            QVERIFY(average != nullptr);
            QCOMPARE(unitOf(average), QString("°C"));
        }
    }

    void aBoundaryWithoutRelationsLeavesTheCurrentGroup()
    {
        const QString text = treeText("<energy:ThermalBoundary>" + genericAttribute +
                                      "<energy:thermalBoundaryType>Roof</energy:thermalBoundaryType>"
                                      "</energy:ThermalBoundary>");
        QCOMPARE(text, QString("Properties\n"
                               "  Energy\n"
                               "    thermalBoundaryType: Roof\n"
                               "Fields\n"
                               "  note: x\n"
                               "  ClassType: ThermalBoundary\n"));
        QVERIFY(!treeText("<energy:ThermalBoundary><energy:thermalBoundaryType>Roof"
                          "</energy:thermalBoundaryType></energy:ThermalBoundary>",
                          false)
                     .contains("relat"));
    }

    /// What is entered behind the relations stands among them.
    void aBoundaryKeepsItsRelationsTheCurrentGroup()
    {
        QCOMPARE(treeText("<energy:ThermalBoundary>" + genericAttribute +
                          "<energy:thermalBoundaryType>Roof</energy:thermalBoundaryType>"
                          "<energy:relatesTo xlink:href='#a'/><energy:relatesTo/>"
                          "</energy:ThermalBoundary>"),
                 QString("Properties\n"
                         "  Energy\n"
                         "    thermalBoundaryType: Roof\n"
                         "    relatesTo\n"
                         "      relateTo: #a\n"
                         "      relateTo\n"
                         "      note: x\n"
                         "Fields\n"
                         "  ClassType: ThermalBoundary\n"));

        const QByteArray head = "<energy:ThermalBoundary><energy:thermalBoundaryType>Roof"
                                "</energy:thermalBoundaryType>";
        const QString without = textWithAttributeBehind({head + "</energy:ThermalBoundary>"});
        QVERIFY2(without.contains("\nFields\n  ClassType: ThermalBoundary\n  behind: x\n"),
                 qPrintable(without));
        const QString with = textWithAttributeBehind({head + "<energy:relatesTo/></energy:ThermalBoundary>"});
        QVERIFY2(with.contains("    relatesTo\n      relateTo\n      behind: x\n"), qPrintable(with));
    }

    /// An opening has its one relation without a group.
    void anOpeningHasOneRelation()
    {
        QCOMPARE(treeText("<energy:ThermalOpening>" + genericAttribute +
                          "<energy:area uom='m2'>2</energy:area><energy:relatesTo xlink:href='#a'/>"
                          "</energy:ThermalOpening>"),
                 QString("Properties\n"
                         "  Energy\n"
                         "    area: 2 m2\n"
                         "    relatesTo: #a\n"
                         "Fields\n"
                         "  note: x\n"
                         "  ClassType: ThermalOpening\n"));
    }

    void anElementWithoutItsObjectHasNoGroup()
    {
        for (const bool existingOnly : {true, false}) {
            QVERIFY(
                !treeText("<energy:Construction><energy:serviceLife xlink:href='#s'/></energy:Construction>",
                          existingOnly)
                     .contains("serviceLife"));
        }
        QVERIFY(treeText("<energy:Construction><energy:serviceLife><energy:ServiceLife/></energy:serviceLife>"
                         "</energy:Construction>")
                    .contains("    serviceLife\n"));
    }

    /// The height of a zone has the label of its number of dwellings.
    void aLabelNamesAnotherClass()
    {
        QCOMPARE(treeText("<energy:ThermalZone><energy:isCooled>false</energy:isCooled>"
                          "<energy:isHeated>true</energy:isHeated>"
                          "<pivotEnergy:nbDwellings>4</pivotEnergy:nbDwellings>"
                          "<pivotEnergy:ceilingHeight uom='m'>2.5</pivotEnergy:ceilingHeight>"
                          "</energy:ThermalZone>"),
                 QString("Properties\n"
                         "  Energy\n"
                         "    isCooled: false\n"
                         "    isHeated: true\n"
                         "  pivotEnergy\n"
                         "    nbDwellings: 4\n"
                         "    nbDwellings: 2.5 m\n"
                         "Fields\n"
                         "  ClassType: ThermalZone\n"));
    }

    void aSolarSystemLeavesItsBaseOut()
    {
        const QByteArray content = "<core:creationDate>2020-01-02</core:creationDate>"
                                   "<energy:model>m</energy:model><energy:number>2</energy:number>";
        const QString expected("Properties\n"
                               "  Energy\n"
                               "    cellType: Amorphous\n"
                               "    installedOnBoundarySurface: #w\n"
                               "Fields\n"
                               "  CreationDate: 2020-01-02\n"
                               "  ClassType: PhotovoltaicSystem\n");
        const QByteArray system = "<energy:PhotovoltaicSystem>" + content +
                                  "<energy:installedOnBoundarySurface xlink:href='#w'/>"
                                  "<energy:cellType>Amorphous</energy:cellType></energy:PhotovoltaicSystem>";
        QCOMPARE(treeText(system), expected);
        QVERIFY(!treeText(system, false).contains("efficiencyIndicator"));
        // Any other system shows them.
        QVERIFY(treeText("<energy:Boiler>" + content +
                         "<energy:condensation>true</energy:condensation>"
                         "</energy:Boiler>")
                    .contains("    condensation: true\n    model: m\n    number: 2\n"));
    }

    void aBoundaryDoesNotShowItsExtension()
    {
        const QByteArray boundary =
            "<energy:ThermalBoundary><energy:thermalBoundaryType>Roof</energy:thermalBoundaryType>"
            "<pivotEnergy:boundaryContext>OnStreet</pivotEnergy:boundaryContext>"
            "<pivotEnergy:insulationTypeEnumeration>NoThermalInsulation</"
            "pivotEnergy:insulationTypeEnumeration>"
            "<pivotEnergy:refurbishementOpportunity>true</pivotEnergy:refurbishementOpportunity>"
            "</energy:ThermalBoundary>";
        QCOMPARE(treeText(boundary), QString("Properties\n"
                                             "  Energy\n"
                                             "    thermalBoundaryType: Roof\n"
                                             "Fields\n"
                                             "  ClassType: ThermalBoundary\n"));
        QVERIFY(!treeText(boundary, false).contains("pivotEnergy"));

        const auto expected = [](const QString& label, const QString& type, const QString& value) {
            return "      " + label + " = QString " + value +
                   " by GmlEnumGenericApplicationAttributeProperty<" + type + ", " + type + "> of " +
                   propertydump::dumpValue(expectedproperties::ValueType::literals().value(type)) + '\n';
        };
        QCOMPARE(attributesText<energy::ThermalBoundaryType>(boundary),
                 " = -\n"
                 "  Properties = -\n"
                 "    pivotEnergy = -\n" +
                     expected("boundaryContext", "pivotEnergy::BoundaryContextType", "OnStreet") +
                     expected("insulationTypeEnumeration", "pivotEnergy::InsulationTypeEnumerationType",
                              "NoThermalInsulation") +
                     "      refurbishementOpportunity = bool true by GmlGenericApplicationAttributeProperty<"
                     "pivotEnergy::poly_refurbishementOpportunity, bool> default bool false\n");
    }

    void cityFurnitureDoesNotShowItsExtension()
    {
        const QByteArray furniture =
            "<frn:CityFurniture><epadesa:cityFurnitureType>bench</epadesa:cityFurnitureType>"
            "</frn:CityFurniture>";
        QCOMPARE(treeText(furniture), QString("Fields\n  ClassType: CityFurniture\n"));
        QCOMPARE(attributesText<frn::CityFurnitureType>(furniture),
                 QString(" = -\n"
                         "  Properties = -\n"
                         "    Epadesa = -\n"
                         "      cityFurnitureType = QString bench by GmlGenericApplicationAttributeProperty<"
                         "epadesa::poly_cityFurnitureType, string> default QString \n"));
    }

    /// The carrier of an energy is entered with the element around it, which shows nothing.
    void aCarrierHasAnEmptyGroup()
    {
        QCOMPARE(treeText("<energy:FinalEnergy><energy:energyAmount xlink:href='#e'/><energy:energyCarrier>"
                          "<energy:EnergyCarrier>"
                          "<energy:co2EmissionFactor uom='kg'>2</energy:co2EmissionFactor>"
                          "<energy:primaryEnergyFactor uom='1'>1</energy:primaryEnergyFactor>"
                          "<energy:type>gas</energy:type></energy:EnergyCarrier></energy:energyCarrier>"
                          "</energy:FinalEnergy>"),
                 QString("Properties\n"
                         "  Energy\n"
                         "    energyCarrier\n"
                         "Fields\n"
                         "  ClassType: FinalEnergy\n"));
    }

    void aPeriodHasAGroupForEachDay()
    {
        const QByteArray day = "<energy:dailySchedule><energy:DailySchedule>"
                               "<energy:dayType>Sunday</energy:dayType><energy:schedule xlink:href='#s'/>"
                               "</energy:DailySchedule></energy:dailySchedule>";
        const QString text = treeText(
            "<energy:UsageZone><energy:heatingSchedule><energy:DailyPatternSchedule><energy:periodOfYear>"
            "<energy:PeriodOfYear><energy:period><gml:TimePeriod/></energy:period>" +
            day + day +
            "</energy:PeriodOfYear></energy:periodOfYear></energy:DailyPatternSchedule>"
            "</energy:heatingSchedule><energy:usageZoneType>u</energy:usageZoneType></energy:UsageZone>");
        QVERIFY2(text.contains("    heatingSchedule\n"
                               "      periodOfYear\n"
                               "        period\n"
                               "        dailySchedule\n"
                               "          dayType: Sunday\n"
                               "        dailySchedule\n"
                               "          dayType: Sunday\n"),
                 qPrintable(text));
    }

    // pivotEnergy

    void aBoilerShowsItsRowsAndThoseOfAGenerator()
    {
        QCOMPARE(treeText("<pivotEnergy:Boiler>"
                          "<pivotEnergy:dateOfRefurbishment>1999</pivotEnergy:dateOfRefurbishment>"
                          "<pivotEnergy:nbSameType>2</pivotEnergy:nbSameType>"
                          "<pivotEnergy:boilerType>WoodBoiler</pivotEnergy:boilerType>"
                          "<pivotEnergy:nominalPower uom='kW'>24</pivotEnergy:nominalPower>"
                          "</pivotEnergy:Boiler>"),
                 QString("Properties\n"
                         "  pivotEnergy\n"
                         "    boilerType: WoodBoiler\n"
                         "    nominalPower: 24 kW\n"
                         "    dateOfRefurbishment: 1999\n"
                         "    nbSameType: 2\n"
                         "Fields\n"
                         "  ClassType: Boiler\n"));
    }

    void requiredAttributesAlwaysHaveARow()
    {
        QCOMPARE(treeText("<pivotEnergy:Lights>"
                          "<pivotEnergy:installedPower uom='W'>60</pivotEnergy:installedPower>"
                          "<pivotEnergy:nbOfLights>0</pivotEnergy:nbOfLights>"
                          "<pivotEnergy:lightsType>Halogen</pivotEnergy:lightsType>"
                          "<pivotEnergy:lightingSpaceRatio uom='1'>0</pivotEnergy:lightingSpaceRatio>"
                          "<pivotEnergy:lightingManagement>None</pivotEnergy:lightingManagement>"
                          "<pivotEnergy:lightingRegulation>ManualManagementWithDaylight"
                          "</pivotEnergy:lightingRegulation>"
                          "<pivotEnergy:dateOfRefurbishment>1999</pivotEnergy:dateOfRefurbishment>"
                          "<pivotEnergy:idLightLayer>-1</pivotEnergy:idLightLayer></pivotEnergy:Lights>"),
                 QString("Properties\n"
                         "  pivotEnergy\n"
                         "    installedPower: 60 W\n"
                         "    nbOfLights: 0\n"
                         "    lightsType: Halogen\n"
                         "    lightingSpaceRatio: 0 1\n"
                         "    lightingManagement: None\n"
                         "    lightingRegulation: ManualManagementWithDaylight\n"
                         "    dateOfRefurbishment: 1999\n"
                         "    idLightLayer: -1\n"
                         "Fields\n"
                         "  ClassType: Lights\n"));
        QCOMPARE(treeText("<pivotEnergy:StandaloneCoolingEmitter/>"),
                 QString("Fields\n  ClassType: StandaloneCoolingEmitter\n"));
    }

    void thePowerOfAnEmitter_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<bool>("existingOnly");
        QTest::addColumn<QString>("unit");
        const QByteArray power = "<pivotEnergy:power uom='kW'>3</pivotEnergy:power>";
        const QByteArray cooling = "pivotEnergy:StandaloneCoolingEmitter>";
        const QByteArray heating = "pivotEnergy:StandaloneHeatingEmitter>";
        QTest::newRow("cooling, absent") << '<' + cooling + "</" + cooling << false << QString();
        QTest::newRow("cooling") << '<' + cooling + power + "</" + cooling << false << QString("kW");
        const QByteArray required =
            "<pivotEnergy:emitterType>ElectricalConvectors</pivotEnergy:emitterType>"
            "<pivotEnergy:condensorTempCOP uom='K'>1</pivotEnergy:condensorTempCOP>"
            "<pivotEnergy:evaporatorTempCOP uom='K'>2</pivotEnergy:evaporatorTempCOP>" +
            power +
            "<pivotEnergy:regulationType>ManualControlValve</pivotEnergy:regulationType>"
            "<pivotEnergy:efficiency uom='1'>1</pivotEnergy:efficiency>"
            "<pivotEnergy:spaceRatio uom='1'>1</pivotEnergy:spaceRatio>"
            "<pivotEnergy:priority>MainEmitter</pivotEnergy:priority>";
        QTest::newRow("heating") << '<' + heating + required + "</" + heating << true << QString("kW");
        QTest::newRow("heating, all") << '<' + heating + required + "</" + heating << false << QString("kW");
    }

    void thePowerOfAnEmitter()
    {
        QFETCH(QByteArray, xml);
        QFETCH(bool, existingOnly);
        QFETCH(QString, unit);
        Document document(xml);
        const auto root = propertiesOf(document, existingOnly);
        CoreProperty* const power = findProperty(root, {"Properties", "pivotEnergy", "power"});
        QVERIFY(power != nullptr);
        QCOMPARE(unitOf(power), unit);
    }

    void aStandaloneEmitterLeavesItsBaseOut()
    {
        const QByteArray content = "<pivotEnergy:dateOfRefurbishment>1999</pivotEnergy:dateOfRefurbishment>"
                                   "<pivotEnergy:emitterProgType>None</pivotEnergy:emitterProgType>";
        const QByteArray emitter =
            "<pivotEnergy:StandaloneEmitter>" + content +
            "<pivotEnergy:emitterProductionControlType>On/Off</pivotEnergy:emitterProductionControlType>"
            "</pivotEnergy:StandaloneEmitter>";
        QCOMPARE(treeText(emitter), QString("Properties\n"
                                            "  pivotEnergy\n"
                                            "    emitterProductionControlType: On/Off\n"
                                            "Fields\n"
                                            "  ClassType: StandaloneEmitter\n"));
        QVERIFY(!treeText(emitter, false).contains("emitterProgType"));
        // Its sibling shows them.
        QCOMPARE(treeText("<pivotEnergy:ConnectedEmitter>" + content + "</pivotEnergy:ConnectedEmitter>"),
                 QString("Properties\n"
                         "  pivotEnergy\n"
                         "    dateOfRefurbishment: 1999\n"
                         "    emitterProgType: None\n"
                         "Fields\n"
                         "  ClassType: ConnectedEmitter\n"));
    }

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
        Document medium("<utility:LiquidMedium><utility:type>oil</utility:type>"
                        "<utility:flammable>0.25</utility:flammable></utility:LiquidMedium>");
        Document supply("<utility:LiquidMediumSupply><utility:storages><utility:Storage>"
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
        Document document('<' + element + "><gml:description>d</gml:description></" + element + '>');
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
        Document document(parcel);
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
        Document document("<epadesa:GreenArea/>");
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
        Document bollard("<epadesa:Bollard><epadesa:height uom='cm'>90</epadesa:height></epadesa:Bollard>");
        for (const bool existingOnly : {true, false}) {
            const auto root = propertiesOf(bollard, existingOnly);
            QCOMPARE(unitOf(findProperty(root, {"Properties", "Epadesa", "height"})), QString("cm"));
        }
        QCOMPARE(treeText("<epadesa:Fence/>"), QString("Fields\n  ClassType: Fence\n"));
        Document fence("<epadesa:Fence/>");
        const auto root = propertiesOf(fence, false);
        CoreProperty* const height = findProperty(root, {"Properties", "Epadesa", "height"});
        QVERIFY(height != nullptr);
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

QTEST_GUILESS_MAIN(ExtensionCatalogueTest)
#include "extensioncataloguetest.moc"
