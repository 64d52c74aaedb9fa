#pragma once

#include "xml-schema.hxx"

#include <xsd/cxx/tree/containers.hxx>

namespace tolvik {

/// Short names of the types that attribute values are made of. Only for source files and the headers they
/// share: `using namespace schema;` there.
namespace schema {

/// A member that may be absent.
template <typename T>
using optional = xsd::cxx::tree::optional<T>;

/// A member that may be repeated.
template <typename T>
using sequence = xsd::cxx::tree::sequence<T>;

using xml_schema::date;
using xml_schema::date_time;
using xml_schema::duration;
using xml_schema::gyear;
using xml_schema::simple_type;
using xml_schema::string;
using xml_schema::uri;

} // namespace schema
} // namespace tolvik
