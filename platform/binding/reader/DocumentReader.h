#pragma once

#include "core/CityModelType.hxx"

#include <iosfwd>
#include <memory>

namespace citygml {
namespace binding {

/// Makes schema objects straight from the events of an XML parser, by the schema tables.
///
/// \throws xsd::cxx::tree::exception<char> for the first error.
std::unique_ptr<core::CityModelType> readDocument(std::istream& stream);

} // namespace binding
} // namespace citygml
