#include "apps/viewer/features/SlicedWork.h"

#include <QElapsedTimer>
#include <utility>

namespace tolvik::viewer {

SlicedWork::SlicedWork(QObject* parent) : QObject(parent)
{
    timer.setInterval(0);
    connect(&timer, &QTimer::timeout, this, &SlicedWork::runSlice);
}

SlicedWork::~SlicedWork() = default;

void SlicedWork::start(int count, Step eachStep, End atEnd)
{
    step = std::move(eachStep);
    end = std::move(atEnd);
    steps = count;
    done = 0;
    timer.start();
}

void SlicedWork::stop()
{
    timer.stop();
}

void SlicedWork::runSlice()
{
    QElapsedTimer clock;
    clock.start();
    // A step may stop the work.
    while (done < steps && timer.isActive()) {
        step(done++);
        if (clock.elapsed() >= sliceLength.count()) {
            break;
        }
    }
    emit progressed(done, steps);
    if (done == steps && timer.isActive()) {
        timer.stop();
        // What it holds may be large.
        step = nullptr;
        // It may start the next work, which replaces what is called here.
        const End last = std::move(end);
        last();
    }
}

} // namespace tolvik::viewer
