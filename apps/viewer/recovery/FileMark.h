#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

namespace tolvik::viewer {

/// By what a file is known again: its size and a hash of its bytes.
struct FileMark
{
    qint64 size = -1;
    QByteArray hash; ///< SHA-256, as hexadecimal digits

    /// The mark of a file as it is now; reads all of it. One of size -1 where it cannot be read.
    static FileMark of(const QString& path);
    static FileMark fromJson(const QJsonObject& object);
    QJsonObject toJson() const;

    bool isValid() const { return size >= 0; }
    bool operator==(const FileMark& other) const { return size == other.size && hash == other.hash; }
};

} // namespace tolvik::viewer
