#include "platform/binding/reader/DocumentHandler.h"

#include "platform/binding/kept/ChildOrder.h"
#include "platform/binding/reader/DocumentChecks.h"
#include "platform/binding/reader/IdentifierRegister.h"
#include "platform/binding/reader/NamespaceScopes.h"
#include "platform/binding/reader/RequiredMembers.h"
#include "platform/binding/values/WhiteSpace.h"
#include "platform/binding/xml/Namespaces.h"
#include "platform/binding/xml/PrefixedName.h"
#include "platform/binding/xml/XmlText.h"

#include <cstring>
#include <utility>

namespace citygml {
namespace binding {

namespace {

using Content = OpenElement::Content;
using Kind = KeptContent::Kind;
using Position = KeptContent::Position;

bool isTrue(const char* value)
{
    const std::string_view text = trimmed(value);
    return text == "true" || text == "1";
}

/// Says of nodes that stand behind so many bytes of a text, one behind the other, behind how many words they
/// stand. One that stands in a word stands behind it.
class WordCounter
{
public:
    explicit WordCounter(std::string_view text) : text(text) {}

    Position operator()(const KeptContent::Node& node)
    {
        for (; at < node.position.count(); ++at) {
            const bool isBlank = isSpace(text[at]);
            words += !isBlank && !isInWord ? 1 : 0;
            isInWord = !isBlank;
        }
        return Position::inText(words);
    }

private:
    std::string_view text;
    std::size_t at = 0;
    std::size_t words = 0;
    bool isInWord = false;
};

bool isString(const xml_schema::type& object)
{
    return dynamic_cast<const std::string*>(&object) != nullptr;
}

/// Whether a member has its only value already, or one that is absent.
bool isTaken(const xml_schema::type& owner, const TypeIndex& type, const MemberSlot& slot)
{
    const TypeIndex::FlatMember& member = type.members()[slot.member];
    if (!member.declaration->ops->single) {
        return false;
    }
    if (member.declaration->ops->count(owner) != 0) {
        return true;
    }
    const KeptContent* const kept = slot.type == nullptr ? KeptContent::find(owner) : nullptr;
    return kept != nullptr && kept->hasAbsentValue(slot.member);
}

} // namespace

DocumentHandler::DocumentHandler(const XmlParser& parser, NamespaceScopes& scopes, KeptContentLog& log,
                                 bool isLenient)
    : parser(parser), scopes(scopes), log(log), isLenient(isLenient), index(SchemaIndex::instance()),
      names(index, scopes), values(scopes, names, log), unknown(names)
{
}

DocumentHandler::DocumentHandler(const XmlParser& parser, NamespaceScopes& scopes, KeptContentLog& log,
                                 const RootContext& context)
    : DocumentHandler(parser, scopes, log, context.isLenient)
{
    isApart = true;
    isOlder = context.isOlderVersion;
    root = std::make_unique<core::CityModelType>();
    if (!context.identifier.empty()) {
        root->id(context.identifier);
    }
    open.open({Content::Children, context.name, root.get(), &index.typeOf(*root), nullptr});
}

RootContext DocumentHandler::rootContext() const
{
    const std::string identifier = root->id().present() ? std::string(*root->id()) : std::string();
    return {scopes, KeptContent::elementName(*root), identifier, isOlder, isLenient};
}

std::vector<RootChild> DocumentHandler::takeChildren()
{
    if (open.count() > 1) {
        children.pop_back();
    }
    return std::move(children);
}

bool DocumentHandler::addChild(RootChild& child, const XmlParser::Place& begin)
{
    if (isLenient && open.isLate(*child.member)) {
        return false;
    }
    child.object->_container(root.get());
    if (!registerAll(child.identifiers, *root)) {
        return false;
    }
    keepText(open.top());
    open.beginChild(*child.member, KeptContent::elementName(*child.object));
    child.member->declaration->ops->add(*root, child.object.release());
    for (Finding& finding : child.findings) {
        const XmlParser::Place place = XmlParser::Place{finding.line, finding.column}.from(begin);
        finding.line = place.line;
        finding.column = place.column;
        findings.add(std::move(finding));
    }
    log.add(child.log);
    return true;
}

std::unique_ptr<core::CityModelType> DocumentHandler::takeRoot()
{
    document->findings = findings.take();
    return std::move(root);
}

void DocumentHandler::startElement(const char* name, const XmlAttributes& attributes)
{
    if (unknown.isOpen()) {
        unknown.startElement(name, attributes);
        return;
    }
    const NameId id = names.elementId(name);
    if (open.isEmpty()) {
        startRoot(name, id, attributes);
        return;
    }
    std::uint8_t standsFor = 0;
    if (open.top().content == Content::Children) {
        keepText(open.top());
        const MemberSlot* const slot = index.slotOf(*open.top().type, id);
        if (slot != nullptr && isTaken(*open.top().object, *open.top().type, *slot)) {
            tellSurplus(*slot, id, attributes);
        } else if (slot != nullptr) {
            if (startChild(*slot, id, attributes)) {
                return;
            }
            standsFor = makeStandIn(*slot);
        }
    }
    startUnknown(name, attributes, standsFor);
}

void DocumentHandler::startRoot(const char* name, NameId id, const XmlAttributes& attributes)
{
    const PrefixedName parts(name);
    const std::string uri = scopes.namespaceOf(parts.prefix);
    const std::string stem(cityGmlStem);
    if (parts.local != rootName || uri.compare(0, stem.size(), stem) != 0) {
        throw DocumentError{"the root element is '" + std::string(name) +
                            "', not the CityModel of CityGML 2.0"};
    }
    const std::string version = uri.substr(stem.size());
    isOlder = version == olderCityGmlVersion;
    if (isOlder) {
        scopes.readOlderVersion();
        id = names.elementId(name);
    } else if (version != cityGmlVersion) {
        throw DocumentError{"the document is of CityGML " + version + "; versions 1.0 and 2.0 are read"};
    }
    root = std::make_unique<core::CityModelType>();
    document = std::make_shared<KeptContent::Document>();
    KeptContent::of(*root).setDocument(document);
    document->prologue.swap(prologue);
    for (const NamespaceScopes::Declaration& declaration : scopes.declarations()) {
        if (declaration.depth == 1) {
            document->namespaces.emplace_back(declaration.prefix, *declaration.uri);
        }
    }
    if (!isOlder) {
        document->scope = scopes.around(2);
    }
    KeptContent::setElementName(*root, id);
    startObject(*root, index.typeOf(*root), id, attributes);
}

/// \return false where no object can be made for the element.
bool DocumentHandler::startChild(const MemberSlot& slot, NameId id, const XmlAttributes& attributes)
{
    const TypeIndex::FlatMember& member = open.top().type->members()[slot.member];
    const TypeIndex* const type = slot.type != nullptr ? typeOfChild(slot, attributes) : nullptr;
    if (type == nullptr && (slot.type != nullptr || slot.isAbstract)) {
        if (faults.empty()) {
            addFault("the element '" + names.textOf(id) + "' is abstract");
        }
        tellFaults(open.wholePath(names) + '/' + names.textOf(id), featureIdOf(slot.type, attributes));
        return false;
    }
    if (open.isLate(member)) {
        noteLateChild(id);
    }
    open.beginChild(member, id);
    if (type == nullptr) {
        startValue(member, id, attributes);
        return true;
    }
    std::unique_ptr<xml_schema::type> created(type->record()->create());
    xml_schema::type& object = *created;
    KeptContent::setElementName(object, id);
    addObject(member, std::move(created));
    startObject(object, *type, id, attributes);
    return true;
}

/// Gives an object to the innermost element.
void DocumentHandler::addObject(const TypeIndex::FlatMember& member,
                                std::unique_ptr<xml_schema::type> created)
{
    if (!isApart || open.count() > 1) {
        member.declaration->ops->add(*open.top().object, created.release());
        return;
    }
    if (member.declaration->ops->single) {
        throw DocumentError{"only the whole document tells whether there is one already"};
    }
    children.emplace_back();
    children.back().member = &member;
    children.back().object = std::move(created);
    values.listIdentifiersIn(children.back().identifiers);
}

/// To be called when a child of the root has ended that is read apart.
void DocumentHandler::endChildApart()
{
    if (KeptContent::find(*root) != nullptr) {
        children.pop_back();
        throw DocumentError{"what stands between the children of a root is kept with the root"};
    }
    children.back().log = log.take();
}

/// The type of the slot or the one that `xsi:type` tells; null where there are no objects of it.
const TypeIndex* DocumentHandler::typeOfChild(const MemberSlot& slot, const XmlAttributes& attributes)
{
    for (const XmlAttribute attribute : attributes) {
        const char* const colon = std::strchr(attribute.name, ':');
        if (colon != nullptr && std::strcmp(colon + 1, "type") == 0 &&
            isXsi(PrefixedName(attribute.name), "type")) {
            if (const TypeIndex* const named = typeNamed(attribute.value, slot)) {
                return named;
            }
        }
    }
    return slot.isAbstract ? nullptr : slot.type;
}

/// The type of a qualified name, where it can stand for the declared type; that one where no such type is
/// known.
///
/// \return null where there are no objects of it, or it cannot stand for the declared type.
const TypeIndex* DocumentHandler::typeNamed(const char* text, const MemberSlot& slot)
{
    const TypeIndex& declared = *slot.type;
    const std::string value = collapsed(text);
    const PrefixedName name(value);
    try {
        const TypeIndex* const named = index.findType(scopes.namespaceOf(name.prefix), name.local);
        const TypeIndex& type = named != nullptr ? *named : declared;
        const bool fits = type.isDerivedFrom(&declared);
        if (fits && !type.record()->isAbstract) {
            return &type;
        }
        if (!fits) {
            addFault("the type '" + value + "' cannot stand for '" + declared.record()->name + "'");
        } else if (!slot.isAbstract) {
            addFault("the type '" + value + "' is abstract");
        }
    } catch (const ValueError& error) {
        addFault(error.message);
    }
    isOtherType = true;
    return nullptr;
}

void DocumentHandler::startObject(xml_schema::type& object, const TypeIndex& type, NameId id,
                                  const XmlAttributes& attributes)
{
    text.clear();
    open.open({type.hasText() ? Content::Text : Content::Children, id, &object, &type, nullptr});
    for (const XmlAttribute attribute : attributes) {
        if (!attribute.isDeclaration()) {
            readAttribute(open.top(), attribute);
        }
    }
    if (!faults.empty()) {
        tellFaults(open.wholePath(names));
    }
}

void DocumentHandler::startValue(const TypeIndex::FlatMember& member, NameId id,
                                 const XmlAttributes& attributes)
{
    text.clear();
    open.open({Content::Value, id, open.top().object, nullptr, &member});
    if (!faults.empty()) {
        tellFaults(open.wholePath(names));
    }
    OpenElement& element = open.top();
    for (const XmlAttribute attribute : attributes) {
        if (attribute.isDeclaration()) {
            continue;
        }
        names.attributeId(attribute.name);
        const PrefixedName name(attribute.name);
        element.isNil = element.isNil || (isXsi(name, "nil") && isTrue(attribute.value));
        log.add("attribute", attribute.name);
        if (checks != nullptr) {
            checks->meetAttribute(nullptr, attribute.name);
        }
        keptValue().attributes.push_back(keptAttribute(name, attribute.value));
    }
}

/// Begins the copy of an element that no member takes.
///
/// \param standsFor see KeptContent::Node
void DocumentHandler::startUnknown(const char* name, const XmlAttributes& attributes, std::uint8_t standsFor)
{
    log.add("element", name);
    if (checks != nullptr) {
        checks->meetElement(open.top().type, name);
    }
    unknown.begin(placeOfNode(), scopes.around(open.count() + 1), standsFor);
    unknown.startElement(name, attributes);
}

/// Notes that an element of which no object can be made takes the place of a member, if that is a single one.
///
/// \return see KeptContent::Node::standsFor
std::uint8_t DocumentHandler::makeStandIn(const MemberSlot& slot)
{
    OpenElement& parent = open.top();
    if (!parent.type->members()[slot.member].declaration->ops->single) {
        return 0;
    }
    parent.hasStandIn = true;
    return static_cast<std::uint8_t>(slot.member + 1);
}

void DocumentHandler::readAttribute(OpenElement& element, const XmlAttribute& attribute)
{
    const NameId id = names.attributeId(attribute.name);
    const TypeIndex::FlatMember* const member = id != 0 ? element.type->attribute(id) : nullptr;
    if (member == nullptr) {
        keepAttribute(element, attribute);
        return;
    }
    element.met |= member->requiredBit;
    KeptContent::setSpelledOut(*element.object, member->defaultBit);
    if (checks != nullptr && checks->isTakenIdentifier(attribute)) {
        values.setAside(*element.object, *member, attribute.value);
        return;
    }
    try {
        values.readAttribute(*element.object, *member, attribute.value);
    } catch (const ValueError& error) {
        addFault(error.message + ", in the attribute '" + attribute.name + "'");
    }
}

void DocumentHandler::keepAttribute(OpenElement& element, const XmlAttribute& attribute)
{
    const PrefixedName name(attribute.name);
    if (isXsi(name, "nil")) {
        element.isNil = isTrue(attribute.value);
    }
    const bool isOfRoot = element.object == root.get();
    if (isOfRoot && isXsi(name, "schemaLocation") && readSchemaLocation(attribute.value)) {
        return;
    }
    log.add("attribute", attribute.name);
    if (checks != nullptr) {
        checks->meetAttribute(element.type, attribute.name);
    }
    KeptContent::Attribute kept = keptAttribute(name, attribute.value);
    kept.isOtherType = isOtherType && isXsi(name, "type");
    KeptContent::of(*element.object).addAttribute(std::move(kept));
}

/// \return false where the text is not made of pairs, so that nothing can be joined to it.
bool DocumentHandler::readSchemaLocation(std::string_view list)
{
    std::vector<std::pair<std::string, std::string>> locations;
    std::string_view uri, location;
    while (nextWord(list, uri)) {
        if (!nextWord(list, location)) {
            return false;
        }
        // What the schema of the older version says does not hold for what is written.
        const auto declared = std::make_shared<const std::string>(uri);
        if (!isOlder || scopes.newer(declared) == declared) {
            locations.emplace_back(uri, location);
        }
    }
    document->hasSchemaLocation = true;
    document->schemaLocations.swap(locations);
    return true;
}

KeptContent::Attribute DocumentHandler::keptAttribute(const PrefixedName& name, const char* value) const
{
    // In the namespace as the document declares it.
    const auto uri = name.prefix.empty() ? nullptr : scopes.require(name.prefix).declaredUri;
    return {std::string(name.prefix), uri, std::string(name.local), value};
}

bool DocumentHandler::isXsi(const PrefixedName& attribute, std::string_view name) const
{
    return attribute.local == name && !attribute.prefix.empty() &&
           *scopes.require(attribute.prefix).uri == xsiUri;
}

void DocumentHandler::endElement(const char* name)
{
    if (unknown.isOpen()) {
        unknown.endElement(name);
        if (!unknown.isOpen()) {
            keepNode(unknown.take());
        }
        return;
    }
    OpenElement& element = open.top();
    switch (element.content) {
    case Content::Value:
        endValue(element);
        break;
    case Content::Text:
        endText(element);
        break;
    case Content::Children:
        endChildren(element);
        break;
    }
    text.clear();
    open.close();
    if (isApart && open.count() == 1) {
        endChildApart();
    }
}

void DocumentHandler::endChildren(OpenElement& element)
{
    keepText(element);
    checkRequired(element);
    if (element.hasStandIn) {
        releaseStandIns(*element.object, *element.type);
    }
    const KeptContent* const kept = KeptContent::find(*element.object);
    if (!element.isInOrder || (kept != nullptr && !kept->nodes().empty())) {
        keepOrder(KeptContent::of(*element.object), *element.type, open.childOrder());
    }
    KeptContent::seal(*element.object);
}

void DocumentHandler::endText(const OpenElement& element)
{
    if (!element.isNil || !isBlank(text)) {
        try {
            values.readText(*element.object, *element.type, element.name, text);
            if (KeptContent::find(*element.object) != nullptr && !isString(*element.object)) {
                KeptContent::of(*element.object).moveNodes(WordCounter(text));
            }
        } catch (const ValueError& error) {
            addFault(error.message);
            tellFaults(open.wholePath(names));
        }
    }
    checkRequired(element);
    KeptContent::seal(*element.object);
}

void DocumentHandler::endValue(const OpenElement& element)
{
    const MemberOps& ops = *element.member->declaration->ops;
    const std::size_t index = ops.count(*element.object);
    if (element.isNil && isBlank(text)) {
        // A value that is not there is not in the member; the element itself comes back.
        keptValue().isAbsent = true;
    } else {
        readValue(element);
    }
    if (ofValue) {
        ofValue->member = element.member->index;
        ofValue->index = static_cast<std::uint32_t>(index);
        KeptContent::of(*element.object).addValue(std::move(*ofValue));
        ofValue.reset();
    }
}

void DocumentHandler::readValue(const OpenElement& element)
{
    try {
        std::string spelling = values.readValue(*element.object, *element.member, element.name, text);
        if (!spelling.empty()) {
            keptValue().spelling = std::move(spelling);
        }
        if (ofValue) {
            WordCounter counter(text);
            for (KeptContent::Node& node : ofValue->nodes) {
                node.position = counter(node);
            }
        }
    } catch (const ValueError& error) {
        addFault(error.message);
        tellFaults(open.wholePath(names));
        keptValue().isAbsent = true;
        keptValue().isWrong = true;
        keptValue().spelling = text;
    }
}

void DocumentHandler::checkRequired(const OpenElement& element)
{
    if ((element.met & element.type->requiredBits()) == element.type->requiredBits()) {
        return;
    }
    // What is nil may lack everything.
    if (!element.isNil) {
        tellMissing(element);
    }
    fillRequired(*element.object, *element.type);
}

void DocumentHandler::characters(std::string_view characters)
{
    if (unknown.isOpen()) {
        unknown.addText(characters);
    } else {
        text += characters;
    }
}

void DocumentHandler::comment(std::string markup)
{
    keepMarkup(Kind::Comment, "comment", std::move(markup));
}

void DocumentHandler::processingInstruction(std::string markup)
{
    keepMarkup(Kind::Instruction, "processing instruction", std::move(markup));
}

void DocumentHandler::keepMarkup(Kind kind, const char* what, std::string markup)
{
    if (unknown.isOpen()) {
        unknown.addMarkup(markup);
        return;
    }
    if (open.isEmpty()) {
        (document ? document->epilogue : prologue).push_back(std::move(markup));
        return;
    }
    log.add(what);
    if (open.top().content == Content::Children) {
        keepText(open.top());
    }
    keepNode({placeOfNode(), kind, std::move(markup), nullptr});
}

/// Keeps the text in front of a child or an end tag, where it is not just the white space between elements.
void DocumentHandler::keepText(const OpenElement& element)
{
    if (text.empty()) {
        return;
    }
    const bool isVisible = !isBlank(text);
    if (isVisible || element.type->isMixed()) {
        if (isVisible && log.isOn()) {
            log.add("text in", names.textOf(element.name));
        }
        std::string xml;
        appendEscaped(text, xml);
        KeptContent::of(*element.object)
            .addNode({open.behindLastChild(), Kind::Text, std::move(xml), nullptr});
    }
    text.clear();
}

/// Keeps a node with the innermost element.
void DocumentHandler::keepNode(KeptContent::Node node)
{
    const OpenElement& owner = open.top();
    if (owner.content == Content::Value) {
        keptValue().nodes.push_back(std::move(node));
    } else {
        KeptContent::of(*owner.object).addNode(std::move(node));
    }
}

/// Where a node stands that begins now: behind the children of the innermost element, or in its text.
KeptContent::Position DocumentHandler::placeOfNode()
{
    return open.top().content == Content::Children ? open.behindLastChild() : Position::inText(text.size());
}

KeptContent::Value& DocumentHandler::keptValue()
{
    return ofValue ? *ofValue : ofValue.emplace();
}

std::string DocumentHandler::path() const
{
    std::string path = open.path(names);
    if (unknown.isOpen()) {
        path += "/...";
    }
    return path;
}

} // namespace binding
} // namespace citygml
