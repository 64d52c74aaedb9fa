#pragma once

#include <QFunctionPointer>

namespace tolvik::apps {

/// An entry of a module that programs load when they need it, such as the one for tables.
/// \param module name of its file, without the ending
/// \return never null
/// \throws std::runtime_error where the module or the entry is not there
QFunctionPointer moduleEntry(const char* module, const char* entry);

} // namespace tolvik::apps
