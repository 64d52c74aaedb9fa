// The feature tree over a loaded document, beside the time that loading took.

#include "bldg/BuildingType.hxx"
#include "core/CityModelType.hxx"
#include "gml/FeaturePropertyType.hxx"
#include "Measure.h"
#include "Subject.h"
#include "UI/Models/CityGMLModel/CityGMLProxyModel.h"

#include <map>
#include <random>
#include <stdexcept>
#include <vector>

using namespace tolvik;

namespace {

constexpr int sampleSize = 4096;
constexpr int passes = 8;
constexpr int viewRows = 64;
constexpr int lookUps = 20;
constexpr int insertions = 5;

int countNodes(const CityGMLModel& model, const CityGMLProxyModel& tree)
{
    int result = 0;
    for (int row = 0; row < model.rowCount(); ++row) {
        result += tree.treeNode(model.getFeature(row)) != nullptr;
    }
    return result;
}

/// Rows that have nodes, in no order: runs of neighbours, as a view shows them, from all over the document.
std::vector<QModelIndex> sampleRows(const CityGMLModel& model, const CityGMLProxyModel& tree, int neighbours)
{
    std::vector<QModelIndex> result;
    std::minstd_rand random;
    while (result.size() < sampleSize) {
        const int first = static_cast<int>(random() % unsigned(model.rowCount()));
        for (int row = first; row < first + neighbours && result.size() < sampleSize; ++row) {
            const QModelIndex index = model.index(row, 0);
            if (tree.mapFromSource(index).isValid()) {
                result.push_back(index);
            }
        }
    }
    return result;
}

void buildTree(benchmark::State& state)
{
    CityGMLModel& model = Subject::current().model();
    Measure measure(state);
    double bytes = 0;
    int nodes = 0;
    while (state.KeepRunning()) {
        const double before = allocatedBytes();
        CityGMLProxyModel tree;
        measure.iteration([&] { tree.setSourceModel(&model); });
        bytes = allocatedBytes() - before;
        nodes = countNodes(model, tree);
    }
    state.counters["nodes"] = nodes;
    state.counters["ns_per_node"] = measure.seconds() * 1e9 / nodes;
    state.counters["bytes_per_node"] = bytes / nodes;
    state.counters["load_ms"] = Subject::current().loadSeconds() * 1e3;
    measure.setRatio("times_load", Subject::current().loadSeconds());
}

/// Times \a operation for each place of a sample of rows, in turn with a search for the features of the same
/// rows in an ordered map of all features, which a mapping cannot do without.
template <class Operation>
void lookUp(benchmark::State& state, const std::vector<QModelIndex>& rows, Operation operation)
{
    const CityGMLModel& model = Subject::current().model();
    std::map<gml::AbstractFeatureType*, int> rowByFeature;
    for (int row = 0; row < model.rowCount(); ++row) {
        rowByFeature.emplace_hint(rowByFeature.end(), model.getFeature(row), row);
    }
    std::vector<gml::AbstractFeatureType*> features;
    features.reserve(rows.size());
    for (const QModelIndex& row : rows) {
        features.push_back(model.getFeature(row));
    }
    const auto time = [](auto work) {
        const double start = elapsedSeconds();
        for (int pass = 0; pass < passes; ++pass) {
            for (std::size_t i = 0; i < sampleSize; ++i) {
                auto result = work(i);
                benchmark::DoNotOptimize(result);
            }
        }
        return (elapsedSeconds() - start) / (passes * sampleSize);
    };
    double operations = 0;
    double searches = 0;
    while (state.KeepRunning()) {
        searches += time([&](std::size_t i) { return rowByFeature.find(features[i]); });
        const double seconds = time(operation);
        state.SetIterationTime(seconds);
        operations += seconds;
    }
    state.counters["ns_per_search"] = searches * 1e9 / static_cast<double>(state.iterations());
    state.counters["times_search"] = operations / searches;
}

void mapOneIndex(benchmark::State& state)
{
    CityGMLModel& model = Subject::current().model();
    CityGMLProxyModel tree;
    tree.setSourceModel(&model);
    const std::vector<QModelIndex> rows = sampleRows(model, tree, static_cast<int>(state.range(0)));
    lookUp(state, rows, [&](std::size_t i) { return tree.mapFromSource(rows[i]); });
}

void dataOfOneIndex(benchmark::State& state)
{
    CityGMLModel& model = Subject::current().model();
    CityGMLProxyModel tree;
    tree.setSourceModel(&model);
    const std::vector<QModelIndex> rows = sampleRows(model, tree, static_cast<int>(state.range(0)));
    std::vector<QModelIndex> nodes;
    nodes.reserve(rows.size());
    for (const QModelIndex& row : rows) {
        nodes.push_back(tree.mapFromSource(row));
    }
    const int role = static_cast<int>(state.range(1));
    lookUp(state, rows, [&](std::size_t i) { return tree.data(nodes[i], role); });
}

/// With a tree that follows.
void hideAll(benchmark::State& state)
{
    CityGMLModel& model = Subject::current().model();
    CityGMLProxyModel tree;
    tree.setSourceModel(&model);
    Measure measure(state);
    while (state.KeepRunning()) {
        model.showAll();
        measure.iteration([&] { model.hideAll(); });
    }
    model.showAll();
    state.counters["ns_per_row"] = measure.seconds() * 1e9 / model.rowCount();
}

/// A building comes into the document and gets its row, with a tree that follows.
void insertFeature(benchmark::State& state)
{
    CityGMLModel& model = Subject::current().model();
    CityGMLProxyModel tree;
    tree.setSourceModel(&model);
    auto& members = model.cityGML()->featureMember();
    bldg::BuildingType building;
    building.id(gml::AbstractGMLType::id_type("inserted"));
    Measure measure(state);
    while (state.KeepRunning()) {
        members.push_back(gml::FeaturePropertyType());
        members.back()._Feature(building);
        gml::AbstractFeatureType* const feature = &members.back()._Feature().get();
        measure.iteration([&] { model.addFeature(feature); });
        if (tree.getFeatureParent(feature) != model.cityGML()) {
            throw std::runtime_error("The inserted feature is not below the root");
        }
        model.removeFeature(feature);
        members.pop_back();
    }
    state.counters["ns_per_node"] = measure.seconds() * 1e9 / model.rowCount();
}

} // namespace

BENCHMARK(buildTree)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(mapOneIndex)->UseManualTime()->Iterations(lookUps)->ArgName("neighbours")->Arg(1)->Arg(viewRows);
BENCHMARK(dataOfOneIndex)
    ->UseManualTime()
    ->Iterations(lookUps)
    ->ArgNames({"neighbours", "role"})
    ->ArgsProduct({{1, viewRows}, {Qt::DisplayRole, Qt::DecorationRole, Qt::UserRole}});
BENCHMARK(hideAll)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(insertFeature)->UseManualTime()->Iterations(insertions)->Unit(benchmark::kMillisecond);
