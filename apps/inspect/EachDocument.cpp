#include "EachDocument.h"

#include "DocumentFiles.h"
#include "JsonText.h"
#include "LoadDocument.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <algorithm>
#include <log4cplus/ndc.h>
#include <memory>
#include <ostream>
#include <utility>

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

/// At the end of the program the system frees faster than the program could.
void leaveToSystem(std::unique_ptr<CityGMLModel> model)
{
    static auto& left = *new std::unique_ptr<CityGMLModel>;
    left = std::move(model);
}

} // namespace

int printEach(const DocumentFiles& files, const Listing& listing, std::ostream& out, std::ostream& err)
{
    const bool isArray = listing.json && files.areSeveral();
    int code = files.areComplete() ? 0 : 1;
    const char* separator = "[\n";
    std::unique_ptr<CityGMLModel> model;
    for (const QString& file : files.paths()) {
        // What the log says of one of several documents tells of which.
        const log4cplus::NDCContextCreator context(files.areSeveral() ? file.toStdString() + ": " : "");
        model = std::make_unique<CityGMLModel>(nullptr, nullptr);
        if (!loadDocument(*model, file, err)) {
            code = 1;
            continue;
        }
        if (isArray) {
            out << separator;
            separator = ",\n";
        }
        const int ofDocument =
            files.areSeveral() ? printNamed(*model, file, listing, out) : listing.print(*model, file);
        code = std::max(code, ofDocument);
    }
    leaveToSystem(std::move(model));
    if (isArray) {
        out << (separator[0] == '[' ? "[]\n" : "\n]\n");
    }
    return code;
}

} // namespace tolvik::inspect
