#include "platform/binding/changes/OutlineComparison.h"

#include "platform/binding/values/WhiteSpace.h"
#include "platform/binding/xml/PrefixedName.h"

#include <algorithm>
#include <vector>

namespace citygml {
namespace binding {

namespace {

class Comparison
{
public:
    Comparison(const XmlOutline& a, const XmlOutline& b) : outlineA(a), outlineB(b) {}

    bool areSame(const OutlineElement& a, const OutlineElement& b) const
    {
        if (a.isClosed || b.isClosed) {
            return outlineA.bytesOf(a) == outlineB.bytesOf(b);
        }
        return a.local == b.local && *a.uri == *b.uri && haveSameAttributes(a, b) && haveSameTexts(a, b) &&
               haveSameNodes(a, b);
    }

private:
    using Nodes = std::vector<const OutlineNode*>;

    static std::string valueOf(const OutlineAttribute& attribute)
    {
        return attribute.valueUri != nullptr
                   ? *attribute.valueUri + ' ' + std::string(PrefixedName(trimmed(attribute.value)).local)
                   : attribute.value;
    }

    static bool haveSameAttributes(const OutlineElement& a, const OutlineElement& b)
    {
        const auto isIn = [](const OutlineAttribute& attribute, const OutlineElement& element) {
            const OutlineAttribute* const other =
                attribute.isDeclaration ? &attribute : element.attribute(*attribute.uri, attribute.local);
            return other != nullptr && valueOf(*other) == valueOf(attribute);
        };
        const auto areIn = [&](const OutlineElement& inner, const OutlineElement& outer) {
            return std::all_of(inner.attributes.begin(), inner.attributes.end(),
                               [&](const OutlineAttribute& attribute) { return isIn(attribute, outer); });
        };
        return areIn(a, b) && areIn(b, a);
    }

    static bool haveSameTexts(const OutlineElement& a, const OutlineElement& b)
    {
        const bool areLaidOut = !a.nodes.empty() && !b.nodes.empty() && a.isBlank() && b.isBlank();
        return areLaidOut || a.texts == b.texts;
    }

    static Nodes nodesOf(const OutlineElement& element, bool areKept)
    {
        Nodes nodes;
        for (const OutlineNode& node : element.nodes) {
            if (node.isKept == areKept) {
                nodes.push_back(&node);
            }
        }
        return nodes;
    }

    bool haveSameNodes(const OutlineElement& a, const OutlineElement& b) const
    {
        Nodes keptA = nodesOf(a, true), keptB = nodesOf(b, true);
        std::stable_sort(keptA.begin(), keptA.end(), [this](const OutlineNode* x, const OutlineNode* y) {
            return outlineA.bytesOf(*x) < outlineA.bytesOf(*y);
        });
        std::stable_sort(keptB.begin(), keptB.end(), [this](const OutlineNode* x, const OutlineNode* y) {
            return outlineB.bytesOf(*x) < outlineB.bytesOf(*y);
        });
        return areSame(nodesOf(a, false), nodesOf(b, false)) && areSame(keptA, keptB);
    }

    bool areSame(const Nodes& a, const Nodes& b) const
    {
        return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                          [this](const OutlineNode* x, const OutlineNode* y) {
                              const bool areElements = x->element != nullptr && y->element != nullptr;
                              return areElements ? areSame(*x->element, *y->element)
                                                 : outlineA.bytesOf(*x) == outlineB.bytesOf(*y);
                          });
    }

    const XmlOutline& outlineA;
    const XmlOutline& outlineB;
};

} // namespace

bool haveSameContent(const XmlOutline& a, const XmlOutline& b)
{
    return Comparison(a, b).areSame(a.root(), b.root());
}

} // namespace binding
} // namespace citygml
