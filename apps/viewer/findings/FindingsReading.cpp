#include "apps/viewer/findings/FindingsReading.h"

#include "apps/common/DocumentReading.h"

#include <QtConcurrentRun>

namespace tolvik::viewer {

namespace {

std::optional<FindingGroups> read(const std::shared_ptr<apps::DocumentReading>& reading)
{
    reading->read();
    return reading->document() != nullptr ? std::optional(citygml::findingsOf(*reading->document()))
                                          : std::nullopt;
}

} // namespace

FindingsReading::FindingsReading(QObject* parent) : QObject(parent)
{
    connect(&watcher, &QFutureWatcherBase::finished, this, [this] {
        const bool isGivenUp = watcher.future().resultCount() == 0;
        const std::optional<FindingGroups> groups = isGivenUp ? std::nullopt : watcher.result();
        if (groups) {
            emit found(*groups);
        }
    });
}

FindingsReading::~FindingsReading()
{
    stop();
}

void FindingsReading::start(const QString& path)
{
    stop();
    const auto reading = std::make_shared<apps::DocumentReading>(path);
    current = reading;
    watcher.setFuture(QtConcurrent::run(read, reading));
}

void FindingsReading::stop()
{
    if (const auto reading = current.lock()) {
        reading->cancel();
    }
    watcher.setFuture({});
}

} // namespace tolvik::viewer
