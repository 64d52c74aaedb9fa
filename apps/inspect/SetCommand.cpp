#include "SetCommand.h"

#include "apps/common/PropertyPath.h"
#include "apps/common/PropertyText.h"
#include "framework/CoreProperty.h"
#include "gml/AbstractFeatureType.hxx"
#include "SaveDocument.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"
#include "UI/Models/CityGMLModel/properties/GmlCorePropertyCreator.h"

#include <ostream>

namespace tolvik::inspect {
namespace {

using apps::EditError;

gml::AbstractFeatureType* findFeature(const CityGMLModel& model, const std::string& id)
{
    gml::AbstractFeatureType* const feature = model.getFeature(id);
    // The model also finds features without an identifier, under a name of its own.
    if (feature == nullptr || !feature->id().present() || feature->id().get() != id) {
        throw EditError(QStringLiteral("no feature has the gml:id %1").arg(QString::fromStdString(id)));
    }
    return feature;
}

/// Edits the value that a path leads to, of an existing attribute or else of one that is made.
void edit(const CityGMLModel& model, gml::AbstractFeatureType* feature, const QString& path,
          const QString& value)
{
    for (const bool existingOnly : {true, false}) {
        const Fondo::RefPtr<CoreProperty> root =
            GmlCorePropertyCreator::createProperty(feature, existingOnly);
        model.addPropertiesFromProviders(model.index(feature), *root);
        if (CoreProperty* const property = apps::propertyAt(*root, path)) {
            apps::setFromText(*property, value);
            return;
        }
    }
    throw EditError(QStringLiteral("the feature has no property %1").arg(path));
}

} // namespace

int runSet(CityGMLModel& model, const apps::SourceFile& source, const SetOptions& options, std::ostream& err)
{
    try {
        gml::AbstractFeatureType* const feature = findFeature(model, options.id);
        edit(model, feature, options.path, options.value);
        model.propertyChanged(model.index(feature), true);
    } catch (const EditError& error) {
        const QString subject =
            options.document.isEmpty() ? QString() : options.document + QStringLiteral(": ");
        err << "tolvik-inspect: " << subject.toStdString() << error.what() << '\n';
        return 1;
    }
    apps::DocumentSaving saving(model, source);
    return saveDocument(saving, options.output, options.form, err) ? 0 : 1;
}

} // namespace tolvik::inspect
