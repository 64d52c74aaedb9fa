#include "FindingLines.h"

#include "JsonText.h"
#include "TextLine.h"

#include <ostream>

namespace tolvik::inspect {
namespace {

std::string json(const std::string& text)
{
    return jsonText(QString::fromStdString(text));
}

} // namespace

void printFindingText(const QString& file, const citygml::Finding& finding, std::ostream& out)
{
    out << file.toStdString() << ':' << finding.line << ':' << finding.column << ": ";
    if (!finding.path.empty()) {
        out << finding.path << ": ";
    }
    out << textLine(QString::fromStdString(finding.reason)).toStdString();
    if (!finding.featureId.empty()) {
        out << " (feature " << textLine(QString::fromStdString(finding.featureId)).toStdString() << ')';
    }
    out << '\n';
}

void printFindingJson(const QString& file, const citygml::Finding& finding, std::ostream& out)
{
    out << "{\"file\":" << jsonText(file) << ",\"line\":" << finding.line << ",\"column\":" << finding.column
        << ",\"path\":" << json(finding.path) << ",\"reason\":" << json(finding.reason)
        << ",\"feature\":" << (finding.featureId.empty() ? "null" : json(finding.featureId)) << "}\n";
}

} // namespace tolvik::inspect
