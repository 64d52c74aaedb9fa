#pragma once

#include "apps/viewer/document/SlicedEdit.h"
#include "apps/viewer/features/SlicedWork.h"

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <QObject>
#include <QUndoStack>

namespace tolvik::viewer {

/// A step of a replay: an edit that is yet to be done, or a place in the history to go to. Where it is
/// neither, the edit does not fit the document.
struct ReplayStep
{
    std::unique_ptr<RecordedEdit> edit;
    std::optional<int> index = {}; ///< number of edits that are done after the step
};

/// Makes edits of a document as steps of its history, and goes back and forth in that. What concerns many
/// features goes in slices, so that the window stays alive, and can be cancelled: then all is as it was.
///
/// As long as it runs, nobody else may change the document.
class EditRunner : public QObject
{
    Q_OBJECT

public:
    /// \param history lives longer
    explicit EditRunner(QUndoStack& history, QObject* parent = nullptr);
    ~EditRunner() override;

    bool isRunning() const { return edit != nullptr || isReplaying; }

    /// Makes an edit. One that changes nothing leaves no step in the history.
    /// \return why it is refused, with nothing changed. An edit of many features is refused by ended().
    QString perform(std::unique_ptr<SlicedEdit> next);

    /// Has edits made that are steps of the history each, as if a user made them one after the other. A
    /// cancelled one leaves those that were made, and so does one of which a step cannot be made.
    /// \param step tells the step of a number, from 0 on, when those before are made
    /// \param end  called once with the reason why not all steps were made; empty where they were
    void replay(int steps, const std::function<ReplayStep(int)>& step,
                const std::function<void(const QString&)>& end);

    /// Gives up what is under way, where it stands: the document is about to go.
    void abandon();

    /// See SlicedWork::setSliceLength().
    void setSliceLength(std::chrono::milliseconds length);

public slots:
    void undo();
    void redo();
    /// Takes back what is under way.
    void cancel();

signals:
    /// An edit of many features is under way.
    /// \param title what is being done
    void begun(const QString& title);
    void progressed(int done, int count);
    /// It is done, or taken back.
    /// \param refusal why it was refused; else empty
    void ended(const QString& refusal);

private:
    void performInSlices(std::unique_ptr<SlicedEdit> next);
    void performStep(int number);
    bool push(std::unique_ptr<SlicedEdit> done);
    void turn(bool isUndo);
    bool turnInSlices(bool isUndo);
    void takeBack();
    void settle(const QString& reason);
    void takeStep(ReplayStep step);
    void performAgain(std::unique_ptr<SlicedEdit> next);
    void goToTarget();
    void giveUpReplay();
    void tellProgress(int done, int count);

    QUndoStack& history;
    SlicedEdit* edit = nullptr;       // what is under way
    std::unique_ptr<SlicedEdit> made; // the same, as long as it is not in the history
    SlicedWork work;
    int turned = 0;       // number of its changes that are at the other end
    bool wasDone = false; // whether it was done before
    bool isTakingBack = false;
    QString refusal;

    // Of edits that are made once more, each of which may go in slices itself.
    SlicedWork replaying;
    bool isReplaying = false;
    int replayed = 0; // number of the step
    int replaySteps = 0;
    std::optional<int> target; // of the step, where it is a place in the history
    QString replayRefusal;
};

} // namespace tolvik::viewer
