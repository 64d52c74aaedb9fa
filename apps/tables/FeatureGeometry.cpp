#include "apps/tables/FeatureGeometry.h"

#include "apps/tables/FeaturePlace.h"
#include "citygml/GeometryWalk.h"
#include "gml/AbstractFeatureType.hxx"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <ogr_geometry.h>
#include <utility>

namespace tolvik::tables {

namespace {

using citygml::GeometryPiece;
using citygml::Position;

std::unique_ptr<OGRPolygon> polygonOf(const GeometryPiece& piece, bool hasHeights)
{
    auto polygon = std::make_unique<OGRPolygon>();
    for (const citygml::PositionRun& run : piece.runs) {
        OGRLinearRing ring;
        for (std::size_t i = run.begin; i < run.end; ++i) {
            const Position& at = piece.positions[i];
            if (hasHeights) {
                ring.addPoint(at[0], at[1], at[2]);
            } else {
                ring.addPoint(at[0], at[1]);
            }
        }
        ring.closeRings();
        polygon->addRing(&ring);
    }
    return polygon;
}

/// The surfaces of a feature in the highest level of detail in which it has some.
class Surfaces
{
public:
    explicit Surfaces(bool hasHeights) : hasHeights(hasHeights) {}

    void add(const GeometryPiece& piece)
    {
        if (piece.kind != GeometryPiece::Kind::Surface || piece.runs.empty() || piece.lod < lod) {
            return;
        }
        if (piece.lod > lod) {
            lod = piece.lod;
            polygons = std::make_unique<OGRMultiPolygon>();
        }
        polygons->addGeometryDirectly(polygonOf(piece, hasHeights).release());
    }

    bool isEmpty() const { return polygons->IsEmpty(); }
    std::unique_ptr<OGRMultiPolygon> take() { return std::move(polygons); }

private:
    bool hasHeights;
    int lod = -2;
    std::unique_ptr<OGRMultiPolygon> polygons = std::make_unique<OGRMultiPolygon>();
};

/// What several polygons cover; null where they are none that can be united.
std::unique_ptr<OGRGeometry> united(std::unique_ptr<OGRMultiPolygon> polygons)
{
    if (polygons->getNumGeometries() == 1) {
        return std::unique_ptr<OGRGeometry>(polygons->getGeometryRef(0)->clone());
    }
    return std::unique_ptr<OGRGeometry>(polygons->UnionCascaded());
}

} // namespace

FeatureGeometry::FeatureGeometry(const CityGMLModel& model)
{
    const int count = model.rowCount();
    for (int row = 0; row < count; ++row) {
        const gml::AbstractFeatureType* const feature = model.getFeature(row);
        const gml::AbstractFeatureType* const outside = featureOutside(*feature);
        if (outside != nullptr && featureOutside(*outside) != nullptr) {
            below[outside].push_back(feature);
        }
    }
}

FeatureGeometry::Features FeatureGeometry::withThoseBelow(const gml::AbstractFeatureType& feature) const
{
    Features features{&feature};
    for (std::size_t i = 0; i < features.size(); ++i) {
        const auto found = below.find(features[i]);
        if (found != below.end()) {
            features.insert(features.end(), found->second.begin(), found->second.end());
        }
    }
    return features;
}

FeatureGeometry::Result FeatureGeometry::onMap(const gml::AbstractFeatureType& feature) const
{
    if (featureOutside(feature) == nullptr) {
        return {};
    }
    Surfaces footprint(false);
    citygml::walkGeometry(feature, [&](const GeometryPiece& piece) {
        if (*piece.member == "lod0FootPrint") {
            footprint.add(piece);
        }
    });
    if (!footprint.isEmpty()) {
        if (auto geometry = united(footprint.take())) {
            return {std::move(geometry), "footprint"};
        }
    }

    const Features features = withThoseBelow(feature);
    Surfaces ground(false);
    for (const gml::AbstractFeatureType* inner : features) {
        if (inner->typeLabel == "GroundSurface") {
            citygml::walkGeometry(*inner, [&](const GeometryPiece& piece) { ground.add(piece); });
        }
    }
    if (!ground.isEmpty()) {
        if (auto geometry = united(ground.take())) {
            return {std::move(geometry), "ground"};
        }
    }

    OGRMultiPoint points;
    for (const gml::AbstractFeatureType* inner : features) {
        citygml::walkGeometry(*inner, [&](const GeometryPiece& piece) {
            for (const Position& at : piece.positions) {
                const OGRPoint point(at[0], at[1]);
                points.addGeometry(&point);
            }
        });
    }
    if (points.IsEmpty()) {
        return {};
    }
    return {std::unique_ptr<OGRGeometry>(points.ConvexHull()), "hull"};
}

FeatureGeometry::Result FeatureGeometry::surfaces(const gml::AbstractFeatureType& feature) const
{
    if (featureOutside(feature) == nullptr) {
        return {};
    }
    Surfaces own(true);
    citygml::walkGeometry(feature, [&](const GeometryPiece& piece) { own.add(piece); });
    if (own.isEmpty()) {
        const Features features = withThoseBelow(feature);
        for (const gml::AbstractFeatureType* const inner : features) {
            citygml::walkGeometry(*inner, [&](const GeometryPiece& piece) { own.add(piece); });
        }
    }
    if (own.isEmpty()) {
        return {};
    }
    return {own.take(), "surfaces"};
}

} // namespace tolvik::tables
