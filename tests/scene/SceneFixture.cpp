#include "scene/SceneFixture.h"

namespace testsupport {

using namespace tolvik::scene;

SceneFixture::SceneFixture(const QString& path)
    : model(nullptr, nullptr), context(std::make_unique<OffscreenContext>()),
      renderer(std::make_unique<Renderer>(scene))
{
    model.load(path);
    if (!context->error().isEmpty()) {
        qFatal("no context: %s", qPrintable(context->error()));
    }
    if (!renderer->unfitness().isEmpty()) {
        qFatal("unfit: %s", qPrintable(renderer->unfitness()));
    }
    begin();
    scene.addAll();
    camera.fit(scene.bounds(), static_cast<double>(width) / height);
}

void SceneFixture::begin()
{
    std::vector<const Feature*> all;
    for (int row = 0; row < model.rowCount(); ++row) {
        all.push_back(model.getFeature(row));
    }
    scene.begin(all, model.getFileName());
}

SceneFixture::~SceneFixture()
{
    renderer->release();
    renderer.reset();
}

QImage SceneFixture::picture()
{
    return renderer->picture(camera, QSize(width, height), options);
}

Slot SceneFixture::slotAt(const QPoint& pixel)
{
    return renderer->pick(camera, QSize(width, height), pixel, options).slot;
}

Slot SceneFixture::slotOf(const char* id) const
{
    return scene.features().slotOf(model.getFeature(std::string(id)));
}

void SceneFixture::setAllHidden(bool areHidden)
{
    for (Slot slot = 0; slot < features().size(); ++slot) {
        features().setHidden(slot, areHidden);
    }
}

QVector<QPoint> SceneFixture::grid(int columns, int rows) const
{
    QVector<QPoint> pixels;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            pixels << QPoint((2 * column + 1) * width / (2 * columns), (2 * row + 1) * height / (2 * rows));
        }
    }
    return pixels;
}

} // namespace testsupport
