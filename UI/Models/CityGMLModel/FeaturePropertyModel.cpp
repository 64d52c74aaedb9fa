#include "UI/Models/CityGMLModel/FeaturePropertyModel.h"

#include "framework/AbstractUnit.h"
#include "framework/CoreProperty.h"
#include "UI/Models/CityGMLModel/CityGMLModel.h"
#include "UI/Models/CityGMLModel/properties/XmlCharacters.h"

#include <QStringList>
#include <vector>

namespace tolvik {

namespace {

constexpr int nameColumn = 0;
constexpr int valueColumn = 1;
constexpr int unitColumn = 2;

QString unitOf(const CoreProperty& property)
{
    return property.unit() != nullptr ? property.unit()->name() : QString("");
}

/// Brings a value to the type that the property has.
/// \return false if it has none of that type
bool adapt(QVariant& value, CoreProperty& property)
{
    const QVariant current = property.value();
    const QVariant like = current.isValid() ? current : property.defaultValue();
    return !like.isValid() || value.convert(like.userType());
}

bool canHave(CoreProperty& property, const QVariant& value)
{
    const QVariantList choices = property.potentialValues();
    return value.isValid() && (choices.isEmpty() || choices.contains(value)) &&
           !firstCharacterNotInXml(value.toStringList().join(' '));
}

} // namespace

/// A property with its place in the tree, which properties do not know.
struct FeaturePropertyModel::Node
{
    Node(CoreProperty* property, const Node* parent, int row) : property(property), parent(parent), row(row)
    {
        for (const auto& child : property->properties()) {
            children.push_back(std::make_unique<Node>(child.get(), this, static_cast<int>(children.size())));
        }
    }

    const Fondo::RefPtr<CoreProperty> property;
    const Node* const parent;
    const int row;
    std::vector<std::unique_ptr<Node>> children;
};

FeaturePropertyModel::FeaturePropertyModel(QObject* parent) : QAbstractItemModel(parent) {}

FeaturePropertyModel::~FeaturePropertyModel() = default;

void FeaturePropertyModel::setFeature(CityGMLModel* model, const QModelIndex& row)
{
    if (source != nullptr) {
        source->disconnect(this);
    }
    source = model;
    feature = row;
    if (model != nullptr) {
        connect(model, &QAbstractItemModel::dataChanged, this, &FeaturePropertyModel::follow);
        connect(model, &QAbstractItemModel::modelAboutToBeReset, this, &FeaturePropertyModel::clear);
        connect(model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
                [this](const QModelIndex&, int first, int last) {
                    if (feature.row() >= first && feature.row() <= last) {
                        clear();
                    }
                });
        connect(model, &QObject::destroyed, this, &FeaturePropertyModel::clear);
    }
    build();
}

void FeaturePropertyModel::build()
{
    beginResetModel();
    CoreProperty* const tree = source != nullptr ? source->getProperty(feature) : nullptr;
    root = tree != nullptr ? std::make_unique<Node>(tree, nullptr, 0) : nullptr;
    endResetModel();
}

void FeaturePropertyModel::clear()
{
    beginResetModel();
    root.reset();
    feature = QPersistentModelIndex();
    endResetModel();
}

void FeaturePropertyModel::follow(const QModelIndex& topLeft, const QModelIndex& bottomRight)
{
    if (!feature.isValid() || feature.row() < topLeft.row() || feature.row() > bottomRight.row()) {
        return;
    }
    if (root == nullptr || source->getProperty(feature) != root->property.get()) {
        build();
    } else {
        announce(QModelIndex());
    }
}

/// One edit may show at several properties.
void FeaturePropertyModel::announce(const QModelIndex& parent)
{
    const int count = rowCount(parent);
    if (count == 0) {
        return;
    }
    emit dataChanged(index(0, nameColumn, parent), index(count - 1, unitColumn, parent));
    for (int row = 0; row < count; ++row) {
        announce(index(row, nameColumn, parent));
    }
}

const FeaturePropertyModel::Node* FeaturePropertyModel::nodeAt(const QModelIndex& index) const
{
    return index.isValid() ? static_cast<const Node*>(index.internalPointer()) : root.get();
}

QModelIndex FeaturePropertyModel::indexOf(const Node& node, int column) const
{
    return createIndex(node.row, column, const_cast<Node*>(&node));
}

CoreProperty* FeaturePropertyModel::property(const QModelIndex& index) const
{
    return index.isValid() ? nodeAt(index)->property.get() : nullptr;
}

QModelIndex FeaturePropertyModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent)) {
        return QModelIndex();
    }
    return indexOf(*nodeAt(parent)->children[static_cast<std::size_t>(row)], column);
}

QModelIndex FeaturePropertyModel::parent(const QModelIndex& index) const
{
    const Node* const above = index.isValid() ? nodeAt(index)->parent : nullptr;
    return above != nullptr && above != root.get() ? indexOf(*above, nameColumn) : QModelIndex();
}

int FeaturePropertyModel::rowCount(const QModelIndex& parent) const
{
    const Node* const node = nodeAt(parent);
    return node != nullptr && parent.column() <= nameColumn ? static_cast<int>(node->children.size()) : 0;
}

int FeaturePropertyModel::columnCount(const QModelIndex& /*parent*/) const
{
    return unitColumn + 1;
}

QVariant FeaturePropertyModel::data(const QModelIndex& index, int role) const
{
    CoreProperty* const shown = property(index);
    if (shown == nullptr) {
        return QVariant();
    }
    QVariant value = shown->value();
    switch (role) {
    case PropertyNameRole:
        return shown->name();
    case PropertyValueRole:
        return value;
    case PropertyUnitRole:
        return unitOf(*shown);
    case PropertyEditableRole:
        return shown->editable();
    case PropertyChoicesRole:
        return shown->potentialValues();
    case Qt::DisplayRole:
    case Qt::EditRole:
        break;
    default:
        return QVariant();
    }
    switch (index.column()) {
    case nameColumn:
        return shown->name();
    case valueColumn:
        return role == Qt::DisplayRole && value.userType() == QMetaType::QVariantList
                   ? value.toStringList().join(' ')
                   : value;
    default:
        return unitOf(*shown);
    }
}

bool FeaturePropertyModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    CoreProperty* const edited = property(index);
    const bool isValue = role == PropertyValueRole || (role == Qt::EditRole && index.column() == valueColumn);
    if (edited == nullptr || !isValue || !edited->editable()) {
        return false;
    }
    QVariant wanted = value;
    if (!adapt(wanted, *edited) || !canHave(*edited, wanted)) {
        return false;
    }
    const QVariant before = edited->value();
    edited->setValue(wanted);
    if (edited->value() == before && before != wanted) {
        return false;
    }
    source->propertyChanged(feature, false);
    return true;
}

QVariant FeaturePropertyModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QVariant();
    }
    switch (section) {
    case nameColumn:
        return tr("Name");
    case valueColumn:
        return tr("Value");
    case unitColumn:
        return tr("Unit");
    default:
        return QVariant();
    }
}

Qt::ItemFlags FeaturePropertyModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags all = QAbstractItemModel::flags(index);
    CoreProperty* const shown = property(index);
    const bool isEditable = shown != nullptr && index.column() == valueColumn && shown->editable();
    return isEditable ? all | Qt::ItemIsEditable : all;
}

QHash<int, QByteArray> FeaturePropertyModel::roleNames() const
{
    QHash<int, QByteArray> names = QAbstractItemModel::roleNames();
    names.insert(PropertyNameRole, "name");
    names.insert(PropertyValueRole, "value");
    names.insert(PropertyUnitRole, "unit");
    names.insert(PropertyEditableRole, "editable");
    names.insert(PropertyChoicesRole, "choices");
    return names;
}

} // namespace tolvik
