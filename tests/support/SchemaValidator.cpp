#include "support/SchemaValidator.h"

#include "support/Files.h"

#include <QDir>
#include <QFileInfo>
#include <QMap>
#include <QUrl>
#include <QXmlStreamReader>
#include <stdexcept>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/framework/XMLGrammarPoolImpl.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/sax2/DefaultHandler.hpp>
#include <xercesc/sax2/SAX2XMLReader.hpp>
#include <xercesc/sax2/XMLReaderFactory.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>

namespace testsupport {

namespace {

/// The library must be started before anything of it is made, and is stopped behind it.
struct Library
{
    Library() { xercesc::XMLPlatformUtils::Initialize(); }
    ~Library() { xercesc::XMLPlatformUtils::Terminate(); }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;
};

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

/// One schema that imports all schemas of the directory.
QByteArray allSchemas(const QString& directory)
{
    QMap<QString, QString> files;
    for (const QFileInfo& info : QDir(directory).entryInfoList({"*.xsd"})) {
        QXmlStreamReader reader(contentOf(info.filePath()));
        reader.readNextStartElement();
        // Of several files of one namespace the first includes the others.
        const QString target = reader.attributes().value("targetNamespace").toString();
        if (!files.contains(target)) {
            files[target] = info.absoluteFilePath();
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

struct SchemaValidator::Parts
{
    /// A validating reader with full checking of the schemas.
    std::unique_ptr<xercesc::SAX2XMLReader> makeReader();

    Library library;
    ErrorCollector errors;
    std::unique_ptr<xercesc::XMLGrammarPool> pool = std::make_unique<xercesc::XMLGrammarPoolImpl>();
    std::unique_ptr<xercesc::SAX2XMLReader> reader;
};

std::unique_ptr<xercesc::SAX2XMLReader> SchemaValidator::Parts::makeReader()
{
    using xercesc::XMLUni;
    std::unique_ptr<xercesc::SAX2XMLReader> reader(
        xercesc::XMLReaderFactory::createXMLReader(xercesc::XMLPlatformUtils::fgMemoryManager, pool.get()));
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

SchemaValidator::SchemaValidator(const QString& directory) : parts(std::make_unique<Parts>())
{
    const auto reader = parts->makeReader();
    const QByteArray schema = allSchemas(directory);
    const xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(schema.constData()),
                                            static_cast<XMLSize_t>(schema.size()), "schemas");
    reader->loadGrammar(source, xercesc::Grammar::SchemaGrammarType, true);
    if (!parts->errors.first.isEmpty()) {
        throw std::runtime_error(parts->errors.first.toStdString());
    }
    parts->reader = parts->makeReader();
    // Where a document says that schemas lie is no business of ours.
    parts->reader->setFeature(xercesc::XMLUni::fgXercesLoadSchema, false);
}

SchemaValidator::~SchemaValidator() = default;

QString SchemaValidator::validate(const QByteArray& document)
{
    parts->errors.first.clear();
    const xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(document.constData()),
                                            static_cast<XMLSize_t>(document.size()), "document");
    parts->reader->parse(source);
    return parts->errors.first;
}

} // namespace testsupport
