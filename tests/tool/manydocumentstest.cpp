#include "support/Files.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "support/ToolCommand.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <sys/stat.h>
#include <unistd.h>

using namespace testsupport;

namespace {

/// A document with one building, which is its second row.
QByteArray house(const QByteArray& id)
{
    return "<core:CityModel xmlns:core='http://www.opengis.net/citygml/2.0' "
           "xmlns:bldg='http://www.opengis.net/citygml/building/2.0' "
           "xmlns:gml='http://www.opengis.net/gml'><core:cityObjectMember><bldg:Building gml:id='" +
           id + "'><bldg:measuredHeight uom='m'>" + QByteArray::number(id.size()) +
           "</bldg:measuredHeight></bldg:Building></core:cityObjectMember></core:CityModel>";
}

QByteArray rowsOf(const QByteArray& id)
{
    return "0\tCityModel\t-\t<unset>\n1\tBuilding\t" + id + "\t<unset>\n";
}

/// Runs the tool as a user from whom something can be hidden.
ProcessResult inspectAsAnyone(const QStringList& arguments)
{
    if (::geteuid() != 0) {
        return runTool(arguments);
    }
    return run("setpriv",
               QStringList{"--reuid=65534", "--regid=65534", "--clear-groups", program("tolvik-inspect")} +
                   arguments);
}

} // namespace

/// Commands that take several documents, and directories.
class ManyDocumentsTest : public QObject
{
    Q_OBJECT

private:
    QString path(const QString& name) const { return directory->filePath(name); }
    QByteArray shown(const QString& name) const { return path(name).toUtf8(); }

    std::unique_ptr<QTemporaryDir> directory;

private slots:
    void init()
    {
        directory = std::make_unique<QTemporaryDir>();
        QVERIFY(directory->isValid());
        QVERIFY(writeFile(path("b.gml"), house("bee")));
        QVERIFY(writeFile(path("a.gml"), house("ant")));
        QVERIFY(writeFile(path("broken.gml"), "<a/>"));
    }

    void eachDocumentIsNamed()
    {
        const ProcessResult result = runTool({"rows", path("b.gml"), path("a.gml")});
        QCOMPARE(result.out, shown("b.gml") + ":\n" + rowsOf("bee") + shown("a.gml") + ":\n" + rowsOf("ant"));
        QCOMPARE(result.err, QByteArray());
        QCOMPARE(result.code, 0);
    }

    void aListNamesMoreFiles()
    {
        const QByteArray list = shown("a.gml") + "\n\n" + shown("broken.gml") + "\n" + shown("b.gml");
        QVERIFY(writeFile(path("list"), list));
        const QByteArray listed =
            shown("a.gml") + ":\n" + rowsOf("ant") + shown("b.gml") + ":\n" + rowsOf("bee");
        QCOMPARE(runTool({"rows", "--files-from", path("list")}).out, listed);
        QCOMPARE(runTool({"rows", "--files-from", "-"}, list).out, listed);
        const ProcessResult more = runTool({"rows", path("b.gml"), "--files-from", path("list")});
        QCOMPARE(more.out, shown("b.gml") + ":\n" + rowsOf("bee") + listed);
        QCOMPARE(more.code, 1);
        QCOMPARE(runTool({"rows", "--files-from", path("nothing")}).code, 1);
    }

    void theOthersGoOnBehindABrokenOne()
    {
        const ProcessResult result =
            runTool({"rows", path("a.gml"), path("broken.gml"), path("nothing.gml"), path("b.gml")});
        QCOMPARE(result.out, shown("a.gml") + ":\n" + rowsOf("ant") + shown("b.gml") + ":\n" + rowsOf("bee"));
        QVERIFY2(
            result.err.contains("tolvik-inspect: " + shown("broken.gml") + " could not be loaded: document:"),
            result.err);
        QVERIFY2(result.err.contains(shown("nothing.gml") + " could not be loaded: no such file\n"),
                 result.err);
        QCOMPARE(result.code, 1);
    }

    void jsonIsOneArray_data()
    {
        QTest::addColumn<QStringList>("command");
        QTest::addColumn<int>("length");
        QTest::newRow("rows") << QStringList{"rows"} << 2;
        QTest::newRow("tree") << QStringList{"tree"} << 1;
        QTest::newRow("properties") << QStringList{"properties", "--every"} << 2;
    }

    void jsonIsOneArray()
    {
        QFETCH(QStringList, command);
        QFETCH(int, length);
        const ProcessResult result =
            runTool(command + QStringList{"--json", path("a.gml"), path("broken.gml"), path("b.gml")});
        QCOMPARE(result.code, 1);
        QJsonParseError error;
        const QJsonArray documents = QJsonDocument::fromJson(result.out, &error).array();
        QCOMPARE(error.error, QJsonParseError::NoError);
        QCOMPARE(documents.size(), 2);
        QCOMPARE(documents.at(0).toObject().value("file").toString(), path("a.gml"));
        QCOMPARE(documents.at(1).toObject().value("file").toString(), path("b.gml"));
        for (const QJsonValue& document : documents) {
            QCOMPARE(document.toObject().keys().size(), 2);
            QCOMPARE(document.toObject().value(command.first()).toArray().size(), length);
        }
        // The same as that of the document alone.
        const ProcessResult alone = runTool(command + QStringList{"--json", path("a.gml")});
        QCOMPARE(QJsonDocument::fromJson(alone.out).array(),
                 documents.at(0).toObject().value(command.first()).toArray());
    }

    void jsonOfNothingIsAnEmptyArray()
    {
        const ProcessResult result = runTool({"rows", "--json", path("broken.gml"), path("nothing.gml")});
        QCOMPARE(result.code, 1);
        const QJsonDocument document = QJsonDocument::fromJson(result.out);
        QVERIFY2(document.isArray() && document.array().isEmpty(), result.out);
    }

    void aSelectionMayFailInOneDocument()
    {
        const QStringList files{path("a.gml"), path("b.gml")};
        const ProcessResult text = runTool(QStringList{"properties", "--id", "bee"} + files);
        QCOMPARE(text.code, 1);
        QCOMPARE(text.err, "tolvik-inspect: " + shown("a.gml") + " has no feature with the gml:id bee\n");
        QVERIFY2(text.out.startsWith(shown("a.gml") + ":\n" + shown("b.gml") + ":\n1 Building\n"), text.out);

        QJsonParseError error;
        const QJsonArray documents =
            QJsonDocument::fromJson(runTool(QStringList{"properties", "--id", "bee", "--json"} + files).out,
                                    &error)
                .array();
        QCOMPARE(error.error, QJsonParseError::NoError);
        QCOMPARE(documents.at(0).toObject().value("properties"), QJsonValue());
        QVERIFY(documents.at(1).toObject().value("properties").isObject());
    }

    void aDirectoryStandsForItsDocuments()
    {
        QVERIFY(QDir(directory->path()).mkpath("city/old/empty"));
        QVERIFY(QDir(directory->path()).mkpath("city/.hidden"));
        for (const char* name : {"z.gml", "A.XML", "old/m.CityGml"}) {
            QVERIFY(writeFile(path("city") + '/' + name, house("x")));
        }
        for (const char* name : {"readme.txt", "gml", ".secret.gml", ".hidden/a.gml", "a.gml.bak"}) {
            QVERIFY(writeFile(path("city") + '/' + name, "no document"));
        }
        const ProcessResult result = runTool({"rows", "--recursive", path("city")});
        QCOMPARE(result.err, QByteArray());
        QCOMPARE(result.code, 0);
        QByteArray expected;
        for (const char* name : {"city/A.XML", "city/old/m.CityGml", "city/z.gml"}) {
            expected += shown(name) + ":\n" + rowsOf("x");
        }
        QCOMPARE(result.out, expected);
    }

    void aDirectoryOfOneDocumentIsNamedToo()
    {
        QVERIFY(QDir(directory->path()).mkpath("city"));
        QVERIFY(writeFile(path("city/a.gml"), house("x")));
        QCOMPARE(runTool({"rows", "--recursive", path("city")}).out,
                 shown("city/a.gml") + ":\n" + rowsOf("x"));
        // A file is no directory, with the option or without.
        QCOMPARE(runTool({"rows", "--recursive", path("a.gml")}).out, rowsOf("ant"));
    }

    void aLinkToADirectoryIsNotFollowed()
    {
        QVERIFY(QDir(directory->path()).mkpath("city"));
        QVERIFY(writeFile(path("city/a.gml"), house("x")));
        QVERIFY(QFile::link(path("city"), path("city/loop")));
        QCOMPARE(runTool({"rows", "--recursive", path("city")}).out,
                 shown("city/a.gml") + ":\n" + rowsOf("x"));
    }

    void aDirectoryIsReadOnRequestAlone()
    {
        const ProcessResult result = runTool({"rows", directory->path(), path("a.gml")});
        QVERIFY2(result.err.endsWith(" could not be loaded: is a directory\n"), result.err);
        QCOMPARE(result.out, shown("a.gml") + ":\n" + rowsOf("ant"));
        QCOMPARE(result.code, 1);
    }

    void aDirectoryWithoutDocumentsIsTold()
    {
        QVERIFY(QDir(directory->path()).mkpath("empty"));
        const ProcessResult result = runTool({"rows", "--recursive", path("empty"), path("a.gml")});
        QCOMPARE(result.err, "tolvik-inspect: " + shown("empty") + " has no documents\n");
        QCOMPARE(result.out, shown("a.gml") + ":\n" + rowsOf("ant"));
        QCOMPARE(result.code, 1);
    }

    void aDirectoryThatCannotBeReadIsTold()
    {
        if (::geteuid() == 0 && QStandardPaths::findExecutable("setpriv").isEmpty()) {
            QSKIP("nothing can be hidden from the superuser");
        }
        QVERIFY(QDir(directory->path()).mkpath("city/closed"));
        QVERIFY(writeFile(path("city/a.gml"), house("x")));
        const QFile::Permissions everyone = QFile::Permissions(0x7755);
        QVERIFY(QFile::setPermissions(directory->path(), everyone));
        QVERIFY(QFile::setPermissions(path("city"), everyone));
        QCOMPARE(::chmod(QFile::encodeName(path("city/closed")).constData(), 0), 0);
        const ProcessResult result = inspectAsAnyone({"rows", "--recursive", path("city")});
        ::chmod(QFile::encodeName(path("city/closed")).constData(), 0700);
        QCOMPARE(result.err,
                 "tolvik-inspect: " + shown("city/closed") + " could not be read: Permission denied\n");
        QCOMPARE(result.out, shown("city/a.gml") + ":\n" + rowsOf("x"));
        QCOMPARE(result.code, 1);
    }

    void documentsAreWrittenIntoAFolder_data()
    {
        QTest::addColumn<QStringList>("command");
        QTest::addColumn<QByteArray>("changed");
        QTest::newRow("save") << QStringList{"save"} << QByteArray(">3<");
        QTest::newRow("repair") << QStringList{"repair"} << QByteArray(">3<");
        QTest::newRow("set") << QStringList{"set", "Fields/MeasuredHeight", "8", "--id", "ant"}
                             << QByteArray(">8<");
    }

    void documentsAreWrittenIntoAFolder()
    {
        QFETCH(QStringList, command);
        QFETCH(QByteArray, changed);
        QVERIFY(writeFile(path("list"), shown("broken.gml") + "\n" + shown("a.gml") + "\n"));
        const ProcessResult result =
            runTool(command + QStringList{"--files-from", path("list"), "--out-dir", path("out/new")});
        QCOMPARE(result.code, 1);
        QVERIFY2(result.err.contains(shown("broken.gml") + " could not be loaded: "), result.err);
        QCOMPARE(contentOf(path("out/new/a.gml")).replace(changed, ">3<"), contentOf(path("a.gml")));
        QVERIFY(contentOf(path("out/new/a.gml")).contains(changed));
        QVERIFY(!QFile::exists(path("out/new/broken.gml")));
    }

    void eachDocumentThatLacksTheFeatureIsTold()
    {
        const ProcessResult result = runTool({"set", "Fields/MeasuredHeight", "8", path("a.gml"),
                                              path("b.gml"), "--id", "bee", "--out-dir", path("out")});
        QCOMPARE(result.code, 1);
        QCOMPARE(result.err, "tolvik-inspect: " + shown("a.gml") + ": no feature has the gml:id bee\n");
        QVERIFY(!QFile::exists(path("out/a.gml")));
        QVERIFY(contentOf(path("out/b.gml")).contains(">8<"));
    }

    void documentsInAFolderNeedNamesOfTheirOwn()
    {
        QVERIFY(QDir(directory->path()).mkdir("other"));
        QVERIFY(QFile::copy(path("a.gml"), path("other/a.gml")));
        ProcessResult result =
            runTool({"save", path("a.gml"), path("other/a.gml"), "--out-dir", path("out")});
        QCOMPARE(result.code, 2);
        QVERIFY2(result.err.contains("several documents would be written to " + shown("out/a.gml")),
                 result.err);
        QVERIFY(!QFile::exists(path("out")));
        QCOMPARE(runTool({"save", "-", "--out-dir", path("out")}, house("bee")).code, 2);
        QCOMPARE(runTool({"save", path("a.gml"), path("b.gml"), path("c.gml")}).code, 2);
    }

    void picturesTakeTheNamesOfTheirDocuments()
    {
        const ProcessResult result =
            runTool({"picture", examples() + "/district.gml", "--size", "40x30", "--out-dir", path("out")});
        QCOMPARE(result.code, 0);
        QVERIFY(contentOf(path("out/district.png")).startsWith("\x89PNG"));
    }
};

TEST_CLASS(ManyDocumentsTest, Core)
#include "manydocumentstest.moc"
