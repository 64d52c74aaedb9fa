#pragma once

#include "framework/OperationListener.h"

#include <functional>
#include <QVector>
#include <QWidget>

class QLabel;
class QProgressBar;
class QToolButton;

namespace tolvik::viewer {

/// Shows in the status bar how far work beside the window is, such as a reading, and how far the operations
/// of the models are that block the window.
class StatusProgress : public QWidget, public OperationListener
{
    Q_OBJECT

public:
    explicit StatusProgress(QWidget* parent = nullptr);
    ~StatusProgress() override;

    /// Shows work that goes on beside the window; of several the last one.
    /// \param cancel what the button to cancel does; without it there is no button
    /// \return names the work in the other calls
    int beginBeside(const QString& title, std::function<void()> cancel = {});
    /// \param total 0 where it is not known
    void showBeside(int work, qint64 done, qint64 total);
    /// \param work may have ended already
    void endBeside(int work);

    void begin(const QString& title, long long totalSteps, bool blocking, int level) override;
    void progress(long long doneSteps, int level) override;
    void end(int level) override;

private:
    struct Beside
    {
        int number;
        QString title;
        std::function<void()> cancel;
        qint64 done = 0;
        qint64 total = 0;
    };

    void showNow(const QString& title, qint64 done, qint64 total);
    void showLast();
    void cancelLast();

    struct Operation
    {
        QString title;
        long long totalSteps;
    };
    QVector<Operation> operations;
    QVector<Beside> besides;
    int lastNumber = 0;
    QLabel* label;
    QProgressBar* bar;
    QToolButton* cancelButton;
};

/// While it lives, the operations of the models show in a status bar. One window at a time has operations.
class ShownOperations
{
public:
    explicit ShownOperations(StatusProgress& progress);
    ShownOperations(const ShownOperations&) = delete;
    ShownOperations& operator=(const ShownOperations&) = delete;
    ~ShownOperations();

private:
    OperationListener* former;
};

} // namespace tolvik::viewer
