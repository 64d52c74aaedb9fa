#include "citygml/DocumentChanges.h"

#include "platform/binding/changes/DocumentComparison.h"
#include "platform/binding/changes/ReducedOriginal.h"
#include "platform/binding/reader/EndOfStreamGuard.h"
#include "platform/binding/writer/DocumentWriter.h"

#include <optional>
#include <vector>

namespace citygml {

bool writeChanges(std::istream& original, const core::CityModelType& document, std::ostream& target,
                  const xsd::cxx::xml::dom::namespace_infomap<char>& prefixes)
{
    const binding::EndOfStreamGuard guard(original);
    binding::WrittenChildren children(document);
    std::optional<binding::ReducedOriginal> reduced;
    try {
        reduced.emplace(original, document, children, prefixes);
    } catch (const xsd::cxx::tree::exception<char>&) {
        return false;
    }
    const std::optional<std::vector<binding::ByteEdit>> edits = binding::editsBetween(
        reduced->bytes(), binding::textForComparison(document, prefixes, &children), prefixes);
    return edits && reduced->write(*edits, target);
}

} // namespace citygml
