#include "SaveDocument.h"

#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <ostream>
#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <stdexcept>
#include <sys/stat.h>
#include <unistd.h>

namespace tolvik::inspect {
namespace {

QString lastError()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

/// The permissions of a file that is there, or those that a new file would get.
mode_t permissionsFor(const QByteArray& path)
{
    struct ::stat status = {};
    if (::stat(path.constData(), &status) == 0) {
        return status.st_mode & 07777;
    }
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

/// Whether the file holds a document to its end. A model's save tells nothing of a disk that is full, but
/// what it leaves then has no end tag of the root.
bool endsWithRoot(QFile& file)
{
    const qint64 length = std::min<qint64>(file.size(), 0x10000);
    const uchar* bytes = file.map(file.size() - length, length);
    if (bytes == nullptr) {
        return false;
    }
    const QByteArray text =
        QByteArray::fromRawData(reinterpret_cast<const char*>(bytes), static_cast<int>(length));
    const int tag = text.lastIndexOf("</");
    return tag >= 0 && text.indexOf("CityModel>", tag) > 0;
}

/// Writes the document into the temporary file and gives it the name \a path.
/// \return why that failed; empty if it did not
QString write(CityGMLModel& model, QTemporaryFile& temporary, const QString& path)
{
    try {
        model.saveAs(temporary.fileName(), true);
    } catch (const std::runtime_error&) {
        return QStringLiteral("the document cannot be written");
    }
    if (!endsWithRoot(temporary)) {
        return QStringLiteral("not all of it could be written; is the disk full?");
    }
    const QByteArray name = QFile::encodeName(path);
    if (::fchmod(temporary.handle(), permissionsFor(name)) != 0 || ::fsync(temporary.handle()) != 0 ||
        std::rename(QFile::encodeName(temporary.fileName()).constData(), name.constData()) != 0) {
        return lastError();
    }
    temporary.setAutoRemove(false);
    return QString();
}

/// The same without a temporary file left behind.
/// \return why the document could not be saved; empty if it is
QString save(CityGMLModel& model, const QString& output)
{
    const QFileInfo given(output);
    if (given.exists() && !given.isFile()) {
        return QStringLiteral("is not a regular file");
    }
    if (given.exists() && !given.isWritable()) {
        return QStringLiteral("is write-protected");
    }
    // A link stays and what it leads to is replaced.
    const QFileInfo target(given.isSymLink() ? given.symLinkTarget() : given.absoluteFilePath());
    QTemporaryFile temporary(target.dir().filePath(QStringLiteral(".%1.XXXXXX").arg(target.fileName())));
    if (!temporary.open()) {
        return temporary.errorString();
    }
    QString reason = write(model, temporary, target.filePath());
    if (reason.isEmpty()) {
        model.setFileName(output);
    }
    return reason;
}

} // namespace

bool saveDocument(CityGMLModel& model, const QString& output, std::ostream& err)
{
    const QString reason = save(model, output);
    if (!reason.isEmpty()) {
        err << "tolvik-inspect: " << output.toStdString() << " could not be saved: " << reason.toStdString()
            << '\n';
    }
    return reason.isEmpty();
}

} // namespace tolvik::inspect
