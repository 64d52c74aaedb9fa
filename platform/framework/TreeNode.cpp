#include "framework/TreeNode.h"

#include "fondo/ClassType.h"

namespace tolvik {

TreeNode::TreeNode(TreeNode* parent) : parentNode(parent) {}

TreeNode::TreeNode(const TreeNode& other) = default;

TreeNode& TreeNode::operator=(const TreeNode& other) = default;

TreeNode::~TreeNode() = default;

const Fondo::ClassType& TreeNode::classType()
{
    static const Fondo::ClassType record("tolvik::TreeNode", &Fondo::Referenced::classType());
    return record;
}

const Fondo::ClassType& TreeNode::getType() const
{
    return classType();
}

void TreeNode::renumberChildren()
{
    int row = 0;
    for (const auto& child : childNodes) {
        if (child) {
            child->setChildNumber(row);
        }
        ++row;
    }
}

} // namespace tolvik
