#include "support/OperationRecorder.h"

#include "framework/OperationStatus.h"

namespace testsupport {

void OperationLog::begin(const QString& title, long long totalSteps, bool blocking, int level)
{
    titles.append(title);
    lines.append(QStringLiteral("begin %1 %2 %3 %4")
                     .arg(title)
                     .arg(totalSteps)
                     .arg(blocking ? "blocking" : "free")
                     .arg(level));
}

void OperationLog::progress(long long doneSteps, int level)
{
    doneByReport.append(doneSteps);
    levelByReport.append(level);
}

void OperationLog::end(int level)
{
    lines.append(QStringLiteral("end %1").arg(level));
}

OperationRecorder::OperationRecorder() : former(tolvik::OperationStatus::setListener(this)) {}

OperationRecorder::~OperationRecorder()
{
    tolvik::OperationStatus::setListener(former);
}

} // namespace testsupport
