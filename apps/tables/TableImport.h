#pragma once

#include "apps/tables/CellEdit.h"
#include "apps/tables/EditTable.h"

#include <functional>
#include <QCoreApplication>
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

/// A row or a cell of a table that cannot be brought into a document.
struct ImportProblem
{
    QString table;
    QString lineWord; ///< how people count the rows of the source
    qint64 line = 0;
    QString id;
    QString column; ///< empty where the row is wrong as a whole
    QString reason;

    QString text() const;
};

/// A cell that would change a document.
struct PlannedChange
{
    int feature = 0; ///< row of the model
    QString id;
    QString column;
    QString cell;
    CellChange change;
};

/// Sets attributes of features from tables. Cells that say what the document says are left alone, and so are
/// empty ones. A cell that cannot be set leaves the document as it was.
///
/// The documents are gone through once, and what is wrong is known after finish(). To write only what is
/// right, they are gone through a second time, where the rows that are wrong as a whole are left out.
class TableImport
{
    Q_DECLARE_TR_FUNCTIONS(tolvik::tables::TableImport)

public:
    /// \param files what the rows may name as their file
    TableImport(std::vector<EditTable> tables, ImportOptions options, const QStringList& files);

    /// Sets the attributes of one document.
    /// \param file one of the files
    /// \return number of cells that have changed the document
    qint64 apply(CityGMLModel& model, const QString& file);
    /// Finds out what the cells would change in one feature, and leaves the document as it is.
    /// \param feature row of the model
    /// \param receive gets each cell that would change something
    void plan(CityGMLModel& model, int feature, const QString& file,
              const std::function<void(const PlannedChange&)>& receive);
    /// Ends a pass through the documents.
    void finish();

    /// What is wrong with the tables.
    const QVector<ImportProblem>& problems() const { return wrong; }
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
    struct CellPlace
    {
        Place row;
        int column;
    };
    using EachCell = std::function<void(const CellPlace& place, const CellEdit::Cell& cell)>;

    const EditTable& tableOf(const Place& place) const;
    const EditTable::Row& rowOf(const Place& place) const;
    const QString& textOf(const CellPlace& place) const;
    QString keyOf(const CellPlace& cell) const;
    QVector<Place> rowsOf(const QString& id, const QString& file) const;
    bool isMeant(const EditTable::Row& row, const QString& file) const;
    void tell(const Place& place, const QString& column, const QString& reason);
    void noteMatch(const Place& place, const QString& file);
    QVector<CellPlace> cellsOf(const QVector<Place>& rows);
    QVector<CellPlace> withoutContradictions(const QVector<CellPlace>& cells);
    CellEdit::Cell cellAt(const CellPlace& place) const;
    void forEachCell(const gml::AbstractFeatureType& feature, const QString& file, CellEdit& edit,
                     const EachCell& step);

    std::vector<EditTable> tables;
    const ImportOptions options;
    const QSet<QString> files;
    QHash<QString, QVector<Place>> byId;
    std::vector<std::vector<Match>> matches; // of each row
    std::vector<QVector<CellType>> types;    // of each column
    bool hasOtherContent = false;
    QVector<ImportProblem> wrong;
};

} // namespace tolvik::tables
