#include "apps/common/DocumentReading.h"

#include "apps/common/OpenDocument.h"
#include "citygml/CityModel.h"
#include "framework/OperationStatus.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <algorithm>
#include <array>
#include <osgDB/Registry>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <sstream>
#include <streambuf>

namespace tolvik::apps {

namespace {

struct Cancelled
{
};

/// Hands on the bytes of another buffer, and tells how many they are.
class CountingBuffer : public std::streambuf
{
public:
    CountingBuffer(std::streambuf& source, const DocumentReading::Progress& progress,
                   const std::atomic<bool>& cancelled)
        : source(source), progress(progress), cancelled(cancelled)
    {
    }

protected:
    int_type underflow() override
    {
        const std::streamsize read = source.sgetn(block.data(), static_cast<std::streamsize>(block.size()));
        setg(block.data(), block.data(), block.data() + read);
        count(read);
        return read != 0 ? traits_type::to_int_type(block[0]) : traits_type::eof();
    }

    std::streamsize xsgetn(char* bytes, std::streamsize most) override
    {
        const std::streamsize buffered = std::min<std::streamsize>(egptr() - gptr(), most);
        std::copy_n(gptr(), buffered, bytes);
        gbump(static_cast<int>(buffered));
        const std::streamsize read = source.sgetn(bytes + buffered, most - buffered);
        count(read);
        return buffered + read;
    }

private:
    void count(std::streamsize read)
    {
        if (cancelled) {
            throw Cancelled();
        }
        bytes += read;
        if (progress) {
            progress(bytes);
        }
    }

    std::streambuf& source;
    const DocumentReading::Progress& progress;
    const std::atomic<bool>& cancelled;
    std::array<char, 1 << 16> block;
    long long bytes = 0;
};

} // namespace

QString textOf(const xsd::cxx::tree::exception<char>& error)
{
    std::ostringstream text;
    text << error;
    return QString::fromStdString(text.str()).trimmed();
}

DocumentReading::DocumentReading(const QString& path) : path(path) {}

DocumentReading::~DocumentReading() = default;

long long DocumentReading::size() const
{
    const QFileInfo info(path);
    return info.isFile() ? info.size() : 0;
}

void DocumentReading::read(const Progress& progress)
{
    file = SourceFile(path);
    const std::unique_ptr<std::istream> source = openDocument(path, reason);
    if (source == nullptr) {
        return;
    }
    CountingBuffer buffer(*source->rdbuf(), progress, cancelled);
    std::istream stream(&buffer);
    // What the buffer throws comes through as it is.
    stream.exceptions(std::ios_base::badbit);
    try {
        root.reset(core::CityModel(stream, xsd::cxx::tree::flags::dont_validate).release());
    } catch (const Cancelled&) {
        // There is nothing to tell.
    } catch (const xsd::cxx::tree::exception<char>& error) {
        reason = textOf(error);
    } catch (const std::exception& error) {
        reason = QString::fromLocal8Bit(error.what());
    }
}

void DocumentReading::readShown()
{
    OperationStatus status(QCoreApplication::translate("tolvik::apps::DocumentReading", "Reading"), size(),
                           true);
    long long shown = 0;
    read([&](long long bytes) {
        status.addStep(bytes - shown);
        shown = bytes;
    });
}

void DocumentReading::handOver(CityGMLModel& model)
{
    const QFileInfo file(path);
    if (file.isFile()) {
        const QString native = QDir::toNativeSeparators(file.canonicalFilePath());
        model.setFileName(native);
        osgDB::Registry::instance(false)->getDataFilePathList().push_front(
            QFileInfo(native).absolutePath().toLocal8Bit().toStdString());
    } else {
        model.setFileName(path);
    }
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    model.load(std::auto_ptr<core::CityModelType>(root.release()));
#pragma GCC diagnostic pop
}

} // namespace tolvik::apps
