#include "EachDocument.h"

#include "DocumentFiles.h"
#include "JsonText.h"
#include "LoadDocument.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <algorithm>
#include <log4cplus/ndc.h>
#include <ostream>

namespace tolvik::inspect {
namespace {

/// Prints one of several documents.
/// \return the program's exit code for it
int printNamed(CityGMLModel& model, const QString& file, const Listing& listing, std::ostream& out)
{
    if (!listing.json) {
        out << file.toStdString() << ":\n";
        return listing.print(model, file);
    }
    out << "{\"file\":" << jsonText(file) << ",\"" << listing.key << "\":";
    const int code = listing.print(model, file);
    out << (code == 0 ? "}" : "null}");
    return code;
}

} // namespace

int printEach(const DocumentFiles& files, const Listing& listing, std::ostream& out, std::ostream& err)
{
    const bool isArray = listing.json && files.areSeveral();
    int code = files.areComplete() ? 0 : 1;
    const char* separator = "[\n";
    for (const QString& file : files.paths()) {
        // What the log says of one of several documents tells of which.
        const log4cplus::NDCContextCreator context(files.areSeveral() ? file.toStdString() + ": " : "");
        CityGMLModel model(nullptr, nullptr);
        if (!loadDocument(model, file, err)) {
            code = 1;
            continue;
        }
        if (isArray) {
            out << separator;
            separator = ",\n";
        }
        const int ofDocument =
            files.areSeveral() ? printNamed(model, file, listing, out) : listing.print(model, file);
        code = std::max(code, ofDocument);
    }
    if (isArray) {
        out << (separator[0] == '[' ? "[]\n" : "\n]\n");
    }
    return code;
}

} // namespace tolvik::inspect
