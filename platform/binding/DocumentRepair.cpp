#include "citygml/DocumentRepair.h"

#include "citygml/SchemaOrder.h"
#include "platform/binding/reader/DocumentHandler.h"
#include "platform/binding/reader/EndOfStreamGuard.h"
#include "platform/binding/reader/FindingLog.h"
#include "platform/binding/reader/IdentifierRenaming.h"
#include "platform/binding/reader/KeptContentLog.h"
#include "platform/binding/reader/NamespaceScopes.h"
#include "platform/binding/reader/RepairingHandler.h"
#include "platform/binding/reader/XmlParser.h"
#include "platform/binding/SchemaIndex.h"

#include <log4cplus/logger.h>

namespace citygml {

namespace {

using namespace binding;

IdentifierRenaming findRenaming(std::istream& stream)
{
    NamespaceScopes scopes(SchemaIndex::instance());
    XmlParser parser(scopes);
    IdentifierScan scan(scopes);
    parser.parse(stream, scan);
    return scan.take();
}

std::unique_ptr<core::CityModelType> readRenamed(std::istream& stream, const IdentifierRenaming& renaming,
                                                 const std::function<void(const Finding&)>& tell)
{
    const log4cplus::Logger logger =
        log4cplus::Logger::getInstance(LOG4CPLUS_TEXT("tolvik.citygml.DocumentRepair"));
    KeptContentLog log(logger);
    NamespaceScopes scopes(SchemaIndex::instance());
    XmlParser parser(scopes);
    DocumentHandler handler(parser, scopes, log, true);
    handler.setOrderTaker([&](Finding finding) {
        finding.reason += "; it stands there now";
        tell(finding);
    });
    RepairingHandler repairing(parser, scopes, handler, renaming, tell);
    parser.parse(stream, repairing);
    log.write();
    std::unique_ptr<core::CityModelType> document = handler.takeRoot();
    // What is wrong still.
    FindingLog::write(findingsOf(*document), logger);
    return document;
}

} // namespace

std::unique_ptr<core::CityModelType> repairDocument(std::istream& stream,
                                                    const std::function<void(const Finding&)>& tell)
{
    const EndOfStreamGuard guard(stream);
    const std::istream::pos_type start = stream.tellg();
    const IdentifierRenaming renaming = findRenaming(stream);
    stream.clear();
    stream.seekg(start);
    std::unique_ptr<core::CityModelType> document = readRenamed(stream, renaming, tell);
    putInSchemaOrder(*document);
    return document;
}

} // namespace citygml
