#pragma once

#include "citygml/Findings.h"

#include <memory>
#include <optional>
#include <QFutureWatcher>
#include <QObject>
#include <QString>
#include <vector>

namespace tolvik::apps {
class DocumentReading;
}

namespace tolvik::viewer {

/// Findings as a document lists them.
using FindingGroups = std::vector<citygml::FindingGroup>;

/// Reads a file beside the window for its findings alone.
class FindingsReading : public QObject
{
    Q_OBJECT

public:
    explicit FindingsReading(QObject* parent = nullptr);
    /// Gives up what is under way; the file is not read much further.
    ~FindingsReading() override;

    /// Begins to read; what is under way is given up.
    void start(const QString& path);
    void stop();

signals:
    /// The file is read to its end. It does not come for a file that cannot be read.
    void found(const tolvik::viewer::FindingGroups& groups);

private:
    // What it has read goes in the thread that has read it, as that may take long.
    std::weak_ptr<apps::DocumentReading> current;
    QFutureWatcher<std::optional<FindingGroups>> watcher;
};

} // namespace tolvik::viewer
