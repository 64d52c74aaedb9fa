#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "gen/DateAttributeType.hxx"
#include "gen/DoubleAttributeType.hxx"
#include "gen/GenericAttributeSetType.hxx"
#include "gen/GenericCityObjectType.hxx"
#include "gen/IntAttributeType.hxx"
#include "gen/MeasureAttributeType.hxx"
#include "gen/StringAttributeType.hxx"
#include "gen/UriAttributeType.hxx"

#include "gen.instantiations.h"

namespace tolvik {

bool GmlCorePropertyCreator::visit_gen_GenericCityObjectType(gen::GenericCityObjectType* object)
{
    const Rows<gen::GenericCityObjectType> rows(this, object, Place::fields());
    ATTR("Class", class_, optional<gml::CodeType>);
    ATTR("Function", function, sequence<gml::CodeType>);
    ATTR("Usage", usage, sequence<gml::CodeType>);
    return CityGMLPropertiesVisitor::visit_gen_GenericCityObjectType(object);
}

bool GmlCorePropertyCreator::visit_gen_StringAttributeType(gen::StringAttributeType* object)
{
    const Rows<gen::StringAttributeType> rows(this, object, Place::current());
    ATTR_BY_NAME(object->name(), value, string);
    return CityGMLPropertiesVisitor::visit_gen_StringAttributeType(object);
}

bool GmlCorePropertyCreator::visit_gen_IntAttributeType(gen::IntAttributeType* object)
{
    const Rows<gen::IntAttributeType> rows(this, object, Place::current());
    ATTR_BY_NAME(object->name(), value, long long);
    return CityGMLPropertiesVisitor::visit_gen_IntAttributeType(object);
}

bool GmlCorePropertyCreator::visit_gen_DoubleAttributeType(gen::DoubleAttributeType* object)
{
    const Rows<gen::DoubleAttributeType> rows(this, object, Place::current());
    ATTR_BY_NAME(object->name(), value, double);
    return CityGMLPropertiesVisitor::visit_gen_DoubleAttributeType(object);
}

bool GmlCorePropertyCreator::visit_gen_DateAttributeType(gen::DateAttributeType* object)
{
    const Rows<gen::DateAttributeType> rows(this, object, Place::current());
    ATTR_BY_NAME(object->name(), value, date);
    return CityGMLPropertiesVisitor::visit_gen_DateAttributeType(object);
}

bool GmlCorePropertyCreator::visit_gen_UriAttributeType(gen::UriAttributeType* object)
{
    const Rows<gen::UriAttributeType> rows(this, object, Place::current());
    ATTR_BY_NAME(object->name(), value, uri);
    return CityGMLPropertiesVisitor::visit_gen_UriAttributeType(object);
}

bool GmlCorePropertyCreator::visit_gen_MeasureAttributeType(gen::MeasureAttributeType* object)
{
    const Rows<gen::MeasureAttributeType> rows(this, object, Place::current());
    ATTR_BY_NAME(object->name(), value, gml::MeasureType);
    return CityGMLPropertiesVisitor::visit_gen_MeasureAttributeType(object);
}

bool GmlCorePropertyCreator::visit_gen_GenericAttributeSetType(gen::GenericAttributeSetType* object)
{
    const Rows<gen::GenericAttributeSetType> rows(this, object, Place::fields());
    CoreProperty* const outer = m_currentParent != nullptr ? m_currentParent : getOrCreateFieldPartProp();
    m_currentParent = rows.group(QString::fromStdString(object->name()));
    const bool result = CityGMLPropertiesVisitor::visit_gen_GenericAttributeSetType(object);
    m_currentParent = outer;
    return result;
}

} // namespace tolvik
