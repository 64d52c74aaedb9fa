#include "support/Files.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "support/ToolCommand.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace testsupport;

namespace {

const QByteArray start = "<core:CityModel xmlns:core='http://www.opengis.net/citygml/2.0'"
                         " xmlns:app='http://www.opengis.net/citygml/appearance/2.0'"
                         " xmlns:bldg='http://www.opengis.net/citygml/building/2.0'"
                         " xmlns:dem='http://www.opengis.net/citygml/relief/2.0'"
                         " xmlns:gen='http://www.opengis.net/citygml/generics/2.0'"
                         " xmlns:xAL='urn:oasis:names:tc:ciq:xsdschema:xAL:2.0'"
                         " xmlns:gml='http://www.opengis.net/gml'"
                         " xmlns:xlink='http://www.w3.org/1999/xlink' xmlns:x='urn:x'>\n";

/// A document of members; the first of them begins in line 2.
QByteArray city(const QByteArray& members)
{
    return start + members + "\n</core:CityModel>\n";
}

/// A document of one building, whose content begins in line 3.
QByteArray building(const QByteArray& content)
{
    return city("<core:cityObjectMember><bldg:Building gml:id='b'>\n" + content +
                "\n</bldg:Building></core:cityObjectMember>");
}

QByteArray lod1(const QByteArray& geometry)
{
    return building("<bldg:lod1MultiSurface><gml:MultiSurface><gml:surfaceMember><gml:Polygon gml:id='p'>"
                    "<gml:exterior><gml:LinearRing gml:id='r'>\n" +
                    geometry +
                    "\n</gml:LinearRing></gml:exterior></gml:Polygon></gml:surfaceMember>"
                    "</gml:MultiSurface></bldg:lod1MultiSurface>");
}

QByteArray appearance(const QByteArray& data)
{
    return "<core:featureMember xmlns:core='http://www.opengis.net/gml'><app:Appearance>"
           "<app:surfaceDataMember>\n" +
           data + "\n</app:surfaceDataMember></app:Appearance></core:featureMember>";
}

const QByteArray inBuilding = "/core:CityModel/core:cityObjectMember/bldg:Building";
const QByteArray inRing = inBuilding +
                          "/bldg:lod1MultiSurface/gml:MultiSurface/gml:surfaceMember/gml:Polygon/"
                          "gml:exterior/gml:LinearRing";
const QByteArray inAppearance = "/core:CityModel/core:featureMember/app:Appearance/app:surfaceDataMember";

} // namespace

/// What `tolvik-inspect check` finds, and how it tells.
class CheckCommandTest : public QObject
{
    Q_OBJECT

private:
    QString path(const QString& name) const { return directory->filePath(name); }

    /// Checks a document from standard input, which stands as `-` in front of each line.
    static QByteArrayList linesOf(const QByteArray& document)
    {
        QByteArrayList lines = runTool({"check", "-"}, document).out.split('\n');
        lines.removeLast();
        return lines;
    }

    std::unique_ptr<QTemporaryDir> directory;

private slots:
    void init()
    {
        directory = std::make_unique<QTemporaryDir>();
        QVERIFY(directory->isValid());
    }

    void findsOneFault_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QByteArray>("line");
        const auto row = [](const char* name, const QByteArray& document, const QByteArray& line) {
            QTest::newRow(name) << document << line;
        };
        row("value", building("<bldg:storeysAboveGround>many</bldg:storeysAboveGround>"),
            "-:3:30: " + inBuilding +
                "/bldg:storeysAboveGround: 'many' is not a whole number without sign (feature b)");
        row("element", building("<bldg:colour>red</bldg:colour>"),
            "-:3:1: " + inBuilding + "/bldg:colour: the element 'bldg:colour' is unknown here (feature b)");
        row("element of another place", building("<bldg:Door/>"),
            "-:3:1: " + inBuilding + "/bldg:Door: the element 'bldg:Door' is unknown here (feature b)");
        row("element without namespace", building("<colour/>"),
            "-:3:1: " + inBuilding + "/colour: the element 'colour' is unknown here (feature b)");
        row("element in a text", building("<bldg:measuredHeight uom='m'><gml:b/>1</bldg:measuredHeight>"),
            "-:3:30: " + inBuilding +
                "/bldg:measuredHeight/gml:b: the element 'gml:b' is unknown here (feature b)");
        row("attribute", building("<bldg:measuredHeight uom='m' unit='m'>1</bldg:measuredHeight>"),
            "-:3:1: " + inBuilding +
                "/bldg:measuredHeight: the attribute 'unit' is unknown here (feature b)");
        row("attribute of a number", building("<bldg:storeysAboveGround n='1'>1</bldg:storeysAboveGround>"),
            "-:3:1: " + inBuilding +
                "/bldg:storeysAboveGround: the attribute 'n' is unknown here (feature b)");
        row("attribute of a known namespace", building("<bldg:function xlink:href='a'>1</bldg:function>"),
            "-:3:1: " + inBuilding +
                "/bldg:function: the attribute 'xlink:href' is unknown here (feature b)");
        row("order", building("<bldg:storeysAboveGround>1</bldg:storeysAboveGround><gml:name>a</gml:name>"),
            "-:3:53: " + inBuilding +
                "/gml:name: the element 'gml:name' belongs in front of 'bldg:storeysAboveGround' (feature "
                "b)");
        row("one too many",
            building("<bldg:storeysAboveGround>1</bldg:storeysAboveGround>\n"
                     "<bldg:storeysAboveGround>2</bldg:storeysAboveGround>"),
            "-:4:1: " + inBuilding +
                "/bldg:storeysAboveGround: the element 'bldg:storeysAboveGround' is one too many (feature "
                "b)");
        row("reference", building("<bldg:lod1Solid xlink:href='#none'/>"),
            "-:3:1: " + inBuilding +
                "/bldg:lod1Solid: nothing in the document has the identifier 'none' (feature b)");
        row("reference in unknown content", building("<x:a><x:b xlink:href='#none'/></x:a>"),
            "-:3:6: " + inBuilding +
                "/x:a/x:b: nothing in the document has the identifier 'none' (feature b)");
        row("texture of nothing",
            city(appearance("<app:ParameterizedTexture><app:imageURI>a.png</app:imageURI>\n"
                            "<app:target uri='#none'/></app:ParameterizedTexture>")),
            "-:4:1: " + inAppearance +
                "/app:ParameterizedTexture/app:target: nothing in the document has the identifier 'none'");
        row("material of nothing",
            city(appearance("<app:X3DMaterial>\n<app:target> #none </app:target></app:X3DMaterial>")),
            "-:4:1: " + inAppearance +
                "/app:X3DMaterial/app:target: nothing in the document has the identifier 'none'");
        row("identifier twice", building("<bldg:lod1Solid><gml:Solid gml:id='b'/></bldg:lod1Solid>"),
            "-:3:17: " + inBuilding +
                "/bldg:lod1Solid/gml:Solid: the identifier 'b' stands in line 2 already (feature b)");
        row("identifier twice, one of them unknown", building("<x:a gml:id=' b '/>"),
            "-:3:1: " + inBuilding + "/x:a: the identifier 'b' stands in line 2 already (feature b)");
        row("list of positions", lod1("<gml:posList>1 2 3 4 5 6 7 8</gml:posList>"),
            "-:4:1: " + inRing + "/gml:posList: 8 numbers are no multiple of the dimension 3 (feature b)");
        row("list with a dimension", lod1("<gml:posList srsDimension='2'>1 2 3</gml:posList>"),
            "-:4:1: " + inRing + "/gml:posList: 3 numbers are no multiple of the dimension 2 (feature b)");
        row("position", lod1("<gml:pos>1 2 3</gml:pos><gml:pos>1</gml:pos>"),
            "-:4:25: " + inRing + "/gml:pos: a position of 1 number, and the dimension is 3 (feature b)");
        row("position of two", lod1("<gml:pos>1 2 3 4 5 6</gml:pos>"),
            "-:4:1: " + inRing + "/gml:pos: a position of 6 numbers, and the dimension is 3 (feature b)");
        row("tuples", lod1("<gml:coordinates>1,2,3 4,5 6,7,8</gml:coordinates>"),
            "-:4:1: " + inRing +
                "/gml:coordinates: tuple 2 has 2 numbers, and the dimension is 3 (feature b)");
        row("tuples with separators", lod1("<gml:coordinates cs=' ' ts=';'>1 2 3;4 5;</gml:coordinates>"),
            "-:4:1: " + inRing +
                "/gml:coordinates: tuple 2 has 2 numbers, and the dimension is 3 (feature b)");
        row("a text of two lines", building("<bldg:storeysAboveGround>a\nb</bldg:storeysAboveGround>"),
            "-:4:2: " + inBuilding +
                "/bldg:storeysAboveGround: 'a\\nb' is not a whole number without sign (feature b)");
    }

    void findsOneFault()
    {
        QFETCH(QByteArray, document);
        QFETCH(QByteArray, line);
        const ProcessResult result = runTool({"check", "-"}, document);
        QCOMPARE(result.out, line + '\n');
        QCOMPARE(result.err, QByteArray());
        QCOMPARE(result.code, 1);
    }

    void findsNothing_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::newRow("plain") << building("<bldg:storeysAboveGround>3</bldg:storeysAboveGround>");
        QTest::newRow("unknown namespace") << building("<x:a x:b='c'><bldg:colour/></x:a>");
        QTest::newRow("attribute of an unknown namespace")
            << building("<bldg:measuredHeight uom='m' x:a='b'>1</bldg:measuredHeight>"
                        "<bldg:storeysAboveGround x:a='b'>1</bldg:storeysAboveGround>");
        QTest::newRow("attributes of instances")
            << building("<bldg:storeysAboveGround xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'"
                        " xsi:nil='true'/>");
        QTest::newRow("metadata of any kind")
            << building("<gml:metaDataProperty><bldg:Door/></gml:metaDataProperty>");
        QTest::newRow("foreign words of an address")
            << building("<bldg:address><core:Address><core:xalAddress><xAL:AddressDetails gen:a='b'>"
                        "<gen:any/></xAL:AddressDetails></core:xalAddress></core:Address></bldg:address>");
        QTest::newRow("reference backwards") << lod1("<gml:pointProperty xlink:href='#p'/>");
        QTest::newRow("reference forwards") << building("<bldg:lod1Solid xlink:href='#s'/><x:a gml:id='s'/>");
        QTest::newRow("reference to an escaped name")
            << building("<bldg:lod1Solid xlink:href='#a%C3%A4'/><x:a gml:id='aä'/>");
        QTest::newRow("references elsewhere")
            << building("<bldg:lod1Solid xlink:href='other.gml#s'/>"
                        "<bldg:lod2Solid xlink:href='#xpointer(id(\"s\"))'/>");
        QTest::newRow("targets") << city(
            "<core:cityObjectMember><bldg:Building gml:id='b'/></core:cityObjectMember>" +
            appearance("<app:X3DMaterial><app:target>#b</app:target></app:X3DMaterial>"));
        QTest::newRow("positions") << lod1("<gml:pos>1 2 3</gml:pos><gml:posList>1 2 3 4 5 6</gml:posList>"
                                           "<gml:coordinates>1,2,3 4,5,6</gml:coordinates>");
        QTest::newRow("dimension of the list") << lod1("<gml:posList srsDimension='2'>1 2 3 4</gml:posList>");
        QTest::newRow("dimension of a grid")
            << city("<core:cityObjectMember><dem:ReliefFeature><dem:lod>1</dem:lod><dem:reliefComponent>"
                    "<dem:RasterRelief><dem:lod>1</dem:lod><dem:grid><gml:RectifiedGridCoverage>"
                    "<gml:rectifiedGridDomain><gml:RectifiedGrid dimension='2'>"
                    "<gml:limits><gml:GridEnvelope><gml:low>0 0</gml:low><gml:high>1 1</gml:high>"
                    "</gml:GridEnvelope></gml:limits><gml:axisName>x</gml:axisName>"
                    "<gml:origin><gml:Point><gml:pos>1 2</gml:pos></gml:Point></gml:origin>"
                    "<gml:offsetVector>1 0</gml:offsetVector></gml:RectifiedGrid>"
                    "</gml:rectifiedGridDomain><gml:rangeSet><gml:File><gml:rangeParameters/>"
                    "<gml:fileName>a</gml:fileName><gml:fileStructure>Record Interleaved</gml:fileStructure>"
                    "</gml:File></gml:rangeSet></gml:RectifiedGridCoverage></dem:grid></dem:RasterRelief>"
                    "</dem:reliefComponent></dem:ReliefFeature></core:cityObjectMember>");
        QTest::newRow("point of a picture")
            << city(appearance("<app:GeoreferencedTexture><app:imageURI>a</app:imageURI><app:referencePoint>"
                               "<gml:Point><gml:pos>1 2</gml:pos></gml:Point></app:referencePoint>"
                               "</app:GeoreferencedTexture>"));
        QTest::newRow("dimension around") << building(
            "<bldg:lod2MultiCurve><gml:MultiCurve srsDimension='2'><gml:curveMember><gml:LineString>"
            "<gml:pos>1 2</gml:pos><gml:pos>3 4</gml:pos></gml:LineString></gml:curveMember>"
            "</gml:MultiCurve></bldg:lod2MultiCurve>");
    }

    void findsNothing()
    {
        QFETCH(QByteArray, document);
        const ProcessResult result = runTool({"check", "-"}, document);
        QCOMPARE(result.out, QByteArray());
        QCOMPARE(result.err, QByteArray());
        QCOMPARE(result.code, 0);
    }

    /// Of the same fault a load lists a thousand.
    void findsAllInTheOrderOfTheDocument()
    {
        QByteArray content;
        for (int i = 0; i < 1500; ++i) {
            content += "<bldg:function xlink:href='#none'>1</bldg:function>\n";
        }
        const QByteArrayList lines =
            linesOf(building(content + "<bldg:storeysAboveGround>a</bldg:storeysAboveGround>"));
        // Each has an attribute too many, and a reference to nothing.
        QCOMPARE(lines.size(), 3001);
        for (int i = 0; i < 3000; ++i) {
            QVERIFY2(lines.at(i).startsWith("-:" + QByteArray::number(3 + i / 2) + ":1: "), lines.at(i));
        }
        QVERIFY2(lines.last().startsWith("-:1503:"), lines.last());
    }

    void goesOnToWhatEndsTheReading()
    {
        const QByteArrayList lines = linesOf(building(
            "<bldg:storeysAboveGround>a</bldg:storeysAboveGround><bldg:lod1Solid xlink:href='#c'/><b>"));
        QCOMPARE(lines.size(), 3);
        QVERIFY2(lines.at(0).startsWith("-:3:27: "), lines.at(0));
        QVERIFY2(lines.at(1).endsWith("the element 'b' is unknown here (feature b)"), lines.at(1));
        QCOMPARE(lines.at(2), "-:4:3: " + inBuilding + "/b: mismatched tag (feature b)");
    }

    void tellsWhatIsNoDocument()
    {
        QCOMPARE(linesOf("<a/>"),
                 QByteArrayList{"-:1:1: /a: the root element is 'a', not the CityModel of CityGML 2.0"});
        QCOMPARE(linesOf(""), QByteArrayList{"-:1:1: no element found"});
        QCOMPARE(runTool({"check", "-"}, "").code, 1);
    }

    void reportsInJson()
    {
        const ProcessResult result = runTool(
            {"check", "--json", "-"},
            building("<bldg:measuredHeight uom='m'>\"a\"</bldg:measuredHeight>"
                     "<bldg:storeysAboveGround>many</bldg:storeysAboveGround>\n<bldg:lod1Solid n='1'/>") +
                "<!-- unfinished");
        QCOMPARE(result.code, 1);
        QByteArrayList lines = result.out.split('\n');
        lines.removeLast();
        QCOMPARE(lines.size(), 4);
        for (const QByteArray& line : lines) {
            QJsonParseError error;
            const QJsonObject finding = QJsonDocument::fromJson(line, &error).object();
            QCOMPARE(error.error, QJsonParseError::NoError);
            QCOMPARE(finding.keys(), QStringList({"column", "feature", "file", "line", "path", "reason"}));
        }
        QCOMPARE(QJsonDocument::fromJson(lines.at(0)).object(),
                 QJsonObject({{"file", "-"},
                              {"line", 3},
                              {"column", 33},
                              {"path", QString(inBuilding + "/bldg:measuredHeight")},
                              {"reason", "'\"a\"' is not a number"},
                              {"feature", "b"}}));
        QCOMPARE(QJsonDocument::fromJson(lines.at(3)).object().value("feature"), QJsonValue());
    }

    void checksManyFiles()
    {
        QVERIFY(QDir(directory->path()).mkpath("city"));
        QVERIFY(writeFile(path("city/a.gml"), building("")));
        QVERIFY(writeFile(path("city/b.gml"), "<a/>"));
        QVERIFY(writeFile(path("city/c.gml"), building("<bldg:colour/>")));
        const ProcessResult result = runTool({"check", "--recursive", path("city"), path("none.gml")});
        QCOMPARE(result.code, 1);
        const QByteArray city = path("city").toUtf8();
        QVERIFY2(result.out.startsWith(city + "/b.gml:1:1: "), result.out);
        QVERIFY2(result.out.contains('\n' + city + "/c.gml:3:1: "), result.out);
        QCOMPARE(result.out.count('\n'), 2);
        QCOMPARE(result.err,
                 "tolvik-inspect: " + path("none.gml").toUtf8() + " could not be loaded: no such file\n");
        QCOMPARE(runTool({"check", path("city/a.gml"), path("city/a.gml")}).code, 0);
        QCOMPARE(runTool({"check", path("city/a.gml"), path("none.gml")}).code, 1);
        // Where nothing was checked nothing is sound.
        QVERIFY(QDir(directory->path()).mkpath("empty"));
        QCOMPARE(runTool({"check", "--recursive", path("empty")}).code, 1);
    }

    void findsNothingInTheExamples()
    {
        const ProcessResult result = runTool({"check", "--recursive", examples()});
        QCOMPARE(result.out, QByteArray());
        QCOMPARE(result.code, 0);
    }

    void refusesWrongUsage()
    {
        QCOMPARE(runTool({"check"}).code, 2);
        QCOMPARE(runTool({"check", "--every", "-"}).code, 2);
    }
};

TEST_CLASS(CheckCommandTest, Core)
#include "checkcommandtest.moc"
