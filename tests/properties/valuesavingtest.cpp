#include "support/PropertyText.h"
#include "support/TestClass.h"
#include "support/VariantText.h"

#include <limits>
#include <QDate>
#include <QDateTime>
#include <QRegularExpression>
#include <QtTest>
#include <QUrl>
#include <sstream>

using namespace testsupport;

using tolvik::CoreProperty;

namespace {

/// A feature with the content, and what an edit of a property of it gives.
class Kind
{
public:
    Kind(const char* name, const QByteArray& feature, const QString& path)
        : name(name), feature(feature), path(path)
    {
    }

    /// \param shown   what the property says then, at once and after saving and loading
    /// \param written what the file says; where it is empty, the file has no element of the attribute
    const Kind& edit(const char* sort, const QVariant& value, const QString& shown,
                     const QByteArray& written) const
    {
        QTest::addRow("%s, %s", name, sort) << feature << path << value << shown << written;
        return *this;
    }

    /// The same for variants that stand for nothing of the kind.
    const Kind& wrong(const QVariantList& values, const QString& shown, const QByteArray& written) const
    {
        for (const QVariant& value : values) {
            edit(qPrintable("wrong " + typedText(value)), value, shown, written);
        }
        return *this;
    }

private:
    const char* name;
    QByteArray feature;
    QString path;
};

QByteArray generic(const char* type, const QByteArray& value)
{
    return buildingText(QByteArray("<gen:") + type + " name='x'>" + value + "</gen:" + type + '>');
}

QByteArray demand(const QByteArray& values, const QByteArray& duration)
{
    return "<energy:EnergyDemand><energy:energyAmount><energy:RegularTimeSeries><energy:variableProperties/>"
           "<energy:temporalExtent><gml:TimePeriod><gml:beginPosition indeterminatePosition='after'>2023"
           "</gml:beginPosition>" +
           duration +
           "</gml:TimePeriod></energy:temporalExtent><energy:timeInterval unit='hour' factor='1'>1"
           "</energy:timeInterval>" +
           values +
           "</energy:RegularTimeSeries></energy:energyAmount><energy:endUse>Cooking</energy:endUse>"
           "</energy:EnergyDemand>";
}

QByteArray spatialUnit()
{
    return "<ladmfr:LA_SpatialUnit><ladmfr:area uom='m2'>640</ladmfr:area><ladmfr:area "
           "uom='ha'>6</ladmfr:area>"
           "<ladmfr:suID>1</ladmfr:suID><ladmfr:volume uom='m3'>7</ladmfr:volume>"
           "<ladmfr:suNameSpace>1</ladmfr:suNameSpace><ladmfr:pID>1</ladmfr:pID>"
           "<ladmfr:pNameSpace>1</ladmfr:pNameSpace><ladmfr:pointType>1</ladmfr:pointType>"
           "</ladmfr:LA_SpatialUnit>";
}

const QString oddText = QString::fromUtf8(" <a b='c'>&amp; \"é 日本 𝄞\" ]]> ");

} // namespace

/// For each kind of values, what becomes of an edit: in the property, in the file, and after a reload.
class ValueSavingTest : public QObject
{
    Q_OBJECT

private:
    static void numbers()
    {
        const QVariantList noNumbers{QString("abc"), QVariantMap(), QVariantList{1}};

        Kind("real", generic("doubleAttribute", "<gen:value>1.5</gen:value>"), "Fields/x")
            .edit("ordinary", 2.5, "double 2.5", "<gen:value>2.5</gen:value>")
            .edit("text", "-1e-3", "double -0.001", "<gen:value>-0.001</gen:value>")
            .edit("empty", QVariant(), "double 0", "<gen:value>0</gen:value>")
            .edit("extreme", std::numeric_limits<double>::max(), "double 1.7976931348623157e+308",
                  "<gen:value>1.7976931348623157e+308</gen:value>")
            .edit("infinite", -std::numeric_limits<double>::infinity(), "double -inf",
                  "<gen:value>-INF</gen:value>")
            .edit("not a number", std::numeric_limits<double>::quiet_NaN(), "double nan",
                  "<gen:value>NaN</gen:value>")
            .wrong(noNumbers, "double 0", "<gen:value>0</gen:value>");

        Kind("optional truth value", "<brid:Bridge/>", "Fields/IsMovable")
            .edit("ordinary", true, "bool true", "<brid:isMovable>true</brid:isMovable>")
            .edit("text", "false", "bool false", "<brid:isMovable>false</brid:isMovable>")
            .edit("empty", QVariant(), "bool false", "<brid:isMovable>false</brid:isMovable>")
            .edit("extreme", -7, "bool true", "<brid:isMovable>true</brid:isMovable>")
            .wrong({QVariantMap(), QVariantList{1}}, "bool false", "<brid:isMovable>false</brid:isMovable>");

        Kind("optional whole number", "<energy:BuildingUnit/>", "Properties/Energy/numberOfRooms")
            .edit("ordinary", 7, "int 7", "<energy:numberOfRooms>7</energy:numberOfRooms>")
            .edit("empty", QString(), "int 0", "<energy:numberOfRooms>0</energy:numberOfRooms>")
            .edit("extreme", std::numeric_limits<int>::min(), "int -2147483648",
                  "<energy:numberOfRooms>-2147483648</energy:numberOfRooms>")
            .edit("beyond", 5000000000LL, "int 0", "<energy:numberOfRooms>0</energy:numberOfRooms>")
            .wrong(noNumbers, "int 0", "<energy:numberOfRooms>0</energy:numberOfRooms>");

        Kind("long number", generic("intAttribute", "<gen:value>5000000000</gen:value>"), "Fields/x")
            .edit("ordinary", -7, "qlonglong -7", "<gen:value>-7</gen:value>")
            .edit("empty", QVariant(), "qlonglong 0", "<gen:value>0</gen:value>")
            .edit("extreme", std::numeric_limits<int>::max(), "qlonglong 2147483647",
                  "<gen:value>2147483647</gen:value>")
            .edit("beyond", 5000000000LL, "qlonglong 0", "<gen:value>0</gen:value>")
            .wrong(noNumbers, "qlonglong 0", "<gen:value>0</gen:value>");

        Kind("optional long number", demand("<energy:values uom='kWh'>1</energy:values>", ""),
             "Properties/Energy/energyAmount/timeInterval/factor")
            .edit("ordinary", -3, "qlonglong -3", " factor=\"-3\"")
            .edit("empty", QVariant(), "qlonglong 0", " factor=\"0\"")
            .wrong(noNumbers, "qlonglong 0", " factor=\"0\"");

        Kind("optional count", buildingText(""), "Fields/StoreysAboveGround")
            .edit("ordinary", 4, "qulonglong 4", "<bldg:storeysAboveGround>4</bldg:storeysAboveGround>")
            .edit("empty", QVariant(), "qulonglong 0", "<bldg:storeysAboveGround>0</bldg:storeysAboveGround>")
            .edit("extreme", std::numeric_limits<unsigned>::max(), "qulonglong 4294967295",
                  "<bldg:storeysAboveGround>4294967295</bldg:storeysAboveGround>")
            .edit("beyond", "4294967296", "qulonglong 0",
                  "<bldg:storeysAboveGround>0</bldg:storeysAboveGround>")
            .wrong(noNumbers, "qulonglong 0", "<bldg:storeysAboveGround>0</bldg:storeysAboveGround>");

        Kind("bounded whole number",
             "<dem:MassPointRelief><dem:lod>3</dem:lod><dem:reliefPoints/></dem:MassPointRelief>",
             "Fields/Lod")
            .edit("ordinary", 2, "int 2", "<dem:lod>2</dem:lod>")
            .edit("empty", QVariant(), "int 0", "<dem:lod>0</dem:lod>")
            .wrong(noNumbers, "int 0", "<dem:lod>0</dem:lod>");

        Kind("optional bounded number",
             "<utility:LiquidMedium><utility:type>w</utility:type></utility:LiquidMedium>",
             "Properties/UtilityNetwork/flammable")
            .edit("ordinary", 0.25, "double 0.25", "<utility:flammable>0.25</utility:flammable>")
            .edit("empty", QVariant(), "double 0", "<utility:flammable>0</utility:flammable>")
            .edit("extreme", 1.0, "double 1", "<utility:flammable>1</utility:flammable>")
            .wrong(noNumbers, "double 0", "<utility:flammable>0</utility:flammable>");
    }

    static void measures()
    {
        Kind("measure", generic("measureAttribute", "<gen:value uom='kg'>1.5</gen:value>"), "Fields/x")
            .edit("ordinary", 2, "double 2", "<gen:value uom=\"kg\">2</gen:value>")
            .edit("empty", QVariant(), "double 0", "<gen:value uom=\"kg\">0</gen:value>")
            .edit("extreme", -1e300, "double -1e+300", "<gen:value uom=\"kg\">-1e+300</gen:value>")
            .wrong({QString("2 kg"), QVariantList{1}}, "double 0", "<gen:value uom=\"kg\">0</gen:value>");

        Kind("optional measure", buildingText("<bldg:measuredHeight uom='#m'>12</bldg:measuredHeight>"),
             "Fields/MeasuredHeight")
            .edit("ordinary", 9.75, "double 9.75",
                  "<bldg:measuredHeight uom=\"#m\">9.75</bldg:measuredHeight>")
            .edit("empty", QVariant(), "double 0", "<bldg:measuredHeight uom=\"#m\">0</bldg:measuredHeight>")
            .wrong({QString("high")}, "double 0", "<bldg:measuredHeight uom=\"#m\">0</bldg:measuredHeight>");

        Kind("absent measure", buildingText(""), "Fields/MeasuredHeight")
            .edit("ordinary", 9.75, "double 9.75",
                  "<bldg:measuredHeight uom=\"\">9.75</bldg:measuredHeight>");

        Kind("scale",
             "<energy:MechanicalVentilation><energy:installedNominalPower>1</energy:installedNominalPower>"
             "<energy:nominalEfficiency uom='1'>1</energy:nominalEfficiency>"
             "<energy:heatRecovery>true</energy:heatRecovery>"
             "<energy:recuperationFactor "
             "uom='%'>50</energy:recuperationFactor></energy:MechanicalVentilation>",
             "Properties/Energy/recuperationFactor")
            .edit("ordinary", 75, "double 75",
                  "<energy:recuperationFactor uom=\"%\">75</energy:recuperationFactor>")
            .edit("empty", QVariant(), "double 0",
                  "<energy:recuperationFactor uom=\"%\">0</energy:recuperationFactor>");

        // All get the unit of the first.
        Kind("areas", spatialUnit(), "Properties/Foncier/area")
            .edit("ordinary", QVariantList{1.5, "2", 3}, "[double 1.5, double 2, double 3]",
                  "<ladmfr:area uom=\"m2\">1.5</ladmfr:area><ladmfr:area uom=\"m2\">2</ladmfr:area>"
                  "<ladmfr:area uom=\"m2\">3</ladmfr:area>")
            .edit("wrong entry", QVariantList{"x"}, "[double 0]", "<ladmfr:area uom=\"m2\">0</ladmfr:area>")
            .edit("empty", QVariant(), "", "")
            .wrong({QString("5"), 5}, "", "");

        Kind("volumes", spatialUnit(), "Properties/Foncier/volume")
            .edit("ordinary", QVariantList{8, 9}, "[double 8, double 9]",
                  "<ladmfr:volume uom=\"m3\">8</ladmfr:volume><ladmfr:volume uom=\"m3\">9</ladmfr:volume>")
            .edit("empty", QVariantList(), "", "");

        Kind("numbers", demand("<energy:values uom='kWh'>12.5 13</energy:values>", ""),
             "Properties/Energy/energyAmount/values")
            .edit("ordinary", QVariantList{1, 2.25}, "[double 1, double 2.25]",
                  "<energy:values uom=\"kWh\">1 2.25</energy:values>")
            .edit("empty", QVariant(), "[]", "<energy:values uom=\"kWh\"/>")
            .edit("extreme", QVariantList{1e300, -1e-300}, "[double 1e+300, double -1e-300]",
                  "<energy:values uom=\"kWh\">1e+300 -1e-300</energy:values>")
            .edit("wrong entry", QVariantList{"x", 1}, "[double 0, double 1]",
                  "<energy:values uom=\"kWh\">0 1</energy:values>")
            .wrong({QString("5"), 5}, "[]", "<energy:values uom=\"kWh\"/>");

        Kind("optional whole numbers",
             "<energy:UsageZone><energy:usageZoneType>t</energy:usageZoneType></energy:UsageZone>",
             "Properties/Energy/usedFloors")
            .edit("ordinary", QVariantList{-1, "2"}, "[qlonglong -1, qlonglong 2]",
                  "<energy:usedFloors>-1 2</energy:usedFloors>")
            .edit("empty", QVariant(), "[]", "<energy:usedFloors/>")
            .edit("beyond", QVariantList{5000000000LL}, "[qlonglong 0]",
                  "<energy:usedFloors>0</energy:usedFloors>")
            .wrong({QString("5"), 5}, "[]", "<energy:usedFloors/>");

        Kind("optional nullable numbers",
             buildingText(
                 "<bldg:storeyHeightsAboveGround uom='m'>3.0 unknown</bldg:storeyHeightsAboveGround>"),
             "Fields/StoreyHeightsAboveGround")
            .edit("ordinary", QVariantList{"2.50", "withheld", 3},
                  "[QString 2.50, QString withheld, QString 3]",
                  "<bldg:storeyHeightsAboveGround uom=\"m\">2.50 withheld 3</bldg:storeyHeightsAboveGround>")
            .edit("empty", QVariant(), "[]", "<bldg:storeyHeightsAboveGround uom=\"m\"/>")
            .wrong({QString("5"), 5}, "[]", "<bldg:storeyHeightsAboveGround uom=\"m\"/>");

        Kind("optional nullable extent",
             "<utility:Canal><utility:slope uom='m'>1 2</utility:slope></utility:Canal>",
             "Properties/UtilityNetwork/slope")
            .edit("ordinary", QVariantList{"1.50", "unknown"}, "[QString 1.50, QString unknown]",
                  "<utility:slope uom=\"m\">1.50 unknown</utility:slope>")
            .edit("empty", QVariant(), "[]", "<utility:slope uom=\"m\"/>");

        // An edit removes a position.
        Kind("optional position",
             buildingText(
                 "<gml:boundedBy><gml:Envelope><gml:lowerCorner>1 2 3</gml:lowerCorner></gml:Envelope>"
                 "</gml:boundedBy>"),
             "Fields/Envelope/LowerCorner")
            .edit("ordinary", QVariantList{4, 5, 6}, "invalid", "")
            .edit("empty", QVariant(), "invalid", "")
            .wrong({QString("5"), 5}, "invalid", "");
    }

    static void texts()
    {
        // Qt makes a text of a list with one text in it, and of no other list.
        const QVariantList noTexts{QVariantMap(), QVariantList{1, 2}};

        Kind("text", generic("stringAttribute", "<gen:value>v</gen:value>"), "Fields/x")
            .edit("ordinary", "w", "QString w", "<gen:value>w</gen:value>")
            .edit("empty", QVariant(), "QString ", "<gen:value/>")
            .edit("extreme", oddText, "QString " + oddText,
                  "<gen:value> &lt;a b='c'&gt;&amp;amp; \"é 日本 𝄞\" ]]&gt; </gen:value>")
            .edit("lines", "a\nb\tc\rd", "QString a\nb\tc\rd", "<gen:value>a\nb\tc&#13;d</gen:value>")
            .edit("number", 12.5, "QString 12.5", "<gen:value>12.5</gen:value>")
            .wrong(noTexts, "QString ", "<gen:value/>");

        Kind("optional text", "<energy:BuildingUnit/>", "Properties/Energy/ownerName")
            .edit("ordinary", "w", "QString w", "<energy:ownerName>w</energy:ownerName>")
            .edit("empty", QVariant(), "QString ", "<energy:ownerName/>")
            .wrong(noTexts, "QString ", "<energy:ownerName/>");

        Kind("optional code", buildingText("<bldg:class codeSpace='s'>1</bldg:class>"), "Fields/Class")
            .edit("ordinary", "2", "QString 2", "<bldg:class>2</bldg:class>")
            .edit("empty", QVariant(), "QString ", "<bldg:class/>")
            .edit("extreme", oddText, "QString " + oddText,
                  "<bldg:class> &lt;a b='c'&gt;&amp;amp; \"é 日本 𝄞\" ]]&gt; </bldg:class>")
            .wrong(noTexts, "QString ", "<bldg:class/>");

        Kind("optional text or reference",
             buildingText("<gml:description xlink:href='#x'>d</gml:description>"), "Fields/Description")
            .edit("ordinary", "e", "QString e", "<gml:description>e</gml:description>")
            .edit("empty", QVariant(), "QString ", "<gml:description/>");

        Kind("codes",
             buildingText("<bldg:function codeSpace='s'>1</bldg:function><bldg:function "
                          "codeSpace='s'>2</bldg:function>"),
             "Fields/Function")
            .edit("ordinary", QVariantList{"1", "3", 4}, "[QString 1, QString 3, QString 4]",
                  "<bldg:function>1</bldg:function><bldg:function>3</bldg:function><bldg:function>4</"
                  "bldg:function>")
            .edit("extreme", QVariantList{oddText}, "[QString " + oddText + ']',
                  "<bldg:function> &lt;a b='c'&gt;&amp;amp; \"é 日本 𝄞\" ]]&gt; </bldg:function>")
            .edit("empty entry", QVariantList{QVariant()}, "[QString ]", "<bldg:function/>")
            .edit("empty", QVariant(), "", "")
            .wrong({QString("1"), 1}, "", "");

        Kind("texts", "<ladmfr:LA_Party><ladmfr:role>a</ladmfr:role></ladmfr:LA_Party>",
             "Properties/Foncier/role")
            .edit("ordinary", QVariantList{"b", "c"}, "[QString b, QString c]",
                  "<ladmfr:role>b</ladmfr:role><ladmfr:role>c</ladmfr:role>")
            .edit("empty", QVariant(), "", "")
            .wrong({QString("1"), 1}, "", "");

        Kind("uri", generic("uriAttribute", "<gen:value>http://a</gen:value>"), "Fields/x")
            .edit("ordinary", "http://b/ c", "QString http://b/ c", "<gen:value>http://b/ c</gen:value>")
            .edit("link", QUrl("http://b"), "QString http://b", "<gen:value>http://b</gen:value>")
            .edit("empty", QVariant(), "QString ", "<gen:value/>")
            .wrong(noTexts, "QString ", "<gen:value/>");

        Kind("optional uri",
             buildingText("<core:externalReference><core:externalObject><core:uri>http://a</core:uri>"
                          "</core:externalObject></core:externalReference>"),
             "Fields/ExternalReferences/externalObjectReference/ReferenceUri")
            .edit("ordinary", QUrl("http://b/c?d=e&f"), "QUrl http://b/c?d=e&f",
                  "<core:uri>http://b/c?d=e&amp;f</core:uri>")
            .edit("empty", QVariant(), "QUrl ", "<core:uri/>")
            .wrong(noTexts, "QUrl ", "<core:uri/>");

        Kind("unit of time", demand("<energy:values uom='kWh'>1</energy:values>", ""),
             "Properties/Energy/energyAmount/timeInterval/unit")
            .edit("ordinary", "minute", "QString minute", " unit=\"minute\"")
            .edit("empty", QVariant(), "QString ", " unit=\"\"");

        Kind("unit of measure",
             "<energy:EnergyDemand><energy:energyAmount><energy:IrregularTimeSeries><energy:"
             "variableProperties/>"
             "<energy:uom uom='kWh'/></energy:IrregularTimeSeries></energy:energyAmount>"
             "<energy:endUse>Cooking</energy:endUse></energy:EnergyDemand>",
             "Properties/Energy/energyAmount/uom")
            .edit("ordinary", "W", "QString W", "<energy:uom uom=\"W\"/>")
            .edit("empty", QVariant(), "QString ", "<energy:uom uom=\"\"/>")
            .wrong(noTexts, "QString ", "<energy:uom uom=\"\"/>");

        // Does not show, whatever it is.
        Kind("optional value of any simple type",
             buildingText("<bldg:address><core:Address><core:xalAddress><xAL:AddressDetails Usage='mail'/>"
                          "</core:xalAddress></core:Address></bldg:address>"),
             "Fields/Address/Usage")
            .edit("ordinary", "parcels", "invalid", " Usage=\"\"")
            .edit("empty", QVariant(), "invalid", " Usage=\"\"");

        Kind("optional literal",
             buildingText("<core:relativeToTerrain>entirelyAboveTerrain</core:relativeToTerrain>"),
             "Fields/RelativeToTerrain")
            .edit("ordinary", "entirelyBelowTerrain", "QString entirelyBelowTerrain",
                  "<core:relativeToTerrain>entirelyBelowTerrain</core:relativeToTerrain>")
            .edit("empty", QVariant(), "invalid", "<core:relativeToTerrain/>")
            .wrong({QString("EntirelyBelowTerrain"), 1}, "invalid", "<core:relativeToTerrain/>");

        Kind("literal without a list", demand("<energy:values uom='kWh'>1</energy:values>", ""),
             "Properties/Energy/energyAmount/temporalExtent/beginPosition/intermediatePosition")
            .edit("ordinary", "now", "QString now", " indeterminatePosition=\"now\"")
            .edit("empty", QVariant(), "invalid", " indeterminatePosition=\"\"")
            .wrong({QString("soon"), 1}, "invalid", " indeterminatePosition=\"\"");
    }

    static void moments()
    {
        Kind("date", generic("dateAttribute", "<gen:value>2001-02-03+02:00</gen:value>"), "Fields/x")
            .edit("ordinary", QDate(2020, 2, 29), "QDate 2020-02-29", "<gen:value>2020-02-29</gen:value>")
            .edit("text", "1999-12-31", "QDate 1999-12-31", "<gen:value>1999-12-31</gen:value>")
            .edit("empty", QVariant(), "QDate ", "<gen:value>0000-00-00</gen:value>")
            .wrong({QString("2020-02-30"), 5, QVariantList{1}}, "QDate ", "<gen:value>0000-00-00</gen:value>")
            .edit("extreme", QDate(9999, 12, 31), "QDate 9999-12-31", "<gen:value>9999-12-31</gen:value>")
            // A year has 16 bits, and one of five digits is none that Qt spells.
            .edit("before the common era", QDate(-44, 3, 15), "QDate ", "<gen:value>65492-03-15</gen:value>");

        Kind("optional date", buildingText(""), "Fields/CreationDate")
            .edit("ordinary", QDate(2020, 2, 29), "QDate 2020-02-29",
                  "<core:creationDate>2020-02-29</core:creationDate>");

        Kind("optional year", buildingText("<bldg:yearOfConstruction>1789Z</bldg:yearOfConstruction>"),
             "Fields/YearOfConstruction")
            .edit("ordinary", 1889, "int 1889", "<bldg:yearOfConstruction>1889</bldg:yearOfConstruction>")
            .edit("empty", QVariant(), "int 0", "<bldg:yearOfConstruction>0000</bldg:yearOfConstruction>")
            .edit("extreme", -12345, "int -12345",
                  "<bldg:yearOfConstruction>-12345</bldg:yearOfConstruction>")
            .edit("beyond", 5000000000LL, "int 0", "<bldg:yearOfConstruction>0000</bldg:yearOfConstruction>")
            .wrong({QString("abc"), QDate(2020, 1, 1)}, "int 0",
                   "<bldg:yearOfConstruction>0000</bldg:yearOfConstruction>");

        // The fraction of a second and the zone are lost.
        Kind("optional moment",
             "<ladmfr:LA_Right><ladmfr:timeSpec>2019-06-03T11:15:12.75Z</ladmfr:timeSpec></ladmfr:LA_Right>",
             "Properties/Foncier/timeSpec")
            .edit("ordinary", QDateTime(QDate(2020, 2, 29), QTime(1, 2, 3, 999), Qt::UTC),
                  "QDateTime 2020-02-29T01:02:03.000",
                  "<ladmfr:timeSpec>2020-02-29T01:02:03</ladmfr:timeSpec>")
            .edit("text", "1999-12-31T23:59:59", "QDateTime 1999-12-31T23:59:59.000",
                  "<ladmfr:timeSpec>1999-12-31T23:59:59</ladmfr:timeSpec>")
            .edit("empty", QVariant(), "QDateTime ", "<ladmfr:timeSpec>0000-00-00T00:00:00</ladmfr:timeSpec>")
            .wrong({QString("noon"), 5}, "QDateTime ",
                   "<ladmfr:timeSpec>0000-00-00T00:00:00</ladmfr:timeSpec>")
            .edit("date", QDate(2020, 2, 29), "QDateTime 2020-02-29T00:00:00.000",
                  "<ladmfr:timeSpec>2020-02-29T00:00:00</ladmfr:timeSpec>");

        // An edit removes a length of time.
        Kind("optional length of time",
             demand("<energy:values uom='kWh'>1</energy:values>",
                    "<gml:duration>P1Y2M3DT4H5M6S</gml:duration>"),
             "Properties/Energy/energyAmount/temporalExtent/duration")
            .edit("ordinary", QDateTime(QDate(1, 2, 3), QTime(4, 5, 6)), "invalid", "")
            .edit("empty", QVariant(), "invalid", "")
            .wrong({QString("P1Y"), 5}, "invalid", "");
    }

private slots:
    void edits_data()
    {
        QTest::addColumn<QByteArray>("feature");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QByteArray>("written");
        numbers();
        measures();
        texts();
        moments();
    }

    void edits()
    {
        QFETCH(QByteArray, feature);
        QFETCH(QString, path);
        QFETCH(QVariant, value);
        QFETCH(QString, shown);
        QFETCH(QByteArray, written);
        const QStringList labels = path.split('/');
        // A sequence without elements has no property after the reload, and shows an empty list before it.
        const bool isGone = shown.isEmpty();

        FeatureDocument document(feature);
        const QByteArray before = withoutBlanks(document.text());
        {
            const auto root = propertiesOf(document, false);
            CoreProperty* const property = findProperty(root, labels);
            QVERIFY2(property != nullptr, qPrintable(treeText(*root)));
            property->setValue(value);
            QCOMPARE(typedText(property->value()), isGone ? QString("[]") : shown);
        }
        const QByteArray after = withoutBlanks(document.text());
        QVERIFY2(after.contains(written), after);
        if (written.isEmpty()) {
            // Nothing but the attribute is gone.
            QVERIFY2(after.size() < before.size(), after);
        }
        QVERIFY2(reloads(document), after);
        const auto root = propertiesOf(document, false);
        CoreProperty* const property = findProperty(root, labels);
        QCOMPARE(property == nullptr, isGone);
        QCOMPARE(isGone ? QString() : typedText(property->value()), shown);
        QCOMPARE(withoutBlanks(document.text()), after);
    }

private:
    static bool reloads(FeatureDocument& document)
    {
        try {
            document.reload();
        } catch (const xsd::cxx::tree::exception<char>& error) {
            std::ostringstream reason;
            reason << error;
            qWarning("%s", reason.str().c_str());
            return false;
        }
        return true;
    }

    /// The member of a document, without what stands between the tags to make it legible.
    static QByteArray withoutBlanks(const QByteArray& xml)
    {
        return QString::fromUtf8(xml.mid(xml.indexOf("<core:cityObjectMember")))
            .replace(QRegularExpression(">\n *<"), "><")
            .toUtf8();
    }
};

TEST_CLASS(ValueSavingTest, Core)
#include "valuesavingtest.moc"
