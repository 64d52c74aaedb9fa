#include "apps/viewer/properties/PropertyFilterModel.h"

#include "apps/viewer/properties/PropertyTreeModel.h"
#include "apps/viewer/properties/ValueRoles.h"

namespace tolvik::viewer {

PropertyFilterModel::PropertyFilterModel(QObject* parent) : QSortFilterProxyModel(parent)
{
    setRecursiveFilteringEnabled(true);
}

void PropertyFilterModel::setText(const QString& text)
{
    wanted = text.trimmed();
    invalidateFilter();
}

void PropertyFilterModel::setAbsentShown(bool shown)
{
    absentShown = shown;
    invalidateFilter();
}

bool PropertyFilterModel::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    const QModelIndex name = sourceModel()->index(row, PropertyTreeModel::NameColumn, parent);
    if (!absentShown && name.data(AbsentRole).toBool()) {
        return false;
    }
    if (wanted.isEmpty()) {
        return true;
    }
    for (QModelIndex each = name; each.isValid(); each = each.parent()) {
        if (hasText(each)) {
            return true;
        }
    }
    return false;
}

bool PropertyFilterModel::hasText(const QModelIndex& name) const
{
    const QModelIndex value = name.sibling(name.row(), PropertyTreeModel::ValueColumn);
    return name.data().toString().contains(wanted, Qt::CaseInsensitive) ||
           value.data().toString().contains(wanted, Qt::CaseInsensitive);
}

} // namespace tolvik::viewer
