#pragma once

#include "apps/tables/EditTable.h"

#include <QString>
#include <QStringList>
#include <vector>

namespace tolvik::tables {

/// Where a table of new values is read from.
struct EditSource
{
    QString path; ///< what OGR opens: a file, a folder of CSV files, a database
    QString idColumn = QStringLiteral("gml:id"); ///< column that names the feature
    QString query; ///< SQL that makes the table; empty for all tables of the source
};

/// Reads all tables that a source has for features.
/// \param remarks gets what was left out, a line each
/// \throws TableError where it cannot be read, or none of its tables has the column of identifiers
std::vector<EditTable> readTables(const EditSource& source, QStringList& remarks);

/// The names of the columns that the tables of a source have, each once.
/// \throws TableError where it cannot be read
QStringList columnsOf(const QString& path);

} // namespace tolvik::tables
