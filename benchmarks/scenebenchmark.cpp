// How long the subject takes to become a scene, and what a user of a view waits for then, drawn without a
// display in 1280 x 800 pixels.

#include "Measure.h"
#include "scene/CityScene.h"
#include "scene/OffscreenContext.h"
#include "scene/Renderer.h"
#include "Subject.h"

#include <algorithm>
#include <memory>
#include <stdexcept>

using namespace tolvik;
using namespace tolvik::scene;

namespace {

constexpr int sliceMilliseconds = 12;
const QSize pictureSize(1280, 800);

std::vector<const Feature*> featuresOf(const CityGMLModel& model)
{
    std::vector<const Feature*> features;
    features.reserve(static_cast<std::size_t>(model.rowCount()));
    for (int row = 0; row < model.rowCount(); ++row) {
        features.push_back(model.getFeature(row));
    }
    return features;
}

/// From the walk through the document until all triangles are there.
void sceneBuild(benchmark::State& state)
{
    Measure measure(state);
    CityGMLModel& model = Subject::current().model();
    double first = 0;
    double walked = 0;
    double longest = 0;
    double bytes = 0;
    double begun = 0;
    double cleared = 0;
    CityScene::Counts counts;
    while (state.KeepRunning()) {
        CityScene city;
        const double before = allocatedBytes();
        measure.iteration([&] {
            const double start = elapsedSeconds();
            first = 0;
            std::vector<const Feature*> features = featuresOf(model);
            const double beginning = elapsedSeconds();
            city.begin(std::move(features), model.getFileName());
            begun = elapsedSeconds() - beginning;
            double slice = elapsedSeconds();
            longest = slice - start;
            while (city.addSome(sliceMilliseconds)) {
                const bool isNew = city.takeFinished();
                const double now = elapsedSeconds();
                first = isNew && first == 0 ? now - start : first;
                longest = std::max(longest, now - slice);
                slice = now;
            }
            walked = elapsedSeconds() - start;
            city.addAll();
            first = first == 0 ? elapsedSeconds() - start : first;
        });
        bytes = allocatedBytes() - before;
        counts = city.counts();
        const double ending = elapsedSeconds();
        city.clear();
        cleared = elapsedSeconds() - ending;
    }
    measure.setRatio("times_load", Subject::current().loadSeconds());
    state.counters["first_tile_ms"] = first * 1000;
    state.counters["walk_ms"] = walked * 1000;
    state.counters["slice_ms"] = longest * 1000;
    state.counters["begin_ms"] = begun * 1000;
    state.counters["clear_ms"] = cleared * 1000;
    state.counters["triangles"] = static_cast<double>(counts.triangles);
    state.counters["degenerate"] = static_cast<double>(counts.degenerate);
    state.counters["tiles"] = static_cast<double>(counts.tiles);
    state.counters["bytes_per_triangle"] =
        bytes / static_cast<double>(std::max<std::size_t>(1, counts.triangles));
}

/// A scene that is ready, seen as a whole.
class Shown
{
public:
    Shown() : renderer(city)
    {
        if (!context.error().isEmpty() || !renderer.unfitness().isEmpty()) {
            throw std::runtime_error("nothing can be drawn here");
        }
        const CityGMLModel& model = Subject::current().model();
        city.begin(featuresOf(model), model.getFileName());
        city.addAll();
        overview.fit(city.bounds(), static_cast<double>(pictureSize.width()) / pictureSize.height());
        overview.setAngles(0.6, 0.6);
    }
    ~Shown() { renderer.release(); }
    Shown(const Shown&) = delete;
    Shown& operator=(const Shown&) = delete;

    /// \param part of the city's extent
    Camera near(double part, double pitch) const
    {
        Camera camera = overview;
        camera.setAngles(0.6, pitch);
        camera.zoom(part, osg::Vec2d(), 1.6);
        return camera;
    }
    void draw(const Camera& camera) { renderer.picture(camera, pictureSize, options); }

    OffscreenContext context;
    CityScene city;
    Renderer renderer;
    DrawOptions options;
    Camera overview;
};

/// Times an operation that has been done once before.
template <class Operation>
void operate(benchmark::State& state, Operation operation)
{
    Shown shown;
    operation(shown, 0);
    Measure measure(state);
    int round = 1;
    while (state.KeepRunning()) {
        measure.iteration([&] { operation(shown, round++); });
    }
    state.counters["triangles"] = static_cast<double>(shown.city.counts().triangles);
}

void sceneOverview(benchmark::State& state)
{
    operate(state, [](Shown& shown, int) { shown.draw(shown.overview); });
}

void sceneDistrict(benchmark::State& state)
{
    operate(state, [](Shown& shown, int) { shown.draw(shown.near(0.1, 0.6)); });
}

void sceneStreet(benchmark::State& state)
{
    operate(state, [](Shown& shown, int) { shown.draw(shown.near(0.02, 0.1)); });
}

/// Every other time nothing is selected.
void sceneSelect(benchmark::State& state)
{
    operate(state, [](Shown& shown, int round) {
        shown.city.features().setSelection(round % 2 == 0 ? std::vector<Slot>() : std::vector<Slot>{0});
        shown.draw(shown.near(0.1, 0.6));
    });
}

void sceneHideHalf(benchmark::State& state)
{
    operate(state, [](Shown& shown, int round) {
        for (Slot slot = 0; slot < shown.city.features().size(); ++slot) {
            shown.city.features().setHidden(slot, (static_cast<int>(slot) + round) % 2 == 0);
        }
        shown.draw(shown.near(0.1, 0.6));
    });
}

void scenePick(benchmark::State& state)
{
    operate(state, [](Shown& shown, int round) {
        shown.renderer.pick(shown.near(0.1, 0.6), pictureSize, QPoint(300 + 7 * (round % 90), 400),
                            shown.options);
    });
}

void views(benchmark::internal::Benchmark* benchmark)
{
    benchmark->UseManualTime()->Iterations(10)->Unit(benchmark::kMillisecond);
}

} // namespace

BENCHMARK(sceneBuild)->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
BENCHMARK(sceneOverview)->Apply(views);
BENCHMARK(sceneDistrict)->Apply(views);
BENCHMARK(sceneStreet)->Apply(views);
BENCHMARK(sceneSelect)->Apply(views);
BENCHMARK(sceneHideHalf)->Apply(views);
BENCHMARK(scenePick)->Apply(views);
