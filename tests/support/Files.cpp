#include "support/Files.h"

#include "support/TestPaths.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QtTest>

namespace testsupport {

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QStringList documentsBelow(const QString& directory)
{
    QStringList paths;
    QDirIterator files(directory, {"*.gml"}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        paths.append(files.next());
    }
    paths.sort();
    return paths;
}

QStringList exampleAndSharedDocuments()
{
    return documentsBelow(examples()) + documentsBelow(sharedDocuments());
}

void addPathRows(const QStringList& paths)
{
    QTest::addColumn<QString>("path");
    for (const QString& path : paths) {
        QTest::newRow(qPrintable(QFileInfo(path).fileName())) << path;
    }
}

} // namespace testsupport
