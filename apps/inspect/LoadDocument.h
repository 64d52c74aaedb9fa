#pragma once

#include <iosfwd>

class QString;

namespace tolvik {
class CityGMLModel;
}

namespace tolvik::inspect {

/// Loads a document into a model that has none yet.
/// \param model the model to load into
/// \param file path of the document; `-` reads standard input
/// \param err takes one line that says what could not be loaded; the reason that the parser gives is in the
/// log
/// \return whether the model has the document
bool loadDocument(CityGMLModel& model, const QString& file, std::ostream& err);

} // namespace tolvik::inspect
