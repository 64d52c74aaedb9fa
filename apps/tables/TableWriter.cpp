#include "apps/tables/TableWriter.h"

#include "apps/tables/TableError.h"

#include <array>
#include <cstdio>
#include <gdal_priv.h>
#include <ogrsf_frmts.h>
#include <QDate>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <utility>

namespace tolvik::tables {

namespace {

/// A row tells when it was written nowhere but in the files of a format: there it would be other bytes each
/// time.
constexpr const char* noDate = "2000-01-01T00:00:00.000Z";

/// \param hasDates whether the format has days, moments and truth values of its own; else they are texts
OGRFieldType fieldType(CellType type, bool hasDates)
{
    if (!hasDates && type != CellType::Whole && type != CellType::Real) {
        return OFTString;
    }
    switch (type) {
    case CellType::Whole:
        return OFTInteger64;
    case CellType::Real:
        return OFTReal;
    case CellType::Boolean:
        return OFTInteger;
    case CellType::Date:
        return OFTDate;
    case CellType::DateTime:
        return OFTDateTime;
    default:
        return OFTString;
    }
}

OGRFieldSubType fieldSubType(CellType type)
{
    switch (type) {
    case CellType::Boolean:
        return OFSTBoolean;
    case CellType::List:
        return OFSTJSON;
    default:
        return OFSTNone;
    }
}

void setText(OGRFeature& feature, int field, const QString& text)
{
    if (field >= 0 && !text.isNull()) {
        feature.SetField(field, text.toUtf8().constData());
    }
}

void setValue(OGRFeature& feature, int field, const QVariant& value)
{
    switch (feature.GetFieldDefnRef(field)->GetType()) {
    case OFTInteger64:
        feature.SetField(field, static_cast<GIntBig>(value.toLongLong()));
        break;
    case OFTReal:
        feature.SetField(field, value.toDouble());
        break;
    case OFTInteger:
        feature.SetField(field, value.toBool() ? 1 : 0);
        break;
    case OFTDate: {
        const QDate day = value.toDate();
        feature.SetField(field, day.year(), day.month(), day.day(), 0, 0, 0.F, 0);
        break;
    }
    case OFTDateTime: {
        const QDate day = value.toDateTime().date();
        const QTime time = value.toDateTime().time();
        feature.SetField(field, day.year(), day.month(), day.day(), time.hour(), time.minute(),
                         static_cast<float>(time.second()), 0);
        break;
    }
    default:
        setText(feature, field, cellText(value));
    }
}

QString quoted(const QString& name)
{
    QString text = name;
    text.replace('"', QLatin1String("\"\""));
    return '"' + text + '"';
}

QString literal(const QString& value)
{
    QString text = value;
    text.replace('\'', QLatin1String("''"));
    return '\'' + text + '\'';
}

} // namespace

/// A layer with what is needed to fill it.
struct TableWriter::Table
{
    struct Fields
    {
        int value = -1; // of the column with the values, and the column
        int unit = -1;  // of the column with their units
        const Column* column = nullptr;
    };

    TableLayout layout;
    OGRLayer* layer = nullptr;
    QHash<int, Fields> fields; // by node
    int id = -1;
    int parent = -1;
    int file = -1;
    int type = -1;
    int name = -1;
    int ordinal = -1;
    int outer = -1;
    int geometryFrom = -1;
    bool hasGeometry = false;
    qint64 withoutGeometry = 0; // rows that the format could not hold
};

TableWriter::TableWriter(TableTarget aim, const QVector<TableLayout>& layouts,
                         const OGRSpatialReference* reference)
    : target(std::move(aim)), isFlatGeobuf(target.format->driver == QLatin1String("FlatGeobuf")),
      isCsv(target.format->driver == QLatin1String("CSV")), isPostgres(*target.format->ending == '\0')
{
    if (isPostgres) {
        openDataset(target.path);
    } else {
        // Beside the target, so that files need only be renamed in the end.
        const QFileInfo info(target.path);
        const bool isFolder = !target.format->holdsSeveral && !target.isOneType;
        if (isFolder && !QDir().mkpath(target.path)) {
            throw TableError(QStringLiteral("%1 could not be made").arg(target.path));
        }
        const QString place = isFolder ? target.path : info.absolutePath();
        folder = std::make_unique<QTemporaryDir>(place + QStringLiteral("/.tolvik-tables.XXXXXX"));
        if (!folder->isValid()) {
            throw TableError(QStringLiteral("%1 cannot be written to: %2").arg(place, folder->errorString()));
        }
        if (target.format->holdsSeveral) {
            files += info.fileName();
            openDataset(folder->filePath(info.fileName()));
        }
    }
    // Of several processes that begin at the same time one makes the tables, and the others find them.
    runInDatabase("SELECT pg_advisory_lock(hashtext('tables of features'))");
    for (const TableLayout& layout : layouts) {
        addTable(layout, reference);
    }
    if (!isFlatGeobuf && !target.isOneType) {
        describeColumns(layouts);
    }
    runInDatabase("SELECT pg_advisory_unlock(hashtext('tables of features'))");
    begin();
}

/// Nothing where the target is none.
void TableWriter::runInDatabase(const char* statement)
{
    if (isPostgres) {
        GDALDataset& database = *datasets.back();
        OGRLayer* const answer = database.ExecuteSQL(statement, nullptr, nullptr);
        if (answer != nullptr) {
            // The server is asked when the first row is.
            const std::unique_ptr<OGRFeature> row(answer->GetNextFeature());
            database.ReleaseResultSet(answer);
        }
    }
}

TableWriter::~TableWriter()
{
    closeAll();
}

void TableWriter::openDataset(const QString& path)
{
    const QByteArray name = path.toUtf8();
    GDALDriver* const driver = GetGDALDriverManager()->GetDriverByName(target.format->driver);
    if (driver == nullptr) {
        throw TableError(
            QStringLiteral("the GDAL of this machine cannot write %1").arg(QString(target.format->driver)));
    }
    errors.forget();
    CPLSetConfigOption("OGR_CURRENT_DATE", noDate);
    GDALDataset* const dataset = *target.format->ending == '\0'
                                     ? GDALDataset::Open(name.constData(), GDAL_OF_VECTOR | GDAL_OF_UPDATE)
                                     : driver->Create(name.constData(), 0, 0, 0, GDT_Unknown, nullptr);
    if (dataset == nullptr) {
        throw TableError(QStringLiteral("%1 could not be opened: %2").arg(target.path, errors.last()));
    }
    datasets.emplace_back(dataset);
}

/// File of a table in the temporary folder.
QString TableWriter::pathOf(const TableLayout& layout) const
{
    QString stem = layout.name;
    if (target.isOneType) {
        stem = QFileInfo(target.path).completeBaseName() + layout.name.mid(layout.type.size());
    }
    return stem + '.' + QString::fromLatin1(target.format->ending);
}

void TableWriter::addTable(const TableLayout& layout, const OGRSpatialReference* reference)
{
    auto table = std::make_unique<Table>();
    table->layout = layout;
    table->hasGeometry = target.hasGeometry && layout.group < 0;
    table->layer = addLayer(layout, table->hasGeometry ? reference : nullptr, table->hasGeometry);
    addColumns(*table);
    tablesOf[layout.type].push_back(table.get());
    tables.push_back(std::move(table));
}

/// The layer of a table, made where it is not there.
OGRLayer* TableWriter::addLayer(const TableLayout& layout, const OGRSpatialReference* reference,
                                bool hasGeometry)
{
    if (!target.format->holdsSeveral) {
        files += pathOf(layout);
        openDataset(folder->filePath(files.last()));
    }
    GDALDataset& dataset = *datasets.back();
    const QByteArray name = layout.name.toUtf8();
    OGRLayer* layer = target.append ? dataset.GetLayerByName(name.constData()) : nullptr;
    if (layer != nullptr) {
        return layer;
    }
    CPLStringList options;
    if (isCsv) {
        options.SetNameValue("STRING_QUOTING", "IF_NEEDED");
        options.SetNameValue("GEOMETRY", hasGeometry ? "AS_WKT" : "NONE");
    } else if (isFlatGeobuf) {
        // The index would put the rows in an order of its own.
        options.SetNameValue("SPATIAL_INDEX", "NO");
    } else if (isPostgres) {
        options.SetNameValue("LAUNDER", "NO");
        options.SetNameValue("GEOMETRY_NAME", "geometry");
        options.SetNameValue("OVERWRITE", target.append ? "NO" : "YES");
        CPLSetConfigOption("OGR_PG_DEFERRED_CREATION", "NO");
    }
    errors.forget();
    layer = dataset.CreateLayer(name.constData(), const_cast<OGRSpatialReference*>(reference),
                                hasGeometry ? wkbUnknown : wkbNone, options.List());
    if (layer == nullptr) {
        throw TableError(
            QStringLiteral("the table %1 could not be made: %2").arg(layout.name, errors.last()));
    }
    return layer;
}

/// The index of a column in a layer, made where it is not there.
int TableWriter::addColumn(OGRLayer& layer, const TableLayout& layout, const QString& name, CellType type,
                           const QString& unit)
{
    const QByteArray utf8 = name.toUtf8();
    const int index = layer.GetLayerDefn()->GetFieldIndex(utf8.constData());
    if (index >= 0) {
        return index;
    }
    OGRFieldDefn field(utf8.constData(), fieldType(type, !isCsv));
    if (!isCsv) {
        field.SetSubType(fieldSubType(type));
    }
    if (!unit.isEmpty()) {
        field.SetAlternativeName(unit.toUtf8().constData());
    }
    errors.forget();
    if (layer.CreateField(&field) != OGRERR_NONE) {
        throw TableError(QStringLiteral("the column %1 of %2 could not be made: %3")
                             .arg(name, layout.name, errors.last()));
    }
    if (isPostgres && !unit.isEmpty()) {
        const QString comment = QStringLiteral("COMMENT ON COLUMN %1.%2 IS %3")
                                    .arg(quoted(layout.name), quoted(name), literal(unit));
        runInDatabase(comment.toUtf8().constData());
    }
    return layer.GetLayerDefn()->GetFieldCount() - 1;
}

void TableWriter::addColumns(Table& table)
{
    const auto add = [&](const char* name, CellType type = CellType::Text) {
        return addColumn(*table.layer, table.layout, QString::fromLatin1(name), type, QString());
    };
    table.id = add("gml:id");
    if (table.layout.group < 0) {
        table.parent = add("parent");
        table.file = add("file");
        table.type = add("type");
        table.name = add("name");
    } else {
        table.file = add("file");
        table.ordinal = add("ordinal", CellType::Whole);
        table.outer = add("outer", CellType::Whole);
    }
    if (table.hasGeometry) {
        table.geometryFrom = add("geometryFrom");
    }
    for (const Column& column : table.layout.columns) {
        const int index = addColumn(*table.layer, table.layout, column.path, column.type, column.unit);
        Table::Fields& fields = table.fields[column.node];
        (column.isUnit ? fields.unit : fields.value) = index;
        if (!column.isUnit) {
            fields.column = &column;
        }
    }
}

/// Writes a table of all columns: not every format keeps types, and few keep units.
void TableWriter::describeColumns(const QVector<TableLayout>& layouts)
{
    TableLayout layout;
    layout.name = QStringLiteral("columns");
    OGRLayer* const layer = addLayer(layout, nullptr);
    if (target.append && layer->GetFeatureCount() > 0) {
        return;
    }
    const std::array<QString, 4> names{QStringLiteral("table"), QStringLiteral("column"),
                                       QStringLiteral("type"), QStringLiteral("unit")};
    for (const QString& name : names) {
        addColumn(*layer, layout, name, CellType::Text, QString());
    }
    for (const TableLayout& table : layouts) {
        for (const Column& column : table.columns) {
            OGRFeature feature(layer->GetLayerDefn());
            setText(feature, 0, table.name);
            setText(feature, 1, column.path);
            setText(feature, 2, nameOf(column.type));
            setText(feature, 3, column.unit);
            if (layer->CreateFeature(&feature) != OGRERR_NONE) {
                throw TableError(
                    QStringLiteral("a row of %1 could not be written: %2").arg(layout.name, errors.last()));
            }
        }
    }
    layer->SyncToDisk();
}

void TableWriter::write(const QString& file, const FeatureRow& row)
{
    const auto found = tablesOf.constFind(row.type);
    if (found == tablesOf.constEnd()) {
        return;
    }
    for (Table* const table : *found) {
        if (table->layout.group >= 0) {
            continue;
        }
        OGRFeature feature(table->layer->GetLayerDefn());
        setText(feature, table->id, row.id);
        setText(feature, table->parent, row.parent);
        setText(feature, table->file, file);
        setText(feature, table->type, row.type);
        setText(feature, table->name, row.name);
        if (table->hasGeometry) {
            setText(feature, table->geometryFrom, row.geometryFrom);
            setGeometry(feature, row);
        }
        for (const FeatureRow::Cell& cell : row.cells) {
            setCell(*table, feature, row, cell);
        }
        create(*table, feature);
    }
    if (found->size() > 1) {
        writeGroups(file, row);
    }
}

/// The rows of repeated groups, in the order of the property tree.
void TableWriter::writeGroups(const QString& file, const FeatureRow& row)
{
    const auto ofType = tablesOf.value(row.type);
    QHash<int, Table*> byNode;
    for (Table* const table : ofType) {
        byNode.insert(table->layout.group, table);
    }
    // For each group of the feature the nearest one, itself or around it, that has a table.
    QVector<int> owner(row.groups.size(), -1);
    QVector<int> ordinal(row.groups.size(), 0);
    QHash<int, int> counts;
    std::vector<std::unique_ptr<OGRFeature>> features(static_cast<std::size_t>(row.groups.size()));
    for (int i = 0; i < row.groups.size(); ++i) {
        const FeatureRow::Group& group = row.groups[i];
        const int outer = group.outer >= 0 ? owner[group.outer] : -1;
        Table* const table = byNode.value(group.node);
        owner[i] = table != nullptr ? i : outer;
        if (table == nullptr) {
            continue;
        }
        ordinal[i] = ++counts[group.node];
        auto feature = std::make_unique<OGRFeature>(table->layer->GetLayerDefn());
        setText(*feature, table->id, row.id);
        setText(*feature, table->file, file);
        feature->SetField(table->ordinal, ordinal[i]);
        if (outer >= 0) {
            feature->SetField(table->outer, ordinal[outer]);
        }
        features[static_cast<std::size_t>(i)] = std::move(feature);
    }
    for (const FeatureRow::Cell& cell : row.cells) {
        const int at = cell.group >= 0 ? owner[cell.group] : -1;
        if (at >= 0) {
            setCell(*byNode.value(row.groups[at].node), *features[static_cast<std::size_t>(at)], row, cell);
        }
    }
    for (int i = 0; i < row.groups.size(); ++i) {
        if (features[static_cast<std::size_t>(i)] != nullptr) {
            create(*byNode.value(row.groups[i].node), *features[static_cast<std::size_t>(i)]);
        }
    }
}

void TableWriter::setCell(Table& table, OGRFeature& feature, const FeatureRow& row,
                          const FeatureRow::Cell& cell)
{
    const auto found = table.fields.constFind(cell.node);
    if (found == table.fields.constEnd()) {
        return;
    }
    if (found->unit >= 0 && !cell.unit.isEmpty()) {
        setText(feature, found->unit, cell.unit);
    }
    if (found->value < 0) {
        return;
    }
    const std::optional<CellType> type = cellType(cell.value);
    const bool hasUnit = found->unit >= 0 || found->column->unit == cell.unit;
    if (type && hasUnit && holds(found->column->type, *type)) {
        setValue(feature, found->value, cell.value);
        return;
    }
    lost += QStringLiteral("%1: %2: the column is for %3, not for %4")
                .arg(row.id, found->column->path,
                     hasUnit ? nameOf(found->column->type)
                             : QStringLiteral("the unit \"%1\"").arg(found->column->unit),
                     hasUnit ? cellText(cell.value) : QStringLiteral("\"%1\"").arg(cell.unit));
}

void TableWriter::setGeometry(OGRFeature& feature, const FeatureRow& row)
{
    if (row.geometry.isEmpty()) {
        return;
    }
    OGRGeometry* geometry = nullptr;
    OGRGeometryFactory::createFromWkb(row.geometry.constData(), nullptr, &geometry,
                                      static_cast<std::size_t>(row.geometry.size()));
    feature.SetGeometryDirectly(geometry);
}

void TableWriter::create(Table& table, OGRFeature& feature)
{
    // Of a row without a geometry the driver would write nothing and say so to nobody.
    if (isFlatGeobuf && (feature.GetGeometryRef() == nullptr || feature.GetGeometryRef()->IsEmpty())) {
        ++table.withoutGeometry;
        return;
    }
    errors.forget();
    if (table.layer->CreateFeature(&feature) != OGRERR_NONE) {
        throw TableError(
            QStringLiteral("a row of %1 could not be written: %2").arg(table.layout.name, errors.last()));
    }
}

void TableWriter::begin()
{
    for (const auto& dataset : datasets) {
        if (dataset->TestCapability(ODsCTransactions)) {
            isWriting = dataset->StartTransaction() == OGRERR_NONE;
        }
    }
}

void TableWriter::commit()
{
    errors.forget();
    for (const auto& dataset : datasets) {
        if (isWriting && dataset->CommitTransaction() != OGRERR_NONE) {
            throw TableError(QStringLiteral("%1 could not be written: %2").arg(target.path, errors.last()));
        }
    }
    isWriting = false;
}

void TableWriter::endDocument()
{
    if (isPostgres) {
        commit();
        begin();
    }
}

void TableWriter::closeAll()
{
    tables.clear();
    tablesOf.clear();
    datasets.clear();
}

void TableWriter::finish()
{
    for (const auto& table : tables) {
        if (table->withoutGeometry > 0) {
            lost += QStringLiteral("%1 rows of %2 have no geometry, which FlatGeobuf cannot hold")
                        .arg(table->withoutGeometry)
                        .arg(table->layout.name);
        }
    }
    commit();
    errors.forget();
    closeAll();
    // A file that is written to its end when it is closed can fail there.
    if (errors.any()) {
        throw TableError(QStringLiteral("%1 could not be written: %2").arg(target.path, errors.last()));
    }
    const bool isFolder = !target.format->holdsSeveral && !target.isOneType;
    const QDir place(isFolder ? target.path : QFileInfo(target.path).absolutePath());
    for (const QString& file : qAsConst(files)) {
        if (isFlatGeobuf && QFileInfo(folder->filePath(file)).size() == 0) {
            continue;
        }
        const QByteArray from = QFile::encodeName(folder->filePath(file));
        if (std::rename(from.constData(), QFile::encodeName(place.filePath(file)).constData()) != 0) {
            throw TableError(QStringLiteral("%1 could not be written").arg(place.filePath(file)));
        }
    }
}

} // namespace tolvik::tables
