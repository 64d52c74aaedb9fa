#include "scene/Images.h"

#include <algorithm>
#include <cstring>
#include <osgDB/Registry>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QUrl>

namespace tolvik::scene {

namespace {

constexpr int longestSide = 8192;
/// A file of few bytes can claim to be a picture of any size.
constexpr qint64 mostPixels = 400'000'000;
constexpr const char* rasterFormats[] = {"png", "jpeg", "jpg", "gif", "bmp", "tiff", "tif", "webp",
                                         "tga", "pbm",  "pgm", "ppm", "xbm", "xpm",  "ico", "jp2"};

bool isRaster(const QByteArray& format)
{
    return std::find(std::begin(rasterFormats), std::end(rasterFormats), format) != std::end(rasterFormats);
}

/// The path that an address of a document means; empty for one of a network.
QString localPathOf(const QString& uri)
{
    // A drive of one letter is no scheme.
    const QUrl url(uri);
    if (url.isLocalFile()) {
        return url.toLocalFile();
    }
    return url.scheme().size() > 1 ? QString() : QString(uri).replace('\\', '/');
}

osg::ref_ptr<osg::Image> readImage(const QString& path)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    QImage image = reader.read();
    if (image.isNull()) {
        return nullptr;
    }
    if (std::max(image.width(), image.height()) > longestSide) {
        image = image.scaled(longestSide, longestSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    }
    image = image.convertToFormat(QImage::Format_RGBA8888).mirrored();
    osg::ref_ptr<osg::Image> result = new osg::Image;
    result->allocateImage(image.width(), image.height(), 1, GL_RGBA, GL_UNSIGNED_BYTE);
    for (int y = 0; y < image.height(); ++y) {
        std::memcpy(result->data(0, static_cast<unsigned>(y)), image.constScanLine(y),
                    static_cast<std::size_t>(image.width()) * 4);
    }
    return result;
}

bool isBelow(const QString& path, const QString& folder)
{
    return path.startsWith(folder.endsWith('/') ? folder : folder + '/');
}

} // namespace

DocumentFolder::DocumentFolder(const QString& document)
{
    if (!document.isEmpty()) {
        folders << QFileInfo(document).absolutePath();
    }
    for (const std::string& path : osgDB::Registry::instance()->getDataFilePathList()) {
        folders << QString::fromLocal8Bit(path.c_str());
    }
    for (QString& folder : folders) {
        folder = QFileInfo(folder).canonicalFilePath();
    }
    folders.removeAll(QString());
    folders.removeDuplicates();
}

QString DocumentFolder::find(const QString& uri) const
{
    const QString path = localPathOf(uri);
    if (path.isEmpty()) {
        return QString();
    }
    for (const QString& folder : folders) {
        // Links and steps upwards are resolved before it is asked where the file lies.
        const QFileInfo file(QDir(folder).absoluteFilePath(path));
        QString found = file.canonicalFilePath();
        const bool isInside = std::any_of(folders.begin(), folders.end(), [&found](const QString& allowed) {
            return isBelow(found, allowed);
        });
        if (!found.isEmpty() && isInside && file.isFile() && file.isReadable()) {
            return found;
        }
    }
    return QString();
}

Picture::Picture(QString file) : path(std::move(file))
{
    if (path.isEmpty()) {
        return;
    }
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (reader.canRead() && isRaster(reader.format()) &&
        static_cast<qint64>(size.width()) * size.height() <= mostPixels) {
        ownSize = size;
    }
}

const osg::ref_ptr<osg::Image>& Picture::image() const
{
    std::call_once(isRead, [this] {
        if (!ownSize.isEmpty()) {
            read = readImage(path);
        }
    });
    return read;
}

} // namespace tolvik::scene
