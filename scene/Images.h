#pragma once

#include <osg/Image>
#include <osg/ref_ptr>
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

/// Reads a picture, and turns it as OpenGL wants it. Pictures larger than 8192 pixels a side are reduced.
/// \return null for a file that is no picture
osg::ref_ptr<osg::Image> readImage(const QString& path);

} // namespace tolvik::scene
