#include "citygml/Findings.h"

#include "core/CityModelType.hxx"
#include "platform/binding/kept/KeptContent.h"
#include "platform/binding/SchemaIndex.h"
#include "platform/binding/writer/ValueWriter.h"

namespace citygml {

namespace {

/// For texts that are compared, not written.
class NoPrefixes : public binding::NameScope
{
public:
    std::string namespaceOf(std::string_view) const override { return std::string(); }
    std::string prefixOf(const std::string&) const override { return std::string(); }
};

} // namespace

const std::vector<FindingGroup>& findingsOf(const core::CityModelType& document)
{
    static const std::vector<FindingGroup> none;
    const binding::KeptContent* const kept = binding::KeptContent::find(document);
    return kept != nullptr && kept->document() != nullptr ? kept->document()->findings : none;
}

bool isSetAside(const xml_schema::type& object)
{
    const binding::KeptContent* const kept = binding::KeptContent::find(object);
    if (kept == nullptr || kept->wrongValueOf(std::nullopt) == nullptr) {
        return false;
    }
    const NoPrefixes scope;
    return binding::ValueWriter(scope).isUnset(object, binding::SchemaIndex::instance().typeOf(object));
}

} // namespace citygml
