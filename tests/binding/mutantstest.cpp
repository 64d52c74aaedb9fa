#include "support/Mutants.h"
#include "fuzz/ReaderCase.h"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "support/XmlTree.h"

#include <QtTest>
#include <sstream>

using namespace testsupport;

namespace {

/// Of the examples, and as many of the real documents.
constexpr int mutantsOfAQuickRun = 100;
constexpr int mutantsOfALongRun = 5000;

/// What lenient reading reports; empty if it succeeds.
QString lenientErrorOf(const QByteArray& xml, Document& document)
{
    try {
        document = read(xml);
    } catch (const xsd::cxx::tree::exception<char>& error) {
        std::ostringstream text;
        text << error;
        return QString::fromStdString(text.str());
    }
    return QString();
}

} // namespace

/// Documents with a change anywhere.
class MutantsTest : public QObject
{
    Q_OBJECT

private slots:
    void examples_data() { addWays(); }
    void examples() { run(testsupport::examples()); }

    /// Documents of others, with much that the schema has no place for.
    void realDocuments_data() { addWays(); }
    void realDocuments()
    {
        SKIP_WITHOUT(sharedDocuments());
        run(sharedDocuments());
    }

    /// A check finds something in what strict reading refuses; what was repaired opens.
    void checksAndRepairs()
    {
        QByteArrayList documents;
        for (const QString& path : exampleAndSharedDocuments()) {
            documents << contentOf(path);
        }
        QVERIFY(!documents.isEmpty());
        mutants::Maker maker(documents);
        for (int i = 0; i < count(); ++i) {
            const auto mutant = maker.next();
            const QByteArray where = QByteArray::number(i) + ": " + mutant.change + ": ";
            const std::string text = mutant.xml.toStdString();
            QCOMPARE(where + tolvik::fuzz::runCheckCase(text).c_str(), where);
            QCOMPARE(where + tolvik::fuzz::runRepairCase(text).c_str(), where);
        }
    }

private:
    static int count()
    {
        return qEnvironmentVariableIsSet("TOLVIK_LONG_RUNS") ? mutantsOfALongRun : mutantsOfAQuickRun;
    }

    static void addWays()
    {
        QTest::addColumn<bool>("isLenient");
        QTest::newRow("strict") << false;
        QTest::newRow("lenient") << true;
    }

    /// A mutant opens or is refused with a place; one that opens comes back as it was.
    static void run(const QString& directory)
    {
        QFETCH(bool, isLenient);
        QByteArrayList documents;
        const QStringList paths = documentsBelow(directory);
        for (const QString& path : paths) {
            documents << contentOf(path);
        }
        QVERIFY(!documents.isEmpty());
        mutants::Maker maker(documents);
        int opened = 0;
        for (int i = 0; i < count(); ++i) {
            const auto mutant = maker.next();
            const QByteArray where =
                QByteArray::number(i) + " of " + paths[mutant.source].toUtf8() + ": " + mutant.change;
            QString error;
            const XmlNode before = XmlNode::parse(mutant.xml, &error);
            QVERIFY2(error.isEmpty(), where + ": " + error.toUtf8());
            Document document;
            const QString reason =
                isLenient ? lenientErrorOf(mutant.xml, document) : errorOf(mutant.xml, &document);
            QVERIFY2(reason.isEmpty() || reason.contains("document:"), where + ": " + reason.toUtf8());
            if (!reason.isEmpty()) {
                // Of what the schema forbids, a load ends at one thing alone.
                QVERIFY2(!isLenient || reason.contains("identifier"), where + ": " + reason.toUtf8());
                continue;
            }
            ++opened;
            const QByteArray saved = write(*document);
            const QStringList differences = XmlNode::differences(before, XmlNode::parse(saved));
            QVERIFY2(differences.isEmpty(), where + ": " + differences.join('\n').toUtf8());
            Document again;
            const QString problem = isLenient ? lenientErrorOf(saved, again) : errorOf(saved, &again);
            QVERIFY2(problem.isEmpty(), where + ": " + problem.toUtf8());
            QVERIFY2(write(*again) == saved, where);
        }
        qInfo("%d mutants, %d open", count(), opened);
        QVERIFY(opened > count() / 4);
    }
};

TEST_CLASS(MutantsTest, Core)
#include "mutantstest.moc"
