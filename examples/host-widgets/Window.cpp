#include "Window.h"

#include <QAction>
#include <QFileDialog>
#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QSplitter>
#include <QTreeView>
#include <stdexcept>

Window::Window() : featureView(new QTreeView), propertyView(new QTreeView)
{
    tree.setSourceModel(&model);
    tree.setCheckColumnEnabled(true);
    featureView->setModel(&tree);
    propertyView->setModel(&properties);
    propertyView->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    connect(featureView->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) {
                properties.setFeature(&model, tree.mapToSource(current));
                propertyView->expandAll();
            });

    auto* const views = new QSplitter;
    views->addWidget(featureView);
    views->addWidget(propertyView);
    setCentralWidget(views);
    QMenu* const file = menuBar()->addMenu(tr("&File"));
    connect(file->addAction(tr("&Open...")), &QAction::triggered, this,
            [this] { load(QFileDialog::getOpenFileName(this)); });
    connect(file->addAction(tr("&Save as...")), &QAction::triggered, this,
            [this] { saveAs(QFileDialog::getSaveFileName(this, QString(), model.getFileName())); });
}

bool Window::load(const QString& path)
{
    const core::CityModelType* const former = model.cityGML();
    const QString formerName = model.getFileName();
    model.load(path);
    if (model.cityGML() == former) {
        model.setFileName(formerName); // a load that fails leaves the document, but not always its name
        model.dataSetChanged();
        return false;
    }
    featureView->expandToDepth(1);
    setWindowTitle(path);
    return true;
}

bool Window::saveAs(const QString& path)
{
    try {
        return !path.isEmpty() && model.saveAs(path, false);
    } catch (const std::runtime_error& error) {
        QMessageBox::critical(this, tr("Not saved"), QString::fromUtf8(error.what()));
        return false;
    }
}
