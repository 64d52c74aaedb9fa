#include "apps/viewer/recovery/Journal.h"

#include "apps/viewer/document/Document.h"
#include "apps/viewer/document/RecordedEdit.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QStandardPaths>
#include <QtConcurrentRun>
#include <QUuid>

namespace tolvik::viewer {

namespace {

QByteArray lineOf(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

QByteArray textOf(const RecordedEdit* edit)
{
    return edit == nullptr
               ? lineOf({{QStringLiteral("kind"), QString()}})
               : lineOf({{QStringLiteral("kind"), edit->kind()}, {QStringLiteral("edit"), edit->record()}});
}

} // namespace

Journal::Journal(Document& document, QObject* parent) : QObject(parent), document(document)
{
    connect(&document, &Document::opened, this, &Journal::beginAnew);
    connect(&document, &Document::saved, this, &Journal::beginAnew);
    connect(&document.undoStack(), &QUndoStack::indexChanged, this, &Journal::follow);
    connect(&marking, &QFutureWatcherBase::finished, this, &Journal::write);
}

Journal::~Journal()
{
    marking.waitForFinished();
    close();
}

QString Journal::folder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) +
           QStringLiteral("/recovery");
}

/// Gives the former journal up: the document is as its file says, and the file has another mark.
void Journal::beginAnew()
{
    close();
    pending.clear();
    noted.clear();
    base = document.undoStack().index();
    current = 0;
    if (QFileInfo(document.fileName()).isFile()) {
        marking.setFuture(QtConcurrent::run(&FileMark::of, document.fileName()));
    }
}

/// \return null for an edit of another class
const RecordedEdit* Journal::editAt(int command) const
{
    return dynamic_cast<const RecordedEdit*>(document.undoStack().command(command));
}

void Journal::follow(int index)
{
    if (document.undoStack().count() == 0) {
        // The history was dropped with the document it belongs to.
        return;
    }
    const int done = index - base;
    const int last = done - 1;
    const RecordedEdit* const edit = editAt(index - 1);
    const int number = edit != nullptr ? edit->number() : 0;
    if (done < 0) {
        // Undone is what the file has: nobody can do that from the file alone.
        note({{QStringLiteral("kind"), QString()}});
    } else if (done < current || last < 0 || (last < noted.size() && noted[last] == number)) {
        note({{QStringLiteral("index"), done}});
    } else {
        if (done == current) {
            // The edit was merged into the one before.
            note({{QStringLiteral("index"), last}});
        }
        noted.resize(last);
        noted.append(number);
        pending += textOf(edit);
        write();
    }
    current = done;
}

void Journal::note(const QJsonObject& line)
{
    pending += lineOf(line);
    write();
}

bool Journal::openFile()
{
    QDir().mkpath(folder());
    const QString path = folder() + QLatin1Char('/') + QUuid::createUuid().toString(QUuid::WithoutBraces) +
                         QStringLiteral(".journal");
    lock = std::make_unique<QLockFile>(path + QStringLiteral(".lock"));
    lock->setStaleLockTime(0);
    file.setFileName(path);
    if (!lock->tryLock(0) || !file.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
        emit failed(file.errorString());
        lock.reset();
        return false;
    }
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    QJsonObject head = marking.result().toJson();
    head.insert(QStringLiteral("file"), document.fileName());
    pending.prepend(lineOf(head));
    return true;
}

void Journal::write()
{
    if (pending.isEmpty() || !marking.isFinished() || marking.future().resultCount() == 0) {
        return;
    }
    if (file.isOpen() || openFile()) {
        if (file.write(pending) != pending.size() || !file.flush()) {
            emit failed(file.errorString());
        }
    }
    pending.clear();
}

void Journal::close()
{
    if (file.isOpen()) {
        file.close();
        file.remove();
    }
    lock.reset();
}

} // namespace tolvik::viewer
