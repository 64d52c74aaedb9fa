#pragma once

#include "xml-schema.hxx"

namespace citygml {
namespace binding {

/// Whether two objects, with all in them and all that is kept with them, are written in the same way. Of
/// objects that differ in something that cannot be seen in what is written it may say no.
bool haveSameContent(const xml_schema::type& a, const xml_schema::type& b);

} // namespace binding
} // namespace citygml
