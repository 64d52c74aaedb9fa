#include "platform/binding/reader/DocumentReader.h"

#include "citygml/Findings.h"
#include "platform/binding/reader/DocumentHandler.h"
#include "platform/binding/reader/FindingLog.h"
#include "platform/binding/reader/KeptContentLog.h"
#include "platform/binding/reader/NamespaceScopes.h"
#include "platform/binding/reader/XmlParser.h"
#include "platform/binding/SchemaIndex.h"

#include <log4cplus/logger.h>
#include <log4cplus/loggingmacros.h>

#include <istream>

namespace citygml {
namespace binding {

namespace {

/// Reading to the end is no failure: while this lives the stream does not throw at its end, whatever it was
/// told to throw at, and afterwards it says that it is at its end, but not that it has failed.
class EndOfStreamGuard
{
public:
    explicit EndOfStreamGuard(std::istream& stream) : stream(stream), thrown(stream.exceptions())
    {
        stream.exceptions(thrown & ~(std::ios_base::failbit | std::ios_base::eofbit));
    }
    ~EndOfStreamGuard()
    {
        try {
            if (stream.eof()) {
                stream.clear(stream.rdstate() & ~std::ios_base::failbit);
            }
            stream.exceptions(thrown);
        } catch (const std::ios_base::failure&) {
            // What the stream is told to throw at is set all the same.
        }
    }
    EndOfStreamGuard(const EndOfStreamGuard&) = delete;
    EndOfStreamGuard& operator=(const EndOfStreamGuard&) = delete;

private:
    std::istream& stream;
    std::ios_base::iostate thrown;
};

} // namespace

std::unique_ptr<core::CityModelType> readDocument(std::istream& stream, bool isLenient)
{
    const EndOfStreamGuard guard(stream);
    const log4cplus::Logger logger =
        log4cplus::Logger::getInstance(LOG4CPLUS_TEXT("tolvik.citygml.DocumentReader"));
    KeptContentLog log(logger);
    NamespaceScopes scopes(SchemaIndex::instance());
    XmlParser parser(scopes);
    DocumentHandler handler(parser, scopes, log, isLenient);
    parser.parse(stream, handler);
    log.write();
    std::unique_ptr<core::CityModelType> document = handler.takeRoot();
    FindingLog::write(findingsOf(*document), logger);
    if (handler.isOlderVersion()) {
        LOG4CPLUS_WARN(logger, "the document is of CityGML 1.0; it is read as CityGML 2.0, and a save "
                               "writes CityGML 2.0");
    }
    return document;
}

} // namespace binding
} // namespace citygml
