#include "platform/binding/reader/PiecewiseReader.h"

#include "platform/binding/reader/DocumentHandler.h"
#include "platform/binding/reader/Encodings.h"

#include <algorithm>
#include <istream>
#include <utility>
#include <vector>

namespace citygml {
namespace binding {

namespace {

constexpr std::size_t blockSize = 1 << 16;
// A child of so many pieces is read by the parser of the whole document, bit by bit.
constexpr std::size_t mostPieces = 16;

} // namespace

PiecewiseReader::PiecewiseReader(XmlParser& parser, DocumentHandler& handler, unsigned threads,
                                 std::size_t pieceSize)
    : parser(parser), handler(handler), threads(threads), pieceSize(pieceSize)
{
}

void PiecewiseReader::read(std::istream& stream)
{
    while (!isAtEnd) {
        readBlock(stream);
        if (!isWhole) {
            cutter.scan(buffer);
            cut();
        } else if (!isAtEnd) {
            feed(buffer.size());
        }
    }
    finish();
}

/// Reads the next bytes. What the stream has to say comes behind the errors of the bytes in front of it.
void PiecewiseReader::readBlock(std::istream& stream)
{
    const std::size_t begin = buffer.size();
    buffer.resize(begin + blockSize);
    std::size_t count = 0;
    try {
        stream.read(&buffer[begin], static_cast<std::streamsize>(blockSize));
        isAtEnd = !stream;
        isBad = stream.bad();
        count = isBad ? 0 : static_cast<std::size_t>(stream.gcount());
    } catch (...) {
        failure = std::current_exception();
        isAtEnd = true;
    }
    buffer.resize(begin + count);
}

/// Makes pieces of the bytes that there are, or gives them to the parser where there is nothing to cut.
void PiecewiseReader::cut()
{
    if (!context) {
        begin();
    }
    if (isWhole || !context) {
        return;
    }
    if (isInLargeChild) {
        isInLargeChild = cutter.childEnds().empty();
        feed(isInLargeChild ? buffer.size() : cutter.childEnds().front());
        isWhole = !isInLargeChild && !handler.isBetweenChildren();
    }
    if (!isWhole) {
        addPieces();
    }
    if (isWhole || cutter.isDone()) {
        readWhole();
    } else if (buffer.size() >= mostPieces * pieceSize) {
        takePieces();
        feed(buffer.size());
        isInLargeChild = true;
    }
    while (queue && !queue->isEmpty() && (queue->isFull() || queue->isFirstRead())) {
        takePiece();
    }
    if (isWhole) {
        readWhole();
    }
}

/// Reads what stands in front of the root's children.
void PiecewiseReader::begin()
{
    if (cutter.rootBegin() != 0 && isUtf8(buffer)) {
        feed(cutter.rootBegin());
        // In bytes that are no characters the parser may see no root yet, or another one.
        if (handler.hasRoot()) {
            context.emplace(handler.rootContext());
        } else {
            readWhole();
        }
    } else if (cutter.rootBegin() != 0 || cutter.isDone() || buffer.size() >= pieceSize) {
        readWhole();
    }
}

/// Gives all that is left to the parser.
void PiecewiseReader::readWhole()
{
    takePieces();
    isWhole = true;
    if (!isAtEnd) {
        feed(buffer.size());
    }
}

void PiecewiseReader::addPieces()
{
    const std::vector<std::size_t>& ends = cutter.childEnds();
    for (auto end = ends.begin(); end != ends.end(); end = ends.begin()) {
        end = std::lower_bound(ends.begin(), ends.end(), pieceSize);
        if (end == ends.end()) {
            break;
        }
        addPiece({ends.begin(), end + 1});
    }
}

/// \param ends behind which bytes of the buffer the children of the piece end
void PiecewiseReader::addPiece(std::vector<std::size_t> ends)
{
    if (!queue) {
        queue.emplace([this](Piece& piece) { piece.read(*context); }, threads);
    }
    std::string rest;
    if (!spares.empty()) {
        rest = std::move(spares.back());
        spares.pop_back();
    }
    rest.assign(buffer, ends.back(), std::string::npos);
    buffer.resize(ends.back());
    cutter.drop(ends.back());
    queue->add(std::make_unique<Piece>(std::exchange(buffer, std::move(rest)), std::move(ends)));
}

void PiecewiseReader::takePieces()
{
    while (queue && !queue->isEmpty()) {
        takePiece();
    }
}

/// Adds the first piece to the document. In bytes that are no characters the parser sees another end of a
/// child; then it gets all that follows.
void PiecewiseReader::takePiece()
{
    const std::unique_ptr<Piece> piece = queue->take();
    if (isWhole) {
        feed(piece->behind(0));
        return;
    }
    const XmlParser::Place begin = place ? *place : parser.place();
    std::size_t count = 0;
    for (RootChild& child : piece->children()) {
        if (!handler.addChild(child, begin)) {
            break;
        }
        ++count;
    }
    place = piece->placeBehind(count).from(begin);
    if (!piece->behind(count).empty()) {
        feed(piece->behind(count));
        isWhole = !handler.isBetweenChildren();
    }
    spares.push_back(piece->takeBytes());
}

/// Gives the first bytes of the buffer to the parser.
void PiecewiseReader::feed(std::size_t count)
{
    feed(std::string_view(buffer).substr(0, count));
    if (!isWhole) {
        cutter.drop(count);
    }
    buffer.erase(0, count);
}

void PiecewiseReader::feed(std::string_view bytes, bool isLast)
{
    if (place) {
        parser.continueAt(*place);
        place.reset();
    }
    parser.feed(bytes, handler, isLast);
}

void PiecewiseReader::finish()
{
    takePieces();
    feed(buffer, !failure && !isBad);
    if (failure) {
        std::rethrow_exception(failure);
    }
    if (isBad) {
        parser.raise("the input cannot be read");
    }
}

} // namespace binding
} // namespace citygml
