#include "framework/OperationStatus.h"

#include "framework/OperationListener.h"

#include <algorithm>
#include <utility>

namespace tolvik {

namespace {

using Clock = std::chrono::steady_clock;

// 20 reports a second.
constexpr Clock::duration reportInterval = std::chrono::milliseconds(50);

// Reading the clock costs more than a small step, so it is read at every n-th step only. n grows while steps
// are short, and stays small enough for the interval not to be missed by much when steps become slow.
constexpr int longestStride = 256;
constexpr Clock::duration shortStride = reportInterval / 16;
constexpr Clock::duration longStride = reportInterval / 4;

OperationListener* registeredListener = nullptr;
OperationStatus* innermost = nullptr;

// Over all operations: nested ones share the allowance. Unset before the first report.
Clock::time_point lastReport;

} // namespace

// By value, as hosts with a framework of their own declare it.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
OperationStatus::OperationStatus(QString title, long long totalSteps, bool blocking)
    : listener(registeredListener), outer(innermost)
{
    innermost = this;
    if (listener != nullptr) {
        level = levelWithin(outer, listener);
        lastClockReading = Clock::now();
        listener->begin(title, totalSteps, blocking, level);
    }
}

// Operations that began before the listener was registered do not count.
int OperationStatus::levelWithin(const OperationStatus* status, const OperationListener* listener)
{
    while (status != nullptr && status->listener != listener) {
        status = status->outer;
    }
    return status != nullptr ? status->level + 1 : 0;
}

OperationStatus::~OperationStatus()
{
    // As a rule this is the innermost one. Operations that do not live on the stack may end in any order.
    OperationStatus** link = &innermost;
    while (*link != this) {
        link = &(*link)->outer;
    }
    *link = outer;
    if (listener != nullptr) {
        listener->end(level);
    }
}

OperationListener* OperationStatus::setListener(OperationListener* listener)
{
    for (OperationStatus* status = innermost; status != nullptr; status = status->outer) {
        status->listener = nullptr;
    }
    return std::exchange(registeredListener, listener);
}

void OperationStatus::advance(long long steps)
{
    done += steps;
    if (--callsToClock > 0) {
        return;
    }
    const Clock::time_point now = Clock::now();
    const Clock::duration sinceReading = now - lastClockReading;
    lastClockReading = now;
    if (sinceReading < shortStride) {
        clockStride = std::min(clockStride * 2, longestStride);
    } else if (sinceReading > longStride) {
        clockStride = 1;
    }
    callsToClock = clockStride;
    if (now - lastReport >= reportInterval) {
        lastReport = now;
        listener->progress(done, level);
    }
}

} // namespace tolvik
