#include "apps/viewer/edits/GenericAttributes.h"

#include "core/AbstractCityObjectType.hxx"
#include "gen/DateAttributeType.hxx"
#include "gen/DoubleAttributeType.hxx"
#include "gen/GenericAttributeSetType.hxx"
#include "gen/IntAttributeType.hxx"
#include "gen/MeasureAttributeType.hxx"
#include "gen/StringAttributeType.hxx"
#include "gen/UriAttributeType.hxx"
#include "gml/MeasureType.hxx"
#include "UI/Models/CityGMLModel/properties/ValueConversion.h"

#include <algorithm>
#include <memory>
#include <vector>

#pragma GCC diagnostic ignored "-Wdeprecated-declarations" // std::auto_ptr, which the schema classes speak

namespace tolvik::viewer {

namespace {

using Attribute = gen::AbstractGenericAttributeType;
using Set = gen::GenericAttributeSetType;

void collectSets(Set& set, std::vector<Set*>& sets)
{
    sets.push_back(&set);
    for (Attribute& attribute : set._genericAttribute()) {
        if (auto* const inner = dynamic_cast<Set*>(&attribute)) {
            collectSets(*inner, sets);
        }
    }
}

/// The sets of a feature in the order of their groups in the property tree.
std::vector<Set*> setsOf(core::AbstractCityObjectType& object)
{
    std::vector<Set*> sets;
    for (xml_schema::type& each : object._GenericApplicationPropertyOfCityObject()) {
        if (auto* const set = dynamic_cast<Set*>(&each)) {
            collectSets(*set, sets);
        }
    }
    return sets;
}

template <class Type>
std::auto_ptr<Attribute> make(const std::string& name, const QVariant& value, const std::string& unit)
{
    using Value = typename Type::value_type;
    return std::auto_ptr<Attribute>(
        new Type(xml_schema::string(name), fromQVariant<Value>(value, xml_schema::uri(unit))));
}

std::auto_ptr<Attribute> make(AttributeType type, const std::string& name, const QVariant& value,
                              const std::string& unit)
{
    switch (type) {
    case AttributeType::Text:
        return make<gen::StringAttributeType>(name, value, unit);
    case AttributeType::Whole:
        return make<gen::IntAttributeType>(name, value, unit);
    case AttributeType::Real:
        return make<gen::DoubleAttributeType>(name, value, unit);
    case AttributeType::Date:
        return make<gen::DateAttributeType>(name, value, unit);
    case AttributeType::Link:
        return make<gen::UriAttributeType>(name, value, unit);
    case AttributeType::Measure:
        return make<gen::MeasureAttributeType>(name, value, unit);
    case AttributeType::Set:
        break;
    }
    return std::auto_ptr<Attribute>(new Set(xml_schema::string(name)));
}

} // namespace

std::optional<citygml::Member> attributesOf(gml::AbstractFeatureType& feature)
{
    auto* const object = dynamic_cast<core::AbstractCityObjectType*>(&feature);
    if (object == nullptr) {
        return std::nullopt;
    }
    return citygml::Member(*object, object->_GenericApplicationPropertyOfCityObject());
}

std::optional<citygml::Member> attributesOf(gml::AbstractFeatureType& feature, const QString& setName,
                                            int occurrence)
{
    auto* const object = dynamic_cast<core::AbstractCityObjectType*>(&feature);
    if (object == nullptr) {
        return std::nullopt;
    }
    for (Set* const set : setsOf(*object)) {
        if (QString::fromStdString(set->name()) == setName && --occurrence == 0) {
            return citygml::Member(*set, set->_genericAttribute());
        }
    }
    return std::nullopt;
}

std::optional<PropertyStep> setWith(gml::AbstractFeatureType& feature, const citygml::Member& attributes)
{
    const auto* const set = dynamic_cast<const Set*>(&attributes.object());
    auto* const object = dynamic_cast<core::AbstractCityObjectType*>(&feature);
    if (set == nullptr || object == nullptr) {
        return std::nullopt;
    }
    const std::vector<Set*> sets = setsOf(*object);
    const auto found = std::find(sets.begin(), sets.end(), set);
    const auto before =
        std::count_if(sets.begin(), found, [set](const Set* each) { return each->name() == set->name(); });
    return PropertyStep{QString::fromStdString(set->name()), static_cast<int>(before) + 1};
}

bool addAttribute(citygml::Member& attributes, AttributeType type, const QString& name, const QVariant& value,
                  const QString& unit)
{
    std::auto_ptr<Attribute> made = make(type, name.toStdString(), value, unit.toStdString());
    xml_schema::type& owner = attributes.object();
    if (auto* const object = dynamic_cast<core::AbstractCityObjectType*>(&owner)) {
        object->_GenericApplicationPropertyOfCityObject().push_back(
            std::auto_ptr<xml_schema::type>(made.release()));
        return true;
    }
    if (auto* const set = dynamic_cast<Set*>(&owner)) {
        set->_genericAttribute().push_back(made);
        return true;
    }
    return false;
}

gen::AbstractGenericAttributeType* attributeAround(const citygml::Member& value)
{
    return dynamic_cast<Attribute*>(&value.object());
}

void renameAttribute(gen::AbstractGenericAttributeType& attribute, const QString& name)
{
    attribute.name(xml_schema::string(name.toStdString()));
}

} // namespace tolvik::viewer
