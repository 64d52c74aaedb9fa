#pragma once

#include "BindingExport.h"
#include "xml-schema.hxx"

#include <cstddef>

namespace citygml {

/// Puts the children of an object, and of all objects in it, into the order of the schema, where a document
/// had them in another one. A save writes them so.
///
/// Members that the schema lets alternate stay as they are. Comments and unknown elements stay behind the
/// element that they stood behind; an element that is one too many goes behind the first of its kind.
///
/// \param object such as a document
/// \return the number of objects in which something has moved.
TOLVIK_BINDING_EXPORT std::size_t putInSchemaOrder(xml_schema::type& object);

} // namespace citygml
