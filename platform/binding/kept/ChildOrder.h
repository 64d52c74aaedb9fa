#pragma once

#include "platform/binding/kept/KeptContent.h"
#include "platform/binding/SchemaIndex.h"

#include <cstddef>
#include <vector>

namespace citygml {
namespace binding {

/// A child that is to be written.
struct ChildStep
{
    MemberIndex member;
    /// What is kept in front of this stands in front of the child.
    KeptContent::Position position;
};

/// The order in which an object's children are written that did not stand in the order of the schema.
///
/// Children that are no more leave the others where they are. A child that has come since stands behind the
/// last one of its member, or of those with which this may alternate. Where there is none, it stands where it
/// is on the right side of as many others as can be.
///
/// \param counts how many children each element member has now
std::vector<ChildStep> childSteps(const KeptContent& kept, const TypeIndex& type,
                                  std::vector<std::size_t> counts);

/// Keeps the order of an object's children, where it is not that of the schema.
///
/// \param kept with nodes whose positions count all children
/// \param children the members of all children, in the order of the document
void keepOrder(KeptContent& kept, const TypeIndex& type, std::vector<MemberIndex> children);

/// Forgets in which order an object's children stood, but for members that may alternate. What is kept
/// between the children stays behind the one that it stood behind, and what is one too many for its member
/// goes behind that member's child.
///
/// \return whether anything has moved.
bool putInSchemaOrder(KeptContent& kept, const TypeIndex& type);

} // namespace binding
} // namespace citygml
