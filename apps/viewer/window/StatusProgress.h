#pragma once

#include "framework/OperationListener.h"

#include <QVector>
#include <QWidget>

class QLabel;
class QProgressBar;
class QToolButton;

namespace tolvik::viewer {

/// Shows in the status bar how far a reading is, and how far the operations of the models are that block the
/// window.
class StatusProgress : public QWidget, public OperationListener
{
    Q_OBJECT

public:
    explicit StatusProgress(QWidget* parent = nullptr);
    ~StatusProgress() override;

    /// Shows work that goes on beside the window.
    /// \param isCancellable whether the button to cancel it is there
    void beginBeside(const QString& title, bool isCancellable);
    /// \param total 0 where it is not known
    void showBeside(qint64 done, qint64 total);
    void endBeside();

    void begin(const QString& title, long long totalSteps, bool blocking, int level) override;
    void progress(long long doneSteps, int level) override;
    void end(int level) override;

signals:
    void cancelRequested();

private:
    void showNow(const QString& title, qint64 done, qint64 total);

    struct Operation
    {
        QString title;
        long long totalSteps;
    };
    QVector<Operation> operations;
    QString besideTitle;
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
