#pragma once

#include "PlatformExport.h"

#include <chrono>
#include <QString>

namespace tolvik {

class OperationListener;

/// Reports the progress of a long operation to the host, from its construction to its destruction.
/// \code
/// OperationStatus status(tr("Building Model"), count, true);
/// for (...) { ...; status.addStep(1); }
/// \endcode
/// Without a listener it does nothing and addStep() costs one test. Used on the user-interface thread only.
class TOLVIK_PLATFORM_EXPORT OperationStatus
{
public:
    /// \param title      what goes on, translated
    /// \param totalSteps number of steps to come; 0 or less if it is not known
    /// \param blocking   whether the caller waits for the end, see OperationListener::begin()
    OperationStatus(QString title, long long totalSteps, bool blocking);
    OperationStatus(const OperationStatus&) = delete;
    OperationStatus& operator=(const OperationStatus&) = delete;
    virtual ~OperationStatus();

    /// \param steps how many more steps are done
    void addStep(long long steps)
    {
        if (listener != nullptr) {
            advance(steps);
        }
    }

    /// Registers the host's listener, or none with null. Operations that are under way tell the former
    /// listener nothing more, not even their end, and the new one nothing at all.
    /// \param listener not owned; it must be unregistered before it dies
    /// \return the listener registered before
    static OperationListener* setListener(OperationListener* listener);

private:
    static int levelWithin(const OperationStatus* status, const OperationListener* listener);
    void advance(long long steps);

    OperationListener* listener;
    OperationStatus* outer;
    long long done = 0;
    int level = 0;
    int clockStride = 1;
    int callsToClock = 1;
    std::chrono::steady_clock::time_point lastClockReading;
};

} // namespace tolvik
