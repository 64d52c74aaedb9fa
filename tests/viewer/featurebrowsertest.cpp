#include "apps/viewer/features/FeatureBrowser.h"
#include "apps/viewer/document/Document.h"
#include "gml/AbstractFeatureType.hxx"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "viewer/OpenedWindow.h"

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QtTest>

using namespace testsupport;
using namespace tolvik::viewer;

/// The features in the tree and in the list, and what is searched for in them.
class FeatureBrowserTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        opened = std::make_unique<OpenedWindow>(examples() + "/district.gml");
        for (const char* const name : {"featureTree", "featureList", "filteredTree"}) {
            new QAbstractItemModelTester(opened->view(name)->model(),
                                         QAbstractItemModelTester::FailureReportingMode::QtTest,
                                         opened->window.get());
        }
    }
    void cleanup() { opened.reset(); }

    void theFirstLevelIsOpen()
    {
        const QStringList texts = shownTexts(*opened->view("featureTree"));
        QVERIFY(texts.size() > 3);
        QVERIFY(!texts.at(0).startsWith(' '));
        QVERIFY(texts.at(1).startsWith(' '));
    }

    void aSearchMarksAndJumps()
    {
        opened->search("type:window");
        const QVector<int> hits = opened->window->browser().search().hits();
        QVERIFY(hits.size() > 2);
        QCOMPARE(opened->document().selection().currentIndex().row(), hits.at(0));
        QCOMPARE(hitText(), QString("1 of %1").arg(hits.size()));
        // The tree has opened what is above it.
        QTreeView* const tree = opened->view("featureTree");
        QVERIFY(tree->currentIndex().parent().isValid());
        QVERIFY(tree->visualRect(tree->currentIndex()).isValid());
        QTest::mouseClick(opened->button("nextHit"), Qt::LeftButton);
        QCOMPARE(opened->document().selection().currentIndex().row(), hits.at(1));
        QCOMPARE(hitText(), QString("2 of %1").arg(hits.size()));
        QTest::mouseClick(opened->button("previousHit"), Qt::LeftButton);
        QTest::mouseClick(opened->button("previousHit"), Qt::LeftButton);
        QCOMPARE(opened->document().selection().currentIndex().row(), hits.last());
    }

    void enterGoesToTheNextHit()
    {
        opened->search("type:window");
        auto* const line = opened->window->findChild<QLineEdit*>("search");
        QTest::keyClick(line, Qt::Key_Return);
        QCOMPARE(hitText().left(4), QString("2 of"));
        QTest::keyClick(line, Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(hitText().left(4), QString("1 of"));
        QTest::keyClick(line, Qt::Key_Escape);
        QTRY_COMPARE(hitText(), QString());
    }

    void termsAreUnderstood_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("found");
        QTest::newRow("identifier") << "heron-bridge-o" << QStringList{"heron-bridge-outline"};
        QTest::newRow("letters of any size") << "HERON-bridge-O" << QStringList{"heron-bridge-outline"};
        QTest::newRow("quotes") << "\"Lark Tunnel\" type:Tunnel" << QStringList{"lark-tunnel"};
        QTest::newRow("name and type")
            << "name:heron type:Bridge" << QStringList{"heron-bridge", "heron-bridge-outline"};
        QTest::newRow("nothing") << "no such thing" << QStringList();
        QTest::newRow("attribute") << "type=Building height>8" << QStringList{"lantern-house"};
        QTest::newRow("less") << "measuredheight<9" << QStringList{"annex"};
        QTest::newRow("not more") << "measuredheight<=9" << QStringList{"annex", "lantern-house"};
        QTest::newRow("not less") << "measuredheight>=9" << QStringList{"lantern-house"};
        QTest::newRow("another") << "measuredheight!=9" << QStringList{"annex"};
        QTest::newRow("decimal comma") << "measuredheight<10,5" << QStringList{"annex", "lantern-house"};
    }
    void termsAreUnderstood()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, found);
        opened->search(text);
        QStringList identifiers;
        for (const int row : opened->window->browser().search().hits()) {
            identifiers.append(opened->view("featureList")->model()->index(row, 2).data().toString());
        }
        identifiers.sort();
        QCOMPARE(identifiers, found);
        if (found.isEmpty()) {
            QCOMPARE(hitText(), QString("no hits"));
        }
    }

    void onlyHitsRemainWithWhatIsAboveThem()
    {
        opened->search("type:RoofSurface");
        const int hits = opened->window->browser().search().hits().size();
        opened->button("onlyHits")->click();
        QTreeView* const filtered = opened->view("filteredTree");
        QTRY_VERIFY(filtered->isVisible());
        const QStringList types = shownTexts(*filtered, 1);
        QCOMPARE(types.filter("RoofSurface").size(), hits);
        QVERIFY(types.at(0) == "CityModel");
        QVERIFY(!types.contains("WallSurface"));
        QCOMPARE(opened->view("featureList")->model()->rowCount(), hits);
        // The current hit is current here, too.
        QCOMPARE(filtered->currentIndex().siblingAtColumn(1).data().toString(), QString("RoofSurface"));
        opened->button("onlyHits")->click();
        QTRY_VERIFY(opened->view("featureTree")->isVisible());
        QCOMPARE(opened->view("featureList")->model()->rowCount(), opened->document().model().rowCount());
    }

    void aFeatureThatIsFilteredAwayIsShown()
    {
        opened->search("type:RoofSurface");
        opened->button("onlyHits")->click();
        QTRY_VERIFY(opened->view("filteredTree")->isVisible());
        opened->window->goToIdentifier("pier");
        QTRY_VERIFY(opened->view("featureTree")->isVisible());
        QVERIFY(!opened->button("onlyHits")->isChecked());
        QCOMPARE(opened->selected(), QStringList{"pier"});
    }

    void aTypeIsChosen()
    {
        auto* const types = opened->window->findChild<QComboBox*>("typeFilter");
        QTRY_VERIFY(types->count() > 10);
        int doors = 0;
        for (int row = 0; row < opened->document().model().rowCount(); ++row) {
            doors += opened->document().model().index(row, 1).data() == "Door" ? 1 : 0;
        }
        const int place = types->findData("Door");
        QCOMPARE(types->itemText(place), QString("Door (%1)").arg(doors));
        types->setCurrentIndex(place);
        emit types->activated(place);
        QTRY_VERIFY(opened->view("filteredTree")->isVisible());
        QCOMPARE(opened->view("featureList")->model()->rowCount(), doors);
        QCOMPARE(shownTexts(*opened->view("filteredTree"), 1).filter("Door").size(), doors);
        // What a reference leads to is shown, though the filter would hide it.
        opened->window->goToIdentifier("heron-bridge");
        QTRY_VERIFY(opened->view("featureTree")->isVisible());
        QCOMPARE(opened->selected(), QStringList{"heron-bridge"});
    }

    void allViewsHaveOneSelection()
    {
        QTreeView* const tree = opened->view("featureTree");
        QTreeView* const list = opened->view("featureList");
        tree->expandAll();
        const QModelIndex bridge = opened->document().tree().mapFromSource(
            opened->document().model().index(opened->row("heron-bridge"), 0));
        tree->scrollTo(bridge);
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier,
                          tree->visualRect(bridge).center());
        QCOMPARE(opened->selected(), QStringList{"heron-bridge"});
        QCOMPARE(identifiersIn(*list), QStringList{"heron-bridge"});
        opened->window->findChild<QTabWidget*>()->setCurrentIndex(1);
        const QModelIndex pier = list->model()->index(opened->row("pier"), 0);
        list->scrollTo(pier);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier,
                          list->visualRect(pier).center());
        QCOMPARE(opened->selected(), QStringList({"heron-bridge", "pier"}));
        QCOMPARE(tree->selectionModel()->selectedRows().size(), 2);
        QCOMPARE(tree->currentIndex().data(), pier.data());
    }

    void theListIsSorted()
    {
        QTreeView* const list = opened->view("featureList");
        opened->select({"pier"});
        list->sortByColumn(2, Qt::AscendingOrder);
        const auto first = [list] { return list->model()->index(1, 2).data().toString(); };
        QStringList identifiers;
        for (int row = 0; row < list->model()->rowCount(); ++row) {
            identifiers.append(opened->window->browser().list()->model()->index(row, 2).data().toString());
        }
        identifiers.sort(Qt::CaseInsensitive);
        QTRY_COMPARE(first(), identifiers.at(1));
        QCOMPARE(identifiersIn(*list), QStringList{"pier"});
        QCOMPARE(list->currentIndex().siblingAtColumn(2).data().toString(), QString("pier"));
        list->sortByColumn(2, Qt::DescendingOrder);
        QTRY_COMPARE(first(), identifiers.at(identifiers.size() - 2));
        list->sortByColumn(-1, Qt::AscendingOrder);
        QTRY_COMPARE(first(), QString::fromStdString(*opened->document().model().getFeature(1)->id()));
    }

    void everythingIsSelected()
    {
        QTreeView* const tree = opened->view("featureTree");
        tree->expandAll();
        tree->setFocus();
        tree->selectAll();
        const int nodes = shownTexts(*tree).size();
        QVERIFY(nodes > 50);
        QCOMPARE(opened->selected().size(), nodes);
        QCOMPARE(opened->view("featureList")->selectionModel()->selectedRows().size(), nodes);
        opened->select({"pier"});
        QCOMPARE(tree->selectionModel()->selectedRows().size(), 1);
    }

    void everythingIsSelectedButClosedBranches()
    {
        QTreeView* const tree = opened->view("featureTree");
        tree->expandAll();
        const int nodes = shownTexts(*tree).size();
        const QModelIndex closed = tree->model()->match(tree->model()->index(0, 0), Qt::DisplayRole,
                                                        "Lantern House", 1, Qt::MatchRecursive)[0];
        tree->collapse(closed);
        const int shown = shownTexts(*tree).size();
        QVERIFY(shown < nodes);
        tree->setFocus();
        QTest::keyClick(tree, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(opened->selected().size(), shown);
        QVERIFY(opened->selected().contains("lantern-house"));
        QVERIFY(!tree->selectionModel()->isSelected(tree->model()->index(0, 0, closed)));
        QVERIFY(tree->selectionModel()->isSelected(closed.siblingAtColumn(1)));
    }

    /// Each parent makes a range of its own.
    void aSelectionMayHaveManyRanges()
    {
        QByteArray members;
        for (int i = 0; i < 400; ++i) {
            const QByteArray number = QByteArray::number(i);
            members += buildingMember("<bldg:boundedBy><bldg:WallSurface gml:id=\"w" + number +
                                          "\"/></bldg:boundedBy>",
                                      "b" + number);
        }
        writeFile(opened->path("many.gml"), documentText(members));
        QVERIFY(opened->open(opened->path("many.gml")));
        QTreeView* const tree = opened->view("featureTree");
        QTreeView* const list = opened->view("featureList");
        tree->expandAll();
        tree->selectAll();
        QVERIFY(tree->selectionModel()->selection().size() > 400);
        QCOMPARE(opened->selected().size(), 801);
        QCOMPARE(list->selectionModel()->selectedRows().size(), 801);
        opened->select({"w7"});
        QCOMPARE(tree->selectionModel()->selectedRows().size(), 1);
        QCOMPARE(identifiersIn(*list), QStringList{"w7"});
        // From the list, with every second row.
        QStringList walls;
        for (int i = 0; i < 400; ++i) {
            walls.append("w" + QString::number(i));
        }
        opened->select(walls);
        QCOMPARE(tree->selectionModel()->selectedRows().size(), 400);
        QCOMPARE(list->selectionModel()->selectedRows().size(), 400);
        opened->document().selection().clearSelection();
        QVERIFY(!tree->selectionModel()->hasSelection());
        QVERIFY(!list->selectionModel()->hasSelection());
    }

    void aFilterFollowsTheDocument()
    {
        opened->search("type:RoofSurface");
        opened->button("onlyHits")->click();
        QTreeView* const filtered = opened->view("filteredTree");
        QTRY_VERIFY(filtered->isVisible());
        const int hits = opened->window->browser().search().hits().size();
        tolvik::CityGMLModel& model = opened->document().model();
        opened->document().model().removeFeature(
            model.getFeature(opened->window->browser().search().hits().at(0)));
        QTRY_COMPARE(opened->window->browser().search().hits().size(), hits - 1);
        QTRY_COMPARE(shownTexts(*filtered, 1).filter("RoofSurface").size(), hits - 1);
        QCOMPARE(opened->view("featureList")->model()->rowCount(), hits - 1);
        QVERIFY(opened->open(examples() + "/energy.gml"));
        QTRY_VERIFY(!opened->window->browser().isSearching());
        QVERIFY(!shownTexts(*filtered, 1).contains("Bridge"));
    }

private:
    QString hitText() const { return opened->window->findChild<QLabel*>("hitCount")->text(); }

    static QStringList identifiersIn(const QTreeView& list)
    {
        QStringList identifiers;
        for (const QModelIndex& each : list.selectionModel()->selectedRows(2)) {
            identifiers.append(each.data().toString());
        }
        identifiers.sort();
        return identifiers;
    }

    std::unique_ptr<OpenedWindow> opened;
};

TEST_CLASS(FeatureBrowserTest, Widgets)
#include "featurebrowsertest.moc"
