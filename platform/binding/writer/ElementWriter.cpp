#include "platform/binding/writer/ElementWriter.h"

#include "platform/binding/kept/ChildOrder.h"
#include "platform/binding/kept/UnsetValues.h"
#include "platform/binding/values/WhiteSpace.h"
#include "platform/binding/xml/Namespaces.h"
#include "platform/binding/xml/PrefixedName.h"

#include <cassert>

namespace citygml {
namespace binding {

namespace {

using Position = KeptContent::Position;

bool hasNilAttribute(const KeptContent* kept)
{
    return kept != nullptr && kept->hasNilAttribute();
}

/// Whether a text is the document's own, of a value that is wrong.
bool isTextOf(const KeptContent::Value* value, std::string_view text)
{
    return value != nullptr && value->isWrong && value->spelling == text;
}

/// Whether a program has set no value in a required member that has none to write.
bool isForgotten(const xml_schema::type& owner, const TypeIndex::FlatMember& member)
{
    return member.requiredBit != 0 && !wasMissing(owner, member) &&
           !hasNilAttribute(KeptContent::find(owner));
}

} // namespace

ElementWriter::ElementWriter(XmlOutput& out, NamespaceDeclarations& namespaces,
                             const KeptContent::Scope* rootScope)
    : out(out), namespaces(namespaces), index(SchemaIndex::instance()), names(index, namespaces),
      values(namespaces), keptWriter(out, namespaces, rootScope)
{
}

void ElementWriter::writeRoot(const xml_schema::type& root, const std::string& name,
                              const std::vector<Attribute>& first)
{
    out.beginStartTag(name);
    for (const Attribute& attribute : first) {
        out.attribute(attribute.first, attribute.second);
    }
    finishElement(root, index.typeOf(root), {name, nullptr}, 0);
}

void ElementWriter::writeElement(const xml_schema::type& object, const TypeIndex& type,
                                 const ElementNames::Tag& tag, int depth)
{
    const std::size_t outer = namespaces.localCount();
    out.beginStartTag(tag.name);
    finishElement(object, type, tag, depth);
    namespaces.endLocal(outer);
}

/// Writes the rest of an element whose start tag has been begun.
void ElementWriter::finishElement(const xml_schema::type& object, const TypeIndex& type,
                                  const ElementNames::Tag& tag, int depth)
{
    const KeptContent* const kept = KeptContent::find(object);
    writeAttributes(object, type, kept);
    const bool tellsType = kept != nullptr && writeKeptAttributes(object, type, *kept);
    if (tag.typeToTell != nullptr && !tellsType) {
        writeType(*tag.typeToTell);
    }
    out.flushIfLarge();
    if (type.hasText()) {
        writeText(object, type, tag.name, kept);
    } else {
        writeContent(object, type, tag.name, kept, depth);
    }
}

void ElementWriter::writeAttributes(const xml_schema::type& object, const TypeIndex& type,
                                    const KeptContent* kept)
{
    for (std::size_t i = type.elementCount(); i < type.members().size(); ++i) {
        const TypeIndex::FlatMember& member = type.members()[i];
        if (writtenCount(object, member) == 0) {
            const KeptContent::Value* const wrong =
                kept != nullptr ? kept->wrongValueOf(member.index) : nullptr;
            if (wrong != nullptr) {
                text.clear();
                values.formatAbsent(object, member, *wrong, text);
                out.attribute(names.ofAttribute(member), text);
            } else if (isForgotten(object, member)) {
                const QualifiedName& name = index.name(member.name);
                throw xsd::cxx::tree::expected_attribute<char>(name.name, name.uri);
            }
            continue;
        }
        text.clear();
        values.formatAttribute(object, member, kept, text);
        const bool isImplied = member.defaultBit != 0 && text == member.declaration->defaultText &&
                               !KeptContent::isSpelledOut(object, member.defaultBit);
        if (!isImplied) {
            out.attribute(names.ofAttribute(member), text);
        }
    }
}

void ElementWriter::writeType(const TypeIndex& type)
{
    const TypeRecord& record = *type.record();
    out.attribute(prefixedName(namespaces.attributePrefixOf(xsiUri), "type"),
                  namespaces.elementName(record.uri, record.name));
}

/// \return whether one of them tells the type.
bool ElementWriter::writeKeptAttributes(const xml_schema::type& object, const TypeIndex& type,
                                        const KeptContent& kept)
{
    bool tellsType = false;
    for (const KeptContent::Attribute& attribute : kept.attributes()) {
        if (attribute.isNil() && type.hasText() && !isUnset(object, type)) {
            // It has a value now.
            continue;
        }
        if (attribute.is(xsiUri, "type")) {
            tellsType = true;
            const PrefixedName named(trimmed(attribute.value));
            const TypeRecord& record = *type.record();
            if (!attribute.isOtherType && named.local == record.name &&
                !namespaces.rootMeans(named.prefix, record.uri)) {
                writeType(type);
                continue;
            }
        }
        keptWriter.writeAttribute(attribute);
    }
    return tellsType;
}

/// Whether a value that the document left nil has not been set since. One that says both has its text.
bool ElementWriter::isUnsetNil(const xml_schema::type& object, const TypeIndex& type,
                               const KeptContent* kept) const
{
    return hasNilAttribute(kept) && kept->wrongValueOf(std::nullopt) == nullptr && isUnset(object, type);
}

void ElementWriter::writeText(const xml_schema::type& object, const TypeIndex& type, const std::string& name,
                              const KeptContent* kept)
{
    text.clear();
    if (!isUnsetNil(object, type, kept)) {
        values.formatText(object, type, kept, text);
    }
    const bool hasNodes = kept != nullptr && !kept->nodes().empty();
    if (text.empty() && !hasNodes) {
        out.endEmptyTag();
        return;
    }
    out.endStartTag();
    if (hasNodes) {
        const bool isString = dynamic_cast<const std::string*>(&object) != nullptr;
        const bool splitsWords = isString || isTextOf(kept->wrongValueOf(std::nullopt), text);
        keptWriter.writeText(name, text, kept->nodes(), splitsWords);
    } else {
        out.text(name, text);
    }
    out.endTag(name);
}

void ElementWriter::writeContent(const xml_schema::type& object, const TypeIndex& type,
                                 const std::string& name, const KeptContent* kept, int depth)
{
    const bool isIndented = kept == nullptr || !kept->hasText();
    Content content{object, type, kept, depth + 1, isIndented, KeptContent::NodeCursor(kept)};
    const bool isSelected = depth == 0 && selection != nullptr && selection->rootChildren() != nullptr;
    if (isSelected) {
        for (const ChildObject& child : *selection->rootChildren()) {
            writeObject(content, child.member, *child.object);
        }
    } else {
        writeChildren(content);
        while (const KeptContent::Node* const node = content.nodes.take()) {
            writeNode(content, *node);
        }
    }
    if (content.isEmpty) {
        out.endEmptyTag();
        return;
    }
    if (content.isIndented) {
        out.newLine(depth);
    }
    out.endTag(name);
}

/// Makes ready for a child or a node: ends the start tag in front of the first one, and begins a line.
void ElementWriter::beginItem(Content& content)
{
    if (content.isEmpty) {
        out.endStartTag();
        content.isEmpty = false;
    }
    if (content.isIndented) {
        out.newLine(content.depth);
    }
}

void ElementWriter::writeNode(Content& content, const KeptContent::Node& node)
{
    if (!isReplaced(node, content.object, content.type)) {
        beginItem(content);
        keptWriter.writeNode(node);
    }
}

void ElementWriter::writeNodesInFrontOf(Content& content, const Position& child)
{
    while (const KeptContent::Node* const node = content.nodes.takeInFrontOf(child)) {
        writeNode(content, *node);
    }
}

void ElementWriter::writeChildren(Content& content)
{
    if (content.kept != nullptr && !content.kept->childOrder().empty()) {
        writeInKeptOrder(content);
        return;
    }
    const auto& members = content.type.members();
    std::size_t ofGroup = 0;
    for (std::size_t i = 0; i < content.type.elementCount(); ++i) {
        // Members that may alternate are counted together.
        ofGroup = members[i].groupBegin == i ? 0 : ofGroup;
        for (MemberCursor children = cursorOf(content, i); !children.atEnd();) {
            writeChild(content, children, Position::behind(members[i].groupBegin, ++ofGroup));
        }
    }
}

void ElementWriter::writeInKeptOrder(Content& content)
{
    std::vector<MemberCursor> cursors;
    std::vector<std::size_t> counts;
    for (std::size_t i = 0; i < content.type.elementCount(); ++i) {
        cursors.push_back(cursorOf(content, i));
        counts.push_back(cursors.back().countOfRest());
    }
    for (const ChildStep& step : childSteps(*content.kept, content.type, std::move(counts))) {
        writeChild(content, cursors[step.member], step.position);
    }
}

/// \throws xsd::cxx::tree::expected_element<char> where a required member has no child.
MemberCursor ElementWriter::cursorOf(const Content& content, std::size_t member) const
{
    const TypeIndex::FlatMember& flat = content.type.members()[member];
    const MemberCursor children(content.object, flat, content.kept);
    if (children.atEnd() && isForgotten(content.object, flat)) {
        const QualifiedName& name = index.name(flat.name);
        throw xsd::cxx::tree::expected_element<char>(name.name, name.uri);
    }
    return children;
}

void ElementWriter::writeChild(Content& content, MemberCursor& children, const Position& position)
{
    writeNodesInFrontOf(content, position);
    const TypeIndex::FlatMember& member = children.member();
    const MemberCursor::Child child = children.take();
    if (member.type == nullptr) {
        beginItem(content);
        writeValue(content, member, child);
        return;
    }
    writeObject(content, member.index, member.declaration->ops->at(content.object, child.index));
}

void ElementWriter::writeObject(Content& content, MemberIndex member, const xml_schema::type& object)
{
    const TypeIndex& type = index.typeOf(object);
    const ElementNames::Tag& tag = names.ofObject(content.type, member, object, type);
    const std::string* const number =
        selection != nullptr ? selection->numberOf({&object, member}, content.depth) : nullptr;
    if (number != nullptr) {
        writeNumber(content, tag.name, *number);
        return;
    }
    beginItem(content);
    writeElement(object, type, tag, content.depth);
}

void ElementWriter::writeNumber(Content& content, const std::string& tag, const std::string& number)
{
    if (!number.empty()) {
        beginItem(content);
        out.beginStartTag(tag);
        out.attribute("n", number);
        out.endEmptyTag();
    }
}

void ElementWriter::writeValue(const Content& content, const TypeIndex::FlatMember& member,
                               const MemberCursor::Child& child)
{
    const std::string& name = names.ofValue(member);
    const std::size_t outer = namespaces.localCount();
    out.beginStartTag(name);
    if (child.kept != nullptr) {
        for (const KeptContent::Attribute& attribute : child.kept->attributes) {
            keptWriter.writeAttribute(attribute);
        }
    }
    text.clear();
    if (child.isAbsent) {
        assert(child.kept != nullptr);
        values.formatAbsent(content.object, member, *child.kept, text);
    } else {
        values.formatValue(content.object, member, child.index, child.kept, text);
    }
    const bool hasNodes = child.kept != nullptr && !child.kept->nodes.empty();
    if (child.isAbsent && text.empty() && !hasNodes) {
        out.endEmptyTag();
    } else {
        out.endStartTag();
        if (hasNodes) {
            keptWriter.writeText(name, text, child.kept->nodes, isTextOf(child.kept, text));
        } else {
            out.text(name, text);
        }
        out.endTag(name);
    }
    namespaces.endLocal(outer);
}

} // namespace binding
} // namespace citygml
