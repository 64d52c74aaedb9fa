#pragma once

#include "platform/binding/Tables.h"

#include <string_view>

namespace citygml {
namespace binding {

/// Whether two texts differ in nothing but the case of their first letter. Releases of one schema differ so.
bool differInFirstCase(std::string_view a, std::string_view b);

/// The value of an enumeration that a text stands for: the same text or, where there is none, the one that
/// differs by the case of the first letter.
///
/// \param enumeration a type with literals
/// \return null for a text that is no value of it.
const char* findLiteral(const TypeRecord& enumeration, std::string_view text);

} // namespace binding
} // namespace citygml
