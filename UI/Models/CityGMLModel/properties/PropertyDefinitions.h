#pragma once

// Bodies of the property classes; included where the classes are instantiated.

#include "citygml/Findings.h"
#include "UI/Models/CityGMLModel/properties/GmlEnumAttributeProperty.h"
#include "UI/Models/CityGMLModel/properties/GmlEnumGenericApplicationAttributeProperty.h"
#include "UI/Models/CityGMLModel/properties/ValueConversion.h"

namespace tolvik {

/// Gives a property the unit that the document names; an empty name leaves it without one.
void setDocumentUnit(CoreProperty& property, const xml_schema::uri& uom);

/// A text without what a document said about it, such as that it is missing.
inline xml_schema::uri plain(const xml_schema::uri& text)
{
    return xml_schema::uri(static_cast<const std::string&>(text));
}

/// Whether a member has a value to show. Only a number or truth value cannot tell that by itself; where an
/// attribute is one, the member is required.
template <class Value>
bool hasValue(const Value& value)
{
    if constexpr (std::is_arithmetic_v<Value>) {
        return xsd::cxx::tree::one<Value>::holding(value).present() || value != Value();
    } else {
        return true;
    }
}

/// Tells such a member that what it has is a value, whatever it is.
template <class Value>
void keepAsValue(Value& value)
{
    if constexpr (std::is_arithmetic_v<Value>) {
        xsd::cxx::tree::one<Value>::holding(value).set(Value(value));
    }
}

template <class Owner, class Value>
GmlAttributeProperty<Owner, Value>::GmlAttributeProperty(Owner* owner, const QString& label,
                                                         ConstGetter constGetter, MutableGetter mutableGetter,
                                                         const xml_schema::uri& uom)
    : BoundProperty(label), m_owner(owner), m_constGetter(constGetter), m_mutableGetter(mutableGetter),
      m_uom(plain(uom))
{
    setDocumentUnit(*this, m_uom);
}

template <class Owner, class Value>
GmlAttributeProperty<Owner, Value>::~GmlAttributeProperty() = default;

template <class Owner, class Value>
QVariant GmlAttributeProperty<Owner, Value>::value()
{
    const Value& value = (m_owner->*m_constGetter)();
    return hasValue(value) ? toQVariant<Value>(value) : QVariant();
}

template <class Owner, class Value>
void GmlAttributeProperty<Owner, Value>::setValue(const QVariant& value)
{
    CoreProperty::setValue(value);
    Value& target = (m_owner->*m_mutableGetter)();
    assignQVariant<Value>(target, value, m_uom);
    keepAsValue(target);
}

template <class Owner, class Value>
QVariant GmlAttributeProperty<Owner, Value>::defaultValue() const
{
    return tolvik::defaultValue<Value>();
}

template <class Owner, class Value>
bool GmlAttributeProperty<Owner, Value>::editable() const
{
    return true;
}

template <class Owner, class Value>
citygml::Member GmlAttributeProperty<Owner, Value>::member() const
{
    return citygml::Member(*m_owner, (m_owner->*m_constGetter)());
}

template <class Owner, class Value>
GmlEnumAttributeProperty<Owner, Value>::GmlEnumAttributeProperty(Owner* owner, const QString& label,
                                                                 ConstGetter constGetter,
                                                                 MutableGetter mutableGetter)
    : GmlAttributeProperty<Owner, Value>(owner, label, constGetter, mutableGetter, xml_schema::uri(""))
{
    this->m_potentialValues = getEnumList<Value>();
}

template <class Owner, class Value>
GmlEnumAttributeProperty<Owner, Value>::~GmlEnumAttributeProperty() = default;

template <class Poly, class Value>
GmlGenericApplicationAttributeProperty<Poly, Value>::GmlGenericApplicationAttributeProperty(
    Poly* owner, const QString& label, const xml_schema::uri& uom)
    : BoundProperty(label), m_owner(owner), m_uom(plain(uom))
{
    setDocumentUnit(*this, m_uom);
}

template <class Poly, class Value>
GmlGenericApplicationAttributeProperty<Poly, Value>::~GmlGenericApplicationAttributeProperty() = default;

template <class Poly, class Value>
QVariant GmlGenericApplicationAttributeProperty<Poly, Value>::value()
{
    return citygml::isSetAside(*m_owner) ? QVariant()
                                         : toQVariant<Value>(static_cast<const Value&>(*m_owner));
}

template <class Poly, class Value>
void GmlGenericApplicationAttributeProperty<Poly, Value>::setValue(const QVariant& value)
{
    // The part of the object that is the value; the rest of it, such as the name of its element, stays.
    assignQVariant<Value>(static_cast<Value&>(*m_owner), value, m_uom);
    if constexpr (std::is_arithmetic_v<Value>) {
        citygml::setGiven(*m_owner);
    }
}

template <class Poly, class Value>
QVariant GmlGenericApplicationAttributeProperty<Poly, Value>::defaultValue() const
{
    return tolvik::defaultValue<Value>();
}

template <class Poly, class Value>
bool GmlGenericApplicationAttributeProperty<Poly, Value>::editable() const
{
    return false;
}

template <class Poly, class Value>
citygml::Member GmlGenericApplicationAttributeProperty<Poly, Value>::member() const
{
    return citygml::Member::holding(*m_owner);
}

template <class Poly, class Value>
GmlEnumGenericApplicationAttributeProperty<Poly, Value>::GmlEnumGenericApplicationAttributeProperty(
    Poly* owner, const QString& label, xml_schema::uri uom)
    : GmlGenericApplicationAttributeProperty<Poly, Value>(owner, label, uom)
{
    this->m_potentialValues = getEnumList<Value>();
}

template <class Poly, class Value>
GmlEnumGenericApplicationAttributeProperty<Poly, Value>::~GmlEnumGenericApplicationAttributeProperty() =
    default;

} // namespace tolvik
