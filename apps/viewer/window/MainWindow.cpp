#include "apps/viewer/window/MainWindow.h"

#include "apps/common/DocumentReading.h"
#include "apps/viewer/document/Document.h"

#include <QDockWidget>
#include <QTreeView>

namespace tolvik::viewer {

MainWindow::MainWindow(QWidget* parent) : QMainWindow(parent), shown(new Document(this))
{
    setWindowTitle(tr("Tolvik"));
    makePanels();
}

MainWindow::~MainWindow() = default;

void MainWindow::open(const QString& path)
{
    apps::DocumentReading reading(path);
    reading.readShown();
    if (reading.document() != nullptr) {
        shown->open(reading);
    }
}

void MainWindow::makePanels()
{
    auto* const tree = new QTreeView;
    tree->setObjectName(QStringLiteral("featureTree"));
    tree->setUniformRowHeights(true);
    tree->setModel(&shown->tree());
    addPanel(tr("Features"), QStringLiteral("features"), tree, Qt::LeftDockWidgetArea);
    setCentralWidget(new QWidget);
    addPanel(tr("Properties"), QStringLiteral("properties"), new QWidget, Qt::RightDockWidgetArea);
}

QDockWidget* MainWindow::addPanel(const QString& title, const QString& name, QWidget* content,
                                  Qt::DockWidgetArea area)
{
    auto* const dock = new QDockWidget(title, this);
    dock->setObjectName(name + QStringLiteral("Dock"));
    dock->setWidget(content);
    addDockWidget(area, dock);
    return dock;
}

} // namespace tolvik::viewer
