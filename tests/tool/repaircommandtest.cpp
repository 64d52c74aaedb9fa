#include "support/Files.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "support/ToolCommand.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>
#include <unistd.h>

using namespace testsupport;

namespace {

const QByteArray start = "<core:CityModel xmlns:core='http://www.opengis.net/citygml/2.0'"
                         " xmlns:app='http://www.opengis.net/citygml/appearance/2.0'"
                         " xmlns:bldg='http://www.opengis.net/citygml/building/2.0'"
                         " xmlns:gml='http://www.opengis.net/gml'"
                         " xmlns:xlink='http://www.w3.org/1999/xlink' xmlns:x='urn:x'>";

QByteArray city(const QByteArray& members)
{
    return start + members + "</core:CityModel>";
}

/// A building in a line of its own, whose polygon has an identifier and is referred to.
QByteArray house(const QByteArray& id, const QByteArray& polygon)
{
    return "\n<core:cityObjectMember><bldg:Building gml:id='" + id +
           "'><bldg:lod1MultiSurface><gml:MultiSurface><gml:surfaceMember><gml:Polygon gml:id='" + polygon +
           "'/></gml:surfaceMember></gml:MultiSurface></bldg:lod1MultiSurface><bldg:lod2Solid xlink:href='#" +
           polygon + "'/></bldg:Building></core:cityObjectMember>";
}

} // namespace

/// What `tolvik-inspect repair` puts right, and what it leaves alone.
class RepairCommandTest : public QObject
{
    Q_OBJECT

private:
    QString path(const QString& name) const { return directory->filePath(name); }

    /// Repairs a document and compares the output, but for white space between elements.
    void repairTo(const QByteArray& document, const QByteArray& expected, const QByteArrayList& notes)
    {
        QVERIFY(writeFile(path("in.gml"), document));
        const ProcessResult result = runTool({"repair", path("in.gml"), path("out.gml"), "--plain"});
        QCOMPARE(result.err, QByteArray());
        QCOMPARE(result.code, 0);
        QByteArray told;
        for (const QByteArray& note : notes) {
            told += path("in.gml").toUtf8() + ':' + note + '\n';
        }
        QCOMPARE(result.out, told);
        QVERIFY(writeFile(path("expected.gml"), expected));
        QCOMPARE(runTool({"save", path("expected.gml"), path("expected.gml"), "--plain"}).code, 0);
        QCOMPARE(contentOf(path("out.gml")), contentOf(path("expected.gml")));
        QCOMPARE(contentOf(path("in.gml")), document);
    }

    std::unique_ptr<QTemporaryDir> directory;

private slots:
    void init()
    {
        directory = std::make_unique<QTemporaryDir>();
        QVERIFY(directory->isValid());
    }

    void referencesFollowInTheirMemberAlone()
    {
        const QByteArray inBuilding = "/core:CityModel/core:cityObjectMember/bldg:Building";
        repairTo(city(house("a", "p") + house("b", "p") + house("c", "q")),
                 city(house("a", "p") + house("b", "p-2") + house("c", "q")),
                 {"3:110: " + inBuilding +
                      "/bldg:lod1MultiSurface/gml:MultiSurface/gml:surfaceMember/gml:Polygon: the identifier "
                      "'p' stood twice; here it is 'p-2' now (feature b)",
                  "3:198: " + inBuilding +
                      "/bldg:lod2Solid: the reference to 'p' refers to 'p-2' now (feature b)"});
    }

    void everyLaterOneGetsAFreeName()
    {
        // One of the free names is taken, another one is referred to.
        const QByteArray others = "<x:a gml:id='p-2'/><x:a xlink:href='#p-3'/>";
        QVERIFY(
            writeFile(path("in.gml"), city(house("a", "p") + house("b", "p") + house("p", "r") + others)));
        QCOMPARE(runTool({"repair", path("in.gml"), path("out.gml"), "--plain"}).code, 0);
        const QByteArray out = contentOf(path("out.gml"));
        for (const char* name : {"p", "p-2", "p-4", "p-5"}) {
            QCOMPARE(out.count(QByteArray("gml:id=\"") + name + '"'), 1);
        }
        QCOMPARE(out.count("#p-3"), 1);
        QCOMPARE(runTool({"rows", path("out.gml")}).code, 0);
    }

    void referencesStayWhereTheFirstIsInTheirMember()
    {
        const QByteArray twice = "<x:a gml:id='p'/></bldg:Building>";
        repairTo(city(house("a", "p").replace("</bldg:Building>", twice)),
                 city(house("a", "p").replace("</bldg:Building>", "<x:a gml:id='p-2'/></bldg:Building>")),
                 {"2:231: /core:CityModel/core:cityObjectMember/bldg:Building/x:a: the identifier 'p' stood "
                  "twice; here it is 'p-2' now (feature a)"});
    }

    void referencesOfAppearancesFollow()
    {
        const auto roof = [](const QByteArray& polygon) {
            return QByteArray(
                       "\n<core:cityObjectMember><bldg:Building>"
                       "<app:appearance><app:Appearance><app:surfaceDataMember><app:ParameterizedTexture>"
                       "<app:imageURI>a.png</app:imageURI><app:target uri='#") +
                   polygon + "'><app:TexCoordList><app:textureCoordinates ring='#" + polygon +
                   "'>0 0</app:textureCoordinates></app:TexCoordList></app:target></app:ParameterizedTexture>"
                   "</app:surfaceDataMember><app:surfaceDataMember><app:X3DMaterial><app:target>#" +
                   polygon +
                   "</app:target></app:X3DMaterial></app:surfaceDataMember></app:Appearance></app:appearance>"
                   "<bldg:lod1MultiSurface><gml:MultiSurface><gml:surfaceMember><gml:Polygon gml:id='" +
                   polygon +
                   "'/></gml:surfaceMember></gml:MultiSurface></bldg:lod1MultiSurface>"
                   "</bldg:Building></core:cityObjectMember>";
        };
        QVERIFY(writeFile(path("in.gml"), city(roof("p") + roof("p"))));
        const ProcessResult result = runTool({"repair", path("in.gml"), path("out.gml"), "--plain"});
        QCOMPARE(result.out.count('\n'), 4);
        QVERIFY(writeFile(path("expected.gml"), city(roof("p") + roof("p-2"))));
        QCOMPARE(runTool({"save", path("expected.gml"), path("expected.gml"), "--plain"}).code, 0);
        QCOMPARE(contentOf(path("out.gml")), contentOf(path("expected.gml")));
    }

    void referencesOutOfMembersStay()
    {
        const QByteArray group = "\n<core:cityObjectMember xlink:href='#a'/>";
        repairTo(
            city(house("a", "p") + house("a", "q") + group),
            city(house("a", "p") + house("a-2", "q") + group),
            {"3:24: /core:CityModel/core:cityObjectMember/bldg:Building: the identifier 'a' stood twice; "
             "here it is 'a-2' now (feature a-2)"});
    }

    void theOlderVersionBecomesTheNewOne()
    {
        // What is referred to is no free name in that version either.
        QByteArray older =
            city(house("a", "p") + house("b", "p") +
                 "<app:appearanceMember><app:Appearance><app:surfaceDataMember><app:X3DMaterial>"
                 "<app:target>#p-2</app:target></app:X3DMaterial></app:surfaceDataMember>"
                 "</app:Appearance></app:appearanceMember>");
        for (const char* module : {"citygml", "building", "appearance"}) {
            older.replace(module + QByteArray("/2.0"), module + QByteArray("/1.0"));
        }
        QVERIFY(writeFile(path("in.gml"), older));
        const ProcessResult result = runTool({"repair", path("in.gml"), path("out.gml"), "--plain"});
        QCOMPARE(result.code, 0);
        QCOMPARE(result.out.count('\n'), 3);
        QVERIFY2(result.out.startsWith(path("in.gml").toUtf8() +
                                       ":1:1: /core:CityModel: the document was of CityGML 1.0; it is of "
                                       "CityGML 2.0 now\n"),
                 result.out);
        QVERIFY2(result.out.contains("'p-3'"), result.out);
        const ProcessResult rows = runTool({"rows", path("out.gml")});
        QCOMPARE(rows.code, 0);
        // A load warns of the older version.
        QCOMPARE(rows.err, QByteArray());
    }

    void elementsArePutInOrder()
    {
        const auto with = [](const QByteArray& content) {
            return city(
                house("a", "p").replace("<bldg:lod1MultiSurface>", content + "<bldg:lod1MultiSurface>"));
        };
        const QByteArray storeys = "<bldg:storeysAboveGround>1</bldg:storeysAboveGround>";
        const QByteArray inBuilding = "/core:CityModel/core:cityObjectMember/bldg:Building";
        repairTo(with(storeys + "<gml:name>a</gml:name><bldg:class>1000</bldg:class>"),
                 with("<gml:name>a</gml:name><bldg:class>1000</bldg:class>" + storeys),
                 {"2:102: " + inBuilding +
                  "/gml:name: the element 'gml:name' belongs in front of 'bldg:storeysAboveGround'; it "
                  "stands there now (feature a)"});
    }

    void savesWhatNeedsNoRepair()
    {
        const QString district = examples() + "/district.gml";
        const ProcessResult result = runTool({"repair", district, path("out.gml")});
        QCOMPARE(result.out, QByteArray());
        QCOMPARE(result.err, QByteArray());
        QCOMPARE(result.code, 0);
        QCOMPARE(contentOf(path("out.gml")), contentOf(district));
    }

    void changesOnlyWhatIsRepaired()
    {
        const QByteArray document = city(house("a", "p") + house("a", "q") + "<!-- end -->");
        QVERIFY(writeFile(path("in.gml"), document));
        const ProcessResult result = runTool({"repair", path("in.gml"), path("out.gml")});
        QCOMPARE(result.err, QByteArray());
        QByteArray expected = document;
        expected.replace(document.lastIndexOf("'a'"), 3, "'a-2'");
        QCOMPARE(contentOf(path("out.gml")), expected);
    }

    void keepsWhatIsWrongOtherwise()
    {
        const QByteArray wrong = "<bldg:storeysAboveGround>many</bldg:storeysAboveGround></bldg:Building>";
        QVERIFY(writeFile(path("in.gml"), city(house("a", "p").replace("</bldg:Building>", wrong))));
        const ProcessResult result = runTool({"repair", path("in.gml"), path("out.gml"), "--plain"});
        QCOMPARE(result.code, 0);
        QVERIFY2(result.err.contains("'many' is not a whole number without sign"), result.err);
        QVERIFY(contentOf(path("out.gml")).contains(">many<"));
    }

    void readsStandardInput()
    {
        QCOMPARE(runTool({"repair", "-", path("out.gml")}, city(house("a", "p") + house("a", "q"))).code, 0);
        QVERIFY(contentOf(path("out.gml")).contains("gml:id=\"a-2\""));
    }

    void neverRepairsInPlace_data()
    {
        QTest::addColumn<QString>("output");
        QTest::newRow("same name") << "in.gml";
        QTest::newRow("another way to it") << "sub/../in.gml";
        QTest::newRow("symbolic link") << "symbolic.gml";
        QTest::newRow("hard link") << "hard.gml";
    }

    void neverRepairsInPlace()
    {
        QFETCH(QString, output);
        const QByteArray document = city(house("a", "p") + house("a", "p"));
        QVERIFY(writeFile(path("in.gml"), document));
        QVERIFY(QDir(directory->path()).mkpath("sub"));
        QVERIFY(QFile::link("in.gml", path("symbolic.gml")));
        QCOMPARE(::link(QFile::encodeName(path("in.gml")).constData(),
                        QFile::encodeName(path("hard.gml")).constData()),
                 0);
        const ProcessResult result = runTool({"repair", path("in.gml"), path(output)});
        QCOMPARE(result.code, 1);
        QCOMPARE(result.out, QByteArray());
        QCOMPARE(result.err, "tolvik-inspect: " + path(output).toUtf8() + " is the document itself\n");
        QCOMPARE(contentOf(path("in.gml")), document);

        const QString shell = QStringLiteral("exec '%1' repair - '%2' < '%2'");
        const ProcessResult piped = run("sh", {"-c", shell.arg(program("tolvik-inspect"), path(output))});
        QCOMPARE(piped.code, 1);
        QCOMPARE(contentOf(path("in.gml")), document);
    }

    void failsWithoutATrace_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QString>("output");
        QTest::addColumn<QByteArray>("reason");
        QTest::newRow("no document") << QByteArray("<a/>") << "out.gml"
                                     << QByteArray("1:1 error: the root element is 'a', not the CityModel of "
                                                   "CityGML 2.0\n");
        QTest::newRow("broken") << city(house("a", "p") + house("a", "p")).chopped(9) << "out.gml"
                                << QByteArray("3:271 error: unclosed token\n");
        QTest::newRow("no directory") << city(house("a", "p") + house("a", "p")) << "none/out.gml"
                                      << QByteArray(" could not be saved: No such file or directory\n");
    }

    void failsWithoutATrace()
    {
        QFETCH(QByteArray, document);
        QFETCH(QString, output);
        QFETCH(QByteArray, reason);
        QVERIFY(writeFile(path("in.gml"), document));
        const ProcessResult result = runTool({"repair", path("in.gml"), path(output)});
        QCOMPARE(result.code, 1);
        QCOMPARE(result.out, QByteArray());
        QVERIFY2(result.err.endsWith(reason), result.err);
        QCOMPARE(QDir(directory->path()).entryList(QDir::Files | QDir::Hidden), QStringList("in.gml"));
    }

    void refusesWrongUsage()
    {
        QCOMPARE(runTool({"repair", examples() + "/district.gml"}).code, 2);
        QCOMPARE(runTool({"repair", "--json", "-", path("out.gml")}).code, 2);
    }
};

TEST_CLASS(RepairCommandTest, Core)
#include "repaircommandtest.moc"
