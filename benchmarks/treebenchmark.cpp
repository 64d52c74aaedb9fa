// The feature tree over a loaded document, beside the time that loading took.

#include "bldg/BuildingType.hxx"
#include "core/CityModelType.hxx"
#include "gml/FeaturePropertyType.hxx"
#include "Measure.h"
#include "Subject.h"
#include "UI/Models/CityGMLModel/CityGMLProxyModel.h"

#include <random>
#include <stdexcept>
#include <vector>

using namespace tolvik;

namespace {

constexpr int sampleSize = 4096;
constexpr int insertions = 5;

int countNodes(const CityGMLModel& model, const CityGMLProxyModel& tree)
{
    int result = 0;
    for (int row = 0; row < model.rowCount(); ++row) {
        result += tree.treeNode(model.getFeature(row)) != nullptr;
    }
    return result;
}

/// Rows that have nodes, from all over the document, in no order.
std::vector<QModelIndex> sampleRows(const CityGMLModel& model, const CityGMLProxyModel& tree)
{
    std::vector<QModelIndex> result;
    std::minstd_rand random;
    while (result.size() < sampleSize) {
        const QModelIndex index = model.index(static_cast<int>(random() % unsigned(model.rowCount())), 0);
        if (tree.mapFromSource(index).isValid()) {
            result.push_back(index);
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

void mapOneIndex(benchmark::State& state)
{
    CityGMLModel& model = Subject::current().model();
    CityGMLProxyModel tree;
    tree.setSourceModel(&model);
    const std::vector<QModelIndex> rows = sampleRows(model, tree);
    std::size_t next = 0;
    while (state.KeepRunning()) {
        QModelIndex index = tree.mapFromSource(rows[next++ % sampleSize]);
        benchmark::DoNotOptimize(index);
    }
}

/// The role is the argument.
void dataOfOneIndex(benchmark::State& state)
{
    CityGMLModel& model = Subject::current().model();
    CityGMLProxyModel tree;
    tree.setSourceModel(&model);
    std::vector<QModelIndex> nodes;
    for (const QModelIndex& row : sampleRows(model, tree)) {
        nodes.push_back(tree.mapFromSource(row));
    }
    const int role = static_cast<int>(state.range(0));
    std::size_t next = 0;
    while (state.KeepRunning()) {
        QVariant value = tree.data(nodes[next++ % sampleSize], role);
        benchmark::DoNotOptimize(value);
    }
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
BENCHMARK(mapOneIndex);
BENCHMARK(dataOfOneIndex)->ArgName("role")->Arg(Qt::DisplayRole)->Arg(Qt::DecorationRole)->Arg(Qt::UserRole);
BENCHMARK(hideAll)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(insertFeature)->UseManualTime()->Iterations(insertions)->Unit(benchmark::kMillisecond);
