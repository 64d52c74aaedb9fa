#pragma once

#include "apps/viewer/document/RecordedEdit.h"

#include <QString>

namespace tolvik::viewer {

/// An edit of any number of features that can be done, undone and done again one feature at a time. Between
/// two of these no feature may come or go by others, and no other edit may be made. EditRunner does that
/// beside the window.
class SlicedEdit : public RecordedEdit
{
public:
    ~SlicedEdit() override;

    /// Number of features that the edit is for, or of other parts that can be done one at a time.
    virtual int size() const = 0;
    /// How long the work on one of them takes, as a multiple of the change of an attribute.
    virtual int effort() const { return 1; }
    /// Does the edit for the first time, on one feature.
    /// \param number below size(), in ascending order
    /// \return why it is refused, with nothing changed in this feature; empty where it is done
    virtual QString perform(int number) = 0;

    /// Number of features that perform() has changed, or of other parts that turn() takes to the other end.
    virtual int changes() const = 0;
    /// Puts back what a feature said at the other end of the edit: before it where it is done, after it where
    /// it is undone. From 0 on it goes to the other end; where that is given up on the way, from 0 on again
    /// it goes back.
    /// \param change below changes(), in ascending order
    virtual void turn(int change) = 0;

    /// How many calls of turn() it takes to come back where turn() was given up on the way.
    /// \param turned number of calls that were made
    virtual int stepsBack(int turned) const { return turned; }

    /// Makes an edit of what record() wrote, and does it at once.
    /// \return null where that cannot be done or changes nothing, and for an edit of another class
    static std::unique_ptr<SlicedEdit> remake(const QString& kind, Document& document,
                                              const QJsonObject& record);

    /// All features are at one end of the edit.
    /// \param done whether they are as the edit made them
    void finish(bool done);

    /// Does the edit for the first time, on each feature or on none.
    /// \return why it is refused; empty where it is done
    QString performAll();

    void redo() override;
    void undo() override;

protected:
    /// A walk over the features has ended: the next one may find other objects.
    virtual void endWalk() = 0;

private:
    void turnAll();

    bool isDone = false;
};

} // namespace tolvik::viewer
