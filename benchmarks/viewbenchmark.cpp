// What a user waits for in a tree view over a hundred thousand features, everything expanded: the view of Qt
// with its default settings, and all that it does until it is idle again.

#include "bldg/BoundarySurfacePropertyType.hxx"
#include "bldg/BuildingType.hxx"
#include "core/CityModelType.hxx"
#include "gml/FeaturePropertyType.hxx"
#include "Measure.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"
#include "UI/Models/CityGMLModel/CityGMLTreeModel.h"

#include <memory>
#include <QCoreApplication>
#include <QTreeView>
#include <sstream>
#include <string>

using namespace tolvik;

namespace {

constexpr int features = 100000;

/// A document of buildings with so many walls each.
std::string documentText(int walls)
{
    std::string text = R"(<CityModel xmlns="http://www.opengis.net/citygml/2.0" gml:id="city"
 xmlns:gml="http://www.opengis.net/gml" xmlns:bldg="http://www.opengis.net/citygml/building/2.0">)";
    int count = 0;
    while (count < features) {
        text += "<cityObjectMember><bldg:Building gml:id=\"b" + std::to_string(++count) + "\">";
        text += "<gml:name>Building " + std::to_string(count) + "</gml:name>";
        for (int wall = 0; wall < walls; ++wall) {
            text += "<bldg:boundedBy><bldg:WallSurface gml:id=\"w" + std::to_string(++count) +
                    "\"/></bldg:boundedBy>";
        }
        text += "</bldg:Building></cityObjectMember>\n";
    }
    return text + "</CityModel>";
}

/// A document with its tree in a view, shown and expanded.
class Shown
{
public:
    explicit Shown(int walls)
    {
        std::istringstream stream(documentText(walls));
        model.load(stream);
        tree.setCheckColumnEnabled(true);
        tree.setSourceModel(&model);
        view.setModel(&tree);
        tree.setSelectionModel(view.selectionModel());
        view.resize(600, 800);
        view.show();
        const double start = elapsedSeconds();
        view.expandAll();
        QCoreApplication::processEvents();
        expansion = elapsedSeconds() - start;
    }

    QModelIndex firstBuilding() const { return tree.index(0, 0, tree.index(0, 0)); }

    double expansionSeconds() const { return expansion; }

    CityGMLModel model{nullptr, nullptr};
    CityGMLTreeModel tree;
    QTreeView view;

private:
    double expansion = 0;
};

/// Times an operation, in a view that has been made for it, with so many walls a building.
template <class Prepare, class Operation>
void operate(benchmark::State& state, Prepare prepare, Operation operation)
{
    Measure measure(state);
    double expansion = 0;
    while (state.KeepRunning()) {
        Shown shown(static_cast<int>(state.range(0)));
        prepare(shown);
        QCoreApplication::processEvents();
        measure.iteration([&] {
            operation(shown);
            QCoreApplication::processEvents();
        });
        expansion = shown.expansionSeconds();
        state.counters["features"] = shown.model.rowCount();
    }
    measure.setRatio("times_expand", expansion);
}

void nothing(Shown& /*shown*/) {}

void viewHideAll(benchmark::State& state)
{
    operate(state, nothing, [](Shown& shown) { shown.model.hideAll(); });
}

void viewShowAll(benchmark::State& state)
{
    operate(
        state, [](Shown& shown) { shown.model.hideAll(); }, [](Shown& shown) { shown.model.showAll(); });
}

/// The rows are hidden already, which the list cannot tell.
void viewHideAgain(benchmark::State& state)
{
    operate(
        state, [](Shown& shown) { shown.model.hideAll(); },
        [](Shown& shown) {
            QList<QModelIndex> rows;
            for (int row = 0; row < shown.model.rowCount(); ++row) {
                rows.append(shown.model.index(row, 0));
            }
            shown.model.hide(rows);
        });
}

void viewUncheckRoot(benchmark::State& state)
{
    operate(state, nothing, [](Shown& shown) {
        shown.tree.setData(shown.tree.index(0, 0), Qt::Unchecked, Qt::CheckStateRole);
    });
}

void viewSelectSiblings(benchmark::State& state)
{
    operate(
        state, [](Shown& shown) { shown.view.setCurrentIndex(shown.firstBuilding()); },
        [](Shown& shown) { shown.tree.selectSiblingsWithSameType(); });
}

/// With all siblings selected.
void viewRemoveOne(benchmark::State& state)
{
    operate(
        state,
        [](Shown& shown) {
            shown.view.setCurrentIndex(shown.firstBuilding());
            shown.tree.selectSiblingsWithSameType();
        },
        [](Shown& shown) { shown.model.removeFeature(CityGMLTreeModel::getFeature(shown.firstBuilding())); });
}

void viewInsertOne(benchmark::State& state)
{
    operate(
        state,
        [](Shown& shown) {
            auto& members = shown.model.cityGML()->featureMember();
            members.push_back(gml::FeaturePropertyType());
            members.back()._Feature(bldg::BuildingType());
        },
        [](Shown& shown) {
            shown.model.addFeature(&shown.model.cityGML()->featureMember().back()._Feature().get());
        });
}

/// Ten features a building, and all of them side by side.
void shapes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->UseManualTime()
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond)
        ->ArgName("walls")
        ->Arg(9)
        ->Arg(0);
}

} // namespace

BENCHMARK(viewHideAll)->Apply(shapes);
BENCHMARK(viewShowAll)->Apply(shapes);
BENCHMARK(viewHideAgain)->Apply(shapes);
BENCHMARK(viewUncheckRoot)->Apply(shapes);
BENCHMARK(viewSelectSiblings)->Apply(shapes);
BENCHMARK(viewRemoveOne)->Apply(shapes);
BENCHMARK(viewInsertOne)->Apply(shapes);
