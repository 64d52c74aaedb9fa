#include "platform/binding/changes/ReducedOriginal.h"

#include "citygml/ReadingThreads.h"
#include "gml/AbstractGMLType.hxx"
#include "platform/binding/changes/MarkupSearch.h"
#include "platform/binding/changes/SameContent.h"
#include "platform/binding/reader/DocumentHandler.h"
#include "platform/binding/reader/Encodings.h"
#include "platform/binding/reader/ReadingThreads.h"
#include "platform/binding/values/WhiteSpace.h"
#include "platform/binding/writer/DocumentWriter.h"

#include <log4cplus/logger.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <exception>
#include <istream>
#include <ostream>
#include <random>

namespace citygml {
namespace binding {

namespace {

constexpr std::size_t blockSize = 1 << 16;
// How large a child may be that stays to show how the document is indented.
constexpr std::size_t largestSample = 1 << 20;
// How many children of the document are compared with one of the original that is not where it is expected.
constexpr std::size_t mostAhead = 8;
constexpr std::size_t mostBehind = 32;

/// The white space at the end of a text.
std::string_view lastBlankIn(std::string_view text)
{
    return text.substr(text.find_last_not_of(" \t\r\n") + 1);
}

std::string identifierOf(const xml_schema::type& object)
{
    const auto* const feature = dynamic_cast<const gml::AbstractGMLType*>(&object);
    return feature != nullptr && feature->id().present() ? std::string(*feature->id()) : std::string();
}

/// The identifier of an object or of the first one in it that has one; empty where there is none.
std::string identifierIn(const xml_schema::type& object)
{
    std::string identifier = identifierOf(object);
    const TypeIndex& type = SchemaIndex::instance().typeOf(object);
    for (std::size_t i = 0; i < type.elementCount() && identifier.empty(); ++i) {
        const TypeIndex::FlatMember& member = type.members()[i];
        if (member.type != nullptr && member.declaration->ops->count(object) != 0) {
            identifier = identifierOf(member.declaration->ops->at(object, 0));
        }
    }
    return identifier;
}

/// A text that no document has.
std::string newMark()
{
    std::random_device random;
    return std::to_string(random()) + '-' + std::to_string(random()) + '-';
}

} // namespace

WrittenChildren::WrittenChildren(const core::CityModelType& document)
{
    textForComparison(document, NamespaceMap(), this);
    isCollecting = false;
}

std::optional<std::size_t> WrittenChildren::find(const std::string& identifier)
{
    std::call_once(areNumbersKnown, [this] {
        for (std::size_t i = 0; i < all.size(); ++i) {
            numbers.emplace(identifierIn(*all[i].object), i);
        }
    });
    const auto found = numbers.find(identifier);
    return identifier.empty() || found == numbers.end() ? std::nullopt
                                                        : std::optional<std::size_t>(found->second);
}

void WrittenChildren::elide(std::size_t first, std::size_t count, const std::string& number)
{
    for (std::size_t i = first; i < first + count; ++i) {
        elided[all[i].object] = i == first ? number : std::string();
    }
}

const std::string* WrittenChildren::numberOf(const ChildObject& child, int depth)
{
    static const std::string none;
    if (isCollecting) {
        all.push_back(child);
        return &none;
    }
    const auto found = depth == 1 ? elided.find(child.object) : elided.end();
    return found != elided.end() ? &found->second : nullptr;
}

/// Children of the original, and what became of them.
struct ReducedOriginal::Piece
{
    std::string bytes;
    /// Behind `start`.
    std::uint64_t begin = 0;
    /// Behind which bytes a child ends.
    std::vector<std::size_t> ends;
    /// The number of the document's child that the first one is compared with.
    std::size_t guess = 0;

    struct Child
    {
        std::size_t begin = 0;
        /// Null where it cannot be read apart from the rest, and where it is not needed any more.
        std::unique_ptr<xml_schema::type> object;
        /// The number of the document's child that it becomes by some edits, places counted from its first
        /// byte, and none of these where it is the same; nothing where that is not known.
        std::size_t number = 0;
        std::optional<std::vector<ByteEdit>> edits;
    };
    std::vector<Child> children;
    /// What the edits of the children need in front of all.
    std::vector<ByteEdit> headEdits;
    /// What has kept the children from being compared.
    std::exception_ptr failure;

    std::size_t endOf(std::size_t child) const { return ends[child]; }
    std::size_t endInFrontOf(std::size_t child) const { return child != 0 ? ends[child - 1] : 0; }
    std::string_view gapOf(std::size_t child) const
    {
        const std::size_t from = endInFrontOf(child);
        return std::string_view(bytes).substr(from, children[child].begin - from);
    }
    std::string_view bytesOf(std::size_t child) const
    {
        return std::string_view(bytes).substr(children[child].begin, endOf(child) - children[child].begin);
    }

    void compare(const ChildrenMerge& merge, WrittenChildren& document);

private:
    void readChildren(const RootContext& context, const std::vector<ChildObject>& document);
    static void compareWith(Child& child, std::size_t number, const std::vector<ChildObject>& document);
    void findEdits(const ChildrenMerge& merge, WrittenChildren& document);
};

/// Reads the children and compares each with the one of the document that may be the same or become of it.
void ReducedOriginal::Piece::compare(const ChildrenMerge& merge, WrittenChildren& document)
{
    try {
        readChildren(merge.rootContext(), document.children());
        findEdits(merge, document);
    } catch (...) {
        failure = std::current_exception();
    }
}

void ReducedOriginal::Piece::readChildren(const RootContext& context,
                                          const std::vector<ChildObject>& document)
{
    struct Reading
    {
        explicit Reading(const RootContext& context)
            : scopes(context.scopes), log(log4cplus::Logger::getRoot()),
              parser(scopes, XmlParser::Part::InsideRoot), handler(parser, scopes, log, context)
        {
        }
        NamespaceScopes scopes;
        KeptContentLog log;
        XmlParser parser;
        DocumentHandler handler;
    };
    std::unique_ptr<Reading> reading;
    children.resize(ends.size());
    for (std::size_t i = 0; i < children.size(); ++i) {
        children[i].begin = elementBegin(bytes, endInFrontOf(i));
        if (reading == nullptr) {
            reading = std::make_unique<Reading>(context);
        }
        try {
            reading->parser.feed(bytesOf(i), reading->handler);
            std::vector<RootChild> read = reading->handler.takeChildren();
            if (read.size() == 1) {
                children[i].object = std::move(read.front().object);
                compareWith(children[i], guess + i, document);
            }
        } catch (...) {
            // Who reads the rest reads it too.
            reading = nullptr;
        }
    }
}

/// Notes the document's child with that number if it is the same.
void ReducedOriginal::Piece::compareWith(Child& child, std::size_t number,
                                         const std::vector<ChildObject>& document)
{
    if (number < document.size() && haveSameContent(*child.object, *document[number].object)) {
        child.number = number;
        child.edits.emplace();
        child.object.reset();
    }
}

/// Finds out how those become the document's that are not the same and have its identifier.
void ReducedOriginal::Piece::findEdits(const ChildrenMerge& merge, WrittenChildren& document)
{
    std::vector<EditedChild> edited;
    std::vector<Child*> which;
    for (std::size_t i = 0; i < children.size(); ++i) {
        Child& child = children[i];
        const std::optional<std::size_t> number =
            child.object != nullptr ? document.find(identifierIn(*child.object)) : std::nullopt;
        if (!number) {
            continue;
        }
        if (*number != guess + i) {
            compareWith(child, *number, document.children());
        }
        if (!child.edits) {
            child.number = *number;
            which.push_back(&child);
            edited.push_back({lastBlankIn(gapOf(i)), bytesOf(i), child.object.get(),
                              document.children()[*number], std::nullopt});
        }
    }
    headEdits = merge.run(edited);
    for (std::size_t i = 0; i < which.size(); ++i) {
        which[i]->edits = std::move(edited[i].edits);
        if (which[i]->edits) {
            which[i]->object.reset();
        }
    }
}

ReducedOriginal::ReducedOriginal(std::istream& stream, const core::CityModelType& document,
                                 WrittenChildren& written, const NamespaceMap& prefixes)
    : stream(stream), document(document), written(written), prefixes(prefixes),
      start(static_cast<std::uint64_t>(stream.tellg())), mark(newMark())
{
    read();
}

ReducedOriginal::~ReducedOriginal() = default;

void ReducedOriginal::read()
{
    bool isAtEnd = false;
    while (!isAtEnd && !cutter.isDone()) {
        isAtEnd = !readBlock();
        cutter.scan(buffer);
        if (merge == nullptr && cutter.rootBegin() != 0 && !readHead()) {
            break;
        }
        if (merge != nullptr) {
            addPieces(isAtEnd || cutter.isDone());
        }
    }
    while (pieces && !pieces->isEmpty()) {
        takePiece();
    }
    endRun();
    do {
        reduced += buffer;
        buffer.clear();
    } while (readBlock() || !buffer.empty());
}

/// \return whether there may be more
bool ReducedOriginal::readBlock()
{
    const std::size_t begin = buffer.size();
    buffer.resize(begin + blockSize);
    stream.read(&buffer[begin], static_cast<std::streamsize>(blockSize));
    buffer.resize(begin + static_cast<std::size_t>(stream.gcount()));
    return static_cast<bool>(stream);
}

/// Reads what stands in front of the root's children.
///
/// \return whether these can be read apart from it
bool ReducedOriginal::readHead()
{
    const std::size_t end = cutter.rootBegin();
    if (!isUtf8(buffer)) {
        return false;
    }
    NamespaceScopes scopes(SchemaIndex::instance());
    KeptContentLog log(log4cplus::Logger::getRoot());
    XmlParser parser(scopes);
    DocumentHandler handler(parser, scopes, log, true);
    parser.feed(std::string_view(buffer).substr(0, end), handler);
    if (!handler.hasRoot() || handler.isOlderVersion()) {
        return false;
    }
    reduced.assign(buffer, 0, end);
    merge = std::make_unique<ChildrenMerge>(reduced, handler.rootContext(), document, prefixes, mark);
    buffer.erase(0, end);
    bufferBegin = end;
    cutter.drop(end);
    return true;
}

void ReducedOriginal::addPieces(bool isAtEnd)
{
    const std::size_t size = pieceSize();
    const std::vector<std::size_t>& ends = cutter.childEnds();
    for (auto end = ends.begin(); end != ends.end(); end = ends.begin()) {
        end = std::lower_bound(ends.begin(), ends.end(), size);
        if (end == ends.end() && !isAtEnd) {
            break;
        }
        addPiece({ends.begin(), end == ends.end() ? end : end + 1});
    }
}

void ReducedOriginal::addPiece(std::vector<std::size_t> ends)
{
    auto piece = std::make_unique<Piece>();
    const std::size_t end = ends.back();
    std::string rest(buffer, end);
    buffer.resize(end);
    piece->bytes = std::exchange(buffer, std::move(rest));
    piece->begin = bufferBegin;
    piece->ends = std::move(ends);
    piece->guess = expected + unmatched + childrenInPieces;
    bufferBegin += end;
    cutter.drop(end);
    childrenInPieces += piece->ends.size();

    if (!pieces) {
        pieces.emplace([this](Piece& added) { added.compare(*merge, written); }, readingThreads());
    }
    pieces->add(std::move(piece));
    while (pieces->isFull() || pieces->isFirstRead()) {
        takePiece();
    }
}

void ReducedOriginal::takePiece()
{
    const std::unique_ptr<const Piece> piece = pieces->take();
    if (piece->failure != nullptr) {
        std::rethrow_exception(piece->failure);
    }
    childrenInPieces -= piece->children.size();
    headEdits.insert(headEdits.end(), piece->headEdits.begin(), piece->headEdits.end());
    for (std::size_t i = 0; i < piece->children.size(); ++i) {
        const std::optional<std::size_t> match = matchOf(*piece, i);
        unmatched = match ? 0 : unmatched + 1;
        expected = match ? *match + 1 : expected;
        addChild(*piece, i, match);
    }
}

/// The number of the document's child that a child is the same as.
std::optional<std::size_t> ReducedOriginal::matchOf(const Piece& piece, std::size_t child)
{
    const Piece::Child& found = piece.children[child];
    if (found.edits && found.number >= expected) {
        return found.number;
    }
    return found.object != nullptr ? search(*found.object) : std::nullopt;
}

/// The number of a child without an identifier.
std::optional<std::size_t> ReducedOriginal::search(const xml_schema::type& child)
{
    if (written.find(identifierIn(child))) {
        // They have been compared.
        return std::nullopt;
    }
    const auto& children = written.children();
    const auto isSame = [&](std::size_t number) {
        return number >= expected && number < children.size() &&
               haveSameContent(child, *children[number].object);
    };
    // Where it is if those since the last one were edited, or else, if some of them were taken out.
    const std::size_t likely = expected + unmatched;
    for (std::size_t number = likely; number + mostBehind >= likely && number >= expected; --number) {
        if (isSame(number)) {
            return number;
        }
        if (number == 0) {
            break;
        }
    }
    for (std::size_t number = likely + 1; number <= likely + mostAhead; ++number) {
        if (isSame(number)) {
            return number;
        }
    }
    return std::nullopt;
}

void ReducedOriginal::addChild(const Piece& piece, std::size_t child, std::optional<std::size_t> match)
{
    const std::string_view bytes = piece.bytesOf(child), gap = piece.gapOf(child);
    if (run && match == run->first + run->count && isBlank(gap)) {
        addToRun(piece, child);
        return;
    }
    endRun();
    reduced += gap;
    // New elements are indented as one that is there.
    const bool isSample = !hasSample && bytes.size() < largestSample;
    hasSample = hasSample || isSample;
    // The empty element has no declarations.
    const bool declares = bytes.substr(0, bytes.find('>')).find("xmlns") != std::string_view::npos;
    if (match && !isSample && !declares) {
        run.emplace(Run{
            std::string(tagNameAt(bytes, 0)), piece.begin + piece.children[child].begin, 0, *match, 0, {}});
        addToRun(piece, child);
    } else {
        reduced += bytes;
    }
}

void ReducedOriginal::addToRun(const Piece& piece, std::size_t child)
{
    ++run->count;
    run->end = piece.begin + piece.endOf(child);
    const Piece::Child& added = piece.children[child];
    if (!added.edits) {
        return;
    }
    for (ByteEdit edit : *added.edits) {
        edit.begin += piece.begin + added.begin;
        edit.end += piece.begin + added.begin;
        run->edits.push_back(std::move(edit));
    }
}

void ReducedOriginal::endRun()
{
    if (!run) {
        return;
    }
    const std::string number = mark + std::to_string(elisions.size());
    const std::size_t begin = reduced.size();
    reduced += '<' + run->name + " n=\"" + number + "\"/>";
    elisions.push_back({begin, reduced.size(), run->begin, run->end, std::move(run->edits)});
    written.elide(run->first, run->count, number);
    run.reset();
}

bool ReducedOriginal::write(std::vector<ByteEdit> edits, std::ostream& target)
{
    for (const ByteEdit& edit : headEdits) {
        if (std::find(edits.begin(), edits.end(), edit) == edits.end()) {
            edits.push_back(edit);
        }
    }
    std::vector<std::vector<Inserted>> inserted;
    bool isPossible = putInOrder(edits);
    for (const ByteEdit& edit : edits) {
        std::optional<std::vector<Inserted>> parts = partsOf(edit.bytes);
        isPossible = isPossible && parts && !cutsElision(edit.begin) && !cutsElision(edit.end);
        if (!isPossible) {
            return false;
        }
        inserted.push_back(std::move(*parts));
    }
    std::size_t at = 0;
    for (std::size_t i = 0; i < edits.size(); ++i) {
        copy(at, edits[i].begin, target);
        for (const Inserted& part : inserted[i]) {
            target.write(part.text.data(), static_cast<std::streamsize>(part.text.size()));
            if (part.elision != nullptr) {
                copy(*part.elision, target);
            }
        }
        at = edits[i].end;
    }
    copy(at, reduced.size(), target);
    return true;
}

/// Finds what stands for children in new bytes: these have gone elsewhere.
///
/// \return nothing where a mark stands in anything but such an element
std::optional<std::vector<ReducedOriginal::Inserted>> ReducedOriginal::partsOf(std::string_view bytes) const
{
    std::vector<Inserted> parts;
    for (std::size_t at = bytes.find(mark); at != std::string_view::npos; at = bytes.find(mark)) {
        const std::size_t begin = bytes.rfind('<', at), end = bytes.find("\"/>", at);
        if (begin == std::string_view::npos || end == std::string_view::npos) {
            return std::nullopt;
        }
        std::size_t number = elisions.size();
        std::from_chars(bytes.data() + at + mark.size(), bytes.data() + end, number);
        if (number >= elisions.size()) {
            return std::nullopt;
        }
        parts.push_back({bytes.substr(0, begin), &elisions[number]});
        bytes.remove_prefix(end + 3);
    }
    parts.push_back({bytes, nullptr});
    return parts;
}

bool ReducedOriginal::cutsElision(std::size_t at) const
{
    return std::any_of(elisions.begin(), elisions.end(),
                       [at](const Elision& elision) { return elision.begin < at && at < elision.end; });
}

void ReducedOriginal::copy(std::size_t begin, std::size_t end, std::ostream& target)
{
    auto elision = std::lower_bound(elisions.begin(), elisions.end(), begin,
                                    [](const Elision& e, std::size_t at) { return e.begin < at; });
    for (; elision != elisions.end() && elision->end <= end; ++elision) {
        target.write(reduced.data() + begin, static_cast<std::streamsize>(elision->begin - begin));
        begin = elision->end;
        copy(*elision, target);
    }
    target.write(reduced.data() + begin, static_cast<std::streamsize>(end - begin));
}

void ReducedOriginal::copy(const Elision& elision, std::ostream& target)
{
    stream.clear();
    stream.seekg(static_cast<std::streamoff>(start + elision.first));
    std::uint64_t at = elision.first;
    for (const ByteEdit& edit : elision.edits) {
        copyOriginal(edit.begin - at, target);
        target.write(edit.bytes.data(), static_cast<std::streamsize>(edit.bytes.size()));
        stream.ignore(static_cast<std::streamsize>(edit.end - edit.begin));
        at = edit.end;
    }
    copyOriginal(elision.last - at, target);
}

/// Copies what comes next in the stream.
void ReducedOriginal::copyOriginal(std::uint64_t count, std::ostream& target)
{
    std::array<char, blockSize> block;
    for (std::uint64_t left = count; left != 0 && stream;) {
        stream.read(block.data(), static_cast<std::streamsize>(std::min<std::uint64_t>(left, blockSize)));
        target.write(block.data(), stream.gcount());
        left -= static_cast<std::uint64_t>(stream.gcount());
    }
}

} // namespace binding
} // namespace citygml
