#include "support/Mutants.h"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "support/XmlTree.h"

#include <QtTest>

using namespace testsupport;

namespace {

/// Of the examples, and as many of the real documents.
constexpr int mutantsOfAQuickRun = 150;
constexpr int mutantsOfALongRun = 5000;

} // namespace

/// Documents with a change anywhere.
class MutantsTest : public QObject
{
    Q_OBJECT

private slots:
    void examples() { run(testsupport::examples()); }

    /// Documents of others, with much that the schema has no place for.
    void realDocuments()
    {
        SKIP_WITHOUT(sharedDocuments());
        run(sharedDocuments());
    }

private:
    /// A mutant opens or is refused with a place; one that opens is written and read again.
    static void run(const QString& directory)
    {
        QByteArrayList documents;
        const QStringList paths = documentsBelow(directory);
        for (const QString& path : paths) {
            documents << contentOf(path);
        }
        QVERIFY(!documents.isEmpty());
        mutants::Maker maker(documents);
        const int count =
            qEnvironmentVariableIsSet("TOLVIK_LONG_RUNS") ? mutantsOfALongRun : mutantsOfAQuickRun;
        int opened = 0, unchanged = 0;
        for (int i = 0; i < count; ++i) {
            const auto mutant = maker.next();
            const QByteArray where =
                QByteArray::number(i) + " of " + paths[mutant.source].toUtf8() + ": " + mutant.change;
            QString error;
            const XmlNode before = XmlNode::parse(mutant.xml, &error);
            QVERIFY2(error.isEmpty(), where + ": " + error.toUtf8());
            Document document;
            const QString reason = errorOf(mutant.xml, &document);
            QVERIFY2(reason.isEmpty() || reason.contains("document:"), where + ": " + reason.toUtf8());
            if (!reason.isEmpty()) {
                continue;
            }
            ++opened;
            const QByteArray saved = write(*document);
            const QStringList differences = XmlNode::differences(before, XmlNode::parse(saved));
            unchanged += differences.isEmpty() ? 1 : 0;
            Document again;
            const QString problem = errorOf(saved, &again);
            QVERIFY2(problem.isEmpty(), where + ": " + problem.toUtf8());
            QVERIFY2(write(*again) == saved, where);
        }
        qInfo("%d mutants, %d open, %d of them come back as they were", count, opened, unchanged);
        QVERIFY(opened > count / 4);
    }
};

TEST_CLASS(MutantsTest, Core)
#include "mutantstest.moc"
