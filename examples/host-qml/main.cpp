#include "framework/Model.h"
#include "framework/ModelPlugin.h"
#include "framework/ModelPlugins.h"
#include "framework/TreeNodeProxyModel.h"

#include <cstdio>
#include <log4cplus/configurator.h>
#include <log4cplus/initializer.h>
#include <QApplication>
#include <QElapsedTimer>
#include <QItemSelectionModel>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QQuickItem>
#include <QQuickWindow>

namespace {

/// The texts on screen of an item and of what is in it.
QStringList textsOf(const QQuickItem& item)
{
    if (!item.isVisible()) {
        return {};
    }
    QStringList texts;
    const QString text = item.property("text").toString();
    if (!text.isEmpty()) {
        texts.append(text);
    }
    for (const QQuickItem* const child : item.childItems()) {
        texts += textsOf(*child);
    }
    return texts;
}

/// Makes the first feature below the root the current one, and prints what the window then shows.
int printTexts(QQmlApplicationEngine& engine, const QAbstractItemModel& tree)
{
    auto* const window = qobject_cast<QQuickWindow*>(engine.rootObjects().first());
    auto* const selection = window->findChild<QObject*>("features")->property("selection").value<QObject*>();
    const QModelIndex feature = tree.index(0, 0, tree.index(0, 0));
    qobject_cast<QItemSelectionModel*>(selection)->setCurrentIndex(feature, QItemSelectionModel::Select);
    QElapsedTimer clock;
    for (clock.start(); clock.elapsed() < 1000;) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    }
    std::puts(textsOf(*window->contentItem()).join('\n').toUtf8().constData());
    return 0;
}

} // namespace

/// host-qml FILE [--print]
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    log4cplus::Initializer logging;
    log4cplus::BasicConfigurator::doConfigure();

    const tolvik::ModelPlugins plugins;
    tolvik::ModelPlugin* const plugin = plugins.named("CityGML");
    if (plugin == nullptr) {
        std::fprintf(stderr, "%s\n", plugins.problems().join('\n').toUtf8().constData());
        return 1;
    }
    tolvik::Model* const model = plugin->createModel(&application);
    QAbstractItemModel* const tree = plugin->createTreeModel(*model, &application);
    model->load(application.arguments().value(1));

    QQmlApplicationEngine engine;
    engine.rootContext()->setContextProperty("features", tree);
    engine.rootContext()->setContextProperty("propertiesRole", tree->roleNames().key("properties"));
    engine.load(QUrl("qrc:/main.qml"));
    if (engine.rootObjects().isEmpty()) {
        return 1;
    }
    return application.arguments().contains("--print") ? printTexts(engine, *tree) : application.exec();
}
