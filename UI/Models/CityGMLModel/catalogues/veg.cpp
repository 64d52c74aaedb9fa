#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "veg/PlantCoverType.hxx"
#include "veg/SolitaryVegetationObjectType.hxx"

#include "veg.instantiations.h"

namespace tolvik {

bool GmlCorePropertyCreator::visit_veg_PlantCoverType(veg::PlantCoverType* object)
{
    const Rows<veg::PlantCoverType> rows(this, object, Place::fields());
    ATTR("Class", class_, optional<gml::CodeType>);
    ATTR("Function", function, sequence<gml::CodeType>);
    ATTR("Usage", usage, sequence<gml::CodeType>);
    ATTR("AverageHeight", averageHeight, optional<gml::LengthType>);
    return CityGMLPropertiesVisitor::visit_veg_PlantCoverType(object);
}

bool GmlCorePropertyCreator::visit_veg_SolitaryVegetationObjectType(veg::SolitaryVegetationObjectType* object)
{
    const Rows<veg::SolitaryVegetationObjectType> rows(this, object, Place::fields());
    ATTR("Class", class_, optional<gml::CodeType>);
    ATTR("Function", function, sequence<gml::CodeType>);
    ATTR("Usage", usage, sequence<gml::CodeType>);
    ATTR("Species", species, optional<gml::CodeType>);
    ATTR("Height", height, optional<gml::LengthType>);
    ATTR("TrunkDiameter", trunkDiameter, optional<gml::LengthType>);
    ATTR("CrownDiameter", crownDiameter, optional<gml::LengthType>);
    return CityGMLPropertiesVisitor::visit_veg_SolitaryVegetationObjectType(object);
}

} // namespace tolvik
