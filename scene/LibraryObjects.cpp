#include "scene/LibraryObjects.h"

#include "scene/Triangulator.h"

#include <algorithm>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace tolvik::scene {

namespace {

using citygml::Position;
using Corners = std::vector<Position>;

/// No tree or lamp has so many bytes.
constexpr qint64 largestFile = qint64(256) * 1024 * 1024;

/// Three numbers of a line, behind its first word.
Position readPosition(const QList<QByteArray>& words)
{
    return {words[1].toDouble(), words[2].toDouble(), words[3].toDouble()};
}

/// Reads the faces of an OBJ file.
class ObjReader
{
public:
    Corners read(QFile& file)
    {
        while (!file.atEnd()) {
            const QList<QByteArray> words = file.readLine().simplified().split(' ');
            if (words[0] == "v" && words.size() > 3) {
                vertices.push_back(readPosition(words));
            } else if (words[0] == "f") {
                addFace(words);
            }
        }
        return std::move(corners);
    }

private:
    /// A face that names a vertex which is not there is left out.
    void addFace(const QList<QByteArray>& words)
    {
        face.clear();
        for (int i = 1; i < words.size(); ++i) {
            // Behind the slash stand a texture and a normal. Below 0, the last vertex is -1.
            const long long number = words[i].split('/')[0].toLongLong();
            const auto count = static_cast<long long>(vertices.size());
            if (number == 0 || number > count || number < -count) {
                return;
            }
            face.push_back(vertices[static_cast<std::size_t>(number > 0 ? number - 1 : count + number)]);
        }
        if (!triangulator.triangulate(face, {{0, face.size(), nullptr}})) {
            return;
        }
        for (const std::uint32_t corner : triangulator.triangles()) {
            const std::size_t crossing = corner - std::min<std::size_t>(corner, face.size());
            corners.push_back(corner < face.size() ? face[corner]
                                                   : triangulator.crossings()[crossing].position);
        }
    }

    Triangulator triangulator;
    Corners vertices;
    Corners face;
    Corners corners;
};

/// An STL file of bytes: 80 of a title, the number of triangles, and 50 for each of these: four vectors of
/// three numbers, the first of which is the normal, and two bytes more.
constexpr int stlHeader = 84;
constexpr int stlTriangle = 50;
constexpr int stlVector = 12;

bool isBinaryStl(const QByteArray& bytes)
{
    return bytes.size() >= stlHeader &&
           bytes.size() - stlHeader ==
               qint64(stlTriangle) * qFromLittleEndian<quint32>(bytes.constData() + stlHeader - 4);
}

Corners readBinaryStl(const QByteArray& bytes)
{
    Corners corners;
    for (int triangle = stlHeader; triangle < bytes.size(); triangle += stlTriangle) {
        for (int corner = triangle + stlVector; corner < triangle + 4 * stlVector; corner += stlVector) {
            const char* const numbers = bytes.constData() + corner;
            corners.push_back({qFromLittleEndian<float>(numbers), qFromLittleEndian<float>(numbers + 4),
                               qFromLittleEndian<float>(numbers + 8)});
        }
    }
    return corners;
}

Corners readStl(QFile& file)
{
    const QByteArray bytes = file.readAll();
    if (isBinaryStl(bytes)) {
        return readBinaryStl(bytes);
    }
    Corners corners;
    const QList<QByteArray> lines = bytes.split('\n');
    for (const QByteArray& line : lines) {
        const QList<QByteArray> words = line.simplified().split(' ');
        if (words[0] == "vertex" && words.size() > 3) {
            corners.push_back(readPosition(words));
        }
    }
    return corners;
}

Corners readFile(const QString& path)
{
    QFile file(path);
    const QString kind = QFileInfo(path).suffix().toLower();
    if (path.isEmpty() || file.size() > largestFile || !file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return kind == "obj" ? ObjReader().read(file) : kind == "stl" ? readStl(file) : Corners();
}

} // namespace

const std::vector<Position>& LibraryObjects::trianglesOf(const QString& path)
{
    const auto found = known.find(path);
    return found != known.end() ? found->second : known.emplace(path, readFile(path)).first->second;
}

} // namespace tolvik::scene
