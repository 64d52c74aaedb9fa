#include "platform/binding/changes/NodeAlignment.h"

#include "platform/binding/values/WhiteSpace.h"
#include "platform/binding/xml/Namespaces.h"

#include <boost/functional/hash.hpp>

#include <algorithm>
#include <functional>

namespace citygml {
namespace binding {

namespace {

// Beyond this the effort, which is quadratic, is not worth it: what differs is matched in turn.
constexpr std::size_t mostDifferences = 1500;
constexpr std::size_t mostPairs = 40000;
// More than the bytes of any element.
constexpr std::size_t identityWeight = std::size_t(1) << 44;

/// Whether two nodes are elements with one name.
bool areAlike(const OutlineNode& a, const OutlineNode& b)
{
    return a.element != nullptr && b.element != nullptr && a.element->local == b.element->local &&
           *a.element->uri == *b.element->uri;
}

/// The identifier of an element, or the first of those in it; that of a generic attribute is its name. Empty
/// for none.
std::string identityOf(const OutlineElement& element)
{
    const OutlineAttribute* identity = element.attribute(gmlUri, "id");
    if (identity == nullptr) {
        identity = element.attribute(std::string_view(), "name");
    }
    std::string result = identity != nullptr ? identity->value : std::string();
    for (std::size_t i = 0; i < element.nodes.size() && result.empty(); ++i) {
        if (element.nodes[i].element != nullptr) {
            result = identityOf(*element.nodes[i].element);
        }
    }
    return result;
}

std::size_t combined(std::size_t path, std::string_view part)
{
    boost::hash_combine(path, std::hash<std::string_view>()(part));
    return path;
}

/// Adds the tags, attributes, texts and comments of an element and of what stands in it. They are told apart
/// by what they are and by the names of the elements around them.
void collectPieces(const XmlOutline& outline, const OutlineElement& element, std::size_t outerPath,
                   NodeAlignment::Pieces& pieces)
{
    const std::size_t path = combined(combined(outerPath, element.local), *element.uri);
    if (element.isClosed) {
        pieces[combined(path, outline.bytesOf(element))] += outline.bytesOf(element).size();
        return;
    }
    pieces[path] += 2 * element.local.size();
    for (const OutlineAttribute& attribute : element.attributes) {
        if (!attribute.isDeclaration) {
            pieces[combined(combined(path, attribute.local), attribute.value)] +=
                attribute.local.size() + attribute.value.size();
        }
    }
    for (const std::string& text : element.texts) {
        if (!isBlank(text)) {
            pieces[combined(path, text)] += text.size();
        }
    }
    for (const OutlineNode& node : element.nodes) {
        if (node.element != nullptr) {
            collectPieces(outline, *node.element, path, pieces);
        } else {
            pieces[combined(path, outline.bytesOf(node))] += outline.bytesOf(node).size();
        }
    }
}

/// The number of bytes that two elements have in common.
std::size_t commonBytes(const NodeAlignment::Pieces& a, const NodeAlignment::Pieces& b)
{
    std::size_t bytes = 0;
    for (const auto& piece : a) {
        const auto other = b.find(piece.first);
        bytes += other != b.end() ? std::min(piece.second, other->second) : 0;
    }
    return bytes;
}

} // namespace

NodeAlignment::NodeAlignment(const XmlOutline& before, const Nodes& nodesBefore, const XmlOutline& after,
                             const Nodes& nodesAfter)
    : before(before), nodesBefore(nodesBefore), after(after), nodesAfter(nodesAfter),
      found(nodesBefore.size())
{
    std::unordered_map<std::string_view, std::size_t> numbers;
    for (const OutlineNode* const node : nodesBefore) {
        namesBefore.push_back(numbers.emplace(before.bytesOf(*node), numbers.size()).first->second);
    }
    for (const OutlineNode* const node : nodesAfter) {
        namesAfter.push_back(numbers.emplace(after.bytesOf(*node), numbers.size()).first->second);
    }
    matchEqual({0, nodesBefore.size()}, {0, nodesAfter.size()});
    matchSimilar();
}

/// Matches as many equal nodes as can be, by Myers' difference algorithm.
void NodeAlignment::matchEqual(Range a, Range b)
{
    for (; a.begin < a.end && b.begin < b.end && namesBefore[a.begin] == namesAfter[b.begin];
         ++a.begin, ++b.begin) {
        found[a.begin] = b.begin;
    }
    for (; a.begin < a.end && b.begin < b.end && namesBefore[a.end - 1] == namesAfter[b.end - 1];
         --a.end, --b.end) {
        found[a.end - 1] = b.end - 1;
    }
    const auto countA = static_cast<std::ptrdiff_t>(a.end - a.begin);
    const auto countB = static_cast<std::ptrdiff_t>(b.end - b.begin);
    const auto most = std::min<std::ptrdiff_t>(countA + countB, mostDifferences);
    // How far into `a` each diagonal reaches, for each number of differences; its middle is at `most + 1`.
    std::vector<std::vector<std::ptrdiff_t>> reached;
    std::vector<std::ptrdiff_t> reach(static_cast<std::size_t>(2 * most + 3), 0);
    const auto at = [most](std::ptrdiff_t diagonal) { return static_cast<std::size_t>(diagonal + most + 1); };
    const auto comesFromAbove = [&](const std::vector<std::ptrdiff_t>& row, std::ptrdiff_t k,
                                    std::ptrdiff_t d) {
        return k == -d || (k != d && row[at(k - 1)] < row[at(k + 1)]);
    };
    const auto isEqual = [&](std::ptrdiff_t x, std::ptrdiff_t y) {
        return namesBefore[a.begin + static_cast<std::size_t>(x)] ==
               namesAfter[b.begin + static_cast<std::size_t>(y)];
    };
    bool isDone = countA == 0 || countB == 0;
    for (std::ptrdiff_t d = 0; d <= most && !isDone; ++d) {
        reached.emplace_back(reach.begin() + static_cast<std::ptrdiff_t>(at(-d - 1)),
                             reach.begin() + static_cast<std::ptrdiff_t>(at(d + 1)) + 1);
        for (std::ptrdiff_t k = -d; k <= d && !isDone; k += 2) {
            std::ptrdiff_t x = comesFromAbove(reach, k, d) ? reach[at(k + 1)] : reach[at(k - 1)] + 1;
            while (x < countA && x - k < countB && x - k >= 0 && isEqual(x, x - k)) {
                ++x;
            }
            reach[at(k)] = x;
            isDone = x >= countA && x - k >= countB;
        }
    }
    if (!isDone || reached.empty()) {
        return;
    }
    std::ptrdiff_t x = countA, y = countB;
    for (auto d = static_cast<std::ptrdiff_t>(reached.size()) - 1; d >= 0; --d) {
        const std::vector<std::ptrdiff_t>& row = reached[static_cast<std::size_t>(d)];
        const auto in = [&row, d](std::ptrdiff_t k) { return row[static_cast<std::size_t>(k + d + 1)]; };
        const std::ptrdiff_t k = x - y;
        const bool isFromAbove = k == -d || (k != d && in(k - 1) < in(k + 1));
        const std::ptrdiff_t formerX = d == 0 ? 0 : isFromAbove ? in(k + 1) : in(k - 1);
        const std::ptrdiff_t formerK = d == 0 ? 0 : isFromAbove ? k + 1 : k - 1;
        const std::ptrdiff_t startX = d == 0 ? 0 : isFromAbove ? formerX : formerX + 1;
        for (; x > startX; --x, --y) {
            found[a.begin + static_cast<std::size_t>(x - 1)] = b.begin + static_cast<std::size_t>(y - 1);
        }
        x = formerX;
        y = formerX - formerK;
    }
}

void NodeAlignment::matchSimilar()
{
    Range a{0, 0}, b{0, 0};
    for (; a.end <= found.size(); ++a.end) {
        if (a.end < found.size() && !found[a.end]) {
            continue;
        }
        b.end = a.end < found.size() ? *found[a.end] : nodesAfter.size();
        matchSimilar(a, b);
        a.begin = a.end + 1;
        b.begin = b.end + 1;
    }
}

/// Matches elements of which one has been edited, between those that are equal.
void NodeAlignment::matchSimilar(Range a, Range b)
{
    matchKnown(a, b);
    const std::size_t countA = a.end - a.begin, countB = b.end - b.begin;
    if (countA == 0 || countB == 0) {
        return;
    }
    if (countA > mostPairs / countB) {
        matchInTurn(a, b);
        return;
    }
    // The best sum of similarities of the first so many.
    const std::size_t width = countB + 1;
    std::vector<std::size_t> best((countA + 1) * width), own(countA * countB);
    for (std::size_t i = 0; i < countA; ++i) {
        for (std::size_t j = 0; j < countB; ++j) {
            own[i * countB + j] = similarity(a.begin + i, b.begin + j);
            best[(i + 1) * width + j + 1] = std::max({best[i * width + j + 1], best[(i + 1) * width + j],
                                                      best[i * width + j] + own[i * countB + j]});
        }
    }
    for (std::size_t i = countA, j = countB; i != 0 && j != 0;) {
        if (best[i * width + j] == best[(i - 1) * width + j]) {
            --i;
        } else if (best[i * width + j] == best[i * width + j - 1]) {
            --j;
        } else {
            found[a.begin + --i] = b.begin + --j;
        }
    }
}

/// Matches elements at the beginnings that are told by their identifiers, as most are, and takes them out.
void NodeAlignment::matchKnown(Range& a, Range& b)
{
    std::unordered_map<std::string_view, int> timesA, timesB;
    for (std::size_t i = a.begin; i < a.end; ++i) {
        ++timesA[identity(*nodesBefore[i])];
    }
    for (std::size_t i = b.begin; i < b.end; ++i) {
        ++timesB[identity(*nodesAfter[i])];
    }
    for (; a.begin < a.end && b.begin < b.end; ++a.begin, ++b.begin) {
        const std::string& known = identity(*nodesBefore[a.begin]);
        if (!areIdentical(a.begin, b.begin) || timesA[known] != 1 || timesB[known] != 1) {
            return;
        }
        found[a.begin] = b.begin;
    }
}

void NodeAlignment::matchInTurn(Range a, Range b)
{
    for (std::size_t j = b.begin; a.begin < a.end; ++a.begin) {
        if (j < b.end && similarity(a.begin, j) > 0) {
            found[a.begin] = j++;
        }
    }
}

/// Whether two nodes are elements with one name and one identifier.
bool NodeAlignment::areIdentical(std::size_t a, std::size_t b) const
{
    const OutlineNode &was = *nodesBefore[a], &is = *nodesAfter[b];
    return areAlike(was, is) && !identity(was).empty() && identity(was) == identity(is);
}

/// How much would stay if one node were made of the other; 0 where that cannot be.
std::size_t NodeAlignment::similarity(std::size_t a, std::size_t b) const
{
    const OutlineNode &was = *nodesBefore[a], &is = *nodesAfter[b];
    if (!areAlike(was, is)) {
        return 0;
    }
    // One that has been edited beyond recognition is still the same if it has kept its identifier.
    return (areIdentical(a, b) ? identityWeight : 0) +
           commonBytes(piecesOf(before, *was.element), piecesOf(after, *is.element));
}

/// The identity of a node's element; empty for any other node.
const std::string& NodeAlignment::identity(const OutlineNode& node) const
{
    const auto known = identities.try_emplace(&node);
    if (known.second && node.element != nullptr) {
        known.first->second = identityOf(*node.element);
    }
    return known.first->second;
}

const NodeAlignment::Pieces& NodeAlignment::piecesOf(const XmlOutline& outline,
                                                     const OutlineElement& element) const
{
    const auto known = pieces.try_emplace(&element);
    if (known.second) {
        collectPieces(outline, element, 0, known.first->second);
    }
    return known.first->second;
}

} // namespace binding
} // namespace citygml
