#include "LargeWindow.h"

#include "apps/viewer/document/Document.h"
#include "apps/viewer/features/FeatureBrowser.h"
#include "apps/viewer/files/FileCommands.h"
#include "Measure.h"

#include <algorithm>
#include <ctime>
#include <fstream>
#include <memory>
#include <QAbstractEventDispatcher>
#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSettings>
#include <QThread>
#include <QTreeView>
#include <utility>

namespace tolvik {

namespace {

// Longer than the window waits for a user who types on.
constexpr double quietSeconds = 0.35;

/// Seconds that this thread has computed.
double threadSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

void writeDocument(const QString& path, const LargeWindow::Content& content)
{
    std::ofstream file(path.toStdString());
    file << R"(<CityModel xmlns="http://www.opengis.net/citygml/2.0" gml:id="city"
 xmlns:gml="http://www.opengis.net/gml" xmlns:bldg="http://www.opengis.net/citygml/building/2.0">)";
    for (long long count = 0; count < content.features;) {
        ++count;
        file << "<cityObjectMember><bldg:Building gml:id=\"b" << count << "\"><gml:name>Building "
             << (count * 7919) % content.features << "</gml:name><bldg:measuredHeight uom=\"m\">"
             << count % 40 << "</bldg:measuredHeight>";
        for (int wall = 0; wall < content.walls; ++wall) {
            file << "<bldg:boundedBy><bldg:WallSurface gml:id=\"w" << ++count << "\"/></bldg:boundedBy>";
        }
        file << "</bldg:Building></cityObjectMember>\n";
    }
    file << "</CityModel>";
}

} // namespace

LargeWindow::LargeWindow(const Content& content) : content(content)
{
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
    writeDocument(path(), content);
    window.show();
    // The window may open other documents later.
    const auto isOpen = std::make_shared<bool>(false);
    QObject::connect(&window.files(), &viewer::FileCommands::opened, &window, [isOpen] { *isOpen = true; });
    window.open(path());
    while (!*isOpen) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

LargeWindow& LargeWindow::with(const Content& content)
{
    static std::unique_ptr<LargeWindow> made;
    static const bool isReleased = (qAddPostRoutine([] { made.reset(); }), true);
    Q_UNUSED(isReleased)
    if (made == nullptr || made->content.features != content.features ||
        made->content.walls != content.walls) {
        made.reset();
        made = std::make_unique<LargeWindow>(content);
    }
    made->settle();
    made->takeSeconds();
    return *made;
}

void LargeWindow::settle()
{
    double quietSince = elapsedSeconds();
    while (elapsedSeconds() - quietSince < quietSeconds) {
        bool isWorking = false;
        watch(
            [&] { isWorking = QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents); });
        if (isWorking) {
            total += elapsedSeconds() - quietSince;
            quietSince = elapsedSeconds();
        } else {
            QThread::msleep(1);
        }
    }
}

double LargeWindow::operate(const std::function<void()>& operation)
{
    longest = 0;
    const double start = elapsedSeconds();
    watch(operation);
    total += elapsedSeconds() - start;
    settle();
    return longest * 1000;
}

/// Notes how long the window does not look at its input.
void LargeWindow::watch(const std::function<void()>& work)
{
    const double start = elapsedSeconds();
    const double computingStart = threadSeconds();
    work();
    longest = std::max(longest, elapsedSeconds() - start);
    longestComputing = std::max(longestComputing, threadSeconds() - computingStart);
}

double LargeWindow::takeSeconds()
{
    longestComputing = 0;
    return std::exchange(total, 0.0);
}

void LargeWindow::type(char letter)
{
    QLineEdit* const line = window.findChild<QLineEdit*>(QStringLiteral("search"));
    QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QString(QLatin1Char(letter)));
    QCoreApplication::sendEvent(line, &press);
}

void LargeWindow::clearSearch()
{
    window.findChild<QLineEdit*>(QStringLiteral("search"))->clear();
    settle();
}

void LargeWindow::trigger(const char* name)
{
    window.findChild<QAction*>(QLatin1String(name))->trigger();
}

QTreeView* LargeWindow::tree()
{
    return window.browser().tree();
}

void measureWindow(benchmark::State& state, const std::function<void(LargeWindow&)>& prepare,
                   const std::function<double(LargeWindow&)>& operation, int walls)
{
    LargeWindow& window = LargeWindow::with({static_cast<int>(state.range(0)), walls});
    double block = 0;
    double computing = 0;
    while (state.KeepRunning()) {
        prepare(window);
        window.settle();
        window.takeSeconds();
        block = std::max(block, operation(window));
        computing = std::max(computing, window.computingSeconds() * 1000);
        state.SetIterationTime(window.takeSeconds());
    }
    state.counters["block_ms"] = block;
    state.counters["block_cpu_ms"] = computing;
    state.counters["features"] = window.window.document().model().rowCount();
}

void large(benchmark::internal::Benchmark* benchmark)
{
    benchmark->UseManualTime()
        ->Iterations(3)
        ->Unit(benchmark::kMillisecond)
        ->ArgName("features")
        ->Arg(100000);
}

void veryLarge(benchmark::internal::Benchmark* benchmark)
{
    benchmark->UseManualTime()
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond)
        ->ArgName("features")
        ->Arg(1000000);
}

} // namespace tolvik
