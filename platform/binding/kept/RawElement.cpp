#include "platform/binding/kept/RawElement.h"

#include "platform/binding/reader/NamespaceScopes.h"
#include "platform/binding/reader/XmlParser.h"
#include "platform/binding/SchemaIndex.h"
#include "platform/binding/xml/PrefixedName.h"
#include "platform/binding/xml/XmlText.h"

#include <sstream>
#include <utility>

namespace citygml {
namespace binding {

namespace {

/// Makes the tree of the elements that the parser tells of.
class TreeMaker : public XmlHandler
{
public:
    explicit TreeMaker(const NamespaceScopes& scopes) : scopes(scopes) {}

    std::unique_ptr<RawElement> take() { return std::move(root); }

    void startElement(const char* name, const XmlAttributes& attributes) override
    {
        auto element = std::make_unique<RawElement>();
        element->name = name;
        element->uri = uriOf(PrefixedName(name).prefix);
        for (const XmlAttribute attribute : attributes) {
            const std::string_view prefix = PrefixedName(attribute.name).prefix;
            const bool isDeclaration = attribute.isDeclaration();
            const bool isQualified = !isDeclaration && !prefix.empty();
            element->attributes.push_back({attribute.name, isQualified ? uriOf(prefix) : std::string(),
                                           attribute.value, isDeclaration});
        }
        RawElement* const added = element.get();
        if (open.empty()) {
            root = std::move(element);
        } else {
            addItem({std::move(element), std::string()});
        }
        open.push_back(added);
    }
    void endElement(const char* /*name*/) override { open.pop_back(); }
    void characters(std::string_view text) override { open.back()->texts.back() += text; }
    void comment(std::string markup) override { addItem({nullptr, std::move(markup)}); }
    void processingInstruction(std::string markup) override { addItem({nullptr, std::move(markup)}); }
    std::string path() const override { return std::string(); }

private:
    void addItem(RawElement::Item item)
    {
        open.back()->items.push_back(std::move(item));
        open.back()->texts.emplace_back();
    }

    std::string uriOf(std::string_view prefix) const
    {
        const NamespaceScopes::Declaration* const declaration = scopes.find(prefix);
        return declaration != nullptr ? *declaration->uri : std::string();
    }

    const NamespaceScopes& scopes;
    std::unique_ptr<RawElement> root;
    std::vector<RawElement*> open;
};

/// Declares what is in scope around an element, from the outside in.
void declare(const KeptContent::Scope* scope, NamespaceScopes& scopes)
{
    if (scope == nullptr) {
        return;
    }
    declare(scope->outer.get(), scopes);
    for (const auto& declaration : scope->declarations) {
        scopes.declare(declaration.first, *declaration.second, 0);
    }
}

} // namespace

std::unique_ptr<RawElement> RawElement::parse(const std::string& xml, const KeptContent::Scope* scope)
{
    NamespaceScopes scopes(SchemaIndex::instance());
    declare(scope, scopes);
    TreeMaker maker(scopes);
    std::istringstream stream(xml);
    XmlParser(scopes).parse(stream, maker);
    return maker.take();
}

void RawElement::write(std::string& xml) const
{
    xml.append(1, '<').append(name);
    for (const Attribute& attribute : attributes) {
        xml.append(1, ' ').append(attribute.name).append("=\"");
        appendEscapedAttribute(attribute.value, xml);
        xml += '"';
    }
    xml += '>';
    for (std::size_t i = 0; i < items.size(); ++i) {
        appendEscaped(texts[i], xml);
        if (items[i].element) {
            items[i].element->write(xml);
        } else {
            xml += items[i].markup;
        }
    }
    appendEscaped(texts.back(), xml);
    xml.append("</").append(name).append(1, '>');
}

std::string unescaped(std::string_view xml)
{
    return RawElement::parse("<text>" + std::string(xml) + "</text>", nullptr)->texts.front();
}

} // namespace binding
} // namespace citygml
