#pragma once

#include "citygml/GeometryWalk.h"

#include <array>
#include <cstdint>
#include <vector>

namespace tolvik::scene {

/// Number of a feature in a scene, counted from 0 in the order in which features come.
using Slot = std::uint32_t;
constexpr Slot noSlot = 0xffffffff;

/// How many levels of detail there are.
constexpr int lodCount = 5;

/// What is to be drawn of some features, copied from the document so that another thread can work on it.
struct Batch
{
    enum class Kind : std::uint8_t { Surface, Line, Point };

    struct Patch
    {
        Slot slot = 0;
        std::uint32_t look = 0; ///< material or texture; 0 for none
        std::uint32_t firstRun = 0;
        std::uint32_t runCount = 0;
        std::int8_t lod = -1;
        Kind kind = Kind::Surface;
    };

    std::vector<citygml::Position> positions;
    std::vector<citygml::PositionRun> runs; ///< their objects are not to be touched
    std::vector<Patch> patches;
    /// Places in a texture: one for each position up to the last that has one.
    std::vector<std::array<float, 2>> places;
};

} // namespace tolvik::scene
