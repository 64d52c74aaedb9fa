#include "plugin/CityGMLModelPlugin.h"

#include "UI/Models/CityGMLModel/CityGMLModel.h"
#include "UI/Models/CityGMLModel/CityGMLTreeModel.h"
#include "viewsettings/CityGMLViewSettingsWidget.h"

namespace tolvik {

QString CityGMLModelPlugin::name() const
{
    return QStringLiteral("CityGML");
}

QStringList CityGMLModelPlugin::fileFilters() const
{
    return {tr("CityGML documents (*.gml *.xml)")};
}

Model* CityGMLModelPlugin::createModel(QObject* parent)
{
    return new CityGMLModel(this, parent);
}

TreeNodeProxyModel* CityGMLModelPlugin::createTreeModel(Model& model, QObject* parent)
{
    auto* const source = qobject_cast<CityGMLModel*>(&model);
    if (source == nullptr) {
        return nullptr;
    }
    auto* const tree = new CityGMLTreeModel(QString(), parent);
    tree->setSourceModel(source);
    return tree;
}

QWidget* CityGMLModelPlugin::createSettingsWidget(QWidget* parent)
{
    return new CityGMLViewSettingsWidget(parent);
}

} // namespace tolvik
