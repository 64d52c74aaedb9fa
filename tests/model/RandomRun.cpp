#include "model/RandomRun.h"

#include "app/AppearanceType.hxx"
#include "bldg/BoundarySurfacePropertyType.hxx"
#include "bldg/OpeningPropertyType.hxx"
#include "gml/FeaturePropertyType.hxx"

#include <algorithm>
#include <QtTest>

namespace testsupport {

using tolvik::CityGMLProxyModel;

namespace {

constexpr std::size_t mostFeatures = 60;

template <class T>
T make(const Item& item)
{
    T feature;
    feature.id(gml::AbstractGMLType::id_type(item.id));
    if (!item.name.isNull()) {
        feature.name().push_back(gml::CodeType(item.name.toStdString()));
    }
    return feature;
}

template <class Members, class Held>
void eraseMember(Members& members, const gml::AbstractFeatureType* feature, Held held)
{
    const auto found = std::find_if(members.begin(), members.end(), [&](auto& member) {
        return held(member).present() && &held(member).get() == feature;
    });
    QVERIFY(found != members.end());
    members.erase(found);
}

} // namespace

RandomRun::RandomRun(unsigned seed) : random(seed)
{
    tree.setSourceModel(&model);
    tree.setCheckColumnEnabled(true);
    list.setModel(&model);
    treeView.setModel(&tree);
    model.setSelectionModel(list.selectionModel());
    tree.setSelectionModel(&treeSelection);
    list.resize(200, 300);
    treeView.resize(300, 300);
    list.show();
    treeView.show();
    loadDocument();
}

QString RandomRun::step()
{
    struct Operation
    {
        const char* name;
        int weight;
        void (RandomRun::*run)();
    };
    static const Operation table[] = {
        {"load a document", 1, &RandomRun::loadDocument},
        {"load what is no document", 1, &RandomRun::loadMalformed},
        {"load a file that is not there", 1, &RandomRun::loadMissing},
        {"reload", 3, &RandomRun::reload},
        {"add a new feature", 22, &RandomRun::addNew},
        {"add a feature of the document", 18, &RandomRun::addAgain},
        {"remove a row", 14, &RandomRun::removeRow},
        {"remove a branch from the document", 8, &RandomRun::removeBranch},
        {"rename in the list", 8, &RandomRun::renameInList},
        {"rename in the tree", 8, &RandomRun::renameInTree},
        {"hide one", 6, &RandomRun::hideOne},
        {"show one", 6, &RandomRun::showOne},
        {"hide some", 6, &RandomRun::hideSome},
        {"show some", 6, &RandomRun::showSome},
        {"hide all", 1, &RandomRun::hideAll},
        {"show all", 2, &RandomRun::showAll},
        {"check a node", 6, &RandomRun::checkNode},
        {"disable", 6, &RandomRun::disable},
        {"enable", 8, &RandomRun::enable},
        {"select in the list", 6, &RandomRun::selectInList},
        {"select in the tree", 6, &RandomRun::selectInTree},
        {"save the identifier lists", 4, &RandomRun::saveLists},
        {"restore the visible rows", 3, &RandomRun::restoreVisible},
        {"restore the hidden rows", 3, &RandomRun::restoreHidden},
        {"restore the selection", 3, &RandomRun::restoreSelection},
        {"exchange the traversal visitor", 2, &RandomRun::exchangeTraversal},
        {"exchange the children visitor", 1, &RandomRun::exchangeChildren},
        {"expand", 2, &RandomRun::expand},
    };
    int total = 0;
    for (const Operation& each : table) {
        total += each.weight;
    }
    int drawn = below(total);
    const Operation* chosen = table;
    for (; drawn >= chosen->weight; ++chosen) {
        drawn -= chosen->weight;
    }
    (this->*chosen->run)();
    return chosen->name;
}

QString RandomRun::difference() const
{
    QString found = listDifference();
    if (found.isEmpty()) {
        found = selectionDifference();
    }
    if (found.isEmpty()) {
        std::size_t nodes = 0;
        found = treeDifference(QModelIndex(), reference.roots(), nodes);
        if (found.isEmpty() && nodes != tree.nodeMap.size()) {
            found = QString("%1 nodes, %2 in the map").arg(nodes).arg(tree.nodeMap.size());
        }
    }
    return found;
}

Item* RandomRun::anyRow()
{
    return reference.rows.empty() ? nullptr : reference.rows[std::size_t(below(int(reference.rows.size())))];
}

std::vector<Item*> RandomRun::someRows()
{
    std::vector<Item*> some;
    for (int count = reference.rows.empty() ? 0 : below(6); count > 0; --count) {
        some.push_back(anyRow());
    }
    return some;
}

Item* RandomRun::anyNode()
{
    std::vector<Item*> nodes;
    for (const auto& item : reference.items) {
        if (item->isNode) {
            nodes.push_back(item.get());
        }
    }
    return nodes.empty() ? nullptr : nodes[std::size_t(below(int(nodes.size())))];
}

QModelIndex RandomRun::inList(const Item* item, int column) const
{
    return model.index(reference.rowOf(item), column);
}

QModelIndex RandomRun::inTree(const Item* item, int column) const
{
    return tree.mapFromSource(inList(item, column));
}

QList<QModelIndex> RandomRun::inList(const std::vector<Item*>& items) const
{
    QList<QModelIndex> indexes;
    for (const Item* const item : items) {
        indexes.append(inList(item));
    }
    return indexes;
}

QStringList RandomRun::junkAnd(QStringList ids)
{
    if (chance()) {
        ids << "x"
            << "-1"
            << "100000";
    }
    return ids;
}

std::set<int> RandomRun::rowsIn(const QStringList& ids) const
{
    std::set<int> found;
    for (const QString& id : ids) {
        bool isNumber = false;
        const int row = id.toInt(&isNumber);
        if (isNumber && row >= 0 && row < int(reference.rows.size())) {
            found.insert(row);
        }
    }
    return found;
}

void RandomRun::forgetTreeSelection()
{
    treeSelection.clear();
    for (const auto& item : reference.items) {
        item->isSelectedNode = false;
    }
}

void RandomRun::bindFeatures()
{
    for (const auto& item : reference.items) {
        item->feature = item->kind == Kind::City ? static_cast<gml::AbstractFeatureType*>(model.cityGML())
                                                 : model.getFeature(item->id);
        QVERIFY(item->feature != nullptr);
    }
}

void RandomRun::loadText(const QByteArray& text)
{
    std::istringstream stream(text.toStdString());
    model.load(stream);
}

void RandomRun::loadDocument()
{
    Reference fresh;
    fresh.showsAppearances = reference.showsAppearances;
    fresh.isFlat = reference.isFlat;
    Item* const city = fresh.add(Kind::City, nullptr, QString());
    for (int i = below(5); i >= 0; --i) {
        Item* const building = fresh.add(Kind::Building, city, newName());
        if (below(4) == 0) {
            fresh.add(Kind::Appearance, city, newName());
        }
        for (int j = below(4); j > 0; --j) {
            Item* const wall = fresh.add(Kind::Wall, building, newName());
            for (int k = below(3); k > 0; --k) {
                fresh.add(Kind::Door, wall, newName());
            }
        }
    }
    reference = std::move(fresh);
    loadText(documentOf(*reference.items.front()));
    bindFeatures();
    reference.resetRows(true);
}

void RandomRun::loadMalformed()
{
    loadText("<CityModel");
    reference.resetRows(true);
}

void RandomRun::loadMissing()
{
    model.load("/no such file");
    reference.resetRows(false);
}

void RandomRun::reload()
{
    model.dataSetChanged();
    reference.resetRows(true);
}

void RandomRun::addFeature(Item* item)
{
    model.addFeature(item->feature);
    reference.appendRow(item);
}

void RandomRun::addNew()
{
    if (reference.items.size() >= mostFeatures) {
        return;
    }
    Item* const owner = reference.items[std::size_t(below(int(reference.items.size())))].get();
    if (owner->kind == Kind::Door || owner->kind == Kind::Appearance) {
        return;
    }
    const Kind kind = owner->kind == Kind::City       ? (below(5) == 0 ? Kind::Appearance : Kind::Building)
                      : owner->kind == Kind::Building ? Kind::Wall
                                                      : Kind::Door;
    Item* const item = reference.add(kind, owner, newName());
    switch (kind) {
    case Kind::Appearance:
        item->feature = addMember(*model.cityGML(), make<app::AppearanceType>(*item));
        break;
    case Kind::Building:
        item->feature = addMember(*model.cityGML(), make<bldg::BuildingType>(*item));
        break;
    case Kind::Wall:
        item->feature = addSurface(dynamic_cast<bldg::AbstractBuildingType&>(*owner->feature),
                                   make<bldg::WallSurfaceType>(*item));
        break;
    default:
        item->feature = addOpening(dynamic_cast<bldg::AbstractBoundarySurfaceType&>(*owner->feature),
                                   make<bldg::DoorType>(*item));
        break;
    }
    addFeature(item);
}

void RandomRun::addAgain()
{
    std::vector<Item*> without;
    for (const auto& item : reference.items) {
        if (!reference.hasRow(item.get())) {
            without.push_back(item.get());
        }
    }
    if (!without.empty()) {
        addFeature(without[std::size_t(below(int(without.size())))]);
    }
}

void RandomRun::remove(Item* item)
{
    const Item* const parent = item->isNode ? reference.parentNode(item) : nullptr;
    const bool isDeep = parent != nullptr && reference.parentNode(parent) != nullptr;
    model.removeFeature(item->feature);
    reference.removeRow(item);
    if (isDeep) {
        forgetTreeSelection(); // the removal is signalled for another parent
    }
}

void RandomRun::removeRow()
{
    if (Item* const item = anyRow()) {
        remove(item);
    }
}

void RandomRun::removeBranch()
{
    Item* const top = anyRow();
    if (top == nullptr || top->kind == Kind::City) {
        return;
    }
    std::vector<Item*> branch;
    Reference::collect(top, branch);
    if (chance()) {
        std::reverse(branch.begin(), branch.end());
    }
    for (Item* const item : branch) {
        if (reference.hasRow(item)) {
            remove(item);
        }
    }
    switch (top->kind) {
    case Kind::Wall:
        eraseMember(
            dynamic_cast<bldg::AbstractBuildingType&>(*top->owner->feature).boundedBy1(), top->feature,
            [](auto& member) -> auto& { return member._BoundarySurface(); });
        break;
    case Kind::Door:
        eraseMember(
            dynamic_cast<bldg::AbstractBoundarySurfaceType&>(*top->owner->feature).opening(), top->feature,
            [](auto& member) -> auto& { return member._Opening(); });
        break;
    default:
        eraseMember(
            model.cityGML()->featureMember(), top->feature,
            [](auto& member) -> auto& { return member._Feature(); });
        break;
    }
    reference.erase(top);
}

void RandomRun::rename(Item* item, QAbstractItemModel& in, const QModelIndex& index)
{
    const QString name = QString("name %1").arg(below(1000));
    QVERIFY(in.setData(index, name));
    item->name = name;
    if (item->isNode) {
        item->nodeName = name;
    }
}

void RandomRun::renameInList()
{
    if (Item* const item = anyRow()) {
        rename(item, model, inList(item));
    }
}

void RandomRun::renameInTree()
{
    if (Item* const item = anyNode()) {
        rename(item, tree, inTree(item));
    }
}

void RandomRun::show(const std::vector<Item*>& items, bool visible)
{
    for (Item* const item : items) {
        item->isVisible = visible;
    }
}

void RandomRun::hideOne()
{
    if (Item* const item = anyRow()) {
        model.hide(inList(item));
        show({item}, false);
    }
}

void RandomRun::showOne()
{
    if (Item* const item = anyRow()) {
        model.show(inList(item));
        show({item}, true);
    }
}

void RandomRun::hideSome()
{
    const std::vector<Item*> some = someRows();
    model.hide(inList(some) << QModelIndex());
    show(some, false);
}

void RandomRun::showSome()
{
    const std::vector<Item*> some = someRows();
    model.show(inList(some) << QModelIndex());
    show(some, true);
}

void RandomRun::hideAll()
{
    model.hideAll();
    show(reference.rows, false);
}

void RandomRun::showAll()
{
    model.showAll();
    show(reference.rows, true);
}

void RandomRun::checkNode()
{
    if (Item* const item = anyNode()) {
        const bool visible = chance();
        QVERIFY(tree.setData(inTree(item), visible ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole));
        item->isVisible = visible;
    }
}

void RandomRun::disable()
{
    const std::vector<Item*> some = someRows();
    model.disable(inList(some));
    for (Item* const item : some) {
        item->isDisabled = true;
    }
}

void RandomRun::enable()
{
    const std::vector<Item*> some = chance() ? reference.rows : someRows();
    model.enable(inList(some));
    for (Item* const item : some) {
        item->isDisabled = false;
    }
}

void RandomRun::setSelected(const QStringList& ids)
{
    model.setSelectedIds(ids);
    const std::set<int> chosen = rowsIn(ids);
    for (int row = 0; row < int(reference.rows.size()); ++row) {
        reference.rows[std::size_t(row)]->isSelected = chosen.count(row) != 0;
    }
}

void RandomRun::selectInList()
{
    QStringList ids;
    for (const Item* const item : someRows()) {
        ids.append(QString::number(reference.rowOf(item)));
    }
    setSelected(junkAnd(ids));
}

void RandomRun::selectInTree()
{
    Item* const item = anyNode();
    if (item == nullptr) {
        return;
    }
    if (chance()) {
        treeSelection.clear();
        for (const auto& each : reference.items) {
            each->isSelectedNode = false;
        }
    }
    treeSelection.select(inTree(item), QItemSelectionModel::Select | wholeRows);
    // The view has a selection of its own, which it moves when the current node goes.
    treeView.setCurrentIndex(inTree(item));
    item->isSelectedNode = true;
}

void RandomRun::saveLists()
{
    hiddenIds.clear();
    visibleIds.clear();
    selectedIds.clear();
    model.getVisibilityIds(hiddenIds, visibleIds);
    model.getSelectedIds(selectedIds);
}

void RandomRun::restoreVisibility(const QStringList& ids, bool visible)
{
    model.setVisibilityIds(ids, visible);
    const std::set<int> listed = rowsIn(ids);
    for (int row = 0; row < int(reference.rows.size()); ++row) {
        reference.rows[std::size_t(row)]->isVisible = (listed.count(row) != 0) == visible;
    }
}

void RandomRun::exchangeTraversal()
{
    reference.showsAppearances = !reference.showsAppearances;
    reference.rebuildTree();
    if (reference.showsAppearances) {
        tree.setTraversalVisitor(new tolvik::CityGMLProxyModelTraverseAllVisitor);
    } else {
        tree.setTraversalVisitor(new tolvik::CityGMLProxyModelTraverseNoApparencesVisitor);
    }
}

void RandomRun::exchangeChildren()
{
    reference.isFlat = !reference.isFlat;
    reference.rebuildTree();
    tree.setTraverseChildrenVisitor(
        reference.isFlat ? nullptr : new tolvik::CityGMLProxyModelTraverseChildrenGMLVisitor(tree.nodeMap));
}

void RandomRun::expand()
{
    treeView.expandAll();
    if (const Item* const item = anyNode()) {
        treeView.setExpanded(inTree(item), false);
    }
}

QString RandomRun::listDifference() const
{
    if (model.rowCount() != int(reference.rows.size())) {
        return QString("%1 rows instead of %2").arg(model.rowCount()).arg(reference.rows.size());
    }
    for (int row = 0; row < model.rowCount(); ++row) {
        const Item& item = *reference.rows[std::size_t(row)];
        const QModelIndex index = model.index(row, 0);
        const QString shown = index.data().toString();
        const QString name = item.name.isNull() ? QString("<unset>") : item.name;
        if (model.getFeature(row) != item.feature || model.getRow(item.feature) != row || shown != name ||
            model.index(row, 1).data().toString() != typeOf(item.kind) ||
            model.isVisible(index) != item.isVisible ||
            index.data(Qt::CheckStateRole).toBool() != item.isVisible ||
            model.isDisabled(item.feature) != item.isDisabled ||
            model.flags(index).testFlag(Qt::ItemIsEnabled) == item.isDisabled) {
            return QString("row %1 shows \"%2\" for \"%3\", or its state is wrong").arg(row).arg(shown, name);
        }
    }
    return QString();
}

QString RandomRun::selectionDifference() const
{
    QStringList ids;
    model.getSelectedIds(ids);
    const std::set<int> selected = rowsIn(ids);
    std::set<int> expected;
    for (int row = 0; row < model.rowCount(); ++row) {
        const Item& item = *reference.rows[std::size_t(row)];
        if (item.isSelected && !item.isDisabled) {
            expected.insert(row);
        }
    }
    if (selected != expected || ids.size() != int(selected.size())) {
        return QString("selected rows %1").arg(ids.join(' '));
    }
    std::set<const gml::AbstractFeatureType*> selectedNodes;
    const QModelIndexList nodes = treeSelection.selectedRows();
    for (const QModelIndex& node : nodes) {
        selectedNodes.insert(CityGMLProxyModel::getFeature(node));
    }
    std::set<const gml::AbstractFeatureType*> expectedNodes;
    for (const auto& item : reference.items) {
        if (item->isNode && item->isSelectedNode && !item->isDisabled) {
            expectedNodes.insert(item->feature);
        }
    }
    return selectedNodes == expectedNodes ? QString()
                                          : QString("%1 selected nodes instead of %2")
                                                .arg(selectedNodes.size())
                                                .arg(expectedNodes.size());
}

Qt::CheckState RandomRun::stateOf(const Item* item) const
{
    const std::vector<Item*> children = reference.childNodes(item);
    const bool isMixed = std::any_of(children.begin(), children.end(), [item](const Item* child) {
        return child->isVisible != item->isVisible;
    });
    return isMixed ? Qt::PartiallyChecked : item->isVisible ? Qt::Checked : Qt::Unchecked;
}

QString RandomRun::treeDifference(const QModelIndex& parent, const std::vector<Item*>& expected,
                                  std::size_t& nodes) const
{
    if (tree.rowCount(parent) != int(expected.size())) {
        return QString("%1 children instead of %2 below %3")
            .arg(tree.rowCount(parent))
            .arg(expected.size())
            .arg(SignalRecorder::text(parent));
    }
    nodes += expected.size();
    for (int row = 0; row < int(expected.size()); ++row) {
        const Item* const item = expected[std::size_t(row)];
        const QModelIndex index = tree.index(row, 0, parent);
        const QModelIndex type = tree.index(row, 1, parent);
        if (CityGMLProxyModel::getFeature(index) != item->feature ||
            index.data().toString() != item->nodeName || type.data().toString() != typeOf(item->kind) ||
            index.data(Qt::CheckStateRole).toInt() != stateOf(item) ||
            index.flags().testFlag(Qt::ItemIsEnabled) == item->isDisabled || index.parent() != parent ||
            tree.mapFromSource(inList(item)) != index || tree.mapToSource(type) != inList(item, 1)) {
            return QString("node %1 shows \"%2\" for \"%3\", or its state is wrong")
                .arg(SignalRecorder::text(index), index.data().toString(), item->nodeName);
        }
        QString below = treeDifference(index, reference.childNodes(item), nodes);
        if (!below.isEmpty()) {
            return below;
        }
    }
    return QString();
}

} // namespace testsupport
