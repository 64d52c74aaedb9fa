#pragma once

#include "UI/Models/CityGMLModel/properties/CityGMLPropertiesVisitor.h"

namespace tolvik {

class CoreProperty;

/// Builds the property tree of one feature. One creator serves one feature: a second one would add its rows to the
/// first one's tree.
/// \code
/// GmlCorePropertyCreator creator;
/// feature->accept(&creator);
/// Fondo::RefPtr<CoreProperty> root = creator.getProperty();
/// \endcode
class CITYGMLMODEL_EXPORT GmlCorePropertyCreator : public CityGMLPropertiesVisitor
{
public:
    /// \param existingOnly true: an absent attribute gets no property. False: it gets an empty one, and setting that
    ///                     brings the attribute into being.
    explicit GmlCorePropertyCreator(bool existingOnly = true);
    ~GmlCorePropertyCreator() override;

    /// The property tree of a feature, made by a creator of its own.
    /// \return a tree without references: the caller takes the first
    static CoreProperty* createProperty(gml::AbstractFeatureType* feature, bool existingOnly);

    /// Root of the tree, with an empty name and no value; never null. The creator does not own it.
    CoreProperty* getProperty() const;

private:
    CoreProperty* m_property;
    bool m_existingOnly;
};

} // namespace tolvik
