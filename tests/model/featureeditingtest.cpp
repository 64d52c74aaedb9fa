#include "framework/PropertyProvider.h"
#include "gml/StringOrRefType.hxx"
#include "support/CityGMLModelFixture.h"
#include "support/Files.h"
#include "support/SignalRecorder.h"
#include "support/TestClass.h"

#include <memory>
#include <QMetaMethod>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace testsupport;

#pragma GCC diagnostic ignored "-Wdeprecated-declarations" // std::auto_ptr

using tolvik::CityGMLModel;
using tolvik::CoreProperty;
using tolvik::Model;

namespace {

/// A model that writes down, in the list of its signals, when it is marked as changed.
class MarkedModel : public OpenModel
{
public:
    MarkedModel() : recorder(this)
    {
        recorder.watch(this, QOverload<const QModelIndex&>::of(&Model::visibilityChanged),
                       "visibilityChanged");
        recorder.watch(this, QOverload<const QList<QModelIndex>&>::of(&Model::visibilityChanged),
                       "visibilityChanged");
        recorder.watch(this, &CityGMLModel::representationAboutToBeChanged, "representationAboutToBeChanged");
        recorder.watch(this, &CityGMLModel::moveToGML, "moveToGML");
    }

    using OpenModel::dirty;
    void dirty(bool changed) override
    {
        recorder.add(changed ? "dirty" : "clean");
        OpenModel::dirty(changed);
    }

    SignalRecorder recorder;
};

class Provider : public tolvik::PropertyProvider
{
public:
    void addProperties(const QModelIndex& index, CoreProperty& root) override
    {
        rows.append(index.row());
        root.getOrCreateProperty("of the host", QVariant(42));
    }

    QList<int> rows;
};

/// Puts a building into the model's document that has no row yet.
gml::AbstractFeatureType* newBuilding(CityGMLModel& model, const std::string& id)
{
    return addMember(*model.cityGML(), makeBuilding(id));
}

} // namespace

class FeatureEditingTest : public QObject
{
    Q_OBJECT

private:
    /// Every look-up answers as the rows stand.
    static void verifyLookUps(const OpenModel& model)
    {
        for (int row = 0; row < model.rowCount(); ++row) {
            gml::AbstractFeatureType* const feature = model.getFeature(row);
            QVERIFY(model.featureExists(feature));
            QCOMPARE(model.getRow(feature), row);
            QCOMPARE(model.index(feature), model.index(row, 0));
            QVERIFY(model.getProperty(model.index(row, 0)) != nullptr);
        }
    }

private slots:
    void addsARowAtTheEnd()
    {
        MarkedModel model;
        model.loadText(town(2));
        gml::AbstractFeatureType* const feature = newBuilding(model, "added");
        model.recorder.clear();
        model.addFeature(feature);
        QCOMPARE(model.recorder.take(),
                 QStringList({"rowsAboutToBeInserted - 3 3", "dirty", "rowsInserted - 3 3"}));
        QCOMPARE(model.rowCount(), 4);
        QCOMPARE(model.getFeature(3), feature);
        QCOMPARE(model.getFeature("added"), feature);
        QCOMPARE(model.states(), QString("vvvv"));
        QVERIFY(model.dirty());
        verifyLookUps(model);
    }

    void addingTwiceGivesOneRow()
    {
        MarkedModel model;
        model.loadText(town(1));
        gml::AbstractFeatureType* const feature = newBuilding(model, "added");
        QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
        model.addFeature(feature);
        model.dirty(false);
        model.recorder.clear();
        model.addFeature(feature);
        QCOMPARE(inserted.count(), 1);
        QCOMPARE(model.rowCount(), 3);
        QCOMPARE(model.recorder.take(), QStringList());
        QVERIFY(!model.dirty());
    }

    void addingNullDoesNothing()
    {
        MarkedModel model;
        model.loadText(town(1));
        model.recorder.clear();
        model.addFeature(nullptr);
        QCOMPARE(model.recorder.take(), QStringList());
        QCOMPARE(model.rowCount(), 2);
        QVERIFY(!model.dirty());
    }

    void aSecondFeatureOfAnIdentifierTakesItOver()
    {
        OpenModel model;
        model.loadText(town(2));
        gml::AbstractFeatureType* const first = model.getFeature("b1");
        bldg::BuildingType elsewhere = makeBuilding("b1");
        model.addFeature(&elsewhere);
        QCOMPARE(model.rowCount(), 4);
        QCOMPARE(model.getFeature("b1"), &elsewhere);
        QCOMPARE(model.getRow(first), 1);
        QCOMPARE(model.getRow(&elsewhere), 3);
        model.removeFeature(&elsewhere);
        QCOMPARE(model.getFeature(std::string("b1")), nullptr);
        QCOMPARE(model.getRow(first), 1);
    }

    void addedFeaturesGetIdentifiersIfAsked()
    {
        OpenModel model;
        model.loadText(town(1));
        model.setCorrectGuid(true);
        gml::AbstractFeatureType* const feature = addMember(*model.cityGML(), bldg::BuildingType());
        model.addFeature(feature);
        QVERIFY(feature->id().present());
        QCOMPARE(std::string(feature->id().get()).size(), std::size_t(22));
        QCOMPARE(model.getFeature(feature->id().get()), feature);
    }

    void appendSendsNoSignal()
    {
        MarkedModel model;
        model.loadText(town(1));
        gml::AbstractFeatureType* const feature = newBuilding(model, "appended");
        model.recorder.clear();
        model.append(feature);
        QCOMPARE(model.recorder.take(), QStringList());
        QCOMPARE(model.rowCount(), 3);
        QVERIFY(!model.dirty());
        verifyLookUps(model);
    }

    void removesTheFirstRow()
    {
        MarkedModel model;
        model.load(std::auto_ptr<core::CityModelType>(new core::CityModelType));
        gml::AbstractFeatureType* const a = newBuilding(model, "a");
        gml::AbstractFeatureType* const b = newBuilding(model, "b");
        model.dataSetChanged();
        QCOMPARE(model.rowCount(), 3);
        model.recorder.clear();
        model.removeFeature(model.cityGML());
        QCOMPARE(model.recorder.take(),
                 QStringList({"rowsAboutToBeRemoved - 0 0", "dirty", "rowsRemoved - 0 0"}));
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(model.getRow(a), 0);
        QCOMPARE(model.getRow(b), 1);
        QCOMPARE(model.index(b), model.index(1, 0));
        QCOMPARE(model.getFeature(0), a);
        QCOMPARE(model.getFeature(1), b);
        QCOMPARE(model.getRow(model.cityGML()), -1);
        verifyLookUps(model);
    }

    void removesTheLastRow()
    {
        OpenModel model;
        model.loadText(town(3));
        QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
        model.removeFeature(model.getFeature("b3"));
        QCOMPARE(removed.count(), 1);
        QCOMPARE(removed[0][1].toInt(), 3);
        QCOMPARE(model.names(), QStringList({"<unset>", "b1", "b2"}));
        QCOMPARE(model.getFeature(std::string("b3")), nullptr);
        QVERIFY(model.dirty());
        verifyLookUps(model);
    }

    void removingCarriesTheStateOfTheOtherRows()
    {
        OpenModel model;
        model.loadText(town(5));
        model.hide(model.index(1, 0));
        model.hide(model.index(4, 0));
        model.disable(model.index(3, 0));
        model.disable(model.index(5, 0));
        QCOMPARE(model.states(), QString("vhvVhV"));
        CoreProperty* const tree = model.getProperty(model.index(4, 0));
        model.removeFeature(model.getFeature("b2"));
        QCOMPARE(model.states(), QString("vhVhV"));
        QCOMPARE(model.names(), QStringList({"<unset>", "b1", "b3", "b4", "b5"}));
        QCOMPARE(model.getProperty(model.index(3, 0)), tree);
        QCOMPARE(tree->referenceCount(), 1);
        verifyLookUps(model);
    }

    void slotsBeforeARemovalSeeTheCompleteModel()
    {
        OpenModel model;
        model.loadText(town(3));
        gml::AbstractFeatureType* const feature = model.getFeature("b2");
        int seen = 0;
        connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, this, [&] {
            ++seen;
            QCOMPARE(model.rowCount(), 4);
            QCOMPARE(model.getFeature("b2"), feature);
            QCOMPARE(model.getRow(feature), 2);
            QCOMPARE(model.data(model.index(2, 0)), QVariant("b2"));
            QVERIFY(model.getProperty(model.index(2, 0)) != nullptr);
            QVERIFY(!model.dirty());
        });
        connect(&model, &QAbstractItemModel::rowsRemoved, this, [&] {
            ++seen;
            QCOMPARE(model.rowCount(), 3);
            QCOMPARE(model.getRow(feature), -1);
            QVERIFY(model.dirty());
        });
        model.removeFeature(feature);
        QCOMPARE(seen, 2);
    }

    void removingGivesThePropertyTreeUp()
    {
        OpenModel model;
        model.loadText(town(2));
        const Fondo::RefPtr<CoreProperty> tree = model.getProperty(model.index(1, 0));
        QCOMPARE(tree->referenceCount(), 2);
        int referencesAtTheEnd = 0;
        connect(&model, &QAbstractItemModel::rowsRemoved, this,
                [&] { referencesAtTheEnd = tree->referenceCount(); });
        model.removeFeature(model.getFeature("b1"));
        QCOMPARE(referencesAtTheEnd, 1);
    }

    void removingKeepsTheRowsBelow()
    {
        OpenModel model;
        model.loadText(
            cityModel(building("whole", "<bldg:consistsOfBuildingPart><bldg:BuildingPart gml:id=\"part\"/>"
                                        "</bldg:consistsOfBuildingPart>")));
        QCOMPARE(model.rowCount(), 3);
        gml::AbstractFeatureType* const part = model.getFeature("part");
        model.removeFeature(model.getFeature("whole"));
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(model.getRow(part), 1);
        QVERIFY(!model.featureExists(nullptr));
    }

    void removingAFeatureWithoutIdentifierDropsTheSharedKey()
    {
        OpenModel model;
        model.loadText(cityModel(building("") + building("b") + building("")));
        gml::AbstractFeatureType* const last = model.getFeature(3);
        QCOMPARE(model.getFeature("truite"), last);
        model.removeFeature(model.getFeature(1));
        QCOMPARE(model.getFeature(std::string("truite")), nullptr);
        QCOMPARE(model.getRow(last), 2);
        QCOMPARE(model.getRow(model.cityGML()), 0);
        verifyLookUps(model);
    }

    void aRemovedFeatureIsSavedAllTheSame()
    {
        QTemporaryDir directory;
        const QString path = directory.filePath("town.gml");
        QVERIFY(writeFile(path, town(2)));
        OpenModel model;
        model.load(path);
        gml::AbstractFeatureType* const feature = model.getFeature("b1");
        model.removeFeature(feature);
        QCOMPARE(model.rowCount(), 2);
        QVERIFY(model.save(true));
        OpenModel again;
        again.load(path);
        QCOMPARE(again.names(), QStringList({"<unset>", "b1", "b2"}));
        model.dataSetChanged();
        QCOMPARE(model.getRow(feature), 1);
    }

    void addingBackPutsTheRowLast()
    {
        OpenModel model;
        model.loadText(town(3));
        gml::AbstractFeatureType* const feature = model.getFeature("b1");
        model.removeFeature(feature);
        model.addFeature(feature);
        QCOMPARE(model.names(), QStringList({"<unset>", "b2", "b3", "b1"}));
        verifyLookUps(model);
    }

    void removingWhatIsNoRowDoesNothing()
    {
        MarkedModel model;
        model.loadText(town(2));
        gml::AbstractFeatureType* const gone = model.getFeature("b2");
        model.removeFeature(gone);
        model.dirty(false);
        model.recorder.clear();
        bldg::BuildingType stranger = makeBuilding("b1");
        for (gml::AbstractFeatureType* const feature :
             {gone, static_cast<gml::AbstractFeatureType*>(&stranger),
              static_cast<gml::AbstractFeatureType*>(nullptr)}) {
            model.removeFeature(feature);
        }
        QCOMPARE(model.recorder.take(), QStringList());
        QCOMPARE(model.names(), QStringList({"<unset>", "b1"}));
        QVERIFY(model.getFeature("b1") != nullptr);
        QVERIFY(!model.dirty());
        verifyLookUps(model);

        OpenModel empty;
        empty.removeFeature(nullptr);
        QCOMPARE(empty.rowCount(), 0);
    }

    void aFeatureThatStandsTwiceLosesBothRows()
    {
        // One row is announced and two go, which the item model tester would not accept: a model without it.
        class Plain : public CityGMLModel
        {
        public:
            Plain() : CityGMLModel(nullptr, nullptr) {}
        };
        Plain model;
        std::istringstream stream(town(3).toStdString());
        model.load(stream);
        gml::AbstractFeatureType* const feature = model.getFeature("b1");
        model.append(feature);
        QCOMPARE(model.rowCount(), 5);
        QCOMPARE(model.getRow(feature), 4);
        QList<int> announced;
        connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
                [&](const QModelIndex& /*parent*/, int first, int last) { announced << first << last; });
        model.removeFeature(feature);
        QCOMPARE(announced, QList<int>({4, 4}));
        QCOMPARE(model.rowCount(), 3);
        QCOMPARE(model.getRow(feature), -1);
    }

    void resetOfAVisibleRowHidesIt()
    {
        MarkedModel model;
        model.loadText(town(2));
        QList<gml::AbstractFeatureType*> changed;
        connect(&model, &CityGMLModel::representationAboutToBeChanged, this,
                [&](gml::AbstractFeatureType* feature) { changed.append(feature); });
        model.recorder.clear();
        model.reset(model.index(2, 1));
        QCOMPARE(model.recorder.take(), QStringList({"dataChanged 2:0 2:0 []", "visibilityChanged 2:1",
                                                     "representationAboutToBeChanged set"}));
        QCOMPARE(model.states(), QString("vvh"));
        QCOMPARE(changed, QList<gml::AbstractFeatureType*>({model.getFeature("b2")}));
        QVERIFY(!model.dirty());

        model.reset(model.index(2, 0));
        QCOMPARE(model.recorder.take(), QStringList({"representationAboutToBeChanged set"}));
        QCOMPARE(model.states(), QString("vvh"));
        QCOMPARE(changed.size(), 2);

        model.reset(QModelIndex());
        QCOMPARE(model.recorder.take(), QStringList());
    }

    void zoomDoesNothing()
    {
        MarkedModel model;
        model.loadText(town(1));
        model.recorder.clear();
        model.zoom(model.index(1, 0));
        model.zoom(QModelIndex());
        QCOMPARE(model.recorder.take(), QStringList());
        QCOMPARE(model.states(), QString("vv"));
    }

    void moveToGMLIsForOthersToSend()
    {
        MarkedModel model;
        model.loadText(town(1));
        model.recorder.clear();
        emit model.moveToGML(model.index(1, 0), 2.5);
        QCOMPARE(model.recorder.take(), QStringList({"moveToGML 1:0 2.5"}));
        const QMetaObject& meta = CityGMLModel::staticMetaObject;
        QCOMPARE(meta.method(meta.methodOffset() + 1).methodSignature(),
                 QByteArray("moveToGML(QModelIndex,double)"));
    }

    void updateDataAnnouncesWhateverItGets()
    {
        MarkedModel model;
        model.loadText(town(1));
        model.recorder.clear();
        model.updateData(model.index(1, 1));
        QCOMPARE(model.recorder.take(), QStringList({"dataChanged 1:1 1:1 []"}));
        QVERIFY(!model.dirty());

        // The item model tester would not accept the announcement of nothing: a model without it.
        CityGMLModel plain(nullptr, nullptr);
        SignalRecorder recorder(&plain);
        plain.updateData(QModelIndex());
        QCOMPARE(recorder.take(), QStringList({"dataChanged - - []"}));
    }

    void propertyChangedWithoutRebuilding()
    {
        MarkedModel model;
        model.loadText(town(1));
        CoreProperty* const tree = model.getProperty(model.index(1, 0));
        model.recorder.clear();
        model.propertyChanged(model.index(1, 1), false);
        QCOMPARE(model.recorder.take(), QStringList({"dirty", "dataChanged 1:1 1:1 [256]"}));
        QCOMPARE(model.getProperty(model.index(1, 0)), tree);
        QVERIFY(model.dirty());
    }

    void propertyChangedRebuilds()
    {
        MarkedModel model;
        model.loadText(town(2));
        const Fondo::RefPtr<Provider> provider = new Provider;
        model.addPropertyProvider(provider.get());
        const QModelIndex index = model.index(1, 0);
        const Fondo::RefPtr<CoreProperty> before = model.getProperty(index);
        CoreProperty* const other = model.getProperty(model.index(2, 0));
        model.recorder.clear();
        model.propertyChanged(index, true);
        QCOMPARE(model.recorder.take(), QStringList({"dirty", "dataChanged 1:0 1:0 [256]"}));
        CoreProperty* const after = model.getProperty(index);
        QVERIFY(after != nullptr && before != after);
        QCOMPARE(after->referenceCount(), 1);
        QCOMPARE(before->referenceCount(), 1);
        QCOMPARE(model.getProperty(model.index(2, 0)), other);
        QCOMPARE(provider->rows, QList<int>({1, 2, 1}));
        QVERIFY(after->getProperty("of the host", false) != nullptr);
    }

    void rebuildingShowsWhatTheDocumentHasThen()
    {
        OpenModel model;
        model.loadText(town(1));
        const QModelIndex index = model.index(1, 0);
        const auto description = [&] {
            return model.getProperty(index)->getProperty("Fields", false)->getProperty("Description", false);
        };
        QVERIFY(description() == nullptr);
        model.getFeature(1)->description(gml::StringOrRefType("large"));
        model.propertyChanged(index, false);
        QVERIFY(description() == nullptr);
        model.propertyChanged(index, true);
        QVERIFY(description() != nullptr);
        QCOMPARE(description()->value(), QVariant("large"));
        // Attributes that are absent have no property.
        QVERIFY(model.getProperty(index)->getProperty("Fields", false)->getProperty("CreationDate", false) ==
                nullptr);
        model.getFeature(1)->description().reset();
        model.propertyChanged(index, true);
        QVERIFY(description() == nullptr);
    }

    void propertyChangedOfAnInvalidIndexDoesNothing()
    {
        MarkedModel model;
        model.loadText(town(1));
        model.recorder.clear();
        model.propertyChanged(QModelIndex(), true);
        model.propertyChanged(QModelIndex(), false);
        QCOMPARE(model.recorder.take(), QStringList());
        QVERIFY(!model.dirty());
    }
};

TEST_CLASS(FeatureEditingTest, Widgets)
#include "featureeditingtest.moc"
