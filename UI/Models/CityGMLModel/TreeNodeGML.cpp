#include "UI/Models/CityGMLModel/TreeNodeGML.h"

#include "gml/AbstractFeatureType.hxx"
#include "gml/CodeType.hxx"

namespace tolvik {

TreeNodeGML::TreeNodeGML(gml::AbstractFeatureType* feature, TreeNode* parent)
    : TreeNode(parent), schemaFeature(feature)
{
    if (feature != nullptr) {
        name = nameOf(*feature);
    }
}

Fondo::String TreeNodeGML::nameOf(const gml::AbstractFeatureType& feature)
{
    const auto& names = feature.name();
    return names.empty() ? Fondo::String(feature.typeLabel.str()) : Fondo::String::fromUTF8(names.front());
}

TreeNodeGML::TreeNodeGML(const TreeNodeGML& other) = default;

TreeNodeGML& TreeNodeGML::operator=(const TreeNodeGML& other) = default;

TreeNodeGML::~TreeNodeGML() = default;

} // namespace tolvik
