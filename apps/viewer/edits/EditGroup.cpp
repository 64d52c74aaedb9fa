#include "apps/viewer/edits/EditGroup.h"

#include <algorithm>
#include <QJsonArray>
#include <utility>

namespace tolvik::viewer {

namespace {

const QString editGroupKind = QStringLiteral("group");

void undoAll(EditGroup::Edits& edits)
{
    std::for_each(edits.rbegin(), edits.rend(), [](const auto& edit) { edit->undo(); });
}

EditGroup::Edits editsOf(Document& document, const QJsonArray& records, QString& refusal)
{
    EditGroup::Edits edits;
    for (const QJsonValue& each : records) {
        std::unique_ptr<SlicedEdit> edit =
            SlicedEdit::remake(each["kind"].toString(), document, each["edit"].toObject());
        if (edit == nullptr) {
            refusal = each["kind"].toString();
            return edits;
        }
        edits.push_back(std::move(edit));
    }
    return edits;
}

} // namespace

EditGroup::EditGroup(const QString& text, int size, Maker make) : count(size), make(std::move(make))
{
    setText(text);
}

void EditGroup::addMaker()
{
    RecordedEdit::addMaker(editGroupKind, [](Document& document, const QJsonObject& record) {
        const QJsonArray features = record["features"].toArray();
        return std::make_unique<EditGroup>(record["text"].toString(), features.size(),
                                           [&document, features](int number, QString& refusal) {
                                               return editsOf(document, features[number].toArray(), refusal);
                                           });
    });
}

QString EditGroup::perform(int number)
{
    QString refusal;
    Edits edits = make(number, refusal);
    if (!refusal.isEmpty()) {
        undoAll(edits);
    } else if (!edits.empty()) {
        changed.push_back(std::move(edits));
        done = changed.size();
    }
    return refusal;
}

/// Goes back from the last feature to the first, and forth from the first to the last: a feature may be a
/// part of what was kept of another one.
void EditGroup::turn(int change)
{
    if (change == 0) {
        const bool isBetween = done > 0 && done < changed.size();
        isGoingBack = isBetween ? !isGoingBack : done > 0;
    }
    if (isGoingBack) {
        undoAll(changed[--done]);
        return;
    }
    for (const auto& edit : changed[done]) {
        edit->redo();
    }
    ++done;
}

QString EditGroup::kind() const
{
    return editGroupKind;
}

QJsonObject EditGroup::record() const
{
    QJsonArray features;
    for (const Edits& edits : changed) {
        QJsonArray records;
        for (const auto& edit : edits) {
            records += QJsonObject{{"kind", edit->kind()}, {"edit", edit->record()}};
        }
        features += records;
    }
    return {{"text", text()}, {"features", features}};
}

void EditGroup::endWalk()
{
    make = nullptr;
}

} // namespace tolvik::viewer
