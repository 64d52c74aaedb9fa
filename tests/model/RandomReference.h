#pragma once

#include "gml/AbstractFeatureType.hxx"

#include <memory>
#include <QByteArray>
#include <QString>
#include <string>
#include <vector>

// A document, its rows and its tree, as a plain model that knows no signals and no indexes.

namespace testsupport {

enum class Kind { City, Building, Wall, Door, Appearance };

/// The type as the models show it.
const char* typeOf(Kind kind);

/// A feature of the document, with its state in the list and in the tree.
struct Item
{
    std::string id;
    Kind kind = Kind::City;
    QString name; // null without one
    Item* owner = nullptr;
    std::vector<Item*> members;
    gml::AbstractFeatureType* feature = nullptr;

    bool isVisible = true;
    bool isDisabled = false;
    bool isSelected = false;

    bool isNode = false;
    bool isSelectedNode = false;
    QString nodeName;

    QString label() const { return name.isNull() ? QString(typeOf(kind)) : name; }
};

/// The document, the rows and the tree, as they should be.
class Reference
{
public:
    std::vector<std::unique_ptr<Item>> items; // the root of the document in front
    std::vector<Item*> rows;
    bool showsAppearances = false;
    bool isFlat = false;

    Item* add(Kind kind, Item* owner, const QString& name);

    bool hasRow(const Item* item) const { return std::find(rows.begin(), rows.end(), item) != rows.end(); }

    int rowOf(const Item* item) const;

    bool isShown(const Item* item) const { return showsAppearances || item->kind != Kind::Appearance; }

    Item* parentNode(const Item* item) const;

    std::vector<Item*> childNodes(const Item* item) const;

    std::vector<Item*> roots() const;

    void appendRow(Item* item);

    void removeRow(Item* item);

    /// Rows for the whole document, or none.
    void resetRows(bool all);

    void rebuildTree();

    /// An item and all below it, an owner in front of its members.
    static void collect(Item* item, std::vector<Item*>& found);

    void erase(Item* item);

private:
    void appendBelow(Item* item);

    void removeNodes(Item* item);

    int lastId = 0;
};

/// The text of the document whose root is \a city.
QByteArray documentOf(const Item& city);

} // namespace testsupport
