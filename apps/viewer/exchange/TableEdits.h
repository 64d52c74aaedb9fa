#pragma once

#include <memory>
#include <QString>

namespace tolvik::tables {
struct PlannedChange;
}

namespace tolvik::viewer {

class Document;
class RecordedEdit;

/// Does what a cell of a table changes in the document.
/// \param[out] refusal why it cannot be done, with nothing changed; empty where it is done
/// \return the step for the history; null where nothing has changed
std::unique_ptr<RecordedEdit> makeTableEdit(Document& document, const tables::PlannedChange& planned,
                                            QString& refusal);

} // namespace tolvik::viewer
