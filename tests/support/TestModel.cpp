#include "support/TestModel.h"

namespace testsupport {

TestModel::TestModel(const QStringList& names, tolvik::ModelInterface* plugin) : Model(plugin, nullptr)
{
    for (const QString& name : names) {
        addItem(name, nullptr);
    }
}

TestItem* TestModel::addItem(const QString& name, TestItem* parent)
{
    const int row = static_cast<int>(items.size());
    beginInsertRows(QModelIndex(), row, row);
    items.push_back(std::make_unique<TestItem>(TestItem{name, parent}));
    visibility.append(false);
    properties.append(Fondo::RefPtr<tolvik::CoreProperty>(new tolvik::CoreProperty(name, QVariant())));
    endInsertRows();
    return items.back().get();
}

void TestModel::removeItem(int row)
{
    beginRemoveRows(QModelIndex(), row, row);
    items.erase(items.begin() + row);
    visibility.removeAt(row);
    properties.removeAt(row);
    endRemoveRows();
}

void TestModel::replaceAll(const QStringList& names)
{
    beginResetModel();
    items.clear();
    visibility.clear();
    properties.clear();
    for (const QString& name : names) {
        items.push_back(std::make_unique<TestItem>(TestItem{name, nullptr}));
        visibility.append(false);
        properties.append(Fondo::RefPtr<tolvik::CoreProperty>(new tolvik::CoreProperty(name, QVariant())));
    }
    endResetModel();
}

void TestModel::reverse()
{
    emit layoutAboutToBeChanged();
    std::reverse(items.begin(), items.end());
    emit layoutChanged();
}

TestItem* TestModel::item(int row) const
{
    return row >= 0 && row < rowCount() ? items[std::size_t(row)].get() : nullptr;
}

int TestModel::rowOf(const TestItem* item) const
{
    const auto found =
        std::find_if(items.begin(), items.end(), [item](const auto& each) { return each.get() == item; });
    return found != items.end() ? static_cast<int>(found - items.begin()) : -1;
}

QString TestModel::visibleRows() const
{
    QString text;
    for (int row = 0; row < rowCount(); ++row) {
        text += isVisible(index(row, 0)) ? '+' : '-';
    }
    return text;
}

int TestModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(items.size());
}

QModelIndex TestModel::index(int row, int column, const QModelIndex& parent) const
{
    return hasIndex(row, column, parent) ? createIndex(row, column) : QModelIndex();
}

QVariant TestModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || role != Qt::DisplayRole) {
        return QVariant();
    }
    return index.column() == 0 ? item(index.row())->name : QStringLiteral("Item");
}

bool TestModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || role != Qt::EditRole) {
        return false;
    }
    item(index.row())->name = value.toString();
    emit dataChanged(index, index);
    return true;
}

Qt::ItemFlags TestModel::flags(const QModelIndex& index) const
{
    const TestItem* const row = item(index.row());
    const bool isEnabled = row != nullptr && !disabledNames.contains(row->name);
    return isEnabled ? Qt::ItemIsSelectable | Qt::ItemIsEnabled : Qt::NoItemFlags;
}

tolvik::EditRangeDialog* TestModel::getEditRangeDialog(const QVector<double>& ranges)
{
    return new tolvik::EditRangeDialog(ranges);
}

void TestModel::change(const QString& call, const QModelIndex& index, bool visible)
{
    calls.append(QStringLiteral("%1 %2").arg(call).arg(index.row()));
    setVisibility(index, visible);
    emit visibilityChanged(index);
}

void TestModel::change(const QString& call, const QList<QModelIndex>& indexes, bool visible)
{
    QStringList rows;
    for (const QModelIndex& index : indexes) {
        rows.append(QString::number(index.row()));
        setVisibility(index, visible);
    }
    calls.append(QStringLiteral("%1 [%2]").arg(call, rows.join(' ')));
    emit visibilityChanged(indexes);
}

} // namespace testsupport
