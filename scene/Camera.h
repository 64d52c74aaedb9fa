#pragma once

#include <osg/BoundingBox>
#include <osg/Matrixd>
#include <osg/Vec2d>
#include <osg/Vec3d>

namespace tolvik::scene {

/// From where a scene is seen: a point that is looked at, the direction to the eye from it, and how much of
/// the scene is seen there. Angles are in radians, lengths in the units of the scene.
class Camera
{
public:
    enum class Direction { Oblique, Top, Front, Side };

    /// Looks from that direction; the point that is looked at stays.
    void setDirection(Direction direction);
    /// \param yaw   to the right, 0 for a look to the north
    /// \param pitch above the ground, up to a right angle
    void setAngles(double yaw, double pitch);
    double yaw() const { return yawAngle; }
    double pitch() const { return pitchAngle; }

    void setParallel(bool isParallel) { parallel = isParallel; }
    bool isParallel() const { return parallel; }

    /// Moves and zooms so that a box fills the picture.
    /// \param aspect width of the picture, divided by its height
    void fit(const osg::BoundingBoxd& box, double aspect);

    void orbit(double right, double up);
    /// Moves what is seen.
    /// \param by in heights of the picture
    void pan(const osg::Vec2d& by);
    /// \param factor below 1 to see less, larger
    /// \param at     what stays where it is in the picture: from -1 to 1 to the right, and upwards
    void zoom(double factor, const osg::Vec2d& at, double aspect);

    const osg::Vec3d& centre() const { return lookedAt; }
    void setCentre(const osg::Vec3d& centre) { lookedAt = centre; }
    /// What is seen of the scene from top to bottom, at the point that is looked at.
    double height() const { return seenHeight; }

    /// What a pixel shows of the scene from top to bottom, in its units.
    /// \param place  in the scene
    /// \param pixels height of the picture
    double pixelSize(const osg::Vec3d& place, int pixels) const;

    /// The direction from the point that is looked at to the viewer, of length 1.
    osg::Vec3d toEye() const;
    osg::Matrixd viewMatrix() const;
    /// \param bounds what is to be seen, for the range of depths
    osg::Matrixd projectionMatrix(double aspect, const osg::BoundingBoxd& bounds) const;

private:
    void fitHeight(const osg::BoundingBoxd& box, double aspect);
    void lookAtHeight(double height);
    osg::Vec3d upwards() const;
    osg::Vec3d toRight() const;
    double distance() const;

    osg::Vec3d lookedAt;
    double yawAngle = 0.6;
    double pitchAngle = 0.6;
    double seenHeight = 100;
    bool parallel = false;
};

} // namespace tolvik::scene
