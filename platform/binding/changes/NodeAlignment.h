#pragma once

#include "platform/binding/changes/XmlOutline.h"

#include <cstddef>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace citygml {
namespace binding {

/// Which nodes of one element are those of another one, that an edit has made of it. Both are in outlines of
/// texts that the writer wrote.
class NodeAlignment
{
public:
    using Nodes = std::vector<const OutlineNode*>;
    /// What an element is made of, by hash, and the number of its bytes.
    using Pieces = std::unordered_map<std::size_t, std::size_t>;

    NodeAlignment(const XmlOutline& before, const Nodes& nodesBefore, const XmlOutline& after,
                  const Nodes& nodesAfter);

    /// The number of the node that a node has become; none for one that is gone. Those that there are
    /// increase.
    const std::vector<std::optional<std::size_t>>& matches() const { return found; }

private:
    struct Range
    {
        std::size_t begin, end;
    };

    void matchEqual(Range a, Range b);
    void matchSimilar();
    void matchSimilar(Range a, Range b);
    void matchKnown(Range& a, Range& b);
    void matchInTurn(Range a, Range b);
    bool areIdentical(std::size_t a, std::size_t b) const;
    std::size_t similarity(std::size_t a, std::size_t b) const;
    const std::string& identity(const OutlineNode& node) const;
    const Pieces& piecesOf(const XmlOutline& outline, const OutlineElement& element) const;

    const XmlOutline& before;
    const Nodes& nodesBefore;
    const XmlOutline& after;
    const Nodes& nodesAfter;
    // Equal nodes have the same number.
    std::vector<std::size_t> namesBefore, namesAfter;
    std::vector<std::optional<std::size_t>> found;
    // Of nodes that were asked about.
    mutable std::unordered_map<const OutlineNode*, std::string> identities;
    mutable std::unordered_map<const OutlineElement*, Pieces> pieces;
};

} // namespace binding
} // namespace citygml
