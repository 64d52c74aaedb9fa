#include "apps/common/ProgramModule.h"

#include "framework/ModelPlugins.h"

#include <QDir>
#include <QFileInfo>
#include <QLibrary>
#include <stdexcept>

namespace tolvik::apps {

QFunctionPointer moduleEntry(const char* module, const char* entry)
{
    QString reason = QStringLiteral("no such file");
    const QStringList folders = ModelPlugins::standardFolders();
    for (const QString& plugins : folders) {
        // Modules of programs lie beside the folder of the plug-ins.
        const QString path = QDir::cleanPath(plugins + QStringLiteral("/../%1.so").arg(module));
        if (!QFileInfo::exists(path)) {
            continue;
        }
        QLibrary library(path);
        if (const QFunctionPointer found = library.resolve(entry)) {
            return found;
        }
        reason = library.errorString();
    }
    throw std::runtime_error("the module " + std::string(module) +
                             " could not be loaded: " + reason.toStdString());
}

} // namespace tolvik::apps
