#include "framework/ModelPlugins.h"

#include "framework/ModelPlugin.h"

#include <dlfcn.h>
#include <QDir>
#include <QFileInfo>
#include <QJsonObject>
#include <QLibrary>
#include <QPluginLoader>
#include <QVersionNumber>

namespace tolvik {

namespace {

/// The folder of this library, wherever it was moved to after it was built.
QString libraryFolder()
{
    static const char anchor = 0;
    Dl_info info;
    if (dladdr(&anchor, &info) == 0 || info.dli_fname == nullptr) {
        return QString();
    }
    return QFileInfo(QFile::decodeName(info.dli_fname)).canonicalPath();
}

QString interfaceName(const QString& identifier)
{
    return identifier.section('/', 0, 0);
}

/// Whether the classes of two versions are the same: those of one minor version are.
bool fit(const QString& oneVersion, const QString& otherVersion)
{
    const auto series = [](const QString& version) {
        const auto number = QVersionNumber::fromString(version);
        return QVersionNumber(number.majorVersion(), number.minorVersion());
    };
    return series(oneVersion) == series(otherVersion);
}

} // namespace

ModelPlugins::ModelPlugins(const QStringList& folders)
{
    for (const QString& folder : folders) {
        loadFrom(folder);
    }
    if (plugins.isEmpty()) {
        troubles.append(tr("There is no plug-in for models in %1.").arg(folders.join(tr(", "))));
    }
}

QStringList ModelPlugins::standardFolders()
{
    QStringList folders =
        qEnvironmentVariable("TOLVIK_PLUGIN_PATH").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    if (QCoreApplication::instance() != nullptr) {
        folders.append(QCoreApplication::applicationDirPath() + "/plugins");
    }
    const QString library = libraryFolder();
    if (!library.isEmpty()) {
        folders.append(library + "/tolvik/plugins");
    }
    return folders;
}

ModelPlugin* ModelPlugins::named(const QString& name) const
{
    for (ModelPlugin* const plugin : plugins) {
        if (plugin->name() == name) {
            return plugin;
        }
    }
    return nullptr;
}

void ModelPlugins::loadFrom(const QString& folder)
{
    const QDir directory(folder);
    const QStringList names = directory.entryList(QDir::Files, QDir::Name);
    for (const QString& name : names) {
        if (QLibrary::isLibrary(name)) {
            load(directory.absoluteFilePath(name));
        }
    }
}

/// Reads the metadata first: a library that was built against other classes must not come into the process.
void ModelPlugins::load(const QString& file)
{
    QPluginLoader loader(file);
    const QJsonObject metaData = loader.metaData();
    const QString identifier = metaData.value("IID").toString();
    if (interfaceName(identifier) != interfaceName(TOLVIK_MODEL_PLUGIN_IID)) {
        return;
    }
    const QString path = QDir::toNativeSeparators(file);
    if (identifier != TOLVIK_MODEL_PLUGIN_IID) {
        troubles.append(
            tr("%1 has the interface %2, and not %3.").arg(path, identifier, TOLVIK_MODEL_PLUGIN_IID));
        return;
    }
    const QJsonObject own = metaData.value("MetaData").toObject();
    const QString version = own.value("Version").toString();
    if (!fit(version, TOLVIK_VERSION)) {
        troubles.append(
            tr("%1 is for version %2 of the library, and not %3.").arg(path, version, TOLVIK_VERSION));
        return;
    }
    if (named(own.value("Name").toString()) != nullptr) {
        return;
    }
    loader.setLoadHints(QLibrary::PreventUnloadHint);
    auto* const plugin = qobject_cast<ModelPlugin*>(loader.instance());
    if (plugin == nullptr) {
        troubles.append(tr("%1 cannot be loaded: %2.").arg(path, loader.errorString()));
        return;
    }
    plugins.append(plugin);
}

} // namespace tolvik
