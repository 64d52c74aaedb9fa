#pragma once

#include "apps/viewer/edits/PropertyPath.h"
#include "citygml/Member.h"

#include <optional>
#include <QJsonObject>
#include <QString>

namespace tolvik::viewer {

/// Which member of a feature an edit is about.
struct MemberPlace
{
    enum Kind {
        Property,         ///< that of a property
        TextList,         ///< a list of texts of the feature, which may be empty and then has no property
        GenericAttributes ///< the generic attributes of the feature, or of a set among them
    };

    Kind kind = Property;
    /// Of the property or of the group of a set; empty for the attributes of the feature itself. Of a list of
    /// texts one step: the name of its element, and which of the lists of that name it is.
    PropertyPath path;

    QJsonObject toJson() const;
    static MemberPlace fromJson(const QJsonObject& json);
};

/// What a member says, exactly, so that it can be put back.
struct CapturedState
{
    citygml::MemberState member;
    QString text; ///< of content that no class has a member for
};

/// A member of a feature, found anew by its place. It lives no longer than the feature, and only until the
/// next edit of another member.
class EditedMember
{
public:
    /// \return nothing where the feature has no such member
    static std::optional<EditedMember> find(const CityGMLModel& model, gml::AbstractFeatureType& feature,
                                            const MemberPlace& place);

    CapturedState capture() const;
    void restore(const CapturedState& state);

    /// A place at which the member is found also when a list is empty, which has no property then.
    ///
    /// \param place at which it was found
    MemberPlace lastingPlace(gml::AbstractFeatureType& feature, const MemberPlace& place) const;
    /// Whether it is a list that could not be found again if it were empty.
    bool isLostWhenEmpty(gml::AbstractFeatureType& feature) const;

    /// Whether the document has it.
    bool isPresent() const { return !held || held->present(); }

    /// The unit of a measure; nothing where it is absent, and for any other member.
    std::optional<citygml::Member> unit() const;

    /// The property, null for a place of another kind.
    CoreProperty* property() const { return found; }
    /// The member; nothing for content that no class has a member for.
    /// @{
    std::optional<citygml::Member>& member() { return held; }
    const std::optional<citygml::Member>& member() const { return held; }
    /// @}

private:
    Fondo::RefPtr<CoreProperty> tree;
    CoreProperty* found = nullptr;
    std::optional<citygml::Member> held;
};

} // namespace tolvik::viewer
