#include "platform/binding/DocumentReader.h"

#include "platform/binding/KeptContent.h"
#include "platform/binding/SchemaIndex.h"
#include "platform/binding/TextValues.h"
#include "platform/binding/XmlText.h"

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

constexpr const char* coreUri = "http://www.opengis.net/citygml/2.0";
constexpr const char* olderCoreUri = "http://www.opengis.net/citygml/1.0";
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

    std::string_view whole;
    std::string_view prefix;
    std::string_view local;
};

/// The namespaces in scope.
class Scopes : public NameScope
{
public:
    struct Binding
    {
        std::string prefix;
        std::string uri;
        std::size_t depth;
    };

    Scopes() { m_bindings.push_back({"xml", xmlUri, 0}); }

    void declare(std::string_view prefix, std::string_view uri, std::size_t depth)
    {
        m_bindings.push_back({std::string(prefix), std::string(uri), depth});
        ++m_epoch;
    }
    /// Ends the scopes below a depth.
    void leave(std::size_t depth)
    {
        while (m_bindings.back().depth > depth) {
            m_bindings.pop_back();
            ++m_epoch;
        }
    }
    /// Changes with every change of the scopes.
    std::uint32_t epoch() const { return m_epoch; }
    const std::vector<Binding>& bindings() const { return m_bindings; }

    /// Null for a prefix that is not bound; the empty prefix is always bound.
    const std::string* find(std::string_view prefix) const
    {
        for (auto i = m_bindings.rbegin(); i != m_bindings.rend(); ++i) {
            if (i->prefix == prefix)
                return &i->uri;
        }
        return prefix.empty() ? &m_none : nullptr;
    }

    std::string namespaceOf(std::string_view prefix) const override
    {
        const std::string* uri = find(prefix);
        if (uri == nullptr)
            throw ValueError{"the prefix '" + std::string(prefix) + "' is not bound to a namespace"};
        return *uri;
    }
    std::string prefixOf(const std::string& uri) const override
    {
        for (auto i = m_bindings.rbegin(); i != m_bindings.rend(); ++i) {
            if (i->uri == uri)
                return i->prefix;
        }
        return std::string();
    }

private:
    std::vector<Binding> m_bindings;
    std::string m_none;
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
            entry.id = resolve(RawName(raw));
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
    explicit Reader(std::istream& stream) : m_stream(stream), m_index(SchemaIndex::instance()) {}

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
        return std::move(m_root);
    }

private:
    enum class Mode : std::uint8_t { Children, Text, Value };

    struct Frame
    {
        Mode mode;
        bool isNil;
        /// The element's object, or for a value of fundamental type the object that has it.
        xml_schema::type* object;
        const TypeIndex* type;
        NameId name;
        /// The member of the owner, for a value.
        int member;
        /// Number of child elements that have a member.
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
        std::string message = reason;
        if (!m_frames.empty())
            message += ", in " + path();
        xsd::cxx::tree::diagnostics<char> diagnostics;
        diagnostics.push_back(xsd::cxx::tree::error<char>(xsd::cxx::tree::severity::error, "document",
                                                          XML_GetCurrentLineNumber(m_parser),
                                                          XML_GetCurrentColumnNumber(m_parser) + 1, message));
        throw xsd::cxx::tree::parsing<char>(diagnostics);
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
        std::string text;
        for (std::size_t i = 0; i < m_frames.size(); ++i) {
            if (i >= shown && i + shown < m_frames.size()) {
                text += "/...";
                i = m_frames.size() - shown - 1;
            } else {
                text += '/' + nameOf(m_frames[i].name);
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

    static bool isDeclaration(const char* attribute)
    {
        return std::strncmp(attribute, "xmlns", 5) == 0 && (attribute[5] == 0 || attribute[5] == ':');
    }

    void startElement(const char* name, const char** attributes)
    {
        if (m_frames.size() + m_rawDepth >= deepestNesting)
            raise("elements are nested deeper than " + std::to_string(deepestNesting));
        const std::size_t depth = m_frames.size() + m_rawDepth + 1;
        for (const char** a = attributes; *a != nullptr; a += 2) {
            if (isDeclaration(*a))
                m_scopes.declare((*a)[5] == ':' ? *a + 6 : "", a[1], depth);
        }
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
        }
        count("element", name);
        startRaw(name, attributes);
    }

    void startRoot(const char* name, NameId id, const char** attributes)
    {
        const RawName raw(name);
        const std::string uri = m_scopes.namespaceOf(raw.prefix);
        if (raw.local != "CityModel" || uri != coreUri) {
            if (raw.local == "CityModel" && uri == olderCoreUri)
                raise("the document is of CityGML 1.0, not 2.0");
            raise("the root element is '" + std::string(name) + "', not the CityModel of CityGML 2.0");
        }
        m_root = std::make_unique<core::CityModelType>();
        m_document = std::make_shared<KeptContent::Document>();
        KeptContent::of(*m_root).document = m_document;
        m_document->prologue.swap(m_outside);
        for (const Scopes::Binding& binding : m_scopes.bindings()) {
            if (binding.depth == 1)
                m_document->namespaces.emplace_back(binding.prefix, binding.uri);
        }
        KeptContent::setElementName(*m_root, id);
        pushObject(*m_root, m_index.typeOf(*m_root), id, attributes);
    }

    /// \return false where the member cannot take the element.
    bool startChild(Frame& parent, const Place& place, NameId id, const char** attributes)
    {
        const TypeIndex::FlatMember& member = parent.type->members()[static_cast<std::size_t>(place.member)];
        const MemberOps& ops = *member.member->ops;
        if (ops.single && member.member->defaultText == nullptr && ops.count(*parent.object) != 0)
            return false;
        const TypeIndex* type = place.type;
        bool isAbstract = place.isAbstract;
        for (const char** a = attributes; *a != nullptr; a += 2) {
            const char* colon = std::strchr(*a, ':');
            if (colon != nullptr && std::strcmp(colon + 1, "type") == 0 &&
                uriOf(RawName(*a).prefix) == xsiUri && type != nullptr)
                isAbstract = !selectType(a[1], type);
        }
        if (isAbstract)
            raise("the element '" + nameOf(id) + "' is abstract");
        if (member.required >= 0)
            parent.met |= std::uint64_t(1) << member.required;
        if (member.group != 0)
            m_order.push_back(static_cast<std::uint16_t>(place.member));
        ++parent.children;

        if (type == nullptr) {
            const bool isNil = readValueAttributes(*parent.object, place.member, attributes);
            m_text.clear();
            m_frames.push_back(
                {Mode::Value, isNil, parent.object, nullptr, id, place.member, 0, 0, m_order.size()});
            return true;
        }
        std::unique_ptr<xml_schema::type> created(type->record()->create());
        xml_schema::type& object = *created;
        KeptContent::setElementName(object, id);
        ops.add(*parent.object, created.release());
        pushObject(object, *type, id, attributes);
        return true;
    }

    std::string uriOf(std::string_view prefix) const
    {
        const std::string* uri = m_scopes.find(prefix);
        return uri != nullptr ? *uri : std::string();
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
        m_frames.push_back({type.hasText() ? Mode::Text : Mode::Children, false, &object, &type, id, -1, 0, 0,
                            m_order.size()});
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
        ops.add(owner, created.release());
    }

    void keepAttribute(Frame& frame, const char* name, const char* value)
    {
        const RawName raw(name);
        const std::string uri = raw.prefix.empty() ? std::string() : m_scopes.namespaceOf(raw.prefix);
        if (uri == xsiUri) {
            if (raw.local == "nil")
                frame.isNil = isTrue(value);
            else if (raw.local == "schemaLocation" && frame.object == m_root.get()) {
                readSchemaLocation(value);
                return;
            }
        }
        count("attribute", name);
        KeptContent::of(*frame.object)
            .attributes.push_back({std::string(raw.prefix), uri, std::string(raw.local), value});
    }

    static bool isTrue(const char* value)
    {
        const std::string_view text = trimmed(value);
        return text == "true" || text == "1";
    }

    /// Keeps the attributes of an element that is a plain value.
    /// \return whether the element is nil.
    bool readValueAttributes(xml_schema::type& owner, int member, const char** attributes)
    {
        bool isNil = false;
        for (const char** a = attributes; *a != nullptr; a += 2) {
            if (isDeclaration(*a))
                continue;
            const RawName raw(*a);
            const std::string uri = raw.prefix.empty() ? std::string() : m_scopes.namespaceOf(raw.prefix);
            isNil = isNil || (uri == xsiUri && raw.local == "nil" && isTrue(a[1]));
            count("attribute", *a);
            const TypeIndex& type = m_index.typeOf(owner);
            const std::size_t index =
                type.members()[static_cast<std::size_t>(member)].member->ops->count(owner);
            KeptContent::of(owner).valueAttributes.push_back(
                {static_cast<std::uint16_t>(member),
                 static_cast<std::uint32_t>(index),
                 {std::string(raw.prefix), uri, std::string(raw.local), a[1]}});
        }
        return isNil;
    }

    void readSchemaLocation(std::string_view text)
    {
        m_document->hasSchemaLocation = true;
        std::string_view uri, location;
        while (nextWord(text, uri)) {
            nextWord(text, location);
            m_document->schemaLocations.emplace_back(uri, location);
        }
    }

    void checkLiteral(const xml_schema::type& object, const TypeIndex& type) const
    {
        const TypeRecord& record = *type.record();
        if (record.literals == nullptr)
            return;
        std::string text;
        record.text->format(object, text, m_scopes);
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
            }
            checkRequired(frame);
            break;
        case Mode::Children:
            flushText(frame);
            checkRequired(frame);
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

    void endValue(const Frame& frame)
    {
        if (frame.isNil && isBlank(m_text)) {
            // A value that is not there has no place in the member; the element itself comes back.
            keepNilValue(frame);
            return;
        }
        const TypeIndex& type = m_index.typeOf(*frame.object);
        type.members()[static_cast<std::size_t>(frame.member)].member->ops->addText(*frame.object, m_text);
    }

    void keepNilValue(const Frame& frame)
    {
        KeptContent& kept = KeptContent::of(*frame.object);
        const char* none = nullptr;
        m_raw = '<' + nameOf(frame.name);
        declareLocalNamespaces(&none, 0);
        std::string xml;
        xml.swap(m_raw);
        const TypeIndex& type = m_index.typeOf(*frame.object);
        const std::size_t index =
            type.members()[static_cast<std::size_t>(frame.member)].member->ops->count(*frame.object);
        auto& attributes = kept.valueAttributes;
        for (auto i = attributes.begin(); i != attributes.end();) {
            if (i->member != frame.member || i->index != index) {
                ++i;
                continue;
            }
            xml += ' ' + (i->attribute.prefix.empty() ? "" : i->attribute.prefix + ':') + i->attribute.name +
                   "=\"";
            appendEscapedAttribute(i->attribute.value, xml);
            xml += '"';
            i = attributes.erase(i);
        }
        Frame& parent = m_frames[m_frames.size() - 2];
        --parent.children;
        kept.nodes.push_back({KeptContent::Kind::Element, parent.children, xml + "/>"});
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
            KeptContent::of(*frame.object)
                .nodes.push_back({KeptContent::Kind::Text, frame.children, std::move(xml)});
        }
        m_text.clear();
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
        KeptContent::of(*frame.object).nodes.push_back({kind, frame.children, std::move(xml)});
    }

    void startRaw(const char* name, const char** attributes)
    {
        m_raw.append(1, '<').append(name);
        if (m_rawDepth == 0)
            declareLocalNamespaces(attributes, m_frames.size() + 1);
        for (const char** a = attributes; *a != nullptr; a += 2) {
            m_raw.append(1, ' ').append(*a).append("=\"");
            appendEscapedAttribute(a[1], m_raw);
            m_raw += '"';
        }
        m_raw += '>';
        ++m_rawDepth;
    }

    /// Declarations in scope that are not the root's go with the element, since only the root's are written
    /// back.
    /// \param depth those of that depth are among the attributes.
    void declareLocalNamespaces(const char** attributes, std::size_t depth)
    {
        const auto& bindings = m_scopes.bindings();
        for (std::size_t i = 0; i < bindings.size(); ++i) {
            const Scopes::Binding& binding = bindings[i];
            if (binding.depth <= 1 || binding.depth == depth || m_scopes.find(binding.prefix) != &binding.uri)
                continue;
            bool isRedeclared = false;
            for (const char** a = attributes; *a != nullptr; a += 2)
                isRedeclared =
                    isRedeclared || (isDeclaration(*a) && binding.prefix == ((*a)[5] == ':' ? *a + 6 : ""));
            if (isRedeclared)
                continue;
            m_raw.append(binding.prefix.empty() ? " xmlns" : " xmlns:").append(binding.prefix).append("=\"");
            appendEscapedAttribute(binding.uri, m_raw);
            m_raw += '"';
        }
    }

    void endRaw(const char* name)
    {
        m_raw.append("</").append(name).append(1, '>');
        if (--m_rawDepth != 0)
            return;
        Frame& frame = m_frames.back();
        KeptContent::of(*frame.object)
            .nodes.push_back({KeptContent::Kind::Element, frame.children, std::move(m_raw)});
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
    // Markup in front of the root.
    std::vector<std::string> m_outside;
    bool m_rootEnded = false;

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
