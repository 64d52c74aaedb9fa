#include "bldg/BuildingType.hxx"
#include "core/xalAddressPropertyType.hxx"
#include "energy/ElevationReferenceValue.hxx"
#include "energy/EnergyPerformanceCertificationType.hxx"
#include "energy/FloorAreaType.hxx"
#include "energy/HeightAboveGroundType.hxx"
#include "energy/RefurbishmentMeasureType.hxx"
#include "energy/VolumeTypeType.hxx"
#include "energy/VolumeTypeValue.hxx"
#include "energy/WeatherDataType.hxx"
#include "energy/WeatherDataTypeValue.hxx"
#include "gen/GenericAttributeSetType.hxx"
#include "gen/StringAttributeType.hxx"
#include "gml/BoundingShapeType.hxx"
#include "gml/CodeType.hxx"
#include "gml/EnvelopeType.hxx"
#include "grp/CityObjectGroupMemberType.hxx"
#include "support/PropertyText.h"
#include "support/TestClass.h"
#include "UI/Models/CityGMLModel/properties/CityGMLPropertiesVisitor.h"
#include "xAL_2_0/Address.hxx"
#include "xAL_2_0/AddressDetails.hxx"
#include "xAL_2_0/AddressLinesType.hxx"
#include "xAL_2_0/AdministrativeArea.hxx"
#include "xAL_2_0/Country.hxx"
#include "xAL_2_0/Locality.hxx"
#include "xAL_2_0/PostalServiceElements.hxx"
#include "xAL_2_0/Thoroughfare.hxx"

#include <QtTest>

using testsupport::FeatureDocument;
using tolvik::CityGMLPropertiesVisitor;

namespace {

/// A host's visitor: a line for each object that it is led to, below that of the object that led there.
class Recorder : public CityGMLPropertiesVisitor
{
public:
    QString text;

#define RECORD_AS(prefix, Type, name)                                                                        \
    bool visit_##prefix##_##Type(prefix::Type* object) override                                              \
    {                                                                                                        \
        text += indent + lineOf(*object, name) + '\n';                                                       \
        indent += "  ";                                                                                      \
        const bool result = CityGMLPropertiesVisitor::visit_##prefix##_##Type(object);                       \
        indent.chop(2);                                                                                      \
        return result;                                                                                       \
    }
#define RECORD(prefix, Type) RECORD_AS(prefix, Type, "")

    RECORD(core, xalAddressPropertyType)
    RECORD(gml, BoundingShapeType)
    RECORD(gml, EnvelopeType)
    RECORD(xAL_2_0, Address)
    RECORD(xAL_2_0, AddressDetails)
    RECORD(xAL_2_0, AddressLinesType)
    RECORD(xAL_2_0, AdministrativeArea)
    RECORD(xAL_2_0, Country)
    RECORD(xAL_2_0, Locality)
    RECORD(xAL_2_0, PostalServiceElements)
    RECORD(xAL_2_0, Thoroughfare)
    RECORD_AS(energy, EnergyPerformanceCertificationType, object->certificationName())
    RECORD_AS(energy, FloorAreaType, object->type())
    RECORD_AS(energy, HeightAboveGroundType, object->heightReference())
    RECORD_AS(energy, RefurbishmentMeasureType, object->levelOfRefurbishment())
    RECORD_AS(energy, VolumeTypeType, object->type())
    RECORD_AS(energy, WeatherDataType, object->weatherDataType())
    RECORD_AS(gen, GenericAttributeSetType, object->name())
    RECORD_AS(gen, StringAttributeType, object->name())
    RECORD_AS(grp, CityObjectGroupMemberType, object->role().get())

#undef RECORD
#undef RECORD_AS

private:
    static QString lineOf(const xml_schema::type& object, const std::string& name)
    {
        const QString label = QString::fromStdString(object.typeLabel);
        return name.empty() ? label : label + ' ' + QString::fromStdString(name);
    }

    QString indent;
};

/// What a visit of a feature enters.
QString visitText(const QByteArray& feature)
{
    FeatureDocument document(feature);
    Recorder recorder;
    document.feature().accept(&recorder);
    return recorder.text;
}

QByteArray attribute(const QByteArray& name)
{
    return "<gen:stringAttribute name='" + name + "'><gen:value>v</gen:value></gen:stringAttribute>";
}

QByteArray floorArea(const QByteArray& type)
{
    return "<energy:floorArea><energy:FloorArea><energy:type>" + type +
           "</energy:type><energy:value uom='m2'>1</energy:value></energy:FloorArea></energy:floorArea>";
}

QByteArray volume(const QByteArray& type)
{
    return "<energy:volume><energy:VolumeType><energy:type>" + type +
           "</energy:type><energy:value uom='m3'>1</energy:value></energy:VolumeType></energy:volume>";
}

QByteArray certification(const QByteArray& name)
{
    return "<energy:energyPerformanceCertification><energy:EnergyPerformanceCertification>"
           "<energy:certificationRating>A</energy:certificationRating><energy:certificationName>" +
           name +
           "</energy:certificationName></energy:EnergyPerformanceCertification>"
           "</energy:energyPerformanceCertification>";
}

QByteArray refurbishment(const QByteArray& level)
{
    return "<energy:refurbishmentMeasure><energy:RefurbishmentMeasure><energy:dateOfRefurbishment/>"
           "<energy:levelOfRefurbishment>" +
           level +
           "</energy:levelOfRefurbishment></energy:RefurbishmentMeasure></energy:refurbishmentMeasure>";
}

QByteArray weather(const QByteArray& type)
{
    return "<energy:weatherData><energy:WeatherData><energy:weatherDataType>" + type +
           "</energy:weatherDataType><energy:values/></energy:WeatherData></energy:weatherData>";
}

QByteArray address(const QByteArray& content)
{
    return "<bldg:address><core:Address><core:xalAddress><xAL:AddressDetails>" + content +
           "</xAL:AddressDetails></core:xalAddress></core:Address></bldg:address>";
}

} // namespace

/// The base class of visitors that look at one feature, as a host derives from it.
class PropertiesVisitorTest : public QObject
{
    Q_OBJECT

private slots:
    void theBoundingShape()
    {
        QCOMPARE(visitText("<bldg:Building><gml:boundedBy><gml:Envelope/></gml:boundedBy></bldg:Building>"),
                 QString("BoundingShape\n  Envelope\n"));
        QCOMPARE(visitText("<bldg:Building><gml:boundedBy/></bldg:Building>"), QString("BoundingShape\n"));
        QCOMPARE(visitText("<bldg:Building/>"), QString());
    }

    void theAddressesOfABuilding()
    {
        QCOMPARE(visitText("<bldg:Building>" + address("<xAL:Country/>") +
                           "<bldg:address xlink:href='#far'/>" + address("<xAL:Locality/>") +
                           "</bldg:Building>"),
                 QString("xalAddressProperty\n"
                         "  AddressDetails\n"
                         "    Country\n"
                         "xalAddressProperty\n"
                         "  AddressDetails\n"
                         "    Locality\n"));
    }

    /// A document has one of the last six, and a host can put all of them in.
    void thePartsOfAnAddress()
    {
        xAL_2_0::AddressDetails details;
        details.PostalServiceElements(xAL_2_0::PostalServiceElements());
        details.Address(xAL_2_0::Address());
        details.AddressLines(xAL_2_0::AddressLinesType());
        details.Country(xAL_2_0::Country());
        details.AdministrativeArea(xAL_2_0::AdministrativeArea());
        details.Locality(xAL_2_0::Locality());
        details.Thoroughfare(xAL_2_0::Thoroughfare());
        Recorder recorder;
        details.accept(&recorder);
        QCOMPARE(recorder.text, QString("AddressDetails\n"
                                        "  PostalServiceElements\n"
                                        "  Address\n"
                                        "  AddressLines\n"
                                        "  AdministrativeArea\n"
                                        "  Locality\n"
                                        "  Thoroughfare\n"
                                        "  AdministrativeArea\n"
                                        "  Country\n"));
    }

    void absentPartsOfAnAddress()
    {
        xAL_2_0::AddressDetails details;
        Recorder recorder;
        details.accept(&recorder);
        QCOMPARE(recorder.text, QString("AddressDetails\n"));
    }

    /// The attributes come before the weather data, each in the order of the document.
    void theGenericAttributesOfACityObject()
    {
        QCOMPARE(visitText("<tran:Road>" + weather("AirTemperature") + attribute("a") + weather("WindSpeed") +
                           "<energy:weatherData xlink:href='#far'/>" + attribute("b") + "</tran:Road>"),
                 QString("StringAttribute a\n"
                         "StringAttribute b\n"
                         "WeatherData AirTemperature\n"
                         "WeatherData WindSpeed\n"));
    }

    void theMembersOfASet()
    {
        QCOMPARE(visitText("<bldg:Building><gen:genericAttributeSet name='outer'>" + attribute("a") +
                           "<gen:genericAttributeSet name='inner'>" + attribute("b") +
                           "</gen:genericAttributeSet>" + attribute("c") + "</gen:genericAttributeSet>" +
                           attribute("d") + "</bldg:Building>"),
                 QString("GenericAttributeSet outer\n"
                         "  StringAttribute a\n"
                         "  GenericAttributeSet inner\n"
                         "    StringAttribute b\n"
                         "  StringAttribute c\n"
                         "StringAttribute d\n"));
    }

    /// What the derived type has comes before what its bases have.
    void theOrderOfABuilding()
    {
        const QByteArray bases = "<gml:boundedBy><gml:Envelope/></gml:boundedBy>" + attribute("a");
        const QByteArray extensions = volume("NetVolume") + floorArea("net") +
                                      "<energy:heightAboveGround><energy:HeightAboveGround>"
                                      "<energy:heightReference>highestPoint</energy:heightReference>"
                                      "<energy:value uom='m'>1</energy:value></energy:HeightAboveGround>"
                                      "</energy:heightAboveGround>" +
                                      certification("first") + refurbishment("high") + "<energy:floorArea/>" +
                                      certification("second") + floorArea("gross");
        QCOMPARE(visitText("<bldg:Building>" + bases + address("<xAL:Thoroughfare/>") + extensions +
                           "</bldg:Building>"),
                 QString("xalAddressProperty\n"
                         "  AddressDetails\n"
                         "    Thoroughfare\n"
                         "VolumeType NetVolume\n"
                         "FloorArea net\n"
                         "HeightAboveGround highestPoint\n"
                         "EnergyPerformanceCertification first\n"
                         "RefurbishmentMeasure high\n"
                         "EnergyPerformanceCertification second\n"
                         "FloorArea gross\n"
                         "StringAttribute a\n"
                         "BoundingShape\n"
                         "  Envelope\n"));
    }

    void theZonesOfTheEnergyExtension()
    {
        QCOMPARE(visitText("<energy:BuildingUnit>" + certification("first") + certification("second") +
                           "<energy:energyPerformanceCertification/>" + floorArea("net") +
                           "<energy:floorArea/>" + floorArea("gross") + "</energy:BuildingUnit>"),
                 QString("EnergyPerformanceCertification first\n"
                         "EnergyPerformanceCertification second\n"
                         "FloorArea net\n"
                         "FloorArea gross\n"));
        QCOMPARE(visitText("<energy:ThermalZone>" + floorArea("net") + "<energy:floorArea/>" +
                           floorArea("gross") +
                           "<energy:isCooled>true</energy:isCooled><energy:isHeated>true</energy:isHeated>" +
                           volume("NetVolume") + "<energy:volume/>" + volume("GrossVolume") +
                           "</energy:ThermalZone>"),
                 QString("FloorArea net\n"
                         "FloorArea gross\n"
                         "VolumeType NetVolume\n"
                         "VolumeType GrossVolume\n"));
        QCOMPARE(visitText("<energy:UsageZone><energy:usageZoneType>u</energy:usageZoneType>" +
                           floorArea("net") + "<energy:floorArea/>" + floorArea("gross") +
                           "</energy:UsageZone>"),
                 QString("FloorArea net\nFloorArea gross\n"));
        QCOMPARE(visitText("<energy:ThermalBoundary>"
                           "<energy:thermalBoundaryType>OuterWall</energy:thermalBoundaryType>" +
                           refurbishment("low") + "<energy:refurbishmentMeasure/>" + refurbishment("high") +
                           "</energy:ThermalBoundary>"),
                 QString("RefurbishmentMeasure low\nRefurbishmentMeasure high\n"));
    }

    /// A member is no feature, and the feature in it is another one.
    void theMembersOfAGroup()
    {
        QCOMPARE(visitText("<grp:CityObjectGroup><grp:groupMember role='first' xlink:href='#a'/>"
                           "<grp:groupMember role='second'><bldg:Building>" +
                           attribute("a") + "</bldg:Building></grp:groupMember></grp:CityObjectGroup>"),
                 QString("CityObjectGroupMember first\nCityObjectGroupMember second\n"));
    }

    void theFeaturesBelowStayOut()
    {
        QCOMPARE(visitText("<bldg:Building><bldg:interiorRoom><bldg:Room>" + attribute("room") +
                           "</bldg:Room></bldg:interiorRoom><bldg:boundedBy><bldg:WallSurface>" +
                           attribute("wall") +
                           "</bldg:WallSurface></bldg:boundedBy><bldg:consistsOfBuildingPart>"
                           "<bldg:BuildingPart>" +
                           attribute("part") +
                           "</bldg:BuildingPart></bldg:consistsOfBuildingPart></bldg:Building>"),
                 QString());
    }
};

TEST_CLASS(PropertiesVisitorTest, Core)
#include "propertiesvisitortest.moc"
