#include "apps/viewer/exchange/ExportColumns.h"

#include "apps/tables/ColumnPath.h"
#include "apps/tables/ColumnTree.h"

namespace tolvik::viewer {

namespace {

/// Whether a path leads to a generic attribute. The features of a type have all other fields in common.
bool isGeneric(CoreProperty& tree, const PropertyPath& path)
{
    CoreProperty* const found = findProperty(tree, path);
    return found != nullptr ? tables::isGenericAttribute(*found)
                            : path.first().name == QLatin1String("Fields") && path.size() > 1;
}

/// How many properties of the label, up to that of the path, are no generic attributes, or are such ones.
int occurrenceAmongAlike(CoreProperty& tree, PropertyPath path, bool isGeneric)
{
    const int last = path.last().occurrence;
    int occurrence = 0;
    for (int each = 1; each <= last; ++each) {
        path.last().occurrence = each;
        CoreProperty* const found = findProperty(tree, path);
        occurrence += found == nullptr || tables::isGenericAttribute(*found) == isGeneric ? 1 : 0;
    }
    return occurrence;
}

} // namespace

QStringList exportColumns(const CityGMLModel& model, gml::AbstractFeatureType& example,
                          const QVector<PropertyPath>& paths)
{
    const Fondo::RefPtr<CoreProperty> tree = propertyTree(model, example);
    QStringList columns;
    for (const PropertyPath& path : paths) {
        tables::ColumnPath column;
        column.isGeneric = isGeneric(*tree, path);
        for (const PropertyStep& step : path) {
            // Groups that repeat are tables of their own, with a row for each.
            column.steps += {step.name, 1};
        }
        column.steps.last().occurrence = occurrenceAmongAlike(*tree, path, column.isGeneric);
        if (column.isGeneric) {
            column.steps.removeFirst();
        }
        const QString name = column.text();
        if (!tables::isTold(name) && !columns.contains(name)) {
            columns += name;
        }
    }
    return columns;
}

} // namespace tolvik::viewer
