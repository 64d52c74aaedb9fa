#include "UI/Models/CityGMLModel/FeatureAnswers.h"

#include "gml/AbstractFeatureType.hxx"
#include "gml/CodeType.hxx"
#include "UI/Models/CityGMLModel/CityGMLModel.h"
#include "UI/Models/CityGMLModel/FeaturePropertyModel.h"

namespace tolvik {

void FeatureAnswers::setSource(CityGMLModel* model)
{
    if (source != nullptr) {
        source->disconnect(this);
    }
    forgetAll();
    source = model;
    if (model != nullptr) {
        connect(model, &QAbstractItemModel::modelAboutToBeReset, this, &FeatureAnswers::forgetAll);
        connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
                [this](const QModelIndex&, int first, int last) {
                    for (int row = first; row <= last; ++row) {
                        forget(source->getFeature(row));
                    }
                });
    }
}

QVariant FeatureAnswers::data(const QModelIndex& index, int role)
{
    gml::AbstractFeatureType* const feature = source != nullptr ? source->getFeature(index) : nullptr;
    if (feature == nullptr) {
        return QVariant();
    }
    switch (role) {
    case FeatureIdentifierRole:
        return feature->id().present() ? QString::fromStdString(feature->id().get()) : QString("");
    case FeatureTypeRole:
        return QString::fromStdString(feature->typeLabel);
    case FeatureNameRole:
        return feature->name().empty() ? QString("") : QString::fromStdString(feature->name().front());
    case FeatureVisibilityRole:
        return source->isVisible(index);
    case FeatureDisabledRole:
        return source->isDisabled(feature);
    case FeaturePointerRole:
        return QVariant::fromValue(feature);
    case FeaturePropertiesRole:
        return QVariant::fromValue<QObject*>(properties(index));
    default:
        return QVariant();
    }
}

bool FeatureAnswers::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (source == nullptr || !index.isValid()) {
        return false;
    }
    if (role == FeatureVisibilityRole) {
        value.toBool() ? source->show(index) : source->hide(index);
        return true;
    }
    if (role == FeatureDisabledRole) {
        value.toBool() ? source->disable(index) : source->enable(index);
        return true;
    }
    return false;
}

/// Keeps the models that were asked for: QML asks whenever it evaluates a binding.
FeaturePropertyModel* FeatureAnswers::properties(const QModelIndex& index)
{
    FeaturePropertyModel*& known = propertyModels[source->getFeature(index)];
    if (known == nullptr) {
        known = new FeaturePropertyModel(this);
        known->setFeature(source, index);
    }
    return known;
}

void FeatureAnswers::forget(const gml::AbstractFeatureType* feature)
{
    if (FeaturePropertyModel* const model = propertyModels.take(feature)) {
        model->deleteLater(); // a view may be about to read it
    }
}

void FeatureAnswers::forgetAll()
{
    const auto all = propertyModels;
    propertyModels.clear();
    for (FeaturePropertyModel* const model : all) {
        model->deleteLater();
    }
}

} // namespace tolvik
