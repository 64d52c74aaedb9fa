#include "UI/Models/CityGMLModel/FeatureRoles.h"

namespace tolvik {

QHash<int, QByteArray> featureRoleNames(QHash<int, QByteArray> others)
{
    others.insert(FeatureIdentifierRole, "identifier");
    others.insert(FeatureTypeRole, "type");
    others.insert(FeatureNameRole, "name");
    others.insert(FeatureVisibilityRole, "visibility");
    others.insert(FeatureDisabledRole, "disabled");
    others.insert(FeaturePointerRole, "feature");
    others.insert(FeaturePropertiesRole, "properties");
    return others;
}

} // namespace tolvik
