#include "platform/binding/writer/MemberCursor.h"

namespace citygml {
namespace binding {

void MemberCursor::findKept(const KeptContent& content)
{
    const KeptContent::Values values = content.valuesOf(ofMember->index);
    kept = values.begin();
    keptEnd = values.end();
    // A single value that has been set since is no longer absent.
    const bool isSet = ofMember->declaration->ops->single && count != 0;
    while (isSet && kept != keptEnd && kept->isAbsent) {
        ++kept;
    }
}

MemberCursor::Child MemberCursor::take()
{
    Child child;
    child.isAbsent = isAbsent();
    if (child.isAbsent) {
        child.kept = kept++;
        return child;
    }
    while (kept != keptEnd && kept->index < value) {
        ++kept;
    }
    if (kept != keptEnd && kept->index == value) {
        child.kept = kept++;
    }
    child.index = value++;
    return child;
}

std::size_t MemberCursor::countOfRest() const
{
    MemberCursor rest(*this);
    std::size_t result = 0;
    for (; !rest.atEnd(); rest.take()) {
        ++result;
    }
    return result;
}

} // namespace binding
} // namespace citygml
