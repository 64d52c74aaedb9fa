#pragma once

#include "platform/binding/SchemaIndex.h"

namespace citygml {
namespace binding {

/// Makes a value for each required member of an object that the document left empty, so that no program meets
/// an empty one: an object that KeptContent::isMissing(), with objects in its own required members. A number
/// or truth value is that of a new object; that it is missing is kept with the owner.
///
/// \throws std::logic_error where a type requires, at the end, itself, or has objects of no type.
void fillRequired(xml_schema::type& owner, const TypeIndex& type);

/// Lets elements that stand for members, see KeptContent::Node, be content like any other where they stand
/// beside a child of the member.
void releaseStandIns(xml_schema::type& owner, const TypeIndex& type);

} // namespace binding
} // namespace citygml
