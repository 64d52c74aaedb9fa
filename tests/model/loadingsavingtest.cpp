#include "support/CityGMLModelFixture.h"
#include "support/Files.h"
#include "support/OperationRecorder.h"
#include "support/SignalRecorder.h"
#include "support/TestClass.h"

#include <memory>
#include <osgDB/Registry>
#include <QBuffer>
#include <QDir>
#include <QTemporaryDir>
#include <QtTest>
#include <stdexcept>

using namespace testsupport;

namespace {

/// The last part of a text that an operation throws as std::runtime_error; empty if it throws nothing.
template <typename Operation>
QString errorOf(Operation operation)
{
    try {
        operation();
    } catch (const std::runtime_error& error) {
        return QString::fromLocal8Bit(error.what());
    }
    return QString();
}

/// Puts a character into the document that XML cannot hold, so that it cannot be written.
void makeUnwritable(tolvik::CityGMLModel& model)
{
    model.setData(model.index(1, 0), QString(QChar(1)), Qt::EditRole);
}

osgDB::FilePathList& dataPaths()
{
    return osgDB::Registry::instance(false)->getDataFilePathList();
}

/// A device that, as a socket or a pipe, can only be read on, a few bytes at a time.
class Pipe : public QIODevice
{
public:
    /// \param pause where there is nothing for once, though more comes later
    explicit Pipe(const QByteArray& content, qint64 pause = -1) : content(content), pause(pause)
    {
        open(ReadOnly | Unbuffered);
    }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char* data, qint64 maxSize) override
    {
        if (position == pause) {
            pause = -1;
            return 0;
        }
        const qint64 count = std::min<qint64>({maxSize, 100, content.size() - position});
        std::copy_n(content.constData() + position, count, data);
        position += count;
        return count;
    }
    qint64 writeData(const char* /*data*/, qint64 /*size*/) override { return -1; }

private:
    QByteArray content;
    qint64 position = 0;
    qint64 pause;
};

} // namespace

class LoadingSavingTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> directory;

    QString path(const QString& name) const { return directory->filePath(name); }

    /// Writes a file into the directory of the test.
    QString file(const QString& name, const QByteArray& content) const
    {
        return writeFile(path(name), content) ? path(name) : QString();
    }

private slots:
    void init()
    {
        directory = std::make_unique<QTemporaryDir>();
        QVERIFY(directory->isValid());
    }

    void loadsAFile()
    {
        ModelLog log;
        OpenModel model;
        SignalRecorder recorder(&model);
        model.load(file("town.gml", town(2)));
        QCOMPARE(recorder.take(), resetSignals);
        QCOMPARE(model.names(), QStringList({"<unset>", "b1", "b2"}));
        QCOMPARE(model.getFileName(), QFileInfo(path("town.gml")).canonicalFilePath());
        QVERIFY(!model.dirty());
        QCOMPARE(log.take(), QStringList());
    }

    void theFileNameIsCanonical()
    {
        const QString target = file(QString::fromUtf8("Straße.gml"), town(1));
        QVERIFY(QFile::link(target, path("link.gml")));
        QVERIFY(QDir().mkdir(path("below")));
        OpenModel model;
        model.load(path("below/../link.gml"));
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(model.getFileName(), QFileInfo(target).canonicalFilePath());
        QCOMPARE(model.data(QModelIndex(), Qt::UserRole), QVariant(model.getFileName()));
    }

    void missingFileAfterAGoodLoad()
    {
        ModelLog log;
        OpenModel model;
        model.load(file("good.gml", town(2)));
        const QString name = model.getFileName();
        core::CityModelType* const document = model.cityGML();
        const auto paths = dataPaths();

        SignalRecorder recorder(&model);
        model.load(path("missing.gml"));
        QCOMPARE(recorder.take(), resetSignals);
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(model.cityGML(), document);
        QCOMPARE(model.getFileName(), name);
        QVERIFY(dataPaths() == paths);
        QCOMPARE(log.take(), QStringList());

        model.dataSetChanged();
        QCOMPARE(model.names(), QStringList({"<unset>", "b1", "b2"}));
    }

    void malformedFileAfterAGoodLoad()
    {
        ModelLog log;
        OpenModel model;
        model.load(file("good.gml", town(2)));
        gml::AbstractFeatureType* const feature = model.getFeature("b2");
        SignalRecorder recorder(&model);
        model.load(file("bad.gml", town(3).chopped(30)));
        QCOMPARE(recorder.take(), resetSignals);
        QCOMPARE(model.getFileName(), QFileInfo(path("bad.gml")).canonicalFilePath());
        QCOMPARE(model.names(), QStringList({"<unset>", "b1", "b2"}));
        QCOMPARE(model.getFeature("b2"), feature);
        QCOMPARE(log.take().size(), 1);
        QVERIFY(!model.dirty());
    }

    void malformedFirstFile()
    {
        ModelLog log;
        OpenModel model;
        model.load(file("bad.gml", "<CityModel>"));
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(model.cityGML(), nullptr);
        QCOMPARE(model.getFileName(), QFileInfo(path("bad.gml")).canonicalFilePath());
        QCOMPARE(QString::fromLocal8Bit(dataPaths().front().c_str()),
                 QFileInfo(directory->path()).canonicalFilePath());
        QCOMPARE(log.take().size(), 1);
    }

    void aDirectoryIsNoDocument()
    {
        ModelLog log;
        OpenModel model;
        model.load(file("good.gml", town(1)));
        model.load(directory->path());
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(log.take().size(), 1);
    }

    void theDirectoryIsSearchedFirst()
    {
        const QString town1 = file("town.gml", town(1));
        QVERIFY(QDir().mkdir(path("other")));
        const QString town2 = file("other/town.gml", town(1));
        const std::string first = QFileInfo(town1).canonicalPath().toLocal8Bit().toStdString();
        const std::string second = QFileInfo(town2).canonicalPath().toLocal8Bit().toStdString();
        const auto before = dataPaths();

        OpenModel model;
        model.load(town1);
        model.load(town1);
        model.load(town2);
        osgDB::FilePathList expected = before;
        expected.push_front(first);
        expected.push_front(first);
        expected.push_front(second);
        QVERIFY(dataPaths() == expected);
    }

    void loadsADevice()
    {
        ModelLog log;
        OpenModel model;
        const auto paths = dataPaths();
        QByteArray content = town(5000); // more than any buffer on the way
        QVERIFY(content.size() > 300000);
        QBuffer device(&content);
        QVERIFY(device.open(QIODevice::ReadOnly));
        SignalRecorder recorder(&model);
        model.load(&device, QUrl("http://example.org/a/b%20c.gml?q=1"));
        QCOMPARE(recorder.take(), resetSignals);
        QCOMPARE(model.rowCount(), 5001);
        QCOMPARE(model.names().last(), QString("b5000"));
        QCOMPARE(model.getFileName(), QString("_a_b c.gml"));
        QCOMPARE(model.getUrl(), QUrl("http://example.org/a/b%20c.gml?q=1"));
        QVERIFY(dataPaths() == paths);
        QVERIFY(!model.dirty());
        QVERIFY(device.isOpen());
        QCOMPARE(log.take(), QStringList());
    }

    void aPathBecomesOneWord()
    {
        OpenModel model;
        QByteArray content = town(1);
        QBuffer device(&content);
        QVERIFY(device.open(QIODevice::ReadOnly));
        model.load(&device, QUrl("/a/b.gml"));
        QCOMPARE(model.getFileName(), QString("_a_b.gml"));
    }

    void loadsADeviceThatCannotSeek()
    {
        OpenModel model;
        Pipe device(town(50));
        model.load(&device, QUrl("pipe"));
        QCOMPARE(model.rowCount(), 51);
    }

    void aDeviceIsReadFromItsPosition()
    {
        OpenModel model;
        QByteArray content = "line before\n" + town(2);
        QBuffer device(&content);
        QVERIFY(device.open(QIODevice::ReadOnly));
        device.readLine();
        model.load(&device, QUrl());
        QCOMPARE(model.rowCount(), 3);
        QCOMPARE(model.getFileName(), QString());
    }

    void aDeviceThatAnswersNothingHasEnded()
    {
        ModelLog log;
        OpenModel model;
        Pipe device(town(50), 1000);
        model.load(&device, QUrl("pipe"));
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(log.take().size(), 1);
    }

    void theStateOfAStream_data()
    {
        using Ios = std::ios_base;
        QTest::addColumn<int>("thrown");
        QTest::newRow("throws nothing") << int(Ios::goodbit);
        QTest::newRow("throws at failures") << int(Ios::failbit);
        QTest::newRow("throws at failures and errors") << int(Ios::failbit | Ios::badbit);
        QTest::newRow("throws at the end") << int(Ios::failbit | Ios::badbit | Ios::eofbit);
    }

    /// The stream stands at its end, has not failed, and throws at what it threw at before.
    void theStateOfAStream()
    {
        QFETCH(int, thrown);
        ModelLog log;
        OpenModel model;
        SignalRecorder recorder(&model);
        for (const QByteArray& content : {town(2), town(2).chopped(15), QByteArray()}) {
            std::istringstream stream(content.toStdString());
            stream.exceptions(static_cast<std::ios_base::iostate>(thrown));
            model.load(stream);
            QCOMPARE(recorder.take(), resetSignals);
            QCOMPARE(model.names(), QStringList({"<unset>", "b1", "b2"}));
            QCOMPARE(int(stream.exceptions()), thrown);
            QVERIFY(!stream.fail());
        }
        QCOMPARE(log.take().size(), 2);
    }

    void aStreamThatHasFailed()
    {
        ModelLog log;
        OpenModel model;
        model.loadText(town(1));
        std::istringstream stream(town(2).toStdString());
        stream.setstate(std::ios_base::failbit);
        SignalRecorder recorder(&model);
        model.load(stream);
        QCOMPARE(recorder.take(), resetSignals);
        QCOMPARE(model.rowCount(), 2);
        QVERIFY(stream.fail());
        QCOMPARE(log.take().size(), 1);
    }

    void malformedDevice()
    {
        ModelLog log;
        OpenModel model;
        model.loadText(town(1));
        QByteArray content = town(2).chopped(15);
        QBuffer device(&content);
        QVERIFY(device.open(QIODevice::ReadOnly));
        model.load(&device, QUrl("/x.gml"));
        QCOMPARE(model.names(), QStringList({"<unset>", "b1"}));
        QCOMPARE(model.getFileName(), QString("_x.gml"));
        QCOMPARE(log.take().size(), 1);

        QBuffer closed(&content);
        QTest::ignoreMessage(QtWarningMsg, "QIODevice::read (QBuffer): device not open");
        model.load(&closed, QUrl("/y.gml"));
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(log.take().size(), 1);
    }

    void aDeviceReportsNoProgressOfItsOwn()
    {
        OperationRecorder progress;
        OpenModel model;
        QByteArray content = town(3);
        QBuffer device(&content);
        QVERIFY(device.open(QIODevice::ReadOnly));
        model.load(&device, QUrl());
        QCOMPARE(progress.titles, QStringList({"Building Model"}));
    }

    void everyLoadEndsInTheStreamForm()
    {
        class Caught : public OpenModel
        {
        public:
            using CityGMLModel::load;
            void load(std::istream& stream) override
            {
                contents.append(QByteArray::fromStdString(
                    std::string(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>())));
            }
            QList<QByteArray> contents;
        };
        Caught model;
        model.load(file("a.gml", "from a file"));
        QByteArray content = "from a device";
        QBuffer device(&content);
        QVERIFY(device.open(QIODevice::ReadOnly));
        model.load(&device, QUrl());
        model.load(path("missing.gml"));
        QCOMPARE(model.contents, QList<QByteArray>({"from a file", "from a device"}));
    }

    void savesAndLoadsAgain()
    {
        OpenModel model;
        model.load(file("town.gml", town(3)));
        QVERIFY(model.setData(model.index(2, 0), QString::fromUtf8("<Zweites & größtes>"), Qt::EditRole));
        model.propertyChanged(model.index(2, 0), false);
        QVERIFY(model.dirty());
        SignalRecorder recorder(&model);
        QVERIFY(model.save(true));
        QCOMPARE(recorder.take(), QStringList());
        QVERIFY(!model.dirty());
        QCOMPARE(model.rowCount(), 4);

        OpenModel again;
        again.load(path("town.gml"));
        QCOMPARE(again.names(), model.names());
        QCOMPARE(again.names()[2], QString::fromUtf8("<Zweites & größtes>"));
        for (int row = 1; row < 4; ++row) {
            QCOMPARE(again.getFeatureID(again.getFeature(row)), model.getFeatureID(model.getFeature(row)));
        }
    }

    void savingDeclaresTheNamespaces()
    {
        OpenModel model;
        model.load(file("town.gml", town(1)));
        QVERIFY(model.save(true));
        const QByteArray written = contentOf(path("town.gml"));
        QVERIFY2(written.startsWith("<?xml version=\"1.0\" encoding=\"UTF-8\""), written.left(60));
        for (const char* uri :
             {"http://www.opengis.net/citygml/2.0", "http://www.opengis.net/citygml/building/2.0",
              "http://www.opengis.net/citygml/vegetation/2.0", "http://www.opengis.net/gml"}) {
            QVERIFY2(written.contains(QByteArray("=\"") + uri + '"'), uri);
        }
    }

    void savesUnderANewName()
    {
        OpenModel model;
        model.load(file("old.gml", town(2)));
        const QByteArray before = contentOf(path("old.gml"));
        model.propertyChanged(model.index(1, 0), false);
        QVERIFY(model.saveAs(path("new.gml"), true));
        QCOMPARE(model.getFileName(), path("new.gml"));
        QVERIFY(!model.dirty());
        QCOMPARE(contentOf(path("old.gml")), before);

        QVERIFY(model.setData(model.index(1, 0), "renamed", Qt::EditRole));
        QVERIFY(model.save(true));
        QVERIFY(contentOf(path("new.gml")).contains("renamed"));
        QCOMPARE(contentOf(path("old.gml")), before);
    }

    void theFlagOfASaveHasNoEffect()
    {
        OpenModel model;
        model.load(file("town.gml", town(2)));
        QVERIFY(model.save(true));
        const QByteArray first = contentOf(path("town.gml"));
        QVERIFY(!first.isEmpty());
        QVERIFY(model.save(false));
        QCOMPARE(contentOf(path("town.gml")), first);
        QVERIFY(model.saveAs(path("other.gml"), false));
        QCOMPARE(contentOf(path("other.gml")), first);
        QVERIFY(model.doSave(path("third.gml"), false));
        QCOMPARE(contentOf(path("third.gml")), first);
    }

    void savingCutsALongerFile()
    {
        OpenModel model;
        model.load(file("town.gml", town(1)));
        QVERIFY(model.saveAs(path("short.gml"), true));
        const QByteArray expected = contentOf(path("short.gml"));
        QVERIFY(model.saveAs(file("long.gml", QByteArray(100000, 'x')), true));
        QCOMPARE(contentOf(path("long.gml")), expected);
    }

    void aDeviceIsSavedToTheWorkingDirectory()
    {
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(directory->path()));
        OpenModel model;
        Pipe device(town(1));
        model.load(&device, QUrl("http://example.org/a/b.gml"));
        const bool saved = model.save(true);
        QVERIFY(QDir::setCurrent(before));
        QVERIFY(saved);
        QVERIFY(contentOf(path("_a_b.gml")).contains("b1"));
    }

    void anUnwritablePathIsNotNoticed()
    {
        ModelLog log;
        OpenModel model;
        model.load(file("town.gml", town(1)));
        model.propertyChanged(model.index(1, 0), false);
        const QString target = path("no/such/directory/town.gml");
        QVERIFY(model.saveAs(target, true));
        QCOMPARE(model.getFileName(), target);
        QVERIFY(!model.dirty());
        QVERIFY(!QFile::exists(target));
        QCOMPARE(log.take(), QStringList());
    }

    void aFailingSaveThrows()
    {
        ModelLog log;
        OpenModel model;
        model.load(file("y.gml", town(1)));
        makeUnwritable(model);
        model.propertyChanged(model.index(1, 0), false);
        const QString name = model.getFileName();
        const QString expected = "CityGML::save : Unable to save file " + name;

        QCOMPARE(errorOf([&] { model.save(true); }), expected);
        // It is the document's own name that the text tells, not the one that was asked for.
        QCOMPARE(errorOf([&] { model.saveAs(path("x.gml"), true); }), expected);
        QVERIFY(model.dirty());
        QCOMPARE(model.getFileName(), name);

        const QStringList lines = log.take();
        QCOMPARE(lines.size(), 2);
        for (const QString& line : lines) {
            QVERIFY2(QRegularExpression("^ERROR Exception caught: .+ --> .+").match(line).hasMatch(),
                     qPrintable(line));
        }
    }

    void aSaveThatThrowsLeavesTheFile_data()
    {
        QTest::addColumn<QByteArray>("member");
        QTest::addColumn<QString>("name");
        QTest::newRow("character that XML has not") << namedBuilding("b", "b") << QString(QChar(0x0B));
        // The writer hands on what it has at times, so that a part of it would be in the file.
        QTest::newRow("behind much else")
            << namedBuilding("b", QByteArray(300000, 'n')) << QString("pasted") + QChar(0xFFFF);
    }

    void aSaveThatThrowsLeavesTheFile()
    {
        QFETCH(QByteArray, member);
        QFETCH(QString, name);
        ModelLog log;
        const QByteArray content = cityModel(member + namedBuilding("last", "last"));
        OpenModel model;
        model.load(file("town.gml", content));
        QVERIFY(model.setData(model.index(model.rowCount() - 1, 0), name, Qt::EditRole));
        QVERIFY(!errorOf([&] { model.save(true); }).isEmpty());
        QCOMPARE(contentOf(path("town.gml")), content);
        QVERIFY(!errorOf([&] { model.saveAs(file("other.gml", "precious"), true); }).isEmpty());
        QCOMPARE(contentOf(path("other.gml")), QByteArray("precious"));
        QVERIFY(!errorOf([&] { model.saveAs(path("new.gml"), true); }).isEmpty());
        QVERIFY(!QFile::exists(path("new.gml")));
        QCOMPARE(log.take().size(), 3);

        // The edit undone, the document is saved.
        QVERIFY(model.setData(model.index(model.rowCount() - 1, 0), "last", Qt::EditRole));
        QVERIFY(model.save(true));
        QVERIFY(contentOf(path("town.gml")).contains("<gml:name>last</gml:name>"));
        QCOMPARE(log.take(), QStringList());
    }

    void savingNeedsADocument()
    {
        OpenModel model;
        const QString target = file("kept.gml", "precious");
        QVERIFY(!errorOf([&] { model.saveAs(target, true); }).isEmpty());
        QCOMPARE(contentOf(target), QByteArray("precious"));
    }
};

TEST_CLASS(LoadingSavingTest, Widgets)
#include "loadingsavingtest.moc"
