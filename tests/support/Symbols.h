#pragma once

#include <QString>
#include <QStringList>

namespace testsupport {

/// The symbols that a shared library of the build defines and exports, as the linker sees them; empty if it
/// cannot be read.
/// \param name of the library, such as `CityGMLModel`
QStringList exportedSymbols(const QString& name);

/// The C++ name of a symbol or type, as programs spell it: without the inline namespace in which the
/// containers of the binding stand. The symbol itself where it has no name.
QString demangled(const char* symbol);

} // namespace testsupport
