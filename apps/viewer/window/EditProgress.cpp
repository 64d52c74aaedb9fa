#include "apps/viewer/window/EditProgress.h"

#include "apps/viewer/document/EditRunner.h"
#include "apps/viewer/window/StatusProgress.h"

namespace tolvik::viewer {

namespace {

// What comes and goes faster would only flicker.
constexpr int momentMilliseconds = 300;

} // namespace

EditProgress::EditProgress(EditRunner& runner, StatusProgress& progress)
    : QObject(&progress), runner(runner), progress(progress)
{
    connect(&runner, &EditRunner::begun, this, [this](const QString& what) {
        hide();
        title = what;
        sinceBegin.start();
    });
    connect(&runner, &EditRunner::progressed, this, &EditProgress::show);
    connect(&runner, &EditRunner::ended, this, &EditProgress::hide);
}

void EditProgress::show(int done, int count)
{
    if (shown == 0 && sinceBegin.elapsed() > momentMilliseconds && done < count) {
        shown = progress.beginBeside(title, [this] { runner.cancel(); });
    }
    if (shown != 0) {
        progress.showBeside(shown, done, count);
    }
}

void EditProgress::hide()
{
    if (shown != 0) {
        progress.endBeside(shown);
        shown = 0;
    }
}

} // namespace tolvik::viewer
