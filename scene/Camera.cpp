#include "scene/Camera.h"

#include <algorithm>
#include <cmath>

namespace tolvik::scene {

namespace {

constexpr double pi = 3.14159265358979323846;
constexpr double fieldOfView = 35 * pi / 180;
/// Of a box to the picture, when it is fitted.
constexpr double margin = 1.08;
constexpr double smallestHeight = 0.01;
constexpr double largestHeight = 1e9;
/// Nothing is seen that is nearer than this part of the way to the point that is looked at.
constexpr double nearest = 0.05;

} // namespace

osg::Vec3d Camera::toEye() const
{
    return osg::Vec3d(std::sin(yawAngle) * -std::cos(pitchAngle), -std::cos(yawAngle) * std::cos(pitchAngle),
                      std::sin(pitchAngle));
}

osg::Vec3d Camera::upwards() const
{
    return osg::Vec3d(std::sin(yawAngle) * std::sin(pitchAngle), std::cos(yawAngle) * std::sin(pitchAngle),
                      std::cos(pitchAngle));
}

osg::Vec3d Camera::toRight() const
{
    return osg::Vec3d(std::cos(yawAngle), -std::sin(yawAngle), 0);
}

double Camera::distance() const
{
    return seenHeight / 2 / std::tan(fieldOfView / 2);
}

void Camera::setDirection(Direction direction)
{
    switch (direction) {
    case Direction::Oblique:
        return setAngles(0.6, 0.6);
    case Direction::Top:
        return setAngles(0, pi / 2);
    case Direction::Front:
        return setAngles(0, 0);
    case Direction::Side:
        return setAngles(-pi / 2, 0);
    }
}

void Camera::setAngles(double yaw, double pitch)
{
    yawAngle = std::remainder(yaw, 2 * pi);
    pitchAngle = std::clamp(pitch, -pi / 2, pi / 2);
}

void Camera::fit(const osg::BoundingBoxd& box, double aspect)
{
    if (!box.valid()) {
        return;
    }
    lookedAt = box.center();
    // What is near looks larger, so that the middle of the picture is not that of the box.
    for (int round = 0; round < 3; ++round) {
        fitHeight(box, aspect);
        const osg::Matrixd toPicture = viewMatrix() * projectionMatrix(aspect, box);
        osg::BoundingBoxd seen;
        for (unsigned i = 0; i < 8; ++i) {
            seen.expandBy(box.corner(i) * toPicture);
        }
        lookedAt += toRight() * (seen.center().x() * aspect * seenHeight / 2) +
                    upwards() * (seen.center().y() * seenHeight / 2);
    }
    fitHeight(box, aspect);
    lookAtHeight(box.center().z());
}

/// Goes along the line of sight to a point of that height, with the same picture: below the ground nothing
/// would be left to come near to.
void Camera::lookAtHeight(double height)
{
    constexpr double level = 0.05;
    const osg::Vec3d back = toEye();
    const double step = std::abs(back.z()) > level ? (height - lookedAt.z()) / back.z() : 0;
    if (parallel) {
        lookedAt += back * step;
    } else if (step < distance()) {
        const double part = 1 - step / distance();
        lookedAt += back * step;
        seenHeight = std::clamp(seenHeight * part, smallestHeight, largestHeight);
    }
}

/// Zooms so that all of a box is seen.
void Camera::fitHeight(const osg::BoundingBoxd& box, double aspect)
{
    seenHeight = smallestHeight;
    const double slope = std::tan(fieldOfView / 2);
    for (unsigned i = 0; i < 8; ++i) {
        const osg::Vec3d corner = box.corner(i) - lookedAt;
        const double across = std::max(std::abs(corner * toRight()) / aspect, std::abs(corner * upwards()));
        // A corner before the point that is looked at needs room, for what is nearer looks larger.
        const double before = parallel ? 0 : corner * toEye();
        seenHeight = std::max(seenHeight, 2 * (across + before * slope) * margin);
    }
    seenHeight = std::min(seenHeight, largestHeight);
}

void Camera::orbit(double right, double up)
{
    setAngles(yawAngle + right, pitchAngle + up);
}

void Camera::pan(const osg::Vec2d& by)
{
    lookedAt -= (toRight() * by.x() + upwards() * by.y()) * seenHeight;
}

void Camera::zoom(double factor, const osg::Vec2d& at, double aspect)
{
    const double height = std::clamp(seenHeight * factor, smallestHeight, largestHeight);
    const double gone = (seenHeight - height) / 2;
    lookedAt += toRight() * (at.x() * aspect * gone) + upwards() * (at.y() * gone);
    seenHeight = height;
}

double Camera::pixelSize(const osg::Vec3d& place, int pixels) const
{
    const double before = parallel ? 0 : (place - lookedAt) * toEye();
    return seenHeight * std::max(0.0, 1 - before / distance()) / pixels;
}

osg::Matrixd Camera::viewMatrix() const
{
    return osg::Matrixd::lookAt(lookedAt + toEye() * distance(), lookedAt, upwards());
}

osg::Matrixd Camera::projectionMatrix(double aspect, const osg::BoundingBoxd& bounds) const
{
    // The shaders move some surfaces towards the viewer, and these must not be cut off.
    const double radius = bounds.valid() ? 1.01 * bounds.radius() + 1e-3 : 1;
    const osg::Vec3d middle = bounds.valid() ? bounds.center() : lookedAt;
    const double depth = (lookedAt + toEye() * distance() - middle) * toEye();
    const double half = seenHeight / 2;
    if (parallel) {
        return osg::Matrixd::ortho(-half * aspect, half * aspect, -half, half, depth - radius,
                                   depth + radius);
    }
    const double zNear = std::max(depth - radius, nearest * distance());
    const double zFar = std::max(depth + radius, 2 * zNear);
    const double top = half / distance() * zNear;
    return osg::Matrixd::frustum(-top * aspect, top * aspect, -top, top, zNear, zFar);
}

} // namespace tolvik::scene
