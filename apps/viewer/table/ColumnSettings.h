#pragma once

#include "apps/viewer/edits/PropertyPath.h"

#include <optional>

namespace tolvik::viewer {

/// The columns that the user has chosen for the table of a type of features, from left to right, as the
/// settings keep them.
/// @{
std::optional<QVector<PropertyPath>> chosenColumns(const QString& type);
void setChosenColumns(const QString& type, const QVector<PropertyPath>& columns);
/// @}

} // namespace tolvik::viewer
