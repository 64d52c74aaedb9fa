#include "support/CityReference.h"

namespace testsupport {

const char* typeOf(Kind kind)
{
    static const char* const types[] = {"CityModel", "Building", "WallSurface", "Door", "Appearance"};
    return types[static_cast<int>(kind)];
}

QByteArray xmlOf(const Item& item)
{
    const QByteArray type = item.kind == Kind::Appearance ? QByteArray("app:Appearance")
                                                          : QByteArray("bldg:") + typeOf(item.kind);
    QByteArray text = '<' + type + " gml:id=\"" + QByteArray::fromStdString(item.id) + "\">";
    if (!item.name.isNull()) {
        text += "<gml:name>" + item.name.toUtf8() + "</gml:name>";
    }
    const QByteArray property = item.kind == Kind::Building ? "bldg:boundedBy" : "bldg:opening";
    for (const Item* const member : item.members) {
        text += '<' + property + '>' + xmlOf(*member) + "</" + property + '>';
    }
    return text + "</" + type + '>';
}

QByteArray documentOf(const Item& city)
{
    QByteArray members;
    for (const Item* const member : city.members) {
        const QByteArray property =
            member->kind == Kind::Appearance ? "app:appearanceMember" : "cityObjectMember";
        members += '<' + property + '>' + xmlOf(*member) + "</" + property + ">\n";
    }
    return cityDocument(members);
}

Item* Reference::add(Kind kind, Item* owner, const QString& name)
{
    items.push_back(std::make_unique<Item>());
    Item* const item = items.back().get();
    item->id = "f" + std::to_string(++lastId);
    item->kind = kind;
    item->owner = owner;
    item->name = name;
    if (owner != nullptr) {
        owner->members.push_back(item);
    }
    return item;
}

int Reference::rowOf(const Item* item) const
{
    return static_cast<int>(std::find(rows.begin(), rows.end(), item) - rows.begin());
}

Item* Reference::parentNode(const Item* item) const
{
    return !isFlat && item->owner != nullptr && item->owner->isNode ? item->owner : nullptr;
}

std::vector<Item*> Reference::childNodes(const Item* item) const
{
    std::vector<Item*> children;
    if (!isFlat) {
        std::copy_if(item->members.begin(), item->members.end(), std::back_inserter(children),
                     [](const Item* member) { return member->isNode; });
    }
    return children;
}

std::vector<Item*> Reference::roots() const
{
    std::vector<Item*> found;
    for (const auto& item : items) {
        if (item->isNode && parentNode(item.get()) == nullptr) {
            found.push_back(item.get());
        }
    }
    std::sort(found.begin(), found.end(),
              [](const Item* a, const Item* b) { return std::less<>()(a->feature, b->feature); });
    return found;
}

void Reference::appendRow(Item* item)
{
    rows.push_back(item);
    item->isVisible = true;
    item->isDisabled = false;
    item->isSelected = false;
    if (isShown(item)) {
        item->isNode = true;
        item->isSelectedNode = false;
        item->nodeName = item->label();
    }
}

void Reference::removeRow(Item* item)
{
    rows.erase(std::find(rows.begin(), rows.end(), item));
    if (item->isNode) {
        removeNodes(item);
    }
}

void Reference::resetRows(bool all)
{
    rows.clear();
    if (all) {
        appendBelow(items.front().get());
    }
    rebuildTree();
}

void Reference::rebuildTree()
{
    for (const auto& item : items) {
        item->isSelectedNode = false;
        item->isNode = isShown(item.get()) && hasRow(item.get());
        item->nodeName = item->label();
    }
}

void Reference::collect(Item* item, std::vector<Item*>& found)
{
    found.push_back(item);
    for (Item* const member : item->members) {
        collect(member, found);
    }
}

void Reference::erase(Item* item)
{
    std::vector<Item*> gone;
    collect(item, gone);
    auto& siblings = item->owner->members;
    siblings.erase(std::find(siblings.begin(), siblings.end(), item));
    for (const Item* const each : gone) {
        items.erase(std::find_if(items.begin(), items.end(),
                                 [each](const auto& held) { return held.get() == each; }));
    }
}

void Reference::appendBelow(Item* item)
{
    appendRow(item);
    for (Item* const member : item->members) {
        appendBelow(member);
    }
}

void Reference::removeNodes(Item* item)
{
    const std::vector<Item*> children = childNodes(item);
    item->isNode = false;
    for (Item* const child : children) {
        removeNodes(child);
    }
}

} // namespace testsupport
