#include "scene/OffscreenContext.h"

#include <array>
#include <cstring>
#include <EGL/egl.h>
#include <EGL/eglext.h>

namespace tolvik::scene {

struct OffscreenContext::Handles
{
    EGLDisplay display = EGL_NO_DISPLAY;
    EGLSurface surface = EGL_NO_SURFACE;
    EGLContext context = EGL_NO_CONTEXT;
};

namespace {

bool hasExtension(EGLDisplay display, const char* name)
{
    const char* const extensions = eglQueryString(display, EGL_EXTENSIONS);
    return extensions != nullptr && std::strstr(extensions, name) != nullptr;
}

EGLDisplay findDisplay()
{
    if (hasExtension(EGL_NO_DISPLAY, "EGL_MESA_platform_surfaceless")) {
        const auto getDisplay =
            reinterpret_cast<PFNEGLGETPLATFORMDISPLAYEXTPROC>(eglGetProcAddress("eglGetPlatformDisplayEXT"));
        if (getDisplay != nullptr) {
            return getDisplay(EGL_PLATFORM_SURFACELESS_MESA, EGL_DEFAULT_DISPLAY, nullptr);
        }
    }
    return eglGetDisplay(EGL_DEFAULT_DISPLAY);
}

} // namespace

OffscreenContext::OffscreenContext() : handles(std::make_unique<Handles>())
{
    Handles& egl = *handles;
    egl.display = findDisplay();
    if (egl.display == EGL_NO_DISPLAY || eglInitialize(egl.display, nullptr, nullptr) == EGL_FALSE) {
        egl.display = EGL_NO_DISPLAY;
        reason = QStringLiteral("there is no EGL to draw with");
        return;
    }
    const std::array<EGLint, 5> wanted = {EGL_SURFACE_TYPE, EGL_PBUFFER_BIT, EGL_RENDERABLE_TYPE,
                                          EGL_OPENGL_BIT, EGL_NONE};
    EGLConfig config = nullptr;
    EGLint count = 0;
    if (eglBindAPI(EGL_OPENGL_API) == EGL_FALSE ||
        eglChooseConfig(egl.display, wanted.data(), &config, 1, &count) == EGL_FALSE || count == 0) {
        reason = QStringLiteral("EGL has no OpenGL");
        return;
    }
    egl.context = eglCreateContext(egl.display, config, EGL_NO_CONTEXT, nullptr);
    if (!hasExtension(egl.display, "EGL_KHR_surfaceless_context")) {
        const std::array<EGLint, 5> size = {EGL_WIDTH, 1, EGL_HEIGHT, 1, EGL_NONE};
        egl.surface = eglCreatePbufferSurface(egl.display, config, size.data());
    }
    if (egl.context == EGL_NO_CONTEXT ||
        eglMakeCurrent(egl.display, egl.surface, egl.surface, egl.context) == EGL_FALSE) {
        reason = QStringLiteral("EGL makes no OpenGL context");
    }
}

OffscreenContext::~OffscreenContext()
{
    const Handles& egl = *handles;
    if (egl.display == EGL_NO_DISPLAY) {
        return;
    }
    eglMakeCurrent(egl.display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
    if (egl.surface != EGL_NO_SURFACE) {
        eglDestroySurface(egl.display, egl.surface);
    }
    if (egl.context != EGL_NO_CONTEXT) {
        eglDestroyContext(egl.display, egl.context);
    }
    // The display is that of the process: another context may be there, and a driver that is loaded again
    // leaks.
}

} // namespace tolvik::scene
