#include "UI/Models/CityGMLModel/properties/PropertyDefinitions.h"

#include "framework/SingleUnit.h"
#include "framework/UnitCreator.h"

#include <QString>

namespace tolvik {

void setDocumentUnit(CoreProperty& property, const xml_schema::uri& uom)
{
    if (!uom.empty()) {
        property.setUnit(UnitCreator::getOrCreateSingleUnit(QString::fromStdString(uom), 0, 1));
    }
}

} // namespace tolvik
