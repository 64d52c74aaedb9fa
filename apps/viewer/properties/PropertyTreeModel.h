#pragma once

#include "apps/viewer/properties/PropertyNode.h"
#include "apps/viewer/properties/ValueText.h"

#include <memory>
#include <QAbstractItemModel>

namespace tolvik::viewer {

/// A tree of properties in three columns: name, value and unit. It shows a PropertyNode tree, and so nothing
/// that could go with the document.
///
/// A new tree takes the place of the former one node by node: what both have keeps its index, so that a view
/// stays expanded where it is while the user goes from one feature to the next.
class PropertyTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, ValueColumn, UnitColumn, ColumnCount };

    explicit PropertyTreeModel(QObject* parent = nullptr);
    ~PropertyTreeModel() override;

    /// \param tree null for an empty model
    void setTree(std::unique_ptr<PropertyNode> tree);

    /// The node of an index, null for an invalid one. It lives until the next setTree().
    const PropertyNode* node(const QModelIndex& index) const;
    /// The index of a path in the name column, invalid where there is none.
    QModelIndex find(const PropertyPath& path) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    PropertyNode& nodeAt(const QModelIndex& index) const;
    QModelIndex indexOf(const PropertyNode& node, int column) const;
    void update(PropertyNode& node, PropertyNode& wanted);
    void removeOthers(PropertyNode& node, const PropertyNode& wanted);
    void insertNew(PropertyNode& node, PropertyNode& wanted);
    void takeValues(PropertyNode& node, const PropertyNode& wanted);
    QString textOf(const PropertyNode& node) const;
    static QString unitTextOf(const PropertyNode& node);
    static QVariant valueData(const PropertyNode& node, int role);
    static QVariant unitData(const PropertyNode& node, int role);
    static QVariant checkStateOf(const PropertyNode& node);
    QString toolTipOf(const PropertyNode& node) const;

    std::unique_ptr<PropertyNode> root;
    ValueText text;
};

} // namespace tolvik::viewer
