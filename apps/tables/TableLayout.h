#pragma once

#include "apps/tables/CellType.h"

#include <QString>
#include <QVector>

namespace tolvik::tables {

/// A column that has the values of one property, or their units.
struct Column
{
    QString path; ///< see ColumnPath; also the column's name
    CellType type = CellType::Text;
    QString unit;  ///< of all values; empty for none, and where another column has the units
    int node = -1; ///< of the feature type's ColumnTree
    bool isUnit = false;
};

/// A table of the features of one type, or of a group of properties that such a feature may have several of.
struct TableLayout
{
    QString name;
    QString type;
    int group = -1;    ///< node of the group; -1 for the table of the features
    QString groupPath; ///< empty for the table of the features
    QVector<Column> columns;
};

} // namespace tolvik::tables
