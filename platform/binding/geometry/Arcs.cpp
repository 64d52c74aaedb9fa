#include "platform/binding/geometry/Arcs.h"

#include <cmath>

namespace citygml {
namespace binding {

namespace {

constexpr double pi = 3.14159265358979323846;
/// Of the lines that an arc is cut into: 10 degrees.
constexpr double longestAngle = pi / 18;

Position operator+(const Position& a, const Position& b)
{
    return {a[0] + b[0], a[1] + b[1], a[2] + b[2]};
}
Position operator-(const Position& a, const Position& b)
{
    return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}
Position operator*(double factor, const Position& a)
{
    return {factor * a[0], factor * a[1], factor * a[2]};
}
double dot(const Position& a, const Position& b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}
Position cross(const Position& a, const Position& b)
{
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

/// The circle through three points, with the first at angle 0 and the second at a positive angle below that
/// of the third.
struct Circle
{
    Position centre;
    Position first; ///< from the centre to the first point
    Position side;  ///< the same, a quarter of the circle further
    double end;     ///< angle of the third point

    Position at(double angle) const { return centre + std::cos(angle) * first + std::sin(angle) * side; }
};

/// \return false for points on one line
bool findCircle(const Position& a, const Position& b, const Position& c, Circle& circle)
{
    const Position ab = b - a;
    const Position ac = c - a;
    const Position normal = cross(ab, ac);
    const double area = dot(normal, normal);
    if (!(area > 1e-12 * dot(ab, ab) * dot(ac, ac))) {
        return false;
    }
    const Position toCentre =
        (1 / (2 * area)) * (dot(ac, ac) * cross(normal, ab) + dot(ab, ab) * cross(ac, normal));
    circle.centre = a + toCentre;
    circle.first = a - circle.centre;
    circle.side = (1 / std::sqrt(area)) * cross(normal, circle.first);
    const Position last = c - circle.centre;
    circle.end = std::atan2(dot(last, circle.side), dot(last, circle.first));
    if (circle.end <= 0) {
        circle.end += 2 * pi;
    }
    return true;
}

/// Appends the points of a circle behind its first one, up to an angle.
void appendUpTo(double end, const Circle& circle, std::vector<Position>& result)
{
    const int count = static_cast<int>(std::ceil(end / longestAngle));
    for (int i = 1; i < count; ++i) {
        result.push_back(circle.at(end * i / count));
    }
}

} // namespace

std::vector<Position> arcPositions(const std::vector<Position>& points)
{
    std::vector<Position> result;
    std::size_t i = 0;
    for (; i + 2 < points.size(); i += 2) {
        result.push_back(points[i]);
        Circle circle;
        if (findCircle(points[i], points[i + 1], points[i + 2], circle)) {
            appendUpTo(circle.end, circle, result);
        } else {
            result.push_back(points[i + 1]);
        }
    }
    for (; i < points.size(); ++i) {
        result.push_back(points[i]);
    }
    return result;
}

std::vector<Position> circlePositions(const std::vector<Position>& points)
{
    Circle circle;
    if (points.size() < 3 || !findCircle(points[0], points[1], points[2], circle)) {
        return points;
    }
    std::vector<Position> result = {points[0]};
    appendUpTo(2 * pi, circle, result);
    result.push_back(points[0]);
    return result;
}

} // namespace binding
} // namespace citygml
