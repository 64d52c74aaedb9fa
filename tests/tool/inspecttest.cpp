#include "support/Files.h"
#include "support/Processes.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "support/ToolCommand.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

using namespace testsupport;

namespace {

const QString tool = program("tolvik-inspect");
const QString district = examples() + "/district.gml";

// The name of the building stands over two lines; the door has neither name nor identifier.
const QByteArray town = "<core:CityModel xmlns:core='http://www.opengis.net/citygml/2.0' "
                        "xmlns:bldg='http://www.opengis.net/citygml/building/2.0' "
                        "xmlns:gml='http://www.opengis.net/gml'>"
                        R"(
  <gml:name>Gänsemarkt "alt"</gml:name>
  <core:cityObjectMember>
    <bldg:Building gml:id="house">
      <gml:name>Old
        house</gml:name>
      <bldg:measuredHeight uom="m">12.25</bldg:measuredHeight>
      <bldg:storeysAboveGround>3</bldg:storeysAboveGround>
      <bldg:boundedBy>
        <bldg:WallSurface gml:id="wall">
          <gml:name>Wall</gml:name>
          <bldg:opening><bldg:Door/></bldg:opening>
        </bldg:WallSurface>
      </bldg:boundedBy>
    </bldg:Building>
  </core:cityObjectMember>
</core:CityModel>
)";

mode_t permissions(const QString& path)
{
    struct ::stat status = {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

/// A process whose standard error is a terminal.
class TerminalProcess : public QProcess
{
public:
    TerminalProcess()
        : master(::posix_openpt(O_RDWR | O_NOCTTY)), slave(::grantpt(master) == 0 && ::unlockpt(master) == 0
                                                               ? ::open(::ptsname(master), O_RDWR | O_NOCTTY)
                                                               : -1)
    {
    }
    ~TerminalProcess() override
    {
        ::close(master);
        ::close(slave);
    }

    /// What the process has written to the terminal.
    QByteArray written() const
    {
        ::fcntl(master, F_SETFL, O_NONBLOCK);
        QByteArray text(0x10000, '\0');
        const ssize_t length = ::read(master, text.data(), static_cast<std::size_t>(text.size()));
        return text.left(static_cast<int>(std::max<ssize_t>(length, 0)));
    }

protected:
    void setupChildProcess() override { ::dup2(slave, STDERR_FILENO); }

private:
    int master;
    int slave;
};

} // namespace

/// The terminal tool, as a user meets it: commands, exit codes, output and what it leaves on the disk.
class InspectTest : public QObject
{
    Q_OBJECT

private:
    QString path(const QString& name) const { return directory->filePath(name); }

    /// The names of all files in the test's directory, hidden ones too.
    QStringList files() const
    {
        return QDir(directory->path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    std::unique_ptr<QTemporaryDir> directory;

private slots:
    void init()
    {
        directory = std::make_unique<QTemporaryDir>();
        QVERIFY(directory->isValid());
        QVERIFY(writeFile(path("town.gml"), town));
    }

    void listsRows()
    {
        const ProcessResult result = inspect({"rows", path("town.gml")});
        QCOMPARE(result.out, QByteArray("0\tCityModel\t-\tGänsemarkt \"alt\"\n"
                                        "1\tBuilding\thouse\tOld house\n"
                                        "2\tWallSurface\twall\tWall\n"
                                        "3\tDoor\t-\t<unset>\n"));
        QCOMPARE(result.err, QByteArray());
        QCOMPARE(result.code, 0);
    }

    void listsRowsAsJson()
    {
        const ProcessResult result = inspect({"rows", path("town.gml"), "--json"});
        QVERIFY(result.out.contains(
            "{\"row\":0,\"type\":\"CityModel\",\"id\":null,\"name\":\"Gänsemarkt \\\"alt\\\"\"}"));
        QJsonParseError error;
        const QJsonArray rows = QJsonDocument::fromJson(result.out, &error).array();
        QCOMPARE(error.error, QJsonParseError::NoError);
        QCOMPARE(rows.size(), 4);
        QCOMPARE(
            rows[1].toObject(),
            QJsonObject({{"row", 1}, {"type", "Building"}, {"id", "house"}, {"name", "Old\n        house"}}));
        QCOMPARE(rows[3].toObject(),
                 QJsonObject({{"row", 3}, {"type", "Door"}, {"id", QJsonValue()}, {"name", "<unset>"}}));
        QCOMPARE(result.code, 0);
    }

    void readsStandardInput()
    {
        const ProcessResult result = inspect({"rows", "-"}, town);
        QCOMPARE(result.out, inspect({"rows", path("town.gml")}).out);
        QCOMPARE(result.code, 0);
    }

    void readsNamedPipe()
    {
        const QString shell =
            QStringLiteral("mkfifo '%1' && cat '%2' > '%1' & sleep 0.1; exec '%3' rows '%1'");
        const ProcessResult result = run("sh", {"-c", shell.arg(path("pipe"), path("town.gml"), tool)});
        QCOMPARE(result.out, inspect({"rows", path("town.gml")}).out);
        QCOMPARE(result.code, 0);
    }

    void readsFileWithForeignName()
    {
        QVERIFY(QFile::copy(path("town.gml"), path("Gänsemarkt ☃.gml")));
        QCOMPARE(inspect({"rows", path("Gänsemarkt ☃.gml")}).code, 0);
    }

    void failsToLoad_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("reason");
        QTest::newRow("missing") << "nothing.gml" << QByteArray()
                                 << QByteArray("nothing.gml could not be loaded: no such file\n");
        QTest::newRow("directory") << "." << QByteArray()
                                   << QByteArray(" could not be loaded: is a directory\n");
        QTest::newRow("malformed") << "bad.gml" << town.left(town.size() / 2)
                                   << QByteArray("/bldg:Building/bldg:measuredHeight\n");
        QTest::newRow("empty") << "bad.gml" << QByteArray("")
                               << QByteArray(
                                      "bad.gml could not be loaded: document:1:1 error: no element found\n");
        QTest::newRow("other root") << "bad.gml" << QByteArray("<a/>")
                                    << QByteArray("bad.gml could not be loaded: document:1:1 error: the root "
                                                  "element is 'a', not the CityModel of CityGML 2.0\n");
    }

    void failsToLoad()
    {
        QFETCH(QString, file);
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, reason);
        if (!content.isNull()) {
            QVERIFY(writeFile(path(file), content));
        }
        QVERIFY(writeFile(path("out.gml"), "as it was"));
        const QList<QStringList> commands{
            {"rows", path(file)},
            {"rows", path(file), "--json"},
            {"tree", path(file)},
            {"properties", path(file), "--every"},
            {"set", path(file), "--id", "house", "Fields/Name", "x", path("out.gml")},
            {"save", path(file), path("out.gml")}};
        for (const QStringList& command : commands) {
            const ProcessResult result = runTool(command);
            QCOMPARE(result.code, 1);
            QCOMPARE(result.out, QByteArray());
            QVERIFY2(result.err.endsWith(reason), result.err);
        }
        QCOMPARE(contentOf(path("out.gml")), QByteArray("as it was"));
    }

    void tellsWhyStandardInputIsNotLoaded()
    {
        const ProcessResult result = inspect({"rows", "-"}, "<a/>");
        QCOMPARE(result.code, 1);
        QVERIFY2(
            result.err.startsWith("tolvik-inspect: standard input could not be loaded: document:1:1 error: "),
            result.err);
        QCOMPARE(result.err.count('\n'), 1);
    }

    void refusesWrongUsage_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("nothing") << QStringList();
        QTest::newRow("unknown command") << QStringList{"lines", district};
        QTest::newRow("no file") << QStringList{"rows"};
        QTest::newRow("two targets") << QStringList{"save", district, "/dev/null", "/dev/null"};
        QTest::newRow("unknown option") << QStringList{"rows", district, "--yaml"};
        QTest::newRow("option of another command") << QStringList{"rows", district, "--all"};
        QTest::newRow("no target") << QStringList{"save", district};
        QTest::newRow("no selection") << QStringList{"properties", district};
        QTest::newRow("two selections") << QStringList{"properties", district, "--every", "--row", "1"};
        QTest::newRow("row that is no number") << QStringList{"properties", district, "--row", "one"};
        QTest::newRow("option without its value") << QStringList{"properties", district, "--row"};
        QTest::newRow("no identifier") << QStringList{"set", district, "Fields/Name", "x", "/dev/null"};
        QTest::newRow("no value") << QStringList{"set",   district,      "--id",
                                                 "annex", "Fields/Name", "/dev/null"};
    }

    void refusesWrongUsage()
    {
        QFETCH(QStringList, arguments);
        const ProcessResult result = runTool(arguments);
        QCOMPARE(result.code, 2);
        QCOMPARE(result.out, QByteArray());
        QVERIFY2(result.err.startsWith("tolvik-inspect: "), result.err);
    }

    void showsHelpAndVersion()
    {
        const ProcessResult help = inspect({"--help"});
        QCOMPARE(help.code, 0);
        for (const char* command : {"rows FILE...", "tree FILE...", "properties FILE...", "set FILE",
                                    "save FILE", "check FILE...", "repair FILE OUT [--plain]"}) {
            QVERIFY2(help.out.contains(command), command);
        }
        // What the code of a refused value means.
        QVERIFY2(
            help.out.contains("1 a document could not be loaded or saved, has no such\nfeature or attribute, "
                              "or the attribute refused the value"),
            help.out);
        QCOMPARE(inspect({"-h"}).out, help.out);
        const ProcessResult version = inspect({"--version"});
        QCOMPARE(version.code, 0);
        QVERIFY(QString::fromUtf8(version.out)
                    .contains(QRegularExpression("^tolvik-inspect \\d+\\.\\d+\\.\\d+\n$")));
    }

    void saysWhenOutputIsLost()
    {
        const ProcessResult result =
            run("sh", {"-c", QStringLiteral("'%1' rows '%2' > /dev/full").arg(tool, district)});
        QCOMPARE(result.code, 1);
        QCOMPARE(result.err, QByteArray("tolvik-inspect: the output could not be written\n"));
    }

    void saves()
    {
        const ProcessResult result = inspect({"save", district, path("out.gml")});
        QCOMPARE(result.err, QByteArray());
        QCOMPARE(result.code, 0);
        QCOMPARE(contentOf(path("out.gml")), contentOf(district));
        QCOMPARE(files(), QStringList({"out.gml", "town.gml"}));
    }

    void savesAnewWhereThatIsAskedFor()
    {
        QCOMPARE(inspect({"save", district, path("out.gml"), "--plain"}).code, 0);
        QVERIFY(contentOf(path("out.gml")) != contentOf(district));
        QCOMPARE(inspect({"rows", path("out.gml")}).out, inspect({"rows", district}).out);
    }

    void tellsThatStandardInputIsSavedAnew()
    {
        const ProcessResult result = inspect({"save", "-", path("out.gml")}, contentOf(district));
        QCOMPARE(result.code, 0);
        QVERIFY2(result.err.endsWith("was written anew: the document was not read from a file\n"),
                 result.err);
        QCOMPARE(inspect({"rows", path("out.gml")}).out, inspect({"rows", district}).out);
    }

    void savesOverTheDocumentItself()
    {
        const QByteArray rows = inspect({"rows", path("town.gml")}).out;
        QCOMPARE(inspect({"save", path("town.gml"), path("town.gml")}).code, 0);
        QCOMPARE(inspect({"rows", path("town.gml")}).out, rows);
        QCOMPARE(files(), QStringList({"town.gml"}));
    }

    void savesWithSensiblePermissions()
    {
        const mode_t mask = ::umask(027);
        const int code = inspect({"save", path("town.gml"), path("new.gml")}).code;
        ::umask(mask);
        QCOMPARE(code, 0);
        QCOMPARE(permissions(path("new.gml")), mode_t(0640));

        QVERIFY(writeFile(path("old.gml"), "old"));
        QCOMPARE(::chmod(QFile::encodeName(path("old.gml")).constData(), 0604), 0);
        QCOMPARE(inspect({"save", path("town.gml"), path("old.gml")}).code, 0);
        QCOMPARE(permissions(path("old.gml")), mode_t(0604));
    }

    void savesWhereLinkLeads()
    {
        QVERIFY(writeFile(path("target.gml"), "old"));
        QVERIFY(QFile::link("target.gml", path("link.gml")));
        QCOMPARE(inspect({"save", path("town.gml"), path("link.gml")}).code, 0);
        QVERIFY(QFileInfo(path("link.gml")).isSymLink());
        QCOMPARE(inspect({"rows", path("target.gml")}).code, 0);
    }

    void failsToSave_data()
    {
        QTest::addColumn<QString>("output");
        QTest::addColumn<QByteArray>("reason");
        QTest::newRow("missing directory") << "no/out.gml" << QByteArray("No such file or directory\n");
        QTest::newRow("directory") << "." << QByteArray("is not a regular file\n");
    }

    void failsToSave()
    {
        QFETCH(QString, output);
        QFETCH(QByteArray, reason);
        const ProcessResult result = inspect({"save", path("town.gml"), path(output)});
        QCOMPARE(result.code, 1);
        QVERIFY2(result.err.startsWith("tolvik-inspect: ") &&
                     result.err.endsWith(" could not be saved: " + reason),
                 result.err);
        QCOMPARE(files(), QStringList({"town.gml"}));
    }

    void refusesToReplaceWriteProtectedFile()
    {
        if (::geteuid() == 0) {
            QSKIP("nothing is write-protected for the superuser");
        }
        QVERIFY(writeFile(path("out.gml"), "as it was"));
        QCOMPARE(::chmod(QFile::encodeName(path("out.gml")).constData(), 0444), 0);
        const ProcessResult result = inspect({"save", path("town.gml"), path("out.gml")});
        QCOMPARE(result.code, 1);
        QVERIFY2(result.err.endsWith("is write-protected\n"), result.err);
        QCOMPARE(contentOf(path("out.gml")), QByteArray("as it was"));
    }

    // A file may not grow beyond 4 KiB here, as on a disk that is full.
    void leavesFileAloneWhenDiskIsFull()
    {
        QVERIFY(writeFile(path("out.gml"), "as it was"));
        const QString shell = QStringLiteral("trap '' XFSZ; ulimit -f 8; exec '%1' save '%2' '%3'");
        const ProcessResult result = run("sh", {"-c", shell.arg(tool, district, path("out.gml"))});
        QCOMPARE(result.code, 1);
        QVERIFY2(result.err.contains("not all of it could be written"), result.err);
        QCOMPARE(contentOf(path("out.gml")), QByteArray("as it was"));
        QCOMPARE(files(), QStringList({"out.gml", "town.gml"}));
    }

    void showsTree()
    {
        const ProcessResult result = inspect({"tree", path("town.gml")});
        QCOMPARE(result.out, QByteArray("Gänsemarkt \"alt\" [CityModel]\n"
                                        "  Old house [Building]\n"
                                        "    Wall [WallSurface]\n"
                                        "      Door [Door]\n"));
        QCOMPARE(result.code, 0);

        const QJsonArray roots =
            QJsonDocument::fromJson(inspect({"tree", path("town.gml"), "--json"}).out).array();
        const auto node = [](const char* name, const char* type, int row, const QJsonValue& id,
                             const QJsonArray& children) {
            return QJsonObject{{"name", QString::fromUtf8(name)},
                               {"type", type},
                               {"row", row},
                               {"id", id},
                               {"children", children}};
        };
        const QJsonObject door = node("Door", "Door", 3, QJsonValue(), {});
        const QJsonObject wall = node("Wall", "WallSurface", 2, "wall", {door});
        const QJsonObject house = node("Old\n        house", "Building", 1, "house", {wall});
        QCOMPARE(roots, QJsonArray{node("Gänsemarkt \"alt\"", "CityModel", 0, QJsonValue(), {house})});
    }

    void treeLeavesAppearancesOut()
    {
        for (const QStringList& form : {QStringList(), QStringList("--json")}) {
            const QByteArray plain = inspect(QStringList{"tree", district} + form).out;
            const QByteArray all = inspect(QStringList{"tree", district, "--all"} + form).out;
            const QByteArray appearance = form.isEmpty() ? "[Appearance]" : "\"type\":\"Appearance\"";
            QVERIFY(plain.contains(form.isEmpty() ? "[Building]" : "\"type\":\"Building\""));
            QVERIFY(!plain.contains(appearance));
            QVERIFY(all.contains(appearance));
        }
    }

    void showsProperties()
    {
        const ProcessResult result = inspect({"properties", path("town.gml"), "--id", "house"});
        QCOMPARE(result.code, 0);
        QVERIFY2(result.out.startsWith("1 Building\n"), result.out);
        QVERIFY2(result.out.contains("MeasuredHeight: 12.25 m\n"), result.out);
        QCOMPARE(inspect({"properties", path("town.gml"), "--row", "1"}).out, result.out);
        QVERIFY(inspect({"properties", path("town.gml"), "--every"}).out.contains(result.out));
        QVERIFY(!result.out.contains("RoofType"));
        QVERIFY(inspect({"properties", path("town.gml"), "--row", "1", "--absent"}).out.contains("RoofType"));

        for (const QStringList& selection : {QStringList{"--every"}, QStringList{"--row", "1"}}) {
            QJsonParseError error;
            QJsonDocument::fromJson(
                inspect(QStringList{"properties", path("town.gml"), "--json"} + selection).out, &error);
            QCOMPARE(error.error, QJsonParseError::NoError);
        }
    }

    void findsNoSuchFeature()
    {
        for (const QStringList& selection : {QStringList{"--id", "barn"}, QStringList{"--row", "4"}}) {
            const ProcessResult result = inspect(QStringList{"properties", path("town.gml")} + selection);
            QCOMPARE(result.code, 1);
            QCOMPARE(result.out, QByteArray());
            QCOMPARE(result.err.count('\n'), 1);
        }
    }

    void setsOneValue_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        QTest::newRow("measure") << QStringList{"Fields/MeasuredHeight", "9.5"} << QByteArray(">12.25<")
                                 << QByteArray(">9.5<");
        QTest::newRow("negative") << QStringList{"--", "Fields/MeasuredHeight", "-1.5"}
                                  << QByteArray(">12.25<") << QByteArray(">-1.5<");
        QTest::newRow("number") << QStringList{"Fields/StoreysAboveGround", "4"} << QByteArray(">3<")
                                << QByteArray(">4<");
    }

    void setsOneValue()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        const ProcessResult result = inspect(QStringList{"set", path("town.gml"), "--id", "house"} +
                                             arguments + QStringList{path("out.gml")});
        QCOMPARE(result.err, QByteArray());
        QCOMPARE(result.code, 0);
        QByteArray expected = contentOf(path("town.gml"));
        QCOMPARE(expected.count(before), 1);
        QCOMPARE(contentOf(path("out.gml")), expected.replace(before, after));
    }

    void refusesToSet_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::newRow("unknown feature") << QStringList{"--id", "barn", "Fields/MeasuredHeight", "9.5"};
        QTest::newRow("unknown property") << QStringList{"--id", "house", "Fields/Weight", "9.5"};
        QTest::newRow("no number") << QStringList{"--id", "house", "Fields/MeasuredHeight", "high"};
        QTest::newRow("fixed") << QStringList{"--id", "house", "Fields/Id", "hut"};
    }

    void refusesToSet()
    {
        QFETCH(QStringList, arguments);
        QVERIFY(writeFile(path("out.gml"), "as it was"));
        const ProcessResult result =
            inspect(QStringList{"set", path("town.gml")} + arguments + QStringList{path("out.gml")});
        QCOMPARE(result.code, 1);
        QVERIFY2(result.err.startsWith("tolvik-inspect: "), result.err);
        QCOMPARE(result.err.count('\n'), 1);
        QCOMPARE(contentOf(path("out.gml")), QByteArray("as it was"));
    }

    void showsProgressOnTerminalAlone()
    {
        TerminalProcess process;
        process.start(tool, {"rows", district});
        const ProcessResult result = finish(process);
        QCOMPARE(result.code, 0);
        const QByteArray written = process.written();
        QVERIFY2(written.contains("Building Model"), written);
        // The line is erased when all is done.
        QVERIFY2(written.endsWith("\r\033[K"), written);
        QCOMPARE(result.out, inspect({"rows", district}).out);
        QCOMPARE(inspect({"rows", district}).err, QByteArray());
    }
};

TEST_CLASS(InspectTest, Core)
#include "inspecttest.moc"
