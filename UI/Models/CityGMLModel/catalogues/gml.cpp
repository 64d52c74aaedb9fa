#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "gml/AbstractFeatureType.hxx"
#include "gml/BoundingShapeType.hxx"
#include "gml/EnvelopeType.hxx"
#include "gml/PointType.hxx"
#include "gml/TimeIntervalLengthType.hxx"
#include "gml/TimePeriodType.hxx"
#include "gml/TimePositionType.hxx"

#include "gml.instantiations.h"

namespace tolvik {

bool GmlCorePropertyCreator::visit_gml_AbstractFeatureType(gml::AbstractFeatureType* object)
{
    const Rows<gml::AbstractGMLType> rows(this, object, Place::fields());
    rows.readOnly(QStringLiteral("ClassType"), QString::fromStdString(object->typeLabel));
    if (object->id().present()) {
        rows.readOnly(QStringLiteral("Id"), QString::fromStdString(object->id().get()));
    }
    ATTR("Name", name, sequence<gml::CodeType>);
    ATTR("Description", description, optional<gml::StringOrRefType>);
    if (object->boundedBy().present()) {
        object->boundedBy()->accept(this);
    }
    // Not by way of the direct base, which enters the bounding shape too.
    return CityGMLFeaturesVisitor::visit_gml_AbstractFeatureType(object);
}

bool GmlCorePropertyCreator::visit_gml_EnvelopeType(gml::EnvelopeType* object)
{
    const Rows<gml::EnvelopeType> envelope(this, object, Place::fields());
    const auto rows = envelope.below(envelope.group(QStringLiteral("Envelope")));
    ATTR("SrsName", srsName, optional<uri>);
    ATTR("SrsDimension", srsDimension, optional<unsigned long long>);
    ATTR("LowerCorner", lowerCorner, optional<gml::DirectPositionType>);
    ATTR("UpperCorner", upperCorner, optional<gml::DirectPositionType>);
    return CityGMLPropertiesVisitor::visit_gml_EnvelopeType(object);
}

bool GmlCorePropertyCreator::visit_gml_PointType(gml::PointType* object)
{
    const Rows<gml::PointType> rows(this, object, Place::current());
    ATTR("position", pos, optional<gml::DirectPositionType>);
    return CityGMLPropertiesVisitor::visit_gml_PointType(object);
}

bool GmlCorePropertyCreator::visit_gml_TimeIntervalLengthType(gml::TimeIntervalLengthType* object)
{
    const Rows<gml::TimeIntervalLengthType> rows(this, object, Place::current());
    rows.readOnly(QStringLiteral("timeIntervalLength"), static_cast<double>(*object));
    ATTR("unit", unit, gml::TimeUnitType);
    ATTR("radix", radix, optional<unsigned long long>);
    ATTR("factor", factor, optional<long long>);
    return CityGMLPropertiesVisitor::visit_gml_TimeIntervalLengthType(object);
}

bool GmlCorePropertyCreator::visit_gml_TimePeriodType(gml::TimePeriodType* object)
{
    const Rows<gml::TimePeriodType> rows(this, object, Place::current());
    CHILD("beginPosition", beginPosition);
    CHILD("endPosition", endPosition);
    ATTR("duration", duration, optional<duration>);
    return CityGMLPropertiesVisitor::visit_gml_TimePeriodType(object);
}

bool GmlCorePropertyCreator::visit_gml_TimePositionType(gml::TimePositionType* object)
{
    const Rows<gml::TimePositionType> rows(this, object, Place::current());
    rows.readOnly(QStringLiteral("timePosition"), QString::fromStdString(*object));
    ATTR("calendarEraName", calendarEraName, optional<string>);
    ATTR("frame", frame, uri);
    ATTR("intermediatePosition", indeterminatePosition, optional<gml::TimeIndeterminateValueType>);
    return CityGMLPropertiesVisitor::visit_gml_TimePositionType(object);
}

} // namespace tolvik
