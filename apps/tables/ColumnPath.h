#pragma once

#include <QString>
#include <QVector>

namespace tolvik::tables {

/// The way to a property of a feature as the name of a column: labels with `/` between them, such as
/// "Fields/MeasuredHeight"; `[2]` behind a label takes the second of equal ones. Generic attributes are
/// "gen:NAME", and those of a set "gen:SET/NAME". In a label `/`, `[` and `\` have a `\` in front, and so has
/// a `gen:` that begins the first one.
struct ColumnPath
{
    struct Step
    {
        QString label;
        int occurrence = 1; ///< counted from 1 among siblings of the label
    };

    /// Path of what a text says.
    static ColumnPath parse(const QString& text);
    QString text() const;

    /// Labels below the root of a property tree; of a generic attribute below the group "Fields".
    QVector<Step> steps;
    bool isGeneric = false;
    /// Whether the column has the unit of the value instead of the value: `/@uom` stands behind the path.
    bool isUnit = false;
};

} // namespace tolvik::tables
