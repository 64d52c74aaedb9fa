#include "apps/viewer/edits/EditedMember.h"

#include "apps/viewer/edits/GenericAttributes.h"
#include "citygml/MemberUnit.h"
#include "gml/AbstractFeatureType.hxx"
#include "UI/Models/CityGMLModel/CityGMLModel.h"
#include "UI/Models/CityGMLModel/properties/BoundProperty.h"

#include <typeinfo>

namespace tolvik::viewer {

namespace {

/// \param step the name of the list's element, and which of the lists of that name
std::optional<citygml::Member> textListOf(gml::AbstractFeatureType& feature, const PropertyStep& step)
{
    int occurrence = 0;
    for (const citygml::Member& list : citygml::Member::textLists(feature)) {
        if (QString::fromStdString(list.name()) == step.name && ++occurrence == step.occurrence) {
            return list;
        }
    }
    return std::nullopt;
}

} // namespace

QJsonObject MemberPlace::toJson() const
{
    return {{"kind", kind}, {"path", viewer::toJson(path)}};
}

MemberPlace MemberPlace::fromJson(const QJsonObject& json)
{
    MemberPlace place;
    place.kind = static_cast<Kind>(json["kind"].toInt());
    place.path = pathFromJson(json["path"].toArray());
    return place;
}

std::optional<EditedMember> EditedMember::find(const CityGMLModel& model, gml::AbstractFeatureType& feature,
                                               const MemberPlace& place)
{
    EditedMember member;
    switch (place.kind) {
    case MemberPlace::Property:
        member.tree = isOfCatalogue(place.path) ? catalogueTree(feature) : propertyTree(model, feature);
        member.found = findProperty(*member.tree, place.path);
        if (member.found == nullptr || typeid(*member.found) == typeid(CoreProperty)) {
            return std::nullopt;
        }
        if (const auto* const bound = dynamic_cast<const BoundProperty*>(member.found)) {
            member.held = bound->member();
        }
        return member;
    case MemberPlace::TextList:
        member.held = place.path.isEmpty() ? std::nullopt : textListOf(feature, place.path.first());
        break;
    case MemberPlace::GenericAttributes:
        member.held = place.path.isEmpty()
                          ? attributesOf(feature)
                          : attributesOf(feature, place.path.last().name, place.path.last().occurrence);
        break;
    }
    return member.held ? std::optional<EditedMember>(member) : std::nullopt;
}

MemberPlace EditedMember::lastingPlace(gml::AbstractFeatureType& feature, const MemberPlace& place) const
{
    if (place.kind != MemberPlace::Property || !held || !held->isList()) {
        return place;
    }
    PropertyStep step{QString::fromStdString(held->name()), 1};
    const citygml::MemberState state = held->capture();
    for (; std::optional<citygml::Member> list = textListOf(feature, step); ++step.occurrence) {
        // Only a list of the same element takes the state, and it is the one that it has.
        if (&held->object() == &list->object() && list->restore(state)) {
            return {MemberPlace::TextList, {step}};
        }
    }
    return place;
}

bool EditedMember::isLostWhenEmpty(gml::AbstractFeatureType& feature) const
{
    return held && held->isList() && found != nullptr &&
           lastingPlace(feature, MemberPlace()).kind == MemberPlace::Property;
}

std::optional<citygml::Member> EditedMember::unit() const
{
    return held ? citygml::unitOf(*held) : std::nullopt;
}

CapturedState EditedMember::capture() const
{
    CapturedState state;
    if (held) {
        state.member = held->capture();
    } else {
        state.text = found->value().toString();
    }
    return state;
}

void EditedMember::restore(const CapturedState& state)
{
    if (held) {
        held->restore(state.member);
    } else {
        found->setValue(state.text);
    }
}

} // namespace tolvik::viewer
