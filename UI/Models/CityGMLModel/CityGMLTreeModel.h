#pragma once

#include "UI/Models/CityGMLModel/CityGMLProxyModel.h"
#include "UI/Models/CityGMLModel/FeatureRoles.h"

#include <vector>

namespace tolvik {

class FeatureAnswers;

/// The features of a CityGMLModel as a tree that any Qt view or proxy model can stand on.
/// \code
/// CityGMLTreeModel tree;
/// tree.setSourceModel(&model);
/// tree.setCheckColumnEnabled(true);
/// view->setModel(&tree);
/// \endcode
/// It has the nodes, columns and operations of its base, and besides:
/// - Signals come as QAbstractItemModel lays them down, with the true parent and around the change. A feature
///   that takes others below it is inserted first; then these are moved. So persistent indexes, selection,
///   current index and expansion stay with their feature, until its row goes or the source is reset.
/// - Each feature has one node, which stands below one other node at most, whatever the children visitor
///   claims: of several claims that of the later entry of the node map counts. Circles are cut, and nodes
///   that are not of this model are left out.
/// - The source's reset encloses that of the tree: between the two the tree is empty.
/// - A changed name shows, also where a feature has lost its names or several rows change at once.
/// - The check box shows whether the feature and everything below it is visible, and hides or shows all of
///   it, in one operation on the list.
/// - A change of visibility, however many rows it concerns, is announced when the source sends
///   `visibilityChanged`, in ranges of adjacent rows; not with the signal that the source sends for each row.
///   Where that concerns a good part of the tree, `layoutChanged` comes first, though nothing has moved: a
///   view then lays out once, in place of measuring every row of the ranges. A signal for a hidden row of
///   which nothing has changed that the tree knows may be part of such a change: it is passed on with the
///   next `visibilityChanged`, and at the latest when the event loop runs.
///
/// The visibility is remembered: one that is set in the source without a signal shows with the next signal
/// for its row.
class CITYGMLMODEL_EXPORT CityGMLTreeModel : public CityGMLProxyModel
{
    Q_OBJECT

public:
    /// \param name   the object name, which stands in log lines
    /// \param parent owns the model, or null
    explicit CityGMLTreeModel(const QString& name = "", QObject* parent = nullptr);
    ~CityGMLTreeModel() override;

    QModelIndex mapToSource(const QModelIndex& index) const override;
    void setSourceModel(QAbstractItemModel* model) override;

    /// As in the base, and the roles of FeatureRole in every column.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

    /// With the check state role of column 0, shows or hides the feature with everything below it: shows it
    /// unless \a value is Qt::Unchecked. Everything else as in the base.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

    /// Those of the base and of FeatureRole.
    QHash<int, QByteArray> roleNames() const override;

protected slots:
    /// Renames the nodes of the rows, and passes the change on for whole rows.
    void sourceDataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight) override;

    /// Makes a node for one new row and walks all nodes anew: what has come to stand elsewhere is moved.
    /// Rows of CityGMLModel::addFeatures() wait for the last one, and then all nodes are walked once.
    void rowsInsertedInSourceModel(const QModelIndex& parent, int start, int end) override;

    /// Takes out the node of one row, with what is below it.
    void rowsAboutToBeRemovedInSourceModel(const QModelIndex& parent, int start, int end) override;

protected:
    void computeNodeMap() override;
    void updateTreeNodes() override;
    bool deleteTreeNode(TreeNode* node) override;
    void endResetModel() override;
    void sourceModelAboutToBeReset() override;
    using CityGMLProxyModel::visibilityChangedInSourceModel;
    void visibilityChangedInSourceModel(const QList<QModelIndex>& indexes) override;

    /// Whether the feature and everything below it is visible, partially checked if that differs.
    QVariant recursiveCheckState(const QModelIndex& index) const override;

private:
    class Node;
    struct Links;
    struct Range;
    using Children = std::vector<Fondo::RefPtr<TreeNode>>;
    using Nodes = std::vector<Fondo::RefPtr<Node>>;

    Node* nodeOf(gml::AbstractFeatureType* feature) const;
    Node* nodeAt(const Node* parent, int row) const;
    int childCount(const Node* parent) const;
    int rowOf(Node& node) const;
    QModelIndex indexOf(Node* node) const;

    Links claimedLinks();
    void addNodes(const std::vector<gml::AbstractFeatureType*>& features);
    void insert(Node* node, const Links& links);
    void rearrange(const Links& links);
    void arrangeChildren(Node* parent, const Children& wanted);
    void move(Node* from, int row, int count, Node* to, int target);
    Children takeChildren(Node* parent, int row, int count);
    void insertChildren(Node* parent, int row, const Children& children);
    void numberChildren(Node* parent, int row);

    bool updateName(Node& node);
    bool isVisibleInSource(Node& node) const;
    bool updateVisibility(Node& node);
    void count(Node* node, int nodes, int visibleNodes);

    void queueAnnouncement();
    void announcePending();
    void announceStates();
    void announce(const Nodes& nodes, const QVector<int>& roles);
    std::vector<Range> rangesOf(const Nodes& nodes) const;

    // What is still to be announced: nodes that were hidden or shown, those whose subtree has another state,
    // and those of which the source has announced a change that is not known.
    Nodes turned;
    Nodes touched;
    Nodes unexplained;
    bool isAnnouncementQueued = false;

    // Between the reset signals of the source.
    bool isEmptied = false;

    // While many features are added: those that have no node yet. They may be gone by the end of it.
    std::vector<gml::AbstractFeatureType*> added;

    FeatureAnswers* const answers;
};

} // namespace tolvik
