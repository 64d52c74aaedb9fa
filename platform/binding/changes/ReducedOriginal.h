#pragma once

#include "core/CityModelType.hxx"
#include "platform/binding/changes/ChildrenMerge.h"
#include "platform/binding/changes/OutlineMerge.h"
#include "platform/binding/reader/PieceQueue.h"
#include "platform/binding/reader/RootCutter.h"
#include "platform/binding/writer/ElementWriter.h"

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace citygml {
namespace binding {

/// The children of a document's root, in the order in which they are written, and which of them are as they
/// were read.
class WrittenChildren : public ElementSelection
{
public:
    explicit WrittenChildren(const core::CityModelType& document);

    const std::vector<ChildObject>& children() const { return all; }
    /// The number of a child that has an object with that identifier, or has it itself; none where there is
    /// none. Any number of threads may ask.
    std::optional<std::size_t> find(const std::string& identifier);
    /// Has some children that follow each other written as one empty element, with a number.
    void elide(std::size_t first, std::size_t count, const std::string& number);

    const std::string* numberOf(const ChildObject& child, int depth) override;

private:
    bool isCollecting = true;
    std::vector<ChildObject> all;
    // Made when it is first asked for.
    std::once_flag areNumbersKnown;
    std::unordered_map<std::string, std::size_t> numbers;
    std::unordered_map<const xml_schema::type*, std::string> elided;
};

/// The bytes of a document without those children of the root that are as another document has them, or of
/// which it is known how they must change: in place of some that follow each other stands an empty element
/// with a number, as WrittenChildren writes it. The first child stays in any case.
///
/// It is read from a stream bit by bit, by several threads. A document in which no children can be cut is
/// there as a whole.
class ReducedOriginal
{
public:
    /// \param stream outlives the object, and so do the others
    /// \param document the edited one, and its children
    /// \param prefixes see writeChanges()
    ReducedOriginal(std::istream& stream, const core::CityModelType& document, WrittenChildren& written,
                    const NamespaceMap& prefixes);
    ~ReducedOriginal();
    ReducedOriginal(const ReducedOriginal&) = delete;
    ReducedOriginal& operator=(const ReducedOriginal&) = delete;

    const std::string& bytes() const { return reduced; }
    /// Writes the bytes of the original that the bytes stand for, with edits of these. Children that an edit
    /// puts elsewhere keep their bytes.
    ///
    /// \param edits those that are not known
    /// \return false, with nothing written, where edits overlap, or one of them makes something else of what
    /// stands for children
    bool write(std::vector<ByteEdit> edits, std::ostream& target);

private:
    /// Where an element stands for children, and where these are in the stream.
    struct Elision
    {
        std::size_t begin, end;
        std::uint64_t first, last;
        /// Places are counted like those of the children.
        std::vector<ByteEdit> edits;
    };
    /// New bytes, and children of the original behind them; null for none.
    struct Inserted
    {
        std::string_view text;
        const Elision* elision;
    };
    struct Piece;
    /// Children of the original that follow each other and become those of the document from a number on.
    struct Run
    {
        /// That of the element of the first.
        std::string name;
        std::uint64_t begin, end;
        std::size_t first, count;
        std::vector<ByteEdit> edits;
    };

    void read();
    bool readBlock();
    bool readHead();
    void addPieces(bool isAtEnd);
    void addPiece(std::vector<std::size_t> ends);
    void takePiece();
    std::optional<std::size_t> matchOf(const Piece& piece, std::size_t child);
    std::optional<std::size_t> search(const xml_schema::type& child);
    void addChild(const Piece& piece, std::size_t child, std::optional<std::size_t> match);
    void addToRun(const Piece& piece, std::size_t child);
    void endRun();
    std::optional<std::vector<Inserted>> partsOf(std::string_view bytes) const;
    bool cutsElision(std::size_t at) const;
    void copy(std::size_t begin, std::size_t end, std::ostream& target);
    void copy(const Elision& elision, std::ostream& target);
    void copyOriginal(std::uint64_t count, std::ostream& target);

    std::istream& stream;
    const core::CityModelType& document;
    WrittenChildren& written;
    const NamespaceMap& prefixes;
    const std::uint64_t start;
    // Begins the number of each elision.
    const std::string mark;
    std::string reduced;
    std::vector<Elision> elisions;
    // What has been read, and was not cut yet, and where it begins behind `start`.
    std::string buffer;
    std::uint64_t bufferBegin = 0;
    RootCutter cutter;
    // There as soon as the children may be read apart from the rest.
    std::unique_ptr<const ChildrenMerge> merge;
    // What known edits of children need in front of these.
    std::vector<ByteEdit> headEdits;
    std::optional<PieceQueue<Piece>> pieces;
    std::size_t childrenInPieces = 0;
    // The number of the first child of the document that is behind all that were found, and how many of the
    // original have been met since that are not as one of the document.
    std::size_t expected = 0;
    std::size_t unmatched = 0;
    std::optional<Run> run;
    bool hasSample = false;
};

} // namespace binding
} // namespace citygml
