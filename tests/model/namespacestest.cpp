// The namespaces that a document declares.

#include "citygml/CityGmlUtils.h"
#include "gml/FeaturePropertyType.hxx"
#include "support/CityGMLModelFixture.h"
#include "support/Files.h"
#include "support/TestClass.h"

#include <QMap>
#include <QTemporaryDir>
#include <QtTest>
#include <QXmlStreamReader>

using namespace testsupport;

#pragma GCC diagnostic ignored "-Wdeprecated-declarations" // std::auto_ptr, which the schema classes speak

namespace {

struct Namespace
{
    const char* prefix;
    const char* name;
    const char* location;
};

const Namespace namespaces[] = {
    {"gml", "http://www.opengis.net/gml", ""},
    {"xlink", "http://www.w3.org/1999/xlink", ""},
    {"xsi", "http://www.w3.org/2001/XMLSchema-instance", ""},
    {"xAL", "urn:oasis:names:tc:ciq:xsdschema:xAL:2.0", ""},
    {"smil20", "http://www.w3.org/2001/SMIL20/", ""},
    {"smil20lang", "http://www.w3.org/2001/SMIL20/Language", ""},
    {"core", "http://www.opengis.net/citygml/2.0", "2.0/cityGMLBase.xsd"},
    {"app", "http://www.opengis.net/citygml/appearance/2.0", "appearance/2.0/appearance.xsd"},
    {"brid", "http://www.opengis.net/citygml/bridge/2.0", "bridge/2.0/bridge.xsd"},
    {"bldg", "http://www.opengis.net/citygml/building/2.0", "building/2.0/building.xsd"},
    {"frn", "http://www.opengis.net/citygml/cityfurniture/2.0", "cityfurniture/2.0/cityFurniture.xsd"},
    {"grp", "http://www.opengis.net/citygml/cityobjectgroup/2.0", "cityobjectgroup/2.0/cityObjectGroup.xsd"},
    {"gen", "http://www.opengis.net/citygml/generics/2.0", "generics/2.0/generics.xsd"},
    {"luse", "http://www.opengis.net/citygml/landuse/2.0", "landuse/2.0/landUse.xsd"},
    {"dem", "http://www.opengis.net/citygml/relief/2.0", "relief/2.0/relief.xsd"},
    {"tex", "http://www.opengis.net/citygml/texturedsurface/2.0", "texturedsurface/2.0/texturedSurface.xsd"},
    {"tran", "http://www.opengis.net/citygml/transportation/2.0", "transportation/2.0/transportation.xsd"},
    {"tun", "http://www.opengis.net/citygml/tunnel/2.0", "tunnel/2.0/tunnel.xsd"},
    {"veg", "http://www.opengis.net/citygml/vegetation/2.0", "vegetation/2.0/vegetation.xsd"},
    {"wtr", "http://www.opengis.net/citygml/waterbody/2.0", "waterbody/2.0/waterBody.xsd"},
    {"component", "urn:tolvik:citygml:component:1.0", ""},
    {"energy", "http://www.sig3d.org/citygml/2.0/energy/1.0", ""},
    {"epadesa", "urn:tolvik:citygml:epadesa:1.0", ""},
    {"ladmfr", "urn:tolvik:citygml:ladmfr:1.0", ""},
    {"pivotEnergy", "urn:tolvik:citygml:pivotEnergy:1.0", ""},
    {"utility", "http://www.citygml.org/ade/utility/0.9.2", ""},
};

/// Where the schema of a namespace lies; empty for one without a published place.
QString locationOf(const Namespace& entry)
{
    return *entry.location != 0 ? QStringLiteral("http://schemas.opengis.net/citygml/") + entry.location
                                : QString();
}

} // namespace

class NamespacesTest : public QObject
{
    Q_OBJECT

private:
    /// The root element of a document without features that is saved.
    static QByteArray savedRoot()
    {
        const QTemporaryDir directory;
        tolvik::CityGMLModel model(nullptr, nullptr);
        model.load(std::auto_ptr<core::CityModelType>(new core::CityModelType));
        model.saveAs(directory.filePath("new.gml"), true);
        return contentOf(directory.filePath("new.gml"));
    }

private slots:
    void everyEntry()
    {
        QMap<QString, QStringList> expected;
        for (const Namespace& entry : namespaces) {
            expected[entry.prefix] = QStringList({entry.name, locationOf(entry)});
        }
        QMap<QString, QStringList> actual;
        for (const tolvik::NamespacesMap& entry : tolvik::CityGmlUtils::getNamespaces()) {
            const QString prefix = QString::fromStdString(entry.prefix);
            QVERIFY2(!actual.contains(prefix), qPrintable(prefix));
            actual[prefix] = QStringList(
                {QString::fromStdString(entry.name), QString::fromStdString(entry.schemaLocation)});
        }
        QCOMPARE(actual, expected);
    }

    void aNewDocumentDeclaresThemAll()
    {
        const QByteArray text = savedRoot();
        QXmlStreamReader reader(text);
        QVERIFY(reader.readNextStartElement());
        QCOMPARE(reader.qualifiedName().toString(), QString("core:CityModel"));
        QMap<QString, QString> declared;
        const auto declarations = reader.namespaceDeclarations();
        for (const QXmlStreamNamespaceDeclaration& declaration : declarations) {
            declared[declaration.prefix().toString()] = declaration.namespaceUri().toString();
        }
        QMap<QString, QString> expected;
        for (const Namespace& entry : namespaces) {
            expected[entry.prefix] = entry.name;
        }
        QCOMPARE(declared, expected);
    }

    void aNewDocumentTellsWhereTheSchemasLie()
    {
        const QByteArray text = savedRoot();
        QXmlStreamReader reader(text);
        QVERIFY(reader.readNextStartElement());
        const QString locations = reader.attributes()
                                      .value(QStringLiteral("http://www.w3.org/2001/XMLSchema-instance"),
                                             QStringLiteral("schemaLocation"))
                                      .toString();
        const QStringList words = locations.split(' ');
        QMap<QString, QString> located;
        for (int i = 0; i + 1 < words.size(); i += 2) {
            located[words[i]] = words[i + 1];
        }
        QMap<QString, QString> expected;
        for (const Namespace& entry : namespaces) {
            if (!locationOf(entry).isEmpty()) {
                expected[entry.name] = locationOf(entry);
            }
        }
        QCOMPARE(words.size(), 2 * expected.size());
        QCOMPARE(located, expected);
    }
};

TEST_CLASS(NamespacesTest, Widgets)
#include "namespacestest.moc"
