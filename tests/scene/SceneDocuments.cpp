#include "scene/SceneDocuments.h"

#include "support/Files.h"

namespace testsupport {

DocumentFile::DocumentFile(const QByteArray& xml)
{
    writeFile(path(), xml);
}

QByteArray square(const QByteArray& id, double x, double z, const QByteArray& ring)
{
    const auto corner = [&](double dx, double dy) {
        return QByteArray::number(x + dx) + ' ' + QByteArray::number(dy) + ' ' + QByteArray::number(z) + ' ';
    };
    const auto identifier = [](const QByteArray& id) { return id.isEmpty() ? id : " gml:id='" + id + "'"; };
    return "<gml:surfaceMember><gml:Polygon" + identifier(id) + "><gml:exterior><gml:LinearRing" +
           identifier(ring) + "><gml:posList>" + corner(0, 0) + corner(10, 0) + corner(10, 10) +
           corner(0, 10) + corner(0, 0) +
           "</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>";
}

QByteArray multiSurface(const QByteArray& member, const QByteArray& surfaces)
{
    return "<bldg:" + member + "><gml:MultiSurface>" + surfaces + "</gml:MultiSurface></bldg:" + member + '>';
}

QByteArray appearanceMember(const QByteArray& theme, const QByteArray& surfaceData, const QByteArray& id)
{
    return "<app:appearanceMember><app:Appearance" + (id.isEmpty() ? id : " gml:id='" + id + "'") +
           "><app:theme>" + theme + "</app:theme><app:surfaceDataMember>" + surfaceData +
           "</app:surfaceDataMember></app:Appearance></app:appearanceMember>";
}

QByteArray material(const QByteArray& colour)
{
    return "<app:X3DMaterial><app:diffuseColor>" + colour +
           "</app:diffuseColor><app:target>#p</app:target></app:X3DMaterial>";
}

} // namespace testsupport
