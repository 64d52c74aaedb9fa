#include "platform/binding/reader/XmlParser.h"

#include "platform/binding/reader/Encodings.h"
#include "platform/binding/reader/NamespaceScopes.h"
#include "platform/binding/reader/Shortened.h"
#include "platform/binding/values/ValueError.h"
#include "platform/binding/xml/PrefixedName.h"

// The limits on entity expansion are declared under this name.
#ifndef XML_DTD
#define XML_DTD
#endif
#include <expat.h>

#include <algorithm>
#include <istream>
#include <new>
#include <utility>
#include <vector>

namespace citygml {
namespace binding {

namespace {

constexpr std::size_t deepestNesting = 512;
constexpr int chunkSize = 1 << 16;
// An entity may make a document larger, but not without end.
constexpr float largestExpansion = 20;
constexpr unsigned long long freeExpansion = 1 << 20;
constexpr std::size_t longestReason = 300;

/// The prefix that an attribute declares; empty for the default namespace.
std::string_view declaredPrefix(const XmlAttribute& declaration)
{
    const std::string_view name(declaration.name);
    constexpr std::string_view start = "xmlns:";
    if (name.size() < start.size()) {
        return std::string_view();
    }
    // A colon that nothing follows declares no prefix; as one it is refused.
    return name.size() == start.size() ? ":" : name.substr(start.size());
}

} // namespace

/// The functions that the parser calls. It is C: what a handler throws is held back, the parser is stopped,
/// and parse() throws it on.
struct XmlParser::Callbacks
{
    template <typename Work>
    static void guarded(void* self, Work work)
    {
        XmlParser& parser = *static_cast<XmlParser*>(self);
        if (parser.failure) {
            return;
        }
        try {
            located(parser, work);
        } catch (...) {
            parser.failure = std::current_exception();
            XML_StopParser(parser.parser.get(), XML_FALSE);
        }
    }
    template <typename Work>
    static void located(XmlParser& parser, Work work)
    {
        try {
            work(parser);
        } catch (const ValueError& error) {
            parser.raise(error.message);
        } catch (const DocumentError& error) {
            parser.raise(error.message);
        }
    }

    static void XMLCALL startElement(void* self, const XML_Char* name, const XML_Char** attributes)
    {
        guarded(self, [&](XmlParser& p) { p.startElement(name, attributes); });
    }
    static void XMLCALL endElement(void* self, const XML_Char* name)
    {
        guarded(self, [&](XmlParser& p) { p.endElement(name); });
    }
    static void XMLCALL characters(void* self, const XML_Char* text, int length)
    {
        guarded(self, [&](XmlParser& p) {
            p.handler->characters(std::string_view(text, static_cast<std::size_t>(length)));
        });
    }
    static void XMLCALL comment(void* self, const XML_Char* text)
    {
        guarded(self, [&](XmlParser& p) { p.handler->comment("<!--" + std::string(text) + "-->"); });
    }
    static void XMLCALL processingInstruction(void* self, const XML_Char* target, const XML_Char* data)
    {
        guarded(self, [&](XmlParser& p) {
            const std::string text = *data != 0 ? std::string(target) + ' ' + data : std::string(target);
            p.handler->processingInstruction("<?" + text + "?>");
        });
    }
    static void XMLCALL doctypeDeclaration(void* self, const XML_Char*, const XML_Char* system,
                                           const XML_Char* publicId, int)
    {
        guarded(self, [&](XmlParser&) {
            if (system != nullptr || publicId != nullptr) {
                throw DocumentError{"an external document type definition is not opened"};
            }
        });
    }
    static void XMLCALL entityDeclaration(void* self, const XML_Char* name, int, const XML_Char*, int,
                                          const XML_Char*, const XML_Char* system, const XML_Char* publicId,
                                          const XML_Char*)
    {
        guarded(self, [&](XmlParser&) {
            if (system != nullptr || publicId != nullptr) {
                throw DocumentError{"the external entity '" + std::string(name) + "' is not opened"};
            }
        });
    }
    static void XMLCALL attributeListDeclaration(void* self, const XML_Char*, const XML_Char*,
                                                 const XML_Char*, const XML_Char* value, int)
    {
        static_cast<XmlParser*>(self)->hasDefaults |= value != nullptr;
    }
    static int XMLCALL externalEntity(XML_Parser parser, const XML_Char*, const XML_Char*, const XML_Char*,
                                      const XML_Char*)
    {
        guarded(XML_GetUserData(parser),
                [](XmlParser&) { throw DocumentError{"an external entity is not opened"}; });
        return XML_STATUS_ERROR;
    }
    static void XMLCALL skippedEntity(void* self, const XML_Char* name, int)
    {
        guarded(self, [&](XmlParser&) {
            throw DocumentError{"the entity '" + std::string(name) + "' is not declared"};
        });
    }
    static int XMLCALL unknownEncoding(void*, const XML_Char* name, XML_Encoding* encoding)
    {
        encoding->data = nullptr;
        encoding->convert = nullptr;
        encoding->release = nullptr;
        return mapSingleByteEncoding(name, encoding->map) ? XML_STATUS_OK : XML_STATUS_ERROR;
    }

    static void set(XML_Parser parser)
    {
        XML_SetElementHandler(parser, &startElement, &endElement);
        XML_SetCharacterDataHandler(parser, &characters);
        XML_SetCommentHandler(parser, &comment);
        XML_SetProcessingInstructionHandler(parser, &processingInstruction);
        XML_SetStartDoctypeDeclHandler(parser, &doctypeDeclaration);
        XML_SetEntityDeclHandler(parser, &entityDeclaration);
        XML_SetAttlistDeclHandler(parser, &attributeListDeclaration);
        XML_SetExternalEntityRefHandler(parser, &externalEntity);
        XML_SetSkippedEntityHandler(parser, &skippedEntity);
        XML_SetUnknownEncodingHandler(parser, &unknownEncoding, nullptr);
    }
};

XmlParser::XmlParser(NamespaceScopes& scopes, Part part)
    : scopes(scopes), parser(XML_ParserCreate(nullptr), &XML_ParserFree)
{
    if (!parser) {
        throw std::bad_alloc();
    }
    if (part == Part::InsideRoot) {
        // Any root does: names mean what the scopes say.
        constexpr std::string_view root = "<_>";
        XML_Parse(parser.get(), root.data(), static_cast<int>(root.size()), XML_FALSE);
        depth = 1;
        continueAt(Place());
    }
    XML_SetUserData(parser.get(), this);
    Callbacks::set(parser.get());
    XML_SetBillionLaughsAttackProtectionMaximumAmplification(parser.get(), largestExpansion);
    XML_SetBillionLaughsAttackProtectionActivationThreshold(parser.get(), freeExpansion);
}

XmlParser::~XmlParser() = default;

void XmlParser::parse(std::istream& stream, XmlHandler& told)
{
    handler = &told;
    for (bool atEnd = false; !atEnd;) {
        void* buffer = XML_GetBuffer(parser.get(), chunkSize);
        if (buffer == nullptr) {
            throw std::bad_alloc();
        }
        stream.read(static_cast<char*>(buffer), chunkSize);
        atEnd = !stream;
        if (stream.bad()) {
            raise("the input cannot be read");
        }
        checkParsed(
            XML_ParseBuffer(parser.get(), static_cast<int>(stream.gcount()), static_cast<int>(atEnd)));
    }
}

void XmlParser::feed(std::string_view bytes, XmlHandler& told, bool isLast)
{
    handler = &told;
    for (bool isAtEnd = false; !isAtEnd;) {
        const std::string_view part = bytes.substr(0, chunkSize);
        bytes.remove_prefix(part.size());
        isAtEnd = bytes.empty();
        checkParsed(XML_Parse(parser.get(), part.data(), static_cast<int>(part.size()),
                              static_cast<int>(isAtEnd && isLast)));
    }
}

void XmlParser::checkParsed(int status) const
{
    if (failure) {
        std::rethrow_exception(failure);
    }
    if (status != XML_STATUS_OK) {
        raise(XML_ErrorString(XML_GetErrorCode(parser.get())));
    }
}

void XmlParser::continueAt(const Place& next)
{
    jumpedFrom = counted();
    jumpedTo = next;
}

/// Counts as the parser does: columns in characters, and each of the three kinds of line ends as one.
XmlParser::Place XmlParser::behind(const Place& begin, std::string_view text)
{
    Place place = begin;
    std::size_t lineBegin = std::string_view::npos;
    const bool hasReturns = text.find('\r') != std::string_view::npos;
    for (std::size_t i = text.find_first_of("\r\n"); i < text.size(); ++i) {
        if (!hasReturns) {
            i = text.find('\n', i);
            if (i == std::string_view::npos) {
                break;
            }
        } else if (text[i] != '\n' && text[i] != '\r') {
            continue;
        } else if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
            ++i;
        }
        ++place.line;
        lineBegin = i + 1;
    }
    if (lineBegin != std::string_view::npos) {
        place.column = 1;
        text.remove_prefix(lineBegin);
    }
    const auto isCharacter = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; };
    place.column += static_cast<std::uint64_t>(std::count_if(text.begin(), text.end(), isCharacter));
    return place;
}

void XmlParser::startElement(const char* name, const char** list)
{
    if (depth >= deepestNesting) {
        throw DocumentError{"elements are nested deeper than " + std::to_string(deepestNesting)};
    }
    ++depth;
    const XmlAttributes attributes(list);
    for (const XmlAttribute attribute : attributes) {
        if (attribute.isDeclaration()) {
            scopes.declare(declaredPrefix(attribute), attribute.value, depth);
        }
    }
    if (attributes.hasSeveral()) {
        checkDistinct(attributes);
    }
    if (hasDefaults) {
        limitDefaults(list);
    }
    handler->startElement(name, attributes);
}

void XmlParser::endElement(const char* name)
{
    handler->endElement(name);
    --depth;
    scopes.leave(depth);
}

/// The parser compares names as they are written; with two prefixes they may still be the same.
void XmlParser::checkDistinct(const XmlAttributes& attributes) const
{
    std::string_view prefix;
    bool isMixed = false;
    for (const XmlAttribute attribute : attributes) {
        const char* colon = std::strchr(attribute.name, ':');
        if (colon == nullptr || attribute.isDeclaration()) {
            continue;
        }
        const std::string_view other(attribute.name, static_cast<std::size_t>(colon - attribute.name));
        isMixed = isMixed || (!prefix.empty() && other != prefix);
        prefix = other;
    }
    if (!isMixed) {
        return;
    }
    std::vector<std::pair<std::string_view, std::string_view>> meant;
    for (const XmlAttribute attribute : attributes) {
        const PrefixedName name(attribute.name);
        if (!name.prefix.empty() && !attribute.isDeclaration()) {
            meant.emplace_back(*scopes.require(name.prefix).uri, name.local);
        }
    }
    std::sort(meant.begin(), meant.end());
    const auto twice = std::adjacent_find(meant.begin(), meant.end());
    if (twice != meant.end()) {
        throw DocumentError{"the attribute '" + std::string(twice->second) + "' stands twice in an element"};
    }
}

/// Values that a document type gives to attributes must not blow the document up either.
void XmlParser::limitDefaults(const char** list)
{
    const XmlAttributes defaults(list + XML_GetSpecifiedAttributeCount(parser.get()));
    for (const XmlAttribute attribute : defaults) {
        defaultBytes += std::strlen(attribute.name) + std::strlen(attribute.value);
    }
    const auto read = static_cast<float>(XML_GetCurrentByteIndex(parser.get()));
    if (defaultBytes > freeExpansion && static_cast<float>(defaultBytes) > largestExpansion * read) {
        throw DocumentError{"the document type gives too many values to attributes"};
    }
}

XmlParser::Place XmlParser::place() const
{
    const Place at = counted();
    const bool isOnLineOfJump = at.line == jumpedFrom.line;
    return {at.line - jumpedFrom.line + jumpedTo.line,
            isOnLineOfJump ? at.column - jumpedFrom.column + jumpedTo.column : at.column};
}

std::size_t XmlParser::byteIndex() const
{
    return static_cast<std::size_t>(XML_GetCurrentByteIndex(parser.get()));
}

std::size_t XmlParser::byteCount() const
{
    return static_cast<std::size_t>(XML_GetCurrentByteCount(parser.get()));
}

std::size_t XmlParser::writtenAttributes() const
{
    return static_cast<std::size_t>(XML_GetSpecifiedAttributeCount(parser.get()) / 2);
}

XmlParser::Place XmlParser::counted() const
{
    return {XML_GetCurrentLineNumber(parser.get()), XML_GetCurrentColumnNumber(parser.get()) + 1};
}

void XmlParser::raise(const std::string& reason) const
{
    std::string message = shortened(reason, longestReason);
    const std::string path = handler->path();
    if (!path.empty()) {
        message += ", in " + path;
    }
    const Place at = place();
    xsd::cxx::tree::diagnostics<char> diagnostics;
    diagnostics.push_back(xsd::cxx::tree::error<char>(xsd::cxx::tree::severity::error, "document", at.line,
                                                      at.column, message));
    throw xsd::cxx::tree::parsing<char>(diagnostics);
}

} // namespace binding
} // namespace citygml
