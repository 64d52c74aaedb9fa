#pragma once

#include <QString>

#include <cstdint>

namespace tolvik::apps {

/// The file that a document was read from, and how it was then, so that it can be told whether it is still
/// the same.
class SourceFile
{
public:
    /// None.
    SourceFile() = default;
    /// The file as it is now. None for what is no regular file, such as standard input, a pipe or a device.
    explicit SourceFile(const QString& path);

    /// Where the document comes from a file.
    bool isFile() const { return size >= 0; }
    /// Whether the file is there as it was.
    bool isUnchanged() const;
    const QString& path() const { return name; }

private:
    QString name;
    std::uint64_t device = 0, node = 0;
    std::int64_t size = -1, seconds = 0, nanoseconds = 0;
};

} // namespace tolvik::apps
