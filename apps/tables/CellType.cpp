#include "apps/tables/CellType.h"

#include <array>
#include <limits>
#include <QDate>
#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <utility>

namespace tolvik::tables {

namespace {

const std::array<std::pair<CellType, const char*>, 7> names{{
    {CellType::Text, "text"},
    {CellType::Whole, "whole"},
    {CellType::Real, "real"},
    {CellType::Boolean, "boolean"},
    {CellType::Date, "date"},
    {CellType::DateTime, "dateTime"},
    {CellType::List, "list"},
}};

QJsonValue jsonEntry(const QVariant& entry)
{
    const std::optional<CellType> type = cellType(entry);
    if (!type) {
        return QJsonValue();
    }
    switch (*type) {
    case CellType::Whole:
    case CellType::Real:
    case CellType::Boolean:
        return QJsonValue::fromVariant(entry);
    default:
        return cellText(entry);
    }
}

} // namespace

std::optional<CellType> cellType(const QVariant& value)
{
    switch (static_cast<QMetaType::Type>(value.userType())) {
    case QMetaType::UnknownType:
        return std::nullopt;
    case QMetaType::Bool:
        return CellType::Boolean;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
        return CellType::Whole;
    case QMetaType::ULongLong:
        return value.toULongLong() <= quint64(std::numeric_limits<qint64>::max()) ? CellType::Whole
                                                                                  : CellType::Text;
    case QMetaType::Double:
        return CellType::Real;
    case QMetaType::QDate:
        return value.toDate().isValid() ? std::optional(CellType::Date) : std::nullopt;
    case QMetaType::QDateTime:
        return value.toDateTime().isValid() ? std::optional(CellType::DateTime) : std::nullopt;
    case QMetaType::QVariantList:
        return CellType::List;
    default:
        return CellType::Text;
    }
}

bool holds(CellType column, CellType value)
{
    return column == value || column == CellType::Text ||
           (column == CellType::Real && value == CellType::Whole);
}

CellType widened(CellType a, CellType b)
{
    if (holds(a, b)) {
        return a;
    }
    return holds(b, a) ? b : CellType::Text;
}

QString nameOf(CellType type)
{
    for (const auto& [known, name] : names) {
        if (known == type) {
            return QString::fromLatin1(name);
        }
    }
    return QString();
}

std::optional<CellType> cellTypeNamed(const QString& name)
{
    for (const auto& [type, known] : names) {
        if (name == QLatin1String(known)) {
            return type;
        }
    }
    return std::nullopt;
}

QString cellText(const QVariant& value)
{
    switch (static_cast<QMetaType::Type>(value.userType())) {
    case QMetaType::QDate:
        return value.toDate().toString(Qt::ISODate);
    case QMetaType::QDateTime:
        return value.toDateTime().toString(Qt::ISODate);
    case QMetaType::QVariantList: {
        QJsonArray array;
        const QVariantList entries = value.toList();
        for (const QVariant& entry : entries) {
            array.append(jsonEntry(entry));
        }
        return QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact));
    }
    default:
        return value.toString();
    }
}

} // namespace tolvik::tables
