#pragma once

#include "TableModule.h"

namespace tolvik::inspect {

/// Sets attributes of documents from tables, see TableModule::applyTables().
/// \return the program's exit code
/// \throws TableUsageError
int runApply(const ApplyOptions& options, const TableDocuments& documents);

} // namespace tolvik::inspect
