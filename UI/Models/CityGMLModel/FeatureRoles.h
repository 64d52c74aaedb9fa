#pragma once

#include "UI/Models/CityGMLModel/CityGMLModelExport.h"

#include <QByteArray>
#include <QHash>
#include <QMetaType>

namespace gml {
class AbstractFeatureType;
}

// Programs that see features as pointers alone need no schema class.
Q_DECLARE_OPAQUE_POINTER(gml::AbstractFeatureType*)
Q_DECLARE_METATYPE(gml::AbstractFeatureType*)

namespace tolvik {

/// What CityGMLTreeModel and CityGMLFeatureList tell of a feature besides what a view shows, in any column.
/// Scripts and QML know the roles by the names of featureRoleNames().
enum FeatureRole {
    FeatureIdentifierRole = Qt::UserRole + 1, ///< `identifier`: the `gml:id`, a text; empty without one
    FeatureTypeRole,                          ///< `type`: the kind of the feature, a text such as "Building"
    FeatureNameRole,                          ///< `name`: its first name, a text; empty without one
    FeatureVisibilityRole,                    ///< `visibility`: whether it is visible, a bool that can be set
    FeatureDisabledRole,   ///< `disabled`: whether its row is disabled, a bool that can be set
    FeaturePointerRole,    ///< `feature`: a gml::AbstractFeatureType*, which ends with the document
    FeaturePropertiesRole, ///< `properties`: a FeaturePropertyModel*, as a QObject*, which ends with the row
};

/// The names of these roles, added to those of a model.
CITYGMLMODEL_EXPORT QHash<int, QByteArray> featureRoleNames(QHash<int, QByteArray> others);

} // namespace tolvik
