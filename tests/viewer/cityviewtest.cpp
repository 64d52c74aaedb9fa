#include "apps/common/DocumentReading.h"
#include "apps/common/PropertyPath.h"
#include "apps/viewer/view/ViewOverlay.h"
#include "bldg/BuildingType.hxx"
#include "framework/CoreProperty.h"
#include "gml/AbstractFeatureType.hxx"
#include "gml/MultiSurfacePropertyType.hxx"
#include "scene/Pictures.h"
#include "scene/SceneDocuments.h"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "viewer/ViewFixture.h"

#include <QAction>
#include <QComboBox>
#include <QRegularExpression>
#include <QSet>
#include <QSlider>
#include <QTemporaryDir>
#include <QToolTip>
#include <QtTest>

using namespace testsupport;
using namespace tolvik;
using namespace tolvik::viewer;

namespace {

bool isBackground(const QImage& image)
{
    return coloursIn(image) == 1;
}

} // namespace

/// What a user does with the view of a document.
class CityViewTest : public ViewFixture
{
    Q_OBJECT

private slots:
    void init()
    {
        show(QSize(700, 500));
        open(examples() + "/district.gml");
    }
    void cleanup() { end(); }
    void theDocumentIsSeen();
    void aClickSelectsWhatIsSeenThere();
    void controlAddsAndTakesAway();
    void aFrameSelectsAllThatIsSeenInIt();
    void aDoubleClickFits();
    void theSelectionIsFitted();
    void theSelectionOfTheDocumentIsSeen();
    void whatIsSelectedBeforeItComesIsSeen();
    void editsOfGeometryAreSeen();
    void uncheckingInTheTreeHides();
    void hideAllLeavesTheBackground();
    void aResetShowsTheSamePicture();
    void removedFeaturesLeaveNothing();
    void reloadsShowTheSamePicture();
    void aFailedLoadLeavesNothingStale();
    void anotherDocumentTakesThePlace();
    void levelsOfDetailAreChosen();
    void coloursFollowAnAttributeAndItsEdits();
    void twoClicksMeasure();
    void aMeasureIsInTheUnitsOfTheDocument();
    void keysTurnAndMove();
    void theWheelZoomsToThePointer();
    void picturesHaveTheSizeThatIsAsked();
    void picturesShowWhatIsStillComing();
    void thePointerIsToldNameAndType();
    void themesAreChosen();
    void aSectionCutsTheCityOpen();
    void nothingButTheSelectedIsShown();
    void manyFeaturesAreHiddenByOneRepaint();
    void theViewEndsWhileItIsBuilt();
    void documentsChangeWhileTheyAreBuilt();
};

TEST_CLASS(CityViewTest, Widgets)

void CityViewTest::theDocumentIsSeen()
{
    QVERIFY(!isBackground(picture()));
    QCOMPARE(picture().size(), view->size() * view->devicePixelRatioF());
}

void CityViewTest::aClickSelectsWhatIsSeenThere()
{
    int row = -1;
    const QPoint place = placeOfSomething(&row);
    QVERIFY(row >= 0);
    QTest::mouseClick(view, Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(document->selection().currentIndex().row(), row);
    QVERIFY(document->selection().isRowSelected(row, QModelIndex()));
    QCOMPARE(colourAt(picture(), place), view->options().selection);

    QTest::mouseClick(view, Qt::LeftButton, Qt::NoModifier, QPoint(2, 2));
    QVERIFY(!document->selection().hasSelection());
}

void CityViewTest::controlAddsAndTakesAway()
{
    const QPoint place = placeOfSomething();
    document->goTo(0);
    QTest::mouseClick(view, Qt::LeftButton, Qt::ControlModifier, place);
    QCOMPARE(document->selection().selectedRows().size(), 2);
    QTest::mouseClick(view, Qt::LeftButton, Qt::ControlModifier, place);
    QCOMPARE(document->selection().selectedRows().size(), 1);
    QTest::mouseClick(view, Qt::LeftButton, Qt::ControlModifier, QPoint(2, 2));
    QCOMPARE(document->selection().selectedRows().size(), 1);
}

void CityViewTest::aFrameSelectsAllThatIsSeenInIt()
{
    QSet<int> seen;
    for (const QPoint& place : grid(140, 100)) {
        seen.insert(rowAt(place));
    }
    seen.remove(-1);
    QVERIFY(seen.size() > 3);
    QTest::mousePress(view, Qt::LeftButton, Qt::ShiftModifier, QPoint(1, 1));
    // Qt Test does not say which button is held.
    QMouseEvent move(QEvent::MouseMove, view->rect().bottomRight(), Qt::NoButton, Qt::LeftButton,
                     Qt::ShiftModifier);
    QCoreApplication::sendEvent(view, &move);
    QTest::mouseRelease(view, Qt::LeftButton, Qt::ShiftModifier, view->rect().bottomRight());
    for (const int row : seen) {
        QVERIFY(document->selection().isRowSelected(row, QModelIndex()));
    }
}

void CityViewTest::aDoubleClickFits()
{
    int row = -1;
    const QPoint place = placeOfSomething(&row);
    QTest::mouseDClick(view, Qt::LeftButton, Qt::NoModifier, place);
    document->goTo(row);
    const QImage image = picture();
    const int selected = pixelsOf(view->options().selection, image);
    QVERIFY2(selected >= 0.02 * image.width() * image.height(), qPrintable(QString::number(selected)));
}

void CityViewTest::theSelectionIsFitted()
{
    const auto partSelected = [this] {
        const QImage image = picture();
        return static_cast<double>(pixelsOf(view->options().selection, image)) /
               (image.width() * image.height());
    };
    // A feature of its own geometry, and one that is drawn by what is below it.
    for (const char* const id : {"pier", "lantern-house"}) {
        view->look(scene::Camera::Direction::Oblique);
        document->goTo(document->model().getRow(document->model().getFeature(std::string(id))));
        const double before = partSelected();
        panel->findChild<QAction*>("fitSelection")->trigger();
        QVERIFY2(partSelected() >= 0.02, id);
        QVERIFY2(partSelected() > 2 * before, id);
    }
}

void CityViewTest::theSelectionOfTheDocumentIsSeen()
{
    const QImage before = picture();
    // The document itself: everything below it is selected with it.
    document->goTo(0);
    const QImage all = picture();
    QVERIFY(differences(before, all) > 1000);
    QCOMPARE(pixelsOf(view->options().selection, all) + pixelsOf(view->options().background, all),
             all.width() * all.height());
    document->selection().clearSelection();
    QCOMPARE(differences(before, picture()), 0);
}

void CityViewTest::whatIsSelectedBeforeItComesIsSeen()
{
    document->goTo(document->model().getRow(document->model().getFeature(std::string("block-1"))));
    const QImage before = picture();
    const int row = document->selection().currentIndex().row();
    apps::DocumentReading reading(examples() + "/district.gml");
    reading.read();
    document->open(reading);
    document->goTo(row);
    panel->link()->finish();
    QVERIFY(pixelsOf(view->options().selection, picture()) > 10);
    QCOMPARE(differences(before, picture()), 0);
}

void CityViewTest::editsOfGeometryAreSeen()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("two.gml");
    QVERIFY(writeFile(
        path, documentText(buildingMember(multiSurface("lod2MultiSurface", square("p", 0, 0)), "one") +
                           buildingMember(multiSurface("lod2MultiSurface", square("q", 20, 0)), "two"))));
    open(path);
    const QImage before = picture();
    CityGMLModel& model = document->model();
    auto& one = dynamic_cast<bldg::BuildingType&>(*model.getFeature("one"));
    one.lod2MultiSurface().reset();
    model.propertyChanged(model.index(&one), false);
    QTRY_VERIFY(differences(before, picture()) > 1000);
    QVERIFY(!isBackground(picture()));
}

void CityViewTest::uncheckingInTheTreeHides()
{
    const QImage before = picture();
    int row = -1;
    const QPoint place = placeOfSomething(&row);
    QVERIFY(document->tree().setData(treeIndex(row), Qt::Unchecked, Qt::CheckStateRole));
    QVERIFY(differences(before, picture()) > 20);
    QVERIFY(rowAt(place) != row);
    QVERIFY(document->tree().setData(treeIndex(row), Qt::Checked, Qt::CheckStateRole));
    QCOMPARE(differences(before, picture()), 0);
}

void CityViewTest::hideAllLeavesTheBackground()
{
    const QImage before = picture();
    document->model().hideAll();
    QVERIFY(isBackground(picture()));
    document->model().showAll();
    QCOMPARE(differences(before, picture()), 0);
}

void CityViewTest::aResetShowsTheSamePicture()
{
    const QImage before = picture();
    for (int row = 0; row < document->model().rowCount(); ++row) {
        document->model().reset(document->model().index(row, 0));
        QVERIFY(document->model().isVisible(document->model().index(row, 0)));
    }
    panel->link()->finish();
    QCOMPARE(differences(before, picture()), 0);
}

void CityViewTest::removedFeaturesLeaveNothing()
{
    CityGMLModel& model = document->model();
    while (model.rowCount() > 0) {
        model.removeFeature(model.getFeature(model.rowCount() - 1));
    }
    QVERIFY(isBackground(picture()));
}

void CityViewTest::reloadsShowTheSamePicture()
{
    const QImage before = picture();
    open(examples() + "/district.gml");
    QCOMPARE(differences(before, picture()), 0);
    document->model().dataSetChanged();
    panel->link()->finish();
    QCOMPARE(differences(before, picture()), 0);
}

void CityViewTest::aFailedLoadLeavesNothingStale()
{
    const QImage before = picture();
    const QTemporaryDir folder;
    QVERIFY(writeFile(folder.filePath("broken.gml"), "<core:CityModel"));
    document->model().load(folder.filePath("broken.gml"));
    panel->link()->finish();
    // The former document is there again.
    QCOMPARE(differences(before, picture()), 0);
    document->model().load(folder.filePath("missing.gml"));
    panel->link()->finish();
    QCOMPARE(document->model().rowCount(), 0);
    QVERIFY(isBackground(picture()));
}

void CityViewTest::anotherDocumentTakesThePlace()
{
    document->goTo(1);
    open(examples() + "/component.gml");
    QVERIFY(isBackground(picture()));
    open(examples() + "/utility.gml");
    QVERIFY(!isBackground(picture()));
}

void CityViewTest::levelsOfDetailAreChosen()
{
    auto* const lods = panel->findChild<QComboBox*>("lod");
    const QImage highest = picture();
    QSet<QByteArray> pictures;
    for (int index = 0; index < lods->count(); ++index) {
        lods->setCurrentIndex(index);
        const QImage image = picture();
        pictures.insert(QByteArray(reinterpret_cast<const char*>(image.constBits()),
                                   static_cast<int>(image.sizeInBytes())));
    }
    QVERIFY2(pictures.size() >= 5, qPrintable(QString::number(pictures.size())));
    lods->setCurrentIndex(0);
    QCOMPARE(differences(highest, picture()), 0);
}

void CityViewTest::coloursFollowAnAttributeAndItsEdits()
{
    auto* const attributes = panel->findChild<QComboBox*>("colourBy");
    const QString path = "Fields/MeasuredHeight";
    QTRY_VERIFY(attributes->findData(path) > 0);
    const QImage before = picture();
    const int index = attributes->findData(path);
    attributes->setCurrentIndex(index);
    emit attributes->activated(index);
    QTRY_VERIFY(panel->link()->colours().legend().size() >= 2);
    QVERIFY(differences(before, picture()) > 1000);
    // What has no height has the colour of what it is a part of, and else is grey.
    const auto colourOf = [this](const char* id) {
        const scene::FeatureTable& features = panel->link()->scene().features();
        return features.colourOf(features.slotOf(document->model().getFeature(std::string(id))));
    };
    const QColor grey = panel->link()->colours().legend().back().colour;
    QCOMPARE(colourOf("terrain"), grey);
    QVERIFY(colourOf("lantern-house") != grey);
    QCOMPARE(colourOf("lantern-house-roof"), colourOf("lantern-house"));
    QCOMPARE(colourOf("shop-door"), colourOf("lantern-house"));

    // The lowest becomes the highest.
    CityGMLModel& model = document->model();
    CoreProperty* edited = nullptr;
    int rowOfEdited = -1;
    for (int row = 0; row < model.rowCount(); ++row) {
        CoreProperty* const property = apps::propertyAt(*model.getProperty(model.index(row, 0)), path);
        if (property != nullptr &&
            (edited == nullptr || property->value().toDouble() < edited->value().toDouble())) {
            edited = property;
            rowOfEdited = row;
        }
    }
    if (edited == nullptr) {
        QFAIL("no feature has the attribute");
    }
    const QVariant former = edited->value();
    edited->setValue(former.toDouble() + 1000);
    const QImage coloured = picture();
    const QString highest = panel->link()->colours().legend().rbegin()[1].text;
    model.propertyChanged(model.index(rowOfEdited, 0), false);
    QTRY_VERIFY(differences(coloured, picture()) > 100);
    QVERIFY(panel->link()->colours().legend().rbegin()[1].text != highest);
    edited->setValue(former);
    model.propertyChanged(model.index(rowOfEdited, 0), false);
    QTRY_COMPARE(differences(coloured, picture()), 0);

    attributes->setCurrentIndex(0);
    emit attributes->activated(0);
    QCOMPARE(differences(before, picture()), 0);
}

void CityViewTest::twoClicksMeasure()
{
    QSignalSpy measured(panel->overlay(), &ViewOverlay::measured);
    panel->findChild<QAction*>("measure")->trigger();
    const QPoint place = placeOfSomething();
    QTest::mouseClick(view, Qt::LeftButton, Qt::NoModifier, place);
    QVERIFY(panel->overlay()->measure().isEmpty());
    QTest::mouseClick(view, Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(measured.count(), 1);
    QVERIFY2(panel->overlay()->measure().contains("0.00") || panel->overlay()->measure().contains("0,00"),
             qPrintable(panel->overlay()->measure()));
    QVERIFY(!document->selection().hasSelection());
    panel->findChild<QAction*>("measure")->trigger();
    QVERIFY(panel->overlay()->measure().isEmpty());
}

void CityViewTest::aMeasureIsInTheUnitsOfTheDocument()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("squares.gml");
    QVERIFY(writeFile(
        path, documentText(buildingMember(multiSurface("lod2MultiSurface", square("p", 0, 0)), "low") +
                           buildingMember(multiSurface("lod2MultiSurface", square("q", 30, 40)), "high"))));
    open(path);
    view->look(scene::Camera::Direction::Oblique);
    panel->findChild<QAction*>("measure")->trigger();
    for (const osg::Vec3d& place : {osg::Vec3d(5, 5, 0), osg::Vec3d(35, 5, 40)}) {
        QTest::mouseClick(view, Qt::LeftButton, Qt::NoModifier, view->placeOf(place).toPoint());
    }
    static const QRegularExpression number("-?[0-9]+[.,][0-9]+");
    QVector<double> numbers;
    for (auto found = number.globalMatch(panel->overlay()->measure()); found.hasNext();) {
        numbers << found.next().captured().replace(',', '.').toDouble();
    }
    QCOMPARE(numbers.size(), 3);
    // Within a pixel.
    QVERIFY2(qAbs(numbers[0] - 50) < 0.5, qPrintable(panel->overlay()->measure()));
    QVERIFY2(qAbs(numbers[1] - 30) < 0.5, qPrintable(panel->overlay()->measure()));
    QVERIFY2(qAbs(numbers[2] - 40) < 0.01, qPrintable(panel->overlay()->measure()));
}

void CityViewTest::keysTurnAndMove()
{
    const QImage before = picture();
    QTest::keyClick(view, Qt::Key_Left);
    QVERIFY(differences(before, picture()) > 0);
    QTest::keyClick(view, Qt::Key_Right);
    QTest::keyClick(view, Qt::Key_Up, Qt::ShiftModifier);
    QVERIFY(differences(before, picture()) > 0);
    for (const char* const name : {"lookFromTop", "lookFromFront", "lookFromSide", "lookOblique"}) {
        const QImage former = picture();
        panel->findChild<QAction*>(name)->trigger();
        QVERIFY2(differences(former, picture()) > 0, name);
        QVERIFY2(!isBackground(picture()), name);
    }
    const QImage perspective = picture();
    panel->findChild<QAction*>("parallel")->trigger();
    QVERIFY(differences(perspective, picture()) > 0);
}

void CityViewTest::theWheelZoomsToThePointer()
{
    panel->findChild<QAction*>("parallel")->trigger();
    view->look(scene::Camera::Direction::Top);
    const QPoint place = placeOfSomething();
    const osg::Vec3d position = view->hitAt(place).position;
    QWheelEvent wheel(place, view->mapToGlobal(place), QPoint(), QPoint(0, 360), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    const double height = view->camera().height();
    QCoreApplication::sendEvent(view, &wheel);
    QVERIFY(view->camera().height() < height);
    QVERIFY((view->placeOf(position) - place).manhattanLength() < 3);
}

void CityViewTest::picturesHaveTheSizeThatIsAsked()
{
    const QImage image = view->picture(QSize(333, 222), false);
    QCOMPARE(image.size(), QSize(333, 222));
    QVERIFY(!isBackground(image));
    QCOMPARE(view->picture(QSize(100, 100), true).pixelColor(0, 0).alpha(), 0);
    QVERIFY(view->picture(QSize(1000000, 10), false).isNull());
}

void CityViewTest::picturesShowWhatIsStillComing()
{
    const QImage before = view->picture(QSize(333, 222), false);
    apps::DocumentReading reading(examples() + "/district.gml");
    reading.read();
    document->open(reading);
    QVERIFY(panel->link()->isBusy());
    QCOMPARE(differences(before, view->picture(QSize(333, 222), false)), 0);
}

void CityViewTest::thePointerIsToldNameAndType()
{
    int row = -1;
    const QPoint place = placeOfSomething(&row);
    QHelpEvent help(QEvent::ToolTip, place, view->mapToGlobal(place));
    QCoreApplication::sendEvent(view, &help);
    const CityGMLModel& model = document->model();
    QCOMPARE(QToolTip::text(),
             model.index(row, 0).data().toString() + '\n' + model.index(row, 1).data().toString());
    QHelpEvent nothing(QEvent::ToolTip, QPoint(2, 2), view->mapToGlobal(QPoint(2, 2)));
    QCoreApplication::sendEvent(view, &nothing);
    QTRY_VERIFY(!QToolTip::isVisible());
}

void CityViewTest::themesAreChosen()
{
    const auto painted = [](const QByteArray& theme, const QByteArray& colour) {
        return "<app:appearanceMember><app:Appearance><app:theme>" + theme +
               "</app:theme><app:surfaceDataMember><app:X3DMaterial><app:diffuseColor>" + colour +
               "</app:diffuseColor><app:target>#p</app:target></app:X3DMaterial></app:surfaceDataMember>"
               "</app:Appearance></app:appearanceMember>";
    };
    const QTemporaryDir folder;
    const QString path = folder.filePath("painted.gml");
    QVERIFY(writeFile(path, documentText(painted("summer", "0 1 0") + painted("winter", "0.9 0.9 1") +
                                         buildingMember("<bldg:lod2MultiSurface><gml:MultiSurface>"
                                                        "<gml:surfaceMember><gml:Polygon gml:id='p'>"
                                                        "<gml:exterior><gml:LinearRing><gml:posList>"
                                                        "0 0 0 9 0 0 9 9 0 0 9 0 0 0 0</gml:posList>"
                                                        "</gml:LinearRing></gml:exterior></gml:Polygon>"
                                                        "</gml:surfaceMember></gml:MultiSurface>"
                                                        "</bldg:lod2MultiSurface>"))));
    open(path);
    auto* const themes = panel->findChild<QComboBox*>("theme");
    QCOMPARE(themes->currentText(), QString("summer"));
    std::vector<QImage> pictures;
    for (int index = 0; index < themes->count(); ++index) {
        themes->setCurrentIndex(index);
        // The window goes on meanwhile.
        QTRY_VERIFY(!panel->link()->isBusy());
        pictures.push_back(picture());
    }
    QCOMPARE(pictures.size(), std::size_t(3));
    QVERIFY(differences(pictures[0], pictures[1]) > 1000);
    QVERIFY(differences(pictures[1], pictures[2]) > 1000);
    themes->setCurrentIndex(0);
    panel->link()->finish();
    QCOMPARE(differences(pictures[0], picture()), 0);
}

void CityViewTest::aSectionCutsTheCityOpen()
{
    const QImage before = picture();
    auto* const section = panel->findChild<QSlider*>("section");
    auto* const axis = panel->findChild<QComboBox*>("sectionAxis");
    QVERIFY(!section->isEnabled());
    for (int index = 1; index < axis->count(); ++index) {
        axis->setCurrentIndex(index);
        QVERIFY(section->isEnabled());
        section->setValue(section->maximum());
        QCOMPARE(differences(before, picture()), 0);
        section->setValue(section->maximum() / 2);
        QVERIFY2(differences(before, picture()) > 100, qPrintable(axis->itemText(index)));
        section->setValue(section->minimum());
        QVERIFY2(isBackground(picture()), qPrintable(axis->itemText(index)));
    }
    axis->setCurrentIndex(0);
    QCOMPARE(differences(before, picture()), 0);
}

void CityViewTest::nothingButTheSelectedIsShown()
{
    int row = -1;
    const QPoint place = placeOfSomething(&row);
    CityGMLModel& model = document->model();
    QList<QModelIndex> others;
    for (int other = 0; other < model.rowCount(); ++other) {
        if (other != row) {
            others << model.index(other, 0);
        }
    }
    model.hide(others);
    for (const QPoint& each : grid(44, 31)) {
        const int found = rowAt(each);
        QVERIFY(found == -1 || found == row);
    }
    QCOMPARE(rowAt(place), row);
    model.showAll();
}

void CityViewTest::manyFeaturesAreHiddenByOneRepaint()
{
    CityGMLModel& model = document->model();
    QList<QModelIndex> all;
    for (int row = 0; row < model.rowCount(); ++row) {
        all << model.index(row, 0);
    }
    QTest::qWait(50);
    QSignalSpy drawn(view, &QOpenGLWidget::aboutToCompose);
    model.hide(all);
    QTRY_VERIFY(!drawn.isEmpty());
    QTest::qWait(100);
    QCOMPARE(drawn.size(), 1);
    QVERIFY(isBackground(picture()));
}

/// What is left over is told by the sanitizers.
void CityViewTest::theViewEndsWhileItIsBuilt()
{
    beginToOpen(examples() + "/utility.gml");
    panel.reset();
    document.reset();
    init();
    beginToOpen(examples() + "/district.gml");
    panel.reset();
    QVERIFY(document->model().rowCount() > 0);
}

void CityViewTest::documentsChangeWhileTheyAreBuilt()
{
    const QImage before = picture();
    CityGMLModel& model = document->model();

    // A reload.
    beginToOpen(examples() + "/district.gml");
    document->model().dataSetChanged();
    panel->link()->finish();
    QCOMPARE(differences(before, picture()), 0);

    // A load that fails.
    const QTemporaryDir folder;
    QVERIFY(writeFile(folder.filePath("broken.gml"), "<core:CityModel"));
    beginToOpen(examples() + "/district.gml");
    model.load(folder.filePath("broken.gml"));
    panel->link()->finish();
    QCOMPARE(differences(before, picture()), 0);

    // Removals.
    beginToOpen(examples() + "/district.gml");
    while (model.rowCount() > 0) {
        model.removeFeature(model.getFeature(model.rowCount() - 1));
    }
    panel->link()->finish();
    QVERIFY(isBackground(picture()));
}

#include "cityviewtest.moc"
