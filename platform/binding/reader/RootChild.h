#pragma once

#include "citygml/Findings.h"
#include "platform/binding/reader/KeptContentLog.h"
#include "platform/binding/reader/NamespaceScopes.h"
#include "platform/binding/SchemaIndex.h"

#include <memory>
#include <string>
#include <vector>

namespace citygml {
namespace binding {

/// What has to be known of a root to read its children apart from it.
struct RootContext
{
    NamespaceScopes scopes;
    NameId name;
    /// Empty where it has none.
    std::string identifier;
    bool isOlderVersion;
    bool isLenient;
};

/// A child of the root that was read apart from it.
struct RootChild
{
    /// The member of the root that takes it.
    const TypeIndex::FlatMember* member = nullptr;
    std::unique_ptr<xml_schema::type> object;
    /// Those in it. They are not registered with any root.
    std::vector<xml_schema::id*> identifiers;
    /// Their places are counted from where the parser was told to begin.
    std::vector<Finding> findings;
    KeptContentLog::Counts log;
};

} // namespace binding
} // namespace citygml
