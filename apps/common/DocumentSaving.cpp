#include "apps/common/DocumentSaving.h"

#include "citygml/CityGmlUtils.h"
#include "citygml/DocumentChanges.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <stdexcept>
#include <sys/stat.h>
#include <unistd.h>

namespace tolvik::apps {
namespace {

QString lastError()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

QString notWhole()
{
    return QStringLiteral("not all of it could be written; is the disk full?");
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

/// Gives a file that has been written the name of another one.
/// \return why that failed; empty if it did not
QString rename(QTemporaryFile& temporary, const QString& path)
{
    const QByteArray name = QFile::encodeName(path);
    if (::fchmod(temporary.handle(), permissionsFor(name)) != 0 || ::fsync(temporary.handle()) != 0 ||
        std::rename(QFile::encodeName(temporary.fileName()).constData(), name.constData()) != 0) {
        return lastError();
    }
    temporary.setAutoRemove(false);
    return QString();
}

/// The file that a path leads to by way of links.
QString targetOf(const QFileInfo& given)
{
    if (given.exists()) {
        return given.canonicalFilePath();
    }
    return given.isSymLink() ? given.symLinkTarget() : given.absoluteFilePath();
}

xsd::cxx::xml::dom::namespace_infomap<char> usualPrefixes()
{
    xsd::cxx::xml::dom::namespace_infomap<char> prefixes;
    for (const NamespacesMap& entry : CityGmlUtils::getNamespaces()) {
        prefixes[entry.prefix].name = entry.name;
        prefixes[entry.prefix].schema = entry.schemaLocation;
    }
    return prefixes;
}

} // namespace

DocumentSaving::DocumentSaving(CityGMLModel& model, const SourceFile& source) : model(model), original(source)
{
}

bool DocumentSaving::save(const QString& output, Form form)
{
    remark.clear();
    const QFileInfo given(output);
    if (given.exists() && !given.isFile()) {
        reason = QStringLiteral("is not a regular file");
    } else if (given.exists() && !given.isWritable()) {
        reason = QStringLiteral("is write-protected");
    } else {
        reason = replace(targetOf(given), form);
    }
    if (!reason.isEmpty()) {
        return false;
    }
    model.setFileName(output);
    original = SourceFile(output);
    return true;
}

/// \return why the file could not be replaced; empty if it was
QString DocumentSaving::replace(const QString& path, Form form)
{
    const QFileInfo target(path);
    QTemporaryFile temporary(target.dir().filePath(QStringLiteral(".%1.XXXXXX").arg(target.fileName())));
    if (!temporary.open()) {
        return temporary.errorString();
    }
    const QString problem = write(temporary, form);
    return problem.isEmpty() ? rename(temporary, target.filePath()) : problem;
}

QString DocumentSaving::write(QTemporaryFile& temporary, Form form)
{
    const QString name = temporary.fileName();
    try {
        if (form == Form::Changes && writeChanges(temporary)) {
            return QString();
        }
        model.saveAs(name, true);
    } catch (const xsd::cxx::tree::exception<char>&) {
        return QStringLiteral("the document cannot be written");
    } catch (const std::ios_base::failure&) {
        return notWhole();
    } catch (const std::runtime_error&) {
        return QStringLiteral("the document cannot be written");
    }
    return endsWithRoot(temporary) ? QString() : notWhole();
}

/// \return false with a note where the document has to be written anew
/// \throws std::ios_base::failure where the file cannot hold it
bool DocumentSaving::writeChanges(QTemporaryFile& temporary)
{
    if (!original.isFile()) {
        remark = QStringLiteral("the document was not read from a file");
        return false;
    }
    std::ifstream source(QFile::encodeName(original.path()).constData(), std::ios_base::binary);
    if (model.cityGML() == nullptr || !source.is_open() || !original.isUnchanged()) {
        remark = QStringLiteral("the file that the document was read from has changed");
        return false;
    }
    std::ofstream target(QFile::encodeName(temporary.fileName()).constData(), std::ios_base::binary);
    if (!citygml::writeChanges(source, *model.cityGML(), target, usualPrefixes())) {
        remark = QStringLiteral("the document cannot be compared with the file that it was read from");
        return false;
    }
    target.exceptions(std::ios_base::badbit | std::ios_base::failbit);
    target.flush();
    if (source.bad() || !original.isUnchanged()) {
        remark = QStringLiteral("the file that the document was read from has changed");
        return false;
    }
    return true;
}

} // namespace tolvik::apps
