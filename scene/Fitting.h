#pragma once

#include "scene/Renderer.h"

#include <vector>

namespace tolvik::scene {

/// Looks at some features, and at what is below them: from the direction of the camera if enough is seen of
/// them from there, else from that of several from which most is seen.
/// \param camera where it is looked from
/// \return the camera as it is where nothing is drawn of the features
Camera fittedTo(const std::vector<Slot>& features, const Camera& camera, const QSize& size, CityScene& scene,
                Renderer& renderer, const DrawOptions& options);

} // namespace tolvik::scene
