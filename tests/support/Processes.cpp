#include "support/Processes.h"

#include "support/TestPaths.h"

namespace testsupport {

ProcessResult finish(QProcess& process)
{
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit) {
        return {-1, process.readAllStandardOutput(), process.errorString().toUtf8()};
    }
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

ProcessResult run(const QString& command, const QStringList& arguments, const QByteArray& input)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("DISPLAY");
    environment.remove("QT_QPA_PLATFORM");
    environment.insert("LC_ALL", "C");
    process.setProcessEnvironment(environment);
    process.start(command, arguments);
    process.write(input);
    process.closeWriteChannel();
    return finish(process);
}

ProcessResult inspect(const QStringList& arguments, const QByteArray& input)
{
    return run(program("tolvik-inspect"), arguments, input);
}

} // namespace testsupport
