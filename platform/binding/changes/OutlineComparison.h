#pragma once

#include "platform/binding/changes/XmlOutline.h"

namespace citygml {
namespace binding {

/// Whether two texts that the writer wrote are the same document, whatever its prefixes. What no member holds
/// may stand elsewhere among the elements around it. A closed element is the same as one with the same bytes.
bool haveSameContent(const XmlOutline& a, const XmlOutline& b);

} // namespace binding
} // namespace citygml
