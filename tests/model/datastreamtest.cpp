// The device is hidden in the library, so the test has a copy of its own.
#include "UI/Models/CityGMLModel/DataStream.cpp" // NOLINT(bugprone-suspicious-include)

#include "support/OperationRecorder.h"
#include "support/TestClass.h"

#include <boost/iostreams/stream.hpp>
#include <memory>
#include <QBuffer>
#include <QtTest>
#include <string>

using namespace testsupport;

using boost::iostreams::DataStream;

class DataStreamTest : public QObject
{
    Q_OBJECT

private slots:
    void readsAndWrites()
    {
        QByteArray bytes("abcdef");
        QBuffer buffer(&bytes);
        QVERIFY(buffer.open(QIODevice::ReadWrite));
        QDataStream data(&buffer);
        DataStream device(&data);
        char text[8] = {};
        QCOMPARE(device.read(text, 4), std::streamsize(4));
        QCOMPARE(text, "abcd");
        QCOMPARE(device.write("gh", 2), std::streamsize(2));
        QCOMPARE(bytes, QByteArray("abcdgh"));
        QCOMPARE(device.read(text, 4), std::streamsize(0));
        QCOMPARE(device.write("i", 1), std::streamsize(-1)); // the data stream has met its end
    }

    void withoutAStream()
    {
        DataStream device(nullptr);
        char text[8];
        QCOMPARE(device.read(text, 4), std::streamsize(-1));
        QCOMPARE(device.write(text, 4), std::streamsize(-1));
    }

    void servesAsAStandardStream()
    {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        QVERIFY(buffer.open(QIODevice::ReadWrite));
        QDataStream data(&buffer);
        {
            boost::iostreams::stream<DataStream> stream(&data);
            std::iostream& standard = stream;
            standard << "first 2";
        }
        QCOMPARE(bytes, QByteArray("first 2"));
        buffer.seek(0);
        boost::iostreams::stream<DataStream> stream(&data);
        std::string word;
        int number = 0;
        stream >> word >> number;
        QCOMPARE(word, std::string("first"));
        QCOMPARE(number, 2);
        QVERIFY(stream.eof());
    }

    void readingReportsToTheStatusOfItsStream()
    {
        OperationRecorder recorder;
        QByteArray bytes(1000, 'x');
        QBuffer buffer(&bytes);
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        QDataStream data(&buffer);
        {
            tolvik::OperationStatus status("Reading", bytes.size(), true);
            DataStream::statusByStream[&data] = &status;
            DataStream device(&data);
            char text[100];
            QTest::qWait(60); // past the time in which a listener is told once only
            device.read(text, 100);
            QCOMPARE(recorder.doneByReport, QVector<long long>({100}));
        }
        DataStream::statusByStream.clear();
    }

    void anUnknownStreamIsEntered()
    {
        QVERIFY(DataStream::statusByStream.isEmpty());
        QDataStream data;
        DataStream device(&data);
        QCOMPARE(DataStream::statusByStream.size(), 1);
        QCOMPARE(DataStream::statusByStream.value(&data), nullptr);
        DataStream same(&data);
        QCOMPARE(DataStream::statusByStream.size(), 1);
        DataStream::statusByStream.clear();
    }
};

TEST_CLASS(DataStreamTest, Core)
#include "datastreamtest.moc"
