#include "platform/binding/writer/DocumentWriter.h"

#include "platform/binding/kept/KeptContent.h"
#include "platform/binding/SchemaIndex.h"
#include "platform/binding/writer/ElementWriter.h"
#include "platform/binding/writer/NamespaceDeclarations.h"
#include "platform/binding/writer/XmlOutput.h"
#include "platform/binding/xml/Namespaces.h"
#include "platform/binding/xml/PrefixedName.h"

#include <algorithm>
#include <functional>
#include <sstream>

namespace citygml {
namespace binding {

namespace {

/// Declares on the root what the document did, what the host wants, and what the schema and the root's own
/// attributes may need.
void declareNamespaces(const KeptContent::Document& document, const NamespaceMap& wanted,
                       const KeptContent* ofRoot, NamespaceDeclarations& namespaces)
{
    for (const auto& declaration : document.namespaces) {
        namespaces.keep(declaration.first, declaration.second);
    }
    for (const auto& entry : wanted) {
        namespaces.provide(entry.first, entry.second.name);
    }
    for (const std::string& uri : SchemaIndex::instance().namespaces()) {
        if (uri != xsUri) {
            namespaces.provide(std::string(), uri);
        }
    }
    namespaces.provide("xsi", xsiUri);
    if (ofRoot != nullptr) {
        for (const KeptContent::Attribute& attribute : ofRoot->attributes()) {
            namespaces.provide(attribute.prefix, attribute.uri != nullptr ? *attribute.uri : std::string());
        }
    }
}

/// The value of `xsi:schemaLocation`: the document's own, and those of the host for other namespaces. A
/// document that was read without locations gets none.
std::string schemaLocations(const KeptContent::Document& document, const NamespaceMap& wanted)
{
    auto locations = document.schemaLocations;
    const bool isNew = document.namespaces.empty();
    if (document.hasSchemaLocation || isNew) {
        for (const auto& entry : wanted) {
            const auto isSame = [&](const auto& location) { return location.first == entry.second.name; };
            if (!entry.second.schema.empty() && std::none_of(locations.begin(), locations.end(), isSame)) {
                locations.emplace_back(entry.second.name, entry.second.schema);
            }
        }
    }
    std::string text;
    for (const auto& location : locations) {
        if (!text.empty()) {
            text += ' ';
        }
        text.append(location.first).append(1, ' ').append(location.second);
    }
    return text;
}

std::vector<ElementWriter::Attribute> rootAttributes(const NamespaceDeclarations& namespaces,
                                                     const std::string& locations)
{
    std::vector<ElementWriter::Attribute> attributes;
    for (const NamespaceDeclarations::Declaration& declaration : namespaces.ofRoot()) {
        const bool isDefault = declaration.first.empty();
        attributes.emplace_back(isDefault ? std::string("xmlns") : prefixedName("xmlns", declaration.first),
                                declaration.second);
    }
    if (!locations.empty()) {
        attributes.emplace_back(prefixedName(namespaces.attributePrefixOf(xsiUri), "schemaLocation"),
                                locations);
    }
    return attributes;
}

void writeLines(const std::vector<std::string>& lines, XmlOutput& out)
{
    for (const std::string& line : lines) {
        out.markup(line);
        out.markup("\n");
    }
}

void writeDocument(std::ostream& stream, const core::CityModelType& model, const NamespaceMap& wanted,
                   const std::function<void(ElementWriter&)>& prepare)
{
    const KeptContent* const kept = KeptContent::find(model);
    const KeptContent::Document fresh;
    const KeptContent::Document& document =
        kept != nullptr && kept->document() != nullptr ? *kept->document() : fresh;
    NamespaceDeclarations namespaces;
    declareNamespaces(document, wanted, kept, namespaces);

    XmlOutput out(stream);
    ElementWriter elements(out, namespaces, document.scope.get());
    prepare(elements);
    out.markup("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
    writeLines(document.prologue, out);
    elements.writeRoot(model, namespaces.elementName(coreUri, rootName),
                       rootAttributes(namespaces, schemaLocations(document, wanted)));
    out.markup("\n");
    writeLines(document.epilogue, out);
    out.flush();
}

} // namespace

void writeDocument(std::ostream& stream, const core::CityModelType& model, const NamespaceMap& wanted)
{
    writeDocument(stream, model, wanted, [](ElementWriter&) {});
}

std::string textForComparison(const core::CityModelType& model, const NamespaceMap& wanted,
                              ElementSelection* selection)
{
    std::ostringstream stream;
    writeDocument(stream, model, wanted,
                  [selection](ElementWriter& elements) { elements.writeForComparison(selection); });
    return stream.str();
}

} // namespace binding
} // namespace citygml
