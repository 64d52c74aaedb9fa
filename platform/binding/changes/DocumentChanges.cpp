#include "citygml/DocumentChanges.h"

#include "platform/binding/changes/OutlineComparison.h"
#include "platform/binding/changes/OutlineMerge.h"
#include "platform/binding/changes/ReducedOriginal.h"
#include "platform/binding/reader/DocumentHandler.h"
#include "platform/binding/reader/EndOfStreamGuard.h"
#include "platform/binding/writer/DocumentWriter.h"

#include <log4cplus/logger.h>

#include <optional>
#include <string_view>
#include <vector>

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
    std::string before, after;

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

std::optional<std::vector<ByteEdit>> editsFor(const std::string& bytes, const core::CityModelType& document,
                                              WrittenChildren& children, const NamespaceMap& prefixes)
{
    try {
        std::optional<std::string> before = rewritten({bytes}, prefixes);
        if (!before) {
            return std::nullopt;
        }
        const Comparison comparison{std::move(*before), textForComparison(document, prefixes, &children)};
        return comparison.before == comparison.after ? std::vector<ByteEdit>()
                                                     : editsFor(bytes, comparison, prefixes);
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
    return edits && reduced->write(*edits, target);
}

} // namespace citygml
