#include "apps/tables/CellEdit.h"

#include "apps/common/EditedValues.h"
#include "apps/common/PropertyText.h"
#include "apps/tables/ColumnTree.h"
#include "apps/tables/FeaturePlace.h"
#include "apps/tables/GenericAttributes.h"
#include "framework/AbstractUnit.h"
#include "gml/AbstractFeatureType.hxx"
#include "gml/CodeType.hxx"
#include "UI/Models/CityGMLModel/CityGMLModel.h"
#include "UI/Models/CityGMLModel/properties/BoundProperty.h"
#include "UI/Models/CityGMLModel/properties/GmlCorePropertyCreator.h"

#include <QHash>
#include <QJsonDocument>

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

/// The property that a path leads to; null where there is none.
CoreProperty* propertyAt(const CoreProperty& root, const ColumnPath& path)
{
    const CoreProperty* at = path.isGeneric ? root.getProperty(QStringLiteral("Fields"), false) : &root;
    for (int i = 0; at != nullptr && i + 1 < path.steps.size(); ++i) {
        at = childAt(*at, path.steps[i], false);
    }
    if (at == nullptr) {
        return nullptr;
    }
    CoreProperty* const found = childAt(*at, path.steps.last(), path.isGeneric);
    // `set` takes a generic attribute among the fields.
    return found != nullptr || path.isGeneric ? found : childAt(*at, path.steps.last(), true);
}

/// Whether two properties, of one tree or of two, are of the same member of the document.
bool isSame(const CoreProperty& property, const CoreProperty& other)
{
    if (&property == &other) {
        return true;
    }
    const auto* const bound = dynamic_cast<const BoundProperty*>(&property);
    const auto* const otherBound = dynamic_cast<const BoundProperty*>(&other);
    if (bound == nullptr || otherBound == nullptr) {
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
void verifyUnit(const CoreProperty& property, const QString& unit)
{
    if (!unit.isEmpty() && unitOf(property) != unit) {
        throw EditError(
            property.unit() != nullptr
                ? CellEdit::tr("the unit is \"%1\", and not \"%2\"").arg(unitOf(property), unit)
                : CellEdit::tr("there is no value with the unit \"%1\" that could be changed").arg(unit));
    }
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
    CoreProperty* const property = propertyAt(existing(), cell.column.path);
    if (!options.absentWord.isEmpty() && cell.text == options.absentWord) {
        return property != nullptr ? remove(*property, cell) : Outcome();
    }
    if (property != nullptr) {
        return change(*property, cell);
    }
    CoreProperty* const possible = propertyAt(all(), cell.column.path);
    return possible != nullptr ? change(*possible, cell) : create(cell);
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
    verifyUnit(property, cell.unit);
    if (isShown(property.value(), cell.text)) {
        return {};
    }
    Former former(property);
    CellChange change;
    change.before = cellText(former.shown());
    try {
        apps::setFromText(property, cell.text);
    } catch (const EditError&) {
        former.restore();
        throw;
    }
    if (isTrial) {
        const QVariant now = property.value();
        // A link is entered as a text.
        change.value = now.userType() == QMetaType::QUrl ? QVariant(cell.text) : now;
        former.restore();
        change.property = placeOf(property);
    }
    return change;
}

CellEdit::Outcome CellEdit::remove(CoreProperty& property, const Cell& cell)
{
    auto* const bound = dynamic_cast<BoundProperty*>(&property);
    const bool isAttribute = isGenericAttribute(property);
    if (bound == nullptr || (!isAttribute && bound->member().isRequired())) {
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
    if (!options.create) {
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
