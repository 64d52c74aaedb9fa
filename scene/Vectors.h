#pragma once

#include "citygml/GeometryWalk.h"

#include <cmath>

/// Arithmetic with positions.
namespace tolvik::scene {

inline citygml::Position difference(const citygml::Position& a, const citygml::Position& b)
{
    return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}
inline double dot(const citygml::Position& a, const citygml::Position& b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}
inline citygml::Position cross(const citygml::Position& a, const citygml::Position& b)
{
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}
inline double length(const citygml::Position& a)
{
    return std::sqrt(dot(a, a));
}

} // namespace tolvik::scene
