#include "apps/viewer/properties/PropertyTreeModel.h"

#include "apps/viewer/properties/UnitNames.h"
#include "apps/viewer/properties/ValueRoles.h"

#include <utility>

namespace tolvik::viewer {

PropertyTreeModel::PropertyTreeModel(QObject* parent)
    : QAbstractItemModel(parent), root(std::make_unique<PropertyNode>())
{
}

PropertyTreeModel::~PropertyTreeModel() = default;

void PropertyTreeModel::setTree(std::unique_ptr<PropertyNode> tree)
{
    PropertyNode none;
    update(*root, tree ? *tree : none);
}

const PropertyNode* PropertyTreeModel::node(const QModelIndex& index) const
{
    return index.isValid() ? &nodeAt(index) : nullptr;
}

QModelIndex PropertyTreeModel::find(const PropertyPath& path) const
{
    const PropertyNode* const found = root->find(path);
    return found != nullptr ? indexOf(*found, NameColumn) : QModelIndex();
}

QModelIndex PropertyTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    const PropertyNode& above = nodeAt(parent);
    if (row < 0 || row >= static_cast<int>(above.children.size()) || column < 0 || column >= ColumnCount ||
        (parent.isValid() && parent.column() != NameColumn)) {
        return QModelIndex();
    }
    return createIndex(row, column, above.children[static_cast<std::size_t>(row)].get());
}

QModelIndex PropertyTreeModel::parent(const QModelIndex& child) const
{
    return child.isValid() ? indexOf(*nodeAt(child).parent, NameColumn) : QModelIndex();
}

int PropertyTreeModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() && parent.column() != NameColumn
               ? 0
               : static_cast<int>(nodeAt(parent).children.size());
}

int PropertyTreeModel::columnCount(const QModelIndex& /*parent*/) const
{
    return ColumnCount;
}

QVariant PropertyTreeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return QVariant();
    }
    const PropertyNode& node = nodeAt(index);
    switch (role) {
    case Qt::DisplayRole:
        return index.column() == NameColumn    ? node.step.name
               : index.column() == ValueColumn ? textOf(node)
                                               : unitTextOf(node);
    case Qt::ToolTipRole:
    case Qt::AccessibleDescriptionRole:
        return toolTipOf(node);
    case AbsentRole:
        return !node.isPresent;
    default:
        return index.column() == ValueColumn  ? valueData(node, role)
               : index.column() == UnitColumn ? unitData(node, role)
                                              : QVariant();
    }
}

/// What only the column of the values has.
QVariant PropertyTreeModel::valueData(const PropertyNode& node, int role)
{
    switch (role) {
    case Qt::CheckStateRole:
        return checkStateOf(node);
    case ValueRole:
        return node.value;
    case OfferedRole:
        return node.offered;
    case ChoicesRole:
        return node.choices;
    case DifferingRole:
        return node.isDiffering;
    default:
        return QVariant();
    }
}

/// What only the column of the units has.
QVariant PropertyTreeModel::unitData(const PropertyNode& node, int role)
{
    switch (role) {
    case OfferedRole:
        return node.isUnitEditable ? QVariant(node.unit) : QVariant();
    case SuggestionsRole:
        return unitNames();
    default:
        return QVariant();
    }
}

QVariant PropertyTreeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QVariant();
    }
    return section == NameColumn ? tr("Name") : section == ValueColumn ? tr("Value") : tr("Unit");
}

Qt::ItemFlags PropertyTreeModel::flags(const QModelIndex& index) const
{
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    const Qt::ItemFlags shown = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    const PropertyNode& node = nodeAt(index);
    const bool isEditable = (index.column() == ValueColumn && node.isEditable) ||
                            (index.column() == UnitColumn && node.isUnitEditable);
    return isEditable ? shown | Qt::ItemIsEditable : shown;
}

/// The node of an index, the root for an invalid one.
PropertyNode& PropertyTreeModel::nodeAt(const QModelIndex& index) const
{
    return index.isValid() ? *static_cast<PropertyNode*>(index.internalPointer()) : *root;
}

QModelIndex PropertyTreeModel::indexOf(const PropertyNode& node, int column) const
{
    return node.parent != nullptr ? createIndex(node.row(), column, const_cast<PropertyNode*>(&node))
                                  : QModelIndex();
}

/// Gives a node the values and children of another one, which is used up.
void PropertyTreeModel::update(PropertyNode& node, PropertyNode& wanted)
{
    removeOthers(node, wanted);
    insertNew(node, wanted);
    takeValues(node, wanted);
}

/// Removes the children that the other node does not have in the same order.
void PropertyTreeModel::removeOthers(PropertyNode& node, const PropertyNode& wanted)
{
    std::size_t next = 0;
    std::vector<bool> stays;
    for (const auto& child : node.children) {
        std::size_t found = next;
        while (found < wanted.children.size() && !(wanted.children[found]->step == child->step)) {
            ++found;
        }
        stays.push_back(found < wanted.children.size());
        next = stays.back() ? found + 1 : next;
    }
    const QModelIndex parent = indexOf(node, NameColumn);
    for (int row = static_cast<int>(stays.size()) - 1; row >= 0; --row) {
        if (!stays[static_cast<std::size_t>(row)]) {
            beginRemoveRows(parent, row, row);
            node.children.erase(node.children.begin() + row);
            endRemoveRows();
        }
    }
}

/// Takes over the children that are missing, and updates the others.
void PropertyTreeModel::insertNew(PropertyNode& node, PropertyNode& wanted)
{
    const QModelIndex parent = indexOf(node, NameColumn);
    for (std::size_t i = 0; i < wanted.children.size(); ++i) {
        std::unique_ptr<PropertyNode>& child = wanted.children[i];
        if (i < node.children.size() && node.children[i]->step == child->step) {
            update(*node.children[i], *child);
            continue;
        }
        const int row = static_cast<int>(i);
        beginInsertRows(parent, row, row);
        child->parent = &node;
        node.children.insert(node.children.begin() + row, std::move(child));
        endInsertRows();
    }
}

void PropertyTreeModel::takeValues(PropertyNode& node, const PropertyNode& wanted)
{
    node.value = wanted.value;
    node.offered = wanted.offered;
    node.choices = wanted.choices;
    node.unit = wanted.unit;
    node.summary = wanted.summary;
    node.isBound = wanted.isBound;
    node.isEditable = wanted.isEditable;
    node.isPresent = wanted.isPresent;
    node.attributeType = wanted.attributeType;
    node.isDiffering = wanted.isDiffering;
    node.isAttributeSet = wanted.isAttributeSet;
    node.isUnitEditable = wanted.isUnitEditable;
    node.isUnitDiffering = wanted.isUnitDiffering;
    if (node.parent != nullptr) {
        emit dataChanged(indexOf(node, NameColumn), indexOf(node, UnitColumn));
    }
}

QString PropertyTreeModel::textOf(const PropertyNode& node) const
{
    if (node.isDiffering) {
        return tr("(different values)");
    }
    return node.value.isValid() ? text.previewOf(node.value) : node.summary;
}

QString PropertyTreeModel::unitTextOf(const PropertyNode& node)
{
    return node.isUnitDiffering ? QStringLiteral("\u2026") : node.unit;
}

/// The box of a truth value.
QVariant PropertyTreeModel::checkStateOf(const PropertyNode& node)
{
    if (kindOf(node.offered, node.choices) != ValueKind::Truth) {
        return QVariant();
    }
    return node.isDiffering ? Qt::PartiallyChecked : node.value.toBool() ? Qt::Checked : Qt::Unchecked;
}

QString PropertyTreeModel::toolTipOf(const PropertyNode& node) const
{
    QString toolTip = toString(node.path());
    const QString value = textOf(node);
    if (!value.isEmpty()) {
        toolTip += QStringLiteral("\n%1 %2").arg(value, node.unit);
    }
    if (node.isBound && !node.isPresent) {
        toolTip += '\n' + tr("Absent: it comes into being when it is given a value.");
    } else if (!node.isEditable && node.value.isValid()) {
        toolTip += '\n' + tr("Cannot be changed here.");
    }
    return toolTip;
}

} // namespace tolvik::viewer
