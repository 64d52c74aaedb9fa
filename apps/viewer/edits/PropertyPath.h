#pragma once

#include "fondo/RefPtr.h"
#include "framework/CoreProperty.h"

#include <QJsonArray>
#include <QString>
#include <QVector>

namespace gml {
class AbstractFeatureType;
}

namespace tolvik {
class CityGMLModel;
}

namespace tolvik::viewer {

/// One step of a PropertyPath: the n-th property of a name among those beside it.
struct PropertyStep
{
    QString name;
    int occurrence = 1; ///< from 1 up

    friend bool operator==(const PropertyStep& a, const PropertyStep& b)
    {
        return a.occurrence == b.occurrence && a.name == b.name;
    }
};

/// Leads from the root of a feature's property tree to one property. It means the same property in the trees
/// of all features of a type, and in each tree that is made anew for one: see propertyTree().
using PropertyPath = QVector<PropertyStep>;

/// The path for the eye: `Fields/Function`, `Fields/Address[2]/Code`.
QString toString(const PropertyPath& path);

/// The path for files and settings. Names may have any characters.
/// @{
QJsonArray toJson(const PropertyPath& path);
PropertyPath pathFromJson(const QJsonArray& json);
/// @}

/// The complete property tree of a feature: absent attributes and what the providers of the model add have
/// their properties too. Paths are those of this tree.
Fondo::RefPtr<CoreProperty> propertyTree(const CityGMLModel& model, gml::AbstractFeatureType& feature);

/// The same without what the providers add, which takes longer than all the rest.
Fondo::RefPtr<CoreProperty> catalogueTree(gml::AbstractFeatureType& feature);

/// Whether a path can lead to a property of catalogueTree(), and to no other one.
bool isOfCatalogue(const PropertyPath& path);

/// The property that a path leads to.
/// \return null where there is none; owned by the tree
CoreProperty* findProperty(CoreProperty& root, const PropertyPath& path);

} // namespace tolvik::viewer
