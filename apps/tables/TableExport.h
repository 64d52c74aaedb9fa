#pragma once

#include "apps/tables/RowSpool.h"
#include "apps/tables/TableCatalogue.h"
#include "apps/tables/TableWriter.h"

#include <memory>
#include <optional>
#include <QString>
#include <QStringList>

class OGRSpatialReference;

namespace tolvik {
class CityGMLModel;
class CoreProperty;
} // namespace tolvik

namespace tolvik::tables {

/// Which tables are made of documents, and where they go.
struct ExportOptions
{
    QStringList types;   ///< of features; all if empty
    QStringList columns; ///< paths of the columns, see ColumnPath; all if empty
    /// File that has the columns. One that is not there yet gets those that the documents turn out to have.
    QString columnsFile;
    bool otherContent = false; ///< also what no class has a member for
    bool hasHeights = false;   ///< surfaces with heights in place of the place on the map
    TableTarget target;        ///< without a format where the columns are wanted alone
};

/// Makes tables of documents: one of each type of features, with a row for each feature.
/// \code
/// TableExport tables(options);
/// for (...) { tables.add(model, file); }
/// tables.finish();
/// \endcode
/// Memory does not grow with the number of documents, as rows go to a temporary file, or to the target at
/// once where the columns are known from a file. What goes wrong is a TableError.
class TableExport
{
public:
    explicit TableExport(ExportOptions options);
    TableExport(const TableExport&) = delete;
    TableExport& operator=(const TableExport&) = delete;
    ~TableExport();

    /// Adds the features of a document.
    /// \param file what the rows tell as the file
    void add(const CityGMLModel& model, const QString& file);
    /// Writes what has not been written yet.
    void finish();

    /// What is not in the tables as it is in the documents, a line each.
    QStringList problems() const;
    /// What else users want to know, a line each.
    const QStringList& remarks() const { return remarked; }

private:
    void noteReference(const CityGMLModel& model, const QString& file);
    void readRow(const CityGMLModel& model, int number, FeatureRow& row);
    TableWriter& openWriter();
    void writeRows();

    const ExportOptions options;
    TableCatalogue catalogue;
    std::unique_ptr<RowSpool> spool; // null where the columns are known, or wanted alone
    std::unique_ptr<TableWriter> writer;
    std::unique_ptr<OGRSpatialReference> reference;
    std::optional<QString> referenceName;
    bool placesCount = true; // whether the document's geometries are in that coordinate system
    QStringList notes;
    QStringList remarked;
};

} // namespace tolvik::tables
