#include "platform/binding/reader/Shortened.h"

namespace citygml {
namespace binding {

std::string shortened(const std::string& text, std::size_t longest)
{
    if (text.size() <= longest) {
        return text;
    }
    std::size_t end = longest;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0u) == 0x80u) {
        --end;
    }
    return text.substr(0, end) + "...";
}

} // namespace binding
} // namespace citygml
