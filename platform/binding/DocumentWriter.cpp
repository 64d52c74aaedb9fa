#include "platform/binding/DocumentWriter.h"

#include "platform/binding/KeptContent.h"
#include "platform/binding/SchemaIndex.h"
#include "platform/binding/XmlText.h"

#include <algorithm>
#include <map>
#include <memory>
#include <ostream>

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
    bool declares(const std::string& prefix, const std::string& uri) const
    {
        return uri == xmlUri || std::find(m_list.begin(), m_list.end(), Binding(prefix, uri)) != m_list.end();
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
        declareNamespaces(document);

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
        const KeptContent* kept = KeptContent::find(object);
        m_out.append(1, '<').append(tag.name);
        if (document != nullptr)
            writeDocumentAttributes(*document);
        writeAttributes(object, type, tag, kept);
        if (m_out.size() > flushSize)
            flush();

        m_text.clear();
        if (type.hasText())
            type.record()->text->format(object, m_text, m_declared);
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
        if (type.hasText())
            addText(tag.name, m_text);
        Content content{&object, &type, kept, depth + 1, true, 0, 0};
        content.isIndented = !type.hasText() && (kept == nullptr || !hasText(*kept));
        writeChildren(content);
        writeKept(content, ~0u);
        if (content.written == 0 && m_out.size() == begin + 1) {
            m_out.back() = '/';
            m_out += '>';
            return;
        }
        if (content.isIndented && content.written != 0)
            newLine(depth);
        m_out.append("</").append(tag.name).append(1, '>');
    }

    /// The writing of one object's content.
    struct Content
    {
        const xml_schema::type* object;
        const TypeIndex* type;
        const KeptContent* kept;
        int depth;
        bool isIndented;
        /// Number of children with a member written so far, and of kept nodes.
        std::uint32_t children;
        std::size_t nodes;
        std::size_t written = 0;
    };

    static bool hasText(const KeptContent& kept)
    {
        return std::any_of(kept.nodes.begin(), kept.nodes.end(),
                           [](const KeptContent::Node& n) { return n.kind == KeptContent::Kind::Text; });
    }

    /// Writes the kept nodes in front of a child.
    void writeKept(Content& content, std::uint32_t child)
    {
        if (content.kept == nullptr)
            return;
        const auto& nodes = content.kept->nodes;
        for (; content.nodes < nodes.size() && nodes[content.nodes].position <= child; ++content.nodes) {
            if (content.isIndented)
                newLine(content.depth);
            m_out += nodes[content.nodes].xml;
            ++content.written;
        }
    }

    void writeChildren(Content& content)
    {
        const TypeIndex& type = *content.type;
        for (std::size_t i = 0; i < type.elementCount(); ++i) {
            const TypeIndex::FlatMember& member = type.members()[i];
            if (member.group == 0) {
                writeMember(content, i);
            } else if (i == 0 || type.members()[i - 1].group != member.group) {
                std::size_t end = i;
                while (end < type.elementCount() && type.members()[end].group == member.group)
                    ++end;
                writeGroup(content, i, end);
            }
        }
    }

    void writeMember(Content& content, std::size_t number)
    {
        const TypeIndex::FlatMember& member = content.type->members()[number];
        const std::size_t count = member.member->ops->count(*content.object);
        if (count == 0 && member.required >= 0 && !isNil(content.kept)) {
            const QualifiedName& name = m_index.name(member.name);
            throw xsd::cxx::tree::expected_element<char>(name.name, name.uri);
        }
        for (std::size_t i = 0; i < count; ++i)
            writeChild(content, number, i);
    }

    /// Writes members that may alternate: in the order of the document where that is known and still holds.
    void writeGroup(Content& content, std::size_t begin, std::size_t end)
    {
        const auto& members = content.type->members();
        std::vector<std::size_t> written(end - begin, 0);
        if (content.kept != nullptr) {
            std::vector<std::size_t> counts(end - begin, 0);
            for (const std::uint16_t number : content.kept->order) {
                if (number >= begin && number < end)
                    ++counts[number - begin];
            }
            bool holds = true;
            for (std::size_t i = begin; i < end; ++i)
                holds = holds && members[i].member->ops->count(*content.object) == counts[i - begin];
            if (holds) {
                for (const std::uint16_t number : content.kept->order) {
                    if (number >= begin && number < end)
                        writeChild(content, number, written[number - begin]++);
                }
                return;
            }
        }
        for (std::size_t i = begin; i < end; ++i)
            writeMember(content, i);
    }

    void writeChild(Content& content, std::size_t number, std::size_t index)
    {
        writeKept(content, content.children);
        ++content.children;
        ++content.written;
        if (content.isIndented)
            newLine(content.depth);
        const TypeIndex::FlatMember& member = content.type->members()[number];
        const MemberOps& ops = *member.member->ops;
        if (member.type == nullptr) {
            writeValue(content, member, static_cast<int>(number), index);
            return;
        }
        const xml_schema::type& child = ops.at(*content.object, index);
        const TypeIndex& type = m_index.typeOf(child);
        writeElement(child, type, tagOf(*content.type, static_cast<int>(number), child, type), content.depth,
                     nullptr);
    }

    void writeValue(const Content& content, const TypeIndex::FlatMember& member, int number,
                    std::size_t index)
    {
        const std::string& tag = valueTag(member);
        m_out.append(1, '<').append(tag);
        std::vector<std::string> declared;
        if (content.kept != nullptr) {
            for (const KeptContent::ValueAttribute& value : content.kept->valueAttributes) {
                if (value.member == number && value.index == index)
                    writeKeptAttribute(value.attribute, declared);
            }
        }
        m_out += '>';
        member.member->ops->format(*content.object, index, m_out);
        m_out.append("</").append(tag).append(1, '>');
    }

    static bool isNilAttribute(const KeptContent::Attribute& attribute)
    {
        return attribute.uri == xsiUri && attribute.name == "nil";
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
            if (member.type == nullptr)
                ops.format(object, 0, m_text);
            else
                member.type->record()->text->format(ops.at(object, 0), m_text, m_declared);
            if (member.defaulted >= 0 && m_text == member.member->defaultText &&
                !KeptContent::isSpelledOut(object, static_cast<unsigned>(member.defaulted)))
                continue;
            std::string& attribute = m_attributeTags[member.name];
            if (attribute.empty())
                attribute = name.uri.empty() ? name.name : m_declared.qualifierOf(name.uri) + ':' + name.name;
            addAttribute(attribute, m_text);
        }
        bool tellsType = false;
        std::vector<std::string> declared;
        if (kept != nullptr) {
            for (const KeptContent::Attribute& attribute : kept->attributes) {
                if (isNilAttribute(attribute) && type.hasText() && !isUnsetNil(object, type, kept))
                    continue;
                const bool isType = attribute.uri == xsiUri && attribute.name == "type";
                tellsType = tellsType || isType;
                writeKeptAttribute(attribute, declared);
            }
        }
        if (tag.typeToTell != nullptr && !tellsType) {
            const TypeRecord& record = *tag.typeToTell->record();
            addAttribute(m_declared.qualifierOf(xsiUri) + ":type", qualified(record.uri, record.name));
        }
    }

    /// \param declared prefixes that the element itself has declared so far.
    void writeKeptAttribute(const KeptContent::Attribute& attribute, std::vector<std::string>& declared)
    {
        if (attribute.uri.empty()) {
            addAttribute(attribute.name, attribute.value);
            return;
        }
        // The document's own prefix where the root declares it so, else a declared one, else one that means
        // nothing.
        std::string prefix = attribute.prefix;
        if (!m_declared.declares(prefix, attribute.uri))
            prefix = m_declared.qualifierOf(attribute.uri);
        if (prefix.empty()) {
            prefix = m_declared.localPrefix(attribute.prefix, attribute.uri);
            if (std::find(declared.begin(), declared.end(), prefix) == declared.end()) {
                addAttribute("xmlns:" + prefix, attribute.uri);
                declared.push_back(prefix);
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
