#pragma once

#include "BindingExport.h"
#include "citygml/Findings.h"
#include "xml-schema.hxx"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace citygml {
namespace binding {

/// What a document said about an object that the object's class has no member for: unknown attributes and
/// elements, comments, processing instructions, text between elements, spellings, values that are nil.
///
/// Only an object about which there is something to say has one; copies of the object have copies of it. The
/// reader adds to it in the order of the document and seals it at the end of the element. The writer goes
/// over the object's children, and asks before each of them for the nodes in front of it:
///
///     <Building>                 members: name 2, function 7
///       <!--a-->                 Position::inFront()
///       <name/>
///       <!--b-->                 Position::behind(2, 1)
///       <function/><function/>
///       <x:c/>                   Position::behind(7, 2)
///     </Building>
///
/// A position speaks of members and numbers of children, not of objects. So it holds when the children
/// themselves are edited, and what stood behind a child that is there no more moves to the next one.
///
/// Children that stood in another order than the schema's have a child order. Then a position counts the
/// children of that order, whatever their members:
///
///     <Building>                 child order: 7, 2
///       <function/>
///       <!--a-->                 Position::behindChildren(1)
///       <name/>
///     </Building>
///
/// Of sealed content is true:
/// - The nodes are in the order of their positions, those at the same one in the order of the document.
/// - The values are in the order of their members and indices, the object's own text in front.
/// - Text that is white space alone is there only beside other text.
class TOLVIK_BINDING_EXPORT KeptContent
{
public:
    /// Index of a member in TypeIndex::members().
    using MemberIndex = std::uint16_t;

    /// Of how many attributes with default or fixed values of a type, and of how many members for elements,
    /// kept content can tell.
    /// @{
    static constexpr std::size_t mostDefaults = 15;
    static constexpr std::size_t mostElements = 255;
    /// @}

    /// A place between the children of an object, or in its text.
    class Position
    {
    public:
        /// In front of all children.
        static Position inFront() { return Position(0, 0); }
        /// Behind so many children of a member, from one up. Children of members that may alternate count
        /// together, under the first of these members. The child itself has that position too.
        static Position behind(MemberIndex member, std::size_t children)
        {
            return Position(member, static_cast<std::uint32_t>(children));
        }
        /// Behind all children of a member, however many there are.
        static Position behindAll(MemberIndex member)
        {
            return Position(static_cast<MemberIndex>(member + 1), 0);
        }
        /// Behind so many children of an object, in its child order.
        static Position behindChildren(std::size_t children)
        {
            return Position(0, static_cast<std::uint32_t>(children));
        }
        /// Behind so many bytes of a string or of a text that is wrong, or behind so many words of any other
        /// value, which may be spelled otherwise when it is written.
        static Position inText(std::size_t count) { return Position(0, static_cast<std::uint32_t>(count)); }

        MemberIndex member() const { return memberIndex; }
        /// Number of children of the member in front of it, of all children, or of bytes or words
        /// in a text.
        std::size_t count() const { return inFrontOfIt; }

        friend bool operator<(const Position& a, const Position& b)
        {
            return a.memberIndex != b.memberIndex ? a.memberIndex < b.memberIndex
                                                  : a.inFrontOfIt < b.inFrontOfIt;
        }

    private:
        Position(MemberIndex member, std::uint32_t count) : inFrontOfIt(count), memberIndex(member) {}

        std::uint32_t inFrontOfIt;
        MemberIndex memberIndex;
    };

    /// Namespace declarations of an element, and of the elements around it.
    struct Scope
    {
        /// Prefix and namespace.
        std::vector<std::pair<std::string, std::shared_ptr<const std::string>>> declarations;
        std::shared_ptr<const Scope> outer;

        /// \return null for a prefix that is not declared.
        const std::string* namespaceOf(std::string_view prefix) const;
    };

    /// An attribute that the type does not declare, with the prefix that it had.
    struct Attribute
    {
        std::string prefix;
        /// Shared, since a namespace may be longer than what stands in it; null for none.
        std::shared_ptr<const std::string> uri;
        std::string name;
        std::string value;
        /// Whether it is an `xsi:type` that the object does not have.
        bool isOtherType = false;

        bool is(std::string_view otherUri, std::string_view otherName) const
        {
            return name == otherName && uri != nullptr && *uri == otherUri;
        }
        /// Whether it is `xsi:nil`, whatever its value.
        bool isNil() const;
    };

    enum class Kind : std::uint8_t { Text, Comment, Instruction, Element };

    /// A piece of content.
    struct Node
    {
        Node(const Position& position, Kind kind, std::string xml, std::shared_ptr<const Scope> scope)
            : position(position), kind(kind), xml(std::move(xml)), scope(std::move(scope))
        {
        }

        // A document may have many nodes: kind and number stand in the bytes that the position leaves.
        [[no_unique_address]] Position position;
        Kind kind;
        /// Of an element that stands in the place of a single member, and of which no object can be made: one
        /// more than the member's index. The node goes when the member gets a value. 0 for any other.
        std::uint8_t standsFor = 0;
        /// Markup as it is written, names and entities included.
        std::string xml;
        /// Of an element: what its prefixes mean.
        std::shared_ptr<const Scope> scope;
    };

    /// What a document said about a value that is no object of its own: a child of a fundamental type, an
    /// attribute, or the object's own text.
    struct Value
    {
        /// Empty for the object's own text.
        std::optional<MemberIndex> member;
        /// Index of the value in the member. A value that is absent has the index of the one behind it.
        std::uint32_t index = 0;
        /// Whether the member has no value for it, so that only this tells that it is there: it is nil or
        /// wrong.
        bool isAbsent = false;
        /// Whether the document's text is no value of the type. What is in the member in its place, if
        /// anything, is a new value.
        bool isWrong = false;
        /// Whether the document has neither text nor element for it, though the member requires a value.
        bool isMissing = false;
        std::vector<Attribute> attributes;
        /// In the order of the text.
        std::vector<Node> nodes;
        /// The document's text, where one value can be spelled in several ways, or the text is wrong; else
        /// empty.
        std::string spelling;
    };

    /// Some values that follow each other.
    class Values
    {
    public:
        Values() = default;
        Values(const Value* first, const Value* last) : first(first), last(last) {}
        const Value* begin() const { return first; }
        const Value* end() const { return last; }

    private:
        const Value* first = nullptr;
        const Value* last = nullptr;
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
        std::vector<FindingGroup> findings;
    };

    /// Hands out the nodes of an object in their order, each once.
    class NodeCursor
    {
    public:
        /// \param kept may be null; it outlives the cursor and is not changed meanwhile
        explicit NodeCursor(const KeptContent* kept);

        /// \return the next node in front of the child at that position, or null.
        const Node* takeInFrontOf(const Position& child);
        /// \return the next node, or null.
        const Node* take();

    private:
        const Node* next = nullptr;
        const Node* end = nullptr;
    };

    /// \return null where nothing is kept.
    static const KeptContent* find(const xml_schema::type& object) { return object.kept.get(); }
    static KeptContent* find(xml_schema::type& object) { return object.kept.get(); }
    /// The object's kept content, made on first use.
    static KeptContent& of(xml_schema::type& object);

    /// Identifier of the name under which a document held the object; 0 for an object that a program made.
    static std::uint32_t elementName(const xml_schema::type& object) { return object.elementName; }
    static void setElementName(xml_schema::type& object, std::uint32_t name) { object.elementName = name; }
    /// Whether the document spelled out an attribute that has a default or fixed value.
    ///
    /// \param attribute the bit of TypeIndex::FlatMember
    static bool isSpelledOut(const xml_schema::type& object, std::uint16_t attribute)
    {
        return (object.spelledOut & attribute) != 0;
    }
    static void setSpelledOut(xml_schema::type& object, std::uint16_t attribute)
    {
        object.spelledOut = static_cast<std::uint16_t>(object.spelledOut | attribute);
    }
    static void clearSpelledOut(xml_schema::type& object, std::uint16_t attribute)
    {
        object.spelledOut = static_cast<std::uint16_t>(object.spelledOut & ~attribute);
    }
    /// Whether the document spelled out the same in two objects of a type, and lacked both or none.
    static bool haveSameMarks(const xml_schema::type& a, const xml_schema::type& b)
    {
        return a.spelledOut == b.spelledOut;
    }
    /// Whether a required member has the object only so that it is not empty: the document has no such
    /// element or attribute. A save leaves the object out as long as nothing has been set in it, see
    /// isLeftOut().
    static bool isMissing(const xml_schema::type& object) { return (object.spelledOut & missingBit) != 0; }
    static void setMissing(xml_schema::type& object)
    {
        object.spelledOut = static_cast<std::uint16_t>(object.spelledOut | missingBit);
    }
    /// To be told where a program gives an object a value that may be the one it has.
    static void setGiven(xml_schema::type& object);
    /// What an edit keeps, when it assigns one object to another.
    ///
    /// An object that a document held brings all that the document said about it, in place of what was there;
    /// so does one that the document lacked. An object that a program made says nothing about any document:
    /// the target keeps its element name, its attributes, its nodes and its spellings, and only the members
    /// change. The writer then leaves out what no longer fits, such as the spelling of another value.
    ///
    /// The run-time's classes of strings assign the characters alone, without a call of this. So an object
    /// that is a string keeps its own in either case.
    static void assign(xml_schema::type& target, const xml_schema::type& source);
    /// Gives an object all that a document said about another one, and nothing else.
    static void copy(xml_schema::type& target, const xml_schema::type& source);

    void addAttribute(Attribute attribute) { keptAttributes.push_back(std::move(attribute)); }
    void addNode(Node node) { keptNodes.push_back(std::move(node)); }
    void addValue(Value value) { keptValues.push_back(std::move(value)); }
    /// \param member an attribute; empty for the object's own text
    void addSpelling(std::optional<MemberIndex> member, std::string_view text);
    /// Notes that the document lacks a member of a fundamental type. One that holds an object has an object
    /// that isMissing() instead.
    void addMissing(MemberIndex member);
    /// Sets the members of all children, in the order of the document. The positions of the nodes count
    /// these.
    void setChildOrder(std::vector<MemberIndex> members) { order = std::move(members); }
    /// Gives each node another position.
    ///
    /// \param newPosition answers it, for one node after the other
    template <typename Function>
    void moveNodes(Function newPosition)
    {
        for (Node& node : keptNodes) {
            node.position = newPosition(static_cast<const Node&>(node));
        }
    }
    /// Replaces what is kept about the values of a member, of sealed content.
    void setValues(MemberIndex member, std::vector<Value> values);
    void setDocument(std::shared_ptr<const Document> whole) { ofDocument = std::move(whole); }
    /// A piece to be edited: all of it but its place and kind. Null where there is none.
    /// @{
    Attribute* attribute(std::size_t index);
    Node* node(std::size_t index);
    /// \param number among what is kept about the values of a member, of sealed content
    Value* value(std::optional<MemberIndex> member, std::size_t number);
    /// @}
    /// Makes the invariants true that the class promises; to be called when all is added.
    void seal();
    /// Seals what is kept about an object, and forgets it where that is nothing.
    static void seal(xml_schema::type& object);

    const std::vector<Attribute>& attributes() const { return keptAttributes; }
    /// Whether the document said that the object is nil, or is not.
    bool hasNilAttribute() const;
    /// Those of sealed content.
    const std::vector<Node>& nodes() const { return keptNodes; }
    const std::vector<Value>& values() const { return keptValues; }
    /// Whether there is text between the children, to which white space matters.
    bool hasText() const;
    /// What is kept about the values of a member, of sealed content.
    Values valuesOf(std::optional<MemberIndex> member) const;
    /// Whether a member has a value that is absent; before the content is sealed, too.
    bool hasAbsentValue(MemberIndex member) const;
    /// Whether the document lacked a member of a fundamental type, of sealed content.
    bool lacks(MemberIndex member) const;
    /// What is kept about an attribute or, with an empty member, about the object's own text, where the
    /// document's text is no value of the type.
    ///
    /// \return null where it is one.
    const Value* wrongValueOf(std::optional<MemberIndex> member) const;
    /// Forgets the object's own text, where that is no value of the type, and which members the document
    /// lacked.
    void forgetFaults();
    /// Whether an element stands for a member, see Node.
    bool hasStandIn(MemberIndex member) const;
    /// Lets the elements that stand for a member be content like any other.
    void releaseStandIns(MemberIndex member);
    /// The document's text of an attribute or, with an empty member, of the object itself.
    ///
    /// \return empty where none is kept, and where it is wrong.
    std::string_view spellingOf(std::optional<MemberIndex> member) const;
    /// The members of all children that the document had, in its order; empty where that is the order of the
    /// schema. Children may have come or gone since.
    const std::vector<MemberIndex>& childOrder() const { return order; }
    /// Null for any object but the root of a document.
    const Document* document() const { return ofDocument.get(); }

private:
    // Behind those of the attributes.
    static constexpr std::uint16_t missingBit = 1u << mostDefaults;

    bool isEmpty() const;

    std::vector<Attribute> keptAttributes;
    std::vector<Node> keptNodes;
    std::vector<Value> keptValues;
    std::vector<MemberIndex> order;
    std::shared_ptr<const Document> ofDocument;
};

} // namespace binding
} // namespace citygml
