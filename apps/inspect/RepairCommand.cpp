#include "RepairCommand.h"

#include "apps/common/DocumentReading.h"
#include "apps/common/OpenDocument.h"
#include "citygml/DocumentRepair.h"
#include "FindingLines.h"
#include "LoadDocument.h"
#include "SaveDocument.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <filesystem>
#include <istream>
#include <ostream>
#include <QFile>
#include <system_error>
#include <vector>

#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace tolvik::inspect {
namespace {

/// Whether the output leads to the document's own file, which may stand behind standard input too.
bool areSame(const QString& file, const QString& output)
{
    const QByteArray input = file == QLatin1String("-") ? QByteArray("/dev/stdin") : QFile::encodeName(file);
    std::error_code failure;
    return std::filesystem::equivalent(input.toStdString(), QFile::encodeName(output).toStdString(), failure);
}

/// \return null if the document cannot be read, which \a err is told of
std::unique_ptr<core::CityModelType> readRepaired(const QString& file, std::vector<citygml::Finding>& done,
                                                  std::ostream& err)
{
    QString reason;
    const std::unique_ptr<std::istream> stream = apps::openSeekableDocument(file, reason);
    if (stream == nullptr) {
        tellNotLoaded(file, reason, err);
        return nullptr;
    }
    try {
        return citygml::repairDocument(*stream,
                                       [&](const citygml::Finding& repair) { done.push_back(repair); });
    } catch (const xsd::cxx::tree::exception<char>& error) {
        tellNotLoaded(file, apps::textOf(error), err);
        return nullptr;
    }
}

} // namespace

int runRepair(const QString& file, const QString& output, apps::DocumentSaving::Form form, std::ostream& out,
              std::ostream& err)
{
    if (areSame(file, output)) {
        err << "tolvik-inspect: " << output.toStdString() << " is the document itself\n";
        return 1;
    }
    const apps::SourceFile source(file);
    std::vector<citygml::Finding> done;
    std::unique_ptr<core::CityModelType> document = readRepaired(file, done, err);
    if (document == nullptr) {
        return 1;
    }
    CityGMLModel model(nullptr, nullptr);
    model.load(std::auto_ptr<core::CityModelType>(document.release()));
    apps::DocumentSaving saving(model, source);
    if (!saveDocument(saving, output, form, err)) {
        return 1;
    }
    for (const citygml::Finding& repair : done) {
        printFindingText(file, repair, out);
    }
    return 0;
}

} // namespace tolvik::inspect
