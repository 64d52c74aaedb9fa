#include "apps/tables/GenericAttributes.h"

#include "apps/common/PropertyText.h"
#include "citygml/Member.h"
#include "core/AbstractCityObjectType.hxx"
#include "gen/AllTypes.h"
#include "gml/MeasureType.hxx"
#include "UI/Models/CityGMLModel/properties/XmlCharacters.h"

#include <QCoreApplication>
#include <QDate>

namespace tolvik::tables {

namespace {

using apps::EditError;

struct Refusal
{
    Q_DECLARE_TR_FUNCTIONS(tolvik::tables::GenericAttributes)
};

double realOf(const QString& text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    if (!isNumber) {
        throw EditError(Refusal::tr("\"%1\" is no number").arg(text));
    }
    return number;
}

xml_schema::date dateOf(const QString& text)
{
    const QDate day = QDate::fromString(text, Qt::ISODate);
    if (!day.isValid()) {
        throw EditError(Refusal::tr("\"%1\" is no date").arg(text));
    }
    return xml_schema::date(day.year(), static_cast<unsigned short>(day.month()),
                            static_cast<unsigned short>(day.day()));
}

qlonglong wholeOf(const QString& text)
{
    bool isNumber = false;
    const qlonglong number = text.toLongLong(&isNumber);
    if (!isNumber) {
        throw EditError(Refusal::tr("\"%1\" is no whole number").arg(text));
    }
    return number;
}

/// The n-th generic attribute of a name in a member.
template <typename Attributes>
gen::AbstractGenericAttributeType* find(Attributes& attributes, const ColumnPath::Step& step)
{
    int met = 0;
    for (xml_schema::type& element : attributes) {
        auto* const attribute = dynamic_cast<gen::AbstractGenericAttributeType*>(&element);
        if (attribute != nullptr && QString::fromStdString(attribute->name()) == step.label &&
            ++met == step.occurrence) {
            return attribute;
        }
    }
    return nullptr;
}

} // namespace

void addGenericAttribute(gml::AbstractFeatureType& feature, const ColumnPath& path, CellType type,
                         const QString& unit, const QString& text)
{
    auto* const object = dynamic_cast<core::AbstractCityObjectType*>(&feature);
    if (object == nullptr || path.steps.size() != 1 || path.steps.first().occurrence != 1) {
        throw EditError(Refusal::tr("the feature has no such attribute, and none can be made of the name"));
    }
    if (firstCharacterNotInXml(text) || firstCharacterNotInXml(path.steps.first().label)) {
        throw EditError(Refusal::tr("XML has no such characters"));
    }
    const std::string name = path.steps.first().label.toStdString();
    auto& attributes = object->_GenericApplicationPropertyOfCityObject();
    const bool isNumber = type == CellType::Whole || type == CellType::Real;
    if (isNumber && !unit.isEmpty()) {
        const gml::MeasureType measure(realOf(text), unit.toStdString());
        attributes.push_back(gen::MeasureAttributeType(name, measure));
    } else if (type == CellType::Whole) {
        attributes.push_back(gen::IntAttributeType(name, wholeOf(text)));
    } else if (type == CellType::Real) {
        attributes.push_back(gen::DoubleAttributeType(name, realOf(text)));
    } else if (type == CellType::Date) {
        attributes.push_back(gen::DateAttributeType(name, dateOf(text)));
    } else {
        attributes.push_back(gen::StringAttributeType(name, text.toStdString()));
    }
}

void removeLastGenericAttribute(gml::AbstractFeatureType& feature)
{
    if (auto* const object = dynamic_cast<core::AbstractCityObjectType*>(&feature)) {
        auto& attributes = object->_GenericApplicationPropertyOfCityObject();
        if (!attributes.empty()) {
            citygml::Member::holding(attributes.back()).clear();
        }
    }
}

bool removeGenericAttribute(gml::AbstractFeatureType& feature, const ColumnPath& path)
{
    auto* const object = dynamic_cast<core::AbstractCityObjectType*>(&feature);
    if (object == nullptr) {
        return false;
    }
    gen::AbstractGenericAttributeType* attribute =
        find(object->_GenericApplicationPropertyOfCityObject(), path.steps.first());
    if (path.steps.size() == 2) {
        auto* const set = dynamic_cast<gen::GenericAttributeSetType*>(attribute);
        attribute = set != nullptr ? find(set->_genericAttribute(), path.steps.last()) : nullptr;
    }
    if (attribute == nullptr) {
        return false;
    }
    citygml::Member::holding(*attribute).clear();
    return true;
}

} // namespace tolvik::tables
