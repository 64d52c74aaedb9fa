#pragma once

#include <memory>
#include <QString>

namespace tolvik::scene {

/// An OpenGL context without a window or a display, current in the thread that makes it as long as it lives.
class OffscreenContext
{
public:
    OffscreenContext();
    OffscreenContext(const OffscreenContext&) = delete;
    OffscreenContext& operator=(const OffscreenContext&) = delete;
    ~OffscreenContext();

    /// Why there is no context, as a sentence; empty if there is one.
    const QString& error() const { return reason; }

private:
    struct Handles;

    std::unique_ptr<Handles> handles;
    QString reason;
};

} // namespace tolvik::scene
