#include "apps/viewer/table/AttributeTableModel.h"

#include "apps/viewer/document/Document.h"
#include "apps/viewer/edits/PropertyEdit.h"
#include "apps/viewer/properties/ValueRoles.h"
#include "gml/AbstractFeatureType.hxx"

#include <algorithm>
#include <cmath>
#include <QtConcurrentRun>
#include <utility>

namespace tolvik::viewer {

namespace {

constexpr int featuresToAsk = 50;

enum Rank { NumberRank, TextRank, AbsentRank };

QString withUnit(const QString& value, const QString& unit)
{
    return unit.isEmpty() || value.isEmpty() ? value : value + ' ' + unit;
}

} // namespace

AttributeTableModel::AttributeTableModel(Document& document, QObject* parent)
    : QAbstractTableModel(parent), document(document), rows(document.model())
{
    connect(&work, &SlicedWork::progressed, this, &AttributeTableModel::progressed);
    connect(&sorting, &QFutureWatcherBase::finished, this, &AttributeTableModel::takeOrder);
    connect(&document.model(), &QAbstractItemModel::dataChanged, this, &AttributeTableModel::noteChange);
}

AttributeTableModel::~AttributeTableModel()
{
    sorting.waitForFinished();
}

void AttributeTableModel::setType(const std::string& label)
{
    stop();
    if (label.empty() && all.isEmpty()) {
        return;
    }
    beginResetModel();
    all = rowsOf(label);
    setShown(all);
    rows.forgetAll();
    editable.clear();
    endResetModel();
    arrange();
}

void AttributeTableModel::setColumns(const QVector<PropertyPath>& newPaths)
{
    stop();
    beginResetModel();
    paths = newPaths;
    rows.setColumns(paths);
    editable.clear();
    endResetModel();
    arrange();
}

void AttributeTableModel::setFilter(const QString& newFilter)
{
    filter = newFilter.trimmed();
    arrange();
}

QString AttributeTableModel::enter(const QModelIndex& index, const QVariant& value)
{
    return document.editRunner().perform(
        PropertyEdit::prepare(document, {document.model().getFeature(shown[index.row()])},
                              PropertyEdit::SetValue, {MemberPlace::Property, paths[index.column()]}, value));
}

const AttributeCell& AttributeTableModel::cell(const QModelIndex& index) const
{
    return rows.cell(shown[index.row()], index.column());
}

QString AttributeTableModel::textOf(const AttributeCell& cell) const
{
    return withUnit(text.textOf(cell.value), cell.unit);
}

int AttributeTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : shown.size();
}

int AttributeTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : paths.size();
}

QVariant AttributeTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return QVariant();
    }
    const AttributeCell& cell = this->cell(index);
    switch (role) {
    case Qt::DisplayRole:
        return withUnit(text.previewOf(cell.value), cell.unit);
    case Qt::ToolTipRole:
        return QStringLiteral("%1\n%2").arg(toString(paths[index.column()]), data(index).toString());
    case Qt::TextAlignmentRole:
        return cell.value.userType() == QMetaType::QString || kindOf(cell.offered, {}) == ValueKind::List
                   ? QVariant()
                   : QVariant(static_cast<int>(Qt::AlignRight | Qt::AlignVCenter));
    case Qt::CheckStateRole:
        return cell.isPresent && kindOf(cell.offered, cell.choices) == ValueKind::Truth
                   ? QVariant(cell.value.toBool() ? Qt::Checked : Qt::Unchecked)
                   : QVariant();
    case ValueRole:
        return cell.value;
    case OfferedRole:
        return cell.offered;
    case ChoicesRole:
        return cell.choices;
    case AbsentRole:
        return !cell.isPresent;
    default:
        return QVariant();
    }
}

QVariant AttributeTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical) {
        return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
    }
    if (section < 0 || section >= paths.size()) {
        return QVariant();
    }
    switch (role) {
    case Qt::DisplayRole:
        return titleOf(paths[section]);
    case Qt::ToolTipRole:
        return toString(paths[section]);
    default:
        return QVariant();
    }
}

Qt::ItemFlags AttributeTableModel::flags(const QModelIndex& index) const
{
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return isEditable(index.column()) ? flags | Qt::ItemIsEditable : flags;
}

/// Whether a feature among the first ones has an attribute in the column that can be edited. A cell without
/// an attribute has no editor.
bool AttributeTableModel::isEditable(int column) const
{
    const auto known = editable.constFind(column);
    if (known != editable.constEnd()) {
        return *known;
    }
    bool isThere = false;
    bool isOne = false;
    for (int i = 0; i < std::min(all.size(), featuresToAsk) && !isOne; ++i) {
        const AttributeCell& cell = rows.cell(all[i], column);
        isThere = isThere || cell.isThere;
        isOne = cell.isEditable;
    }
    // Where none of them can have it, others do, and an edit finds out.
    isOne = isOne || !isThere;
    editable.insert(column, isOne);
    return isOne;
}

void AttributeTableModel::sort(int column, Qt::SortOrder order)
{
    sortPath = column >= 0 && column < paths.size() ? paths[column] : PropertyPath();
    sortOrder = order;
    arrange();
}

/// The rows of the features of a type.
QVector<int> AttributeTableModel::rowsOf(const std::string& label) const
{
    QVector<int> found;
    const int count = label.empty() ? 0 : document.model().rowCount();
    for (int row = 0; row < count; ++row) {
        if (document.model().getFeature(row)->typeLabel == label) {
            found.append(row);
        }
    }
    return found;
}

/// Begins to filter and to sort.
void AttributeTableModel::arrange()
{
    stop();
    if (sortPath.isEmpty() && !isFiltered()) {
        showRows(all);
        return;
    }
    work.start(
        all.size(), [this](int step) { readRow(all[step]); }, [this] { sortRead(); });
}

void AttributeTableModel::stop()
{
    work.stop();
    sorting.cancel();
    keys.clear();
}

void AttributeTableModel::readRow(int row)
{
    const int sortColumn = paths.indexOf(sortPath);
    const QVector<AttributeCell> cells =
        isFiltered() ? rows.valuesOf(row, 0, paths.size() - 1) : rows.valuesOf(row, sortColumn, sortColumn);
    const bool isWanted = !isFiltered() || std::any_of(cells.begin(), cells.end(), [this](const auto& cell) {
        return textOf(cell).contains(filter, Qt::CaseInsensitive);
    });
    if (isWanted) {
        keys.append(keyOf(row, cells.value(sortColumn)));
    }
}

void AttributeTableModel::sortRead()
{
    sorting.setFuture(
        QtConcurrent::run(&AttributeTableModel::sortedRows, std::exchange(keys, {}), sortOrder));
}

/// May run in any thread.
QVector<int> AttributeTableModel::sortedRows(QVector<Key> keys, Qt::SortOrder order)
{
    const auto isBefore = [](const Key& a, const Key& b) {
        return a.number != b.number ? a.number < b.number : a.text < b.text;
    };
    const bool isAscending = order == Qt::AscendingOrder;
    std::stable_sort(keys.begin(), keys.end(), [&](const Key& a, const Key& b) {
        return a.rank != b.rank ? a.rank < b.rank : isAscending ? isBefore(a, b) : isBefore(b, a);
    });
    QVector<int> rows;
    rows.reserve(keys.size());
    for (const Key& key : std::as_const(keys)) {
        rows.append(key.row);
    }
    return rows;
}

void AttributeTableModel::takeOrder()
{
    if (!sorting.isCanceled()) {
        showRows(sorting.result());
        emit arranged();
    }
}

/// Shows rows in another order, or others. Where they are the same, cursor and selection stay with them.
void AttributeTableModel::showRows(QVector<int> wanted)
{
    if (wanted == shown) {
        return;
    }
    if (wanted.size() != shown.size()) {
        beginResetModel();
        setShown(std::move(wanted));
        endResetModel();
        return;
    }
    emit layoutAboutToBeChanged();
    const QModelIndexList former = persistentIndexList();
    QVector<int> formerRows;
    for (const QModelIndex& index : former) {
        formerRows.append(shown[index.row()]);
    }
    setShown(std::move(wanted));
    QModelIndexList present;
    present.reserve(former.size());
    for (int i = 0; i < former.size(); ++i) {
        const int place = placeOf(formerRows[i]);
        present.append(place >= 0 ? createIndex(place, former[i].column()) : QModelIndex());
    }
    changePersistentIndexList(former, present);
    emit layoutChanged();
}

void AttributeTableModel::setShown(QVector<int> wanted)
{
    shown = std::move(wanted);
    places.fill(-1, document.model().rowCount());
    for (int place = 0; place < shown.size(); ++place) {
        places[shown[place]] = place;
    }
}

void AttributeTableModel::noteChange(const QModelIndex& first, const QModelIndex& last,
                                     const QVector<int>& roles)
{
    if (!roles.contains(Qt::UserRole)) {
        return;
    }
    for (int row = first.row(); row <= last.row(); ++row) {
        rows.forget(row);
        const int place = placeOf(row);
        if (place >= 0 && !paths.isEmpty()) {
            emit dataChanged(index(place, 0), index(place, paths.size() - 1));
        }
    }
}

AttributeTableModel::Key AttributeTableModel::keyOf(int row, const AttributeCell& cell) const
{
    Key key;
    key.row = row;
    switch (kindOf(cell.value, {})) {
    case ValueKind::None:
        key.rank = AbsentRank;
        break;
    case ValueKind::Whole:
    case ValueKind::Real:
    case ValueKind::Truth:
        key.number = cell.value.toDouble();
        // What is no number has no place among them.
        key.rank = std::isnan(key.number) ? AbsentRank : NumberRank;
        key.number = std::isnan(key.number) ? 0.0 : key.number;
        break;
    case ValueKind::Date:
    case ValueKind::DateTime:
        key.rank = NumberRank;
        key.number = static_cast<double>(cell.value.toDateTime().toMSecsSinceEpoch());
        break;
    default:
        key.rank = TextRank;
        key.text = text.textOf(cell.value).toCaseFolded();
    }
    return key;
}

/// The name of the attribute, with that of its group where another column has the same.
QString AttributeTableModel::titleOf(const PropertyPath& path) const
{
    const auto hasName = [&path](const PropertyPath& other) { return other.last().name == path.last().name; };
    return std::count_if(paths.begin(), paths.end(), hasName) < 2 ? path.last().name
                                                                  : toString(path.mid(path.size() - 2));
}

} // namespace tolvik::viewer
