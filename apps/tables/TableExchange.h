#pragma once

#include "apps/tables/TableReading.h"
#include "apps/tables/TableTarget.h"

#include <memory>
#include <QString>
#include <QStringList>
#include <vector>

namespace tolvik {
class CityGMLModel;
}

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
/// for (...) {
///     tables.begin(model, file);
///     for (...) { tables.addFeature(number); }
///     tables.end();
/// }
/// tables.finish();
/// \endcode
/// Memory does not grow with the number of documents, as rows go to a temporary file, or to the target at
/// once where the columns are known from a file. What goes wrong is a TableError.
class DocumentTables
{
public:
    virtual ~DocumentTables() = default;

    /// Begins a document.
    /// \param model stays as it is until end()
    /// \param file  what the rows tell as the file
    virtual void begin(const CityGMLModel& model, const QString& file) = 0;
    /// Adds a feature of the document, by its row in the model.
    virtual void addFeature(int number) = 0;
    /// Ends the document.
    virtual void end() = 0;
    /// Writes what has not been written yet. May be called in another thread than the others.
    virtual void finish() = 0;

    /// What is not in the tables as it is in the documents, a line each.
    virtual QStringList problems() const = 0;
    /// What else users want to know, a line each.
    virtual QStringList remarks() const = 0;

protected:
    DocumentTables() = default;
    DocumentTables(const DocumentTables&) = default;
    DocumentTables& operator=(const DocumentTables&) = default;
};

/// What the desktop program asks of GDAL. It is in the module for tables, which is loaded when first asked
/// for.
class TableExchange
{
public:
    virtual ~TableExchange() = default;

    /// \throws TableError
    virtual std::unique_ptr<DocumentTables> write(const ExportOptions& options) const = 0;
    /// See readTables().
    virtual std::vector<EditTable> read(const EditSource& source, QStringList& remarks) const = 0;
    /// See columnsOf().
    virtual QStringList columns(const QString& path) const = 0;

    /// \throws std::runtime_error where the module is not there
    static const TableExchange& load();

protected:
    TableExchange() = default;
    TableExchange(const TableExchange&) = default;
    TableExchange& operator=(const TableExchange&) = default;
};

} // namespace tolvik::tables
