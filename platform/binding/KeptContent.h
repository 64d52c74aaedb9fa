#pragma once

#include "platform/binding/Tables.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace citygml {
namespace binding {

/// What a document said about an object that the object's class has no member for.
class KeptContent
{
public:
    /// Namespace declarations of an element, and of the elements around it.
    struct Scope
    {
        /// Prefix and namespace.
        std::vector<std::pair<std::string, std::shared_ptr<const std::string>>> declarations;
        std::shared_ptr<const Scope> outer;
    };

    /// An attribute that the type does not declare, with the prefix that it had.
    struct Attribute
    {
        std::string prefix;
        /// Shared, since a namespace may be longer than what stands in it; null for none.
        std::shared_ptr<const std::string> uri;
        std::string name;
        std::string value;

        bool is(std::string_view otherUri, std::string_view otherName) const
        {
            return name == otherName && uri != nullptr && *uri == otherUri;
        }
    };

    enum class Kind : std::uint8_t { Text, Comment, Instruction, Element };

    /// A piece of content.
    struct Node
    {
        Kind kind;
        /// It stands behind this many children of this member; children of members that may alternate are
        /// counted together, under the first of these. In an element with text: behind so many bytes.
        std::uint16_t member;
        std::uint32_t index;
        /// Markup as it is written, names and entities included.
        std::string xml;
        /// Of an element: what its prefixes mean.
        std::shared_ptr<const Scope> scope;
    };

    /// What a document said about a value that is no object of its own: a child of a fundamental type, an
    /// attribute, or the object's own text.
    struct Value
    {
        static constexpr std::uint16_t ownText = 0xFFFF;

        std::uint16_t member = ownText;
        /// A value that is nil has no place in the member; only this tells that it is there.
        bool isNil = false;
        /// Number of the value in the member; of a nil value the number of values in front of it.
        std::uint32_t index = 0;
        std::vector<Attribute> attributes;
        std::vector<Node> nodes;
        /// The text, where one value can be spelled in several ways; else empty.
        std::string text;
    };

    /// What belongs to the document as a whole; kept with its root.
    struct Document
    {
        /// Prefix and namespace of each declaration.
        std::vector<std::pair<std::string, std::string>> namespaces;
        /// The same as content of the root sees it. Null where the root is not written back with the
        /// namespaces that it had.
        std::shared_ptr<const Scope> scope;
        /// Namespace and location, as pairs.
        std::vector<std::pair<std::string, std::string>> schemaLocations;
        bool hasSchemaLocation = false;
        /// Comments and processing instructions around the root.
        std::vector<std::string> prologue;
        std::vector<std::string> epilogue;
    };

    std::vector<Attribute> attributes;
    /// In the order of their places.
    std::vector<Node> nodes;
    /// In the order of their members and numbers.
    std::vector<Value> values;
    /// Members of the children in repeated particles in the order of the document, where that alternates.
    std::vector<std::uint16_t> order;
    std::shared_ptr<Document> document;

    static const KeptContent* find(const xml_schema::type& object) { return object.kept.get(); }
    /// The object's kept content, made on first use.
    static KeptContent& of(xml_schema::type& object);

    static std::uint32_t elementName(const xml_schema::type& object) { return object.elementName; }
    static void setElementName(xml_schema::type& object, std::uint32_t name) { object.elementName = name; }
    static bool isSpelledOut(const xml_schema::type& object, unsigned attribute)
    {
        return (object.spelledOut >> attribute & 1u) != 0;
    }
    static void setSpelledOut(xml_schema::type& object, unsigned attribute)
    {
        object.spelledOut = static_cast<std::uint16_t>(object.spelledOut | 1u << attribute);
    }
};

} // namespace binding
} // namespace citygml
