#pragma once

#include "citygml/Findings.h"
#include "platform/binding/reader/LocalLinks.h"
#include "platform/binding/reader/NameResolver.h"
#include "platform/binding/reader/PositionCount.h"
#include "platform/binding/reader/XmlParser.h"
#include "platform/binding/SchemaIndex.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace citygml {
namespace binding {

class DocumentHandler;
class NamespaceScopes;

/// Looks at what a load lets pass: stands between the parser and the handler that makes the objects, and is
/// asked and told by that one where it must know the schema.
class DocumentChecks : public XmlHandler
{
public:
    /// \param scopes follows the parser
    /// \param reader gets everything, and tells its findings here; it must be told of this object
    DocumentChecks(const XmlParser& parser, const NamespaceScopes& scopes, DocumentHandler& reader);

    void startElement(const char* name, const XmlAttributes& attributes) override;
    void endElement(const char* name) override;
    void characters(std::string_view characters) override;
    void comment(std::string markup) override;
    void processingInstruction(std::string markup) override;
    /// Always empty: a finding tells the path beside its reason.
    std::string path() const override { return std::string(); }

    void add(Finding finding) { findings.push_back(std::move(finding)); }
    /// Whether an attribute of the start tag is an identifier that another element has already.
    bool isTakenIdentifier(const XmlAttribute& attribute) const { return attribute.value == taken; }
    /// Tells of an element that the schema may not know where it stands.
    ///
    /// \param parent type of the element around it; null for a value that is no object
    void meetElement(const TypeIndex* parent, const char* name);
    /// The same of an attribute.
    ///
    /// \param owner type of its element; null for a value that is no object
    void meetAttribute(const TypeIndex* owner, const char* name);

    /// To be called when the document has been read to its end.
    void endDocument();
    /// To be called where it could not be.
    void fail(std::uint64_t line, std::uint64_t column, std::string reason);
    /// All that was found, in the order of the document.
    std::vector<Finding> take();

private:
    struct Element
    {
        std::string name;
        NameId id = 0;
        XmlParser::Place place{};
        /// Number of coordinates of a position; 0 where it may be one or the other.
        std::size_t dimension = 3;
        PositionCount::Form form = PositionCount::Form::None;
        PositionCount::Separators separators;
    };

    /// A reference to what has not been met yet. A city may have many of few paths.
    struct Reference
    {
        std::string target;
        XmlParser::Place place;
        const std::string* path;
        const std::string* featureId;
    };

    void openElement(const char* name, const XmlAttributes& attributes);
    void readDimension(Element& element, NameId attribute, const char* value) const;
    void readSeparators(Element& element, const XmlAttribute& attribute) const;
    void enterIdentifier(const XmlAttribute& attribute);
    void readReferences(const XmlAttributes& attributes);
    void follow(std::string_view reference, const XmlParser::Place& place);
    bool isKnownTo(const std::string& uri) const;
    void tell(const XmlParser::Place& place, std::string reason);
    std::string wholePath() const;

    const XmlParser& parser;
    const NamespaceScopes& scopes;
    DocumentHandler& reader;
    const SchemaIndex& index;
    NameResolver names;
    const LocalLinks links;
    const PositionCount positions;
    const NameId srsDimension;
    const NameId gridDimension;
    const NameId picturePoint;
    std::vector<Element> open;
    // Text of the innermost element, where it is one whose text is looked at.
    std::string text;
    // The lines of all identifiers.
    std::unordered_map<std::string, std::uint64_t> identifiers;
    // Value of the attribute of the start tag that is an identifier which stands twice, else null.
    const char* taken = nullptr;
    std::vector<Reference> pending;
    // Paths and identifiers that references share.
    std::unordered_set<std::string> shared;
    std::vector<Finding> findings;
};

} // namespace binding
} // namespace citygml
