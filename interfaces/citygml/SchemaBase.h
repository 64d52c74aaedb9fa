#pragma once

// Takes the place of the run-time's <xsd/cxx/tree/elements.hxx>, which it includes; include that instead.
// Every object of that header's base class has three pointers of its own, to a DOM node, to identifiers and
// to untyped content; in a city hardly any of them points to anything. Here they take a byte each, and the
// class has another name, so that a program may link a second binding, which has the run-time's own.

#include "citygml/RarePointer.h"

// What the header includes: those know the usual pointers.
#include <cassert>
#include <cstddef>
#include <istream>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>
#include <xercesc/dom/DOMAttr.hpp>
#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/dom/DOMNamedNodeMap.hpp>
#include <xercesc/dom/DOMNode.hpp>
#include <xercesc/util/XercesVersion.hpp>
#include <xercesc/util/XMLUniDefs.hpp>
#include <xsd/cxx/config.hxx>
#include <xsd/cxx/tree/containers-wildcard.hxx>
#include <xsd/cxx/tree/exceptions.hxx>
#include <xsd/cxx/tree/facet.hxx>
#include <xsd/cxx/tree/istream-fwd.hxx>
#include <xsd/cxx/xml/dom/auto-ptr.hxx>
#include <xsd/cxx/xml/dom/wildcard-source.hxx>
#include <xsd/cxx/xml/elements.hxx>

// The build makes a header of that name which leads here, and from here on to the run-time's own.
#define TOLVIK_SCHEMA_BASE
#pragma push_macro("XSD_AUTO_PTR")
#undef XSD_AUTO_PTR
#define XSD_AUTO_PTR ::citygml::RarePointer
#define _type slim_type
#include <xsd/cxx/tree/elements.hxx>
#undef _type
#pragma pop_macro("XSD_AUTO_PTR")
#undef TOLVIK_SCHEMA_BASE

namespace xsd {
namespace cxx {
namespace tree {

/// The name that other headers of the run-time know.
typedef slim_type _type;

} // namespace tree
} // namespace cxx
} // namespace xsd
