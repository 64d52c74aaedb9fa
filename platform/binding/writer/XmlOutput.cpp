#include "platform/binding/writer/XmlOutput.h"

#include "platform/binding/xml/XmlText.h"
#include "xml-schema.hxx"

#include <ostream>

namespace citygml {
namespace binding {

namespace {

constexpr std::size_t largeSize = 1 << 16;

[[noreturn]] void reject(const std::string& name)
{
    xsd::cxx::tree::diagnostics<char> diagnostics;
    diagnostics.push_back(
        xsd::cxx::tree::error<char>(xsd::cxx::tree::severity::error, "document", 0, 0,
                                    "the text of '" + name + "' holds a character that XML cannot hold"));
    throw xsd::cxx::tree::serialization<char>(diagnostics);
}

} // namespace

void XmlOutput::attribute(const std::string& name, std::string_view value)
{
    buffer.append(1, ' ').append(name).append("=\"");
    if (!appendEscapedAttribute(value, buffer)) {
        reject(name);
    }
    buffer += '"';
}

void XmlOutput::text(const std::string& element, std::string_view text)
{
    if (!appendEscaped(text, buffer)) {
        reject(element);
    }
}

void XmlOutput::flushIfLarge()
{
    if (buffer.size() > largeSize) {
        flush();
    }
}

void XmlOutput::flush()
{
    stream.write(buffer.data(), static_cast<std::streamsize>(buffer.size()));
    buffer.clear();
}

} // namespace binding
} // namespace citygml
