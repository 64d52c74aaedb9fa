#pragma once

#include "framework/OperationListener.h"

#include <QStringList>
#include <QVector>

namespace testsupport {

/// Writes down the operations that are reported to it.
class OperationLog : public tolvik::OperationListener
{
public:
    void begin(const QString& title, long long totalSteps, bool blocking, int level) override;
    void progress(long long doneSteps, int level) override;
    void end(int level) override;

    /// `begin TITLE TOTAL blocking|free LEVEL` and `end LEVEL`, in the order of the reports.
    QStringList lines;
    QStringList titles;
    /// Of each report of progress the steps that are done, and the level of the operation.
    QVector<long long> doneByReport;
    QVector<int> levelByReport;
};

/// The same, registered as the listener while it lives; then the former listener is back.
class OperationRecorder : public OperationLog
{
public:
    OperationRecorder();
    ~OperationRecorder() override;
    OperationRecorder(const OperationRecorder&) = delete;
    OperationRecorder& operator=(const OperationRecorder&) = delete;

private:
    tolvik::OperationListener* former;
};

} // namespace testsupport
