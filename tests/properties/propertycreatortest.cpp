#include "bldg/BuildingType.hxx"
#include "core/ExternalObjectReferenceType.hxx"
#include "core/ExternalReferenceType.hxx"
#include "framework/AbstractUnit.h"
#include "gen/StringAttributeType.hxx"
#include "gml/EnvelopeType.hxx"
#include "support/PropertyText.h"
#include "support/TestClass.h"

#include <QtTest>
#include <QUrl>

using namespace testsupport;
using tolvik::CoreProperty;
using tolvik::GmlCorePropertyCreator;

class PropertyCreatorTest : public QObject
{
    Q_OBJECT

private slots:
    void theRootOfNothing()
    {
        const GmlCorePropertyCreator creator;
        const Fondo::RefPtr<CoreProperty> root = creator.getProperty();
        QCOMPARE(root->name(), QString());
        QVERIFY(!root->value().isValid());
        QVERIFY(root->properties().isEmpty());
    }

    void theCallerTakesTheFirstReference()
    {
        bldg::BuildingType building;
        CoreProperty* const root = GmlCorePropertyCreator::createProperty(&building, true);
        QCOMPARE(root->referenceCount(), 0);
        const Fondo::RefPtr<CoreProperty> owner(root);
        QCOMPARE(root->referenceCount(), 1);
    }

    void aCopySharesTheTree()
    {
        bldg::BuildingType building;
        GmlCorePropertyCreator creator;
        const Fondo::RefPtr<CoreProperty> root = creator.getProperty();
        GmlCorePropertyCreator copy(creator);
        QCOMPARE(copy.getProperty(), root.get());
        building.accept(&copy);
        QCOMPARE(treeText(*root), QString("Fields\n  ClassType: Building\n"));
    }

    void theWalkGoesOn()
    {
        bldg::BuildingType building;
        GmlCorePropertyCreator creator;
        const Fondo::RefPtr<CoreProperty> root = creator.getProperty();
        QVERIFY(building.accept(&creator));
    }

    void aFeatureWithoutAttributes()
    {
        QCOMPARE(treeText("<bldg:Building/>"), QString("Fields\n  ClassType: Building\n"));
        QCOMPARE(treeText("<bldg:Building gml:id='b1'/>"),
                 QString("Fields\n  ClassType: Building\n  Id: b1\n"));
        QVERIFY(!treeText("<bldg:Building/>", false).contains("Id"));
        QVERIFY(treeText("<bldg:Building/>", false).contains("ClassType: Building\n"));
    }

    void absentAttributes()
    {
        QCOMPARE(treeText("<bldg:Room/>", false), QString("Fields\n"
                                                          "  Class\n"
                                                          "  CreationDate\n"
                                                          "  TerminationDate\n"
                                                          "  RelativeToTerrain\n"
                                                          "  RelativeToWater\n"
                                                          "  ClassType: Room\n"
                                                          "  Description\n"));
        QCOMPARE(treeText("<bldg:Room/>"), QString("Fields\n  ClassType: Room\n"));
    }

    void labelsAreNotCopied()
    {
        bldg::BuildingType building;
        building.storeysAboveGround(2);
        const Fondo::RefPtr<CoreProperty> root = GmlCorePropertyCreator::createProperty(&building, false);
        for (const auto& property : root->getProperty("Fields", false)->properties()) {
            QString label = property->name();
            QVERIFY2(label.data_ptr()->ref.isStatic(), qPrintable(label));
        }
    }

    void rowsOfTheDerivedTypeComeFirst()
    {
        QCOMPARE(
            treeText("<bldg:Building gml:id='b'><gml:description>d</gml:description><gml:name>n</gml:name>"
                     "<gml:name>m</gml:name><core:creationDate>2020-01-02</core:creationDate>"
                     "<core:relativeToTerrain>entirelyAboveTerrain</core:relativeToTerrain>"
                     "<bldg:class>c</bldg:class><bldg:function>f</bldg:function><bldg:usage>u</bldg:usage>"
                     "<bldg:yearOfConstruction>1789</bldg:yearOfConstruction>"
                     "<bldg:yearOfDemolition>1889</bldg:yearOfDemolition><bldg:roofType>r</bldg:roofType>"
                     "<bldg:measuredHeight uom='m'>12.5</bldg:measuredHeight>"
                     "<bldg:storeysAboveGround>4</bldg:storeysAboveGround>"
                     "<bldg:storeyHeightsAboveGround uom='ft'>3.0 unknown</bldg:storeyHeightsAboveGround>"
                     "</bldg:Building>"),
            QString("Fields\n"
                    "  Class: c\n"
                    "  Function: [f]\n"
                    "  Usage: [u]\n"
                    "  RoofType: r\n"
                    "  YearOfConstruction: 1789\n"
                    "  YearOfDemolition: 1889\n"
                    "  MeasuredHeight: 12.5 m\n"
                    "  StoreysAboveGround: 4\n"
                    "  StoreyHeightsAboveGround: [3.0, unknown] ft\n"
                    "  CreationDate: 2020-01-02\n"
                    "  RelativeToTerrain: entirelyAboveTerrain\n"
                    "  ClassType: Building\n"
                    "  Id: b\n"
                    "  Name: [n, m]\n"
                    "  Description: d\n"));
    }

    void anAbsentMeasureHasNoUnit()
    {
        FeatureDocument absent("<bldg:Building/>");
        const auto root = propertiesOf(absent, false);
        QVERIFY(findProperty(root, {"Fields", "MeasuredHeight"})->unit() == nullptr);
        FeatureDocument present(
            "<bldg:Building><bldg:measuredHeight uom='#m'>1</bldg:measuredHeight></bldg:Building>");
        const auto other = propertiesOf(present, false);
        QCOMPARE(findProperty(other, {"Fields", "MeasuredHeight"})->unit()->name(), QString("#m"));
    }

    void anEmptySequenceHasNoRow()
    {
        const QString text = treeText("<bldg:Building/>", false);
        QVERIFY(!text.contains("Name"));
        QVERIFY(!text.contains("Function"));
        QVERIFY(!text.contains("Usage"));
    }

    void anEmptyOptionalListHasARow()
    {
        QVERIFY(treeText("<bldg:Building/>", false).contains("\n  StoreyHeightsAboveGround: []\n"));
    }

    /// Extension rows of the derived type make their group ahead of "Fields".
    void extensionsComeInTheirGroup()
    {
        QCOMPARE(
            treeText(
                "<bldg:Building><pivotEnergy:mainMaterial>stone</pivotEnergy:mainMaterial></bldg:Building>"),
            QString("Properties\n"
                    "  pivotEnergy\n"
                    "    mainMaterial: stone\n"
                    "Fields\n"
                    "  ClassType: Building\n"));
        QCOMPARE(treeText("<bldg:Building><bldg:class>1</bldg:class>"
                          "<pivotEnergy:mainMaterial>stone</pivotEnergy:mainMaterial>"
                          "<utility:buildingHabitants>7</utility:buildingHabitants>"
                          "<energy:buildingType>house</energy:buildingType></bldg:Building>"),
                 QString("Fields\n"
                         "  Class: 1\n"
                         "  ClassType: Building\n"
                         "Properties\n"
                         "  pivotEnergy\n"
                         "    mainMaterial: stone\n"
                         "  UtilityNetwork\n"
                         "    buildingHabitants: 7\n"
                         "  Energy\n"
                         "    buildingType: house\n"));
    }

    /// Elements of a sequence share a group, and each has one of its own in it.
    void elementsOfASequence()
    {
        const QByteArray area =
            "<energy:floorArea><energy:FloorArea><energy:type>net</energy:type>"
            "<energy:value uom='m2'>12</energy:value></energy:FloorArea></energy:floorArea>";
        QCOMPARE(treeText("<bldg:Building>" + area + area + "</bldg:Building>"),
                 QString("Properties\n"
                         "  Energy\n"
                         "    floorAreas\n"
                         "      floorArea\n"
                         "        type: net\n"
                         "        value: 12 m2\n"
                         "      floorArea\n"
                         "        type: net\n"
                         "        value: 12 m2\n"
                         "Fields\n"
                         "  ClassType: Building\n"));
    }

    void genericAttributes()
    {
        QCOMPARE(
            treeText("<bldg:Building>"
                     "<gen:stringAttribute name='s'><gen:value>text</gen:value></gen:stringAttribute>"
                     "<gen:intAttribute name='i'><gen:value>-5</gen:value></gen:intAttribute>"
                     "<gen:doubleAttribute name='d'><gen:value>2.5</gen:value></gen:doubleAttribute>"
                     "<gen:dateAttribute name='t'><gen:value>2020-02-03</gen:value></gen:dateAttribute>"
                     "<gen:uriAttribute name='u'><gen:value>http://a/b</gen:value></gen:uriAttribute>"
                     "<gen:measureAttribute name='m'><gen:value uom='kg'>7</gen:value></gen:measureAttribute>"
                     "</bldg:Building>"),
            QString("Fields\n"
                    "  s: text\n"
                    "  i: -5\n"
                    "  d: 2.5\n"
                    "  t: 2020-02-03\n"
                    "  u: http://a/b\n"
                    "  m: 7 kg\n"
                    "  ClassType: Building\n"));
    }

    /// Weather data comes after all attributes, so that its group does, wherever it stands in the document.
    void weatherDataBeforeAGenericAttribute()
    {
        QCOMPARE(treeText("<bldg:Building>"
                          "<energy:weatherData><energy:WeatherData>"
                          "<energy:weatherDataType>WindSpeed</energy:weatherDataType><energy:values/>"
                          "</energy:WeatherData></energy:weatherData>"
                          "<gen:stringAttribute name='a'><gen:value>1</gen:value></gen:stringAttribute>"
                          "</bldg:Building>"),
                 QString("Fields\n"
                         "  a: 1\n"
                         "  ClassType: Building\n"
                         "Properties\n"
                         "  Energy\n"
                         "    weatherDatas\n"
                         "      weatherData\n"
                         "        weatherDataType: WindSpeed\n"));
    }

    void aGenericAttributeSetInsideAnother()
    {
        QCOMPARE(treeText("<bldg:Building><gen:genericAttributeSet name='outer'>"
                          "<gen:stringAttribute name='a'><gen:value>1</gen:value></gen:stringAttribute>"
                          "<gen:genericAttributeSet name='inner'>"
                          "<gen:stringAttribute name='b'><gen:value>2</gen:value></gen:stringAttribute>"
                          "</gen:genericAttributeSet>"
                          "<gen:stringAttribute name='c'><gen:value>3</gen:value></gen:stringAttribute>"
                          "</gen:genericAttributeSet>"
                          "<gen:stringAttribute name='d'><gen:value>4</gen:value></gen:stringAttribute>"
                          "</bldg:Building>"),
                 QString("Fields\n"
                         "  outer\n"
                         "    a: 1\n"
                         "    c: 3\n"
                         "  inner\n"
                         "    b: 2\n"
                         "  d: 4\n"
                         "  ClassType: Building\n"));
    }

    void referencesToOtherObjects()
    {
        const QByteArray reference = "<core:externalReference>"
                                     "<core:informationSystem>http://system</core:informationSystem>"
                                     "<core:externalObject><core:name>n</core:name></core:externalObject>"
                                     "</core:externalReference>";
        QCOMPARE(treeText("<bldg:Building>" + reference + reference + "</bldg:Building>"),
                 QString("Fields\n"
                         "  ExternalReferences\n"
                         "    externalObjectReference\n"
                         "      ReferenceName: n\n"
                         "    externalObjectReference\n"
                         "      ReferenceName: n\n"
                         "  ClassType: Building\n"));
    }

    /// The group of the references is that of no other row.
    void attributesBesideReferencesToOtherObjects()
    {
        QCOMPARE(treeText("<bldg:Building>"
                          "<core:externalReference><core:informationSystem>s</core:informationSystem>"
                          "<core:externalObject><core:name>n</core:name></core:externalObject>"
                          "</core:externalReference>"
                          "<gen:stringAttribute name='a'><gen:value>1</gen:value></gen:stringAttribute>"
                          "</bldg:Building>"),
                 QString("Fields\n"
                         "  ExternalReferences\n"
                         "    externalObjectReference\n"
                         "      ReferenceName: n\n"
                         "  a: 1\n"
                         "  ClassType: Building\n"));
    }

    void anExternalReferenceByItself()
    {
        core::ExternalObjectReferenceType target;
        target.uri("http://object");
        core::ExternalReferenceType reference;
        reference.externalObject(target);
        reference.informationSystem("http://system");
        GmlCorePropertyCreator creator;
        const Fondo::RefPtr<CoreProperty> root = creator.getProperty();
        reference.accept(&creator);
        QCOMPARE(treeText(*root), QString("Fields\n"
                                          "  informationSystem: http://system\n"
                                          "  externalObject\n"
                                          "    externalObjectReference\n"
                                          "      ReferenceUri: http://object\n"));
        // What comes after it stands beside it.
        gen::StringAttributeType attribute;
        attribute.name("a");
        attribute.accept(&creator);
        QCOMPARE(findProperty(root, {"Fields"})->properties().back()->name(), QString("a"));
    }

    /// A reference that points to nothing has a row without a value, and no empty address.
    void references()
    {
        FeatureDocument document(
            "<energy:ThermalBoundary>"
            "<energy:thermalBoundaryType>Roof</energy:thermalBoundaryType>"
            "<energy:relatesTo xlink:href='50% off'/><energy:relatesTo/><energy:relatesTo xlink:href=''/>"
            "</energy:ThermalBoundary>");
        const auto root = propertiesOf(document);
        QVariantList targets;
        for (const auto& target : findProperty(root, {"Properties", "Energy", "relatesTo"})->properties()) {
            targets += target->value();
            QVERIFY(!target->editable());
        }
        QCOMPARE(targets, (QVariantList{QUrl("50%25%20off"), QVariant(), QUrl()}));
        QVERIFY(targets[0].toUrl().isValid());
        QVERIFY(targets[2].isValid());
    }

    void generalizations()
    {
        const QByteArray known = "<core:generalizesTo><bldg:Building gml:id='low'/></core:generalizesTo>";
        const QByteArray nameless = "<core:generalizesTo><bldg:Building/></core:generalizesTo>";
        const QByteArray link = "<core:generalizesTo xlink:href='#far'/>";
        QCOMPARE(treeText("<bldg:Building>" + nameless + known + link + "</bldg:Building>"),
                 QString("Fields\n  GeneralizesTo\n    Generalize: #low\n  ClassType: Building\n"));
        QCOMPARE(treeText("<bldg:Building>" + nameless + link + "</bldg:Building>"),
                 QString("Fields\n  GeneralizesTo\n  ClassType: Building\n"));
        FeatureDocument document("<bldg:Building>" + known + "</bldg:Building>");
        const auto root = propertiesOf(document);
        QVERIFY(!findProperty(root, {"Fields", "GeneralizesTo", "Generalize"})->editable());
    }

    void envelopes()
    {
        QCOMPARE(treeText("<bldg:Building><gml:boundedBy><gml:Envelope/></gml:boundedBy></bldg:Building>"),
                 QString("Fields\n  ClassType: Building\n  Envelope\n"));
        QCOMPARE(treeText("<bldg:Building><gml:boundedBy><gml:Envelope srsName='urn:x' srsDimension='3'>"
                          "<gml:lowerCorner>0 1 2.5</gml:lowerCorner><gml:upperCorner>3 4 5</gml:upperCorner>"
                          "</gml:Envelope></gml:boundedBy></bldg:Building>"),
                 QString("Fields\n"
                         "  ClassType: Building\n"
                         "  Envelope\n"
                         "    SrsName: urn:x\n"
                         "    SrsDimension: 3\n"
                         "    LowerCorner: [0, 1, 2.5]\n"
                         "    UpperCorner: [3, 4, 5]\n"));
        QVERIFY(!treeText("<bldg:Building/>", false).contains("Envelope"));
    }

    void addresses()
    {
        const QByteArray address = "<bldg:address><core:Address><core:xalAddress>"
                                   "<xAL:AddressDetails><xAL:Country/></xAL:AddressDetails>"
                                   "</core:xalAddress></core:Address></bldg:address>";
        // What comes after an address stands in no group.
        QCOMPARE(treeText("<bldg:Building>"
                          "<gen:stringAttribute name='a'><gen:value>1</gen:value></gen:stringAttribute>" +
                          address + address + "<bldg:address xlink:href='#far'/></bldg:Building>"),
                 QString("Fields\n"
                         "  Address\n"
                         "  Address\n"
                         "  a: 1\n"
                         "  ClassType: Building\n"));
        QCOMPARE(treeText("<bldg:Building>" + address + "</bldg:Building>", false).count("    AddressType\n"),
                 1);
    }

    void reliefs()
    {
        QCOMPARE(treeText("<dem:ReliefFeature><dem:lod>2</dem:lod><dem:reliefComponent><dem:MassPointRelief>"
                          "<dem:lod>3</dem:lod><dem:reliefPoints/></dem:MassPointRelief></"
                          "dem:reliefComponent></dem:ReliefFeature>"),
                 QString("Fields\n  Lod: 2\n  ClassType: ReliefFeature\n"));
        QCOMPARE(
            treeText("<dem:MassPointRelief><dem:lod>3</dem:lod><dem:reliefPoints/></dem:MassPointRelief>"),
            QString("Fields\n  Lod: 3\n  ClassType: MassPointRelief\n"));
    }

    void membersOfAGroup()
    {
        QCOMPARE(
            treeText("<grp:CityObjectGroup><grp:class>c</grp:class>"
                     "<grp:groupMember role='first' xlink:href='#a'/><grp:groupMember xlink:href='#b'/>"
                     "<grp:groupMember role='third'><bldg:Building><bldg:class>x</bldg:class></bldg:Building>"
                     "</grp:groupMember></grp:CityObjectGroup>"),
            QString("Fields\n"
                    "  Class: c\n"
                    "  Role: first\n"
                    "  Role: third\n"
                    "  ClassType: CityObjectGroup\n"));
    }

    /// Types without rows of their own show those of their bases, whether a visit forwards or not.
    void roadsAndRailways()
    {
        for (const QByteArray name : {"Road", "Railway", "Square", "Track"}) {
            QCOMPARE(treeText("<tran:" + name + "><tran:class>c</tran:class></tran:" + name + ">"),
                     QString("Fields\n  Class: c\n  ClassType: %1\n").arg(QString(name)));
        }
        QCOMPARE(treeText("<bldg:RoofSurface gml:id='r'/>"),
                 QString("Fields\n  ClassType: RoofSurface\n  Id: r\n"));
    }

    void cityFurnitureDoesNotShowItsExtension()
    {
        QCOMPARE(treeText("<frn:CityFurniture><frn:class>c</frn:class>"
                          "<epadesa:cityFurnitureType>bench</epadesa:cityFurnitureType></frn:CityFurniture>"),
                 QString("Fields\n  Class: c\n  ClassType: CityFurniture\n"));
    }

    void trafficAreasShowTheirExtension()
    {
        QCOMPARE(treeText("<tran:AuxiliaryTrafficArea><tran:surfaceMaterial>grass</tran:surfaceMaterial>"
                          "<epadesa:area uom='m2'>5</epadesa:area></tran:AuxiliaryTrafficArea>"),
                 QString("Fields\n"
                         "  SurfaceMaterial: grass\n"
                         "  ClassType: AuxiliaryTrafficArea\n"
                         "Properties\n"
                         "  Epadesa\n"
                         "    area: 5 m2\n"));
    }

    /// A nested feature has a row and a tree of its own.
    void theFeaturesBelowStayOut()
    {
        QCOMPARE(
            treeText("<bldg:Building><bldg:interiorRoom><bldg:Room><bldg:class>r</bldg:class></bldg:Room>"
                     "</bldg:interiorRoom></bldg:Building>"),
            QString("Fields\n  ClassType: Building\n"));
    }

    void theRootOfADocument()
    {
        core::CityModelType root;
        root.id("city");
        const Fondo::RefPtr<CoreProperty> properties = GmlCorePropertyCreator::createProperty(&root, true);
        QCOMPARE(treeText(*properties), QString("Fields\n  ClassType: CityModel\n  Id: city\n"));
    }

    void readOnlyRowsReachNothing()
    {
        FeatureDocument document("<bldg:Building gml:id='b'/>");
        const auto root = propertiesOf(document);
        CoreProperty* const id = findProperty(root, {"Fields", "Id"});
        QVERIFY(!id->editable());
        id->setValue("other");
        QCOMPARE(id->value(), QVariant("other"));
        QCOMPARE(document.feature().id().get(), std::string("b"));
        QVERIFY(!findProperty(root, {"Fields", "ClassType"})->editable());
        QVERIFY(!findProperty(root, {"Fields"})->editable());
    }
};

TEST_CLASS(PropertyCreatorTest, Core)
#include "propertycreatortest.moc"
