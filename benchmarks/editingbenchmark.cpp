// How long the window stands still where attributes are edited, with a hundred thousand features: for the
// counters see measureWindow().

#include "apps/viewer/document/Document.h"
#include "apps/viewer/features/FeatureBrowser.h"
#include "apps/viewer/table/AttributeTable.h"
#include "LargeWindow.h"

#include <algorithm>
#include <memory>
#include <QCoreApplication>
#include <QDockWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QTableView>
#include <QToolButton>
#include <QTreeView>

using namespace tolvik;
using namespace tolvik::viewer;

namespace {

void selectNone(LargeWindow& window)
{
    window.window.document().selection().clearSelection();
}

void selectAll(LargeWindow& window)
{
    selectNone(window);
    window.window.browser().expandAll();
    window.tree()->selectAll();
}

/// The value of an attribute in the panel of properties.
QModelIndex propertyOf(LargeWindow& window, const QString& name)
{
    auto* const view = window.window.findChild<QTreeView*>(QStringLiteral("propertyTree"));
    window.window.findChild<QToolButton*>(QStringLiteral("showAbsent"))->setChecked(true);
    const QModelIndexList found = view->model()->match(view->model()->index(0, 0), Qt::DisplayRole, name, 1,
                                                       Qt::MatchFlags(Qt::MatchExactly) | Qt::MatchRecursive);
    return found.isEmpty() ? QModelIndex() : found.first().siblingAtColumn(1);
}

void typeInto(QAbstractItemView& view, const QModelIndex& cell, const QString& text)
{
    view.setCurrentIndex(cell);
    view.edit(cell);
    QWidget* const editor = view.indexWidget(cell);
    QKeyEvent all(QEvent::KeyPress, Qt::Key_A, Qt::ControlModifier);
    QCoreApplication::sendEvent(editor, &all);
    QKeyEvent letters(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, text);
    QCoreApplication::sendEvent(editor, &letters);
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(editor, &enter);
}

void editAll(LargeWindow& window)
{
    auto* const view = window.window.findChild<QTreeView*>(QStringLiteral("propertyTree"));
    static int count = 0;
    typeInto(*view, propertyOf(window, QStringLiteral("Description")),
             QStringLiteral("Text %1").arg(++count));
}

/// The panel of properties reads all features that are selected.
void windowPropertiesOfAll(benchmark::State& state)
{
    measureWindow(
        state,
        [](LargeWindow& window) {
            selectNone(window);
            window.window.browser().expandAll();
        },
        [](LargeWindow& window) { return window.operate([&] { window.tree()->selectAll(); }); });
}

void windowEditAll(benchmark::State& state)
{
    measureWindow(state, selectAll,
                  [](LargeWindow& window) { return window.operate([&] { editAll(window); }); });
}

void windowUndoEditOfAll(benchmark::State& state)
{
    measureWindow(
        state,
        [](LargeWindow& window) {
            selectAll(window);
            window.settle();
            editAll(window);
        },
        [](LargeWindow& window) { return window.operate([&] { window.trigger("undo"); }); });
}

void windowRedoEditOfAll(benchmark::State& state)
{
    measureWindow(
        state,
        [](LargeWindow& window) {
            selectAll(window);
            window.settle();
            editAll(window);
            window.settle();
            window.trigger("undo");
        },
        [](LargeWindow& window) { return window.operate([&] { window.trigger("redo"); }); });
}

/// As a recovery does, from what the journal has of the edit.
void windowReplayEditOfAll(benchmark::State& state)
{
    QString kind;
    QJsonObject record;
    measureWindow(
        state,
        [&](LargeWindow& window) {
            selectAll(window);
            window.settle();
            editAll(window);
            window.settle();
            const QUndoStack& history = window.window.document().undoStack();
            const auto* const edit = dynamic_cast<const RecordedEdit*>(history.command(history.index() - 1));
            kind = edit->kind();
            record = edit->record();
            window.trigger("undo");
            window.settle();
            selectNone(window);
        },
        [&](LargeWindow& window) {
            Document& document = window.window.document();
            return window.operate([&] {
                document.editRunner().replay(
                    1,
                    [&](int) {
                        return ReplayStep{RecordedEdit::make(kind, document, record), std::nullopt};
                    },
                    [](const QString&) {});
            });
        });
}

// A window of its own, since what is removed stays away, or comes back behind all other rows.
constexpr int wallsOfRemoved = 8;

/// Every building of a distance, with its walls.
void selectEach(LargeWindow& window, int distance)
{
    Document& document = window.window.document();
    QItemSelection rows;
    for (int row = 1; row < document.model().rowCount(); row += distance * (1 + wallsOfRemoved)) {
        const QModelIndex index = document.model().index(row, 0);
        rows.append(QItemSelectionRange(index, index.siblingAtColumn(1)));
    }
    document.selection().replace(rows);
}

/// A thousandth of the rows come back.
void windowUndoRemoval(benchmark::State& state)
{
    measureWindow(
        state,
        [](LargeWindow& window) {
            selectEach(window, 1000);
            window.trigger("removeFeature");
        },
        [](LargeWindow& window) { return window.operate([&] { window.trigger("undo"); }); }, wallsOfRemoved);
}

/// A tenth of the rows.
void windowRemoveTenth(benchmark::State& state)
{
    measureWindow(
        state, [](LargeWindow& window) { selectEach(window, 10); },
        [](LargeWindow& window) { return window.operate([&] { window.trigger("removeFeature"); }); },
        wallsOfRemoved);
}

QTableView& table(LargeWindow& window)
{
    return *window.window.findChild<QTableView*>(QStringLiteral("attributeTable"));
}

/// The table in front, with all buildings in the order of the document.
void showTable(LargeWindow& window)
{
    selectNone(window);
    window.window.findChild<QDockWidget*>(QStringLiteral("tableDock"))->raise();
    window.settle();
    window.window.findChild<AttributeTable*>()->showType(QStringLiteral("Building"));
    window.window.findChild<QLineEdit*>(QStringLiteral("tableFilter"))->clear();
    table(window).clearSelection();
    table(window).sortByColumn(-1, Qt::AscendingOrder);
}

void measureTable(benchmark::State& state, const std::function<void(LargeWindow&)>& prepare,
                  const std::function<void(LargeWindow&)>& operation)
{
    measureWindow(
        state,
        [&](LargeWindow& window) {
            showTable(window);
            window.settle();
            prepare(window);
        },
        [&](LargeWindow& window) { return window.operate([&] { operation(window); }); }, 0);
}

/// The table of another type gives way to that of all buildings.
void windowTableOpen(benchmark::State& state)
{
    measureTable(
        state,
        [](LargeWindow& window) {
            window.window.findChild<AttributeTable*>()->showType(QStringLiteral("CityModel"));
        },
        [](LargeWindow& window) {
            window.window.findChild<AttributeTable*>()->showType(QStringLiteral("Building"));
        });
}

/// By a text: the name.
void windowTableSort(benchmark::State& state)
{
    measureTable(
        state, [](LargeWindow&) {},
        [](LargeWindow& window) { table(window).sortByColumn(1, Qt::AscendingOrder); });
}

/// With all cells selected, which stay so.
void windowTableSortSelected(benchmark::State& state)
{
    measureTable(
        state, [](LargeWindow& window) { table(window).selectAll(); },
        [](LargeWindow& window) { table(window).sortByColumn(1, Qt::AscendingOrder); });
}

void windowTableFilter(benchmark::State& state)
{
    measureTable(
        state, [](LargeWindow&) {},
        [](LargeWindow& window) {
            window.window.findChild<QLineEdit*>(QStringLiteral("tableFilter"))->setText(QStringLiteral("7"));
        });
}

/// The figures of all cells.
void windowTableSelectAll(benchmark::State& state)
{
    measureTable(
        state, [](LargeWindow&) {}, [](LargeWindow& window) { table(window).selectAll(); });
}

void windowTableScroll(benchmark::State& state)
{
    measureWindow(
        state, showTable,
        [](LargeWindow& window) {
            QScrollBar* const bar = table(window).verticalScrollBar();
            double block = 0;
            for (int i = 1; i <= 20; ++i) {
                block = std::max(block, window.operate([&] { bar->setValue(bar->maximum() / 20 * i); }));
            }
            return block;
        },
        0);
}

/// Of all features, while the table shows them all selected.
void windowEditAllBesideTable(benchmark::State& state)
{
    measureTable(
        state,
        [](LargeWindow& window) {
            table(window).selectAll();
            selectAll(window);
        },
        [](LargeWindow& window) { editAll(window); });
}

} // namespace

BENCHMARK(windowPropertiesOfAll)->Apply(large);
BENCHMARK(windowEditAll)->Apply(large);
BENCHMARK(windowUndoEditOfAll)->Apply(large);
BENCHMARK(windowRedoEditOfAll)->Apply(large);
BENCHMARK(windowReplayEditOfAll)->Apply(large);
BENCHMARK(windowTableOpen)->Apply(large);
BENCHMARK(windowTableSort)->Apply(large);
BENCHMARK(windowTableSortSelected)->Apply(large);
BENCHMARK(windowTableFilter)->Apply(large);
BENCHMARK(windowTableSelectAll)->Apply(large);
BENCHMARK(windowTableScroll)->Apply(large);
BENCHMARK(windowEditAllBesideTable)->Apply(large);
BENCHMARK(windowUndoRemoval)->Apply(large)->Iterations(1);
BENCHMARK(windowRemoveTenth)->Apply(large)->Iterations(1);
