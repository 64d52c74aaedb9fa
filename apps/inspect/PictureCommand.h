#pragma once

#include <iosfwd>
#include <optional>
#include <QSize>
#include <QString>

namespace tolvik {
class CityGMLModel;
}

namespace tolvik::inspect {

/// What `tolvik-inspect picture` draws.
struct PictureOptions
{
    /// Where the picture goes.
    QString output;
    /// A level of detail for all; the highest of each feature without.
    std::optional<int> lod;
    /// Path of the property that gives the colours; empty for those of the types.
    QString colourBy;
    QSize size = QSize(1280, 800);
};

/// Draws the features of a loaded document into a PNG file, without a display.
/// \param err takes the reason of a failure, and what was not found
/// \return the program's exit code: 0, or 1 where nothing was drawn
int runPicture(CityGMLModel& model, const PictureOptions& options, std::ostream& err);

} // namespace tolvik::inspect
