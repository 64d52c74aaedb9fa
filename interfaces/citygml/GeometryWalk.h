#pragma once

#include "BindingExport.h"
#include "xml-schema.hxx"

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace gml {
class AbstractFeatureType;
}

namespace citygml {

/// Coordinates in the order and the units in which the document gives them. The third is 0 where the document
/// gives two.
using Position = std::array<double, 3>;

/// A closed ring of a surface, or a line, among the positions of a piece.
struct PositionRun
{
    std::size_t begin = 0; ///< index of the first position
    std::size_t end = 0;   ///< index behind the last
    /// The `gml:LinearRing` or `gml:Ring` of a surface, or the curve; textures name rings by its identifier.
    const xml_schema::type* object = nullptr;
};

/// The smallest part of a geometry that can be drawn by itself: a planar surface, a line, a point, or an
/// object in a file of its own.
struct GeometryPiece
{
    /// What the piece is. A surface has an outer ring, then those of its holes; a line has one run; a point
    /// has one position; an object in a file has none.
    enum class Kind { Surface, Line, Point, LibraryObject };

    Kind kind = Kind::Surface; ///< what the piece is
    /// Number of coordinates that each position had in the document: 2 or 3.
    int dimension = 3;
    /// The feature that the piece belongs to.
    const gml::AbstractFeatureType* owner = nullptr;
    /// Level of detail from 0 to 4; -1 for a geometry without one, such as the point of an address.
    int lod = -1;
    /// Local name of the owner's member that the piece is in, such as `lod2Solid`; lives as long as the
    /// program.
    const std::string* member = nullptr;

    /// Where an `xlink:href` led to the piece: the feature in which it stands, and the level of detail that
    /// it has there. Null for a piece that stands in its owner.
    const gml::AbstractFeatureType* holder = nullptr;
    int holderLod = -1; ///< see holder

    /// Geometries around the piece, the outermost first, and the piece's own object at the end.
    std::vector<const xml_schema::type*> objects;
    std::vector<Position> positions; ///< of all runs, one run behind the other
    std::vector<PositionRun> runs;   ///< the rings or the line; none for a point
    /// Whether an orientable surface or curve around the piece turns it round; the positions are in the order
    /// of the document all the same.
    bool isReversed = false;
    /// Whether the piece is part of an implicit geometry, placed by its matrix and reference point.
    bool isImplicit = false;

    /// Of an object in a file: where the file lies, as the document says it, and of which kind it is.
    /// @{
    std::string libraryObject;
    std::string mimeType;
    /// @}
    /// Of an object in a file: takes its coordinates to those of the document; row by row, for column
    /// vectors.
    std::array<double, 16> placement = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
};

/// Goes through the geometries of one feature, in all levels of detail, but not through those of the features
/// below it, and hands over each piece.
///
/// Solids, composites, aggregates, orientable surfaces and curves, patches of surfaces, implicit geometries
/// and references to identifiers of the same document are resolved. Curves other than straight ones are taken
/// as the lines between their positions, except arcs through three points, which are cut into short ones.
/// References that lead nowhere or in circles, geometries defined by a grid, and surfaces without a ring are
/// left out.
///
/// Any number of threads may walk in one document while nobody changes it.
/// \param feature of a document
/// \param receive called for each piece; what it is given changes with the next call
TOLVIK_BINDING_EXPORT void walkGeometry(const gml::AbstractFeatureType& feature,
                                        const std::function<void(const GeometryPiece& piece)>& receive);

/// Where a walk through a feature has stopped.
struct GeometryWalkPlace
{
    /// Which of the children has been reached, from the feature inwards; empty for a walk that is to begin.
    std::vector<std::size_t> path;
    /// How many references have been followed: of a walk in parts as well there is a limit.
    int references = 0;
};

/// The same in parts, for a thread that has other things to do meanwhile.
/// \code
/// GeometryWalkPlace place;
/// while (walkGeometry(feature, place, [&](const GeometryPiece& piece) { return isTimeLeft(); })) {
///     // other things
/// }
/// \endcode
/// If the feature's geometry changes meanwhile, pieces may be left out or come twice.
/// \param place   where the walk goes on, and then where it has stopped
/// \param receive called for each piece; returns whether the walk goes on
/// \return whether the walk was stopped; what is left may turn out to be nothing
TOLVIK_BINDING_EXPORT bool walkGeometry(const gml::AbstractFeatureType& feature, GeometryWalkPlace& place,
                                        const std::function<bool(const GeometryPiece& piece)>& receive);

/// The innermost feature around an object, or the object itself; null for one that is in no feature.
TOLVIK_BINDING_EXPORT const gml::AbstractFeatureType* featureAround(const xml_schema::type& object);

/// The object of a document that has a `gml:id`.
/// \param document any object of the document
/// \return null where none has it
TOLVIK_BINDING_EXPORT const xml_schema::type* findById(const xml_schema::type& document,
                                                       const std::string& id);

} // namespace citygml
