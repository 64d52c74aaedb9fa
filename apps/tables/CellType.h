#pragma once

#include <optional>
#include <QString>
#include <QVariant>

namespace tolvik::tables {

/// What the cells of a column hold.
enum class CellType {
    Text,
    Whole,    ///< whole numbers of 64 bits
    Real,     ///< numbers in double precision
    Boolean,  ///< truth values
    Date,     ///< days without a time zone
    DateTime, ///< moments without a time zone, in whole seconds
    List      ///< lists of texts, numbers or truth values, as JSON
};

/// The type of the column that a value needs; none for an invalid value, and for a day or moment that is
/// none.
std::optional<CellType> cellType(const QVariant& value);

/// The type that holds the values of both: text where nothing narrower does.
CellType widened(CellType a, CellType b);

/// Whether a column of one type holds the values of another without loss.
bool holds(CellType column, CellType value);

/// Name of a type in a file of columns, such as "real".
QString nameOf(CellType type);
/// The type of a name; none for a text that is no name.
std::optional<CellType> cellTypeNamed(const QString& name);

/// A value as text: numbers as short as they can be told apart, days and moments in ISO 8601, lists as JSON.
QString cellText(const QVariant& value);

} // namespace tolvik::tables
