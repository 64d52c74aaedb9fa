#pragma once

#include "BindingExport.h"
#include "citygml/Member.h"

#include <optional>

namespace citygml {

/// The unit of a measure, or of a list of measures, as a member of its own: the attribute `uom`.
/// \param measure a member of one value, or an entry of a list
/// \return nothing where there is no value, and for values that have no unit
TOLVIK_BINDING_EXPORT std::optional<Member> unitOf(const Member& measure);

} // namespace citygml
