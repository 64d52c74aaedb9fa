#include "framework/ModelPlugins.h"
#include "framework/ModelPlugin.h"
#include "support/Files.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"
#include "UI/Models/CityGMLModel/CityGMLTreeModel.h"

#include <memory>
#include <QSignalSpy>
#include <QtTest>
#include <QWidget>

using namespace testsupport;
using tolvik::ModelPlugin;
using tolvik::ModelPlugins;

namespace {

/// A folder of plug-ins that the build has made for this test.
QString madeFolder(const QString& name)
{
    return QCoreApplication::applicationDirPath() + "/plugins-of-tests/" + name;
}

QStringList names(const ModelPlugins& plugins)
{
    QStringList all;
    for (const ModelPlugin* const plugin : plugins.all()) {
        all.append(plugin->name());
    }
    return all;
}

} // namespace

/// How a program finds models that it is not linked with.
class ModelPluginsTest : public QObject
{
    Q_OBJECT

private:
    ModelPlugin* plugin = nullptr;

private slots:
    void initTestCase()
    {
        qunsetenv("TOLVIK_PLUGIN_PATH");
        const ModelPlugins plugins;
        plugin = plugins.named("CityGML");
        QVERIFY2(plugin != nullptr, qPrintable(plugins.problems().join('\n')));
        QCOMPARE(plugins.problems(), QStringList());
    }

    void theVariableComesFirstAndTheInstalledFolderLast()
    {
        qputenv("TOLVIK_PLUGIN_PATH", "/one:/another one");
        const QStringList folders = ModelPlugins::standardFolders();
        qunsetenv("TOLVIK_PLUGIN_PATH");
        QCOMPARE(folders,
                 QStringList({"/one", "/another one", QCoreApplication::applicationDirPath() + "/plugins",
                              QFileInfo(library("TolvikPlatform")).canonicalPath() + "/tolvik/plugins"}));
    }

    void aProgramWithoutPluginsIsToldSo()
    {
        const ModelPlugins plugins({"/no/such/folder", examples()});
        QVERIFY(plugins.all().isEmpty());
        QVERIFY(plugins.named("CityGML") == nullptr);
        QCOMPARE(plugins.problems(),
                 QStringList("There is no plug-in for models in /no/such/folder, " + examples() + "."));
    }

    void itMakesAModelThatLoads()
    {
        const std::unique_ptr<tolvik::Model> model(plugin->createModel(nullptr));
        QVERIFY(qobject_cast<tolvik::CityGMLModel*>(model.get()) != nullptr);
        model->load(examples() + "/district.gml");
        QVERIFY(model->rowCount() > 1);
        QVERIFY2(model->anchor().x != 0.0, "the model does not ask the plug-in where the document lies");
    }

    void itMakesATreeThatFollowsTheModel()
    {
        const std::unique_ptr<tolvik::Model> model(plugin->createModel(nullptr));
        QObject owner;
        auto* const tree = plugin->createTreeModel(*model, &owner);
        QVERIFY(qobject_cast<tolvik::CityGMLTreeModel*>(tree) != nullptr);
        QCOMPARE(tree->parent(), &owner);
        model->load(examples() + "/district.gml");
        QCOMPARE(tree->rowCount(), 1);
        QCOMPARE(tree->mapToSource(tree->index(0, 0)), model->index(0, 0));
    }

    void filesAndSettings()
    {
        QCOMPARE(plugin->fileFilters(), QStringList("CityGML documents (*.gml *.xml)"));
        QWidget parent;
        QWidget* const settings = plugin->createSettingsWidget(&parent);
        QVERIFY(settings != nullptr);
        QCOMPARE(settings->parentWidget(), &parent);
    }

    void ofSeveralWithOneNameTheFirstCounts()
    {
        const QString own = QFileInfo(library("TolvikPlatform")).canonicalPath() + "/tolvik/plugins";
        const ModelPlugins first({own, madeFolder("same")});
        QCOMPARE(names(first), QStringList("CityGML"));
        QVERIFY(first.named("CityGML") == plugin);
        const ModelPlugins second({madeFolder("same"), own});
        QCOMPARE(names(second), QStringList("CityGML"));
        QVERIFY(second.named("CityGML") != plugin);
    }

    void librariesOfOthersAreLeftAlone()
    {
        const ModelPlugins plugins({madeFolder("foreign")});
        QVERIFY(plugins.all().isEmpty());
        QCOMPARE(plugins.problems().size(), 1);
    }

    /// It would bring classes of another form into the process.
    void oneOfAnotherVersionIsNotLoaded_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("reason");
        QTest::newRow("built with another library") << "version"
                                                    << "is for version 99.0.0 of the library";
        QTest::newRow("with another interface") << "interface"
                                                << "has the interface tolvik.ModelPlugin/999";
    }
    void oneOfAnotherVersionIsNotLoaded()
    {
        QFETCH(QString, folder);
        QFETCH(QString, reason);
        const ModelPlugins plugins({madeFolder(folder)});
        QVERIFY(plugins.all().isEmpty());
        QCOMPARE(plugins.problems().size(), 2);
        QVERIFY2(plugins.problems().first().contains(reason), qPrintable(plugins.problems().first()));
    }

    void oneThatCannotBeLoadedIsNamedWithTheReason()
    {
        const ModelPlugins plugins({madeFolder("broken")});
        QVERIFY(plugins.all().isEmpty());
        QVERIFY2(plugins.problems().first().contains("nowhereDefined"),
                 qPrintable(plugins.problems().first()));
    }
};

TEST_CLASS(ModelPluginsTest, Widgets)
#include "modelpluginstest.moc"
