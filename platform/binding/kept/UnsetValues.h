#pragma once

#include "platform/binding/kept/KeptContent.h"
#include "platform/binding/SchemaIndex.h"

#include <cstddef>
#include <memory>
#include <string_view>

namespace citygml {
namespace binding {

// Which values nobody has set: those that a document lacked or left wrong, and no program has given since.

/// A new object of a type that has objects. Of one with text this is always the same, where
/// TypeRecord::create() gives dates and times that an extension derives no value at all.
std::unique_ptr<xml_schema::type> newObject(const TypeRecord& record);
/// Whether an object with text has that of a new one.
bool isUnset(const xml_schema::type& object, const TypeIndex& type);
/// Whether a number or truth value, as text, is the one that a new owner has.
bool isUnsetNumber(std::string_view text);

/// Whether a required member has the object only so that it is not empty, and nothing has been set in it.
bool isLeftOut(const xml_schema::type& object);
/// Whether the document lacked a required member.
bool wasMissing(const xml_schema::type& owner, const TypeIndex::FlatMember& member);

/// Number of the values of a required member that a save writes.
///
/// \param count how many the member has
std::size_t writtenCountOfRequired(const xml_schema::type& owner, const TypeIndex::FlatMember& member,
                                   std::size_t count);
/// Number of the values of any member that a save writes.
inline std::size_t writtenCount(const xml_schema::type& owner, const TypeIndex::FlatMember& member)
{
    const std::size_t count = member.declaration->ops->count(owner);
    return member.requiredBit == 0 ? count : writtenCountOfRequired(owner, member, count);
}
/// Whether an element stood for a member of the object that has a value now.
bool isReplaced(const KeptContent::Node& node, const xml_schema::type& object, const TypeIndex& type);

} // namespace binding
} // namespace citygml
