#pragma once

#include "core/CityModelType.hxx"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <memory>
#include <QString>
#include <QTemporaryDir>
#include <string>

namespace tolvik {

/// The document that all benchmarks of a run work on: the file that the environment variable
/// TOLVIK_BENCHMARK_FILE names, or else a synthetic city of TOLVIK_BENCHMARK_BUILDINGS buildings (2000).
class Subject
{
public:
    /// Throws std::runtime_error for a variable that makes no sense or a file that is not there.
    Subject();

    /// The one that main() has made.
    static Subject& current();

    const QString& path() const { return file; }
    double bytes() const { return size; }

    /// A line for people: what is measured.
    std::string description() const;

    /// Lets expat walk over the file, with handlers that do nothing.
    void passExpat() const;

    /// Reads the file into schema objects.
    std::unique_ptr<core::CityModelType> read() const;

    /// What other times are compared with: the seconds of reading, the least of three tries, measured when it
    /// is first asked for.
    double readSeconds();

    /// The document loaded; loaded when it is first asked for, and kept until release().
    CityGMLModel& model();

    /// The seconds of that load.
    double loadSeconds();

    void release();

private:
    QTemporaryDir directory;
    QString file;
    double size = 0;
    double reading = 0;
    double loading = 0;
    std::unique_ptr<CityGMLModel> loaded;
};

} // namespace tolvik
