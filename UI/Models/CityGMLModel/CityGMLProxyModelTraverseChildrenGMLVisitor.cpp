#include "UI/Models/CityGMLModel/CityGMLProxyModelTraverseChildrenGMLVisitor.h"

namespace tolvik {

CityGMLProxyModelTraverseChildrenGMLVisitor::CityGMLProxyModelTraverseChildrenGMLVisitor(NodeMap& nodes)
    : CityGMLProxyModelTraverseChildrenVisitor(nodes)
{
}

CityGMLProxyModelTraverseChildrenGMLVisitor::CityGMLProxyModelTraverseChildrenGMLVisitor(
    const CityGMLProxyModelTraverseChildrenGMLVisitor& other) = default;

CityGMLProxyModelTraverseChildrenGMLVisitor::~CityGMLProxyModelTraverseChildrenGMLVisitor() = default;

bool CityGMLProxyModelTraverseChildrenGMLVisitor::visit_gml_AbstractFeatureType(
    gml::AbstractFeatureType* feature)
{
    // Without an entry the feature has no row or is not shown.
    const auto entry = nodeMap.find(feature);
    if (entry != nodeMap.end()) {
        TreeNodeGML* const node = entry->second.front().get();
        if (node != treeNode) { // the walk meets the feature it starts from, too
            treeNode->children().emplace_back(node);
        }
    }
    return true;
}

} // namespace tolvik
