#pragma once

#include "platform/binding/Tables.h"

#include <string>
#include <string_view>

namespace citygml {
namespace binding {

/// Reads a qualified name.
///
/// \param scope what the prefix means where the text stands
/// \throws ValueError for a text without a local name, and for a prefix that is not bound.
void parseName(xml_schema::qname& value, std::string_view text, const NameScope& scope);
/// Appends a qualified name.
///
/// \param scope gives the prefix; a name of a namespace without one is written without prefix
void formatName(const xml_schema::qname& value, std::string& text, const NameScope& scope);

} // namespace binding
} // namespace citygml
