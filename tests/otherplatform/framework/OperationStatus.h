#pragma once

#include <QString>

namespace tolvik {

/// Nobody is told of any progress.
class OperationStatus
{
public:
    OperationStatus(const QString& /*title*/, long long /*totalSteps*/, bool /*blocking*/) {}
    virtual ~OperationStatus() = default;
    void addStep(long long /*steps*/) {}
};

} // namespace tolvik
