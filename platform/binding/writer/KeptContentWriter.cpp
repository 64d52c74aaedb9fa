#include "platform/binding/writer/KeptContentWriter.h"

#include "platform/binding/changes/XmlOutline.h"
#include "platform/binding/writer/NamespaceDeclarations.h"
#include "platform/binding/writer/XmlOutput.h"
#include "platform/binding/xml/PrefixedName.h"

#include <algorithm>
#include <set>

namespace citygml {
namespace binding {

namespace {

bool endsName(char c)
{
    return std::string_view(" \t\r\n<>/=\"'();,&").find(c) != std::string_view::npos;
}

/// Every prefix that markup may use, in names or in values; the empty one where an element has none.
std::set<std::string_view> prefixesIn(std::string_view xml)
{
    std::set<std::string_view> result;
    std::size_t begin = 0;
    for (std::size_t i = 0; i < xml.size(); ++i) {
        if (xml[i] == ':' && i != begin) {
            result.insert(xml.substr(begin, i - begin));
            begin = i + 1;
        } else if (endsName(xml[i])) {
            if (begin != 0 && i != begin && xml[begin - 1] == '<') {
                result.insert(std::string_view());
            }
            begin = i + 1;
        }
    }
    return result;
}

/// The next end of a word.
std::size_t endOfWord(std::string_view text, std::size_t begin)
{
    constexpr std::string_view space = " \t\r\n";
    const std::size_t word = text.find_first_not_of(space, begin);
    return word != std::string_view::npos ? std::min(text.find_first_of(space, word), text.size())
                                          : text.size();
}

/// The first byte of a character from a byte on.
std::size_t characterFrom(std::string_view text, std::size_t byte)
{
    while (byte < text.size() && (static_cast<unsigned char>(text[byte]) & 0xC0u) == 0x80u) {
        ++byte;
    }
    return std::min(byte, text.size());
}

} // namespace

void KeptContentWriter::writeNode(const KeptContent::Node& node)
{
    if (marksNodes && node.kind != KeptContent::Kind::Text) {
        out.markup(XmlOutline::keptMark);
    }
    const bool isElement = node.kind == KeptContent::Kind::Element;
    if (!isElement || (rootScope != nullptr && node.scope.get() == rootScope)) {
        out.markup(node.xml);
        return;
    }
    const std::string_view xml(node.xml);
    const std::size_t nameEnd = xml.find_first_of(" />");
    out.markup(xml.substr(0, nameEnd));
    declarePrefixes(node, xml.substr(0, xml.find('>')));
    out.markup(xml.substr(nameEnd));
}

/// Declares what an element of another place needs: its prefixes must mean what they meant there.
void KeptContentWriter::declarePrefixes(const KeptContent::Node& node, std::string_view startTag)
{
    for (const std::string_view prefix : prefixesIn(node.xml)) {
        const std::string* const uri = node.scope ? node.scope->namespaceOf(prefix) : nullptr;
        if (uri == nullptr && !prefix.empty()) {
            // Some other word in front of a colon.
            continue;
        }
        const std::string meant = uri != nullptr ? *uri : std::string();
        const std::string name = prefix.empty() ? std::string("xmlns") : prefixedName("xmlns", prefix);
        const bool isDeclared = startTag.find(' ' + name + "=\"") != std::string_view::npos;
        if (!isDeclared && !namespaces.means(prefix, meant)) {
            out.attribute(name, meant);
        }
    }
}

void KeptContentWriter::writeText(const std::string& element, std::string_view text,
                                  const std::vector<KeptContent::Node>& nodes, bool splitsWords)
{
    std::size_t written = 0, end = 0, words = 0;
    for (const KeptContent::Node& node : nodes) {
        if (splitsWords) {
            end = characterFrom(text, node.position.count());
        }
        for (; !splitsWords && words < node.position.count() && end < text.size(); ++words) {
            end = endOfWord(text, end);
        }
        if (end > written) {
            out.text(element, text.substr(written, end - written));
            written = end;
        }
        writeNode(node);
    }
    out.text(element, text.substr(written));
}

void KeptContentWriter::writeAttribute(const KeptContent::Attribute& attribute)
{
    if (attribute.uri == nullptr) {
        out.attribute(attribute.name, attribute.value);
        return;
    }
    const std::string& uri = *attribute.uri;
    // The document's own prefix where the root declares it so, else a declared one, else one that means
    // nothing.
    std::string prefix = attribute.prefix;
    if (!namespaces.rootMeans(prefix, uri)) {
        prefix = namespaces.attributePrefixOf(uri);
    }
    if (prefix.empty()) {
        prefix = namespaces.localPrefix(attribute.prefix, uri);
        if (!namespaces.means(prefix, uri)) {
            out.attribute(prefixedName("xmlns", prefix), uri);
            namespaces.declareLocally(prefix, uri);
        }
    }
    out.attribute(prefixedName(prefix, attribute.name), attribute.value);
}

} // namespace binding
} // namespace citygml
