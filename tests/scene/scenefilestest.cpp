#include "scene/SceneDocuments.h"
#include "scene/SceneFixture.h"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/TestClass.h"

#include <osgDB/Registry>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

using namespace testsupport;
using namespace tolvik::scene;

namespace {

constexpr int side = 64;
const QColor colours[] = {QColor(250, 10, 20), QColor(10, 240, 30), QColor(20, 30, 230),
                          QColor(240, 240, 10)};

/// A picture of four colours: two above, two below.
QImage fourColours()
{
    QImage picture(2, 2, QImage::Format_RGB32);
    for (int i = 0; i < 4; ++i) {
        picture.setPixelColor(i % 2, i / 2, colours[i]);
    }
    return picture.scaled(side, side);
}

/// A texture for the surface `p`.
QByteArray texture(const QByteArray& file)
{
    return "<app:ParameterizedTexture><app:imageURI>" + file +
           "</app:imageURI><app:target uri='#p'><app:TexCoordList><app:textureCoordinates ring='#r'>"
           "0 0 1 0 1 1 0 1 0 0</app:textureCoordinates></app:TexCoordList></app:target>"
           "</app:ParameterizedTexture>";
}

/// One that lies on the ground, with the members that say where.
QByteArray groundTexture(const QByteArray& place)
{
    return "<app:GeoreferencedTexture><app:imageURI>ground.png</app:imageURI>" + place +
           "<app:target>#p</app:target></app:GeoreferencedTexture>";
}

/// A building of one square that has a look in itself.
QByteArray texturedBuilding(const QByteArray& appearances)
{
    QByteArray polygon = square("p", 0, 0, "r");
    polygon.replace("<gml:surfaceMember>", "<gml:surfaceMember><tex:TexturedSurface "
                                           "xmlns:tex='http://www.opengis.net/citygml/texturedsurface/2.0'>"
                                           "<gml:baseSurface>");
    polygon.replace("</gml:surfaceMember>",
                    "</gml:baseSurface>" + appearances + "</tex:TexturedSurface></gml:surfaceMember>");
    return buildingMember(multiSurface("lod2MultiSurface", polygon));
}

QByteArray documentWith(const QByteArray& surfaceData)
{
    return documentText(appearanceMember("photo", surfaceData) +
                        buildingMember(multiSurface("lod2MultiSurface", square("p", 0, 0, "r"))));
}

/// A lamp whose shape is a file, at 0, 0, 0.
QByteArray lamp(const QByteArray& file)
{
    return "<core:cityObjectMember><frn:CityFurniture "
           "xmlns:frn='http://www.opengis.net/citygml/cityfurniture/2.0' gml:id='lamp'>"
           "<frn:lod3ImplicitRepresentation><core:ImplicitGeometry><core:libraryObject>" +
           file +
           "</core:libraryObject><core:referencePoint><gml:Point><gml:pos>0 0 0</gml:pos></gml:Point>"
           "</core:referencePoint></core:ImplicitGeometry></frn:lod3ImplicitRepresentation>"
           "</frn:CityFurniture></core:cityObjectMember>";
}

/// What is seen of a document from above, with the north at the top.
QImage fromAbove(SceneFixture& fixture)
{
    fixture.camera.setDirection(Camera::Direction::Top);
    fixture.camera.fit(fixture.scene.bounds(), 1.5);
    return fixture.picture();
}

/// The pixel in the middle of a quarter, counted as the colours are.
QPoint quarter(int number)
{
    return QPoint(SceneFixture::width / 2 + (number % 2 == 0 ? -60 : 60),
                  SceneFixture::height / 2 + (number / 2 == 0 ? -60 : 60));
}

} // namespace

/// The files that documents name: pictures, and objects such as trees and lamps.
class SceneFilesTest : public QObject
{
    Q_OBJECT

private slots:
    void picturesLieOnTheGround_data();
    void picturesLieOnTheGround();
    void largePicturesLieOnTheGround();
    void whatIsNoPictureIsTold_data();
    void whatIsNoPictureIsTold();
    void whatIsMissingIsToldOnce();
    void picturesAreFoundOverTheDataPathList();
    void texturedSurfacesAreSeen();
    void texturedSurfacesHaveMaterials();
    void backSidesAreNotShown();
    void objectsInFilesAreDrawn_data();
    void objectsInFilesAreDrawn();
    void objectsThatAreNotDrawnAreTold_data();
    void objectsThatAreNotDrawnAreTold();
};

TEST_CLASS(SceneFilesTest, Core)

void SceneFilesTest::picturesLieOnTheGround_data()
{
    QTest::addColumn<QByteArray>("place");
    QTest::addColumn<QByteArray>("worldFile");
    // Of 64 pixels over 10 units, counted from the centre of the upper left pixel.
    const QByteArray inDocument = "<app:referencePoint><gml:Point><gml:pos>0.078125 9.921875</gml:pos>"
                                  "</gml:Point></app:referencePoint>"
                                  "<app:orientation>0.15625 0 0 -0.15625</app:orientation>";
    const QByteArray elsewhere = "<app:referencePoint><gml:Point><gml:pos>500 500</gml:pos></gml:Point>"
                                 "</app:referencePoint><app:orientation>1 0 0 -1</app:orientation>";
    const QByteArray worldFile = "0.15625\n0\n0\n-0.15625\n0.078125\n9.921875\n";
    QTest::newRow("by the document") << inDocument << QByteArray();
    QTest::newRow("by a world file") << QByteArray() << worldFile;
    QTest::newRow("world file first") << elsewhere << worldFile;
    QTest::newRow("document first") << "<app:preferWorldFile>false</app:preferWorldFile>" + inDocument
                                    << QByteArray("1\n0\n0\n-1\n500\n500\n");
}

void SceneFilesTest::picturesLieOnTheGround()
{
    QFETCH(QByteArray, place);
    QFETCH(QByteArray, worldFile);
    const DocumentFile file(documentWith(groundTexture(place)));
    QVERIFY(fourColours().save(file.fileBeside("ground.png")));
    if (!worldFile.isEmpty()) {
        QVERIFY(writeFile(file.fileBeside("ground.pgw"), worldFile));
    }
    SceneFixture fixture(file.path());
    const QImage drawn = fromAbove(fixture);
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(drawn.pixelColor(quarter(i)), colours[i]);
    }
}

/// They are reduced, and the file counts in its own pixels.
void SceneFilesTest::largePicturesLieOnTheGround()
{
    const DocumentFile file(documentWith(groundTexture(QByteArray())));
    QImage picture(10000, 64, QImage::Format_RGB32);
    picture.fill(colours[0]);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = picture.width() / 2; x < picture.width(); ++x) {
            picture.setPixelColor(x, y, colours[1]);
        }
    }
    QVERIFY(picture.save(file.fileBeside("ground.png")));
    QVERIFY(writeFile(file.fileBeside("ground.pgw"), "0.001\n0\n0\n-0.15625\n0.0005\n9.921875\n"));
    SceneFixture fixture(file.path());
    const QImage drawn = fromAbove(fixture);
    const QPoint middle(SceneFixture::width / 2, SceneFixture::height / 2);
    QCOMPARE(drawn.pixelColor(middle - QPoint(20, 0)), colours[0]);
    QCOMPARE(drawn.pixelColor(middle + QPoint(20, 0)), colours[1]);
}

void SceneFilesTest::whatIsNoPictureIsTold_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("text") << QByteArray("no picture");
    QTest::newRow("drawing, which can name further files")
        << QByteArray("<svg xmlns='http://www.w3.org/2000/svg' width='64' height='64'>"
                      "<rect width='64' height='64' fill='#fa0a14'/></svg>");
    QByteArray begun;
    QBuffer buffer(&begun);
    fourColours().save(&buffer, "PNG");
    QTest::newRow("broken off") << begun.left(60);
}

void SceneFilesTest::whatIsNoPictureIsTold()
{
    QFETCH(QByteArray, content);
    const DocumentFile file(documentWith(texture("wall.png")));
    if (!content.isEmpty()) {
        QVERIFY(writeFile(file.fileBeside("wall.png"), content));
    }
    SceneFixture fixture(file.path());
    QCOMPARE(fixture.scene.missingFiles(), QStringList("wall.png"));
    // It has the colour of its type.
    const QColor seen = fromAbove(fixture).pixelColor(quarter(0));
    QVERIFY(seen != fixture.options.background);
    QVERIFY(seen != colours[0]);
}

void SceneFilesTest::whatIsMissingIsToldOnce()
{
    const DocumentFile file(documentText(
        appearanceMember("photo", texture("wall.png")) + appearanceMember("photo", texture("wall.png")) +
        lamp("lamp.obj") + lamp("lamp.obj").replace("'lamp'", "'another'") +
        buildingMember(multiSurface("lod2MultiSurface", square("p", 0, 0, "r")))));
    SceneFixture fixture(file.path());
    QCOMPARE(fixture.scene.missingFiles(), QStringList({"wall.png", "lamp.obj"}));
    // Nor again when everything is made anew.
    fixture.scene.setTheme("photo", true);
    fixture.scene.addAll();
    QCOMPARE(fixture.scene.missingFiles(), QStringList({"wall.png", "lamp.obj"}));
}

void SceneFilesTest::picturesAreFoundOverTheDataPathList()
{
    const QTemporaryDir elsewhere;
    QVERIFY(fourColours().save(elsewhere.filePath("wall.png")));
    const DocumentFile file(documentWith(texture("wall.png")));
    {
        SceneFixture fixture(file.path());
        QCOMPARE(fixture.scene.missingFiles(), QStringList("wall.png"));
    }
    osgDB::FilePathList& paths = osgDB::Registry::instance()->getDataFilePathList();
    const osgDB::FilePathList before = paths;
    paths.push_back(elsewhere.path().toLocal8Bit().toStdString());
    SceneFixture fixture(file.path());
    paths = before;
    QCOMPARE(fixture.scene.missingFiles(), QStringList());
    const QImage drawn = fromAbove(fixture);
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(drawn.pixelColor(quarter(i)), colours[i]);
    }
}

void SceneFilesTest::texturedSurfacesAreSeen()
{
    const QByteArray textureInside =
        "<tex:appearance><tex:SimpleTexture><tex:textureMap>wall.png</tex:textureMap>"
        "<tex:textureCoordinates>0 0 1 0 1 1 0 1 0 0</tex:textureCoordinates></tex:SimpleTexture>"
        "</tex:appearance>";
    const DocumentFile file(documentText(texturedBuilding(textureInside)));
    {
        SceneFixture fixture(file.path());
        QCOMPARE(fixture.scene.missingFiles(), QStringList("wall.png"));
    }
    QVERIFY(fourColours().save(file.fileBeside("wall.png")));
    SceneFixture fixture(file.path());
    const QImage drawn = fromAbove(fixture);
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(drawn.pixelColor(quarter(i)), colours[i]);
    }
    fixture.scene.setTheme(QString(), false);
    fixture.scene.addAll();
    QVERIFY(fromAbove(fixture).pixelColor(quarter(0)) != colours[0]);
}

void SceneFilesTest::texturedSurfacesHaveMaterials()
{
    const QByteArray materials =
        "<tex:appearance orientation='-'><tex:Material><tex:diffuseColor>0 1 0</tex:diffuseColor>"
        "</tex:Material></tex:appearance><tex:appearance><tex:Material><tex:diffuseColor>1 0 0"
        "</tex:diffuseColor></tex:Material></tex:appearance>";
    const DocumentFile file(documentText(texturedBuilding(materials)));
    SceneFixture fixture(file.path());
    const QColor seen = fromAbove(fixture).pixelColor(quarter(0));
    QVERIFY(seen.red() > 100 && seen.green() == 0 && seen.blue() == 0);
    // An appearance of the document comes first.
    const DocumentFile other(
        documentText(appearanceMember("blue", material("0 0 1")) + texturedBuilding(materials)));
    SceneFixture overlaid(other.path());
    const QColor over = fromAbove(overlaid).pixelColor(quarter(0));
    QVERIFY(over.blue() > 100 && over.green() == 0 && over.red() == 0);
}

void SceneFilesTest::backSidesAreNotShown()
{
    const QByteArray back =
        material("0 1 0").replace("<app:X3DMaterial>", "<app:X3DMaterial><app:isFront>false</app:isFront>");
    const QByteArray shown = appearanceMember("sides", material("1 0 0"));
    const DocumentFile file(
        documentText(shown + QByteArray(shown).replace(material("1 0 0"), back) +
                     buildingMember(multiSurface("lod2MultiSurface", square("p", 0, 0, "r")))));
    SceneFixture fixture(file.path());
    const QColor seen = fromAbove(fixture).pixelColor(quarter(0));
    QVERIFY(seen.red() > 100 && seen.green() == 0 && seen.blue() == 0);
}

void SceneFilesTest::objectsInFilesAreDrawn_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("OBJ") << "lamp.obj"
                         << QByteArray("v 0 0 0\nv 10 0 0\nv 10 10 0\nv 0 10 0\nf 1 2 3\nf 1 3 4\n");
    QTest::newRow("OBJ with textures, normals and numbers from the end")
        << "lamp.OBJ"
        << QByteArray("mtllib lamp.mtl\nv 0 0 0\nv 10 0 0\nv 10 10 0\nv 0 10 0\nvt 0 0\nvn 0 0 1\n"
                      "usemtl red\nf -4/1/1 -3/1/1 3//1 4\n");
    QTest::newRow("OBJ with faces that name no vertex")
        << "lamp.obj"
        << QByteArray("v 0 0 0\nv 10 0 0\nv 10 10 0\nv 0 10 0\nf 1 2 5\nf 0 1 2\nf -5 1 2\nf 1 2 x\nf 1 2\n"
                      "f\nv 1\nf 1 2 99999999999999999999\nf 1 2 3 4\n");
    QByteArray binary(80, ' ');
    const auto append = [&binary](auto number) {
        char bytes[sizeof number];
        qToLittleEndian(number, bytes);
        binary.append(bytes, sizeof number);
    };
    append(quint32(2));
    for (const float x : {10.0F, 0.0F}) {
        for (const float number : {0.0F, 0.0F, 1.0F, 0.0F, 0.0F, 0.0F, x, 10 - x, 0.0F, 10.0F, 10.0F, 0.0F}) {
            append(number);
        }
        append(quint16(0));
    }
    QTest::newRow("STL of bytes") << "lamp.stl" << binary;
    QTest::newRow("STL") << "lamp.stl"
                         << QByteArray("solid lamp\n"
                                       "facet normal 0 0 1\nouter loop\nvertex 0 0 0\nvertex 10 0 0\n"
                                       "vertex 10 10 0\nendloop\nendfacet\n"
                                       "facet normal 0 0 1\nouter loop\nvertex 0 0 0\nvertex 10 10 0\n"
                                       "vertex 0 10 0\nendloop\nendfacet\nendsolid lamp\n");
}

void SceneFilesTest::objectsInFilesAreDrawn()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    const DocumentFile file(documentText(lamp(name.toUtf8())));
    QVERIFY(writeFile(file.fileBeside(name), content));
    SceneFixture fixture(file.path());
    QCOMPARE(fixture.scene.missingFiles(), QStringList());
    QCOMPARE(fixture.scene.counts().triangles, std::size_t(2));
    fromAbove(fixture);
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(fixture.slotAt(quarter(i)), fixture.slotOf("lamp"));
    }
}

void SceneFilesTest::objectsThatAreNotDrawnAreTold_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("missing") << "lamp.obj" << QByteArray();
    QTest::newRow("kind that is not read") << "lamp.wrl" << QByteArray("#VRML V2.0 utf8\nShape {}\n");
    QTest::newRow("no shape") << "lamp.obj" << QByteArray("hello\n");
}

void SceneFilesTest::objectsThatAreNotDrawnAreTold()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    const DocumentFile file(documentText(lamp(name.toUtf8())));
    if (!content.isEmpty()) {
        QVERIFY(writeFile(file.fileBeside(name), content));
    }
    SceneFixture fixture(file.path());
    QCOMPARE(fixture.scene.missingFiles(), QStringList(name));
    QVERIFY(!fixture.hasContent());
}

#include "scenefilestest.moc"
