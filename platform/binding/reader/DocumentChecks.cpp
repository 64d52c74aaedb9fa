#include "platform/binding/reader/DocumentChecks.h"

#include "platform/binding/reader/DocumentHandler.h"
#include "platform/binding/reader/NamespaceScopes.h"
#include "platform/binding/values/WhiteSpace.h"
#include "platform/binding/xml/Namespaces.h"
#include "platform/binding/xml/PrefixedName.h"

#include <algorithm>
#include <charconv>
#include <tuple>
#include <utility>

namespace citygml {
namespace binding {

namespace {

using Form = PositionCount::Form;

bool isOf(const TypeRecord& record, std::string_view uri, std::string_view name)
{
    return record.uri == uri && record.name == name;
}

/// Whether objects of a type may hold elements that the schema does not list for it.
bool isOpenTo(const TypeIndex& type, const std::string& uri)
{
    for (const TypeRecord* record = type.record(); record != nullptr; record = record->base) {
        const bool takesAny = isOf(*record, gmlUri, "GenericMetaDataType") ||
                              isOf(*record, gmlUri, "MetaDataPropertyType") ||
                              isOf(*record, gmlUri, "SymbolType");
        const bool takesOthers =
            record->uri == std::string_view(xalUri) || record->uri == std::string_view(smilLanguageUri);
        if (takesAny || (takesOthers && uri != record->uri && !uri.empty())) {
            return true;
        }
    }
    return isOf(*type.record(), xsUri, "anyType");
}

} // namespace

DocumentChecks::DocumentChecks(const XmlParser& parser, const NamespaceScopes& scopes,
                               DocumentHandler& reader)
    : parser(parser), scopes(scopes), reader(reader), index(SchemaIndex::instance()), names(index, scopes),
      links(index), positions(index), srsDimension(index.nameId("", "srsDimension")),
      gridDimension(index.nameId("", "dimension")),
      picturePoint(index.nameId(appearanceUri, "referencePoint"))
{
}

void DocumentChecks::startElement(const char* name, const XmlAttributes& attributes)
{
    openElement(name, attributes);
    text.clear();
    reader.startElement(name, attributes);
    if (taken != nullptr) {
        const std::string identifier = collapsed(taken);
        tell(open.back().place, "the identifier '" + identifier + "' stands in line " +
                                    std::to_string(identifiers.at(identifier)) + " already");
        taken = nullptr;
    }
    readReferences(attributes);
}

void DocumentChecks::openElement(const char* name, const XmlAttributes& attributes)
{
    Element element;
    element.name = name;
    element.id = names.elementId(name);
    element.place = parser.place();
    element.form = positions.formOf(element.id);
    if (!open.empty()) {
        // Where a picture lies needs no height.
        element.dimension = element.id == picturePoint ? 0 : open.back().dimension;
    }
    open.push_back(std::move(element));
    for (const XmlAttribute attribute : attributes) {
        if (attribute.isDeclaration()) {
            continue;
        }
        const NameId id = names.attributeId(attribute.name);
        if (links.isIdentifier(open.back().id, id)) {
            enterIdentifier(attribute);
        }
        readDimension(open.back(), id, attribute.value);
        readSeparators(open.back(), attribute);
    }
}

void DocumentChecks::readDimension(Element& element, NameId attribute, const char* value) const
{
    const bool isDimension =
        attribute != 0 && (attribute == srsDimension || (attribute == gridDimension && element.id != 0 &&
                                                         index.name(element.id).uri == gmlUri));
    if (!isDimension) {
        return;
    }
    const std::string_view digits = trimmed(value);
    std::size_t dimension = 0;
    const auto end = digits.data() + digits.size();
    const auto result = std::from_chars(digits.data(), end, dimension);
    // The reader tells of one that is no number.
    if (result.ec == std::errc() && result.ptr == end && dimension != 0) {
        element.dimension = dimension;
    }
}

void DocumentChecks::readSeparators(Element& element, const XmlAttribute& attribute) const
{
    const std::string_view value(attribute.value);
    if (element.form != Form::Tuples || value.size() != 1) {
        return;
    }
    if (std::string_view(attribute.name) == "cs") {
        element.separators.ofCoordinates = value.front();
    } else if (std::string_view(attribute.name) == "ts") {
        element.separators.ofTuples = value.front();
    }
}

void DocumentChecks::enterIdentifier(const XmlAttribute& attribute)
{
    const bool isNew = identifiers.emplace(collapsed(attribute.value), open.back().place.line).second;
    if (!isNew) {
        taken = attribute.value;
    }
}

void DocumentChecks::readReferences(const XmlAttributes& attributes)
{
    for (const XmlAttribute attribute : attributes) {
        if (!attribute.isDeclaration() &&
            links.isReference(open.back().id, names.attributeId(attribute.name))) {
            follow(attribute.value, open.back().place);
        }
    }
}

void DocumentChecks::follow(std::string_view reference, const XmlParser::Place& place)
{
    std::optional<std::string> target = LocalLinks::targetOf(reference);
    if (target && identifiers.count(*target) == 0) {
        pending.push_back({std::move(*target), place, &*shared.insert(wholePath()).first,
                           &*shared.insert(reader.featureId()).first});
    }
}

void DocumentChecks::endElement(const char* name)
{
    const Element& element = open.back();
    if (element.form != Form::None && element.dimension != 0) {
        const std::string misfit =
            PositionCount::misfit(element.form, text, element.dimension, element.separators);
        if (!misfit.empty()) {
            tell(element.place, misfit);
        }
    } else if (links.isReference(element.id)) {
        follow(text, element.place);
    }
    text.clear();
    reader.endElement(name);
    open.pop_back();
}

void DocumentChecks::characters(std::string_view characters)
{
    if (!open.empty() && (open.back().form != Form::None || links.isReference(open.back().id))) {
        text += characters;
    }
    reader.characters(characters);
}

void DocumentChecks::comment(std::string markup)
{
    reader.comment(std::move(markup));
}

void DocumentChecks::processingInstruction(std::string markup)
{
    reader.processingInstruction(std::move(markup));
}

void DocumentChecks::meetElement(const TypeIndex* parent, const char* name)
{
    const std::string uri = scopes.namespaceOf(PrefixedName(name).prefix);
    const bool hasPlace = parent != nullptr &&
                          (isOpenTo(*parent, uri) || index.slotOf(*parent, names.elementId(name)) != nullptr);
    if (!hasPlace && (uri.empty() || isKnownTo(uri))) {
        tell(parser.place(), "the element '" + std::string(name) + "' is unknown here");
    }
}

void DocumentChecks::meetAttribute(const TypeIndex* owner, const char* name)
{
    const PrefixedName parts(name);
    const std::string uri = parts.prefix.empty() ? std::string() : scopes.namespaceOf(parts.prefix);
    const bool isForeign = !uri.empty() && !isKnownTo(uri);
    if (isForeign || (owner != nullptr && !uri.empty() && isOpenTo(*owner, uri))) {
        return;
    }
    tell(parser.place(), "the attribute '" + std::string(name) + "' is unknown here");
}

bool DocumentChecks::isKnownTo(const std::string& uri) const
{
    const auto& known = index.namespaces();
    return std::find(known.begin(), known.end(), uri) != known.end();
}

void DocumentChecks::tell(const XmlParser::Place& place, std::string reason)
{
    findings.push_back({place.line, place.column, wholePath(), std::move(reason), reader.featureId()});
}

std::string DocumentChecks::wholePath() const
{
    std::string path;
    for (const Element& element : open) {
        path += '/' + element.name;
    }
    return path;
}

void DocumentChecks::endDocument()
{
    for (const Reference& reference : pending) {
        if (identifiers.count(reference.target) == 0) {
            findings.push_back({reference.place.line, reference.place.column, *reference.path,
                                "nothing in the document has the identifier '" + reference.target + '\'',
                                *reference.featureId});
        }
    }
    pending.clear();
}

void DocumentChecks::fail(std::uint64_t line, std::uint64_t column, std::string reason)
{
    findings.push_back({line, column, wholePath(), std::move(reason), reader.featureId()});
}

std::vector<Finding> DocumentChecks::take()
{
    std::stable_sort(findings.begin(), findings.end(), [](const Finding& a, const Finding& b) {
        return std::tie(a.line, a.column) < std::tie(b.line, b.column);
    });
    return std::move(findings);
}

} // namespace binding
} // namespace citygml
