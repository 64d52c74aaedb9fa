#include "apps/viewer/document/Document.h"

#include "apps/common/DocumentReading.h"
#include "framework/ModelPlugin.h"
#include "framework/ModelPlugins.h"

#include <stdexcept>

namespace tolvik::viewer {

namespace {

ModelPlugin& plugin()
{
    static const ModelPlugins plugins;
    ModelPlugin* const found = plugins.named(QStringLiteral("CityGML"));
    if (found == nullptr) {
        throw std::runtime_error(plugins.problems().join(QLatin1Char('\n')).toStdString());
    }
    return *found;
}

} // namespace

Document::Document(QObject* parent)
    : QObject(parent), list(static_cast<CityGMLModel*>(plugin().createModel(nullptr))),
      features(static_cast<CityGMLTreeModel*>(plugin().createTreeModel(*list, nullptr))),
      selected(std::make_unique<RowSelectionModel>(list.get()))
{
    features->setCheckColumnEnabled(true);
    list->setSelectionModel(selected.get());
    connect(&edits, &QUndoStack::cleanChanged, this, [this](bool clean) { emit modifiedChanged(!clean); });
}

Document::~Document()
{
    // Who listens to the history may have gone in part: the window that this is a child of.
    edits.blockSignals(true);
    // Nodes and edits point into the document, which the list takes with it.
    edits.clear();
    features.reset();
}

void Document::open(apps::DocumentReading& reading)
{
    runner.abandon();
    emit aboutToBeOpened();
    edits.clear();
    file = reading.source();
    reading.handOver(*list);
    list->dirty(false);
    emit fileNameChanged(fileName());
    emit opened();
}

void Document::noteSaved(const QString& path)
{
    const bool isRenamed = path != fileName();
    list->setFileName(path);
    list->dirty(false);
    edits.setClean();
    if (isRenamed) {
        emit fileNameChanged(path);
    }
    emit saved();
}

void Document::goTo(int row)
{
    const QModelIndex index = list->index(row, 0);
    if (index.isValid()) {
        selected->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
}

} // namespace tolvik::viewer
