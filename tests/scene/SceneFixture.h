#pragma once

#include "scene/CityScene.h"
#include "scene/OffscreenContext.h"
#include "scene/Pictures.h"
#include "scene/Renderer.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <memory>
#include <QImage>
#include <QString>

namespace testsupport {

/// A document as a scene, with a context to draw it in that needs no display.
class SceneFixture
{
public:
    static constexpr int width = 480;
    static constexpr int height = 320;

    /// \param path of a document
    explicit SceneFixture(const QString& path);
    /// Begins with all of the model anew, and does nothing more.
    void begin();
    SceneFixture(const SceneFixture&) = delete;
    SceneFixture& operator=(const SceneFixture&) = delete;
    ~SceneFixture();

    tolvik::CityGMLModel model;
    std::unique_ptr<tolvik::scene::OffscreenContext> context;
    tolvik::scene::CityScene scene;
    std::unique_ptr<tolvik::scene::Renderer> renderer;
    tolvik::scene::Camera camera;
    tolvik::scene::DrawOptions options;

    tolvik::scene::FeatureTable& features() { return scene.features(); }
    /// Whether there is anything to draw.
    bool hasContent() const { return scene.bounds().valid(); }
    QImage picture();
    tolvik::scene::Slot slotAt(const QPoint& pixel);
    /// The slot of a feature by its identifier.
    tolvik::scene::Slot slotOf(const char* id) const;
    /// Hides or shows all features.
    void setAllHidden(bool areHidden);
    /// Pixels at even distances all over the picture.
    QVector<QPoint> grid(int columns, int rows) const;
};

} // namespace testsupport
