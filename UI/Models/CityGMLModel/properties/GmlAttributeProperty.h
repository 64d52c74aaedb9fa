#pragma once

#include "UI/Models/CityGMLModel/properties/BoundProperty.h"
#include "xml-schema.hxx"

namespace tolvik {

/// A property bound to one attribute of a schema object. It holds no value: it reads and writes the document
/// each time, so that setting it is an edit of the document, at once. Whoever edits tells the model, see
/// CityGMLModel::propertyChanged().
///
/// The class is instantiated for the attributes of the catalogues, and nothing else can be bound.
/// \tparam Owner class of the object, or a base of it, that has the accessors
/// \tparam Value type of the attribute: required, optional or a sequence, see ValueConversion.h
template <class Owner, class Value>
class GmlAttributeProperty : public BoundProperty
{
public:
    using ConstGetter = const Value& (Owner::*)() const; ///< the accessor that reads
    using MutableGetter = Value& (Owner::*)();           ///< the accessor that an edit goes through

    /// \param owner not owned; the property is valid as long as it lives
    /// \param label name of the property
    /// \param constGetter accessor of the attribute
    /// \param mutableGetter accessor of the same attribute for an edit
    /// \param uom unit of a measure, which is also that of what an edit writes; an empty one is none
    GmlAttributeProperty(Owner* owner, const QString& label, ConstGetter constGetter,
                         MutableGetter mutableGetter, const xml_schema::uri& uom);
    ~GmlAttributeProperty() override;

    /// The attribute's value as it stands in the document. An absent one is invalid, or an empty list.
    /// Invalid are also a required one that the document lacks and one whose text there is no value of its
    /// type.
    QVariant value() override;

    /// Writes the value into the document; an absent attribute comes into being. What does not fit becomes
    /// zero, false, an empty text or list, or the default state of an enumeration.
    void setValue(const QVariant& value) override;

    /// What to offer for an absent attribute.
    QVariant defaultValue() const override;

    /// True.
    bool editable() const override;

    citygml::Member member() const override;

private:
    Owner* m_owner;
    ConstGetter m_constGetter;
    MutableGetter m_mutableGetter;
    xml_schema::uri m_uom;
};

} // namespace tolvik
