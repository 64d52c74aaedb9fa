#include "platform/binding/reader/OpenElements.h"

#include "gml/AbstractFeatureType.hxx"
#include "platform/binding/reader/NameResolver.h"
#include "platform/binding/reader/Shortened.h"

namespace citygml {
namespace binding {

void OpenElements::close()
{
    children.resize(elements.back().firstChild);
    elements.pop_back();
}

void OpenElements::beginChild(const TypeIndex::FlatMember& member, NameId name)
{
    OpenElement& parent = elements.back().element;
    parent.met |= member.requiredBit;
    parent.isInOrder = parent.isInOrder && member.index >= parent.lastMember;
    parent.lastMember = member.index;
    parent.lastName = name;
    children.push_back(member.index);
}

/// Whether the member cannot alternate with that of the last child, which stands behind it in the schema.
bool OpenElements::isOfEarlierGroup(const TypeIndex::FlatMember& member) const
{
    const OpenElement& parent = elements.back().element;
    return member.groupBegin != parent.type->members()[parent.lastMember].groupBegin;
}

std::vector<MemberIndex> OpenElements::childOrder() const
{
    const auto first = children.begin() + static_cast<std::ptrdiff_t>(elements.back().firstChild);
    return std::vector<MemberIndex>(first, children.end());
}

std::string OpenElements::path(const NameResolver& names) const
{
    constexpr std::size_t shown = 8;
    constexpr std::size_t longestName = 60;
    std::string text;
    for (std::size_t i = 0; i < elements.size(); ++i) {
        if (i >= shown && i + shown < elements.size()) {
            text += "/...";
            i = elements.size() - shown - 1;
        } else {
            text += '/' + shortened(names.textOf(elements[i].element.name), longestName);
        }
    }
    return text;
}

std::string OpenElements::wholePath(const NameResolver& names) const
{
    std::string text;
    for (const Entry& entry : elements) {
        text += '/' + names.textOf(entry.element.name);
    }
    return text;
}

std::string OpenElements::featureId() const
{
    for (auto entry = elements.rbegin(); entry != elements.rend(); ++entry) {
        if (const auto* const feature =
                dynamic_cast<const gml::AbstractFeatureType*>(entry->element.object)) {
            return feature->id().present() ? std::string(*feature->id()) : std::string();
        }
    }
    return std::string();
}

} // namespace binding
} // namespace citygml
