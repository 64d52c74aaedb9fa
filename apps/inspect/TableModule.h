#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <iosfwd>
#include <stdexcept>

namespace tolvik {
class CityGMLModel;
}

namespace tolvik::inspect {

/// The documents of a command and how they are loaded.
struct TableDocuments
{
    QStringList files;
    /// Loads a document, and tells the user where that fails.
    std::function<bool(CityGMLModel& model, const QString& file)> load;
    /// Saves a document under a name, and tells the user where that fails.
    std::function<bool(CityGMLModel& model, const QString& output)> save;
    std::ostream* err = nullptr; ///< takes what goes wrong, a line each
};

/// What `tolvik-inspect table` does, in the words of the user.
struct TableOptions
{
    QStringList types;
    QStringList columns;
    QString columnsFrom;
    QString out;    ///< empty where the columns are wanted alone
    QString format; ///< empty where the target tells it
    bool all = false;
    bool hasHeights = false;
    bool geometry = false;
    bool append = false;
};

/// What `tolvik-inspect apply` does, in the words of the user.
struct ApplyOptions
{
    QString table;
    QString sql;      ///< empty for all tables of the source
    QString idColumn; ///< empty for the usual one
    QString out;      ///< one of the two is given
    QString outDir;   ///< see out
    QString absent;   ///< empty where no cell removes an attribute
    bool create = false;
    bool skipBad = false;
    bool isPlain = false; ///< whether documents without changes are written anew, too
};

/// The options contradict each other or the target.
struct TableUsageError : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/// The commands that need GDAL. They are in a module of their own that is loaded when one of them is called:
/// loading GDAL takes longer than most other commands do.
class TableModule
{
public:
    virtual ~TableModule() = default;

    /// Writes the features of documents as tables.
    /// \return the program's exit code: 0, or 1 where something is missing from the tables
    /// \throws TableUsageError before anything is done
    virtual int writeTables(const TableOptions& options, const TableDocuments& documents) = 0;

    /// Writes a file of the columns that tables of several parts need, each with a file of its own columns.
    /// \return the program's exit code: 0, or 1 where a file could not be read or written
    virtual int joinColumns(const QString& out, const TableDocuments& files) = 0;

    /// Sets attributes from tables. Nothing is written where a cell cannot be set, unless that is asked for.
    /// \return the program's exit code: 0, or 1 where something could not be done
    /// \throws TableUsageError before anything is done
    virtual int applyTables(const ApplyOptions& options, const TableDocuments& documents) = 0;

    /// The module of the program, loaded when first asked for.
    /// \throws std::runtime_error where it is not there
    static TableModule& load();

protected:
    TableModule() = default;
    TableModule(const TableModule&) = default;
    TableModule& operator=(const TableModule&) = default;
};

} // namespace tolvik::inspect
