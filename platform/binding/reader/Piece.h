#pragma once

#include "platform/binding/reader/RootChild.h"
#include "platform/binding/reader/XmlParser.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace citygml {
namespace binding {

/// Bytes of a document that are children of the root, one behind the other, and what was read from them.
class Piece
{
public:
    /// \param ends behind which bytes a child ends; the last is the end of the piece
    Piece(std::string bytes, std::vector<std::size_t> ends);

    /// Reads as many children as can be read apart from the document.
    void read(const RootContext& context);

    /// To be used for another piece, when nobody needs this one any more.
    std::string takeBytes() { return std::move(bytes); }

    /// What was read, in the order of the document.
    std::vector<RootChild>& children() { return readChildren; }
    /// The bytes behind so many children.
    std::string_view behind(std::size_t count) const;
    /// Where they stand, counted from the begin of the piece.
    XmlParser::Place placeBehind(std::size_t count) const;

private:
    std::size_t endOf(std::size_t count) const { return count != 0 ? ends[count - 1] : 0; }

    std::string bytes;
    std::vector<std::size_t> ends;
    std::vector<RootChild> readChildren;
    // Where the children end that were read.
    XmlParser::Place end;
};

} // namespace binding
} // namespace citygml
