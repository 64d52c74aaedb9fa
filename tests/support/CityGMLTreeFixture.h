#pragma once

#include "bldg/AbstractBoundarySurfaceType.hxx"
#include "bldg/AbstractBuildingType.hxx"
#include "bldg/BoundarySurfacePropertyType.hxx"
#include "bldg/DoorType.hxx"
#include "bldg/OpeningPropertyType.hxx"
#include "bldg/WallSurfaceType.hxx"
#include "support/CityGMLModelFixture.h"
#include "support/SignalRecorder.h"
#include "UI/Models/CityGMLModel/CityGMLProxyModel.h"
#include "UI/Models/CityGMLModel/CityGMLProxyModelTraverseAllVisitor.h"
#include "UI/Models/CityGMLModel/CityGMLProxyModelTraverseChildrenGMLVisitor.h"
#include "UI/Models/CityGMLModel/CityGMLProxyModelTraverseNoApparencesVisitor.h"

#include <algorithm>
#include <functional>
#include <QAbstractItemModelTester>
#include <QStringList>

/// A document with the given members, of the modules that the tests of the tree use.
inline QByteArray cityDocument(const QByteArray& members)
{
    return "<CityModel xmlns=\"http://www.opengis.net/citygml/2.0\" gml:id=\"city\"\n"
           "    xmlns:gml=\"http://www.opengis.net/gml\" "
           "xmlns:app=\"http://www.opengis.net/citygml/appearance/2.0\"\n"
           "    xmlns:bldg=\"http://www.opengis.net/citygml/building/2.0\">\n" +
           members + "</CityModel>\n";
}

/// city(b1(w1(d1 d2) w2) b2), and an appearance. In rows: city a1 b1 w1 d1 d2 w2 b2.
inline QByteArray village()
{
    return cityDocument(R"(
  <app:appearanceMember><app:Appearance gml:id="a1"/></app:appearanceMember>
  <cityObjectMember>
    <bldg:Building gml:id="b1">
      <gml:name>Town hall</gml:name>
      <gml:name>Mairie</gml:name>
      <bldg:boundedBy>
        <bldg:WallSurface gml:id="w1">
          <gml:name>South</gml:name>
          <bldg:opening><bldg:Door gml:id="d1"><gml:name>Gate</gml:name></bldg:Door></bldg:opening>
          <bldg:opening><bldg:Door gml:id="d2"/></bldg:opening>
        </bldg:WallSurface>
      </bldg:boundedBy>
      <bldg:boundedBy><bldg:RoofSurface gml:id="w2"/></bldg:boundedBy>
    </bldg:Building>
  </cityObjectMember>
  <cityObjectMember><bldg:Building gml:id="b2"><gml:name>Church</gml:name></bldg:Building></cityObjectMember>
)");
}

inline bldg::WallSurfaceType makeWall(const std::string& id)
{
    bldg::WallSurfaceType result;
    result.id(gml::AbstractGMLType::id_type(id));
    return result;
}

inline bldg::DoorType makeDoor(const std::string& id)
{
    bldg::DoorType result;
    result.id(gml::AbstractGMLType::id_type(id));
    return result;
}

/// Puts a copy of the surface into the document, behind the others of the building.
/// \return the copy
inline bldg::AbstractBoundarySurfaceType* addSurface(bldg::AbstractBuildingType& building,
                                                     const bldg::AbstractBoundarySurfaceType& surface)
{
    building.boundedBy1().push_back(bldg::BoundarySurfacePropertyType());
    bldg::BoundarySurfacePropertyType& member = building.boundedBy1().back();
    member._BoundarySurface(surface);
    return &member._BoundarySurface().get();
}

/// The same for an opening of a surface.
inline bldg::AbstractOpeningType* addOpening(bldg::AbstractBoundarySurfaceType& surface,
                                             const bldg::AbstractOpeningType& opening)
{
    surface.opening().push_back(bldg::OpeningPropertyType());
    bldg::OpeningPropertyType& member = surface.opening().back();
    member._Opening(opening);
    return &member._Opening().get();
}

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
    explicit CityTree(const QByteArray& document = village())
    {
        tree.setSourceModel(&model);
        load(document);
    }

    void load(const QByteArray& document)
    {
        std::istringstream stream(document.toStdString());
        model.load(stream);
    }

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
    QString dump() const
    {
        QList<QModelIndex> roots;
        for (int i = 0; i < tree.rowCount(); ++i) {
            roots.append(tree.index(i, 0));
        }
        std::stable_sort(roots.begin(), roots.end(), [this](const QModelIndex& a, const QModelIndex& b) {
            return tree.mapToSource(a).row() < tree.mapToSource(b).row();
        });
        QStringList parts;
        for (const QModelIndex& root : qAsConst(roots)) {
            parts.append(dump(root));
        }
        return parts.join(' ');
    }

    QString dump(const QModelIndex& index) const
    {
        QStringList below;
        for (int i = 0; i < tree.rowCount(index); ++i) {
            below.append(dump(tree.index(i, 0, index)));
        }
        const QString id = idOf(tolvik::CityGMLProxyModel::getFeature(index));
        return below.isEmpty() ? id : id + '(' + below.join(' ') + ')';
    }

    static QString idOf(const gml::AbstractFeatureType* feature)
    {
        return feature->id().present() ? QString::fromStdString(feature->id().get()) : QStringLiteral("?");
    }

    /// Runs the item model tester over the tree as it stands; a failure ends the program.
    void check()
    {
        const QAbstractItemModelTester tester(&tree, QAbstractItemModelTester::FailureReportingMode::Fatal);
    }

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
