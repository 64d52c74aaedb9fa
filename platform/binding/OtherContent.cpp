#include "citygml/OtherContent.h"

#include "gml/AbstractFeatureType.hxx"
#include "platform/binding/kept/ContentPlaces.h"
#include "platform/binding/kept/UnsetValues.h"
#include "platform/binding/SchemaIndex.h"
#include "platform/binding/values/WhiteSpace.h"
#include "platform/binding/xml/Namespaces.h"
#include "platform/binding/xml/PrefixedName.h"
#include "platform/binding/xml/XmlText.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace citygml {

namespace binding {

namespace {

using Entries = std::vector<OtherContent>;
using IsApart = std::function<bool(gml::AbstractFeatureType& inner)>;

constexpr const char* textName = "text()";

/// What is shown of an element: its text, if it has one, and what is in it.
struct Shown
{
    std::shared_ptr<ContentPlace> text;
    Entries children;

    bool isEmpty() const { return text == nullptr && children.empty(); }
};

/// Names as the root of a document would write them.
class RootNames
{
public:
    explicit RootNames(const xml_schema::type& object)
    {
        const auto* const root = dynamic_cast<const xml_schema::type*>(object._root());
        const KeptContent* const kept = root != nullptr ? KeptContent::find(*root) : nullptr;
        document = kept != nullptr ? kept->document() : nullptr;
    }

    std::string ofElement(const QualifiedName& name) const { return nameOf(name, false); }
    std::string ofAttribute(const QualifiedName& name) const { return '@' + nameOf(name, true); }

private:
    /// Without a prefix where the root has none for the namespace.
    std::string nameOf(const QualifiedName& name, bool isAttribute) const
    {
        if (document != nullptr && !name.uri.empty()) {
            for (const auto& [prefix, uri] : document->namespaces) {
                if (uri == name.uri && !(isAttribute && prefix.empty())) {
                    return prefixedName(prefix, name.name);
                }
            }
        }
        return name.name;
    }

    const KeptContent::Document* document = nullptr;
};

/// Shows an element that was kept as markup.
class RawEntries
{
public:
    RawEntries(const ObjectPath& path, RawNode::Find find)
        : node(std::make_shared<RawNode>(path, std::move(find)))
    {
    }

    OtherContent entry() const { return entryOf(*node->find(), {}); }

private:
    using Path = RawPlace::Path;

    OtherContent entryOf(const RawElement& element, const Path& path) const
    {
        Entries children = attributesOf(element, path);
        const std::optional<std::size_t> only = onlyTextOf(element);
        for (std::size_t i = 0; i < element.texts.size(); ++i) {
            if (!only && !isBlank(element.texts[i])) {
                children.emplace_back(textName, std::string(), place(path, RawPlace::Kind::Text, i),
                                      Entries());
            }
            if (i < element.items.size() && element.items[i].element) {
                Path below = path;
                below.push_back(i);
                children.push_back(entryOf(*element.items[i].element, below));
            }
        }
        return {element.name, element.uri, only ? place(path, RawPlace::Kind::Text, *only) : nullptr,
                std::move(children)};
    }

    Entries attributesOf(const RawElement& element, const Path& path) const
    {
        Entries entries;
        for (std::size_t i = 0; i < element.attributes.size(); ++i) {
            const RawElement::Attribute& attribute = element.attributes[i];
            if (!attribute.isDeclaration) {
                entries.emplace_back('@' + attribute.name, attribute.uri,
                                     place(path, RawPlace::Kind::Attribute, i), Entries());
            }
        }
        return entries;
    }

    /// Which text is that of the element itself. None where there are several, and where there are only
    /// elements.
    static std::optional<std::size_t> onlyTextOf(const RawElement& element)
    {
        const auto isVisible = [](const std::string& text) { return !isBlank(text); };
        const auto visible = std::count_if(element.texts.begin(), element.texts.end(), isVisible);
        const bool hasElements = std::any_of(element.items.begin(), element.items.end(),
                                             [](const auto& item) { return item.element != nullptr; });
        if (visible > 1 || (visible == 0 && hasElements)) {
            return std::nullopt;
        }
        const auto found = std::find_if(element.texts.begin(), element.texts.end(), isVisible);
        return visible == 1 ? static_cast<std::size_t>(found - element.texts.begin()) : 0;
    }

    std::shared_ptr<ContentPlace> place(const Path& path, RawPlace::Kind kind, std::size_t index) const
    {
        return std::make_shared<RawPlace>(node, path, kind, index);
    }

    std::shared_ptr<RawNode> node;
};

/// Goes through an object and what is in it, and shows what was kept.
class Collector
{
public:
    Collector(xml_schema::type& start, const IsApart& isApart)
        : index(SchemaIndex::instance()), names(start), isApart(isApart),
          featureType(index.findType("http://www.opengis.net/gml", "AbstractFeatureType")), here(start)
    {
    }

    /// \param object the start, or one that a step has led to
    Shown show(const xml_schema::type& object)
    {
        const TypeIndex& type = index.typeOf(object);
        const KeptContent* const kept = KeptContent::find(object);
        Shown shown;
        if (kept != nullptr) {
            showAttributes(object, type, *kept, shown.children);
            showNodes(object, type, *kept, shown);
            showText(std::make_shared<WrongTextPlace>(here, std::nullopt, 0), shown);
        }
        if (type.record()->literals != nullptr) {
            showText(std::make_shared<LiteralPlace>(here), shown);
        }
        for (const TypeIndex::FlatMember& member : type.members()) {
            if (kept != nullptr) {
                showValues(object, member, *kept, shown.children);
            }
            if (member.type != nullptr) {
                showObjects(object, member, shown.children);
            }
        }
        return shown;
    }

private:
    /// Shows a text, where it is there.
    template <typename Place>
    static void showText(std::shared_ptr<Place> place, Shown& shown)
    {
        if (place->isThere()) {
            shown.text = std::move(place);
        }
    }

    void showAttributes(const xml_schema::type& object, const TypeIndex& type, const KeptContent& kept,
                        Entries& entries) const
    {
        for (std::size_t i = 0; i < kept.attributes().size(); ++i) {
            const KeptContent::Attribute& attribute = kept.attributes()[i];
            if (!isSaidByObject(attribute, object, type)) {
                entries.push_back(
                    entryOf(attribute, [i](KeptContent& content) { return content.attribute(i); }));
            }
        }
    }

    /// Whether an attribute tells what the object itself does: its type, or that it has no value when it has
    /// one by now.
    static bool isSaidByObject(const KeptContent::Attribute& attribute, const xml_schema::type& object,
                               const TypeIndex& type)
    {
        if (attribute.isNil()) {
            return type.hasText() && !isUnset(object, type);
        }
        return attribute.is(xsiUri, "type") && !attribute.isOtherType &&
               PrefixedName(trimmed(attribute.value)).local == type.record()->name;
    }

    OtherContent entryOf(const KeptContent::Attribute& attribute, AttributePlace::Find find) const
    {
        return {'@' + prefixedName(attribute.prefix, attribute.name),
                attribute.uri ? *attribute.uri : std::string(),
                std::make_shared<AttributePlace>(here, std::move(find)), Entries()};
    }

    /// Shows the elements and texts that stand between the children of an object.
    void showNodes(const xml_schema::type& object, const TypeIndex& type, const KeptContent& kept,
                   Shown& shown) const
    {
        const std::vector<KeptContent::Node>& nodes = kept.nodes();
        const std::optional<std::size_t> only = onlyTextOf(nodes);
        if (only) {
            shown.text = std::make_shared<TextPlace>(here, *only);
        }
        for (std::size_t i = 0; i < nodes.size(); ++i) {
            if (isReplaced(nodes[i], object, type)) {
                continue;
            }
            if (nodes[i].kind == KeptContent::Kind::Element) {
                const auto find = [i](KeptContent& content) { return content.node(i); };
                shown.children.push_back(RawEntries(here, find).entry());
            } else if (!only && isVisibleText(nodes[i])) {
                shown.children.emplace_back(textName, std::string(), std::make_shared<TextPlace>(here, i),
                                            Entries());
            }
        }
    }

    static bool isText(const KeptContent::Node& node) { return node.kind == KeptContent::Kind::Text; }
    static bool isVisibleText(const KeptContent::Node& node) { return isText(node) && !isBlank(node.xml); }

    /// Which node is the text of the object itself; none where there are several. One that was made blank
    /// still counts.
    static std::optional<std::size_t> onlyTextOf(const std::vector<KeptContent::Node>& nodes)
    {
        const auto visible = std::count_if(nodes.begin(), nodes.end(), isVisibleText);
        const auto found = std::find_if(nodes.begin(), nodes.end(), visible == 0 ? isText : isVisibleText);
        if (visible > 1 || found == nodes.end()) {
            return std::nullopt;
        }
        return static_cast<std::size_t>(found - nodes.begin());
    }

    /// Shows what is kept about the values of a member, which are no objects.
    void showValues(const xml_schema::type& object, const TypeIndex::FlatMember& member,
                    const KeptContent& kept, Entries& entries) const
    {
        std::size_t number = 0;
        for (const KeptContent::Value& value : kept.valuesOf(member.index)) {
            Shown shown;
            showText(std::make_shared<WrongTextPlace>(here, member.index, number), shown);
            if (isWritten(value, object, member)) {
                showPieces(value, member.index, number, shown.children);
            }
            if (!shown.isEmpty()) {
                entries.push_back(entryOf(member, std::move(shown)));
            }
            ++number;
        }
    }

    /// Whether an element of its own stands for the value.
    static bool isWritten(const KeptContent::Value& value, const xml_schema::type& object,
                          const TypeIndex::FlatMember& member)
    {
        const std::size_t count = writtenCount(object, member);
        return value.isAbsent ? count == 0 || !member.declaration->ops->single : value.index < count;
    }

    void showPieces(const KeptContent::Value& value, KeptContent::MemberIndex member, std::size_t number,
                    Entries& entries) const
    {
        for (std::size_t i = 0; i < value.attributes.size(); ++i) {
            entries.push_back(entryOf(value.attributes[i], [=](KeptContent& content) {
                KeptContent::Value* const now = content.value(member, number);
                return now != nullptr && i < now->attributes.size() ? &now->attributes[i] : nullptr;
            }));
        }
        for (std::size_t i = 0; i < value.nodes.size(); ++i) {
            const auto find = [=](KeptContent& content) {
                KeptContent::Value* const now = content.value(member, number);
                return now != nullptr && i < now->nodes.size() ? &now->nodes[i] : nullptr;
            };
            entries.push_back(RawEntries(here, find).entry());
        }
    }

    void showObjects(const xml_schema::type& object, const TypeIndex::FlatMember& member, Entries& entries)
    {
        const MemberOps& ops = *member.declaration->ops;
        const std::size_t count = ops.count(object);
        for (std::size_t i = 0; i < count; ++i) {
            const xml_schema::type& child = ops.at(object, i);
            if (isFeatureApart(child)) {
                continue;
            }
            here.enter(member.index, i);
            Shown shown = show(child);
            here.leave();
            if (!shown.isEmpty()) {
                const NameId kept = KeptContent::elementName(child);
                entries.push_back(kept != 0 ? elementEntry(kept, std::move(shown))
                                            : entryOf(member, std::move(shown)));
            }
        }
    }

    bool isFeatureApart(const xml_schema::type& object) const
    {
        return index.typeOf(object).isDerivedFrom(featureType) &&
               isApart(const_cast<gml::AbstractFeatureType&>(
                   dynamic_cast<const gml::AbstractFeatureType&>(object)));
    }

    OtherContent entryOf(const TypeIndex::FlatMember& member, Shown shown) const
    {
        if (!member.declaration->isAttribute) {
            return elementEntry(member.name, std::move(shown));
        }
        const QualifiedName& name = index.name(member.name);
        return {names.ofAttribute(name), name.uri, std::move(shown.text), std::move(shown.children)};
    }

    OtherContent elementEntry(NameId id, Shown shown) const
    {
        const QualifiedName& name = index.name(id);
        return {names.ofElement(name), name.uri, std::move(shown.text), std::move(shown.children)};
    }

    const SchemaIndex& index;
    const RootNames names;
    const IsApart& isApart;
    const TypeIndex* const featureType;
    /// The way to the object that is being shown.
    ObjectPath here;
};

} // namespace

} // namespace binding

OtherContent::OtherContent(std::string name, std::string namespaceUri,
                           std::shared_ptr<binding::ContentPlace> place, std::vector<OtherContent> children)
    : label(std::move(name)), uri(std::move(namespaceUri)), place(std::move(place)),
      below(std::move(children))
{
}

std::string OtherContent::text() const
{
    return place ? place->text() : std::string();
}

bool OtherContent::setText(const std::string& text) const
{
    std::string escaped;
    return place && binding::appendEscaped(text, escaped) && place->setText(text);
}

std::vector<OtherContent> otherContentOf(gml::AbstractFeatureType& feature,
                                         const std::function<bool(gml::AbstractFeatureType& inner)>& isApart)
{
    binding::Shown shown = binding::Collector(feature, isApart).show(feature);
    if (shown.text) {
        shown.children.insert(shown.children.begin(),
                              OtherContent(binding::textName, std::string(), std::move(shown.text), {}));
    }
    return std::move(shown.children);
}

} // namespace citygml
