#pragma once

#include <iosfwd>

class QString;

namespace tolvik {
class CityGMLModel;
}

namespace tolvik::apps {
class SourceFile;
}

namespace tolvik::inspect {

/// Loads a document into a model.
/// \param model the model to load into
/// \param file path of the document; `-` reads standard input
/// \param err takes one line that says what could not be loaded, and why
/// \param[out] source where the document comes from, as it was then; may be null
/// \return whether the model has the document
bool loadDocument(CityGMLModel& model, const QString& file, std::ostream& err,
                  apps::SourceFile* source = nullptr);

/// Says in one line that a document could not be loaded.
void tellNotLoaded(const QString& file, const QString& reason, std::ostream& err);

} // namespace tolvik::inspect
