#pragma once

#include <string_view>

namespace citygml {
namespace binding {

/// The namespaces that XML and the documents themselves speak of; those of the schema are in the tables.
constexpr const char* xmlUri = "http://www.w3.org/XML/1998/namespace";
constexpr const char* xsiUri = "http://www.w3.org/2001/XMLSchema-instance";
constexpr const char* xsUri = "http://www.w3.org/2001/XMLSchema";

/// A namespace of CityGML is this, the name of the module except for the core, and the version.
constexpr std::string_view cityGmlStem = "http://www.opengis.net/citygml/";
constexpr std::string_view cityGmlProfiles = "http://www.opengis.net/citygml/profiles/";
constexpr std::string_view cityGmlVersion = "2.0";
/// The version that is read as the one above.
constexpr std::string_view olderCityGmlVersion = "1.0";

/// The element that every document has at its root, in the namespace of the core.
constexpr const char* coreUri = "http://www.opengis.net/citygml/2.0";
constexpr const char* rootName = "CityModel";

} // namespace binding
} // namespace citygml
