#include "apps/viewer/properties/PropertyNode.h"

#include "apps/common/MemberText.h"
#include "apps/viewer/edits/GenericAttributes.h"
#include "apps/viewer/properties/AddressText.h"
#include "citygml/MemberUnit.h"
#include "framework/AbstractUnit.h"
#include "gen/AbstractGenericAttributeType.hxx"
#include "UI/Models/CityGMLModel/properties/BoundProperty.h"

#include <algorithm>
#include <QHash>
#include <typeinfo>

namespace tolvik::viewer {

namespace {

/// A plain property holds a copy of something; one of another class reads the document.
bool isBoundProperty(const CoreProperty& property)
{
    return typeid(property) != typeid(CoreProperty);
}

void readProperty(CoreProperty& property, PropertyNode& node)
{
    node.isBound = isBoundProperty(property);
    node.isEditable = node.isBound && property.editable();
    node.value = apps::editedValueOf(property);
    node.choices = property.potentialValues();
    node.isPresent = !node.isBound || node.value.isValid();
    if (const auto* const bound = dynamic_cast<const BoundProperty*>(&property)) {
        const citygml::Member member = bound->member();
        node.isPresent = member.present();
        const gen::AbstractGenericAttributeType* const attribute = attributeAround(member);
        node.attributeType = attribute != nullptr ? &typeid(*attribute) : nullptr;
        const bool isMeasure = property.unit() != nullptr || node.value.userType() == QMetaType::Double;
        node.isUnitEditable = node.isEditable && isMeasure && citygml::unitOf(member).has_value();
    }
    if (property.unit() != nullptr) {
        node.unit = property.unit()->name();
    }
}

using Reader = void (*)(CoreProperty&, PropertyNode&);

void readOffer(CoreProperty& property, PropertyNode& node)
{
    node.offered = apps::offeredValueOf(property);
}

/// \param readers what is read of each property
void readChildren(const CoreProperty& property, PropertyNode& node, const std::vector<Reader>& readers)
{
    QHash<QString, int> seen;
    for (const auto& child : property.properties()) {
        auto below = std::make_unique<PropertyNode>();
        below->step = {child->name(), ++seen[child->name()]};
        below->parent = &node;
        for (const Reader reader : readers) {
            reader(*child, *below);
        }
        readChildren(*child, *below, readers);
        node.children.push_back(std::move(below));
    }
}

/// Says in the groups of addresses what these are. An address itself has no such group, and gets one.
void addAddresses(gml::AbstractFeatureType& feature, PropertyNode& root)
{
    const QString label = QStringLiteral("Address");
    PropertyNode* const fields = root.child({QStringLiteral("Fields"), 1});
    if (fields == nullptr) {
        return;
    }
    if (isAddress(feature)) {
        auto summary = std::make_unique<PropertyNode>();
        summary->step = {label, 1};
        summary->summary = addressesOf(feature).join('\n');
        summary->parent = fields;
        fields->children.insert(fields->children.begin(), std::move(summary));
    } else if (fields->child({label, 1}) != nullptr) {
        const QStringList addresses = addressesOf(feature);
        int occurrence = 0;
        for (const QString& address : addresses) {
            PropertyNode* const group = fields->child({label, ++occurrence});
            if (group != nullptr) {
                group->summary = address;
            }
        }
    }
}

/// Marks the groups of the feature's sets of attributes, also of those that are empty.
void noteAttributeSets(gml::AbstractFeatureType& feature, PropertyNode& root)
{
    const PropertyNode* const fields = root.child({QStringLiteral("Fields"), 1});
    if (fields == nullptr) {
        return;
    }
    for (const auto& each : fields->children) {
        const bool isGroup = !each->isBound && !each->value.isValid() && each->summary.isEmpty() &&
                             std::all_of(each->children.begin(), each->children.end(),
                                         [](const auto& child) { return child->isGenericAttribute(); });
        each->isAttributeSet =
            isGroup && attributesOf(feature, each->step.name, each->step.occurrence).has_value();
    }
}

std::unique_ptr<PropertyNode> readTree(const CityGMLModel& model, gml::AbstractFeatureType& feature,
                                       const std::vector<Reader>& readers)
{
    auto root = std::make_unique<PropertyNode>();
    readChildren(*propertyTree(model, feature), *root, readers);
    addAddresses(feature, *root);
    noteAttributeSets(feature, *root);
    return root;
}

bool isSameValue(const QVariant& a, const QVariant& b)
{
    return a.userType() == b.userType() && a == b;
}

/// Whether an edit of one makes sense for the other: several generic attributes may have one name.
bool isSameKind(const PropertyNode& a, const PropertyNode& b)
{
    return a.attributeType == b.attributeType && a.isAttributeSet == b.isAttributeSet &&
           a.isBound == b.isBound;
}

void mergeNode(PropertyNode& node, const PropertyNode& other)
{
    node.isDiffering = node.isDiffering || other.isDiffering || !isSameValue(node.value, other.value) ||
                       node.summary != other.summary;
    if (node.isDiffering) {
        node.value = QVariant();
        node.summary.clear();
    }
    node.isUnitDiffering = node.isUnitDiffering || other.isUnitDiffering || node.unit != other.unit;
    if (node.isUnitDiffering) {
        node.unit.clear();
    }
    node.isUnitEditable = node.isUnitEditable && other.isUnitEditable;
    node.isEditable = node.isEditable && other.isEditable;
    node.isPresent = node.isPresent || other.isPresent;
}

} // namespace

PropertyPath PropertyNode::path() const
{
    PropertyPath path;
    for (const PropertyNode* node = this; node->parent != nullptr; node = node->parent) {
        path.prepend(node->step);
    }
    return path;
}

int PropertyNode::row() const
{
    if (parent == nullptr) {
        return 0;
    }
    const auto found = std::find_if(parent->children.begin(), parent->children.end(),
                                    [this](const auto& each) { return each.get() == this; });
    return static_cast<int>(found - parent->children.begin());
}

PropertyNode* PropertyNode::child(const PropertyStep& step) const
{
    for (const auto& each : children) {
        if (each->step == step) {
            return each.get();
        }
    }
    return nullptr;
}

PropertyNode* PropertyNode::find(const PropertyPath& path)
{
    PropertyNode* node = this;
    for (const PropertyStep& step : path) {
        node = node->child(step);
        if (node == nullptr) {
            return nullptr;
        }
    }
    return node;
}

std::unique_ptr<PropertyNode> readProperties(const CityGMLModel& model, gml::AbstractFeatureType& feature)
{
    return readTree(model, feature, {&readProperty, &readOffer});
}

std::unique_ptr<PropertyNode> readValues(const CityGMLModel& model, gml::AbstractFeatureType& feature)
{
    return readTree(model, feature, {&readProperty});
}

void mergeProperties(PropertyNode& tree, const PropertyNode& other)
{
    auto& children = tree.children;
    const auto isAlone = [&other](const auto& each) {
        const PropertyNode* const same = other.child(each->step);
        return same == nullptr || !isSameKind(*each, *same);
    };
    children.erase(std::remove_if(children.begin(), children.end(), isAlone), children.end());
    for (const auto& each : children) {
        const PropertyNode& same = *other.child(each->step);
        mergeNode(*each, same);
        mergeProperties(*each, same);
    }
}

} // namespace tolvik::viewer
