#pragma once

#include "citygml/CityGMLPlugin.h"
#include "framework/ModelPlugin.h"

#include <QObject>

namespace tolvik {

/// The models of CityGML documents, for programs that look for plug-ins.
class CityGMLModelPlugin : public QObject, public CityGMLPlugin, public ModelPlugin
{
    Q_OBJECT
    Q_INTERFACES(tolvik::ModelPlugin)
    Q_PLUGIN_METADATA(IID TOLVIK_MODEL_PLUGIN_IID FILE "CityGMLModelPlugin.json")

public:
    /// "CityGML".
    QString name() const override;
    QStringList fileFilters() const override;

    /// A CityGMLModel, which asks this plug-in where its document lies.
    Model* createModel(QObject* parent) override;

    /// A CityGMLTreeModel.
    TreeNodeProxyModel* createTreeModel(Model& model, QObject* parent) override;

    /// A CityGMLViewSettingsWidget.
    QWidget* createSettingsWidget(QWidget* parent) override;

    /// For scripts: a ScriptDocument without a document. It lives until it is deleted, or as long as the
    /// plug-in.
    Q_INVOKABLE QObject* createDocument();
};

} // namespace tolvik
