#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace testsupport {

/// The content of a file; empty if it cannot be read.
QByteArray contentOf(const QString& path);

/// Writes a file anew.
/// \return whether all of it was written
bool writeFile(const QString& path, const QByteArray& content);

/// The documents of a directory and of those below it, in the order of their names.
QStringList documentsBelow(const QString& directory);

/// The examples of the project, and the documents beside it where there are some.
QStringList exampleAndSharedDocuments();

/// Adds a column `path` to the data of a test function, and a row for each file, named after it.
void addPathRows(const QStringList& paths);

} // namespace testsupport
