#include "scene/Fitting.h"

#include <numeric>

namespace tolvik::scene {

namespace {

/// Of a trial picture: large enough to tell whether a feature is seen.
constexpr int trialSide = 80;
/// Part of the picture that a feature has to cover.
constexpr double enough = 0.05;

int pixelsOf(const std::vector<Slot>& features, const Camera& camera, const QSize& size, Renderer& renderer,
             const DrawOptions& options)
{
    const std::map<Slot, int> seen = renderer.pixelsOf(camera, size, options);
    return std::accumulate(features.begin(), features.end(), 0, [&seen](int sum, Slot slot) {
        const auto found = seen.find(slot);
        return found != seen.end() ? sum + found->second : sum;
    });
}

} // namespace

Camera fittedTo(const std::vector<Slot>& features, const Camera& camera, const QSize& size, CityScene& scene,
                Renderer& renderer, const DrawOptions& options)
{
    const std::vector<Slot> all = scene.features().withBelow(features);
    const osg::BoundingBoxd box = scene.boundsOf(all);
    if (!box.valid() || size.isEmpty()) {
        return camera;
    }
    const double aspect = static_cast<double>(size.width()) / size.height();
    const QSize trial(static_cast<int>(trialSide * aspect) + 1, trialSide);
    Camera best = camera;
    best.fit(box, aspect);
    int most = pixelsOf(all, best, trial, renderer, options);
    // A ground surface is seen from below alone.
    for (const double pitch : {0.6, 0.15, 1.5, -0.6, -0.15}) {
        for (int step = 0; step < 8 && most < enough * trial.width() * trial.height(); ++step) {
            Camera turned = camera;
            turned.setAngles(camera.yaw() + step * 0.7854, pitch);
            turned.fit(box, aspect);
            const int count = pixelsOf(all, turned, trial, renderer, options);
            if (count > most) {
                most = count;
                best = turned;
            }
        }
    }
    return best;
}

} // namespace tolvik::scene
