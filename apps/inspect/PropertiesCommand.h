#pragma once

#include <QString>

#include <iosfwd>
#include <optional>
#include <string>

namespace tolvik {
class CityGMLModel;
}

namespace tolvik::inspect {

/// What `tolvik-inspect properties` shows. One of the three selections is given.
struct PropertiesOptions
{
    std::optional<std::string> id;
    std::optional<int> row;
    bool every = false;
    /// Show the attributes too that the feature could have and has not.
    bool absent = false;
    bool json = false;
};

/// Prints the property trees of the selected features of a loaded document.
/// \param file the document's name in messages
/// \param out  takes the trees, in UTF-8; nothing on a failure
/// \param err  takes the reason of a failure
/// \return the program's exit code: 0, or 1 for a selection that selects nothing
int runProperties(tolvik::CityGMLModel& model, const QString& file, const PropertiesOptions& options,
                  std::ostream& out, std::ostream& err);

} // namespace tolvik::inspect
