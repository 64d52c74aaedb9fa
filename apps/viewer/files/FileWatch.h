#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

namespace tolvik::viewer {

/// Notices when another program changes a file.
class FileWatch : public QObject
{
    Q_OBJECT

public:
    explicit FileWatch(QObject* parent = nullptr);
    ~FileWatch() override;

    /// Watches a file, and takes it as it is now for the state that is known. An empty path watches nothing.
    void watch(const QString& path);

    /// Whether the file is not as it is known. A file that is gone is.
    bool isChanged() const;

signals:
    /// The file is no longer as it is known. Sent once until the next watch().
    void changed();

private:
    struct State
    {
        bool exists = false;
        qint64 size = 0;
        QDateTime time;

        bool operator==(const State& other) const
        {
            return exists == other.exists && size == other.size && time == other.time;
        }
    };
    State present() const;
    void look();

    QString file;
    State known;
    QFileSystemWatcher watcher;
    QTimer settling;
    bool isTold = false;
};

} // namespace tolvik::viewer
