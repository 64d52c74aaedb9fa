#include "platform/binding/changes/ChildrenMerge.h"

#include "platform/binding/changes/DocumentComparison.h"
#include "platform/binding/changes/MarkupSearch.h"
#include "platform/binding/changes/SameContent.h"
#include "platform/binding/kept/KeptContent.h"
#include "platform/binding/reader/RootCutter.h"
#include "platform/binding/values/WhiteSpace.h"
#include "platform/binding/xml/PrefixedName.h"

#include <algorithm>
#include <cstddef>
#include <typeinfo>
#include <unordered_map>
#include <utility>

namespace citygml {
namespace binding {

namespace {

// Shorter elements are not worth an empty one in their place.
constexpr std::size_t shortestElided = 100;

/// The only object in another one; null where there is none, and where there is more.
const xml_schema::type* onlyObjectIn(const xml_schema::type& object)
{
    const KeptContent* const kept = KeptContent::find(object);
    if (kept != nullptr && !kept->nodes().empty()) {
        return nullptr;
    }
    const TypeIndex& type = SchemaIndex::instance().typeOf(object);
    const xml_schema::type* only = nullptr;
    for (std::size_t i = 0; i < type.elementCount(); ++i) {
        const TypeIndex::FlatMember& member = type.members()[i];
        const std::size_t count = member.declaration->ops->count(object);
        if (count != 0 && (only != nullptr || count != 1 || member.type == nullptr)) {
            return nullptr;
        }
        only = count != 0 ? &member.declaration->ops->at(object, 0) : only;
    }
    return only;
}

/// An element in the child of the root, and where it begins and ends.
struct InnerElement
{
    std::size_t begin, end;
};

/// The children of the first element in a child of the root.
std::vector<InnerElement> innerElements(std::string_view child)
{
    RootCutter outer;
    outer.scan(child.substr(0, child.find('>') + 1));
    const std::size_t begin = outer.rootBegin();
    if (begin == 0) {
        // There is such a character in an attribute.
        return {};
    }
    RootCutter inner;
    inner.scan(child.substr(begin));
    std::vector<InnerElement> elements;
    std::size_t at = begin + inner.rootBegin();
    for (const std::size_t end : inner.childEnds()) {
        elements.push_back({elementBegin(child, at), begin + end});
        at = begin + end;
    }
    return elements;
}

} // namespace

/// Some children in a document of their own, in which elements of theirs that are as they were are short: an
/// empty one with a number stands for some that follow each other.
class ChildrenMerge::Extract : public ElementSelection
{
public:
    Extract(const ChildrenMerge& merge, const Children& children);

    const std::string& bytes() const { return extract; }
    /// Gives each child its edits, and the head those in front of all.
    ///
    /// \param edits of the bytes, in order
    /// \return false, with nothing done, where one of them is in none of these
    bool take(const std::vector<ByteEdit>& edits, std::vector<ByteEdit>& ofHead);

    const std::vector<ChildObject>* rootChildren() const override { return &written; }
    const std::string* numberOf(const ChildObject& child, int) override
    {
        const auto found = numbers.find(child.object);
        return found != numbers.end() ? &found->second : nullptr;
    }

private:
    /// Elements of the child, with nothing between them, that are as they were, and what they are.
    struct Unchanged
    {
        std::size_t begin, end;
        std::vector<const xml_schema::type*> objects;
    };
    /// An empty element in the extract, and the bytes of the child that it stands for.
    struct Elided
    {
        std::size_t begin, end;
        std::size_t first, last;
    };
    struct Part
    {
        EditedChild* child;
        std::size_t begin, end;
        std::vector<Elided> elided;
    };

    void add(EditedChild& child);
    std::vector<Unchanged> unchangedIn(const EditedChild& child) const;
    static void addUnchanged(std::string_view bytes, const std::vector<InnerElement>& elements,
                             const TypeIndex::FlatMember& member, const xml_schema::type& was,
                             const xml_schema::type& is, std::vector<Unchanged>& result);
    const TypeIndex::FlatMember* memberOf(const TypeIndex& type, std::string_view tag) const;
    std::optional<ByteEdit> editIn(const Part& part, const ByteEdit& edit) const;

    const ChildrenMerge& merge;
    std::string extract;
    std::vector<Part> parts;
    std::vector<ChildObject> written;
    std::unordered_map<const xml_schema::type*, std::string> numbers;
};

ChildrenMerge::Extract::Extract(const ChildrenMerge& merge, const Children& children)
    : merge(merge), extract(merge.head)
{
    for (EditedChild* const child : children) {
        add(*child);
    }
    extract.append("</").append(tagNameAt(merge.head, elementBegin(merge.head, 0))).append(1, '>');
}

void ChildrenMerge::Extract::add(EditedChild& child)
{
    extract += child.gap;
    Part part{&child, extract.size(), 0, {}};
    std::size_t at = 0;
    for (const Unchanged& unchanged : unchangedIn(child)) {
        const std::string number = merge.mark + std::to_string(numbers.size());
        extract.append(child.bytes, at, unchanged.begin - at);
        const std::size_t begin = extract.size();
        extract.append(1, '<').append(tagNameAt(child.bytes, unchanged.begin));
        extract.append(" n=\"").append(number).append("\"/>");
        part.elided.push_back({begin, extract.size(), unchanged.begin, unchanged.end});
        for (const xml_schema::type* const object : unchanged.objects) {
            numbers.emplace(object, object == unchanged.objects.front() ? number : std::string());
        }
        at = unchanged.end;
    }
    extract.append(child.bytes, at);
    part.end = extract.size();
    parts.push_back(std::move(part));
    written.push_back(child.is);
}

/// The long elements in the child's only object that are as they were, in order.
std::vector<ChildrenMerge::Extract::Unchanged>
ChildrenMerge::Extract::unchangedIn(const EditedChild& child) const
{
    const xml_schema::type* const was = onlyObjectIn(*child.was);
    const xml_schema::type* const is = onlyObjectIn(*child.is.object);
    // An empty element has no declarations.
    if (was == nullptr || is == nullptr || typeid(*was) != typeid(*is) ||
        child.bytes.find("xmlns") != std::string_view::npos) {
        return {};
    }
    const SchemaIndex& index = SchemaIndex::instance();
    const TypeIndex& type = index.typeOf(*was);
    std::unordered_map<const TypeIndex::FlatMember*, std::vector<InnerElement>> elements;
    for (const InnerElement& element : innerElements(child.bytes)) {
        elements[memberOf(type, tagNameAt(child.bytes, element.begin))].push_back(element);
    }
    std::vector<Unchanged> result;
    for (const auto& [member, ofMember] : elements) {
        // An element may have been set aside.
        if (member != nullptr && member->type != nullptr &&
            member->declaration->ops->count(*was) == ofMember.size()) {
            addUnchanged(child.bytes, ofMember, *member, *was, *is, result);
        }
    }
    std::sort(result.begin(), result.end(),
              [](const Unchanged& a, const Unchanged& b) { return a.begin < b.begin; });
    return result;
}

/// Adds those of one member.
///
/// \param elements of all its objects, as they were
void ChildrenMerge::Extract::addUnchanged(std::string_view bytes, const std::vector<InnerElement>& elements,
                                          const TypeIndex::FlatMember& member, const xml_schema::type& was,
                                          const xml_schema::type& is, std::vector<Unchanged>& result)
{
    const MemberOps& ops = *member.declaration->ops;
    const std::size_t count = std::min(elements.size(), ops.count(is));
    // Whether the last one that was added is the one in front, and nothing can come between.
    bool isNext = false;
    for (std::size_t i = 0; i < count; ++i) {
        const InnerElement& element = elements[i];
        const xml_schema::type& object = ops.at(is, i);
        const bool isLong = element.end - element.begin >= shortestElided;
        const bool isSame = (isLong || isNext) && haveSameContent(ops.at(was, i), object);
        if (isSame && isNext && isBlank(bytes.substr(result.back().end, element.begin - result.back().end))) {
            result.back().end = element.end;
            result.back().objects.push_back(&object);
        } else if (isSame && isLong) {
            result.push_back({element.begin, element.end, {&object}});
            isNext = member.group == 0;
        } else {
            isNext = false;
        }
    }
}

/// The member that takes an element with that tag; null where there is none.
const TypeIndex::FlatMember* ChildrenMerge::Extract::memberOf(const TypeIndex& type,
                                                              std::string_view tag) const
{
    const PrefixedName name(tag);
    const NamespaceScopes::Declaration* const declaration = merge.context.scopes.find(name.prefix);
    const SchemaIndex& index = SchemaIndex::instance();
    const NameId id = declaration != nullptr ? index.nameId(*declaration->uri, name.local) : 0;
    const MemberSlot* const slot = id != 0 ? index.slotOf(type, id) : nullptr;
    return slot != nullptr ? &type.members()[slot->member] : nullptr;
}

bool ChildrenMerge::Extract::take(const std::vector<ByteEdit>& edits, std::vector<ByteEdit>& ofHead)
{
    std::vector<ByteEdit> head;
    std::vector<std::vector<ByteEdit>> ofParts(parts.size());
    std::size_t number = 0;
    for (const ByteEdit& edit : edits) {
        if (edit.end < merge.head.size()) {
            head.push_back(edit);
            continue;
        }
        while (number < parts.size() && parts[number].end < edit.end) {
            ++number;
        }
        const std::optional<ByteEdit> inChild =
            number < parts.size() ? editIn(parts[number], edit) : std::nullopt;
        if (!inChild) {
            return false;
        }
        ofParts[number].push_back(*inChild);
    }
    for (std::size_t i = 0; i < parts.size(); ++i) {
        parts[i].child->edits = std::move(ofParts[i]);
    }
    ofHead.insert(ofHead.end(), head.begin(), head.end());
    return true;
}

/// The edit of the child's bytes that is one of the extract's; nothing where it is not in the child, or moves
/// what stands for an element.
std::optional<ByteEdit> ChildrenMerge::Extract::editIn(const Part& part, const ByteEdit& edit) const
{
    if (edit.begin < part.begin || edit.bytes.find(merge.mark) != std::string::npos) {
        return std::nullopt;
    }
    // A place in the extract, and the same in the child.
    std::size_t inExtract = part.begin, inChild = 0;
    for (const Elided& elided : part.elided) {
        if (edit.begin >= elided.end) {
            inExtract = elided.end;
            inChild = elided.last;
        }
    }
    return ByteEdit{edit.begin - inExtract + inChild, edit.end - inExtract + inChild, edit.bytes};
}

std::vector<ByteEdit> ChildrenMerge::run(std::vector<EditedChild>& children) const
{
    Children all;
    for (EditedChild& child : children) {
        all.push_back(&child);
    }
    std::vector<ByteEdit> ofHead;
    if (!all.empty()) {
        run(all, ofHead);
    }
    return ofHead;
}

void ChildrenMerge::run(const Children& children, std::vector<ByteEdit>& ofHead) const
{
    Extract extract(*this, children);
    std::optional<std::vector<ByteEdit>> edits;
    try {
        edits = editsBetween(extract.bytes(), textForComparison(document, prefixes, &extract), prefixes);
    } catch (const xsd::cxx::tree::exception<char>&) {
        // Who writes the whole document is told why it cannot be written.
    }
    if ((edits && extract.take(*edits, ofHead)) || children.size() == 1) {
        return;
    }
    const auto middle = children.begin() + static_cast<std::ptrdiff_t>(children.size() / 2);
    run(Children(children.begin(), middle), ofHead);
    run(Children(middle, children.end()), ofHead);
}

} // namespace binding
} // namespace citygml
