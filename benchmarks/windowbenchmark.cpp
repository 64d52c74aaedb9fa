// How long the window of the desktop program stands still, with a hundred thousand features and everything
// expanded: `block_ms` is the longest time that it does not look at the user's input, the time itself that
// until all is done. Searching and filtering are measured with a million features, too.

#include "apps/viewer/document/Document.h"
#include "apps/viewer/features/FeatureBrowser.h"
#include "apps/viewer/files/FileCommands.h"
#include "apps/viewer/window/MainWindow.h"
#include "Measure.h"

#include <algorithm>
#include <fstream>
#include <functional>
#include <QAbstractButton>
#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QSettings>
#include <QTemporaryDir>
#include <QTreeView>

using namespace tolvik;
using namespace tolvik::viewer;

namespace {

/// A document of buildings with nine walls each.
void writeDocument(const QString& path, int features)
{
    std::ofstream file(path.toStdString());
    file << R"(<CityModel xmlns="http://www.opengis.net/citygml/2.0" gml:id="city"
 xmlns:gml="http://www.opengis.net/gml" xmlns:bldg="http://www.opengis.net/citygml/building/2.0">)";
    for (int count = 0; count < features;) {
        ++count;
        file << "<cityObjectMember><bldg:Building gml:id=\"b" << count << "\"><gml:name>Building "
             << (count * 7919) % features << "</gml:name><bldg:measuredHeight uom=\"m\">" << count % 40
             << "</bldg:measuredHeight>";
        for (int wall = 0; wall < 9; ++wall) {
            file << "<bldg:boundedBy><bldg:WallSurface gml:id=\"w" << ++count << "\"/></bldg:boundedBy>";
        }
        file << "</bldg:Building></cityObjectMember>\n";
    }
    file << "</CityModel>";
}

/// A window with a document of so many features. The last one is kept, since making it takes longest.
class LargeWindow
{
public:
    explicit LargeWindow(int features) : features(features)
    {
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
        const QString path = folder.filePath(QStringLiteral("city.gml"));
        writeDocument(path, features);
        window.show();
        bool isOpen = false;
        QObject::connect(&window.files(), &FileCommands::opened, &window, [&] { isOpen = true; });
        window.open(path);
        while (!isOpen) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }

    static LargeWindow& withFeatures(int features)
    {
        static std::unique_ptr<LargeWindow> made;
        static const bool isReleased = (qAddPostRoutine([] { made.reset(); }), true);
        Q_UNUSED(isReleased)
        if (made == nullptr || made->features != features) {
            made.reset();
            made = std::make_unique<LargeWindow>(features);
        }
        made->settle();
        return *made;
    }

    /// Has the window do what it has to do, and notes the longest time between two looks at its input.
    void settle()
    {
        do {
            const double start = elapsedSeconds();
            QCoreApplication::processEvents();
            longest = std::max(longest, elapsedSeconds() - start);
        } while (window.browser().isSearching());
        const double start = elapsedSeconds();
        QCoreApplication::processEvents();
        longest = std::max(longest, elapsedSeconds() - start);
    }

    /// \return milliseconds of the longest block
    double operate(const std::function<void()>& operation)
    {
        longest = 0;
        const double start = elapsedSeconds();
        operation();
        longest = elapsedSeconds() - start;
        settle();
        return longest * 1000;
    }

    void type(char letter)
    {
        QLineEdit* const line = window.findChild<QLineEdit*>(QStringLiteral("search"));
        QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QString(QLatin1Char(letter)));
        QCoreApplication::sendEvent(line, &press);
    }
    void clearSearch()
    {
        window.findChild<QLineEdit*>(QStringLiteral("search"))->clear();
        settle();
    }
    void trigger(const char* name) { window.findChild<QAction*>(QLatin1String(name))->trigger(); }
    QTreeView* tree() { return window.browser().tree(); }

    const int features;
    MainWindow window;

private:
    QTemporaryDir folder;
    double longest = 0;
};

void measure(benchmark::State& state, const std::function<void(LargeWindow&)>& prepare,
             const std::function<double(LargeWindow&)>& operation)
{
    Measure measure(state);
    LargeWindow& window = LargeWindow::withFeatures(static_cast<int>(state.range(0)));
    double block = 0;
    while (state.KeepRunning()) {
        prepare(window);
        window.settle();
        measure.iteration([&] { block = std::max(block, operation(window)); });
    }
    state.counters["block_ms"] = block;
    state.counters["features"] = window.window.document().model().rowCount();
}

void expanded(LargeWindow& window)
{
    window.window.browser().expandAll();
}

/// A further window, without a document.
void windowOpen(benchmark::State& state)
{
    measure(
        state, [](LargeWindow&) {},
        [](LargeWindow& window) {
            std::unique_ptr<MainWindow> further;
            return window.operate([&] {
                further = std::make_unique<MainWindow>();
                further->show();
            });
        });
}

void windowExpandAll(benchmark::State& state)
{
    measure(
        state, [](LargeWindow& window) { window.window.browser().collapseAll(); },
        [](LargeWindow& window) { return window.operate([&] { window.window.browser().expandAll(); }); });
}

/// One letter after the other; each waits for the end of the search.
void windowTypeInSearch(benchmark::State& state)
{
    measure(state, expanded, [](LargeWindow& window) {
        double block = 0;
        for (const char letter : {'b', '1', '2'}) {
            block = std::max(block, window.operate([&] { window.type(letter); }));
        }
        window.clearSearch();
        return block;
    });
}

/// An attribute is compared in every feature, and the tree shows the hits alone.
void windowFilter(benchmark::State& state)
{
    measure(state, expanded, [](LargeWindow& window) {
        double block = 0;
        auto* const onlyHits = window.window.findChild<QAbstractButton*>(QStringLiteral("onlyHits"));
        block = std::max(block, window.operate([&] { onlyHits->click(); }));
        for (const char letter : {'h', 'e', 'i', 'g', 'h', 't', '>', '3'}) {
            window.type(letter);
        }
        block = std::max(block, window.operate([] {}));
        block = std::max(block, window.operate([&] { onlyHits->click(); }));
        window.clearSearch();
        return block;
    });
}

void windowScroll(benchmark::State& state)
{
    measure(state, expanded, [](LargeWindow& window) {
        QScrollBar* const bar = window.tree()->verticalScrollBar();
        double block = 0;
        for (int i = 1; i <= 50; ++i) {
            block = std::max(block, window.operate([&] { bar->setValue(bar->maximum() / 50 * i); }));
        }
        return block;
    });
}

void windowSelectOne(benchmark::State& state)
{
    measure(state, expanded, [](LargeWindow& window) {
        return window.operate([&] { window.window.document().goTo(window.features / 2); });
    });
}

void windowSelectAll(benchmark::State& state)
{
    measure(state, expanded,
            [](LargeWindow& window) { return window.operate([&] { window.tree()->selectAll(); }); });
}

/// In place of everything.
void windowSelectOther(benchmark::State& state)
{
    measure(
        state, [](LargeWindow& window) { window.tree()->selectAll(); },
        [](LargeWindow& window) { return window.operate([&] { window.window.document().goTo(5); }); });
}

void windowHideAll(benchmark::State& state)
{
    measure(
        state,
        [](LargeWindow& window) {
            expanded(window);
            window.trigger("showAll");
        },
        [](LargeWindow& window) { return window.operate([&] { window.trigger("hideAll"); }); });
}

void windowShowAll(benchmark::State& state)
{
    measure(
        state,
        [](LargeWindow& window) {
            expanded(window);
            window.trigger("hideAll");
        },
        [](LargeWindow& window) { return window.operate([&] { window.trigger("showAll"); }); });
}

/// The list, which is sorted beside the window.
void windowSortList(benchmark::State& state)
{
    measure(
        state,
        [](LargeWindow& window) { window.window.browser().list()->sortByColumn(-1, Qt::AscendingOrder); },
        [](LargeWindow& window) {
            return window.operate(
                [&] { window.window.browser().list()->sortByColumn(0, Qt::AscendingOrder); });
        });
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

} // namespace

BENCHMARK(windowOpen)->Apply(large);
BENCHMARK(windowExpandAll)->Apply(large);
BENCHMARK(windowTypeInSearch)->Apply(large);
BENCHMARK(windowFilter)->Apply(large);
BENCHMARK(windowScroll)->Apply(large);
BENCHMARK(windowSelectOne)->Apply(large);
BENCHMARK(windowSelectAll)->Apply(large);
BENCHMARK(windowSelectOther)->Apply(large);
BENCHMARK(windowHideAll)->Apply(large);
BENCHMARK(windowShowAll)->Apply(large);
BENCHMARK(windowSortList)->Apply(large);
BENCHMARK(windowTypeInSearch)->Name("windowTypeInSearchOfAMillion")->Apply(veryLarge);
BENCHMARK(windowFilter)->Name("windowFilterOfAMillion")->Apply(veryLarge);
