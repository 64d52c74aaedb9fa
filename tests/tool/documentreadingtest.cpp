#include "apps/common/DocumentReading.h"
#include "framework/OperationStatus.h"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/OperationRecorder.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <atomic>
#include <osgDB/Registry>
#include <QtTest>
#include <thread>

using namespace testsupport;
using namespace tolvik;
using tolvik::apps::DocumentReading;

namespace {

/// Larger than what is read at once.
QByteArray largeDocument()
{
    QByteArray members;
    for (int i = 0; i < 5000; ++i) {
        members += buildingMember("<gml:description>x</gml:description>", "b" + QByteArray::number(i));
    }
    return documentText(members);
}

} // namespace

/// Documents that are read beside the one that a program has open.
class DocumentReadingTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        directory = std::make_unique<QTemporaryDir>();
        path = directory->filePath("large.gml");
        writeFile(path, largeDocument());
    }

    void aModelGetsTheDocumentWithItsName()
    {
        CityGMLModel expected(nullptr, nullptr), model(nullptr, nullptr);
        expected.load(path);
        auto& paths = osgDB::Registry::instance(false)->getDataFilePathList();
        paths.clear();
        DocumentReading reading(path);
        reading.read();
        QVERIFY(reading.document() != nullptr);
        QCOMPARE(model.rowCount(), 0);
        reading.handOver(model);
        QVERIFY(reading.document() == nullptr);
        QCOMPARE(model.rowCount(), expected.rowCount());
        QCOMPARE(model.data(QModelIndex(), Qt::UserRole), expected.data(QModelIndex(), Qt::UserRole));
        QCOMPARE(QString::fromStdString(paths.front()), QFileInfo(path).canonicalPath());
    }

    void progressIsToldFromTheBeginning()
    {
        QVector<long long> told;
        DocumentReading reading(path);
        reading.read([&](long long bytes) { told << bytes; });
        QCOMPARE(reading.size(), QFileInfo(path).size());
        QVERIFY(told.size() > 4);
        QVERIFY(told.first() < reading.size() / 4);
        QVERIFY(std::is_sorted(told.begin(), told.end()));
        QCOMPARE(told.last(), reading.size());
    }

    void theUserInterfaceSeesAnOperation()
    {
        OperationRecorder recorder;
        DocumentReading reading(path);
        reading.readShown();
        const QString begin = "begin Reading " + QString::number(QFileInfo(path).size()) + " blocking 0";
        QCOMPARE(recorder.lines, QStringList({begin, "end 0"}));
    }

    void aReadingIsCancelled()
    {
        DocumentReading reading(path);
        reading.read([&](long long) { reading.cancel(); });
        QVERIFY(reading.document() == nullptr);
        QVERIFY(reading.isCancelled());
        QCOMPARE(reading.error(), QString());
    }

    void aReadingIsCancelledFromAnotherThread()
    {
        DocumentReading reading(path);
        std::atomic<bool> hasBegun{false};
        std::thread canceller([&] {
            while (!hasBegun) {
                std::this_thread::yield();
            }
            reading.cancel();
        });
        reading.read([&](long long) {
            hasBegun = true;
            while (!reading.isCancelled()) {
                std::this_thread::yield();
            }
        });
        canceller.join();
        QVERIFY(reading.isCancelled());
        QVERIFY(reading.document() == nullptr);
    }

    void aThreadReadsWhileTheModelIsInUse()
    {
        CityGMLModel model(nullptr, nullptr);
        model.load(path);
        DocumentReading reading(examples() + "/district.gml");
        std::thread reader([&] { reading.read(); });
        QCOMPARE(model.rowCount(), 5001);
        reader.join();
        reading.handOver(model);
        QVERIFY(model.rowCount() > 0 && model.rowCount() != 5001);
    }

    void whatFailsIsTold_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QString>("reason");
        QTest::newRow("broken") << documentText("") + "<x>"
                                << "junk after document element";
        QTest::newRow("another root") << QByteArray("<x/>") << "document:1:1 error: the root element is 'x'";
        QTest::newRow("an identifier twice")
            << documentText(buildingMember("", "b") + buildingMember("", "b")) << "'b'";
    }
    void whatFailsIsTold()
    {
        QFETCH(QByteArray, xml);
        QFETCH(QString, reason);
        const QString broken = directory->filePath("broken.gml");
        writeFile(broken, xml);
        DocumentReading reading(broken);
        reading.read();
        QVERIFY(reading.document() == nullptr);
        QVERIFY(!reading.isCancelled());
        QVERIFY2(reading.error().contains(reason), qPrintable(reading.error()));
        QVERIFY(!reading.error().contains('\n'));
    }

    void whatCannotBeOpenedIsTold()
    {
        DocumentReading nothing(directory->filePath("nothing.gml"));
        nothing.read();
        QCOMPARE(nothing.error(), QString("no such file"));
        QCOMPARE(nothing.size(), 0LL);
        DocumentReading folder(directory->path());
        folder.read();
        QCOMPARE(folder.error(), QString("is a directory"));
    }

private:
    std::unique_ptr<QTemporaryDir> directory;
    QString path;
};

TEST_CLASS(DocumentReadingTest, Core)
#include "documentreadingtest.moc"
