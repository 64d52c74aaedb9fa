#pragma once

#include "platform/binding/kept/KeptContent.h"
#include "platform/binding/SchemaIndex.h"
#include "platform/binding/writer/ElementNames.h"
#include "platform/binding/writer/KeptContentWriter.h"
#include "platform/binding/writer/MemberCursor.h"
#include "platform/binding/writer/NamespaceDeclarations.h"
#include "platform/binding/writer/ValueWriter.h"
#include "platform/binding/writer/XmlOutput.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace citygml {
namespace binding {

/// An object, and the index of the member of its parent that holds it.
struct ChildObject
{
    const xml_schema::type* object;
    MemberIndex member;
};

/// Says of elements that they are written in another way.
class ElementSelection
{
public:
    virtual ~ElementSelection() = default;
    /// \return the only children of the root that are written, with nothing between them; null for all
    virtual const std::vector<ChildObject>* rootChildren() const { return nullptr; }
    /// \param depth 1 for children of the root
    /// \return null for an element to be written as it is, an empty text for one that is left out, else a
    /// number for an empty element in its place, with only this as an attribute `n`
    virtual const std::string* numberOf(const ChildObject& child, int depth) = 0;
};

/// Writes objects as elements: their attributes, texts and children by the schema tables, and between these
/// what the reader has kept.
class ElementWriter
{
public:
    /// Name and value.
    using Attribute = std::pair<std::string, std::string>;

    /// \param rootScope see KeptContentWriter
    ElementWriter(XmlOutput& out, NamespaceDeclarations& namespaces, const KeptContent::Scope* rootScope);

    /// Marks what no member holds from now on, see KeptContentWriter, and selects among the elements.
    ///
    /// \param elements may be null
    void writeForComparison(ElementSelection* elements)
    {
        keptWriter.markNodes();
        selection = elements;
    }
    /// Writes a whole document, from the start tag of its root to the end tag.
    ///
    /// \param first the attributes that come in front of the root's own
    void writeRoot(const xml_schema::type& root, const std::string& name,
                   const std::vector<Attribute>& first);

private:
    /// An object whose content is being written.
    struct Content
    {
        const xml_schema::type& object;
        const TypeIndex& type;
        const KeptContent* kept;
        int depth;
        /// Whether each child has a line of its own. Text would change with that.
        bool isIndented;
        KeptContent::NodeCursor nodes;
        /// Whether there was anything yet.
        bool isEmpty = true;
    };

    void writeElement(const xml_schema::type& object, const TypeIndex& type, const ElementNames::Tag& tag,
                      int depth);
    void finishElement(const xml_schema::type& object, const TypeIndex& type, const ElementNames::Tag& tag,
                       int depth);
    void writeAttributes(const xml_schema::type& object, const TypeIndex& type, const KeptContent* kept);
    void writeType(const TypeIndex& type);
    bool writeKeptAttributes(const xml_schema::type& object, const TypeIndex& type, const KeptContent& kept);
    bool isUnsetNil(const xml_schema::type& object, const TypeIndex& type, const KeptContent* kept) const;
    void writeText(const xml_schema::type& object, const TypeIndex& type, const std::string& name,
                   const KeptContent* kept);

    void writeContent(const xml_schema::type& object, const TypeIndex& type, const std::string& name,
                      const KeptContent* kept, int depth);
    void beginItem(Content& content);
    void writeNode(Content& content, const KeptContent::Node& node);
    void writeNodesInFrontOf(Content& content, const KeptContent::Position& child);
    void writeChildren(Content& content);
    void writeInKeptOrder(Content& content);
    MemberCursor cursorOf(const Content& content, std::size_t member) const;
    void writeChild(Content& content, MemberCursor& children, const KeptContent::Position& position);
    void writeObject(Content& content, MemberIndex member, const xml_schema::type& object);
    void writeNumber(Content& content, const std::string& tag, const std::string& number);
    void writeValue(const Content& content, const TypeIndex::FlatMember& member,
                    const MemberCursor::Child& child);

    XmlOutput& out;
    NamespaceDeclarations& namespaces;
    const SchemaIndex& index;
    ElementNames names;
    ValueWriter values;
    KeptContentWriter keptWriter;
    ElementSelection* selection = nullptr;
    // The text of the attribute or element that is being written; here, so that its memory is used again.
    std::string text;
};

} // namespace binding
} // namespace citygml
