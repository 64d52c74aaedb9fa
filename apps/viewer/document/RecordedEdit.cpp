#include "apps/viewer/document/RecordedEdit.h"

#include <QHash>

namespace tolvik::viewer {

namespace {

QHash<QString, RecordedEdit::Maker>& makers()
{
    static QHash<QString, RecordedEdit::Maker> byKind;
    return byKind;
}

int lastNumber = 0;

} // namespace

RecordedEdit::RecordedEdit() : ownNumber(++lastNumber) {}

RecordedEdit::~RecordedEdit() = default;

void RecordedEdit::addMaker(const QString& kind, const Maker& maker)
{
    makers().insert(kind, maker);
}

std::unique_ptr<RecordedEdit> RecordedEdit::make(const QString& kind, Document& document,
                                                 const QJsonObject& record)
{
    const Maker maker = makers().value(kind);
    return maker ? maker(document, record) : nullptr;
}

} // namespace tolvik::viewer
