#include "platform/binding/changes/XmlOutline.h"

#include "platform/binding/reader/NamespaceScopes.h"
#include "platform/binding/reader/XmlParser.h"
#include "platform/binding/SchemaIndex.h"
#include "platform/binding/values/WhiteSpace.h"
#include "platform/binding/xml/Namespaces.h"
#include "platform/binding/xml/PrefixedName.h"

#include <algorithm>

namespace citygml {
namespace binding {

namespace {

// These stay open, to show how a document is indented.
constexpr std::size_t elementsOfSample = 100;

} // namespace

CommonEnds CommonEnds::of(std::string_view a, std::string_view b)
{
    const auto first = std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin();
    a.remove_prefix(static_cast<std::size_t>(first));
    b.remove_prefix(static_cast<std::size_t>(first));
    const auto last = std::mismatch(a.rbegin(), a.rend(), b.rbegin(), b.rend()).first - a.rbegin();
    return {static_cast<std::size_t>(first), static_cast<std::size_t>(last)};
}

/// Makes the elements from what the parser tells.
class XmlOutline::Builder : public XmlHandler
{
public:
    /// \param model may be null
    Builder(XmlOutline& outline, const XmlParser& parser, const NamespaceScopes& scopes,
            const CommonEnds& closed, const XmlOutline* model)
        : outline(outline), source(outline.text), parser(parser), scopes(scopes), closed(closed)
    {
        if (model != nullptr) {
            models.push_back(model->top.get());
        }
    }

    void startElement(const char* name, const XmlAttributes& attributes) override
    {
        if (open != nullptr && open->isClosed) {
            ++depthInClosed;
            return;
        }
        auto element = std::make_unique<OutlineElement>();
        OutlineElement& opened = *element;
        const PrefixedName parts(name);
        opened.name = name;
        opened.local = parts.local;
        opened.uri = uriOf(parts.prefix);
        opened.parent = open;
        opened.begin = parser.byteIndex();
        opened.contentBegin = opened.begin + parser.byteCount();
        if (source.at(opened.begin) != '<' && open != nullptr) {
            open->hasEntityMarkup = true;
        }
        readAttributes(opened, attributes);
        followModel(opened);
        if (open != nullptr) {
            addNode(opened.begin).element = std::move(element);
        } else {
            outline.top = std::move(element);
        }
        open = &opened;
        ++elements;
    }

    void endElement(const char*) override
    {
        if (depthInClosed != 0) {
            --depthInClosed;
            return;
        }
        open->contentEnd = std::max(parser.byteIndex(), open->contentBegin);
        open->isOneTag = source.at(open->contentBegin - 2 * source.unit()) == '/';
        open->end = open->isOneTag ? open->contentBegin : open->contentEnd + parser.byteCount();
        const std::size_t end = open->end;
        if (elements > elementsOfSample &&
            (end <= closed.first || open->begin >= source.bytes().size() - closed.last)) {
            close(*open);
        }
        if (!models.empty()) {
            models.pop_back();
        }
        open = open->parent;
        if (open != nullptr) {
            open->nodes.back().end = end;
        }
    }

    void characters(std::string_view characters) override
    {
        if (!open->isClosed) {
            open->texts.back() += characters;
        }
    }
    void comment(std::string) override { addMarkup(); }
    void processingInstruction(std::string markup) override
    {
        if (markup == XmlOutline::keptMark) {
            isNextKept = open == nullptr || !open->isClosed;
        } else {
            addMarkup();
        }
    }
    std::string path() const override { return std::string(); }

private:
    static void close(OutlineElement& element)
    {
        element.isClosed = true;
        element.nodes = std::vector<OutlineNode>();
        element.texts = std::vector<std::string>(1);
    }

    /// Closes an element if the one in the same place of the model is closed.
    void followModel(OutlineElement& opened)
    {
        if (models.empty()) {
            return;
        }
        const OutlineElement* model = models.back();
        if (open != nullptr) {
            const std::size_t number = open->nodes.size();
            model = model != nullptr && number < model->nodes.size() ? model->nodes[number].element.get()
                                                                     : nullptr;
            models.push_back(model);
        }
        opened.isClosed = model != nullptr && model->isClosed && model->local == opened.local;
    }

    OutlineNode& addNode(std::size_t begin)
    {
        OutlineNode& node = open->nodes.emplace_back();
        open->texts.emplace_back();
        node.begin = begin;
        node.isKept = isNextKept;
        isNextKept = false;
        return node;
    }

    void addMarkup()
    {
        if (open == nullptr || open->isClosed) {
            return;
        }
        OutlineNode& node = addNode(parser.byteIndex());
        node.end = node.begin + parser.byteCount();
        open->hasEntityMarkup = open->hasEntityMarkup || source.at(node.begin) != '<';
    }

    const std::string* uriOf(std::string_view prefix)
    {
        const NamespaceScopes::Declaration* const declaration = scopes.find(prefix);
        return unique(declaration != nullptr ? *declaration->declaredUri : std::string());
    }

    const std::string* unique(const std::string& uri) { return &*outline.uris.insert(uri).first; }

    void readAttributes(OutlineElement& element, const XmlAttributes& attributes)
    {
        for (const XmlAttribute attribute : attributes) {
            const PrefixedName parts(attribute.name);
            OutlineAttribute& read = element.attributes.emplace_back();
            read.name = attribute.name;
            read.local = parts.local;
            read.value = attribute.value;
            read.isDeclaration = attribute.isDeclaration();
            if (read.isDeclaration) {
                const std::string prefix = parts.prefix.empty() ? std::string() : std::string(parts.local);
                element.declarations.emplace_back(prefix, unique(read.value));
                continue;
            }
            read.uri = parts.prefix.empty() ? unique(std::string()) : uriOf(parts.prefix);
            if (*read.uri == xsiUri && read.local == "type") {
                read.valueUri = uriOf(PrefixedName(trimmed(read.value)).prefix);
            }
        }
        findAttributes(element);
    }

    /// Finds the bytes of the attributes that the start tag has; these come first.
    void findAttributes(OutlineElement& element) const
    {
        const std::size_t unit = source.unit();
        const std::size_t written = parser.writtenAttributes();
        std::size_t at = element.begin;
        while (at < element.contentBegin && !source.isSpaceAt(at) && source.at(at) != '>') {
            at += unit;
        }
        for (std::size_t i = 0; i < element.attributes.size(); ++i) {
            OutlineAttribute& attribute = element.attributes[i];
            attribute.isWritten = i < written;
            if (!attribute.isWritten || at >= element.contentBegin) {
                continue;
            }
            attribute.begin = at;
            while (at < element.contentBegin && source.at(at) != '"' && source.at(at) != '\'') {
                at += unit;
            }
            const char quote = source.at(at);
            attribute.valueBegin = at + unit;
            for (at += unit; at < element.contentBegin && source.at(at) != quote;) {
                at += unit;
            }
            attribute.valueEnd = at;
            attribute.end = at += unit;
        }
    }

    XmlOutline& outline;
    const SourceText& source;
    const XmlParser& parser;
    const NamespaceScopes& scopes;
    const CommonEnds closed;
    // Those in the places of the open elements, null where there is none; empty without a model.
    std::vector<const OutlineElement*> models;
    OutlineElement* open = nullptr;
    std::size_t depthInClosed = 0;
    std::size_t elements = 0;
    bool isNextKept = false;
};

bool OutlineElement::isBlank() const
{
    return std::all_of(texts.begin(), texts.end(),
                       [](const std::string& text) { return binding::isBlank(text); });
}

const OutlineAttribute* OutlineElement::attribute(std::string_view attributeUri,
                                                  std::string_view attributeLocal) const
{
    const auto found =
        std::find_if(attributes.begin(), attributes.end(), [&](const OutlineAttribute& candidate) {
            return !candidate.isDeclaration && candidate.local == attributeLocal &&
                   *candidate.uri == attributeUri;
        });
    return found != attributes.end() ? &*found : nullptr;
}

XmlOutline::XmlOutline(std::string_view bytes, const CommonEnds& closed) : text(bytes)
{
    build(closed, nullptr);
}

XmlOutline::XmlOutline(std::string_view bytes, const XmlOutline& model) : text(bytes)
{
    build(CommonEnds(), &model);
}

void XmlOutline::build(const CommonEnds& closed, const XmlOutline* model)
{
    NamespaceScopes scopes(SchemaIndex::instance());
    XmlParser parser(scopes);
    Builder builder(*this, parser, scopes, closed, model);
    parser.feed(text.bytes(), builder, true);
}

} // namespace binding
} // namespace citygml
