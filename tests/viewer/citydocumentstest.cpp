#include "citygml/GeometryWalk.h"
#include "scene/Pictures.h"
#include "support/Files.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "viewer/ViewFixture.h"

#include <functional>
#include <map>
#include <QComboBox>
#include <QTemporaryDir>
#include <QtTest>

using namespace testsupport;
using namespace tolvik;
using namespace tolvik::viewer;
using citygml::GeometryPiece;

/// What holds in the view of every document.
class CityDocumentsTest : public ViewFixture
{
    Q_OBJECT

private slots:
    void cleanup() { end(); }
    void everyDocument_data();
    void everyDocument();

private:
    using PlacesByRow = std::map<int, QVector<QPoint>>;

    PlacesByRow seen();
    bool hasPiece(int row, const std::function<bool(const GeometryPiece&)>& isWanted);
    void hidesAllAndShowsAll(const QImage& all);
    void selectsWhatIsClicked(const PlacesByRow& found);
    void hidesWhatIsUnchecked(const PlacesByRow& found, const QImage& all);
    void fitsWhatIsDoubleClicked(const PlacesByRow& found);
    void resetsAll(const QImage& all);
    void showsOneLevelOfDetail();
    void keepsNothingStale(const QString& path, const QImage& all);
};

TEST_CLASS(CityDocumentsTest, Widgets)

/// A quick run looks at those of the project: without a window all are looked at in any run.
void CityDocumentsTest::everyDocument_data()
{
    addPathRows(qEnvironmentVariableIsSet("TOLVIK_LONG_RUNS") ? exampleAndSharedDocuments()
                                                              : documentsBelow(examples()));
}

void CityDocumentsTest::everyDocument()
{
    QFETCH(QString, path);
    show(QSize(420, 330));
    open(path);
    const QImage all = picture();
    if (!panel->link()->scene().bounds().valid()) {
        QVERIFY2(QStringList({"component.gml", "epadesa.gml", "pivotEnergy.gml"})
                     .contains(QFileInfo(path).fileName()),
                 "nothing is drawn of a document with geometry");
        QCOMPARE(coloursIn(all), 1);
        return;
    }
    // A document may have nothing but one line.
    QVERIFY(coloursIn(all) > (panel->link()->scene().counts().triangles > 0 ? 3 : 1));
    const PlacesByRow found = seen();
    QVERIFY(!found.empty());
    hidesAllAndShowsAll(all);
    selectsWhatIsClicked(found);
    hidesWhatIsUnchecked(found, all);
    fitsWhatIsDoubleClicked(found);
    resetsAll(all);
    showsOneLevelOfDetail();
    keepsNothingStale(path, all);
}

/// The features that are seen, with some of the places where each is.
CityDocumentsTest::PlacesByRow CityDocumentsTest::seen()
{
    PlacesByRow found;
    for (const QPoint& place : grid(30, 20)) {
        found[rowAt(place)] << place;
    }
    found.erase(-1);
    return found;
}

bool CityDocumentsTest::hasPiece(int row, const std::function<bool(const GeometryPiece&)>& isWanted)
{
    bool has = false;
    citygml::walkGeometry(*document->model().getFeature(row),
                          [&](const GeometryPiece& piece) { has = has || isWanted(piece); });
    return has;
}

void CityDocumentsTest::hidesAllAndShowsAll(const QImage& all)
{
    document->model().hideAll();
    const QImage none = picture();
    QCOMPARE(coloursIn(none), 1);
    QCOMPARE(none.pixelColor(0, 0), view->options().background);
    QVERIFY(seen().empty());
    document->model().showAll();
    QCOMPARE(differences(picture(), all), 0);
}

void CityDocumentsTest::selectsWhatIsClicked(const PlacesByRow& found)
{
    for (const auto& [row, places] : found) {
        QTest::mouseClick(view, Qt::LeftButton, Qt::NoModifier, places.front());
        QCOMPARE(document->selection().selectedRows().size(), 1);
        QVERIFY(document->selection().isRowSelected(row, QModelIndex()));
        const QImage selected = picture();
        for (const QPoint& place : places) {
            QCOMPARE(colourAt(selected, place), view->options().selection);
        }
    }
    document->selection().clearSelection();
}

void CityDocumentsTest::hidesWhatIsUnchecked(const PlacesByRow& found, const QImage& all)
{
    for (const auto& [row, places] : found) {
        QVERIFY(document->tree().setData(treeIndex(row), Qt::Unchecked, Qt::CheckStateRole));
        QVERIFY(differences(picture(), all) > 0);
        for (const QPoint& place : places) {
            QVERIFY(rowAt(place) != row);
        }
        QVERIFY(document->tree().setData(treeIndex(row), Qt::Checked, Qt::CheckStateRole));
        QCOMPARE(differences(picture(), all), 0);
    }
}

void CityDocumentsTest::fitsWhatIsDoubleClicked(const PlacesByRow& found)
{
    const scene::Camera before = view->camera();
    for (const auto& [row, places] : found) {
        // Lines and points have a width in pixels alone.
        if (!hasPiece(row, [](const auto& piece) { return piece.kind == GeometryPiece::Kind::Surface; })) {
            continue;
        }
        QTest::mouseDClick(view, Qt::LeftButton, Qt::NoModifier, places.front());
        document->goTo(row);
        const QImage fitted = picture();
        const int selected = pixelsOf(view->options().selection, fitted);
        QVERIFY2(selected >= 0.02 * fitted.width() * fitted.height(),
                 qPrintable(QStringLiteral("%1: %2 pixels")
                                .arg(document->model().index(row, 0).data().toString())
                                .arg(selected)));
        view->setCamera(before);
    }
    document->selection().clearSelection();
}

void CityDocumentsTest::resetsAll(const QImage& all)
{
    for (int row = 0; row < document->model().rowCount(); ++row) {
        document->model().reset(document->model().index(row, 0));
        QVERIFY(document->model().isVisible(document->model().index(row, 0)));
    }
    panel->link()->finish();
    QCOMPARE(differences(picture(), all), 0);
}

void CityDocumentsTest::showsOneLevelOfDetail()
{
    auto* const lods = panel->findChild<QComboBox*>("lod");
    for (int lod = 0; lod < scene::lodCount; ++lod) {
        lods->setCurrentIndex(lods->findText(QStringLiteral("LOD %1").arg(lod)));
        for (const auto& [row, places] : seen()) {
            QVERIFY2(hasPiece(row, [lod](const auto& piece) { return piece.lod == lod || piece.lod == -1; }),
                     qPrintable(document->model().index(row, 0).data().toString()));
        }
    }
    lods->setCurrentIndex(0);
}

void CityDocumentsTest::keepsNothingStale(const QString& path, const QImage& all)
{
    document->model().dataSetChanged();
    panel->link()->finish();
    QCOMPARE(differences(picture(), all), 0);
    const QTemporaryDir folder;
    QVERIFY(writeFile(folder.filePath("broken.gml"), "<core:CityModel"));
    document->model().load(folder.filePath("broken.gml"));
    panel->link()->finish();
    QCOMPARE(differences(picture(), all), 0);
    document->model().load(folder.filePath("missing.gml"));
    panel->link()->finish();
    QCOMPARE(coloursIn(picture()), 1);
    open(path);
    QCOMPARE(differences(picture(), all), 0);
    CityGMLModel& model = document->model();
    while (model.rowCount() > 0) {
        model.removeFeature(model.getFeature(model.rowCount() - 1));
    }
    QCOMPARE(coloursIn(picture()), 1);
}

#include "citydocumentstest.moc"
