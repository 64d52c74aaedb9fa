#include "platform/binding/DocumentReader.h"

#include "platform/binding/KeptContent.h"
#include "platform/binding/SchemaIndex.h"
#include "platform/binding/values/TextValues.h"
#include "platform/binding/xml/XmlText.h"

#include <log4cplus/logger.h>
#include <log4cplus/loggingmacros.h>
#include <QTextCodec>

// The limits on entity expansion are declared under this name.
#ifndef XML_DTD
#define XML_DTD
#endif
#include <expat.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <exception>
#include <istream>
#include <map>

namespace citygml {
namespace binding {

namespace {

constexpr std::size_t deepestNesting = 512;
constexpr int chunkSize = 1 << 16;
// An entity may make a document larger, but not without end.
constexpr float largestExpansion = 20;
constexpr unsigned long long freeExpansion = 1 << 20;
// Prefixes are looked up one by one.
constexpr std::size_t mostDeclarations = 1000;
constexpr std::size_t longestReason = 300;

// Namespaces of CityGML are this, the module except for the core, and the version.
constexpr std::string_view cityGmlUri = "http://www.opengis.net/citygml/";
constexpr std::string_view cityGmlProfiles = "http://www.opengis.net/citygml/profiles/";
constexpr std::string_view version = "2.0";
constexpr std::string_view olderVersion = "1.0";
constexpr const char* xsiUri = "http://www.w3.org/2001/XMLSchema-instance";
constexpr const char* xmlUri = "http://www.w3.org/XML/1998/namespace";

/// A name as it stands in a document.
struct RawName
{
    explicit RawName(const char* text) : whole(text)
    {
        const std::size_t colon = whole.find(':');
        prefix = colon != std::string_view::npos ? whole.substr(0, colon) : std::string_view();
        local = colon != std::string_view::npos ? whole.substr(colon + 1) : whole;
    }

    bool isWellFormed() const
    {
        return !local.empty() && local.find(':') == std::string_view::npos &&
               prefix.empty() == (local.size() == whole.size());
    }

    std::string_view whole;
    std::string_view prefix;
    std::string_view local;
};

using Uri = std::shared_ptr<const std::string>;

/// The namespaces in scope.
class Scopes : public NameScope
{
public:
    struct Binding
    {
        std::string prefix;
        /// What the prefix means to the reader, and what the document says that it means.
        Uri uri;
        Uri declared;
        std::size_t depth;
    };

    explicit Scopes(const SchemaIndex& index) : m_index(index)
    {
        const Uri uri = std::make_shared<const std::string>(xmlUri);
        m_bindings.push_back({"xml", uri, uri, 0});
    }

    void declare(std::string_view prefix, std::string_view uri, std::size_t depth)
    {
        if (prefix == "xmlns" || (prefix == "xml") != (uri == xmlUri) || (!prefix.empty() && uri.empty()) ||
            prefix.find(':') != std::string_view::npos)
            throw ValueError{"the prefix '" + std::string(prefix) + "' cannot stand for the namespace '" +
                             std::string(uri) + '\''};
        if (m_bindings.size() > mostDeclarations)
            throw ValueError{"more than " + std::to_string(mostDeclarations) +
                             " namespace declarations are in scope"};
        const Uri declared = std::make_shared<const std::string>(uri);
        m_bindings.push_back({std::string(prefix), meaningOf(declared), declared, depth});
        ++m_epoch;
    }
    /// Ends the scopes below a depth.
    void leave(std::size_t depth)
    {
        while (m_bindings.back().depth > depth) {
            m_bindings.pop_back();
            ++m_epoch;
        }
        while (m_recorded.back().count > m_bindings.size())
            m_recorded.pop_back();
    }
    /// Reads the namespaces of CityGML 1.0 as those of 2.0, the ones in scope included.
    void readOlderVersion()
    {
        m_isOlder = true;
        for (Binding& binding : m_bindings)
            binding.uri = meaningOf(binding.declared);
        ++m_epoch;
    }
    /// Changes with every change of the scopes.
    std::uint32_t epoch() const { return m_epoch; }
    const std::vector<Binding>& bindings() const { return m_bindings; }

    /// What the document declares above a depth, to be kept.
    std::shared_ptr<const KeptContent::Scope> around(std::size_t depth)
    {
        std::size_t count = m_bindings.size();
        while (m_bindings[count - 1].depth >= depth && count > 1)
            --count;
        if (m_recorded.back().count < count) {
            auto scope = std::make_shared<KeptContent::Scope>();
            for (std::size_t i = m_recorded.back().count; i < count; ++i)
                scope->declarations.emplace_back(m_bindings[i].prefix, m_bindings[i].declared);
            scope->outer = m_recorded.back().scope;
            m_recorded.push_back({count, std::move(scope)});
        }
        return m_recorded.back().scope;
    }

    /// Null for a prefix that is not bound, and for the empty one where there is no default namespace.
    const Binding* find(std::string_view prefix) const
    {
        for (auto i = m_bindings.rbegin(); i != m_bindings.rend(); ++i) {
            if (i->prefix == prefix)
                return &*i;
        }
        return nullptr;
    }
    const Binding& require(std::string_view prefix) const
    {
        const Binding* binding = find(prefix);
        if (binding == nullptr)
            throw ValueError{"the prefix '" + std::string(prefix) + "' is not bound to a namespace"};
        return *binding;
    }

    std::string namespaceOf(std::string_view prefix) const override
    {
        if (prefix.empty() && find(prefix) == nullptr)
            return std::string();
        return *require(prefix).uri;
    }
    std::string prefixOf(const std::string& uri) const override
    {
        for (auto i = m_bindings.rbegin(); i != m_bindings.rend(); ++i) {
            if (*i->uri == uri && find(i->prefix) == &*i)
                return i->prefix;
        }
        return std::string();
    }

    /// The namespace of this version in place of one of the older version, else the same.
    Uri newer(const Uri& uri) const
    {
        const std::string_view text = *uri;
        if (text.substr(0, cityGmlUri.size()) != cityGmlUri || text.size() < olderVersion.size() ||
            text.substr(text.size() - olderVersion.size()) != olderVersion)
            return uri;
        const std::string result =
            std::string(text.substr(0, text.size() - olderVersion.size())).append(version);
        const auto& known = m_index.namespaces();
        const bool isKnown = std::find(known.begin(), known.end(), result) != known.end() ||
                             text.substr(0, cityGmlProfiles.size()) == cityGmlProfiles;
        return isKnown ? std::make_shared<const std::string>(result) : uri;
    }

private:
    /// The scope that the first so many bindings make.
    struct Recorded
    {
        std::size_t count;
        std::shared_ptr<const KeptContent::Scope> scope;
    };

    Uri meaningOf(const Uri& declared) const { return m_isOlder ? newer(declared) : declared; }

    const SchemaIndex& m_index;
    std::vector<Binding> m_bindings;
    std::vector<Recorded> m_recorded{{1, nullptr}};
    bool m_isOlder = false;
    std::uint32_t m_epoch = 1;
};

/// Numbers of the names met last, so that a name is resolved once for each change of the scopes.
class NameCache
{
public:
    template <typename Resolve>
    NameId find(const char* raw, std::uint32_t epoch, Resolve resolve)
    {
        std::uint32_t hash = 2166136261u;
        const char* end = raw;
        for (; *end != 0; ++end)
            hash = (hash ^ static_cast<unsigned char>(*end)) * 16777619u;
        Entry& entry = m_entries[(hash ^ hash >> 15) % m_entries.size()];
        const std::string_view name(raw, static_cast<std::size_t>(end - raw));
        if (entry.epoch != epoch || entry.raw != name) {
            const RawName parts(raw);
            if (!parts.isWellFormed())
                throw ValueError{"'" + std::string(name) + "' is not a qualified name"};
            entry.id = resolve(parts);
            entry.raw = name;
            entry.epoch = epoch;
        }
        return entry.id;
    }

private:
    struct Entry
    {
        std::string raw;
        NameId id = 0;
        std::uint32_t epoch = 0;
    };
    std::array<Entry, 1024> m_entries;
};

class Reader
{
public:
    explicit Reader(std::istream& stream)
        : m_stream(stream), m_index(SchemaIndex::instance()), m_scopes(m_index)
    {
    }

    std::unique_ptr<core::CityModelType> read()
    {
        const std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> parser(XML_ParserCreate(nullptr),
                                                                             &XML_ParserFree);
        m_parser = parser.get();
        if (m_parser == nullptr)
            throw std::bad_alloc();
        XML_SetUserData(m_parser, this);
        XML_SetElementHandler(m_parser, &onStart, &onEnd);
        XML_SetCharacterDataHandler(m_parser, &onText);
        XML_SetCommentHandler(m_parser, &onComment);
        XML_SetProcessingInstructionHandler(m_parser, &onInstruction);
        XML_SetStartDoctypeDeclHandler(m_parser, &onDoctype);
        XML_SetEntityDeclHandler(m_parser, &onEntity);
        XML_SetAttlistDeclHandler(m_parser, &onAttribute);
        XML_SetExternalEntityRefHandler(m_parser, &onExternalEntity);
        XML_SetSkippedEntityHandler(m_parser, &onSkippedEntity);
        XML_SetUnknownEncodingHandler(m_parser, &onEncoding, nullptr);
        XML_SetBillionLaughsAttackProtectionMaximumAmplification(m_parser, largestExpansion);
        XML_SetBillionLaughsAttackProtectionActivationThreshold(m_parser, freeExpansion);

        bool atEnd = false;
        while (!atEnd) {
            void* buffer = XML_GetBuffer(m_parser, chunkSize);
            if (buffer == nullptr)
                throw std::bad_alloc();
            m_stream.read(static_cast<char*>(buffer), chunkSize);
            atEnd = !m_stream;
            if (m_stream.bad())
                raise("the input cannot be read");
            const XML_Status status = XML_ParseBuffer(m_parser, static_cast<int>(m_stream.gcount()), atEnd);
            if (m_failure)
                std::rethrow_exception(m_failure);
            if (status != XML_STATUS_OK)
                raise(XML_ErrorString(XML_GetErrorCode(m_parser)));
        }
        logKeptContent();
        if (m_isOlder)
            LOG4CPLUS_WARN(m_logger, "the document is of CityGML 1.0; it is read as CityGML 2.0, and a save "
                                     "writes CityGML 2.0");
        return std::move(m_root);
    }

private:
    enum class Mode : std::uint8_t { Children, Text, Value };

    struct Frame
    {
        Mode mode;
        bool isNil;
        /// Whether the owner keeps something about a value.
        bool isKept;
        /// The element's object, or for a value of fundamental type the object that has it.
        xml_schema::type* object;
        const TypeIndex* type;
        NameId name;
        /// The member of the owner, for a value; else the place of the last child's member.
        int member;
        /// Number of children in a row with that place.
        std::uint32_t children;
        /// Required members that were met, one bit each.
        std::uint64_t met;
        std::size_t orderBegin;
    };

    // The parser is C: what a handler throws is kept, the parser stopped, and the exception thrown on from
    // read().
    template <typename Work>
    static void guarded(void* self, Work work)
    {
        Reader& reader = *static_cast<Reader*>(self);
        if (reader.m_failure)
            return;
        try {
            work(reader);
        } catch (const ValueError& error) {
            reader.capture([&] { reader.raise(error.message); });
        } catch (...) {
            reader.m_failure = std::current_exception();
            XML_StopParser(reader.m_parser, XML_FALSE);
        }
    }
    template <typename Work>
    void capture(Work work)
    {
        try {
            work();
        } catch (...) {
            m_failure = std::current_exception();
            XML_StopParser(m_parser, XML_FALSE);
        }
    }

    static void XMLCALL onStart(void* self, const XML_Char* name, const XML_Char** attributes)
    {
        guarded(self, [&](Reader& r) { r.startElement(name, attributes); });
    }
    static void XMLCALL onEnd(void* self, const XML_Char* name)
    {
        guarded(self, [&](Reader& r) { r.endElement(name); });
    }
    static void XMLCALL onText(void* self, const XML_Char* text, int length)
    {
        guarded(self,
                [&](Reader& r) { r.addText(std::string_view(text, static_cast<std::size_t>(length))); });
    }
    static void XMLCALL onComment(void* self, const XML_Char* text)
    {
        guarded(self, [&](Reader& r) {
            r.addMarkup(KeptContent::Kind::Comment, "comment", "<!--" + std::string(text) + "-->");
        });
    }
    static void XMLCALL onInstruction(void* self, const XML_Char* target, const XML_Char* data)
    {
        guarded(self, [&](Reader& r) {
            const std::string text = *data != 0 ? std::string(target) + ' ' + data : std::string(target);
            r.addMarkup(KeptContent::Kind::Instruction, "processing instruction", "<?" + text + "?>");
        });
    }
    static void XMLCALL onDoctype(void* self, const XML_Char*, const XML_Char* system,
                                  const XML_Char* publicId, int)
    {
        guarded(self, [&](Reader& r) {
            if (system != nullptr || publicId != nullptr)
                r.raise("an external document type definition is not opened");
        });
    }
    static void XMLCALL onEntity(void* self, const XML_Char* name, int, const XML_Char*, int, const XML_Char*,
                                 const XML_Char* system, const XML_Char* publicId, const XML_Char*)
    {
        guarded(self, [&](Reader& r) {
            if (system != nullptr || publicId != nullptr)
                r.raise("the external entity '" + std::string(name) + "' is not opened");
        });
    }
    static void XMLCALL onAttribute(void* self, const XML_Char*, const XML_Char*, const XML_Char*,
                                    const XML_Char* value, int)
    {
        static_cast<Reader*>(self)->m_hasDefaults |= value != nullptr;
    }
    static int XMLCALL onExternalEntity(XML_Parser parser, const XML_Char*, const XML_Char*, const XML_Char*,
                                        const XML_Char*)
    {
        guarded(XML_GetUserData(parser), [](Reader& r) { r.raise("an external entity is not opened"); });
        return XML_STATUS_ERROR;
    }
    static void XMLCALL onSkippedEntity(void* self, const XML_Char* name, int)
    {
        guarded(self, [&](Reader& r) { r.raise("the entity '" + std::string(name) + "' is not declared"); });
    }
    // The parser itself knows UTF-8, UTF-16, ISO-8859-1 and US-ASCII; other encodings of one byte come from
    // Qt.
    static int XMLCALL onEncoding(void*, const XML_Char* name, XML_Encoding* encoding)
    {
        QTextCodec* codec = QTextCodec::codecForName(name);
        if (codec == nullptr)
            return XML_STATUS_ERROR;
        for (int i = 0; i < 256; ++i) {
            const char byte = static_cast<char>(i);
            QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
            const QString text = codec->toUnicode(&byte, 1, &state);
            const bool isCharacter = text.size() == 1 && state.invalidChars == 0 && state.remainingChars == 0;
            encoding->map[i] = isCharacter ? text.at(0).unicode() : -1;
            // In an encoding of several bytes some bytes are no character of their own.
            if (state.remainingChars != 0)
                return XML_STATUS_ERROR;
        }
        encoding->data = nullptr;
        encoding->convert = nullptr;
        encoding->release = nullptr;
        return XML_STATUS_OK;
    }

    [[noreturn]] void raise(const std::string& reason) const
    {
        std::string message = shortened(reason, longestReason);
        if (!m_frames.empty())
            message += ", in " + path();
        xsd::cxx::tree::diagnostics<char> diagnostics;
        diagnostics.push_back(xsd::cxx::tree::error<char>(xsd::cxx::tree::severity::error, "document",
                                                          XML_GetCurrentLineNumber(m_parser),
                                                          XML_GetCurrentColumnNumber(m_parser) + 1, message));
        throw xsd::cxx::tree::parsing<char>(diagnostics);
    }

    /// \param longest in bytes; no character is cut.
    static std::string shortened(const std::string& text, std::size_t longest)
    {
        if (text.size() <= longest)
            return text;
        std::size_t end = longest;
        while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0u) == 0x80u)
            --end;
        return text.substr(0, end) + "...";
    }

    std::string nameOf(NameId id) const
    {
        const QualifiedName& name = m_index.name(id);
        const std::string prefix = m_scopes.prefixOf(name.uri);
        return prefix.empty() ? name.name : prefix + ':' + name.name;
    }

    /// The open elements; of a long path its two ends.
    std::string path() const
    {
        constexpr std::size_t shown = 8;
        constexpr std::size_t longestName = 60;
        std::string text;
        for (std::size_t i = 0; i < m_frames.size(); ++i) {
            if (i >= shown && i + shown < m_frames.size()) {
                text += "/...";
                i = m_frames.size() - shown - 1;
            } else {
                text += '/' + shortened(nameOf(m_frames[i].name), longestName);
            }
        }
        if (m_rawDepth != 0)
            text += "/...";
        return text;
    }

    NameId elementId(const char* raw)
    {
        return m_elementNames.find(raw, m_scopes.epoch(), [this](const RawName& name) {
            return m_index.nameId(m_scopes.namespaceOf(name.prefix), name.local);
        });
    }
    NameId attributeId(const char* raw)
    {
        return m_attributeNames.find(raw, m_scopes.epoch(), [this](const RawName& name) {
            const std::string uri = name.prefix.empty() ? std::string() : m_scopes.namespaceOf(name.prefix);
            return m_index.nameId(uri, name.local);
        });
    }
    /// Namespace of an attribute as the document declares it.
    Uri uriOf(const RawName& attribute) const
    {
        return attribute.prefix.empty() ? nullptr : m_scopes.require(attribute.prefix).declared;
    }
    bool isXsi(const RawName& attribute, std::string_view name) const
    {
        return attribute.local == name && !attribute.prefix.empty() &&
               *m_scopes.require(attribute.prefix).uri == xsiUri;
    }

    static bool isDeclaration(const char* attribute)
    {
        return std::strncmp(attribute, "xmlns", 5) == 0 && (attribute[5] == 0 || attribute[5] == ':');
    }

    static std::string_view declaredPrefix(const char* declaration)
    {
        const std::string_view name(declaration);
        // A colon that nothing follows declares no prefix; as one it is refused.
        return name.size() == 5 ? std::string_view() : name.size() == 6 ? ":" : name.substr(6);
    }

    /// The parser compares names as they are written; with two prefixes they may still be the same.
    void checkDistinct(const char** attributes) const
    {
        std::string_view prefix;
        bool isMixed = false;
        for (const char** a = attributes; *a != nullptr; a += 2) {
            const char* colon = std::strchr(*a, ':');
            if (colon == nullptr || isDeclaration(*a))
                continue;
            const std::string_view other(*a, static_cast<std::size_t>(colon - *a));
            isMixed = isMixed || (!prefix.empty() && other != prefix);
            prefix = other;
        }
        if (!isMixed)
            return;
        std::vector<std::pair<std::string_view, std::string_view>> meant;
        for (const char** a = attributes; *a != nullptr; a += 2) {
            const RawName name(*a);
            if (!name.prefix.empty() && !isDeclaration(*a))
                meant.emplace_back(*m_scopes.require(name.prefix).uri, name.local);
        }
        std::sort(meant.begin(), meant.end());
        const auto twice = std::adjacent_find(meant.begin(), meant.end());
        if (twice != meant.end())
            raise("the attribute '" + std::string(twice->second) + "' stands twice in an element");
    }

    /// Values that a document type gives to attributes must not blow the document up either.
    void limitDefaults(const char** attributes)
    {
        for (const char** a = attributes + XML_GetSpecifiedAttributeCount(m_parser); *a != nullptr; a += 2)
            m_defaults += std::strlen(*a) + std::strlen(a[1]);
        const auto read = static_cast<float>(XML_GetCurrentByteIndex(m_parser));
        if (m_defaults > freeExpansion && static_cast<float>(m_defaults) > largestExpansion * read)
            raise("the document type gives too many values to attributes");
    }

    void startElement(const char* name, const char** attributes)
    {
        if (m_frames.size() + m_rawDepth >= deepestNesting)
            raise("elements are nested deeper than " + std::to_string(deepestNesting));
        const std::size_t depth = m_frames.size() + m_rawDepth + 1;
        for (const char** a = attributes; *a != nullptr; a += 2) {
            if (isDeclaration(*a))
                m_scopes.declare(declaredPrefix(*a), a[1], depth);
        }
        if (attributes[0] != nullptr && attributes[2] != nullptr)
            checkDistinct(attributes);
        if (m_hasDefaults)
            limitDefaults(attributes);
        if (m_rawDepth != 0) {
            startRaw(name, attributes);
            return;
        }
        const NameId id = elementId(name);
        if (m_frames.empty()) {
            startRoot(name, id, attributes);
            return;
        }
        Frame& parent = m_frames.back();
        if (parent.mode == Mode::Children) {
            flushText(parent);
            const Place& place = m_index.place(*parent.type, id);
            if (place.member >= 0 && startChild(parent, place, id, attributes))
                return;
            // One too many of a member must not come in front of the others.
            m_rawPlace =
                place.member >= 0 ? parent.type->members()[static_cast<std::size_t>(place.member)].place : -1;
        }
        count("element", name);
        startRaw(name, attributes);
    }

    void startRoot(const char* name, NameId id, const char** attributes)
    {
        const RawName raw(name);
        const std::string uri = m_scopes.namespaceOf(raw.prefix);
        const std::string stem(cityGmlUri);
        const bool isCityGml = raw.local == "CityModel" && uri.compare(0, stem.size(), stem) == 0;
        m_isOlder = isCityGml && uri == stem + std::string(olderVersion);
        if (m_isOlder) {
            m_scopes.readOlderVersion();
            id = elementId(name);
        } else if (isCityGml && uri != stem + std::string(version)) {
            raise("the document is of CityGML " + uri.substr(stem.size()) +
                  "; versions 1.0 and 2.0 are read");
        } else if (!isCityGml) {
            raise("the root element is '" + std::string(name) + "', not the CityModel of CityGML 2.0");
        }
        m_root = std::make_unique<core::CityModelType>();
        m_document = std::make_shared<KeptContent::Document>();
        KeptContent::of(*m_root).document = m_document;
        m_document->prologue.swap(m_outside);
        for (const Scopes::Binding& binding : m_scopes.bindings()) {
            if (binding.depth == 1)
                m_document->namespaces.emplace_back(binding.prefix, *binding.uri);
        }
        if (!m_isOlder)
            m_document->scope = m_scopes.around(2);
        KeptContent::setElementName(*m_root, id);
        pushObject(*m_root, m_index.typeOf(*m_root), id, attributes);
    }

    /// \return false where the member cannot take the element.
    bool startChild(Frame& parent, const Place& place, NameId id, const char** attributes)
    {
        const TypeIndex::FlatMember& member = parent.type->members()[static_cast<std::size_t>(place.member)];
        const MemberOps& ops = *member.member->ops;
        if (ops.single && member.member->defaultText == nullptr &&
            (ops.count(*parent.object) != 0 ||
             (place.type == nullptr && hasNilValue(*parent.object, place.member))))
            return false;
        const TypeIndex* type = place.type;
        bool isAbstract = place.isAbstract;
        for (const char** a = attributes; *a != nullptr; a += 2) {
            const char* colon = std::strchr(*a, ':');
            if (colon != nullptr && std::strcmp(colon + 1, "type") == 0 && isXsi(RawName(*a), "type") &&
                type != nullptr)
                isAbstract = !selectType(a[1], type);
        }
        if (isAbstract)
            raise("the element '" + nameOf(id) + "' is abstract");
        if (member.required >= 0)
            parent.met |= std::uint64_t(1) << member.required;
        if (member.group != 0)
            m_order.push_back(static_cast<std::uint16_t>(place.member));
        if (parent.member == member.place) {
            ++parent.children;
        } else {
            // Children that come late are counted without those that are nil; what is kept behind them may
            // move among them.
            const bool isLate = member.place < parent.member;
            parent.children = !isLate ? 1u
                              : member.group != 0
                                  ? static_cast<std::uint32_t>(m_order.size() - parent.orderBegin)
                                  : static_cast<std::uint32_t>(ops.count(*parent.object) + 1);
            parent.member = member.place;
        }

        if (type == nullptr) {
            m_text.clear();
            m_frames.push_back(
                {Mode::Value, false, false, parent.object, nullptr, id, place.member, 0, 0, m_order.size()});
            readValueAttributes(m_frames.back(), attributes);
            return true;
        }
        std::unique_ptr<xml_schema::type> created(type->record()->create());
        xml_schema::type& object = *created;
        KeptContent::setElementName(object, id);
        ops.add(*parent.object, created.release());
        pushObject(object, *type, id, attributes);
        return true;
    }

    static bool hasNilValue(const xml_schema::type& owner, int member)
    {
        const KeptContent* kept = KeptContent::find(owner);
        return kept != nullptr && std::any_of(kept->values.begin(), kept->values.end(),
                                              [member](const KeptContent::Value& value) {
                                                  return value.isNil && value.member == member;
                                              });
    }

    /// Replaces a type by the one that `xsi:type` names; false where that one is abstract.
    bool selectType(const char* text, const TypeIndex*& type) const
    {
        const std::string value = collapsed(text);
        const RawName name(value.c_str());
        const TypeIndex* named = m_index.findType(m_scopes.namespaceOf(name.prefix), name.local);
        if (named == nullptr)
            return !type->record()->isAbstract;
        if (!named->isDerivedFrom(type))
            raise("the type '" + value + "' cannot stand for '" + type->record()->name + "'");
        type = named;
        return !named->record()->isAbstract;
    }

    void pushObject(xml_schema::type& object, const TypeIndex& type, NameId id, const char** attributes)
    {
        m_text.clear();
        m_frames.push_back({type.hasText() ? Mode::Text : Mode::Children, false, false, &object, &type, id,
                            -1, 0, 0, m_order.size()});
        for (const char** a = attributes; *a != nullptr; a += 2) {
            if (!isDeclaration(*a))
                readAttribute(m_frames.back(), a[0], a[1]);
        }
    }

    void readAttribute(Frame& frame, const char* name, const char* value)
    {
        const NameId id = attributeId(name);
        const TypeIndex::FlatMember* member = id != 0 ? frame.type->attribute(id) : nullptr;
        if (member == nullptr) {
            keepAttribute(frame, name, value);
            return;
        }
        if (member->required >= 0)
            frame.met |= std::uint64_t(1) << member->required;
        if (member->defaulted >= 0)
            KeptContent::setSpelledOut(*frame.object, static_cast<unsigned>(member->defaulted));
        try {
            setAttribute(*frame.object, *member, value);
        } catch (const ValueError& error) {
            raise(error.message + ", in the attribute '" + name + "'");
        }
    }

    void setAttribute(xml_schema::type& owner, const TypeIndex::FlatMember& member, const char* value)
    {
        const MemberOps& ops = *member.member->ops;
        if (member.type == nullptr) {
            ops.addText(owner, value);
            if (isOtherSpelling(owner, member, 0, value))
                keepAttributeText(owner, member, value);
            return;
        }
        std::unique_ptr<xml_schema::type> created(member.type->record()->create());
        xml_schema::type& object = *created;
        if (auto* identifier = dynamic_cast<xml_schema::id*>(&object)) {
            // It enters the root's identifiers when it gets its text. One that was refused must not leave
            // them when it dies, since the entry is another's.
            ops.add(owner, created.release());
            try {
                *identifier = collapsed(value);
            } catch (...) {
                static_cast<std::string&>(*identifier).clear();
                throw;
            }
            return;
        }
        member.type->record()->text->parse(object, value, m_scopes);
        checkLiteral(object, *member.type);
        if (member.type->hasSpellings() && isOtherSpelling(object, *member.type, value))
            keepAttributeText(owner, member, value);
        ops.add(owner, created.release());
    }

    /// Whether a value will be written with another text than that of the document, as `true` for `1`.
    /// Numbers may be.
    bool isOtherSpelling(const xml_schema::type& object, const TypeIndex& type, std::string_view text) const
    {
        std::string written;
        type.record()->text->format(object, written, m_scopes);
        return trimmed(text) != written;
    }
    /// The same for a value of a fundamental type.
    static bool isOtherSpelling(const xml_schema::type& owner, const TypeIndex::FlatMember& member,
                                std::size_t index, std::string_view text)
    {
        const std::string_view digit = trimmed(text);
        if (digit != "0" && digit != "1")
            return false;
        std::string written;
        member.member->ops->format(owner, index, written);
        return written == "true" || written == "false";
    }

    void keepAttributeText(xml_schema::type& owner, const TypeIndex::FlatMember& member,
                           std::string_view text)
    {
        count("spelling of", nameOf(member.name).c_str());
        KeptContent::Value value;
        value.member = static_cast<std::uint16_t>(member.place);
        value.text = trimmed(text);
        KeptContent::of(owner).values.push_back(std::move(value));
    }

    void keepAttribute(Frame& frame, const char* name, const char* value)
    {
        const RawName raw(name);
        if (isXsi(raw, "nil"))
            frame.isNil = isTrue(value);
        if (isXsi(raw, "schemaLocation") && frame.object == m_root.get() && readSchemaLocation(value))
            return;
        count("attribute", name);
        KeptContent::of(*frame.object).attributes.push_back(attributeOf(raw, value));
    }

    KeptContent::Attribute attributeOf(const RawName& name, const char* value) const
    {
        return {std::string(name.prefix), uriOf(name), std::string(name.local), value};
    }

    static bool isTrue(const char* value)
    {
        const std::string_view text = trimmed(value);
        return text == "true" || text == "1";
    }

    /// What is kept about the value of a frame.
    KeptContent::Value& keptValue(Frame& frame)
    {
        auto& values = KeptContent::of(*frame.object).values;
        if (!frame.isKept) {
            frame.isKept = true;
            const auto index = static_cast<std::uint32_t>(memberOf(frame).member->ops->count(*frame.object));
            values.emplace_back();
            values.back().member = static_cast<std::uint16_t>(frame.member);
            values.back().index = index;
        }
        return values.back();
    }

    const TypeIndex::FlatMember& memberOf(const Frame& value) const
    {
        return m_index.typeOf(*value.object).members()[static_cast<std::size_t>(value.member)];
    }

    /// Keeps the attributes of an element that is a plain value.
    void readValueAttributes(Frame& frame, const char** attributes)
    {
        for (const char** a = attributes; *a != nullptr; a += 2) {
            if (isDeclaration(*a))
                continue;
            attributeId(*a);
            const RawName raw(*a);
            frame.isNil = frame.isNil || (isXsi(raw, "nil") && isTrue(a[1]));
            count("attribute", *a);
            keptValue(frame).attributes.push_back(attributeOf(raw, a[1]));
        }
    }

    /// \return false where the text is not made of pairs, so that nothing can be joined to it.
    bool readSchemaLocation(std::string_view text)
    {
        std::vector<std::pair<std::string, std::string>> locations;
        std::string_view uri, location;
        while (nextWord(text, uri)) {
            if (!nextWord(text, location))
                return false;
            const Uri declared = std::make_shared<const std::string>(uri);
            if (!m_isOlder || m_scopes.newer(declared) == declared)
                locations.emplace_back(uri, location);
        }
        m_document->hasSchemaLocation = true;
        m_document->schemaLocations.swap(locations);
        return true;
    }

    void checkLiteral(const xml_schema::type& object, const TypeIndex& type) const
    {
        const TypeRecord& record = *type.record();
        if (record.literals == nullptr)
            return;
        std::string text;
        record.text->format(object, text, m_scopes);
        // What an edit to something that is no literal leaves.
        if (text.empty())
            return;
        for (std::size_t i = 0; i < record.literalCount; ++i) {
            if (text == record.literals[i])
                return;
        }
        throw ValueError{"'" + text + "' is not a value of " + record.name};
    }

    void endElement(const char* name)
    {
        if (m_rawDepth != 0) {
            endRaw(name);
            m_scopes.leave(m_frames.size() + m_rawDepth);
            return;
        }
        Frame& frame = m_frames.back();
        switch (frame.mode) {
        case Mode::Value:
            endValue(frame);
            break;
        case Mode::Text:
            if (!frame.isNil || !isBlank(m_text)) {
                frame.type->record()->text->parse(*frame.object, m_text, m_scopes);
                checkLiteral(*frame.object, *frame.type);
                if (frame.type->hasSpellings() && isOtherSpelling(*frame.object, *frame.type, m_text)) {
                    count("spelling of", nameOf(frame.name).c_str());
                    KeptContent::Value value;
                    value.text = trimmed(m_text);
                    KeptContent::of(*frame.object).values.push_back(std::move(value));
                }
            }
            checkRequired(frame);
            sortKeptContent(frame);
            break;
        case Mode::Children:
            flushText(frame);
            checkRequired(frame);
            sortKeptContent(frame);
            endChildren(frame);
            break;
        }
        m_text.clear();
        m_order.resize(frame.orderBegin);
        m_frames.pop_back();
        m_scopes.leave(m_frames.size());
        if (m_frames.empty())
            endRoot();
    }

    void endValue(Frame& frame)
    {
        if (frame.isNil && isBlank(m_text)) {
            // A value that is not there has no place in the member; the element itself comes back.
            keptValue(frame).isNil = true;
            return;
        }
        const TypeIndex::FlatMember& member = memberOf(frame);
        const MemberOps& ops = *member.member->ops;
        ops.addText(*frame.object, m_text);
        if (isOtherSpelling(*frame.object, member, ops.count(*frame.object) - 1, m_text)) {
            // The value has just entered the member, and so no longer counts as one in front.
            KeptContent::Value& value = keptValue(frame);
            value.index = static_cast<std::uint32_t>(ops.count(*frame.object) - 1);
            value.text = trimmed(m_text);
            count("spelling of", nameOf(frame.name).c_str());
        }
    }

    /// Brings what is kept with an object into the order in which it is written.
    void sortKeptContent(const Frame& frame) const
    {
        if (KeptContent::find(*frame.object) == nullptr)
            return;
        KeptContent& kept = KeptContent::of(*frame.object);
        const auto isBefore = [](const auto& a, const auto& b) {
            return a.member != b.member ? a.member < b.member : a.index < b.index;
        };
        if (!std::is_sorted(kept.values.begin(), kept.values.end(), isBefore))
            std::stable_sort(kept.values.begin(), kept.values.end(), isBefore);
        if (!std::is_sorted(kept.nodes.begin(), kept.nodes.end(), isBefore))
            std::stable_sort(kept.nodes.begin(), kept.nodes.end(), isBefore);
    }

    void checkRequired(const Frame& frame) const
    {
        const int required = frame.type->requiredCount();
        if (required == 0 || frame.isNil)
            return;
        for (const TypeIndex::FlatMember& member : frame.type->members()) {
            if (member.required >= 0 && (frame.met >> member.required & 1u) == 0)
                raise(std::string("the required ") + (member.member->isAttribute ? "attribute" : "element") +
                      " '" + nameOf(member.name) + "' is missing");
        }
    }

    void endChildren(const Frame& frame)
    {
        bool alternates = false;
        for (std::size_t i = frame.orderBegin + 1; i < m_order.size(); ++i)
            alternates = alternates || m_order[i] < m_order[i - 1];
        if (alternates)
            KeptContent::of(*frame.object)
                .order.assign(m_order.begin() + static_cast<std::ptrdiff_t>(frame.orderBegin), m_order.end());
        if (!frame.type->isMixed() || KeptContent::find(*frame.object) == nullptr)
            return;
        // White space between the elements of mixed content counts only beside text.
        auto& nodes = KeptContent::of(*frame.object).nodes;
        const auto isWhiteSpace = [](const KeptContent::Node& node) {
            return node.kind == KeptContent::Kind::Text && isBlank(node.xml);
        };
        const auto isText = [](const KeptContent::Node& node) {
            return node.kind == KeptContent::Kind::Text && !isBlank(node.xml);
        };
        if (std::none_of(nodes.begin(), nodes.end(), isText))
            nodes.erase(std::remove_if(nodes.begin(), nodes.end(), isWhiteSpace), nodes.end());
    }

    void endRoot() { m_rootEnded = true; }

    void addText(std::string_view text)
    {
        if (m_rawDepth != 0)
            appendEscaped(text, m_raw);
        else
            m_text += text;
    }

    /// Keeps the text in front of a child or an end tag.
    void flushText(Frame& frame)
    {
        if (m_text.empty())
            return;
        if (!isBlank(m_text) || frame.type->isMixed()) {
            std::string xml;
            appendEscaped(m_text, xml);
            if (!isBlank(m_text))
                count("text in", nameOf(frame.name).c_str());
            keep(frame, KeptContent::Kind::Text, std::move(xml));
        }
        m_text.clear();
    }

    /// Keeps a piece of content where it stands: behind the last child, or behind the text so far.
    void keep(Frame& frame, KeptContent::Kind kind, std::string xml,
              std::shared_ptr<const KeptContent::Scope> scope = nullptr)
    {
        const bool hasText = frame.mode != Mode::Children;
        auto index = hasText ? static_cast<std::uint32_t>(m_text.size()) : frame.children;
        auto member = static_cast<std::uint16_t>(hasText || frame.member < 0 ? 0 : frame.member);
        if (kind == KeptContent::Kind::Element && !hasText && member < m_rawPlace) {
            member = static_cast<std::uint16_t>(m_rawPlace);
            index = ~0u;
        }
        auto& nodes =
            frame.mode == Mode::Value ? keptValue(frame).nodes : KeptContent::of(*frame.object).nodes;
        nodes.push_back({kind, member, index, std::move(xml), std::move(scope)});
    }

    void addMarkup(KeptContent::Kind kind, const char* what, std::string xml)
    {
        if (m_rawDepth != 0) {
            m_raw += xml;
            return;
        }
        if (m_frames.empty()) {
            (m_rootEnded ? m_document->epilogue : m_outside).push_back(std::move(xml));
            return;
        }
        Frame& frame = m_frames.back();
        if (frame.mode != Mode::Children)
            return;
        count(what, "");
        flushText(frame);
        keep(frame, kind, std::move(xml));
    }

    void startRaw(const char* name, const char** attributes)
    {
        // Only to see that the names are sound.
        elementId(name);
        if (m_rawDepth == 0)
            m_rawScope = m_scopes.around(m_frames.size() + 1);
        m_raw.append(1, '<').append(name);
        for (const char** a = attributes; *a != nullptr; a += 2) {
            if (!isDeclaration(*a))
                attributeId(*a);
            m_raw.append(1, ' ').append(*a).append("=\"");
            appendEscapedAttribute(a[1], m_raw);
            m_raw += '"';
        }
        m_raw += '>';
        ++m_rawDepth;
    }

    void endRaw(const char* name)
    {
        m_raw.append("</").append(name).append(1, '>');
        if (--m_rawDepth != 0)
            return;
        keep(m_frames.back(), KeptContent::Kind::Element, std::move(m_raw), std::move(m_rawScope));
        m_raw.clear();
    }

    void count(const char* what, const char* name)
    {
        if (m_countsKept)
            ++m_kept[std::string(what) + (*name != 0 ? " " : "") + name];
    }

    void logKeptContent() const
    {
        for (const auto& kind : m_kept)
            LOG4CPLUS_DEBUG(m_logger, "kept as it stands: " << kind.first << " (" << kind.second << ")");
    }

    std::istream& m_stream;
    const SchemaIndex& m_index;
    XML_Parser m_parser = nullptr;
    std::exception_ptr m_failure;

    std::unique_ptr<core::CityModelType> m_root;
    std::shared_ptr<KeptContent::Document> m_document;
    std::vector<Frame> m_frames;
    Scopes m_scopes;
    NameCache m_elementNames;
    NameCache m_attributeNames;
    std::string m_text;
    // Numbers of the members of the open elements' children that may alternate.
    std::vector<std::uint16_t> m_order;
    // Markup of an element without a place, and the number of its open elements.
    std::string m_raw;
    std::size_t m_rawDepth = 0;
    std::shared_ptr<const KeptContent::Scope> m_rawScope;
    // Place of the member that had no room for it, or -1.
    int m_rawPlace = -1;
    // Markup in front of the root.
    std::vector<std::string> m_outside;
    bool m_rootEnded = false;
    // Whether the document is of CityGML 1.0.
    bool m_isOlder = false;
    // Whether a document type gives values to attributes, and how many bytes of these so far.
    bool m_hasDefaults = false;
    unsigned long long m_defaults = 0;

    log4cplus::Logger m_logger =
        log4cplus::Logger::getInstance(LOG4CPLUS_TEXT("tolvik.citygml.DocumentReader"));
    const bool m_countsKept = m_logger.isEnabledFor(log4cplus::DEBUG_LOG_LEVEL);
    std::map<std::string, std::size_t> m_kept;
};

} // namespace

std::unique_ptr<core::CityModelType> readDocument(std::istream& stream)
{
    return Reader(stream).read();
}

} // namespace binding
} // namespace citygml
