#include "citygml/CityGMLPlugin.h"

#include "framework/CoreModel.h"
#include "gml/AbstractFeatureType.hxx"
#include "gml/BoundingShapeType.hxx"
#include "gml/DirectPositionType.hxx"
#include "gml/EnvelopeType.hxx"

#include <algorithm>

namespace tolvik {

namespace {

bool read(const gml::doubleList& position, double (&corner)[3])
{
    if (position.size() < 2) {
        return false;
    }
    for (std::size_t i = 0; i < 3; ++i) {
        corner[i] = i < position.size() ? position[i] : 0.0;
    }
    return true;
}

bool readCorners(const gml::EnvelopeType& envelope, double (&first)[3], double (&second)[3])
{
    if (envelope.lowerCorner().present() && envelope.upperCorner().present()) {
        return read(*envelope.lowerCorner(), first) && read(*envelope.upperCorner(), second);
    }
    const auto& positions = envelope.pos();
    return positions.size() == 2 && read(positions[0], first) && read(positions[1], second);
}

} // namespace

CityGMLPlugin::~CityGMLPlugin() = default;

bool CityGMLPlugin::envelope(const CoreModel& model, double (&lower)[3], double (&upper)[3]) const
{
    const auto* root = static_cast<const gml::AbstractFeatureType*>(model.index(0, 0).internalPointer());
    if (root == nullptr || !root->boundedBy().present() || !root->boundedBy()->Envelope().present()) {
        return false;
    }
    double first[3];
    double second[3];
    if (!readCorners(*root->boundedBy()->Envelope(), first, second)) {
        return false;
    }
    for (int i = 0; i < 3; ++i) {
        lower[i] = std::min(first[i], second[i]);
        upper[i] = std::max(first[i], second[i]);
    }
    return true;
}

} // namespace tolvik
