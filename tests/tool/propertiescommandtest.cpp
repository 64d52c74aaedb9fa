#include "support/Files.h"
#include "support/TestClass.h"
#include "support/ToolCommand.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using namespace testsupport;

namespace {

const QByteArray documentText =
    "<core:CityModel xmlns:core='http://www.opengis.net/citygml/2.0' xmlns:gml='http://www.opengis.net/gml' "
    "xmlns:bldg='http://www.opengis.net/citygml/building/2.0' "
    "xmlns:gen='http://www.opengis.net/citygml/generics/2.0' "
    "xmlns:xAL='urn:oasis:names:tc:ciq:xsdschema:xAL:2.0' "
    "xmlns:energy='http://www.sig3d.org/citygml/2.0/energy/1.0'>"
    R"(
  <core:cityObjectMember>
    <bldg:Building gml:id="b">
      <gml:boundedBy>
        <gml:Envelope srsName="urn:x">
          <gml:lowerCorner>1 2 3</gml:lowerCorner>
        </gml:Envelope>
      </gml:boundedBy>
      <core:creationDate>2020-01-02</core:creationDate>
      <core:externalReference>
        <core:externalObject>
          <core:uri>http://one</core:uri>
        </core:externalObject>
      </core:externalReference>
      <core:externalReference>
        <core:externalObject>
          <core:uri>http://two</core:uri>
        </core:externalObject>
      </core:externalReference>
      <core:relativeToTerrain>entirelyAboveTerrain</core:relativeToTerrain>
      <gen:stringAttribute name="a/b">
        <gen:value>slash</gen:value>
      </gen:stringAttribute>
      <gen:stringAttribute name="same">
        <gen:value>first line
second	line \ end</gen:value>
      </gen:stringAttribute>
      <gen:stringAttribute name="same">
        <gen:value>other&#13;</gen:value>
      </gen:stringAttribute>
      <gen:stringAttribute name="same[2]">
        <gen:value>brackets</gen:value>
      </gen:stringAttribute>
      <gen:intAttribute name="long">
        <gen:value>5000000000</gen:value>
      </gen:intAttribute>
      <bldg:function>1000</bldg:function>
      <bldg:measuredHeight uom="m">12.5</bldg:measuredHeight>
      <bldg:storeyHeightsAboveGround uom="m">3.0 unknown</bldg:storeyHeightsAboveGround>
      <bldg:address>
        <core:Address>
          <core:xalAddress>
            <xAL:AddressDetails Usage="mail"/>
          </core:xalAddress>
        </core:Address>
      </bldg:address>
      <energy:isLandmarked>true</energy:isLandmarked>
    </bldg:Building>
  </core:cityObjectMember>
</core:CityModel>
)";

const QByteArray momentsText =
    "<core:CityModel xmlns:core='http://www.opengis.net/citygml/2.0' xmlns:gml='http://www.opengis.net/gml' "
    "xmlns:energy='http://www.sig3d.org/citygml/2.0/energy/1.0' xmlns:ladmfr='urn:tolvik:citygml:ladmfr:1.0'>"
    R"(
  <core:cityObjectMember>
    <ladmfr:LA_Right gml:id="right"/>
  </core:cityObjectMember>
  <core:cityObjectMember>
    <energy:EnergyDemand gml:id="demand">
      <energy:energyAmount>
        <energy:RegularTimeSeries>
          <energy:variableProperties/>
          <energy:temporalExtent>
            <gml:TimePeriod>
              <gml:beginPosition>2020-01-01</gml:beginPosition>
              <gml:duration>P1Y2M3D</gml:duration>
            </gml:TimePeriod>
          </energy:temporalExtent>
          <energy:timeInterval unit="hour">1</energy:timeInterval>
          <energy:values uom="kWh">12.5</energy:values>
        </energy:RegularTimeSeries>
      </energy:energyAmount>
      <energy:endUse>Cooking</energy:endUse>
    </energy:EnergyDemand>
  </core:cityObjectMember>
</core:CityModel>
)";

} // namespace

/// What the terminal tool shows of properties and how it edits them.
class PropertiesCommandTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir directory;
    QString path(const QString& name) const { return directory.filePath(name); }

private slots:
    void initTestCase()
    {
        QFile file(path("in.gml"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(documentText);
        file.close();
        QCOMPARE(runTool({"save", path("in.gml"), path("plain.gml")}).code, 0);
    }

    void init() { QFile::remove(path("out.gml")); }

    void text()
    {
        const ProcessResult result = runTool({"properties", path("in.gml"), "--id", "b"});
        QCOMPARE(result.code, 0);
        QCOMPARE(QString::fromUtf8(result.out), QString("1 Building\n"
                                                        "  Fields\n"
                                                        "    Function: [1000]\n"
                                                        "    MeasuredHeight: 12.5 m\n"
                                                        "    StoreyHeightsAboveGround: [3.0, unknown] m\n"
                                                        "    Address\n"
                                                        "      Usage:\n"
                                                        "    CreationDate: 2020-01-02\n"
                                                        "    RelativeToTerrain: entirelyAboveTerrain\n"
                                                        "    ExternalReferences\n"
                                                        "      externalObjectReference\n"
                                                        "        ReferenceUri: http://one\n"
                                                        "      externalObjectReference\n"
                                                        "        ReferenceUri: http://two\n"
                                                        "    a/b: slash\n"
                                                        "    same: first line\\nsecond\\tline \\\\ end\n"
                                                        "    same: other\\r\n"
                                                        "    same[2]: brackets\n"
                                                        "    long: 5000000000\n"
                                                        "    ClassType: Building\n"
                                                        "    Id: b\n"
                                                        "    Envelope\n"
                                                        "      SrsName: urn:x\n"
                                                        "      LowerCorner: [1, 2, 3]\n"
                                                        "  Properties\n"
                                                        "    Energy\n"
                                                        "      isLandmarked: true\n"));
    }

    /// Neither a value nor its unit is shown, and an edit puts both right.
    void whatHasNoValue()
    {
        QFile file(path("lacking.gml"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<core:CityModel xmlns:core='http://www.opengis.net/citygml/2.0' "
                   "xmlns:gml='http://www.opengis.net/gml' "
                   "xmlns:bldg='http://www.opengis.net/citygml/building/2.0' "
                   "xmlns:gen='http://www.opengis.net/citygml/generics/2.0'>"
                   "<core:cityObjectMember><bldg:Building gml:id='b'><gen:intAttribute name='n'/>"
                   "<bldg:measuredHeight uom='m'>high</bldg:measuredHeight>"
                   "</bldg:Building></core:cityObjectMember></core:CityModel>");
        file.close();
        const ProcessResult result = runTool({"properties", path("lacking.gml"), "--row", "1"});
        QVERIFY2(result.out.contains("    MeasuredHeight:\n    n:\n"), result.out);
        QCOMPARE(runTool({"set", path("lacking.gml"), "--id", "b", "Fields/n", "0", path("out.gml")}).code,
                 0);
        const ProcessResult edited = runTool({"properties", path("out.gml"), "--row", "1"});
        QVERIFY2(edited.out.contains("    MeasuredHeight:\n    n: 0\n"), edited.out);
    }

    /// JSON has no such numbers.
    void numbersBeyondJson()
    {
        QFile file(path("numbers.gml"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("<core:CityModel xmlns:core='http://www.opengis.net/citygml/2.0' "
                   "xmlns:bldg='http://www.opengis.net/citygml/building/2.0' "
                   "xmlns:gen='http://www.opengis.net/citygml/generics/2.0'>"
                   "<core:cityObjectMember><bldg:Building>"
                   "<gen:doubleAttribute name='none'><gen:value>NaN</gen:value></gen:doubleAttribute>"
                   "<gen:doubleAttribute name='all'><gen:value>-INF</gen:value></gen:doubleAttribute>"
                   "</bldg:Building></core:cityObjectMember></core:CityModel>");
        file.close();
        QJsonParseError error;
        const ProcessResult result = runTool({"properties", path("numbers.gml"), "--row", "1", "--json"});
        QJsonDocument::fromJson(result.out, &error);
        QCOMPARE(error.error, QJsonParseError::NoError);
        QVERIFY2(result.out.contains("\"value\":\"nan\"") && result.out.contains("\"value\":\"-inf\""),
                 result.out);
    }

    void json()
    {
        const ProcessResult result = runTool({"properties", path("in.gml"), "--row", "1", "--json"});
        const QJsonObject root = QJsonDocument::fromJson(result.out).object();
        QCOMPARE(root.keys(),
                 (QStringList{"children", "editable", "name", "potentialValues", "unit", "value"}));
        QCOMPARE(root.value("name").toString(), QString());
        const QJsonArray fields =
            root.value("children").toArray().at(0).toObject().value("children").toArray();
        const QJsonObject height{
            {"name", "MeasuredHeight"},        {"value", 12.5},           {"unit", "m"}, {"editable", true},
            {"potentialValues", QJsonArray()}, {"children", QJsonArray()}};
        QCOMPARE(fields.at(1).toObject(), height);
        QCOMPARE(fields.at(0).toObject().value("value").toArray(), QJsonArray{"1000"});
        QCOMPARE(fields.at(0).toObject().value("unit"), QJsonValue());
        QCOMPARE(fields.at(5).toObject().value("potentialValues").toArray().size(), 5);
        const QJsonObject landmark = root.value("children")
                                         .toArray()
                                         .at(1)
                                         .toObject()
                                         .value("children")
                                         .toArray()
                                         .at(0)
                                         .toObject()
                                         .value("children")
                                         .toArray()
                                         .at(0)
                                         .toObject();
        QCOMPARE(landmark.value("value"), QJsonValue(true));
        QCOMPARE(landmark.value("editable"), QJsonValue(false));

        const QJsonDocument every =
            QJsonDocument::fromJson(runTool({"properties", path("in.gml"), "--every", "--json"}).out);
        QCOMPARE(every.array().size(), 3);
        QCOMPARE(every.array().at(1).toObject(), root);
    }

    /// A label without a number is the first of that name, also where the second one has what is asked for.
    void aLabelIsTheFirstOfItsName()
    {
        const QString group = "Fields/ExternalReferences/externalObjectReference";
        QCOMPARE(runTool({"set", path("in.gml"), "--id", "b", group + "[2]/ReferenceName", "two",
                          path("second.gml")})
                     .code,
                 0);
        QCOMPARE(runTool({"set", path("second.gml"), "--id", "b", group + "/ReferenceName", "one",
                          path("both.gml")})
                     .code,
                 0);
        const QByteArray text = runTool({"properties", path("both.gml"), "--id", "b"}).out;
        QVERIFY2(text.contains("      externalObjectReference\n"
                               "        ReferenceName: one\n"
                               "        ReferenceUri: http://one\n"
                               "      externalObjectReference\n"
                               "        ReferenceName: two\n"
                               "        ReferenceUri: http://two\n"),
                 text);
    }

    void absentAttributes()
    {
        const QString text = runTool({"properties", path("in.gml"), "--row", "1", "--absent"}).out;
        QVERIFY(text.contains("\n    RoofType:\n"));
        QVERIFY(text.contains("\n    StoreyHeightsBelowGround: []\n"));
        QVERIFY(text.contains("\n    TerminationDate:\n"));
        QVERIFY(!text.contains("\n    Name"));
    }

    void edits_data()
    {
        QTest::addColumn<QString>("property");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        const auto row = [](const char* name, const QString& property, const QString& value,
                            const QByteArray& before, const QByteArray& after) {
            QTest::newRow(name) << property << value << before << after;
        };
        row("measure", "Fields/MeasuredHeight", "1e3", ">12.5<", ">1000<");
        row("date", "Fields/CreationDate", "1999-12-31", "2020-01-02", "1999-12-31");
        row("literal", "Fields/RelativeToTerrain", "substantiallyBelowTerrain", "entirelyAboveTerrain",
            "substantiallyBelowTerrain");
        row("label with a slash", "Fields/a/b", "new & <old>", ">slash<", ">new &amp; &lt;old&gt;<");
        row("the first of two", "Fields/same", "x", ">first line\nsecond\tline \\ end<", ">x<");
        row("the first by its number", "Fields/same[1]", "x", ">first line\nsecond\tline \\ end<", ">x<");
        row("the second of two", "Fields/same[2]", "x", ">other&#13;<", ">x<");
        row("label with brackets", "Fields/same[2][1]", "x", ">brackets<", ">x<");
        row("empty text", "Fields/a/b", "", "<gen:value>slash</gen:value>", "<gen:value></gen:value>");
        row("below a group", "Fields/ExternalReferences/externalObjectReference[2]/ReferenceUri",
            "http://new/x", "http://two", "http://new/x");
        row("link that is no address", "Fields/ExternalReferences/externalObjectReference/ReferenceUri",
            "http://a/50% off", ">http://one<", ">http://a/50% off<");
        row("list", "Fields/Function", "[\"1\"]", ">1000<", ">1<");
        row("list of one", "Fields/Function", "1600", ">1000<", ">1600<");
        row("nullable list", "Fields/StoreyHeightsAboveGround", "[\"2.50\", \"withheld\"]", ">3.0 unknown<",
            ">2.50 withheld<");
        row("number", "Fields/long", "-7", ">5000000000<", ">-7<");
        row("number beyond 32 bits", "Fields/long", "6000000000", ">5000000000<", ">6000000000<");
        row("position", "Fields/Envelope/LowerCorner", "[4, 5.5, 6]", ">1 2 3<", ">4 5.5 6<");
        row("not offered", "Properties/Energy/isLandmarked", "false", ">true<", ">false<");
    }

    /// The file differs from one that is saved without the edit in that one value.
    void edits()
    {
        QFETCH(QString, property);
        QFETCH(QString, value);
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        const ProcessResult result =
            runTool({"set", path("in.gml"), "--id", "b", "--", property, value, path("out.gml")});
        QCOMPARE(result.err, QByteArray());
        QCOMPARE(result.code, 0);
        QByteArray expected = contentOf(path("plain.gml"));
        QCOMPARE(expected.count(before), 1);
        QCOMPARE(contentOf(path("out.gml")), expected.replace(before, after));
    }

    void makesAbsentAttributes()
    {
        const ProcessResult result = runTool(
            {"set", path("in.gml"), "--id", "b", "Fields/YearOfConstruction", "1789", path("out.gml")});
        QCOMPARE(result.code, 0);
        QByteArray text = contentOf(path("out.gml"));
        QVERIFY(text.contains("<bldg:yearOfConstruction>1789</bldg:yearOfConstruction>"));
        QCOMPARE(text.count('\n'), contentOf(path("plain.gml")).count('\n') + 1);
    }

    void refusals_data()
    {
        QTest::addColumn<QString>("property");
        QTest::addColumn<QString>("value");
        const auto row = [](const char* name, const QString& property, const QString& value) {
            QTest::newRow(name) << property << value;
        };
        row("unknown path", "Fields/Heights", "1");
        row("part of a path", "MeasuredHeight", "1");
        row("no third", "Fields/same[3]", "x");
        row("no zeroth", "Fields/same[0]", "x");
        row("empty path", "", "x");
        row("group", "Fields", "x");
        row("group below", "Fields/Envelope", "x");
        row("class", "Fields/ClassType", "House");
        row("identifier", "Fields/Id", "c");
        row("no number", "Fields/MeasuredHeight", "high");
        row("no number at all", "Fields/MeasuredHeight", "");
        row("not a number", "Fields/MeasuredHeight", "nan");
        row("fraction", "Fields/StoreysAboveGround", "1.5");
        row("negative count", "Fields/StoreysAboveGround", "-1");
        row("no date", "Fields/CreationDate", "2020-02-30");
        row("no date at all", "Fields/CreationDate", "");
        row("text behind a date", "Fields/CreationDate", "2020-02-28 or so");
        row("date with a time", "Fields/CreationDate", "2020-02-28T12:00:00");
        row("date with a zone", "Fields/CreationDate", "2020-02-28Z");
        row("no literal", "Fields/RelativeToTerrain", "EntirelyAboveTerrain");
        row("no truth value", "Properties/Energy/isLandmarked", "yes");
        row("any simple type", "Fields/Address/Usage", "parcels");
        row("nothing in a list", "Fields/Function", "[null]");
        row("list in a list", "Fields/Function", "[[\"1\"]]");
        row("object in a list", "Fields/Function", "[{\"1\": \"2\"}]");
        row("blank in a list of numbers", "Fields/StoreyHeightsAboveGround", "[\"3 4\"]");
        row("nothing in a list of numbers", "Fields/StoreyHeightsAboveGround", "[\"\"]");
        row("blank in an absent list of numbers", "Fields/StoreyHeightsBelowGround", "[\"3 4\"]");
    }

    void refusals()
    {
        QFETCH(QString, property);
        QFETCH(QString, value);
        const ProcessResult result =
            runTool({"set", path("in.gml"), "--id", "b", "--", property, value, path("out.gml")});
        QCOMPARE(result.code, 1);
        QVERIFY(result.err.startsWith("tolvik-inspect: "));
        QCOMPARE(result.err.count('\n'), 1);
        QVERIFY(!QFile::exists(path("out.gml")));
    }

    void textThatXmlCannotHold_data()
    {
        QTest::addColumn<QString>("property");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QByteArray>("character");
        QTest::newRow("text") << "Fields/a/b" << QString("a") + QChar(0x0B) << QByteArray("U+000B");
        QTest::newRow("number") << "Fields/MeasuredHeight" << QString("1") + QChar(0x1F)
                                << QByteArray("U+001F");
        QTest::newRow("literal") << "Fields/RelativeToTerrain" << QString(QChar(0x01))
                                 << QByteArray("U+0001");
        QTest::newRow("list") << "Fields/Function"
                              << "[\"1\", \"\\ufffe\"]" << QByteArray("U+FFFE");
        QTest::newRow("end of a text") << "Fields/Function"
                                       << "[\"\\u0000\"]" << QByteArray("U+0000");
    }

    /// It is refused at the edit, before a document is written.
    void textThatXmlCannotHold()
    {
        QFETCH(QString, property);
        QFETCH(QString, value);
        QFETCH(QByteArray, character);
        const ProcessResult result =
            runTool({"set", path("in.gml"), "--id", "b", property, value, path("out.gml")});
        QCOMPARE(result.code, 1);
        const QByteArray label = property.section('/', 1).toUtf8();
        QCOMPARE(result.err, "tolvik-inspect: " + label + " cannot hold the character " + character +
                                 ", as XML has no such character\n");
        QVERIFY(!QFile::exists(path("out.gml")));
    }

    void textAtTheEdgeOfXml()
    {
        const QString value = QString::fromUtf8("\t\u0020\u007F\uD7FF\uE000\uFFFD\U00010000\U0010FFFF");
        QCOMPARE(runTool({"set", path("in.gml"), "--id", "b", "Fields/a/b", value, path("out.gml")}).code, 0);
        QVERIFY(contentOf(path("out.gml")).contains(value.toUtf8()));
    }

    void savesOverTheDocumentItself()
    {
        QVERIFY(QFile::copy(path("in.gml"), path("out.gml")));
        QCOMPARE(
            runTool({"set", path("out.gml"), "--id", "b", "Fields/MeasuredHeight", "high", path("out.gml")})
                .code,
            1);
        QCOMPARE(contentOf(path("out.gml")), documentText);
        QCOMPARE(runTool({"set", path("out.gml"), "--id", "b", "Fields/MeasuredHeight", "7", path("out.gml")})
                     .code,
                 0);
        QCOMPARE(contentOf(path("out.gml")), contentOf(path("plain.gml")).replace(">12.5<", ">7<"));
    }

    void moments_data()
    {
        QTest::addColumn<QString>("property");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QByteArray>("written");
        const auto row = [](const char* name, const QString& property, const QString& value,
                            const QByteArray& written) {
            QTest::newRow(name) << property << value << written;
        };
        row("moment", "Properties/Foncier/timeSpec", "2020-02-28T12:30:01", ">2020-02-28T12:30:01<");
        // These would be lost.
        row("zone", "Properties/Foncier/timeSpec", "2020-02-28T12:30:01Z", QByteArray());
        row("fraction", "Properties/Foncier/timeSpec", "2020-02-28T12:30:01.5", QByteArray());
        row("no moment", "Properties/Foncier/timeSpec", "2020-02-30T12:30:01", QByteArray());
        // An edit removes a length of time.
        row("duration", "Properties/Energy/energyAmount/temporalExtent/duration", "0001-02-03T00:00:00",
            QByteArray());
    }

    void moments()
    {
        QFETCH(QString, property);
        QFETCH(QString, value);
        QFETCH(QByteArray, written);
        QFile file(path("moments.gml"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(momentsText);
        file.close();
        const QString id = property.contains("Energy") ? "demand" : "right";
        const ProcessResult shown = runTool({"properties", path("moments.gml"), "--id", id, "--absent"});
        QVERIFY2(shown.out.contains(' ' + property.section('/', -1).toUtf8() + ':'), shown.out.constData());
        const ProcessResult result =
            runTool({"set", path("moments.gml"), "--id", id, property, value, path("out.gml")});
        QCOMPARE(result.code, written.isEmpty() ? 1 : 0);
        QCOMPARE(result.err.count('\n'), result.code);
        QCOMPARE(QFile::exists(path("out.gml")), !written.isEmpty());
        QVERIFY(written.isEmpty() || contentOf(path("out.gml")).contains(written));
    }

    /// Features without an identifier share a name inside the model, which is none of theirs.
    void theSharedNameIsNoIdentifier()
    {
        const ProcessResult result =
            runTool({"set", path("in.gml"), "--id", "truite", "Fields/ClassType", "x", path("out.gml")});
        QCOMPARE(result.code, 1);
        QVERIFY(result.err.contains("no feature has the gml:id truite"));
    }
};

TEST_CLASS(PropertiesCommandTest, Core)
#include "propertiescommandtest.moc"
