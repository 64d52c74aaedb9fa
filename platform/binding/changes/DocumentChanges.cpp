#include "citygml/DocumentChanges.h"

#include "platform/binding/changes/OutlineComparison.h"
#include "platform/binding/changes/OutlineMerge.h"
#include "platform/binding/changes/ReducedOriginal.h"
#include "platform/binding/reader/DocumentHandler.h"
#include "platform/binding/reader/EndOfStreamGuard.h"
#include "platform/binding/writer/DocumentWriter.h"

#include <log4cplus/logger.h>

#include <optional>
#include <sstream>

namespace citygml {

namespace binding {

namespace {

/// What the writer makes of a document that is read; nothing for one of the older version.
std::optional<std::string> rewritten(const std::string& bytes, const NamespaceMap& prefixes)
{
    NamespaceScopes scopes(SchemaIndex::instance());
    KeptContentLog log(log4cplus::Logger::getRoot());
    XmlParser parser(scopes);
    DocumentHandler handler(parser, scopes, log, true);
    // A document that has been repaired is compared with one in which an identifier stands twice.
    std::vector<xml_schema::id*> identifiers;
    handler.listIdentifiersIn(identifiers);
    parser.feed(bytes, handler, true);
    const std::unique_ptr<core::CityModelType> document = handler.takeRoot();
    return handler.isOlderVersion()
               ? std::nullopt
               : std::optional<std::string>(textForComparison(*document, prefixes, nullptr));
}

std::string edited(const std::string& bytes, const std::vector<ByteEdit>& edits)
{
    std::string result;
    std::size_t at = 0;
    for (const ByteEdit& edit : edits) {
        result.append(bytes, at, edit.begin - at).append(edit.bytes);
        at = edit.end;
    }
    return result.append(bytes, at, std::string::npos);
}

/// How the bytes of a document must change to be those of another one; nothing where that cannot be told.
///
/// \param before what the writer makes of the bytes
/// \param after  what it makes of the other document
std::optional<std::vector<ByteEdit>> editsFor(const std::string& bytes, const std::string& before,
                                              const std::string& after, const NamespaceMap& prefixes)
{
    const XmlOutline afterOutline(after);
    const XmlOutline originalOutline(bytes);
    const XmlOutline beforeOutline(before);
    OutlineMerge merge(originalOutline, beforeOutline, afterOutline);
    if (!merge.run()) {
        return std::nullopt;
    }
    const std::optional<std::string> result = rewritten(edited(bytes, merge.edits()), prefixes);
    const bool isRight = result && (*result == after || haveSameContent(XmlOutline(*result), afterOutline));
    return isRight ? std::optional<std::vector<ByteEdit>>(merge.edits()) : std::nullopt;
}

std::optional<std::vector<ByteEdit>> editsFor(const std::string& bytes, const core::CityModelType& document,
                                              WrittenChildren& children, const NamespaceMap& prefixes)
{
    const std::string after = textForComparison(document, prefixes, &children);
    try {
        const std::optional<std::string> before = rewritten(bytes, prefixes);
        if (before == after) {
            return std::vector<ByteEdit>();
        }
        return before ? editsFor(bytes, *before, after, prefixes) : std::nullopt;
    } catch (const xsd::cxx::tree::exception<char>&) {
        // The original is no document that can be read.
        return std::nullopt;
    }
}

} // namespace

} // namespace binding

bool writeChanges(std::istream& original, const core::CityModelType& document, std::ostream& target,
                  const xsd::cxx::xml::dom::namespace_infomap<char>& prefixes)
{
    const binding::EndOfStreamGuard guard(original);
    binding::WrittenChildren children(document);
    std::optional<binding::ReducedOriginal> reduced;
    try {
        reduced.emplace(original, children);
    } catch (const xsd::cxx::tree::exception<char>&) {
        return false;
    }
    const std::optional<std::vector<binding::ByteEdit>> edits =
        binding::editsFor(reduced->bytes(), document, children, prefixes);
    if (!edits) {
        return false;
    }
    std::size_t at = 0;
    for (const binding::ByteEdit& edit : *edits) {
        reduced->copy(at, edit.begin, target);
        target.write(edit.bytes.data(), static_cast<std::streamsize>(edit.bytes.size()));
        at = edit.end;
    }
    reduced->copy(at, reduced->bytes().size(), target);
    return true;
}

} // namespace citygml
