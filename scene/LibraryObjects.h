#pragma once

#include "citygml/GeometryWalk.h"

#include <map>
#include <QString>
#include <vector>

namespace tolvik::scene {

/// The shapes of objects that lie in files of their own, such as trees and lamps, as triangles. OBJ and STL
/// are read here: the readers of the scene library fall over files that are not as they should be.
class LibraryObjects
{
public:
    /// The corners of the triangles of a file, three for each; none for a file that is of no known kind or
    /// cannot be read, and for an empty path. Only the file itself is read, nothing that it names.
    const std::vector<citygml::Position>& trianglesOf(const QString& path);

private:
    std::map<QString, std::vector<citygml::Position>> known;
};

} // namespace tolvik::scene
