#pragma once

#include "UI/Models/CityGMLModel/CityGMLModelExport.h"

#include <memory>
#include <QAbstractItemModel>
#include <QPersistentModelIndex>
#include <QPointer>

namespace tolvik {

class CityGMLModel;
class CoreProperty;

/// What FeaturePropertyModel tells of a property, in any column. Scripts and QML know the roles by name.
enum PropertyRole {
    PropertyNameRole = Qt::UserRole + 1, ///< `name`: the label, a text
    PropertyValueRole,                   ///< `value`: the value, which can be set; invalid for a group
    PropertyUnitRole,                    ///< `unit`: the unit of the value, a text; empty without one
    PropertyEditableRole,                ///< `editable`: whether the value can be set
    PropertyChoicesRole,                 ///< `choices`: the list of values to choose from; empty for any
};

/// The property tree of one feature of a CityGMLModel as an item model: name, value and unit.
///
/// An edit goes into the document at once, and the model is told of it. A value that the property cannot
/// have, or that XML cannot hold, is refused. The tree is empty when its row has gone and when another
/// document is loaded.
class CITYGMLMODEL_EXPORT FeaturePropertyModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    /// \param parent owns the model, or null
    explicit FeaturePropertyModel(QObject* parent = nullptr);
    ~FeaturePropertyModel() override;

    /// Shows the properties of a row.
    /// \param model not owned, may die first; null for none
    /// \param row   any column of one of its rows
    void setFeature(CityGMLModel* model, const QModelIndex& row);

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    using QObject::parent;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;

    /// Always 3.
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /// Sets the value, in the column of values with the role of editing or in any with PropertyValueRole.
    /// \return false, with nothing done, for a value that is refused
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    /// The names of the roles of a view and of PropertyRole.
    QHash<int, QByteArray> roleNames() const override;

    /// The property behind an index, owned by the list; null for an invalid index.
    CoreProperty* property(const QModelIndex& index) const;

private:
    struct Node;

    const Node* nodeAt(const QModelIndex& index) const;
    QModelIndex indexOf(const Node& node, int column) const;
    void build();
    void clear();
    void follow(const QModelIndex& topLeft, const QModelIndex& bottomRight);
    void announce(const QModelIndex& parent);

    QPointer<CityGMLModel> source;
    QPersistentModelIndex feature;
    std::unique_ptr<Node> root;
};

} // namespace tolvik
