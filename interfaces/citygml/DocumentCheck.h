#pragma once

#include "BindingExport.h"
#include "citygml/Findings.h"

#include <functional>
#include <iosfwd>

namespace citygml {

/// Reads a document as a load does, and tells everything that is wrong with it.
///
/// That is all that the strict reader refuses, of which it tells the first alone, and what it lets pass:
/// elements that are out of order or one too many; elements and attributes that the schema does not know,
/// but for those in namespaces that it does not know either; references within the document to an identifier
/// that nothing has; identifiers that stand twice, of which the later ones are told; and lists of
/// coordinates whose length does not fit their dimension.
///
/// What ends the reading, such as XML that is not well-formed, is the last finding. References are not told
/// then, since what they refer to may stand in what was not read.
/// \param stream bytes of an XML document, from the current position to the end
/// \param tell   takes the findings, in the order of their places; it is first called when all is read
TOLVIK_BINDING_EXPORT void checkDocument(std::istream& stream,
                                         const std::function<void(const Finding&)>& tell);

} // namespace citygml
