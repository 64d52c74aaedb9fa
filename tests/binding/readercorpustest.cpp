#include "fuzz/ReaderCase.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"

#include <QFile>
#include <QtTest>

using namespace testsupport;

namespace {

/// The bytes of a packed case; see fuzz/corpus.py.
std::string unpacked(const QByteArray& line)
{
    std::string result;
    for (int i = 0; i < line.size(); ++i) {
        if (line[i] != '\\') {
            result += line[i];
            continue;
        }
        const char kind = line[++i];
        if (kind == 'x') {
            result += static_cast<char>(line.mid(i + 1, 2).toInt(nullptr, 16));
            i += 2;
        } else {
            result += kind == 'n' ? '\n' : kind == 'r' ? '\r' : kind == 't' ? '\t' : kind;
        }
    }
    return result;
}

} // namespace

/// The cases that fuzzing found, with every compiler.
class ReaderCorpusTest : public QObject
{
    Q_OBJECT

private slots:
    void everyCaseComesBack()
    {
        QFile file(dataFile("reader-corpus.txt"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        int cases = 0, readable = 0;
        for (int line = 1; !file.atEnd(); ++line) {
            QByteArray text = file.readLine();
            text.chop(1);
            if (text.startsWith('#')) {
                continue;
            }
            const std::string document = unpacked(text);
            const std::string problem = tolvik::fuzz::runReaderCase(document);
            QVERIFY2(problem.empty(),
                     qPrintable(QString("line %1: %2").arg(line).arg(QString::fromStdString(problem))));
            ++cases;
            readable += isReadable(document) ? 1 : 0;
        }
        // Most of them are documents; else there would be little to see.
        qInfo("%d cases, %d of them documents", cases, readable);
        QVERIFY(cases > 100);
        QVERIFY(readable > cases / 4);
    }

    void unpacks() { QCOMPARE(unpacked("a\\\\b\\n\\t\\r\\x00\\xff."), std::string("a\\b\n\t\r\0\xff.", 9)); }

private:
    static bool isReadable(const std::string& document)
    {
        try {
            tolvik::fuzz::read(document);
            return true;
        } catch (const xsd::cxx::tree::exception<char>&) {
            return false;
        }
    }
};

TEST_CLASS(ReaderCorpusTest, Core)
#include "readercorpustest.moc"
