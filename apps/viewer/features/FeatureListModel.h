#pragma once

#include <memory>
#include <QAbstractProxyModel>
#include <QFutureWatcher>
#include <QTimer>
#include <QVector>

namespace tolvik {
class CityGMLModel;
}

namespace tolvik::viewer {

/// The features as a flat list with name, type and identifier, which can be sorted and restricted to some of
/// them.
///
/// A sort runs beside the window, and the list takes the new order when it is there. Signals for single rows
/// are gathered, and announced as a range when the event loop runs: hiding everything sends one for each row.
class FeatureListModel : public QAbstractProxyModel
{
    Q_OBJECT

public:
    enum Column { Name, Type, Identifier, ColumnCount };

    /// \param model is the source for good, and lives longer
    explicit FeatureListModel(CityGMLModel& model, QObject* parent = nullptr);
    ~FeatureListModel() override;

    /// Restricts the list, until the source is reset or has other rows.
    /// \param rows rows of the source that remain, in ascending order
    void restrict(const QVector<int>& rows);
    void showAllRows();

    /// A column below 0 is the order of the document.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;
    bool isSorting() const { return sorting.isRunning(); }

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    using QObject::parent;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    bool hasChildren(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QModelIndex mapToSource(const QModelIndex& index) const override;
    QModelIndex mapFromSource(const QModelIndex& index) const override;
    QItemSelection mapSelectionToSource(const QItemSelection& selection) const override;
    QItemSelection mapSelectionFromSource(const QItemSelection& selection) const override;

signals:
    /// A sort has ended and shows.
    void sorted();

private:
    QString text(int sourceRow, int column) const;
    void takeAllRows();
    void takeOrder(const QVector<int>& rows);
    void number();
    void startSorting();
    void noteChange(const QModelIndex& topLeft, const QModelIndex& bottomRight);
    void announceChanges();
    void appendRows(int first, int last);
    void beginRemoval(int first, int last);
    void endRemoval(int first, int last);

    CityGMLModel& model;
    QVector<int> order;  // rows of the source
    QVector<int> places; // of each row of the source, -1 for one that is not in the list
    int sortColumn = -1;
    Qt::SortOrder sortOrder = Qt::AscendingOrder;
    QFutureWatcher<QVector<int>> sorting;
    QTimer announcing;
    int firstChanged = 0;
    int lastChanged = -1;
    int removed = -1; // row of the list that is being removed
};

} // namespace tolvik::viewer
