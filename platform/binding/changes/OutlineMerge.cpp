#include "platform/binding/changes/OutlineMerge.h"

#include "platform/binding/changes/NodeAlignment.h"
#include "platform/binding/values/WhiteSpace.h"
#include "platform/binding/xml/PrefixedName.h"
#include "platform/binding/xml/XmlText.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

namespace citygml {
namespace binding {

namespace {

constexpr std::string_view cdataBegin = "<![CDATA[";
constexpr std::string_view cdataEnd = "]]>";
constexpr std::size_t none = static_cast<std::size_t>(-1);

bool haveSameName(const OutlineElement& a, const OutlineElement& b)
{
    return a.local == b.local && *a.uri == *b.uri;
}

/// Of the white space in front of an element the last line end and what is behind it; all of it without
/// lines.
std::string lastLineOf(const std::string& space)
{
    const std::size_t end = space.rfind('\n');
    if (end == std::string::npos) {
        return space;
    }
    return space.substr(end != 0 && space[end - 1] == '\r' ? end - 1 : end);
}

/// What the gap of a child has more than that of its parent.
std::string difference(const std::string& inner, const std::string& outer)
{
    const std::string_view own = std::string_view(inner).substr(inner.find('\n') + 1);
    const std::string_view other = std::string_view(outer).substr(outer.find('\n') + 1);
    return own.substr(0, other.size()) == other ? std::string(own.substr(other.size())) : std::string();
}

std::vector<std::string_view> keptIn(const XmlOutline& outline, const OutlineElement& element)
{
    std::vector<std::string_view> kept;
    for (const OutlineNode& node : element.nodes) {
        if (node.isKept) {
            kept.push_back(outline.bytesOf(node));
        }
    }
    std::sort(kept.begin(), kept.end());
    return kept;
}

/// The numbers of the nodes to look at.
std::vector<std::size_t> numbersOf(const OutlineElement& element, bool withKept)
{
    std::vector<std::size_t> numbers;
    for (std::size_t i = 0; i < element.nodes.size(); ++i) {
        if (withKept || !element.nodes[i].isKept) {
            numbers.push_back(i);
        }
    }
    return numbers;
}

NodeAlignment::Nodes nodesOf(const OutlineElement& element, const std::vector<std::size_t>& numbers)
{
    NodeAlignment::Nodes nodes;
    for (const std::size_t number : numbers) {
        nodes.push_back(&element.nodes[number]);
    }
    return nodes;
}

} // namespace

bool putInOrder(std::vector<ByteEdit>& edits)
{
    std::stable_sort(edits.begin(), edits.end());
    const auto overlap = [](const ByteEdit& a, const ByteEdit& b) { return b.begin < a.end; };
    return std::adjacent_find(edits.begin(), edits.end(), overlap) == edits.end();
}

bool OutlineMerge::run()
{
    if (!isSame(original.root(), before.root()) || !haveSameName(before.root(), after.root())) {
        return false;
    }
    merge(original.root(), before.root(), after.root());
    declareNamespaces();
    return putInOrder(changes) && isOpen;
}

void OutlineMerge::merge(const Element& place, const Element& was, const Element& is)
{
    mergeAttributes(place, was, is);
    if (!hasSameContent(was, is)) {
        mergeContent(place, was, is);
    }
}

void OutlineMerge::mergeAttributes(const Element& place, const Element& was, const Element& is)
{
    for (const OutlineAttribute& former : was.attributes) {
        if (former.isDeclaration) {
            continue;
        }
        const OutlineAttribute* const now = is.attribute(*former.uri, former.local);
        const OutlineAttribute* const there = place.attribute(*former.uri, former.local);
        const bool isThere = there != nullptr && there->isWritten;
        if (now == nullptr && isThere) {
            change(there->begin, there->end, std::string());
        } else if (now != nullptr && now->value != former.value && isThere) {
            const char quote = original.source().at(there->valueEnd);
            change(there->valueBegin, there->valueEnd, inserted.attributeValue(*now, place, quote));
        } else if (now != nullptr && now->value != former.value) {
            insertAttribute(place, inserted.attribute(*now, place));
        }
    }
    for (const OutlineAttribute& now : is.attributes) {
        if (!now.isDeclaration && was.attribute(*now.uri, now.local) == nullptr) {
            insertAttribute(place, inserted.attribute(now, place));
        }
    }
}

void OutlineMerge::insertAttribute(const Element& place, const std::string& xml)
{
    const std::size_t unit = original.source().unit();
    std::size_t at = place.contentBegin - (place.isOneTag ? 2 : 1) * unit;
    while (original.source().isSpaceAt(at - unit)) {
        at -= unit;
    }
    change(at, at, xml);
}

/// Whether the written element has node by node what the document's has.
bool OutlineMerge::isSame(const Element& place, const Element& was) const
{
    const auto isSameNode = [](const OutlineNode& a, const OutlineNode& b) {
        return (a.element != nullptr) == (b.element != nullptr) &&
               (a.element == nullptr || haveSameName(*a.element, *b.element));
    };
    return !place.hasEntityMarkup && haveSameName(place, was) &&
           std::equal(place.nodes.begin(), place.nodes.end(), was.nodes.begin(), was.nodes.end(), isSameNode);
}

bool OutlineMerge::hasSameContent(const Element& was, const Element& is) const
{
    return before.source().bytes().substr(was.contentBegin, was.contentEnd - was.contentBegin) ==
           after.source().bytes().substr(is.contentBegin, is.contentEnd - is.contentBegin);
}

void OutlineMerge::mergeContent(const Element& place, const Element& was, const Element& is)
{
    if (place.isClosed || was.isClosed || is.isClosed) {
        isOpen = false;
        return;
    }
    const bool hasSameNodes = isSame(place, was);
    const bool areLeaves = place.nodes.empty() && was.nodes.empty() && is.nodes.empty();
    const bool isLaidOut = place.isBlank() && was.isBlank() && is.isBlank();
    if (hasSameNodes && areLeaves) {
        replaceText(place, 0, was.texts[0], is.texts[0]);
    } else if (hasSameNodes && isLaidOut) {
        mergeNodes(place, was, is);
    } else if (hasSameNodes && isSame(was, is)) {
        mergeTexts(place, was, is);
    } else if (!hasSameNodes || !takeNodes(place, was, is)) {
        rewriteContent(place, is);
    }
}

/// Merges content in which text stands between nodes that are all there still.
void OutlineMerge::mergeTexts(const Element& place, const Element& was, const Element& is)
{
    for (std::size_t i = 0; i < was.texts.size(); ++i) {
        if (was.texts[i] != is.texts[i]) {
            replaceText(place, i, was.texts[i], is.texts[i]);
        }
    }
    for (std::size_t i = 0; i < was.nodes.size(); ++i) {
        mergeNode(place.nodes[i], was.nodes[i], is.nodes[i]);
    }
}

/// Merges content in which text stands between nodes of which some are gone, with nothing else changed around
/// them.
///
/// \return false, with nothing done, where more has changed
bool OutlineMerge::takeNodes(const Element& place, const Element& was, const Element& is)
{
    const NodeAlignment alignment(before, nodesOf(was, numbersOf(was, true)), after,
                                  nodesOf(is, numbersOf(is, true)));
    const auto& matches = alignment.matches();
    std::string text;
    std::size_t next = 0;
    for (std::size_t i = 0; i <= was.nodes.size(); ++i) {
        text += was.texts[i];
        const bool isLast = i == was.nodes.size();
        if (!isLast && !matches[i]) {
            continue;
        }
        if (next != (isLast ? is.nodes.size() : *matches[i]) || text != is.texts[next]) {
            return false;
        }
        text.clear();
        ++next;
    }
    for (std::size_t i = 0; i < was.nodes.size(); ++i) {
        const OutlineNode& node = place.nodes[i];
        if (matches[i]) {
            mergeNode(node, was.nodes[i], is.nodes[*matches[i]]);
        } else {
            change(node.begin, node.end, std::string());
        }
    }
    return true;
}

void OutlineMerge::mergeNode(const OutlineNode& place, const OutlineNode& was, const OutlineNode& is)
{
    if (was.element != nullptr) {
        merge(*place.element, *was.element, *is.element);
    } else if (before.bytesOf(was) != after.bytesOf(is)) {
        change(place.begin, place.end, std::string(after.bytesOf(is)));
    }
}

/// Merges content that is nodes with nothing but white space between them.
void OutlineMerge::mergeNodes(const Element& place, const Element& was, const Element& is)
{
    // What no member holds stays where it is, though the writer may have moved it with the elements around
    // it.
    const bool withKept = keptIn(before, was) != keptIn(after, is);
    const std::vector<std::size_t> former = numbersOf(was, withKept);
    const std::vector<std::size_t> now = numbersOf(is, withKept);
    const NodeAlignment alignment(before, nodesOf(was, former), after, nodesOf(is, now));

    std::size_t behind = none, next = 0;
    std::vector<const OutlineNode*> added;
    for (std::size_t i = 0; i <= former.size(); ++i) {
        const std::optional<std::size_t> match =
            i < former.size() ? alignment.matches()[i] : std::optional<std::size_t>(now.size());
        if (!match) {
            remove(place, former[i]);
            continue;
        }
        for (added.clear(); next < *match; ++next) {
            added.push_back(&is.nodes[now[next]]);
        }
        insert(place, behind, added);
        if (i < former.size()) {
            mergeNode(place.nodes[former[i]], was.nodes[former[i]], is.nodes[now[next++]]);
            behind = former[i];
        }
    }
}

/// Puts nodes behind the node with that number, or in front of all.
void OutlineMerge::insert(const Element& place, std::size_t behind,
                          const std::vector<const OutlineNode*>& nodes)
{
    if (nodes.empty()) {
        return;
    }
    const bool isFirst = place.nodes.empty();
    const Layout layout =
        isFirst ? layoutAround(place).inner() : layoutIn(place, behind != none ? behind : 0);
    std::string xml;
    for (const OutlineNode* const node : nodes) {
        xml += layout.gap + inserted.node(*node, place, layout);
    }
    if (isFirst) {
        replaceContent(place, xml + layoutAround(place).gap);
    } else {
        const std::size_t at = behind != none ? place.nodes[behind].end : place.contentBegin;
        change(at, at, xml);
    }
}

/// Takes a node out, with its line if it has one to itself.
void OutlineMerge::remove(const Element& place, std::size_t number)
{
    const SourceText& source = original.source();
    const OutlineNode& node = place.nodes[number];
    std::size_t begin = node.begin, end = node.end;
    while (source.at(end) == ' ' || source.at(end) == '\t') {
        end += source.unit();
    }
    const bool endsLine = source.at(end) == '\n' || source.at(end) == '\r';
    const std::string gap = gapInFrontOf(place, number);
    if (endsLine && gap.find('\n') != std::string::npos) {
        begin -= gap.size() * source.unit();
    } else {
        end = node.end;
    }
    change(begin, end, std::string());
}

void OutlineMerge::replaceText(const Element& place, std::size_t number, const std::string& was,
                               const std::string& is)
{
    std::string escaped;
    appendEscaped(is, escaped);
    if (place.isOneTag) {
        replaceContent(place, escaped);
        return;
    }
    const SourceText& source = original.source();
    const std::size_t unit = source.unit();
    std::size_t begin = place.textBegin(number), end = place.textEnd(number);
    const std::string ascii = source.ascii(begin, end);
    const bool isSection = ascii.size() >= cdataBegin.size() + cdataEnd.size() &&
                           ascii.compare(0, cdataBegin.size(), cdataBegin) == 0 &&
                           ascii.find(cdataEnd) == ascii.size() - cdataEnd.size();
    std::string unescaped;
    if (isSection && is.find(cdataEnd) == std::string::npos && is.find('\r') == std::string::npos &&
        source.append(is, unescaped)) {
        begin += cdataBegin.size() * unit;
        end -= cdataEnd.size() * unit;
        changes.push_back({begin, end, unescaped});
        return;
    }
    // White space around a value is no part of it where the writer leaves it out.
    if (was == trimmed(was)) {
        for (; begin < end && source.isSpaceAt(begin); begin += unit) {
        }
        for (; begin < end && source.isSpaceAt(end - unit); end -= unit) {
        }
    }
    change(begin, end, escaped);
}

void OutlineMerge::replaceContent(const Element& place, const std::string& content)
{
    if (place.isOneTag) {
        change(place.contentBegin - 2 * original.source().unit(), place.contentBegin,
               '>' + content + "</" + place.name + '>');
    } else {
        change(place.contentBegin, place.contentEnd, content);
    }
}

void OutlineMerge::rewriteContent(const Element& place, const Element& is)
{
    replaceContent(place, inserted.content(is, place, layoutAround(place)));
}

/// The last line of the white space in front of a node.
std::string OutlineMerge::gapInFrontOf(const Element& place, std::size_t number) const
{
    const SourceText& source = original.source();
    std::size_t begin = place.nodes[number].begin;
    while (begin > place.textBegin(number) && source.isSpaceAt(begin - source.unit())) {
        begin -= source.unit();
    }
    return lastLineOf(source.ascii(begin, place.nodes[number].begin));
}

/// What an element in the document is indented more than the one around it.
const std::string& OutlineMerge::unit() const
{
    if (!knownUnit) {
        knownUnit = unitIn(original.root(), std::string());
    }
    return *knownUnit;
}

/// \param gap that of the element
std::string OutlineMerge::unitIn(const Element& element, const std::string& gap) const
{
    for (std::size_t i = 0; i < element.nodes.size(); ++i) {
        const std::string inner = gapInFrontOf(element, i);
        const bool isLine = inner.find('\n') != std::string::npos;
        std::string result = isLine ? difference(inner, gap) : std::string();
        if (result.empty() && element.nodes[i].element != nullptr) {
            result = unitIn(*element.nodes[i].element, isLine ? inner : gap);
        }
        if (!result.empty()) {
            return result;
        }
    }
    return std::string();
}

/// How an element stands in its parent.
InsertedMarkup::Layout OutlineMerge::layoutAround(const Element& element) const
{
    if (element.parent == nullptr) {
        const std::string gap = element.nodes.empty() ? std::string() : gapInFrontOf(element, 0);
        return {gap.substr(0, gap.find('\n') + 1), unit()};
    }
    const auto& siblings = element.parent->nodes;
    const auto isElement = [&element](const OutlineNode& node) { return node.element.get() == &element; };
    const auto number = std::find_if(siblings.begin(), siblings.end(), isElement) - siblings.begin();
    return layoutIn(*element.parent, static_cast<std::size_t>(number));
}

/// How a node stands in its parent.
InsertedMarkup::Layout OutlineMerge::layoutIn(const Element& element, std::size_t number) const
{
    const std::string gap = gapInFrontOf(element, number);
    if (gap.find('\n') == std::string::npos) {
        return {gap, std::string()};
    }
    const std::string outer = element.parent != nullptr ? layoutAround(element).gap : std::string();
    const std::string own = outer.find('\n') != std::string::npos ? difference(gap, outer) : std::string();
    return {gap, own.empty() ? unit() : own};
}

/// Has the root declare what new elements need, where it declares what it does already.
void OutlineMerge::declareNamespaces()
{
    const Element& root = original.root();
    const OutlineAttribute* last = nullptr;
    for (const OutlineAttribute& attribute : root.attributes) {
        if (attribute.isDeclaration && attribute.isWritten) {
            last = &attribute;
        }
    }
    for (const auto& declaration : inserted.declarations()) {
        std::string uri;
        appendEscapedAttribute(declaration.second, uri);
        const std::string attribute = prefixedName("xmlns", declaration.first) + "=\"" + uri + '"';
        if (last == nullptr) {
            insertAttribute(root, ' ' + attribute);
            continue;
        }
        std::size_t name = last->begin;
        while (original.source().isSpaceAt(name)) {
            name += original.source().unit();
        }
        change(last->end, last->end, original.source().ascii(last->begin, name) + attribute);
    }
}

void OutlineMerge::change(std::size_t begin, std::size_t end, const std::string& utf8)
{
    std::string bytes;
    original.source().append(utf8, bytes);
    changes.push_back({begin, end, std::move(bytes)});
}

} // namespace binding
} // namespace citygml
