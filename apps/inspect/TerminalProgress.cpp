#include "TerminalProgress.h"

#include "framework/OperationStatus.h"

#include <algorithm>
#include <cstdio>
#include <QString>
#include <unistd.h>

namespace tolvik::inspect {
namespace {

void show(const QByteArray& line)
{
    // Back to the margin and erase what the line before has left.
    std::fprintf(stderr, "\r%s\033[K", line.constData());
    std::fflush(stderr);
}

} // namespace

TerminalProgress::TerminalProgress() : listening(::isatty(STDERR_FILENO) != 0)
{
    if (listening) {
        OperationStatus::setListener(this);
    }
}

TerminalProgress::~TerminalProgress()
{
    if (listening) {
        OperationStatus::setListener(nullptr);
    }
}

void TerminalProgress::begin(const QString& title, long long totalSteps, bool, int)
{
    operations.push_back({title.toUtf8(), totalSteps});
    show(operations.back().title);
}

void TerminalProgress::progress(long long doneSteps, int level)
{
    const Operation& operation = operations.at(static_cast<std::size_t>(level));
    if (operation.totalSteps <= 0) {
        return;
    }
    const int percent = static_cast<int>(std::min(100LL, doneSteps * 100 / operation.totalSteps));
    show(operation.title + ' ' + QByteArray::number(percent) + '%');
}

void TerminalProgress::end(int)
{
    operations.pop_back();
    show(operations.empty() ? QByteArray() : operations.back().title);
}

} // namespace tolvik::inspect
