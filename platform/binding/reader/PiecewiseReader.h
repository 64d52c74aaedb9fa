#pragma once

#include "platform/binding/reader/Piece.h"
#include "platform/binding/reader/PieceQueue.h"
#include "platform/binding/reader/RootCutter.h"
#include "platform/binding/reader/XmlParser.h"

#include <cstddef>
#include <exception>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace citygml {
namespace binding {

class DocumentHandler;

/// Reads a document with several threads.
///
/// The document is cut into pieces between the children of its root. Threads read the pieces, each by itself;
/// the caller's thread cuts, and adds what they have read to the document, in the order of the document. What
/// they cannot read it reads by itself with the parser of the whole document. So all is as if that parser had
/// read everything, and every error is told by that parser.
class PiecewiseReader
{
public:
    /// \param handler of the whole document
    /// \param pieceSize a piece has that many bytes, and whole children
    PiecewiseReader(XmlParser& parser, DocumentHandler& handler, unsigned threads, std::size_t pieceSize);

    /// Reads to the end of the stream. Errors are those of XmlParser::parse().
    void read(std::istream& stream);

private:
    void readBlock(std::istream& stream);
    void cut();
    void begin();
    void readWhole();
    void addPieces();
    void addPiece(std::vector<std::size_t> ends);
    void takePieces();
    void takePiece();
    void feed(std::size_t count);
    void feed(std::string_view bytes, bool isLast = false);
    void finish();

    XmlParser& parser;
    DocumentHandler& handler;
    const unsigned threads;
    const std::size_t pieceSize;
    RootCutter cutter;
    std::string buffer;
    // Memory of former pieces. To give it back each time would have the allocator tidy up all it has.
    std::vector<std::string> spares;
    bool isAtEnd = false;
    bool isBad = false;
    std::exception_ptr failure;
    // Whether the parser of the whole document gets all that is left, or the rest of a child.
    bool isWhole = false;
    bool isInLargeChild = false;
    // Whether the root has begun, so that its children can be cut.
    std::optional<RootContext> context;
    std::optional<PieceQueue<Piece>> queue;
    // Where the document goes on behind the pieces that were taken; none while the parser is there.
    std::optional<XmlParser::Place> place;
};

} // namespace binding
} // namespace citygml
