#pragma once

#include <QString>
#include <QStringList>

namespace tolvik::tables {

/// A kind of files, or a database, that tables are written to.
struct TableFormat
{
    const char* name;   ///< as the user writes it
    const char* driver; ///< of OGR
    const char* ending; ///< of the files, without the dot; empty for a database
    bool holdsSeveral;  ///< whether one target has all tables, or each table is a file
    bool holdsGeometry; ///< whether rows have a geometry without being asked
};

/// The format of a name, null for an unknown one.
const TableFormat* formatNamed(const QString& name);

/// The format that a target has by its ending or its beginning; null where that tells none.
const TableFormat* formatOf(const QString& target);

/// The names of all formats.
QStringList formatNames();

} // namespace tolvik::tables
