#include "apps/viewer/table/AttributeRows.h"

#include "apps/common/MemberText.h"
#include "framework/AbstractUnit.h"
#include "gml/AbstractFeatureType.hxx"
#include "UI/Models/CityGMLModel/CityGMLModel.h"
#include "UI/Models/CityGMLModel/properties/BoundProperty.h"

#include <algorithm>
#include <QHash>
#include <typeinfo>

namespace tolvik::viewer {

namespace {

// Several screens of rows.
constexpr int mostRowsAtHand = 1000;

QString unitOf(const CoreProperty& property)
{
    return property.unit() != nullptr ? property.unit()->name() : QString();
}

bool isPresent(CoreProperty& property)
{
    const auto* const bound = dynamic_cast<const BoundProperty*>(&property);
    return bound != nullptr ? bound->present() : property.value().isValid();
}

AttributeCell cellOf(CoreProperty& property)
{
    const bool isBound = typeid(property) != typeid(CoreProperty);
    AttributeCell cell;
    cell.isThere = true;
    cell.value = apps::editedValueOf(property);
    cell.offered = apps::offeredValueOf(property);
    cell.choices = property.potentialValues();
    cell.isEditable = isBound && property.editable();
    cell.isPresent = isPresent(property);
    cell.unit = unitOf(property);
    return cell;
}

bool isAttribute(CoreProperty& property)
{
    return typeid(property) != typeid(CoreProperty) || property.value().isValid();
}

/// Adds the paths below a property.
/// \param path of the property itself
void collectBelow(const CoreProperty& parent, PropertyPath& path, QVector<PropertyPath>& paths,
                  QVector<bool>& isUsed, int& place)
{
    QHash<QString, int> seen;
    for (const auto& child : parent.properties()) {
        path.append({child->name(), ++seen[child->name()]});
        if (isAttribute(*child)) {
            // Features of a type have most attributes in common.
            int found = paths.value(place) == path ? place : paths.indexOf(path);
            if (found < 0) {
                found = place;
                paths.insert(found, path);
                isUsed.insert(found, false);
            }
            isUsed[found] = isUsed[found] || isPresent(*child);
            place = found + 1;
        }
        collectBelow(*child, path, paths, isUsed, place);
        path.removeLast();
    }
}

} // namespace

AttributeRows::AttributeRows(const CityGMLModel& model) : model(model), read(mostRowsAtHand) {}

void AttributeRows::setColumns(const QVector<PropertyPath>& paths)
{
    columns = paths;
    needsProviders = !std::all_of(paths.begin(), paths.end(), isOfCatalogue);
    read.clear();
}

const AttributeCell& AttributeRows::cell(int row, int column)
{
    if (!read.contains(row)) {
        read.insert(row, new QVector<AttributeCell>(cellsOf(row)));
    }
    return (*read.object(row))[column];
}

QVector<AttributeCell> AttributeRows::cellsOf(int row) const
{
    QVector<AttributeCell> cells(columns.size());
    gml::AbstractFeatureType* const feature = model.getFeature(row);
    if (feature == nullptr) {
        return cells;
    }
    const Fondo::RefPtr<CoreProperty> tree = treeOf(*feature);
    for (int column = 0; column < columns.size(); ++column) {
        if (CoreProperty* const property = findProperty(*tree, columns[column])) {
            cells[column] = cellOf(*property);
        }
    }
    return cells;
}

QVector<AttributeCell> AttributeRows::valuesOf(int row, int firstColumn, int lastColumn) const
{
    QVector<AttributeCell> cells(columns.size());
    gml::AbstractFeatureType* const feature = model.getFeature(row);
    if (feature == nullptr || firstColumn < 0 || lastColumn >= columns.size()) {
        return cells;
    }
    const Fondo::RefPtr<CoreProperty> tree = treeOf(*feature);
    for (int column = firstColumn; column <= lastColumn; ++column) {
        if (CoreProperty* const property = findProperty(*tree, columns[column])) {
            cells[column].value = apps::editedValueOf(*property);
            cells[column].unit = unitOf(*property);
        }
    }
    return cells;
}

void AttributeRows::collectPaths(const CityGMLModel& model, int row, QVector<PropertyPath>& paths,
                                 QVector<bool>& isUsed)
{
    if (gml::AbstractFeatureType* const feature = model.getFeature(row)) {
        PropertyPath path;
        int place = 0;
        collectBelow(*propertyTree(model, *feature), path, paths, isUsed, place);
    }
}

Fondo::RefPtr<CoreProperty> AttributeRows::treeOf(gml::AbstractFeatureType& feature) const
{
    return needsProviders ? propertyTree(model, feature) : catalogueTree(feature);
}

} // namespace tolvik::viewer
