#include "bldg/AbstractBuildingType.hxx"
#include "component/OpeningComponentTypeType.hxx"
#include "energy/ConstructionWeightValue.hxx"
#include "energy/poly_isLandmarked.hxx"
#include "energy/ThermalZoneType.hxx"
#include "framework/AbstractUnit.h"
#include "gml/AreaType.hxx"
#include "gml/CodeType.hxx"
#include "gml/LengthType.hxx"
#include "gml/MeasureType.hxx"
#include "pivotEnergy/EnvironnementContextTypeType.hxx"
#include "pivotEnergy/LifeCycleStageType.hxx"
#include "pivotEnergy/poly_ceilingHeight.hxx"
#include "pivotEnergy/poly_nbDwelling.hxx"
#include "pivotEnergy/poly_nbDwellings.hxx"
#include "pivotEnergy/poly_storeys.hxx"
#include "pivotEnergy/poly_uValue.hxx"
#include "pivotEnergy/poly_yearOfRefurbishment.hxx"
#include "support/PropertyText.h"
#include "support/TestClass.h"
#include "UI/Models/CityGMLModel/properties/GmlEnumGenericApplicationAttributeProperty.h"
#include "UI/Models/CityGMLModel/properties/SchemaValues.h"

#include <QtTest>

using namespace testsupport;

using namespace tolvik;
using namespace tolvik::schema;

namespace {

using UValue = GmlGenericApplicationAttributeProperty<pivotEnergy::poly_uValue, gml::MeasureType>;

QString zoneText(energy::ThermalZoneType& zone, bool existingOnly = true)
{
    const Fondo::RefPtr<CoreProperty> root = GmlCorePropertyCreator::createProperty(&zone, existingOnly);
    const CoreProperty* const extensions = root->getProperty("Properties", false);
    const CoreProperty* const group =
        extensions == nullptr ? nullptr : extensions->getProperty("pivotEnergy", false);
    return group == nullptr ? QString() : treeText(*group);
}

energy::ThermalZoneType zoneWith(const QVector<const xml_schema::type*>& attributes)
{
    energy::ThermalZoneType zone;
    zone.isCooled(false);
    zone.isHeated(true);
    for (const xml_schema::type* attribute : attributes) {
        zone._GenericApplicationPropertyOfThermalZone().push_back(*attribute);
    }
    return zone;
}

} // namespace

class GenericAttributesTest : public QObject
{
    Q_OBJECT

private slots:
    void thePropertyIsShownAndNotOffered()
    {
        pivotEnergy::poly_uValue element(1.5, uri("W/m2K"));
        const Fondo::RefPtr<CoreProperty> property(new UValue(&element, "any", element.uom()));
        QCOMPARE(property->name(), QString("any"));
        QCOMPARE(property->value(), QVariant(1.5));
        QCOMPARE(property->unit()->name(), QString("W/m2K"));
        QCOMPARE(property->defaultValue(), QVariant(0.0));
        QVERIFY(!property->editable());
        QVERIFY(property->potentialValues().isEmpty());
    }

    void aUnitComesFromTheElementAlone()
    {
        pivotEnergy::poly_uValue element(1.5, uri(""));
        const Fondo::RefPtr<CoreProperty> property(new UValue(&element, "uValue", element.uom()));
        QVERIFY(property->unit() == nullptr);

        component::OpeningComponentTypeType opening;
        opening._GenericApplicationPropertyOfOpeningComponentType().push_back(element);
        element.uom(uri("W"));
        opening._GenericApplicationPropertyOfOpeningComponentType().push_back(element);
        GmlCorePropertyCreator creator;
        const Fondo::RefPtr<CoreProperty> root = creator.getProperty();
        opening.accept(&creator);
        const QString text = treeText(*root);
        QVERIFY2(text.contains("  pivotEnergy\n    uValue: 1.5\n    uValue: 1.5 W\n"), qPrintable(text));
    }

    void anEditReachesTheDocumentAndNotTheBase()
    {
        pivotEnergy::poly_uValue element(1.5, uri("W"));
        const Fondo::RefPtr<CoreProperty> property(new UValue(&element, "uValue", element.uom()));
        property->setValue("2.5");
        QCOMPARE(property->value(), QVariant(2.5));
        QCOMPARE(static_cast<double>(element), 2.5);
        QCOMPARE(element.uom(), std::string("W"));
        QVERIFY(!property->CoreProperty::value().isValid());
        property->setValue("abc");
        QCOMPARE(static_cast<double>(element), 0.0);
    }

    void anEnumerationOffersItsLiterals()
    {
        using Weight = energy::ConstructionWeightValue;
        Weight weight("Light");
        const Fondo::RefPtr<CoreProperty> property(
            new GmlEnumGenericApplicationAttributeProperty<Weight, Weight>(&weight, "constructionWeight",
                                                                           uri("")));
        QCOMPARE(property->potentialValues(), (QVariantList{"VeryLight", "Light", "Medium", "Heavy"}));
        QCOMPARE(property->value(), QVariant("Light"));
        QVERIFY(!property->defaultValue().isValid());
        QVERIFY(!property->editable());
        property->setValue("Heavy");
        QCOMPARE(static_cast<int>(static_cast<Weight::value>(weight)), 3);
    }

    /// Every attribute that a building can have.
    void attributesOfABuilding()
    {
        QCOMPARE(treeText(buildingText(
                     "<utility:buildingHabitants>7</utility:buildingHabitants>"
                     "<energy:buildingType>house</energy:buildingType>"
                     "<energy:constructionWeight>Heavy</energy:constructionWeight>"
                     "<energy:isLandmarked>true</energy:isLandmarked>"
                     "<energy:referencePoint><gml:Point><gml:pos>1 2 "
                     "3</gml:pos></gml:Point></energy:referencePoint>"
                     "<pivotEnergy:durationOfConstruction unit='year'>2</pivotEnergy:durationOfConstruction>"
                     "<pivotEnergy:environnementContext>RuralArea</pivotEnergy:environnementContext>"
                     "<pivotEnergy:footprintArea uom='m2'>50</pivotEnergy:footprintArea>"
                     "<pivotEnergy:yearOfRefurbishment>1999</pivotEnergy:yearOfRefurbishment>"
                     "<pivotEnergy:nextLifeCycleStage>Refurbishment</pivotEnergy:nextLifeCycleStage>")),
                 QString("Properties\n"
                         "  UtilityNetwork\n"
                         "    buildingHabitants: 7\n"
                         "  Energy\n"
                         "    buildingType: house\n"
                         "    constructionWeight: Heavy\n"
                         "    isLandmarked: true\n"
                         "    referencePoint\n"
                         "      position: [1, 2, 3]\n"
                         "  pivotEnergy\n"
                         "    durationOfConstruction\n"
                         "      timeIntervalLength: 2\n"
                         "      unit: year\n"
                         "    environnementContext: RuralArea\n"
                         "    footprintArea: 50 m2\n"
                         "    yearOfRefurbishment: 1999\n"
                         "    nextLifeCycleStage: Refurbishment\n"
                         "Fields\n"
                         "  ClassType: Building\n"));
    }

    void theOrderIsThatOfTheDocument()
    {
        QCOMPARE(
            treeText(buildingText("<pivotEnergy:mainMaterial>b</pivotEnergy:mainMaterial>"
                                  "<pivotEnergy:mainConstructionSystem>c</pivotEnergy:mainConstructionSystem>"
                                  "<pivotEnergy:mainMaterial>a</pivotEnergy:mainMaterial>")),
            QString("Properties\n"
                    "  pivotEnergy\n"
                    "    mainMaterial: b\n"
                    "    mainConstructionSystem: c\n"
                    "    mainMaterial: a\n"
                    "Fields\n"
                    "  ClassType: Building\n"));
    }

    void anElementThatNoRowNamesIsSkipped()
    {
        QCOMPARE(treeText(buildingText("<pivotEnergy:nbDwelling>3</pivotEnergy:nbDwelling>")),
                 QString("Fields\n  ClassType: Building\n"));
    }

    void aReferenceWithoutItsObjectHasNoGroup()
    {
        QCOMPARE(treeText(buildingText("<energy:referencePoint xlink:href='#p'/>")),
                 QString("Fields\n  ClassType: Building\n"));
    }

    /// The flag is not looked at: what is not in the slot has no row.
    void absentAttributesHaveNoRow()
    {
        QVERIFY(!treeText(buildingText(QByteArray()), false).contains("Properties"));
        energy::ThermalZoneType zone = zoneWith({});
        QCOMPARE(zoneText(zone), QString());
        QCOMPARE(zoneText(zone, false), QString());
    }

    /// The height has the label of the count.
    void heightAndCountOfAZone()
    {
        const pivotEnergy::poly_ceilingHeight height(2.5, uri("m"));
        const pivotEnergy::poly_nbDwellings count(4);
        const pivotEnergy::poly_storeys storeys(2);
        energy::ThermalZoneType zone = zoneWith({&height, &count, &storeys});
        QCOMPARE(zoneText(zone), QString("nbDwellings: 2.5 m\nnbDwellings: 4\nstoreys: 2\n"));
        energy::ThermalZoneType other = zoneWith({&height});
        QVERIFY(!zoneText(other, false).contains("storeys"));
    }

    void theCallerKeepsTheSlot()
    {
        FeatureDocument document(buildingText("<pivotEnergy:mainMaterial>b</pivotEnergy:mainMaterial>"));
        auto& slot = dynamic_cast<bldg::AbstractBuildingType&>(document.feature())
                         ._GenericApplicationPropertyOfAbstractBuilding();
        const auto root = propertiesOf(document);
        findProperty(root, {"Properties", "pivotEnergy", "mainMaterial"})->setValue(QVariant());
        QCOMPARE(slot.size(), std::size_t(1));
    }

    void edits_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QStringList>("path");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QVariant>("shown");
        QTest::addColumn<QByteArray>("written");
        const auto row = [](const char* name, const QByteArray& xml, const QStringList& path,
                            const QVariant& value, const QVariant& shown, const QByteArray& written) {
            QTest::newRow(name) << xml << path << value << shown << written;
        };
        row("measure", "<pivotEnergy:footprintArea uom='m2'>50</pivotEnergy:footprintArea>",
            {"pivotEnergy", "footprintArea"}, 61.5, 61.5,
            "<pivotEnergy:footprintArea uom=\"m2\">61.5</pivotEnergy:footprintArea>");
        row("code", "<pivotEnergy:mainMaterial codeSpace='s'>b</pivotEnergy:mainMaterial>",
            {"pivotEnergy", "mainMaterial"}, "é", "é",
            "<pivotEnergy:mainMaterial>é</pivotEnergy:mainMaterial>");
        row("text", "<energy:buildingType>house</energy:buildingType>", {"Energy", "buildingType"}, "tower",
            "tower", "<energy:buildingType>tower</energy:buildingType>");
        row("truth", "<energy:isLandmarked>true</energy:isLandmarked>", {"Energy", "isLandmarked"}, false,
            false, "<energy:isLandmarked>false</energy:isLandmarked>");
        row("number", "<utility:buildingHabitants>7</utility:buildingHabitants>",
            {"UtilityNetwork", "buildingHabitants"}, 8, QVariant(8LL),
            "<utility:buildingHabitants>8</utility:buildingHabitants>");
        row("long number", "<utility:buildingHabitants>7</utility:buildingHabitants>",
            {"UtilityNetwork", "buildingHabitants"}, 5000000000LL, QVariant(0LL),
            "<utility:buildingHabitants>0</utility:buildingHabitants>");
        row("year", "<pivotEnergy:yearOfRefurbishment>1999</pivotEnergy:yearOfRefurbishment>",
            {"pivotEnergy", "yearOfRefurbishment"}, 2001, 2001,
            "<pivotEnergy:yearOfRefurbishment>2001</pivotEnergy:yearOfRefurbishment>");
        row("enumeration", "<energy:constructionWeight>Heavy</energy:constructionWeight>",
            {"Energy", "constructionWeight"}, "Medium", "Medium",
            "<energy:constructionWeight>Medium</energy:constructionWeight>");
        row("free stage", "<pivotEnergy:nextLifeCycleStage>Refurbishment</pivotEnergy:nextLifeCycleStage>",
            {"pivotEnergy", "nextLifeCycleStage"}, "any stage", "any stage",
            "<pivotEnergy:nextLifeCycleStage>any stage</pivotEnergy:nextLifeCycleStage>");
    }

    /// Edits show at once, in the file and after a reload.
    void edits()
    {
        QFETCH(QByteArray, xml);
        QFETCH(QStringList, path);
        QFETCH(QVariant, value);
        QFETCH(QVariant, shown);
        QFETCH(QByteArray, written);
        FeatureDocument document(buildingText(xml));
        const QStringList fullPath = QStringList{"Properties"} + path;
        {
            const auto root = propertiesOf(document);
            findProperty(root, fullPath)->setValue(value);
            QCOMPARE(findProperty(root, fullPath)->value(), shown);
        }
        QVERIFY2(document.text().contains(written), document.text().constData());
        document.reload();
        const auto root = propertiesOf(document);
        QCOMPARE(findProperty(root, fullPath)->value(), shown);
    }
};

TEST_CLASS(GenericAttributesTest, Core)
#include "genericattributestest.moc"
