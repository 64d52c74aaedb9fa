#include "Subject.h"

#include "citygml/CityModel.h"
#include "Measure.h"
#include "SyntheticCity.h"

#include <algorithm>
#include <expat.h>
#include <fstream>
#include <limits>
#include <QFileInfo>
#include <stdexcept>

namespace tolvik {

namespace {

constexpr int defaultBuildings = 2000;
constexpr int expatBuffer = 64 * 1024;

Subject* subject = nullptr;

void XMLCALL ignoreStart(void*, const XML_Char*, const XML_Char**) {}
void XMLCALL ignoreEnd(void*, const XML_Char*) {}
void XMLCALL ignoreText(void*, const XML_Char*, int) {}

/// The least of three.
template <class Work>
double quickest(Work work)
{
    double result = std::numeric_limits<double>::max();
    for (int i = 0; i < 3; ++i) {
        result = std::min(result, work());
    }
    return result;
}

} // namespace

Subject::Subject() : file(qEnvironmentVariable("TOLVIK_BENCHMARK_FILE"))
{
    if (file.isEmpty()) {
        const QString count =
            qEnvironmentVariable("TOLVIK_BENCHMARK_BUILDINGS", QString::number(defaultBuildings));
        const int buildings = count.toInt();
        if (buildings < 1) {
            throw std::runtime_error("TOLVIK_BENCHMARK_BUILDINGS is no number above 0: " +
                                     count.toStdString());
        }
        file = directory.filePath(QStringLiteral("city%1.gml").arg(buildings));
        std::ofstream stream(file.toStdString());
        SyntheticCity(buildings).write(stream);
        stream.flush();
        if (!stream) {
            throw std::runtime_error("Cannot write " + file.toStdString());
        }
    }
    const QFileInfo info(file);
    if (!info.isFile()) {
        throw std::runtime_error("No such file: " + file.toStdString());
    }
    size = static_cast<double>(info.size());
    subject = this;
}

Subject& Subject::current()
{
    return *subject;
}

std::string Subject::description() const
{
    return QFileInfo(file).fileName().toStdString() + ", " + std::to_string(size / 1e6) + " MB";
}

void Subject::passExpat() const
{
    const std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> parser(XML_ParserCreate(nullptr),
                                                                         &XML_ParserFree);
    XML_SetElementHandler(parser.get(), ignoreStart, ignoreEnd);
    XML_SetCharacterDataHandler(parser.get(), ignoreText);
    std::ifstream stream(file.toStdString());
    bool atEnd = false;
    while (!atEnd) {
        stream.read(static_cast<char*>(XML_GetBuffer(parser.get(), expatBuffer)), expatBuffer);
        atEnd = !stream;
        if (XML_ParseBuffer(parser.get(), static_cast<int>(stream.gcount()), atEnd) == XML_STATUS_ERROR) {
            throw std::runtime_error("Not well-formed: " + file.toStdString());
        }
    }
}

std::unique_ptr<core::CityModelType> Subject::read() const
{
    std::ifstream stream(file.toStdString());
    return std::unique_ptr<core::CityModelType>(core::CityModel(stream).release());
}

double Subject::readSeconds()
{
    if (reading == 0) {
        reading = quickest([this] {
            const double start = elapsedSeconds();
            const std::unique_ptr<core::CityModelType> document = read();
            return elapsedSeconds() - start; // before the document goes
        });
    }
    return reading;
}

CityGMLModel& Subject::model()
{
    if (!loaded) {
        loaded = std::make_unique<CityGMLModel>(nullptr, nullptr);
        const double start = elapsedSeconds();
        loaded->load(file);
        loading = elapsedSeconds() - start;
        if (loaded->rowCount() == 0) {
            throw std::runtime_error("Cannot load " + file.toStdString());
        }
    }
    return *loaded;
}

double Subject::loadSeconds()
{
    model();
    return loading;
}

void Subject::release()
{
    loaded.reset();
}

} // namespace tolvik
