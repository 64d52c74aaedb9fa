#pragma once

#include "UI/Models/CityGMLModel/properties/CityGMLPropertiesVisitor.h"
#include "UI/Models/CityGMLModel/properties/PropertyVisits.h"

#include <QMap>
#include <QString>
#include <QVariant>

namespace tolvik {

class CoreProperty;

/// Builds the property tree of one feature:
/// \code
/// (root)
///   Properties            rows of the extensions
///     Energy, Epadesa ...   one group for each extension
///   Fields                rows of GML, CityGML core and the thematic modules
/// \endcode
/// A group is there if it has rows, and groups stand in the order of first use. The rows of a derived type
/// come before those of its bases.
///
/// One creator serves one feature: a second one would add its rows to the first one's tree.
/// \code
/// GmlCorePropertyCreator creator;
/// feature->accept(&creator);
/// Fondo::RefPtr<CoreProperty> root = creator.getProperty();
/// \endcode
class CITYGMLMODEL_EXPORT GmlCorePropertyCreator : public CityGMLPropertiesVisitor
{
public:
    /// \param existingOnly true: an absent attribute gets no property. False: it gets an empty one, and
    /// setting that brings the attribute into being.
    explicit GmlCorePropertyCreator(bool existingOnly = true);
    ~GmlCorePropertyCreator() override;

    /// The property tree of a feature, made by a creator of its own.
    /// \return a tree without references: the caller takes the first
    static CoreProperty* createProperty(gml::AbstractFeatureType* feature, bool existingOnly);

    /// Root of the tree, with an empty name and no value; never null. The creator does not own it.
    CoreProperty* getProperty() const;

#define TOLVIK_DECLARE_VISIT(prefix, Type) bool visit_##prefix##_##Type(prefix::Type* object) override;
    TOLVIK_PROPERTY_VISITS(TOLVIK_DECLARE_VISIT)
#undef TOLVIK_DECLARE_VISIT

private:
    class Target;
    template <class OwnerClass>
    class Rows;
    class GenericRows;

    void visit_abstractBuilding_genericProperties(bldg::AbstractBuildingType* object);
    void visit_auxiliaryTrafficArea_genericProperties(tran::AuxiliaryTrafficAreaType* object);
    void visit_cityFurniture_genericProperties(frn::CityFurnitureType* object);
    void visit_layeredComponent_genericProperties(component::LayeredComponentTypeType* object);
    void visit_openingComponent_genericProperties(component::OpeningComponentTypeType* object);
    void visit_thermalBoundary_genericProperties(energy::ThermalBoundaryType* object);
    void visit_thermalZone_genericProperties(energy::ThermalZoneType* object);
    void visit_trafficArea_genericProperties(tran::TrafficAreaType* object);
    void visit_usageZone_genericProperties(energy::UsageZoneType* object);

    CoreProperty* getOrCreateFieldPartProp();
    CoreProperty* getOrCreateRootADEPartProp(const QString& name);
    CoreProperty* getOrCreateProperty(CoreProperty* parent, const QString& name);
    CoreProperty* addGroup(const Target& target, const QString& label);
    QVariant getReferenceUrl(const gml::ReferenceType& reference);
    void enter(CoreProperty* group, xml_schema::type& object);

    CoreProperty* m_property;
    CoreProperty* m_fieldPart = nullptr;
    CoreProperty* m_adeRoot = nullptr;
    QMap<QString, CoreProperty*> m_adeParts;
    CoreProperty* m_currentParent = nullptr;
    bool m_existingOnly;
};

} // namespace tolvik
