#pragma once

#include "citygml/CityGMLFeaturesVisitor.h"
#include "fondo/RefPtr.h"
#include "UI/Models/CityGMLModel/CityGMLModelExport.h"
#include "UI/Models/CityGMLModel/TreeNodeGML.h"

#include <list>
#include <map>

namespace tolvik {

/// Fills the children of one node of CityGMLProxyModel after the other: `accept` is called on the node's
/// feature. This one adds none, so that the tree stays flat. A subclass adds to `treeNode` what its walk
/// meets:
/// \code
/// visitor.setTreeNode(node);
/// visitor.walkStart = true;
/// node->feature()->accept(&visitor);
/// \endcode
class CITYGMLMODEL_EXPORT CityGMLProxyModelTraverseChildrenVisitor : public CityGMLFeaturesVisitor
{
public:
    /// The nodes of each feature, the oldest first.
    using NodeMap = std::map<gml::AbstractFeatureType*, std::list<Fondo::RefPtr<TreeNodeGML>>>;

    /// \param nodes that of the proxy model; it must outlive the visitor's walks
    explicit CityGMLProxyModelTraverseChildrenVisitor(NodeMap& nodes);

    /// Shares the node map and the traversal visitor.
    CityGMLProxyModelTraverseChildrenVisitor(const CityGMLProxyModelTraverseChildrenVisitor& other);
    CityGMLProxyModelTraverseChildrenVisitor&
    operator=(const CityGMLProxyModelTraverseChildrenVisitor&) = delete;
    ~CityGMLProxyModelTraverseChildrenVisitor() override;

    /// Takes the visitor that says which features have nodes, for subclasses to ask.
    virtual void setTraversalVisitor(CityGMLFeaturesVisitor* visitor);

    /// Takes the node to fill, and empties its children.
    /// \param node not owned, not null
    virtual void setTreeNode(TreeNodeGML* node);

protected:
    /// The node to fill.
    TreeNodeGML* treeNode;
    /// Those of the proxy model.
    NodeMap& nodeMap;
    /// Says which features have nodes; null before one is set.
    Fondo::RefPtr<CityGMLFeaturesVisitor> traversalVisitor;
};

} // namespace tolvik
