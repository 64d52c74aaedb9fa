#pragma once

#include "BindingExport.h"
#include "core/CityModelType.hxx"

#include <iosfwd>

#include <xsd/cxx/xml/dom/serialization-header.hxx>

namespace citygml {

/// Writes a document as the bytes that it was read from, with others only where its content has changed
/// since. An unedited document comes back byte for byte. It does not matter how the content was changed.
///
/// What is new is written with the prefixes, in the encoding and in the layout of the document. Comments and
/// what no class has a member for stay where they are. What is written, read again, is the document that
/// core::CityModel() writes; this is made sure of before the first byte is written.
///
/// The original is read again, by several threads if it is large; see citygml::setReadingThreads().
///
/// \param original bytes that the document was read from, from the position to the end; can go back
/// \param target it is not tested for failure
/// \param prefixes for namespaces that the original does not declare; used for what is new
/// \return false, with nothing written, for an original that has nothing to do with the document, and for one
/// that is no document of CityGML 2.0
/// \throws xsd::cxx::tree::exception<char> for a document that cannot be written, as core::CityModel() does
TOLVIK_BINDING_EXPORT bool writeChanges(std::istream& original, const core::CityModelType& document,
                                        std::ostream& target,
                                        const xsd::cxx::xml::dom::namespace_infomap<char>& prefixes =
                                            xsd::cxx::xml::dom::namespace_infomap<char>());

} // namespace citygml
