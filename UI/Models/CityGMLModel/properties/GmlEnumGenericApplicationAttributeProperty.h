#pragma once

#include "UI/Models/CityGMLModel/properties/GmlGenericApplicationAttributeProperty.h"

namespace tolvik {

/// A property bound to an enumerated attribute of an extension: it offers the literals as potentialValues().
template <class Poly, class Value>
class GmlEnumGenericApplicationAttributeProperty : public GmlGenericApplicationAttributeProperty<Poly, Value>
{
public:
    /// \param owner not owned; the property is valid as long as it lives
    /// \param label name of the property
    /// \param uom   unit; an empty one is none
    GmlEnumGenericApplicationAttributeProperty(Poly* owner, const QString& label, xml_schema::uri uom);
    ~GmlEnumGenericApplicationAttributeProperty() override;
};

} // namespace tolvik
