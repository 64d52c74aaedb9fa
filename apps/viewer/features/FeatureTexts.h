#pragma once

#include <QString>

namespace gml {
class AbstractFeatureType;
}

namespace tolvik::viewer {

/// The `gml:id`; empty where the feature has none.
QString idOf(const gml::AbstractFeatureType& feature);

/// The first name; empty where the feature has none.
QString nameOf(const gml::AbstractFeatureType& feature);

/// The kind, such as `Building`.
QString typeOf(const gml::AbstractFeatureType& feature);

/// The kind with the first name, or with the `gml:id` where there is no name.
QString descriptionOf(const gml::AbstractFeatureType& feature);

} // namespace tolvik::viewer
