#include "apps/common/PropertyPath.h"

#include "framework/CoreProperty.h"

#include <QHash>
#include <QStringList>

namespace tolvik::apps {

namespace {

/// Tries each child that the path can mean.
CoreProperty* findBelow(const CoreProperty& parent, const QStringRef& path)
{
    QHash<QString, int> seen;
    for (const auto& child : parent.properties()) {
        const int occurrence = ++seen[child->name()];
        QStringList names{QStringLiteral("%1[%2]").arg(child->name()).arg(occurrence)};
        if (occurrence == 1) {
            names += child->name();
        }
        for (const QString& name : qAsConst(names)) {
            if (path == name) {
                return child.get();
            }
            CoreProperty* const found = path.startsWith(name + QLatin1Char('/'))
                                            ? findBelow(*child, path.mid(name.size() + 1))
                                            : nullptr;
            if (found != nullptr) {
                return found;
            }
        }
    }
    return nullptr;
}

} // namespace

CoreProperty* propertyAt(const CoreProperty& root, const QString& path)
{
    return findBelow(root, QStringRef(&path));
}

} // namespace tolvik::apps
