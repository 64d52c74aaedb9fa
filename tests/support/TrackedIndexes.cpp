#include "support/TrackedIndexes.h"

namespace testsupport {

void TrackedIndexes::track(const QModelIndex& index)
{
    if (index.isValid()) {
        tracked.append({index, featureOf(index)});
    }
}

void TrackedIndexes::forgetInvalid()
{
    tracked.erase(std::remove_if(tracked.begin(), tracked.end(),
                                 [](const Entry& each) { return !each.index.isValid(); }),
                  tracked.end());
}

bool TrackedIndexes::isTracked(Feature feature) const
{
    return std::any_of(tracked.begin(), tracked.end(),
                       [feature](const Entry& each) { return each.feature == feature; });
}

QString TrackedIndexes::difference() const
{
    for (const Entry& each : tracked) {
        const QModelIndex index = each.index;
        if (!index.isValid()) {
            continue;
        }
        if (featureOf(index) != each.feature) {
            return QStringLiteral("a persistent index has another feature");
        }
        if (index.model()->index(index.row(), index.column(), index.parent()) != index) {
            return QStringLiteral("a persistent index is out of place");
        }
    }
    return QString();
}

int TrackedIndexes::lost(const std::function<bool(Feature)>& isThere) const
{
    return static_cast<int>(std::count_if(tracked.begin(), tracked.end(), [&](const Entry& each) {
        return !each.index.isValid() && isThere(each.feature);
    }));
}

} // namespace testsupport
