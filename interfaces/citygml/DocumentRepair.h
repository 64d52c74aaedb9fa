#pragma once

#include "BindingExport.h"
#include "citygml/Findings.h"
#include "core/CityModelType.hxx"

#include <functional>
#include <iosfwd>
#include <memory>

namespace citygml {

/// Reads a document as a load does, and puts right what can be put right without guessing:
///
/// - Where an identifier stands twice, the later elements get free ones. References to it in the same
///   top-level member follow, unless the first element with it stands in that member too.
/// - Elements that are out of order are put into the order of the schema.
/// - A document of CityGML 1.0 becomes one of CityGML 2.0.
///
/// \param stream bytes of an XML document, from the current position to the end. It is read twice, so it must
/// be able to go back to that position.
/// \param tell   takes one note for each thing that was put right; its reason says what was done
/// \return the root, which owns the document
/// \throws xsd::cxx::tree::exception<char> for what ends a load too, with line, column and reason in print
TOLVIK_BINDING_EXPORT std::unique_ptr<core::CityModelType>
repairDocument(std::istream& stream, const std::function<void(const Finding&)>& tell);

} // namespace citygml
