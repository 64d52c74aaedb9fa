#pragma once

#include "UI/Models/CityGMLModel/CityGMLProxyModelTraverseChildrenVisitor.h"

namespace tolvik {

/// Makes the nodes of the features directly below a feature the children of its node, in the order of the
/// walk. Of a feature with several nodes it takes the oldest.
class CITYGMLMODEL_EXPORT CityGMLProxyModelTraverseChildrenGMLVisitor
    : public CityGMLProxyModelTraverseChildrenVisitor
{
public:
    /// \param nodes that of the proxy model; it must outlive the visitor's walks
    explicit CityGMLProxyModelTraverseChildrenGMLVisitor(NodeMap& nodes);
    /// Shares the node map and the traversal visitor.
    CityGMLProxyModelTraverseChildrenGMLVisitor(const CityGMLProxyModelTraverseChildrenGMLVisitor& other);
    ~CityGMLProxyModelTraverseChildrenGMLVisitor() override;

    bool visit_gml_AbstractFeatureType(gml::AbstractFeatureType* feature) override;
};

} // namespace tolvik
