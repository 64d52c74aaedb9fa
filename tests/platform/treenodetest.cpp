#include "framework/TreeNode.h"
#include "fondo/ClassType.h"
#include "framework/TextConversion.h"
#include "support/TestClass.h"

#include <QtTest>

using namespace testsupport;

using Fondo::RefPtr;
using tolvik::TreeNode;

namespace {

class Mortal : public TreeNode
{
public:
    explicit Mortal(int* deaths) : TreeNode(nullptr), deaths(deaths)
    {
        name = Fondo::String(std::string("mortal"));
    }
    ~Mortal() override { ++*deaths; }

private:
    int* deaths;
};

} // namespace

class TreeNodeTest : public QObject
{
    Q_OBJECT

private slots:
    void freshNode()
    {
        const RefPtr<TreeNode> root = new TreeNode(nullptr);
        const RefPtr<TreeNode> node = new TreeNode(root.get());
        QVERIFY(root->parent() == nullptr);
        QCOMPARE(node->parent(), root.get());
        QCOMPARE(node->childNumber(), -1);
        QVERIFY(node->children().empty());
        QVERIFY(node->getName().empty());
        QVERIFY(root->children().empty());
    }

    void typeRecord()
    {
        int deaths = 0;
        const RefPtr<TreeNode> node = new Mortal(&deaths);
        QCOMPARE(node->type(), std::string("tolvik::TreeNode"));
        QVERIFY(&node->getType() == &TreeNode::classType());
        QVERIFY(node->isOfType(TreeNode::classType()));
    }

    void nameIsReadAndWritten()
    {
        int deaths = 0;
        const RefPtr<TreeNode> node = new Mortal(&deaths);
        QCOMPARE(tolvik::toQString(node->getName()), QString("mortal"));
        node->setName(Fondo::String::fromUTF8("Stra\xC3\x9F"
                                              "e"));
        QCOMPARE(tolvik::toQString(node->getName()), QString::fromUtf8("Stra\xC3\x9F"
                                                                       "e"));
    }

    void setParentTouchesNoChildren()
    {
        const RefPtr<TreeNode> a = new TreeNode(nullptr);
        const RefPtr<TreeNode> b = new TreeNode(nullptr);
        b->setParent(a.get());
        QCOMPARE(b->parent(), a.get());
        QVERIFY(a->children().empty());
    }

    void childrenAreNumberedByPosition()
    {
        const RefPtr<TreeNode> parent = new TreeNode(nullptr);
        for (int i = 0; i < 3; ++i) {
            parent->children().push_back(new TreeNode(parent.get()));
        }
        parent->renumberChildren();
        QCOMPARE(parent->children()[2]->childNumber(), 2);
        parent->children().erase(parent->children().begin());
        parent->children().insert(parent->children().begin() + 1, RefPtr<TreeNode>());
        parent->renumberChildren();
        QCOMPARE(parent->children()[0]->childNumber(), 0);
        QCOMPARE(parent->children()[2]->childNumber(), 2);
    }

    void parentOwnsItsChildren()
    {
        int deaths = 0;
        RefPtr<TreeNode> parent = new TreeNode(nullptr);
        parent->children().push_back(new Mortal(&deaths));
        const RefPtr<TreeNode> kept = new Mortal(&deaths);
        parent->children().push_back(kept);
        parent = nullptr;
        QCOMPARE(deaths, 1);
        QCOMPARE(kept->referenceCount(), 1);
    }

    void copySharesTheChildren()
    {
        const RefPtr<TreeNode> top = new TreeNode(nullptr);
        const RefPtr<TreeNode> original = new TreeNode(top.get());
        original->setChildNumber(4);
        original->setName(Fondo::String(std::string("a")));
        original->children().push_back(new TreeNode(original.get()));

        const RefPtr<TreeNode> copy = new TreeNode(*original);
        QCOMPARE(copy->parent(), top.get());
        QCOMPARE(copy->childNumber(), 4);
        QVERIFY(copy->getName() == original->getName());
        QVERIFY(copy->children() == original->children());
        QCOMPARE(copy->children()[0]->referenceCount(), 2);
        QCOMPARE(copy->referenceCount(), 1);

        const RefPtr<TreeNode> assigned = new TreeNode(nullptr);
        *assigned = *original;
        QCOMPARE(assigned->parent(), top.get());
        QCOMPARE(assigned->childNumber(), 4);
        QCOMPARE(copy->children()[0]->referenceCount(), 3);
        QCOMPARE(assigned->referenceCount(), 1);
    }

    // There is one for each feature of a document.
    void nodeIsSmall() { QVERIFY(sizeof(TreeNode) <= 88); }
};

TEST_CLASS(TreeNodeTest, Core)
#include "treenodetest.moc"
