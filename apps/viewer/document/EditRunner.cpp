#include "apps/viewer/document/EditRunner.h"

#include <QTimer>
#include <utility>

namespace tolvik::viewer {

namespace {

// So many features take no longer than a slice.
constexpr int fewFeatures = 100;

bool isShort(const SlicedEdit& edit, int steps)
{
    return steps <= fewFeatures / edit.effort();
}

} // namespace

EditRunner::EditRunner(QUndoStack& history, QObject* parent) : QObject(parent), history(history)
{
    connect(&work, &SlicedWork::progressed, this, &EditRunner::progressed);
}

EditRunner::~EditRunner() = default;

QString EditRunner::perform(std::unique_ptr<SlicedEdit> next)
{
    if (isRunning()) {
        return tr("Another edit is still under way.");
    }
    if (isShort(*next, next->size())) {
        QString reason = next->performAll();
        if (reason.isEmpty()) {
            push(std::move(next));
        }
        return reason;
    }
    made = std::move(next);
    edit = made.get();
    refusal.clear();
    wasDone = false;
    emit begun(tr("Editing"));
    work.start(
        edit->size(), [this](int number) { performStep(number); },
        [this] {
            edit->finish(true);
            std::unique_ptr<SlicedEdit> done = std::move(made);
            edit = nullptr;
            push(std::move(done));
            emit ended(QString());
        });
    return QString();
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

void EditRunner::push(std::unique_ptr<SlicedEdit> done)
{
    if (done->changes() > 0) {
        history.push(done.release());
    }
}

void EditRunner::undo()
{
    if (!isRunning() && history.canUndo() && !turnInSlices(history.command(history.index() - 1), true)) {
        history.undo();
    }
}

void EditRunner::redo()
{
    if (!isRunning() && history.canRedo() && !turnInSlices(history.command(history.index()), false)) {
        history.redo();
    }
}

/// \return false where the command is none that needs slices
bool EditRunner::turnInSlices(const QUndoCommand* command, bool isUndo)
{
    // The history gives its commands away to be read; going back and forth is what changes them.
    auto* const step = const_cast<SlicedEdit*>(dynamic_cast<const SlicedEdit*>(command));
    if (step == nullptr || isShort(*step, step->changes())) {
        return false;
    }
    edit = step;
    refusal.clear();
    turned = 0;
    wasDone = isUndo;
    emit begun(isUndo ? tr("Undoing") : tr("Redoing"));
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
            emit ended(QString());
        });
    return true;
}

void EditRunner::replay(int steps, const std::function<QString(int)>& step,
                        const std::function<void(const QString&)>& end)
{
    isReplaying = true;
    refusal.clear();
    emit begun(tr("Recovering"));
    work.start(
        steps,
        [this, step](int number) {
            if (refusal.isEmpty()) {
                refusal = step(number);
            }
        },
        [this, end] {
            isReplaying = false;
            emit ended(QString());
            end(refusal);
        });
}

void EditRunner::cancel()
{
    if (isReplaying) {
        refusal = tr("it was cancelled");
        return;
    }
    if (isRunning() && !isTakingBack) {
        takeBack();
    }
}

/// Everything goes back to where it was before the edit, or before it was undone or done again.
void EditRunner::takeBack()
{
    if (!isRunning() || isTakingBack) {
        return;
    }
    isTakingBack = true;
    emit begun(tr("Taking back"));
    work.start(
        made ? edit->changes() : edit->stepsBack(turned), [this](int change) { edit->turn(change); },
        [this] { end(); });
}

void EditRunner::end()
{
    edit->finish(wasDone);
    edit = nullptr;
    made.reset();
    isTakingBack = false;
    emit ended(refusal);
}

void EditRunner::abandon()
{
    if (isRunning()) {
        work.stop();
        edit = nullptr;
        made.reset();
        isTakingBack = false;
        isReplaying = false;
        emit ended(QString());
    }
}

} // namespace tolvik::viewer
