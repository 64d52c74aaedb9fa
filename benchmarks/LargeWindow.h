#pragma once

#include "apps/viewer/window/MainWindow.h"

#include <benchmark/benchmark.h>
#include <functional>
#include <QString>
#include <QTemporaryDir>

class QTreeView;

namespace tolvik {

/// The window of the desktop program with a document of many buildings, in a folder of its own that also
/// takes the settings of the program.
class LargeWindow
{
public:
    /// What is in the document.
    struct Content
    {
        int features = 0; ///< at least so many
        int walls = 9;    ///< of each building
    };

    explicit LargeWindow(const Content& content);

    /// The last window is kept, since making it takes longest.
    static LargeWindow& with(const Content& content);

    /// Has the window do what it has to do, and notes the longest time between two looks at its input.
    void settle();

    /// Does something, and all that follows from it.
    /// \return milliseconds of the longest block
    double operate(const std::function<void()>& operation);

    /// Seconds of all that was done since the last call.
    double takeSeconds();
    /// What the window's thread has computed in the longest block since then, in seconds. On a busy machine
    /// it says more than the block itself.
    double computingSeconds() const { return longestComputing; }

    /// Types a letter into the search field.
    void type(char letter);
    void clearSearch();
    void trigger(const char* name);
    QTreeView* tree();
    /// The file of the document.
    QString path() const { return folder.filePath(QStringLiteral("city.gml")); }

    const Content content;
    viewer::MainWindow window;

private:
    void watch(const std::function<void()>& work);

    QTemporaryDir folder;
    double longest = 0;
    double longestComputing = 0;
    double total = 0;
};

/// Times an operation in a window with `state.range(0)` features: the time is that until all is done, the
/// counter `block_ms` the longest time that the window does not look at the user's input, and `block_cpu_ms`
/// how long its thread has computed in such a block.
///
/// \param prepare what comes before the operation and does not count
/// \param operation returns what LargeWindow::operate() does
/// \param walls of each building
void measureWindow(benchmark::State& state, const std::function<void(LargeWindow&)>& prepare,
                   const std::function<double(LargeWindow&)>& operation, int walls = 9);

/// Settings of a benchmark with a hundred thousand features, and with a million.
/// @{
void large(benchmark::internal::Benchmark* benchmark);
void veryLarge(benchmark::internal::Benchmark* benchmark);
/// @}

} // namespace tolvik
