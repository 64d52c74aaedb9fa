#include "support/Documents.h"
#include "support/Files.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "support/ToolCommand.h"

#include <gdal_priv.h>
#include <memory>
#include <ogrsf_frmts.h>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

using namespace testsupport;

namespace {

QByteArray height(const QByteArray& value, const QByteArray& unit = "m")
{
    return "<bldg:measuredHeight uom='" + unit + "'>" + value + "</bldg:measuredHeight>";
}

QByteArray generic(const QByteArray& type, const QByteArray& name, const QByteArray& value)
{
    return "<gen:" + type + "Attribute name='" + name + "'><gen:value>" + value +
           "</gen:value></gen:" + type + "Attribute>";
}

QByteArray reference(const QByteArray& name)
{
    return "<core:externalReference><core:externalObject><core:name>" + name +
           "</core:name></core:externalObject></core:externalReference>";
}

QByteArray square(const QByteArray& side, const QByteArray& z)
{
    return "<gml:MultiSurface><gml:surfaceMember><gml:Polygon><gml:exterior><gml:LinearRing><gml:posList>"
           "0 0 " +
           z + ' ' + side + " 0 " + z + ' ' + side + ' ' + side + ' ' + z + " 0 0 " + z +
           "</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember></"
           "gml:MultiSurface>";
}

/// A footprint of one square metre.
QByteArray footprintAt(int x, int y)
{
    const auto corner = [](int east, int north) {
        return QByteArray::number(east) + ' ' + QByteArray::number(north) + " 0 ";
    };
    return "<bldg:lod0FootPrint><gml:MultiSurface><gml:surfaceMember><gml:Polygon><gml:exterior>"
           "<gml:LinearRing><gml:posList>" +
           corner(x, y) + corner(x + 1, y) + corner(x + 1, y + 1) + corner(x, y) +
           "</gml:posList></gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember></"
           "gml:MultiSurface>"
           "</bldg:lod0FootPrint>";
}

QByteArray periodOfYear(const QByteArray& begin, const QByteArrayList& days)
{
    QByteArray text =
        "<energy:periodOfYear><energy:PeriodOfYear><energy:period><gml:TimePeriod><gml:beginPosition>" +
        begin + "</gml:beginPosition></gml:TimePeriod></energy:period>";
    for (const QByteArray& day : days) {
        text += "<energy:dailySchedule><energy:DailySchedule><energy:dayType>" + day +
                "</energy:dayType></energy:DailySchedule></energy:dailySchedule>";
    }
    return text + "</energy:PeriodOfYear></energy:periodOfYear>";
}

} // namespace

/// `tolvik-inspect table`.
class TableCommandTest : public QObject
{
    Q_OBJECT

private:
    QString path(const QString& name) const { return directory->filePath(name); }
    QByteArray shown(const QString& name) const { return path(name).toUtf8(); }
    QByteArray table(const QString& name) const { return contentOf(path(name)); }

    bool writeDocument(const QString& name, const QByteArray& members,
                       const QByteArray& reference = QByteArray())
    {
        const QByteArray envelope =
            reference.isEmpty()
                ? QByteArray()
                : "<gml:boundedBy><gml:Envelope srsName='" + reference +
                      "'><gml:lowerCorner>0 0 0</gml:lowerCorner>"
                      "<gml:upperCorner>9 9 9</gml:upperCorner></gml:Envelope></gml:boundedBy>";
        return writeFile(path(name), documentText(envelope + members));
    }

    std::unique_ptr<QTemporaryDir> directory;

private slots:
    void init()
    {
        directory = std::make_unique<QTemporaryDir>();
        QVERIFY(directory->isValid());
    }

    void aRowHasTheValuesOfAFeature()
    {
        QVERIFY(
            writeDocument("a.gml", buildingMember("<gml:name>One</gml:name>" + height("12.5") +
                                                      "<bldg:storeysAboveGround>3</bldg:storeysAboveGround>",
                                                  "one") +
                                       buildingMember(generic("string", "m/s [x]", "a, b") +
                                                          generic("date", "seen", "2020-02-03") +
                                                          "<bldg:function>1000</bldg:function>",
                                                      "two")));
        const ProcessResult result =
            runTool({"table", path("a.gml"), "--type", "Building", "--out", path("b.csv")});
        QCOMPARE(result.err, QByteArray());
        QCOMPARE(result.code, 0);
        QCOMPARE(table("b.csv"),
                 "gml:id,parent,file,type,name,Fields/MeasuredHeight,Fields/StoreysAboveGround,Fields/Name,"
                 "Fields/Function,gen:m\\/s \\[x],gen:seen\n"
                 "one,," +
                     shown("a.gml") + ",Building,One,12.5,3,\"[\"\"One\"\"]\",,,\ntwo,," + shown("a.gml") +
                     ",Building,,,,,\"[\"\"1000\"\"]\",\"a, b\",2020-02-03\n");
    }

    void columnsAndTypesCanBeChosen()
    {
        QVERIFY(writeDocument("a.gml", buildingMember(generic("int", "n", "7") + height("2"), "one")));
        const ProcessResult result =
            runTool({"table", path("a.gml"), "--type", "Building", "--columns",
                     "gen:n,Fields/MeasuredHeight,gen:none", "--out", path("b.csv")});
        QCOMPARE(result.err, QByteArray("tolvik-inspect: no feature has gen:none\n"));
        QCOMPARE(result.code, 1);
        QCOMPARE(table("b.csv"), "gml:id,parent,file,type,name,gen:n,Fields/MeasuredHeight\none,," +
                                     shown("a.gml") + ",Building,,7,2\n");
    }

    void valuesOfAColumnGetATypeThatHoldsThemAll()
    {
        QVERIFY(writeDocument(
            "a.gml", buildingMember(generic("int", "n", "7") + generic("int", "m", "7"), "one") +
                         buildingMember(generic("double", "n", "1.5") + generic("string", "m", "x"), "two")));
        const ProcessResult result = runTool({"table", path("a.gml"), "--out", path("b")});
        QCOMPARE(result.code, 0);
        QVERIFY(table("b/columns.csv").contains("Building,gen:n,real,\nBuilding,gen:m,text,\n"));
        QVERIFY(table("b/Building.csv").contains(",7,7\n"));
        QVERIFY(table("b/Building.csv").contains(",1.5,x\n"));
    }

    void aNumberBeyondThoseOfTablesIsAText()
    {
        const QByteArray number = "18446744073709551615";
        QVERIFY(writeDocument(
            "a.gml",
            buildingMember("<bldg:storeysAboveGround>" + number + "</bldg:storeysAboveGround>", "one")));
        QCOMPARE(runTool({"table", path("a.gml"), "--out", path("b")}).code, 0);
        QVERIFY2(table("b/Building.csv").endsWith(',' + number + '\n'), table("b/Building.csv"));
        QVERIFY(table("b/columns.csv").contains("Building,Fields/StoreysAboveGround,text,\n"));
    }

    void anotherUnitGetsAColumnForUnits()
    {
        QVERIFY(writeDocument("a.gml", buildingMember(height("2", "m"), "one") +
                                           buildingMember(height("3", "ft"), "two")));
        QCOMPARE(runTool({"table", path("a.gml"), "--out", path("b")}).code, 0);
        QVERIFY2(table("b/Building.csv")
                     .startsWith(
                         "gml:id,parent,file,type,name,Fields/MeasuredHeight,Fields/MeasuredHeight/@uom\n"),
                 table("b/Building.csv"));
        QVERIFY(table("b/Building.csv").contains(",2,m\n"));
        QVERIFY(table("b/Building.csv").contains(",3,ft\n"));
        QVERIFY(table("b/columns.csv").contains("Building,Fields/MeasuredHeight,real,\n"));
    }

    void groupsThatRepeatHaveATableOfTheirOwn()
    {
        QVERIFY(writeDocument("a.gml", buildingMember(reference("p") + reference("q"), "one") +
                                           buildingMember(reference("r"), "two")));
        QCOMPARE(runTool({"table", path("a.gml"), "--out", path("b")}).code, 0);
        const QByteArray file = shown("a.gml");
        QCOMPARE(table("b/Building.csv"),
                 "gml:id,parent,file,type,name\none,," + file + ",Building,\ntwo,," + file + ",Building,\n");
        QCOMPARE(table("b/Building_externalObjectReference.csv"),
                 "gml:id,file,ordinal,outer,Fields/ExternalReferences/externalObjectReference/"
                 "ReferenceName\none," +
                     file + ",1,,p\none," + file + ",2,,q\ntwo," + file + ",1,,r\n");
    }

    void aGroupInsideAnotherNamesThatOne()
    {
        QVERIFY(writeFile(
            path("a.gml"),
            documentText("<core:cityObjectMember><energy:UsageZone gml:id='zone'><energy:coolingSchedule>"
                         "<energy:DailyPatternSchedule>" +
                             periodOfYear("2023-01-01", {"Tuesday"}) +
                             periodOfYear("2023-05-01", {"Friday", "Sunday"}) +
                             "</energy:DailyPatternSchedule></energy:coolingSchedule></energy:UsageZone>"
                             "</core:cityObjectMember>",
                         " xmlns:energy='http://www.sig3d.org/citygml/2.0/energy/1.0'")));
        const ProcessResult result = runTool({"table", path("a.gml"), "--out", path("b")});
        QVERIFY2(result.code == 0, result.err);
        const QByteArray file = shown("a.gml");
        const QByteArray days = table("b/UsageZone_dailySchedule.csv");
        QCOMPARE(days.mid(days.indexOf('\n') + 1), "zone," + file + ",1,1,Tuesday\nzone," + file +
                                                       ",2,2,Friday\nzone," + file + ",3,2,Sunday\n");
        const QByteArray periods = table("b/UsageZone_periodOfYear.csv");
        QVERIFY2(periods.contains("zone," + file + ",2,,") && periods.contains("2023-05-01"), periods);
    }

    void tablesOfPartsAreThoseOfTheWhole()
    {
        QVERIFY(writeDocument("a.gml", buildingMember(reference("p") + reference("q") + height("1"), "one")));
        QVERIFY(writeDocument("b.gml", buildingMember(reference("r") + generic("int", "n", "7"), "two")));
        const QStringList files{path("a.gml"), path("b.gml")};
        QCOMPARE(runTool(QStringList{"table", "--columns-from", path("c.json"), "--out", path("all")} + files)
                     .code,
                 0);
        for (const char* const tile : {"a", "b"}) {
            const ProcessResult result = runTool({"table", path(QString(tile) + ".gml"), "--columns-from",
                                                  path("c.json"), "--out", path(tile)});
            QCOMPARE(result.err, QByteArray());
        }
        for (const char* const name :
             {"Building.csv", "Building_externalObjectReference.csv", "CityModel.csv"}) {
            const QByteArray second = table(QString("b/") + name);
            QCOMPARE(table(QString("all/") + name),
                     table(QString("a/") + name) + second.mid(second.indexOf('\n') + 1));
            QVERIFY(second.count('\n') > 1);
        }
    }

    void whatFixedColumnsCannotHoldIsTold()
    {
        QVERIFY(writeDocument("a.gml", buildingMember(height("1") + generic("int", "n", "7"), "one")));
        QVERIFY(
            writeDocument("b.gml", buildingMember(height("2", "ft") + generic("string", "n", "x"), "two")));
        QCOMPARE(runTool({"table", path("a.gml"), "--columns-from", path("c.json"), "--out", path("a")}).code,
                 0);
        const ProcessResult result =
            runTool({"table", path("b.gml"), "--columns-from", path("c.json"), "--out", path("b")});
        QCOMPARE(result.code, 1);
        QVERIFY2(result.err.contains("two: gen:n: the column is for whole, not for x\n"), result.err);
        QVERIFY2(result.err.contains(
                     "two: Fields/MeasuredHeight: the column is for the unit \"m\", not for \"ft\"\n"),
                 result.err);
        QVERIFY(table("b/Building.csv").endsWith(",Building,,,\n"));
    }

    void whatFixedColumnsLackIsTold()
    {
        QVERIFY(writeDocument("a.gml", buildingMember(height("1"), "one")));
        QVERIFY(writeDocument("b.gml", buildingMember(generic("int", "n", "7") + height("2"), "two")));
        QCOMPARE(runTool({"table", path("a.gml"), "--columns-from", path("c.json")}).code, 0);
        ProcessResult result =
            runTool({"table", path("b.gml"), "--columns-from", path("c.json"), "--out", path("b")});
        QCOMPARE(result.err, QByteArray("tolvik-inspect: 1 values of gen:n of Building have no column\n"));
        QCOMPARE(result.code, 0);
        QCOMPARE(runTool({"table", path("b.gml"), "--columns-from", path("d.json")}).code, 0);
        QCOMPARE(runTool({"columns", path("all.json"), path("c.json"), path("d.json")}).code, 0);
        result = runTool({"table", path("b.gml"), "--columns-from", path("all.json"), "--out", path("b")});
        QCOMPARE(result.err, QByteArray());
        QVERIFY(
            table("b/Building.csv").startsWith("gml:id,parent,file,type,name,Fields/MeasuredHeight,gen:n\n"));
        QVERIFY(table("b/Building.csv").endsWith(",2,7\n"));
    }

    /// The columns are of a part in which no feature has several.
    void groupsForWhichFixedColumnsHaveNoTableAreTold()
    {
        QVERIFY(writeDocument("a.gml", buildingMember(reference("p"), "one")));
        QVERIFY(writeDocument("b.gml", buildingMember(reference("q") + reference("r"), "two")));
        QCOMPARE(runTool({"table", path("a.gml"), "--columns-from", path("c.json")}).code, 0);
        const ProcessResult result =
            runTool({"table", path("b.gml"), "--columns-from", path("c.json"), "--out", path("b")});
        QCOMPARE(result.err,
                 QByteArray("tolvik-inspect: 1 values of Fields/ExternalReferences/"
                            "externalObjectReference/ReferenceName of Building have no column\n"));
        QVERIFY2(table("b/Building.csv").endsWith(",q\n"), table("b/Building.csv"));
    }

    void joinedColumnsHoldTheValuesOfAllParts()
    {
        QVERIFY(writeDocument("a.gml", buildingMember(generic("int", "n", "7") + height("1"), "one")));
        QVERIFY(
            writeDocument("b.gml", buildingMember(generic("double", "n", "1.5") + height("2", "ft"), "two")));
        for (const char* const tile : {"a", "b"}) {
            QCOMPARE(runTool({"table", path(QString(tile) + ".gml"), "--columns-from",
                              path(QString(tile) + ".json")})
                         .code,
                     0);
        }
        QCOMPARE(runTool({"columns", path("all.json"), path("a.json"), path("b.json")}).code, 0);
        const ProcessResult result =
            runTool({"table", path("b.gml"), "--columns-from", path("all.json"), "--out", path("b")});
        QCOMPARE(result.err, QByteArray());
        QVERIFY2(
            table("b/Building.csv")
                .startsWith("gml:id,parent,file,type,name,Fields/MeasuredHeight,Fields/MeasuredHeight/@uom,"
                            "gen:n\n"),
            table("b/Building.csv"));
        QVERIFY2(table("b/Building.csv").endsWith(",2,ft,1.5\n"), table("b/Building.csv"));
    }

    void aBrokenDocumentLosesNoOthersRows()
    {
        QVERIFY(writeDocument("a.gml", buildingMember(height("1"), "one")));
        QVERIFY(writeFile(path("broken.gml"), "<a/>"));
        QVERIFY(writeDocument("c.gml", buildingMember(height("2"), "two")));
        const ProcessResult result =
            runTool({"table", path("a.gml"), path("broken.gml"), path("c.gml"), "--out", path("t")});
        QCOMPARE(result.code, 1);
        QVERIFY2(result.err.contains(shown("broken.gml") + " could not be loaded"), result.err);
        QVERIFY(table("t/Building.csv").contains("\none,"));
        QVERIFY(table("t/Building.csv").contains("\ntwo,"));
    }

    void theSameDocumentGivesTheSameBytes_data()
    {
        QTest::addColumn<QString>("target");
        for (const char* const target : {"t.gpkg", "t.xlsx", "csv/Building.csv", "geojson/Building.geojson",
                                         "geojsonl/Building.geojsonl", "fgb/Building.fgb"}) {
            QTest::newRow(target) << target;
        }
    }

    void theSameDocumentGivesTheSameBytes()
    {
        QFETCH(QString, target);
        const QString folder = target.contains('/') ? target.section('/', 0, 0) : target;
        const QStringList format = target.contains('/') ? QStringList{"--format", folder} : QStringList();
        const QStringList command =
            QStringList{"table", examples() + "/energy.gml", "--out", path(folder)} + format;
        // Rows without a geometry are left out, and told.
        const int code = folder == "fgb" ? 1 : 0;
        QCOMPARE(runTool(command).code, code);
        const QByteArray first = table(target);
        QVERIFY(first.size() > 100);
        QCOMPARE(runTool(command).code, code);
        QVERIFY(table(target) == first);
        const QStringList left =
            QDir(directory->path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        QCOMPARE(left, QStringList{folder});
    }

    void anEarlierFileStaysWhereATableCannotBeWritten()
    {
        QVERIFY(writeDocument("a.gml", buildingMember(height("1"), "one")));
        QVERIFY(QDir(directory->path()).mkdir("b.gpkg"));
        const ProcessResult result = runTool({"table", path("a.gml"), "--out", path("b.gpkg")});
        QCOMPARE(result.code, 1);
        QVERIFY2(result.err.contains("b.gpkg could not be written"), result.err);
        QVERIFY(QFileInfo(path("b.gpkg")).isDir());
    }

    void usageIsChecked_data()
    {
        QTest::addColumn<QStringList>("options");
        QTest::newRow("no target") << QStringList{};
        QTest::newRow("no such format") << QStringList{"--out", "x", "--format", "dbf"};
        QTest::newRow("several tables in a file") << QStringList{"--out", "x.csv"};
        QTest::newRow("append to a file") << QStringList{"--out", "x.gpkg", "--append"};
    }

    void usageIsChecked()
    {
        QFETCH(QStringList, options);
        QCOMPARE(runTool(QStringList{"table", "a.gml"} + options).code, 2);
    }

    void aGeometryTellsWhatItIsMadeOf()
    {
        const QByteArray footprint = "<bldg:lod0FootPrint>" + square("3", "5") + "</bldg:lod0FootPrint>";
        const QByteArray ground = "<bldg:boundedBy><bldg:GroundSurface><bldg:lod2MultiSurface>" +
                                  square("2", "0") +
                                  "</bldg:lod2MultiSurface></bldg:GroundSurface></bldg:boundedBy>";
        const QByteArray body = "<bldg:lod1MultiSurface>" + square("4", "1") + "</bldg:lod1MultiSurface>";
        QVERIFY(writeDocument("a.gml",
                              buildingMember(footprint + body + ground, "one") +
                                  buildingMember(body + ground, "two") + buildingMember(body, "three") +
                                  buildingMember("", "four"),
                              "EPSG:25832"));
        const ProcessResult result =
            runTool({"table", path("a.gml"), "--type", "Building", "--out", path("b.geojson")});
        QCOMPARE(result.err, QByteArray());
        const QJsonObject map = QJsonDocument::fromJson(table("b.geojson")).object();
        QVERIFY(map.value("crs")
                    .toObject()
                    .value("properties")
                    .toObject()
                    .value("name")
                    .toString()
                    .contains("25832"));
        const QJsonArray features = map.value("features").toArray();
        QCOMPARE(features.size(), 4);
        QStringList sources;
        QVector<double> sides;
        for (const QJsonValue& feature : features) {
            sources += feature.toObject().value("properties").toObject().value("geometryFrom").toString();
            double side = 0;
            const QJsonArray ring = feature.toObject()
                                        .value("geometry")
                                        .toObject()
                                        .value("coordinates")
                                        .toArray()
                                        .at(0)
                                        .toArray();
            for (const QJsonValue& at : ring) {
                side = qMax(side, at.toArray().at(0).toDouble());
            }
            sides += side;
        }
        QCOMPARE(sources, (QStringList{"footprint", "ground", "hull", ""}));
        QCOMPARE(sides, (QVector<double>{3, 2, 4, 0}));
    }

    /// An index of places would put them in an order of its own.
    void rowsOfAMapComeInDocumentOrder()
    {
        QByteArray members;
        QStringList ids;
        for (int i = 0; i < 8; ++i) {
            ids += QString("house%1").arg(i);
            members += buildingMember(i % 2 == 0 ? footprintAt(i, i) : footprintAt(1000 - i, 900),
                                      ids.last().toUtf8());
        }
        QVERIFY(writeDocument("a.gml", members, "EPSG:25832"));
        const ProcessResult result =
            runTool({"table", path("a.gml"), "--type", "Building", "--out", path("b.fgb")});
        QCOMPARE(result.err, QByteArray());
        GDALAllRegister();
        const std::unique_ptr<GDALDataset> file(
            GDALDataset::Open(shown("b.fgb").constData(), GDAL_OF_VECTOR | GDAL_OF_READONLY));
        QVERIFY(file != nullptr);
        QStringList read;
        for (const auto& row : *file->GetLayer(0)) {
            read += row->GetFieldAsString("gml:id");
        }
        QCOMPARE(read, ids);
    }

    void placesOfAnotherSystemAreLeftOut()
    {
        QVERIFY(writeDocument("a.gml", buildingMember(footprintAt(1, 1), "one"), "EPSG:25832"));
        QVERIFY(writeDocument("b.gml", buildingMember(footprintAt(1, 1), "two"), "EPSG:31467"));
        const ProcessResult result = runTool({"table", path("a.gml"), path("b.gml"), "--geometry", "--type",
                                              "Building", "--out", path("b.csv")});
        QCOMPARE(result.code, 1);
        QVERIFY2(result.err.contains(shown("b.gml") + ": its coordinate system is \"EPSG:31467\""),
                 result.err);
        QCOMPARE(table("b.csv").count("POLYGON"), 1);
        QCOMPARE(table("b.csv").count('\n'), 3);
    }

    void surfacesComeWithTheirHeights()
    {
        QVERIFY(writeDocument(
            "a.gml",
            buildingMember("<bldg:lod1MultiSurface>" + square("4", "1") + "</bldg:lod1MultiSurface>", "one"),
            "EPSG:25832"));
        QCOMPARE(runTool({"table", path("a.gml"), "--3d", "--type", "Building", "--out", path("b.csv")}).code,
                 0);
        QVERIFY2(table("b.csv").contains("MULTIPOLYGON Z (((0 0 1,4 0 1,4 4 1,0 0 1)))"), table("b.csv"));
    }

    void aGeoPackageHasTypedColumnsInDocumentOrder()
    {
        QVERIFY(
            writeDocument("a.gml", buildingMember(height("1.5") + generic("date", "d", "2020-02-03"), "two") +
                                       buildingMember("<bldg:storeysAboveGround>3</bldg:storeysAboveGround>" +
                                                          generic("int", "n", "4"),
                                                      "one")));
        QCOMPARE(runTool({"table", path("a.gml"), "--out", path("t.gpkg")}).code, 0);
        GDALAllRegister();
        const std::unique_ptr<GDALDataset> file(
            GDALDataset::Open(shown("t.gpkg").constData(), GDAL_OF_VECTOR | GDAL_OF_READONLY));
        QVERIFY(file != nullptr);
        OGRLayer* const layer = file->GetLayerByName("Building");
        QVERIFY(layer != nullptr);
        const auto typeOf = [&](const char* column) {
            OGRFeatureDefn& columns = *layer->GetLayerDefn();
            return columns.GetFieldDefn(columns.GetFieldIndex(column))->GetType();
        };
        QCOMPARE(typeOf("Fields/MeasuredHeight"), OFTReal);
        QCOMPARE(typeOf("Fields/StoreysAboveGround"), OFTInteger64);
        QCOMPARE(typeOf("gen:d"), OFTDate);
        QCOMPARE(layer->GetFeatureCount(), 2);
        const std::unique_ptr<OGRFeature> first(layer->GetNextFeature());
        QCOMPARE(first->GetFieldAsString("gml:id"), "two");
        QCOMPARE(first->GetFieldAsDouble("Fields/MeasuredHeight"), 1.5);
        QCOMPARE(first->GetFieldAsString("gen:d"), "2020/02/03");
        QVERIFY(!first->IsFieldSetAndNotNull(layer->GetLayerDefn()->GetFieldIndex("gen:n")));
    }

    void otherContentIsThereOnDemand()
    {
        QVERIFY(writeDocument("a.gml", buildingMember("<x:note>red</x:note>", "one")));
        QCOMPARE(runTool({"table", path("a.gml"), "--out", path("b")}).code, 0);
        QVERIFY(!table("b/Building.csv").contains("red"));
        QCOMPARE(runTool({"table", path("a.gml"), "--all", "--out", path("b")}).code, 0);
        QVERIFY2(table("b/Building.csv").contains("Other content/x:note") &&
                     table("b/Building.csv").contains(",red"),
                 table("b/Building.csv"));
    }
};

TEST_CLASS(TableCommandTest, Core)
#include "tablecommandtest.moc"
