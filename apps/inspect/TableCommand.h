#pragma once

#include "TableModule.h"

namespace tolvik::inspect {

/// Writes the features of documents as tables, each document at its turn.
/// \return the program's exit code
/// \throws TableUsageError
int runTable(const TableOptions& options, const TableDocuments& documents);

/// Joins files of columns, see TableModule::joinColumns().
/// \return the program's exit code
int runColumns(const QString& out, const TableDocuments& files);

} // namespace tolvik::inspect
