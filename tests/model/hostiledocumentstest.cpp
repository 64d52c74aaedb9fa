#include "support/CityGMLModelFixture.h"
#include "support/Files.h"
#include "support/SignalRecorder.h"
#include "support/TestClass.h"

#include <functional>
#include <QBuffer>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/resource.h>

using namespace testsupport;

namespace {

QByteArray nested(const QByteArray& tag, int depth)
{
    QByteArray text;
    text.reserve(depth * (2 * tag.size() + 5));
    for (int i = 0; i < depth; ++i) {
        text += '<' + tag + '>';
    }
    for (int i = 0; i < depth; ++i) {
        text += "</" + tag + '>';
    }
    return text;
}

/// Building parts, each within the one before.
QByteArray nestedParts(int depth)
{
    return QByteArray("<bldg:consistsOfBuildingPart><bldg:BuildingPart>").repeated(depth) +
           QByteArray("</bldg:BuildingPart></bldg:consistsOfBuildingPart>").repeated(depth);
}

/// Each entity names the one before ten times: the last is 10^levels characters.
QByteArray entityBomb(int levels)
{
    QByteArray doctype = "<!DOCTYPE CityModel [<!ENTITY e0 \"x\">";
    for (int i = 1; i <= levels; ++i) {
        const QByteArray inner = "&e" + QByteArray::number(i - 1) + ';';
        doctype += "<!ENTITY e" + QByteArray::number(i) + " \"" + inner.repeated(10) + "\">";
    }
    return cityModel(namedBuilding("b1", "&e" + QByteArray::number(levels) + ';'))
        .replace("<CityModel", doctype + "]>\n<CityModel");
}

/// A document type gives each of many elements an attribute of its own making.
QByteArray attributeBomb(int elements)
{
    return cityModel(building("b1", QByteArray("<e/>").repeated(elements)))
        .replace("<CityModel",
                 "<!DOCTYPE CityModel [<!ATTLIST e a CDATA '" + QByteArray(100000, 'x') + "'>]>\n<CityModel");
}

/// An element that declares many prefixes.
QByteArray declarations(int count)
{
    QByteArray element = "<e";
    for (int i = 0; i < count; ++i) {
        const QByteArray number = QByteArray::number(i);
        element += " xmlns:p" + number + "='urn:" + number + '\'';
    }
    return cityModel(building("b1", element + "/>"));
}

QByteArray withDoctype(const QByteArray& doctype, const QByteArray& name)
{
    return cityModel(namedBuilding("b1", name)).replace("<CityModel", doctype + "<CityModel");
}

QByteArray binary()
{
    QByteArray bytes;
    for (int i = 0; i < 100000; ++i) {
        bytes.append(static_cast<char>((i * 7919 + i / 251) & 0xff));
    }
    return bytes;
}

} // namespace

/// Documents that are broken, or meant to do harm: each gives one line in the log and changes nothing else.
class HostileDocumentsTest : public QObject
{
    Q_OBJECT

private slots:
    void refused_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QString>("reason");

        const QByteArray good = town(3);
        QTest::newRow("malformed") << QByteArray(good).replace("</gml:name>", "</gml:nam>")
                                   << "mismatched tag";
        QTest::newRow("unbound prefix")
            << QByteArray(good).replace("<bldg:Building ", "<brid:Building ") << "brid";
        QTest::newRow("truncated in a tag") << good.left(good.indexOf("gml:id=\"b2\"") + 4) << "";
        QTest::newRow("truncated between tags") << good.left(good.lastIndexOf("<cityObjectMember")) << "";
        QTest::newRow("text behind the root") << good + "more"
                                              << "";
        QTest::newRow("second root") << good + "<CityModel/>"
                                     << "";
        QTest::newRow("empty") << QByteArray() << "no element found";
        QTest::newRow("blank") << QByteArray(" \n\n") << "no element found";
        QTest::newRow("declaration only") << QByteArray("<?xml version=\"1.0\"?>") << "no element found";
        QTest::newRow("binary") << binary() << "";
        QTest::newRow("zero bytes") << QByteArray(1 << 20, '\0') << "";
        QTest::newRow("zero byte inside")
            << QByteArray(good).replace("b2</gml:name>", QByteArray("b\0</gml:name>", 13)) << "";
        QTest::newRow("broken UTF-8") << QByteArray(good).replace("b2</", "\xc3\x28</") << "";
        QTest::newRow("unknown encoding") << QByteArray(good).replace("UTF-8", "no-such") << "encoding";
        QTest::newRow("plain text") << QByteArray("Dear Sir or Madam,\n") << "";
        QTest::newRow("HTML") << QByteArray("<!DOCTYPE html><html><body/></html>") << "html";
        QTest::newRow("wrong root")
            << QByteArray("<Building xmlns=\"http://www.opengis.net/citygml/building/2.0\"/>") << "Building";
        QTest::newRow("wrong namespace of the root") << QByteArray("<CityModel/>") << "CityModel";
        QTest::newRow("CityGML 3.0") << QByteArray(good).replace("http://www.opengis.net/citygml/2.0",
                                                                 "http://www.opengis.net/citygml/3.0")
                                     << "CityGML 3.0";
        QTest::newRow("duplicate identifier")
            << cityModel(building("twin") + building("other") + building("twin"))
            << "ID 'twin' already exist";
        QTest::newRow("external entity")
            << withDoctype("<!DOCTYPE CityModel [<!ENTITY e SYSTEM \"file:///etc/hostname\">]>", "&e;")
            << "external entity";
        QTest::newRow("external parameter entity")
            << withDoctype("<!DOCTYPE CityModel [<!ENTITY % e SYSTEM \"file:///etc/hostname\"> %e;]>", "x")
            << "external entity";
        QTest::newRow("external type definition")
            << withDoctype("<!DOCTYPE CityModel SYSTEM \"file:///etc/hostname\">", "x") << "external";
        QTest::newRow("undeclared entity") << withDoctype(QByteArray(), "&nbsp;") << "entity";
        QTest::newRow("entity that names itself")
            << withDoctype("<!DOCTYPE CityModel [<!ENTITY e \"&e;\">]>", "&e;") << "entity";
        QTest::newRow("entity bomb") << entityBomb(9) << "amplification";
        QTest::newRow("attribute bomb") << attributeBomb(10000) << "too many values to attributes";
        QTest::newRow("1,000 prefixes") << declarations(1000) << "more than 1000 namespace declarations";
        QTest::newRow("100,000 deep, unknown elements")
            << cityModel(building("b1", nested("deep", 100000))) << "nested deeper than 512";
        QTest::newRow("100,000 deep, known elements")
            << cityModel(building("b1", nestedParts(50000))) << "nested deeper than 512";
        QTest::newRow("100,000 deep, roots") << nested("a", 100000) << "'a'";
    }

    void refused()
    {
        QFETCH(QByteArray, document);
        QFETCH(QString, reason);
        QTemporaryDir directory;
        const QString path = directory.filePath("hostile.gml");
        QVERIFY(writeFile(path, document));

        ModelLog log;
        const auto verifyOneLine = [&] {
            const QStringList lines = log.take();
            QCOMPARE(lines.size(), 1);
            QVERIFY2(lines[0].startsWith("ERROR Exception caught: "), qPrintable(lines[0]));
            QVERIFY2(!lines[0].trimmed().contains('\n'), qPrintable(lines[0]));
            QVERIFY2(lines[0].size() < 1000, qPrintable(lines[0]));
            QVERIFY2(lines[0].contains(reason), qPrintable(lines[0]));
        };

        // As the first document: an empty model.
        OpenModel model;
        model.load(path);
        verifyOneLine();
        QCOMPARE(model.rowCount(), 0);
        QCOMPARE(model.cityGML(), nullptr);

        // After a good one: its rows again. From a file, from a device and from a stream.
        model.loadText(town(2));
        QCOMPARE(log.take(), QStringList());
        model.hide(model.index(1, 0));
        core::CityModelType* const before = model.cityGML();
        gml::AbstractFeatureType* const feature = model.getFeature("b2");
        const QStringList reset{"modelAboutToBeReset", "modelReset"};
        SignalRecorder recorder(&model);
        QBuffer device(&document);
        QVERIFY(device.open(QIODevice::ReadOnly));
        const QList<std::function<void()>> ways{
            [&] { model.load(path); },
            [&] { model.load(&device, QUrl("/hostile.gml")); },
            [&] { model.loadText(document); },
        };
        for (const auto& load : ways) {
            load();
            verifyOneLine();
            QCOMPARE(recorder.take(), reset);
            QCOMPARE(model.cityGML(), before);
            QCOMPARE(model.names(), QStringList({"<unset>", "b1", "b2"}));
            QCOMPARE(model.states(), QString("vvv"));
            QCOMPARE(model.getFeature("b2"), feature);
            QVERIFY(!model.dirty());
        }
    }

    void deepestDocument()
    {
        ModelLog log;
        OpenModel model;
        // Root, member and building take three levels of 512.
        model.loadText(cityModel(building("b1", nestedParts(254))));
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(model.rowCount(), 256);
        model.loadText(cityModel(building("b1", nestedParts(255))));
        QCOMPARE(log.take().size(), 1);
        QCOMPARE(model.rowCount(), 256);
    }

    void harmlessEntities()
    {
        ModelLog log;
        OpenModel model;
        model.loadText(
            withDoctype("<!DOCTYPE CityModel [<!ENTITY street \"Main &amp; Side\">]>", "&street; &#x41;"));
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(model.names(), QStringList({"<unset>", "Main & Side A"}));
    }

    void harmlessAttributeValues()
    {
        ModelLog log;
        OpenModel model;
        model.loadText(
            withDoctype("<!DOCTYPE CityModel [<!ATTLIST bldg:Building x CDATA 'from the type'>]>", "name"));
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(model.rowCount(), 2);
        model.loadText(declarations(900));
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(model.rowCount(), 2);
    }

    // What many small elements share is not kept with each of them.
    void aLongNamespaceTakesItsRoomOnce()
    {
        const QByteArray uri = "urn:" + QByteArray(1 << 20, 'u');
        const QByteArray document =
            cityModel(building("b1", QByteArray("<gml:name x:a=''>n</gml:name><x:e/>").repeated(20000)))
                .replace("xmlns:gml", "xmlns:x='" + uri + "' xmlns:gml");
        ModelLog log;
        OpenModel model;
        model.loadText(document);
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(model.rowCount(), 2);
        // Twenty thousand copies would be 20 GB.
        struct rusage usage = {};
        QCOMPARE(getrusage(RUSAGE_SELF, &usage), 0);
        QVERIFY2(usage.ru_maxrss < 2 << 20, qPrintable(QString::number(usage.ru_maxrss)));
    }

    void everyTruncationIsRefused()
    {
        // Cut anywhere, a document is no document, until nothing but the last line end is missing.
        const QByteArray good = town(1).trimmed();
        ModelLog log;
        OpenModel model;
        for (int length = 0; length < good.size(); ++length) {
            model.loadText(good.left(length));
            QCOMPARE(model.rowCount(), 0);
            QVERIFY2(log.take().size() == 1, qPrintable(QString::number(length)));
        }
        model.loadText(good);
        QCOMPARE(model.rowCount(), 2);
        QCOMPARE(log.take(), QStringList());
    }
};

TEST_CLASS(HostileDocumentsTest, Widgets)
#include "hostiledocumentstest.moc"
