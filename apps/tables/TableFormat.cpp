#include "apps/tables/TableFormat.h"

#include <algorithm>
#include <array>

namespace tolvik::tables {

namespace {

const std::array<TableFormat, 7> formats{{
    {"csv", "CSV", "csv", false, false},
    {"gpkg", "GPKG", "gpkg", true, true},
    {"geojson", "GeoJSON", "geojson", false, true},
    {"geojsonl", "GeoJSONSeq", "geojsonl", false, true},
    {"fgb", "FlatGeobuf", "fgb", false, true},
    {"xlsx", "XLSX", "xlsx", true, false},
    {"postgresql", "PostgreSQL", "", true, true},
}};

template <typename Predicate>
const TableFormat* find(Predicate predicate)
{
    const auto* const found = std::find_if(formats.begin(), formats.end(), predicate);
    return found != formats.end() ? found : nullptr;
}

} // namespace

const TableFormat* formatNamed(const QString& name)
{
    return find([&](const TableFormat& format) { return name == QLatin1String(format.name); });
}

const TableFormat* formatOf(const QString& target)
{
    if (target.startsWith(QLatin1String("PG:"), Qt::CaseInsensitive)) {
        return formatNamed(QStringLiteral("postgresql"));
    }
    return find([&](const TableFormat& format) {
        return *format.ending != '\0' &&
               target.endsWith(QLatin1Char('.') + QString::fromLatin1(format.ending), Qt::CaseInsensitive);
    });
}

QStringList formatNames()
{
    QStringList names;
    for (const TableFormat& format : formats) {
        names += QString::fromLatin1(format.name);
    }
    return names;
}

} // namespace tolvik::tables
