#pragma once

#include "platform/binding/Tables.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
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

    /// A piece of content.
    struct Node
    {
        Kind kind;
        /// It is written in front of the child element with this number, counted over the children with a
        /// member.
        std::uint32_t position;
        /// Markup as it is written, names and entities included.
        std::string xml;
    };

    /// An attribute of an element that is no object, but a value of a fundamental type.
    struct ValueAttribute
    {
        std::uint16_t member;
        std::uint32_t index;
        Attribute attribute;
    };

    /// What belongs to the document as a whole; kept with its root.
    struct Document
    {
        /// Prefix and namespace of each declaration.
        std::vector<std::pair<std::string, std::string>> namespaces;
        /// Namespace and location, as pairs.
        std::vector<std::pair<std::string, std::string>> schemaLocations;
        bool hasSchemaLocation = false;
        /// Comments and processing instructions around the root.
        std::vector<std::string> prologue;
        std::vector<std::string> epilogue;
    };

    std::vector<Attribute> attributes;
    std::vector<Node> nodes;
    std::vector<ValueAttribute> valueAttributes;
    /// Members of the children in repeated particles in the order of the document, where that alternates.
    std::vector<std::uint16_t> order;
    std::shared_ptr<Document> document;

    static const KeptContent* find(const xml_schema::type& object) { return object.m_kept.get(); }
    /// The object's kept content, made on first use.
    static KeptContent& of(xml_schema::type& object);

    static std::uint32_t elementName(const xml_schema::type& object) { return object.m_elementName; }
    static void setElementName(xml_schema::type& object, std::uint32_t name) { object.m_elementName = name; }
    static bool isSpelledOut(const xml_schema::type& object, unsigned attribute)
    {
        return (object.m_spelledOut >> attribute & 1u) != 0;
    }
    static void setSpelledOut(xml_schema::type& object, unsigned attribute)
    {
        object.m_spelledOut |= 1u << attribute;
    }
};

} // namespace binding
} // namespace citygml
