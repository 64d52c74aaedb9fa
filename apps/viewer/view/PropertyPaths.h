#pragma once

#include <QStringList>

namespace tolvik {
class CityGMLModel;
}

namespace tolvik::viewer {

/// The paths of the properties with a value that features of a model have, as apps::propertyAt() takes them,
/// each once. Of each type the first features are looked at, as those of one type mostly have the same.
QStringList propertyPathsOf(const CityGMLModel& model);

} // namespace tolvik::viewer
