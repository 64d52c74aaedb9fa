#pragma once

#include "apps/common/DocumentReading.h"

#include <atomic>
#include <memory>
#include <QByteArray>
#include <QObject>
#include <QThread>
#include <QTimer>

namespace tolvik::viewer {

/// Reads a document in a thread, while the window goes on with the one that it has.
class DocumentLoader : public QObject
{
    Q_OBJECT

public:
    explicit DocumentLoader(QObject* parent = nullptr);
    /// Cancels what is under way, and waits for its end.
    ~DocumentLoader() override;

    /// Begins to read. Only while nothing is being read.
    void start(const QString& path);
    bool isRunning() const { return thread != nullptr; }
    const QString& path() const { return file; }

    /// What was read, until the next start.
    apps::DocumentReading& reading() { return *current; }

public slots:
    /// Ends the reading soon; finished() comes all the same.
    void cancel();

signals:
    /// \param total 0 where it is not known
    void progressed(qint64 done, qint64 total);
    /// reading() has a document, or was cancelled, or tells why there is none.
    void finished();

private:
    void end();

    QString file;
    std::unique_ptr<apps::DocumentReading> current;
    std::unique_ptr<QThread> thread;
    std::atomic<qint64> bytes{0};
    QTimer ticks;
};

} // namespace tolvik::viewer
