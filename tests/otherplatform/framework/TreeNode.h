#pragma once

#include "fondo/Referenced.h"
#include "fondo/RefPtr.h"
#include "fondo/String.h"

#include <vector>

namespace tolvik {

class TreeNode : public Fondo::Referenced
{
public:
    explicit TreeNode(TreeNode* parent) : above(parent) {}

    std::vector<Fondo::RefPtr<TreeNode>>& children() { return below; }
    const std::vector<Fondo::RefPtr<TreeNode>>& children() const { return below; }
    TreeNode* parent() const { return above; }
    void setParent(TreeNode* parent) { above = parent; }
    int childNumber() const { return number; }
    void setChildNumber(int row) { number = row; }
    void renumberChildren()
    {
        int row = 0;
        for (const auto& child : below) {
            child->setChildNumber(row++);
        }
    }
    const Fondo::String& getName() const { return name; }
    void setName(const Fondo::String& text) { name = text; }

private:
    int number = -1;
    TreeNode* above;
    std::vector<Fondo::RefPtr<TreeNode>> below;

protected:
    Fondo::String name;
};

} // namespace tolvik
