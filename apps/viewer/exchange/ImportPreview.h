#pragma once

#include "apps/tables/TableImport.h"

#include <QAbstractTableModel>
#include <vector>

namespace tolvik::viewer {

/// What an import would change, a row a cell: first what is wrong with the table, then the changes.
class ImportPreview : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Feature, Attribute, Before, After, ColumnCount };

    explicit ImportPreview(QObject* parent = nullptr);
    ~ImportPreview() override;

    void clear();
    void add(const std::vector<tables::PlannedChange>& more);
    void setProblems(const QVector<tables::ImportProblem>& problems);

    const std::vector<tables::PlannedChange>& changes() const { return planned; }
    int problemCount() const { return wrong.size(); }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    QString textOf(const tables::ImportProblem& problem, int column) const;
    QString textOf(const tables::PlannedChange& change, int column) const;

    std::vector<tables::PlannedChange> planned;
    QVector<tables::ImportProblem> wrong;
};

} // namespace tolvik::viewer
