#include "apps/tables/TableReading.h"

#include "apps/tables/OgrErrors.h"
#include "apps/tables/TableError.h"

#include <algorithm>
#include <gdal_priv.h>
#include <memory>
#include <ogrsf_frmts.h>
#include <QDate>
#include <QDateTime>
#include <QHash>
#include <QLocale>
#include <QRegularExpression>

namespace tolvik::tables {

namespace {

/// Units that a source tells in a table of its own, by table and column.
using Units = QHash<QPair<QString, QString>, QString>;

QString nameOf(const OGRFieldDefn& field)
{
    return QString::fromUtf8(field.GetNameRef());
}

std::optional<CellType> typeOfField(const OGRFieldDefn& field)
{
    switch (field.GetType()) {
    case OFTInteger:
        return field.GetSubType() == OFSTBoolean ? CellType::Boolean : CellType::Whole;
    case OFTInteger64:
        return CellType::Whole;
    case OFTReal:
        return CellType::Real;
    case OFTDate:
        return CellType::Date;
    case OFTDateTime:
        return CellType::DateTime;
    default:
        return CellType::Text;
    }
}

QString dateText(const OGRFeature& row, int field, bool hasTime)
{
    int year = 0, month = 0, day = 0, hour = 0, minute = 0, zone = 0;
    float second = 0;
    row.GetFieldAsDateTime(field, &year, &month, &day, &hour, &minute, &second, &zone);
    const QDate date(year, month, day);
    return hasTime ? cellText(QDateTime(date, QTime(hour, minute, static_cast<int>(second))))
                   : cellText(date);
}

QString textOf(const OGRFeature& row, int field)
{
    if (!row.IsFieldSetAndNotNull(field)) {
        return QString();
    }
    const OGRFieldDefn& column = *row.GetFieldDefnRef(field);
    switch (column.GetType()) {
    case OFTReal:
        return QString::number(row.GetFieldAsDouble(field), 'g', QLocale::FloatingPointShortest);
    case OFTInteger:
        if (column.GetSubType() == OFSTBoolean) {
            return row.GetFieldAsInteger(field) != 0 ? QStringLiteral("true") : QStringLiteral("false");
        }
        return QString::number(row.GetFieldAsInteger(field));
    case OFTDate:
        return dateText(row, field, false);
    case OFTDateTime:
        return dateText(row, field, true);
    default:
        return QString::fromUtf8(row.GetFieldAsString(field));
    }
}

/// Takes a unit in brackets off the end of a column's name, such as "gen:heat demand [kWh]".
QString takeUnit(QString& name)
{
    const int open = name.lastIndexOf(QLatin1String(" ["));
    if (open <= 0 || !name.endsWith(']')) {
        return QString();
    }
    QString unit = name.mid(open + 2, name.size() - open - 3);
    name.truncate(open);
    return unit;
}

EditTable::Column columnOf(const OGRFieldDefn& field, const QString& table, const Units& units, bool hasTypes)
{
    EditTable::Column column;
    column.name = nameOf(field);
    QString name = column.name;
    column.unit = takeUnit(name);
    column.path = ColumnPath::parse(name);
    if (column.unit.isEmpty()) {
        column.unit = units.value({table, column.name}, QString::fromUtf8(field.GetAlternativeNameRef()));
    }
    if (hasTypes) {
        column.type = typeOfField(field);
    }
    return column;
}

/// Reads one layer, see readTables().
class LayerReader
{
public:
    LayerReader(OGRLayer& layer, const QString& idColumn, const Units& units, bool hasTypes)
        : layer(layer), idColumn(idColumn)
    {
        table.name = QString::fromUtf8(layer.GetName());
        const OGRFeatureDefn& fields = *layer.GetLayerDefn();
        for (int i = 0; i < fields.GetFieldCount(); ++i) {
            addColumn(i, *fields.GetFieldDefn(i), units, hasTypes);
        }
        for (EditTable::Column& column : table.columns) {
            ColumnPath unit = column.path;
            unit.isUnit = true;
            column.unitColumn = unitColumns.value(unit.text(), -1);
        }
        if (isGroup()) {
            table.groupDepth = groupDepth();
        }
    }

    bool hasIds() const { return id >= 0; }
    /// Whether the rows are of groups that a feature may have several of.
    bool isGroup() const { return ordinal >= 0; }
    /// Whether the name of the table tells which groups.
    bool isKnownGroup() const { return table.groupDepth > 0; }

    /// Number of rows that say of no feature whose they are, when read() is done.
    qint64 withoutId() const { return nameless; }

    EditTable read(bool isText)
    {
        table.lineWord = isText ? QStringLiteral("line") : QStringLiteral("row");
        qint64 line = isText ? 1 : 0; // a header comes first
        layer.ResetReading();
        for (;;) {
            const std::unique_ptr<OGRFeature> feature(layer.GetNextFeature());
            if (feature == nullptr) {
                break;
            }
            EditTable::Row row;
            row.line = ++line;
            row.id = textOf(*feature, id);
            if (row.id.isEmpty()) {
                ++nameless;
                continue;
            }
            row.file = file >= 0 ? textOf(*feature, file) : QString();
            row.ordinal = ordinal >= 0 ? std::max(1, feature->GetFieldAsInteger(ordinal)) : 0;
            row.cells.reserve(sources.size());
            for (const int field : qAsConst(sources)) {
                row.cells += textOf(*feature, field);
            }
            table.rows.push_back(std::move(row));
        }
        return std::move(table);
    }

private:
    void addColumn(int index, const OGRFieldDefn& field, const Units& units, bool hasTypes)
    {
        const QString name = nameOf(field);
        if (name == idColumn) {
            id = index;
            return;
        }
        if (name == QLatin1String("file")) {
            file = index;
            return;
        }
        if (name == QLatin1String("ordinal")) {
            ordinal = index;
            return;
        }
        if (isGroup() && name == QLatin1String("outer")) {
            return;
        }
        EditTable::Column column = columnOf(field, table.name, units, hasTypes);
        if (column.path.steps.isEmpty() || name == QLatin1String("geometryFrom")) {
            return;
        }
        if (column.path.isUnit) {
            unitColumns.insert(column.path.text(), table.columns.size());
        } else if (name == QLatin1String("name")) {
            column.role = EditTable::Role::Name;
        } else if (name == QLatin1String("parent")) {
            column.role = EditTable::Role::Parent;
        } else if (name == QLatin1String("type")) {
            column.role = EditTable::Role::Type;
        }
        table.columns += column;
        sources += index;
    }

    /// How many steps all paths have in common, to the last one that the name of the table ends with. A
    /// number may stand behind it.
    int groupDepth() const
    {
        static const QRegularExpression number(QStringLiteral("[0-9]+$"));
        const QString plain = QString(table.name).remove(number);
        const QVector<ColumnPath::Step> first =
            table.columns.isEmpty() ? QVector<ColumnPath::Step>() : table.columns.first().path.steps;
        for (int depth = first.size() - 1; depth > 0; --depth) {
            const bool isCommon =
                std::all_of(table.columns.begin(), table.columns.end(), [&](const EditTable::Column& column) {
                    return column.path.steps.size() > depth &&
                           std::equal(first.begin(), first.begin() + depth, column.path.steps.begin(),
                                      [](const auto& a, const auto& b) { return a.label == b.label; });
                });
            const QString end = '_' + first[depth - 1].label;
            if (isCommon && (table.name.endsWith(end) || plain.endsWith(end))) {
                return depth;
            }
        }
        return 0;
    }

    OGRLayer& layer;
    const QString idColumn;
    EditTable table;
    QVector<int> sources; // fields of the columns
    QHash<QString, int> unitColumns;
    int id = -1;
    int file = -1;
    int ordinal = -1;
    qint64 nameless = 0;
};

Units unitsOf(GDALDataset& dataset)
{
    Units units;
    OGRLayer* const layer = dataset.GetLayerByName("columns");
    if (layer == nullptr) {
        return units;
    }
    const OGRFeatureDefn& fields = *layer->GetLayerDefn();
    const int table = fields.GetFieldIndex("table");
    const int column = fields.GetFieldIndex("column");
    const int unit = fields.GetFieldIndex("unit");
    if (table < 0 || column < 0 || unit < 0) {
        return units;
    }
    layer->ResetReading();
    for (;;) {
        const std::unique_ptr<OGRFeature> row(layer->GetNextFeature());
        if (row == nullptr) {
            return units;
        }
        units.insert({textOf(*row, table), textOf(*row, column)}, textOf(*row, unit));
    }
}

/// \throws TableError
std::unique_ptr<GDALDataset> open(const QString& path, const OgrErrors& errors)
{
    GDALAllRegister();
    // By itself the driver takes the first row for one of many where all are texts.
    CPLSetConfigOption("OGR_XLSX_HEADERS", "FORCE");
    std::unique_ptr<GDALDataset> dataset(
        GDALDataset::Open(path.toUtf8().constData(), GDAL_OF_VECTOR | GDAL_OF_READONLY));
    if (dataset == nullptr) {
        throw TableError(QStringLiteral("%1 is no table that can be read: %2").arg(path, errors.last()));
    }
    return dataset;
}

} // namespace

std::vector<EditTable> readTables(const EditSource& source, QStringList& remarks)
{
    OgrErrors errors;
    const std::unique_ptr<GDALDataset> dataset = open(source.path, errors);
    const QString driver = QString::fromUtf8(dataset->GetDriverName());
    const bool isText = driver == QLatin1String("CSV") || driver == QLatin1String("XLSX");
    const Units units = unitsOf(*dataset);
    std::vector<EditTable> tables;
    const auto add = [&](OGRLayer& layer) {
        LayerReader reader(layer, source.idColumn, units, driver != QLatin1String("CSV"));
        const QString name = QString::fromUtf8(layer.GetName());
        if (!reader.hasIds() && name != QLatin1String("columns")) {
            remarks += QStringLiteral("%1: the table %2 has no column %3, and was left out")
                           .arg(source.path, name, source.idColumn);
        } else if (reader.isGroup() && !reader.isKnownGroup()) {
            remarks +=
                QStringLiteral("%1: the table %2 has rows of groups, and its name does not tell of which: "
                               "it was left out")
                    .arg(source.path, name);
        } else if (reader.hasIds()) {
            tables.push_back(reader.read(isText));
            if (reader.withoutId() > 0) {
                remarks += QStringLiteral("%1: %2 rows of %3 name no feature, and were left out")
                               .arg(source.path)
                               .arg(reader.withoutId())
                               .arg(name);
            }
        }
    };
    errors.forget();
    if (!source.query.isEmpty()) {
        OGRLayer* const result = dataset->ExecuteSQL(source.query.toUtf8().constData(), nullptr, nullptr);
        if (result != nullptr) {
            add(*result);
            dataset->ReleaseResultSet(result);
        }
    } else {
        for (int i = 0; i < dataset->GetLayerCount(); ++i) {
            add(*dataset->GetLayer(i));
        }
    }
    if (errors.any()) {
        throw TableError(QStringLiteral("%1 could not be read: %2").arg(source.path, errors.last()));
    }
    if (tables.empty()) {
        throw TableError(
            QStringLiteral("%1 has no table with a column %2").arg(source.path, source.idColumn));
    }
    return tables;
}

QStringList columnsOf(const QString& path)
{
    const OgrErrors errors;
    const std::unique_ptr<GDALDataset> dataset = open(path, errors);
    QStringList names;
    for (int i = 0; i < dataset->GetLayerCount(); ++i) {
        const OGRFeatureDefn& fields = *dataset->GetLayer(i)->GetLayerDefn();
        for (int field = 0; field < fields.GetFieldCount(); ++field) {
            names += nameOf(*fields.GetFieldDefn(field));
        }
    }
    names.removeDuplicates();
    return names;
}

} // namespace tolvik::tables
