#include "apps/tables/CellEdit.h"

#include "apps/common/EditedValues.h"
#include "apps/common/PropertyText.h"
#include "apps/tables/ColumnTree.h"
#include "apps/tables/FeaturePlace.h"
#include "apps/tables/GenericAttributes.h"
#include "citygml/MemberUnit.h"
#include "framework/AbstractUnit.h"
#include "gml/AbstractFeatureType.hxx"
#include "gml/CodeType.hxx"
#include "UI/Models/CityGMLModel/CityGMLModel.h"
#include "UI/Models/CityGMLModel/properties/BoundProperty.h"
#include "UI/Models/CityGMLModel/properties/GmlCorePropertyCreator.h"

#include <algorithm>
#include <QHash>
#include <QJsonDocument>
#include <vector>

namespace tolvik::tables {

namespace {

using apps::EditError;
using Steps = QVector<ColumnPath::Step>;

/// The child of a label that is the n-th of its kind, where those of generic attributes are a kind of their
/// own.
CoreProperty* childAt(const CoreProperty& parent, const ColumnPath::Step& step, bool isGeneric)
{
    int met = 0;
    for (const auto& child : parent.properties()) {
        if (child->name() == step.label && isGenericAttribute(*child) == isGeneric &&
            ++met == step.occurrence) {
            return child.get();
        }
    }
    return nullptr;
}

/// The property that steps lead to; null where there is none.
/// \param begin number of the steps that lead to the group already
CoreProperty* propertyBelow(const CoreProperty* group, const ColumnPath& path, int begin)
{
    for (int i = begin; group != nullptr && i + 1 < path.steps.size(); ++i) {
        group = childAt(*group, path.steps[i], false);
    }
    if (group == nullptr) {
        return nullptr;
    }
    CoreProperty* const found = childAt(*group, path.steps.last(), path.isGeneric);
    // `set` takes a generic attribute among the fields.
    return found != nullptr || path.isGeneric ? found : childAt(*group, path.steps.last(), true);
}

/// The same from the root of a tree.
CoreProperty* propertyAt(const CoreProperty& root, const ColumnPath& path)
{
    return propertyBelow(path.isGeneric ? root.getProperty(QStringLiteral("Fields"), false) : &root, path, 0);
}

/// The group that is the n-th one of those that labels lead to.
/// \param depth   number of the labels
/// \param begin   number of the labels that lead to the group that is searched
/// \param ordinal counted down for each group of these labels
const CoreProperty* groupAt(const CoreProperty& around, const ColumnPath& path, int depth, int begin,
                            int& ordinal)
{
    for (const auto& child : around.properties()) {
        if (child->name() != path.steps[begin].label || child->properties().isEmpty()) {
            continue;
        }
        const bool isLast = begin + 1 == depth;
        if (isLast && --ordinal == 0) {
            return child.get();
        }
        const CoreProperty* const found = isLast ? nullptr : groupAt(*child, path, depth, begin + 1, ordinal);
        if (found != nullptr) {
            return found;
        }
    }
    return nullptr;
}

/// The first property of a member below a group; null where there is none.
const CoreProperty* firstBound(const CoreProperty& group)
{
    for (const auto& child : group.properties()) {
        const CoreProperty& property = *child;
        const bool isBound = dynamic_cast<const BoundProperty*>(&property) != nullptr;
        if (const CoreProperty* const found = isBound ? &property : firstBound(property)) {
            return found;
        }
    }
    return nullptr;
}

/// Whether two properties, of one tree or of two, are of the same member of the document.
bool isSame(const CoreProperty& property, const CoreProperty& other)
{
    if (&property == &other) {
        return true;
    }
    const auto* const bound = dynamic_cast<const BoundProperty*>(&property);
    const auto* const otherBound = dynamic_cast<const BoundProperty*>(&other);
    // Members of several namespaces may have one name.
    if (bound == nullptr || otherBound == nullptr || property.name() != other.name()) {
        return false;
    }
    const citygml::Member member = bound->member();
    const citygml::Member otherMember = otherBound->member();
    return &member.object() == &otherMember.object() && member.position() == otherMember.position() &&
           member.name() == otherMember.name();
}

/// Finds the steps that lead to a property of the same member below a group.
/// \return whether there is one
bool findSteps(const CoreProperty& group, const CoreProperty& wanted, Steps& steps)
{
    QHash<QString, int> met;
    for (const auto& child : group.properties()) {
        steps += {child->name(), ++met[child->name()]};
        if (isSame(*child, wanted) || findSteps(*child, wanted, steps)) {
            return true;
        }
        steps.removeLast();
    }
    return false;
}

/// Whether a cell says what a property shows. Numbers are compared as far as tables write them.
bool isShown(const QVariant& value, const QString& cell)
{
    const std::optional<CellType> type = cellType(value);
    if (!type) {
        return false;
    }
    bool isNumber = false;
    switch (*type) {
    case CellType::Real: {
        const double number = cell.toDouble(&isNumber);
        return isNumber && QString::number(number, 'g', 15) == QString::number(value.toDouble(), 'g', 15);
    }
    case CellType::Whole: {
        const double number = cell.toDouble(&isNumber);
        return cell == value.toString() || (isNumber && number == value.toDouble());
    }
    case CellType::List: {
        const QJsonDocument list = QJsonDocument::fromJson(cell.toUtf8());
        return list.isArray() && list == QJsonDocument::fromJson(cellText(value).toUtf8());
    }
    default:
        return cell == cellText(value);
    }
}

QString unitOf(const CoreProperty& property)
{
    return property.unit() != nullptr ? property.unit()->name() : QString();
}

/// \throws EditError
void verifyTold(const QString& told, const QString& cell)
{
    if (told != cell) {
        throw EditError(CellEdit::tr("it is \"%1\", which a table cannot change").arg(told));
    }
}

/// What a property said, so that it says the same again.
class Former
{
public:
    explicit Former(CoreProperty& property)
        : property(property), bound(dynamic_cast<BoundProperty*>(&property)), value(property.value())
    {
        if (bound != nullptr) {
            state = bound->capture();
        }
    }

    void restore()
    {
        if (bound != nullptr) {
            bound->restore(state);
        } else {
            property.setValue(value);
        }
    }

    const QVariant& shown() const { return value; }

private:
    CoreProperty& property;
    BoundProperty* const bound;
    const QVariant value;
    citygml::MemberState state;
};

} // namespace

CellEdit::CellEdit(CityGMLModel& model, gml::AbstractFeatureType& feature, const ImportOptions& options,
                   bool hasOtherContent)
    : model(model), feature(feature), options(options), hasOtherContent(hasOtherContent)
{
}

bool CellEdit::isSaid(const Cell& cell)
{
    if (cell.column.role == EditTable::Role::Name) {
        return !feature.name().empty() && QString::fromStdString(feature.name().front()) == cell.text;
    }
    if (cell.column.role != EditTable::Role::Value) {
        return false;
    }
    CoreProperty* const property = find(cell);
    const bool isOfUnit = property != nullptr && (cell.unit.isEmpty() || unitOf(*property) == cell.unit);
    return isOfUnit && isShown(property->value(), cell.text);
}

bool CellEdit::set(const Cell& cell)
{
    return perform(cell).has_value();
}

std::optional<CellChange> CellEdit::plan(const Cell& cell)
{
    isTrial = true;
    try {
        Outcome outcome = perform(cell);
        isTrial = false;
        return outcome;
    } catch (const EditError&) {
        isTrial = false;
        throw;
    }
}

CellEdit::Outcome CellEdit::perform(const Cell& cell)
{
    switch (cell.column.role) {
    case EditTable::Role::Name:
        return rename(cell);
    case EditTable::Role::Parent:
        verifyTold(idOf(featureOutside(feature)), cell.text);
        return {};
    case EditTable::Role::Type:
        verifyTold(QString::fromStdString(feature.typeLabel), cell.text);
        return {};
    case EditTable::Role::Value:
        break;
    }
    CoreProperty* const property = find(cell);
    if (!options.absentWord.isEmpty() && cell.text == options.absentWord) {
        return property != nullptr ? remove(*property, cell) : Outcome();
    }
    if (property != nullptr) {
        return change(*property, cell);
    }
    CoreProperty* const possible = findPossible(cell);
    return possible != nullptr ? change(*possible, cell) : create(cell);
}

/// The property of a cell among those of the document; null where there is none.
/// \throws EditError where there is no group for the row of the cell
CoreProperty* CellEdit::find(const Cell& cell)
{
    if (cell.ordinal == 0) {
        return propertyAt(existing(), cell.column.path);
    }
    int ordinal = cell.ordinal;
    const CoreProperty* const group = groupAt(existing(), cell.column.path, cell.groupDepth, 0, ordinal);
    if (group == nullptr) {
        throw EditError(
            tr("the feature has no group %1 of %2; a table cannot add one")
                .arg(QString::number(cell.ordinal), cell.column.path.steps[cell.groupDepth - 1].label));
    }
    return propertyBelow(group, cell.column.path, cell.groupDepth);
}

/// The property that a cell could make; null where there is none.
CoreProperty* CellEdit::findPossible(const Cell& cell)
{
    if (cell.ordinal == 0) {
        return propertyAt(all(), cell.column.path);
    }
    // The group has the same members in both trees.
    int ordinal = cell.ordinal;
    const CoreProperty* const known =
        firstBound(*groupAt(existing(), cell.column.path, cell.groupDepth, 0, ordinal));
    Steps steps;
    if (known == nullptr || !findSteps(all(), *known, steps)) {
        return nullptr;
    }
    const CoreProperty* group = &all();
    for (int i = 0; group != nullptr && i < cell.groupDepth; ++i) {
        group = childAt(*group, steps[i], false);
    }
    return propertyBelow(group, cell.column.path, cell.groupDepth);
}

/// Gives the feature another first name; the others and what stands with it stay.
CellEdit::Outcome CellEdit::rename(const Cell& cell)
{
    citygml::Member names(feature, feature.name());
    const bool hasName = names.size() > 0;
    const QString former = hasName ? QString::fromStdString(feature.name().front()) : QString();
    const bool isGoing = !options.absentWord.isEmpty() && cell.text == options.absentWord;
    if (isGoing ? !hasName : hasName && former == cell.text) {
        return {};
    }
    if (apps::characterOutsideXml(cell.text)) {
        throw EditError(tr("a name cannot have characters that XML has not"));
    }
    CellChange change;
    change.before = former;
    if (isTrial) {
        QVariantList all;
        for (const gml::CodeType& name : feature.name()) {
            all += QString::fromStdString(name);
        }
        if (!hasName) {
            change.kind = CellChange::FirstName;
            change.value = cell.text;
            return change;
        }
        change.property = {{QStringLiteral("Fields"), 1}, {QStringLiteral("Name"), 1}};
        if (isGoing) {
            all.removeFirst();
        } else {
            all.first() = cell.text;
        }
        change.kind = all.isEmpty() ? CellChange::Absence : CellChange::Value;
        change.value = all;
        return change;
    }
    if (isGoing) {
        names.take(0);
    } else if (hasName) {
        names.entryAt(0).setText(cell.text.toStdString());
    } else {
        names.add(cell.text.toStdString());
    }
    forgetTrees();
    return change;
}

CellEdit::Outcome CellEdit::change(CoreProperty& property, const Cell& cell)
{
    if (property.unit() != nullptr && !cell.unit.isEmpty() && unitOf(property) != cell.unit) {
        throw EditError(tr("the unit is \"%1\", and not \"%2\"").arg(unitOf(property), cell.unit));
    }
    if (isShown(property.value(), cell.text)) {
        return {};
    }
    Former former(property);
    CellChange change;
    try {
        change = give(property, cell);
    } catch (const EditError&) {
        former.restore();
        throw;
    }
    change.before = cellText(former.shown());
    if (isTrial) {
        const QVariant now = property.value();
        // A link is entered as a text.
        change.value = now.userType() == QMetaType::QUrl ? QVariant(cell.text) : now;
        former.restore();
        change.property = placeOf(property);
    } else if (change.kind == CellChange::Measure) {
        // The property does not know the unit.
        forgetTrees();
    }
    return change;
}

/// Sets a property to what a cell says. A measure that was absent gets the unit of the cell.
/// \throws EditError; the property may have changed then
CellChange CellEdit::give(CoreProperty& property, const Cell& cell)
{
    CellChange change;
    auto* const bound = dynamic_cast<BoundProperty*>(&property);
    const bool isNew = bound != nullptr && !bound->present();
    apps::setFromText(property, cell.text);
    std::optional<citygml::Member> unit = isNew ? citygml::unitOf(bound->member()) : std::nullopt;
    if (unit && cell.unit.isEmpty()) {
        throw EditError(tr("a measure needs a unit: call the column \"%1 [UNIT]\"").arg(cell.column.name));
    }
    if (!cell.unit.isEmpty() && property.unit() == nullptr) {
        if (!unit || !unit->setText(cell.unit.toStdString())) {
            throw EditError(
                tr("there is no value with the unit \"%1\" that could be changed").arg(cell.unit));
        }
        change.kind = CellChange::Measure;
        change.unit = cell.unit;
    }
    return change;
}

/// Whether what has been taken out of a member can be put back, as an edit that is undone does it: entries of
/// lists have no property then, and of the lists that are empty those of texts alone are found.
bool CellEdit::isFoundWhenAbsent(const citygml::Member& member)
{
    if (!member.isList()) {
        return !member.list().isList();
    }
    const std::vector<citygml::Member> lists = citygml::Member::textLists(feature);
    return std::any_of(lists.begin(), lists.end(), [&member](const citygml::Member& list) {
        return &list.object() == &member.object() && list.name() == member.name();
    });
}

CellEdit::Outcome CellEdit::remove(CoreProperty& property, const Cell& cell)
{
    auto* const bound = dynamic_cast<BoundProperty*>(&property);
    const bool isAttribute = isGenericAttribute(property);
    if (bound == nullptr || (!isAttribute && bound->member().isRequired())) {
        throw EditError(tr("it cannot be removed"));
    }
    if (isTrial && !isAttribute && !isFoundWhenAbsent(bound->member())) {
        throw EditError(tr("it cannot be removed"));
    }
    CellChange change;
    change.kind = isAttribute ? CellChange::GoneAttribute : CellChange::Absence;
    change.before = cellText(property.value());
    if (isTrial) {
        change.property = placeOf(property);
        return change;
    }
    if (!isAttribute) {
        bound->clear();
    } else if (!removeGenericAttribute(feature, cell.column.path)) {
        throw EditError(tr("it cannot be removed"));
    }
    forgetTrees();
    return change;
}

CellEdit::Outcome CellEdit::create(const Cell& cell)
{
    if (!options.create || cell.ordinal > 0) {
        throw EditError(tr("the feature has no such attribute"));
    }
    CellChange change;
    change.kind = CellChange::NewAttribute;
    change.type = cell.type;
    change.unit = cell.unit;
    change.value = cell.text;
    addGenericAttribute(feature, cell.column.path, cell.type, cell.unit, cell.text);
    if (isTrial) {
        change.property = cell.column.path.steps;
        removeLastGenericAttribute(feature);
    } else {
        forgetTrees();
    }
    return change;
}

/// The steps to the property in the complete tree, where equal labels may be more than in that of what is
/// there.
QVector<ColumnPath::Step> CellEdit::placeOf(const CoreProperty& property)
{
    Steps steps;
    const bool isThere = findSteps(all(), property, steps) || findSteps(existing(), property, steps);
    return isThere ? steps : Steps();
}

const CoreProperty& CellEdit::existing()
{
    if (existingTree.get() == nullptr) {
        existingTree = GmlCorePropertyCreator::createProperty(&feature, true);
        Q_ASSERT(existingTree);
        if (hasOtherContent) {
            model.addPropertiesFromProviders(model.index(&feature), *existingTree);
        }
    }
    return *existingTree;
}

const CoreProperty& CellEdit::all()
{
    if (fullTree.get() == nullptr) {
        fullTree = GmlCorePropertyCreator::createProperty(&feature, false);
        Q_ASSERT(fullTree);
    }
    return *fullTree;
}

/// Attributes that come and go leave the trees with properties of what is no more.
void CellEdit::forgetTrees()
{
    existingTree = nullptr;
    fullTree = nullptr;
}

} // namespace tolvik::tables
