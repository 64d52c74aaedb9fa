#include "apps/viewer/document/EditRunner.h"

#include <algorithm>
#include <QTimer>
#include <utility>

namespace tolvik::viewer {

namespace {

// So many features take no longer than a slice.
constexpr int fewFeatures = 100;

// A step of a replay may have many of them.
constexpr int partsOfStep = 100;

bool isShort(const SlicedEdit& edit, int steps)
{
    return steps <= fewFeatures / edit.effort();
}

} // namespace

EditRunner::EditRunner(QUndoStack& history, QObject* parent) : QObject(parent), history(history)
{
    connect(&work, &SlicedWork::progressed, this, &EditRunner::tellProgress);
    connect(&replaying, &SlicedWork::progressed, this, [this](int done) {
        if (edit == nullptr) {
            emit progressed(done * partsOfStep, replaySteps * partsOfStep);
        }
    });
}

EditRunner::~EditRunner() = default;

void EditRunner::setSliceLength(std::chrono::milliseconds length)
{
    work.setSliceLength(length);
    replaying.setSliceLength(length);
}

QString EditRunner::perform(std::unique_ptr<SlicedEdit> next)
{
    if (isRunning()) {
        return tr("Another edit is still under way.");
    }
    if (!isShort(*next, next->size())) {
        performInSlices(std::move(next));
        emit begun(tr("Editing"));
        return QString();
    }
    QString reason = next->performAll();
    if (reason.isEmpty()) {
        push(std::move(next));
    }
    return reason;
}

void EditRunner::performInSlices(std::unique_ptr<SlicedEdit> next)
{
    made = std::move(next);
    edit = made.get();
    refusal.clear();
    wasDone = false;
    work.start(
        edit->size(), [this](int number) { performStep(number); },
        [this] {
            edit->finish(true);
            edit = nullptr;
            if (!push(std::move(made))) {
                giveUpReplay();
            }
            settle(QString());
        });
}

void EditRunner::performStep(int number)
{
    refusal = edit->perform(number);
    if (!refusal.isEmpty()) {
        work.stop();
        // This is called by what goes on with another step then.
        QTimer::singleShot(0, this, &EditRunner::takeBack);
    }
}

/// \return false for an edit that has changed nothing, which leaves no step
bool EditRunner::push(std::unique_ptr<SlicedEdit> done)
{
    const bool isStep = done->changes() > 0;
    if (isStep) {
        history.push(done.release());
    }
    return isStep;
}

void EditRunner::undo()
{
    if (!isRunning() && history.canUndo()) {
        turn(true);
    }
}

void EditRunner::redo()
{
    if (!isRunning() && history.canRedo()) {
        turn(false);
    }
}

/// Goes a step back or forth in the history, which may take slices.
void EditRunner::turn(bool isUndo)
{
    if (!turnInSlices(isUndo)) {
        isUndo ? history.undo() : history.redo();
    } else if (!isReplaying) {
        emit begun(isUndo ? tr("Undoing") : tr("Redoing"));
    }
}

/// \return false where the step is none that needs slices
bool EditRunner::turnInSlices(bool isUndo)
{
    const QUndoCommand* const command = history.command(isUndo ? history.index() - 1 : history.index());
    // The history gives its commands away to be read; going back and forth is what changes them.
    auto* const step = const_cast<SlicedEdit*>(dynamic_cast<const SlicedEdit*>(command));
    if (step == nullptr || isShort(*step, step->changes())) {
        return false;
    }
    edit = step;
    refusal.clear();
    turned = 0;
    wasDone = isUndo;
    work.start(
        edit->changes(),
        [this](int change) {
            edit->turn(change);
            turned = change + 1;
        },
        [this, isUndo] {
            edit->finish(!isUndo);
            edit = nullptr;
            isUndo ? history.undo() : history.redo();
            settle(QString());
        });
    return true;
}

void EditRunner::cancel()
{
    if (isReplaying && replayRefusal.isEmpty()) {
        replayRefusal = tr("it was cancelled");
    }
    takeBack();
}

/// Everything goes back to where it was before the edit, or before it was undone or done again.
void EditRunner::takeBack()
{
    if (edit == nullptr || isTakingBack) {
        return;
    }
    isTakingBack = true;
    emit begun(tr("Taking back"));
    work.start(
        made ? edit->changes() : edit->stepsBack(turned), [this](int change) { edit->turn(change); },
        [this] {
            edit->finish(wasDone);
            settle(refusal);
        });
}

/// What was under way is done, or taken back.
/// \param reason why it was refused, or nothing
void EditRunner::settle(const QString& reason)
{
    edit = nullptr;
    made.reset();
    isTakingBack = false;
    if (!isReplaying) {
        emit ended(reason);
        return;
    }
    if (!reason.isEmpty()) {
        giveUpReplay();
    }
    goToTarget();
    if (edit == nullptr) {
        replaying.goOn();
    }
}

void EditRunner::replay(int steps, const std::function<ReplayStep(int)>& step,
                        const std::function<void(const QString&)>& end)
{
    isReplaying = true;
    replaySteps = steps;
    replayRefusal.clear();
    emit begun(tr("Recovering"));
    replaying.start(
        steps,
        [this, step](int number) {
            if (replayRefusal.isEmpty()) {
                replayed = number;
                takeStep(step(number));
            }
        },
        [this, end] {
            isReplaying = false;
            emit ended(QString());
            end(replayRefusal);
        });
}

void EditRunner::takeStep(ReplayStep step)
{
    target = step.index;
    if (auto* const sliced = dynamic_cast<SlicedEdit*>(step.edit.get())) {
        (void)step.edit.release();
        performAgain(std::unique_ptr<SlicedEdit>(sliced));
    } else if (step.edit != nullptr) {
        history.push(step.edit.release());
    } else if (target) {
        goToTarget();
    } else {
        giveUpReplay();
    }
    if (edit != nullptr) {
        // It goes on when that has settled.
        replaying.stop();
    }
}

void EditRunner::performAgain(std::unique_ptr<SlicedEdit> next)
{
    if (!isShort(*next, next->size())) {
        performInSlices(std::move(next));
    } else if (!next->performAll().isEmpty() || !push(std::move(next))) {
        giveUpReplay();
    }
}

/// Goes to a place in the history, up to the first step that takes slices.
void EditRunner::goToTarget()
{
    const int wanted = std::clamp(target.value_or(history.index()), 0, history.count());
    while (edit == nullptr && history.index() != wanted && replayRefusal.isEmpty()) {
        turn(wanted < history.index());
    }
}

/// Makes no further step of a replay, if one is under way.
void EditRunner::giveUpReplay()
{
    if (isReplaying && replayRefusal.isEmpty()) {
        replayRefusal = tr("an edit does not fit the document");
    }
}

/// Tells how far an edit has come, and within a replay how far that has.
void EditRunner::tellProgress(int done, int count)
{
    if (isReplaying) {
        const auto part = static_cast<int>(qint64{partsOfStep} * done / std::max(count, 1));
        emit progressed(replayed * partsOfStep + part, replaySteps * partsOfStep);
    } else {
        emit progressed(done, count);
    }
}

void EditRunner::abandon()
{
    if (isRunning()) {
        work.stop();
        replaying.stop();
        edit = nullptr;
        made.reset();
        isTakingBack = false;
        isReplaying = false;
        emit ended(QString());
    }
}

} // namespace tolvik::viewer
