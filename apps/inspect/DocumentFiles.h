#pragma once

#include <QStringList>

#include <iosfwd>

namespace tolvik::inspect {

/// The files that the arguments of a command name.
///
/// A directory stands for the documents in it and in the directories below it, by their names: `*.gml`,
/// `*.xml` and `*.citygml`, in whatever case, but for hidden ones. Links to directories are not followed.
class DocumentFiles
{
public:
    /// \param arguments paths of files and, with \a recursive, of directories; `-` is standard input
    /// \param list      path of a file with one more argument a line; `-` is standard input, a null one none
    /// \param err       takes one line for each directory that cannot be read or has no documents
    /// \throws std::runtime_error if the list cannot be read
    DocumentFiles(const QStringList& arguments, const QString& list, bool recursive, std::ostream& err);

    /// In the order of the arguments, those of a directory in the order of their names.
    const QStringList& paths() const { return files; }
    /// Whether every directory could be read and had documents.
    bool areComplete() const { return complete; }
    /// Whether the user asked for more than one file, so that the output has to name them.
    bool areSeveral() const { return several; }

private:
    void add(const QString& argument, bool recursive, std::ostream& err);
    void addDirectory(const QString& directory, std::ostream& err);

    QStringList files;
    bool complete = true;
    bool several;
};

} // namespace tolvik::inspect
