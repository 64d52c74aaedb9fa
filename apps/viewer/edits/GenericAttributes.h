#pragma once

#include "apps/viewer/edits/PropertyPath.h"
#include "citygml/Member.h"

#include <optional>
#include <QString>
#include <QVariant>

namespace gen {
class AbstractGenericAttributeType;
}
namespace gml {
class AbstractFeatureType;
}

namespace tolvik::viewer {

/// Type of a generic attribute.
enum class AttributeType { Text, Whole, Real, Date, Link, Measure, Set };

/// The member that holds the generic attributes of a feature.
/// \return nothing for a feature that can have none
std::optional<citygml::Member> attributesOf(gml::AbstractFeatureType& feature);

/// The same of a set of attributes, which is the n-th one of its name in the feature.
/// \return nothing where there is no such set
std::optional<citygml::Member> attributesOf(gml::AbstractFeatureType& feature, const QString& setName,
                                            int occurrence);

/// Name of the set that has attributes, and which of the feature's sets of that name it is.
/// \param attributes of the feature or of one of its sets
/// \return nothing for the attributes of the feature itself
std::optional<PropertyStep> setWith(gml::AbstractFeatureType& feature, const citygml::Member& attributes);

/// Adds an attribute behind the others of a member from attributesOf().
/// \param attributes of a feature or a set
/// \param unit of a measure; without effect for the other types
/// \return false, with nothing changed, for another member
bool addAttribute(citygml::Member& attributes, AttributeType type, const QString& name, const QVariant& value,
                  const QString& unit);

/// The attribute whose value a member is.
/// \return null where it is none
gen::AbstractGenericAttributeType* attributeAround(const citygml::Member& value);

/// Gives an attribute another name.
void renameAttribute(gen::AbstractGenericAttributeType& attribute, const QString& name);

} // namespace tolvik::viewer
