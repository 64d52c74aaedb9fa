#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

namespace testsupport {

/// A document in a folder of its own.
class DocumentFile
{
public:
    explicit DocumentFile(const QByteArray& xml);

    QString path() const { return folder.filePath("city.gml"); }
    QString fileBeside(const QString& name) const { return folder.filePath(name); }

private:
    QTemporaryDir folder;
};

/// A surface member: a level square of 10 times 10.
/// \param id   its identifier, if it has one
/// \param x, z of the corner in the south-west; the other coordinate is 0
/// \param ring identifier of its ring, if it has one
QByteArray square(const QByteArray& id, double x, double z, const QByteArray& ring = QByteArray());

/// A member of a building or of a surface that bounds one, with surface members.
QByteArray multiSurface(const QByteArray& member, const QByteArray& surfaces);

/// A member of a document: an appearance with one surface data.
QByteArray appearanceMember(const QByteArray& theme, const QByteArray& surfaceData,
                            const QByteArray& id = QByteArray());

/// A material that the surface `p` has.
QByteArray material(const QByteArray& colour);

} // namespace testsupport
