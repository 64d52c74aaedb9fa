#include "PropertiesCommand.h"

#include "framework/AbstractUnit.h"
#include "framework/CoreProperty.h"
#include "gml/AbstractFeatureType.hxx"
#include "JsonText.h"
#include "TextLine.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"
#include "UI/Models/CityGMLModel/properties/GmlCorePropertyCreator.h"

#include <cmath>
#include <ostream>
#include <QDateTime>
#include <QStringList>
#include <QVector>

namespace tolvik::inspect {
namespace {

/// A value as one line of text; empty for an invalid one.
QString valueText(const QVariant& value)
{
    if (value.userType() == QMetaType::QVariantList) {
        const QVariantList values = value.toList();
        QStringList entries;
        for (const QVariant& entry : values) {
            entries += valueText(entry);
        }
        return QLatin1Char('[') + entries.join(QStringLiteral(", ")) + QLatin1Char(']');
    }
    if (value.userType() == QMetaType::QDateTime) {
        return value.toDateTime().toString(Qt::ISODate);
    }
    return textLine(value.toString());
}

/// A value in JSON: numbers and truth values as such, lists as arrays, an invalid one as null, and all else
/// as text.
std::string valueJson(const QVariant& value)
{
    switch (static_cast<QMetaType::Type>(value.userType())) {
    case QMetaType::UnknownType:
        return "null";
    case QMetaType::Double:
        return std::isfinite(value.toDouble()) ? value.toString().toStdString() : jsonText(value.toString());
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return value.toString().toStdString();
    case QMetaType::QVariantList: {
        const QVariantList entries = value.toList();
        std::string array;
        for (const QVariant& entry : entries) {
            array += (array.empty() ? "" : ",") + valueJson(entry);
        }
        return '[' + array + ']';
    }
    case QMetaType::QDateTime:
        return jsonText(value.toDateTime().toString(Qt::ISODate));
    default:
        return jsonText(value.toString());
    }
}

void printText(CoreProperty& property, const std::string& indent, std::ostream& out)
{
    const QVariant value = property.value();
    out << indent << valueText(property.name()).toStdString();
    if (value.isValid() || property.editable()) {
        out << ':';
    }
    if (value.isValid()) {
        out << ' ' << valueText(value).toStdString();
        if (property.unit() != nullptr) {
            out << ' ' << property.unit()->name().toStdString();
        }
    }
    out << '\n';
    for (const auto& child : property.properties()) {
        printText(*child, indent + "  ", out);
    }
}

void printJson(CoreProperty& property, const std::string& indent, std::ostream& out)
{
    out << indent << "{\"name\":" << jsonText(property.name()) << ",\"value\":" << valueJson(property.value())
        << ",\"unit\":" << (property.unit() == nullptr ? "null" : jsonText(property.unit()->name()))
        << ",\"editable\":" << (property.editable() ? "true" : "false")
        << ",\"potentialValues\":" << valueJson(QVariant(property.potentialValues())) << ",\"children\":[";
    const char* separator = "\n";
    for (const auto& child : property.properties()) {
        out << separator;
        printJson(*child, indent + " ", out);
        separator = ",\n";
    }
    out << "]}";
}

/// Rows of the selected features. Empty with a word on \a err if there are none.
QVector<int> selectedRows(const CityGMLModel& model, const QString& file, const PropertiesOptions& options,
                          std::ostream& err)
{
    const int count = model.rowCount(QModelIndex());
    QVector<int> rows;
    for (int row = 0; row < count; ++row) {
        const auto& id = model.getFeature(row)->id();
        if (options.every || options.row == row || (options.id && id.present() && id.get() == *options.id)) {
            rows += row;
        }
    }
    if (rows.isEmpty() && options.id) {
        err << "tolvik-inspect: " << file.toStdString() << " has no feature with the gml:id " << *options.id
            << '\n';
    } else if (rows.isEmpty() && options.row) {
        err << "tolvik-inspect: " << file.toStdString() << " has no row " << *options.row << "; it has "
            << count << '\n';
    }
    return rows;
}

} // namespace

int runProperties(tolvik::CityGMLModel& model, const QString& file, const PropertiesOptions& options,
                  std::ostream& out, std::ostream& err)
{
    const QVector<int> rows = selectedRows(model, file, options, err);
    if (rows.isEmpty() && !options.every) {
        return 1;
    }
    if (options.json && options.every) {
        out << "[\n";
    }
    const char* separator = "";
    for (const int row : rows) {
        gml::AbstractFeatureType* const feature = model.getFeature(row);
        const Fondo::RefPtr<CoreProperty> root =
            GmlCorePropertyCreator::createProperty(feature, !options.absent);
        model.addPropertiesFromProviders(model.index(row, 0), *root);
        if (options.json) {
            out << separator;
            printJson(*root, std::string(), out);
            separator = ",\n";
        } else {
            out << row << ' ' << feature->typeLabel << '\n';
            for (const auto& group : root->properties()) {
                printText(*group, "  ", out);
            }
        }
    }
    if (options.json) {
        out << (options.every ? "\n]\n" : "\n");
    }
    return 0;
}

} // namespace tolvik::inspect
