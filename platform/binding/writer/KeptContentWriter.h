#pragma once

#include "platform/binding/kept/KeptContent.h"

#include <string>
#include <string_view>
#include <vector>

namespace citygml {
namespace binding {

class NamespaceDeclarations;
class XmlOutput;

/// Writes what the reader has kept as it stood, with the namespaces that it needs.
class KeptContentWriter
{
public:
    /// \param rootScope of the root, where that is written with the namespaces that it had; else null.
    /// Elements that were kept in it mean the same in the new document.
    KeptContentWriter(XmlOutput& out, NamespaceDeclarations& namespaces, const KeptContent::Scope* rootScope)
        : out(out), namespaces(namespaces), rootScope(rootScope)
    {
    }

    /// Puts a mark in front of each node but a text from now on, see XmlOutline.
    void markNodes() { marksNodes = true; }
    void writeNode(const KeptContent::Node& node);
    /// Writes the text of an element with the nodes that stand in it.
    ///
    /// \param nodes in the order of the text, which may be another by now
    /// \param splitsWords whether positions count bytes, so that a node may stand in a word; else they count
    /// words
    void writeText(const std::string& element, std::string_view text,
                   const std::vector<KeptContent::Node>& nodes, bool splitsWords);
    void writeAttribute(const KeptContent::Attribute& attribute);

private:
    void declarePrefixes(const KeptContent::Node& node, std::string_view startTag);

    XmlOutput& out;
    NamespaceDeclarations& namespaces;
    const KeptContent::Scope* rootScope;
    bool marksNodes = false;
};

} // namespace binding
} // namespace citygml
