#pragma once

#include <memory>
#include <QString>
#include <vector>

namespace tolvik::tables {
struct PlannedChange;
}

namespace tolvik::viewer {

class Document;
class EditGroup;

/// What cells of a table change in the document, as an edit that is yet to be done.
/// \param text    what the history calls the step
/// \param changes those of a feature one behind the other
std::unique_ptr<EditGroup> tableEdit(Document& document, const QString& text,
                                     const std::vector<tables::PlannedChange>& changes);

} // namespace tolvik::viewer
