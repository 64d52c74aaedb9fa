#include "support/Documents.h"
#include "support/Files.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "support/ToolCommand.h"

#include <memory>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace testsupport;

namespace {

QByteArray house(const QByteArray& id, const QByteArray& height)
{
    return buildingMember("<gen:stringAttribute name='owner'><gen:value>Ada</gen:value></gen:stringAttribute>"
                          "<bldg:function codeSpace='c'>1000</bldg:function>"
                          "<bldg:yearOfConstruction>1900</bldg:yearOfConstruction>"
                          "<bldg:measuredHeight uom='m'>" +
                              height + "</bldg:measuredHeight>",
                          id);
}

} // namespace

/// `tolvik-inspect apply`.
class ApplyCommandTest : public QObject
{
    Q_OBJECT

private:
    QString path(const QString& name) const { return directory->filePath(name); }
    QByteArray shown(const QString& name) const { return path(name).toUtf8(); }

    /// Applies a table to a document of two houses.
    ProcessResult apply(const QByteArray& table, const QStringList& options = {}) const
    {
        if (!writeFile(path("t.csv"), table)) {
            return {-1, {}, {}};
        }
        return runTool(QStringList{"apply", path("t.csv"), path("a.gml"), "--out", path("out.gml")} +
                       options);
    }

    /// The document that was written, with one of its texts taken back to what the input has.
    QByteArray written(const QByteArray& changed, const QByteArray& former) const
    {
        return contentOf(path("out.gml")).replace(changed, former);
    }

    /// What a save writes without an edit.
    QByteArray saved(const QString& name) const
    {
        return runTool({"save", path(name), path("saved.gml")}).code == 0 ? contentOf(path("saved.gml"))
                                                                          : QByteArray();
    }

    std::unique_ptr<QTemporaryDir> directory;

private slots:
    void init()
    {
        directory = std::make_unique<QTemporaryDir>();
        QVERIFY(directory->isValid());
        QVERIFY(writeFile(path("a.gml"), documentText(house("one", "12.50") + house("two", "7"))));
        QVERIFY(writeFile(path("b.gml"), documentText(house("three", "3"))));
    }

    void aCellChangesTheAttributeThatItNames()
    {
        const ProcessResult result = apply("gml:id,Fields/MeasuredHeight,gen:owner\ntwo,8.25,\n");
        QCOMPARE(result.err, QByteArray());
        QCOMPARE(result.code, 0);
        QVERIFY(contentOf(path("out.gml")).contains(">8.25<"));
        QCOMPARE(written(">8.25<", ">7<"), saved("a.gml"));
    }

    void aPlainDocumentIsWrittenAnew()
    {
        const auto plain = [this](const QString& name) {
            return runTool({"save", path(name), path("plain.gml"), "--plain"}).code == 0
                       ? contentOf(path("plain.gml"))
                       : QByteArray();
        };
        QCOMPARE(apply("gml:id,Fields/MeasuredHeight\ntwo,8.25\n", {"--plain"}).code, 0);
        QCOMPARE(written(">8.25<", ">7<"), plain("a.gml"));
        QVERIFY(plain("a.gml") != contentOf(path("a.gml")));
        QCOMPARE(apply("gml:id,Fields/MeasuredHeight\ntwo,7\n", {"--plain"}).code, 0);
        QCOMPARE(contentOf(path("out.gml")), plain("a.gml"));
    }

    void whatIsShownAlreadyChangesNothing()
    {
        const ProcessResult result =
            apply("gml:id,Fields/MeasuredHeight,Fields/YearOfConstruction,Fields/Function,"
                  "gen:owner,type\n"
                  "one,12.5,1900,\"[ \"\"1000\"\" ]\",Ada,Building\ntwo,,,,,\n");
        QCOMPARE(result.err, QByteArray());
        QCOMPARE(result.code, 0);
        QCOMPARE(contentOf(path("out.gml")), contentOf(path("a.gml")));
    }

    void anExportedTableChangesNothing_data()
    {
        QTest::addColumn<QString>("document");
        QTest::addColumn<QString>("target");
        for (const char* const target : {"t", "t.gpkg", "t.xlsx"}) {
            QTest::newRow(target) << examples() + "/district.gml" << target;
        }
        QTest::newRow("energy") << examples() + "/energy.gml"
                                << "t.gpkg";
        QTest::newRow("ladmfr") << examples() + "/ladmfr.gml"
                                << "t.xlsx";
    }

    void anExportedTableChangesNothing()
    {
        QFETCH(QString, document);
        QFETCH(QString, target);
        QCOMPARE(runTool({"table", document, "--out", path(target)}).code, 0);
        const ProcessResult result = runTool({"apply", path(target), document, "--out", path("out.gml")});
        QVERIFY2(result.code == 0, result.err);
        QVERIFY(contentOf(path("out.gml")) == contentOf(document));
    }

    void nothingIsWrittenWhereACellIsWrong_data()
    {
        QTest::addColumn<QByteArray>("table");
        QTest::addColumn<QByteArray>("reason");
        QTest::newRow("unknown feature") << QByteArray("gml:id,gen:owner\ntwo,Bo\nnone,Bo\n")
                                         << QByteArray("t: line 3: none: no document has such a feature\n");
        QTest::newRow("unknown attribute")
            << QByteArray("gml:id,gen:owner,gen:tenant\none,Bo,\ntwo,Bo,Cy\n")
            << QByteArray("t: line 3: two: gen:tenant: the feature has no such "
                          "attribute\n");
        QTest::newRow("no number") << QByteArray("gml:id,gen:owner,Fields/MeasuredHeight\none,Bo,tall\n")
                                   << QByteArray(
                                          "t: line 2: one: Fields/MeasuredHeight: MeasuredHeight cannot be "
                                          "\"tall\"\n");
        QTest::newRow("other unit")
            << QByteArray("gml:id,gen:owner,Fields/MeasuredHeight [ft]\none,Bo,3\n")
            << QByteArray("t: line 2: one: Fields/MeasuredHeight [ft]: the unit is \"m\", and "
                          "not \"ft\"\n");
        QTest::newRow("same number in another unit")
            << QByteArray("gml:id,gen:owner,Fields/MeasuredHeight [ft]\none,Bo,12.5\n")
            << QByteArray("t: line 2: one: Fields/MeasuredHeight [ft]: the unit is \"m\", and "
                          "not \"ft\"\n");
        QTest::newRow("unit of the row")
            << QByteArray("gml:id,gen:owner,Fields/MeasuredHeight,"
                          "Fields/MeasuredHeight/@uom\none,Bo,3,ft\n")
            << QByteArray("t: line 2: one: Fields/MeasuredHeight: the unit is \"m\"");
        QTest::newRow("type") << QByteArray("gml:id,gen:owner,type\none,Bo,Bridge\n")
                              << QByteArray("t: line 2: one: type: it is \"Building\"");
        QTest::newRow("parent") << QByteArray("gml:id,gen:owner,parent\none,Bo,two\n")
                                << QByteArray("t: line 2: one: parent: it is \"\"");
    }

    void nothingIsWrittenWhereACellIsWrong()
    {
        QFETCH(QByteArray, table);
        QFETCH(QByteArray, reason);
        const ProcessResult result = apply(table);
        QCOMPARE(result.code, 1);
        QVERIFY2(result.err.contains("tolvik-inspect: " + reason), result.err);
        QVERIFY(!QFile::exists(path("out.gml")));
        // All else is written on demand, and what is wrong leaves its attribute as it was.
        QCOMPARE(apply(table, {"--skip-bad"}).code, 1);
        QVERIFY(contentOf(path("out.gml")).contains(">Bo<"));
        QVERIFY(written(">Bo<", ">Ada<") == saved("a.gml"));
    }

    /// Spreadsheets have one kind of numbers.
    void aWholeNumberMayBeWrittenAsAReal()
    {
        QVERIFY(writeFile(
            path("a.gml"),
            documentText(buildingMember("<bldg:storeysAboveGround>03</bldg:storeysAboveGround>", "one"))));
        QCOMPARE(apply("gml:id,Fields/StoreysAboveGround\none,3.0\n").err, QByteArray());
        QCOMPARE(contentOf(path("out.gml")), contentOf(path("a.gml")));
    }

    void whatTheSchemaRequiresStays()
    {
        const QByteArray member = "<core:cityObjectMember><energy:EnergyDemand gml:id='one'>"
                                  "<energy:endUse>Cooking</energy:endUse></energy:EnergyDemand>"
                                  "</core:cityObjectMember>";
        QVERIFY(
            writeFile(path("a.gml"),
                      documentText(member, " xmlns:energy='http://www.sig3d.org/citygml/2.0/energy/1.0'")));
        const ProcessResult result =
            apply("gml:id,Properties/Energy/endUse\none,NULL\n", {"--absent", "NULL", "--skip-bad"});
        QCOMPARE(result.code, 1);
        QVERIFY2(result.err.contains("line 2: one: Properties/Energy/endUse: it cannot be removed"),
                 result.err);
        QCOMPARE(contentOf(path("out.gml")), contentOf(path("a.gml")));
    }

    void anAttributeOfASetCanBeTakenOut()
    {
        const auto note = [](const QByteArray& name) {
            return "<gen:stringAttribute name='" + name + "'><gen:value>" + name +
                   "</gen:value></gen:stringAttribute>";
        };
        const QByteArray set =
            "<gen:genericAttributeSet name='set'>" + note("a") + note("b") + "</gen:genericAttributeSet>";
        QVERIFY(writeFile(path("a.gml"), documentText(buildingMember(note("b") + set, "one"))));
        QCOMPARE(runTool({"table", path("a.gml"), "--type", "Building", "--out", path("b.csv")}).code, 0);
        const QByteArray columns = contentOf(path("b.csv")).split('\n').first();
        QVERIFY2(columns.endsWith(",gen:set/b"), columns);
        QCOMPARE(apply("gml:id,gen:set/b\none,-\n", {"--absent", "-"}).err, QByteArray());
        QCOMPARE(contentOf(path("out.gml")).replace(note("a"), note("a") + note("b")),
                 contentOf(path("a.gml")));
    }

    void aWordTakesAttributesOut()
    {
        const ProcessResult result =
            apply("gml:id,Fields/MeasuredHeight,gen:owner,Fields/RoofType\none,NULL,NULL,NULL\n",
                  {"--absent", "NULL"});
        QCOMPARE(result.err, QByteArray());
        QCOMPARE(result.code, 0);
        const QByteArray text = contentOf(path("out.gml"));
        QCOMPARE(text.count("measuredHeight>"), 1);
        QCOMPARE(text.count("stringAttribute>"), 1);
        QVERIFY(text.contains(">7<"));
    }

    void unknownColumnsBecomeGenericAttributesOnDemand()
    {
        const ProcessResult result = apply("gml:id,gen:demand [kWh],floors,gen:note,gen:seen,gen:share\n"
                                           "one,12.5,3,a b,2020-02-03,0.5\ntwo,7,,,,\n",
                                           {"--create"});
        QCOMPARE(result.err, QByteArray());
        QCOMPARE(result.code, 0);
        QCOMPARE(runTool({"table", path("out.gml"), "--type", "Building", "--columns",
                          "gen:demand,gen:floors,gen:note,gen:seen,gen:share", "--out", path("b")})
                     .code,
                 0);
        const QByteArray columns = contentOf(path("b/columns.csv"));
        QVERIFY2(columns.contains(
                     "Building,gen:demand,real,kWh\nBuilding,gen:floors,whole,\nBuilding,gen:note,text,\n"
                     "Building,gen:seen,date,\nBuilding,gen:share,real,\n"),
                 columns);
        const QByteArray table = contentOf(path("b/Building.csv"));
        QVERIFY2(table.contains(",12.5,3,a b,2020-02-03,0.5\n") && table.contains(",7,,,,\n"), table);
    }

    void theNameIsTheFirstOne()
    {
        QCOMPARE(apply("gml:id,name\none,Lantern House\n").code, 0);
        QVERIFY(contentOf(path("out.gml")).contains("<gml:name>Lantern House</gml:name>"));
    }

    void severalDocumentsAreWrittenToAFolder()
    {
        QVERIFY(writeFile(path("t.csv"), "gml:id,gen:owner\none,Bo\nthree,Cy\n"));
        const ProcessResult result =
            runTool({"apply", path("t.csv"), path("a.gml"), path("b.gml"), "--out-dir", path("out")});
        QCOMPARE(result.err, QByteArray());
        QCOMPARE(result.code, 0);
        QVERIFY(contentOf(path("out/a.gml")).contains(">Bo<"));
        QVERIFY(contentOf(path("out/b.gml")).contains(">Cy<"));
    }

    void aFeatureOfSeveralDocumentsNeedsTheFile()
    {
        QVERIFY(QDir(directory->path()).mkdir("other"));
        QVERIFY(writeFile(path("other/c.gml"), documentText(house("one", "1"))));
        QVERIFY(writeFile(path("t.csv"), "gml:id,gen:owner\none,Bo\n"));
        const QStringList command{"apply",     path("t.csv"), path("a.gml"), path("other/c.gml"),
                                  "--out-dir", path("out")};
        ProcessResult result = runTool(command);
        QCOMPARE(result.code, 1);
        QVERIFY2(result.err.contains("line 2: one: the feature is in " + shown("a.gml") + " and in " +
                                     shown("other/c.gml")),
                 result.err);
        QVERIFY(!QFile::exists(path("out/a.gml")));
        QVERIFY(writeFile(path("t.csv"), "gml:id,file,gen:owner\none,elsewhere/c.gml,Bo\n"));
        result = runTool(command);
        QCOMPARE(result.err, QByteArray());
        QCOMPARE(contentOf(path("out/a.gml")), contentOf(path("a.gml")));
        QVERIFY(contentOf(path("out/c.gml")).contains(">Bo<"));
    }

    void aRowOfTwoDocumentsChangesNeither()
    {
        QVERIFY(writeFile(path("c.gml"), documentText(house("one", "1") + house("four", "4"))));
        QVERIFY(writeFile(path("t.csv"), "gml:id,gen:owner\none,Bo\nfour,Cy\n"));
        QCOMPARE(runTool({"apply", path("t.csv"), path("a.gml"), path("c.gml"), "--out-dir", path("out"),
                          "--skip-bad"})
                     .code,
                 1);
        QCOMPARE(contentOf(path("out/a.gml")), contentOf(path("a.gml")));
        QCOMPARE(contentOf(path("out/c.gml")).count(">Cy<"), 1);
        QVERIFY(!contentOf(path("out/c.gml")).contains(">Bo<"));
    }

    /// Those of a CSV stand in a table of their own.
    void theUnitsOfAnExportedTableCount()
    {
        QCOMPARE(runTool({"table", path("a.gml"), "--out", path("t")}).code, 0);
        QVERIFY(writeFile(path("a.gml"), contentOf(path("a.gml")).replace("uom='m'", "uom='ft'")));
        const ProcessResult result = runTool({"apply", path("t"), path("a.gml"), "--out", path("out.gml")});
        QCOMPARE(result.code, 1);
        QVERIFY2(result.err.contains("one: Fields/MeasuredHeight: the unit is \"ft\", and not \"m\""),
                 result.err);
    }

    void aQueryMakesATable()
    {
        QCOMPARE(runTool({"table", path("a.gml"), "--out", path("t.gpkg")}).code, 0);
        const QString query = "SELECT \"gml:id\" AS key, 'from SQL' AS \"gen:owner\" FROM Building WHERE "
                              "\"Fields/MeasuredHeight\" < 10";
        const ProcessResult result = runTool({"apply", path("t.gpkg"), path("a.gml"), "--out",
                                              path("out.gml"), "--sql", query, "--id-column", "key"});
        QCOMPARE(result.err, QByteArray());
        QCOMPARE(written("from SQL", "Ada"), saved("a.gml"));
        QVERIFY(contentOf(path("out.gml")).contains("from SQL"));
    }

    void anAbsentMeasureGetsItsUnit_data()
    {
        QTest::addColumn<QByteArray>("table");
        QTest::newRow("of the column") << QByteArray("gml:id,Fields/MeasuredHeight [ft]\nbare,12.5\n");
        QTest::newRow("of the row") << QByteArray(
            "gml:id,Fields/MeasuredHeight,Fields/MeasuredHeight/@uom\nbare,12.5,ft\n");
    }

    void anAbsentMeasureGetsItsUnit()
    {
        QFETCH(QByteArray, table);
        QVERIFY(writeFile(path("a.gml"), documentText(buildingMember("", "bare"))));
        const ProcessResult result = apply(table);
        QCOMPARE(result.err, QByteArray());
        QVERIFY(contentOf(path("out.gml"))
                    .contains("<bldg:measuredHeight uom=\"ft\">12.5</bldg:measuredHeight>"));
    }

    void aMeasureWithoutAUnitIsNotMade()
    {
        QVERIFY(writeFile(path("a.gml"), documentText(buildingMember("", "bare"))));
        const ProcessResult result = apply("gml:id,Fields/MeasuredHeight\nbare,12.5\n");
        QCOMPARE(result.code, 1);
        QVERIFY2(result.err.contains("t: line 2: bare: Fields/MeasuredHeight: a measure needs a unit"),
                 result.err);
        QVERIFY(!QFile::exists(path("out.gml")));
        QCOMPARE(apply("gml:id,Fields/MeasuredHeight,name\nbare,12.5,New\n", {"--skip-bad"}).code, 1);
        QVERIFY(contentOf(path("out.gml")).contains("New"));
        QVERIFY(!contentOf(path("out.gml")).contains("measuredHeight"));
    }

    void onlyAMeasureHasAUnit()
    {
        QVERIFY(writeFile(path("a.gml"), documentText(buildingMember("", "bare"))));
        const ProcessResult result = apply("gml:id,Fields/RoofType [m]\nbare,1000\n", {"--skip-bad"});
        QCOMPARE(result.code, 1);
        QVERIFY2(result.err.contains("Fields/RoofType [m]: there is no value with the unit \"m\""),
                 result.err);
        QCOMPARE(contentOf(path("out.gml")), contentOf(path("a.gml")));
    }

    void rowsThatContradictEachOtherAreTold()
    {
        const QByteArray table = "gml:id,gen:owner,Fields/RoofType\none,Bo,1000\ntwo,Cy,\none,Cy,1000\n";
        const ProcessResult result = apply(table);
        QCOMPARE(result.code, 1);
        QVERIFY2(result.err.contains("t: line 4: one: gen:owner: \"Cy\" contradicts \"Bo\" of line 2\n"),
                 result.err);
        QCOMPARE(result.err.count("contradicts"), 1);
        QVERIFY(!QFile::exists(path("out.gml")));
        QCOMPARE(apply(table, {"--skip-bad"}).code, 1);
        const QByteArray text = contentOf(path("out.gml"));
        QCOMPARE(text.count(">Ada<"), 1);
        QCOMPARE(text.count(">Cy<"), 1);
        QCOMPARE(text.count("<bldg:roofType>1000<"), 1);
    }

    void whatStandsWithAValueStays()
    {
        QVERIFY(writeFile(path("a.gml"),
                          documentText(buildingMember("<gml:name codeSpace='n'>Old</gml:name>"
                                                      "<bldg:class codeSpace='c'>1000</bldg:class>"
                                                      "<bldg:function codeSpace='f'>1000</bldg:function>",
                                                      "one"))));
        const ProcessResult result =
            apply("gml:id,name,Fields/Class,Fields/Function\none,New,1010,\"[\"\"1010\"\"]\"\n");
        QCOMPARE(result.err, QByteArray());
        QCOMPARE(written(">1010<", ">1000<").replace(">New<", ">Old<"), contentOf(path("a.gml")));
        QCOMPARE(contentOf(path("out.gml")).count(">1010<"), 2);
    }

    void oneOfTwoColumnsOfAThingCanBeChanged()
    {
        QVERIFY(writeFile(path("a.gml"), documentText(buildingMember("<gml:name>Old</gml:name>", "one"))));
        QCOMPARE(apply("gml:id,name,Fields/Name\none,New,\"[\"\"Old\"\"]\"\n").err, QByteArray());
        QCOMPARE(written(">New<", ">Old<"), contentOf(path("a.gml")));
        QVERIFY(contentOf(path("out.gml")).contains(">New<"));
        QCOMPARE(apply("gml:id,name,Fields/Name\none,Old,\"[\"\"New\"\"]\"\n").err, QByteArray());
        QVERIFY(contentOf(path("out.gml")).contains(">New<"));
    }

    void equalAttributesGoEachByItself()
    {
        const QByteArray note = "<gen:stringAttribute name='note'><gen:value>";
        const QByteArray end = "</gen:value></gen:stringAttribute>";
        QVERIFY(writeFile(
            path("a.gml"),
            documentText(buildingMember(note + "1" + end + note + "2" + end + note + "3" + end, "one"))));
        QCOMPARE(apply("gml:id,gen:note,gen:note[2],gen:note[3]\none,-,-,4\n", {"--absent", "-"}).err,
                 QByteArray());
        const QByteArray text = contentOf(path("out.gml"));
        QCOMPARE(text.count("stringAttribute name"), 1);
        QVERIFY(text.contains(">4<"));
    }

    void theWordForAbsenceSaysNothingOfTheType()
    {
        QCOMPARE(apply("gml:id,gen:share\none,0.5\ntwo,-\n", {"--create", "--absent", "-"}).err,
                 QByteArray());
        QVERIFY(contentOf(path("out.gml")).contains("doubleAttribute name=\"share\""));
    }

    void aRowOfAGroupChangesThatGroup()
    {
        QVERIFY(writeFile(path("a.gml"), contentOf(examples() + "/energy.gml")));
        const QString floors = path("Building_floorArea.csv");
        QVERIFY(writeFile(floors, "gml:id,ordinal,outer,Properties/Energy/floorAreas/floorArea/type,"
                                  "Properties/Energy/floorAreas/floorArea/value\nmaison-du-port,2,,,97.5\n"));
        const QStringList command{"apply", floors, path("a.gml"), "--out", path("out.gml")};
        ProcessResult result = runTool(command);
        QCOMPARE(result.err, QByteArray());
        QVERIFY(contentOf(path("out.gml")).contains(">97.5<"));
        QCOMPARE(written(">97.5<", ">96.2<"), contentOf(path("a.gml")));
        QVERIFY(QFile::remove(path("out.gml")));
        QVERIFY(writeFile(
            floors, "gml:id,ordinal,Properties/Energy/floorAreas/floorArea/value\nmaison-du-port,3,1\n"));
        result = runTool(command);
        QCOMPARE(result.code, 1);
        QVERIFY2(
            result.err.contains("line 2: maison-du-port: Properties/Energy/floorAreas/floorArea/value: the "
                                "feature has no group 3 of floorArea"),
            result.err);
        QVERIFY(!QFile::exists(path("out.gml")));
    }

    void eachRowOfAFeatureChangesItsGroup()
    {
        const auto reference = [](const QByteArray& name) {
            return "<core:externalReference><core:externalObject><core:name>" + name +
                   "</core:name></core:externalObject></core:externalReference>";
        };
        QVERIFY(writeFile(path("a.gml"), documentText(buildingMember(
                                             reference("p") + reference("q") + reference("r"), "one"))));
        const QString references = path("Building_externalObjectReference.csv");
        QVERIFY(writeFile(references,
                          "gml:id,ordinal,Fields/ExternalReferences/externalObjectReference/ReferenceName\n"
                          "one,3,x\none,1,y\n"));
        QCOMPARE(runTool({"apply", references, path("a.gml"), "--out", path("out.gml")}).err, QByteArray());
        QCOMPARE(written(">x<", ">r<").replace(">y<", ">p<"), contentOf(path("a.gml")));
    }

    /// A type may have groups of one label in several places: the tables are numbered.
    void theSecondTableOfALabelIsOfItsOwnGroups()
    {
        const auto schedule = [](const QByteArray& member) {
            const QByteArray day =
                "<energy:dailySchedule><energy:DailySchedule><energy:dayType>Monday</energy:dayType>"
                "</energy:DailySchedule></energy:dailySchedule>";
            return "<energy:" + member +
                   "><energy:DailyPatternSchedule><energy:periodOfYear><energy:PeriodOfYear>" + day + day +
                   "</energy:PeriodOfYear></energy:periodOfYear></energy:DailyPatternSchedule></energy:" +
                   member + '>';
        };
        QVERIFY(writeFile(path("a.gml"),
                          documentText("<core:cityObjectMember><energy:UsageZone gml:id='zone'>" +
                                           schedule("coolingSchedule") + schedule("heatingSchedule") +
                                           "</energy:UsageZone></core:cityObjectMember>",
                                       " xmlns:energy='http://www.sig3d.org/citygml/2.0/energy/1.0'")));
        QCOMPARE(runTool({"table", path("a.gml"), "--out", path("t")}).code, 0);
        const QString days = path("t/UsageZone_dailySchedule2.csv");
        QByteArray rows = contentOf(days);
        QVERIFY2(rows.contains("heatingSchedule") && rows.count("Monday") == 2, rows);
        rows.replace(rows.lastIndexOf("Monday"), 6, "Sunday");
        QVERIFY(writeFile(days, rows));
        QCOMPARE(runTool({"apply", days, path("a.gml"), "--out", path("out.gml")}).code, 0);
        const QByteArray text = contentOf(path("out.gml"));
        QCOMPARE(text.count("Sunday"), 1);
        QVERIFY(text.indexOf("Sunday") > text.lastIndexOf("Monday"));
    }

    void whatIsNoTableIsTold()
    {
        QCOMPARE(runTool({"apply", path("none.csv"), path("a.gml"), "--out", path("out.gml")}).code, 1);
        const ProcessResult result = apply("name,height\nx,1\n");
        QCOMPARE(result.code, 1);
        QVERIFY2(result.err.contains("has no table with a column gml:id"), result.err);
        QCOMPARE(runTool({"apply", path("t.csv"), path("a.gml")}).code, 2);
        QCOMPARE(runTool({"apply", path("t.csv"), path("a.gml"), path("b.gml"), "--out", path("o")}).code, 2);
    }
};

TEST_CLASS(ApplyCommandTest, Core)
#include "applycommandtest.moc"
