// A plug-in of which the build makes several, each with something else about it.

#include "framework/ModelPlugin.h"
#include "framework/TreeNodeProxyModel.h"

#include <QObject>

#ifdef OTHER_PLUGIN_LACKS
extern int nowhereDefined;
int* lacking = &nowhereDefined;
#endif

class OtherPlugin : public QObject, public tolvik::ModelPlugin
{
    Q_OBJECT
    Q_INTERFACES(tolvik::ModelPlugin)
    Q_PLUGIN_METADATA(IID OTHER_PLUGIN_IID FILE "otherplugin.json")

public:
    QString name() const override { return OTHER_PLUGIN_NAME; }
    QStringList fileFilters() const override { return {}; }
    tolvik::Model* createModel(QObject*) override { return nullptr; }
    tolvik::TreeNodeProxyModel* createTreeModel(tolvik::Model&, QObject*) override { return nullptr; }
    QWidget* createSettingsWidget(QWidget*) override { return nullptr; }
};

#include "otherplugin.moc"
