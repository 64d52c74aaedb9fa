#include "support/ToolCommand.h"

#include "apps/inspect/CommandLine.h"

#include <cstdio>
#include <fcntl.h>
#include <iostream>
#include <stdexcept>
#include <stdio_ext.h>
#include <sys/mman.h>
#include <unistd.h>

namespace testsupport {

namespace {

/// Puts another file in the place of one of the process as long as it lives.
class Redirection
{
public:
    /// \param file is closed in the end
    Redirection(int descriptor, int file) : descriptor(descriptor), file(file), former(::dup(descriptor))
    {
        ::dup2(file, descriptor);
    }
    ~Redirection()
    {
        ::dup2(former, descriptor);
        ::close(former);
        ::close(file);
    }
    Redirection(const Redirection&) = delete;
    Redirection& operator=(const Redirection&) = delete;

    /// What was written to it.
    QByteArray text() const
    {
        QByteArray result(static_cast<int>(::lseek(file, 0, SEEK_END)), '\0');
        return ::pread(file, result.data(), static_cast<std::size_t>(result.size()), 0) == result.size()
                   ? result
                   : QByteArray();
    }

private:
    const int descriptor;
    const int file;
    const int former;
};

void flushAll()
{
    std::cout.flush();
    std::cerr.flush();
    std::fflush(nullptr);
}

int memoryFile()
{
    return ::memfd_create("output", MFD_CLOEXEC);
}

/// The end to read of a pipe that holds a text.
int pipeWith(const QByteArray& text)
{
    int ends[2] = {-1, -1};
    const bool isMade =
        ::pipe2(ends, O_CLOEXEC) == 0 && ::fcntl(ends[1], F_SETPIPE_SZ, text.size()) >= text.size() &&
        ::write(ends[1], text.constData(), static_cast<std::size_t>(text.size())) == text.size();
    ::close(ends[1]);
    if (!isMade) {
        throw std::runtime_error("no pipe holds the input");
    }
    return ends[0];
}

/// Forgets what is left of an earlier input.
void rewindInput()
{
    ::__fpurge(stdin);
    std::clearerr(stdin);
    std::cin.clear();
}

} // namespace

ProcessResult runTool(const QStringList& arguments, const QByteArray& input)
{
    flushAll();
    rewindInput();
    const Redirection in(STDIN_FILENO, pipeWith(input));
    const Redirection out(STDOUT_FILENO, memoryFile());
    const Redirection err(STDERR_FILENO, memoryFile());
    const int code = tolvik::inspect::runCommandLine(arguments);
    flushAll();
    return {code, out.text(), err.text()};
}

} // namespace testsupport
