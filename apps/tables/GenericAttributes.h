#pragma once

#include "apps/tables/CellType.h"
#include "apps/tables/ColumnPath.h"

#include <QString>

namespace gml {
class AbstractFeatureType;
}

namespace tolvik::tables {

/// Gives a feature a generic attribute, behind those that it has.
/// \param path its name: the only step, be it that of a generic attribute or not
/// \param type what the text is; a number with a unit becomes a measure
/// \throws apps::EditError for a feature that can have none, and for a text that the type cannot read
void addGenericAttribute(gml::AbstractFeatureType& feature, const ColumnPath& path, CellType type,
                         const QString& unit, const QString& text);

/// Takes the attribute that was added last out of a feature again.
void removeLastGenericAttribute(gml::AbstractFeatureType& feature);

/// Takes a generic attribute out of a feature, as a whole.
/// \return whether it had such a one
bool removeGenericAttribute(gml::AbstractFeatureType& feature, const ColumnPath& path);

} // namespace tolvik::tables
