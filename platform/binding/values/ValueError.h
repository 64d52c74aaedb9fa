#pragma once

#include <string>
#include <string_view>

namespace citygml {
namespace binding {

/// A text that is no value of its type; the message says which text and which type.
struct ValueError
{
    std::string message;
};

/// Refuses a text, of which a long one is shown in part.
///
/// \param kind what it should have been, with its article
/// \throws ValueError always.
[[noreturn]] void rejectValue(std::string_view text, const char* kind);

} // namespace binding
} // namespace citygml
