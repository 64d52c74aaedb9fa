#include "platform/binding/changes/MarkupSearch.h"

namespace citygml {
namespace binding {

namespace {

bool startsWith(std::string_view text, std::size_t at, std::string_view start)
{
    return text.compare(at, start.size(), start) == 0;
}

} // namespace

std::size_t elementBegin(std::string_view bytes, std::size_t at)
{
    for (;;) {
        at = bytes.find('<', at);
        if (startsWith(bytes, at, "<!--")) {
            at = bytes.find("-->", at);
        } else if (startsWith(bytes, at, "<?")) {
            at = bytes.find("?>", at);
        } else if (startsWith(bytes, at, "<![CDATA[")) {
            at = bytes.find("]]>", at);
        } else {
            return at;
        }
    }
}

std::string_view tagNameAt(std::string_view bytes, std::size_t begin)
{
    const std::size_t end = bytes.find_first_of(" \t\r\n/>", begin + 1);
    return bytes.substr(begin + 1, end - begin - 1);
}

} // namespace binding
} // namespace citygml
