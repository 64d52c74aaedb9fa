#pragma once

#include "model/RandomReference.h"
#include "support/CityGMLTreeFixture.h"

#include <QItemSelectionModel>
#include <QListView>
#include <QTreeView>
#include <random>
#include <set>

namespace testsupport {

/// The model with its views, its reference and the operations on both.
class RandomRun
{
public:
    explicit RandomRun(unsigned seed);

    /// Does one operation, and gives its name.
    QString step();

    /// What differs from the reference; empty if nothing does.
    QString difference() const;
    void testTree() { const QAbstractItemModelTester tester(&tree, fatal); }

private:
    static constexpr auto fatal = QAbstractItemModelTester::FailureReportingMode::Fatal;
    static constexpr auto wholeRows = QItemSelectionModel::Rows;

    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random); }
    bool chance() { return below(2) == 0; }

    QString newName() { return chance() ? QString("name %1").arg(below(1000)) : QString(); }

    Item* anyRow();
    std::vector<Item*> someRows();
    Item* anyNode();
    QModelIndex inList(const Item* item, int column = 0) const;
    QModelIndex inTree(const Item* item, int column = 0) const;
    QList<QModelIndex> inList(const std::vector<Item*>& items) const;

    /// An identifier list, with entries that are none.
    QStringList junkAnd(QStringList ids);
    std::set<int> rowsIn(const QStringList& ids) const;

    /// After a change that is not signalled in full nobody can say what the selection should be.
    void forgetTreeSelection();
    void bindFeatures();
    void loadText(const QByteArray& text);
    void loadDocument();
    void loadMalformed();
    void loadMissing();
    void reload();
    void addFeature(Item* item);
    void addNew();
    void addAgain();
    void remove(Item* item);
    void removeRow();
    void removeBranch();
    void rename(Item* item, QAbstractItemModel& in, const QModelIndex& index);
    void renameInList();
    void renameInTree();
    void show(const std::vector<Item*>& items, bool visible);
    void hideOne();
    void showOne();
    void hideSome();
    void showSome();
    void hideAll();
    void showAll();
    void checkNode();
    void disable();
    void enable();
    void setSelected(const QStringList& ids);
    void selectInList();
    void selectInTree();
    void saveLists();
    void restoreVisibility(const QStringList& ids, bool visible);
    void restoreVisible() { restoreVisibility(junkAnd(visibleIds), true); }
    void restoreHidden() { restoreVisibility(junkAnd(hiddenIds), false); }
    void restoreSelection() { setSelected(junkAnd(selectedIds)); }

    void exchangeTraversal();
    void exchangeChildren();
    void expand();
    QString listDifference() const;
    QString selectionDifference() const;
    Qt::CheckState stateOf(const Item* item) const;
    QString treeDifference(const QModelIndex& parent, const std::vector<Item*>& expected,
                           std::size_t& nodes) const;

    std::mt19937 random;
    Reference reference;
    tolvik::CityGMLModel model{nullptr, nullptr};
    const QAbstractItemModelTester listTester{&model, fatal};
    OpenTree tree{"tree"};
    QItemSelectionModel treeSelection{&tree};
    QListView list;
    QTreeView treeView;
    QStringList hiddenIds;
    QStringList visibleIds;
    QStringList selectedIds;
};

} // namespace testsupport
