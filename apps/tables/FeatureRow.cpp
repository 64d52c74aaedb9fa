#include "apps/tables/FeatureRow.h"

#include <QDataStream>

namespace tolvik::tables {

namespace {

QDataStream& operator<<(QDataStream& stream, const FeatureRow::Group& group)
{
    return stream << group.node << group.outer << group.occurrence;
}

QDataStream& operator>>(QDataStream& stream, FeatureRow::Group& group)
{
    return stream >> group.node >> group.outer >> group.occurrence;
}

QDataStream& operator<<(QDataStream& stream, const FeatureRow::Cell& cell)
{
    return stream << cell.node << cell.group << cell.value << cell.unit;
}

QDataStream& operator>>(QDataStream& stream, FeatureRow::Cell& cell)
{
    return stream >> cell.node >> cell.group >> cell.value >> cell.unit;
}

/// The stream's own operators are templates that do not find those above.
template <typename T>
void writeAll(QDataStream& stream, const QVector<T>& entries)
{
    stream << entries.size();
    for (const T& entry : entries) {
        stream << entry;
    }
}

template <typename T>
void readAll(QDataStream& stream, QVector<T>& entries)
{
    int size = 0;
    stream >> size;
    entries.resize(size);
    for (T& entry : entries) {
        stream >> entry;
    }
}

} // namespace

QDataStream& operator<<(QDataStream& stream, const FeatureRow& row)
{
    stream << row.type << row.id << row.parent << row.name;
    writeAll(stream, row.groups);
    writeAll(stream, row.cells);
    return stream << row.geometry << row.geometryFrom;
}

QDataStream& operator>>(QDataStream& stream, FeatureRow& row)
{
    stream >> row.type >> row.id >> row.parent >> row.name;
    readAll(stream, row.groups);
    readAll(stream, row.cells);
    return stream >> row.geometry >> row.geometryFrom;
}

} // namespace tolvik::tables
