#include "support/Mutants.h"
#include "support/RoundTrip.h"
#include "support/TestPaths.h"
#include "support/XmlTree.h"

#include <log4cplus/initializer.h>
#include <log4cplus/logger.h>
#include <log4cplus/nullappender.h>
#include <QDir>
#include <QDirIterator>
#include <QtTest>

namespace {

/// Of the examples, and as many of the real documents.
constexpr int mutantsOfAQuickRun = 150;
constexpr int mutantsOfALongRun = 5000;

/// What strict reading reports; empty if it succeeds.
QString strictErrorOf(const QByteArray& xml, roundtrip::Document& document)
{
    try {
        std::istringstream stream(xml.toStdString());
        document.reset(core::CityModel(stream, 0).release());
    } catch (const xsd::cxx::tree::exception<char>& error) {
        return roundtrip::printed(error);
    }
    return QString();
}

} // namespace

/// Documents with a change anywhere.
class MutantsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        log4cplus::Logger::getRoot().addAppender(log4cplus::SharedAppenderPtr(new log4cplus::NullAppender));
    }

    void examples() { run(testpaths::examples()); }

    /// Documents of others, with much that the schema has no place for.
    void realDocuments()
    {
        const QString directory = testpaths::sharedFiles() + "/data";
        if (!QDir(directory).exists()) {
            QSKIP(qPrintable("there is no " + directory));
        }
        run(directory);
    }

private:
    /// A mutant opens or is refused with a place; one that opens is written and read again.
    static void run(const QString& directory)
    {
        QByteArrayList documents;
        QDirIterator files(directory, {"*.gml"}, QDir::Files, QDirIterator::Subdirectories);
        QStringList paths;
        while (files.hasNext()) {
            paths << files.next();
        }
        paths.sort();
        for (const QString& path : qAsConst(paths)) {
            documents << roundtrip::contentOf(path);
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
            roundtrip::Document document;
            const QString reason = strictErrorOf(mutant.xml, document);
            QVERIFY2(reason.isEmpty() || reason.contains("document:"), where + ": " + reason.toUtf8());
            if (!reason.isEmpty()) {
                continue;
            }
            ++opened;
            const QByteArray saved = roundtrip::write(*document);
            const QStringList differences = XmlNode::differences(before, XmlNode::parse(saved));
            unchanged += differences.isEmpty() ? 1 : 0;
            roundtrip::Document again;
            const QString problem = strictErrorOf(saved, again);
            QVERIFY2(problem.isEmpty(), where + ": " + problem.toUtf8());
            QVERIFY2(roundtrip::write(*again) == saved, where);
        }
        qInfo("%d mutants, %d open, %d of them come back as they were", count, opened, unchanged);
        QVERIFY(opened > count / 4);
    }

    log4cplus::Initializer logging;
};

QTEST_GUILESS_MAIN(MutantsTest)
#include "mutantstest.moc"
