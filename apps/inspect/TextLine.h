#pragma once

class QString;

namespace tolvik::inspect {

/// A text as part of one line: line breaks, tabs and backslashes stand as `\n`, `\r`, `\t` and `\\`.
QString textLine(const QString& text);

} // namespace tolvik::inspect
