#pragma once

#include "apps/viewer/files/DocumentLoader.h"
#include "apps/viewer/files/FileWatch.h"

#include <functional>
#include <QObject>

class QTreeView;
class QWidget;

namespace tolvik::viewer {

class Document;
class NoticeBar;
class StatusProgress;

/// Opens, reloads and saves the document of a window, and asks before edits are lost.
class FileCommands : public QObject
{
    Q_OBJECT

public:
    /// What of the window takes part. All of it lives longer.
    struct Surroundings
    {
        Document& document;
        QWidget& window;
        QTreeView& tree;
        NoticeBar& notice;
        StatusProgress& progress;
    };
    explicit FileCommands(const Surroundings& surroundings);
    ~FileCommands() override;

    bool isReading() const { return loader.isRunning(); }
    /// Whether a file is being written beside the window: the document must not change meanwhile.
    bool isSaving() const { return isWriting; }
    /// Whether a file is being written, or an edit of many features is under way: nobody else may change the
    /// document, or replace it.
    bool isHeld() const;

    /// Reads a document and shows it, beside the present one until it is there. One that cannot be read
    /// leaves everything as it is.
    void open(const QString& path);
    /// Asks for unsaved edits what shall become of them.
    /// \return whether to go on, with the edits saved or given up
    bool letGo();

public slots:
    void chooseAndOpen();
    void reload();
    /// \return whether the document is saved
    bool save();
    bool saveAs();
    void cancelReading();

signals:
    /// Writing has begun, or has ended.
    void savingChanged(bool saving);
    /// A document that was read is in place.
    void opened();
    /// Something that a user may want to look up later.
    /// \param level as LogModel::Severity
    void told(int level, const QString& text);

private:
    void take();
    void takeDelayed();
    void tellFailure();
    void offerReload();
    void repairCopy(const QString& path);
    void workBeside(const QString& title, const std::function<void()>& work);
    bool saveTo(const QString& path);
    bool isSameFile(const QString& path) const;

    Document& document;
    QWidget& window;
    QTreeView& tree;
    NoticeBar& notice;
    StatusProgress& progress;
    DocumentLoader loader;
    FileWatch watch;
    bool isWriting = false;
    bool isTakeDelayed = false; // a document was read while another one was written or edited
    int shownReading = 0;       // names the reading in the progress
    QString next;               // to be read when the present reading has ended
    int agreedEdits = -1;       // the edits of which the user has agreed that they may be lost
};

} // namespace tolvik::viewer
