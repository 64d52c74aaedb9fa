#include "citygml/Findings.h"
#include "gml/AbstractFeatureType.hxx"
#include "gml/BoundingShapeType.hxx"
#include "gml/EnvelopeType.hxx"
#include "gml/PointType.hxx"
#include "gml/TimeIntervalLengthType.hxx"
#include "gml/TimePeriodType.hxx"
#include "gml/TimePositionType.hxx"
#include "UI/Models/CityGMLModel/catalogues/Catalogue.h"

#include "gml.instantiations.h"

#include <QHash>

namespace tolvik {

namespace {

/// The name of a type, of which each feature has a row: they share the text.
const QString& sharedText(const xml_schema::TypeLabel& label) {
    thread_local QHash<const std::string*, QString> texts;
    QString& text = texts[&label.str()];
    if (text.isNull()) {
        text = QString::fromStdString(label);
    }
    return text;
}

} // namespace

ROWS_OF(gml::AbstractGMLType) {
    readOnly(QStringLiteral("ClassType"), sharedText(object.typeLabel));
    if (object.id().present()) {
        readOnly(QStringLiteral("Id"), QString::fromStdString(object.id().get()));
    }
    ATTR("Name", name, sequence<gml::CodeType>);
    ATTR("Description", description, optional<gml::StringOrRefType>);
}

bool GmlCorePropertyCreator::visit_gml_AbstractFeatureType(gml::AbstractFeatureType* object) {
    Rows<gml::AbstractGMLType>(*this, *object, FIELDS).addAll();
    if (object->boundedBy().present()) {
        object->boundedBy()->accept(this);
    }
    // Not by way of the direct base, which enters the bounding shape too.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    return CityGMLFeaturesVisitor::visit_gml_AbstractFeatureType(object); // clazy:exclude=skipped-base-method
}

ROWS(gml, EnvelopeType, NEW_GROUP(FIELDS, "Envelope")) {
    ATTR("SrsName", srsName, optional<uri>);
    ATTR("SrsDimension", srsDimension, optional<unsigned long long>);
    ATTR("LowerCorner", lowerCorner, optional<gml::DirectPositionType>);
    ATTR("UpperCorner", upperCorner, optional<gml::DirectPositionType>);
}

ROWS(gml, PointType, CURRENT) {
    ATTR("position", pos, optional<gml::DirectPositionType>);
}

ROWS(gml, TimeIntervalLengthType, CURRENT) {
    readOnly(QStringLiteral("timeIntervalLength"), citygml::isSetAside(object) ? QVariant() : QVariant(static_cast<double>(object)));
    ATTR("unit", unit, gml::TimeUnitType);
    ATTR("radix", radix, optional<unsigned long long>);
    ATTR("factor", factor, optional<long long>);
}

ROWS(gml, TimePeriodType, CURRENT) {
    GROUP_EACH("beginPosition", beginPosition);
    GROUP_EACH("endPosition", endPosition);
    ATTR("duration", duration, optional<duration>);
}

ROWS(gml, TimePositionType, CURRENT) {
    readOnly(QStringLiteral("timePosition"), citygml::isSetAside(object) ? QVariant() : QVariant(QString::fromStdString(object)));
    ATTR("calendarEraName", calendarEraName, optional<string>);
    ATTR("frame", frame, uri);
    ATTR("intermediatePosition", indeterminatePosition, optional<gml::TimeIndeterminateValueType>);
}

} // namespace tolvik

#include "UI/Models/CityGMLModel/catalogues/CatalogueEnd.h"
