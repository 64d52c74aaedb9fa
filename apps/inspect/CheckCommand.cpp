#include "CheckCommand.h"

#include "citygml/DocumentCheck.h"
#include "DocumentFiles.h"
#include "FindingLines.h"
#include "OpenDocument.h"

#include <istream>
#include <ostream>

namespace tolvik::inspect {

int runCheck(const DocumentFiles& files, bool json, std::ostream& out, std::ostream& err)
{
    int code = files.areComplete() ? 0 : 1;
    for (const QString& file : files.paths()) {
        const std::unique_ptr<std::istream> stream = openDocument(file, err);
        if (stream == nullptr) {
            code = 1;
            continue;
        }
        citygml::checkDocument(*stream, [&](const citygml::Finding& finding) {
            (json ? printFindingJson : printFindingText)(file, finding, out);
            code = 1;
        });
    }
    return code;
}

} // namespace tolvik::inspect
