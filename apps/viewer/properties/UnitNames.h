#pragma once

#include <QStringList>

namespace tolvik::viewer {

/// Units of lengths, areas, volumes, angles, energy and what else is often measured of cities, to choose
/// from. Documents may have any others.
const QStringList& unitNames();

} // namespace tolvik::viewer
