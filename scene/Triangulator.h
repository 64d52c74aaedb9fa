#pragma once

#include "citygml/GeometryWalk.h"

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace tolvik::scene {

/// Cuts planar surfaces with holes into triangles. One triangulator serves one thread.
///
/// Coordinates are taken relative to a position of the surface, so that those of a reference system with
/// large numbers lose nothing. Rings may be closed or open, and of either direction.
class Triangulator
{
public:
    /// A corner that no ring has: two edges cross there. Its position is the weighted mean of four others.
    struct Crossing
    {
        citygml::Position position;
        std::array<std::uint32_t, 4> of; ///< indexes of positions of the surface
        std::array<float, 4> weights;    ///< their parts; of sum 1
    };

    Triangulator();
    Triangulator(const Triangulator&) = delete;
    Triangulator& operator=(const Triangulator&) = delete;
    ~Triangulator();

    /// \param runs the outer ring and those of the holes
    /// \return false for a surface without an area: it has no triangles
    bool triangulate(const std::vector<citygml::Position>& positions,
                     const std::vector<citygml::PositionRun>& runs);

    /// Corners of the triangles of the last surface, three for each. A number behind those of the positions
    /// is that of a crossing.
    const std::vector<std::uint32_t>& triangles() const { return corners; }
    const std::vector<Crossing>& crossings() const { return crossed; }
    /// Upright on the last surface and of length 1; to the side from which its outer ring runs
    /// counterclockwise.
    const citygml::Position& normal() const { return up; }
    /// What the outer ring of the last surface encloses, in the square of the unit of the positions.
    double area() const { return enclosed; }

private:
    using Ring = std::vector<std::uint32_t>;
    struct Tessellation;

    Ring distinctCorners(const citygml::PositionRun& run) const;
    bool findNormal(const std::vector<Ring>& rings);
    bool addQuad(const Ring& ring);
    bool isTriangleUpright(std::uint32_t a, std::uint32_t b, std::uint32_t c) const;
    void tessellate(const std::vector<Ring>& rings);

    const std::vector<citygml::Position>* given = nullptr;
    citygml::Position origin = {};
    citygml::Position up = {};
    double enclosed = 0;
    std::vector<std::uint32_t> corners;
    std::vector<Crossing> crossed;
    std::unique_ptr<Tessellation> tessellation;
};

} // namespace tolvik::scene
