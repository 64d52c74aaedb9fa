#include "citygml/Findings.h"

#include "core/CityModelType.hxx"
#include "platform/binding/kept/KeptContent.h"
#include "platform/binding/kept/UnsetValues.h"
#include "platform/binding/SchemaIndex.h"

namespace citygml {

const std::vector<FindingGroup>& findingsOf(const core::CityModelType& document)
{
    static const std::vector<FindingGroup> none;
    const binding::KeptContent* const kept = binding::KeptContent::find(document);
    return kept != nullptr && kept->document() != nullptr ? kept->document()->findings : none;
}

bool isSetAside(const xml_schema::type& object)
{
    const binding::KeptContent* const kept = binding::KeptContent::find(object);
    const bool isWrong = kept != nullptr && kept->wrongValueOf(std::nullopt) != nullptr;
    if (!isWrong && !binding::KeptContent::isMissing(object)) {
        return false;
    }
    const binding::TypeIndex& type = binding::SchemaIndex::instance().typeOf(object);
    return type.hasText() ? binding::isUnset(object, type) : binding::isLeftOut(object);
}

void setGiven(xml_schema::type& object)
{
    binding::KeptContent::setGiven(object);
}

} // namespace citygml
