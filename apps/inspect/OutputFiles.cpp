#include "OutputFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <stdexcept>

namespace tolvik::inspect {

QStringList outputsIn(const QString& folder, const QStringList& files, const QString& ending)
{
    QStringList outputs;
    QSet<QString> known;
    for (const QString& file : files) {
        if (file == QLatin1String("-")) {
            throw std::invalid_argument("standard input has no name under which it could be written");
        }
        const QFileInfo info(file);
        const QString output =
            QDir(folder).filePath(ending.isEmpty() ? info.fileName() : info.completeBaseName() + ending);
        if (known.contains(output)) {
            throw std::invalid_argument("several documents would be written to " + output.toStdString());
        }
        known.insert(output);
        outputs += output;
    }
    return outputs;
}

} // namespace tolvik::inspect
