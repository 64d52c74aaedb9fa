#include "bldg/BuildingType.hxx"
#include "core/RelativeToTerrainType.hxx"
#include "framework/AbstractUnit.h"
#include "framework/SingleUnit.h"
#include "framework/UnitCreator.h"
#include "gml/CodeType.hxx"
#include "gml/DirectPositionType.hxx"
#include "gml/EnvelopeType.hxx"
#include "gml/LengthType.hxx"
#include "gml/MeasureOrNullListType.hxx"
#include "gml/StringOrRefType.hxx"
#include "gml/TimePeriodType.hxx"
#include "gml/TimePositionType.hxx"
#include "support/PropertyText.h"
#include "support/TestClass.h"
#include "UI/Models/CityGMLModel/properties/GmlAttributeProperty.h"
#include "UI/Models/CityGMLModel/properties/GmlEnumAttributeProperty.h"
#include "UI/Models/CityGMLModel/properties/SchemaValues.h"

#include <QtTest>

using namespace testsupport;

using namespace tolvik;
using namespace tolvik::schema;

namespace {

using Building = bldg::AbstractBuildingType;

/// A property below "Fields", which lives as long as the tree.
CoreProperty* field(const Fondo::RefPtr<CoreProperty>& root, const QString& name)
{
    return root->getProperty("Fields", false)->getProperty(name, false);
}

gml::LengthType length(double number, const char* uom)
{
    return gml::LengthType(number, uri(uom));
}

} // namespace

class AttributePropertyTest : public QObject
{
    Q_OBJECT

private slots:
    void aBoundPropertyIsBuiltByHand()
    {
        bldg::BuildingType building;
        building.measuredHeight(length(12.5, "m"));
        using Property = GmlAttributeProperty<Building, optional<gml::LengthType>>;
        const Fondo::RefPtr<CoreProperty> property(new Property(
            &building, "Any label", &Building::measuredHeight, &Building::measuredHeight, uri("m")));
        QCOMPARE(property->name(), QString("Any label"));
        QCOMPARE(property->value(), QVariant(12.5));
        QCOMPARE(property->unit()->name(), QString("m"));
        // Of a unit no more is known than its name.
        QCOMPARE(property->SIValue(), QVariant(12.5));
        QCOMPARE(property->displayValue(), QVariant("12.5 m"));
        QCOMPARE(property->defaultValue(), QVariant(0.0));
        QVERIFY(property->editable());
        QVERIFY(property->potentialValues().isEmpty());
        QVERIFY(property->properties().isEmpty());
    }

    void theLabelIsNotTheNameOfTheAccessor()
    {
        bldg::BuildingType building;
        building.class_(gml::CodeType("1000"));
        QCOMPARE(field(propertiesOf(building, false), "Class")->value(), QVariant("1000"));
    }

    void anEmptyUnitIsNone()
    {
        bldg::BuildingType building;
        building.measuredHeight(length(1, ""));
        building.roofType(gml::CodeType("1"));
        const auto root = propertiesOf(building, false);
        QVERIFY(field(root, "MeasuredHeight")->unit() == nullptr);
        QVERIFY(field(root, "RoofType")->unit() == nullptr);
        building.measuredHeight(length(1, "m"));
        QCOMPARE(field(propertiesOf(building, false), "MeasuredHeight")->unit(),
                 static_cast<AbstractUnit*>(UnitCreator::getOrCreateSingleUnit("m", 0, 1)));
    }

    void anAbsentAttributeIsEditable()
    {
        bldg::BuildingType building;
        const auto root = propertiesOf(building, false);
        CoreProperty* const property = field(root, "YearOfConstruction");
        QVERIFY(property->editable());
        QVERIFY(!property->value().isValid());
        QCOMPARE(property->defaultValue(), QVariant(QDate::currentDate().year()));
    }

    void theFirstEditMakesTheAttribute()
    {
        bldg::BuildingType building;
        const auto root = propertiesOf(building, false);
        field(root, "YearOfConstruction")->setValue(1789);
        QCOMPARE(building.yearOfConstruction()->year(), 1789);
        field(root, "YearOfConstruction")->setValue(QVariant());
        QVERIFY(building.yearOfConstruction().present());
        QCOMPARE(building.yearOfConstruction()->year(), 0);
    }

    void valueIsThatOfTheDocument()
    {
        bldg::BuildingType building;
        const auto root = propertiesOf(building, false);
        CoreProperty* const property = field(root, "MeasuredHeight");
        property->setValue("abc");
        QCOMPARE(property->value(), QVariant(0.0));
        building.measuredHeight(length(3.5, "m"));
        QCOMPARE(property->value(), QVariant(3.5));
        building.measuredHeight().reset();
        QVERIFY(!property->value().isValid());
    }

    /// The base keeps what was asked for, beside the document.
    void theBaseRecordsTheEdit()
    {
        bldg::BuildingType building;
        const auto root = propertiesOf(building, false);
        CoreProperty* const property = field(root, "MeasuredHeight");
        property->setValue("abc");
        QCOMPARE(property->CoreProperty::value(), QVariant("abc"));
    }

    void twoPropertiesOfOneAttribute()
    {
        bldg::BuildingType building;
        const auto first = propertiesOf(building, false);
        const auto second = propertiesOf(building, false);
        field(first, "StoreysAboveGround")->setValue(7);
        QCOMPARE(field(second, "StoreysAboveGround")->value(), QVariant(qulonglong(7)));
    }

    void anEditKeepsTheUnit()
    {
        bldg::BuildingType building;
        building.measuredHeight(length(12.5, "ft"));
        const auto root = propertiesOf(building, false);
        field(root, "MeasuredHeight")->setValue(13);
        QCOMPARE(building.measuredHeight()->uom(), std::string("ft"));
        QCOMPARE(static_cast<double>(building.measuredHeight().get()), 13.0);
    }

    /// The unit is that of the time when the property was made.
    void theUnitIsFixed()
    {
        bldg::BuildingType building;
        const auto root = propertiesOf(building, false);
        building.measuredHeight(length(12.5, "ft"));
        field(root, "MeasuredHeight")->setValue(13);
        QCOMPARE(building.measuredHeight()->uom(), std::string());
        QVERIFY(field(root, "MeasuredHeight")->unit() == nullptr);
    }

    void anAbsentMeasureGetsAnEmptyUnit()
    {
        bldg::BuildingType building;
        field(propertiesOf(building, false), "MeasuredHeight")->setValue(5);
        QCOMPARE(building.measuredHeight()->uom(), std::string());
        field(propertiesOf(building, false), "StoreyHeightsAboveGround")
            ->setValue(QVariantList{3, "unknown"});
        QCOMPARE(building.storeyHeightsAboveGround()->size(), std::size_t(2));
        QCOMPARE(building.storeyHeightsAboveGround()->uom(), std::string());
    }

    void aUriKeepsAllButItsText()
    {
        gml::TimePositionType position("2020-01-01");
        position.frame(uri("#ISO-8601"));
        const uri* const before = &position.frame();
        using Property = GmlAttributeProperty<gml::TimePositionType, uri>;
        const Fondo::RefPtr<CoreProperty> property(new Property(
            &position, "frame", &gml::TimePositionType::frame, &gml::TimePositionType::frame, uri("")));
        property->setValue("#other");
        QCOMPARE(&position.frame(), before);
        QCOMPARE(position.frame(), std::string("#other"));
        QCOMPARE(position.frame()._container(), static_cast<const xml_schema::container*>(&position));
    }

    void anEditOfCodesRemovesTheirCodeSpaces()
    {
        bldg::BuildingType building;
        for (const char* code : {"1000", "1010"}) {
            gml::CodeType function(code);
            function.codeSpace(uri("space"));
            building.function().push_back(function);
        }
        const auto root = propertiesOf(building, false);
        CoreProperty* const property = field(root, "Function");
        property->setValue(property->value());
        QCOMPARE(property->value(), QVariant(QVariantList{"1000", "1010"}));
        for (const gml::CodeType& code : building.function()) {
            QVERIFY(!code.codeSpace().present());
        }
    }

    void anEditOfASequenceReplacesIt()
    {
        bldg::BuildingType building;
        building.function().push_back(gml::CodeType("1000"));
        const auto root = propertiesOf(building, false);
        field(root, "Function")->setValue(QVariantList{"a", "b", "c"});
        QCOMPARE(building.function().size(), std::size_t(3));
        field(root, "Function")->setValue(QVariant());
        QVERIFY(building.function().empty());
    }

    void anEditOfADurationRemovesIt()
    {
        gml::TimePeriodType period;
        period.duration(duration(false, 1, 2, 3, 4, 5, 6.0));
        using Property = GmlAttributeProperty<gml::TimePeriodType, optional<duration>>;
        const Fondo::RefPtr<CoreProperty> property(new Property(
            &period, "duration", &gml::TimePeriodType::duration, &gml::TimePeriodType::duration, uri("")));
        QCOMPARE(property->value(), QVariant(QDateTime(QDate(1, 2, 3), QTime(4, 5, 6))));
        property->setValue(QDateTime::currentDateTime());
        QVERIFY(!period.duration().present());
    }

    void anEditOfAPositionRemovesIt()
    {
        gml::EnvelopeType envelope;
        gml::DirectPositionType corner;
        corner.push_back(1.0);
        envelope.lowerCorner(corner);
        using Property = GmlAttributeProperty<gml::EnvelopeType, optional<gml::DirectPositionType>>;
        const Fondo::RefPtr<CoreProperty> property(new Property(&envelope, "LowerCorner",
                                                                &gml::EnvelopeType::lowerCorner,
                                                                &gml::EnvelopeType::lowerCorner, uri("")));
        QVERIFY(property->editable());
        QCOMPARE(property->value(), QVariant(QVariantList{1.0}));
        property->setValue(QVariantList{2.0, 3.0});
        QVERIFY(!envelope.lowerCorner().present());
    }

    void aTextWithReferenceLosesIt()
    {
        bldg::BuildingType building;
        gml::StringOrRefType description("old");
        description.href(uri("#ref"));
        building.description(description);
        field(propertiesOf(building, false), "Description")->setValue("new");
        QCOMPARE(static_cast<const std::string&>(building.description().get()), std::string("new"));
        QVERIFY(!building.description()->href().present());
    }

    void enumerationsOfferTheirLiterals()
    {
        bldg::BuildingType building;
        const auto root = propertiesOf(building, false);
        CoreProperty* const property = field(root, "RelativeToTerrain");
        QCOMPARE(property->potentialValues().size(), 5);
        QVERIFY(!property->defaultValue().isValid());
        for (const QVariant& literal : property->potentialValues()) {
            property->setValue(literal);
            QCOMPARE(property->value(), literal);
            QCOMPARE(static_cast<const std::string&>(building.relativeToTerrain().get()),
                     literal.toString().toStdString());
        }
        property->setValue("beside the terrain");
        QVERIFY(building.relativeToTerrain().present());
        QVERIFY(!property->value().isValid());
        QVERIFY(field(propertiesOf(building, false), "RelativeToTerrain")
                    ->potentialValues()
                    .isSharedWith(property->potentialValues()));
    }

    /// There may be millions of them.
    void aPropertyIsSmall()
    {
        using Property = GmlAttributeProperty<Building, optional<gml::LengthType>>;
        QVERIFY2(sizeof(Property) <= 200, qPrintable(QString::number(sizeof(Property))));
    }
};

TEST_CLASS(AttributePropertyTest, Core)
#include "attributepropertytest.moc"
