#pragma once

#include "apps/common/DocumentSaving.h"

#include <iosfwd>

class QString;

namespace tolvik::inspect {

/// Saves a document under a name, see DocumentSaving.
/// \param err takes one line that says what could not be saved and why, or why all was written anew
/// \return whether the document is saved
bool saveDocument(apps::DocumentSaving& saving, const QString& output, apps::DocumentSaving::Form form,
                  std::ostream& err);

} // namespace tolvik::inspect
