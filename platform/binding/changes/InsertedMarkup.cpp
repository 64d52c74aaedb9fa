#include "platform/binding/changes/InsertedMarkup.h"

#include "platform/binding/values/WhiteSpace.h"
#include "platform/binding/xml/Namespaces.h"
#include "platform/binding/xml/PrefixedName.h"
#include "platform/binding/xml/XmlText.h"

#include <algorithm>

namespace citygml {
namespace binding {

namespace {

const std::string noNamespace;

std::string_view prefixOf(const std::string& name)
{
    return PrefixedName(name).prefix;
}

const std::string* declarationIn(const OutlineElement& element, std::string_view prefix)
{
    for (const auto& declaration : element.declarations) {
        if (declaration.first == prefix) {
            return declaration.second;
        }
    }
    return nullptr;
}

/// Whether the element or one in it declares the prefix.
bool declares(const OutlineElement& element, std::string_view prefix)
{
    return declarationIn(element, prefix) != nullptr ||
           std::any_of(element.nodes.begin(), element.nodes.end(), [prefix](const OutlineNode& node) {
               return node.element != nullptr && declares(*node.element, prefix);
           });
}

std::string quoted(const std::string& value, char quote)
{
    std::string escaped;
    appendEscapedAttribute(value, escaped);
    if (quote == '\'') {
        for (std::size_t at = 0; (at = escaped.find('\'', at)) != std::string::npos;) {
            escaped.replace(at, 1, "&apos;");
        }
    }
    return escaped;
}

} // namespace

std::string InsertedMarkup::element(const OutlineElement& source, const OutlineElement& parent,
                                    const Layout& layout)
{
    std::string xml;
    writeElement(source, {&parent, nullptr}, layout, xml);
    return xml;
}

std::string InsertedMarkup::node(const OutlineNode& source, const OutlineElement& parent,
                                 const Layout& layout)
{
    std::string xml;
    writeNode(source, {&parent, nullptr}, layout, xml);
    return xml;
}

std::string InsertedMarkup::content(const OutlineElement& source, const OutlineElement& place,
                                    const Layout& layout)
{
    std::string xml;
    writeContent(source, {&place, nullptr}, layout, xml);
    return xml;
}

std::string InsertedMarkup::attribute(const OutlineAttribute& source, const OutlineElement& place)
{
    const Scope scope{&place, nullptr};
    std::string name = source.local;
    if (!source.uri->empty()) {
        name = prefixedName(prefixFor(*source.uri, prefixOf(source.name), true, scope), source.local);
    }
    return ' ' + name + "=\"" + quoted(valueOf(source, scope), '"') + '"';
}

std::string InsertedMarkup::attributeValue(const OutlineAttribute& source, const OutlineElement& place,
                                           char quote)
{
    return quoted(valueOf(source, {&place, nullptr}), quote);
}

void InsertedMarkup::writeElement(const OutlineElement& source, const Scope& outer, const Layout& layout,
                                  std::string& xml)
{
    const Scope scope{&source, &outer};
    std::string name = source.local;
    std::string ownDeclaration;
    if (!source.uri->empty()) {
        name = prefixedName(prefixFor(*source.uri, prefixOf(source.name), false, scope), source.local);
    } else if (const std::string* const inherited = meaningOf(std::string_view(), scope);
               inherited != nullptr && !inherited->empty()) {
        ownDeclaration = " xmlns=\"\"";
    }
    xml += '<' + name + ownDeclaration;
    for (const OutlineAttribute& attribute : source.attributes) {
        std::string attributeName = attribute.name;
        if (!attribute.isDeclaration && !attribute.uri->empty()) {
            attributeName = prefixedName(prefixFor(*attribute.uri, prefixOf(attribute.name), true, scope),
                                         attribute.local);
        }
        const std::string value = attribute.isDeclaration ? attribute.value : valueOf(attribute, scope);
        xml += ' ' + attributeName + "=\"" + quoted(value, '"') + '"';
    }
    if (source.isOneTag) {
        xml += "/>";
        return;
    }
    xml += '>';
    writeContent(source, scope, layout, xml);
    xml += "</" + name + '>';
}

void InsertedMarkup::writeContent(const OutlineElement& source, const Scope& scope, const Layout& layout,
                                  std::string& xml)
{
    const bool isLaidOut = !source.nodes.empty() && source.isBlank();
    const Layout inner = isLaidOut ? layout.inner() : Layout();
    for (std::size_t i = 0; i < source.nodes.size(); ++i) {
        xml += isLaidOut ? inner.gap : rawText(source, i);
        writeNode(source.nodes[i], scope, inner, xml);
    }
    xml += isLaidOut ? layout.gap : rawText(source, source.nodes.size());
}

void InsertedMarkup::writeNode(const OutlineNode& source, const Scope& scope, const Layout& layout,
                               std::string& xml)
{
    if (source.element != nullptr) {
        writeElement(*source.element, scope, layout, xml);
    } else {
        xml += written.bytesOf(source);
    }
}

/// A text as it is written, without marks.
std::string InsertedMarkup::rawText(const OutlineElement& source, std::size_t number) const
{
    const std::size_t begin = source.textBegin(number);
    std::string text(written.source().bytes().substr(begin, source.textEnd(number) - begin));
    const std::size_t mark = text.find(XmlOutline::keptMark);
    if (mark != std::string::npos) {
        text.erase(mark, XmlOutline::keptMark.size());
    }
    return text;
}

/// The value of an attribute; the name of a type has a prefix that means something.
std::string InsertedMarkup::valueOf(const OutlineAttribute& source, const Scope& scope)
{
    if (source.valueUri == nullptr || source.valueUri->empty()) {
        return source.value;
    }
    const std::string value(trimmed(source.value));
    const PrefixedName type(value);
    return prefixedName(prefixFor(*source.valueUri, type.prefix, false, scope), type.local);
}

/// A prefix that means the namespace, the wanted one if it does.
std::string InsertedMarkup::prefixFor(const std::string& uri, std::string_view wanted, bool isAttribute,
                                      const Scope& scope)
{
    if (uri == xmlUri) {
        return "xml";
    }
    const auto means = [&](std::string_view prefix) {
        const std::string* const meaning = meaningOf(prefix, scope);
        return meaning != nullptr && *meaning == uri && (!isAttribute || !prefix.empty());
    };
    if (means(wanted)) {
        return std::string(wanted);
    }
    for (const Scope* at = &scope; at != nullptr; at = at->outer) {
        for (const OutlineElement* element = at->element; element != nullptr;
             element = at->outer == nullptr ? element->parent : nullptr) {
            for (const auto& declaration : element->declarations) {
                if (*declaration.second == uri && means(declaration.first)) {
                    return declaration.first;
                }
            }
        }
    }
    return declareAtRoot(uri, wanted, scope);
}

/// \return null for a prefix that nothing declares
const std::string* InsertedMarkup::meaningOf(std::string_view prefix, const Scope& scope) const
{
    for (const Scope* at = &scope; at != nullptr; at = at->outer) {
        // The outermost is an element of the original, and there are more around it.
        for (const OutlineElement* element = at->element; element != nullptr;
             element = at->outer == nullptr ? element->parent : nullptr) {
            if (const std::string* const meaning = declarationIn(*element, prefix)) {
                return meaning;
            }
        }
    }
    for (const auto& declaration : added) {
        if (declaration.first == prefix) {
            return &declaration.second;
        }
    }
    return prefix.empty() ? &noNamespace : nullptr;
}

std::string InsertedMarkup::declareAtRoot(const std::string& uri, std::string_view wanted, const Scope& scope)
{
    for (const auto& declaration : added) {
        const std::string* const meaning = meaningOf(declaration.first, scope);
        if (declaration.second == uri && meaning != nullptr && *meaning == uri) {
            return declaration.first;
        }
    }
    const std::string stem = wanted.empty() ? "ns" : std::string(wanted);
    std::string prefix = stem;
    const auto isTaken = [&] {
        return declares(original.root(), prefix) || meaningOf(prefix, scope) != nullptr;
    };
    for (int i = 1; isTaken(); ++i) {
        prefix = stem + std::to_string(i);
    }
    added.emplace_back(prefix, uri);
    return prefix;
}

} // namespace binding
} // namespace citygml
