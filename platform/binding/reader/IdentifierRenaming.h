#pragma once

#include "platform/binding/reader/LocalLinks.h"
#include "platform/binding/reader/NameResolver.h"
#include "platform/binding/reader/XmlParser.h"
#include "platform/binding/SchemaIndex.h"

#include <cstddef>
#include <map>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace citygml {
namespace binding {

class NamespaceScopes;

/// New names for the identifiers of a document that stand twice. Elements are counted in the order of their
/// start tags; members are the children of the root, counted from 1.
struct IdentifierRenaming
{
    /// The new name of an element, by its number.
    std::unordered_map<std::size_t, std::string> ofElements;
    /// The new name that references in a member follow to, by the member and the identifier.
    std::map<std::pair<std::size_t, std::string>, std::string> ofReferences;
};

/// Finds the identifiers of a document that stand twice, and free names for them.
class IdentifierScan : public XmlHandler
{
public:
    /// \param scopes follows the parser
    explicit IdentifierScan(NamespaceScopes& scopes);

    void startElement(const char* name, const XmlAttributes& attributes) override;
    void endElement(const char* name) override;
    void characters(std::string_view characters) override;
    void comment(std::string) override {}
    void processingInstruction(std::string) override {}
    std::string path() const override { return std::string(); }

    /// To be called when the document has been read.
    IdentifierRenaming take();

private:
    /// An element whose identifier an earlier one has.
    struct Later
    {
        std::size_t element;
        std::size_t member;
        std::string identifier;
    };

    void enter(const std::string& identifier);
    void noteTarget(std::string_view reference);
    std::string freeName(const std::string& identifier);

    NamespaceScopes& scopes;
    NameResolver names;
    const LocalLinks links;
    std::size_t depth = 0;
    std::size_t elementCount = 0;
    std::size_t memberCount = 0;
    // The members of all identifiers, where each stands first.
    std::unordered_map<std::string, std::size_t> identifiers;
    // What references refer to, whether it is there or not.
    std::unordered_set<std::string> targets;
    std::vector<Later> twice;
    // The number that each identifier's last new name ends in.
    std::unordered_map<std::string, std::size_t> numbers;
    std::string text;
    bool isReference = false;
};

} // namespace binding
} // namespace citygml
