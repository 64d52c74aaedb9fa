#include "apps/viewer/features/FeatureListModel.h"

#include "apps/viewer/features/FeatureTexts.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"

#include <algorithm>
#include <numeric>
#include <QtConcurrentRun>

namespace tolvik::viewer {

namespace {

/// The rows in the order of their texts; rows of the same text stay in the order they have.
QVector<int> sortedRows(QVector<int> rows, const QVector<QString>& texts, Qt::SortOrder order)
{
    const bool isAscending = order == Qt::AscendingOrder;
    // The texts belong to the rows as they stand here.
    QVector<int> positions(rows.size());
    std::iota(positions.begin(), positions.end(), 0);
    std::stable_sort(positions.begin(), positions.end(), [&](int left, int right) {
        const int comparison = texts[left].compare(texts[right], Qt::CaseInsensitive);
        return isAscending ? comparison < 0 : comparison > 0;
    });
    std::transform(positions.begin(), positions.end(), positions.begin(),
                   [&](int position) { return rows[position]; });
    return positions;
}

/// Adjacent rows become one range.
template <class Index>
QItemSelection selectionOf(QVector<int>& rows, int lastColumn, Index index)
{
    std::sort(rows.begin(), rows.end());
    QItemSelection selection;
    for (int i = 0; i < rows.size();) {
        int end = i + 1;
        while (end < rows.size() && rows[end] <= rows[end - 1] + 1) {
            ++end;
        }
        selection.append(QItemSelectionRange(index(rows[i], 0), index(rows[end - 1], lastColumn)));
        i = end;
    }
    return selection;
}

} // namespace

FeatureListModel::FeatureListModel(CityGMLModel& model, QObject* parent)
    : QAbstractProxyModel(parent), model(model)
{
    QAbstractProxyModel::setSourceModel(&model);
    announcing.setSingleShot(true);
    announcing.setInterval(0);
    connect(&announcing, &QTimer::timeout, this, &FeatureListModel::announceChanges);
    connect(&sorting, &QFutureWatcherBase::finished, this, [this] {
        if (!sorting.isCanceled() && sorting.result().size() == order.size()) {
            takeOrder(sorting.result());
            emit sorted();
        }
    });
    connect(&model, &QAbstractItemModel::modelAboutToBeReset, this, [this] {
        beginResetModel();
        order.clear();
        places.clear();
    });
    connect(&model, &QAbstractItemModel::modelReset, this, [this] {
        takeAllRows();
        endResetModel();
        startSorting();
    });
    connect(&model, &QAbstractItemModel::dataChanged, this, &FeatureListModel::noteChange);
    connect(&model, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex&, int first, int last) { appendRows(first, last); });
    connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [this](const QModelIndex&, int first, int last) { beginRemoval(first, last); });
    connect(&model, &QAbstractItemModel::rowsRemoved, this,
            [this](const QModelIndex&, int first, int last) { endRemoval(first, last); });
    takeAllRows();
}

FeatureListModel::~FeatureListModel()
{
    sorting.waitForFinished();
}

void FeatureListModel::takeAllRows()
{
    order.resize(model.rowCount());
    std::iota(order.begin(), order.end(), 0);
    number();
}

void FeatureListModel::number()
{
    places.fill(-1, model.rowCount());
    for (int i = 0; i < order.size(); ++i) {
        places[order[i]] = i;
    }
}

void FeatureListModel::restrict(const QVector<int>& rows)
{
    beginResetModel();
    order = rows;
    number();
    endResetModel();
    startSorting();
}

void FeatureListModel::showAllRows()
{
    beginResetModel();
    takeAllRows();
    endResetModel();
    startSorting();
}

void FeatureListModel::sort(int column, Qt::SortOrder wanted)
{
    sortColumn = column;
    sortOrder = wanted;
    if (column < 0) {
        QVector<int> rows = order;
        std::sort(rows.begin(), rows.end());
        takeOrder(rows);
    }
    startSorting();
}

void FeatureListModel::startSorting()
{
    if (sortColumn < 0 || order.isEmpty()) {
        sorting.cancel();
        return;
    }
    QVector<QString> texts;
    texts.reserve(order.size());
    for (const int row : qAsConst(order)) {
        texts.append(text(row, sortColumn));
    }
    sorting.setFuture(QtConcurrent::run(sortedRows, order, texts, sortOrder));
}

void FeatureListModel::takeOrder(const QVector<int>& rows)
{
    emit layoutAboutToBeChanged();
    const QModelIndexList before = persistentIndexList();
    QVector<int> sourceRows;
    sourceRows.reserve(before.size());
    for (const QModelIndex& each : before) {
        sourceRows.append(order[each.row()]);
    }
    order = rows;
    number();
    QModelIndexList after;
    after.reserve(before.size());
    for (int i = 0; i < before.size(); ++i) {
        const int place = places[sourceRows[i]];
        after.append(place < 0 ? QModelIndex() : createIndex(place, before[i].column()));
    }
    changePersistentIndexList(before, after);
    emit layoutChanged();
}

QModelIndex FeatureListModel::index(int row, int column, const QModelIndex& parent) const
{
    return hasIndex(row, column, parent) ? createIndex(row, column) : QModelIndex();
}

QModelIndex FeatureListModel::parent(const QModelIndex& /*child*/) const
{
    return QModelIndex();
}

int FeatureListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : order.size();
}

int FeatureListModel::columnCount(const QModelIndex& /*parent*/) const
{
    return ColumnCount;
}

bool FeatureListModel::hasChildren(const QModelIndex& parent) const
{
    return !parent.isValid() && !order.isEmpty();
}

QString FeatureListModel::text(int sourceRow, int column) const
{
    const gml::AbstractFeatureType& feature = *model.getFeature(sourceRow);
    switch (column) {
    case Name:
        return nameOf(feature);
    case Type:
        return typeOf(feature);
    default:
        return idOf(feature);
    }
}

QVariant FeatureListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= order.size()) {
        return QVariant();
    }
    if (role == Qt::DisplayRole) {
        return text(order[index.row()], index.column());
    }
    return index.column() == Identifier ? QVariant() : model.data(mapToSource(index), role);
}

QVariant FeatureListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QVariant();
    }
    switch (section) {
    case Name:
        return tr("Name");
    case Type:
        return tr("Type");
    case Identifier:
        return tr("Identifier");
    default:
        return QVariant();
    }
}

Qt::ItemFlags FeatureListModel::flags(const QModelIndex& index) const
{
    return model.flags(mapToSource(index));
}

QModelIndex FeatureListModel::mapToSource(const QModelIndex& index) const
{
    if (!index.isValid() || index.row() >= order.size()) {
        return QModelIndex();
    }
    return model.index(order[index.row()], std::min(index.column(), model.columnCount() - 1));
}

QModelIndex FeatureListModel::mapFromSource(const QModelIndex& index) const
{
    if (!index.isValid() || index.row() >= places.size() || places[index.row()] < 0) {
        return QModelIndex();
    }
    return createIndex(places[index.row()], index.column());
}

QItemSelection FeatureListModel::mapSelectionToSource(const QItemSelection& selection) const
{
    QVector<int> rows;
    for (const QItemSelectionRange& range : selection) {
        for (int row = range.top(); row <= range.bottom() && row < order.size(); ++row) {
            rows.append(order[row]);
        }
    }
    return selectionOf(rows, model.columnCount() - 1,
                       [this](int row, int column) { return model.index(row, column); });
}

QItemSelection FeatureListModel::mapSelectionFromSource(const QItemSelection& selection) const
{
    QVector<int> rows;
    for (const QItemSelectionRange& range : selection) {
        for (int row = range.top(); row <= range.bottom() && row < places.size(); ++row) {
            if (places[row] >= 0) {
                rows.append(places[row]);
            }
        }
    }
    return selectionOf(rows, ColumnCount - 1,
                       [this](int row, int column) { return createIndex(row, column); });
}

void FeatureListModel::noteChange(const QModelIndex& topLeft, const QModelIndex& bottomRight)
{
    for (int row = topLeft.row(); row <= bottomRight.row(); ++row) {
        const int place = row < places.size() ? places[row] : -1;
        if (place >= 0) {
            firstChanged = announcing.isActive() ? std::min(firstChanged, place) : place;
            lastChanged = announcing.isActive() ? std::max(lastChanged, place) : place;
            announcing.start();
        }
    }
}

void FeatureListModel::announceChanges()
{
    const int last = std::min(lastChanged, order.size() - 1);
    if (firstChanged <= last) {
        emit dataChanged(createIndex(firstChanged, 0), createIndex(last, ColumnCount - 1));
    }
}

void FeatureListModel::appendRows(int first, int last)
{
    sorting.cancel();
    beginInsertRows(QModelIndex(), order.size(), order.size() + last - first);
    for (int row = first; row <= last; ++row) {
        order.append(row);
    }
    number();
    endInsertRows();
}

void FeatureListModel::beginRemoval(int first, int /*last*/)
{
    sorting.cancel();
    removed = first < places.size() ? places[first] : -1;
    if (removed >= 0) {
        beginRemoveRows(QModelIndex(), removed, removed);
    }
}

void FeatureListModel::endRemoval(int first, int /*last*/)
{
    if (removed >= 0) {
        order.remove(removed);
    }
    for (int& row : order) {
        row -= row > first ? 1 : 0;
    }
    number();
    if (removed >= 0) {
        removed = -1;
        endRemoveRows();
    }
}

} // namespace tolvik::viewer
