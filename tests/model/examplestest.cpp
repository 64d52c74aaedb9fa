#include "support/Files.h"
#include "support/SchemaValidator.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QSet>
#include <QTest>
#include <QXmlStreamReader>

#include <algorithm>
#include <memory>

using namespace testsupport;

using namespace tolvik;

namespace {

const QString gmlNamespace = QStringLiteral("http://www.opengis.net/gml");

/// An element or type with its namespace, `{namespace}name`.
QString qualified(const QString& space, const QString& name)
{
    return '{' + space + '}' + name;
}

/// A schema file's global elements, as far as examples have to show them.
struct GlobalElement
{
    QString substitutes; ///< head of its substitution group, or empty
    bool isAbstract;
};

/// The global elements of all schemas by name.
QMap<QString, GlobalElement> globalElements()
{
    QMap<QString, GlobalElement> elements;
    for (const QFileInfo& file : QDir(schemas()).entryInfoList({"*.xsd"})) {
        QXmlStreamReader reader(contentOf(file.filePath()));
        reader.readNextStartElement();
        const QString target = reader.attributes().value("targetNamespace").toString();
        QMap<QString, QString> prefixes;
        for (const auto& declaration : reader.namespaceDeclarations()) {
            prefixes[declaration.prefix().toString()] = declaration.namespaceUri().toString();
        }
        while (reader.readNextStartElement()) {
            const QXmlStreamAttributes attributes = reader.attributes();
            if (reader.name() == QLatin1String("element")) {
                const QString head = attributes.value("substitutionGroup").toString();
                const bool isAbstract = attributes.value("abstract") == QLatin1String("true") ||
                                        attributes.value("name").startsWith('_');
                elements[qualified(target, attributes.value("name").toString())] = {
                    head.isEmpty() ? QString()
                                   : qualified(prefixes.value(head.section(':', 0, 0)), head.section(':', 1)),
                    isAbstract};
            }
            reader.skipCurrentElement();
        }
    }
    return elements;
}

/// The elements that stand in some example.
QSet<QString> elementsOfExamples()
{
    QSet<QString> names;
    for (const QString& example : documentsBelow(examples())) {
        QXmlStreamReader reader(contentOf(example));
        while (!reader.atEnd()) {
            if (reader.readNext() == QXmlStreamReader::StartElement) {
                names.insert(qualified(reader.namespaceUri().toString(), reader.name().toString()));
            }
        }
    }
    return names;
}

bool isFeature(const QMap<QString, GlobalElement>& elements, QString name)
{
    while (!name.isEmpty()) {
        if (name == qualified(gmlNamespace, "_Feature")) {
            return true;
        }
        name = elements.value(name).substitutes;
    }
    return false;
}

bool isOfExtension(const QString& name)
{
    static const QStringList spaces{"urn:tolvik:citygml:", "http://www.sig3d.org/citygml/2.0/energy/",
                                    "http://www.citygml.org/ade/utility/"};
    return std::any_of(spaces.begin(), spaces.end(),
                       [&](const QString& space) { return name.startsWith('{' + space); });
}

} // namespace

/// The documents under examples/: they are what they claim to be.
class ExamplesTest : public QObject
{
    Q_OBJECT

private:
    void addExamples()
    {
        const QStringList paths = documentsBelow(examples());
        QVERIFY(!paths.isEmpty());
        addPathRows(paths);
    }

    std::unique_ptr<SchemaValidator> validator;

private slots:
    void initTestCase() { validator = std::make_unique<SchemaValidator>(schemas()); }

    void isValid_data() { addExamples(); }

    void isValid()
    {
        QFETCH(QString, path);
        QCOMPARE(validator->validate(contentOf(path)), QString());
    }

    void validationSeesFaults_data()
    {
        QTest::addColumn<QByteArray>("replaced");
        QTest::addColumn<QByteArray>("by");
        QTest::newRow("unknown element") << QByteArray("bldg:roofType>") << QByteArray("bldg:ruufType>");
        QTest::newRow("wrong number")
            << QByteArray("<dem:lod>2</dem:lod>") << QByteArray("<dem:lod>7</dem:lod>");
        QTest::newRow("unknown literal") << QByteArray("entirelyBelowTerrain") << QByteArray("belowTerrain");
        QTest::newRow("missing attribute")
            << QByteArray("<bldg:measuredHeight uom=\"m\">") << QByteArray("<bldg:measuredHeight>");
        QTest::newRow("identifier twice")
            << QByteArray("gml:id=\"counter\"") << QByteArray("gml:id=\"stove\"");
    }

    void validationSeesFaults()
    {
        QFETCH(QByteArray, replaced);
        QFETCH(QByteArray, by);
        QByteArray document = contentOf(examples() + "/district.gml");
        QVERIFY(document.contains(replaced));
        QVERIFY(validator->validate(document.replace(replaced, by)).startsWith("line "));
    }

    void loads_data() { addExamples(); }

    void loads()
    {
        QFETCH(QString, path);
        CityGMLModel model(nullptr, nullptr);
        model.load(path);
        QVERIFY(model.cityGML() != nullptr);
        QVERIFY(model.rowCount(QModelIndex()) > 1);
    }

    /// Every feature that a schema declares, and everything at all that an extension declares, stands in an
    /// example.
    void showEverything()
    {
        const QMap<QString, GlobalElement> elements = globalElements();
        const QSet<QString> shown = elementsOfExamples();
        QStringList missing;
        int expected = 0;
        for (auto element = elements.begin(); element != elements.end(); ++element) {
            const bool needed =
                !element->isAbstract && (isOfExtension(element.key()) || isFeature(elements, element.key()));
            expected += needed ? 1 : 0;
            if (needed && !shown.contains(element.key())) {
                missing.append(element.key());
            }
        }
        QVERIFY(expected > 200);
        QCOMPARE(missing.join('\n'), QString());
    }

    /// A reference within a document leads to something.
    void referencesLeadSomewhere_data() { addExamples(); }

    void referencesLeadSomewhere()
    {
        QFETCH(QString, path);
        QSet<QString> identifiers;
        QStringList references;
        QXmlStreamReader reader(contentOf(path));
        while (!reader.atEnd()) {
            if (reader.readNext() == QXmlStreamReader::StartElement) {
                identifiers.insert(reader.attributes().value(gmlNamespace, "id").toString());
                references.append(
                    reader.attributes().value("http://www.w3.org/1999/xlink", "href").toString());
            }
        }
        for (const QString& reference : references) {
            QVERIFY2(!reference.startsWith('#') || identifiers.contains(reference.mid(1)),
                     qPrintable(reference));
        }
    }
};

TEST_CLASS(ExamplesTest, Core)
#include "examplestest.moc"
