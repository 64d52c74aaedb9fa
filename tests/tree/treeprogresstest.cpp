#include "framework/OperationListener.h"
#include "framework/OperationStatus.h"
#include "support/CityGMLTreeFixture.h"
#include "support/TestClass.h"

#include <QtTest>

using namespace testsupport;

namespace tolvik {

/// In place of that of the platform, which tells no more than twenty steps a second: one that tells each.
void OperationStatus::advance(long long steps)
{
    listener->progress(steps, level);
}

} // namespace tolvik

namespace {

/// Counts the steps of each operation: "title done/total".
class Steps : public tolvik::OperationListener
{
public:
    Steps() : former(tolvik::OperationStatus::setListener(this)) {}
    ~Steps() override { tolvik::OperationStatus::setListener(former); }

    void begin(const QString& title, long long totalSteps, bool /*blocking*/, int /*level*/) override
    {
        titles.append(title);
        total = totalSteps;
        done = 0;
    }
    void progress(long long doneSteps, int /*level*/) override { done += doneSteps; }
    void end(int /*level*/) override
    {
        lines.append(QString("%1 %2/%3").arg(titles.takeLast()).arg(done).arg(total));
    }

    QStringList lines;

private:
    tolvik::OperationListener* former;
    QStringList titles;
    long long done = 0;
    long long total = 0;
};

} // namespace

class TreeProgressTest : public QObject
{
    Q_OBJECT

private slots:
    void walksAreToldByNodeAndLinksByFeature()
    {
        CityTree city;
        city.tree.nodeMap.at(city.feature("b2"))
            .emplace_back(new tolvik::TreeNodeGML(city.feature("b2"), nullptr));
        const Steps steps;
        city.tree.rootNodes.clear();
        city.tree.updateTreeNodes();
        QCOMPARE(steps.lines,
                 QStringList({"Building Proxy Nodes 8/7", "Building Nodes Parent/Children relashionship 7/7",
                              "Building Root nodes 7/7"}));
    }
};

TEST_CLASS(TreeProgressTest, Widgets)
#include "treeprogresstest.moc"
