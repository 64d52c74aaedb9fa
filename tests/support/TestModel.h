#pragma once

#include "fondo/RefPtr.h"
#include "framework/EditRangeDialog.h"
#include "framework/Model.h"

#include <algorithm>
#include <memory>
#include <QStringList>
#include <vector>

/// A row of a TestModel. Rows form a tree by their parents, as the features of a document do.
struct TestItem
{
    QString name;
    TestItem* parent = nullptr;
};

/// A document model in memory for tests of the framework: each row has a name, and what reaches the
/// operations that a model supplies is written down in `calls`.
class TestModel : public tolvik::Model
{
public:
    explicit TestModel(const QStringList& names = QStringList(), tolvik::ModelInterface* plugin = nullptr)
        : Model(plugin, nullptr)
    {
        for (const QString& name : names) {
            addItem(name, nullptr);
        }
    }

    TestItem* addItem(const QString& name, TestItem* parent)
    {
        const int row = static_cast<int>(items.size());
        beginInsertRows(QModelIndex(), row, row);
        items.push_back(std::make_unique<TestItem>(TestItem{name, parent}));
        visibility.append(false);
        properties.append(Fondo::RefPtr<tolvik::CoreProperty>(new tolvik::CoreProperty(name, QVariant())));
        endInsertRows();
        return items.back().get();
    }

    void removeItem(int row)
    {
        beginRemoveRows(QModelIndex(), row, row);
        items.erase(items.begin() + row);
        visibility.removeAt(row);
        properties.removeAt(row);
        endRemoveRows();
    }

    void replaceAll(const QStringList& names)
    {
        beginResetModel();
        items.clear();
        visibility.clear();
        properties.clear();
        for (const QString& name : names) {
            items.push_back(std::make_unique<TestItem>(TestItem{name, nullptr}));
            visibility.append(false);
            properties.append(
                Fondo::RefPtr<tolvik::CoreProperty>(new tolvik::CoreProperty(name, QVariant())));
        }
        endResetModel();
    }

    void reverse()
    {
        emit layoutAboutToBeChanged();
        std::reverse(items.begin(), items.end());
        emit layoutChanged();
    }

    TestItem* item(int row) const
    {
        return row >= 0 && row < rowCount() ? items[std::size_t(row)].get() : nullptr;
    }

    int rowOf(const TestItem* item) const
    {
        const auto found =
            std::find_if(items.begin(), items.end(), [item](const auto& each) { return each.get() == item; });
        return found != items.end() ? static_cast<int>(found - items.begin()) : -1;
    }

    QString visibleRows() const
    {
        QString text;
        for (int row = 0; row < rowCount(); ++row) {
            text += isVisible(index(row, 0)) ? '+' : '-';
        }
        return text;
    }

    using CoreModel::visibility;

    QStringList calls;
    QStringList disabledNames;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(items.size());
    }

    int columnCount(const QModelIndex& /*parent*/ = QModelIndex()) const override { return 2; }

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override
    {
        return hasIndex(row, column, parent) ? createIndex(row, column) : QModelIndex();
    }

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override
    {
        if (!index.isValid() || role != Qt::DisplayRole) {
            return QVariant();
        }
        return index.column() == 0 ? item(index.row())->name : QStringLiteral("Item");
    }

    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override
    {
        if (!index.isValid() || role != Qt::EditRole) {
            return false;
        }
        item(index.row())->name = value.toString();
        emit dataChanged(index, index);
        return true;
    }

    Qt::ItemFlags flags(const QModelIndex& index) const override
    {
        const TestItem* const row = item(index.row());
        const bool isEnabled = row != nullptr && !disabledNames.contains(row->name);
        return isEnabled ? Qt::ItemIsSelectable | Qt::ItemIsEnabled : Qt::NoItemFlags;
    }

    void load(QIODevice* /*device*/, const QUrl& /*url*/) override {}
    void load(std::istream& /*stream*/) override {}
    void load(const QString& /*path*/) override {}
    bool save(bool /*flag*/) override { return false; }
    bool saveAs(const QString& /*path*/, bool /*flag*/) override { return false; }
    void reset(const QModelIndex& /*index*/) override {}
    void zoom(const QModelIndex& /*index*/) override {}
    bool hasRepresentation(const QModelIndex& index) const override { return index.isValid(); }
    void dataSetChanged() override {}
    void getVisibilityIds(QStringList& /*hiddenIds*/, QStringList& /*visibleIds*/) const override {}
    void setVisibilityIds(const QStringList& /*ids*/, bool /*visible*/) override {}
    void getSelectedIds(QStringList& /*ids*/) const override {}
    void setSelectedIds(const QStringList& /*ids*/) override {}
    QList<QModelIndex> getIndexList(const QStringList& /*ids*/) const override { return {}; }
    void propertyChanged(const QModelIndex& /*index*/, bool /*rebuild*/) override {}
    QString type() const override { return QStringLiteral("Test"); }
    tolvik::EditRangeDialog* getEditRangeDialog(const QVector<double>& ranges) override
    {
        return new tolvik::EditRangeDialog(ranges);
    }

protected:
    void doDataSetChanged() override {}

    void reallyDoHideAll() override { calls.append("hideAll"); }
    void reallyDoHide(const QModelIndex& index) override { change("hide", index, false); }
    void reallyDoHide(const QList<QModelIndex>& indexes) override { change("hide", indexes, false); }
    void reallyDoShowAll() override { calls.append("showAll"); }
    void reallyDoShow(const QModelIndex& index) override { change("show", index, true); }
    void reallyDoShow(const QList<QModelIndex>& indexes) override { change("show", indexes, true); }

private:
    void change(const QString& call, const QModelIndex& index, bool visible)
    {
        calls.append(QStringLiteral("%1 %2").arg(call).arg(index.row()));
        setVisibility(index, visible);
        emit visibilityChanged(index);
    }

    void change(const QString& call, const QList<QModelIndex>& indexes, bool visible)
    {
        QStringList rows;
        for (const QModelIndex& index : indexes) {
            rows.append(QString::number(index.row()));
            setVisibility(index, visible);
        }
        calls.append(QStringLiteral("%1 [%2]").arg(call, rows.join(' ')));
        emit visibilityChanged(indexes);
    }

    std::vector<std::unique_ptr<TestItem>> items;
};
