#include "OpenDocument.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <sstream>

namespace tolvik::inspect {
namespace {

bool isStandardInput(const QString& file)
{
    return file == QLatin1String("-");
}

} // namespace

QString obstacle(const QString& file)
{
    const QFileInfo info(file);
    if (isStandardInput(file)) {
        return QString();
    }
    if (!info.exists()) {
        return QStringLiteral("no such file");
    }
    if (info.isDir()) {
        return QStringLiteral("is a directory");
    }
    if (!info.isReadable()) {
        return QStringLiteral("permission denied");
    }
    return QString();
}

std::unique_ptr<std::istream> openDocument(const QString& file, std::ostream& err)
{
    std::string reason = obstacle(file).toStdString();
    if (reason.empty()) {
        if (isStandardInput(file)) {
            return std::make_unique<std::istream>(std::cin.rdbuf());
        }
        auto stream = std::make_unique<std::ifstream>(QFile::encodeName(file).constData());
        if (stream->is_open()) {
            return stream;
        }
        reason = std::strerror(errno);
    }
    err << "tolvik-inspect: " << file.toStdString() << " could not be loaded: " << reason << '\n';
    return nullptr;
}

std::unique_ptr<std::istream> openSeekableDocument(const QString& file, std::ostream& err)
{
    std::unique_ptr<std::istream> stream = openDocument(file, err);
    if (stream == nullptr || (!isStandardInput(file) && QFileInfo(file).isFile())) {
        return stream;
    }
    auto copy = std::make_unique<std::stringstream>();
    *copy << stream->rdbuf();
    copy->clear();
    return copy;
}

} // namespace tolvik::inspect
