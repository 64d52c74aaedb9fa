#pragma once

#include <chrono>
#include <functional>
#include <QObject>
#include <QTimer>

namespace tolvik::viewer {

/// Work over many rows on the thread of the user interface, in slices so short that nobody sees the window
/// stand still.
/// \code
/// work.start(model.rowCount(), [&](int row) { look at the row }, [&] { show what was found });
/// \endcode
class SlicedWork : public QObject
{
    Q_OBJECT

public:
    using Step = std::function<void(int)>;
    using End = std::function<void()>;

    explicit SlicedWork(QObject* parent = nullptr);
    ~SlicedWork() override;

    /// Begins anew; what is under way is given up.
    /// \param steps number of steps
    /// \param step  does the step of a number, from 0 on. It may stop the work, but not start another one.
    /// \param end   called once when all steps are done. It may start the next work.
    void start(int steps, Step step, End end);
    void stop();
    /// Goes on with the next step where stop() was called.
    void goOn() { timer.start(); }
    bool isRunning() const { return timer.isActive(); }

    /// How long others wait at most, as far as the steps are short: a shorter slice leaves them more time.
    void setSliceLength(std::chrono::milliseconds length) { sliceLength = length; }

signals:
    /// A slice is done.
    void progressed(int done, int steps);

private:
    void runSlice();

    QTimer timer;
    Step step;
    End end;
    int done = 0;
    int steps = 0;
    // A quarter of what a user feels as a hitch, so that painting has its share.
    std::chrono::milliseconds sliceLength{12};
};

} // namespace tolvik::viewer
