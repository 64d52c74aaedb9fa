#include "apps/common/OpenDocument.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <iostream>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <sstream>

namespace tolvik::apps {
namespace {

bool isStandardInput(const QString& file)
{
    return file == QLatin1String("-");
}

} // namespace

std::unique_ptr<std::istream> openDocument(const QString& file, QString& reason)
{
    if (isStandardInput(file)) {
        return std::make_unique<std::istream>(std::cin.rdbuf());
    }
    const QFileInfo info(file);
    if (!info.exists()) {
        reason = QStringLiteral("no such file");
    } else if (info.isDir()) {
        reason = QStringLiteral("is a directory");
    } else if (!info.isReadable()) {
        reason = QStringLiteral("permission denied");
    } else {
        auto stream = std::make_unique<std::ifstream>(QFile::encodeName(file).constData());
        if (stream->is_open()) {
            return stream;
        }
        reason = QString::fromLocal8Bit(std::strerror(errno));
    }
    return nullptr;
}

std::unique_ptr<std::istream> openSeekableDocument(const QString& file, QString& reason)
{
    std::unique_ptr<std::istream> stream = openDocument(file, reason);
    if (stream == nullptr || (!isStandardInput(file) && QFileInfo(file).isFile())) {
        return stream;
    }
    auto copy = std::make_unique<std::stringstream>();
    *copy << stream->rdbuf();
    copy->clear();
    return copy;
}

} // namespace tolvik::apps
