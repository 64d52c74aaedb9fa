#pragma once

#include "support/Processes.h"

namespace testsupport {

/// Runs a command of the terminal tool in the process of the test: it is the same code, and a process of its
/// own takes ten times as long.
/// \param input what standard input holds, up to a megabyte
ProcessResult runTool(const QStringList& arguments, const QByteArray& input = QByteArray());

} // namespace testsupport
