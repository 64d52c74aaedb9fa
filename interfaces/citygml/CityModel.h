#pragma once

#include "BindingExport.h"
#include "core/CityModelType.hxx"

#include <iosfwd>
#include <memory>
#include <string>

#include <xsd/cxx/xml/dom/serialization-header.hxx>

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace core {

/// Reads a CityGML 2.0 document.
///
/// The document is not validated. A required element or attribute that is missing, a value that its type
/// cannot hold, an element that is abstract and an `xsi:type` that does not fit are errors all the same,
/// unless the flags say otherwise. No external entity and no document type definition is ever opened.
///
/// The stream does not throw at its end, whatever its exceptions() say, and is not failed afterwards for
/// having been read to there.
/// \param stream bytes of an XML document, from the current position to the end
/// \param flags with `dont_validate` these errors, but for what is missing, are findings: what is wrong is
/// kept, a save writes it back, and citygml::findingsOf() answers it; other flags mean nothing
/// \param properties likewise
/// \return the root, which owns the document
/// \throws xsd::cxx::tree::exception<char> for the first error, with line, column and reason in print
/// \throws xsd::cxx::tree::duplicate_id<char> where an identifier stands twice
TOLVIK_BINDING_EXPORT std::auto_ptr<CityModelType>
CityModel(std::istream& stream, xsd::cxx::tree::flags flags = 0,
          const xsd::cxx::tree::properties<char>& properties = xsd::cxx::tree::properties<char>());

/// Frees a document, a large one beside the caller, in a thread of the binding. Where one thread alone is
/// wanted, see citygml::setReadingThreads(), the caller frees it.
///
/// The end of the program waits for it, and so does the next document to be freed.
/// \param document may be null; nobody else uses it any more
TOLVIK_BINDING_EXPORT void freeCityModel(std::auto_ptr<CityModelType> document);

/// Writes a document as indented XML.
/// \param stream target; it is not tested for failure
/// \param model the document
/// \param map namespaces and schema locations that the root element declares besides those it was read with
/// \param encoding "UTF-8", the only one that is written
/// \param flags taken for the signature's sake
/// \throws xsd::cxx::tree::exception<char> where the document cannot be written: a required member is
/// missing, or a text holds a character that XML cannot
TOLVIK_BINDING_EXPORT void CityModel(std::ostream& stream, const CityModelType& model,
                                     const xsd::cxx::xml::dom::namespace_infomap<char>& map,
                                     const std::string& encoding = "UTF-8", xsd::cxx::tree::flags flags = 0);

} // namespace core

#pragma GCC diagnostic pop
