#include "platform/binding/changes/DocumentComparison.h"

#include "platform/binding/changes/OutlineComparison.h"
#include "platform/binding/reader/DocumentHandler.h"

#include <log4cplus/logger.h>

#include <memory>
#include <string_view>

namespace citygml {
namespace binding {

namespace {

/// What the writer makes of a document that is read; nothing for one of the older version.
///
/// \param pieces of the bytes of the document
std::optional<std::string> rewritten(const std::vector<std::string_view>& pieces,
                                     const NamespaceMap& prefixes)
{
    NamespaceScopes scopes(SchemaIndex::instance());
    KeptContentLog log(log4cplus::Logger::getRoot());
    XmlParser parser(scopes);
    DocumentHandler handler(parser, scopes, log, true);
    // A document that has been repaired is compared with one in which an identifier stands twice.
    std::vector<xml_schema::id*> identifiers;
    handler.listIdentifiersIn(identifiers);
    for (const std::string_view piece : pieces) {
        parser.feed(piece, handler);
    }
    parser.feed(std::string_view(), handler, true);
    const std::unique_ptr<core::CityModelType> document = handler.takeRoot();
    return handler.isOlderVersion()
               ? std::nullopt
               : std::optional<std::string>(textForComparison(*document, prefixes, nullptr));
}

std::vector<std::string_view> edited(std::string_view bytes, const std::vector<ByteEdit>& edits)
{
    std::vector<std::string_view> pieces;
    std::size_t at = 0;
    for (const ByteEdit& edit : edits) {
        pieces.push_back(bytes.substr(at, edit.begin - at));
        pieces.push_back(edit.bytes);
        at = edit.end;
    }
    pieces.push_back(bytes.substr(at));
    return pieces;
}

/// What the writer makes of the original and of the document.
struct Comparison
{
    const std::string& before;
    const std::string& after;

    /// How the bytes of the original must change to be those of the document; nothing where that cannot be
    /// told.
    std::optional<std::vector<ByteEdit>> edits(const std::string& bytes, const CommonEnds& closed) const
    {
        const XmlOutline beforeOutline(before, closed);
        const XmlOutline afterOutline(after, closed);
        const XmlOutline originalOutline(bytes, beforeOutline);
        OutlineMerge merge(originalOutline, beforeOutline, afterOutline);
        return merge.run() ? std::optional<std::vector<ByteEdit>>(merge.edits()) : std::nullopt;
    }

    /// Whether another text says what the document says.
    bool isAfter(const std::string& text) const
    {
        if (text == after) {
            return true;
        }
        const CommonEnds ends = CommonEnds::of(text, after);
        return haveSameContent(XmlOutline(text, ends), XmlOutline(after, ends));
    }
};

std::optional<std::vector<ByteEdit>> editsFor(const std::string& bytes, const Comparison& comparison,
                                              const NamespaceMap& prefixes)
{
    // Most of a document is as it was, so that few elements have to be open. Where more are needed, all are.
    for (const CommonEnds& closed : {CommonEnds::of(comparison.before, comparison.after), CommonEnds()}) {
        std::optional<std::vector<ByteEdit>> edits = comparison.edits(bytes, closed);
        const std::optional<std::string> result =
            edits ? rewritten(edited(bytes, *edits), prefixes) : std::nullopt;
        if (result && comparison.isAfter(*result)) {
            return edits;
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<std::vector<ByteEdit>> editsBetween(const std::string& bytes, const std::string& after,
                                                  const NamespaceMap& prefixes)
{
    try {
        const std::optional<std::string> before = rewritten({bytes}, prefixes);
        if (!before) {
            return std::nullopt;
        }
        return *before == after ? std::vector<ByteEdit>() : editsFor(bytes, {*before, after}, prefixes);
    } catch (const xsd::cxx::tree::exception<char>&) {
        // The original is no document that can be read.
        return std::nullopt;
    }
}

} // namespace binding
} // namespace citygml
