// What the catalogues are written with: each unit of this directory gives, for the types of one schema
// namespace, the rows of their property trees, one line a row in the order on screen. A unit ends with
// CatalogueEnd.h, which takes the words of this header back; for the next unit it may be included again.
//
// The rows of a type, with the visit that adds them:
//
//     ROWS(bldg, AbstractBuildingType, FIELDS) {
//         ATTR("MeasuredHeight", measuredHeight, optional<gml::LengthType>);
//     }
//
// The third word says where the rows go:
//
//     FIELDS                               the group of GML, CityGML core and the thematic modules
//     EXTENSION("Energy")                  the group of an extension
//     CURRENT                              the group of the object that is being entered
//     SHARED_GROUP("Energy", "volumes")    a group of an extension that several objects share
//     NEW_GROUP(CURRENT, "Measure")        a group of the object's own, also if it stays empty
//
// ROWS_OF(bldg::AbstractBuildingType) { ... } gives the rows alone, for a type whose visit does more than to
// add them; that stands behind it.
//
// A row has one of these forms. The type of the value says when there is a row (see Rows::attr()) and where
// its unit comes from.
//
//     ATTR("MeasuredHeight", measuredHeight, optional<gml::LengthType>);
//                                                  label, accessors, type of the value
//     ENUM("RelativeToWater", relativeToWater, optional<core::RelativeToWaterType>);
//                                                  the same, offering literals
//     ATTR_BY_NAME(object.name(), value, gml::MeasureType);
//                                                  the same, labelled by the document
//     CLASS_FUNCTION_USAGE();                      the three rows of most CityGML types
//     REFERENCE("installedIn", installedIn);       what a reference points to
//     GROUP_EACH("beginPosition", beginPosition);  a group with the rows of each object that the member holds
//     GROUP_EACH_HELD("serviceLife", serviceLife, ServiceLife);
//                                                  the same for the objects inside its property elements
//     GROUP_ALL_HELD("storages", storages, Storage);
//                                                  one group for all the objects inside its property elements
//
// The attributes that extensions hang on a type are objects of their own. Each of them is tried against the
// rows of a list, which is named after the element and the hook of the type:
//
//     GENERIC_ROWS(trafficArea, tran::TrafficAreaType, TrafficArea) {
//         GENERIC("typeOfLaneMarking", epadesa::poly_typeOfLaneMarking, string, "Epadesa");
//     }
//
//     GENERIC("footprintArea", pivotEnergy::poly_footprintArea, gml::AreaType, "pivotEnergy");
//                                                  label, class, type as which it shows, extension
//     GENERIC_ENUM("constructionWeight", energy::ConstructionWeightValue, "Energy");
//                                                  the same, offering literals
//     GENERIC_EACH("durationOfConstruction", pivotEnergy::poly_durationOfConstruction, "pivotEnergy");
//                                                  a group with the rows of the object itself
//     GENERIC_EACH_HELD("referencePoint", energy::poly_referencePoint, Point, "Energy");
//                                                  a group with those of the object that it holds, if any
//     GENERIC_ALL_HELD("shading", pivotEnergy::ShadingTypePropertyType, ShadingType, "pivotEnergy");
//                                                  the same, empty for an object that holds none
//
// The properties that ATTR, ENUM, GENERIC and GENERIC_ENUM bind are instantiated for what stands in the line:
// a build step reads them from the file, and the rows of CLASS_FUNCTION_USAGE from this one.

#include "UI/Models/CityGMLModel/catalogues/Rows.h"

#define ROWS(prefix, Type, target)                                                                                                                             \
    template <>                                                                                                                                                \
    void GmlCorePropertyCreator::Rows<prefix::Type>::addAll() const;                                                                                           \
    bool GmlCorePropertyCreator::visit_##prefix##_##Type(prefix::Type* object) {                                                                               \
        Rows<prefix::Type>(*this, *object, target).addAll();                                                                                                   \
        return CityGMLPropertiesVisitor::visit_##prefix##_##Type(object);                                                                                      \
    }                                                                                                                                                          \
    ROWS_OF(prefix::Type)
#define ROWS_OF(Type)                                                                                                                                          \
    template <>                                                                                                                                                \
    void GmlCorePropertyCreator::Rows<Type>::addAll() const

#define FIELDS Target::fields()
#define CURRENT Target::current()
#define EXTENSION(name) Target::extension(QStringLiteral(name))
#define SHARED_GROUP(extension, name) Target::group(getOrCreateProperty(EXTENSION(extension).find(*this), QStringLiteral(name)))
#define NEW_GROUP(target, label) Target::group(addGroup(target, QStringLiteral(label)))

#define ATTR(label, getter, ...) attr<__VA_ARGS__>(QStringLiteral(label), &Owner::getter, &Owner::getter)
#define ENUM(label, getter, ...) enumAttr<__VA_ARGS__>(QStringLiteral(label), &Owner::getter, &Owner::getter)
#define ATTR_BY_NAME(name, getter, ...) attr<__VA_ARGS__>(QString::fromStdString(name), &Owner::getter, &Owner::getter)
#define CLASS_FUNCTION_USAGE()                                                                                                                                 \
    ATTR("Class", class_, optional<gml::CodeType>);                                                                                                            \
    ATTR("Function", function, sequence<gml::CodeType>);                                                                                                       \
    ATTR("Usage", usage, sequence<gml::CodeType>)
#define REFERENCE(label, getter) reference(QStringLiteral(label), object.getter())
#define GROUP_EACH(label, getter) groupEach(QStringLiteral(label), object.getter())
#define GROUP_EACH_HELD(label, getter, held) groupEach(QStringLiteral(label), object.getter(), TOLVIK_HELD(held))
#define GROUP_ALL_HELD(label, getter, held) groupAll(QStringLiteral(label), object.getter(), TOLVIK_HELD(held))

#define GENERIC_ROWS(element, Type, hook)                                                                                                                      \
    template <>                                                                                                                                                \
    void GmlCorePropertyCreator::GenericRows::addAll<Type>() const;                                                                                            \
    void GmlCorePropertyCreator::visit_##element##_genericProperties(Type* object) {                                                                           \
        for (xml_schema::type & attribute : object->_GenericApplicationPropertyOf##hook()) {                                                                   \
            GenericRows(*this, attribute).addAll<Type>();                                                                                                      \
        }                                                                                                                                                      \
    }                                                                                                                                                          \
    template <>                                                                                                                                                \
    void GmlCorePropertyCreator::GenericRows::addAll<Type>() const
#define GENERIC(label, Poly, Value, extension) attr<Poly, Value>(QStringLiteral(label), QStringLiteral(extension))
#define GENERIC_ENUM(label, Enum, extension) enumAttr<Enum, Enum>(QStringLiteral(label), QStringLiteral(extension))
#define GENERIC_EACH(label, Poly, extension) groupEach<Poly>(QStringLiteral(label), QStringLiteral(extension))
#define GENERIC_EACH_HELD(label, Poly, held, extension) groupEach<Poly>(QStringLiteral(label), QStringLiteral(extension), TOLVIK_HELD(held))
#define GENERIC_ALL_HELD(label, Poly, held, extension) groupAll<Poly>(QStringLiteral(label), QStringLiteral(extension), TOLVIK_HELD(held))

#define TOLVIK_HELD(held) [](auto& element) -> decltype(auto) { return element.held(); }
