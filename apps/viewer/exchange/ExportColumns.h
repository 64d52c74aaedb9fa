#pragma once

#include "apps/viewer/edits/PropertyPath.h"

#include <QStringList>
#include <QVector>

namespace tolvik::viewer {

/// The names that paths of properties have as columns of exported tables, each once. Those that every table
/// has anyway are left out.
/// \param example a feature of the type that the table is of
QStringList exportColumns(const CityGMLModel& model, gml::AbstractFeatureType& example,
                          const QVector<PropertyPath>& paths);

} // namespace tolvik::viewer
