#pragma once

#include "support/CityGMLModelFixture.h"
#include "support/SignalRecorder.h"
#include "UI/Models/CityGMLModel/CityGMLProxyModel.h"
#include "UI/Models/CityGMLModel/CityGMLProxyModelTraverseAllVisitor.h"
#include "UI/Models/CityGMLModel/CityGMLProxyModelTraverseChildrenGMLVisitor.h"
#include "UI/Models/CityGMLModel/CityGMLProxyModelTraverseNoApparencesVisitor.h"

#include <functional>
#include <QString>

namespace testsupport {

/// A document with the given members, of the modules that the tests of the tree use.
QByteArray cityDocument(const QByteArray& members);

/// city(b1(w1(d1 d2) w2) b2), and an appearance. In rows: city a1 b1 w1 d1 d2 w2 b2.
QByteArray village();

/// Adds columns and rows to the data of a test function that calls addToVillage(): `level`, its argument;
/// `place`, parent and rows of the insertion as the recorder writes them; `tree`, what the tree is then.
void addInsertionRows();

/// Puts a feature "new" into the document of a village and into the list.
/// \param level 1 for a building of the city, 2 for a wall of b1, 3 for a door of w1, each behind the others
void addToVillage(tolvik::CityGMLModel& model, int level);

/// The proxy with its protected members open.
class OpenTree : public tolvik::CityGMLProxyModel
{
public:
    using CityGMLProxyModel::CityGMLProxyModel;

    using CityGMLProxyModel::computeNodeMap;
    using CityGMLProxyModel::decodeData;
    using CityGMLProxyModel::deleteTreeNode;
    using CityGMLProxyModel::encodeData;
    using CityGMLProxyModel::iconMap;
    using CityGMLProxyModel::index;
    using CityGMLProxyModel::isDisabled;
    using CityGMLProxyModel::listFromSource;
    using CityGMLProxyModel::nodeMap;
    using CityGMLProxyModel::recursiveCheckState;
    using CityGMLProxyModel::rowsAboutToBeRemovedInSourceModel;
    using CityGMLProxyModel::rowsInsertedInSourceModel;
    using CityGMLProxyModel::selectSiblings;
    using CityGMLProxyModel::sourceDataChanged;
    using CityGMLProxyModel::traversalVisitor;
    using CityGMLProxyModel::traverseChildrenVisitor;
    using CityGMLProxyModel::treeNode;
    using CityGMLProxyModel::updateTreeNodes;
    using ProxyModel::actions;
    using ProxyModel::sourceBusy;
    using QAbstractItemModel::persistentIndexList;
    using TreeNodeProxyModel::checkColumnEnabled;
    using TreeNodeProxyModel::logger;
    using TreeNodeProxyModel::rootNodes;
};

/// A list, the tree over it, and the features by their identifiers.
struct CityTree
{
    explicit CityTree(const QByteArray& document = village());

    void load(const QByteArray& document);

    gml::AbstractFeatureType* feature(const char* id) const { return model.getFeature(std::string(id)); }

    template <class T>
    T& feature(const char* id) const
    {
        return dynamic_cast<T&>(*feature(id));
    }

    int row(const char* id) const { return model.getRow(feature(id)); }

    /// The index of a feature in the list.
    QModelIndex source(const char* id, int column = 0) const { return model.index(row(id), column); }

    /// Its index in the tree.
    QModelIndex at(const char* id, int column = 0) const { return tree.mapFromSource(source(id, column)); }

    tolvik::TreeNodeGML* node(const char* id) const { return tree.treeNode(feature(id)); }

    /// Identifiers in the order on screen, those below a node in brackets behind it. But roots stand in the
    /// order of their rows: that of the tree is the order of their addresses.
    QString dump() const;

    QString dump(const QModelIndex& index) const;

    static QString idOf(const gml::AbstractFeatureType* feature);

    /// Runs the item model tester over the tree as it stands; a failure ends the program.
    void check();

    tolvik::CityGMLModel model{nullptr, nullptr};
    OpenTree tree{"tree"};
};

/// Records the signals of a tree, those of its own included.
class TreeRecorder : public SignalRecorder
{
public:
    explicit TreeRecorder(const tolvik::CityGMLProxyModel* tree) : SignalRecorder(tree)
    {
        watch(tree, &tolvik::CityGMLProxyModel::aboutToBeChanged, "aboutToBeChanged");
        watch(tree, &tolvik::CityGMLProxyModel::changed, "changed");
        QObject::connect(
            tree, &tolvik::CityGMLProxyModel::featureRemovedFromModel, this,
            [this](gml::AbstractFeatureType* feature) { add("removed " + CityTree::idOf(feature)); });
    }
};

/// A traversal visitor made of a function.
class Accept : public tolvik::CityGMLProxyModelTraverseAllVisitor
{
public:
    using Judge = std::function<bool(gml::AbstractFeatureType*)>;
    explicit Accept(Judge judge) : judge(std::move(judge)) {}

    bool visit_gml_AbstractFeatureType(gml::AbstractFeatureType* feature) override { return judge(feature); }

private:
    Judge judge;
};

/// A children visitor made of a function, which is called once for each node instead of a walk.
class Claim : public tolvik::CityGMLProxyModelTraverseChildrenVisitor
{
public:
    using Claimer = std::function<void(tolvik::TreeNodeGML* node, NodeMap& nodes)>;
    Claim(NodeMap& nodes, Claimer claim)
        : CityGMLProxyModelTraverseChildrenVisitor(nodes), claim(std::move(claim))
    {
    }

    void setTreeNode(tolvik::TreeNodeGML* node) override
    {
        CityGMLProxyModelTraverseChildrenVisitor::setTreeNode(node);
        walkChildren = false;
        claim(node, nodeMap);
    }

private:
    Claimer claim;
};

} // namespace testsupport
