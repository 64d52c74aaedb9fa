#pragma once

#include <QElapsedTimer>
#include <QObject>

namespace tolvik::viewer {

class EditRunner;
class StatusProgress;

/// Shows in the status bar how far an edit of many features is, with a button that takes it back, where it
/// takes longer than a moment.
class EditProgress : public QObject
{
    Q_OBJECT

public:
    /// \param progress owns it
    EditProgress(EditRunner& runner, StatusProgress& progress);

private:
    void show(int done, int count);
    void hide();

    EditRunner& runner;
    StatusProgress& progress;
    QString title;
    QElapsedTimer sinceBegin;
    int shown = 0; // names the edit in the progress; 0 while it is not shown
};

} // namespace tolvik::viewer
