#include "UI/Models/CityGMLModel/properties/GmlCorePropertyCreator.h"

#include "framework/CoreProperty.h"
#include "gml/AbstractFeatureType.hxx"

namespace tolvik {

GmlCorePropertyCreator::GmlCorePropertyCreator(bool existingOnly)
    : m_property(new CoreProperty(QString(), QVariant())), m_existingOnly(existingOnly)
{
}

GmlCorePropertyCreator::~GmlCorePropertyCreator() = default;

CoreProperty* GmlCorePropertyCreator::createProperty(gml::AbstractFeatureType* feature, bool existingOnly)
{
    GmlCorePropertyCreator creator(existingOnly);
    feature->accept(&creator);
    return creator.getProperty();
}

CoreProperty* GmlCorePropertyCreator::getProperty() const
{
    return m_property;
}

} // namespace tolvik
