#pragma once

#include "citygml/Findings.h"
#include "platform/binding/reader/IdentifierRenaming.h"
#include "platform/binding/reader/LocalLinks.h"
#include "platform/binding/reader/NameResolver.h"
#include "platform/binding/reader/XmlParser.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace citygml {
namespace binding {

class DocumentHandler;
class NamespaceScopes;

/// Stands between the parser and the handler that makes the objects, and gives elements and references their
/// new names on the way.
class RepairingHandler : public XmlHandler
{
public:
    /// \param scopes   follows the parser
    /// \param renaming that of this document
    /// \param tell     takes what is done
    RepairingHandler(const XmlParser& parser, const NamespaceScopes& scopes, DocumentHandler& reader,
                     const IdentifierRenaming& renaming, std::function<void(const Finding&)> tell);

    void startElement(const char* name, const XmlAttributes& attributes) override;
    void endElement(const char* name) override;
    void characters(std::string_view characters) override;
    void comment(std::string markup) override;
    void processingInstruction(std::string markup) override;
    std::string path() const override;

private:
    const char* newValue(NameId element, const XmlAttribute& attribute);
    const std::string* newTarget(std::string_view reference) const;
    void noteDone(std::string what) { done.push_back(std::move(what)); }
    void tellDone();
    void passText();

    const XmlParser& parser;
    DocumentHandler& reader;
    const IdentifierRenaming& renaming;
    const std::function<void(const Finding&)> tell;
    NameResolver names;
    const LocalLinks links;
    std::size_t elementCount = 0;
    std::size_t memberCount = 0;
    std::vector<std::string> open;
    // The attributes of the start tag, as they are handed on.
    std::vector<const char*> list;
    std::deque<std::string> values;
    // Text that may be a reference, held back until it is there as a whole.
    std::string text;
    bool isReference = false;
    // What was done to the start tag; told when the reader knows the element.
    std::vector<std::string> done;
};

} // namespace binding
} // namespace citygml
