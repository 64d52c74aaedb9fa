#include "support/TestPaths.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QSet>
#include <QTest>
#include <QUrl>
#include <QXmlStreamReader>

#include <algorithm>
#include <log4cplus/initializer.h>
#include <log4cplus/nullappender.h>
#include <memory>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/framework/XMLGrammarPoolImpl.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>

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

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The global elements of all schemas by name.
QMap<QString, GlobalElement> globalElements()
{
    QMap<QString, GlobalElement> elements;
    for (const QFileInfo& file : QDir(testpaths::schemas()).entryInfoList({"*.xsd"})) {
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
    for (const QFileInfo& file : QDir(testpaths::examples()).entryInfoList({"*.gml"})) {
        QXmlStreamReader reader(contentOf(file.filePath()));
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

/// Keeps the first error with its line; nothing but the loaded schemas is ever opened.
class ErrorCollector : public xercesc::DefaultHandler
{
public:
    QString first;

    void warning(const xercesc::SAXParseException& error) override { keep(error); }
    void error(const xercesc::SAXParseException& error) override { keep(error); }
    void fatalError(const xercesc::SAXParseException& error) override { keep(error); }
    void resetErrors() override {}

private:
    void keep(const xercesc::SAXParseException& error)
    {
        if (first.isEmpty()) {
            char* text = xercesc::XMLString::transcode(error.getMessage());
            first = QStringLiteral("line %1: %2").arg(error.getLineNumber()).arg(text);
            xercesc::XMLString::release(&text);
        }
    }
};

/// A validating reader with full checking of the schemas.
std::unique_ptr<xercesc::SAX2XMLReader> validatingReader(xercesc::XMLGrammarPool& pool,
                                                         ErrorCollector& errors)
{
    using xercesc::XMLUni;
    std::unique_ptr<xercesc::SAX2XMLReader> reader(
        xercesc::XMLReaderFactory::createXMLReader(xercesc::XMLPlatformUtils::fgMemoryManager, &pool));
    reader->setFeature(XMLUni::fgSAX2CoreNameSpaces, true);
    reader->setFeature(XMLUni::fgSAX2CoreValidation, true);
    reader->setFeature(XMLUni::fgXercesDynamic, false);
    reader->setFeature(XMLUni::fgXercesSchema, true);
    reader->setFeature(XMLUni::fgXercesSchemaFullChecking, true);
    reader->setFeature(XMLUni::fgXercesHandleMultipleImports, true);
    reader->setFeature(XMLUni::fgXercesUseCachedGrammarInParse, true);
    reader->setErrorHandler(&errors);
    return reader;
}

/// One schema that imports all schemas of the project.
QByteArray allSchemas()
{
    QMap<QString, QString> files;
    for (const QFileInfo& file : QDir(testpaths::schemas()).entryInfoList({"*.xsd"})) {
        QXmlStreamReader reader(contentOf(file.filePath()));
        reader.readNextStartElement();
        // Of several files of one namespace the first includes the others.
        const QString target = reader.attributes().value("targetNamespace").toString();
        if (!files.contains(target)) {
            files[target] = file.absoluteFilePath();
        }
    }
    QByteArray schema = "<xs:schema xmlns:xs='http://www.w3.org/2001/XMLSchema'>";
    for (auto file = files.begin(); file != files.end(); ++file) {
        schema += QStringLiteral("<xs:import namespace='%1' schemaLocation='%2'/>")
                      .arg(file.key(), QUrl::fromLocalFile(*file).toString(QUrl::FullyEncoded))
                      .toUtf8();
    }
    return schema + "</xs:schema>";
}

} // namespace

/// The documents under examples/: they are what they claim to be.
class ExamplesTest : public QObject
{
    Q_OBJECT

private:
    QString validate(const QByteArray& document)
    {
        ErrorCollector errors;
        const auto reader = validatingReader(*pool, errors);
        // Where a document says that schemas lie is no business of ours.
        reader->setFeature(xercesc::XMLUni::fgXercesLoadSchema, false);
        const xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(document.constData()),
                                                static_cast<XMLSize_t>(document.size()), "example");
        reader->parse(source);
        return errors.first;
    }

    void addExamples()
    {
        QTest::addColumn<QString>("path");
        const QFileInfoList files = QDir(testpaths::examples()).entryInfoList({"*.gml"});
        QVERIFY(!files.isEmpty());
        for (const QFileInfo& file : files) {
            QTest::newRow(qPrintable(file.fileName())) << file.filePath();
        }
    }

    log4cplus::Initializer logging;
    std::unique_ptr<xercesc::XMLGrammarPool> pool;

private slots:
    void initTestCase()
    {
        log4cplus::Logger::getRoot().addAppender(log4cplus::SharedAppenderPtr(new log4cplus::NullAppender));
        xercesc::XMLPlatformUtils::Initialize();
        pool = std::make_unique<xercesc::XMLGrammarPoolImpl>();
        ErrorCollector errors;
        const auto reader = validatingReader(*pool, errors);
        const QByteArray schema = allSchemas();
        const xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(schema.constData()),
                                                static_cast<XMLSize_t>(schema.size()), "schemas");
        reader->loadGrammar(source, xercesc::Grammar::SchemaGrammarType, true);
        QCOMPARE(errors.first, QString());
    }

    void cleanupTestCase()
    {
        pool.reset();
        xercesc::XMLPlatformUtils::Terminate();
    }

    void isValid_data() { addExamples(); }

    void isValid()
    {
        QFETCH(QString, path);
        QCOMPARE(validate(contentOf(path)), QString());
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
        QByteArray document = contentOf(testpaths::examples() + "/district.gml");
        QVERIFY(document.contains(replaced));
        QVERIFY(validate(document.replace(replaced, by)).startsWith("line "));
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

QTEST_GUILESS_MAIN(ExamplesTest)
#include "examplestest.moc"
