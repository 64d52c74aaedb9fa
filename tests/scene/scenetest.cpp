#include "scene/SceneDocuments.h"
#include "scene/SceneFixture.h"

#include "gml/AbstractFeatureType.hxx"
#include "scene/Fitting.h"
#include "scene/Vectors.h"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"

#include <osg/GLExtensions>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

using namespace testsupport;
using namespace tolvik::scene;

namespace {

/// The same document further away: everything but the shapes of implicit geometries.
QByteArray shifted(const QByteArray& xml, double x, double y)
{
    const QString text = QString::fromUtf8(xml);
    // The shape of an implicit geometry stays, as it is placed by its reference point; one whose shape stands
    // elsewhere and is moved there stays as a whole.
    static const QRegularExpression shape(
        "<(\\w+:relativeGMLGeometry)(?:\\s[^>]*[^/])?>.*?</\\1>|"
        "<(\\w+:ImplicitGeometry)>(?:(?!</\\2>).)*relativeGMLGeometry xlink:href.*?</\\2>",
        QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression list(
        "(<gml:(pos|posList|coordinates|lowerCorner|upperCorner)\\b[^>]*>)([^<]*)<");
    const auto shiftLists = [&](const QString& part) {
        QString result;
        int at = 0;
        for (auto matches = list.globalMatch(part); matches.hasNext();) {
            const QRegularExpressionMatch match = matches.next();
            const bool hasCommas = match.captured(2) == QLatin1String("coordinates");
            QStringList numbers =
                match.captured(3).simplified().replace(',', ' ').split(' ', Qt::SkipEmptyParts);
            const int dimension = numbers.size() % 3 == 0 ? 3 : 2;
            for (int i = 0; i < numbers.size(); ++i) {
                const double offset = i % dimension == 0 ? x : i % dimension == 1 ? y : 0;
                numbers[i] = QString::number(numbers[i].toDouble() + offset, 'g', 17);
            }
            for (int i = 0; hasCommas && i + 1 < numbers.size(); ++i) {
                numbers[i] += (i + 1) % dimension == 0 ? QString() : QStringLiteral(",");
            }
            const QString shiftedList = numbers.join(' ').replace(QLatin1String(", "), QLatin1String(","));
            result += part.mid(at, match.capturedStart() - at) + match.captured(1) + shiftedList + '<';
            at = match.capturedEnd();
        }
        return result + part.mid(at);
    };
    QString result;
    int at = 0;
    for (auto matches = shape.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        result += shiftLists(text.mid(at, match.capturedStart() - at)) + match.captured();
        at = match.capturedEnd();
    }
    return (result + shiftLists(text.mid(at))).toUtf8();
}

} // namespace

/// Pictures of scenes, drawn without a display.
class SceneTest : public QObject
{
    Q_OBJECT

private slots:
    void everyDocument_data();
    void everyDocument();
    void shiftedDocumentsLookTheSame_data();
    void shiftedDocumentsLookTheSame();
    void aFixedLevelOfDetailRemovesTheOthers();
    void wallsAndTheBodyTheyBoundAreOneUnit();
    void surfacesThatAreReferredToAreDrawnOnce();
    void surfacesWithoutAreaAreCounted();
    void texturesAppear();
    void materialsAppearUntilAnotherThemeIsChosen();
    void whatCanBeSeenThroughIsPicked();
    void picturesOutsideOfTheFolderAreNotRead_data();
    void picturesOutsideOfTheFolderAreNotRead();
    void whatIsAddedLaterIsDrawn();
    void nothingIsLeftOfAClearedDocument();
    void aPictureLeavesNoArraysBound();
    void aSectionCutsAway();
    void aPictureCanHaveNoBackground();
    void placesAreFoundByPixel();
    void edgesAreLeftOutWhereTheyAreFarAway();
    void edgesOfSmallSurfacesFadeBesideLargeOnes();
    void whatIsFittedIsMetWhenComingNear();
    void onlyWhatIsShownIsFitted();

private:
    void picksWhatIsSeen(SceneFixture& fixture);
    void fitsWhatIsSeen(SceneFixture& fixture);
};

TEST_CLASS(SceneTest, Core)

void SceneTest::everyDocument_data()
{
    addPathRows(exampleAndSharedDocuments());
}

void SceneTest::everyDocument()
{
    QFETCH(QString, path);
    SceneFixture fixture(path);
    if (!fixture.hasContent()) {
        QVERIFY2(QStringList({"component.gml", "epadesa.gml", "pivotEnergy.gml"})
                     .contains(QFileInfo(path).fileName()),
                 "nothing is drawn of a document with geometry");
        return;
    }
    const QImage all = fixture.picture();
    // A document may have nothing but one line.
    const std::size_t triangles = fixture.scene.counts().triangles;
    QVERIFY2(coloursIn(all) > (triangles > 0 ? 3 : 1), qPrintable(QString::number(coloursIn(all))));

    fixture.setAllHidden(true);
    const QImage none = fixture.picture();
    QCOMPARE(coloursIn(none), 1);
    QCOMPARE(none.pixelColor(0, 0), fixture.options.background);
    for (const QPoint& pixel : fixture.grid(12, 8)) {
        QCOMPARE(fixture.slotAt(pixel), noSlot);
    }
    fixture.setAllHidden(false);
    QCOMPARE(differences(fixture.picture(), all), 0);

    for (Slot slot = 0; slot < fixture.features().size(); ++slot) {
        fixture.scene.rebuild(*fixture.features().featureOf(slot));
    }
    fixture.scene.addAll();
    QCOMPARE(differences(fixture.picture(), all), 0);

    picksWhatIsSeen(fixture);
    fitsWhatIsSeen(fixture);
}

/// Where a feature is picked, its selection is seen, and nothing of it once it is hidden.
void SceneTest::picksWhatIsSeen(SceneFixture& fixture)
{
    std::map<Slot, QVector<QPoint>> found;
    for (const QPoint& pixel : fixture.grid(24, 16)) {
        found[fixture.slotAt(pixel)] << pixel;
    }
    const QVector<QPoint> background = found[noSlot];
    found.erase(noSlot);
    QVERIFY(!found.empty());
    const QRgb selection = fixture.options.selection.rgb();
    for (const auto& [slot, pixels] : found) {
        fixture.features().setSelection({slot});
        const QImage picture = fixture.picture();
        for (const QPoint& pixel : pixels) {
            QCOMPARE(QColor(picture.pixel(pixel)), QColor(selection));
        }
        for (const QPoint& pixel : background) {
            QVERIFY(picture.pixel(pixel) != selection);
        }
        fixture.features().setSelection({});
        fixture.features().setHidden(slot, true);
        for (const QPoint& pixel : pixels) {
            QVERIFY(fixture.slotAt(pixel) != slot);
        }
        fixture.features().setHidden(slot, false);
    }
}

void SceneTest::fitsWhatIsSeen(SceneFixture& fixture)
{
    const QSize size(SceneFixture::width, SceneFixture::height);
    const Camera before = fixture.camera;
    for (const auto& [slot, count] : fixture.renderer->pixelsOf(before, size, fixture.options)) {
        // Lines and points have a width in pixels alone.
        bool hasSurface = false;
        citygml::walkGeometry(*fixture.features().featureOf(slot), [&](const citygml::GeometryPiece& piece) {
            hasSurface = hasSurface || piece.kind == citygml::GeometryPiece::Kind::Surface;
        });
        if (count < 60 || !hasSurface) {
            continue;
        }
        fixture.features().setSelection({slot});
        fixture.camera = fittedTo({slot}, before, size, fixture.scene, *fixture.renderer, fixture.options);
        const QImage picture = fixture.picture();
        int selected = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                selected += picture.pixel(x, y) == fixture.options.selection.rgb() ? 1 : 0;
            }
        }
        fixture.features().setSelection({});
        QVERIFY2(selected >= 0.02 * size.width() * size.height(),
                 qPrintable(
                     QString("%1 pixels of %2")
                         .arg(selected)
                         .arg(QString::fromStdString(fixture.features().featureOf(slot)->typeLabel.str()))));
    }
    fixture.camera = before;
}

void SceneTest::shiftedDocumentsLookTheSame_data()
{
    addPathRows(exampleAndSharedDocuments());
}

void SceneTest::shiftedDocumentsLookTheSame()
{
    QFETCH(QString, path);
    const DocumentFile file(shifted(contentOf(path), 458000, 5437000));
    SceneFixture here(path);
    SceneFixture there(file.path());
    QCOMPARE(there.hasContent(), here.hasContent());
    if (!here.hasContent()) {
        return;
    }
    QVERIFY(length(difference(there.scene.origin(), here.scene.origin())) > 5000000);
    // Pictures that lie on the ground stay where they are.
    here.options.isByFeature = there.options.isByFeature = true;
    const int different = differences(here.picture(), there.picture());
    QVERIFY2(different <= SceneFixture::width * SceneFixture::height / 1000,
             qPrintable(QString::number(different)));
}

void SceneTest::aFixedLevelOfDetailRemovesTheOthers()
{
    const DocumentFile file(
        documentText(buildingMember(multiSurface("lod1MultiSurface", square("a", 0, 0)), "one") +
                     buildingMember(multiSurface("lod2MultiSurface", square("c", 20, 0)) +
                                        multiSurface("lod3MultiSurface", square("d", 40, 0)),
                                    "two")));
    SceneFixture fixture(file.path());
    fixture.camera.setDirection(Camera::Direction::Top);
    fixture.camera.fit(fixture.scene.bounds(), 1.5);
    const QSize size(SceneFixture::width, SceneFixture::height);
    const auto areaIn = [&](const LodChoice& choice, const char* id) {
        fixture.features().setLodChoice(choice);
        return fixture.renderer->pixelsOf(fixture.camera, size, fixture.options)[fixture.slotOf(id)];
    };
    const LodChoice highest;
    const LodChoice lowest = {LodChoice::Kind::Lowest, 0};
    QVERIFY(areaIn(highest, "one") > 1000);
    QVERIFY(areaIn(highest, "two") > 1000);
    QVERIFY(areaIn(lowest, "two") > 1000);
    QVERIFY(areaIn({LodChoice::Kind::Fixed, 1}, "one") > 1000);
    QCOMPARE(areaIn({LodChoice::Kind::Fixed, 1}, "two"), 0);
    QCOMPARE(areaIn({LodChoice::Kind::Fixed, 2}, "one"), 0);
    QVERIFY(areaIn({LodChoice::Kind::Fixed, 3}, "two") > 1000);
    QCOMPARE(areaIn({LodChoice::Kind::Fixed, 4}, "two"), 0);

    // One square each, not both.
    fixture.features().setLodChoice(highest);
    const osg::BoundingBoxd high = fixture.scene.boundsOf({fixture.slotOf("two")});
    fixture.features().update();
    QVERIFY(high.valid());
    const int both = areaIn({LodChoice::Kind::Fixed, 2}, "two") + areaIn({LodChoice::Kind::Fixed, 3}, "two");
    QVERIFY(areaIn(highest, "two") < 0.75 * both);
}

void SceneTest::wallsAndTheBodyTheyBoundAreOneUnit()
{
    const DocumentFile file(documentText(buildingMember(
        multiSurface("lod1MultiSurface", square("a", 0, 0)) +
            "<bldg:boundedBy><bldg:WallSurface gml:id='wall'>" +
            multiSurface("lod2MultiSurface", square("w", 0, 0.01)) + "</bldg:WallSurface></bldg:boundedBy>",
        "house")));
    SceneFixture fixture(file.path());
    const QSize size(SceneFixture::width, SceneFixture::height);
    std::map<Slot, int> seen = fixture.renderer->pixelsOf(fixture.camera, size, fixture.options);
    QVERIFY(seen[fixture.slotOf("wall")] > 1000);
    QCOMPARE(seen[fixture.slotOf("house")], 0);
    fixture.features().setLodChoice({LodChoice::Kind::Lowest, 0});
    seen = fixture.renderer->pixelsOf(fixture.camera, size, fixture.options);
    QVERIFY(seen[fixture.slotOf("house")] > 1000);
    QCOMPARE(seen[fixture.slotOf("wall")], 0);
}

void SceneTest::surfacesThatAreReferredToAreDrawnOnce()
{
    const DocumentFile file(documentText(buildingMember(
        multiSurface("lod2MultiSurface", "<gml:surfaceMember xlink:href='#w'/>") +
            "<bldg:boundedBy><bldg:WallSurface gml:id='wall'>" +
            multiSurface("lod2MultiSurface", square("w", 0, 0)) + "</bldg:WallSurface></bldg:boundedBy>",
        "house")));
    SceneFixture fixture(file.path());
    QCOMPARE(fixture.scene.counts().triangles, std::size_t(2));
    fixture.features().setHidden(fixture.slotOf("wall"), true);
    QCOMPARE(coloursIn(fixture.picture()), 1);
}

void SceneTest::surfacesWithoutAreaAreCounted()
{
    const auto surface = [](const QByteArray& positions) {
        return "<gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>" + positions +
               "</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>";
    };
    const DocumentFile file(documentText(buildingMember(multiSurface(
        "lod2MultiSurface", surface("0 0 0 1 0 0 2 0 0 0 0 0") + square("p", 0, 0) +
                                surface("3 3 3 3 3 3 3 3 3 3 3 3") + surface("0 0 0 1 1 1 0 0 0")))));
    SceneFixture fixture(file.path());
    QCOMPARE(fixture.scene.counts().degenerate, std::size_t(3));
    QCOMPARE(fixture.scene.counts().triangles, std::size_t(2));
    QVERIFY(coloursIn(fixture.picture()) > 1);
}

void SceneTest::texturesAppear()
{
    const DocumentFile file(documentText(
        "<app:appearanceMember><app:Appearance><app:theme>photo</app:theme><app:surfaceDataMember>"
        "<app:ParameterizedTexture><app:imageURI>roof.png</app:imageURI><app:target "
        "uri='#p'><app:TexCoordList>"
        "<app:textureCoordinates ring='#r'>0 0 1 0 1 1 0 1 0 0</app:textureCoordinates></app:TexCoordList>"
        "</app:target></app:ParameterizedTexture></app:surfaceDataMember></app:Appearance>"
        "</app:appearanceMember>" +
        buildingMember(multiSurface("lod2MultiSurface", square("p", 0, 0, "r")))));
    QImage picture(2, 2, QImage::Format_RGB32);
    const QColor colours[] = {QColor(250, 10, 20), QColor(10, 240, 30), QColor(20, 30, 230),
                              QColor(240, 240, 10)};
    for (int i = 0; i < 4; ++i) {
        picture.setPixelColor(i % 2, i / 2, colours[i]);
    }
    picture = picture.scaled(64, 64);
    QVERIFY(picture.save(file.fileBeside("roof.png")));
    SceneFixture fixture(file.path());
    QVERIFY(fixture.scene.looks().missing().isEmpty());
    fixture.camera.setDirection(Camera::Direction::Top);
    fixture.camera.fit(fixture.scene.bounds(), 1.5);
    const QImage drawn = fixture.picture();
    // From above with the north at the top, the picture is seen as it is.
    for (int i = 0; i < 4; ++i) {
        const QPoint pixel(SceneFixture::width / 2 + (i % 2 == 0 ? -60 : 60),
                           SceneFixture::height / 2 + (i / 2 == 0 ? -60 : 60));
        QCOMPARE(drawn.pixelColor(pixel), colours[i]);
    }
    fixture.scene.setTheme(QString(), false);
    fixture.scene.addAll();
    for (const QColor& colour : colours) {
        QVERIFY(fixture.picture().pixelColor(180, 100) != colour);
    }
}

void SceneTest::materialsAppearUntilAnotherThemeIsChosen()
{
    const DocumentFile file(documentText(
        appearanceMember("red", material("1 0 0")) + appearanceMember("blue", material("0 0 1")) +
        buildingMember(multiSurface("lod2MultiSurface", square("p", 0, 0)))));
    SceneFixture fixture(file.path());
    QCOMPARE(fixture.scene.looks().themes(), QStringList({"red", "blue"}));
    const QPoint middle(SceneFixture::width / 2, SceneFixture::height / 2);
    QColor colour = fixture.picture().pixelColor(middle);
    QVERIFY(colour.red() > 100 && colour.green() == 0 && colour.blue() == 0);
    fixture.scene.setTheme("blue", true);
    fixture.scene.addAll();
    colour = fixture.picture().pixelColor(middle);
    QVERIFY(colour.blue() > 100 && colour.green() == 0 && colour.red() == 0);
}

void SceneTest::whatCanBeSeenThroughIsPicked()
{
    const QByteArray glass = "<app:X3DMaterial><app:transparency>0.7</app:transparency>"
                             "<app:diffuseColor>0 0 1</app:diffuseColor><app:target>#p</app:target>"
                             "</app:X3DMaterial>";
    const DocumentFile file(
        documentText(appearanceMember("glass", glass) +
                     buildingMember(multiSurface("lod2MultiSurface", square("", 0, 0)), "below") +
                     buildingMember(multiSurface("lod2MultiSurface", square("p", 0, 2)), "above")));
    SceneFixture fixture(file.path());
    fixture.camera.setDirection(Camera::Direction::Top);
    fixture.camera.fit(fixture.scene.bounds(), 1.5);
    const QPoint middle(SceneFixture::width / 2, SceneFixture::height / 2);
    const QColor seen = fixture.picture().pixelColor(middle);
    QCOMPARE(fixture.slotAt(middle), fixture.slotOf("above"));
    fixture.features().setHidden(fixture.slotOf("below"), true);
    QVERIFY(fixture.picture().pixelColor(middle) != seen);
    fixture.features().setSelection({fixture.slotOf("above")});
    QCOMPARE(fixture.picture().pixelColor(middle), fixture.options.selection);
}

void SceneTest::picturesOutsideOfTheFolderAreNotRead_data()
{
    QTest::addColumn<QString>("uri");
    QTest::newRow("upwards") << "../secret.png";
    QTest::newRow("absolute") << "%1/secret.png";
    QTest::newRow("address") << "file://%1/secret.png";
    QTest::newRow("link") << "link.png";
    QTest::newRow("network") << "http://127.0.0.1:1/secret.png";
}

void SceneTest::picturesOutsideOfTheFolderAreNotRead()
{
    QFETCH(QString, uri);
    const QTemporaryDir outer;
    QDir(outer.path()).mkdir("inner");
    QImage secret(4, 4, QImage::Format_RGB32);
    secret.fill(Qt::red);
    QVERIFY(secret.save(outer.filePath("secret.png")));
    QVERIFY(secret.save(outer.filePath("inner/own.png")));
    QFile::link(outer.filePath("secret.png"), outer.filePath("inner/link.png"));
    const DocumentFolder folder(outer.filePath("inner/city.gml"));
    QVERIFY(!folder.find("own.png").isEmpty());
    QVERIFY(!folder.find("./own.png").isEmpty());
    const QString wanted = uri.contains('%') ? uri.arg(outer.path()) : uri;
    QCOMPARE(folder.find(wanted), QString());
}

void SceneTest::whatIsAddedLaterIsDrawn()
{
    const DocumentFile file(
        documentText(buildingMember(multiSurface("lod2MultiSurface", square("p", 0, 0)), "one") +
                     buildingMember(multiSurface("lod2MultiSurface", square("q", 20, 0)), "two")));
    SceneFixture fixture(file.path());
    const QImage before = fixture.picture();
    const Feature* const feature = fixture.model.getFeature("two");
    fixture.scene.remove(*feature);
    const QImage without = fixture.picture();
    QVERIFY(differences(before, without) > 1000);
    QCOMPARE(fixture.features().slotOf(feature), noSlot);
    fixture.scene.add(*feature);
    fixture.scene.addAll();
    QCOMPARE(differences(fixture.picture(), before), 0);
}

void SceneTest::nothingIsLeftOfAClearedDocument()
{
    SceneFixture fixture(examples() + "/district.gml");
    QVERIFY(coloursIn(fixture.picture()) > 3);
    fixture.scene.clear();
    QCOMPARE(coloursIn(fixture.picture()), 1);
    QCOMPARE(fixture.features().size(), std::size_t(0));
    QVERIFY(!fixture.hasContent());
}

/// Neither for the host, which draws in the same context, nor for tiles that come later.
void SceneTest::aPictureLeavesNoArraysBound()
{
    const DocumentFile file(
        documentText(buildingMember(multiSurface("lod2MultiSurface", square("p", 0, 0)), "one")));
    SceneFixture fixture(file.path());
    QVERIFY(coloursIn(fixture.picture()) > 1);
    for (const GLenum binding : {GL_ARRAY_BUFFER_BINDING, GL_ELEMENT_ARRAY_BUFFER_BINDING}) {
        GLint buffer = -1;
        glGetIntegerv(binding, &buffer);
        QCOMPARE(buffer, 0);
    }
    QVERIFY(!glIsEnabled(GL_VERTEX_ARRAY));
    const auto* const gl = osg::GLExtensions::Get(0, true);
    GLint attributes = 0;
    glGetIntegerv(GL_MAX_VERTEX_ATTRIBS, &attributes);
    for (int i = 0; i < attributes; ++i) {
        GLint isEnabled = -1;
        gl->glGetVertexAttribiv(static_cast<GLuint>(i), GL_VERTEX_ATTRIB_ARRAY_ENABLED, &isEnabled);
        QCOMPARE(isEnabled, 0);
    }
}

void SceneTest::aSectionCutsAway()
{
    const DocumentFile file(
        documentText(buildingMember(multiSurface("lod2MultiSurface", square("p", 0, 0)), "low") +
                     buildingMember(multiSurface("lod2MultiSurface", square("q", 0, 10)), "high")));
    SceneFixture fixture(file.path());
    fixture.camera.setDirection(Camera::Direction::Top);
    fixture.camera.fit(fixture.scene.bounds(), 1.5);
    const QPoint middle(SceneFixture::width / 2, SceneFixture::height / 2);
    QCOMPARE(fixture.slotAt(middle), fixture.slotOf("high"));
    fixture.options.section = osg::Plane(osg::Vec3d(0, 0, -1), 5.0);
    QCOMPARE(fixture.slotAt(middle), fixture.slotOf("low"));
}

void SceneTest::whatIsFittedIsMetWhenComingNear()
{
    const DocumentFile file(
        documentText(buildingMember(multiSurface("lod2MultiSurface", square("p", 0, 0)), "plate")));
    SceneFixture fixture(file.path());
    const QPoint middle(SceneFixture::width / 2, SceneFixture::height / 2);
    for (const bool parallel : {false, true}) {
        fixture.camera.setParallel(parallel);
        fixture.camera.setDirection(Camera::Direction::Oblique);
        fixture.camera.fit(fixture.scene.bounds(), 1.5);
        fixture.camera.zoom(0.02, osg::Vec2d(), 1.5);
        QCOMPARE(fixture.slotAt(middle), fixture.slotOf("plate"));
    }
}

void SceneTest::onlyWhatIsShownIsFitted()
{
    const DocumentFile file(
        documentText(buildingMember(multiSurface("lod1MultiSurface", square("a", 3000, 0)) +
                                        multiSurface("lod2MultiSurface", square("b", 0, 0)),
                                    "house")));
    SceneFixture fixture(file.path());
    const QSize size(SceneFixture::width, SceneFixture::height);
    const Slot house = fixture.slotOf("house");
    const Camera fitted =
        fittedTo({house}, fixture.camera, size, fixture.scene, *fixture.renderer, fixture.options);
    QVERIFY(fixture.renderer->pixelsOf(fitted, size, fixture.options)[house] >
            0.02 * size.width() * size.height());
}

void SceneTest::aPictureCanHaveNoBackground()
{
    SceneFixture fixture(examples() + "/district.gml");
    const QImage clear = fixture.renderer->picture(fixture.camera, QSize(300, 200), fixture.options, true);
    QCOMPARE(clear.size(), QSize(300, 200));
    QCOMPARE(clear.pixelColor(0, 0).alpha(), 0);
    QCOMPARE(clear.pixelColor(150, 100).alpha() == 255 || clear.pixelColor(140, 120).alpha() == 255, true);
}

void SceneTest::placesAreFoundByPixel()
{
    const DocumentFile file(
        documentText(buildingMember(multiSurface("lod2MultiSurface", square("p", 0, 7)))));
    SceneFixture fixture(file.path());
    fixture.camera.setDirection(Camera::Direction::Top);
    fixture.camera.fit(fixture.scene.bounds(), 1.5);
    const Hit hit =
        fixture.renderer->pick(fixture.camera, QSize(SceneFixture::width, SceneFixture::height),
                               QPoint(SceneFixture::width / 2, SceneFixture::height / 2), fixture.options);
    // Relative to the first corner.
    QVERIFY2(
        (hit.position - osg::Vec3d(5, 5, 0)).length() < 0.1,
        qPrintable(QString("%1 %2 %3").arg(hit.position.x()).arg(hit.position.y()).arg(hit.position.z())));
}

void SceneTest::edgesAreLeftOutWhereTheyAreFarAway()
{
    SceneFixture fixture(examples() + "/district.gml");
    const auto picturesDiffer = [&fixture] {
        fixture.options.hasEdges = true;
        const QImage withEdges = fixture.picture();
        fixture.options.hasEdges = false;
        const QImage without = fixture.picture();
        return differences(withEdges, without) > 0;
    };
    const Camera near = fixture.camera;
    for (const bool isParallel : {false, true}) {
        fixture.camera = near;
        fixture.camera.setParallel(isParallel);
        QVERIFY(picturesDiffer());
        // The largest surface is more than a tenth of the whole, and it is a few pixels large in the end.
        fixture.camera.zoom(15, osg::Vec2d(), 1.5);
        QVERIFY(picturesDiffer());
        fixture.camera.zoom(20, osg::Vec2d(), 1.5);
        QVERIFY(!picturesDiffer());
        QVERIFY(coloursIn(fixture.picture()) > 1);
    }
}

/// They are in one drawable, of which the edges are left out or not as a whole.
void SceneTest::edgesOfSmallSurfacesFadeBesideLargeOnes()
{
    QByteArray surfaces;
    for (int i = 0; i < 30; ++i) {
        surfaces += square("", 10.0 * i, i % 2);
    }
    const DocumentFile file(documentText(
        buildingMember(multiSurface("lod2MultiSurface", surfaces), "small") +
        buildingMember(multiSurface("lod2MultiSurface",
                                    "<gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing>"
                                    "<gml:posList>0 20 0 300 20 0 300 150 0 0 150 0 0 20 0</gml:posList>"
                                    "</gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>"),
                       "large")));
    SceneFixture fixture(file.path());
    QCOMPARE(fixture.scene.counts().tiles, std::size_t(1));
    /// The strongest that the edges of a feature darken a pixel.
    const auto edgesOf = [&fixture](const char* id) {
        fixture.setAllHidden(true);
        fixture.features().setHidden(fixture.slotOf(id), false);
        fixture.options.hasEdges = true;
        const QImage withEdges = fixture.picture();
        fixture.options.hasEdges = false;
        const QImage without = fixture.picture();
        int strongest = 0;
        for (int y = 0; y < withEdges.height(); ++y) {
            for (int x = 0; x < withEdges.width(); ++x) {
                strongest = std::max(strongest, qGray(without.pixel(x, y)) - qGray(withEdges.pixel(x, y)));
            }
        }
        return strongest;
    };
    for (const bool isParallel : {false, true}) {
        fixture.camera.setParallel(isParallel);
        fixture.camera.setDirection(Camera::Direction::Top);
        fixture.camera.fit(fixture.scene.bounds(), 1.5);
        const int near = edgesOf("small");
        // The small ones are about five pixels large, then about two.
        fixture.camera.zoom(3, osg::Vec2d(), 1.5);
        const int middle = edgesOf("small");
        fixture.camera.zoom(2.5, osg::Vec2d(), 1.5);
        QVERIFY(middle > 0);
        QVERIFY(middle < near / 2);
        QCOMPARE(edgesOf("small"), 0);
        QVERIFY(edgesOf("large") > near / 2);
    }
}

#include "scenetest.moc"
