#include "support/CityGMLTreeFixture.h"
#include "support/OperationRecorder.h"
#include "support/TestClass.h"

#include <memory>
#include <QMetaMethod>
#include <QPointer>
#include <QtTest>

using namespace testsupport;

using Fondo::RefPtr;
using tolvik::CityGMLProxyModel;
using tolvik::CityGMLProxyModelTraverseAllVisitor;
using tolvik::TreeNode;
using tolvik::TreeNodeGML;

namespace {

const QStringList rebuildForHost{"aboutToBeChanged", "modelAboutToBeReset", "modelReset", "changed"};

/// A document model that can have rows twice.
class RepeatingModel : public tolvik::CityGMLModel
{
public:
    RepeatingModel() : CityGMLModel(nullptr, nullptr) {}

    void appendAgain(const std::string& id)
    {
        beginResetModel();
        append(getFeature(id));
        endResetModel();
    }
};

/// A host's own traversal visitor: leaves doors out, and otherwise goes on as its base class does, which
/// walks.
class NoDoors : public tolvik::CityGMLFeaturesVisitor
{
public:
    int questions = 0;

    bool visit_gml_AbstractFeatureType(gml::AbstractFeatureType* feature) override
    {
        ++questions;
        return dynamic_cast<bldg::DoorType*>(feature) == nullptr &&
               CityGMLFeaturesVisitor::visit_gml_AbstractFeatureType(feature);
    }
};

} // namespace

class CityGMLProxyModelTest : public QObject
{
    Q_OBJECT

private slots:
    void metaObject()
    {
        const QMetaObject& meta = CityGMLProxyModel::staticMetaObject;
        QCOMPARE(meta.className(), "tolvik::CityGMLProxyModel");
        QStringList methods;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            const QMetaMethod method = meta.method(i);
            QVERIFY(method.methodType() == QMetaMethod::Signal || method.access() == QMetaMethod::Protected);
            methods.append(QString::fromLatin1(method.methodSignature()));
        }
        QCOMPARE(methods, QStringList({"featureRemovedFromModel(gml::AbstractFeatureType*)",
                                       "sourceDataChanged(QModelIndex,QModelIndex)",
                                       "rowsInsertedInSourceModel(QModelIndex,int,int)",
                                       "rowsAboutToBeRemovedInSourceModel(QModelIndex,int,int)"}));
    }

    void freshProxy()
    {
        QObject parent;
        const auto* const unnamed = new CityGMLProxyModel(QString(), &parent);
        QCOMPARE(unnamed->objectName(), QString());
        QCOMPARE(static_cast<const QObject*>(unnamed)->parent(), &parent);

        OpenTree tree("tree");
        const QAbstractItemModelTester tester(&tree, QAbstractItemModelTester::FailureReportingMode::Fatal);
        QCOMPARE(tree.objectName(), QString("tree"));
        QCOMPARE(QString::fromStdString(tree.logger.getName()),
                 QString("tolvik.UI.Models.CityGMLModel.CityGMLProxyModel"));
        QVERIFY(
            dynamic_cast<tolvik::CityGMLProxyModelTraverseNoApparencesVisitor*>(tree.traversalVisitor.get()));
        QVERIFY(dynamic_cast<tolvik::CityGMLProxyModelTraverseChildrenGMLVisitor*>(
            tree.traverseChildrenVisitor.get()));
        QVERIFY(tree.cityGML() == nullptr);
        QCOMPARE(tree.rowCount(), 0);
        QCOMPARE(tree.columnCount(), 2);
        QVERIFY(tree.nodeMap.empty());
    }

    void withoutSourceNothingIsBuilt()
    {
        OpenTree tree;
        TreeRecorder recorder(&tree);
        tree.computeNodeMap();
        tree.setTraversalVisitor(new CityGMLProxyModelTraverseAllVisitor);
        tree.setTraverseChildrenVisitor(nullptr);
        QCOMPARE(recorder.take(), QStringList());

        // The visitors serve the first source.
        tolvik::CityGMLModel model(nullptr, nullptr);
        std::istringstream stream(village().toStdString());
        model.load(stream);
        tree.setSourceModel(&model);
        QCOMPARE(tree.rowCount(), 8);
    }

    void treeOfADocument()
    {
        CityTree city;
        city.check();
        QCOMPARE(city.dump(), QString("city(b1(w1(d1 d2) w2) b2)"));
        QCOMPARE(city.tree.cityGML(), city.model.cityGML());
        QCOMPARE(city.tree.rootNodeSize(), 1);
        QCOMPARE(city.node("city")->childNumber(), 0);
        QVERIFY(city.node("city")->parent() == nullptr);
        QCOMPARE(city.node("b2")->childNumber(), 1);
        QCOMPARE(city.node("b2")->parent(), static_cast<TreeNode*>(city.node("city")));
        QCOMPARE(city.node("d2")->childNumber(), 1);
        QCOMPARE(city.node("d2")->parent(), static_cast<TreeNode*>(city.node("w1")));
        QCOMPARE(city.tree.columnCount(), 2);
        QCOMPARE(city.tree.columnCount(city.at("d1")), 2);
    }

    void appearancesHaveNoNodes()
    {
        CityTree city;
        QVERIFY(city.row("a1") != -1);
        QVERIFY(city.node("a1") == nullptr);
        QCOMPARE(city.tree.nodeMap.size(), std::size_t(7));

        city.tree.setTraversalVisitor(new CityGMLProxyModelTraverseAllVisitor);
        QCOMPARE(city.dump(), QString("city(a1 b1(w1(d1 d2) w2) b2)"));
        city.check();
    }

    void documentWithoutAcceptedRow()
    {
        CityTree city;
        TreeRecorder recorder(&city.tree);
        city.tree.setTraversalVisitor(new Accept([](auto*) { return false; }));
        QCOMPARE(recorder.take(), rebuildForHost);
        QCOMPARE(city.tree.rowCount(), 0);
        QVERIFY(city.tree.nodeMap.empty());
        city.check();
    }

    /// A visitor that walks is asked about one feature at a time, and follows nothing of a former document.
    void visitorOfAHostIsAskedOnceForEachRow()
    {
        CityTree city;
        RefPtr<NoDoors> visitor = new NoDoors;
        city.tree.setTraversalVisitor(visitor.get());
        QCOMPARE(city.dump(), QString("city(a1 b1(w1 w2) b2)"));
        QCOMPARE(visitor->questions, city.model.rowCount());
        QVERIFY(visitor->walkChildren);
        city.load(village());
        QCOMPARE(city.dump(), QString("city(a1 b1(w1 w2) b2)"));
        QCOMPARE(visitor->questions, 2 * city.model.rowCount());
    }

    void featuresRiseWhenTheirOwnerIsRejected()
    {
        CityTree city;
        gml::AbstractFeatureType* const building = city.feature("b1");
        city.tree.setTraversalVisitor(new Accept([building](auto* feature) { return feature != building; }));
        QCOMPARE(city.dump(), QString("city(a1 b2) w1(d1 d2) w2"));
        city.check();
    }

    void rootsStandInTheOrderOfAddresses()
    {
        CityTree city;
        city.tree.setTraverseChildrenVisitor(nullptr);
        QCOMPARE(city.tree.rowCount(), 7);
        std::vector<gml::AbstractFeatureType*> roots;
        for (int i = 0; i < 7; ++i) {
            roots.push_back(CityGMLProxyModel::getFeature(city.tree.index(i, 0)));
            QCOMPARE(city.tree.rootNodes[i]->childNumber(), i);
        }
        QVERIFY(std::is_sorted(roots.begin(), roots.end(), std::less<>()));
    }

    void plainChildrenVisitorMakesAFlatTree()
    {
        CityTree city;
        city.tree.setTraverseChildrenVisitor(
            new tolvik::CityGMLProxyModelTraverseChildrenVisitor(city.tree.nodeMap));
        QCOMPARE(city.dump(), QString("city b1 w1 d1 d2 w2 b2"));
        city.check();
    }

    void childrenVisitorIsGivenTheTraversalVisitor()
    {
        CityTree city;
        class Asked : public tolvik::CityGMLProxyModelTraverseChildrenGMLVisitor
        {
        public:
            using CityGMLProxyModelTraverseChildrenGMLVisitor::CityGMLProxyModelTraverseChildrenGMLVisitor;
            using CityGMLProxyModelTraverseChildrenGMLVisitor::traversalVisitor;
        };
        auto* const asked = new Asked(city.tree.nodeMap);
        city.tree.setTraverseChildrenVisitor(asked);
        QCOMPARE(asked->traversalVisitor.get(), city.tree.traversalVisitor.get());
        auto* const all = new CityGMLProxyModelTraverseAllVisitor;
        city.tree.setTraversalVisitor(all);
        QCOMPARE(asked->traversalVisitor.get(), static_cast<tolvik::CityGMLFeaturesVisitor*>(all));
    }

    void threePhasesAreReported()
    {
        CityTree city;
        const OperationRecorder progress;
        city.tree.computeNodeMap();
        QCOMPARE(progress.lines,
                 QStringList({"begin Building Proxy Nodes 7 blocking 0", "end 0",
                              "begin Building Nodes Parent/Children relashionship 7 blocking 0", "end 0",
                              "begin Building Root nodes 7 blocking 0", "end 0"}));
    }

    void withoutChildrenVisitorTheFirstPhaseIsLeftOut()
    {
        CityTree city;
        const OperationRecorder progress;
        city.tree.setTraverseChildrenVisitor(nullptr);
        QCOMPARE(progress.lines,
                 QStringList({"begin Building Nodes Parent/Children relashionship 7 blocking 0", "end 0",
                              "begin Building Root nodes 7 blocking 0", "end 0"}));
        QCOMPARE(city.dump(), QString("city b1 w1 d1 d2 w2 b2"));
        city.check();
    }

    void nothingIsMappedWhileAHostRebuilds()
    {
        CityTree city;
        QStringList seen;
        struct Asking : OperationRecorder
        {
            void begin(const QString& title, long long /*total*/, bool /*blocking*/, int /*level*/) override
            {
                ask(title);
            }
            std::function<void(const QString&)> ask;
        } asking;
        asking.ask = [&](const QString& title) {
            const QModelIndex index = city.tree.index(0, 0, static_cast<TreeNode*>(city.node("w1")));
            seen.append(QString("%1 %2 %3 %4")
                            .arg(title)
                            .arg(city.at("w1").isValid())
                            .arg(city.tree.listFromSource(city.source("w1")).size())
                            .arg(city.tree.mapToSource(index).isValid()));
        };
        city.tree.setTraverseChildrenVisitor(city.tree.traverseChildrenVisitor.get());
        QCOMPARE(seen, QStringList({"Building Proxy Nodes 0 0 0",
                                    "Building Nodes Parent/Children relashionship 0 0 0",
                                    "Building Root nodes 0 0 0"}));
        QVERIFY(city.at("w1").isValid());
    }

    void settingAVisitorRebuilds_data()
    {
        QTest::addColumn<bool>("children");
        QTest::newRow("traversal visitor") << false;
        QTest::newRow("children visitor") << true;
    }

    void settingAVisitorRebuilds()
    {
        QFETCH(bool, children);
        CityTree city;
        const QAbstractItemModelTester tester(&city.tree,
                                              QAbstractItemModelTester::FailureReportingMode::Fatal);
        const auto setSame = [&] {
            if (children) {
                city.tree.setTraverseChildrenVisitor(city.tree.traverseChildrenVisitor.get());
            } else {
                city.tree.setTraversalVisitor(city.tree.traversalVisitor.get());
            }
        };
        for (int i = 0; i < 2; ++i) {
            const RefPtr<TreeNodeGML> former = city.node("b1");
            TreeRecorder recorder(&city.tree);
            setSame();
            QCOMPARE(recorder.take(), rebuildForHost);
            QVERIFY(city.node("b1") != former.get());
            QCOMPARE(former->referenceCount(), 1);
            QCOMPARE(city.dump(), QString("city(b1(w1(d1 d2) w2) b2)"));
        }
    }

    void visitorsAreShared()
    {
        const RefPtr<Accept> visitor = new Accept([](auto*) { return true; });
        {
            OpenTree tree;
            tree.setTraversalVisitor(visitor.get());
            QCOMPARE(visitor->referenceCount(), 2);
            tree.setTraversalVisitor(visitor.get());
            QCOMPARE(visitor->referenceCount(), 2);
        }
        QCOMPARE(visitor->referenceCount(), 1);
    }

    void duringAResetOfTheSourceVisitorsAreOnlyStored()
    {
        CityTree city;
        TreeRecorder recorder(&city.tree);
        bool wasBusy = false;
        // Connected behind the tree's own connections, so that the tree knows of the reset.
        connect(&city.model, &QAbstractItemModel::modelAboutToBeReset, &city.tree, [&] {
            wasBusy = city.tree.sourceBusy;
            city.tree.setTraversalVisitor(new CityGMLProxyModelTraverseAllVisitor);
            city.tree.setTraverseChildrenVisitor(nullptr);
            recorder.add("stored");
        });
        city.model.dataSetChanged();
        QVERIFY(wasBusy);
        QCOMPARE(recorder.take(), QStringList({"stored"}) + resetSignals);
        QCOMPARE(city.dump(), QString("city a1 b1 w1 d1 d2 w2 b2"));
    }

    void sourcesAndDocumentsComeAndGo()
    {
        const ModelLog log; // keeps the error of the failed load
        auto model = std::make_unique<tolvik::CityGMLModel>(nullptr, nullptr);
        auto other = std::make_unique<tolvik::CityGMLModel>(nullptr, nullptr);
        const auto load = [](tolvik::CityGMLModel& target, const QByteArray& document) {
            std::istringstream stream(document.toStdString());
            target.load(stream);
        };
        load(*other, town(3));

        OpenTree tree;
        const QAbstractItemModelTester tester(&tree, QAbstractItemModelTester::FailureReportingMode::Fatal);
        TreeRecorder recorder(&tree);
        tree.setSourceModel(model.get());
        QCOMPARE(recorder.take(), resetSignals);
        QCOMPARE(tree.rowCount(), 0);
        QVERIFY(tree.cityGML() == nullptr);

        load(*model, village());
        QCOMPARE(recorder.take(), resetSignals);
        QCOMPARE(tree.nodeMap.size(), std::size_t(7));

        load(*model, "<CityModel"); // the earlier document stays
        QCOMPARE(recorder.take(), resetSignals);
        QCOMPARE(tree.nodeMap.size(), std::size_t(7));

        load(*model, village());
        model->dataSetChanged();
        QCOMPARE(recorder.take(), resetSignals + resetSignals);
        QCOMPARE(tree.nodeMap.size(), std::size_t(7));

        model->load("/no such file");
        QCOMPARE(recorder.take(), resetSignals);
        QCOMPARE(tree.rowCount(), 0);
        QVERIFY(tree.cityGML() != nullptr);

        tree.setSourceModel(other.get());
        QCOMPARE(recorder.take(), resetSignals);
        QCOMPARE(tree.cityGML(), other->cityGML());
        QCOMPARE(tree.rowCount(tree.index(0, 0)), 3);
        model->dataSetChanged();
        QCOMPARE(recorder.take(), QStringList());

        const RefPtr<TreeNode> former = tree.treeNode(other->getFeature(1));
        other.reset();
        QCOMPARE(recorder.take(), resetSignals);
        QCOMPARE(tree.rowCount(), 0);
        QVERIFY(tree.cityGML() == nullptr);
        // The nodes go with the features that they stand for.
        QVERIFY(tree.nodeMap.empty());
        QCOMPARE(former->referenceCount(), 1);
        tree.setTraversalVisitor(new CityGMLProxyModelTraverseAllVisitor);
        QCOMPARE(recorder.take(), QStringList());

        tree.setSourceModel(model.get());
        QCOMPARE(tree.nodeMap.size(), std::size_t(8));
        recorder.clear();
        tree.setSourceModel(nullptr);
        QCOMPARE(recorder.take(), resetSignals);
        QCOMPARE(tree.rowCount(), 0);
        QVERIFY(tree.nodeMap.empty());
    }

    void nodesAreNotReadBehindAReset()
    {
        // The document is replaced between the two signals. A slot of the source's that is connected before
        // the tree's sees the new rows and the old nodes.
        OpenTree tree;
        QList<QModelIndex> indexes;
        int readings = 0;
        const auto read = [&] {
            for (const QModelIndex& index : qAsConst(indexes)) {
                for (int role = 0; role < 14; ++role) {
                    QVERIFY(!tree.data(index, role).isValid());
                }
                QVERIFY(!tree.mapToSource(index).isValid());
                QCOMPARE(tree.flags(index), Qt::NoItemFlags);
                ++readings;
            }
        };
        tolvik::CityGMLModel model(nullptr, nullptr);
        std::istringstream first(village().toStdString());
        model.load(first);
        connect(&model, &QAbstractItemModel::modelReset, &tree, read);
        tree.setSourceModel(&model);
        connect(&model, &QAbstractItemModel::modelAboutToBeReset, &tree, read);
        tree.setCheckColumnEnabled(true);
        for (int row = 0; row < model.rowCount(); ++row) {
            indexes.append(tree.mapFromSource(model.index(row, 0)));
            indexes.append(tree.mapFromSource(model.index(row, 1)));
        }
        std::istringstream second(town(2).toStdString());
        model.load(second);
        QCOMPARE(readings, 2 * indexes.size());
        QCOMPARE(tree.nodeMap.size(), std::size_t(3));
    }

    void featureOfTwoRowsHasTwoNodes()
    {
        RepeatingModel model;
        std::istringstream stream(village().toStdString());
        model.load(stream);
        OpenTree tree;
        tree.setSourceModel(&model);
        gml::AbstractFeatureType* const city = model.getFeature(std::string("city"));
        model.appendAgain("city");
        const auto& nodes = tree.nodeMap.at(city);
        QCOMPARE(nodes.size(), std::size_t(2));
        QCOMPARE(tree.treeNode(city), nodes.front().get());
        // The walk from the second node meets the feature itself, whose first node it takes for a child.
        QCOMPARE(nodes.front()->parent(), static_cast<TreeNode*>(nodes.back().get()));
        QVERIFY(nodes.back()->parent() == nullptr);
        QCOMPARE(tree.rootNodeSize(), 1);
        // And so in a tree that is built after that.
        OpenTree later;
        later.setSourceModel(&model);
        QCOMPARE(later.nodeMap.at(city).size(), std::size_t(2));
        QCOMPARE(later.rootNodeSize(), 1);
    }

    void childOfTwoNodesBelongsToTheLater()
    {
        CityTree city;
        gml::AbstractFeatureType* const shared = city.feature("d1");
        const auto isWall = [&](TreeNodeGML* node) {
            return node->feature() == city.feature("w1") || node->feature() == city.feature("w2");
        };
        city.tree.setTraverseChildrenVisitor(
            new Claim(city.tree.nodeMap, [&](TreeNodeGML* node, auto& nodes) {
                if (isWall(node)) {
                    node->children().emplace_back(nodes.at(shared).front().get());
                }
            }));
        TreeNodeGML* const wall1 = city.node("w1");
        TreeNodeGML* const wall2 = city.node("w2");
        const bool isInOrder = std::less<>()(wall1->feature(), wall2->feature());
        QCOMPARE(city.node("d1")->parent(), static_cast<TreeNode*>(isInOrder ? wall2 : wall1));
        QCOMPARE(wall1->children().size(), std::size_t(1));
        QCOMPARE(wall2->children().size(), std::size_t(1));
        QCOMPARE(city.tree.rootNodeSize(), 6);
    }

    void nilChildIsLoggedAndKeepsItsPlace()
    {
        CityTree city;
        city.model.setObjectName("list");
        TreeNodeGML* building = nullptr;
        ModelLog log;
        city.tree.setTraverseChildrenVisitor(
            new Claim(city.tree.nodeMap, [&](TreeNodeGML* node, auto& nodes) {
                if (node->feature() == city.feature("b1")) {
                    building = node;
                    node->children().emplace_back(nodes.at(city.feature("w1")).front().get());
                    node->children().emplace_back();
                    node->children().emplace_back(nodes.at(city.feature("w2")).front().get());
                }
            }));
        std::ostringstream address;
        address << static_cast<TreeNode*>(building);
        QCOMPARE(log.take(), QStringList("ERROR [tree] tree(list) updateTreeNodes() : " +
                                         QString::fromStdString(address.str()) + " has nil children"));
        QCOMPARE(city.node("w1")->childNumber(), 0);
        QCOMPARE(city.node("w2")->childNumber(), 2);
        QCOMPARE(city.node("w2")->parent(), static_cast<TreeNode*>(building));
        QVERIFY(!city.tree.index(1, 0, city.at("b1")).isValid());
    }

    void parentOnceSetStays()
    {
        CityTree city;
        city.tree.traverseChildrenVisitor =
            new tolvik::CityGMLProxyModelTraverseChildrenVisitor(city.tree.nodeMap);
        city.tree.rootNodes.clear();
        city.tree.updateTreeNodes();
        QCOMPARE(city.tree.rootNodeSize(), 1);
        QCOMPARE(city.node("b1")->parent(), static_cast<TreeNode*>(city.node("city")));
        QVERIFY(city.node("city")->children().empty());
        city.tree.computeNodeMap();
        QCOMPARE(city.tree.rootNodeSize(), 7);
    }

    void updateTreeNodesAppendsRoots()
    {
        CityTree city;
        city.tree.updateTreeNodes();
        QCOMPARE(city.tree.rootNodeSize(), 2);
        QCOMPARE(city.tree.rootNodes[0].get(), city.tree.rootNodes[1].get());
    }

    void resetModelDropsTheTree()
    {
        CityTree city;
        const QAbstractItemModelTester tester(&city.tree,
                                              QAbstractItemModelTester::FailureReportingMode::Fatal);
        TreeRecorder recorder(&city.tree);
        city.tree.resetModel();
        QCOMPARE(recorder.take(), resetSignals);
        QCOMPARE(city.tree.rowCount(), 0);
        QVERIFY(city.tree.nodeMap.empty());
        QVERIFY(!city.at("b1").isValid());
        city.model.dataSetChanged();
        QCOMPARE(city.dump(), QString("city(b1(w1(d1 d2) w2) b2)"));
    }

    void deleteTreeNodeReportsFeaturesBottomUp()
    {
        CityTree city;
        TreeRecorder recorder(&city.tree);
        const RefPtr<TreeNode> building = city.node("b1");
        QVERIFY(city.tree.deleteTreeNode(building.get()));
        QCOMPARE(recorder.take(),
                 QStringList({"removed d1", "removed d2", "removed w1", "removed w2", "removed b1"}));
        QCOMPARE(city.tree.nodeMap.size(), std::size_t(2));
        // What holds the node above is the caller's to change.
        QCOMPARE(building->children().size(), std::size_t(2));
        QCOMPARE(city.node("city")->children().size(), std::size_t(2));
        // The node is known no more.
        QVERIFY(!city.tree.deleteTreeNode(building.get()));
        QCOMPARE(recorder.take(), QStringList());
    }

    void deleteTreeNodeOfOthers()
    {
        CityTree city;
        TreeRecorder recorder(&city.tree);
        QVERIFY(!city.tree.deleteTreeNode(nullptr));
        const RefPtr<TreeNodeGML> stranger = new TreeNodeGML(city.feature("b2"), nullptr);
        QVERIFY(!city.tree.deleteTreeNode(stranger.get()));
        const RefPtr<TreeNode> plain = new TreeNode(nullptr);
        QVERIFY(city.tree.deleteTreeNode(plain.get()));
        QCOMPARE(recorder.take(), QStringList());
        QCOMPARE(city.tree.nodeMap.size(), std::size_t(7));

        // Its first child is asked for again and again, so that others go only if that leaves.
        plain->children().emplace_back(city.node("b2"));
        plain->children().emplace_back(city.node("d1"));
        plain->children().emplace_back(city.node("d2"));
        QVERIFY(city.tree.deleteTreeNode(plain.get()));
        QCOMPARE(recorder.take(), QStringList({"removed b2"}));
        connect(&city.tree, &CityGMLProxyModel::featureRemovedFromModel, &city.tree,
                [&] { plain->children().erase(plain->children().begin()); });
        plain->children().erase(plain->children().begin());
        QVERIFY(city.tree.deleteTreeNode(plain.get()));
        QCOMPARE(recorder.take(), QStringList({"removed d1", "removed d2"}));
    }

    void deleteTreeNodeOfOneOfTwo()
    {
        CityTree city;
        auto& nodes = city.tree.nodeMap.at(city.feature("b2"));
        const RefPtr<TreeNodeGML> second = new TreeNodeGML(city.feature("b2"), nullptr);
        nodes.push_back(second);
        TreeRecorder recorder(&city.tree);
        QVERIFY(!city.tree.deleteTreeNode(nodes.front().get()));
        QCOMPARE(recorder.take(), QStringList());
        QCOMPARE(city.node("b2"), second.get());
        QVERIFY(city.tree.deleteTreeNode(second.get()));
        QCOMPARE(recorder.take(), QStringList({"removed b2"}));
    }

    void parentsOfFeatures()
    {
        const CityTree city;
        QVERIFY(city.tree.getFeatureParent(city.feature("city")) == nullptr);
        QCOMPARE(city.tree.getFeatureParent(city.feature("b1")), city.feature("city"));
        QCOMPARE(city.tree.getFeatureParent(city.feature("d2")), city.feature("w1"));
        QVERIFY(city.tree.getFeatureParent(std::string("city")) == nullptr);
        QCOMPARE(city.tree.getFeatureParent(std::string("d2")), city.feature("w1"));

        TreeNode plain(nullptr);
        city.node("b1")->setParent(&plain);
        QVERIFY(city.tree.getFeatureParent(city.feature("b1")) == nullptr);
    }

    void featuresOfIndexes()
    {
        const CityTree city;
        QVERIFY(CityGMLProxyModel::getFeature(QModelIndex()) == nullptr);
        QCOMPARE(CityGMLProxyModel::getFeature(city.at("d2", 1)), city.feature("d2"));
        QVERIFY(OpenTree::treeNode(QModelIndex()) == nullptr);
        QCOMPARE(OpenTree::treeNode(city.at("d2")), static_cast<TreeNode*>(city.node("d2")));
        QVERIFY(city.tree.treeNode(static_cast<gml::AbstractFeatureType*>(nullptr)) == nullptr);
    }

    void proxyDiesBeforeItsSource()
    {
        auto tree = std::make_unique<OpenTree>();
        tolvik::CityGMLModel model(nullptr, nullptr);
        std::istringstream stream(village().toStdString());
        model.load(stream);
        tree->setSourceModel(&model);
        const RefPtr<TreeNode> root = tree->rootNodes.front();
        tree.reset();
        QCOMPARE(root->referenceCount(), 1);
        model.dataSetChanged();
    }
};

TEST_CLASS(CityGMLProxyModelTest, Widgets)
#include "citygmlproxymodeltest.moc"
