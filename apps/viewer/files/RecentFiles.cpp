#include "apps/viewer/files/RecentFiles.h"

#include <QSettings>

namespace tolvik::viewer::recentFiles {

namespace {

constexpr int most = 10;

QString key()
{
    return QStringLiteral("recentFiles");
}

} // namespace

QStringList list()
{
    return QSettings().value(key()).toStringList();
}

void add(const QString& path)
{
    QStringList files = list();
    files.removeAll(path);
    files.prepend(path);
    QSettings().setValue(key(), QStringList(files.mid(0, most)));
}

void clear()
{
    QSettings().remove(key());
}

} // namespace tolvik::viewer::recentFiles
