#include "citygml/Findings.h"
#include "bldg/BuildingType.hxx"
#include "gml/AbstractFeatureType.hxx"
#include "gml/FeaturePropertyType.hxx"
#include "gml/LengthType.hxx"
#include "support/Documents.h"
#include "support/LogRecorder.h"
#include "support/TestClass.h"

#include <log4cplus/loglevel.h>
#include <QtTest>

#include <functional>

using namespace testsupport;

namespace {

/// Buildings in lines of their own, with the heights that a function gives.
QByteArray city(int count, const std::function<QByteArray(int)>& height)
{
    QByteArray xml = "<core:CityModel xmlns:core='http://www.opengis.net/citygml/2.0'"
                     " xmlns:gml='http://www.opengis.net/gml'"
                     " xmlns:bldg='http://www.opengis.net/citygml/building/2.0'>";
    for (int i = 0; i < count; ++i) {
        xml += "\n<core:cityObjectMember><bldg:Building gml:id='b" + QByteArray::number(i) +
               "'><bldg:measuredHeight uom='m'>" + height(i) +
               "</bldg:measuredHeight></bldg:Building></core:cityObjectMember>";
    }
    return xml + "</core:CityModel>";
}

QByteArray high(int)
{
    return "high";
}

gml::LengthType& heightOf(core::CityModelType& document)
{
    auto& object = dynamic_cast<bldg::BuildingType&>(*document.featureMember().front()._Feature());
    return *object.measuredHeight();
}

} // namespace

/// What is told of values that are none of their type, and what becomes of them.
class FindingsTest : public QObject
{
    Q_OBJECT

private slots:
    void aWrongTextIsWrittenUntilThereIsAValue_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QByteArray>("written");
        QTest::newRow("number") << 2.5 << QByteArray(">2.5<");
        // A new object has that value too.
        QTest::newRow("zero") << 0.0 << QByteArray(">0<");
    }
    void aWrongTextIsWrittenUntilThereIsAValue()
    {
        QFETCH(double, value);
        QFETCH(QByteArray, written);
        const Document document = read(city(1, &high));
        QVERIFY(citygml::isSetAside(heightOf(*document)));
        QVERIFY(write(*document).contains("<bldg:measuredHeight uom=\"m\">high</bldg:measuredHeight>"));
        heightOf(*document) = gml::LengthType(value, "m");
        QVERIFY(!citygml::isSetAside(heightOf(*document)));
        const QByteArray saved = write(*document);
        QVERIFY(saved.contains(written));
        QVERIFY(!saved.contains("high"));
    }

    /// What an extension derives from a year is one that nothing but its text gives a value.
    void aWrongYearOfAnExtensionComesBack()
    {
        const QByteArray year = "<p:yearOfRefurbishment "
                                "xmlns:p='urn:tolvik:citygml:pivotEnergy:1.0'>2018a</p:yearOfRefurbishment>";
        for (int i = 0; i < 10; ++i) {
            const Document document = read(documentWithBuilding(year));
            QVERIFY(write(*document).contains(">2018a<"));
        }
    }

    void aFindingTellsItsPlace()
    {
        const Document document = read(city(2, [](int i) { return QByteArray(i == 0 ? "2.5" : "high"); }));
        const auto& groups = citygml::findingsOf(*document);
        QCOMPARE(groups.size(), std::size_t(1));
        const citygml::Finding& finding = groups.front().first.front();
        QCOMPARE(finding.line, std::uint64_t(3));
        QCOMPARE(finding.column, std::uint64_t(84));
        QCOMPARE(QString::fromStdString(finding.reason), QString("'high' is not a number"));
        QCOMPARE(QString::fromStdString(finding.featureId), QString("b1"));
        QCOMPARE(QString::fromStdString(finding.path),
                 QString("/core:CityModel/core:cityObjectMember/bldg:Building/bldg:measuredHeight"));
    }

    void copiesHaveTheFindings()
    {
        const Document document = read(city(1, &high));
        const Document copy(document->_clone());
        QCOMPARE(citygml::findingsOf(*copy).size(), std::size_t(1));
    }

    void aDocumentWithoutFaultHasNone()
    {
        const Document document = read(city(2, [](int) { return QByteArray("2.5"); }));
        QVERIFY(citygml::findingsOf(*document).empty());
        QVERIFY(!citygml::isSetAside(heightOf(*document)));
        QVERIFY(citygml::findingsOf(core::CityModelType()).empty());
    }

    void theSameFaultIsListedAThousandTimes()
    {
        ReaderLog log(log4cplus::WARN_LOG_LEVEL);
        const Document document = read(city(1500, &high));
        const auto& groups = citygml::findingsOf(*document);
        QCOMPARE(groups.size(), std::size_t(1));
        QCOMPARE(groups.front().count, std::uint64_t(1500));
        QCOMPARE(groups.front().first.size(), std::size_t(1000));
        QCOMPARE(log.take(), QStringList("WARN 2:84: 'high' is not a number, in /core:CityModel/"
                                         "core:cityObjectMember/bldg:Building/bldg:measuredHeight (1500)"));
    }

    void theLogTellsTwentyKinds()
    {
        ReaderLog log(log4cplus::WARN_LOG_LEVEL);
        const Document document = read(city(50, [](int i) { return 'h' + QByteArray::number(i / 2); }));
        QCOMPARE(citygml::findingsOf(*document).size(), std::size_t(25));
        const QStringList lines = log.take();
        QCOMPARE(lines.size(), 21);
        QCOMPARE(lines.last(), QString("WARN 10 more findings of 5 other kinds"));
    }

    void otherFaultsEverywhereTakeNoEndOfGroups()
    {
        ReaderLog log(log4cplus::OFF_LOG_LEVEL);
        const Document document = read(city(3000, [](int i) { return 'h' + QByteArray::number(i); }));
        const auto& groups = citygml::findingsOf(*document);
        QCOMPARE(groups.size(), std::size_t(1001));
        QCOMPARE(groups.back().count, std::uint64_t(2000));
        QCOMPARE(groups.back().first.size(), std::size_t(1000));
    }
};

TEST_CLASS(FindingsTest, None)
#include "findingstest.moc"
