#pragma once

#include "citygml/GeometryWalk.h"
#include "platform/binding/geometry/GeometryPlan.h"

#include <vector>

namespace citygml {
namespace binding {

/// Appends the positions that a value holds. What is not enough for a position is left out.
/// \param value     of a form other than a property
/// \param dimension number of coordinates in a position, where the value does not tell it
/// \return number of coordinates that each position had
int appendPositions(const xml_schema::type& value, GeometryPlan::PositionForm form, int dimension,
                    std::vector<Position>& positions);

} // namespace binding
} // namespace citygml
