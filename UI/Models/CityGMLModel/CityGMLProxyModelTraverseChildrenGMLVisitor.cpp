#include "UI/Models/CityGMLModel/CityGMLProxyModelTraverseChildrenGMLVisitor.h"

namespace tolvik {

namespace {

constexpr int nearby = 12;

} // namespace

CityGMLProxyModelTraverseChildrenGMLVisitor::CityGMLProxyModelTraverseChildrenGMLVisitor(NodeMap& nodes)
    : CityGMLProxyModelTraverseChildrenVisitor(nodes), last(nodes.end())
{
}

CityGMLProxyModelTraverseChildrenGMLVisitor::CityGMLProxyModelTraverseChildrenGMLVisitor(
    const CityGMLProxyModelTraverseChildrenGMLVisitor& other) = default;

CityGMLProxyModelTraverseChildrenGMLVisitor::~CityGMLProxyModelTraverseChildrenGMLVisitor() = default;

void CityGMLProxyModelTraverseChildrenGMLVisitor::setTreeNode(TreeNodeGML* node)
{
    CityGMLProxyModelTraverseChildrenVisitor::setTreeNode(node);
    last = nodeMap.end();
}

CityGMLProxyModelTraverseChildrenGMLVisitor::NodeMap::iterator
CityGMLProxyModelTraverseChildrenGMLVisitor::find(gml::AbstractFeatureType* feature)
{
    // The features of a document lie in memory much in the order of a walk, so that the next is often among
    // the next entries.
    auto entry = last;
    for (int i = 0; i < nearby && entry != nodeMap.end() && entry->first != feature; ++i) {
        ++entry;
    }
    if (entry == nodeMap.end() || entry->first != feature) {
        entry = nodeMap.find(feature);
    }
    if (entry != nodeMap.end()) {
        last = entry;
    }
    return entry;
}

bool CityGMLProxyModelTraverseChildrenGMLVisitor::visit_gml_AbstractFeatureType(
    gml::AbstractFeatureType* feature)
{
    // Without an entry the feature has no row or is not shown.
    const auto entry = find(feature);
    if (entry != nodeMap.end()) {
        TreeNodeGML* const node = entry->second.front().get();
        if (node != treeNode) { // the walk meets the feature it starts from, too
            treeNode->children().emplace_back(node);
        }
    }
    return true;
}

} // namespace tolvik
