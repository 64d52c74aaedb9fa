#pragma once

#include "apps/common/DocumentSaving.h"

#include <QString>

#include <iosfwd>
#include <string>

namespace tolvik {
class CityGMLModel;
}

namespace tolvik::inspect {

/// What `tolvik-inspect set` edits.
struct SetOptions
{
    /// gml:id of the feature.
    std::string id;
    /// Labels from the root down, joined by `/`; `[n]` behind a label takes the n-th of equal ones, counted
    /// from 1.
    QString path;
    /// The new value as text.
    QString value;
    /// File to write.
    QString output;
    apps::DocumentSaving::Form form;
    /// What a failure is told of; empty where there is but one document.
    QString document;
};

/// Edits one value of a loaded document through its property and saves the document.
/// Nothing is written unless the value has reached the document.
/// \param source what the document was read from
/// \param err takes the reason of a failure
/// \return the program's exit code: 0, or 1 on failure
int runSet(CityGMLModel& model, const apps::SourceFile& source, const SetOptions& options, std::ostream& err);

} // namespace tolvik::inspect
