// A class derived from the model that keeps visibility and the mark of a change in its own way: the model
// goes through its operations wherever it asks or tells.

#include "support/CityGMLModelFixture.h"
#include "support/Files.h"
#include "support/OperationRecorder.h"
#include "support/SignalRecorder.h"
#include "support/TestClass.h"

#include <chrono>
#include <QBuffer>
#include <QTemporaryDir>
#include <QtTest>
#include <stdexcept>
#include <thread>

using namespace testsupport;

#pragma GCC diagnostic ignored "-Wdeprecated-declarations" // std::auto_ptr, which the schema classes speak

using tolvik::Model;

namespace {

/// Says and keeps the contrary of what the base does, so that each step that goes past it shows.
class ContraryModel : public OpenModel
{
public:
    explicit ContraryModel(int buildings) : recorder(this)
    {
        loadText(town(buildings));
        recorder.watch(this, QOverload<const QModelIndex&>::of(&Model::visibilityChanged), "visible");
        recorder.watch(this, QOverload<const QList<QModelIndex>&>::of(&Model::visibilityChanged), "visible");
        recorder.clear();
    }

    bool isVisible(const QModelIndex& index) const override { return !OpenModel::isVisible(index); }
    void setVisibility(const QModelIndex& index, bool visible) override
    {
        OpenModel::setVisibility(index, !visible);
    }

    SignalRecorder recorder;
};

/// Writes down how it is marked, and nothing else.
class MarkedModel : public OpenModel
{
public:
    using OpenModel::dirty;
    void dirty(bool changed) override { marks.append(changed); }

    QList<bool> marks;
};

/// Takes longer for each row than lies between two reports of progress.
class SlowModel : public OpenModel
{
public:
    SlowModel() { setCorrectGuid(true); }

    using OpenModel::dirty;
    void dirty(bool changed) override
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(80));
        OpenModel::dirty(changed);
    }
};

/// Writes down with each report of progress how many rows there are at that moment.
class StepRecorder : public OperationRecorder
{
public:
    explicit StepRecorder(const OpenModel& model) : model(model) {}

    void progress(long long doneSteps, int level) override
    {
        OperationRecorder::progress(doneSteps, level);
        rows.append(model.rowCount());
    }

    QList<int> rows;

private:
    const OpenModel& model;
};

} // namespace

class ModelOverridesTest : public QObject
{
    Q_OBJECT

private slots:
    void oneRow()
    {
        ContraryModel model(2);
        QCOMPARE(model.states(), QString("hhh"));
        model.reallyDoHide(model.index(1, 0));
        QCOMPARE(model.recorder.take(), QStringList());
        model.reallyDoShow(model.index(1, 0));
        QCOMPARE(model.states(), QString("hvh"));
        QCOMPARE(model.recorder.take(), QStringList({"dataChanged 1:0 1:0 []", "visible 1:0"}));
        model.reallyDoShow(model.index(1, 0));
        QCOMPARE(model.recorder.take(), QStringList());
        model.reallyDoHide(model.index(1, 0));
        QCOMPARE(model.states(), QString("hhh"));
        QCOMPARE(model.recorder.take(), QStringList({"dataChanged 1:0 1:0 []", "visible 1:0"}));
    }

    void lists()
    {
        ContraryModel model(2);
        model.reallyDoShow({model.index(1, 0), model.index(2, 0)});
        QCOMPARE(model.states(), QString("hvv"));
        QCOMPARE(model.recorder.take().last(), QString("visible [1:0 2:0]"));
        model.reallyDoShow({model.index(0, 0), model.index(1, 0)});
        QCOMPARE(model.recorder.take().last(), QString("visible [0:0]"));
        model.reallyDoHide({model.index(1, 0), model.index(2, 0)});
        QCOMPARE(model.states(), QString("vhh"));
    }

    void allRows()
    {
        ContraryModel model(2);
        model.showAlls(false);
        QCOMPARE(model.recorder.take(), QStringList());
        model.showAlls(true);
        QCOMPARE(model.states(), QString("vvv"));
        QCOMPARE(model.recorder.take().last(), QString("visible [0:0 1:0 2:0]"));
        model.reallyDoHide(model.index(0, 0));
        model.recorder.clear();
        model.showAlls(false);
        QCOMPARE(model.states(), QString("hhh"));
        QCOMPARE(model.recorder.take().last(), QString("visible [1:0 2:0]"));
    }

    void reset()
    {
        ContraryModel model(1);
        model.reset(model.index(1, 0));
        QCOMPARE(model.recorder.take(), QStringList());
        model.reallyDoShow(model.index(1, 0));
        model.recorder.clear();
        model.reset(model.index(1, 0));
        QCOMPARE(model.states(), QString("hh"));
        QCOMPARE(model.recorder.take(), QStringList({"dataChanged 1:0 1:0 []", "visible 1:0"}));
    }

    void identifiers()
    {
        ContraryModel model(2);
        model.setVisibilityIds({"0", "2"}, true);
        QCOMPARE(model.states(), QString("vhv"));
        model.setVisibilityIds({"0"}, false);
        QCOMPARE(model.states(), QString("hvv"));
        QStringList hidden;
        QStringList visible;
        model.getVisibilityIds(hidden, visible);
        QCOMPARE(hidden, QStringList({"0"}));
        QCOMPARE(visible, QStringList({"1", "2"}));
    }

    void aSaveMarksTheDocumentAsSaved()
    {
        const QTemporaryDir directory;
        MarkedModel model;
        model.loadText(town(1));
        QVERIFY(model.marks.isEmpty());
        QVERIFY(model.saveAs(directory.filePath("town.gml"), true));
        QCOMPARE(model.marks, QList<bool>({false}));
        QVERIFY(model.save(true));
        QCOMPARE(model.marks, QList<bool>({false, false}));
    }

    void aGeneratedIdentifierMarksTheDocumentAsChanged()
    {
        MarkedModel model;
        model.loadText(cityModel(building("") + building("b")));
        QVERIFY(model.marks.isEmpty());
        model.setCorrectGuid(true);
        model.dataSetChanged();
        QCOMPARE(model.marks, QList<bool>({true, true}));

        gml::AbstractFeatureType* const feature = addMember(*model.cityGML(), bldg::BuildingType());
        model.marks.clear();
        model.append(feature);
        QCOMPARE(model.marks, QList<bool>({true}));
    }

    void aLoadLeavesTheMarkAlone()
    {
        ModelLog log;
        const QTemporaryDir directory;
        const QString path = directory.filePath("town.gml");
        QVERIFY(writeFile(path, town(1)));
        QByteArray content = town(2);
        const auto loadAll = [&](OpenModel& model) {
            QBuffer device(&content);
            QVERIFY(device.open(QIODevice::ReadOnly));
            model.loadText(town(3));
            model.load(path);
            model.load(&device, QUrl("town"));
            model.loadText("no document");
            model.load(directory.filePath("missing.gml"));
            model.load(std::auto_ptr<core::CityModelType>(new core::CityModelType));
        };
        MarkedModel marked;
        loadAll(marked);
        QVERIFY(marked.marks.isEmpty());

        for (const bool changed : {true, false}) {
            OpenModel model;
            model.dirty(changed);
            loadAll(model);
            QCOMPARE(model.dirty(), changed);
        }
    }

    void oneStepARow()
    {
        SlowModel model;
        StepRecorder recorder(model);
        model.loadText(cityModel(building("") + building("") + building("")));
        QCOMPARE(recorder.doneByReport, QVector<long long>({1, 2, 3, 4}));
        QCOMPARE(recorder.rows, QList<int>({1, 2, 3, 4}));
    }
};

TEST_CLASS(ModelOverridesTest, Widgets)
#include "modeloverridestest.moc"
