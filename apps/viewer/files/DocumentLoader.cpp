#include "apps/viewer/files/DocumentLoader.h"

namespace tolvik::viewer {

namespace {

constexpr int progressMilliseconds = 50;

} // namespace

DocumentLoader::DocumentLoader(QObject* parent) : QObject(parent)
{
    ticks.setInterval(progressMilliseconds);
    connect(&ticks, &QTimer::timeout, this, [this] { emit progressed(bytes, current->size()); });
}

DocumentLoader::~DocumentLoader()
{
    if (thread != nullptr) {
        cancel();
        thread->wait();
    }
}

void DocumentLoader::start(const QString& path)
{
    file = path;
    bytes = 0;
    current = std::make_unique<apps::DocumentReading>(path);
    thread.reset(QThread::create([this] { current->read([this](long long done) { bytes = done; }); }));
    connect(thread.get(), &QThread::finished, this, &DocumentLoader::end, Qt::QueuedConnection);
    ticks.start();
    thread->start();
}

void DocumentLoader::cancel()
{
    if (current != nullptr) {
        current->cancel();
    }
}

void DocumentLoader::end()
{
    ticks.stop();
    thread->wait();
    thread.reset();
    emit finished();
}

} // namespace tolvik::viewer
