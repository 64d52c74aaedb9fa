#include "scene/TypeColours.h"

#include "gml/AbstractFeatureType.hxx"

#include <string>
#include <typeindex>
#include <unordered_map>

namespace tolvik::scene {

namespace {

struct ColourOfType
{
    const char* part;
    QRgb colour;
};

/// A type gets the colour of the first entry that its label contains, so that a type of an extension looks
/// like what it is named after.
constexpr ColourOfType colours[] = {
    {"WaterGroundSurface", 0x6b7f86},
    {"Water", 0x4f94cd},
    {"CityFurniture", 0xb0703f},
    {"ClosureSurface", 0xc7ccd1},
    {"RoofSurface", 0xb5493c},
    {"GroundSurface", 0x8d8377},
    {"OuterFloorSurface", 0xa79b89},
    {"OuterCeilingSurface", 0xbfb4a4},
    {"InteriorWallSurface", 0xe9e0c9},
    {"CeilingSurface", 0xf1ece0},
    {"FloorSurface", 0xb79f77},
    {"WallSurface", 0xdccfb4},
    {"Window", 0x86b4cf},
    {"Door", 0x7d5a3c},
    {"Furniture", 0xa0703c},
    {"Installation", 0x9a8f9e},
    {"Room", 0xd9c9a0},
    {"HollowSpace", 0xc3b49a},
    {"Building", 0xd6c6a5},
    {"Bridge", 0xb0a9a0},
    {"Tunnel", 0x8f8a83},
    {"Vegetation", 0x4f8f46},
    {"PlantCover", 0x76a65a},
    {"LandUse", 0xa8bf7e},
    {"Relief", 0xa39572},
    {"Auxiliary", 0x9fb07c},
    {"Traffic", 0x75777c},
    {"Road", 0x6c6e73},
    {"Railway", 0x5d5147},
    {"Track", 0x86807a},
    {"Square", 0x9c938c},
    {"Transportation", 0x75777c},
    {"Light", 0xd9a72e},
    {"Zone", 0xd7a45c},
    {"Boundary", 0xc0485f},
    {"Parcel", 0xc9b45f},
    {"Spatial", 0xb9a55a},
    {"Point", 0x9b3a5e},
    {"Electric", 0xd19a1c},
    {"Cable", 0xd19a1c},
    {"Pipe", 0x3f7fb5},
    {"Network", 0x56789f},
    {"Node", 0x9a3f8a},
    {"Link", 0x6a5aa0},
    {"Address", 0xa23b72},
};
constexpr QRgb otherColour = 0xb3aea6;

QColor findColour(const std::string& label)
{
    for (const ColourOfType& entry : colours) {
        if (label.find(entry.part) != std::string::npos) {
            return QColor(entry.colour);
        }
    }
    return QColor(otherColour);
}

} // namespace

QColor TypeColours::of(const gml::AbstractFeatureType& feature)
{
    static std::unordered_map<std::type_index, QColor> known;
    const auto found = known.find(typeid(feature));
    return found != known.end() ? found->second
                                : known.emplace(typeid(feature), findColour(feature.typeLabel)).first->second;
}

} // namespace tolvik::scene
