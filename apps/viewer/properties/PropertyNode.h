#pragma once

#include "apps/viewer/edits/PropertyPath.h"

#include <memory>
#include <QString>
#include <QVariant>
#include <typeinfo>
#include <vector>

namespace tolvik::viewer {

/// What a panel shows of one property of a feature, or of the same property of several: a copy that holds
/// nothing of the document.
struct PropertyNode
{
    PropertyStep step;
    QVariant value;       ///< invalid for a group, for an absent attribute, and where several features differ
    QVariant offered;     ///< what an editor starts from: the value, or the attribute's default
    QVariantList choices; ///< the literals of an enumeration
    QString unit;         ///< empty also where several features differ
    QString summary;      ///< for the eye, in place of a value that there is none of
    bool isBound = false; ///< whether an attribute of the document stands behind it
    bool isEditable = false; ///< whether that can be given a value
    bool isPresent = true;   ///< of an attribute, whether any of the features has it
    /// The class of a generic attribute, which the features can do without; null for any other property.
    const std::type_info* attributeType = nullptr;
    bool isDiffering = false;     ///< whether the features have different values
    bool isAttributeSet = false;  ///< whether it is the group of a set of generic attributes
    bool isUnitEditable = false;  ///< whether it is a measure, whose unit can be changed
    bool isUnitDiffering = false; ///< whether the features have different units

    PropertyNode* parent = nullptr;
    std::vector<std::unique_ptr<PropertyNode>> children;

    bool isGenericAttribute() const { return attributeType != nullptr; }
    PropertyPath path() const;
    /// The place among the nodes beside it.
    int row() const;
    PropertyNode* child(const PropertyStep& step) const;
    /// The node below this one that a path leads to; null where there is none.
    PropertyNode* find(const PropertyPath& path);
};

/// Copies the complete property tree of a feature, with the addresses composed.
std::unique_ptr<PropertyNode> readProperties(const CityGMLModel& model, gml::AbstractFeatureType& feature);
/// The same for mergeProperties(), without what editors start from.
std::unique_ptr<PropertyNode> readValues(const CityGMLModel& model, gml::AbstractFeatureType& feature);

/// Leaves of a tree what a second one has too, of the same type, and notes where the values differ.
void mergeProperties(PropertyNode& tree, const PropertyNode& other);

} // namespace tolvik::viewer
