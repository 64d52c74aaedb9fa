#include "apps/viewer/files/FileCommands.h"

#include "apps/common/DocumentSaving.h"
#include "apps/viewer/document/Document.h"
#include "apps/viewer/files/RecentFiles.h"
#include "apps/viewer/files/ViewState.h"
#include "apps/viewer/log/LogModel.h"
#include "apps/viewer/window/NoticeBar.h"
#include "apps/viewer/window/StatusProgress.h"

#include <optional>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeView>

namespace tolvik::viewer {

namespace {

QString nameOf(const QString& path)
{
    return QFileInfo(path).fileName();
}

} // namespace

FileCommands::FileCommands(const Surroundings& surroundings)
    : document(surroundings.document), window(surroundings.window), tree(surroundings.tree),
      notice(surroundings.notice), progress(surroundings.progress)
{
    connect(&loader, &DocumentLoader::progressed, &progress, &StatusProgress::showBeside);
    connect(&loader, &DocumentLoader::finished, this, &FileCommands::take);
    connect(&progress, &StatusProgress::cancelRequested, this, &FileCommands::cancelReading);
    connect(&watch, &FileWatch::changed, this, &FileCommands::offerReload);
}

FileCommands::~FileCommands() = default;

void FileCommands::chooseAndOpen()
{
    const QString path =
        QFileDialog::getOpenFileName(&window, tr("Open"), QFileInfo(document.fileName()).path(),
                                     tr("City models (*.gml *.xml *.citygml);;All files (*)"));
    if (!path.isEmpty()) {
        open(path);
    }
}

void FileCommands::open(const QString& path)
{
    if (!letGo()) {
        return;
    }
    agreedEdits = document.undoStack().index();
    next = path == QLatin1String("-") ? path : QFileInfo(path).absoluteFilePath();
    if (loader.isRunning()) {
        loader.cancel();
        return;
    }
    progress.beginBeside(tr("Reading %1").arg(nameOf(next)), true);
    loader.start(next);
    next.clear();
}

void FileCommands::reload()
{
    if (document.isOpen() && !document.fileName().isEmpty()) {
        open(document.fileName());
    }
}

void FileCommands::cancelReading()
{
    next.clear();
    loader.cancel();
}

bool FileCommands::isSameFile(const QString& path) const
{
    return document.isOpen() && QFileInfo(document.fileName()) == QFileInfo(path);
}

/// Puts what was read in place, unless there is nothing or the user has edited on meanwhile.
void FileCommands::take()
{
    progress.endBeside();
    apps::DocumentReading& reading = loader.reading();
    if (!next.isEmpty()) {
        const QString path = next;
        open(path);
        return;
    }
    if (reading.document() == nullptr) {
        if (reading.isCancelled()) {
            emit told(LogModel::Information, tr("Reading %1 was cancelled.").arg(nameOf(loader.path())));
        } else {
            tellFailure();
        }
        return;
    }
    if (document.undoStack().index() != agreedEdits && !letGo()) {
        return;
    }
    std::optional<ViewState> state;
    if (isSameFile(loader.path())) {
        state = ViewState::of(document, tree);
    }
    notice.hide();
    {
        const ShownOperations shown(progress);
        document.open(reading);
    }
    if (state) {
        state->restore(document, tree);
    } else {
        tree.expandToDepth(0);
    }
    watch.watch(document.fileName());
    if (QFileInfo(document.fileName()).isFile()) {
        recentFiles::add(document.fileName());
    }
    emit told(LogModel::Information, tr("%1 is open.").arg(nameOf(document.fileName())));
    emit opened();
}

void FileCommands::tellFailure()
{
    const QString path = loader.path();
    const QString reason = loader.reading().error();
    const QString text = tr("%1 could not be opened: %2.").arg(nameOf(path), reason);
    emit told(LogModel::Error, text);
    notice.tell(text);
}

void FileCommands::offerReload()
{
    notice.tell(document.isModified()
                    ? tr("Another program has changed %1. A reload would lose your edits.")
                          .arg(nameOf(document.fileName()))
                    : tr("Another program has changed %1.").arg(nameOf(document.fileName())));
    notice.offer(QStringLiteral("reloadChanged"), tr("&Reload"), [this] { reload(); });
    emit told(LogModel::Warning, tr("Another program has changed %1.").arg(nameOf(document.fileName())));
}

bool FileCommands::letGo()
{
    if (!document.isModified()) {
        return true;
    }
    QMessageBox question(QMessageBox::Question, tr("Unsaved changes"),
                         tr("Save the changes of %1?").arg(nameOf(document.fileName())),
                         QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, &window);
    question.setObjectName(QStringLiteral("unsavedQuestion"));
    question.setInformativeText(tr("Otherwise they are lost."));
    question.setDefaultButton(QMessageBox::Save);
    switch (question.exec()) {
    case QMessageBox::Save:
        return save();
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}

bool FileCommands::save()
{
    if (document.fileName().isEmpty() || document.fileName() == QLatin1String("-")) {
        return saveAs();
    }
    if (watch.isChanged()) {
        QMessageBox question(QMessageBox::Warning, tr("File has changed"),
                             tr("Another program has changed %1.").arg(nameOf(document.fileName())),
                             QMessageBox::Save | QMessageBox::Cancel, &window);
        question.setObjectName(QStringLiteral("overwriteQuestion"));
        question.setInformativeText(tr("If you save, what that program has written is lost."));
        question.setDefaultButton(QMessageBox::Cancel);
        if (question.exec() != QMessageBox::Save) {
            return false;
        }
    }
    return saveTo(document.fileName());
}

bool FileCommands::saveAs()
{
    const QString path =
        QFileDialog::getSaveFileName(&window, tr("Save As"), document.fileName(),
                                     tr("City models (*.gml *.xml *.citygml);;All files (*)"));
    return !path.isEmpty() && saveTo(QFileInfo(path).absoluteFilePath());
}

bool FileCommands::saveTo(const QString& path)
{
    const QString former = document.fileName();
    apps::DocumentSaving saving(document.model(), document.source());
    if (!saving.save(path, apps::DocumentSaving::Form::Changes)) {
        document.model().setFileName(former);
        const QString text = tr("%1 could not be saved: %2").arg(nameOf(path), saving.error());
        emit told(LogModel::Error, text);
        notice.tell(text);
        return false;
    }
    document.model().setFileName(former);
    document.setSource(saving.source());
    document.noteSaved(path);
    watch.watch(path);
    notice.hide();
    recentFiles::add(path);
    emit told(LogModel::Information, tr("%1 is saved.").arg(nameOf(path)));
    if (!saving.note().isEmpty()) {
        emit told(LogModel::Warning, tr("%1 was written anew: %2").arg(nameOf(path), saving.note()));
    }
    return true;
}

} // namespace tolvik::viewer
