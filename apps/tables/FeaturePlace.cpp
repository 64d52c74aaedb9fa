#include "apps/tables/FeaturePlace.h"

#include "citygml/GeometryWalk.h"
#include "gml/AbstractFeatureType.hxx"

namespace tolvik::tables {

const gml::AbstractFeatureType* featureOutside(const gml::AbstractFeatureType& feature)
{
    const auto* const around = dynamic_cast<const xml_schema::type*>(feature._container());
    return around != nullptr ? citygml::featureAround(*around) : nullptr;
}

QString idOf(const gml::AbstractFeatureType* feature)
{
    return feature != nullptr && feature->id().present() ? QString::fromStdString(feature->id().get())
                                                         : QString();
}

} // namespace tolvik::tables
