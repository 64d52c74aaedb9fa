#include "apps/viewer/edits/EditGroup.h"

#include <algorithm>
#include <QJsonArray>

namespace tolvik::viewer {

namespace {

const QString editGroupKind = QStringLiteral("group");

} // namespace

EditGroup::EditGroup(const QString& text)
{
    setText(text);
}

void EditGroup::add(std::unique_ptr<RecordedEdit> edit)
{
    edits.push_back(std::move(edit));
}

void EditGroup::addMaker()
{
    RecordedEdit::addMaker(editGroupKind, [](Document& document, const QJsonObject& record) {
        auto group = std::make_unique<EditGroup>(record["text"].toString());
        for (const QJsonValue each : record["edits"].toArray()) {
            std::unique_ptr<RecordedEdit> edit =
                make(each["kind"].toString(), document, each["edit"].toObject());
            if (edit == nullptr) {
                group->undo();
                return std::unique_ptr<RecordedEdit>();
            }
            group->add(std::move(edit));
        }
        return std::unique_ptr<RecordedEdit>(std::move(group));
    });
}

/// The first call finds all edits done.
void EditGroup::redo()
{
    for (const auto& edit : edits) {
        edit->redo();
    }
}

void EditGroup::undo()
{
    std::for_each(edits.rbegin(), edits.rend(), [](const auto& edit) { edit->undo(); });
}

QString EditGroup::kind() const
{
    return editGroupKind;
}

QJsonObject EditGroup::record() const
{
    QJsonArray records;
    for (const auto& edit : edits) {
        records += QJsonObject{{"kind", edit->kind()}, {"edit", edit->record()}};
    }
    return {{"text", text()}, {"edits", records}};
}

} // namespace tolvik::viewer
