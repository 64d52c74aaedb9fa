#include "UI/Models/CityGMLModel/CityGMLProxyModel.h"

#include "framework/OperationStatus.h"
#include "framework/TextConversion.h"
#include "gml/AbstractFeatureType.hxx"
#include "gml/CodeType.hxx"
#include "UI/Models/CityGMLModel/CityGMLModel.h"
#include "UI/Models/CityGMLModel/CityGMLProxyModelTraverseChildrenGMLVisitor.h"
#include "UI/Models/CityGMLModel/CityGMLProxyModelTraverseNoApparencesVisitor.h"
#include "UI/Models/CityGMLModel/FeatureColumns.h"

#include <algorithm>
#include <log4cplus/loggingmacros.h>
#include <QAction>
#include <QCoreApplication>
#include <QDataStream>
#include <QGuiApplication>
#include <QItemSelectionModel>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QSet>
#include <QSharedPointer>
#include <vector>

namespace tolvik {

namespace {

constexpr int selectionGroup = 2;

const char iconDirectory[] = ":/CityGMLModel/";
const char defaultIcon[] = "default";

/// The types that have an icon. OuterCeilingSurface has no picture, and shows none.
const char* const icons[] = {
    "Appearance",
    "Bridge",
    "Building",
    "CityFurniture",
    "CityModel",
    "CityObjectGroup",
    "Door",
    "ElectricBoard",
    "GroundSurface",
    "LandUse",
    "Linky",
    "Luminaire",
    "OuterCeilingSurface",
    "PlantCover",
    "Railway",
    "ReliefFeature",
    "Road",
    "RoofSurface",
    "SolitaryVegetationObject",
    "WallSurface",
    "Window",
    defaultIcon,
};

QString iconPath(const QString& typeLabel)
{
    return QLatin1String(iconDirectory) + typeLabel + QLatin1String(".png");
}

TreeNodeGML* asGML(TreeNode* node)
{
    return dynamic_cast<TreeNodeGML*>(node);
}

gml::AbstractFeatureType* featureOf(TreeNode* node)
{
    const TreeNodeGML* const gmlNode = asGML(node);
    return gmlNode != nullptr ? gmlNode->feature() : nullptr;
}

int checkState(bool isVisible)
{
    return isVisible ? Qt::Checked : Qt::Unchecked;
}

// A large document is not in the caches, and a build waits for the memory of each feature, unless it was
// asked for so many features earlier.
constexpr int lookAhead = 8;

/// Asks for the part of a feature that holds the members of its bases, and of most types its own.
void prefetch(const gml::AbstractFeatureType* feature)
{
    constexpr std::ptrdiff_t line = 64;
    constexpr int lines = 4;
    const char* const start = reinterpret_cast<const char*>(feature);
    for (int i = 0; i < lines; ++i) {
        __builtin_prefetch(start + i * line);
    }
}

/// Calls \a visit with each feature of a node map and its nodes.
template <class Map, class Visit>
void visitEntries(Map& map, Visit visit)
{
    auto ahead = map.begin();
    for (int i = 0; i < lookAhead && ahead != map.end(); ++i) {
        ++ahead;
    }
    for (auto& [feature, nodes] : map) {
        if (ahead != map.end()) {
            prefetch(ahead->first);
            ++ahead;
        }
        visit(feature, nodes);
    }
}

} // namespace

const char* const CityGMLProxyModel::MimeType = "application/x-modelkeylist";

CityGMLProxyModel::CityGMLProxyModel(const QString& name, QObject* parent)
    : TreeNodeProxyModel(name, parent), traversalVisitor(new CityGMLProxyModelTraverseNoApparencesVisitor),
      traverseChildrenVisitor(new CityGMLProxyModelTraverseChildrenGMLVisitor(nodeMap))
{
    logger =
        log4cplus::Logger::getInstance(LOG4CPLUS_TEXT("tolvik.UI.Models.CityGMLModel.CityGMLProxyModel"));
    if (QCoreApplication::instance() == nullptr) {
        return;
    }
    // A program without a display can do without pictures, and cannot load them.
    const bool canLoad = qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
    for (const char* const each : icons) {
        const QString path = iconPath(QLatin1String(each));
        iconMap.insert(path, canLoad ? QIcon(path) : QIcon());
    }
}

CityGMLProxyModel::~CityGMLProxyModel() = default;

CityGMLModel* CityGMLProxyModel::document() const
{
    return static_cast<CityGMLModel*>(source.data());
}

void CityGMLProxyModel::setTraversalVisitor(CityGMLFeaturesVisitor* visitor)
{
    traversalVisitor = visitor;
    rebuildForHost();
}

void CityGMLProxyModel::setTraverseChildrenVisitor(CityGMLProxyModelTraverseChildrenVisitor* visitor)
{
    traverseChildrenVisitor = visitor;
    rebuildForHost();
}

void CityGMLProxyModel::rebuildForHost()
{
    if (source != nullptr && !sourceBusy) {
        emit aboutToBeChanged();
        rebuild();
        emit changed();
    }
}

void CityGMLProxyModel::resetModel()
{
    beginResetModel();
    dropNodes();
    endResetModel();
}

void CityGMLProxyModel::dropNodes()
{
    // Persistent indexes are let go at the end of a reset only, when their nodes are long gone.
    const QModelIndexList indexes = persistentIndexList();
    changePersistentIndexList(indexes, QVector<QModelIndex>(indexes.size()).toList());
    nodeMap.clear();
    rootNodes.clear();
}

bool CityGMLProxyModel::isAccepted(gml::AbstractFeatureType* feature) const
{
    // The question is about one feature: a visitor that would walk to those below it does not.
    const QScopedValueRollback<bool> alone(traversalVisitor->walkChildren, false);
    return feature->accept(traversalVisitor.get());
}

void CityGMLProxyModel::computeNodeMap()
{
    if (source == nullptr) {
        return;
    }
    beginResetModel();
    dropNodes();
    makeNodes([](gml::AbstractFeatureType* feature) { return new TreeNodeGML(feature, nullptr); });
    updateTreeNodes();
    endResetModel();
}

void CityGMLProxyModel::makeNodes(TreeNodeGML* (*make)(gml::AbstractFeatureType* feature))
{
    // A document's features lie in memory much in the order of its rows, so that an entry goes next to the
    // last one. The entries come in front of the nodes and close together, and a copy lays them out along the
    // ways of a search: among a million it then waits half as long for memory.
    NodeMap entries;
    std::vector<gml::AbstractFeatureType*> again;
    auto entry = entries.end();
    const int rows = document()->rowCount(QModelIndex());
    for (int row = 0; row < rows; ++row) {
        gml::AbstractFeatureType* const feature = document()->getFeature(row);
        if (row + lookAhead < rows) {
            prefetch(document()->getFeature(row + lookAhead));
        }
        if (isAccepted(feature)) {
            const std::size_t count = entries.size();
            entry = entries.try_emplace(entry, feature);
            if (entries.size() == count) {
                again.push_back(feature);
            }
        }
    }
    nodeMap = entries;
    entries.clear();
    visitEntries(nodeMap, [make](gml::AbstractFeatureType* feature, auto& nodes) {
        nodes.emplace_back(make(feature));
    });
    for (gml::AbstractFeatureType* const feature : again) {
        nodeMap[feature].emplace_back(make(feature));
    }
}

void CityGMLProxyModel::updateTreeNodes()
{
    if (traverseChildrenVisitor) {
        walkNodes([this](TreeNodeGML& node) { fillChildren(node); });
    }
    linkChildren();
    collectRoots();
}

void CityGMLProxyModel::walkNodes(const std::function<void(TreeNodeGML& node)>& walk)
{
    OperationStatus status(tr("Building Proxy Nodes"), static_cast<long long>(nodeMap.size()), true);
    traverseChildrenVisitor->setTraversalVisitor(traversalVisitor.get());
    visitEntries(nodeMap, [&](gml::AbstractFeatureType* /*feature*/, const auto& nodes) {
        for (const auto& node : nodes) {
            if (node) {
                walk(*node);
            }
            status.addStep(1);
        }
    });
}

void CityGMLProxyModel::fillChildren(TreeNodeGML& node)
{
    traverseChildrenVisitor->setTreeNode(&node);
    traverseChildrenVisitor->walkStart = true;
    node.feature()->accept(traverseChildrenVisitor.get());
}

void CityGMLProxyModel::linkChildren()
{
    OperationStatus status(tr("Building Nodes Parent/Children relashionship"),
                           static_cast<long long>(nodeMap.size()), true);
    for (const auto& [feature, nodes] : nodeMap) {
        for (const auto& node : nodes) {
            int row = 0;
            for (const auto& child : node->children()) {
                if (child) {
                    child->setParent(node.get());
                    child->setChildNumber(row);
                } else {
                    LOG4CPLUS_ERROR(logger, LOG4CPLUS_STRING_TO_TSTRING(logPrefix())
                                                << " updateTreeNodes() : " << node.get()
                                                << " has nil children");
                }
                ++row;
            }
        }
        status.addStep(1);
    }
}

void CityGMLProxyModel::collectRoots()
{
    OperationStatus status(tr("Building Root nodes"), static_cast<long long>(nodeMap.size()), true);
    int row = 0;
    for (const auto& [feature, nodes] : nodeMap) {
        for (const auto& node : nodes) {
            if (node->parent() == nullptr) {
                node->setChildNumber(row++);
                rootNodes.append(node);
            }
        }
        status.addStep(1);
    }
}

bool CityGMLProxyModel::deleteTreeNode(TreeNode* node)
{
    if (node == nullptr) {
        return false;
    }
    auto& children = node->children();
    TreeNodeGML* const gmlNode = asGML(node);
    if (gmlNode == nullptr) {
        for (std::size_t count = children.size(); count > 0; --count) {
            deleteTreeNode(children.front().get());
        }
        return true;
    }
    gml::AbstractFeatureType* const feature = gmlNode->feature();
    const auto entry = nodeMap.find(feature);
    if (entry == nodeMap.end()) {
        return false;
    }
    auto& nodes = entry->second;
    const auto position = std::find(nodes.begin(), nodes.end(), gmlNode);
    if (position == nodes.end()) {
        return false;
    }
    for (const auto& child : children) {
        deleteTreeNode(child.get());
    }
    nodes.erase(position);
    if (!nodes.empty()) {
        return false;
    }
    emit featureRemovedFromModel(feature);
    nodeMap.erase(entry);
    return true;
}

core::CityModelType* CityGMLProxyModel::cityGML() const
{
    return source != nullptr ? document()->cityGML() : nullptr;
}

TreeNode* CityGMLProxyModel::treeNode(const QModelIndex& index)
{
    return TreeNodeProxyModel::treeNode(index);
}

TreeNodeGML* CityGMLProxyModel::treeNode(gml::AbstractFeatureType* feature) const
{
    const auto entry = nodeMap.find(feature);
    // The entry is empty while it is reported that the last node has gone.
    return entry != nodeMap.end() && !entry->second.empty() ? entry->second.front().get() : nullptr;
}

gml::AbstractFeatureType* CityGMLProxyModel::getFeature(const QModelIndex& index)
{
    return featureOf(treeNode(index));
}

// Hosts override the virtual in this form.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
gml::AbstractFeatureType* CityGMLProxyModel::getFeatureParent(std::string id) const
{
    return getFeatureParent(document()->getFeature(id));
}

gml::AbstractFeatureType* CityGMLProxyModel::getFeatureParent(gml::AbstractFeatureType* feature) const
{
    return featureOf(treeNode(feature)->parent());
}

QModelIndex CityGMLProxyModel::index(int row, int column, const QModelIndex& parent) const
{
    return TreeNodeProxyModel::index(row, column, parent);
}

QModelIndex CityGMLProxyModel::index(int row, int column, TreeNode* node) const
{
    return TreeNodeProxyModel::index(row, column, node);
}

void CityGMLProxyModel::endResetModel()
{
    if (source == nullptr) {
        nodeMap.clear();
    }
    TreeNodeProxyModel::endResetModel();
}

QModelIndex CityGMLProxyModel::index(gml::AbstractFeatureType* feature) const
{
    if (source == nullptr || feature == nullptr) {
        return QModelIndex();
    }
    return mapFromSource(document()->index(feature));
}

QModelIndex CityGMLProxyModel::mapFromSource(const QModelIndex& index) const
{
    if (source == nullptr || sourceBusy || !index.isValid()) {
        return QModelIndex();
    }
    // The source's own indexes know the feature: its entry is looked for while the source looks up the row.
    auto* const known = static_cast<gml::AbstractFeatureType*>(index.internalPointer());
    gml::AbstractFeatureType* const feature = document()->getFeature(index);
    TreeNodeGML* node = treeNode(known);
    if (feature != known) {
        node = treeNode(feature);
    }
    if (node == nullptr) {
        return QModelIndex();
    }
    const int row = node->childNumber();
    if (row <= -1) {
        LOG4CPLUS_WARN(logger, LOG4CPLUS_TEXT("[") << LOG4CPLUS_STRING_TO_TSTRING(objectName().toStdString())
                                                   << "] mapFromSource row unset : " << node);
        return QModelIndex();
    }
    return createIndex(row, index.column(), node);
}

QList<QModelIndex> CityGMLProxyModel::listFromSource(const QModelIndex& index) const
{
    QList<QModelIndex> indexes;
    if (source == nullptr || sourceBusy || !index.isValid()) {
        return indexes;
    }
    const auto entry = nodeMap.find(document()->getFeature(index));
    if (entry == nodeMap.end()) {
        return indexes;
    }
    for (const auto& node : entry->second) {
        const int row = node->childNumber();
        if (row != -1) {
            indexes.append(createIndex(row, index.column(), node.get()));
        } else {
            LOG4CPLUS_WARN(logger, LOG4CPLUS_STRING_TO_TSTRING(logPrefix())
                                       << " listFromSource row unset : " << node.get());
        }
    }
    return indexes;
}

QModelIndex CityGMLProxyModel::mapToSource(const QModelIndex& index) const
{
    if (source == nullptr || sourceBusy || !index.isValid()) {
        return QModelIndex();
    }
    const QModelIndex row = document()->index(getFeature(index));
    return row.isValid() ? document()->index(row.row(), index.column(), row.parent()) : row;
}

std::string CityGMLProxyModel::logPrefix() const
{
    const std::string name = objectName().toStdString();
    return "[" + name + "] " + name + "(" + source->objectName().toStdString() + ")";
}

int CityGMLProxyModel::columnCount(const QModelIndex& /*parent*/) const
{
    return featureColumnCount;
}

QVariant CityGMLProxyModel::data(const QModelIndex& index, int role) const
{
    if (source == nullptr || sourceBusy) {
        return QVariant();
    }
    TreeNode* const node = treeNode(index);
    if (node == nullptr) {
        return QVariant();
    }
    const TreeNodeGML* const gmlNode = asGML(node);
    const int column = index.column();
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        if (column == nameColumn) {
            return toQString(node->getName());
        }
        if (column == typeColumn && gmlNode != nullptr) {
            return QString::fromStdString(gmlNode->feature()->typeLabel);
        }
        break;
    case Qt::DecorationRole:
        if (column == nameColumn && gmlNode != nullptr) {
            return icon(gmlNode->feature()->typeLabel);
        }
        break;
    case Qt::CheckStateRole:
        if (!checkColumnEnabled) {
            return QVariant();
        }
        if (column == nameColumn) {
            return recursiveCheckState(index);
        }
        // A source that keeps account of what it is asked is asked twice for this.
        TreeNodeProxyModel::data(index, role);
        break;
    default:
        break;
    }
    return TreeNodeProxyModel::data(index, role);
}

QIcon CityGMLProxyModel::icon(const std::string& typeLabel) const
{
    const auto found = iconMap.constFind(iconPath(QString::fromStdString(typeLabel)));
    return found != iconMap.constEnd() ? *found : iconMap.value(iconPath(QLatin1String(defaultIcon)));
}

QVariant CityGMLProxyModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QVariant();
    }
    return tr(featureColumnTitle(section));
}

QVariant CityGMLProxyModel::recursiveCheckState(const QModelIndex& index) const
{
    TreeNodeGML* const node = asGML(treeNode(index));
    if (node == nullptr) {
        return TreeNodeProxyModel::recursiveCheckState(index);
    }
    const auto stateOf = [this](TreeNode* each) {
        return checkState(document()->isVisible(document()->index(featureOf(each))));
    };
    const int state = stateOf(node);
    const auto& children = node->children();
    const bool isMixed = std::any_of(children.begin(), children.end(),
                                     [&](const auto& child) { return stateOf(child.get()) != state; });
    return isMixed ? static_cast<int>(Qt::PartiallyChecked) : state;
}

bool CityGMLProxyModel::isDisabled(TreeNode* node) const
{
    const TreeNodeGML* const gmlNode = asGML(node);
    return source != nullptr && gmlNode != nullptr && document()->isDisabled(gmlNode->feature());
}

int CityGMLProxyModel::defaultExpandDepth()
{
    return 0;
}

void CityGMLProxyModel::createActions()
{
    TreeNodeProxyModel::createActions();
    const QSharedPointer<QAction> action(new QAction(tr("Select siblings of same type"), this));
    action->setToolTip(tr("Select all brothers of the same type"));
    connect(action.data(), SIGNAL(triggered()), this, SLOT(selectSiblingsWithSameType()));
    actions.append(new Action(action, this, selectionGroup, tr("Select")));
}

void CityGMLProxyModel::selectSiblings(bool sameType, bool /*reserved*/)
{
    if (selectionModel() == nullptr || sourceBusy) {
        return;
    }
    TreeNode* const node = treeNode(selectionModel()->currentIndex());
    gml::AbstractFeatureType* const feature = featureOf(node);
    if (feature == nullptr || node->parent() == nullptr) {
        return;
    }
    QItemSelection siblings;
    const int lastColumn = columnCount(QModelIndex()) - 1;
    const auto children = node->parent()->children();
    int row = 0;
    for (const auto& child : children) {
        const gml::AbstractFeatureType* const childFeature = featureOf(child.get());
        if (childFeature != nullptr && (!sameType || childFeature->typeLabel == feature->typeLabel.str())) {
            appendRow(siblings, index(row, nameColumn, child.get()), index(row, lastColumn, child.get()));
        }
        ++row;
    }
    if (!siblings.isEmpty()) {
        selectionModel()->select(siblings, QItemSelectionModel::Select);
    }
}

QStringList CityGMLProxyModel::mimeTypes() const
{
    return {QLatin1String(MimeType)};
}

QMimeData* CityGMLProxyModel::mimeData(const QModelIndexList& indexes) const
{
    if (indexes.isEmpty()) {
        return nullptr;
    }
    QByteArray keys;
    QDataStream stream(&keys, QIODevice::WriteOnly);
    encodeData(indexes, stream);
    auto* const mimeData = new QMimeData;
    mimeData->setData(QLatin1String(MimeType), keys);
    return mimeData;
}

void CityGMLProxyModel::encodeData(const QList<QModelIndex>& indexes, QDataStream& stream) const
{
    if (source == nullptr) {
        return;
    }
    QSet<qint64> keys;
    for (const QModelIndex& each : indexes) {
        keys.insert(document()->getRow(getFeature(each)));
    }
    for (const qint64 key : qAsConst(keys)) {
        stream << key;
    }
}

QList<QModelIndex> CityGMLProxyModel::decodeData(QDataStream& stream) const
{
    QList<QModelIndex> rows;
    if (source == nullptr) {
        return rows;
    }
    while (!stream.atEnd()) {
        qint64 key = 0;
        stream >> key;
        const QModelIndex row = document()->index(document()->getFeature(static_cast<int>(key)));
        if (row.isValid()) {
            rows.append(row);
        }
    }
    return rows;
}

} // namespace tolvik
