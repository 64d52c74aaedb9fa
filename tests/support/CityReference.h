#pragma once

#include "support/CityGMLTreeFixture.h"

#include <algorithm>
#include <memory>
#include <QString>
#include <string>
#include <vector>

namespace testsupport {

// A plain model of a document, of its rows and of its tree, which knows no signals and no indexes.

/// What a feature of the document is.
enum class Kind { City, Building, Wall, Door, Appearance };

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

QByteArray xmlOf(const Item& item);

QByteArray documentOf(const Item& city);

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

} // namespace testsupport
