#pragma once

#include "framework/TreeNodeProxyModel.h"
#include "UI/Models/CityGMLModel/CityGMLModelExport.h"
#include "UI/Models/CityGMLModel/CityGMLProxyModelTraverseChildrenVisitor.h"

#include <functional>
#include <QIcon>
#include <QMap>
#include <QSet>
#include <string>

namespace core {
class CityModelType;
}

namespace tolvik {

class CityGMLModel;

/// The features of a CityGMLModel, its source, as a tree.
///
/// Each row of the source that the traversal visitor accepts has a node (TreeNodeGML). The children visitor
/// then walks from each feature to those directly below it and so makes their nodes children of its node.
/// What no walk claims stands at the top, in no particular order; so do features whose owner is not accepted:
/// \code
///   source            accepted   walks                    tree
///   0 CityModel          x       CityModel: Building      CityModel
///   1 Building           x       Building: WallSurface      Building
///   2 WallSurface        x                                    WallSurface
///   3 Appearance
/// \endcode
/// The tree is built anew when the source is reset and when a visitor is set, linked anew when a row comes,
/// and patched when a row goes or a name changes.
///
/// Nodes hold pointers into the document: between the reset signals of the source none of them may be read,
/// and `sourceBusy` is true. Used on the thread of the user interface.
class CITYGMLMODEL_EXPORT CityGMLProxyModel : public TreeNodeProxyModel
{
    Q_OBJECT

public:
    /// The nodes of each feature.
    using NodeMap = CityGMLProxyModelTraverseChildrenVisitor::NodeMap;

    /// Of drag data: the row keys of encodeData() one behind the other.
    static const char* const MimeType;

    /// The source, when one is set, must be a CityGMLModel.
    /// \param name   the object name, which stands in log lines
    /// \param parent owns the model, or null
    explicit CityGMLProxyModel(const QString& name = "", QObject* parent = nullptr);
    ~CityGMLProxyModel() override;

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;

    /// The index of a feature's oldest node, column 0; invalid if it has none.
    QModelIndex index(gml::AbstractFeatureType* feature) const;

    /// Always 2.
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;

    /// In column 0 the node's name, the icon of its type and, with `checkColumnEnabled`, its check state; in
    /// column 1 the type of its feature. The source answers everything else. Empty while the source is reset.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    QStringList mimeTypes() const override;

    /// The rows behind the indexes, owned by the caller; null for an empty list.
    QMimeData* mimeData(const QModelIndexList& indexes) const override;

    /// The row of the node's feature; the column stays.
    QModelIndex mapToSource(const QModelIndex& index) const override;

    /// The oldest node of the row's feature; the column stays. Invalid for a feature that is not accepted.
    QModelIndex mapFromSource(const QModelIndex& index) const override;

    /// Adds "Select siblings of same type" to those of the base.
    void createActions() override;

    /// 0: a view opens nothing at first.
    int defaultExpandDepth() override;

    /// Decides anew which rows have nodes, and builds the tree anew, also if the visitor is the same.
    /// \param visitor on the heap, shared from now on, asked with `accept` for each feature, and with
    /// `walkChildren` false for that long. Null only without a source.
    void setTraversalVisitor(CityGMLFeaturesVisitor* visitor);

    /// Decides anew which node is below which, and builds the tree anew, also if the visitor is the same.
    /// \param visitor on the heap, over the node map of this model, shared from now on; null makes the tree
    /// flat
    void setTraverseChildrenVisitor(CityGMLProxyModelTraverseChildrenVisitor* visitor);

    /// Drops the tree. The next reset of the source brings it back.
    void resetModel();

    /// The feature behind an index, null if there is none.
    static gml::AbstractFeatureType* getFeature(const QModelIndex& index);

protected:
    // As the bases lay them down.
    void encodeData(const QList<QModelIndex>& indexes, QDataStream& stream) const override;
    QList<QModelIndex> decodeData(QDataStream& stream) const override;
    void computeNodeMap() override;
    void selectSiblings(bool sameType, bool reserved) override;

protected slots:
    /// Renames the node for a single index, and passes the change on.
    void sourceDataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight) override;

    /// Makes a node for one new row and links all nodes anew. The insertion is signalled when it is done.
    void rowsInsertedInSourceModel(const QModelIndex& parent, int start, int end) override;

    /// Takes out all nodes of one row, with what is below them. \a parent is looked up in the tree as the
    /// parent of the node's parent, so that a removal below the second level is signalled for an index of the
    /// top levels.
    void rowsAboutToBeRemovedInSourceModel(const QModelIndex& parent, int start, int end) override;

protected:
    QModelIndex index(int row, int column, TreeNode* node) const override;

    /// A reset without a source drops the node map, too: its features may be gone.
    void endResetModel() override;
    bool isDisabled(TreeNode* node) const override;

    /// The indexes of all nodes of the row's feature, the oldest first.
    QList<QModelIndex> listFromSource(const QModelIndex& index) const override;

    /// Whether the feature is visible, and Qt::PartiallyChecked if that of a child differs. What is below the
    /// children does not count.
    QVariant recursiveCheckState(const QModelIndex& index) const override;

public:
    /// The document of the source, null without a source or a document.
    virtual core::CityModelType* cityGML() const;

    /// The oldest node of a feature, null if it has none.
    virtual TreeNodeGML* treeNode(gml::AbstractFeatureType* feature) const;

    /// The feature above that with the identifier \a id, null if it is at the top. There must be a source,
    /// and the feature must have a node.
    virtual gml::AbstractFeatureType* getFeatureParent(std::string id) const;
    /// The same for a feature.
    virtual gml::AbstractFeatureType* getFeatureParent(gml::AbstractFeatureType* feature) const;

signals:
    /// The last node of a feature has left the tree, while the removal is still going on. The feature is
    /// alive.
    void featureRemovedFromModel(gml::AbstractFeatureType* feature);

protected:
    /// Links the nodes of the node map, and appends those without a parent to `rootNodes`. A parent once set
    /// stays.
    virtual void updateTreeNodes();

    /// Takes a node and all below it out of the node map, but not out of its parent's children or the roots.
    /// \return whether this was the last node of its feature
    virtual bool deleteTreeNode(TreeNode* node);

    /// The node behind an index of such a model, null for an invalid index.
    static TreeNode* treeNode(const QModelIndex& index);

    /// The source, null without one.
    CityGMLModel* document() const;

    /// Whether the traversal visitor gives the feature a node.
    bool isAccepted(gml::AbstractFeatureType* feature) const;

    /// Drops all nodes, within a reset. Persistent indexes become invalid here.
    void dropNodes();

    /// Fills the node map with a node for each row that is accepted.
    void makeNodes(TreeNodeGML* (*make)(gml::AbstractFeatureType* feature));

    /// Calls \a walk for each node in the order of the node map, and reports the progress. There must be a
    /// children visitor.
    void walkNodes(const std::function<void(TreeNodeGML& node)>& walk);

    /// Has the children visitor fill the children of one node.
    void fillChildren(TreeNodeGML& node);

    /// Takes a node from where it stands, and numbers the nodes behind it.
    void takeOut(TreeNode* node);

    /// The nodes of each feature; the children visitors of subclasses work on it.
    NodeMap nodeMap;
    /// Says which features have nodes; null only without a source.
    Fondo::RefPtr<CityGMLFeaturesVisitor> traversalVisitor;
    /// Says which node is below which; null for a flat tree.
    Fondo::RefPtr<CityGMLProxyModelTraverseChildrenVisitor> traverseChildrenVisitor;
    /// The icons that were asked for, by type.
    QMap<QString, QIcon> iconMap;

private:
    void rebuildForHost();
    void linkChildren();
    void collectRoots();
    void releaseChildren(const QSet<const TreeNode*>& branch);
    bool isLinked(const TreeNode* node) const;
    template <class RowOf>
    void movePersistentIndexes(RowOf rowOf);
    QIcon icon(const std::string& typeLabel) const;
    std::string logPrefix() const;
};

} // namespace tolvik
