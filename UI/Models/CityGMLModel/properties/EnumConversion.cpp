#include "UI/Models/CityGMLModel/properties/ValueConversionDefinition.h"

#include "component/AllTypes.h"
#include "core/RelativeToTerrainType.hxx"
#include "core/RelativeToWaterType.hxx"
#include "energy/AllTypes.h"
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
#include "pivotEnergy/AllTypes.h"
#include "SMIL20/AllTypes.h"
#include "utility/AllTypes.h"

#include <xsd/cxx/tree/exceptions.hxx>

#include <type_traits>

namespace tolvik {

using namespace schema;

/// Literals of an enumerated type in order. Each type has a specialization.
template <typename E>
struct Literals;

namespace {

/// The literals as variants, made once for a process and shared by all.
template <typename E>
const QVariantList& literalVariants()
{
    // Never destroyed: properties in objects of static lifetime may be used after it.
    static const auto* const list = [] {
        auto* result = new QVariantList;
        for (const char* literal : Literals<E>::texts) {
            result->append(QVariant(QString::fromUtf8(literal)));
        }
        return result;
    }();
    return *list;
}

template <typename T>
struct EnumerationOf
{
    using Type = T;
};

template <typename E>
struct EnumerationOf<optional<E>>
{
    using Type = E;
};

} // namespace

template <typename E>
struct Conversion<E, std::void_t<decltype(Literals<E>::texts)>>
{
    static QVariant show(const E& value)
    {
        try {
            return literalVariants<E>().value(static_cast<typename E::value>(value));
        } catch (const xsd::cxx::tree::unexpected_enumerator<char>&) {
            // A text that is no literal, such as that of an object in its default state.
            return QVariant();
        }
    }
    static E read(const QVariant& value, const uri&)
    {
        E result;
        const int index = literalVariants<E>().indexOf(value.toString());
        if (index >= 0) {
            result = static_cast<typename E::value>(index);
        }
        return result;
    }
    static QVariant start() { return QVariant(); }
};

template <typename T>
QList<QVariant> getEnumList()
{
    return literalVariants<typename EnumerationOf<T>::Type>();
}

// One line a type, from which all that concerns it follows.
#define TOLVIK_LITERALS(prefix, Type)                                                                        \
    template <>                                                                                              \
    struct Literals<prefix::Type>                                                                            \
    {                                                                                                        \
        static constexpr const auto& texts = prefix::Type::_xsd_##Type##_literals_;                          \
    }
#define TOLVIK_ENUMERATION(prefix, Type)                                                                     \
    TOLVIK_LITERALS(prefix, Type);                                                                           \
    TOLVIK_INSTANTIATE_CONVERSION(prefix::Type);                                                             \
    TOLVIK_INSTANTIATE_CONVERSION(optional<prefix::Type>);                                                   \
    template CITYGMLMODEL_EXPORT QList<QVariant> getEnumList<prefix::Type>();                                \
    template CITYGMLMODEL_EXPORT QList<QVariant> getEnumList<optional<prefix::Type>>()

TOLVIK_ENUMERATION(gml, AesheticCriteriaType);
TOLVIK_ENUMERATION(gml, CompassPointEnumeration);
TOLVIK_ENUMERATION(gml, CurveInterpolationType);
TOLVIK_ENUMERATION(gml, DrawingTypeType);
TOLVIK_ENUMERATION(gml, GraphTypeType);
TOLVIK_ENUMERATION(gml, IncrementOrder);
TOLVIK_ENUMERATION(gml, KnotTypesType);
TOLVIK_ENUMERATION(gml, LineTypeType);
TOLVIK_ENUMERATION(gml, QueryGrammarEnumeration);
TOLVIK_ENUMERATION(gml, SequenceRuleNames);
TOLVIK_ENUMERATION(gml, SignType);
TOLVIK_ENUMERATION(gml, SuccessionType);
TOLVIK_ENUMERATION(gml, SurfaceInterpolationType);
TOLVIK_ENUMERATION(gml, SymbolTypeEnumeration);
TOLVIK_ENUMERATION(gml, TimeIndeterminateValueType);
TOLVIK_ENUMERATION(SMIL20, fillDefaultType);
TOLVIK_ENUMERATION(SMIL20, fillTimingAttrsType);
TOLVIK_ENUMERATION(SMIL20, restartDefaultType);
TOLVIK_ENUMERATION(SMIL20, restartTimingType);
TOLVIK_ENUMERATION(SMIL20, syncBehaviorDefaultType);
TOLVIK_ENUMERATION(SMIL20, syncBehaviorType);
TOLVIK_ENUMERATION(energy, AcquisitionMethodValue);
TOLVIK_ENUMERATION(energy, CellTypeValue);
TOLVIK_ENUMERATION(energy, CollectorTypeValue);
TOLVIK_ENUMERATION(energy, CompressorTypeValue);
TOLVIK_ENUMERATION(energy, CondensationTypeValue);
TOLVIK_ENUMERATION(energy, ConstructionWeightValue);
TOLVIK_ENUMERATION(energy, DayTypeValue);
TOLVIK_ENUMERATION(energy, DistributionTypeValue);
TOLVIK_ENUMERATION(energy, ElevationReferenceValue);
TOLVIK_ENUMERATION(energy, EmitterTypeValue);
TOLVIK_ENUMERATION(energy, EndUseTypeValue);
TOLVIK_ENUMERATION(energy, HeatSourceTypeValue);
TOLVIK_ENUMERATION(energy, HouseholdTypeValue);
TOLVIK_ENUMERATION(energy, InterpolationTypeValue);
TOLVIK_ENUMERATION(energy, MediumTypeValue);
TOLVIK_ENUMERATION(energy, ResidenceTypeValue);
TOLVIK_ENUMERATION(energy, SurfaceSide);
TOLVIK_ENUMERATION(energy, ThermalBoundaryTypeValue);
TOLVIK_ENUMERATION(energy, VolumeTypeValue);
TOLVIK_ENUMERATION(energy, WavelengthRangeType);
TOLVIK_ENUMERATION(energy, WeatherDataTypeValue);
TOLVIK_ENUMERATION(pivotEnergy, AccumulationScheduleEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, AirTighnessClassEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, BoilerTypeEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, BoundaryContextType);
TOLVIK_ENUMERATION(pivotEnergy, ColorType);
TOLVIK_ENUMERATION(pivotEnergy, CompressorTypeType);
TOLVIK_ENUMERATION(pivotEnergy, ConnectedCoolingEmitterTypeEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, ConnectedHeatingEmitterTypeEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, ConstructionPackageTypeEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, ContributorTypeType);
TOLVIK_ENUMERATION(pivotEnergy, DHWEmitterTypeEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, DisTemperatureManagementEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, DistributionPortionInsulationEnumType);
TOLVIK_ENUMERATION(pivotEnergy, DistributionTypeEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, DistrictHeatingTypeEnumType);
TOLVIK_ENUMERATION(pivotEnergy, ElectricHeatPumpEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, EmitterPriorityEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, EmitterProductionControlTypeEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, EmitterProgTypeEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, EmitterRegulationTypeEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, EnvironnementContextTypeType);
TOLVIK_ENUMERATION(pivotEnergy, FlowManagementEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, FuelTypeEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, FunctionEnumType);
TOLVIK_ENUMERATION(pivotEnergy, GasHeatPumpEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, GeneratorProductionControlTypeEnumType);
TOLVIK_ENUMERATION(pivotEnergy, ImpactCategoryType);
TOLVIK_ENUMERATION(pivotEnergy, InertiaClassType);
TOLVIK_ENUMERATION(pivotEnergy, InsulationTypeEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, LifeCycleStageEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, LightingManagementEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, LightingRegulationEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, LightsTypeEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, PhotovoltaicCollectorTypeEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, PriorityManagementEnumType);
TOLVIK_ENUMERATION(pivotEnergy, ShadingManagementEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, ShadingPositionEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, ShadingTypeEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, SolarHeatingCollectorTypeEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, StandaloneCoolingEmitterTypeEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, StandaloneHeatingEmitterTypeEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, StartAndStopManagementEnumerationType);
TOLVIK_ENUMERATION(pivotEnergy, TemperatureProductionManagementEnumType);
TOLVIK_ENUMERATION(pivotEnergy, VentilationTypeEnumType);
TOLVIK_ENUMERATION(pivotEnergy, WaterSourceTypeEnumerationType);
TOLVIK_ENUMERATION(utility, ElectricalMediumValueType);
TOLVIK_ENUMERATION(utility, InterFeatureLinkValueType);
TOLVIK_ENUMERATION(utility, NetworkClassValueType);
TOLVIK_ENUMERATION(utility, NetworkFunctionAndUsageValueType);
TOLVIK_ENUMERATION(utility, NodeValueType);
TOLVIK_ENUMERATION(utility, OpticalMediumValueType);
TOLVIK_ENUMERATION(utility, OpticalModeValueType);
TOLVIK_ENUMERATION(utility, SignalWordValueType);
TOLVIK_ENUMERATION(utility, SpatialQualityValueType);
TOLVIK_ENUMERATION(utility, StatusValueType);
TOLVIK_ENUMERATION(component, CloseShadingTypeType);
TOLVIK_ENUMERATION(component, OpeningManagementType);
TOLVIK_ENUMERATION(component, OpeningPositionType);
TOLVIK_ENUMERATION(component, OpeningTypePropertyEnumerationType);

// Bound as optional attributes only, and offered through their properties.
#define TOLVIK_OPTIONAL_ENUMERATION(prefix, Type)                                                            \
    TOLVIK_LITERALS(prefix, Type);                                                                           \
    TOLVIK_INSTANTIATE_CONVERSION(optional<prefix::Type>);                                                   \
    template QList<QVariant> getEnumList<optional<prefix::Type>>()

TOLVIK_OPTIONAL_ENUMERATION(core, RelativeToTerrainType);
TOLVIK_OPTIONAL_ENUMERATION(core, RelativeToWaterType);

} // namespace tolvik
