#pragma once

#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

namespace testsupport {

/// Fields of a line of a table, by the names of their columns.
using TableRow = QHash<QString, QString>;

/// The lines of a table of the tests' data, whose first line names the columns; no table ends the program.
QVector<TableRow> readTable(const QString& name);

/// The same by the field of the column \a key, in the order of the table.
QHash<QString, QVector<TableRow>> readTableBy(const QString& name, const QString& key);

/// The literals of each enumerated type, in the order that the table gives them.
const QMap<QString, QVariantList>& enumerationLiterals();

} // namespace testsupport
