#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>

namespace citygml {
namespace binding {

/// Writes XML to a stream, through a buffer of its own.
class XmlOutput
{
public:
    explicit XmlOutput(std::ostream& stream) : stream(stream) {}

    /// Begins a start tag; its attributes follow.
    void beginStartTag(std::string_view name) { buffer.append(1, '<').append(name); }
    /// \throws xsd::cxx::tree::serialization<char> where the value holds what XML cannot.
    void attribute(const std::string& name, std::string_view value);
    void endStartTag() { buffer += '>'; }
    /// Makes an empty element of the tag that has been begun.
    void endEmptyTag() { buffer += "/>"; }
    void endTag(std::string_view name) { buffer.append("</").append(name).append(1, '>'); }
    /// Writes text of an element.
    ///
    /// \throws xsd::cxx::tree::serialization<char> where the text holds what XML cannot.
    void text(const std::string& element, std::string_view text);
    /// Writes what is XML already.
    void markup(std::string_view xml) { buffer.append(xml); }
    /// \param depth number of the elements around what comes on the new line
    void newLine(int depth) { buffer.append(1, '\n').append(2 * static_cast<std::size_t>(depth), ' '); }

    /// Hands on what has been written, where that is worth it.
    void flushIfLarge();
    void flush();

private:
    std::ostream& stream;
    std::string buffer;
};

} // namespace binding
} // namespace citygml
