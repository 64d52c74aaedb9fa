#include "apps/viewer/edits/PropertyEdit.h"

#include "apps/common/EditedValues.h"
#include "apps/common/MemberText.h"
#include "apps/viewer/document/Document.h"
#include "apps/viewer/edits/GenericAttributes.h"
#include "apps/viewer/features/FeatureTexts.h"
#include "gen/AbstractGenericAttributeType.hxx"
#include "gml/AbstractFeatureType.hxx"
#include "UI/Models/CityGMLModel/properties/BoundProperty.h"

#include <QDataStream>
#include <QJsonArray>
#include <QJsonObject>

namespace tolvik::viewer {

namespace {

const QString propertyEditKind = QStringLiteral("property");

/// A value of any type as text, and back.
QString packed(const QVariant& value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_5_15);
    stream << value;
    return QString::fromLatin1(bytes.toBase64());
}

QVariant unpacked(const QString& text)
{
    QDataStream stream(QByteArray::fromBase64(text.toLatin1()));
    stream.setVersion(QDataStream::Qt_5_15);
    QVariant value;
    stream >> value;
    return value;
}

/// What a feature is called in the history.
QString titleOf(const gml::AbstractFeatureType& feature)
{
    for (const QString& title : {nameOf(feature), idOf(feature)}) {
        if (!title.isEmpty()) {
            return title;
        }
    }
    return typeOf(feature);
}

/// Lists of numbers stand in one text of the document, whose entries blanks divide.
bool isOneText(const EditedMember& member)
{
    return !(member.member() && member.member()->isList());
}

} // namespace

std::unique_ptr<PropertyEdit> PropertyEdit::prepare(Document& document, const Features& features,
                                                    Action action, const MemberPlace& place,
                                                    const QVariant& value)
{
    return std::unique_ptr<PropertyEdit>(new PropertyEdit(document, features, action, place, value));
}

std::unique_ptr<PropertyEdit> PropertyEdit::make(Document& document, const Features& features, Action action,
                                                 const MemberPlace& place, const QVariant& value,
                                                 QString& refusal)
{
    std::unique_ptr<PropertyEdit> edit = prepare(document, features, action, place, value);
    refusal = edit->performAll();
    return refusal.isEmpty() && edit->changes() > 0 ? std::move(edit) : nullptr;
}

void PropertyEdit::addMaker()
{
    RecordedEdit::addMaker(propertyEditKind, [](Document& document, const QJsonObject& record) {
        const Features features = FeatureLocator(document.model()).findAll(record["features"].toArray());
        return std::unique_ptr<RecordedEdit>(
            features.empty() ? nullptr
                             : prepare(document, features, static_cast<Action>(record["action"].toInt()),
                                       MemberPlace::fromJson(record["place"].toObject()),
                                       unpacked(record["value"].toString())));
    });
}

PropertyEdit::PropertyEdit(Document& document, Features features, Action action, const MemberPlace& place,
                           const QVariant& value)
    : document(document), action(action), place(place), value(value), features(std::move(features))
{
    nameEdit();
}

QString PropertyEdit::kind() const
{
    return propertyEditKind;
}

QJsonObject PropertyEdit::record() const
{
    QJsonArray addresses;
    for (const Change& change : changed) {
        addresses += change.feature.toJson();
    }
    return {{"features", addresses}, {"action", action}, {"place", place.toJson()}, {"value", packed(value)}};
}

QString PropertyEdit::perform(int number)
{
    gml::AbstractFeatureType& feature = *features[static_cast<std::size_t>(number)];
    std::optional<EditedMember> member = EditedMember::find(document.model(), feature, editedPlace());
    if (!member || isAlreadyDone(*member)) {
        return QString();
    }
    if (isOfEntry()) {
        return performOnEntry(feature, *member->member());
    }
    const MemberPlace lasting = member->lastingPlace(feature, editedPlace());
    const bool isLost = member->isLostWhenEmpty(feature);
    const CapturedState before = member->capture();
    QString refusal = performOn(feature, *member);
    if (refusal.isEmpty() && isLost && member->member()->size() == 0) {
        refusal = tr("%1 cannot be absent.").arg(place.path.last().name);
    }
    if (!refusal.isEmpty()) {
        member->restore(before);
        return refusal;
    }
    changed.push_back({locator().addressOf(feature), lasting, before, std::nullopt, false});
    announce(feature);
    return QString();
}

/// Adds an attribute, or takes one out, as an entry of the list of them all.
QString PropertyEdit::performOnEntry(gml::AbstractFeatureType& feature, citygml::Member& attributes)
{
    Change change{locator().addressOf(feature), editedPlace(), CapturedState(), attributes.size(), false};
    QString refusal = action == AddAttribute ? addAttributeTo(attributes) : takeAttributeOf(feature, change);
    if (refusal.isEmpty()) {
        changed.push_back(change);
        announce(feature);
    }
    return refusal;
}

/// Takes the attribute of the property out of the list that holds it.
QString PropertyEdit::takeAttributeOf(gml::AbstractFeatureType& feature, Change& change) const
{
    gen::AbstractGenericAttributeType* const attribute = attributeOf(feature);
    if (attribute == nullptr) {
        return tr("%1 is not a generic attribute.").arg(toString(place.path));
    }
    const citygml::Member entry = citygml::Member::holding(*attribute);
    const std::optional<PropertyStep> set = setWith(feature, entry);
    change.place.path = set ? PropertyPath{place.path.first(), *set} : PropertyPath();
    change.entry = entry.position();
    change.other.member = entry.list().take(*change.entry);
    change.isOut = true;
    return QString();
}

void PropertyEdit::turn(int change)
{
    Change& turned = changed[static_cast<std::size_t>(change)];
    gml::AbstractFeatureType* const feature = locator().find(turned.feature);
    std::optional<EditedMember> member =
        feature != nullptr ? EditedMember::find(document.model(), *feature, turned.place) : std::nullopt;
    if (!member) {
        return;
    }
    if (!turned.entry) {
        const CapturedState now = member->capture();
        member->restore(turned.other);
        turned.other = now;
    } else if (turned.isOut) {
        turned.isOut = !member->member()->put(*turned.entry, turned.other.member);
    } else {
        turned.other.member = member->member()->take(*turned.entry);
        turned.isOut = true;
    }
    announce(*feature);
}

void PropertyEdit::endWalk()
{
    features = Features();
    located.reset();
}

FeatureLocator& PropertyEdit::locator()
{
    if (located == nullptr) {
        located = std::make_unique<FeatureLocator>(document.model());
    }
    return *located;
}

/// Tells everybody that the feature's row has changed.
void PropertyEdit::announce(gml::AbstractFeatureType& feature) const
{
    document.model().propertyChanged(document.model().index(&feature), true);
}

/// The member that the edit changes. An attribute that is renamed or removed is an entry of the list of them
/// all.
MemberPlace PropertyEdit::editedPlace() const
{
    if (action != RenameAttribute && action != RemoveAttribute) {
        return place;
    }
    const bool isInSet = place.path.size() > 2;
    return {MemberPlace::GenericAttributes, isInSet ? place.path.mid(0, 2) : PropertyPath()};
}

bool PropertyEdit::isAlreadyDone(const EditedMember& member) const
{
    switch (action) {
    case SetValue:
        return member.isPresent() && hasValue(member);
    case MakeAbsent:
        return !member.isPresent();
    case SetUnit:
        return member.unit() && member.unit()->text() == value.toString().toStdString();
    default:
        return false;
    }
}

bool PropertyEdit::hasValue(const EditedMember& member) const
{
    // A link is entered as a text.
    const std::optional<std::string> text = member.member() ? member.member()->text() : std::nullopt;
    return apps::editedValueOf(*member.property()) == value ||
           (value.userType() == QMetaType::QString && text == value.toString().toStdString());
}

/// Refuses what no XML document can hold.
QString PropertyEdit::refusalOfCharacters() const
{
    const auto character = apps::characterOutsideXml(value);
    return character ? tr("XML has no character U+%1.").arg(QString::number(*character, 16).toUpper(), 4, '0')
                     : QString();
}

/// \return why it is refused, or nothing. The member may have changed then.
QString PropertyEdit::performOn(gml::AbstractFeatureType& feature, EditedMember& member) const
{
    QString refusal = refusalOfCharacters();
    if (!refusal.isEmpty()) {
        return refusal;
    }
    switch (action) {
    case SetValue:
        return setValue(member);
    case MakeAbsent:
        return makeAbsent(member);
    case AddEntry:
        return member.member()->add(value.toString().toStdString())
                   ? QString()
                   : tr("\"%1\" cannot be an entry of this list.").arg(value.toString());
    case RenameAttribute:
        return renameAttributeOf(feature);
    case AddAttribute:
    case RemoveAttribute:
        break;
    case SetMeasure:
        return setMeasure(member);
    case SetUnit:
        return setUnit(member);
    }
    return QString();
}

QString PropertyEdit::setValue(EditedMember& member) const
{
    CoreProperty& property = *member.property();
    const QVariantList choices = property.potentialValues();
    const bool isList = value.userType() == QMetaType::QVariantList;
    const bool isAllowed = (choices.isEmpty() || choices.contains(value)) &&
                           (!isList || !isOneText(member) || apps::areWords(value.toList()));
    if (isAllowed && member.member() &&
        apps::setKept(*member.member(), apps::editedValueOf(property), value)) {
        return QString();
    }
    if (isAllowed) {
        property.setValue(value);
    }
    if (!isAllowed || !apps::isSame(property.value(), value)) {
        const QString text = isList ? value.toStringList().join(' ') : value.toString();
        return tr("%1 cannot be \"%2\".").arg(property.name(), text);
    }
    return QString();
}

QString PropertyEdit::setMeasure(EditedMember& member) const
{
    const QVariantList parts = value.toList();
    CoreProperty& property = *member.property();
    property.setValue(parts.value(0));
    std::optional<citygml::Member> unit = member.unit();
    const bool isSet = unit && unit->setText(parts.value(1).toString().toStdString()) &&
                       apps::isSame(property.value(), parts.value(0));
    return isSet ? QString()
                 : tr("%1 cannot be \"%2\".").arg(property.name(), value.toStringList().join(' '));
}

/// A unit is a name or an address, and has no blanks in it.
QString PropertyEdit::setUnit(const EditedMember& member) const
{
    const QString text = value.toString();
    const bool isName =
        !text.isEmpty() && std::none_of(text.begin(), text.end(), [](QChar each) { return each.isSpace(); });
    std::optional<citygml::Member> unit = member.unit();
    return unit && isName && unit->setText(text.toStdString())
               ? QString()
               : tr("The unit of %1 cannot be \"%2\".").arg(place.path.last().name, text);
}

QString PropertyEdit::makeAbsent(EditedMember& member) const
{
    const QString name = place.path.isEmpty() ? QString() : place.path.last().name;
    if (!member.member() || member.member()->isRequired()) {
        return tr("%1 cannot be absent.").arg(name);
    }
    member.member()->clear();
    return QString();
}

QString PropertyEdit::addAttributeTo(citygml::Member& attributes) const
{
    QString refusal = refusalOfCharacters();
    if (!refusal.isEmpty()) {
        return refusal;
    }
    const QVariantList parts = value.toList();
    const bool isAdded = addAttribute(attributes, static_cast<AttributeType>(parts.value(0).toInt()),
                                      parts.value(1).toString(), parts.value(2), parts.value(3).toString());
    return isAdded ? QString() : tr("The feature can have no such attribute.");
}

/// The generic attribute of the property, or the set of its group; null where it is of none.
gen::AbstractGenericAttributeType* PropertyEdit::attributeOf(gml::AbstractFeatureType& feature) const
{
    const std::optional<EditedMember> shown = EditedMember::find(document.model(), feature, place);
    const auto* const bound = shown ? dynamic_cast<const BoundProperty*>(shown->property()) : nullptr;
    if (bound != nullptr) {
        return attributeAround(bound->member());
    }
    // The group of a set has no member of its own.
    const PropertyStep& last = place.path.last();
    const std::optional<citygml::Member> set =
        place.path.size() == 2 ? attributesOf(feature, last.name, last.occurrence) : std::nullopt;
    return set ? attributeAround(*set) : nullptr;
}

QString PropertyEdit::renameAttributeOf(gml::AbstractFeatureType& feature) const
{
    gen::AbstractGenericAttributeType* const attribute = attributeOf(feature);
    if (attribute == nullptr) {
        return tr("%1 is not a generic attribute.").arg(toString(place.path));
    }
    renameAttribute(*attribute, value.toString());
    return QString();
}

/// Says in the history what is undone.
void PropertyEdit::nameEdit()
{
    const QString what = place.path.isEmpty() ? QString() : place.path.last().name;
    const QString where = features.size() == 1
                              ? titleOf(*features.front())
                              : tr("%n feature(s)", nullptr, static_cast<int>(features.size()));
    switch (action) {
    case SetValue:
    case SetMeasure:
        setText(tr("change %1 of %2").arg(what, where));
        break;
    case SetUnit:
        setText(tr("change the unit of %1 of %2").arg(what, where));
        break;
    case MakeAbsent:
        setText(tr("make %1 of %2 absent").arg(what, where));
        break;
    case AddEntry:
        setText(tr("add to %1 of %2").arg(what, where));
        break;
    case AddAttribute:
        setText(tr("add attribute %1 to %2").arg(value.toList().value(1).toString(), where));
        break;
    case RenameAttribute:
        setText(tr("rename attribute %1 of %2").arg(what, where));
        break;
    case RemoveAttribute:
        setText(tr("remove attribute %1 of %2").arg(what, where));
        break;
    }
}

} // namespace tolvik::viewer
