#pragma once

#include "PlatformExport.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QVector>

namespace tolvik {

class ModelPlugin;

/// The plug-ins for models that a program finds.
/// \code
/// const ModelPlugins plugins;
/// ModelPlugin* const plugin = plugins.named("CityGML");
/// if (plugin == nullptr) {
///     show(plugins.problems().join('\n'));
/// }
/// \endcode
/// A plug-in that is loaded stays so until the program ends, as do its models' classes.
class TOLVIK_PLATFORM_EXPORT ModelPlugins
{
    Q_DECLARE_TR_FUNCTIONS(tolvik::ModelPlugins)

public:
    /// Loads the plug-ins of some folders. Of several with the same name the first one counts; libraries that
    /// are no plug-ins for models are left alone.
    /// \param folders where to look, in this order; those that do not exist are passed over
    explicit ModelPlugins(const QStringList& folders = standardFolders());

    /// Where programs look: the folders that the environment variable `TOLVIK_PLUGIN_PATH` lists, separated
    /// as in `PATH`; the folder `plugins` beside the program; and `tolvik/plugins` beside this library, where
    /// an installation has them.
    static QStringList standardFolders();

    /// The plug-ins in the order in which they were found. None is null.
    const QVector<ModelPlugin*>& all() const { return plugins; }

    /// The plug-in of that name, or null.
    ModelPlugin* named(const QString& name) const;

    /// For the user, a line each: what is wrong with files that should have been plug-ins. Where there is no
    /// plug-in at all, the last line says so and names the folders.
    const QStringList& problems() const { return troubles; }

private:
    void loadFrom(const QString& folder);
    void load(const QString& file);

    QVector<ModelPlugin*> plugins;
    QStringList troubles;
};

} // namespace tolvik
