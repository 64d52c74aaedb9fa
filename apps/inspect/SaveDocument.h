#pragma once

#include <iosfwd>

class QString;

namespace tolvik {
class CityGMLModel;
}

namespace tolvik::inspect {

/// Saves the model's document under a name. The document is written beside it first and takes the name when
/// it is there as a whole: a file of that name is replaced or left as it was, never damaged. It keeps its
/// permissions.
/// \param output path of a file that may be there or not; may be the file that the document was loaded from
/// \param err    takes one line that says what could not be saved and why
/// \return whether the document is saved; the model goes by the name \a output then
bool saveDocument(CityGMLModel& model, const QString& output, std::ostream& err);

} // namespace tolvik::inspect
