#include "platform/binding/reader/OpenElements.h"

#include "gml/AbstractFeatureType.hxx"
#include "platform/binding/reader/NameResolver.h"
#include "platform/binding/reader/Shortened.h"

#include <algorithm>

namespace citygml {
namespace binding {

void OpenElements::close()
{
    alternating.resize(elements.back().firstAlternating);
    elements.pop_back();
}

void OpenElements::beginChild(const TypeIndex::FlatMember& member)
{
    using Position = KeptContent::Position;
    OpenElement& parent = elements.back().element;
    parent.met |= member.requiredBit;
    if (member.group != 0) {
        alternating.push_back(member.index);
    }
    if (member.groupBegin == parent.lastChild.member()) {
        parent.lastChild = Position::behind(member.groupBegin, parent.lastChild.count() + 1);
    } else if (member.groupBegin > parent.lastChild.member()) {
        parent.lastChild = Position::behind(member.groupBegin, 1);
    } else {
        // A child that comes late is counted without those that are nil; what is kept behind it may move
        // among them.
        const std::size_t before = member.group != 0 ? alternating.size() - elements.back().firstAlternating
                                                     : member.declaration->ops->count(*parent.object) + 1;
        parent.lastChild = Position::behind(member.groupBegin, before);
    }
}

std::vector<MemberIndex> OpenElements::alternatingOrder() const
{
    const auto first = alternating.begin() + static_cast<std::ptrdiff_t>(elements.back().firstAlternating);
    return std::is_sorted(first, alternating.end()) ? std::vector<MemberIndex>()
                                                    : std::vector<MemberIndex>(first, alternating.end());
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
