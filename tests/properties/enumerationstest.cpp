#include "component/CloseShadingTypeType.hxx"
#include "component/OpeningManagementType.hxx"
#include "component/OpeningPositionType.hxx"
#include "component/OpeningTypePropertyEnumerationType.hxx"
#include "energy/AcquisitionMethodValue.hxx"
#include "energy/CellTypeValue.hxx"
#include "energy/CollectorTypeValue.hxx"
#include "energy/CompressorTypeValue.hxx"
#include "energy/CondensationTypeValue.hxx"
#include "energy/ConstructionWeightValue.hxx"
#include "energy/DayTypeValue.hxx"
#include "energy/DistributionTypeValue.hxx"
#include "energy/ElevationReferenceValue.hxx"
#include "energy/EmitterTypeValue.hxx"
#include "energy/EndUseTypeValue.hxx"
#include "energy/HeatSourceTypeValue.hxx"
#include "energy/HouseholdTypeValue.hxx"
#include "energy/InterpolationTypeValue.hxx"
#include "energy/MediumTypeValue.hxx"
#include "energy/ResidenceTypeValue.hxx"
#include "energy/SurfaceSide.hxx"
#include "energy/ThermalBoundaryTypeValue.hxx"
#include "energy/VolumeTypeValue.hxx"
#include "energy/WavelengthRangeType.hxx"
#include "energy/WeatherDataTypeValue.hxx"
#include "gml/AesheticCriteriaType.hxx"
#include "gml/CompassPointEnumeration.hxx"
#include "gml/CurveInterpolationType.hxx"
#include "gml/DrawingTypeType.hxx"
#include "gml/GraphTypeType.hxx"
#include "gml/IncrementOrder.hxx"
#include "gml/KnotTypesType.hxx"
#include "gml/LineTypeType.hxx"
#include "gml/QueryGrammarEnumeration.hxx"
#include "gml/SequenceRuleNames.hxx"
#include "gml/SignType.hxx"
#include "gml/SuccessionType.hxx"
#include "gml/SurfaceInterpolationType.hxx"
#include "gml/SymbolTypeEnumeration.hxx"
#include "gml/TimeIndeterminateValueType.hxx"
#include "pivotEnergy/AccumulationScheduleEnumerationType.hxx"
#include "pivotEnergy/AirTighnessClassEnumerationType.hxx"
#include "pivotEnergy/BoilerTypeEnumerationType.hxx"
#include "pivotEnergy/BoundaryContextType.hxx"
#include "pivotEnergy/ColorType.hxx"
#include "pivotEnergy/CompressorTypeType.hxx"
#include "pivotEnergy/ConnectedCoolingEmitterTypeEnumerationType.hxx"
#include "pivotEnergy/ConnectedHeatingEmitterTypeEnumerationType.hxx"
#include "pivotEnergy/ConstructionPackageTypeEnumerationType.hxx"
#include "pivotEnergy/ContributorTypeType.hxx"
#include "pivotEnergy/DHWEmitterTypeEnumerationType.hxx"
#include "pivotEnergy/DisTemperatureManagementEnumerationType.hxx"
#include "pivotEnergy/DistributionPortionInsulationEnumType.hxx"
#include "pivotEnergy/DistributionTypeEnumerationType.hxx"
#include "pivotEnergy/DistrictHeatingTypeEnumType.hxx"
#include "pivotEnergy/ElectricHeatPumpEnumerationType.hxx"
#include "pivotEnergy/EmitterPriorityEnumerationType.hxx"
#include "pivotEnergy/EmitterProductionControlTypeEnumerationType.hxx"
#include "pivotEnergy/EmitterProgTypeEnumerationType.hxx"
#include "pivotEnergy/EmitterRegulationTypeEnumerationType.hxx"
#include "pivotEnergy/EnvironnementContextTypeType.hxx"
#include "pivotEnergy/FlowManagementEnumerationType.hxx"
#include "pivotEnergy/FuelTypeEnumerationType.hxx"
#include "pivotEnergy/FunctionEnumType.hxx"
#include "pivotEnergy/GasHeatPumpEnumerationType.hxx"
#include "pivotEnergy/GeneratorProductionControlTypeEnumType.hxx"
#include "pivotEnergy/ImpactCategoryType.hxx"
#include "pivotEnergy/InertiaClassType.hxx"
#include "pivotEnergy/InsulationTypeEnumerationType.hxx"
#include "pivotEnergy/LifeCycleStageEnumerationType.hxx"
#include "pivotEnergy/LightingManagementEnumerationType.hxx"
#include "pivotEnergy/LightingRegulationEnumerationType.hxx"
#include "pivotEnergy/LightsTypeEnumerationType.hxx"
#include "pivotEnergy/PhotovoltaicCollectorTypeEnumerationType.hxx"
#include "pivotEnergy/PriorityManagementEnumType.hxx"
#include "pivotEnergy/ShadingManagementEnumerationType.hxx"
#include "pivotEnergy/ShadingPositionEnumerationType.hxx"
#include "pivotEnergy/ShadingTypeEnumerationType.hxx"
#include "pivotEnergy/SolarHeatingCollectorTypeEnumerationType.hxx"
#include "pivotEnergy/StandaloneCoolingEmitterTypeEnumerationType.hxx"
#include "pivotEnergy/StandaloneHeatingEmitterTypeEnumerationType.hxx"
#include "pivotEnergy/StartAndStopManagementEnumerationType.hxx"
#include "pivotEnergy/TemperatureProductionManagementEnumType.hxx"
#include "pivotEnergy/VentilationTypeEnumType.hxx"
#include "pivotEnergy/WaterSourceTypeEnumerationType.hxx"
#include "SMIL20/fillDefaultType.hxx"
#include "SMIL20/fillTimingAttrsType.hxx"
#include "SMIL20/restartDefaultType.hxx"
#include "SMIL20/restartTimingType.hxx"
#include "SMIL20/syncBehaviorDefaultType.hxx"
#include "SMIL20/syncBehaviorType.hxx"
#include "support/Tables.h"
#include "support/TestClass.h"
#include "UI/Models/CityGMLModel/properties/SchemaValues.h"
#include "UI/Models/CityGMLModel/properties/ValueConversion.h"
#include "utility/ElectricalMediumValueType.hxx"
#include "utility/InterFeatureLinkValueType.hxx"
#include "utility/NetworkClassValueType.hxx"
#include "utility/NetworkFunctionAndUsageValueType.hxx"
#include "utility/NodeValueType.hxx"
#include "utility/OpticalMediumValueType.hxx"
#include "utility/OpticalModeValueType.hxx"
#include "utility/SignalWordValueType.hxx"
#include "utility/SpatialQualityValueType.hxx"
#include "utility/StatusValueType.hxx"

#include <QFile>
#include <QtTest>

using namespace testsupport;

using namespace tolvik;
using namespace tolvik::schema;

// The types with literals to choose from.
#define ENUMERATED_TYPES(V)                                                                                  \
    V(gml, AesheticCriteriaType)                                                                             \
    V(gml, CompassPointEnumeration)                                                                          \
    V(gml, CurveInterpolationType)                                                                           \
    V(gml, DrawingTypeType)                                                                                  \
    V(gml, GraphTypeType)                                                                                    \
    V(gml, IncrementOrder)                                                                                   \
    V(gml, KnotTypesType)                                                                                    \
    V(gml, LineTypeType)                                                                                     \
    V(gml, QueryGrammarEnumeration)                                                                          \
    V(gml, SequenceRuleNames)                                                                                \
    V(gml, SignType)                                                                                         \
    V(gml, SuccessionType)                                                                                   \
    V(gml, SurfaceInterpolationType)                                                                         \
    V(gml, SymbolTypeEnumeration)                                                                            \
    V(gml, TimeIndeterminateValueType)                                                                       \
    V(SMIL20, fillDefaultType)                                                                               \
    V(SMIL20, fillTimingAttrsType)                                                                           \
    V(SMIL20, restartDefaultType)                                                                            \
    V(SMIL20, restartTimingType)                                                                             \
    V(SMIL20, syncBehaviorDefaultType)                                                                       \
    V(SMIL20, syncBehaviorType)                                                                              \
    V(energy, AcquisitionMethodValue)                                                                        \
    V(energy, CellTypeValue)                                                                                 \
    V(energy, CollectorTypeValue)                                                                            \
    V(energy, CompressorTypeValue)                                                                           \
    V(energy, CondensationTypeValue)                                                                         \
    V(energy, ConstructionWeightValue)                                                                       \
    V(energy, DayTypeValue)                                                                                  \
    V(energy, DistributionTypeValue)                                                                         \
    V(energy, ElevationReferenceValue)                                                                       \
    V(energy, EmitterTypeValue)                                                                              \
    V(energy, EndUseTypeValue)                                                                               \
    V(energy, HeatSourceTypeValue)                                                                           \
    V(energy, HouseholdTypeValue)                                                                            \
    V(energy, InterpolationTypeValue)                                                                        \
    V(energy, MediumTypeValue)                                                                               \
    V(energy, ResidenceTypeValue)                                                                            \
    V(energy, SurfaceSide)                                                                                   \
    V(energy, ThermalBoundaryTypeValue)                                                                      \
    V(energy, VolumeTypeValue)                                                                               \
    V(energy, WavelengthRangeType)                                                                           \
    V(energy, WeatherDataTypeValue)                                                                          \
    V(pivotEnergy, AccumulationScheduleEnumerationType)                                                      \
    V(pivotEnergy, AirTighnessClassEnumerationType)                                                          \
    V(pivotEnergy, BoilerTypeEnumerationType)                                                                \
    V(pivotEnergy, BoundaryContextType)                                                                      \
    V(pivotEnergy, ColorType)                                                                                \
    V(pivotEnergy, CompressorTypeType)                                                                       \
    V(pivotEnergy, ConnectedCoolingEmitterTypeEnumerationType)                                               \
    V(pivotEnergy, ConnectedHeatingEmitterTypeEnumerationType)                                               \
    V(pivotEnergy, ConstructionPackageTypeEnumerationType)                                                   \
    V(pivotEnergy, ContributorTypeType)                                                                      \
    V(pivotEnergy, DHWEmitterTypeEnumerationType)                                                            \
    V(pivotEnergy, DisTemperatureManagementEnumerationType)                                                  \
    V(pivotEnergy, DistributionPortionInsulationEnumType)                                                    \
    V(pivotEnergy, DistributionTypeEnumerationType)                                                          \
    V(pivotEnergy, DistrictHeatingTypeEnumType)                                                              \
    V(pivotEnergy, ElectricHeatPumpEnumerationType)                                                          \
    V(pivotEnergy, EmitterPriorityEnumerationType)                                                           \
    V(pivotEnergy, EmitterProductionControlTypeEnumerationType)                                              \
    V(pivotEnergy, EmitterProgTypeEnumerationType)                                                           \
    V(pivotEnergy, EmitterRegulationTypeEnumerationType)                                                     \
    V(pivotEnergy, EnvironnementContextTypeType)                                                             \
    V(pivotEnergy, FlowManagementEnumerationType)                                                            \
    V(pivotEnergy, FuelTypeEnumerationType)                                                                  \
    V(pivotEnergy, FunctionEnumType)                                                                         \
    V(pivotEnergy, GasHeatPumpEnumerationType)                                                               \
    V(pivotEnergy, GeneratorProductionControlTypeEnumType)                                                   \
    V(pivotEnergy, ImpactCategoryType)                                                                       \
    V(pivotEnergy, InertiaClassType)                                                                         \
    V(pivotEnergy, InsulationTypeEnumerationType)                                                            \
    V(pivotEnergy, LifeCycleStageEnumerationType)                                                            \
    V(pivotEnergy, LightingManagementEnumerationType)                                                        \
    V(pivotEnergy, LightingRegulationEnumerationType)                                                        \
    V(pivotEnergy, LightsTypeEnumerationType)                                                                \
    V(pivotEnergy, PhotovoltaicCollectorTypeEnumerationType)                                                 \
    V(pivotEnergy, PriorityManagementEnumType)                                                               \
    V(pivotEnergy, ShadingManagementEnumerationType)                                                         \
    V(pivotEnergy, ShadingPositionEnumerationType)                                                           \
    V(pivotEnergy, ShadingTypeEnumerationType)                                                               \
    V(pivotEnergy, SolarHeatingCollectorTypeEnumerationType)                                                 \
    V(pivotEnergy, StandaloneCoolingEmitterTypeEnumerationType)                                              \
    V(pivotEnergy, StandaloneHeatingEmitterTypeEnumerationType)                                              \
    V(pivotEnergy, StartAndStopManagementEnumerationType)                                                    \
    V(pivotEnergy, TemperatureProductionManagementEnumType)                                                  \
    V(pivotEnergy, VentilationTypeEnumType)                                                                  \
    V(pivotEnergy, WaterSourceTypeEnumerationType)                                                           \
    V(utility, ElectricalMediumValueType)                                                                    \
    V(utility, InterFeatureLinkValueType)                                                                    \
    V(utility, NetworkClassValueType)                                                                        \
    V(utility, NetworkFunctionAndUsageValueType)                                                             \
    V(utility, NodeValueType)                                                                                \
    V(utility, OpticalMediumValueType)                                                                       \
    V(utility, OpticalModeValueType)                                                                         \
    V(utility, SignalWordValueType)                                                                          \
    V(utility, SpatialQualityValueType)                                                                      \
    V(utility, StatusValueType)                                                                              \
    V(component, CloseShadingTypeType)                                                                       \
    V(component, OpeningManagementType)                                                                      \
    V(component, OpeningPositionType)                                                                        \
    V(component, OpeningTypePropertyEnumerationType)

namespace {

const uri none("");

/// Compares everything of one type with the table.
template <typename E>
void compareType(const char* name)
{
    const QVariantList literals = enumerationLiterals().value(name);
    QVERIFY2(!literals.isEmpty(), name);
    QCOMPARE(getEnumList<E>(), literals);
    QCOMPARE(getEnumList<optional<E>>(), literals);
    for (int i = 0; i < literals.size(); ++i) {
        const E value = fromQVariant<E>(literals.at(i), none);
        QCOMPARE(static_cast<int>(static_cast<typename E::value>(value)), i);
        QCOMPARE(static_cast<const std::string&>(value), literals.at(i).toString().toStdString());
        QCOMPARE(toQVariant<E>(value), literals.at(i));
        const optional<E> present = fromQVariant<optional<E>>(literals.at(i), none);
        QVERIFY(present.present());
        QCOMPARE(static_cast<int>(static_cast<typename E::value>(present.get())), i);
        QCOMPARE(toQVariant<optional<E>>(present), literals.at(i));
    }
    QVERIFY(!toQVariant<optional<E>>(optional<E>()).isValid());
    QVERIFY(!defaultValue<E>().isValid());
    QVERIFY(!defaultValue<optional<E>>().isValid());
    for (const QVariant& wrong :
         {QVariant(), QVariant(""), QVariant("no literal"), QVariant(0), QVariant(QVariantList())}) {
        QCOMPARE(static_cast<const std::string&>(fromQVariant<E>(wrong, none)),
                 static_cast<const std::string&>(E()));
        QVERIFY(fromQVariant<optional<E>>(wrong, none).present());
        QVERIFY(!toQVariant<E>(fromQVariant<E>(wrong, none)).isValid());
    }
}

} // namespace

class EnumerationsTest : public QObject
{
    Q_OBJECT

private slots:
    void theTypesAreThoseOfTheTable()
    {
        QStringList types{"core::RelativeToTerrainType", "core::RelativeToWaterType"};
#define NAME(prefix, Type) types += #prefix "::" #Type;
        ENUMERATED_TYPES(NAME)
#undef NAME
        types.sort();
        QCOMPARE(types, QStringList(enumerationLiterals().keys()));
        QCOMPARE(types.size(), 103);
    }

    void literals_data()
    {
        QTest::addColumn<int>("number");
        int number = 0;
#define ROW(prefix, Type) QTest::newRow(#prefix "::" #Type) << number++;
        ENUMERATED_TYPES(ROW)
#undef ROW
    }

    void literals()
    {
        QFETCH(int, number);
#define COMPARE(prefix, Type)                                                                                \
    if (number-- == 0) {                                                                                     \
        compareType<prefix::Type>(#prefix "::" #Type);                                                       \
    }
        ENUMERATED_TYPES(COMPARE)
#undef COMPARE
    }

    /// All lists of a type are one list, whose storage is shared.
    void literalsAreShared()
    {
        const QVariantList first = getEnumList<gml::SignType>();
        const QVariantList second = getEnumList<optional<gml::SignType>>();
        QVERIFY(first.isSharedWith(second));
    }

    void signs()
    {
        const QVariantList expected{"-", "+"};
        QCOMPARE(getEnumList<gml::SignType>(), expected);
        QCOMPARE(getEnumList<optional<gml::SignType>>(), expected);
        QVERIFY(fromQVariant<optional<gml::SignType>>("x", none).present());
        const gml::SignType::value plus = fromQVariant<gml::SignType>("+", uri("whatever"));
        QCOMPARE(static_cast<int>(plus), 1);
    }

    void caseCounts()
    {
        using Weight = energy::ConstructionWeightValue;
        QCOMPARE(toQVariant<Weight>(fromQVariant<Weight>("Light", none)), QVariant("Light"));
        QVERIFY(!toQVariant<Weight>(fromQVariant<Weight>("light", none)).isValid());
        QVERIFY(!toQVariant<Weight>(fromQVariant<Weight>(" Light", none)).isValid());
    }

    void oddCharactersSurvive()
    {
        using Category = pivotEnergy::ImpactCategoryType;
        const QString odd =
            QString("DepletionOfAbioticResources") + QChar(0xe2) + QChar(0x20ac) + QChar(0x201c);
        for (const char* end : {"Elements", "FossilFuels"}) {
            const Category value = fromQVariant<Category>(odd + end, none);
            QCOMPARE(toQVariant<Category>(value), QVariant(odd + end));
        }
        QCOMPARE(getEnumList<Category>().at(0).toString(), odd + "Elements");
        QCOMPARE(getEnumList<Category>().at(1).toString(), odd + "FossilFuels");
    }

    void equalLiteralsOfDistinctTypes()
    {
        using Emitter = pivotEnergy::EmitterProductionControlTypeEnumerationType;
        using Generator = pivotEnergy::GeneratorProductionControlTypeEnumType;
        QCOMPARE(getEnumList<Emitter>(), getEnumList<Generator>());
        const bool areOneType = std::is_same_v<Emitter, Generator>;
        QVERIFY(!areOneType);
    }

    /// A text of a document that is no literal shows nothing, and does not throw.
    void unknownTextOfADocument()
    {
        const gml::SignType unknown("?");
        QVERIFY(!toQVariant<gml::SignType>(unknown).isValid());
        QVERIFY(!toQVariant<optional<gml::SignType>>(optional<gml::SignType>(unknown)).isValid());
    }
};

TEST_CLASS(EnumerationsTest, Core)
#include "enumerationstest.moc"
