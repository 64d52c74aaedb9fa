#include "apps/tables/TableCatalogue.h"

#include "apps/tables/TableError.h"

#include <algorithm>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace tolvik::tables {

namespace {

Column columnOf(const ColumnTree& tree, int node)
{
    const ColumnTree::Node& property = tree.node(node);
    Column column;
    column.path = tree.pathOf(node).text();
    column.type = property.type;
    column.unit = property.hasOtherUnits ? QString() : property.unit;
    column.node = node;
    return column;
}

Column unitColumnOf(const ColumnTree& tree, int node)
{
    ColumnPath path = tree.pathOf(node);
    path.isUnit = true;
    Column column;
    column.path = path.text();
    column.node = node;
    column.isUnit = true;
    return column;
}

/// The table of a node's column: that of the repeated group around it, made where it is not there, or the
/// first.
TableLayout& tableFor(QVector<TableLayout>& tables, const ColumnTree& tree, int node)
{
    const ColumnTree::Node& property = tree.node(node);
    const int group = property.isRepeated ? node : tree.repeatedAround(node);
    const auto found = std::find_if(tables.begin(), tables.end(),
                                    [group](const TableLayout& table) { return table.group == group; });
    if (found != tables.end()) {
        return *found;
    }
    TableLayout table;
    table.type = tables.first().type;
    table.name = table.type + '_' + tree.node(group).step.label;
    const auto isTaken = [&tables](const QString& name) {
        return std::any_of(tables.begin(), tables.end(),
                           [&name](const TableLayout& other) { return other.name == name; });
    };
    for (int number = 2; isTaken(table.name); ++number) {
        table.name = QStringLiteral("%1_%2%3").arg(table.type, tree.node(group).step.label).arg(number);
    }
    table.group = group;
    table.groupPath = tree.pathOf(group).text();
    tables += table;
    return tables.last();
}

QJsonObject jsonOf(const Column& column)
{
    QJsonObject object{{"path", column.path}, {"type", nameOf(column.type)}};
    if (!column.unit.isEmpty()) {
        object.insert("unit", column.unit);
    }
    return object;
}

QJsonObject jsonOf(const TableLayout& table)
{
    QJsonArray columns;
    for (const Column& column : table.columns) {
        columns += jsonOf(column);
    }
    QJsonObject object{{"name", table.name}, {"type", table.type}, {"columns", columns}};
    if (!table.groupPath.isEmpty()) {
        object.insert("group", table.groupPath);
    }
    return object;
}

/// \throws TableError
Column columnFrom(const QJsonObject& object, ColumnTree& tree)
{
    Column column;
    column.path = object.value("path").toString();
    const std::optional<CellType> type = cellTypeNamed(object.value("type").toString());
    const ColumnPath path = ColumnPath::parse(column.path);
    if (path.steps.isEmpty() || !type) {
        throw TableError(QStringLiteral("the column \"%1\" has no path or no known type").arg(column.path));
    }
    column.type = *type;
    column.unit = object.value("unit").toString();
    column.isUnit = path.isUnit;
    column.node = tree.nodeAt(path);
    if (column.isUnit) {
        tree.node(column.node).hasOtherUnits = true;
    } else {
        tree.note(column.node, column.type, column.unit);
    }
    return column;
}

} // namespace

ColumnTree* TableCatalogue::treeOf(const QString& type)
{
    const auto found = trees.find(type);
    if (found != trees.end()) {
        return &found->second;
    }
    if (fixed) {
        return nullptr;
    }
    types += type;
    return &trees[type];
}

bool TableCatalogue::has(const QString& column) const
{
    const ColumnPath path = ColumnPath::parse(column);
    return std::any_of(trees.begin(), trees.end(), [&path](const auto& entry) {
        const int node = entry.second.findNode(path);
        return node >= 0 && entry.second.node(node).hasValues;
    });
}

QStringList TableCatalogue::leftOut() const
{
    QStringList lines;
    for (const auto& [type, tree] : trees) {
        for (auto it = tree.leftOut().cbegin(); it != tree.leftOut().cend(); ++it) {
            lines +=
                QStringLiteral("%1 values of %2 of %3 have no column").arg(it.value()).arg(it.key(), type);
        }
    }
    return lines;
}

QVector<TableLayout> TableCatalogue::layouts(const QStringList& columns) const
{
    if (fixed) {
        return loaded;
    }
    QVector<TableLayout> all;
    for (const QString& type : types) {
        all += layoutsOf(type, columns);
    }
    return all;
}

QVector<TableLayout> TableCatalogue::layoutsOf(const QString& type, const QStringList& columns) const
{
    const ColumnTree& tree = trees.at(type);
    QVector<int> nodes;
    for (const QString& column : columns) {
        nodes += tree.findNode(ColumnPath::parse(column));
    }
    if (columns.isEmpty()) {
        nodes = tree.inOrder();
    }
    QVector<TableLayout> tables(1);
    tables.first().name = tables.first().type = type;
    for (const int node : qAsConst(nodes)) {
        if (node < 0 || !tree.node(node).hasValues) {
            continue;
        }
        const Column column = columnOf(tree, node);
        if (columns.isEmpty() && isTold(column.path)) {
            continue;
        }
        TableLayout& table = tableFor(tables, tree, node);
        table.columns += column;
        if (tree.node(node).hasOtherUnits) {
            table.columns += unitColumnOf(tree, node);
        }
    }
    return tables;
}

void TableCatalogue::load(const QString& path)
{
    loaded = read(path);
    if (loaded.isEmpty()) {
        throw TableError(QStringLiteral("%1 names no tables").arg(path));
    }
    fixed = true;
    for (auto& [type, tree] : trees) {
        tree.fix();
    }
}

void TableCatalogue::merge(const QString& path)
{
    read(path);
}

/// The tables of a file, whose columns become part of the trees.
QVector<TableLayout> TableCatalogue::read(const QString& path)
{
    QVector<TableLayout> tables;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw TableError(QStringLiteral("%1 could not be read: %2").arg(path, file.errorString()));
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (error.error != QJsonParseError::NoError) {
        throw TableError(QStringLiteral("%1 is no file of columns: %2").arg(path, error.errorString()));
    }
    if (!document.object().value("tables").isArray()) {
        throw TableError(QStringLiteral("%1 is no file of columns").arg(path));
    }
    const QJsonArray written = document.object().value("tables").toArray();
    for (const auto& value : written) {
        const QJsonObject object = value.toObject();
        TableLayout table;
        table.name = object.value("name").toString();
        table.type = object.value("type").toString();
        table.groupPath = object.value("group").toString();
        ColumnTree& tree = *treeOf(table.type);
        if (!table.groupPath.isEmpty()) {
            table.group = tree.nodeAt(ColumnPath::parse(table.groupPath));
            tree.node(table.group).isRepeated = true;
        }
        const QJsonArray columns = object.value("columns").toArray();
        for (const auto& column : columns) {
            table.columns += columnFrom(column.toObject(), tree);
        }
        tables += table;
    }
    return tables;
}

void TableCatalogue::save(const QString& path, const QVector<TableLayout>& tables)
{
    QJsonArray array;
    for (const TableLayout& table : tables) {
        array += jsonOf(table);
    }
    QSaveFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(QJsonDocument(QJsonObject{{"tables", array}}).toJson());
    if (!file.commit()) {
        throw TableError(QStringLiteral("%1 could not be written: %2").arg(path, file.errorString()));
    }
}

} // namespace tolvik::tables
