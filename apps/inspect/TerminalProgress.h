#pragma once

#include "framework/OperationListener.h"

#include <QByteArray>

#include <vector>

namespace tolvik::inspect {

/// Shows the progress of long operations in one line of the terminal behind standard error, and nothing where
/// that is no terminal. Listens from its construction to its destruction.
class TerminalProgress : public OperationListener
{
public:
    TerminalProgress();
    ~TerminalProgress() override;

    void begin(const QString& title, long long totalSteps, bool blocking, int level) override;
    void progress(long long doneSteps, int level) override;
    void end(int level) override;

private:
    struct Operation
    {
        QByteArray title;
        long long totalSteps;
    };

    std::vector<Operation> operations;
    bool listening;
};

} // namespace tolvik::inspect
