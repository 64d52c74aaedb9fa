#include "scene/Renderer.h"

#include "scene/Shaders.h"

#include <algorithm>
#include <cstring>
#include <osg/GLExtensions>
#include <osg/GLObjects>
#include <osg/GraphicsContext>

namespace tolvik::scene {

namespace {

osg::Vec4 vectorOf(const QColor& colour, double opacity = 1)
{
    return osg::Vec4(static_cast<float>(colour.redF()), static_cast<float>(colour.greenF()),
                     static_cast<float>(colour.blueF()), static_cast<float>(opacity));
}

QRect whole(const QSize& size)
{
    return QRect(QPoint(0, 0), size);
}

/// Around a part of a picture, in pixels: lines and points reach so far from where they are.
constexpr int reach = 8;

/// The part of a projection that falls on a part of the picture.
osg::Matrixd narrowed(const osg::Matrixd& projection, const QSize& size, const QRect& part)
{
    const double width = size.width();
    const double height = size.height();
    const double x = (part.x() + part.width() / 2.0) * 2 / width - 1;
    const double y = 1 - (part.y() + part.height() / 2.0) * 2 / height;
    return projection * osg::Matrixd::translate(-x, -y, 0) *
           osg::Matrixd::scale(width / part.width(), height / part.height(), 1);
}

} // namespace

/// A picture with depths in the context; what was bound before is bound again at its end.
class Renderer::Framebuffer
{
public:
    Framebuffer(osg::State& state, const QSize& size) : gl(*state.get<osg::GLExtensions>()), size(size)
    {
        glGetIntegerv(GL_FRAMEBUFFER_BINDING, &former);
        GLint largest = 0;
        glGetIntegerv(GL_MAX_RENDERBUFFER_SIZE, &largest);
        if (size.isEmpty() || std::max(size.width(), size.height()) > largest) {
            return;
        }
        gl.glGenFramebuffers(1, &name);
        gl.glBindFramebuffer(GL_FRAMEBUFFER, name);
        gl.glGenRenderbuffers(2, buffers.data());
        attach(buffers[0], GL_COLOR_ATTACHMENT0, GL_RGBA8);
        attach(buffers[1], GL_DEPTH_ATTACHMENT, GL_DEPTH_COMPONENT24);
        glDrawBuffer(GL_COLOR_ATTACHMENT0);
        glReadBuffer(GL_COLOR_ATTACHMENT0);
        complete = gl.glCheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
    }
    ~Framebuffer()
    {
        gl.glBindFramebuffer(GL_FRAMEBUFFER, static_cast<GLuint>(former));
        if (name != 0) {
            gl.glDeleteRenderbuffers(2, buffers.data());
            gl.glDeleteFramebuffers(1, &name);
        }
    }
    Framebuffer(const Framebuffer&) = delete;
    Framebuffer& operator=(const Framebuffer&) = delete;

    bool isComplete() const { return complete; }

    /// Four bytes a pixel, row by row from below.
    std::vector<std::uint8_t> pixels() const
    {
        std::vector<std::uint8_t> bytes(4 * static_cast<std::size_t>(size.width()) *
                                        static_cast<std::size_t>(size.height()));
        glPixelStorei(GL_PACK_ALIGNMENT, 1);
        glReadPixels(0, 0, size.width(), size.height(), GL_RGBA, GL_UNSIGNED_BYTE, bytes.data());
        return bytes;
    }
    /// Of the lower left pixel.
    float depth() const
    {
        float depth = 1;
        glReadPixels(0, 0, 1, 1, GL_DEPTH_COMPONENT, GL_FLOAT, &depth);
        return depth;
    }

private:
    void attach(GLuint buffer, GLenum attachment, GLenum format)
    {
        gl.glBindRenderbuffer(GL_RENDERBUFFER, buffer);
        gl.glRenderbufferStorage(GL_RENDERBUFFER, format, size.width(), size.height());
        gl.glFramebufferRenderbuffer(GL_FRAMEBUFFER, attachment, GL_RENDERBUFFER, buffer);
    }

    const osg::GLExtensions& gl;
    const QSize size;
    GLint former = 0;
    GLuint name = 0;
    std::array<GLuint, 2> buffers = {0, 0};
    bool complete = false;
};

Renderer::Renderer(CityScene& scene) : scene(scene), state(new osg::State)
{
    state->setContextID(osg::GraphicsContext::createNewContextID());
    colourView = makeView(makeViewProgram());
    identifierView = makeView(makeIdentifierProgram());
    // What can be seen through is picked as well, and the highest byte of an identifier is no opacity.
    const osg::StateAttribute::GLModeValue never = osg::StateAttribute::OFF | osg::StateAttribute::OVERRIDE;
    identifierView->getSceneData()->getOrCreateStateSet()->setMode(GL_BLEND, never);
    identifierView->getSceneData()->getOrCreateStateSet()->setMode(GL_ALPHA_TEST, never);
}

Renderer::~Renderer() = default;

osg::ref_ptr<osgUtil::SceneView> Renderer::makeView(osg::Program* program)
{
    const osg::ref_ptr<osg::Group> root = new osg::Group;
    root->addChild(scene.root());
    root->getOrCreateStateSet()->setAttributeAndModes(program);
    root->getOrCreateStateSet()->addUniform(new osg::Uniform("selection", osg::Vec4()));
    root->getOrCreateStateSet()->addUniform(new osg::Uniform("section", osg::Vec4()));
    root->getOrCreateStateSet()->addUniform(new osg::Uniform("isByFeature", false));
    root->getOrCreateStateSet()->addUniform(new osg::Uniform("widening", osg::Vec4()));
    root->getOrCreateStateSet()->addUniform(new osg::Uniform("pictureHeight", 1.0F));
    osg::ref_ptr<osgUtil::SceneView> view = new osgUtil::SceneView;
    view->setDefaults(osgUtil::SceneView::NO_SCENEVIEW_LIGHT);
    // Behind the defaults, to which a state of the view's own belongs.
    view->setState(state);
    view->setSceneData(root);
    view->setComputeNearFarMode(osg::CullSettings::DO_NOT_COMPUTE_NEAR_FAR);
    view->setCullingMode(osg::CullSettings::VIEW_FRUSTUM_SIDES_CULLING);
    // The framebuffers drawn to are those of a host or of this class, never that of a window.
    view->setDrawBufferValue(GL_COLOR_ATTACHMENT0);
    view->setFrameStamp(new osg::FrameStamp);
    return view;
}

QString Renderer::unfitness()
{
    state->initializeExtensionProcs();
    const auto* const gl = state->get<osg::GLExtensions>();
    if (gl == nullptr || gl->glVersion < 3.2F || gl->glslLanguageVersion < 1.5F) {
        return QStringLiteral("OpenGL 3.2 is needed, and there is %1")
            .arg(gl != nullptr ? QString::number(static_cast<double>(gl->glVersion))
                               : QStringLiteral("none"));
    }
    return QString();
}

void Renderer::prepare(osgUtil::SceneView& view, const Camera& camera, const QSize& size, const QRect& part,
                       const DrawOptions& options)
{
    const double aspect = static_cast<double>(size.width()) / size.height();
    const osg::Matrixd viewMatrix = camera.viewMatrix();
    scene.leaveOutFarEdges(camera, size.height());
    view.setViewMatrix(viewMatrix);
    // What has nothing in the part is left out, by a projection of the part alone. It is drawn in the
    // coordinates of the whole picture all the same: lines have other pixels where they are cut off.
    const QRect around = part.adjusted(-reach, -reach, reach, reach);
    view.setProjectionMatrix(narrowed(camera.projectionMatrix(aspect, scene.bounds()), size, around));
    view.setViewport(-part.x(), part.y() + part.height() - size.height(), size.width(), size.height());
    const osg::Vec2d scale(static_cast<double>(around.width()) / size.width(),
                           static_cast<double>(around.height()) / size.height());
    const osg::Vec2d middle(2.0 * around.x() / size.width() + scale.x() - 1,
                            1 - 2.0 * around.y() / size.height() - scale.y());
    view.setCullMask(FaceMask | MarkMask | (options.hasEdges ? EdgeMask : 0U));
    osg::Vec4 section(0, 0, 0, 1);
    if (options.section) {
        osg::Plane plane = *options.section;
        plane.transform(viewMatrix);
        section = osg::Vec4(plane.asVec4());
    }
    osg::StateSet& stateSet = *view.getSceneData()->getOrCreateStateSet();
    stateSet.getUniform("section")->set(section);
    stateSet.getUniform("widening")->set(osg::Vec4(osg::Vec4d(scale.x(), scale.y(), middle.x(), middle.y())));
    stateSet.getUniform("pictureHeight")->set(static_cast<float>(size.height()));
    stateSet.getUniform("selection")->set(vectorOf(options.selection));
    stateSet.getUniform("isByFeature")->set(options.isByFeature);
}

void Renderer::run(osgUtil::SceneView& view)
{
    scene.features().update();
    // Buffers of tiles that went go before the next tiles could take them: they, too, are known by addresses.
    osg::flushAllDeletedGLObjects(state->getContextID());
    // The host binds and draws in the same context. Modes it leaves alone.
    state->dirtyAllAttributes();
    state->setLastAppliedProgramObject(nullptr);
    view.getFrameStamp()->setFrameNumber(view.getFrameStamp()->getFrameNumber() + 1);
    view.cull();
    view.draw();
    state->apply();
    // The state remembers arrays and buffers by their addresses, where others may come to stand when tiles
    // go: it would take them for what is bound already.
    state->lazyDisablingOfVertexAttributes();
    state->applyDisablingOfVertexAttributes();
    state->unbindVertexBufferObject();
    state->unbindElementBufferObject();
}

void Renderer::draw(const Camera& camera, const QSize& size, const DrawOptions& options)
{
    if (size.isEmpty()) {
        return;
    }
    prepare(*colourView, camera, size, whole(size), options);
    colourView->setClearColor(vectorOf(options.background));
    run(*colourView);
}

QImage Renderer::picture(const Camera& camera, const QSize& size, const DrawOptions& options, bool isClear)
{
    const Framebuffer framebuffer(*state, size);
    if (!framebuffer.isComplete()) {
        return QImage();
    }
    prepare(*colourView, camera, size, whole(size), options);
    colourView->setClearColor(vectorOf(options.background, isClear ? 0 : 1));
    run(*colourView);
    const std::vector<std::uint8_t> bytes = framebuffer.pixels();
    const QImage upsideDown(bytes.data(), size.width(), size.height(), QImage::Format_RGBA8888);
    const QImage picture = upsideDown.mirrored();
    return isClear ? picture : picture.convertToFormat(QImage::Format_RGB32);
}

std::vector<std::uint32_t> Renderer::identifiers(const Camera& camera, const QSize& size, const QRect& part,
                                                 const DrawOptions& options, float* depth)
{
    const Framebuffer framebuffer(*state, part.size());
    if (!framebuffer.isComplete()) {
        return {};
    }
    prepare(*identifierView, camera, size, part, options);
    identifierView->setClearColor(osg::Vec4(0, 0, 0, 0));
    run(*identifierView);
    const std::vector<std::uint8_t> bytes = framebuffer.pixels();
    std::vector<std::uint32_t> result;
    for (std::size_t i = 0; i + 3 < bytes.size(); i += 4) {
        // The background is 0, and so noSlot.
        result.push_back((bytes[i] | static_cast<std::uint32_t>(bytes[i + 1]) << 8 |
                          static_cast<std::uint32_t>(bytes[i + 2]) << 16 |
                          static_cast<std::uint32_t>(bytes[i + 3]) << 24) -
                         1);
    }
    if (depth != nullptr) {
        *depth = framebuffer.depth();
    }
    return result;
}

Hit Renderer::pick(const Camera& camera, const QSize& size, const QPoint& pixel, const DrawOptions& options)
{
    Hit hit;
    if (!whole(size).contains(pixel)) {
        return hit;
    }
    const QRect part(pixel, QSize(1, 1));
    float depth = 1;
    const std::vector<std::uint32_t> found = identifiers(camera, size, part, options, &depth);
    hit.slot = found.empty() ? noSlot : found.front();
    const osg::Matrixd toPicture = identifierView->getViewMatrix() * identifierView->getProjectionMatrix();
    hit.position = osg::Vec3d(0, 0, 2.0 * depth - 1) * osg::Matrixd::inverse(toPicture);
    return hit;
}

std::set<Slot> Renderer::pick(const Camera& camera, const QSize& size, const QRect& part,
                              const DrawOptions& options)
{
    std::set<Slot> seen;
    const QRect inside = part.intersected(whole(size));
    if (!inside.isEmpty()) {
        const std::vector<std::uint32_t> found = identifiers(camera, size, inside, options, nullptr);
        seen.insert(found.begin(), found.end());
    }
    seen.erase(noSlot);
    return seen;
}

std::map<Slot, int> Renderer::pixelsOf(const Camera& camera, const QSize& size, const DrawOptions& options)
{
    std::map<Slot, int> counts;
    for (const std::uint32_t slot : identifiers(camera, size, whole(size), options, nullptr)) {
        ++counts[slot];
    }
    counts.erase(noSlot);
    return counts;
}

void Renderer::release()
{
    colourView->releaseAllGLObjects();
    identifierView->releaseAllGLObjects();
    osg::flushAllDeletedGLObjects(state->getContextID());
}

} // namespace tolvik::scene
