#include "apps/viewer/edits/FeatureRemoval.h"
#include "support/Documents.h"
#include "support/PanelFixture.h"
#include "support/TestClass.h"

#include <QAbstractItemModelTester>
#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

using namespace testsupport;
using namespace tolvik::viewer;

namespace {

const QByteArray part = "<bldg:consistsOfBuildingPart><bldg:BuildingPart gml:id='part'><bldg:boundedBy>"
                        "<bldg:WallSurface gml:id='wall'/></bldg:boundedBy></bldg:BuildingPart>"
                        "</bldg:consistsOfBuildingPart>";

QByteArray town()
{
    return documentText(
        buildingMember("", "a") + "<!--behind a-->" + buildingMember(part, "b") +
        buildingMember("<bldg:class>2</bldg:class>", "") +
        buildingMember(part.simplified().replace("'part'", "'q'").replace("'wall'", "'w'"), ""));
}

QByteArray relief(const QByteArray& id, const QByteArray& components)
{
    return "<core:cityObjectMember><dem:ReliefFeature xmlns:dem='http://www.opengis.net/citygml/relief/2.0' "
           "gml:id='" +
           id + "'><dem:lod>1</dem:lod>" + components + "</dem:ReliefFeature></core:cityObjectMember>";
}

QByteArray reliefComponent(const QByteArray& id)
{
    return "<dem:reliefComponent><dem:MassPointRelief gml:id='" + id +
           "'><dem:lod>1</dem:lod></dem:MassPointRelief></dem:reliefComponent>";
}

QStringList idsOf(tolvik::viewer::Document& document)
{
    QStringList ids;
    for (int row = 0; row < document.model().rowCount(); ++row) {
        const auto& id = document.model().getFeature(row)->id();
        ids += id.present() ? QString::fromStdString(id.get()) : "-";
    }
    ids.sort();
    return ids;
}

} // namespace

/// Features that leave the document and come back.
class FeatureRemovalTest : public QObject
{
    Q_OBJECT

private:
    static bool remove(PanelFixture& fixture, const FeatureRemoval::Features& features)
    {
        QString refusal;
        auto removal = FeatureRemoval::make(fixture.document(), features, refusal);
        if (removal) {
            fixture.document().undoStack().push(removal.release());
        }
        return refusal.isEmpty();
    }

    static void turn(FeatureRemoval& removal, int steps)
    {
        for (int change = 0; change < steps; ++change) {
            removal.turn(change);
        }
    }

private slots:
    void aFeatureGoesWithWhatIsInside()
    {
        PanelFixture fixture(town());
        QAbstractItemModelTester tester(&fixture.document().model());
        QAbstractItemModelTester treeTester(&fixture.document().tree());
        const QByteArray before = fixture.saved();
        const QStringList ids = idsOf(fixture.document());
        gml::AbstractFeatureType* const building = &fixture.feature("b");
        QSignalSpy removed(&fixture.document().model(), &QAbstractItemModel::rowsRemoved);
        QVERIFY(remove(fixture, {building}));
        QCOMPARE(removed.count(), 3);
        QVERIFY(!fixture.saved().contains("BuildingPart gml:id=\"part\""));
        QVERIFY(!fixture.saved().contains("gml:id=\"b\""));
        QVERIFY(fixture.saved().contains("<!--behind a-->"));
        QVERIFY(fixture.document().undoStack().undoText().contains("Building"));
        fixture.document().undoStack().undo();
        QCOMPARE(fixture.saved(), before);
        QCOMPARE(&fixture.feature("b"), building);
        QCOMPARE(idsOf(fixture.document()), ids);
        const QModelIndex index =
            fixture.document().tree().mapFromSource(fixture.document().model().index(building));
        QVERIFY(index.isValid());
        QCOMPARE(fixture.document().tree().rowCount(index), 1);
        fixture.document().undoStack().redo();
        QVERIFY(!fixture.saved().contains("gml:id=\"b\""));
        fixture.document().undoStack().undo();
        QCOMPARE(fixture.saved(), before);
    }

    void severalGoInOneStep()
    {
        PanelFixture fixture(town());
        const QByteArray before = fixture.saved();
        FeatureRemoval::Features all;
        for (int row = 1; row < fixture.document().model().rowCount(); ++row) {
            all.push_back(fixture.document().model().getFeature(row));
        }
        std::reverse(all.begin(), all.end());
        all.push_back(all.front());
        QVERIFY(remove(fixture, all));
        QCOMPARE(fixture.document().model().rowCount(), 1);
        QVERIFY(!fixture.saved().contains("Building"));
        fixture.document().undoStack().undo();
        QCOMPARE(fixture.saved(), before);
        fixture.document().undoStack().redo();
        QVERIFY(!fixture.saved().contains("Building"));
        fixture.document().undoStack().undo();
        QCOMPARE(fixture.saved(), before);
    }

    /// Wherever it is given up on the way there, it comes back.
    void aRemovalThatIsGivenUpLeavesAll()
    {
        for (int steps = 1, size = 2; steps < size; ++steps) {
            PanelFixture fixture(town());
            QAbstractItemModelTester tester(&fixture.document().tree());
            const QByteArray before = fixture.saved();
            const QStringList ids = idsOf(fixture.document());
            const auto removal = FeatureRemoval::prepare(
                fixture.document(),
                {&fixture.feature("a"), fixture.document().model().getFeature(5), &fixture.feature("b")});
            size = removal->size();
            for (int number = 0; number < steps; ++number) {
                QCOMPARE(removal->perform(number), QString());
            }
            turn(*removal, removal->changes());
            removal->finish(false);
            QCOMPARE(fixture.saved(), before);
            QCOMPARE(idsOf(fixture.document()), ids);
        }
    }

    /// The same on the way back, and on the way there again.
    void aTurnThatIsGivenUpLeavesAll()
    {
        PanelFixture fixture(town());
        const QByteArray before = fixture.saved();
        const QStringList ids = idsOf(fixture.document());
        QString refusal;
        const auto removal = FeatureRemoval::make(
            fixture.document(), {&fixture.feature("a"), fixture.document().model().getFeature(5)}, refusal);
        QVERIFY(removal != nullptr);
        const QByteArray after = fixture.saved();
        const QStringList left = idsOf(fixture.document());
        for (const bool isUndo : {true, false}) {
            for (int steps = 1; steps < removal->changes(); ++steps) {
                turn(*removal, steps);
                turn(*removal, removal->stepsBack(steps));
                removal->finish(isUndo);
                QCOMPARE(fixture.saved(), isUndo ? after : before);
                QCOMPARE(idsOf(fixture.document()), isUndo ? left : ids);
            }
            turn(*removal, removal->changes());
            removal->finish(!isUndo);
            QCOMPARE(fixture.saved(), isUndo ? before : after);
            QCOMPARE(idsOf(fixture.document()), isUndo ? ids : left);
        }
    }

    void theDocumentItselfStays()
    {
        PanelFixture fixture(town());
        QVERIFY(!remove(fixture, {fixture.document().model().getFeature(0)}));
        QCOMPARE(fixture.document().undoStack().count(), 0);
    }

    /// A relief has one component at least.
    void whatIsNeededStays()
    {
        PanelFixture fixture(documentText(relief("hill", reliefComponent("one") + reliefComponent("two"))));
        const QByteArray before = fixture.saved();
        QVERIFY(!remove(fixture, {&fixture.feature("one"), &fixture.feature("two")}));
        QCOMPARE(fixture.saved(), before);
        QVERIFY(remove(fixture, {&fixture.feature("one")}));
        QVERIFY(!remove(fixture, {&fixture.feature("two")}));
        QVERIFY(fixture.saved().contains("gml:id=\"two\""));
        QVERIFY(remove(fixture, {&fixture.feature("two"), &fixture.feature("hill")}));
        QVERIFY(!fixture.saved().contains("Relief"));
        fixture.document().undoStack().undo();
        fixture.document().undoStack().undo();
        QCOMPARE(fixture.saved(), before);
    }

    /// A record may have been changed, or be of another document.
    void aRecordOfWhatIsNotThereIsRefused()
    {
        FeatureRemoval::addMaker();
        PanelFixture fixture(town());
        const QByteArray before = fixture.saved();
        const int rows = fixture.document().model().rowCount();
        for (const int step : {-1, rows, rows + 1}) {
            const QJsonObject record{{"features", QJsonArray{QJsonArray{"", step}}}};
            QVERIFY(SlicedEdit::remake("removal", fixture.document(), record) == nullptr);
        }
        QCOMPARE(fixture.saved(), before);
    }

    void aRemovalIsRecordedAndMadeAgain()
    {
        FeatureRemoval::addMaker();
        PanelFixture fixture(town());
        QVERIFY(remove(fixture, {fixture.document().model().getFeature(5), &fixture.feature("wall")}));
        const auto* const edit = dynamic_cast<const RecordedEdit*>(fixture.document().undoStack().command(0));
        PanelFixture other(town());
        const QByteArray before = other.saved();
        auto made = SlicedEdit::remake(edit->kind(), other.document(), edit->record());
        QVERIFY(made != nullptr);
        other.document().undoStack().push(made.release());
        QCOMPARE(other.saved(), fixture.saved());
        other.document().undoStack().undo();
        QCOMPARE(other.saved(), before);
    }
};

TEST_CLASS(FeatureRemovalTest, Widgets)
#include "featureremovaltest.moc"
