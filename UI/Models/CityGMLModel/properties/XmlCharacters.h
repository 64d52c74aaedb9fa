#pragma once

#include "UI/Models/CityGMLModel/CityGMLModelExport.h"

#include <optional>
#include <QString>

namespace tolvik {

/// The first character of a text that no XML document can hold: most control characters, and half a pair of
/// surrogates. Such a text cannot be saved, so that programs refuse it at the edit.
CITYGMLMODEL_EXPORT std::optional<ushort> firstCharacterNotInXml(const QString& text);

} // namespace tolvik
