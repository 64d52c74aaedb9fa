#pragma once

#include <QItemSelectionModel>

namespace tolvik::viewer {

/// A selection of whole rows that may have many ranges, as every parent in a tree makes one of its own.
///
/// Qt merges the ranges of a selection one by one with all others, in a time that grows with the square of
/// their number. Here many ranges are taken as they are, and replace the former ones as a whole:
/// selectionChanged() then does not list what is no longer selected, so that whoever shows the selection
/// shows all of it anew.
class RowSelectionModel : public QItemSelectionModel
{
    Q_OBJECT

public:
    explicit RowSelectionModel(QAbstractItemModel* model, QObject* parent = nullptr);
    ~RowSelectionModel() override;

    using QItemSelectionModel::select;
    void select(const QItemSelection& selection, SelectionFlags command) override;

    /// Selects rows, and nothing else.
    void replace(const QItemSelection& rows);
};

} // namespace tolvik::viewer
