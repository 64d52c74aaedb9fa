#include "apps/viewer/document/Document.h"

#include "apps/common/DocumentReading.h"

namespace tolvik::viewer {

Document::Document(QObject* parent) : QObject(parent), list(nullptr, nullptr), selected(&list)
{
    features.setCheckColumnEnabled(true);
    features.setSourceModel(&list);
    list.setSelectionModel(&selected);
    connect(&edits, &QUndoStack::cleanChanged, this, [this](bool clean) { emit modifiedChanged(!clean); });
}

Document::~Document()
{
    // Rows and edits point into the document, which the list takes with it.
    edits.clear();
    features.setSourceModel(nullptr);
}

void Document::open(apps::DocumentReading& reading)
{
    emit aboutToBeOpened();
    edits.clear();
    reading.handOver(list);
    list.dirty(false);
    emit fileNameChanged(fileName());
    emit opened();
}

void Document::noteSaved(const QString& path)
{
    const bool isRenamed = path != fileName();
    list.setFileName(path);
    list.dirty(false);
    edits.setClean();
    if (isRenamed) {
        emit fileNameChanged(path);
    }
}

void Document::goTo(int row)
{
    const QModelIndex index = list.index(row, 0);
    if (index.isValid()) {
        selected.setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
}

} // namespace tolvik::viewer
