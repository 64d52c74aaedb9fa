#include "apps/viewer/exchange/TableEdits.h"

#include "apps/tables/TableImport.h"
#include "apps/viewer/document/Document.h"
#include "apps/viewer/edits/GenericAttributes.h"
#include "apps/viewer/edits/PropertyEdit.h"

namespace tolvik::viewer {

namespace {

using tables::CellChange;
using tables::CellType;

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

} // namespace

std::unique_ptr<RecordedEdit> makeTableEdit(Document& document, const tables::PlannedChange& planned,
                                            QString& refusal)
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

} // namespace tolvik::viewer
