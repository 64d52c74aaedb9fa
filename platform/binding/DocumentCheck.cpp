#include "citygml/DocumentCheck.h"

#include "platform/binding/reader/DocumentChecks.h"
#include "platform/binding/reader/DocumentHandler.h"
#include "platform/binding/reader/EndOfStreamGuard.h"
#include "platform/binding/reader/KeptContentLog.h"
#include "platform/binding/reader/NamespaceScopes.h"
#include "platform/binding/reader/XmlParser.h"
#include "platform/binding/SchemaIndex.h"

#include <log4cplus/logger.h>

namespace citygml {

void checkDocument(std::istream& stream, const std::function<void(const Finding&)>& tell)
{
    using namespace binding;

    const EndOfStreamGuard guard(stream);
    // Never written: what is kept is of no interest here.
    KeptContentLog log(log4cplus::Logger::getInstance(LOG4CPLUS_TEXT("tolvik.citygml.DocumentCheck")));
    NamespaceScopes scopes(SchemaIndex::instance());
    XmlParser parser(scopes);
    DocumentHandler handler(parser, scopes, log, true);
    DocumentChecks checks(parser, scopes, handler);
    handler.setChecks(checks);
    try {
        parser.parse(stream, checks);
        checks.endDocument();
    } catch (const xsd::cxx::tree::parsing<char>& failure) {
        const xsd::cxx::tree::error<char>& error = failure.diagnostics().front();
        checks.fail(error.line(), error.column(), error.message());
    }
    for (const Finding& finding : checks.take()) {
        tell(finding);
    }
}

} // namespace citygml
