#include "PictureCommand.h"

#include "apps/common/PropertyPath.h"
#include "framework/CoreProperty.h"
#include "scene/AttributeColours.h"
#include "scene/CityScene.h"
#include "scene/OffscreenContext.h"
#include "scene/Renderer.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <ostream>
#include <QSaveFile>

namespace tolvik::inspect {

namespace {

using namespace tolvik::scene;

std::vector<const Feature*> featuresOf(const CityGMLModel& model)
{
    std::vector<const Feature*> features;
    for (int row = 0; row < model.rowCount(); ++row) {
        features.push_back(model.getFeature(row));
    }
    return features;
}

int fail(const QString& reason, std::ostream& err)
{
    err << "tolvik-inspect: " << reason.toStdString() << '\n';
    return 1;
}

/// Gives each feature the colour of its value, or of that of the nearest feature around it that has one.
/// \return false where no feature has the property
bool colourBy(const QString& path, const CityGMLModel& model, FeatureTable& features)
{
    std::vector<QVariant> values;
    bool isThere = false;
    for (int row = 0; row < model.rowCount(); ++row) {
        const CoreProperty* const root = model.getProperty(model.index(row, 0));
        CoreProperty* const property = root != nullptr ? apps::propertyAt(*root, path) : nullptr;
        values.push_back(property != nullptr ? property->value() : QVariant());
        isThere = isThere || property != nullptr;
    }
    for (Slot slot = 0; slot < features.size(); ++slot) {
        const Slot giver = features.valueGiverOf(slot);
        if (giver != noSlot && !values[slot].isValid()) {
            values[slot] = values[giver];
        }
    }
    const AttributeColours colours(values);
    for (Slot slot = 0; slot < features.size(); ++slot) {
        features.setColour(slot, colours.colourOf(values[slot]));
    }
    return isThere;
}

bool writePicture(const QImage& image, const QString& path)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && image.save(&file, "PNG") && file.commit();
}

} // namespace

int runPicture(CityGMLModel& model, const PictureOptions& options, std::ostream& err)
{
    const OffscreenContext context;
    if (!context.error().isEmpty()) {
        return fail(QStringLiteral("no picture can be drawn: ") + context.error(), err);
    }
    CityScene scene;
    Renderer renderer(scene);
    const QString unfitness = renderer.unfitness();
    if (!unfitness.isEmpty()) {
        return fail(QStringLiteral("no picture can be drawn: ") + unfitness, err);
    }
    scene.begin(featuresOf(model), model.getFileName());
    scene.addAll();
    if (!scene.bounds().valid()) {
        return fail(QStringLiteral("the document has nothing to draw"), err);
    }
    const QStringList missing = scene.missingFiles();
    for (const QString& file : missing) {
        err << "tolvik-inspect: not drawn: " << file.toStdString() << '\n';
    }
    if (options.lod) {
        scene.features().setLodChoice({LodChoice::Kind::Fixed, *options.lod});
    }
    DrawOptions drawOptions;
    drawOptions.isByFeature = !options.colourBy.isEmpty();
    if (drawOptions.isByFeature && !colourBy(options.colourBy, model, scene.features())) {
        return fail(QStringLiteral("no feature has an attribute %1").arg(options.colourBy), err);
    }
    Camera camera;
    camera.fit(scene.bounds(), static_cast<double>(options.size.width()) / options.size.height());
    const QImage image = renderer.picture(camera, options.size, drawOptions);
    renderer.release();
    if (image.isNull()) {
        return fail(QStringLiteral("a picture of that size cannot be drawn"), err);
    }
    if (!writePicture(image, options.output)) {
        return fail(QStringLiteral("the picture could not be written to ") + options.output, err);
    }
    return 0;
}

} // namespace tolvik::inspect
