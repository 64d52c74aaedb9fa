#pragma once

#include "fondo/RefPtr.h"
#include "framework/EditRangeDialog.h"
#include "framework/Model.h"

#include <algorithm>
#include <memory>
#include <QStringList>
#include <vector>

namespace testsupport {

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
    explicit TestModel(const QStringList& names = QStringList(), tolvik::ModelInterface* plugin = nullptr);
    TestItem* addItem(const QString& name, TestItem* parent);
    void removeItem(int row);
    void replaceAll(const QStringList& names);
    void reverse();
    TestItem* item(int row) const;
    int rowOf(const TestItem* item) const;
    QString visibleRows() const;

    using CoreModel::visibility;

    QStringList calls;
    QStringList disabledNames;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& /*parent*/ = QModelIndex()) const override { return 2; }

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
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
    tolvik::EditRangeDialog* getEditRangeDialog(const QVector<double>& ranges) override;

protected:
    void doDataSetChanged() override {}

    void reallyDoHideAll() override { calls.append("hideAll"); }
    void reallyDoHide(const QModelIndex& index) override { change("hide", index, false); }
    void reallyDoHide(const QList<QModelIndex>& indexes) override { change("hide", indexes, false); }
    void reallyDoShowAll() override { calls.append("showAll"); }
    void reallyDoShow(const QModelIndex& index) override { change("show", index, true); }
    void reallyDoShow(const QList<QModelIndex>& indexes) override { change("show", indexes, true); }

private:
    void change(const QString& call, const QModelIndex& index, bool visible);
    void change(const QString& call, const QList<QModelIndex>& indexes, bool visible);

    std::vector<std::unique_ptr<TestItem>> items;
};

} // namespace testsupport
