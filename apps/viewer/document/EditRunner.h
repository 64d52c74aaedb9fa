#pragma once

#include "apps/viewer/document/SlicedEdit.h"
#include "apps/viewer/features/SlicedWork.h"

#include <chrono>
#include <functional>
#include <memory>
#include <QObject>
#include <QUndoStack>

namespace tolvik::viewer {

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
    /// cancelled one leaves those that were made.
    /// \param step makes the edit of a number, from 0 on, and answers why that cannot be; the last one then
    /// \param end  called once with that answer, empty where all were made
    void replay(int steps, const std::function<QString(int)>& step,
                const std::function<void(const QString&)>& end);

    /// Gives up what is under way, where it stands: the document is about to go.
    void abandon();

    /// See SlicedWork::setSliceLength().
    void setSliceLength(std::chrono::milliseconds length) { work.setSliceLength(length); }

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
    void performStep(int number);
    void push(std::unique_ptr<SlicedEdit> done);
    bool turnInSlices(const QUndoCommand* command, bool isUndo);
    void takeBack();
    void end();

    QUndoStack& history;
    SlicedEdit* edit = nullptr;       // what is under way
    std::unique_ptr<SlicedEdit> made; // the same, as long as it is not in the history
    SlicedWork work;
    int turned = 0;       // number of its changes that are at the other end
    bool wasDone = false; // whether it was done before
    bool isTakingBack = false;
    bool isReplaying = false;
    QString refusal;
};

} // namespace tolvik::viewer
