#pragma once

#include <QString>

/// Where a test finds its files. The directories are known to one source file alone: the compiler's cache
/// serves the objects of all others in every checkout.
namespace testsupport {

/// A file of the tests' own data.
QString dataFile(const QString& name);

/// The documents that come with the project.
QString examples();

/// The schema files that the binding is generated from.
QString schemas();

/// What the binding's generator wrote: classes, visitors and tables.
QString generatedCode();

/// Documents beside the project, which a checkout may lack.
QString sharedDocuments();

/// The file of a shared library of the build, such as `CityGMLModel`.
QString library(const QString& name);

/// A program of the build, such as `tolvik-inspect`.
QString program(const QString& name);

} // namespace testsupport
