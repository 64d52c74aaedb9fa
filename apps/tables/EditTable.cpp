#include "apps/tables/EditTable.h"

#include <QDate>

namespace tolvik::tables {

CellType EditTable::typeOf(int column, const QString& absentWord) const
{
    if (columns[column].type) {
        return *columns[column].type;
    }
    std::optional<CellType> type;
    for (const Row& row : rows) {
        const QString& cell = row.cells[column];
        if (cell.isEmpty() || cell == absentWord) {
            continue;
        }
        bool isReal = false;
        cell.toDouble(&isReal);
        CellType own = isReal ? CellType::Real : CellType::Text;
        if (QString::number(cell.toLongLong()) == cell) {
            own = CellType::Whole;
        } else if (QDate::fromString(cell, Qt::ISODate).toString(Qt::ISODate) == cell) {
            own = CellType::Date;
        }
        type = type ? widened(*type, own) : own;
    }
    return type.value_or(CellType::Text);
}

} // namespace tolvik::tables
