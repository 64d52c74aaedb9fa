#include "platform/binding/DocumentWriter.h"

#include "platform/binding/KeptContent.h"
#include "platform/binding/SchemaIndex.h"
#include "platform/binding/values/TextValues.h"
#include "platform/binding/xml/XmlText.h"

#include <algorithm>
#include <map>
#include <memory>
#include <ostream>
#include <set>

namespace citygml {
namespace binding {

namespace {

constexpr std::size_t flushSize = 1 << 16;
constexpr const char* xsiUri = "http://www.w3.org/2001/XMLSchema-instance";
constexpr const char* xmlUri = "http://www.w3.org/XML/1998/namespace";

/// The namespaces that the root declares.
class Declarations : public NameScope
{
public:
    using Binding = std::pair<std::string, std::string>;

    Declarations() : m_byPrefix{{"xml", xmlUri}} { m_prefix[xmlUri] = m_qualifier[xmlUri] = "xml"; }

    /// Declares a prefix as the document did.
    void keep(const std::string& prefix, const std::string& uri)
    {
        if (m_byPrefix.emplace(prefix, uri).second)
            add(prefix, uri);
    }
    /// Sees to it that elements and attributes can stand in the namespace.
    void provide(const std::string& prefix, const std::string& uri)
    {
        if (uri.empty() || m_qualifier.count(uri) != 0)
            return;
        add(reserve(prefix, uri), uri);
    }
    /// A prefix that nothing else uses, for a namespace that only single elements declare.
    const std::string& localPrefix(const std::string& wanted, const std::string& uri)
    {
        std::string& prefix = m_local[uri];
        if (prefix.empty())
            prefix = reserve(wanted, uri);
        return prefix;
    }

    const std::vector<Binding>& list() const { return m_list; }
    /// Whether an element sees the prefix with that meaning where nothing around it but the root declares
    /// any; the empty prefix may mean no namespace.
    bool means(std::string_view prefix, std::string_view uri) const
    {
        for (const Binding& binding : m_list) {
            if (binding.first == prefix)
                return binding.second == uri;
        }
        return prefix.empty() ? uri.empty() : prefix == "xml" && uri == xmlUri;
    }

    /// Prefix of elements of the namespace; the empty prefix for the default namespace.
    std::string prefixOf(const std::string& uri) const override
    {
        const auto found = m_prefix.find(uri);
        return found != m_prefix.end() ? found->second : std::string();
    }
    /// Prefix of attributes of the namespace.
    std::string qualifierOf(const std::string& uri) const
    {
        const auto found = m_qualifier.find(uri);
        return found != m_qualifier.end() ? found->second : std::string();
    }
    std::string namespaceOf(std::string_view prefix) const override
    {
        const auto found = m_byPrefix.find(std::string(prefix));
        return found != m_byPrefix.end() ? found->second : std::string();
    }

private:
    std::string reserve(const std::string& wanted, const std::string& uri)
    {
        const std::string stem = wanted.empty() ? "ns" : wanted;
        std::string prefix = stem;
        for (int i = 1; !m_byPrefix.emplace(prefix, uri).second; ++i)
            prefix = stem + std::to_string(i);
        return prefix;
    }

    void add(const std::string& prefix, const std::string& uri)
    {
        m_list.emplace_back(prefix, uri);
        m_prefix.emplace(uri, prefix);
        if (!prefix.empty())
            m_qualifier.emplace(uri, prefix);
    }

    std::vector<Binding> m_list;
    std::map<std::string, std::string> m_byPrefix;
    std::map<std::string, std::string> m_prefix;
    std::map<std::string, std::string> m_qualifier;
    std::map<std::string, std::string> m_local;
};

const std::string* namespaceIn(const KeptContent::Scope* scope, std::string_view prefix)
{
    for (; scope != nullptr; scope = scope->outer.get()) {
        for (auto i = scope->declarations.rbegin(); i != scope->declarations.rend(); ++i) {
            if (i->first == prefix)
                return i->second.get();
        }
    }
    return nullptr;
}

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
            if (begin != 0 && i != begin && xml[begin - 1] == '<')
                result.insert(std::string_view());
            begin = i + 1;
        }
    }
    return result;
}

class Writer
{
public:
    Writer(std::ostream& stream, const xsd::cxx::xml::dom::namespace_infomap<char>& namespaces)
        : m_stream(stream), m_index(SchemaIndex::instance()), m_namespaces(namespaces)
    {
    }

    void write(const core::CityModelType& model)
    {
        const KeptContent* kept = KeptContent::find(model);
        const KeptContent::Document fresh;
        const KeptContent::Document& document = kept != nullptr && kept->document ? *kept->document : fresh;
        m_scope = document.scope.get();
        declareNamespaces(document);
        // What the root's own attributes need is declared with the rest.
        if (kept != nullptr) {
            for (const KeptContent::Attribute& attribute : kept->attributes)
                m_declared.provide(attribute.prefix,
                                   attribute.uri != nullptr ? *attribute.uri : std::string());
        }

        m_out = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
        for (const std::string& markup : document.prologue)
            m_out.append(markup).append(1, '\n');
        const TypeIndex& type = m_index.typeOf(model);
        writeElement(model, type, rootName(), 0, &document);
        m_out += '\n';
        for (const std::string& markup : document.epilogue)
            m_out.append(markup).append(1, '\n');
        flush();
    }

private:
    /// Name of an element and the qualifier of its type, ready to be written.
    struct Tag
    {
        std::string name;
        const TypeIndex* typeToTell = nullptr;
    };

    /// The value of `xsi:type`.
    struct RawType
    {
        explicit RawType(std::string_view text)
        {
            text = trimmed(text);
            const std::size_t colon = text.find(':');
            prefix = colon != std::string_view::npos ? text.substr(0, colon) : std::string_view();
            local = colon != std::string_view::npos ? text.substr(colon + 1) : text;
        }

        std::string_view prefix;
        std::string_view local;
    };

    Tag rootName() const { return {qualified("http://www.opengis.net/citygml/2.0", "CityModel"), nullptr}; }

    void declareNamespaces(const KeptContent::Document& document)
    {
        for (const auto& binding : document.namespaces)
            m_declared.keep(binding.first, binding.second);
        for (const auto& entry : m_namespaces)
            m_declared.provide(entry.first, entry.second.name);
        // Whatever else the schema may need.
        for (const std::string& uri : m_index.namespaces()) {
            if (uri != "http://www.w3.org/2001/XMLSchema")
                m_declared.provide(std::string(), uri);
        }
        m_declared.provide("xsi", xsiUri);
    }

    std::string qualified(const std::string& uri, const std::string& name) const
    {
        const std::string prefix = uri.empty() ? std::string() : m_declared.prefixOf(uri);
        return prefix.empty() ? name : prefix + ':' + name;
    }

    void flush()
    {
        m_stream.write(m_out.data(), static_cast<std::streamsize>(m_out.size()));
        m_out.clear();
    }

    [[noreturn]] static void reject(const std::string& name)
    {
        xsd::cxx::tree::diagnostics<char> diagnostics;
        diagnostics.push_back(
            xsd::cxx::tree::error<char>(xsd::cxx::tree::severity::error, "document", 0, 0,
                                        "the text of '" + name + "' holds a character that XML cannot hold"));
        throw xsd::cxx::tree::serialization<char>(diagnostics);
    }

    void addAttribute(const std::string& name, std::string_view value)
    {
        m_out.append(1, ' ').append(name).append("=\"");
        if (!appendEscapedAttribute(value, m_out))
            reject(name);
        m_out += '"';
    }

    void addText(const std::string& name, std::string_view text)
    {
        if (!appendEscaped(text, m_out))
            reject(name);
    }

    void newLine(int depth) { m_out.append(1, '\n').append(static_cast<std::size_t>(2 * depth), ' '); }

    /// The tag of an object that stands in a member of its parent.
    const Tag& tagOf(const TypeIndex& parent, int member, const xml_schema::type& object,
                     const TypeIndex& type)
    {
        const NameId kept = KeptContent::elementName(object);
        Tag& tag = m_tags[{&parent, &type, kept, member}];
        if (tag.name.empty()) {
            bool needsType = false;
            NameId name = kept;
            const Place place = name != 0 ? m_index.place(parent, name) : Place();
            if (place.member == member && place.type != nullptr && type.isDerivedFrom(place.type))
                needsType = place.type != &type;
            else
                name = m_index.elementName(parent, member, type, needsType);
            const QualifiedName& qualifiedName = m_index.name(name);
            tag.name = qualified(qualifiedName.uri, qualifiedName.name);
            tag.typeToTell = needsType ? &type : nullptr;
        }
        return tag;
    }

    const std::string& valueTag(const TypeIndex::FlatMember& member)
    {
        std::string& tag = m_valueTags[member.name];
        if (tag.empty())
            tag = qualified(m_index.name(member.name).uri, m_index.name(member.name).name);
        return tag;
    }

    void writeElement(const xml_schema::type& object, const TypeIndex& type, const Tag& tag, int depth,
                      const KeptContent::Document* document)
    {
        const std::size_t outer = m_local.size();
        writeTagsAndContent(object, type, tag, depth, document);
        m_local.resize(outer);
    }

    void writeTagsAndContent(const xml_schema::type& object, const TypeIndex& type, const Tag& tag, int depth,
                             const KeptContent::Document* document)
    {
        const KeptContent* kept = KeptContent::find(object);
        m_out.append(1, '<').append(tag.name);
        if (document != nullptr)
            writeDocumentAttributes(*document);
        writeAttributes(object, type, tag, kept);
        if (m_out.size() > flushSize)
            flush();

        m_text.clear();
        if (type.hasText())
            format(object, type, kept, KeptContent::Value::ownText, m_text);
        if (isUnsetNil(object, type, kept))
            m_text.clear();
        if (type.hasText() && (kept == nullptr || kept->nodes.empty())) {
            if (m_text.empty()) {
                m_out += "/>";
                return;
            }
            m_out += '>';
            addText(tag.name, m_text);
            m_out.append("</").append(tag.name).append(1, '>');
            return;
        }
        const std::size_t begin = m_out.size();
        m_out += '>';
        if (type.hasText()) {
            const std::string text = m_text;
            const bool isString = dynamic_cast<const std::string*>(&object) != nullptr;
            writeTextAndNodes(tag.name, text, kept->nodes, isString);
            m_out.append("</").append(tag.name).append(1, '>');
            return;
        }
        Content content{&object, &type, kept, depth + 1};
        content.isIndented = kept == nullptr || !hasText(*kept);
        writeChildren(content);
        writeKept(content, Position(~0u, 0));
        if (content.written == 0 && m_out.size() == begin + 1) {
            m_out.back() = '/';
            m_out += '>';
            return;
        }
        if (content.isIndented && content.written != 0)
            newLine(depth);
        m_out.append("</").append(tag.name).append(1, '>');
    }

    /// Writes text with the elements that stand in it.
    /// \param isString whether an element may stand in a word.
    void writeTextAndNodes(const std::string& name, const std::string& text,
                           const std::vector<KeptContent::Node>& nodes, bool isString)
    {
        std::size_t done = 0;
        for (const KeptContent::Node& node : nodes) {
            // The text may be another by now.
            std::size_t end = std::min<std::size_t>(node.index, text.size());
            const auto isInside = [&] {
                return isString ? (static_cast<unsigned char>(text[end]) & 0xC0u) == 0x80u
                                : end != 0 && text[end - 1] != ' ' && text[end] != ' ';
            };
            while (end < text.size() && isInside())
                ++end;
            if (end > done) {
                addText(name, std::string_view(text).substr(done, end - done));
                done = end;
            }
            writeNode(node);
        }
        addText(name, std::string_view(text).substr(done));
    }

    /// Member and number of a child, as in KeptContent::Node.
    using Position = std::pair<std::uint32_t, std::uint32_t>;

    /// The writing of one object's content.
    struct Content
    {
        const xml_schema::type* object;
        const TypeIndex* type;
        const KeptContent* kept;
        int depth;
        bool isIndented = true;
        /// Number of kept nodes written so far, and of all children.
        std::size_t nodes = 0;
        std::size_t written = 0;
    };

    /// The writing of one member's children: its values, and between them those that are nil.
    struct Children
    {
        std::size_t member;
        std::size_t count;
        std::size_t value = 0;
        /// What is kept about the next values.
        const KeptContent::Value* kept = nullptr;
        const KeptContent::Value* end = nullptr;

        bool atEnd() const { return value == count && !isNil(); }
        bool isNil() const { return kept != end && kept->isNil && (kept->index <= value || value == count); }
    };

    static bool hasText(const KeptContent& kept)
    {
        return std::any_of(kept.nodes.begin(), kept.nodes.end(),
                           [](const KeptContent::Node& n) { return n.kind == KeptContent::Kind::Text; });
    }

    /// Whether a prefix has that meaning here.
    bool means(std::string_view prefix, std::string_view uri) const
    {
        for (auto i = m_local.rbegin(); i != m_local.rend(); ++i) {
            if (i->first == prefix)
                return i->second == uri;
        }
        return m_declared.means(prefix, uri);
    }

    void writeNode(const KeptContent::Node& node)
    {
        if (node.kind != KeptContent::Kind::Element || (m_scope != nullptr && node.scope.get() == m_scope)) {
            m_out += node.xml;
            return;
        }
        // The element comes from elsewhere: its prefixes must mean what they meant there.
        const std::size_t nameEnd = node.xml.find_first_of(" />");
        const std::string_view tag(node.xml.data(), node.xml.find('>'));
        m_out.append(node.xml, 0, nameEnd);
        for (const std::string_view prefix : prefixesIn(node.xml)) {
            const std::string* uri = namespaceIn(node.scope.get(), prefix);
            const std::string wanted = uri != nullptr ? *uri : std::string();
            const bool isOther = uri == nullptr && !prefix.empty();
            const std::string declaration =
                prefix.empty() ? std::string("xmlns") : "xmlns:" + std::string(prefix);
            if (isOther || tag.find(' ' + declaration + "=\"") != std::string_view::npos ||
                means(prefix, wanted))
                continue;
            addAttribute(declaration, wanted);
        }
        m_out.append(node.xml, nameEnd, std::string::npos);
    }

    /// Writes the kept nodes in front of a child.
    void writeKept(Content& content, const Position& child)
    {
        if (content.kept == nullptr)
            return;
        const auto& nodes = content.kept->nodes;
        for (; content.nodes < nodes.size(); ++content.nodes) {
            const KeptContent::Node& node = nodes[content.nodes];
            if (Position(node.member, node.index) >= child)
                return;
            if (content.isIndented)
                newLine(content.depth);
            writeNode(node);
            ++content.written;
        }
    }

    void writeChildren(Content& content)
    {
        const auto& members = content.type->members();
        for (std::size_t i = 0; i < content.type->elementCount();) {
            std::size_t end = i + 1;
            while (end < content.type->elementCount() && members[end].place == members[i].place)
                ++end;
            if (end == i + 1)
                writeMember(content, i);
            else
                writeGroup(content, i, end);
            i = end;
        }
    }

    Children childrenOf(const Content& content, std::size_t number) const
    {
        const TypeIndex::FlatMember& member = content.type->members()[number];
        const MemberOps& ops = *member.member->ops;
        Children children{number, ops.count(*content.object)};
        if (content.kept != nullptr && !content.kept->values.empty()) {
            const auto range = keptValues(*content.kept, number);
            children.kept = range.first;
            children.end = range.second;
            // One that has been set since is no longer nil.
            while (ops.single && children.count != 0 && children.kept != children.end && children.kept->isNil)
                ++children.kept;
        }
        if (children.atEnd() && member.required >= 0 && !isNil(content.kept)) {
            const QualifiedName& name = m_index.name(member.name);
            throw xsd::cxx::tree::expected_element<char>(name.name, name.uri);
        }
        return children;
    }

    /// What is kept about the values of a member.
    static std::pair<const KeptContent::Value*, const KeptContent::Value*> keptValues(const KeptContent& kept,
                                                                                      std::size_t member)
    {
        const auto isBefore = [](const KeptContent::Value& value, std::size_t number) {
            return value.member < number;
        };
        const auto& values = kept.values;
        const KeptContent::Value* const end = values.data() + values.size();
        return {std::lower_bound(values.data(), end, member, isBefore),
                std::lower_bound(values.data(), end, member + 1, isBefore)};
    }

    void writeMember(Content& content, std::size_t number)
    {
        const auto place = static_cast<std::uint32_t>(number);
        std::uint32_t child = 0;
        for (Children children = childrenOf(content, number); !children.atEnd();)
            writeChild(content, children, {place, ++child});
    }

    /// Writes members that may alternate: in the order of the document as far as that is known.
    void writeGroup(Content& content, std::size_t begin, std::size_t end)
    {
        std::vector<Children> members;
        for (std::size_t i = begin; i < end; ++i)
            members.push_back(childrenOf(content, i));
        const auto place = static_cast<std::uint32_t>(begin);
        std::uint32_t child = 0;
        if (content.kept != nullptr) {
            for (const std::uint16_t number : content.kept->order) {
                if (number >= begin && number < end && !members[number - begin].atEnd())
                    writeChild(content, members[number - begin], {place, ++child});
            }
        }
        for (Children& children : members) {
            while (!children.atEnd())
                writeChild(content, children, {place, ++child});
        }
    }

    void writeChild(Content& content, Children& children, const Position& position)
    {
        writeKept(content, position);
        ++content.written;
        if (content.isIndented)
            newLine(content.depth);
        const TypeIndex::FlatMember& member = content.type->members()[children.member];
        if (member.type == nullptr) {
            writeValue(content, member, children);
            return;
        }
        const xml_schema::type& child = member.member->ops->at(*content.object, children.value++);
        const TypeIndex& type = m_index.typeOf(child);
        writeElement(child, type, tagOf(*content.type, static_cast<int>(children.member), child, type),
                     content.depth, nullptr);
    }

    void writeValue(const Content& content, const TypeIndex::FlatMember& member, Children& children)
    {
        const std::string& tag = valueTag(member);
        const std::size_t outer = m_local.size();
        const bool isNil = children.isNil();
        while (!isNil && children.kept != children.end && children.kept->index < children.value)
            ++children.kept;
        const KeptContent::Value* kept = nullptr;
        if (isNil || (children.kept != children.end && children.kept->index == children.value))
            kept = children.kept++;
        m_out.append(1, '<').append(tag);
        if (kept != nullptr) {
            for (const KeptContent::Attribute& attribute : kept->attributes)
                writeKeptAttribute(attribute);
        }
        std::string text;
        if (!isNil) {
            member.member->ops->format(*content.object, children.value++, text);
            if (kept != nullptr && isSpelling(kept->text, text))
                text = kept->text;
        }
        if (isNil && kept->nodes.empty()) {
            m_out += "/>";
        } else {
            m_out += '>';
            if (kept != nullptr)
                writeTextAndNodes(tag, text, kept->nodes, false);
            else
                addText(tag, text);
            m_out.append("</").append(tag).append(1, '>');
        }
        m_local.resize(outer);
    }

    /// Whether a text is another spelling of a value of a fundamental type.
    static bool isSpelling(const std::string& text, const std::string& value)
    {
        return (text == "1" && value == "true") || (text == "0" && value == "false");
    }
    /// The same for the text of an object.
    bool isSpelling(const std::string& text, const std::string& value, const TypeIndex& type) const
    {
        if (text.empty())
            return false;
        const std::unique_ptr<xml_schema::type> object(type.record()->create());
        std::string formatted;
        type.record()->text->parse(*object, text, m_declared);
        type.record()->text->format(*object, formatted, m_declared);
        return formatted == value;
    }

    /// Formats the text of an object: as the document spelled it, while it means the same.
    void format(const xml_schema::type& object, const TypeIndex& type, const KeptContent* kept,
                std::size_t member, std::string& text) const
    {
        type.record()->text->format(object, text, m_declared);
        if (kept == nullptr || !type.hasSpellings())
            return;
        const auto range = keptValues(*kept, member);
        if (range.first != range.second && isSpelling(range.first->text, text, type))
            text = range.first->text;
    }

    static bool isNilAttribute(const KeptContent::Attribute& attribute)
    {
        return attribute.is(xsiUri, "nil");
    }

    static bool isNil(const KeptContent* kept)
    {
        return kept != nullptr &&
               std::any_of(kept->attributes.begin(), kept->attributes.end(), &isNilAttribute);
    }

    /// Whether a value that the document left nil has not been set since.
    bool isUnsetNil(const xml_schema::type& object, const TypeIndex& type, const KeptContent* kept) const
    {
        if (!isNil(kept) || !type.hasText())
            return false;
        const std::unique_ptr<xml_schema::type> fresh(type.record()->create());
        std::string text, unset;
        type.record()->text->format(object, text, m_declared);
        type.record()->text->format(*fresh, unset, m_declared);
        return text == unset;
    }

    void writeDocumentAttributes(const KeptContent::Document& document)
    {
        for (const Declarations::Binding& binding : m_declared.list())
            addAttribute(binding.first.empty() ? "xmlns" : "xmlns:" + binding.first, binding.second);

        // A document that was read without locations gets none.
        auto locations = document.schemaLocations;
        if (document.hasSchemaLocation || document.namespaces.empty()) {
            for (const auto& entry : m_namespaces) {
                const auto isSame = [&](const auto& location) { return location.first == entry.second.name; };
                if (!entry.second.schema.empty() && std::none_of(locations.begin(), locations.end(), isSame))
                    locations.emplace_back(entry.second.name, entry.second.schema);
            }
        }
        std::string text;
        for (const auto& location : locations)
            text.append(text.empty() ? "" : " ")
                .append(location.first)
                .append(1, ' ')
                .append(location.second);
        if (!text.empty())
            addAttribute(m_declared.qualifierOf(xsiUri) + ":schemaLocation", text);
    }

    void writeAttributes(const xml_schema::type& object, const TypeIndex& type, const Tag& tag,
                         const KeptContent* kept)
    {
        for (std::size_t i = type.elementCount(); i < type.members().size(); ++i) {
            const TypeIndex::FlatMember& member = type.members()[i];
            const QualifiedName& name = m_index.name(member.name);
            const MemberOps& ops = *member.member->ops;
            if (ops.count(object) == 0) {
                if (member.required >= 0 && !isNil(kept))
                    throw xsd::cxx::tree::expected_attribute<char>(name.name, name.uri);
                continue;
            }
            m_text.clear();
            if (member.type == nullptr) {
                ops.format(object, 0, m_text);
                if (kept != nullptr && !kept->values.empty()) {
                    const auto range = keptValues(*kept, i);
                    if (range.first != range.second && isSpelling(range.first->text, m_text))
                        m_text = range.first->text;
                }
            } else {
                format(ops.at(object, 0), *member.type, kept, i, m_text);
            }
            if (member.defaulted >= 0 && m_text == member.member->defaultText &&
                !KeptContent::isSpelledOut(object, static_cast<unsigned>(member.defaulted)))
                continue;
            std::string& attribute = m_attributeTags[member.name];
            if (attribute.empty())
                attribute = name.uri.empty() ? name.name : m_declared.qualifierOf(name.uri) + ':' + name.name;
            addAttribute(attribute, m_text);
        }
        bool tellsType = false;
        if (kept != nullptr) {
            for (const KeptContent::Attribute& attribute : kept->attributes) {
                if (isNilAttribute(attribute) && type.hasText() && !isUnsetNil(object, type, kept))
                    continue;
                if (attribute.is(xsiUri, "type")) {
                    tellsType = true;
                    const TypeRecord& record = *type.record();
                    const RawType named(attribute.value);
                    if (named.local == record.name && !m_declared.means(named.prefix, record.uri)) {
                        addAttribute(m_declared.qualifierOf(xsiUri) + ":type",
                                     qualified(record.uri, record.name));
                        continue;
                    }
                }
                writeKeptAttribute(attribute);
            }
        }
        if (tag.typeToTell != nullptr && !tellsType) {
            const TypeRecord& record = *tag.typeToTell->record();
            addAttribute(m_declared.qualifierOf(xsiUri) + ":type", qualified(record.uri, record.name));
        }
    }

    void writeKeptAttribute(const KeptContent::Attribute& attribute)
    {
        if (attribute.uri == nullptr) {
            addAttribute(attribute.name, attribute.value);
            return;
        }
        const std::string& uri = *attribute.uri;
        // The document's own prefix where the root declares it so, else a declared one, else one that means
        // nothing.
        std::string prefix = attribute.prefix;
        if (!m_declared.means(prefix, uri))
            prefix = m_declared.qualifierOf(uri);
        if (prefix.empty()) {
            prefix = m_declared.localPrefix(attribute.prefix, uri);
            if (!means(prefix, uri)) {
                addAttribute("xmlns:" + prefix, uri);
                m_local.emplace_back(prefix, uri);
            }
        }
        addAttribute(prefix + ':' + attribute.name, attribute.value);
    }

    struct TagKey
    {
        const TypeIndex* parent;
        const TypeIndex* type;
        NameId kept;
        int member;
        bool operator==(const TagKey& o) const
        {
            return parent == o.parent && type == o.type && kept == o.kept && member == o.member;
        }
    };
    struct TagHash
    {
        std::size_t operator()(const TagKey& k) const
        {
            std::size_t hash = reinterpret_cast<std::size_t>(k.parent);
            hash = hash * 31 + reinterpret_cast<std::size_t>(k.type);
            hash = hash * 31 + k.kept;
            return hash * 31 + static_cast<std::size_t>(k.member);
        }
    };

    std::ostream& m_stream;
    const SchemaIndex& m_index;
    const xsd::cxx::xml::dom::namespace_infomap<char>& m_namespaces;
    Declarations m_declared;
    // The scope of the root where that is written as it was read.
    const KeptContent::Scope* m_scope = nullptr;
    // Declarations of the open elements besides the root's.
    std::vector<Declarations::Binding> m_local;
    std::string m_out;
    std::string m_text;
    std::unordered_map<TagKey, Tag, TagHash> m_tags;
    std::unordered_map<NameId, std::string> m_valueTags;
    std::unordered_map<NameId, std::string> m_attributeTags;
};

} // namespace

void writeDocument(std::ostream& stream, const core::CityModelType& model,
                   const xsd::cxx::xml::dom::namespace_infomap<char>& namespaces)
{
    Writer(stream, namespaces).write(model);
}

} // namespace binding
} // namespace citygml
