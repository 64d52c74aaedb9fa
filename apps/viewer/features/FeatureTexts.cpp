#include "apps/viewer/features/FeatureTexts.h"

#include "gml/AbstractFeatureType.hxx"
#include "gml/CodeType.hxx"

namespace tolvik::viewer {

QString idOf(const gml::AbstractFeatureType& feature)
{
    return feature.id().present() ? QString::fromStdString(feature.id().get()) : QString();
}

QString nameOf(const gml::AbstractFeatureType& feature)
{
    return feature.name().empty() ? QString() : QString::fromStdString(feature.name().front());
}

QString typeOf(const gml::AbstractFeatureType& feature)
{
    return QString::fromStdString(feature.typeLabel);
}

QString descriptionOf(const gml::AbstractFeatureType& feature)
{
    const QString name = nameOf(feature);
    return (typeOf(feature) + ' ' + (name.isEmpty() ? idOf(feature) : name)).trimmed();
}

} // namespace tolvik::viewer
