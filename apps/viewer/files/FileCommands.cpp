#include "apps/viewer/files/FileCommands.h"

#include "apps/common/DocumentSaving.h"
#include "apps/common/OpenDocument.h"
#include "apps/viewer/document/Document.h"
#include "apps/viewer/files/RecentFiles.h"
#include "apps/viewer/files/ViewState.h"
#include "apps/viewer/log/LogModel.h"
#include "apps/viewer/window/NoticeBar.h"
#include "apps/viewer/window/StatusProgress.h"
#include "citygml/DocumentRepair.h"

#include <optional>
#include <QDir>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QThread>
#include <QTimer>
#include <QTreeView>

namespace tolvik::viewer {

namespace {

QString nameOf(const QString& path)
{
    return QFileInfo(path).fileName();
}

/// Reads a document, puts right what needs no guessing, and writes it to another file. May run in any thread.
/// \return why that cannot be done; empty if it is
QString writeRepaired(const QString& path, const QString& output)
{
    QString reason;
    const std::unique_ptr<std::istream> stream = apps::openSeekableDocument(path, reason);
    if (stream == nullptr) {
        return reason;
    }
    try {
        CityGMLModel model(nullptr, nullptr);
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
        model.load(std::auto_ptr<core::CityModelType>(
            citygml::repairDocument(*stream, [](const citygml::Finding&) {}).release()));
#pragma GCC diagnostic pop
        apps::DocumentSaving saving(model, apps::SourceFile(path));
        saving.save(output, apps::DocumentSaving::Form::Changes);
        return saving.error();
    } catch (const xsd::cxx::tree::exception<char>& error) {
        return apps::textOf(error);
    }
}

} // namespace

FileCommands::FileCommands(const Surroundings& surroundings)
    : document(surroundings.document), window(surroundings.window), tree(surroundings.tree),
      notice(surroundings.notice), progress(surroundings.progress)
{
    connect(&loader, &DocumentLoader::progressed, this,
            [this](qint64 done, qint64 total) { progress.showBeside(shownReading, done, total); });
    connect(&loader, &DocumentLoader::finished, this, &FileCommands::take);
    connect(&document.editRunner(), &EditRunner::ended, this, &FileCommands::takeDelayed);
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
    if (isHeld() || !letGo()) {
        return;
    }
    agreedEdits = document.undoStack().index();
    next = path == QLatin1String("-") ? path : QFileInfo(path).absoluteFilePath();
    if (loader.isRunning()) {
        loader.cancel();
        return;
    }
    shownReading = progress.beginBeside(tr("Reading %1").arg(nameOf(next)), [this] { cancelReading(); });
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
    if (isHeld()) {
        // What is being written or edited must not be replaced.
        isTakeDelayed = true;
        return;
    }
    progress.endBeside(shownReading);
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
    // Of what ends a reading, this is what a repair puts right.
    if (reason.contains(QLatin1String("already exist"))) {
        notice.offer(QStringLiteral("repair"), tr("Re&pair a Copy..."), [this, path] { repairCopy(path); });
    }
}

void FileCommands::repairCopy(const QString& path)
{
    const QFileInfo file(path);
    const QString output =
        QFileDialog::getSaveFileName(&window, tr("Save Repaired Copy"),
                                     file.dir().filePath(tr("%1-repaired.gml").arg(file.completeBaseName())),
                                     tr("City models (*.gml *.xml *.citygml);;All files (*)"));
    if (output.isEmpty()) {
        return;
    }
    QString reason = tr("a repair does not write over the document itself");
    if (QFileInfo(output) != file) {
        workBeside(tr("Repairing %1").arg(nameOf(path)), [&] { reason = writeRepaired(path, output); });
    }
    if (reason.isEmpty()) {
        open(output);
    } else {
        const QString text = tr("%1 could not be repaired: %2.").arg(nameOf(path), reason);
        emit told(LogModel::Error, text);
        notice.tell(text);
    }
}

/// Does something in a thread of its own, and comes back when that is done. The window goes on meanwhile, but
/// whoever edits waits.
void FileCommands::workBeside(const QString& title, const std::function<void()>& work)
{
    isWriting = true;
    emit savingChanged(true);
    const int shown = progress.beginBeside(title);
    QEventLoop waiting;
    const std::unique_ptr<QThread> thread(QThread::create(work));
    connect(thread.get(), &QThread::finished, &waiting, &QEventLoop::quit);
    thread->start();
    waiting.exec();
    thread->wait();
    progress.endBeside(shown);
    isWriting = false;
    emit savingChanged(false);
    takeDelayed();
}

void FileCommands::takeDelayed()
{
    if (isTakeDelayed) {
        isTakeDelayed = false;
        QTimer::singleShot(0, this, &FileCommands::take);
    }
}

bool FileCommands::isHeld() const
{
    return isWriting || document.editRunner().isRunning();
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
    if (isHeld() || !document.isOpen()) {
        return false;
    }
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
    if (isHeld() || !document.isOpen()) {
        return false;
    }
    const QString path =
        QFileDialog::getSaveFileName(&window, tr("Save As"), document.fileName(),
                                     tr("City models (*.gml *.xml *.citygml);;All files (*)"));
    return !path.isEmpty() && saveTo(QFileInfo(path).absoluteFilePath());
}

bool FileCommands::saveTo(const QString& path)
{
    const QString former = document.fileName();
    apps::DocumentSaving saving(document.model(), document.source());
    bool isSaved = false;
    workBeside(tr("Saving %1").arg(nameOf(path)),
               [&] { isSaved = saving.save(path, apps::DocumentSaving::Form::Changes); });
    // The document tells of a new name itself.
    document.model().setFileName(former);
    if (!isSaved) {
        const QString text = tr("%1 could not be saved: %2.").arg(nameOf(path), saving.error());
        emit told(LogModel::Error, text);
        notice.tell(text);
        return false;
    }
    document.setSource(saving.source());
    document.noteSaved(path);
    watch.watch(path);
    notice.hide();
    recentFiles::add(path);
    emit told(LogModel::Information, tr("%1 is saved.").arg(nameOf(path)));
    if (!saving.note().isEmpty()) {
        emit told(LogModel::Warning, tr("All of %1 was written anew: %2.").arg(nameOf(path), saving.note()));
    }
    return true;
}

} // namespace tolvik::viewer
