#include "apps/viewer/window/MainWindow.h"
#include "apps/viewer/document/Document.h"
#include "apps/viewer/features/FeatureBrowser.h"
#include "apps/viewer/files/FileCommands.h"
#include "support/TestClass.h"
#include "support/TestPaths.h"

#include <QTreeView>
#include <QtTest>

using namespace testsupport;
using namespace tolvik::viewer;

/// The window of the desktop program as a whole.
class MainWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void aDocumentShowsInTheTree()
    {
        MainWindow window;
        window.show();
        QSignalSpy opened(&window.files(), &FileCommands::opened);
        window.open(examples() + "/district.gml");
        QVERIFY(opened.wait());
        const auto* const tree = window.findChild<QTreeView*>("featureTree");
        QVERIFY(tree != nullptr);
        QCOMPARE(tree->model()->rowCount(), 1);
        QVERIFY(window.document().isOpen());
        QVERIFY(!window.document().isModified());
    }
};

TEST_CLASS(MainWindowTest, Widgets)
#include "mainwindowtest.moc"
