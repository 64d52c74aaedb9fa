#pragma once

#include "scene/Camera.h"
#include "scene/CityScene.h"

#include <optional>
#include <osg/Plane>
#include <osg/State>
#include <osgUtil/SceneView>
#include <QColor>
#include <QImage>
#include <QRect>
#include <QSize>
#include <set>

namespace tolvik::scene {

/// How a scene is drawn.
struct DrawOptions
{
    QColor background = QColor(232, 236, 241);
    QColor selection = QColor(255, 140, 0);
    bool hasEdges = true;
    /// Whether all faces have the colours of their features, in place of materials and textures.
    bool isByFeature = false;
    /// What lies on its negative side is cut off; relative to the scene's origin.
    std::optional<osg::Plane> section;
};

/// What is seen at one pixel.
struct Hit
{
    Slot slot = noSlot;  ///< noSlot where only the background is seen
    osg::Vec3d position; ///< relative to the scene's origin
};

/// Draws a scene in an OpenGL context of the host, which is current in all operations. The context needs
/// OpenGL 3.2 with the functions that came before it.
class Renderer
{
public:
    /// \param scene lives longer
    explicit Renderer(CityScene& scene);
    Renderer(const Renderer&) = delete;
    Renderer& operator=(const Renderer&) = delete;
    ~Renderer();

    /// Whether the current context can do what is needed.
    /// \return why not, as a sentence; empty if it can
    QString unfitness();

    /// Draws into the framebuffer that is bound. Sizes are in pixels.
    void draw(const Camera& camera, const QSize& size, const DrawOptions& options);

    /// Draws a picture of any size that the context can do.
    /// \param isClear whether the background is left out
    /// \return null where the context cannot
    QImage picture(const Camera& camera, const QSize& size, const DrawOptions& options, bool isClear = false);

    /// What is seen at a pixel, counted from the upper left corner.
    Hit pick(const Camera& camera, const QSize& size, const QPoint& pixel, const DrawOptions& options);

    /// The features of which at least a pixel is seen in a part of the picture.
    std::set<Slot> pick(const Camera& camera, const QSize& size, const QRect& part,
                        const DrawOptions& options);

    /// How many pixels are seen of each feature in a picture of that size.
    std::map<Slot, int> pixelsOf(const Camera& camera, const QSize& size, const DrawOptions& options);

    /// Frees what lies in the context.
    void release();

private:
    class Framebuffer;

    osg::ref_ptr<osgUtil::SceneView> makeView(osg::Program* program);
    void prepare(osgUtil::SceneView& view, const Camera& camera, const QSize& size, const QRect& part,
                 const DrawOptions& options);
    void run(osgUtil::SceneView& view);
    std::vector<std::uint32_t> identifiers(const Camera& camera, const QSize& size, const QRect& part,
                                           const DrawOptions& options, float* depth);

    CityScene& scene;
    osg::ref_ptr<osg::State> state;
    osg::ref_ptr<osgUtil::SceneView> colourView;
    osg::ref_ptr<osgUtil::SceneView> identifierView;
};

} // namespace tolvik::scene
