#pragma once

#include "scene/Batch.h"
#include "scene/Images.h"

#include <memory>
#include <osg/Array>
#include <osg/Geometry>
#include <osg/MatrixTransform>
#include <osg/ref_ptr>
#include <vector>

namespace tolvik::scene {

/// What a look means for the arrays of a mesh.
enum class LookKind : std::uint8_t { None, Material, Texture };

struct LookArrays
{
    LookKind kind = LookKind::None;
    /// Of a material: red, green, blue, opacity.
    std::array<std::uint8_t, 4> colour = {255, 255, 255, 255};
    /// Of a texture.
    std::shared_ptr<const Picture> picture;
};

/// Where the attributes of a vertex are bound, besides its position.
enum VertexAttribute : unsigned {
    PlaceAttribute = 4,
    NormalAttribute = 5,
    FeatureAttribute = 6,
    ColourAttribute = 7
};

/// One drawable of a tile, before it has its state.
struct TileDrawable
{
    enum class Part { Faces, Edges, Marks };

    Part part = Part::Faces;
    /// That of the faces; 0 for none.
    std::uint32_t look = 0;
    osg::ref_ptr<osg::Geometry> geometry;
};

/// What a batch has become: drawables of about 1,400 triangles, with coordinates relative to the tile.
struct TileMesh
{
    /// Of the coordinates, in those of the document.
    citygml::Position origin = {};
    std::vector<TileDrawable> drawables;
    std::size_t triangles = 0;
    /// That of the largest surface, as sizeOf() tells it.
    double largestSurface = 0;
    /// Surfaces without an area, which have no triangles.
    std::size_t degenerate = 0;
};

/// Cuts the surfaces of a batch into triangles, and reads the pictures that are painted upon them, which may
/// take longer. For any thread.
///
/// A vertex carries the number of its feature and its level of detail, as vertexTag() makes it, so that
/// the shader finds the feature's state.
/// \param looks by the numbers that patches have; the first is that of none
TileMesh buildTile(const Batch& batch, const std::vector<LookArrays>& looks);

/// A number for the extent of a surface, in one byte of its vertices: the shader leaves out the edges of a
/// surface that is small in the picture.
/// \param area of the surface, above 0
/// \return the binary logarithm of the square root, times sizeSteps
int sizeByte(double area);
constexpr int sizeSteps = 8;

/// The feature and the level of detail of a vertex: the slot times 8, plus the level plus 1, or 0 for none.
constexpr std::uint32_t vertexTag(Slot slot, int lod)
{
    return slot << 3 | static_cast<std::uint32_t>(lod + 1);
}
constexpr Slot slotOfTag(std::uint32_t tag)
{
    return tag >> 3;
}
constexpr int lodOfTag(std::uint32_t tag)
{
    return static_cast<int>(tag & 7) - 1;
}

} // namespace tolvik::scene
