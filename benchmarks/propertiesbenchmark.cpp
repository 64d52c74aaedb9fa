// The property trees of all rows, beside the time that reading takes.

#include "bldg/AbstractBuildingType.hxx"
#include "citygml/OtherContent.h"
#include "Measure.h"
#include "Subject.h"
#include "UI/Models/CityGMLModel/properties/GmlAttributeProperty.h"
#include "UI/Models/CityGMLModel/properties/GmlCorePropertyCreator.h"

#include <vector>

using namespace tolvik;

namespace {

using Trees = std::vector<Fondo::RefPtr<CoreProperty>>;
using HeightProperty =
    GmlAttributeProperty<bldg::AbstractBuildingType, bldg::AbstractBuildingType::measuredHeight_optional>;

std::vector<gml::AbstractFeatureType*> allFeatures()
{
    const CityGMLModel& model = Subject::current().model();
    std::vector<gml::AbstractFeatureType*> result;
    for (int row = 0; row < model.rowCount(); ++row) {
        result.push_back(model.getFeature(row));
    }
    return result;
}

std::size_t countProperties(const CoreProperty& property)
{
    std::size_t result = 1;
    for (const auto& child : property.properties()) {
        result += countProperties(*child);
    }
    return result;
}

/// The first property below \a property that the document has a number for, or null.
CoreProperty* findNumber(CoreProperty& property)
{
    for (const auto& child : property.properties()) {
        if (child->editable() && child->value().type() == QVariant::Double) {
            return child.get();
        }
        if (CoreProperty* const found = findNumber(*child)) {
            return found;
        }
    }
    return nullptr;
}

/// The argument is 1 for what is there alone, as loading does it, and 0 for absent attributes too. Bytes are
/// those of everything in the trees: properties, groups, labels, lists of children.
void buildProperties(benchmark::State& state)
{
    const std::vector<gml::AbstractFeatureType*> features = allFeatures();
    const bool existingOnly = state.range(0) != 0;
    Measure measure(state);
    double bytes = 0;
    std::size_t properties = 0;
    while (state.KeepRunning()) {
        Trees trees;
        trees.reserve(features.size());
        const double before = allocatedBytes();
        measure.iteration([&] {
            for (gml::AbstractFeatureType* const feature : features) {
                trees.emplace_back(GmlCorePropertyCreator::createProperty(feature, existingOnly));
            }
        });
        bytes = allocatedBytes() - before;
        properties = 0;
        for (const auto& tree : trees) {
            properties += countProperties(*tree);
        }
    }
    const double count = static_cast<double>(properties);
    state.counters["properties"] = count;
    state.counters["ns_per_property"] = measure.seconds() * 1e9 / count;
    state.counters["bytes_per_property"] = bytes / count;
    state.counters["bytes_of_bound_property"] = sizeof(HeightProperty);
    measure.setRatio("times_read", Subject::current().readSeconds());
}

/// What the first request for a row's properties costs on top, for all rows.
void findOtherContent(benchmark::State& state)
{
    const CityGMLModel& model = Subject::current().model();
    const std::vector<gml::AbstractFeatureType*> features = allFeatures();
    const auto hasRow = [&](gml::AbstractFeatureType& inner) { return model.getRow(&inner) >= 0; };
    Measure measure(state);
    std::size_t shown = 0;
    while (state.KeepRunning()) {
        shown = 0;
        measure.iteration([&] {
            for (gml::AbstractFeatureType* const feature : features) {
                shown += citygml::otherContentOf(*feature, hasRow).empty() ? 0 : 1;
            }
        });
    }
    state.counters["rows_with_content"] = static_cast<double>(shown);
    state.counters["us_per_row"] = measure.seconds() * 1e6 / static_cast<double>(features.size());
    measure.setRatio("times_read", Subject::current().readSeconds());
}

void valueOfNumber(benchmark::State& state)
{
    Trees trees;
    CoreProperty* number = nullptr;
    for (gml::AbstractFeatureType* const feature : allFeatures()) {
        trees.assign(1, GmlCorePropertyCreator::createProperty(feature, true));
        number = findNumber(*trees.front());
        if (number != nullptr) {
            break;
        }
    }
    if (number == nullptr) {
        state.SkipWithError("The document has no property that is a number");
        return;
    }
    while (state.KeepRunning()) {
        QVariant value = number->value();
        benchmark::DoNotOptimize(value);
    }
    state.SetLabel(number->name().toStdString());
}

} // namespace

BENCHMARK(buildProperties)
    ->ArgName("existingOnly")
    ->Arg(1)
    ->Arg(0)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(findOtherContent)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(valueOfNumber);
