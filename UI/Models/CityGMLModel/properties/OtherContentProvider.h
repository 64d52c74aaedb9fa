#pragma once

#include "framework/PropertyProvider.h"
#include "UI/Models/CityGMLModel/CityGMLModelExport.h"

namespace tolvik {

/// Adds to a row's property tree what the document says about the feature and no property shows: a group
/// "Other content" behind the others, see citygml/OtherContent.h. A feature without such content gets no
/// group.
///
/// Each property has the qualified name of an element or, behind an `@`, of an attribute as its name, and the
/// text of that as its value. A text can be edited; what XML cannot hold is refused, and nothing changes
/// then. Elements that only lead to others have no value and cannot be edited.
///
/// CityGMLModel has such a provider from the start.
class CITYGMLMODEL_EXPORT OtherContentProvider : public PropertyProvider
{
public:
    OtherContentProvider();
    ~OtherContentProvider() override;

    /// Content of a feature inside that has a row too is shown there alone. Nothing is added to a tree that
    /// has the group, and for the row of another model than a CityGMLModel.
    void addProperties(const QModelIndex& index, CoreProperty& root) override;
};

} // namespace tolvik
