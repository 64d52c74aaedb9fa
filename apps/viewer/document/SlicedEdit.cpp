#include "apps/viewer/document/SlicedEdit.h"

namespace tolvik::viewer {

SlicedEdit::~SlicedEdit() = default;

void SlicedEdit::finish(bool done)
{
    isDone = done;
    endWalk();
}

QString SlicedEdit::performAll()
{
    for (int number = 0; number < size(); ++number) {
        QString refusal = perform(number);
        if (!refusal.isEmpty()) {
            turnAll();
            finish(false);
            return refusal;
        }
    }
    finish(true);
    return QString();
}

void SlicedEdit::redo()
{
    if (!isDone) {
        turnAll();
        finish(true);
    }
}

void SlicedEdit::undo()
{
    if (isDone) {
        turnAll();
        finish(false);
    }
}

void SlicedEdit::turnAll()
{
    for (int change = 0; change < changes(); ++change) {
        turn(change);
    }
}

} // namespace tolvik::viewer
