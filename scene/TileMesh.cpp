#include "scene/TileMesh.h"

#include "scene/Triangulator.h"
#include "scene/Vectors.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <osg/BoundingBox>
#include <utility>

namespace tolvik::scene {

namespace {

using citygml::Position;
using Part = TileDrawable::Part;

/// Of a drawable: large enough to be drawn fast, and small enough to be left out where it is out of sight.
/// Two triangles of a wall have four vertices, those of terrain three each.
constexpr std::size_t verticesOfDrawable = 2800;

osg::Vec4b packed(const Position& normal, double area)
{
    const auto part = [](double value) { return static_cast<signed char>(std::lround(value * 127)); };
    return {part(normal[0]), part(normal[1]), part(normal[2]), static_cast<signed char>(sizeByte(area))};
}

/// The arrays that are being filled for one look.
class MeshArrays
{
public:
    MeshArrays(const LookArrays& look, std::uint32_t number) : look(look), number(number) {}

    std::size_t vertexCount() const { return positions->size(); }

    unsigned add(const Position& position, const osg::Vec4b& normal, std::uint32_t tag)
    {
        positions->push_back(osg::Vec3(static_cast<float>(position[0]), static_cast<float>(position[1]),
                                       static_cast<float>(position[2])));
        normals->push_back(normal);
        tags->push_back(tag);
        if (look.kind == LookKind::Material) {
            colours->push_back(osg::Vec4ub(look.colour[0], look.colour[1], look.colour[2], look.colour[3]));
        }
        return static_cast<unsigned>(positions->size() - 1);
    }
    void addPlace(const std::array<float, 2>& place)
    {
        if (look.kind == LookKind::Texture) {
            places->push_back(osg::Vec2(place[0], place[1]));
        }
    }

    osg::ref_ptr<osg::DrawElementsUInt> triangles = new osg::DrawElementsUInt(GL_TRIANGLES);
    osg::ref_ptr<osg::DrawElementsUInt> edges = new osg::DrawElementsUInt(GL_LINES);
    osg::ref_ptr<osg::DrawElementsUInt> lines = new osg::DrawElementsUInt(GL_LINES);
    osg::ref_ptr<osg::DrawElementsUInt> points = new osg::DrawElementsUInt(GL_POINTS);

    void finish(std::vector<TileDrawable>& drawables)
    {
        if (vertexCount() == 0) {
            return;
        }
        addDrawable(Part::Faces, {triangles}, drawables);
        addDrawable(Part::Edges, {edges}, drawables);
        addDrawable(Part::Marks, {lines, points}, drawables);
    }

private:
    void addDrawable(Part part, const std::vector<osg::ref_ptr<osg::DrawElementsUInt>>& elements,
                     std::vector<TileDrawable>& drawables)
    {
        osg::ref_ptr<osg::Geometry> geometry = new osg::Geometry;
        for (const auto& indexes : elements) {
            if (!indexes->empty()) {

                geometry->addPrimitiveSet(indexes);
            }
        }
        if (geometry->getNumPrimitiveSets() == 0) {
            return;
        }
        geometry->setUseDisplayList(false);
        geometry->setUseVertexBufferObjects(true);
        positions->trim();
        geometry->setVertexArray(positions);
        bind(*geometry, NormalAttribute, normals, true);
        tags->setPreserveDataType(true);
        bind(*geometry, FeatureAttribute, tags, false);
        if (!places->empty()) {
            bind(*geometry, PlaceAttribute, places, false);
        }
        if (!colours->empty()) {
            bind(*geometry, ColourAttribute, colours, true);
        }
        geometry->getBound();
        drawables.push_back({part, part == Part::Faces ? number : 0, geometry});
    }

    template <typename Array>
    static void bind(osg::Geometry& geometry, VertexAttribute attribute, const osg::ref_ptr<Array>& array,
                     bool isNormalized)
    {
        array->trim();
        array->setNormalize(isNormalized);
        geometry.setVertexAttribArray(attribute, array, osg::Array::BIND_PER_VERTEX);
    }

    const LookArrays look;
    const std::uint32_t number;
    osg::ref_ptr<osg::Vec3Array> positions = new osg::Vec3Array;
    osg::ref_ptr<osg::Vec4bArray> normals = new osg::Vec4bArray;
    osg::ref_ptr<osg::UIntArray> tags = new osg::UIntArray;
    osg::ref_ptr<osg::Vec2Array> places = new osg::Vec2Array;
    osg::ref_ptr<osg::Vec4ubArray> colours = new osg::Vec4ubArray;
};

class TileBuilder
{
public:
    TileBuilder(const Batch& batch, const std::vector<LookArrays>& looks) : batch(batch), looks(looks) {}

    TileMesh build()
    {
        if (!batch.positions.empty()) {
            mesh.origin = batch.positions.front();
        }
        for (const Batch::Patch& patch : batch.patches) {
            add(patch);
        }
        for (auto& [look, arrays] : open) {
            arrays.finish(mesh.drawables);
        }
        return std::move(mesh);
    }

private:
    void add(const Batch::Patch& patch)
    {
        if (patch.kind == Batch::Kind::Surface) {
            addSurface(patch);
        } else {
            addMarks(patch);
        }
    }

    void addSurface(const Batch::Patch& patch)
    {
        const auto first = batch.runs.begin() + patch.firstRun;
        const std::size_t begin = first->begin;
        const std::size_t end = (first + patch.runCount - 1)->end;
        positions.assign(batch.positions.begin() + static_cast<std::ptrdiff_t>(begin),
                         batch.positions.begin() + static_cast<std::ptrdiff_t>(end));
        runs.assign(first, first + patch.runCount);
        for (citygml::PositionRun& run : runs) {
            run.begin -= begin;
            run.end -= begin;
        }
        if (!triangulator.triangulate(positions, runs)) {
            ++mesh.degenerate;
            return;
        }
        MeshArrays& arrays = arraysFor(patch.look);
        indexes.assign(positions.size() + triangulator.crossings().size(), -1);
        tag = vertexTag(patch.slot, patch.lod);
        normal = packed(triangulator.normal(), triangulator.area());
        mesh.largestSurface = std::max(mesh.largestSurface, std::sqrt(triangulator.area()));
        for (const std::uint32_t corner : triangulator.triangles()) {
            arrays.triangles->push_back(vertexOf(corner, begin, arrays));
        }
        for (const citygml::PositionRun& run : runs) {
            addEdges(run, begin, arrays);
        }
        mesh.triangles += triangulator.triangles().size() / 3;
    }

    /// The vertex of a corner of the surface that is being added; made when it is first asked for.
    unsigned vertexOf(std::uint32_t corner, std::size_t begin, MeshArrays& arrays)
    {
        if (indexes[corner] < 0) {
            const bool isCrossing = corner >= positions.size();
            const Position& position =
                isCrossing ? triangulator.crossings()[corner - positions.size()].position : positions[corner];
            indexes[corner] = static_cast<int>(arrays.add(difference(position, mesh.origin), normal, tag));
            arrays.addPlace(isCrossing ? placeOf(triangulator.crossings()[corner - positions.size()], begin)
                                       : placeAt(begin + corner));
        }
        return static_cast<unsigned>(indexes[corner]);
    }

    std::array<float, 2> placeAt(std::size_t index) const
    {
        return index < batch.places.size() ? batch.places[index] : std::array<float, 2>{0, 0};
    }

    std::array<float, 2> placeOf(const Triangulator::Crossing& crossing, std::size_t begin) const
    {
        std::array<float, 2> place = {0, 0};
        for (std::size_t i = 0; i < 4; ++i) {
            const std::uint32_t corner = crossing.of[i];
            const std::array<float, 2> part =
                corner < positions.size()
                    ? placeAt(begin + corner)
                    : placeOf(triangulator.crossings()[corner - positions.size()], begin);
            place[0] += crossing.weights[i] * part[0];
            place[1] += crossing.weights[i] * part[1];
        }
        return place;
    }

    void addEdges(const citygml::PositionRun& run, std::size_t begin, MeshArrays& arrays)
    {
        for (std::size_t i = run.begin; i + 1 < run.end; ++i) {
            arrays.edges->push_back(vertexOf(static_cast<std::uint32_t>(i), begin, arrays));
            arrays.edges->push_back(vertexOf(static_cast<std::uint32_t>(i + 1), begin, arrays));
        }
    }

    void addMarks(const Batch::Patch& patch)
    {
        const osg::Vec4b none(0, 0, 0, 0);
        tag = vertexTag(patch.slot, patch.lod);
        for (std::uint32_t i = 0; i < patch.runCount; ++i) {
            const citygml::PositionRun& run = batch.runs[patch.firstRun + i];
            for (std::size_t at = run.begin; at < run.end; ++at) {
                const bool goesOn = patch.kind == Batch::Kind::Line && at > run.begin;
                MeshArrays& arrays = arraysFor(0);
                if (goesOn) {
                    arrays.lines->push_back(
                        arrays.add(difference(batch.positions[at - 1], mesh.origin), none, tag));
                }
                if (goesOn || patch.kind == Batch::Kind::Point) {
                    auto& indexesOfKind = goesOn ? *arrays.lines : *arrays.points;
                    indexesOfKind.push_back(
                        arrays.add(difference(batch.positions[at], mesh.origin), none, tag));
                }
            }
        }
    }

    /// The arrays to which the next surface or mark of a look is added.
    MeshArrays& arraysFor(std::uint32_t look)
    {
        auto found = open.find(look);
        if (found != open.end() && found->second.vertexCount() >= verticesOfDrawable) {
            found->second.finish(mesh.drawables);
            open.erase(found);
            found = open.end();
        }
        if (found == open.end()) {
            const LookArrays kind = look < looks.size() ? looks[look] : LookArrays();
            if (kind.picture != nullptr) {
                kind.picture->image();
            }
            found = open.try_emplace(look, kind, look).first;
        }
        return found->second;
    }

    const Batch& batch;
    const std::vector<LookArrays>& looks;
    TileMesh mesh;
    std::map<std::uint32_t, MeshArrays> open;
    Triangulator triangulator;

    // Of the surface that is being added.
    std::vector<Position> positions;
    std::vector<citygml::PositionRun> runs;
    std::vector<int> indexes;
    std::uint32_t tag = 0;
    osg::Vec4b normal;
};

} // namespace

int sizeByte(double area)
{
    return static_cast<int>(std::lround(std::clamp(std::log2(area) / 2 * sizeSteps, -127.0, 127.0)));
}

TileMesh buildTile(const Batch& batch, const std::vector<LookArrays>& looks)
{
    return TileBuilder(batch, looks).build();
}

} // namespace tolvik::scene
