#pragma once

#include "citygml/Findings.h"

#include <QString>

#include <iosfwd>

namespace tolvik::inspect {

/// Prints a finding in a line: file, line, column and path with colons between them, the reason, and the
/// feature if it has an identifier.
void printFindingText(const QString& file, const citygml::Finding& finding, std::ostream& out);

/// Prints a finding as a JSON object in a line, with the keys `file`, `line`, `column`, `path`, `reason` and
/// `feature` (null where there is none), in this order.
void printFindingJson(const QString& file, const citygml::Finding& finding, std::ostream& out);

} // namespace tolvik::inspect
