#include "plugin/CityGMLModelPlugin.h"

#include "plugin/ScriptDocument.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"
#include "UI/Models/CityGMLModel/CityGMLTreeModel.h"
#include "viewsettings/CityGMLViewSettingsWidget.h"

#include <log4cplus/logger.h>
#include <log4cplus/nullappender.h>

namespace tolvik {

namespace {

/// A script cannot configure the log, which would complain of that with the first document.
void muteUnconfiguredLog()
{
    log4cplus::Logger root = log4cplus::Logger::getRoot();
    if (root.getAllAppenders().empty()) {
        root.addAppender(log4cplus::SharedAppenderPtr(new log4cplus::NullAppender));
    }
}

} // namespace

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

QObject* CityGMLModelPlugin::createDocument()
{
    muteUnconfiguredLog();
    return new ScriptDocument(this, this);
}

} // namespace tolvik
