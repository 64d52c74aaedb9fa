#pragma once

#include "apps/tables/FeatureRow.h"
#include "apps/tables/OgrErrors.h"
#include "apps/tables/TableLayout.h"
#include "apps/tables/TableTarget.h"

#include <functional>
#include <memory>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <vector>

class GDALDataset;
class OGRFeature;
class OGRLayer;
class OGRSpatialReference;

namespace tolvik::tables {

/// Writes tables through OGR. Files come into being as a whole, at the end, in place of those of the same
/// name. A database gets the rows of each document as a whole.
class TableWriter
{
public:
    /// \param reference coordinate system of the geometries; null for an unknown one
    /// \throws TableError if the target cannot be written
    TableWriter(TableTarget target, const QVector<TableLayout>& layouts,
                const OGRSpatialReference* reference);
    TableWriter(const TableWriter&) = delete;
    TableWriter& operator=(const TableWriter&) = delete;
    ~TableWriter();

    /// Writes the row of a feature, and those of its repeated groups. Rows of types without a table are left
    /// out.
    /// \throws TableError
    void write(const QString& file, const FeatureRow& row);
    /// Ends the rows of a document.
    /// \throws TableError
    void endDocument();
    /// Puts the files in their place.
    /// \throws TableError
    void finish();

    /// Values that could not be written, a line each.
    const QStringList& problems() const { return lost; }

private:
    struct Table;

    void openDataset(const QString& path);
    void addTable(const TableLayout& layout, const OGRSpatialReference* reference);
    OGRLayer* addLayer(const TableLayout& layout, const OGRSpatialReference* reference,
                       bool hasGeometry = false);
    int addColumn(OGRLayer& layer, const TableLayout& layout, const QString& name, CellType type,
                  const QString& unit);
    void runInDatabase(const char* statement);
    void describeColumns(const QVector<TableLayout>& layouts);
    void addColumns(Table& table);
    QString pathOf(const TableLayout& layout) const;
    void writeGroups(const QString& file, const FeatureRow& row);
    void setCell(Table& table, OGRFeature& feature, const FeatureRow& row, const FeatureRow::Cell& cell);
    void setGeometry(OGRFeature& feature, const FeatureRow& row);
    void create(Table& table, OGRFeature& feature);
    void closeAll();
    void begin();
    void commit();

    const TableTarget target;
    const bool isFlatGeobuf;
    const bool isCsv;
    const bool isPostgres;
    OgrErrors errors;
    std::unique_ptr<QTemporaryDir> folder;
    std::vector<std::unique_ptr<GDALDataset>> datasets;
    std::vector<std::unique_ptr<Table>> tables;
    // By type of features.
    QHash<QString, std::vector<Table*>> tablesOf;
    QStringList files;
    QStringList lost;
    bool isWriting = false;
};

} // namespace tolvik::tables
