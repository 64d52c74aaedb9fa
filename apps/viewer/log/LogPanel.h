#pragma once

#include <QWidget>

class QComboBox;
class QSortFilterProxyModel;
class QTreeView;

namespace tolvik::viewer {

class LogModel;

/// The log, which can be restricted to its worse entries and copied.
class LogPanel : public QWidget
{
    Q_OBJECT

public:
    /// \param log lives longer
    explicit LogPanel(LogModel& log, QWidget* parent = nullptr);
    ~LogPanel() override;

public slots:
    /// Copies the selected entries as lines, or all that are shown if none is selected.
    void copy();

private:
    LogModel& log;
    QSortFilterProxyModel* shown;
    QTreeView* view;
    QComboBox* levels;
};

} // namespace tolvik::viewer
