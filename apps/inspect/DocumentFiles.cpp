#include "DocumentFiles.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <ostream>
#include <QFile>
#include <QFileInfo>
#include <stdexcept>
#include <system_error>

namespace tolvik::inspect {
namespace {

namespace fs = std::filesystem;

bool isDocument(const fs::path& path)
{
    static const std::array<QString, 3> endings{QStringLiteral(".gml"), QStringLiteral(".xml"),
                                                QStringLiteral(".citygml")};
    const QString name = QFile::decodeName(path.filename().c_str());
    return std::any_of(endings.begin(), endings.end(),
                       [&](const QString& ending) { return name.endsWith(ending, Qt::CaseInsensitive); });
}

bool isHidden(const fs::path& path)
{
    return path.filename().native().front() == '.';
}

/// Adds the documents of a directory and of those below it.
/// \return false if a directory could not be read, which \a err is told of
bool find(const fs::path& directory, QStringList& found, std::ostream& err)
{
    bool done = true;
    std::error_code failure;
    fs::directory_iterator entry(directory, failure);
    for (; !failure && entry != fs::directory_iterator(); entry.increment(failure)) {
        std::error_code ofEntry;
        if (isHidden(entry->path())) {
            continue;
        }
        if (entry->is_directory(ofEntry)) {
            done = (entry->is_symlink(ofEntry) || find(entry->path(), found, err)) && done;
        } else if (isDocument(entry->path())) {
            found += QFile::decodeName(entry->path().c_str());
        }
    }
    if (failure) {
        err << "tolvik-inspect: " << directory.native() << " could not be read: " << failure.message()
            << '\n';
    }
    return done && !failure;
}

/// \throws std::runtime_error
QStringList linesOf(const QString& path)
{
    QFile file(path);
    const bool isOpen =
        path == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (!isOpen) {
        throw std::runtime_error(path.toStdString() +
                                 " could not be read: " + file.errorString().toStdString());
    }
    QStringList lines;
    for (QByteArray line = file.readLine(); !line.isEmpty(); line = file.readLine()) {
        if (line.endsWith('\n')) {
            line.chop(1);
        }
        if (!line.isEmpty()) {
            lines += QFile::decodeName(line);
        }
    }
    return lines;
}

} // namespace

DocumentFiles::DocumentFiles(const QStringList& arguments, const QString& list, bool recursive,
                             std::ostream& err)
    : several(arguments.size() > 1 || !list.isNull())
{
    for (const QString& argument : arguments) {
        add(argument, recursive, err);
    }
    if (!list.isNull()) {
        const QStringList listed = linesOf(list);
        for (const QString& argument : listed) {
            add(argument, recursive, err);
        }
    }
}

void DocumentFiles::add(const QString& argument, bool recursive, std::ostream& err)
{
    if (recursive && QFileInfo(argument).isDir()) {
        several = true;
        addDirectory(argument, err);
    } else {
        files += argument;
    }
}

void DocumentFiles::addDirectory(const QString& directory, std::ostream& err)
{
    QStringList found;
    const bool done = find(fs::path(QFile::encodeName(directory).toStdString()), found, err);
    if (done && found.isEmpty()) {
        err << "tolvik-inspect: " << directory.toStdString() << " has no documents\n";
    }
    found.sort();
    files += found;
    complete = complete && done && !found.isEmpty();
}

} // namespace tolvik::inspect
