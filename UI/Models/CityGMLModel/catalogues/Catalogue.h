#pragma once

// What the catalogues are written with: each unit of this directory gives, for the types of one schema
// namespace, the rows of their property trees, one line a row in the order on screen.
//
// A visit makes a `rows` for the type and the place its rows go to, such as EXTENSION("Energy"), and then has
// lines of these forms. The type of the value says when there is a row (see Rows::attr()) and where its unit
// comes from.
//
//     ATTR("MeasuredHeight", measuredHeight, optional<gml::LengthType>);
//                                                  label, accessors, type of the value
//     ENUM("RelativeToWater", relativeToWater, optional<core::RelativeToWaterType>);
//                                                  the same, offering literals
//     ATTR_BY_NAME(object->name(), value, gml::MeasureType);
//                                                  the same, labelled by the document
//     CHILD("beginPosition", beginPosition);       a group for the object, with its rows
//     HELD("serviceLife", serviceLife, ServiceLife);
//                                                  the same for the object inside a property element
//     CHILDREN("storages", storages, Storage);     one group for all the objects of a sequence
//     REFERENCE("installedIn", installedIn);       where a reference points to
//
// The attributes that extensions hang on a type are objects of their own; each of them is tried against lines
// such as
//
//     GENERIC("footprintArea", pivotEnergy::poly_footprintArea, gml::AreaType, "pivotEnergy");
//                                                  label, class, type as which it shows, extension
//     GENERIC_ENUM("constructionWeight", energy::ConstructionWeightValue, "Energy");
//                                                  the same, offering literals
//     GENERIC_CHILD("durationOfConstruction", pivotEnergy::poly_durationOfConstruction, "pivotEnergy");
//                                                  a group with the rows of the object itself
//     GENERIC_HELD("referencePoint", energy::poly_referencePoint, Point, "Energy");
//                                                  a group with those of the object that it holds, if any
//     GENERIC_GROUP("shading", pivotEnergy::ShadingTypePropertyType, ShadingType, "pivotEnergy");
//                                                  the same, empty for an object that holds none
//
// The properties that ATTR, ENUM, GENERIC and GENERIC_ENUM bind are instantiated for what stands in the line:
// a build step reads them from the file.

#include "gml/AngleType.hxx"
#include "gml/AreaType.hxx"
#include "gml/LengthType.hxx"
#include "gml/MeasureListType.hxx"
#include "gml/MeasureOrNullListType.hxx"
#include "gml/MeasureType.hxx"
#include "gml/QuantityExtentType.hxx"
#include "gml/ReferenceType.hxx"
#include "gml/ScaleType.hxx"
#include "gml/VolumeType.hxx"
#include "UI/Models/CityGMLModel/properties/GmlCorePropertyCreator.h"
#include "UI/Models/CityGMLModel/properties/GmlEnumAttributeProperty.h"
#include "UI/Models/CityGMLModel/properties/GmlEnumGenericApplicationAttributeProperty.h"
#include "UI/Models/CityGMLModel/properties/SchemaValues.h"

#include <QString>
#include <QVariant>

#include <type_traits>

#define EXTENSION(name) Place::extension(QStringLiteral(name))
#define SHARED_GROUP(extension, name) Place::group(getOrCreateProperty(getOrCreateRootADEPartProp(QStringLiteral(extension)), QStringLiteral(name)))

#define ATTR(label, getter, ...) rows.template attr<__VA_ARGS__>(QStringLiteral(label), TOLVIK_ACCESSORS(getter))
#define ENUM(label, getter, ...) rows.template enumAttr<__VA_ARGS__>(QStringLiteral(label), TOLVIK_ACCESSORS(getter))
#define ATTR_BY_NAME(name, getter, ...) rows.template attr<__VA_ARGS__>(QString::fromStdString(name), TOLVIK_ACCESSORS(getter))
#define CHILD(label, getter) rows.child(QStringLiteral(label), rows.object().getter())
#define HELD(label, getter, held) rows.child(QStringLiteral(label), rows.object().getter(), TOLVIK_HELD(held))
#define CHILDREN(label, getter, held) rows.children(QStringLiteral(label), rows.object().getter(), TOLVIK_HELD(held))
#define REFERENCE(label, getter) rows.reference(QStringLiteral(label), rows.object().getter())

#define GENERIC(label, Poly, Value, extension) rows.attr<Poly, Value>(QStringLiteral(label), QStringLiteral(extension))
#define GENERIC_ENUM(label, Enum, extension) rows.enumAttr<Enum, Enum>(QStringLiteral(label), QStringLiteral(extension))
#define GENERIC_CHILD(label, Poly, extension) rows.child<Poly>(QStringLiteral(label), QStringLiteral(extension))
#define GENERIC_HELD(label, Poly, member, extension) rows.held<Poly>(QStringLiteral(label), QStringLiteral(extension), TOLVIK_HELD(member))
#define GENERIC_GROUP(label, Poly, member, extension) rows.group<Poly>(QStringLiteral(label), QStringLiteral(extension), TOLVIK_HELD(member))

#define TOLVIK_ACCESSORS(getter) &std::decay_t<decltype(rows)>::Owner::getter, &std::decay_t<decltype(rows)>::Owner::getter
#define TOLVIK_HELD(held) [](auto& element) -> decltype(auto) { return element.held(); }

namespace tolvik {

using namespace schema;

/// Calls \a use with each object that a member holds: the one of a required member, that of an optional if
/// present, or all of a sequence.
template <typename T, typename Use>
void forEachHeld(optional<T>& member, Use use)
{
    if (member.present()) {
        use(member.get());
    }
}
template <typename T, typename Use>
void forEachHeld(sequence<T>& member, Use use)
{
    for (T& element : member) {
        use(element);
    }
}
template <typename T, typename Use>
void forEachHeld(T& member, Use use)
{
    use(member);
}

/// Whether an attribute has a row where only existing ones do: a required one always, an optional one if
/// present, and a sequence if it has elements.
template <typename T>
bool exists(const optional<T>& value)
{
    return value.present();
}
template <typename T>
bool exists(const sequence<T>& value)
{
    return !value.empty();
}
template <typename T>
bool exists(const T&)
{
    return true;
}

template <typename T>
constexpr bool isOptional = false;
template <typename T>
constexpr bool isOptional<optional<T>> = true;

// Of types that are not complete here none is a measure.
template <typename T>
constexpr bool hasUnit =
    std::is_convertible_v<T*, gml::MeasureType*> || std::is_same_v<T, gml::MeasureListType> || std::is_convertible_v<T*, gml::MeasureOrNullListType*>;

/// The unit that the document gives a value: its own, or that of a sequence's first element. Empty for an
/// absent measure and for what is no measure.
inline const uri& noUnit()
{
    static const uri none("");
    return none;
}
template <typename T>
const uri& unitOf(const T& value)
{
    if constexpr (hasUnit<T>) {
        return value.uom();
    } else {
        return noUnit();
    }
}
template <typename T>
const uri& unitOf(const optional<T>& value)
{
    if constexpr (hasUnit<T>) {
        return value.present() ? unitOf(value.get()) : noUnit();
    } else {
        return noUnit();
    }
}
template <typename T>
const uri& unitOf(const sequence<T>& value)
{
    if constexpr (hasUnit<T>) {
        return value.empty() ? noUnit() : unitOf(value.front());
    } else {
        return noUnit();
    }
}

/// Where rows go. The group is looked for when a row needs it, so that none stands empty.
class GmlCorePropertyCreator::Place
{
public:
    /// The group of what GML, CityGML core and the thematic modules define.
    static Place fields() { return Place(Kind::Fields, QString(), nullptr); }
    /// The group of an extension.
    static Place extension(const QString& name) { return Place(Kind::Extension, name, nullptr); }
    /// The group of the object that is being entered, or else that of fields().
    static Place current() { return Place(Kind::Current, QString(), nullptr); }
    static Place group(CoreProperty* group) { return Place(Kind::Group, QString(), group); }

    CoreProperty* find(GmlCorePropertyCreator& creator) const;

private:
    enum class Kind { Fields, Extension, Current, Group };

    Place(Kind kind, const QString& name, CoreProperty* group) : m_kind(kind), m_name(name), m_group(group) {}

    Kind m_kind;
    QString m_name;
    CoreProperty* m_group;
};

/// Adds the rows of one object, as far as a class of it goes.
template <class OwnerClass>
class GmlCorePropertyCreator::Rows
{
public:
    using Owner = OwnerClass;

    Rows(GmlCorePropertyCreator* creator, Owner* object, const Place& place) : m_creator(*creator), m_object(*object), m_place(place) {}

    Owner& object() const { return m_object; }

    /// The same object's rows below a group.
    Rows below(CoreProperty* group) const { return Rows(&m_creator, &m_object, Place::group(group)); }

    /// A row bound to an attribute. An absent optional has one only where absent attributes are shown, and an
    /// empty sequence has none. A measure has the unit that it has in the document.
    template <class Value, class Declaring>
    void attr(const QString& label, const Value& (Declaring::*getter)() const, Value& (Declaring::*mutableGetter)()) const
    {
        const Value& value = (m_object.*getter)();
        if (wanted(value)) {
            add(new GmlAttributeProperty<Owner, Value>(&m_object, label, getter, mutableGetter, unitOf(value)));
        }
    }

    /// The same, offering the literals of an enumeration.
    template <class Value, class Declaring>
    void enumAttr(const QString& label, const Value& (Declaring::*getter)() const, Value& (Declaring::*mutableGetter)()) const
    {
        if (wanted((m_object.*getter)())) {
            add(new GmlEnumAttributeProperty<Owner, Value>(&m_object, label, getter, mutableGetter));
        }
    }

    /// A row with a copy of a value, which reaches no document.
    void readOnly(const QString& label, const QVariant& value) const { add(new CoreProperty(label, value)); }

    /// A row for each reference that the member holds, with what it points to.
    template <class Member>
    void reference(const QString& label, Member& member) const
    {
        forEachHeld(member, [&](gml::ReferenceType& reference) { readOnly(label, m_creator.getReferenceUrl(reference)); });
    }

    /// A new group; rows get below it with below().
    CoreProperty* group(const QString& label) const
    {
        auto* const group = new CoreProperty(label, QVariant());
        add(group);
        return group;
    }

    /// A group for each object that the member holds, with the rows of the object.
    template <class Member>
    void child(const QString& label, Member& member) const
    {
        forEachHeld(member, [&](auto& object) { m_creator.enter(group(label), object); });
    }

    /// The same for the objects inside the property elements that the member holds. \a held answers the
    /// member of a property element.
    template <class Member, class Held>
    void child(const QString& label, Member& member, Held held) const
    {
        forEachHeld(member, [&](auto& element) { child(label, held(element)); });
    }

    /// One group with the rows of all objects inside the elements of a sequence; none for an empty sequence.
    template <class T, class Held>
    void children(const QString& label, sequence<T>& elements, Held held) const
    {
        if (elements.empty()) {
            return;
        }
        CoreProperty* const outer = m_creator.m_currentParent;
        m_creator.m_currentParent = group(label);
        for (T& element : elements) {
            forEachHeld(held(element), [&](auto& object) { object.accept(&m_creator); });
        }
        m_creator.m_currentParent = outer;
    }

private:
    template <class Value>
    bool wanted(const Value& value) const
    {
        return exists(value) || (isOptional<Value> && !m_creator.m_existingOnly);
    }

    void add(CoreProperty* property) const { m_place.find(m_creator)->addProperty(property); }

    GmlCorePropertyCreator& m_creator;
    Owner& m_object;
    Place m_place;
};

/// Tries the rows of the attributes that extensions hang on a type against one such attribute: a row is made
/// if the object is of the row's class.
class GmlCorePropertyCreator::GenericRows
{
public:
    GenericRows(GmlCorePropertyCreator* creator, xml_schema::type& element) : m_creator(*creator), m_element(element) {}

    template <class Poly, class Value>
    void attr(const QString& label, const QString& extension) const
    {
        if (auto* const poly = dynamic_cast<Poly*>(&m_element)) {
            add(extension, new GmlGenericApplicationAttributeProperty<Poly, Value>(poly, label, unitOf(*poly)));
        }
    }

    template <class Poly, class Value>
    void enumAttr(const QString& label, const QString& extension) const
    {
        if (auto* const poly = dynamic_cast<Poly*>(&m_element)) {
            add(extension, new GmlEnumGenericApplicationAttributeProperty<Poly, Value>(poly, label, unitOf(*poly)));
        }
    }

    /// A group with the rows of the matched object itself.
    template <class Poly>
    void child(const QString& label, const QString& extension) const
    {
        if (auto* const poly = dynamic_cast<Poly*>(&m_element)) {
            m_creator.enter(group(label, extension), *poly);
        }
    }

    /// A group with the rows of the object that the matched one holds; none if it holds none.
    template <class Poly, class Held>
    void held(const QString& label, const QString& extension, Held held) const
    {
        if (auto* const poly = dynamic_cast<Poly*>(&m_element)) {
            forEachHeld(held(*poly), [&](auto& object) { m_creator.enter(group(label, extension), object); });
        }
    }

    /// A group with the rows of the object that the matched one holds; an empty one if it holds none.
    template <class Poly, class Held>
    void group(const QString& label, const QString& extension, Held held) const
    {
        if (auto* const poly = dynamic_cast<Poly*>(&m_element)) {
            CoreProperty* const target = group(label, extension);
            forEachHeld(held(*poly), [&](auto& object) { m_creator.enter(target, object); });
        }
    }

private:
    CoreProperty* group(const QString& label, const QString& extension) const
    {
        auto* const group = new CoreProperty(label, QVariant());
        add(extension, group);
        return group;
    }

    void add(const QString& extension, CoreProperty* property) const { m_creator.getOrCreateRootADEPartProp(extension)->addProperty(property); }

    GmlCorePropertyCreator& m_creator;
    xml_schema::type& m_element;
};

} // namespace tolvik
