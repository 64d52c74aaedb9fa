#include "platform/binding/kept/ContentPlaces.h"

#include "platform/binding/kept/UnsetValues.h"
#include "platform/binding/SchemaIndex.h"
#include "platform/binding/writer/ValueWriter.h"
#include "platform/binding/xml/XmlText.h"

#include <algorithm>

namespace citygml {
namespace binding {

namespace {

/// For texts that are compared or shown, not written.
class NoPrefixes : public NameScope
{
public:
    std::string namespaceOf(std::string_view) const override { return std::string(); }
    std::string prefixOf(const std::string&) const override { return std::string(); }
};

std::string textOf(const std::string* text)
{
    return text != nullptr ? *text : std::string();
}

bool assign(std::string* target, const std::string& text)
{
    if (target != nullptr) {
        *target = text;
    }
    return target != nullptr;
}

} // namespace

xml_schema::type* ObjectPath::find() const
{
    xml_schema::type* object = start;
    for (const auto& [member, number] : steps) {
        const auto& members = SchemaIndex::instance().typeOf(*object).members();
        const bool isThere = member < members.size() && members[member].type != nullptr &&
                             number < members[member].declaration->ops->count(*object);
        if (!isThere) {
            return nullptr;
        }
        object = const_cast<xml_schema::type*>(&members[member].declaration->ops->at(*object, number));
    }
    return object;
}

KeptContent* ObjectPath::findKept() const
{
    xml_schema::type* const object = find();
    return object != nullptr ? KeptContent::find(*object) : nullptr;
}

std::string AttributePlace::text() const
{
    KeptContent* const kept = object.findKept();
    const KeptContent::Attribute* const attribute = kept != nullptr ? find(*kept) : nullptr;
    return attribute != nullptr ? attribute->value : std::string();
}

bool AttributePlace::setText(const std::string& text)
{
    KeptContent* const kept = object.findKept();
    KeptContent::Attribute* const attribute = kept != nullptr ? find(*kept) : nullptr;
    return assign(attribute != nullptr ? &attribute->value : nullptr, text);
}

KeptContent::Node* TextPlace::find() const
{
    KeptContent* const kept = object.findKept();
    KeptContent::Node* const found = kept != nullptr ? kept->node(node) : nullptr;
    return found != nullptr && found->kind == KeptContent::Kind::Text ? found : nullptr;
}

std::string TextPlace::text() const
{
    const KeptContent::Node* const found = find();
    return found != nullptr ? unescaped(found->xml) : std::string();
}

bool TextPlace::setText(const std::string& text)
{
    KeptContent::Node* const found = find();
    std::string xml;
    appendEscaped(text, xml);
    return assign(found != nullptr ? &found->xml : nullptr, xml);
}

KeptContent::Value* WrongTextPlace::find() const
{
    const xml_schema::type* const owner = object.find();
    KeptContent* const kept = owner != nullptr ? object.findKept() : nullptr;
    KeptContent::Value* const value = kept != nullptr ? kept->value(member, number) : nullptr;
    const bool isThere = value != nullptr && value->isWrong && written(*owner, *value) == value->spelling;
    return isThere ? value : nullptr;
}

/// What a save writes where the text stands.
std::string WrongTextPlace::written(const xml_schema::type& owner, const KeptContent::Value& value) const
{
    const NoPrefixes scope;
    const ValueWriter writer(scope);
    const TypeIndex& type = SchemaIndex::instance().typeOf(owner);
    const KeptContent* const kept = KeptContent::find(owner);
    std::string text;
    if (!member) {
        writer.formatText(owner, type, kept, text);
        return text;
    }
    const TypeIndex::FlatMember& flat = type.members()[*member];
    if (writtenCount(owner, flat) == 0) {
        writer.formatAbsent(owner, flat, value, text);
    } else if (flat.declaration->isAttribute) {
        writer.formatAttribute(owner, flat, kept, text);
    } else {
        text = flat.declaration->ops->single ? std::string() : value.spelling;
    }
    return text;
}

std::string WrongTextPlace::text() const
{
    const KeptContent::Value* const value = find();
    return value != nullptr ? value->spelling : std::string();
}

bool WrongTextPlace::setText(const std::string& text)
{
    KeptContent::Value* const value = find();
    return assign(value != nullptr ? &value->spelling : nullptr, text);
}

bool LiteralPlace::isThere() const
{
    const xml_schema::type* const enumeration = find();
    if (enumeration == nullptr) {
        return false;
    }
    const TypeRecord& record = *recordOf(*enumeration);
    const std::string now = text();
    const char* const* const end = record.literals + record.literalCount;
    return !now.empty() && std::find(record.literals, end, now) == end;
}

xml_schema::type* LiteralPlace::find() const
{
    xml_schema::type* const found = object.find();
    return found != nullptr && recordOf(*found)->literals != nullptr ? found : nullptr;
}

std::string LiteralPlace::text() const
{
    std::string text;
    if (const xml_schema::type* const enumeration = find()) {
        recordOf(*enumeration)->text->format(*enumeration, text, NoPrefixes());
    }
    return text;
}

bool LiteralPlace::setText(const std::string& text)
{
    xml_schema::type* const enumeration = find();
    if (enumeration != nullptr) {
        recordOf(*enumeration)->text->parse(*enumeration, text, NoPrefixes());
    }
    return enumeration != nullptr;
}

KeptContent::Node* RawNode::node() const
{
    const xml_schema::type* const owner = object.find();
    KeptContent* const kept = owner != nullptr ? object.findKept() : nullptr;
    KeptContent::Node* const found = kept != nullptr ? findNode(*kept) : nullptr;
    const bool isThere = found != nullptr && found->kind == KeptContent::Kind::Element &&
                         !isReplaced(*found, *owner, SchemaIndex::instance().typeOf(*owner));
    return isThere ? found : nullptr;
}

RawElement* RawNode::find()
{
    const KeptContent::Node* const found = node();
    if (found == nullptr) {
        return nullptr;
    }
    if (!element || source != found->xml) {
        element = RawElement::parse(found->xml, found->scope.get());
        source = found->xml;
    }
    return element.get();
}

void RawNode::save()
{
    source.clear();
    element->write(source);
    node()->xml = source;
}

std::string* RawPlace::find() const
{
    RawElement* element = node->find();
    for (const std::size_t item : path) {
        const bool leadsOn = element != nullptr && item < element->items.size();
        element = leadsOn ? element->items[item].element.get() : nullptr;
    }
    if (element == nullptr) {
        return nullptr;
    }
    if (kind == Kind::Text) {
        return index < element->texts.size() ? &element->texts[index] : nullptr;
    }
    return index < element->attributes.size() ? &element->attributes[index].value : nullptr;
}

std::string RawPlace::text() const
{
    return textOf(find());
}

bool RawPlace::setText(const std::string& text)
{
    const bool isSet = assign(find(), text);
    if (isSet) {
        node->save();
    }
    return isSet;
}

} // namespace binding
} // namespace citygml
