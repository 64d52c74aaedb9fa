#pragma once

#include <string>
#include <string_view>

namespace citygml {
namespace binding {

/// Appends text as XML content.
///
/// \return false where the text is not UTF-8 or holds a character that XML cannot; what was appended is
/// unusable then.
bool appendEscaped(std::string_view text, std::string& xml);
/// The same for an attribute value in double quotes.
bool appendEscapedAttribute(std::string_view text, std::string& xml);

} // namespace binding
} // namespace citygml
