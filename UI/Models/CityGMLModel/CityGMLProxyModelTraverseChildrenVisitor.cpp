#include "UI/Models/CityGMLModel/CityGMLProxyModelTraverseChildrenVisitor.h"

#include "UI/Models/CityGMLModel/CityGMLProxyModelTraverseAllVisitor.h"

namespace tolvik {

CityGMLProxyModelTraverseChildrenVisitor::CityGMLProxyModelTraverseChildrenVisitor(NodeMap& nodes)
    : treeNode(nullptr), nodeMap(nodes), traversalVisitor(new CityGMLProxyModelTraverseAllVisitor)
{
}

CityGMLProxyModelTraverseChildrenVisitor::CityGMLProxyModelTraverseChildrenVisitor(
    const CityGMLProxyModelTraverseChildrenVisitor& other) = default;

CityGMLProxyModelTraverseChildrenVisitor::~CityGMLProxyModelTraverseChildrenVisitor() = default;

void CityGMLProxyModelTraverseChildrenVisitor::setTraversalVisitor(CityGMLFeaturesVisitor* visitor)
{
    traversalVisitor = visitor;
}

void CityGMLProxyModelTraverseChildrenVisitor::setTreeNode(TreeNodeGML* node)
{
    treeNode = node;
    node->children().clear();
    walkChildren = true;
}

} // namespace tolvik
