#include "DocumentFiles.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <ostream>
#include <QFile>
#include <QFileInfo>
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

} // namespace

DocumentFiles::DocumentFiles(const QStringList& arguments, bool recursive, std::ostream& err)
    : several(arguments.size() > 1)
{
    for (const QString& argument : arguments) {
        if (recursive && QFileInfo(argument).isDir()) {
            several = true;
            addDirectory(argument, err);
        } else {
            files += argument;
        }
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
