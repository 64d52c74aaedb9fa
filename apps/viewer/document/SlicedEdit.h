#pragma once

#include "apps/viewer/document/RecordedEdit.h"

#include <QString>

namespace tolvik::viewer {

/// An edit of any number of features that can be done, undone and done again one feature at a time. Between
/// two of these no feature may come or go, and no other edit may be made. EditRunner does that beside the
/// window.
class SlicedEdit : public RecordedEdit
{
public:
    ~SlicedEdit() override;

    /// Number of features that the edit is for.
    virtual int size() const = 0;
    /// Does the edit for the first time, on one feature.
    /// \param number below size(), in ascending order
    /// \return why it is refused, with nothing changed in this feature; empty where it is done
    virtual QString perform(int number) = 0;

    /// Number of features that perform() has changed.
    virtual int changes() const = 0;
    /// Puts back what a feature said at the other end of the edit: before it where it is done, after it where
    /// it is undone.
    /// \param change below changes()
    virtual void turn(int change) = 0;

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
