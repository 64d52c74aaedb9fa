#pragma once

#include "citygml/CityGMLInheritVisitor.h"
#include "citygml/FeatureVisits.h"
#include "fondo/Referenced.h"
#include "PlatformExport.h"

#include <cstddef>
#include <vector>

namespace xml_schema {
class type;
}

namespace tolvik {

/// Walks from a feature to the features below it, through the feature-valued members of the types that hold
/// features.
///
/// Two flags steer the walk, which starts with `accept` on a feature:
/// - `walkChildren` false: the visit stays inside the object it started on.
/// - Both true: `visit_gml_AbstractFeatureType` is reached once for the start feature and once for each
///   feature directly below it, and no deeper. The members of a derived type are walked before those of its
///   bases.
/// - `walkChildren` true, `walkStart` false: the walk goes all the way down. A feature is visited before the
///   features below it, and these in document order.
///
/// A deep walk leaves out what is below an object that a visit refused: one that answers false without going
/// on to the visit of this class.
///
/// The flags are read during a walk and are as before when it ends. Nothing of a walk stays behind in the
/// visitor, also if a visit answers early or throws.
class TOLVIK_PLATFORM_EXPORT CityGMLFeaturesVisitor : public citygml::CityGMLInheritVisitor,
                                                      public Fondo::Referenced
{
public:
    CityGMLFeaturesVisitor();

    /// Takes the flags of the other visitor.
    /// @{
    CityGMLFeaturesVisitor(const CityGMLFeaturesVisitor& other);
    CityGMLFeaturesVisitor& operator=(const CityGMLFeaturesVisitor& other);
    /// @}

    ~CityGMLFeaturesVisitor() override;

#define TOLVIK_DECLARE_VISIT(prefix, Type, members)                                                          \
    bool visit_##prefix##_##Type(prefix::Type* object) override;
    TOLVIK_FEATURE_VISITS(TOLVIK_DECLARE_VISIT)
#undef TOLVIK_DECLARE_VISIT

    bool walkChildren = true; ///< whether the walk leaves the object it started on
    bool walkStart = false;   ///< whether the walk ends with the features directly below the start

private:
    class ObjectVisit;
    /// An object, seen at a type that has members to walk.
    struct Level
    {
        xml_schema::type* object = nullptr;
        int type = 0;
    };

    template <class VisitBases>
    bool visitLevel(const Level& level, VisitBases visitBases);
    void walk(const Level& level);
    void enterContent(xml_schema::type& value);
    void enter(xml_schema::type& object);
    void walkPending();

    // What a deep walk still has to enter, and where the part of the object being visited begins.
    std::vector<Level> pending;
    std::size_t first = 0;
};

} // namespace tolvik
