#pragma once

#include "PlatformExport.h"

#include <string>
#include <vector>

namespace tolvik {

/// An XML namespace that a written document declares.
struct NamespacesMap
{
    std::string prefix;         ///< the prefix that it is bound to
    std::string name;           ///< its URI
    std::string schemaLocation; ///< where its schema lies
};

/// What is known of CityGML as a whole.
class TOLVIK_PLATFORM_EXPORT CityGmlUtils
{
public:
    /// All namespaces of CityGML and its extensions, one entry for each prefix.
    static std::vector<NamespacesMap> getNamespaces();
};

} // namespace tolvik
