#include "TableModule.h"

#include "framework/ModelPlugins.h"

#include <QDir>
#include <QLibrary>

namespace tolvik::inspect {

TableModule& TableModule::load()
{
    using Instance = TableModule* (*)();
    QString reason = QStringLiteral("no such file");
    for (const QString& plugins : ModelPlugins::standardFolders()) {
        // Modules of programs lie beside the folder of the plug-ins.
        const QString path = QDir::cleanPath(plugins + QStringLiteral("/../tolvik-tables.so"));
        if (!QFileInfo::exists(path)) {
            continue;
        }
        QLibrary library(path);
        if (auto* const instance = reinterpret_cast<Instance>(library.resolve("tolvikTableModule"))) {
            return *instance();
        }
        reason = library.errorString();
    }
    throw std::runtime_error("the module for tables could not be loaded: " + reason.toStdString());
}

} // namespace tolvik::inspect
