#pragma once

#include "platform/binding/Tables.h"

#include <cstdint>
#include <string>
#include <vector>

namespace citygml {
namespace binding {

/// What a document said about an object that the object's class has no member for.
class KeptContent
{
public:
    /// An attribute that the type does not declare, with the prefix that it had.
    struct Attribute
    {
        std::string prefix;
        std::string uri;
        std::string name;
        std::string value;
    };

    enum class Kind : std::uint8_t { Text, Comment, Instruction, Element };

    /// A piece of content, written back in front of the child element whose number is `position`.
    struct Node
    {
        Kind kind;
        std::uint32_t position;
        /// Markup as it is written, names and entities included.
        std::string xml;
    };

    std::vector<Attribute> attributes;
    std::vector<Node> nodes;
    /// Order of the child elements as numbers of members, where it is not the order of the members.
    std::vector<std::uint16_t> order;
    /// Prefix declarations of a root element: prefix and namespace.
    std::vector<std::pair<std::string, std::string>> namespaces;

    static const KeptContent* find(const xml_schema::type& object) { return object.m_kept.get(); }
    /// The object's kept content, made on first use.
    static KeptContent& of(xml_schema::type& object);

    static std::uint32_t elementName(const xml_schema::type& object) { return object.m_elementName; }
    static void setElementName(xml_schema::type& object, std::uint32_t name) { object.m_elementName = name; }
    static bool isSpelledOut(const xml_schema::type& object, unsigned attribute)
    {
        return (object.m_spelledOut >> attribute & 1u) != 0;
    }
    static void setSpelledOut(xml_schema::type& object, unsigned attribute) { object.m_spelledOut |= 1u << attribute; }
};

} // namespace binding
} // namespace citygml
