#include "framework/ModelInterface.h"
#include "gml/FeaturePropertyType.hxx"
#include "support/CityGMLModelFixture.h"
#include "support/OperationRecorder.h"
#include "support/SignalRecorder.h"
#include "support/TestClass.h"

#include <atomic>
#include <limits>
#include <memory>
#include <QMetaMethod>
#include <QTranslator>
#include <QtTest>
#include <streambuf>

using namespace testsupport;

#pragma GCC diagnostic ignored "-Wdeprecated-declarations" // std::auto_ptr

using tolvik::CityGMLModel;

namespace {

/// A document that tells when it is deleted.
class WatchedDocument : public core::CityModelType
{
public:
    explicit WatchedDocument(std::atomic<int>& deletions) : deletions(deletions) {}
    ~WatchedDocument() override { ++deletions; }

private:
    std::atomic<int>& deletions;
};

std::auto_ptr<core::CityModelType> documentOf(const QStringList& ids)
{
    std::auto_ptr<core::CityModelType> document(new core::CityModelType);
    for (const QString& id : ids) {
        addMember(*document, makeBuilding(id.toStdString()));
    }
    return document;
}

/// Translates every text to its context and itself.
class EchoTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char* /*disambiguation*/,
                      int /*n*/) const override
    {
        return QString("%1/%2").arg(context, text);
    }
};

/// Asks for the rows of features when a build of the rows begins.
class EarlyListener : public OperationRecorder
{
public:
    explicit EarlyListener(const CityGMLModel& model) : model(model)
    {
        for (int row = 0; row < model.rowCount(); ++row) {
            features.append(model.getFeature(row));
        }
    }

    void begin(const QString& /*title*/, long long /*totalSteps*/, bool /*blocking*/, int /*level*/) override
    {
        for (gml::AbstractFeatureType* feature : qAsConst(features)) {
            rows.append(model.getRow(feature));
            areDisabled.append(model.isDisabled(feature));
        }
    }

    QVector<int> rows;
    QVector<bool> areDisabled;

private:
    const CityGMLModel& model;
    QVector<gml::AbstractFeatureType*> features;
};

/// An input that breaks with an exception that has nothing to do with the schema library.
class BrokenInput : public std::streambuf
{
public:
    struct Broken
    {
    };

protected:
    int_type underflow() override { throw Broken(); }
};

} // namespace

class CityGMLModelTest : public QObject
{
    Q_OBJECT

private slots:
    void metaObject()
    {
        const QMetaObject& meta = CityGMLModel::staticMetaObject;
        QCOMPARE(meta.className(), "tolvik::CityGMLModel");
        QCOMPARE(meta.superClass()->className(), "tolvik::Model");
        QCOMPARE(meta.superClass()->superClass()->className(), "tolvik::CoreModel");
        QCOMPARE(meta.superClass()->superClass()->superClass()->className(), "QAbstractListModel");
        QStringList own;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            QCOMPARE(meta.method(i).methodType(), QMetaMethod::Signal);
            own.append(meta.method(i).name());
        }
        QCOMPARE(own, QStringList({"representationAboutToBeChanged", "moveToGML"}));

        OpenModel model;
        for (const char* name : {"tolvik::CityGMLModel", "tolvik::Model", "tolvik::CoreModel"}) {
            QVERIFY(model.qt_metacast(name) != nullptr);
        }
        QVERIFY(model.qt_metacast("tolvik::CityGMLProxyModel") == nullptr);
    }

    void constructorPassesPluginAndParent()
    {
        tolvik::ModelInterface plugin;
        QObject parent;
        CityGMLModel model(&plugin, &parent);
        QCOMPARE(model.getModelPlugin(), &plugin);
        QCOMPARE(model.parent(), &parent);
    }

    void withoutADocument()
    {
        OpenModel model;
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(model.columnCount(), 2);
        QCOMPARE(model.data(QModelIndex(), Qt::UserRole), QVariant());
        QCOMPARE(model.headerData(0, Qt::Horizontal), QVariant("Name"));
        QCOMPARE(model.headerData(1, Qt::Horizontal), QVariant("Type"));
        QCOMPARE(model.headerData(2, Qt::Horizontal), QVariant("unknown"));
        QCOMPARE(model.cityGML(), nullptr);
        QCOMPARE(model.getFeature(0), nullptr);
        QCOMPARE(model.getFeature(QModelIndex()), nullptr);
        QCOMPARE(model.getFeature(std::string("b1")), nullptr);
        QCOMPARE(model.getRow(nullptr), -1);
        QCOMPARE(model.index(0, 0), QModelIndex());
        QVERIFY(!model.dirty());
        QVERIFY(model.getFileName().isEmpty());
        QCOMPARE(model.type(), QString("CityGML 2.0"));

        model.dataSetChanged();
        QCOMPARE(model.rowCount(), 0);

        bldg::BuildingType building;
        model.append(&building);
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(model.index(0, 0), QModelIndex());
        QCOMPARE(model.getFeature(0), nullptr);
    }

    void rowsAreTheFeaturesInDocumentOrder()
    {
        OpenModel model;
        model.loadText(
            cityModel(building("whole", "<gml:name>Whole</gml:name>"
                                        "<bldg:consistsOfBuildingPart><bldg:BuildingPart gml:id=\"part\">"
                                        "<bldg:boundedBy><bldg:RoofSurface gml:id=\"roof\"/></bldg:boundedBy>"
                                        "</bldg:BuildingPart></bldg:consistsOfBuildingPart>") +
                      namedBuilding("other", "Other")));
        QStringList rows;
        for (int row = 0; row < model.rowCount(); ++row) {
            rows.append(model.data(model.index(row, 1)).toString());
            QCOMPARE(model.getRow(model.getFeature(row)), row);
        }
        QCOMPARE(rows, QStringList({"CityModel", "Building", "BuildingPart", "RoofSurface", "Building"}));
        QCOMPARE(model.names(), QStringList({"<unset>", "Whole", "<unset>", "<unset>", "Other"}));
        QCOMPARE(model.getFeature(0), model.cityGML());
        QCOMPARE(model.getFeature("roof"), model.getFeature(3));
    }

    void indexes()
    {
        OpenModel model;
        model.loadText(town(19));
        QCOMPARE(model.rowCount(), 20);
        const QModelIndex index = model.index(17, 5, QModelIndex());
        QVERIFY(index.isValid());
        QCOMPARE(index.row(), 17);
        QCOMPARE(index.column(), 5);
        QCOMPARE(index.internalPointer(), static_cast<void*>(model.getFeature(17)));

        QCOMPARE(model.index(20, 0), QModelIndex());
        QCOMPARE(model.index(-1, 0), QModelIndex());
        QCOMPARE(model.index(0, 0, index), QModelIndex());
        QCOMPARE(model.rowCount(index), 0);
        QCOMPARE(model.columnCount(index), 2);
        QCOMPARE(model.parent(index), QModelIndex());
        QVERIFY(model.hasRepresentation(index));
        QVERIFY(!model.hasRepresentation(QModelIndex()));
    }

    void lookUpOfFeatures()
    {
        OpenModel model;
        model.loadText(town(3));
        gml::AbstractFeatureType* const second = model.getFeature("b2");
        QCOMPARE(model.getRow(second), 2);
        QCOMPARE(model.index(second), model.index(2, 0));
        const gml::AbstractFeatureType* const constant = second;
        QCOMPARE(model.index(constant), model.index(2, 0));
        QCOMPARE(model.getFeature(model.index(2, 1)), second);

        bldg::BuildingType stranger;
        QCOMPARE(model.getRow(&stranger), -1);
        QCOMPARE(model.index(&stranger), QModelIndex());
        QCOMPARE(model.index(static_cast<gml::AbstractFeatureType*>(nullptr)), QModelIndex());
        QCOMPARE(model.getRow(nullptr), -1);
        QCOMPARE(model.getFeature(-1), nullptr);
        QCOMPARE(model.getFeature(4), nullptr);
        QCOMPARE(model.getFeature(QModelIndex()), nullptr);
        QCOMPARE(model.getFeature(std::string("b4")), nullptr);
        QCOMPARE(model.getFeature(std::string()), nullptr);
    }

    void displayedData()
    {
        OpenModel model;
        model.loadText(
            cityModel(building("b", "<gml:name>Räthaus</gml:name><gml:name>Town hall</gml:name>")));
        for (int role : {Qt::DisplayRole, Qt::EditRole}) {
            QCOMPARE(model.data(model.index(1, 0), role), QVariant(QString::fromUtf8("Räthaus")));
            QCOMPARE(model.data(model.index(1, 1), role), QVariant("Building"));
            QCOMPARE(model.data(model.index(1, 2), role), QVariant());
            QCOMPARE(model.data(model.index(0, 0), role), QVariant("<unset>"));
        }
        for (int role :
             {int(Qt::DecorationRole), int(Qt::ToolTipRole), int(Qt::UserRole), Qt::UserRole + 1}) {
            QCOMPARE(model.data(model.index(1, 0), role), QVariant());
        }
    }

    void checkStateTellsVisibility()
    {
        OpenModel model;
        model.loadText(town(1));
        const QModelIndex index = model.index(1, 0);
        QCOMPARE(model.data(index, Qt::CheckStateRole), QVariant(2));
        QCOMPARE(model.data(index, Qt::CheckStateRole).type(), QVariant::Int);
        model.hide(index);
        QCOMPARE(model.data(index, Qt::CheckStateRole), QVariant(0));
        QCOMPARE(model.data(model.index(0, 0), Qt::CheckStateRole), QVariant(2));
        QCOMPARE(model.data(model.index(1, 1), Qt::CheckStateRole), QVariant());
    }

    void fileNameIsDataOfTheInvalidIndex()
    {
        OpenModel model;
        model.setFileName("town.gml");
        QCOMPARE(model.data(QModelIndex(), Qt::UserRole), QVariant());
        model.loadText(town(1));
        QCOMPARE(model.data(QModelIndex(), Qt::UserRole), QVariant("town.gml"));
        QCOMPARE(model.data(QModelIndex(), Qt::DisplayRole), QVariant());
        QCOMPARE(model.data(QModelIndex(), Qt::CheckStateRole), QVariant());
    }

    void renaming()
    {
        OpenModel model;
        model.loadText(
            cityModel(building("b1", "<gml:name codeSpace=\"urn:c\">One</gml:name><gml:name>Uno</gml:name>") +
                      building("b2")));
        SignalRecorder recorder(&model);

        QVERIFY(model.setData(model.index(1, 0), "First", Qt::EditRole));
        QVERIFY(model.setData(model.index(2, 0), 2, Qt::DisplayRole));
        QCOMPARE(recorder.take(), QStringList({"dataChanged 1:0 1:0 []", "dataChanged 2:0 2:0 []"}));
        QCOMPARE(model.names(), QStringList({"<unset>", "First", "2"}));

        const auto& names = model.getFeature("b1")->name();
        QCOMPARE(names.size(), std::size_t(2));
        QVERIFY(!names[0].codeSpace().present());
        QCOMPARE(QString::fromStdString(names[1]), QString("Uno"));
        QCOMPARE(model.getFeature("b2")->name().size(), std::size_t(1));
        QVERIFY(!model.dirty());
    }

    void refusedEdits()
    {
        OpenModel model;
        model.loadText(town(1));
        SignalRecorder recorder(&model);
        QVERIFY(!model.setData(QModelIndex(), "x", Qt::EditRole));
        QVERIFY(!model.setData(model.index(1, 0), 0, Qt::CheckStateRole));
        QVERIFY(!model.setData(model.index(1, 0), "x", Qt::UserRole));
        QVERIFY(!model.setData(model.index(1, 1), "x", Qt::EditRole));
        QVERIFY(!model.setHeaderData(0, Qt::Horizontal, "x", Qt::EditRole));
        QVERIFY(!model.setHeaderData(0, Qt::Horizontal, "x", Qt::DisplayRole));
        QCOMPARE(recorder.take(), QStringList());
        QCOMPARE(model.names(), QStringList({"<unset>", "b1"}));
        QCOMPARE(model.headerData(0, Qt::Horizontal), QVariant("Name"));
    }

    void headers()
    {
        OpenModel model;
        QCOMPARE(model.headerData(-1, Qt::Horizontal), QVariant("unknown"));
        QCOMPARE(model.headerData(0, Qt::Horizontal, Qt::EditRole), QVariant());
        QCOMPARE(model.headerData(0, Qt::Vertical), QVariant());
    }

    void flags()
    {
        OpenModel model;
        model.loadText(town(2));
        QCOMPARE(static_cast<int>(model.flags(model.index(1, 0))), 33);
        QCOMPARE(static_cast<int>(model.flags(model.index(1, 1))), 33);
        QCOMPARE(model.flags(QModelIndex()), Qt::ItemFlags(Qt::NoItemFlags));
        model.disable(model.index(1, 0));
        QCOMPARE(model.flags(model.index(1, 1)), Qt::ItemFlags(Qt::NoItemFlags));
        QCOMPARE(static_cast<int>(model.flags(model.index(2, 0))), 33);
        QCOMPARE(model.data(model.index(1, 0)), QVariant("b1"));
    }

    void textsAreTranslated()
    {
        EchoTranslator translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        OpenModel model;
        OperationRecorder progress;
        model.loadText(cityModel(building("b")));
        QCOMPARE(model.data(model.index(1, 0)), QVariant("tolvik::CityGMLModel/<unset>"));
        QCOMPARE(model.headerData(0, Qt::Horizontal), QVariant("tolvik::CityGMLModel/Name"));
        QCOMPARE(model.headerData(1, Qt::Horizontal), QVariant("tolvik::CityGMLModel/Type"));
        QCOMPARE(model.headerData(2, Qt::Horizontal), QVariant("tolvik::CityGMLModel/unknown"));
        QCOMPARE(progress.lines,
                 QStringList({"begin tolvik::CityGMLModel/Building Model 2 blocking 0", "end 0"}));
        QCOMPARE(model.type(), QString("CityGML 2.0"));
        QCoreApplication::removeTranslator(&translator);
    }

    void featuresWithoutAnIdentifierShareAKey()
    {
        OpenModel model;
        model.loadText(
            cityModel(namedBuilding("", "first") + namedBuilding("b", "named") + namedBuilding("", "last")));
        QCOMPARE(model.names(), QStringList({"<unset>", "first", "named", "last"}));
        QCOMPARE(model.getFeature("truite"), model.getFeature(3));
        for (int row = 0; row < 4; ++row) {
            QCOMPARE(model.getRow(model.getFeature(row)), row);
            QCOMPARE(model.index(model.getFeature(row)), model.index(row, 0));
        }
        QCOMPARE(model.createFeatureID(), std::string("truite"));
        QCOMPARE(model.getFeatureID(model.getFeature(1)), std::string("truite"));
        QCOMPARE(model.getFeatureID(model.getFeature(2)), std::string("b"));
        QVERIFY(!model.getFeature(1)->id().present());
    }

    void missingIdentifiersAreGenerated()
    {
        const QByteArray document = cityModel(building("") + building("b") + building(""));
        OpenModel model;
        model.loadText(document);
        QVERIFY(!model.dirty());
        QVERIFY(!model.getFeature(1)->id().present());

        // Rows that are there stay as they are.
        model.setCorrectGuid(true);
        QVERIFY(!model.getFeature(1)->id().present());
        QVERIFY(!model.dirty());

        model.dataSetChanged();
        QVERIFY(model.dirty());
        QSet<QString> ids;
        for (int row : {0, 1, 3}) {
            const std::string id = model.getFeature(row)->id().get();
            QCOMPARE(id.size(), std::size_t(22));
            QCOMPARE(model.getFeature(id), model.getFeature(row));
            ids.insert(QString::fromStdString(id));
        }
        QCOMPARE(ids.size(), 3);
        QCOMPARE(QString::fromStdString(model.getFeature(2)->id().get()), QString("b"));
        QCOMPARE(model.getFeature("truite"), nullptr);

        OpenModel fresh;
        fresh.setCorrectGuid(true);
        fresh.loadText(document);
        QVERIFY(fresh.dirty());
        QVERIFY(fresh.getFeature(1)->id().present());
        OpenModel complete;
        complete.setCorrectGuid(true);
        complete.loadText(town(2).replace("<CityModel", "<CityModel gml:id=\"c\""));
        QCOMPARE(complete.rowCount(), 3);
        QVERIFY(!complete.dirty());
    }

    void everyRowHasAPropertyTree()
    {
        OpenModel model;
        model.loadText(town(2));
        for (int row = 0; row < 3; ++row) {
            tolvik::CoreProperty* const root = model.getProperty(model.index(row, 0));
            if (root == nullptr) {
                QFAIL("no property tree");
            }
            QVERIFY(root->name().isEmpty());
            QCOMPARE(root->value(), QVariant());
            QCOMPARE(root->referenceCount(), 1);
        }
        QVERIFY(model.getProperty(model.index(0, 0)) != model.getProperty(model.index(1, 0)));
    }

    void loadingSendsOneReset()
    {
        ModelLog log;
        OpenModel model;
        SignalRecorder recorder(&model);
        QList<int> rowsSeen;
        connect(&model, &QAbstractItemModel::modelAboutToBeReset, this,
                [&] { rowsSeen.append(model.rowCount()); });
        connect(&model, &QAbstractItemModel::modelReset, this, [&] { rowsSeen.append(model.rowCount()); });
        model.loadText(town(2));
        QCOMPARE(recorder.take(), resetSignals);
        model.loadText(town(4));
        QCOMPARE(recorder.take(), resetSignals);
        model.loadText("nonsense");
        QCOMPARE(recorder.take(), resetSignals);
        model.dataSetChanged();
        QCOMPARE(recorder.take(), resetSignals);
        QCOMPARE(rowsSeen, QList<int>({0, 3, 3, 5, 5, 5, 5, 5}));
    }

    void rebuildingForgetsTheStateOfRows()
    {
        OpenModel model;
        model.loadText(town(2));
        model.hide(model.index(1, 0));
        model.disable(model.index(2, 0));
        QCOMPARE(model.states(), QString("vhV"));
        model.dataSetChanged();
        QCOMPARE(model.states(), QString("vvv"));
        QCOMPARE(model.names(), QStringList({"<unset>", "b1", "b2"}));
    }

    void rebuildingFollowsTheDocument()
    {
        OpenModel model;
        model.loadText(town(1));
        addMember(*model.cityGML(), makeBuilding("added"));
        QCOMPARE(model.rowCount(), 2);
        model.dataSetChanged();
        QCOMPARE(model.rowCount(), 3);
        QCOMPARE(model.getRow(model.getFeature("added")), 2);
    }

    void featuresHaveNoRowBeforeTheirTurn()
    {
        OpenModel model;
        model.loadText(town(2));
        EarlyListener listener(model);
        model.dataSetChanged();
        QCOMPARE(listener.rows, QVector<int>(3, -1));
        QCOMPARE(listener.areDisabled, QVector<bool>(3, true));
        QCOMPARE(model.getRow(model.getFeature(2)), 2);
    }

    void progressOfBuilding()
    {
        OpenModel model;
        OperationRecorder progress;
        model.loadText(town(4));
        QCOMPARE(progress.lines, QStringList({"begin Building Model 5 blocking 0", "end 0"}));
        progress.lines.clear();
        OpenModel empty;
        empty.dataSetChanged();
        QCOMPARE(progress.lines, QStringList());
    }

    void readyDocuments()
    {
        OpenModel model;
        model.setFileName("kept.gml");
        SignalRecorder recorder(&model);
        model.load(documentOf({"a", "b"}));
        QCOMPARE(recorder.take(), resetSignals);
        QCOMPARE(model.rowCount(), 3);
        QCOMPARE(model.getRow(model.getFeature("b")), 2);
        QCOMPARE(model.getFileName(), QString("kept.gml"));
        QVERIFY(!model.dirty());

        model.load(std::auto_ptr<core::CityModelType>());
        QCOMPARE(recorder.take(), resetSignals);
        QCOMPARE(model.cityGML(), nullptr);
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(model.data(QModelIndex(), Qt::UserRole), QVariant());
    }

    void theModelOwnsItsDocument()
    {
        ModelLog log;
        std::atomic<int> deletions{0};
        {
            OpenModel model;
            auto* const first = new WatchedDocument(deletions);
            model.load(std::auto_ptr<core::CityModelType>(first));
            QCOMPARE(model.cityGML(), first);
            model.load(std::auto_ptr<core::CityModelType>(first));
            QCOMPARE(deletions.load(), 0);
            QCOMPARE(model.rowCount(), 1);
            model.load(std::auto_ptr<core::CityModelType>(new WatchedDocument(deletions)));
            QCOMPARE(deletions.load(), 1);
            model.loadText("no document");
            QCOMPARE(deletions.load(), 1);
            model.loadText(town(1));
            QCOMPARE(deletions.load(), 2);
            model.load(std::auto_ptr<core::CityModelType>(new WatchedDocument(deletions)));
        }
        QCOMPARE(deletions.load(), 3);
    }

    /// A large one ends in another thread.
    void theModelOwnsALargeDocument()
    {
        std::atomic<int> deletions{0};
        OpenModel model;
        auto* const large = new WatchedDocument(deletions);
        large->featureMember().resize(1000);
        model.load(std::auto_ptr<core::CityModelType>(large));
        model.loadText(town(1));
        QTRY_COMPARE(deletions.load(), 1);
        QCOMPARE(model.rowCount(), 2);
    }

    void malformedFirstDocument()
    {
        ModelLog log;
        OpenModel model;
        SignalRecorder recorder(&model);
        model.loadText("<CityModel");
        QCOMPARE(recorder.take(), resetSignals);
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(model.cityGML(), nullptr);
        const QStringList lines = log.take();
        QCOMPARE(lines.size(), 1);
        QVERIFY2(QRegularExpression("^ERROR Exception caught: .+ --> .+$").match(lines[0]).hasMatch(),
                 qPrintable(lines[0]));
        QVERIFY2(log.file().startsWith("UI/Models/CityGMLModel/CityGMLModel"), qPrintable(log.file()));
    }

    void malformedLaterDocument()
    {
        ModelLog log;
        OpenModel model;
        model.loadText(town(2));
        model.hide(model.index(1, 0));
        core::CityModelType* const document = model.cityGML();
        gml::AbstractFeatureType* const feature = model.getFeature(2);
        model.loadText(town(5).chopped(20));
        QCOMPARE(model.cityGML(), document);
        QCOMPARE(model.getFeature(2), feature);
        QCOMPARE(model.names(), QStringList({"<unset>", "b1", "b2"}));
        QCOMPARE(model.states(), QString("vvv"));
        QCOMPARE(log.take().size(), 1);
    }

    void duplicateIdentifiersAreRefused()
    {
        ModelLog log;
        OpenModel model;
        model.loadText(cityModel(building("twin") + building("twin")));
        QCOMPARE(model.rowCount(), 0);
        const QStringList lines = log.take();
        QCOMPARE(lines.size(), 1);
        QVERIFY2(lines[0].startsWith("ERROR Exception caught: ID already exist --> "), qPrintable(lines[0]));
        QVERIFY2(lines[0].contains("ID 'twin' already exist"), qPrintable(lines[0]));
    }

    void errorsBelowTheLogLevelAreNotLogged()
    {
        ModelLog log;
        log4cplus::Logger logger = log4cplus::Logger::getInstance("tolvik.UI.Models.CityGMLModel");
        const log4cplus::LogLevel level = logger.getLogLevel();
        logger.setLogLevel(log4cplus::FATAL_LOG_LEVEL);
        OpenModel model;
        model.loadText("nonsense");
        logger.setLogLevel(level);
        QCOMPARE(log.take(), QStringList());
    }

    void foreignExceptionsPass()
    {
        ModelLog log;
        OpenModel model;
        model.loadText(town(2));
        SignalRecorder recorder(&model);
        BrokenInput input;
        std::istream stream(&input);
        stream.exceptions(std::ios_base::badbit);
        bool passed = false;
        try {
            model.load(stream);
        } catch (const BrokenInput::Broken&) {
            passed = true;
        }
        QVERIFY(passed);
        QCOMPARE(recorder.take(), QStringList({"modelAboutToBeReset"}));
        QCOMPARE(model.rowCount(), 0);
        QVERIFY(model.cityGML() != nullptr);
        QCOMPARE(log.take(), QStringList());
    }

    void clearingKeepsTheDocument()
    {
        OpenModel model;
        model.loadText(town(2));
        const Fondo::RefPtr<tolvik::CoreProperty> tree = model.getProperty(model.index(1, 0));
        SignalRecorder recorder(&model);
        model.clearModel();
        QCOMPARE(recorder.take(), QStringList());
        QCOMPARE(tree->referenceCount(), 1);
        QCOMPARE(model.rowCount(), 0);
        QVERIFY(model.cityGML() != nullptr);
        QCOMPARE(model.getFeature(std::string("b1")), nullptr);
        QCOMPARE(model.getRow(model.cityGML()), -1);
        model.dataSetChanged();
        QCOMPARE(model.rowCount(), 3);
    }

    void lookUpsGoThroughTheVirtualOperations()
    {
        class Swapped : public OpenModel
        {
        public:
            gml::AbstractFeatureType* getFeature(int row) const override
            {
                return CityGMLModel::getFeature(row == 1 ? 2 : row);
            }
            using CityGMLModel::getFeature;
            bool isVisible(const QModelIndex& /*index*/) const override { return false; }
        };
        Swapped model;
        model.loadText(town(2));
        QCOMPARE(model.names(), QStringList({"<unset>", "b2", "b2"}));
        QCOMPARE(model.getFeature(model.index(1, 0)), model.getFeature(2));
        QCOMPARE(model.data(model.index(1, 0), Qt::CheckStateRole), QVariant(0));
    }

    void loadingRebuildsThroughTheVirtualOperation()
    {
        ModelLog log;
        class Counted : public OpenModel
        {
        public:
            int rebuilds = 0;

        protected:
            void doDataSetChanged() override
            {
                ++rebuilds;
                CityGMLModel::doDataSetChanged();
            }
        };
        Counted model;
        model.loadText(town(1));
        model.loadText("nonsense");
        model.load(documentOf({"a"}));
        model.dataSetChanged();
        QCOMPARE(model.rebuilds, 4);
    }
};

TEST_CLASS(CityGMLModelTest, Widgets)
#include "citygmlmodeltest.moc"
