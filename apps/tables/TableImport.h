#pragma once

#include "apps/tables/EditTable.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVector>
#include <vector>

namespace gml {
class AbstractFeatureType;
}

namespace tolvik {
class CityGMLModel;
}

namespace tolvik::tables {

/// How tables of new values are brought into documents.
struct ImportOptions
{
    QString absentWord;  ///< cell that takes an attribute out of the document; empty for none
    bool create = false; ///< whether columns that a feature has no property for become generic attributes
};

/// Sets attributes of features from tables. Cells that say what the document says are left alone, and so are
/// empty ones. A cell that cannot be set leaves the document as it was.
///
/// The documents are gone through once, and what is wrong is known after finish(). To write only what is
/// right, they are gone through a second time, where the rows that are wrong as a whole are left out.
class TableImport
{
public:
    /// \param files what the rows may name as their file
    TableImport(std::vector<EditTable> tables, ImportOptions options, const QStringList& files);

    /// Sets the attributes of one document.
    /// \param file one of the files
    /// \return number of cells that have changed the document
    qint64 apply(CityGMLModel& model, const QString& file);
    /// Ends a pass through the documents.
    void finish();

    /// What is wrong with the tables, a line each.
    const QStringList& problems() const { return wrong; }
    void forgetProblems() { wrong.clear(); }

private:
    struct Place
    {
        int table;
        int row;
    };
    struct Match
    {
        QString file;        // in which a feature was found; null for none
        bool isLost = false; // whether the row is left out of a second pass
    };
    class Edit;

    QVector<Place> rowsOf(const QString& id, const QString& file) const;
    bool isMeant(const EditTable::Row& row, const QString& file) const;
    void tell(const Place& place, const QString& column, const QString& reason);
    void noteMatch(const Place& place, const QString& file);

    std::vector<EditTable> tables;
    const ImportOptions options;
    const QSet<QString> files;
    QHash<QString, QVector<Place>> byId;
    std::vector<std::vector<Match>> matches; // of each row
    std::vector<QVector<CellType>> types;    // of each column
    bool hasOtherContent = false;
    QStringList wrong;
};

} // namespace tolvik::tables
