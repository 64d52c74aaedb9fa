#include "citygml/GeometryWalk.h"

#include "gml/AbstractFeatureType.hxx"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"

#include <cmath>
#include <QtTest>

using namespace testsupport;
using citygml::GeometryPiece;
using citygml::Position;

namespace {

QString textOf(const Position& position)
{
    return QStringLiteral("%1,%2,%3").arg(position[0]).arg(position[1]).arg(position[2]);
}

QString kindOf(const GeometryPiece& piece)
{
    switch (piece.kind) {
    case GeometryPiece::Kind::Surface:
        return QStringLiteral("surface");
    case GeometryPiece::Kind::Line:
        return QStringLiteral("line");
    case GeometryPiece::Kind::Point:
        return QStringLiteral("point");
    case GeometryPiece::Kind::LibraryObject:
        break;
    }
    return QString::fromStdString(piece.libraryObject + ' ' + piece.mimeType);
}

QString idOf(const gml::AbstractFeatureType& feature)
{
    return feature.id().present() ? QString::fromStdString(*feature.id()) : QStringLiteral("?");
}

/// A piece in one line: owner, member, level of detail, kind, positions with a bar between rings.
QString lineOf(const GeometryPiece& piece)
{
    QStringList runs;
    for (const citygml::PositionRun& run : piece.runs) {
        QStringList positions;
        for (std::size_t i = run.begin; i < run.end; ++i) {
            positions << textOf(piece.positions[i]);
        }
        runs << positions.join(' ');
    }
    if (piece.kind == GeometryPiece::Kind::Point) {
        runs << textOf(piece.positions.front());
    }
    QString line = QStringLiteral("%1 %2 %3 %4: %5")
                       .arg(idOf(*piece.owner), QString::fromStdString(*piece.member))
                       .arg(piece.lod)
                       .arg(kindOf(piece), runs.join(QStringLiteral(" | ")));
    if (piece.isReversed) {
        line += QStringLiteral(" turned");
    }
    if (piece.holder != nullptr) {
        line += QStringLiteral(" of %1 %2").arg(idOf(*piece.holder)).arg(piece.holderLod);
    }
    return line;
}

const QByteArray moreNamespaces = " xmlns:dem='http://www.opengis.net/citygml/relief/2.0'"
                                  " xmlns:frn='http://www.opengis.net/citygml/cityfurniture/2.0'"
                                  " xmlns:tran='http://www.opengis.net/citygml/transportation/2.0'"
                                  " xmlns:veg='http://www.opengis.net/citygml/vegetation/2.0'"
                                  " xmlns:utility='http://www.citygml.org/ade/utility/0.9.2'";

Document readMembers(const QByteArray& members)
{
    return read(documentText(members, moreNamespaces));
}

QStringList piecesOf(const gml::AbstractFeatureType& feature)
{
    QStringList lines;
    citygml::walkGeometry(feature, [&](const GeometryPiece& piece) { lines << lineOf(piece); });
    return lines;
}

/// The same by a walk that stops after each so many pieces.
QStringList piecesInPartsOf(const gml::AbstractFeatureType& feature, int partSize)
{
    QStringList lines;
    citygml::GeometryWalkPlace place;
    int count = 0;
    while (citygml::walkGeometry(feature, place, [&](const GeometryPiece& piece) {
        lines << lineOf(piece);
        return ++count % partSize != 0;
    })) {
    }
    return lines;
}

/// Of all features, if they are the same in parts.
QStringList piecesOf(const QByteArray& members)
{
    const Document document = readMembers(members);
    QStringList lines;
    for (const gml::AbstractFeatureType* feature : featuresOf(*document)) {
        const QStringList pieces = piecesOf(*feature);
        for (const int partSize : {1, 2, 3}) {
            const QStringList inParts = piecesInPartsOf(*feature, partSize);
            if (inParts != pieces) {
                return QStringList("in parts:") + inParts;
            }
        }
        lines << pieces;
    }
    return lines;
}

QByteArray polygon(const QByteArray& positions, const QByteArray& id = QByteArray(),
                   const QByteArray& more = QByteArray())
{
    return "<gml:Polygon" + (id.isEmpty() ? id : " gml:id='" + id + "'") +
           "><gml:exterior><gml:LinearRing><gml:posList>" + positions +
           "</gml:posList></gml:LinearRing></gml:exterior>" + more + "</gml:Polygon>";
}

QByteArray surfaceMember(const QByteArray& surface)
{
    return "<gml:surfaceMember>" + surface + "</gml:surfaceMember>";
}

const QByteArray triangle = "0 0 0 1 0 0 0 1 0 0 0 0";
const QString trianglePositions = QStringLiteral("0,0,0 1,0,0 0,1,0 0,0,0");

} // namespace

class GeometryWalkTest : public QObject
{
    Q_OBJECT

private slots:
    void solidsOfAllLevelsOfDetail();
    void holesStandBehindTheOuterRing();
    void referencesAreFollowedAndTold();
    void orientableSurfacesTurnWhatIsInThem();
    void circlesOfReferencesEnd();
    void referencesThatMultiplyEnd_data();
    void referencesThatMultiplyEnd();
    void trianglesOfATerrain();
    void positionsOfAllForms_data();
    void positionsOfAllForms();
    void linesAndPoints();
    void arcsAreCutIntoLines();
    void implicitGeometryIsPlaced();
    void libraryObjectsAreTold();
    void geometryOfExtensions();
    void geometryOfFeaturesBelowIsTheirOwn();
    void surfacesAroundAPieceAreListed();
    void walksInPartsHandOverTheSame_data();
    void walksInPartsHandOverTheSame();
};

TEST_CLASS(GeometryWalkTest, None)

void GeometryWalkTest::solidsOfAllLevelsOfDetail()
{
    const QByteArray solid = "<gml:Solid><gml:exterior><gml:CompositeSurface>" +
                             surfaceMember(polygon(triangle)) +
                             "</gml:CompositeSurface></gml:exterior></gml:Solid>";
    const QByteArray surfaces =
        "<gml:MultiSurface>" + surfaceMember(polygon(triangle)) + "</gml:MultiSurface>";
    const QStringList lines = piecesOf(buildingMember(
        "<bldg:lod0FootPrint>" + surfaces + "</bldg:lod0FootPrint><bldg:lod1Solid>" + solid +
        "</bldg:lod1Solid><bldg:lod2MultiSurface>" + surfaces + "</bldg:lod2MultiSurface><bldg:lod3Solid>" +
        solid + "</bldg:lod3Solid>" + "<bldg:lod4Solid>" + solid + "</bldg:lod4Solid>"));
    QCOMPARE(lines, QStringList({"b lod0FootPrint 0 surface: " + trianglePositions,
                                 "b lod1Solid 1 surface: " + trianglePositions,
                                 "b lod2MultiSurface 2 surface: " + trianglePositions,
                                 "b lod3Solid 3 surface: " + trianglePositions,
                                 "b lod4Solid 4 surface: " + trianglePositions}));
}

void GeometryWalkTest::holesStandBehindTheOuterRing()
{
    const QByteArray hole = "<gml:interior><gml:LinearRing><gml:posList>1 1 0 2 1 0 1 2 0 1 1 0</gml:posList>"
                            "</gml:LinearRing></gml:interior>";
    const QStringList lines =
        piecesOf(buildingMember("<bldg:lod2MultiSurface><gml:MultiSurface>" +
                                surfaceMember(polygon("0 0 0 9 0 0 0 9 0 0 0 0", "p", hole)) +
                                "</gml:MultiSurface></bldg:lod2MultiSurface>"));
    QCOMPARE(lines, QStringList({"b lod2MultiSurface 2 surface: 0,0,0 9,0,0 0,9,0 0,0,0 | "
                                 "1,1,0 2,1,0 1,2,0 1,1,0"}));
}

void GeometryWalkTest::referencesAreFollowedAndTold()
{
    const QStringList lines = piecesOf(buildingMember(
        "<bldg:lod2Solid><gml:Solid><gml:exterior><gml:CompositeSurface><gml:surfaceMember xlink:href='#p'/>"
        "<gml:surfaceMember xlink:href='#nowhere'/><gml:surfaceMember xlink:href='http://elsewhere#p'/>"
        "</gml:CompositeSurface></gml:exterior></gml:Solid></bldg:lod2Solid>"
        "<bldg:boundedBy><bldg:WallSurface gml:id='wall'><bldg:lod3MultiSurface><gml:MultiSurface>" +
        surfaceMember(polygon(triangle, "p")) +
        "</gml:MultiSurface></bldg:lod3MultiSurface></bldg:WallSurface></bldg:boundedBy>"));
    QCOMPARE(lines, QStringList({"b lod2Solid 2 surface: " + trianglePositions + " of wall 3",
                                 "wall lod3MultiSurface 3 surface: " + trianglePositions}));
}

void GeometryWalkTest::orientableSurfacesTurnWhatIsInThem()
{
    const QByteArray turned = "<gml:OrientableSurface orientation='-'><gml:baseSurface>";
    const QByteArray end = "</gml:baseSurface></gml:OrientableSurface>";
    const QStringList lines = piecesOf(buildingMember(
        "<bldg:lod2MultiSurface><gml:MultiSurface>" + surfaceMember(turned + polygon(triangle) + end) +
        surfaceMember(turned + turned + polygon(triangle) + end + end) + surfaceMember(polygon(triangle)) +
        "</gml:MultiSurface></bldg:lod2MultiSurface>"));
    QCOMPARE(lines, QStringList({"b lod2MultiSurface 2 surface: " + trianglePositions + " turned",
                                 "b lod2MultiSurface 2 surface: " + trianglePositions,
                                 "b lod2MultiSurface 2 surface: " + trianglePositions}));
}

void GeometryWalkTest::circlesOfReferencesEnd()
{
    const QStringList lines = piecesOf(buildingMember(
        "<bldg:lod2MultiSurface><gml:MultiSurface><gml:surfaceMember><gml:CompositeSurface gml:id='c'>"
        "<gml:surfaceMember xlink:href='#c'/>" +
        surfaceMember(polygon(triangle)) +
        "</gml:CompositeSurface></gml:surfaceMember></gml:MultiSurface></bldg:lod2MultiSurface>"));
    QVERIFY(!lines.isEmpty());
    QVERIFY2(lines.size() < 100, qPrintable(QString::number(lines.size())));
}

void GeometryWalkTest::referencesThatMultiplyEnd_data()
{
    QTest::addColumn<int>("partSize");
    QTest::newRow("at once") << 0;
    QTest::newRow("in parts") << 5000;
}

/// Ten surfaces, each of which refers ten times to the next, would be ten thousand million triangles.
void GeometryWalkTest::referencesThatMultiplyEnd()
{
    QFETCH(int, partSize);
    constexpr int most = 1000000;
    QByteArray surfaces;
    for (int level = 0; level < 10; ++level) {
        const QByteArray next = QByteArray::number(level + 1);
        surfaces +=
            surfaceMember("<gml:CompositeSurface gml:id='c" + QByteArray::number(level) + "'>" +
                          QByteArray("<gml:surfaceMember xlink:href='#c" + next + "'/>").repeated(10) +
                          "</gml:CompositeSurface>");
    }
    const Document document = readMembers(buildingMember("<bldg:lod2MultiSurface><gml:MultiSurface>" +
                                                         surfaces + surfaceMember(polygon(triangle, "c10")) +
                                                         "</gml:MultiSurface></bldg:lod2MultiSurface>"));
    const gml::AbstractFeatureType& building = *featuresOf(*document).back();
    int count = 0;
    const auto takeSome = [&](const GeometryPiece&) {
        ++count;
        return count <= most && (partSize == 0 || count % partSize != 0);
    };
    citygml::GeometryWalkPlace place;
    while (citygml::walkGeometry(building, place, takeSome) && count <= most) {
    }
    QVERIFY2(count <= most, qPrintable(QString::number(count)));
    QVERIFY2(count > most / 2, qPrintable(QString::number(count)));
}

void GeometryWalkTest::trianglesOfATerrain()
{
    const QByteArray patch = "<gml:Triangle><gml:exterior><gml:LinearRing><gml:posList>" + triangle +
                             "</gml:posList></gml:LinearRing></gml:exterior></gml:Triangle>";
    const QStringList lines =
        piecesOf("<core:cityObjectMember><dem:TINRelief "
                 "gml:id='t'><dem:lod>3</dem:lod><dem:tin><gml:TriangulatedSurface>"
                 "<gml:trianglePatches>" +
                 patch + patch +
                 "</gml:trianglePatches></gml:TriangulatedSurface></dem:tin></dem:TINRelief>"
                 "</core:cityObjectMember>");
    QCOMPARE(lines,
             QStringList({"t tin 3 surface: " + trianglePositions, "t tin 3 surface: " + trianglePositions}));
}

void GeometryWalkTest::positionsOfAllForms_data()
{
    QTest::addColumn<QByteArray>("ring");
    QTest::addColumn<QString>("expected");

    QTest::newRow("list") << QByteArray("<gml:posList>" + triangle + "</gml:posList>") << trianglePositions;
    QTest::newRow("list of two dimensions")
        << QByteArray("<gml:posList srsDimension='2'>0 0 1 0 0 1 0 0</gml:posList>") << trianglePositions;
    QTest::newRow("list that can only have two")
        << QByteArray("<gml:posList>0 0 1 0 0 1 0 0</gml:posList>") << trianglePositions;
    QTest::newRow("single ones") << QByteArray("<gml:pos>0 0 0</gml:pos><gml:pos>1 0 0</gml:pos>"
                                               "<gml:pos>0 1 0</gml:pos><gml:pos>0 0 0</gml:pos>")
                                 << trianglePositions;
    QTest::newRow("points") << QByteArray("<gml:pointProperty><gml:Point><gml:pos>7 8 9</gml:pos></gml:Point>"
                                          "</gml:pointProperty><gml:pointProperty xlink:href='#shared'/>")
                            << "7,8,9 4,5,6";
    QTest::newRow("text") << QByteArray("<gml:coordinates>0,0,0 1,0,0 0,1.5,-2e1</gml:coordinates>")
                          << "0,0,0 1,0,0 0,1.5,-20";
    QTest::newRow("text with other separators")
        << QByteArray("<gml:coordinates decimal=',' cs=' ' ts=';'>0,5 0 0;1 0 0</gml:coordinates>")
        << "0.5,0,0 1,0,0";
    QTest::newRow("numbers") << QByteArray("<gml:coord><gml:X>1</gml:X><gml:Y>2</gml:Y><gml:Z>3</gml:Z>"
                                           "</gml:coord><gml:coord><gml:X>4</gml:X></gml:coord>")
                             << "1,2,3 4,0,0";
}

void GeometryWalkTest::positionsOfAllForms()
{
    QFETCH(QByteArray, ring);
    QFETCH(QString, expected);
    const QByteArray shared =
        "<core:cityObjectMember><frn:CityFurniture gml:id='f'><frn:lod1Geometry><gml:Point "
        "gml:id='shared'><gml:pos>4 5 6</gml:pos></gml:Point></frn:lod1Geometry>"
        "</frn:CityFurniture></core:cityObjectMember>";
    const QStringList lines =
        piecesOf(buildingMember(
                     "<bldg:lod2MultiSurface><gml:MultiSurface><gml:surfaceMember><gml:Polygon><gml:exterior>"
                     "<gml:LinearRing>" +
                     ring +
                     "</gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>"
                     "</gml:MultiSurface></bldg:lod2MultiSurface>") +
                 shared);
    QCOMPARE(lines.value(0), "b lod2MultiSurface 2 surface: " + expected);
}

void GeometryWalkTest::linesAndPoints()
{
    const QStringList lines = piecesOf(
        "<core:cityObjectMember><tran:Road gml:id='r'><tran:lod0Network><gml:GeometricComplex><gml:element>"
        "<gml:LineString><gml:posList>0 0 0 1 1 1</gml:posList></gml:LineString></gml:element><gml:element>"
        "<gml:Curve><gml:segments><gml:LineStringSegment><gml:posList>0 0 0 2 0 0</gml:posList>"
        "</gml:LineStringSegment><gml:LineStringSegment><gml:posList>2 0 0 3 0 0</gml:posList>"
        "</gml:LineStringSegment></gml:segments></gml:Curve></gml:element><gml:element><gml:Point><gml:pos>5 "
        "6 7"
        "</gml:pos></gml:Point></gml:element></gml:GeometricComplex></tran:lod0Network></tran:Road>"
        "</core:cityObjectMember>");
    QCOMPARE(lines, QStringList({"r lod0Network 0 line: 0,0,0 1,1,1",
                                 "r lod0Network 0 line: 0,0,0 2,0,0 3,0,0", "r lod0Network 0 point: 5,6,7"}));
}

void GeometryWalkTest::arcsAreCutIntoLines()
{
    const Document document = readMembers(
        "<core:cityObjectMember><frn:CityFurniture><frn:lod1Geometry><gml:Curve><gml:segments><gml:Arc>"
        "<gml:posList>1 0 0 0 1 0 -1 0 "
        "0</gml:posList></gml:Arc></gml:segments></gml:Curve></frn:lod1Geometry>"
        "</frn:CityFurniture></core:cityObjectMember>");
    std::vector<Position> positions;
    for (const gml::AbstractFeatureType* feature : featuresOf(*document)) {
        citygml::walkGeometry(*feature, [&](const GeometryPiece& piece) { positions = piece.positions; });
    }
    QCOMPARE(positions.size(), std::size_t(19));
    for (const Position& position : positions) {
        QVERIFY(std::abs(std::hypot(position[0], position[1]) - 1) < 1e-9);
        QVERIFY(position[1] > -1e-9);
    }
    QCOMPARE(textOf(positions.front()), QStringLiteral("1,0,0"));
    QCOMPARE(textOf(positions.back()), QStringLiteral("-1,0,0"));
}

void GeometryWalkTest::implicitGeometryIsPlaced()
{
    const QByteArray matrix = "<core:transformationMatrix>2 0 0 0 0 1 0 0 0 0 1 5 0 0 0 1"
                              "</core:transformationMatrix>";
    const QByteArray tree =
        "<gml:MultiSurface gml:id='tree'>" + surfaceMember(polygon(triangle)) + "</gml:MultiSurface>";
    const auto plant = [&](const QByteArray& id, const QByteArray& geometry) {
        return "<core:cityObjectMember><veg:SolitaryVegetationObject gml:id='" + id +
               "'><veg:lod2ImplicitRepresentation><core:ImplicitGeometry>" + matrix + geometry +
               "<core:referencePoint><gml:Point><gml:pos>10 20 30</gml:pos></gml:Point></core:referencePoint>"
               "</core:ImplicitGeometry></veg:lod2ImplicitRepresentation></veg:SolitaryVegetationObject>"
               "</core:cityObjectMember>";
    };
    const QStringList lines =
        piecesOf(plant("a", "<core:relativeGMLGeometry>" + tree + "</core:relativeGMLGeometry>") +
                 plant("c", "<core:relativeGMLGeometry xlink:href='#tree'/>"));
    const QString placed = QStringLiteral(" lod2ImplicitRepresentation 2 surface: "
                                          "10,20,35 12,20,35 10,21,35 10,20,35");
    QCOMPARE(lines, QStringList({"a" + placed, "c" + placed}));
}

void GeometryWalkTest::libraryObjectsAreTold()
{
    const QByteArray member =
        "<core:cityObjectMember><frn:CityFurniture gml:id='f'><frn:lod3ImplicitRepresentation>"
        "<core:ImplicitGeometry><core:mimeType>model/x</core:mimeType><core:libraryObject>lamp.obj"
        "</core:libraryObject><core:referencePoint><gml:Point><gml:pos>1 2 3</gml:pos></gml:Point>"
        "</core:referencePoint></core:ImplicitGeometry></frn:lod3ImplicitRepresentation></frn:CityFurniture>"
        "</core:cityObjectMember>";
    QCOMPARE(piecesOf(member), QStringList({"f lod3ImplicitRepresentation 3 lamp.obj model/x: "}));

    const Document document = readMembers(member);
    for (const gml::AbstractFeatureType* feature : featuresOf(*document)) {
        citygml::walkGeometry(*feature, [](const GeometryPiece& piece) {
            QCOMPARE(piece.placement[3], 1.0);
            QCOMPARE(piece.placement[7], 2.0);
            QCOMPARE(piece.placement[11], 3.0);
        });
    }
}

void GeometryWalkTest::geometryOfExtensions()
{
    const QStringList lines = piecesOf(
        "<core:cityObjectMember><utility:Cable gml:id='u'><utility:lod2Geometry><gml:LineString><gml:posList>"
        "0 0 0 1 1 1</gml:posList></gml:LineString></utility:lod2Geometry></utility:Cable>"
        "</core:cityObjectMember>");
    QCOMPARE(lines, QStringList({"u lod2Geometry 2 line: 0,0,0 1,1,1"}));
}

void GeometryWalkTest::geometryOfFeaturesBelowIsTheirOwn()
{
    const QStringList lines = piecesOf(buildingMember(
        "<bldg:address><core:Address gml:id='a'><core:xalAddress><xAL:AddressDetails/></core:xalAddress>"
        "<core:multiPoint><gml:MultiPoint><gml:pointMember><gml:Point><gml:pos>1 2 3</gml:pos></gml:Point>"
        "</gml:pointMember></gml:MultiPoint></core:multiPoint></core:Address></bldg:address>"));
    QCOMPARE(lines, QStringList({"a multiPoint -1 point: 1,2,3"}));
}

void GeometryWalkTest::surfacesAroundAPieceAreListed()
{
    const Document document = readMembers(buildingMember(
        "<bldg:lod2MultiSurface><gml:MultiSurface gml:id='m'>" + surfaceMember(polygon(triangle, "p")) +
        "</gml:MultiSurface></bldg:lod2MultiSurface>"));
    int count = 0;
    for (const gml::AbstractFeatureType* feature : featuresOf(*document)) {
        citygml::walkGeometry(*feature, [&](const GeometryPiece& piece) {
            ++count;
            QCOMPARE(piece.objects.size(), std::size_t(2));
            QCOMPARE(piece.objects[0], citygml::findById(*document, "m"));
            QCOMPARE(piece.objects[1], citygml::findById(*document, "p"));
            QCOMPARE(citygml::featureAround(*piece.objects[1]), piece.owner);
        });
    }
    QCOMPARE(count, 1);
}

void GeometryWalkTest::walksInPartsHandOverTheSame_data()
{
    addPathRows(exampleAndSharedDocuments());
}

void GeometryWalkTest::walksInPartsHandOverTheSame()
{
    QFETCH(QString, path);
    const Document document = read(contentOf(path));
    for (const gml::AbstractFeatureType* feature : featuresOf(*document)) {
        for (const int partSize : {1, 7}) {
            QCOMPARE(piecesInPartsOf(*feature, partSize), piecesOf(*feature));
        }
    }
}

#include "geometrywalktest.moc"
