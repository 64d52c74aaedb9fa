#include "gen/AllTypes.h"
#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "gen.instantiations.h"

namespace tolvik {

ROWS(gen, GenericCityObjectType, FIELDS) {
    CLASS_FUNCTION_USAGE();
}

ROWS(gen, StringAttributeType, CURRENT) {
    ATTR_BY_NAME(object.name(), value, string);
}

ROWS(gen, IntAttributeType, CURRENT) {
    ATTR_BY_NAME(object.name(), value, long long);
}

ROWS(gen, DoubleAttributeType, CURRENT) {
    ATTR_BY_NAME(object.name(), value, double);
}

ROWS(gen, DateAttributeType, CURRENT) {
    ATTR_BY_NAME(object.name(), value, date);
}

ROWS(gen, UriAttributeType, CURRENT) {
    ATTR_BY_NAME(object.name(), value, uri);
}

ROWS(gen, MeasureAttributeType, CURRENT) {
    ATTR_BY_NAME(object.name(), value, gml::MeasureType);
}

bool GmlCorePropertyCreator::visit_gen_GenericAttributeSetType(gen::GenericAttributeSetType* object) {
    // Behind a set that stands in no group, the current one is that of the fields.
    m_currentParent = CURRENT.find(*this);
    const QScopedValueRollback<CoreProperty*> inside(m_currentParent, addGroup(FIELDS, QString::fromStdString(object->name())));
    return CityGMLPropertiesVisitor::visit_gen_GenericAttributeSetType(object);
}

} // namespace tolvik

#include "UI/Models/CityGMLModel/catalogues/CatalogueEnd.h"
