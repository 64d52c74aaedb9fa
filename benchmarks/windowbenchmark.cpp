// How long the window of the desktop program stands still, with a hundred thousand features and everything
// expanded: `block_ms` is the longest time that it does not look at the user's input, the time itself that
// until all is done. Searching and filtering are measured with a million features, too.

#include "apps/viewer/document/Document.h"
#include "apps/viewer/features/FeatureBrowser.h"
#include "LargeWindow.h"

#include <algorithm>
#include <memory>
#include <QAbstractButton>
#include <QScrollBar>
#include <QTreeView>

using namespace tolvik;
using namespace tolvik::viewer;

namespace {

void expanded(LargeWindow& window)
{
    window.window.browser().expandAll();
}

/// A further window, without a document.
void windowOpen(benchmark::State& state)
{
    measureWindow(
        state, [](LargeWindow&) {},
        [](LargeWindow& window) {
            std::unique_ptr<MainWindow> further;
            return window.operate([&] {
                further = std::make_unique<MainWindow>();
                further->show();
            });
        });
}

/// The document in place of itself. It is read beside the window, which then takes it over.
void windowReload(benchmark::State& state)
{
    measureWindow(state, expanded, [](LargeWindow& window) {
        return window.operate([&] { window.window.open(window.path()); });
    });
}

void windowExpandAll(benchmark::State& state)
{
    measureWindow(
        state, [](LargeWindow& window) { window.window.browser().collapseAll(); },
        [](LargeWindow& window) { return window.operate([&] { window.window.browser().expandAll(); }); });
}

/// One letter after the other; each waits for the end of the search.
void windowTypeInSearch(benchmark::State& state)
{
    measureWindow(state, expanded, [](LargeWindow& window) {
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
    measureWindow(state, expanded, [](LargeWindow& window) {
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
    measureWindow(state, expanded, [](LargeWindow& window) {
        QScrollBar* const bar = window.tree()->verticalScrollBar();
        double block = 0;
        for (int i = 1; i <= 20; ++i) {
            block = std::max(block, window.operate([&] { bar->setValue(bar->maximum() / 20 * i); }));
        }
        return block;
    });
}

void windowSelectOne(benchmark::State& state)
{
    measureWindow(state, expanded, [](LargeWindow& window) {
        return window.operate([&] { window.window.document().goTo(window.content.features / 2); });
    });
}

void windowSelectAll(benchmark::State& state)
{
    measureWindow(state, expanded,
                  [](LargeWindow& window) { return window.operate([&] { window.tree()->selectAll(); }); });
}

/// In place of everything.
void windowSelectOther(benchmark::State& state)
{
    measureWindow(
        state, [](LargeWindow& window) { window.tree()->selectAll(); },
        [](LargeWindow& window) { return window.operate([&] { window.window.document().goTo(5); }); });
}

void windowHideAll(benchmark::State& state)
{
    measureWindow(
        state,
        [](LargeWindow& window) {
            expanded(window);
            window.trigger("showAll");
        },
        [](LargeWindow& window) { return window.operate([&] { window.trigger("hideAll"); }); });
}

/// The selection is kept meanwhile.
void windowHideAllSelected(benchmark::State& state)
{
    measureWindow(
        state,
        [](LargeWindow& window) {
            expanded(window);
            window.trigger("showAll");
            window.tree()->selectAll();
        },
        [](LargeWindow& window) {
            const double block = window.operate([&] { window.trigger("hideAll"); });
            window.window.document().selection().clearSelection();
            return block;
        });
}

void windowShowAll(benchmark::State& state)
{
    measureWindow(
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
    measureWindow(
        state,
        [](LargeWindow& window) { window.window.browser().list()->sortByColumn(-1, Qt::AscendingOrder); },
        [](LargeWindow& window) {
            return window.operate(
                [&] { window.window.browser().list()->sortByColumn(0, Qt::AscendingOrder); });
        });
}

} // namespace

BENCHMARK(windowOpen)->Apply(large);
BENCHMARK(windowReload)->Apply(large);
BENCHMARK(windowExpandAll)->Apply(large);
BENCHMARK(windowTypeInSearch)->Apply(large);
BENCHMARK(windowFilter)->Apply(large);
BENCHMARK(windowScroll)->Apply(large);
BENCHMARK(windowSelectOne)->Apply(large);
BENCHMARK(windowSelectAll)->Apply(large);
BENCHMARK(windowSelectOther)->Apply(large);
BENCHMARK(windowHideAll)->Apply(large);
BENCHMARK(windowHideAllSelected)->Apply(large);
BENCHMARK(windowShowAll)->Apply(large);
BENCHMARK(windowSortList)->Apply(large);
BENCHMARK(windowTypeInSearch)->Name("windowTypeInSearchOfAMillion")->Apply(veryLarge);
BENCHMARK(windowFilter)->Name("windowFilterOfAMillion")->Apply(veryLarge);
