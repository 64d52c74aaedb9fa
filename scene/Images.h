#pragma once

#include <mutex>
#include <osg/Image>
#include <osg/ref_ptr>
#include <QSize>
#include <QString>
#include <QStringList>

namespace tolvik::scene {

/// Finds the files that a document names, beside it and on the data file path list of the scene library, and
/// nowhere else: no path leads out of these folders, and nothing is fetched from a network.
class DocumentFolder
{
public:
    /// \param document path of the document; empty for one that comes from no file
    explicit DocumentFolder(const QString& document = QString());

    /// \param uri a relative or absolute path, or a `file` address, as the document writes it
    /// \return the path of a readable file in one of the folders or below; empty where there is none
    QString find(const QString& uri) const;

private:
    QStringList folders;
};

/// A picture in a file, which is read when it is first asked for. For any number of threads. Of formats that
/// are made of pixels alone: others name further files.
class Picture
{
public:
    /// \param path of a file; empty for a picture that was not found
    explicit Picture(QString path);

    /// Width and height that the file tells of itself; empty for a file that is no picture.
    const QSize& size() const { return ownSize; }
    /// The picture, turned as OpenGL wants it. One larger than 8192 pixels a side is reduced.
    /// \return null where it cannot be read
    const osg::ref_ptr<osg::Image>& image() const;

private:
    QString path;
    QSize ownSize;
    mutable std::once_flag isRead;
    mutable osg::ref_ptr<osg::Image> read;
};

} // namespace tolvik::scene
