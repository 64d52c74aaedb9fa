#pragma once

#include "citygml/GeometryWalk.h"

#include <vector>

namespace citygml {
namespace binding {

/// Replaces the points of arcs, each of which goes through three and begins where the one before ends, by
/// points so close that straight lines between them do for the arcs. Points on one line stay as they are.
std::vector<Position> arcPositions(const std::vector<Position>& points);

/// The same for a whole circle through three points, closed.
std::vector<Position> circlePositions(const std::vector<Position>& points);

} // namespace binding
} // namespace citygml
