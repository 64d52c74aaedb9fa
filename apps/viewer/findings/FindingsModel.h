#pragma once

#include "citygml/Findings.h"

#include <QAbstractTableModel>
#include <vector>

namespace tolvik::viewer {

/// What reading found wrong with a document, one place a row.
///
/// Of many findings of one kind the first are listed; a row behind these tells of the others.
class FindingsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Line, Reason, Path, Feature, ColumnCount };
    /// Of the identifier of the feature around the place, empty where there is none.
    enum Roles { IdentifierRole = Qt::UserRole };

    explicit FindingsModel(QObject* parent = nullptr);
    ~FindingsModel() override;

    void show(const std::vector<citygml::FindingGroup>& groups);
    /// Number of all findings, listed or not.
    std::uint64_t count() const { return total; }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

private:
    std::vector<citygml::Finding> findings;
    std::uint64_t total = 0;
};

} // namespace tolvik::viewer
