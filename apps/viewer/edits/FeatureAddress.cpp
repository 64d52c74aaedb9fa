#include "apps/viewer/edits/FeatureAddress.h"

#include "citygml/CityGMLFeaturesFillVisitor.h"
#include "core/CityModelType.hxx"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

namespace tolvik::viewer {

namespace {

/// The nearest feature around another one; null for the root of a document.
gml::AbstractFeatureType* featureAround(gml::AbstractFeatureType& feature)
{
    for (auto* around = feature._container(); around != nullptr; around = around->_container()) {
        if (auto* const outer = dynamic_cast<gml::AbstractFeatureType*>(around)) {
            return outer;
        }
    }
    return nullptr;
}

} // namespace

QJsonValue FeatureAddress::toJson() const
{
    const QString start = QString::fromStdString(identifier);
    return step == 0 ? QJsonValue(start) : QJsonValue(QJsonArray{start, step});
}

FeatureAddress FeatureLocator::addressOf(gml::AbstractFeatureType& feature)
{
    gml::AbstractFeatureType* start = &feature;
    while (!hasIdentifier(*start)) {
        gml::AbstractFeatureType* const around = featureAround(*start);
        if (around == nullptr) {
            break;
        }
        start = around;
    }
    FeatureAddress address;
    if (hasIdentifier(*start)) {
        address.identifier = start->id().get();
    }
    if (start != &feature) {
        const Walk& walk = walkFrom(*start);
        const auto found = walk.steps.find(&feature);
        address.step = found != walk.steps.end() ? found->second : -1;
    }
    return address;
}

gml::AbstractFeatureType* FeatureLocator::find(const FeatureAddress& address)
{
    gml::AbstractFeatureType* const start =
        address.identifier.empty() ? model.cityGML() : model.getFeature(address.identifier);
    if (start == nullptr || address.step == 0) {
        return start;
    }
    const auto& features = walkFrom(*start).features;
    return address.step > 0 && address.step < static_cast<int>(features.size())
               ? features[static_cast<std::size_t>(address.step)]
               : nullptr;
}

std::vector<gml::AbstractFeatureType*> FeatureLocator::findAll(const QJsonArray& addresses)
{
    std::vector<gml::AbstractFeatureType*> features;
    for (const QJsonValue& each : addresses) {
        const FeatureAddress address =
            each.isString() ? FeatureAddress{each.toString().toStdString(), 0}
                            : FeatureAddress{each[0].toString().toStdString(), each[1].toInt()};
        gml::AbstractFeatureType* const feature = find(address);
        if (feature == nullptr) {
            return {};
        }
        features.push_back(feature);
    }
    return features;
}

/// Whether the model finds the feature by its identifier.
bool FeatureLocator::hasIdentifier(gml::AbstractFeatureType& feature) const
{
    const auto& id = feature.id();
    return id.present() && !id.get().empty() && model.getFeature(id.get()) == &feature;
}

const FeatureLocator::Walk& FeatureLocator::walkFrom(gml::AbstractFeatureType& start)
{
    const auto known = walks.find(&start);
    if (known != walks.end()) {
        return known->second;
    }
    CityGMLFeaturesFillVisitor visitor;
    start.accept(&visitor);
    const auto& found = visitor.getModelFeatures();
    Walk& walk = walks[&start];
    walk.features.assign(found.begin(), found.end());
    for (std::size_t step = 0; step < walk.features.size(); ++step) {
        walk.steps.emplace(walk.features[step], static_cast<int>(step));
    }
    return walk;
}

} // namespace tolvik::viewer
