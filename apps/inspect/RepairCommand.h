#pragma once

#include "apps/common/DocumentSaving.h"

#include <iosfwd>

class QString;

namespace tolvik::inspect {

/// Puts right in a document what can be put right without guessing, and saves it under another name; where
/// nothing is to be put right it is saved as it is.
/// \param output must not be the document itself, also by way of a link
/// \param out    takes one line for each thing that was put right, once the document is saved
/// \param err    takes the reason of a failure
/// \return the program's exit code: 0, or 1 on failure
int runRepair(const QString& file, const QString& output, apps::DocumentSaving::Form form, std::ostream& out,
              std::ostream& err);

} // namespace tolvik::inspect
