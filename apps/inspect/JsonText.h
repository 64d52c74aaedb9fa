#pragma once

#include <string>

class QString;

namespace tolvik::inspect {

/// A text as a JSON string with its quotation marks, in UTF-8. For output that is written piece by piece,
/// with its keys in the order that it names them, which a JSON document of Qt cannot do.
std::string jsonText(const QString& text);

} // namespace tolvik::inspect
