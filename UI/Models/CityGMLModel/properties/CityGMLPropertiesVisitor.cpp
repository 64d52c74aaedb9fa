#include "UI/Models/CityGMLModel/properties/CityGMLPropertiesVisitor.h"

namespace tolvik {

CityGMLPropertiesVisitor::CityGMLPropertiesVisitor()
{
    walkChildren = false;
}

CityGMLPropertiesVisitor::~CityGMLPropertiesVisitor() = default;

} // namespace tolvik
