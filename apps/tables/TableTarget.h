#pragma once

#include "apps/tables/TableFormat.h"

#include <QString>

namespace tolvik::tables {

/// Where tables go.
struct TableTarget
{
    /// A file; a folder, for a format that has a file for each table; or a database.
    QString path;
    const TableFormat* format = nullptr;
    /// Whether the file is the table of the only type of features; tables of groups then stand beside it.
    bool isOneType = false;
    bool hasGeometry = false;
    /// Whether tables that are in the database get more rows, in place of being written anew.
    bool append = false;
};

} // namespace tolvik::tables
