#pragma once

#include "apps/tables/ColumnTree.h"
#include "apps/tables/TableLayout.h"

#include <map>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

namespace tolvik::tables {

/// The types of features that tables are made of, with their columns: those that features were found to have,
/// or those of a file.
///
/// The file is JSON: `{"tables": [{"name", "type", "group", "columns": [{"path", "type", "unit"}]}]}`, where
/// `group` and `unit` may lack.
class TableCatalogue
{
public:
    /// The tree of a type, made where it is not there; null where the catalogue is from a file that lacks it.
    ColumnTree* treeOf(const QString& type);

    /// \param columns paths of the columns that are wanted, in their order; all if empty
    QVector<TableLayout> layouts(const QStringList& columns) const;

    /// Takes the tables of a file in place of what features have.
    /// \throws TableError for a file that cannot be read or is none of this kind
    void load(const QString& path);
    /// Adds what features of other documents have, as a file of their columns tells it.
    /// \throws TableError as load() does
    void merge(const QString& path);
    /// Keeps tables in a file.
    /// \throws TableError if it cannot be written
    static void save(const QString& path, const QVector<TableLayout>& tables);

    /// Whether the tables are those of a file.
    bool isFixed() const { return fixed; }
    /// What features had that the columns of a file have no place for, a line each.
    QStringList leftOut() const;
    /// Whether a type has values for a column.
    bool has(const QString& column) const;

private:
    QVector<TableLayout> layoutsOf(const QString& type, const QStringList& columns) const;
    QVector<TableLayout> read(const QString& path);

    std::map<QString, ColumnTree> trees;
    QStringList types;
    QVector<TableLayout> loaded;
    bool fixed = false;
};

} // namespace tolvik::tables
