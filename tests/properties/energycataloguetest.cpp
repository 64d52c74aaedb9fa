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

namespace {

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
    FeatureDocument document(feature);
    GmlCorePropertyCreator creator;
    const Fondo::RefPtr<CoreProperty> root = creator.getProperty();
    showAttributes(creator, dynamic_cast<T&>(document.feature()));
    return dump(*root);
}

const QByteArray genericAttribute =
    "<gen:stringAttribute name='note'><gen:value>x</gen:value></gen:stringAttribute>";

} // namespace

/// What the catalogues of the energy extensions do besides their tables: groups that several objects share,
/// groups that stay or end, bases that are left out, and rows of which another one knows.
class EnergyCatalogueTest : public QObject
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
        FeatureDocument construction("<energy:Construction/>");
        const auto absent = propertiesOf(construction, false);
        CoreProperty* const uValue = findProperty(absent, {"Properties", "Energy", "uValue"});
        if (uValue == nullptr) {
            QFAIL("no row of a measure that is absent");
        }
        QVERIFY(uValue->unit() == nullptr);
        QVERIFY(treeText("<energy:Construction/>").indexOf("uValue") < 0);

        const QByteArray zone =
            "<energy:UsageZone><energy:heatingSchedule><energy:ConstantValueSchedule>"
            "<energy:averageValue uom='°C'>19</energy:averageValue></energy:ConstantValueSchedule>"
            "</energy:heatingSchedule><energy:usageZoneType>u</energy:usageZoneType></energy:UsageZone>";
        FeatureDocument usage(zone);
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
                   typedText(enumerationLiterals().value(type)) + '\n';
        };
        QCOMPARE(attributesText<energy::ThermalBoundaryType>(boundary),
                 " = invalid\n"
                 "  Properties = invalid\n"
                 "    pivotEnergy = invalid\n" +
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
                 QString(" = invalid\n"
                         "  Properties = invalid\n"
                         "    Epadesa = invalid\n"
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
        FeatureDocument document(xml);
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
};

TEST_CLASS(EnergyCatalogueTest, Core)
#include "energycataloguetest.moc"
