#include "scene/Triangulator.h"

#include "scene/Vectors.h"

#include <algorithm>
#include <deque>
#include <osg/GLU>

namespace tolvik::scene {

using citygml::Position;
using citygml::PositionRun;

namespace {

/// A surface whose area is a smaller part of the square of its extent is a line.
constexpr double thinnest = 1e-9;

/// Twice the area vector of a ring.
Position areaOf(const std::vector<std::uint32_t>& ring, const std::vector<Position>& positions,
                const Position& origin)
{
    Position sum = {};
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const Position a = difference(positions[ring[i]], origin);
        const Position b = difference(positions[ring[(i + 1) % ring.size()]], origin);
        const Position part = cross(a, b);
        for (std::size_t axis = 0; axis < 3; ++axis) {
            sum[axis] += part[axis];
        }
    }
    return sum;
}

} // namespace

/// The tessellator of the scene library, with what it calls back.
struct Triangulator::Tessellation
{
    explicit Tessellation(Triangulator& triangulator)
        : triangulator(triangulator), tessellator(osg::gluNewTess())
    {
        using Callback = void(GL_APIENTRY*)();
        const auto set = [this](GLenum which, auto* function) {
            osg::gluTessCallback(tessellator, which, reinterpret_cast<Callback>(function));
        };
        osg::gluTessProperty(tessellator, GLU_TESS_WINDING_RULE, GLU_TESS_WINDING_ODD);
        set(GLU_TESS_VERTEX_DATA, &vertex);
        set(GLU_TESS_COMBINE_DATA, &combine);
        // Its being set makes the tessellator give triangles alone, and neither fans nor strips.
        set(GLU_TESS_EDGE_FLAG, &edgeFlag);
        set(GLU_TESS_ERROR_DATA, &error);
    }
    ~Tessellation() { osg::gluDeleteTess(tessellator); }
    Tessellation(const Tessellation&) = delete;
    Tessellation& operator=(const Tessellation&) = delete;

    void run(const std::vector<Ring>& rings)
    {
        // The tessellator keeps the addresses.
        coordinates.clear();
        hasFailed = false;
        const Position& up = triangulator.up;
        osg::gluTessNormal(tessellator, up[0], up[1], up[2]);
        osg::gluTessBeginPolygon(tessellator, this);
        for (const Ring& ring : rings) {
            osg::gluTessBeginContour(tessellator);
            for (const std::uint32_t corner : ring) {
                coordinates.push_back(difference((*triangulator.given)[corner], triangulator.origin));
                osg::gluTessVertex(tessellator, coordinates.back().data(), toData(corner));
            }
            osg::gluTessEndContour(tessellator);
        }
        osg::gluTessEndPolygon(tessellator);
        triangulator.corners.resize(triangulator.corners.size() / 3 * 3);
        if (hasFailed) {
            triangulator.corners.clear();
        }
    }

private:
    static void* toData(std::size_t corner)
    {
        // NOLINTNEXTLINE(performance-no-int-to-ptr): it is handed back as it is, and never followed
        return reinterpret_cast<void*>(corner + 1);
    }
    static std::uint32_t toCorner(void* data)
    {
        return static_cast<std::uint32_t>(reinterpret_cast<std::size_t>(data) - 1);
    }

    static void GL_APIENTRY vertex(void* data, void* self)
    {
        static_cast<Tessellation*>(self)->triangulator.corners.push_back(toCorner(data));
    }
    static void GL_APIENTRY edgeFlag(GLboolean) {}
    static void GL_APIENTRY error(GLenum, void* self) { static_cast<Tessellation*>(self)->hasFailed = true; }

    static void GL_APIENTRY combine(GLdouble at[3], void* corners[4], GLfloat weights[4], void** result,
                                    void* self)
    {
        Triangulator& triangulator = static_cast<Tessellation*>(self)->triangulator;
        Crossing crossing;
        for (std::size_t axis = 0; axis < 3; ++axis) {
            crossing.position[axis] = at[axis] + triangulator.origin[axis];
        }
        for (std::size_t i = 0; i < 4; ++i) {
            // Where two corners are one, the others are not set.
            crossing.of[i] = corners[i] != nullptr ? toCorner(corners[i]) : 0;
            crossing.weights[i] = corners[i] != nullptr ? weights[i] : 0;
        }
        *result = toData(triangulator.given->size() + triangulator.crossed.size());
        triangulator.crossed.push_back(crossing);
    }

    Triangulator& triangulator;
    osg::GLUtesselator* const tessellator;
    std::deque<Position> coordinates;
    bool hasFailed = false;
};

Triangulator::Triangulator() : tessellation(std::make_unique<Tessellation>(*this)) {}

Triangulator::~Triangulator() = default;

bool Triangulator::triangulate(const std::vector<Position>& positions, const std::vector<PositionRun>& runs)
{
    given = &positions;
    corners.clear();
    crossed.clear();
    std::vector<Ring> rings;
    rings.reserve(runs.size());
    for (const PositionRun& run : runs) {
        rings.push_back(distinctCorners(run));
    }
    if (rings.empty() || rings.front().size() < 3) {
        return false;
    }
    const auto isTooShort = [](const Ring& ring) { return ring.size() < 3; };
    rings.erase(std::remove_if(rings.begin(), rings.end(), isTooShort), rings.end());
    origin = positions[rings.front().front()];
    if (!findNormal(rings)) {
        return false;
    }
    const Ring& outer = rings.front();
    if (rings.size() == 1 && outer.size() == 3) {
        corners = outer;
    } else if (rings.size() > 1 || outer.size() != 4 || !addQuad(outer)) {
        tessellate(rings);
    }
    return !corners.empty();
}

/// The corners of a ring without one that is equal to that before it. The last one of a closed ring is, too.
Triangulator::Ring Triangulator::distinctCorners(const PositionRun& run) const
{
    Ring ring;
    for (std::size_t i = run.begin; i < run.end; ++i) {
        const Position& position = (*given)[i];
        const bool isFinite = std::isfinite(position[0] + position[1] + position[2]);
        if (isFinite && (ring.empty() || (*given)[ring.back()] != position)) {
            ring.push_back(static_cast<std::uint32_t>(i));
        }
    }
    while (ring.size() > 1 && (*given)[ring.back()] == (*given)[ring.front()]) {
        ring.pop_back();
    }
    return ring;
}

bool Triangulator::findNormal(const std::vector<Ring>& rings)
{
    up = areaOf(rings.front(), *given, origin);
    double extent = 0;
    for (const std::uint32_t corner : rings.front()) {
        const Position offset = difference((*given)[corner], origin);
        extent = std::max(extent, dot(offset, offset));
    }
    const double size = length(up);
    if (!(size > thinnest * extent)) {
        return false;
    }
    for (double& part : up) {
        part /= size;
    }
    enclosed = size / 2;
    return true;
}

/// Cuts a convex quadrilateral along a diagonal.
bool Triangulator::addQuad(const Ring& ring)
{
    const auto [a, b, c, d] = std::array<std::uint32_t, 4>{ring[0], ring[1], ring[2], ring[3]};
    if (!isTriangleUpright(a, b, c) || !isTriangleUpright(a, c, d) || !isTriangleUpright(a, b, d) ||
        !isTriangleUpright(b, c, d)) {
        return false;
    }
    corners = {a, b, c, a, c, d};
    return true;
}

bool Triangulator::isTriangleUpright(std::uint32_t a, std::uint32_t b, std::uint32_t c) const
{
    const Position& corner = (*given)[a];
    return dot(cross(difference((*given)[b], corner), difference((*given)[c], corner)), up) > 0;
}

void Triangulator::tessellate(const std::vector<Ring>& rings)
{
    tessellation->run(rings);
}

} // namespace tolvik::scene
