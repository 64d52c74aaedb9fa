#pragma once

#include "framework/TreeNode.h"
#include "UI/Models/CityGMLModel/CityGMLModelExport.h"

namespace gml {
class AbstractFeatureType;
}

namespace tolvik {

/// A position in the feature tree. It has the type record of TreeNode: a cast tells the two apart, isOfType()
/// does not.
class CITYGMLMODEL_EXPORT TreeNodeGML : public TreeNode
{
public:
    /// A node named after the feature: by the first of its names, else by its type. The name stays when that
    /// of the feature changes.
    /// \param feature what the node stands for, not owned; null leaves the name empty
    /// \param parent  the node above, not owned; null for none
    TreeNodeGML(gml::AbstractFeatureType* feature, TreeNode* parent);

    /// A node for the same feature, with the same name, parent and children.
    TreeNodeGML(const TreeNodeGML& other);
    /// Takes over the feature, the name, the parent and the children.
    TreeNodeGML& operator=(const TreeNodeGML& other);
    ~TreeNodeGML() override;

    /// Owned by the document, with which it goes.
    gml::AbstractFeatureType* feature() const { return schemaFeature; }

    /// The name of a new node: the first of the feature's names, else its type.
    static Fondo::String nameOf(const gml::AbstractFeatureType& feature);

private:
    gml::AbstractFeatureType* schemaFeature;
};

} // namespace tolvik
