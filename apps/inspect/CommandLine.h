#pragma once

#include <QStringList>

namespace tolvik::inspect {

/// Runs a command of the terminal tool on the standard streams of the process. Needs an application object.
/// Commands can be run one after the other.
/// \param arguments those behind the name of the program
/// \return the exit code of the program; what went wrong was told on standard error
int runCommandLine(const QStringList& arguments);

} // namespace tolvik::inspect
