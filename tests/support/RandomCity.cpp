#include "support/RandomCity.h"

#include "bldg/BoundarySurfacePropertyType.hxx"
#include "bldg/OpeningPropertyType.hxx"
#include "gml/FeaturePropertyType.hxx"

namespace testsupport {

QString RandomCity::step()
{
    int total = 0;
    for (const Operation& each : operations) {
        total += each.weight;
    }
    int drawn = below(total);
    auto chosen = operations.begin();
    for (; drawn >= chosen->weight; ++chosen) {
        drawn -= chosen->weight;
    }
    chosen->run();
    return chosen->name;
}

void RandomCity::addListOperations()
{
    using City = RandomCity;
    add("load a document", 1, &City::loadDocument);
    add("load what is no document", 1, &City::loadMalformed);
    add("load a file that is not there", 1, &City::loadMissing);
    add("reload", 3, &City::reload);
    add("add a new feature", 22, &City::addNew);
    add("add a feature of the document", 18, &City::addAgain);
    add("add all features that have no row", 4, &City::addAllAgain);
    add("remove a row", 14, &City::removeRow);
    add("remove a branch from the document", 8, &City::removeBranch);
    add("rename in the list", 8, &City::renameInList);
    add("hide one", 6, &City::hideOne);
    add("show one", 6, &City::showOne);
    add("hide some", 6, &City::hideSome);
    add("show some", 6, &City::showSome);
    add("hide all", 1, &City::hideAll);
    add("show all", 2, &City::showAll);
    add("disable", 6, &City::disable);
    add("enable", 8, &City::enable);
}

Item* RandomCity::anyRow()
{
    return reference.rows.empty() ? nullptr : reference.rows[std::size_t(below(int(reference.rows.size())))];
}

std::vector<Item*> RandomCity::someRows()
{
    std::vector<Item*> some;
    for (int count = reference.rows.empty() ? 0 : below(6); count > 0; --count) {
        some.push_back(anyRow());
    }
    return some;
}

Item* RandomCity::anyNode()
{
    std::vector<Item*> nodes;
    for (const auto& item : reference.items) {
        if (item->isNode) {
            nodes.push_back(item.get());
        }
    }
    return nodes.empty() ? nullptr : nodes[std::size_t(below(int(nodes.size())))];
}

QModelIndex RandomCity::inList(const Item* item, int column) const
{
    return model.index(reference.rowOf(item), column);
}

QList<QModelIndex> RandomCity::inList(const std::vector<Item*>& items) const
{
    QList<QModelIndex> indexes;
    for (const Item* const item : items) {
        indexes.append(inList(item));
    }
    return indexes;
}

void RandomCity::bindFeatures()
{
    for (const auto& item : reference.items) {
        item->feature = item->kind == Kind::City ? static_cast<gml::AbstractFeatureType*>(model.cityGML())
                                                 : model.getFeature(item->id);
        QVERIFY(item->feature != nullptr);
    }
}

void RandomCity::loadText(const QByteArray& text)
{
    std::istringstream stream(text.toStdString());
    model.load(stream);
}

void RandomCity::loadDocument()
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

void RandomCity::loadMalformed()
{
    loadText("<CityModel");
    reference.resetRows(true);
}

void RandomCity::loadMissing()
{
    model.load("/no such file");
    reference.resetRows(false);
}

void RandomCity::reload()
{
    model.dataSetChanged();
    reference.resetRows(true);
}

void RandomCity::addFeature(Item* item)
{
    model.addFeature(item->feature);
    reference.appendRow(item);
}

void RandomCity::addNew()
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

std::vector<Item*> RandomCity::withoutRow() const
{
    std::vector<Item*> without;
    for (const auto& item : reference.items) {
        if (!reference.hasRow(item.get())) {
            without.push_back(item.get());
        }
    }
    return without;
}

void RandomCity::addAgain()
{
    const std::vector<Item*> without = withoutRow();
    if (!without.empty()) {
        addFeature(without[std::size_t(below(int(without.size())))]);
    }
}

void RandomCity::addAllAgain()
{
    std::vector<Item*> without = withoutRow();
    std::shuffle(without.begin(), without.end(), random);
    QVector<gml::AbstractFeatureType*> features;
    for (Item* const item : without) {
        features << item->feature;
        if (Item* const other = anyRow()) {
            features << item->feature << nullptr << other->feature;
        }
    }
    model.addFeatures(features);
    for (Item* const item : without) {
        reference.appendRow(item);
    }
}

void RandomCity::remove(Item* item)
{
    model.removeFeature(item->feature);
    reference.removeRow(item);
}

void RandomCity::removeRow()
{
    if (Item* const item = anyRow()) {
        remove(item);
    }
}

void RandomCity::removeBranch()
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

void RandomCity::rename(Item* item, QAbstractItemModel& in, const QModelIndex& index)
{
    const QString name = QString("name %1").arg(below(1000));
    QVERIFY(in.setData(index, name));
    item->name = name;
    if (item->isNode) {
        item->nodeName = name;
    }
}

void RandomCity::renameInList()
{
    if (Item* const item = anyRow()) {
        rename(item, model, inList(item));
    }
}

void RandomCity::show(const std::vector<Item*>& items, bool visible)
{
    for (Item* const item : items) {
        item->isVisible = visible;
    }
}

void RandomCity::hideOne()
{
    if (Item* const item = anyRow()) {
        model.hide(inList(item));
        show({item}, false);
    }
}

void RandomCity::showOne()
{
    if (Item* const item = anyRow()) {
        model.show(inList(item));
        show({item}, true);
    }
}

void RandomCity::hideSome()
{
    const std::vector<Item*> some = someRows();
    model.hide(inList(some) << QModelIndex());
    show(some, false);
}

void RandomCity::showSome()
{
    const std::vector<Item*> some = someRows();
    model.show(inList(some) << QModelIndex());
    show(some, true);
}

void RandomCity::hideAll()
{
    model.hideAll();
    show(reference.rows, false);
}

void RandomCity::showAll()
{
    model.showAll();
    show(reference.rows, true);
}

void RandomCity::disable()
{
    const std::vector<Item*> some = someRows();
    model.disable(inList(some));
    for (Item* const item : some) {
        item->isDisabled = true;
    }
}

void RandomCity::enable()
{
    const std::vector<Item*> some = chance() ? reference.rows : someRows();
    model.enable(inList(some));
    for (Item* const item : some) {
        item->isDisabled = false;
    }
}

QString RandomCity::listDifference() const
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

} // namespace testsupport
