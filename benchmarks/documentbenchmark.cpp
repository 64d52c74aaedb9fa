// Reading, loading, listing and writing a document, beside a bare expat pass over the same bytes.

#include "apps/common/DocumentReading.h"
#include "citygml/CityGMLFeaturesFillVisitor.h"
#include "citygml/CityGmlUtils.h"
#include "citygml/CityModel.h"
#include "citygml/DocumentChanges.h"
#include "framework/OperationListener.h"
#include "framework/OperationStatus.h"
#include "Measure.h"
#include "Subject.h"
#include "UI/Models/CityGMLModel/CityGMLProxyModel.h"

#include <algorithm>
#include <fstream>
#include <memory>
#include <ostream>
#include <QFile>
#include <streambuf>
#include <utility>

using namespace tolvik;

namespace {

/// Counts what is written, and forgets it.
class CountingBuffer : public std::streambuf
{
public:
    double bytes = 0;

protected:
    int_type overflow(int_type character) override
    {
        ++bytes;
        return traits_type::not_eof(character);
    }

    std::streamsize xsputn(const char*, std::streamsize count) override
    {
        bytes += static_cast<double>(count);
        return count;
    }
};

/// Has a bare pass of expat over the document in front of each iteration.
class DocumentMeasure : public Measure
{
public:
    using Measure::Measure;

    template <class Work>
    double iteration(Work work)
    {
        yardstick([] { Subject::current().passExpat(); });
        return Measure::iteration(work);
    }
};

/// MB/s, the time as a multiple of the expat pass, and the peak of memory.
void report(benchmark::State& state, DocumentMeasure& measure, double peak = 0)
{
    Subject& subject = Subject::current();
    measure.setBytes(subject.bytes());
    measure.setRatio("times_expat");
    if (peak > 0) {
        state.counters["peak_MB"] = peak / 1e6;
        state.counters["peak_bytes_per_byte"] = peak / subject.bytes();
    }
}

void expatPass(benchmark::State& state)
{
    const Subject& subject = Subject::current();
    DocumentMeasure measure(state);
    while (state.KeepRunning()) {
        measure.iteration([&] { subject.passExpat(); });
    }
    report(state, measure);
}

void readObjects(benchmark::State& state)
{
    const Subject& subject = Subject::current();
    DocumentMeasure measure(state);
    double peak = 0;
    while (state.KeepRunning()) {
        const MemoryPeak memory;
        std::unique_ptr<core::CityModelType> document;
        measure.iteration([&] { document = subject.read(); });
        peak = std::max(peak, memory.bytes());
    }
    report(state, measure, peak);
}

/// Notes when it is first told that an operation goes on.
class FirstProgress : public OperationListener
{
public:
    FirstProgress() : former(OperationStatus::setListener(this)) {}
    ~FirstProgress() override { OperationStatus::setListener(former); }

    void begin(const QString&, long long, bool, int) override {}
    void progress(long long doneSteps, int) override
    {
        if (at == 0 && doneSteps > 0) {
            at = elapsedSeconds();
        }
    }
    void end(int) override {}

    double at = 0;

private:
    OperationListener* const former;
};

/// As the programs do: read beside the open document, and handed over.
void openDocument(benchmark::State& state)
{
    const Subject& subject = Subject::current();
    DocumentMeasure measure(state);
    double first = 0;
    while (state.KeepRunning()) {
        CityGMLModel model(nullptr, nullptr);
        const FirstProgress progress;
        double start = 0;
        measure.iteration([&] {
            start = elapsedSeconds();
            apps::DocumentReading reading(subject.path());
            reading.readShown();
            reading.handOver(model);
        });
        first = std::max(first, progress.at - start);
    }
    report(state, measure);
    state.counters["first_progress_ms"] = first * 1e3;
}

/// Rows and property trees come with a load.
void loadModel(benchmark::State& state)
{
    Subject& subject = Subject::current();
    DocumentMeasure measure(state);
    double peak = 0;
    int rows = 0;
    while (state.KeepRunning()) {
        const MemoryPeak memory;
        CityGMLModel model(nullptr, nullptr);
        measure.iteration([&] { model.load(subject.path()); });
        peak = std::max(peak, memory.bytes());
        rows = model.rowCount();
    }
    report(state, measure, peak);
    state.counters["rows"] = rows;
    measure.setRatio("times_read", subject.readSeconds());
}

/// Seconds that the features take to be listed, and a tree over them to be built.
std::pair<double, double> secondsOfListAndTree(CityGMLModel& model)
{
    const double start = elapsedSeconds();
    CityGMLFeaturesFillVisitor visitor;
    model.cityGML()->accept(&visitor);
    const double listed = elapsedSeconds();
    CityGMLProxyModel tree;
    tree.setSourceModel(&model);
    return {listed - start, elapsedSeconds() - listed};
}

/// The same with a tree over the model, and what each phase has of the time. Reading, listing and the tree
/// are measured alone; the rows with their property trees have the rest.
void loadModelAndTree(benchmark::State& state)
{
    Subject& subject = Subject::current();
    DocumentMeasure measure(state);
    double peak = 0;
    std::pair<double, double> seconds;
    while (state.KeepRunning()) {
        const MemoryPeak memory;
        CityGMLModel model(nullptr, nullptr);
        CityGMLProxyModel tree;
        tree.setSourceModel(&model);
        measure.iteration([&] { model.load(subject.path()); });
        peak = std::max(peak, memory.bytes());
        seconds = secondsOfListAndTree(model);
    }
    report(state, measure, peak);
    const double reading = subject.readSeconds();
    state.counters["read_ms"] = reading * 1e3;
    state.counters["list_ms"] = seconds.first * 1e3;
    state.counters["rows_ms"] = (measure.seconds() - reading - seconds.first - seconds.second) * 1e3;
    state.counters["tree_ms"] = seconds.second * 1e3;
}

void listFeatures(benchmark::State& state)
{
    const std::unique_ptr<core::CityModelType> document = Subject::current().read();
    DocumentMeasure measure(state);
    std::size_t features = 0;
    while (state.KeepRunning()) {
        CityGMLFeaturesFillVisitor visitor;
        measure.iteration([&] { document->accept(&visitor); });
        features = visitor.getModelFeatures().size();
    }
    report(state, measure);
    state.counters["ns_per_feature"] = measure.seconds() * 1e9 / static_cast<double>(features);
}

/// To a stream that keeps nothing. MB/s are those of what is written.
void writeObjects(benchmark::State& state)
{
    Subject& subject = Subject::current();
    const std::unique_ptr<core::CityModelType> document = subject.read();
    xsd::cxx::xml::dom::namespace_infomap<char> namespaces;
    for (const NamespacesMap& entry : CityGmlUtils::getNamespaces()) {
        namespaces[entry.prefix].name = entry.name;
        namespaces[entry.prefix].schema = entry.schemaLocation;
    }
    DocumentMeasure measure(state);
    double written = 0;
    while (state.KeepRunning()) {
        CountingBuffer buffer;
        std::ostream stream(&buffer);
        measure.iteration([&] { core::CityModel(stream, *document, namespaces); });
        written = buffer.bytes;
    }
    report(state, measure);
    measure.setBytes(written);
    measure.setRatio("times_read", subject.readSeconds());
}

/// An unedited document, as the bytes that it was read from.
void saveChanges(benchmark::State& state)
{
    Subject& subject = Subject::current();
    const std::unique_ptr<core::CityModelType> document = subject.read();
    DocumentMeasure measure(state);
    double peak = 0;
    while (state.KeepRunning()) {
        const MemoryPeak memory;
        std::ifstream original(QFile::encodeName(subject.path()).constData(), std::ios_base::binary);
        CountingBuffer buffer;
        std::ostream stream(&buffer);
        measure.iteration([&] { citygml::writeChanges(original, *document, stream); });
        peak = std::max(peak, memory.bytes());
        if (buffer.bytes != subject.bytes()) {
            state.SkipWithError("the document did not come back");
            return;
        }
    }
    report(state, measure, peak);
    measure.setRatio("times_read", subject.readSeconds());
    measure.setRatio("times_load", subject.loadSeconds());
    subject.release();
}

} // namespace

BENCHMARK(expatPass)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(readObjects)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(openDocument)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(loadModel)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(loadModelAndTree)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(listFeatures)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(writeObjects)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(saveChanges)->UseManualTime()->Unit(benchmark::kMillisecond);
