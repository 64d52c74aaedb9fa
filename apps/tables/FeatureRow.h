#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>
#include <QVector>

class QDataStream;

namespace tolvik::tables {

/// What one feature has for the tables of its type.
struct FeatureRow
{
    /// A group of the property tree that the feature has.
    struct Group
    {
        int node;       ///< of the feature type's ColumnTree
        int outer;      ///< index of the group around it; -1 for none
        int occurrence; ///< counted from 1 among the siblings of the same label
    };

    struct Cell
    {
        int node;  ///< of the feature type's ColumnTree
        int group; ///< index of the group around it; -1 for none
        QVariant value;
        QString unit; ///< empty for a value without one
    };

    QString type;
    QString id;     ///< null where the feature has none
    QString parent; ///< identifier of the feature around it; null where there is none
    QString name;   ///< null where the feature has none
    QVector<Group> groups;
    QVector<Cell> cells;
    QByteArray geometry;  ///< well-known binary; empty for none
    QString geometryFrom; ///< what the geometry was made of
};

QDataStream& operator<<(QDataStream& stream, const FeatureRow& row);
QDataStream& operator>>(QDataStream& stream, FeatureRow& row);

} // namespace tolvik::tables
