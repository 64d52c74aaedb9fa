#pragma once

#include "apps/tables/FeatureGeometry.h"
#include "apps/tables/RowSpool.h"
#include "apps/tables/TableCatalogue.h"
#include "apps/tables/TableExchange.h"
#include "apps/tables/TableWriter.h"

#include <memory>
#include <optional>
#include <QHash>
#include <QString>
#include <QStringList>

class OGRSpatialReference;

namespace tolvik::tables {

/// See DocumentTables.
class TableExport : public DocumentTables
{
public:
    /// \throws TableError
    explicit TableExport(ExportOptions options);
    TableExport(const TableExport&) = delete;
    TableExport& operator=(const TableExport&) = delete;
    ~TableExport() override;

    void begin(const CityGMLModel& model, const QString& file) override;
    void addFeature(int number) override;
    void end() override;
    void finish() override;

    QStringList problems() const override;
    QStringList remarks() const override { return remarked; }

private:
    void noteReference();
    void readRow(int number, FeatureRow& row);
    void addGeometry(const gml::AbstractFeatureType& feature, FeatureRow& row) const;
    TableWriter& openWriter();
    void writeRows();

    const ExportOptions options;
    TableCatalogue catalogue;
    std::unique_ptr<RowSpool> spool; // null where the columns are known, or wanted alone
    std::unique_ptr<TableWriter> writer;
    std::unique_ptr<OGRSpatialReference> reference;
    std::optional<QString> referenceName;
    bool placesCount = true; // whether the document's geometries are in that coordinate system
    // Of the document that has begun.
    const CityGMLModel* model = nullptr;
    QString file;
    std::unique_ptr<FeatureGeometry> geometries; // null where none are wanted
    QHash<QString, int> withoutTable;            // numbers of features, by type
    QStringList notes;
    QStringList remarked;
};

} // namespace tolvik::tables
