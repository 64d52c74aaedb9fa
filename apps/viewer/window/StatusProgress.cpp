#include "apps/viewer/window/StatusProgress.h"

#include "framework/OperationStatus.h"

#include <algorithm>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QStyle>
#include <QToolButton>
#include <utility>

namespace tolvik::viewer {

namespace {

// Bytes and steps are more than a progress bar can count.
constexpr int barLength = 1000;

} // namespace

StatusProgress::StatusProgress(QWidget* parent)
    : QWidget(parent), label(new QLabel), bar(new QProgressBar), cancelButton(new QToolButton)
{
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(bar);
    layout->addWidget(cancelButton);
    label->setObjectName(QStringLiteral("progressTitle"));
    bar->setObjectName(QStringLiteral("progress"));
    bar->setAccessibleName(tr("Progress"));
    bar->setRange(0, barLength);
    bar->setFixedWidth(180);
    cancelButton->setObjectName(QStringLiteral("cancel"));
    cancelButton->setText(tr("Cancel"));
    cancelButton->setToolTip(tr("Give up what is going on"));
    connect(cancelButton, &QToolButton::clicked, this, &StatusProgress::cancelLast);
    hide();
}

StatusProgress::~StatusProgress() = default;

void StatusProgress::showNow(const QString& title, qint64 done, qint64 total)
{
    label->setText(title);
    bar->setRange(0, total > 0 ? barLength : 0);
    bar->setValue(total > 0 ? static_cast<int>(qMin(done, total) * barLength / total) : 0);
}

int StatusProgress::beginBeside(const QString& title, std::function<void()> cancel)
{
    besides.append({++lastNumber, title, std::move(cancel)});
    showLast();
    return lastNumber;
}

void StatusProgress::showBeside(int work, qint64 done, qint64 total)
{
    for (Beside& each : besides) {
        if (each.number == work) {
            each.done = done;
            each.total = total;
        }
    }
    if (!besides.isEmpty() && besides.last().number == work) {
        showNow(besides.last().title, done, total);
    }
}

void StatusProgress::endBeside(int work)
{
    besides.erase(std::remove_if(besides.begin(), besides.end(),
                                 [work](const Beside& each) { return each.number == work; }),
                  besides.end());
    showLast();
}

void StatusProgress::showLast()
{
    setVisible(!besides.isEmpty());
    if (!besides.isEmpty()) {
        const Beside& last = besides.last();
        cancelButton->setVisible(last.cancel != nullptr);
        showNow(last.title, last.done, last.total);
    }
}

void StatusProgress::cancelLast()
{
    if (!besides.isEmpty() && besides.last().cancel) {
        // It may end the work, and with it what is called here.
        const std::function<void()> cancel = besides.last().cancel;
        cancel();
    }
}

void StatusProgress::begin(const QString& title, long long totalSteps, bool /*blocking*/, int /*level*/)
{
    operations.append({title, totalSteps});
    cancelButton->hide();
    showNow(title, 0, totalSteps);
    show();
    repaint();
}

void StatusProgress::progress(long long doneSteps, int level)
{
    const Operation& operation = operations[level];
    showNow(operation.title, doneSteps, operation.totalSteps);
    // The models are half built: nothing but this may be drawn.
    repaint();
}

void StatusProgress::end(int /*level*/)
{
    operations.removeLast();
    if (operations.isEmpty()) {
        showLast();
    }
}

ShownOperations::ShownOperations(StatusProgress& progress) : former(OperationStatus::setListener(&progress))
{
}

ShownOperations::~ShownOperations()
{
    OperationStatus::setListener(former);
}

} // namespace tolvik::viewer
