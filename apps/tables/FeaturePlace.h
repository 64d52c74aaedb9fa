#pragma once

#include <QString>

namespace gml {
class AbstractFeatureType;
}

namespace tolvik::tables {

/// The feature in which a feature stands; null for the root of a document.
const gml::AbstractFeatureType* featureOutside(const gml::AbstractFeatureType& feature);

/// Identifier of a feature; null where there is no feature, and for one that has none.
QString idOf(const gml::AbstractFeatureType* feature);

} // namespace tolvik::tables
