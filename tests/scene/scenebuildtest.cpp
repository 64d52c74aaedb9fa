#include "app/AppearanceType.hxx"
#include "app/Color.hxx"
#include "app/SurfaceDataPropertyType.hxx"
#include "app/X3DMaterialType.hxx"
#include "bldg/BuildingType.hxx"
#include "core/doubleBetween0and1.hxx"
#include "gml/MultiSurfacePropertyType.hxx"
#include "scene/SceneDocuments.h"
#include "scene/SceneFixture.h"
#include "support/Documents.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"

#include <QtTest>

using namespace testsupport;
using namespace tolvik::scene;

namespace {

/// Buildings enough for several tiles.
QByteArray manyBuildings()
{
    QByteArray members;
    for (int i = 0; i < 1500; ++i) {
        const QByteArray number = QByteArray::number(i);
        members +=
            buildingMember(multiSurface("lod2MultiSurface", square("p" + number, 15.0 * i, i)), "b" + number);
    }
    return documentText(members);
}

/// A building of many surfaces, and another one.
QByteArray largeBuilding(const QByteArray& looks = QByteArray())
{
    QByteArray surfaces;
    for (int i = 0; i < 2600; ++i) {
        const int storey = i / 70;
        surfaces += square("p" + QByteArray::number(i), 11.0 * (i % 70), storey, "r" + QByteArray::number(i));
    }
    return documentText(looks +
                        buildingMember("<bldg:lod2MultiSurface><gml:MultiSurface gml:id='p'>" + surfaces +
                                           "</gml:MultiSurface></bldg:lod2MultiSurface>",
                                       "large") +
                        buildingMember(multiSurface("lod2MultiSurface", square("", -40, 0)), "small"));
}

QColor middleOf(const QImage& picture)
{
    return picture.pixelColor(SceneFixture::width / 2, SceneFixture::height / 2);
}

/// Whether a colour is a shade of one of the three.
bool isRed(const QColor& colour)
{
    return colour.red() > 100 && colour.green() == 0 && colour.blue() == 0;
}
bool isBlue(const QColor& colour)
{
    return colour.blue() > 100 && colour.green() == 0 && colour.red() == 0;
}

} // namespace

/// What happens to a scene, and to its document, while the scene is being built and afterwards.
class SceneBuildTest : public QObject
{
    Q_OBJECT

private slots:
    void slicesMakeTheSameScene();
    void anotherDocumentTakesThePlaceOfOneThatIsComing();
    void tilesOfAFormerDocumentAreNotShown();
    void aClearedSceneStaysEmpty();
    void featuresThatGoMeanwhileAreNotDrawn();
    void featuresThatChangeMeanwhileAreDrawnOnce();
    void aSceneEndsWhileItIsBuilt();
    void largeFeaturesTakeManySteps();
    void largeFeaturesGoWhileTheyCome();
    void largeFeaturesChangeWhileTheyCome();
    void ofATileThatIsMadeAnewNothingFormerComes();
    void aThemeIsChosenWhileALargeFeatureComes();
    void aThemeIsChosenMeanwhile();
    void whatIsRemovedFromTheDocumentGoes();
    void whatGetsItsFirstGeometryIsDrawn();
    void editsOfMaterialsAreSeen();
    void removedAppearancesLeaveTheirSurfaces();
    void appearancesThatComeAreSeen();

private:
    /// Does so many steps, and takes what is ready.
    static void doSome(SceneFixture& fixture, int steps);
    /// Has the scene lose what the model loses, as views do.
    static void follow(SceneFixture& fixture);
};

TEST_CLASS(SceneBuildTest, Core)

void SceneBuildTest::doSome(SceneFixture& fixture, int steps)
{
    for (int step = 0; step < steps && fixture.scene.addSome(0); ++step) {
        fixture.scene.takeFinished();
    }
}

void SceneBuildTest::follow(SceneFixture& fixture)
{
    QObject::connect(&fixture.model, &QAbstractItemModel::rowsAboutToBeRemoved, &fixture.model,
                     [&fixture](const QModelIndex&, int first, int last) {
                         for (int row = first; row <= last; ++row) {
                             fixture.scene.remove(*fixture.model.getFeature(row));
                         }
                     });
}

void SceneBuildTest::slicesMakeTheSameScene()
{
    const DocumentFile file(manyBuildings());
    SceneFixture fixture(file.path());
    const QImage atOnce = fixture.picture();
    QVERIFY(fixture.scene.counts().tiles > 1);
    fixture.begin();
    QVERIFY(fixture.scene.isBusy());
    int steps = 0;
    while (fixture.scene.addSome(0)) {
        fixture.scene.takeFinished();
        ++steps;
    }
    QVERIFY2(steps > 1000, qPrintable(QString::number(steps)));
    while (fixture.scene.isBusy()) {
        fixture.scene.waitForTile();
        fixture.scene.takeFinished();
    }
    QCOMPARE(differences(fixture.picture(), atOnce), 0);
}

void SceneBuildTest::anotherDocumentTakesThePlaceOfOneThatIsComing()
{
    const DocumentFile file(manyBuildings());
    SceneFixture fixture(examples() + "/district.gml");
    const QImage district = fixture.picture();
    const Camera camera = fixture.camera;
    SceneFixture other(file.path());
    other.begin();
    doSome(other, 1200);
    QVERIFY(other.scene.isBusy());
    other.model.load(examples() + "/district.gml");
    other.begin();
    other.scene.addAll();
    other.camera = camera;
    QCOMPARE(differences(other.picture(), district), 0);
}

void SceneBuildTest::tilesOfAFormerDocumentAreNotShown()
{
    // A comb, which takes a while to be cut into triangles.
    QByteArray positions = "0 0 0 ";
    constexpr int teeth = 3000;
    for (int i = 0; i < teeth; ++i) {
        positions += QByteArray::number(i) + " 100 0 " + QByteArray::number(i + 0.5) + " 1 0 ";
    }
    positions += QByteArray::number(teeth) + " 0 0 0 0 0";
    const DocumentFile slow(documentText(buildingMember(
        multiSurface("lod2MultiSurface", "<gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing>"
                                         "<gml:posList>" +
                                             positions +
                                             "</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon>"
                                             "</gml:surfaceMember>"))));
    const DocumentFile quick(
        documentText(buildingMember(multiSurface("lod2MultiSurface", square("p", 0, 0)))));
    SceneFixture fixture(slow.path());
    QVERIFY(fixture.scene.counts().triangles > teeth);
    fixture.begin();
    while (fixture.scene.addSome(0)) {
    }
    // A thread is at it by now.
    QTest::qSleep(2);
    fixture.model.load(quick.path());
    fixture.begin();
    fixture.scene.addAll();
    QCOMPARE(fixture.scene.counts().triangles, std::size_t(2));
}

void SceneBuildTest::aClearedSceneStaysEmpty()
{
    const DocumentFile file(manyBuildings());
    SceneFixture fixture(file.path());
    fixture.begin();
    doSome(fixture, 1200);
    fixture.scene.clear();
    fixture.scene.addAll();
    QVERIFY(!fixture.scene.isBusy());
    QCOMPARE(fixture.scene.counts().triangles, std::size_t(0));
    QCOMPARE(coloursIn(fixture.picture()), 1);
}

void SceneBuildTest::featuresThatGoMeanwhileAreNotDrawn()
{
    const DocumentFile file(manyBuildings());
    SceneFixture fixture(file.path());
    follow(fixture);
    fixture.begin();
    // Some of them are in tiles, some wait for one, and some are still to come.
    doSome(fixture, 1200);
    QVERIFY(fixture.features().size() > 10);
    QVERIFY(fixture.features().size() < 1400);
    for (const int number : {0, 3, static_cast<int>(fixture.features().size()) - 3, 1450}) {
        fixture.model.removeFeature(fixture.model.getFeature("b" + std::to_string(number)));
    }
    fixture.scene.addAll();
    QCOMPARE(fixture.scene.counts().features, std::size_t(1500));
    fixture.setAllHidden(false);
    std::size_t left = 0;
    for (Slot slot = 0; slot < fixture.features().size(); ++slot) {
        left += fixture.features().featureOf(slot) != nullptr ? 1 : 0;
    }
    QCOMPARE(left, std::size_t(fixture.model.rowCount()));
    while (fixture.model.rowCount() > 1) {
        fixture.model.removeFeature(fixture.model.getFeature(fixture.model.rowCount() - 1));
    }
    QCOMPARE(coloursIn(fixture.picture()), 1);
    // Nothing of them is looked at any more.
    fixture.scene.setTheme(QString(), false);
    fixture.scene.addAll();
    QCOMPARE(coloursIn(fixture.picture()), 1);
}

void SceneBuildTest::featuresThatChangeMeanwhileAreDrawnOnce()
{
    const DocumentFile file(manyBuildings());
    SceneFixture fixture(file.path());
    const QImage before = fixture.picture();
    fixture.begin();
    doSome(fixture, 1200);
    for (int row = 0; row < fixture.model.rowCount(); ++row) {
        fixture.scene.rebuild(*fixture.model.getFeature(row));
    }
    fixture.scene.addAll();
    QCOMPARE(fixture.scene.counts().triangles, std::size_t(3000));
    QCOMPARE(differences(fixture.picture(), before), 0);
}

void SceneBuildTest::aSceneEndsWhileItIsBuilt()
{
    const DocumentFile file(manyBuildings());
    SceneFixture fixture(file.path());
    std::vector<const Feature*> all;
    for (int row = 0; row < fixture.model.rowCount(); ++row) {
        all.push_back(fixture.model.getFeature(row));
    }
    for (const int steps : {1, 30, 900, 1500}) {
        CityScene scene;
        scene.begin(all, file.path());
        for (int step = 0; step < steps; ++step) {
            scene.addSome(0);
        }
    }
    QVERIFY(fixture.hasContent());
}

void SceneBuildTest::largeFeaturesTakeManySteps()
{
    const DocumentFile file(largeBuilding());
    SceneFixture fixture(file.path());
    const QImage atOnce = fixture.picture();
    QCOMPARE(fixture.scene.counts().triangles, std::size_t(5202));
    fixture.begin();
    int steps = 0;
    while (fixture.scene.addSome(0)) {
        ++steps;
    }
    QVERIFY2(steps > 7, qPrintable(QString::number(steps)));
    fixture.scene.addAll();
    QCOMPARE(differences(fixture.picture(), atOnce), 0);
    // The same when it is made anew.
    fixture.scene.rebuild(*fixture.model.getFeature("large"));
    for (steps = 0; fixture.scene.addSome(0); ++steps) {
    }
    QVERIFY2(steps > 4, qPrintable(QString::number(steps)));
    fixture.scene.addAll();
    QCOMPARE(fixture.scene.counts().triangles, std::size_t(5202));
    QCOMPARE(differences(fixture.picture(), atOnce), 0);
}

void SceneBuildTest::largeFeaturesGoWhileTheyCome()
{
    const DocumentFile file(largeBuilding());
    for (const int steps : {1, 3, 5, 8, 11}) {
        SceneFixture fixture(file.path());
        follow(fixture);
        fixture.begin();
        doSome(fixture, steps);
        fixture.model.removeFeature(fixture.model.getFeature("large"));
        fixture.scene.addAll();
        const std::map<Slot, int> seen = fixture.renderer->pixelsOf(
            fixture.camera, QSize(SceneFixture::width, SceneFixture::height), fixture.options);
        QCOMPARE(seen.size(), std::size_t(1));
        QCOMPARE(seen.begin()->first, fixture.slotOf("small"));
    }
}

void SceneBuildTest::largeFeaturesChangeWhileTheyCome()
{
    const DocumentFile file(largeBuilding());
    for (const int steps : {1, 3, 5, 8, 11, 101, 105, 111}) {
        SceneFixture fixture(file.path());
        fixture.begin();
        doSome(fixture, steps % 100);
        auto& large = dynamic_cast<bldg::BuildingType&>(*fixture.model.getFeature("large"));
        const auto& small = dynamic_cast<const bldg::BuildingType&>(*fixture.model.getFeature("small"));
        large.lod2MultiSurface(small.lod2MultiSurface().get());
        fixture.scene.rebuild(large);
        if (steps > 100) {
            // Again while it is made anew.
            doSome(fixture, 2);
            fixture.scene.rebuild(large);
        }
        fixture.scene.addAll();
        QCOMPARE(fixture.scene.counts().triangles, std::size_t(4));
    }
}

/// Neither when it changes while it is walked through, nor when that is still under way in a thread.
void SceneBuildTest::ofATileThatIsMadeAnewNothingFormerComes()
{
    const DocumentFile file(largeBuilding());
    for (const int steps : {1, 2, 3, 5, 6}) {
        SceneFixture fixture(file.path());
        auto& large = dynamic_cast<bldg::BuildingType&>(*fixture.model.getFeature("large"));
        const auto& small = dynamic_cast<const bldg::BuildingType&>(*fixture.model.getFeature("small"));
        fixture.scene.rebuild(large);
        for (int step = 0; step < steps; ++step) {
            fixture.scene.addSome(0);
        }
        large.lod2MultiSurface(small.lod2MultiSurface().get());
        fixture.scene.rebuild(large);
        std::vector<std::size_t> shown;
        while (fixture.scene.isBusy()) {
            fixture.scene.addSome(0);
            fixture.scene.waitForTile();
            if (fixture.scene.takeFinished()) {
                shown.push_back(fixture.scene.counts().triangles);
            }
        }
        QCOMPARE(shown, std::vector<std::size_t>{4});
    }
}

void SceneBuildTest::aThemeIsChosenWhileALargeFeatureComes()
{
    const QByteArray green = "<app:X3DMaterial><app:diffuseColor>0 1 0</app:diffuseColor>"
                             "<app:target>#p</app:target></app:X3DMaterial>";
    const DocumentFile file(largeBuilding(appearanceMember("red", material("1 0 0")) +
                                          appearanceMember("blue", green) +
                                          appearanceMember("blue", material("0 0 1"))));
    const auto countsOf = [](SceneFixture& fixture) {
        std::map<QString, int> counts;
        fixture.features().setHidden(fixture.slotOf("small"), true);
        const QImage picture = fixture.picture();
        for (const QPoint& pixel : fixture.grid(24, 16)) {
            const QColor colour = picture.pixelColor(pixel);
            ++counts[colour == fixture.options.background ? "nothing"
                     : isRed(colour)                      ? "red"
                     : isBlue(colour)                     ? "blue"
                                                          : "other"];
        }
        return counts;
    };
    for (const int steps : {0, 2, 4, 5, 7, 11}) {
        SceneFixture fixture(file.path());
        fixture.options.hasEdges = false;
        fixture.begin();
        doSome(fixture, steps);
        fixture.scene.setTheme("blue", true);
        fixture.scene.addAll();
        std::map<QString, int> counts = countsOf(fixture);
        QCOMPARE(counts["red"] + counts["other"], 0);
        QVERIFY(counts["blue"] > 10);
        // The same while it is made anew.
        fixture.scene.rebuild(*fixture.model.getFeature("large"));
        doSome(fixture, steps);
        fixture.scene.setTheme(QString(), false);
        fixture.scene.addAll();
        counts = countsOf(fixture);
        QCOMPARE(counts["red"] + counts["blue"], 0);
        QVERIFY(counts["other"] > 10);
    }
}

void SceneBuildTest::aThemeIsChosenMeanwhile()
{
    const DocumentFile file(documentText(
        appearanceMember("red", material("1 0 0")) + appearanceMember("blue", material("0 0 1")) +
        buildingMember(multiSurface("lod2MultiSurface", square("p", 0, 0)))));
    // After each number of steps, until there is nothing left to do.
    for (int steps = 0; steps < 12; ++steps) {
        SceneFixture fixture(file.path());
        QVERIFY(isRed(middleOf(fixture.picture())));
        fixture.begin();
        doSome(fixture, steps);
        fixture.scene.setTheme("blue", true);
        fixture.scene.addAll();
        QVERIFY2(isBlue(middleOf(fixture.picture())), qPrintable(QString::number(steps)));
        QCOMPARE(fixture.scene.counts().triangles, std::size_t(2));
    }
}

void SceneBuildTest::whatIsRemovedFromTheDocumentGoes()
{
    SceneFixture fixture(examples() + "/district.gml");
    follow(fixture);
    QVERIFY(coloursIn(fixture.picture()) > 3);
    while (fixture.model.rowCount() > 1) {
        fixture.model.removeFeature(fixture.model.getFeature(1));
    }
    QCOMPARE(coloursIn(fixture.picture()), 1);
    fixture.scene.setTheme("summer", true);
    fixture.scene.addAll();
    QCOMPARE(coloursIn(fixture.picture()), 1);
}

void SceneBuildTest::whatGetsItsFirstGeometryIsDrawn()
{
    const DocumentFile file(
        documentText(buildingMember(multiSurface("lod2MultiSurface", square("", 0, 0)), "one") +
                     buildingMember(QByteArray(), "two")));
    SceneFixture fixture(file.path());
    const auto& one = dynamic_cast<const bldg::BuildingType&>(*fixture.model.getFeature("one"));
    auto& two = dynamic_cast<bldg::BuildingType&>(*fixture.model.getFeature("two"));
    fixture.features().setHidden(fixture.slotOf("one"), true);
    QCOMPARE(coloursIn(fixture.picture()), 1);
    two.lod1MultiSurface(one.lod2MultiSurface().get());
    fixture.scene.rebuild(two);
    fixture.scene.addAll();
    QCOMPARE(fixture.slotAt(QPoint(SceneFixture::width / 2, SceneFixture::height / 2)),
             fixture.slotOf("two"));
    QCOMPARE(fixture.scene.counts().triangles, std::size_t(4));
}

void SceneBuildTest::editsOfMaterialsAreSeen()
{
    const DocumentFile file(
        documentText(appearanceMember("red", material("1 0 0"), "looks") +
                     buildingMember(multiSurface("lod2MultiSurface", square("p", 0, 0)))));
    SceneFixture fixture(file.path());
    QVERIFY(isRed(middleOf(fixture.picture())));
    auto& appearance = dynamic_cast<app::AppearanceType&>(*fixture.model.getFeature("looks"));
    auto& painted =
        dynamic_cast<app::X3DMaterialType&>(appearance.surfaceDataMember().front()._SurfaceData().get());
    app::Color blue;
    blue.push_back(0.0);
    blue.push_back(0.0);
    blue.push_back(1.0);
    painted.diffuseColor(blue);
    fixture.scene.rebuild(appearance);
    fixture.scene.addAll();
    QVERIFY(isBlue(middleOf(fixture.picture())));
}

void SceneBuildTest::removedAppearancesLeaveTheirSurfaces()
{
    const DocumentFile file(
        documentText(appearanceMember("red", material("1 0 0"), "looks") +
                     buildingMember(multiSurface("lod2MultiSurface", square("p", 0, 0)))));
    SceneFixture fixture(file.path());
    follow(fixture);
    QVERIFY(isRed(middleOf(fixture.picture())));
    fixture.model.removeFeature(fixture.model.getFeature("looks"));
    fixture.scene.addAll();
    QVERIFY(!isRed(middleOf(fixture.picture())));
    QVERIFY(middleOf(fixture.picture()) != fixture.options.background);
    fixture.scene.setTheme("red", true);
    fixture.scene.addAll();
    QVERIFY(!isRed(middleOf(fixture.picture())));
}

void SceneBuildTest::appearancesThatComeAreSeen()
{
    const DocumentFile file(
        documentText(appearanceMember("red", material("1 0 0"), "looks") +
                     buildingMember(multiSurface("lod2MultiSurface", square("p", 0, 0)))));
    SceneFixture fixture(file.path());
    const Feature& appearance = *fixture.model.getFeature("looks");
    fixture.scene.remove(appearance);
    fixture.scene.addAll();
    QVERIFY(!isRed(middleOf(fixture.picture())));
    fixture.scene.add(appearance);
    fixture.scene.addAll();
    QVERIFY(isRed(middleOf(fixture.picture())));
}

#include "scenebuildtest.moc"
