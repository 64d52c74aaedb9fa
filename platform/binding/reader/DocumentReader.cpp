#include "platform/binding/reader/DocumentReader.h"

#include "citygml/Findings.h"
#include "citygml/ReadingThreads.h"
#include "platform/binding/reader/DocumentHandler.h"
#include "platform/binding/reader/EndOfStreamGuard.h"
#include "platform/binding/reader/FindingLog.h"
#include "platform/binding/reader/KeptContentLog.h"
#include "platform/binding/reader/NamespaceScopes.h"
#include "platform/binding/reader/PiecewiseReader.h"
#include "platform/binding/reader/ReadingThreads.h"
#include "platform/binding/reader/XmlParser.h"
#include "platform/binding/SchemaIndex.h"

#include <log4cplus/loggingmacros.h>

namespace citygml {
namespace binding {

std::unique_ptr<core::CityModelType> readDocument(std::istream& stream, bool isLenient)
{
    const EndOfStreamGuard guard(stream);
    const log4cplus::Logger logger = readerLogger();
    KeptContentLog log(logger);
    NamespaceScopes scopes(SchemaIndex::instance());
    XmlParser parser(scopes);
    DocumentHandler handler(parser, scopes, log, isLenient);
    const unsigned threads = readingThreads();
    if (threads > 1) {
        PiecewiseReader(parser, handler, threads, pieceSize()).read(stream);
    } else {
        parser.parse(stream, handler);
    }
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
