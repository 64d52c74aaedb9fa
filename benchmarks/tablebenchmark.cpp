// Tables out of a document and into it, beside a load and beside a load and save of the same document.

#include "apps/common/DocumentReading.h"
#include "apps/common/DocumentSaving.h"
#include "apps/tables/TableExport.h"
#include "apps/tables/TableImport.h"
#include "gml/AbstractFeatureType.hxx"
#include "Measure.h"
#include "Subject.h"

#include <algorithm>
#include <QTemporaryDir>
#include <stdexcept>

using namespace tolvik;

namespace {

/// Opens the document as the terminal tool does.
/// \return what it was read from
apps::SourceFile open(CityGMLModel& model)
{
    apps::DocumentReading reading(Subject::current().path());
    reading.read();
    if (reading.document() == nullptr) {
        throw std::runtime_error(reading.error().toStdString());
    }
    reading.handOver(model);
    return reading.source();
}

/// Time and memory of work on a document, as multiples of those of other work.
/// \param what name of the other work in the counters
template <class Work, class Other>
void compare(benchmark::State& state, const char* what, Work work, Other other)
{
    Measure measure(state);
    double seconds = 0;
    double peak = 0;
    double otherPeak = 0;
    while (state.KeepRunning()) {
        {
            const MemoryPeak memory;
            const double start = elapsedSeconds();
            other();
            seconds += elapsedSeconds() - start;
            otherPeak = std::max(otherPeak, memory.bytes());
        }
        const MemoryPeak memory;
        measure.iteration(work);
        peak = std::max(peak, memory.bytes());
    }
    measure.setBytes(Subject::current().bytes());
    measure.setRatio(what, seconds / static_cast<double>(state.iterations()));
    state.counters["peak_MB"] = peak / 1e6;
    state.counters["times_peak"] = peak / otherPeak;
}

/// All features of all types, as CSV.
void tableOut(benchmark::State& state)
{
    const auto load = [] {
        CityGMLModel model(nullptr, nullptr);
        open(model);
    };
    const auto write = [] {
        const QTemporaryDir folder;
        tables::ExportOptions options;
        options.target.path = folder.filePath("tables");
        options.target.format = tables::formatNamed("csv");
        tables::TableExport result(options);
        CityGMLModel model(nullptr, nullptr);
        open(model);
        result.begin(model, Subject::current().path());
        const int count = model.rowCount();
        for (int number = 0; number < count; ++number) {
            result.addFeature(number);
        }
        result.end();
        result.finish();
    };
    compare(state, "times_load", write, load);
}

/// A generic attribute for each building.
tables::EditTable demands()
{
    tables::EditTable table;
    tables::EditTable::Column column;
    column.name = QStringLiteral("gen:demand");
    column.path = tables::ColumnPath::parse(column.name);
    column.unit = QStringLiteral("kWh");
    table.columns += column;
    CityGMLModel model(nullptr, nullptr);
    open(model);
    const int count = model.rowCount();
    for (int number = 0; number < count; ++number) {
        const gml::AbstractFeatureType& feature = *model.getFeature(number);
        if (feature.typeLabel == "Building" && feature.id().present()) {
            tables::EditTable::Row row;
            row.id = QString::fromStdString(feature.id().get());
            row.line = number;
            row.cells += QString::number(number) + QStringLiteral(".5");
            table.rows.push_back(row);
        }
    }
    return table;
}

/// One column for all buildings, saved where it has changed something.
void tableIn(benchmark::State& state)
{
    const tables::EditTable table = demands();
    const QTemporaryDir folder;
    const QString output = folder.filePath("out.gml");
    const auto copy = [&] {
        CityGMLModel model(nullptr, nullptr);
        apps::DocumentSaving saving(model, open(model));
        saving.save(output, apps::DocumentSaving::Form::Changes);
    };
    const auto apply = [&] {
        CityGMLModel model(nullptr, nullptr);
        const apps::SourceFile source = open(model);
        tables::ImportOptions options;
        options.create = true;
        tables::TableImport import({table}, options, {Subject::current().path()});
        if (import.apply(model, Subject::current().path()) != static_cast<qint64>(table.rows.size())) {
            state.SkipWithError("cells were lost");
        }
        apps::DocumentSaving saving(model, source);
        saving.save(output, apps::DocumentSaving::Form::Changes);
    };
    compare(state, "times_load_and_save", apply, copy);
}

} // namespace

BENCHMARK(tableOut)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(tableIn)->UseManualTime()->Unit(benchmark::kMillisecond);
