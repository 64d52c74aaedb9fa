#include "citygml/CityGMLPlugin.h"
#include "support/TestClass.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <QtTest>

#include <sstream>

using namespace testsupport;

/// Where a document lies, as the embedded platform tells it.
class CityGMLPluginTest : public QObject
{
    Q_OBJECT

private slots:
    void withoutADocumentThereIsNoPlace()
    {
        tolvik::CityGMLModel model(&plugin, nullptr);
        QVERIFY(model.footprint().isEmpty());
    }

    void aDocumentLiesInItsEnvelope_data()
    {
        QTest::addColumn<QByteArray>("corners");
        QTest::newRow("corners") << QByteArray("<gml:lowerCorner>1 2 3</gml:lowerCorner>"
                                               "<gml:upperCorner>5 8 9</gml:upperCorner>");
        QTest::newRow("the wrong way round") << QByteArray("<gml:lowerCorner>5 2 9</gml:lowerCorner>"
                                                           "<gml:upperCorner>1 8 3</gml:upperCorner>");
        QTest::newRow("positions") << QByteArray("<gml:pos>1 2 3</gml:pos><gml:pos>5 8 9</gml:pos>");
    }
    void aDocumentLiesInItsEnvelope()
    {
        QFETCH(QByteArray, corners);
        tolvik::CityGMLModel model(&plugin, nullptr);
        load(model, "<gml:boundedBy><gml:Envelope>" + corners + "</gml:Envelope></gml:boundedBy>");
        const tolvik::CoreModel::_geoPoint anchor = model.anchor();
        QCOMPARE(anchor.x, 3.0);
        QCOMPARE(anchor.y, 5.0);
        QCOMPARE(anchor.z, 3.0);
        const auto footprint = model.footprint();
        QCOMPARE(footprint.size(), 1);
        QCOMPARE(footprint.first().size(), 4);
    }

    /// Coordinates without a height are those of the ground.
    void aFlatEnvelopeLiesAtHeightZero()
    {
        tolvik::CityGMLModel model(&plugin, nullptr);
        load(model, "<gml:boundedBy><gml:Envelope><gml:lowerCorner>1 2</gml:lowerCorner>"
                    "<gml:upperCorner>5 8</gml:upperCorner></gml:Envelope></gml:boundedBy>");
        const tolvik::CoreModel::_geoPoint anchor = model.anchor();
        QCOMPARE(anchor.x, 3.0);
        QCOMPARE(anchor.y, 5.0);
        QCOMPARE(anchor.z, 0.0);
        QCOMPARE(model.footprint().first().first().z, 0.0);
    }

    void anIncompleteEnvelopeIsNoPlace_data()
    {
        QTest::addColumn<QByteArray>("corners");
        QTest::newRow("lower corner alone") << QByteArray("<gml:lowerCorner>1 2 3</gml:lowerCorner>");
        QTest::newRow("upper corner alone") << QByteArray("<gml:upperCorner>1 2 3</gml:upperCorner>");
        QTest::newRow("one position") << QByteArray("<gml:pos>1 2 3</gml:pos>");
        QTest::newRow("three positions")
            << QByteArray("<gml:pos>1 2 3</gml:pos><gml:pos>4 5 6</gml:pos><gml:pos>7 8 9</gml:pos>");
        QTest::newRow("one corner of one number")
            << QByteArray("<gml:lowerCorner>1</gml:lowerCorner><gml:upperCorner>4 5 6</gml:upperCorner>");
    }
    void anIncompleteEnvelopeIsNoPlace()
    {
        QFETCH(QByteArray, corners);
        tolvik::CityGMLModel model(&plugin, nullptr);
        load(model, "<gml:boundedBy><gml:Envelope>" + corners + "</gml:Envelope></gml:boundedBy>");
        QVERIFY(model.footprint().isEmpty());
    }

    void aDocumentWithoutAnEnvelopeHasNoPlace()
    {
        tolvik::CityGMLModel model(&plugin, nullptr);
        load(model, "");
        QVERIFY(model.footprint().isEmpty());
        load(model, "<gml:boundedBy><gml:Null>unknown</gml:Null></gml:boundedBy>");
        QVERIFY(model.footprint().isEmpty());
        load(model, "<gml:boundedBy><gml:Envelope><gml:lowerCorner>1</gml:lowerCorner><gml:upperCorner>2</"
                    "gml:upperCorner>"
                    "</gml:Envelope></gml:boundedBy>");
        QVERIFY(model.footprint().isEmpty());
    }

private:
    static void load(tolvik::CityGMLModel& model, const QByteArray& content)
    {
        std::istringstream stream("<core:CityModel xmlns:core='http://www.opengis.net/citygml/2.0'"
                                  " xmlns:gml='http://www.opengis.net/gml'>" +
                                  content.toStdString() + "</core:CityModel>");
        model.load(stream);
        QVERIFY(model.cityGML() != nullptr);
    }

    tolvik::CityGMLPlugin plugin;
};

TEST_CLASS(CityGMLPluginTest, Core)
#include "citygmlplugintest.moc"
