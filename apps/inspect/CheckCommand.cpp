#include "CheckCommand.h"

#include "apps/common/OpenDocument.h"
#include "citygml/DocumentCheck.h"
#include "DocumentFiles.h"
#include "FindingLines.h"
#include "LoadDocument.h"

#include <istream>
#include <ostream>
#include <QString>

namespace tolvik::inspect {

int runCheck(const DocumentFiles& files, bool json, std::ostream& out, std::ostream& err)
{
    int code = files.areComplete() ? 0 : 1;
    for (const QString& file : files.paths()) {
        QString reason;
        const std::unique_ptr<std::istream> stream = apps::openDocument(file, reason);
        if (stream == nullptr) {
            tellNotLoaded(file, reason, err);
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
