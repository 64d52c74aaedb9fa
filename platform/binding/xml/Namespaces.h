#pragma once

#include <string_view>

namespace citygml {
namespace binding {

/// The namespaces that XML and the documents themselves speak of; those of the schema are in the tables.
constexpr const char* xmlUri = "http://www.w3.org/XML/1998/namespace";
constexpr const char* xsiUri = "http://www.w3.org/2001/XMLSchema-instance";
constexpr const char* xsUri = "http://www.w3.org/2001/XMLSchema";

/// Namespaces of the schema with elements and attributes that the reader looks at by their names.
constexpr const char* gmlUri = "http://www.opengis.net/gml";
constexpr const char* xlinkUri = "http://www.w3.org/1999/xlink";
constexpr const char* appearanceUri = "http://www.opengis.net/citygml/appearance/2.0";
constexpr const char* smilLanguageUri = "http://www.w3.org/2001/SMIL20/Language";
constexpr const char* xalUri = "urn:oasis:names:tc:ciq:xsdschema:xAL:2.0";

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
