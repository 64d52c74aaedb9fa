#include "apps/viewer/document/SlicedEdit.h"

namespace tolvik::viewer {

SlicedEdit::~SlicedEdit() = default;

std::unique_ptr<SlicedEdit> SlicedEdit::remake(const QString& kind, Document& document,
                                               const QJsonObject& record)
{
    std::unique_ptr<RecordedEdit> recorded = make(kind, document, record);
    std::unique_ptr<SlicedEdit> edit(dynamic_cast<SlicedEdit*>(recorded.get()));
    if (edit == nullptr) {
        return nullptr;
    }
    (void)recorded.release();
    const bool isDone = edit->performAll().isEmpty() && edit->changes() > 0;
    return isDone ? std::move(edit) : nullptr;
}

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
