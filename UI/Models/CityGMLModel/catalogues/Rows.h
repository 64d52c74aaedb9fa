#pragma once

// How the rows of a catalogue come into a property tree.

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

#include <QScopedValueRollback>
#include <QString>
#include <QVariant>

#include <type_traits>

namespace tolvik {

using namespace schema;

/// Calls \a use with each object that a member holds: the one of a required member, that of an optional if
/// present, or all of a sequence.
template <typename T, typename Use>
void forEachHeld(optional<T>& member, Use use) {
    if (member.present()) {
        use(member.get());
    }
}
template <typename T, typename Use>
void forEachHeld(sequence<T>& member, Use use) {
    for (T& element : member) {
        use(element);
    }
}
template <typename T, typename Use>
void forEachHeld(T& member, Use use) {
    use(member);
}

/// Whether an attribute has a row where only existing ones do: a required one always, an optional one if
/// present, and a sequence if it has elements.
template <typename T>
bool exists(const optional<T>& value) {
    return value.present();
}
template <typename T>
bool exists(const sequence<T>& value) {
    return !value.empty();
}
template <typename T>
bool exists(const T&) {
    return true;
}

template <typename T>
constexpr bool isOptional = false;
template <typename T>
constexpr bool isOptional<optional<T>> = true; // NOLINT(misc-definitions-in-headers): a template still

// Of types that are not complete here none is a measure.
template <typename T>
constexpr bool hasUnit =
    std::is_convertible_v<T*, gml::MeasureType*> || std::is_same_v<T, gml::MeasureListType> || std::is_convertible_v<T*, gml::MeasureOrNullListType*>;

/// The unit that the document gives a value: its own, or that of a sequence's first element. Empty for an
/// absent measure and for what is no measure.
inline const uri& noUnit() {
    static const uri none("");
    return none;
}
template <typename T>
const uri& unitOf(const T& value) {
    if constexpr (hasUnit<T>) {
        return value.uom();
    } else {
        return noUnit();
    }
}
template <typename T>
const uri& unitOf(const optional<T>& value) {
    if constexpr (hasUnit<T>) {
        return value.present() ? unitOf(value.get()) : noUnit();
    } else {
        return noUnit();
    }
}
template <typename T>
const uri& unitOf(const sequence<T>& value) {
    if constexpr (hasUnit<T>) {
        return value.empty() ? noUnit() : unitOf(value.front());
    } else {
        return noUnit();
    }
}

/// Where rows go. The group is looked for when a row needs it, so that none stands empty.
class GmlCorePropertyCreator::Target
{
public:
    /// The group of what GML, CityGML core and the thematic modules define.
    static Target fields() { return Target(Kind::Fields, QString(), nullptr); }
    /// The group of an extension.
    static Target extension(const QString& name) { return Target(Kind::Extension, name, nullptr); }
    /// The group of the object that is being entered, or else that of fields().
    static Target current() { return Target(Kind::Current, QString(), nullptr); }
    static Target group(CoreProperty* group) { return Target(Kind::Group, QString(), group); }

    CoreProperty* find(GmlCorePropertyCreator& creator) const;

private:
    enum class Kind { Fields, Extension, Current, Group };

    Target(Kind kind, const QString& name, CoreProperty* property) : kind(kind), name(name), property(property) {}

    Kind kind;
    QString name;
    CoreProperty* property;
};

/// Adds the rows of one object, as far as a class of it goes.
template <class OwnerClass>
class Q_DECL_HIDDEN GmlCorePropertyCreator::Rows
{
public:
    using Owner = OwnerClass;

    Rows(GmlCorePropertyCreator& creator, Owner& object, const Target& target) : creator(creator), object(object), target(target) {}

    /// Adds all rows of the class: a catalogue has the body for each class.
    void addAll() const;

private:
    /// The same object's rows below a group.
    Rows below(CoreProperty* group) const { return Rows(creator, object, Target::group(group)); }

    /// A row bound to an attribute. An absent optional has one only where absent attributes are shown, and an
    /// empty sequence has none. A measure has the unit that it has in the document.
    template <class Value, class Declaring>
    void attr(const QString& label, const Value& (Declaring::*getter)() const, Value& (Declaring::*mutableGetter)()) const {
        const Value& value = (object.*getter)();
        if (wanted(value)) {
            add(new GmlAttributeProperty<Owner, Value>(&object, label, getter, mutableGetter, unitOf(value)));
        }
    }

    /// The same, offering the literals of an enumeration.
    template <class Value, class Declaring>
    void enumAttr(const QString& label, const Value& (Declaring::*getter)() const, Value& (Declaring::*mutableGetter)()) const {
        if (wanted((object.*getter)())) {
            add(new GmlEnumAttributeProperty<Owner, Value>(&object, label, getter, mutableGetter));
        }
    }

    /// A row with a copy of a value, which reaches no document.
    void readOnly(const QString& label, const QVariant& value) const { add(new CoreProperty(label, value)); }

    /// A row for each reference that the member holds, with what it points to.
    template <class Member>
    void reference(const QString& label, Member& member) const {
        forEachHeld(member, [&](gml::ReferenceType& reference) { readOnly(label, creator.getReferenceUrl(reference)); });
    }

    /// A new group; rows get below it with below().
    CoreProperty* addGroup(const QString& label) const { return creator.addGroup(target, label); }

    /// A group for each object that the member holds, with the rows of the object.
    template <class Member>
    void groupEach(const QString& label, Member& member) const {
        forEachHeld(member, [&](auto& held) { creator.enter(addGroup(label), held); });
    }

    /// The same for the objects inside the property elements that the member holds. \a heldBy answers the
    /// member of a property element.
    template <class Member, class HeldBy>
    void groupEach(const QString& label, Member& member, HeldBy heldBy) const {
        forEachHeld(member, [&](auto& element) { groupEach(label, heldBy(element)); });
    }

    /// One group with the rows of all objects inside the property elements of a sequence; none for an empty
    /// sequence.
    template <class T, class HeldBy>
    void groupAll(const QString& label, sequence<T>& elements, HeldBy heldBy) const {
        if (elements.empty()) {
            return;
        }
        const QScopedValueRollback<CoreProperty*> inside(creator.m_currentParent, addGroup(label));
        for (T& element : elements) {
            forEachHeld(heldBy(element), [&](auto& held) { held.accept(&creator); });
        }
    }

    template <class Value>
    bool wanted(const Value& value) const {
        return exists(value) || (isOptional<Value> && !creator.m_existingOnly);
    }

    void add(CoreProperty* property) const { target.find(creator)->addProperty(property); }

    GmlCorePropertyCreator& creator;
    Owner& object;
    Target target;
};

/// Tries the rows of the attributes that extensions hang on a type against one such attribute: a row is made
/// if the object is of the row's class.
class Q_DECL_HIDDEN GmlCorePropertyCreator::GenericRows
{
public:
    GenericRows(GmlCorePropertyCreator& creator, xml_schema::type& attribute) : creator(creator), attribute(attribute) {}

    /// Tries all rows of the type that the attribute hangs on: a catalogue has the body for each type.
    template <class Owner>
    void addAll() const;

private:
    template <class Poly, class Value>
    void attr(const QString& label, const QString& extension) const {
        if (auto* const poly = dynamic_cast<Poly*>(&attribute)) {
            add(extension, new GmlGenericApplicationAttributeProperty<Poly, Value>(poly, label, unitOf(*poly)));
        }
    }

    template <class Poly, class Value>
    void enumAttr(const QString& label, const QString& extension) const {
        if (auto* const poly = dynamic_cast<Poly*>(&attribute)) {
            add(extension, new GmlEnumGenericApplicationAttributeProperty<Poly, Value>(poly, label, unitOf(*poly)));
        }
    }

    /// A group with the rows of the attribute itself.
    template <class Poly>
    void groupEach(const QString& label, const QString& extension) const {
        if (auto* const poly = dynamic_cast<Poly*>(&attribute)) {
            creator.enter(addGroup(label, extension), *poly);
        }
    }

    /// A group with the rows of the object that the attribute holds; none if it holds none.
    template <class Poly, class HeldBy>
    void groupEach(const QString& label, const QString& extension, HeldBy heldBy) const {
        if (auto* const poly = dynamic_cast<Poly*>(&attribute)) {
            forEachHeld(heldBy(*poly), [&](auto& held) { creator.enter(addGroup(label, extension), held); });
        }
    }

    /// A group with the rows of the object that the attribute holds; an empty one if it holds none.
    template <class Poly, class HeldBy>
    void groupAll(const QString& label, const QString& extension, HeldBy heldBy) const {
        if (auto* const poly = dynamic_cast<Poly*>(&attribute)) {
            CoreProperty* const group = addGroup(label, extension);
            forEachHeld(heldBy(*poly), [&](auto& held) { creator.enter(group, held); });
        }
    }

    CoreProperty* addGroup(const QString& label, const QString& extension) const { return creator.addGroup(Target::extension(extension), label); }

    void add(const QString& extension, CoreProperty* property) const { Target::extension(extension).find(creator)->addProperty(property); }

    GmlCorePropertyCreator& creator;
    xml_schema::type& attribute;
};

} // namespace tolvik
