#include "support/Documents.h"
#include "support/XmlTree.h"

#include "bldg/BuildingType.hxx"
#include "gml/CodeType.hxx"
#include "gml/FeaturePropertyType.hxx"
#include "gml/LengthType.hxx"
#include "support/Files.h"
#include "support/LogRecorder.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <QRegularExpression>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

using namespace testsupport;

namespace {

const QString warning = QStringLiteral(
    "WARN the document is of CityGML 1.0; it is read as CityGML 2.0, and a save writes CityGML 2.0");

QByteArray legacy()
{
    return contentOf(dataFile("legacy.gml"));
}

/// The same document as somebody writes it in CityGML 2.0: other namespaces and schema files.
QByteArray modern()
{
    return legacy().replace("/1.0\"", "/2.0\"").replace("/1.0 ", "/2.0 ").replace("/1.0/", "/2.0/");
}

/// A small document of CityGML 1.0 with a building of the given content.
QByteArray oldBuilding(const QByteArray& content, const QByteArray& declarations = QByteArray())
{
    return "<CityModel xmlns='http://www.opengis.net/citygml/1.0' xmlns:gml='http://www.opengis.net/gml'"
           " xmlns:bldg='http://www.opengis.net/citygml/building/1.0'"
           " xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xmlns:x='urn:unknown' " +
           declarations + "><cityObjectMember><bldg:Building gml:id='b'>" + content +
           "</bldg:Building></cityObjectMember></CityModel>";
}

bool namesOlder(const QByteArray& xml)
{
    static const QRegularExpression uri("opengis\\.net/citygml/([A-Za-z]+/)*1\\.0");
    return QString::fromUtf8(xml).contains(uri);
}

/// Namespace and location, as `namespace location`.
QSet<QString> locationsOf(const QByteArray& xml)
{
    const XmlNode document = XmlNode::parse(xml);
    for (const XmlNode& node : document.children) {
        const QString text =
            node.attributes.value("{http://www.w3.org/2001/XMLSchema-instance}schemaLocation");
        const QStringList words = text.split(' ');
        QSet<QString> result;
        for (int i = 0; !text.isEmpty() && i + 1 < words.size(); i += 2) {
            result.insert(words[i] + ' ' + words[i + 1]);
        }
        if (!result.isEmpty()) {
            return result;
        }
    }
    return {};
}

} // namespace

/// Documents of CityGML 1.0: read as what they are in 2.0.
class OlderVersionTest : public QObject
{
    Q_OBJECT

private slots:
    void isReadLikeTheNewerVersion()
    {
        QVERIFY(namesOlder(legacy()) && !namesOlder(modern()));
        ReaderLog log(log4cplus::DEBUG_LOG_LEVEL);
        const Document older = read(legacy());
        const QStringList lines = log.take();
        QCOMPARE(lines.filter("WARN"), QStringList(warning));
        const Document newer = read(modern());
        // The same is kept of both, and nothing of it is of CityGML.
        QStringList ofNewer = log.take();
        ofNewer << warning;
        QCOMPARE(lines, ofNewer);
        QVERIFY(lines.filter("kept").filter("bldg").isEmpty());

        QCOMPARE(listOf(*older), listOf(*newer));
        QCOMPARE(listOf(*older).size(), 16);
        const QByteArray saved = write(*older);
        QVERIFY(!namesOlder(saved));
        QCOMPARE(XmlNode::differences(XmlNode::parse(modern()), XmlNode::parse(saved)), QStringList());
        QCOMPARE(XmlNode::differences(XmlNode::parse(write(*newer)), XmlNode::parse(saved)), QStringList());
        QCOMPARE(locationsOf(saved), locationsOf(write(*newer)));
        QVERIFY(locationsOf(saved).contains("urn:marrowby:survey survey.xsd"));
        QVERIFY(locationsOf(saved).contains("http://www.opengis.net/citygml/2.0 "
                                            "http://schemas.opengis.net/citygml/2.0/cityGMLBase.xsd"));
        // Prefixes are those of the document.
        QVERIFY(saved.contains("<bldg:Building gml:id=\"weaver-1\">"));
        QVERIFY(saved.contains("xmlns:bldg=\"http://www.opengis.net/citygml/building/2.0\""));
        QVERIFY(saved.contains("xmlns=\"http://www.opengis.net/citygml/profiles/base/2.0\""));
        // From now on it is a document of 2.0.
        log.take();
        QCOMPARE(write(*read(saved)), saved);
        QVERIFY(log.take().filter("WARN").isEmpty());
        // A copy says the same.
        const Document copy(older->_clone());
        QCOMPARE(write(*copy), saved);
    }

    void valuesAreRead()
    {
        const Document document = read(legacy());
        const auto& building = dynamic_cast<bldg::BuildingType&>(*document->featureMember()[0]._Feature());
        QCOMPARE(static_cast<double>(*building.measuredHeight()), 9.5);
        QCOMPARE(*building.storeysAboveGround(), 2ull);
        QCOMPARE(QString::fromStdString(*building.roofType()), QString("1030"));
    }

    void theModelLoadsAndSavesIt()
    {
        QTemporaryDir directory;
        const QString path = directory.filePath("saved.gml");
        ReaderLog log(log4cplus::INFO_LOG_LEVEL);
        tolvik::CityGMLModel model(nullptr, nullptr);
        model.load(dataFile("legacy.gml"));
        QCOMPARE(log.take(), QStringList(warning));
        QCOMPARE(model.rowCount(), 16);
        QVERIFY(model.saveAs(path, false));
        QVERIFY(!namesOlder(contentOf(path)));
        model.load(path);
        QCOMPARE(log.take(), QStringList());
        QCOMPARE(model.rowCount(), 16);
    }

    // What is not of 2.0 stays what it was, with the namespace that it had, and is found again.
    void whatTheNewerVersionDoesNotKnowIsKept()
    {
        ReaderLog log(log4cplus::DEBUG_LOG_LEVEL);
        const QByteArray original = oldBuilding(
            "<bldg:cellar bldg:depth='3'><bldg:stairs/>bldg:dark<x:lamp/></bldg:cellar>"
            "<x:note><bldg:Building/><other xmlns='http://www.opengis.net/citygml/building/1.0'/></x:note>"
            "<bldg:roofType bldg:sure='no'>flat</bldg:roofType><bldg:opening/>");
        const Document document = read(original);
        QCOMPARE(log.take(), QStringList({"DEBUG kept as it stands: attribute bldg:sure (1)",
                                          "DEBUG kept as it stands: element bldg:cellar (1)",
                                          "DEBUG kept as it stands: element bldg:opening (1)",
                                          "DEBUG kept as it stands: element x:note (1)", warning}));
        const QByteArray saved = write(*document);
        const QString older = "{http://www.opengis.net/citygml/building/1.0}";
        const XmlNode tree = XmlNode::parse(saved);
        const XmlNode& building = tree.children[0].children[0].children[0];
        QCOMPARE(building.name, QString("{http://www.opengis.net/citygml/building/2.0}Building"));
        QCOMPARE(building.children.size(), 4);
        const XmlNode& cellar = building.children[0];
        QCOMPARE(cellar.name, older + "cellar");
        QCOMPARE(cellar.attributes, (QMap<QString, QString>{{older + "depth", "3"}}));
        QCOMPARE(cellar.children[0].name, older + "stairs");
        QCOMPARE(cellar.children[1].text, QString("bldg:dark"));
        QCOMPARE(cellar.children[2].name, QString("{urn:unknown}lamp"));
        const XmlNode& note = building.children[1];
        QCOMPARE(note.name, QString("{urn:unknown}note"));
        QCOMPARE(note.children[0].name, older + "Building");
        QCOMPARE(note.children[1].name, older + "other");
        const XmlNode& roof = building.children[2];
        QCOMPARE(roof.name, QString("{http://www.opengis.net/citygml/building/2.0}roofType"));
        QCOMPARE(roof.attributes, (QMap<QString, QString>{{older + "sure", "no"}}));
        QCOMPARE(building.children[3].name, older + "opening");
        // Nothing more happens to it.
        QCOMPARE(write(*read(saved)), saved);
    }

    void namesInValuesFollow()
    {
        const QByteArray original =
            oldBuilding("<bldg:consistsOfBuildingPart><bldg:BuildingPart xsi:type='bldg:BuildingPartType'/>"
                        "</bldg:consistsOfBuildingPart>"
                        "<b:consistsOfBuildingPart xmlns:b='http://www.opengis.net/citygml/building/1.0'>"
                        "<b:BuildingPart xsi:type='b:BuildingPartType'/></b:consistsOfBuildingPart>"
                        "<bldg:storeysAboveGround xsi:nil='true'/>");
        const QByteArray saved = write(*read(original));
        QVERIFY(!namesOlder(saved));
        QCOMPARE(saved.count("<bldg:BuildingPart xsi:type=\"bldg:BuildingPartType\"/>"), 2);
        QVERIFY(saved.contains("<bldg:storeysAboveGround xsi:nil=\"true\"/>"));
        QCOMPARE(write(*read(saved)), saved);
    }

    void bothVersionsInOneDocument()
    {
        const QByteArray saved = write(*read(oldBuilding(
            "<new:class>1</new:class>", "xmlns:new='http://www.opengis.net/citygml/building/2.0'")));
        QVERIFY(saved.contains(":class>1</"));
        QVERIFY(!namesOlder(saved));
        QCOMPARE(write(*read(saved)), saved);
    }

    // In a document of 2.0 the older namespaces are unknown ones.
    void olderElementsInANewerDocumentAreKept()
    {
        ReaderLog log(log4cplus::INFO_LOG_LEVEL);
        const QByteArray original =
            "<CityModel xmlns='http://www.opengis.net/citygml/2.0'"
            " xmlns:old='http://www.opengis.net/citygml/building/1.0'><cityObjectMember>"
            "<old:Building/></cityObjectMember></CityModel>";
        const QByteArray saved = write(*read(original));
        QCOMPARE(XmlNode::differences(XmlNode::parse(original), XmlNode::parse(saved)), QStringList());
        QVERIFY(saved.contains("<old:Building></old:Building>"));
        QCOMPARE(log.take(), QStringList());
    }

    void errorsAreThoseOfTheNewerVersion()
    {
        ReaderLog log(log4cplus::INFO_LOG_LEVEL);
        const QString error =
            errorOf(oldBuilding("\n<bldg:measuredHeight uom='m'>high</bldg:measuredHeight>"));
        QVERIFY2(error.contains("document:2:34 error: 'high' is not a number, in "
                                "/CityModel/cityObjectMember/bldg:Building/bldg:measuredHeight"),
                 qPrintable(error));
        QCOMPARE(log.take(), QStringList());
    }

    void otherVersionsAreRefused_data()
    {
        QTest::addColumn<QByteArray>("uri");
        QTest::addColumn<QString>("expected");
        QTest::newRow("3.0") << QByteArray("http://www.opengis.net/citygml/3.0")
                             << "the document is of CityGML 3.0; versions 1.0 and 2.0 are read";
        QTest::newRow("1.1") << QByteArray("http://www.opengis.net/citygml/1.1")
                             << "the document is of CityGML 1.1; versions 1.0 and 2.0 are read";
        QTest::newRow("before 1.0") << QByteArray("http://www.citygml.org/citygml/1/0/0")
                                    << "the root element is 'CityModel', not the CityModel of CityGML 2.0";
        QTest::newRow("a module") << QByteArray("http://www.opengis.net/citygml/building/1.0")
                                  << "versions 1.0 and 2.0 are read";
    }
    void otherVersionsAreRefused()
    {
        QFETCH(QByteArray, uri);
        QFETCH(QString, expected);
        const QString error =
            errorOf(oldBuilding(QByteArray()).replace("http://www.opengis.net/citygml/1.0", uri));
        QVERIFY2(error.contains("document:1:1 error: ") && error.contains(expected), qPrintable(error));
    }
};

TEST_CLASS(OlderVersionTest, Core)
#include "olderversiontest.moc"
