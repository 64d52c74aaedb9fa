#pragma once

#include "UI/Models/CityGMLModel/properties/BoundProperty.h"
#include "xml-schema.hxx"

namespace tolvik {

/// A property bound to an attribute that an extension hangs on a type of another schema: an object of its own
/// in the slot for such attributes, which is owner and value at once. It is shown and not offered for
/// editing.
///
/// \tparam Poly  class of the object: a class derived from Value, or Value itself
/// \tparam Value type as which the object shows, see ValueConversion.h
template <class Poly, class Value>
class GmlGenericApplicationAttributeProperty : public BoundProperty
{
public:
    /// \param owner not owned; the property is valid as long as it lives
    /// \param label name of the property
    /// \param uom   unit of a measure; an empty one is none
    GmlGenericApplicationAttributeProperty(Poly* owner, const QString& label, const xml_schema::uri& uom);
    ~GmlGenericApplicationAttributeProperty() override;

    QVariant value() override;

    /// Writes the value into the document, although editable() is false. The stored value of the base stays.
    void setValue(const QVariant& value) override;

    QVariant defaultValue() const override;

    /// False.
    bool editable() const override;

    /// The entry of the slot that holds the object. When that has been cleared, the property must not be used
    /// any more.
    citygml::Member member() const override;

private:
    Poly* m_owner;
    xml_schema::uri m_uom;
};

} // namespace tolvik
