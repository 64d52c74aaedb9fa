#pragma once

#include "core/CityModelType.hxx"

#include <iosfwd>

#include <xsd/cxx/xml/dom/serialization-header.hxx>

namespace citygml {
namespace binding {

/// Writes a document straight to a stream, by the schema tables, together with what the reader kept.
/// \param namespaces declared on the root besides those that the document was read with.
/// \throws xsd::cxx::tree::exception<char> where the document cannot be XML.
void writeDocument(std::ostream& stream, const core::CityModelType& model,
                   const xsd::cxx::xml::dom::namespace_infomap<char>& namespaces);

} // namespace binding
} // namespace citygml
