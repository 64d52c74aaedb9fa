#pragma once

#include "scene/TileMesh.h"

#include <array>
#include <osg/StateSet>

namespace tolvik::scene {

/// Parts of what is drawn, as node masks. Edges that are far away are not drawn.
enum NodeMask : unsigned { FaceMask = 1, EdgeMask = 2, MarkMask = 4, FarEdgeMask = 8 };
unsigned maskOf(TileDrawable::Part part);

/// How faces without a look, edges, and lines and points are drawn, by the numbers of the parts.
using PartStates = std::array<osg::ref_ptr<osg::StateSet>, 3>;
PartStates makePartStates();

} // namespace tolvik::scene
