#pragma once

#include "UI/Models/CityGMLModel/properties/GmlAttributeProperty.h"

namespace tolvik {

/// A property bound to an enumerated attribute: it offers the literals as potentialValues().
/// \tparam Value the enumerated type or the optional of it
template <class Owner, class Value>
class GmlEnumAttributeProperty : public GmlAttributeProperty<Owner, Value>
{
public:
    using typename GmlAttributeProperty<Owner, Value>::ConstGetter;
    using typename GmlAttributeProperty<Owner, Value>::MutableGetter;

    /// \param owner not owned; the property is valid as long as it lives
    /// \param label name of the property
    /// \param constGetter accessor of the attribute
    /// \param mutableGetter accessor of the same attribute for an edit
    GmlEnumAttributeProperty(Owner* owner, const QString& label, ConstGetter constGetter,
                             MutableGetter mutableGetter);
    ~GmlEnumAttributeProperty() override;
};

} // namespace tolvik
