#pragma once

#include "apps/tables/CellType.h"
#include "apps/tables/ColumnPath.h"

#include <optional>
#include <QString>
#include <QVector>
#include <vector>

namespace tolvik::tables {

/// New values for the attributes of features.
struct EditTable
{
    /// What the cells of a column say.
    enum class Role {
        Value,  ///< the value of a property
        Name,   ///< the first name of the feature
        Parent, ///< what the table may tell, and cannot change
        Type,   ///< the same
    };

    struct Column
    {
        QString name; ///< as it stands in the table
        Role role = Role::Value;
        ColumnPath path;
        QString unit;                 ///< of all values; empty where the table tells none
        int unitColumn = -1;          ///< index of the column that has the units; -1 for none
        std::optional<CellType> type; ///< where the source has types
    };

    struct Row
    {
        QString id;
        QString file; ///< empty where the table names none
        qint64 line = 0;
        int ordinal = 0;        ///< of the group in its feature, from 1; 0 in a table of features
        QVector<QString> cells; ///< in the order of the columns; an empty one says nothing
    };

    /// The type that all cells of a column fit, where the source has no types.
    /// \param absentWord cell that has no value; so has an empty one
    CellType typeOf(int column, const QString& absentWord) const;

    QString name;
    /// How people count the rows of the source: as lines of a text or spreadsheet, or as rows.
    QString lineWord;
    QVector<Column> columns;
    std::vector<Row> rows;
    /// Number of steps of the paths that lead to the group whose rows these are; 0 in a table of features.
    int groupDepth = 0;
};

} // namespace tolvik::tables
