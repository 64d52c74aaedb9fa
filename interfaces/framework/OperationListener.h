#pragma once

#include "PlatformExport.h"

#include <QString>

namespace tolvik {

/// What a host registers with OperationStatus::setListener() to show the progress of long operations.
///
/// All calls come from within the operation, on its thread. The models are half built meanwhile: a listener
/// must not run an event loop that paints their views, nor call them. To show a progress bar it repaints that
/// alone.
class TOLVIK_PLATFORM_EXPORT OperationListener
{
public:
    OperationListener() = default;
    OperationListener(const OperationListener&) = delete;
    OperationListener& operator=(const OperationListener&) = delete;
    virtual ~OperationListener();

    /// An operation begins. Operations nest.
    /// \param title      what goes on, translated
    /// \param totalSteps number of steps to come; 0 or less if it is not known
    /// \param blocking   the caller waits for the end, so that the host may show a busy cursor at once
    /// \param level      0 for an outermost operation, 1 for one within it, and so on
    virtual void begin(const QString& title, long long totalSteps, bool blocking, int level) = 0;

    /// The operation of that level has come this far. Told at most 20 times a second over all operations, so
    /// the last steps of an operation are as a rule not told.
    /// \param doneSteps steps done since the operation began
    /// \param level as for begin()
    virtual void progress(long long doneSteps, int level) = 0;

    /// The operation of that level has ended, completed or not.
    virtual void end(int level) = 0;
};

} // namespace tolvik
