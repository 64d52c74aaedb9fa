#pragma once

#include "citygml/CityGMLFeaturesFillVisitor.h"
#include "core/CityModelType.hxx"
#include "framework/CoreProperty.h"
#include "gml/AbstractFeatureType.hxx"
#include "platform/binding/Tables.h"
#include "support/FaultDocuments.h"
#include "UI/Models/CityGMLModel/properties/GmlCorePropertyCreator.h"

#include <typeinfo>

/// What programs and people do with documents with one fault each.
namespace faults {

/// Paths of a property tree's rows, with the row of each; rows of one name are told apart by a number.
using Rows = QVector<QPair<QString, tolvik::CoreProperty*>>;

inline void addRows(const tolvik::CoreProperty& parent, const QString& path, Rows& rows)
{
    QMap<QString, int> met;
    for (const auto& child : parent.properties()) {
        const QString here = path + '/' + child->name() + '#' + QString::number(met[child->name()]++);
        rows.append({here, child.operator->()});
        addRows(*child, here, rows);
    }
}

/// The features of a document and the rows of their property trees.
class Features
{
public:
    Features(core::CityModelType& document, bool existingOnly)
    {
        tolvik::CityGMLFeaturesFillVisitor visitor;
        document.accept(&visitor);
        for (gml::AbstractFeatureType* feature : visitor.getModelFeatures()) {
            const QString id = feature->id().present() ? QString::fromStdString(*feature->id()) : QString();
            ids << id;
            trees.append(Fondo::RefPtr<tolvik::CoreProperty>(
                tolvik::GmlCorePropertyCreator::createProperty(feature, existingOnly)));
            addRows(*trees.last(), id, rows);
        }
    }

    QStringList ids;
    Rows rows;

private:
    QVector<Fondo::RefPtr<tolvik::CoreProperty>> trees;
};

/// The rows that one object of any type adds to a property tree, those of absent attributes too.
class ObjectRows
{
public:
    explicit ObjectRows(xml_schema::type& object) : creator(false)
    {
        object.accept(&creator);
        tree = Fondo::RefPtr<tolvik::CoreProperty>(creator.getProperty());
        addRows(*tree, QString(), rows);
    }

    Rows rows;

private:
    tolvik::GmlCorePropertyCreator creator;
    Fondo::RefPtr<tolvik::CoreProperty> tree;
};

inline const citygml::binding::Member* memberOf(const citygml::binding::TypeRecord* record, const Name& name,
                                                bool isAttribute)
{
    for (; record != nullptr; record = record->base) {
        for (std::size_t i = 0; i < record->memberCount; ++i) {
            const citygml::binding::Member& member = record->members[i];
            if (member.isAttribute == isAttribute && name.local == member.name && name.uri == member.uri) {
                return &member;
            }
        }
    }
    return nullptr;
}

/// Follows the way to the object with the fault; null where it ends before.
inline xml_schema::type* ownerOf(core::CityModelType& document, const Document& facts)
{
    xml_schema::type* object = &document;
    for (const auto& step : facts.owner) {
        const auto* const member = memberOf(citygml::binding::recordOf(*object), step.first, false);
        if (member == nullptr || member->ops->count(*object) <= static_cast<std::size_t>(step.second)) {
            return nullptr;
        }
        object =
            const_cast<xml_schema::type*>(&member->ops->at(*object, static_cast<std::size_t>(step.second)));
    }
    return object;
}

/// Gives the member with the fault the value of the faultless document, as a program does with a setter.
/// \return false where a setter cannot: of a repeated member
inline bool setMember(core::CityModelType& document, core::CityModelType& sound, const Document& facts)
{
    xml_schema::type* const owner = ownerOf(document, facts);
    xml_schema::type* const model = ownerOf(sound, facts);
    if (owner == nullptr || model == nullptr) {
        return false;
    }
    const auto* const member =
        memberOf(citygml::binding::recordOf(*owner), facts.place.member, facts.place.isAttribute);
    if (member == nullptr || !member->ops->single || member->ops->count(*model) == 0) {
        return false;
    }
    if (member->type == nullptr) {
        std::string text;
        member->ops->format(*model, 0, text);
        member->ops->addText(*owner, text);
    } else {
        member->ops->add(*owner, member->ops->at(*model, 0)._clone());
    }
    return true;
}

/// Puts the values of the faultless document into the rows that have others, as an editor does.
/// \return false where there was nothing to edit, or a row that no edit reaches the document through
inline bool editRows(const Rows& faulty, const Rows& faultless)
{
    QMap<QString, tolvik::CoreProperty*> byPath;
    for (const auto& row : faulty) {
        byPath[row.first] = row.second;
    }
    bool isEdited = false;
    for (const auto& row : faultless) {
        tolvik::CoreProperty* const other = byPath.value(row.first);
        if (other == nullptr || !row.second->value().isValid() || other->value() == row.second->value()) {
            continue;
        }
        if (typeid(*other) == typeid(tolvik::CoreProperty)) {
            return false;
        }
        other->setValue(row.second->value());
        isEdited = true;
    }
    return isEdited;
}

} // namespace faults
