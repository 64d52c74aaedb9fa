#include "apps/viewer/exchange/TableEdits.h"

#include "apps/tables/TableImport.h"
#include "apps/viewer/document/Document.h"
#include "apps/viewer/edits/EditGroup.h"
#include "apps/viewer/edits/GenericAttributes.h"
#include "apps/viewer/edits/PropertyEdit.h"

#include <QCoreApplication>
#include <utility>

namespace tolvik::viewer {

namespace {

using tables::CellChange;
using tables::CellType;
using tables::PlannedChange;

struct TableEdits
{
    Q_DECLARE_TR_FUNCTIONS(tolvik::viewer::TableEdits)
};

AttributeType attributeTypeOf(const CellChange& change)
{
    switch (change.type) {
    case CellType::Whole:
        return change.unit.isEmpty() ? AttributeType::Whole : AttributeType::Measure;
    case CellType::Real:
        return change.unit.isEmpty() ? AttributeType::Real : AttributeType::Measure;
    case CellType::Date:
        return AttributeType::Date;
    default:
        return AttributeType::Text;
    }
}

PropertyPath pathOf(const CellChange& change)
{
    PropertyPath path;
    for (const tables::ColumnPath::Step& step : change.property) {
        path.append({step.label, step.occurrence});
    }
    return path;
}

/// Does what a cell changes.
/// \param[out] refusal why it cannot be done, with nothing changed; empty where it is done
/// \return null where nothing has changed
std::unique_ptr<RecordedEdit> makeEdit(Document& document, const PlannedChange& planned, QString& refusal)
{
    const CellChange& change = planned.change;
    const PropertyEdit::Features features{document.model().getFeature(planned.feature)};
    const auto make = [&](PropertyEdit::Action action, const MemberPlace& place, const QVariant& value) {
        return PropertyEdit::make(document, features, action, place, value, refusal);
    };
    const MemberPlace property{MemberPlace::Property, pathOf(change)};
    switch (change.kind) {
    case CellChange::Value:
        return make(PropertyEdit::SetValue, property, change.value);
    case CellChange::Measure:
        return make(PropertyEdit::SetMeasure, property, QVariantList{change.value, change.unit});
    case CellChange::Absence:
        return make(PropertyEdit::MakeAbsent, property, QVariant());
    case CellChange::GoneAttribute:
        return make(PropertyEdit::RemoveAttribute, property, QVariant());
    case CellChange::FirstName:
        return make(PropertyEdit::AddEntry, {MemberPlace::TextList, {{QStringLiteral("name"), 1}}},
                    change.value);
    case CellChange::NewAttribute:
        return make(PropertyEdit::AddAttribute, {MemberPlace::GenericAttributes, {}},
                    QVariantList{static_cast<int>(attributeTypeOf(change)), change.property.first().label,
                                 change.value, change.unit});
    }
    return nullptr;
}

} // namespace

std::unique_ptr<EditGroup> tableEdit(Document& document, const QString& text,
                                     const std::vector<PlannedChange>& changes)
{
    std::vector<std::vector<PlannedChange>> features;
    for (const PlannedChange& change : changes) {
        if (features.empty() || features.back().front().feature != change.feature) {
            features.emplace_back();
        }
        features.back().push_back(change);
    }
    const int count = static_cast<int>(features.size());
    return std::make_unique<EditGroup>(
        text, count, [&document, features = std::move(features)](int number, QString& refusal) {
            EditGroup::Edits edits;
            for (const PlannedChange& change : features[static_cast<std::size_t>(number)]) {
                std::unique_ptr<RecordedEdit> edit = makeEdit(document, change, refusal);
                if (!refusal.isEmpty()) {
                    //: Feature, attribute and why it cannot be set
                    refusal = TableEdits::tr("%1: %2: %3").arg(change.id, change.column, refusal);
                    break;
                }
                if (edit != nullptr) {
                    edits.push_back(std::move(edit));
                }
            }
            return edits;
        });
}

} // namespace tolvik::viewer
