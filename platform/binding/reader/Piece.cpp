#include "platform/binding/reader/Piece.h"

#include "platform/binding/reader/DocumentHandler.h"

#include <log4cplus/logger.h>

#include <utility>

namespace citygml {
namespace binding {

Piece::Piece(std::string bytes, std::vector<std::size_t> ends)
    : bytes(std::move(bytes)), ends(std::move(ends))
{
}

void Piece::read(const RootContext& context)
{
    NamespaceScopes scopes(context.scopes);
    KeptContentLog log(readerLogger());
    XmlParser parser(scopes, XmlParser::Part::InsideRoot);
    DocumentHandler handler(parser, scopes, log, context);
    try {
        parser.feed(bytes, handler);
    } catch (...) {
        // Whatever it is, who reads the whole document meets it again where it stands, and tells of it.
    }
    readChildren = handler.takeChildren();
    end =
        XmlParser::behind(XmlParser::Place(), std::string_view(bytes).substr(0, endOf(readChildren.size())));
}

std::string_view Piece::behind(std::size_t count) const
{
    return std::string_view(bytes).substr(endOf(count));
}

XmlParser::Place Piece::placeBehind(std::size_t count) const
{
    return count == readChildren.size()
               ? end
               : XmlParser::behind(XmlParser::Place(), std::string_view(bytes).substr(0, endOf(count)));
}

} // namespace binding
} // namespace citygml
