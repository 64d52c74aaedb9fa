#pragma once

#include "core/CityModelType.hxx"

#include <iosfwd>
#include <memory>

namespace citygml {
namespace binding {

/// Makes schema objects straight from the events of an XML parser, by the schema tables.
///
/// \param isLenient whether what the schema does not allow is kept and told as a finding
/// \throws xsd::cxx::tree::exception<char> for the first error.
std::unique_ptr<core::CityModelType> readDocument(std::istream& stream, bool isLenient);

} // namespace binding
} // namespace citygml
