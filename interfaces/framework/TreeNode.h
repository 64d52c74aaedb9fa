#pragma once

#include "fondo/Referenced.h"
#include "fondo/RefPtr.h"
#include "fondo/String.h"
#include "PlatformExport.h"

#include <QTypeInfo>
#include <vector>

namespace tolvik {
class TreeNode;
} // namespace tolvik

Q_DECLARE_TYPEINFO(Fondo::RefPtr<tolvik::TreeNode>, Q_MOVABLE_TYPE);

namespace tolvik {

/// A position in the tree of a TreeNodeProxyModel. It owns its children through their reference counts;
/// whoever links nodes keeps parents and child numbers in step.
class TOLVIK_PLATFORM_EXPORT TreeNode : public Fondo::Referenced
{
public:
    /// A node without children and name, not yet numbered.
    explicit TreeNode(TreeNode* parent);

    /// Copies parent, number and name, and shares the children.
    /// @{
    TreeNode(const TreeNode& other);
    TreeNode& operator=(const TreeNode& other);
    /// @}

    /// Type record of the class.
    static const Fondo::ClassType& classType();
    const Fondo::ClassType& getType() const override;

    ~TreeNode() override;

    /// The children, for reading and changing. A changed vector needs the children's parents and numbers set
    /// by the caller.
    /// @{
    std::vector<Fondo::RefPtr<TreeNode>>& children() { return childNodes; }
    const std::vector<Fondo::RefPtr<TreeNode>>& children() const { return childNodes; }
    /// @}

    /// The node above, null for a root. Not owned.
    TreeNode* parent() const { return parentNode; }

    /// Sets the node above. Touches no node's children.
    void setParent(TreeNode* parent) { parentNode = parent; }

    /// The node's row under its parent, or among the roots; -1 while unset.
    int childNumber() const { return number; }

    /// Sets the node's row under its parent, or among the roots.
    void setChildNumber(int row) { number = row; }

    /// Gives each child its position in children() as child number. Null children keep their place.
    void renumberChildren();

    /// What the node is called on screen.
    const Fondo::String& getName() const { return name; }

    /// Sets what the node is called on screen.
    void setName(const Fondo::String& text) { name = text; }

private:
    int number = -1;
    TreeNode* parentNode;
    std::vector<Fondo::RefPtr<TreeNode>> childNodes;

protected:
    Fondo::String name; ///< what the node is called on screen
};

} // namespace tolvik
