#pragma once

#include "apps/common/SourceFile.h"
#include "core/CityModelType.hxx"

#include <atomic>
#include <functional>
#include <istream>
#include <memory>
#include <QString>
#include <string>

namespace tolvik {
class CityGMLModel;
}

namespace tolvik::apps {

/// Reads one document for a program, beside the document that the program has open: a model gets the new one
/// only when it is there.
/// \code
/// DocumentReading reading(path);
/// reading.read();                            // in any thread
/// if (reading.document() != nullptr) {
///     reading.handOver(model);               // in the model's thread
/// } else if (!reading.isCancelled()) {
///     show(reading.error());
/// }
/// \endcode
class DocumentReading
{
public:
    /// Is told how many bytes have been read so far, in the thread that reads, some 65,000 bytes apart.
    using Progress = std::function<void(long long bytes)>;

    /// \param path of a file, a pipe or a device; `-` is standard input
    explicit DocumentReading(const QString& path);
    DocumentReading(const DocumentReading&) = delete;
    DocumentReading& operator=(const DocumentReading&) = delete;
    ~DocumentReading();

    /// Number of bytes that there are to read; 0 where that is not known.
    long long size() const;
    /// Reads the document to its end. To be called once.
    void read(const Progress& progress = Progress());
    /// The same, shown as an operation of the user interface. Only for the thread of that.
    void readShown();
    /// Ends the reading soon, from any thread. Without effect on one that has ended.
    void cancel() { cancelled = true; }

    /// The file, as it was when the reading began.
    const SourceFile& source() const { return file; }
    /// Null where the reading failed or was cancelled, and when it was handed over.
    const core::CityModelType* document() const { return root.get(); }
    /// Whether cancel() was called in time.
    bool isCancelled() const { return root == nullptr && reason.isEmpty() && cancelled; }
    /// Why there is no document, as a sentence for people without its end; empty where there is one, and
    /// where the reading was cancelled.
    const QString& error() const { return reason; }

    /// Gives the document to a model, in place of what the model has, and sets the name and the paths on
    /// which images are found as CityGMLModel::load(const QString&) does.
    void handOver(CityGMLModel& model);

private:
    const QString path;
    SourceFile file;
    std::atomic<bool> cancelled{false};
    std::unique_ptr<core::CityModelType> root;
    QString reason;
};

/// What the reader says is wrong, in one line.
QString textOf(const xsd::cxx::tree::exception<char>& error);

} // namespace tolvik::apps
