#include "apps/viewer/document/Document.h"
#include "apps/viewer/features/FeatureBrowser.h"
#include "apps/viewer/properties/PropertyPanel.h"
#include "support/Documents.h"
#include "support/Files.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"
#include "viewer/OpenedWindow.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QMenu>
#include <QStatusBar>
#include <QTabWidget>
#include <QtTest>

using namespace testsupport;
using namespace tolvik;
using namespace tolvik::viewer;

/// What the menu and the keys do with features.
class FeatureActionsTest : public QObject
{
    Q_OBJECT

public:
    Q_INVOKABLE void note(const QUrl& link) { noted.append(link); }

private slots:
    void init() { opened = std::make_unique<OpenedWindow>(examples() + "/district.gml"); }
    void cleanup() { opened.reset(); }

    void aFeatureIsHiddenWithAllBelowIt()
    {
        opened->select({"heron-bridge"});
        opened->action("hide")->trigger();
        QVERIFY(!isVisible("heron-bridge"));
        QVERIFY(!isVisible("bell"));
        QVERIFY(isVisible("lark-tunnel"));
        QCOMPARE(check("heron-bridge"), int(Qt::Unchecked));
        QCOMPARE(opened->document().tree().index(0, 0).data(Qt::CheckStateRole).toInt(),
                 int(Qt::PartiallyChecked));
        opened->action("show")->trigger();
        QVERIFY(isVisible("bell"));
        QCOMPARE(check("heron-bridge"), int(Qt::Checked));
    }

    void whatIsSelectedStaysSelected()
    {
        QByteArray members;
        for (int i = 0; i < 600; ++i) {
            members += buildingMember("", "b" + QByteArray::number(i));
        }
        writeFile(opened->path("street.gml"), documentText(members));
        QVERIFY(opened->open(opened->path("street.gml")));
        opened->window->browser().expandAll();
        QSignalSpy layouts(&opened->document().tree(), &QAbstractItemModel::layoutChanged);
        QTreeView* const tree = opened->view("featureTree");
        tree->selectAll();
        opened->action("hideAll")->trigger();
        QCOMPARE(layouts.count(), 1);
        QCOMPARE(tree->selectionModel()->selectedRows().size(), 601);
        opened->select({"b7", "b500"});
        opened->action("showAll")->trigger();
        QCOMPARE(layouts.count(), 2);
        QCOMPARE(opened->selected(), QStringList({"b500", "b7"}));
        QCOMPARE(tree->selectionModel()->selectedRows().size(), 2);
        QVERIFY(tree->selectionModel()->isSelected(nodeOf("b500")));
    }

    void aCheckBoxHides()
    {
        QTreeView* const tree = opened->view("featureTree");
        const QModelIndex node = nodeOf("heron-bridge");
        tree->setCurrentIndex(node);
        tree->setFocus();
        QTest::keyClick(tree, Qt::Key_Space);
        QVERIFY(!isVisible("bell"));
        QTest::keyClick(tree, Qt::Key_Space);
        QVERIFY(isVisible("bell"));
    }

    void onlyOneIsShown()
    {
        opened->action("hideAll")->trigger();
        QVERIFY(!isVisible("bell"));
        opened->select({"chapel"});
        opened->action("showOnly")->trigger();
        QVERIFY(isVisible("bell"));
        QVERIFY(!isVisible("heron-bridge"));
        opened->action("showAll")->trigger();
        QVERIFY(isVisible("heron-bridge"));
        opened->action("showOnly")->trigger();
        QVERIFY(isVisible("bell"));
        QVERIFY(!isVisible("heron-bridge"));
    }

    void visibilityChangesAtOnce_data()
    {
        QTest::addColumn<QString>("place");
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("hidings");
        QTest::addColumn<int>("showings");
        QTest::newRow("box in the tree") << "featureTree" << int(Qt::Key_Space) << 0 << 1;
        for (const QString place : {"featureTree", "featureList", "view"}) {
            const auto row = [&place](const char* what) -> QTestData& {
                return QTest::newRow(qPrintable(what + (" in " + place)));
            };
            row("hide") << place << int(Qt::Key_H) << 1 << 0;
            row("show") << place << int(Qt::Key_S) << 0 << 1;
            row("only this") << place << int(Qt::Key_O) << 1 << 1;
            row("hide all") << place << int(Qt::ControlModifier | Qt::ShiftModifier | Qt::Key_H) << 1 << 0;
            row("show all") << place << int(Qt::ControlModifier | Qt::ShiftModifier | Qt::Key_A) << 0 << 1;
        }
    }

    /// Whoever shows the features is told once of all that are hidden, and once of all that are shown.
    void visibilityChangesAtOnce()
    {
        QFETCH(QString, place);
        QFETCH(int, key);
        QFETCH(int, hidings);
        QFETCH(int, showings);
        CityGMLModel& model = opened->document().model();
        opened->select({"shop"});
        opened->action("hide")->trigger();
        opened->select({"lantern-house"});
        opened->window->findChild<QTabWidget*>()->setCurrentIndex(place == "featureList" ? 1 : 0);
        auto* const widget = opened->window->findChild<QWidget*>(place);
        widget->setFocus();
        int hidden = 0;
        int shown = 0;
        connect(&model, qOverload<const QList<QModelIndex>&>(&Model::visibilityChanged), this,
                [&](const QList<QModelIndex>& rows) { ++(model.isVisible(rows.first()) ? shown : hidden); });
        int single = 0;
        connect(&model, qOverload<const QModelIndex&>(&Model::visibilityChanged), this, [&] { ++single; });
        QTest::keyClick(widget, Qt::Key(key & ~Qt::KeyboardModifierMask),
                        Qt::KeyboardModifiers(key & Qt::KeyboardModifierMask));
        model.disconnect(this);
        QCOMPARE(hidden, hidings);
        QCOMPARE(shown, showings);
        QCOMPARE(single, 0);
    }

    void disabledFeaturesAreGreyAndCannotBeSelected()
    {
        opened->select({"chapel"});
        opened->action("disable")->trigger();
        QCOMPARE(opened->document().tree().flags(nodeOf("bell")), Qt::ItemFlags(Qt::NoItemFlags));
        opened->action("enableAll")->trigger();
        QVERIFY(opened->document().tree().flags(nodeOf("bell")) & Qt::ItemIsEnabled);
        opened->action("disable")->trigger();
        opened->action("enable")->trigger();
        QVERIFY(opened->document().tree().flags(nodeOf("bell")) & Qt::ItemIsEnabled);
    }

    void siblingsOfTheSameTypeAreSelected()
    {
        opened->select({"bridge-door"});
        opened->select({"heron-bridge"});
        opened->action("selectSiblings")->trigger();
        for (const QModelIndex& each : opened->view("featureTree")->selectionModel()->selectedRows(1)) {
            QCOMPARE(each.data().toString(), QString("Bridge"));
            QCOMPARE(each.parent(), nodeOf("heron-bridge").parent());
        }
        QVERIFY(opened->selected().contains("heron-bridge"));
    }

    void identifiersAreCopied()
    {
        opened->select({"pier", "bell"});
        opened->action("copyIdentifier")->trigger();
        QStringList copied = QGuiApplication::clipboard()->text().split('\n');
        copied.sort();
        QCOMPARE(copied, QStringList({"bell", "pier"}));
    }

    void lettersActInTheTreeAndAreTextInTheSearch()
    {
        opened->window->activateWindow();
        QTreeView* const tree = opened->view("featureTree");
        opened->select({"pier"});
        tree->setFocus();
        QTest::keyClick(tree, Qt::Key_H);
        QVERIFY(!isVisible("pier"));
        opened->search("s");
        QVERIFY(!isVisible("pier"));
    }

    void aReferenceIsFollowed()
    {
        opened->select({"block-1"});
        opened->action("findReferring")->trigger();
        QTRY_COMPARE(opened->selected(), QStringList{"lantern-house"});
        opened->action("goToReferenced")->trigger();
        QCOMPARE(opened->selected(), QStringList{"block-1"});
    }

    void ofSeveralReferencesOneIsChosen()
    {
        opened->select({"heron-bridge"});
        opened->action("findReferring")->trigger();
        QTRY_VERIFY(opened->selected() != QStringList{"heron-bridge"});
        QStringList offered;
        QTimer::singleShot(100, this, [&] {
            auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            QVERIFY(menu != nullptr);
            for (QAction* const action : menu->actions()) {
                offered.append(action->text());
                if (action->text().contains("Heron")) {
                    menu->setActiveAction(action);
                }
            }
            QTest::keyClick(menu, Qt::Key_Return);
        });
        opened->action("goToReferenced")->trigger();
        QVERIFY2(offered.size() > 1, qPrintable(offered.join('|')));
        QCOMPARE(opened->selected(), QStringList{"heron-bridge"});
    }

    void whereNothingRefersThatIsSaid()
    {
        opened->select({"pew"});
        opened->action("findReferring")->trigger();
        QTRY_VERIFY(opened->window->statusBar()->currentMessage().contains("No feature refers to"));
        QCOMPARE(opened->selected(), QStringList{"pew"});
        opened->action("goToReferenced")->trigger();
        QVERIFY(opened->window->statusBar()->currentMessage().contains("refers to no other feature"));
    }

    void aReferenceToItselfIsNone()
    {
        writeFile(opened->path("own.gml"),
                  documentText(buildingMember("<bldg:lod1Solid xmlns:xlink=\"http://www.w3.org/1999/xlink\" "
                                              "xlink:href=\"#own\"/>",
                                              "own")));
        QVERIFY(opened->open(opened->path("own.gml")));
        opened->select({"own"});
        opened->action("goToReferenced")->trigger();
        QVERIFY(opened->window->statusBar()->currentMessage().contains("refers to no other feature"));
    }

    void whatIsNeededCannotBeRemoved()
    {
        writeFile(
            opened->path("hill.gml"),
            documentText("<core:cityObjectMember><dem:ReliefFeature "
                         "xmlns:dem='http://www.opengis.net/citygml/relief/2.0' gml:id='hill'>"
                         "<dem:lod>1</dem:lod><dem:reliefComponent><dem:MassPointRelief gml:id='points'>"
                         "<dem:lod>1</dem:lod></dem:MassPointRelief></dem:reliefComponent>"
                         "</dem:ReliefFeature></core:cityObjectMember>"));
        QVERIFY(opened->open(opened->path("hill.gml")));
        opened->select({"points"});
        opened->action("removeFeature")->trigger();
        QVERIFY(opened->window->statusBar()->currentMessage().contains(
            "MassPointRelief points cannot be removed"));
        QVERIFY(opened->row("points") > 0);
        QVERIFY(!opened->document().isModified());
        opened->select({"hill"});
        opened->action("removeFeature")->trigger();
        QCOMPARE(opened->document().model().rowCount(), 1);
        QCOMPARE(opened->document().undoStack().undoText(), QString("remove ReliefFeature hill"));
    }

    /// A document may come from anywhere, and a file that is opened may be a program.
    void onlyLinksOfTheWebAreOpened()
    {
        for (const char* const scheme : {"https", "file"}) {
            QDesktopServices::setUrlHandler(scheme, this, "note");
        }
        auto* const properties = opened->window->findChild<PropertyPanel*>();
        emit properties->linkActivated(QUrl("file:///bin/true"));
        emit properties->linkActivated(QUrl("https://town.example/page#part"));
        emit properties->linkActivated(QUrl("#pew"));
        for (const char* const scheme : {"https", "file"}) {
            QDesktopServices::unsetUrlHandler(scheme);
        }
        QCOMPARE(noted, QList<QUrl>{QUrl("https://town.example/page#part")});
        QCOMPARE(opened->selected(), QStringList{"pew"});
    }

    void nothingCanBeDoneWithoutASelection()
    {
        opened->document().selection().clear();
        QVERIFY(!opened->action("hide")->isEnabled());
        QVERIFY(!opened->action("removeFeature")->isEnabled());
        QVERIFY(opened->action("hideAll")->isEnabled());
    }

private:
    bool isVisible(const QString& identifier)
    {
        return opened->document().model().isVisible(
            opened->document().model().index(opened->row(identifier), 0));
    }
    QModelIndex nodeOf(const QString& identifier)
    {
        return opened->document().tree().mapFromSource(
            opened->document().model().index(opened->row(identifier), 0));
    }
    int check(const QString& identifier) { return nodeOf(identifier).data(Qt::CheckStateRole).toInt(); }

    QList<QUrl> noted;
    std::unique_ptr<OpenedWindow> opened;
};

TEST_CLASS(FeatureActionsTest, Widgets)
#include "featureactionstest.moc"
