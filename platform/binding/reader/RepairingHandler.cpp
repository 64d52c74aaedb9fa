#include "platform/binding/reader/RepairingHandler.h"

#include "platform/binding/reader/DocumentHandler.h"
#include "platform/binding/reader/NamespaceScopes.h"
#include "platform/binding/values/WhiteSpace.h"

#include <utility>

namespace citygml {
namespace binding {

RepairingHandler::RepairingHandler(const XmlParser& parser, const NamespaceScopes& scopes,
                                   DocumentHandler& reader, const IdentifierRenaming& renaming,
                                   std::function<void(const Finding&)> tell)
    : parser(parser), reader(reader), renaming(renaming), tell(std::move(tell)),
      names(SchemaIndex::instance(), scopes), links(SchemaIndex::instance())
{
}

void RepairingHandler::startElement(const char* name, const XmlAttributes& attributes)
{
    passText();
    ++elementCount;
    if (open.size() == 1) {
        ++memberCount;
    }
    open.emplace_back(name);
    const NameId element = names.elementId(name);
    list.clear();
    values.clear();
    for (const XmlAttribute attribute : attributes) {
        list.push_back(attribute.name);
        list.push_back(attribute.isDeclaration() ? attribute.value : newValue(element, attribute));
    }
    list.push_back(nullptr);
    list.push_back(nullptr);
    reader.startElement(name, XmlAttributes(list.data()));
    isReference = links.isReference(element);
    if (open.size() == 1 && reader.isOlderVersion()) {
        noteDone("the document was of CityGML 1.0; it is of CityGML 2.0 now");
    }
    tellDone();
}

/// The value that the attribute gets; it lasts until the next start tag.
const char* RepairingHandler::newValue(NameId element, const XmlAttribute& attribute)
{
    const NameId id = names.attributeId(attribute.name);
    if (links.isIdentifier(element, id)) {
        const auto found = renaming.ofElements.find(elementCount);
        if (found != renaming.ofElements.end()) {
            noteDone("the identifier '" + collapsed(attribute.value) + "' stood twice; here it is '" +
                     found->second + "' now");
            return found->second.c_str();
        }
    } else if (links.isReference(element, id)) {
        if (const std::string* const target = newTarget(attribute.value)) {
            noteDone("the reference to '" + *LocalLinks::targetOf(attribute.value) + "' refers to '" +
                     *target + "' now");
            return values.emplace_back('#' + *target).c_str();
        }
    }
    return attribute.value;
}

/// What a reference in the member that is open is to refer to; null where it stays as it is.
const std::string* RepairingHandler::newTarget(std::string_view reference) const
{
    if (renaming.ofReferences.empty()) {
        return nullptr;
    }
    std::optional<std::string> target = LocalLinks::targetOf(reference);
    if (!target) {
        return nullptr;
    }
    const auto found = renaming.ofReferences.find({memberCount, std::move(*target)});
    return found != renaming.ofReferences.end() ? &found->second : nullptr;
}

void RepairingHandler::tellDone()
{
    if (done.empty()) {
        return;
    }
    std::string path;
    for (const std::string& name : open) {
        path += '/' + name;
    }
    const XmlParser::Place place = parser.place();
    for (std::string& what : done) {
        tell({place.line, place.column, path, std::move(what), reader.featureId()});
    }
    done.clear();
}

void RepairingHandler::endElement(const char* name)
{
    if (isReference) {
        if (const std::string* const target = newTarget(text)) {
            noteDone("the reference to '" + *LocalLinks::targetOf(text) + "' refers to '" + *target +
                     "' now");
            text = '#' + *target;
        }
    }
    tellDone();
    passText();
    reader.endElement(name);
    open.pop_back();
}

/// Hands on the text that was held back.
void RepairingHandler::passText()
{
    isReference = false;
    if (!text.empty()) {
        reader.characters(text);
        text.clear();
    }
}

void RepairingHandler::characters(std::string_view characters)
{
    if (isReference) {
        text += characters;
    } else {
        reader.characters(characters);
    }
}

void RepairingHandler::comment(std::string markup)
{
    passText();
    reader.comment(std::move(markup));
}

void RepairingHandler::processingInstruction(std::string markup)
{
    passText();
    reader.processingInstruction(std::move(markup));
}

std::string RepairingHandler::path() const
{
    return reader.path();
}

} // namespace binding
} // namespace citygml
