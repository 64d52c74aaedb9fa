#include "apps/viewer/files/FileWatch.h"

#include <QFileInfo>

namespace tolvik::viewer {

namespace {

// Programs that write a file, or put another one in its place, do so in several steps.
constexpr int settlingMilliseconds = 300;

} // namespace

FileWatch::FileWatch(QObject* parent) : QObject(parent)
{
    settling.setSingleShot(true);
    settling.setInterval(settlingMilliseconds);
    connect(&settling, &QTimer::timeout, this, &FileWatch::look);
    connect(&watcher, &QFileSystemWatcher::fileChanged, &settling, QOverload<>::of(&QTimer::start));
    connect(&watcher, &QFileSystemWatcher::directoryChanged, &settling, QOverload<>::of(&QTimer::start));
}

FileWatch::~FileWatch() = default;

void FileWatch::watch(const QString& path)
{
    const QStringList watched = watcher.files() + watcher.directories();
    if (!watched.isEmpty()) {
        watcher.removePaths(watched);
    }
    file = path;
    isTold = false;
    settling.stop();
    known = present();
    if (!file.isEmpty() && known.exists) {
        // A file that is replaced by another one of its name is not watched any more; its folder still is.
        watcher.addPaths({file, QFileInfo(file).absolutePath()});
    }
}

FileWatch::State FileWatch::present() const
{
    const QFileInfo info(file);
    State state;
    state.exists = info.isFile();
    if (state.exists) {
        state.size = info.size();
        state.time = info.lastModified();
    }
    return state;
}

bool FileWatch::isChanged() const
{
    return !file.isEmpty() && !(present() == known);
}

void FileWatch::look()
{
    if (!isTold && isChanged()) {
        isTold = true;
        emit changed();
    }
    if (!file.isEmpty() && QFileInfo::exists(file) && !watcher.files().contains(file)) {
        watcher.addPath(file);
    }
}

} // namespace tolvik::viewer
