#pragma once

#include <QColor>

namespace gml {
class AbstractFeatureType;
}

namespace tolvik::scene {

/// The colours of features that nothing else gives a colour to.
class TypeColours
{
public:
    /// By the name of its type.
    static QColor of(const gml::AbstractFeatureType& feature);
};

} // namespace tolvik::scene
