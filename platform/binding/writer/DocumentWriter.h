#pragma once

#include "core/CityModelType.hxx"

#include <iosfwd>
#include <string>

#include <xsd/cxx/xml/dom/serialization-header.hxx>

namespace citygml {
namespace binding {

class ElementSelection;

/// The namespaces that a host wants declared, with the places of their schemas, by prefix.
using NamespaceMap = xsd::cxx::xml::dom::namespace_infomap<char>;

/// Writes a document straight to a stream, by the schema tables, together with what the reader kept.
///
/// \param namespaces declared on the root besides those that the document was read with
/// \throws xsd::cxx::tree::exception<char> where the document cannot be XML.
void writeDocument(std::ostream& stream, const core::CityModelType& model, const NamespaceMap& namespaces);

/// Writes a document so that it can be compared with another one, as ElementWriter::writeForComparison()
/// does.
///
/// \param namespaces as above
/// \param selection may be null
std::string textForComparison(const core::CityModelType& model, const NamespaceMap& namespaces,
                              ElementSelection* selection);

} // namespace binding
} // namespace citygml
