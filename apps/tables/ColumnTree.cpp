#include "apps/tables/ColumnTree.h"

#include "framework/AbstractUnit.h"
#include "framework/CoreProperty.h"
#include "gen/DateAttributeType.hxx"
#include "gen/DoubleAttributeType.hxx"
#include "gen/IntAttributeType.hxx"
#include "gen/MeasureAttributeType.hxx"
#include "gen/StringAttributeType.hxx"
#include "gen/UriAttributeType.hxx"
#include "gml/MeasureType.hxx"
#include "UI/Models/CityGMLModel/properties/GmlAttributeProperty.h"
#include "UI/Models/CityGMLModel/properties/SchemaValues.h"

#include <algorithm>
#include <array>
#include <typeindex>

namespace tolvik::tables {

namespace {

const QString& fields()
{
    static const QString label = QStringLiteral("Fields");
    return label;
}

} // namespace

bool isTold(const QString& path)
{
    return path == QLatin1String("Fields/ClassType") || path == QLatin1String("Fields/Id");
}

bool isGenericAttribute(const CoreProperty& property)
{
    static const std::array<std::type_index, 6> classes{
        typeid(GmlAttributeProperty<gen::StringAttributeType, schema::string>),
        typeid(GmlAttributeProperty<gen::IntAttributeType, long long>),
        typeid(GmlAttributeProperty<gen::DoubleAttributeType, double>),
        typeid(GmlAttributeProperty<gen::DateAttributeType, schema::date>),
        typeid(GmlAttributeProperty<gen::UriAttributeType, schema::uri>),
        typeid(GmlAttributeProperty<gen::MeasureAttributeType, gml::MeasureType>),
    };
    return std::find(classes.begin(), classes.end(), std::type_index(typeid(property))) != classes.end();
}

void ColumnTree::read(const CoreProperty& root, FeatureRow& row)
{
    readGroup(root, {-1, -1}, row);
}

void ColumnTree::readGroup(const CoreProperty& group, Place place, FeatureRow& row)
{
    const int visit = ++visits;
    int hint = 0;
    for (const auto& property : group.properties()) {
        readProperty(*property, place, visit, hint, row);
    }
}

void ColumnTree::readProperty(CoreProperty& property, Place place, int visit, int& hint, FeatureRow& row)
{
    const int first = child(place.node, property.name(), isGenericAttribute(property), hint);
    if (first < 0) {
        leaveOut(property, place.node >= 0 ? pathOf(place.node) : ColumnPath());
        return;
    }
    const int number = nodes[first].visit == visit ? nodes[first].count + 1 : 1;
    nodes[first].visit = visit;
    nodes[first].count = number;
    if (property.properties().isEmpty()) {
        addCell(property, occurrence(first, number), place.group, row);
        return;
    }
    if (number > 1 && !isFixed) {
        nodes[first].isRepeated = true;
    }
    if (number > 1 && !nodes[first].isRepeated) {
        leaveOut(property, place.node >= 0 ? pathOf(place.node) : ColumnPath());
        return;
    }
    const int group = row.groups.size();
    row.groups += FeatureRow::Group{first, place.group, number};
    addCell(property, first, group, row);
    readGroup(property, {first, group}, row);
}

void ColumnTree::addCell(CoreProperty& property, int node, int group, FeatureRow& row)
{
    const QVariant value = node < 0 ? QVariant() : property.value();
    const std::optional<CellType> type = cellType(value);
    if (!type) {
        return;
    }
    const QString unit = property.unit() != nullptr ? property.unit()->name() : QString();
    if (!isFixed) {
        note(node, *type, unit);
    }
    row.cells += FeatureRow::Cell{node, group, value, unit};
}

void ColumnTree::note(int index, CellType type, const QString& unit)
{
    Node& column = nodes[index];
    column.type = column.hasValues ? widened(column.type, type) : type;
    column.hasOtherUnits = column.hasOtherUnits || (column.hasValues && column.unit != unit);
    column.unit = column.hasValues ? column.unit : unit;
    column.hasValues = true;
}

/// Counts the values of a property and of those below it.
void ColumnTree::leaveOut(CoreProperty& property, ColumnPath path)
{
    path.steps += {property.name(), 1};
    for (const auto& inner : property.properties()) {
        leaveOut(*inner, path);
    }
    if (isGenericAttribute(property)) {
        path.isGeneric = true;
        path.steps.removeFirst();
    }
    const QString text = path.text();
    if (cellType(property.value()) && !isTold(text)) {
        ++missing[text];
    }
}

/// Features of a type have their properties in much the same order: the search begins behind the sibling that
/// was found last.
int ColumnTree::child(int outer, const QString& label, bool isGeneric, int& hint)
{
    const QVector<int>& inner = innerOf(outer);
    for (int i = 0; i < inner.size(); ++i) {
        const int at = (hint + i) % inner.size();
        const Node& candidate = nodes[inner[at]];
        if (candidate.isGeneric == isGeneric && candidate.step.label == label) {
            hint = at;
            return inner[at];
        }
    }
    return isFixed ? -1 : append(outer, {label, 1}, isGeneric);
}

/// The node of a later property of the same label.
int ColumnTree::occurrence(int first, int number)
{
    if (number == 1 || first < 0) {
        return first;
    }
    for (int next = nodes[first].occurrences.size() + 2; !isFixed && next <= number; ++next) {
        Node node;
        node.outer = nodes[first].outer;
        node.step = {nodes[first].step.label, next};
        node.isGeneric = nodes[first].isGeneric;
        nodes[first].occurrences += nodes.size();
        nodes += node;
    }
    return nodes[first].occurrences.value(number - 2, -1);
}

int ColumnTree::append(int outer, const ColumnPath::Step& step, bool isGeneric)
{
    const int index = nodes.size();
    Node node;
    node.outer = outer;
    node.step = step;
    node.isGeneric = isGeneric;
    nodes += node;
    innerOf(outer) += index;
    return index;
}

int ColumnTree::nodeAt(const ColumnPath& path)
{
    int hint = 0;
    int index = path.isGeneric ? child(-1, fields(), false, hint) : -1;
    for (int i = 0; i < path.steps.size(); ++i) {
        const bool isLast = i + 1 == path.steps.size();
        hint = 0;
        index = child(index, path.steps[i].label, path.isGeneric && isLast, hint);
        index = isLast ? occurrence(index, path.steps[i].occurrence) : index;
    }
    return index;
}

int ColumnTree::findNode(const ColumnPath& path) const
{
    ColumnPath plain = path;
    plain.isUnit = false;
    const QString text = plain.text();
    for (int i = 0; i < nodes.size(); ++i) {
        if (pathOf(i).text() == text) {
            return i;
        }
    }
    return -1;
}

ColumnPath ColumnTree::pathOf(int index) const
{
    ColumnPath path;
    path.isGeneric = nodes[index].isGeneric;
    for (; index >= 0; index = nodes[index].outer) {
        path.steps.prepend(nodes[index].step);
    }
    if (path.isGeneric) {
        path.steps.removeFirst();
    }
    return path;
}

int ColumnTree::repeatedAround(int index) const
{
    do {
        index = nodes[index].outer;
    } while (index >= 0 && !nodes[index].isRepeated);
    return index;
}

QVector<int> ColumnTree::inOrder() const
{
    QVector<int> order;
    addInOrder(outermost, order);
    return order;
}

void ColumnTree::addInOrder(const QVector<int>& indexes, QVector<int>& order) const
{
    for (const int index : indexes) {
        order += index;
        order += nodes[index].occurrences;
        addInOrder(nodes[index].inner, order);
    }
}

} // namespace tolvik::tables
