#include "platform/binding/values/ValueError.h"

namespace citygml {
namespace binding {

void rejectValue(std::string_view text, const char* kind)
{
    constexpr std::size_t longest = 60;
    std::string shown(text.substr(0, longest));
    if (text.size() > longest) {
        shown += "...";
    }
    throw ValueError{"'" + shown + "' is not " + kind};
}

} // namespace binding
} // namespace citygml
