#include "TableCommand.h"

#include "apps/tables/TableError.h"
#include "apps/tables/TableExport.h"
#include "apps/tables/TableFormat.h"
#include "framework/OperationStatus.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <log4cplus/ndc.h>
#include <memory>
#include <ostream>
#include <QCoreApplication>

namespace tolvik::inspect {
namespace {

tables::TableTarget targetOf(const TableOptions& options)
{
    tables::TableTarget target;
    if (options.out.isEmpty()) {
        return target;
    }
    target.path = options.out;
    const tables::TableFormat* const told = tables::formatOf(options.out);
    target.format = options.format.isEmpty() ? told : tables::formatNamed(options.format);
    if (target.format == nullptr && !options.format.isEmpty()) {
        throw TableUsageError("no such format: " + options.format.toStdString() + "; there are " +
                              tables::formatNames().join(", ").toStdString());
    }
    if (target.format == nullptr) {
        // A folder of files that all programs read.
        target.format = tables::formatNamed(QStringLiteral("csv"));
    }
    target.isOneType = !target.format->holdsSeveral && told == target.format;
    if (target.isOneType && options.types.size() != 1) {
        throw TableUsageError("a file of this format holds one table: name one --type, or a folder as --out");
    }
    const bool isDatabase = *target.format->ending == '\0';
    if (options.append && !isDatabase) {
        throw TableUsageError("--append is for databases");
    }
    target.append = options.append;
    target.hasGeometry = options.geometry || options.hasHeights || target.format->holdsGeometry;
    if (target.hasGeometry && target.format->name == QLatin1String("xlsx")) {
        throw TableUsageError("xlsx holds no geometry");
    }
    return target;
}

void add(const CityGMLModel& model, const QString& file, tables::TableExport& result)
{
    result.begin(model, file);
    const int count = model.rowCount();
    for (int number = 0; number < count; ++number) {
        result.addFeature(number);
    }
    result.end();
}

} // namespace

int runTable(const TableOptions& options, const TableDocuments& documents)
{
    tables::ExportOptions wanted;
    wanted.types = options.types;
    wanted.columns = options.columns;
    wanted.columnsFile = options.columnsFrom;
    wanted.otherContent = options.all;
    wanted.hasHeights = options.hasHeights;
    wanted.target = targetOf(options);

    int code = 0;
    try {
        tables::TableExport result(wanted);
        const int count = documents.files.size();
        OperationStatus status(QCoreApplication::translate("tolvik::inspect", "Documents"), count, true);
        for (const QString& file : documents.files) {
            // What the log says of one of several documents tells of which.
            const log4cplus::NDCContextCreator context(count > 1 ? file.toStdString() + ": " : "");
            CityGMLModel model(nullptr, nullptr);
            if (documents.load(model, file)) {
                add(model, file, result);
            } else {
                code = 1;
            }
            status.addStep(1);
        }
        result.finish();
        const QStringList remarks = result.remarks(), problems = result.problems();
        for (const QString& remark : remarks) {
            *documents.err << "tolvik-inspect: " << remark.toStdString() << '\n';
        }
        for (const QString& problem : problems) {
            *documents.err << "tolvik-inspect: " << problem.toStdString() << '\n';
            code = 1;
        }
    } catch (const tables::TableError& error) {
        *documents.err << "tolvik-inspect: " << error.what() << '\n';
        return 1;
    }
    return code;
}

int runColumns(const QString& out, const TableDocuments& files)
{
    try {
        tables::TableCatalogue merged;
        for (const QString& file : files.files) {
            merged.merge(file);
        }
        tables::TableCatalogue::save(out, merged.layouts(QStringList()));
    } catch (const tables::TableError& error) {
        *files.err << "tolvik-inspect: " << error.what() << '\n';
        return 1;
    }
    return 0;
}

} // namespace tolvik::inspect
