#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>
#include <QStringList>

namespace testsupport {

/// What a process has left behind.
struct ProcessResult
{
    /// The exit code, or -1 if the process did not start, broke down, or ran for more than a minute.
    int code;
    QByteArray out;
    /// What it wrote to its standard error; the reason where the code is -1.
    QByteArray err;
};

/// Waits for a process that was started.
ProcessResult finish(QProcess& process);

/// Runs a program without a display, in a locale that knows nothing but ASCII.
/// \param input what the program reads from its standard input
ProcessResult run(const QString& command, const QStringList& arguments,
                  const QByteArray& input = QByteArray());

/// The same for the terminal tool of the build.
ProcessResult inspect(const QStringList& arguments, const QByteArray& input = QByteArray());

} // namespace testsupport
