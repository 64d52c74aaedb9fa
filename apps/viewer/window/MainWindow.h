#pragma once

#include <memory>
#include <QMainWindow>

class QMenu;
class QToolBar;
class QVBoxLayout;

namespace tolvik::viewer {

class Document;
class FeatureActions;
class FeatureBrowser;
class FileCommands;
class FindingsPanel;
class Journal;
class LogModel;
class NoticeBar;
class Recovery;
class ReferrerSearch;
class StatusProgress;
class TableCommands;
class ViewPanel;

/// One window with one document: the city in its middle, the features at its left, their properties at its
/// right, the log and the findings below.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    Document& document() { return *shown; }
    FeatureBrowser& browser() { return *features; }
    FileCommands& files() { return *fileCommands; }
    ViewPanel& view() { return *city; }

    /// Reads a document beside the window, and shows it when it is there.
    void open(const QString& path);

    /// Asks whether edits that were lost with the program shall be done again.
    void offer(const std::shared_ptr<Recovery>& recovery);

    /// A further window, without a document; it deletes itself when it is closed.
    static MainWindow* openNew();

public slots:
    /// Shows the feature that has an identifier, or says that there is none.
    void goToIdentifier(const QString& identifier);

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    QWidget* makeMiddle();
    QWidget* makeView();
    void makePanels();
    QDockWidget* addEditingPanels();
    void follow(const QUrl& link);
    void removeFeatures(const QVector<int>& rows);
    QDockWidget* addPanel(const QString& title, const QString& name, QWidget* content,
                          Qt::DockWidgetArea area);
    void makeMenus();
    QMenu* makeFileMenu();
    QMenu* makeEditMenu();
    QMenu* makeViewMenu();
    QMenu* makeColoursMenu();
    QMenu* makeHelpMenu();
    void makeToolBar();
    void recover(const std::shared_ptr<Recovery>& recovery);
    void showReferences(int row);
    void showReferrers(int row, const QVector<int>& referring);
    QString describe(int row) const;
    void fillRecentFiles(QMenu& menu);
    void connectDocument();
    void tell(int level, const QString& text);
    void holdEdits(bool hold);
    void enableFileActions(bool enable);
    void holdCommands(bool hold);
    void updateTitle();
    void countFindings();
    void raiseFindings();
    void showAbout();
    void showSettings();
    void restoreLayout();

    Document* shown;
    LogModel* log;
    NoticeBar* notice = nullptr;
    StatusProgress* progress;
    FeatureBrowser* features;
    FeatureActions* actionsOfFeatures;
    Journal* journal;
    ReferrerSearch* referrers;
    FindingsPanel* findings = nullptr;
    QDockWidget* findingsDock = nullptr;
    ViewPanel* city = nullptr;
    TableCommands* tableCommands = nullptr;
    std::unique_ptr<FileCommands> fileCommands;
    QVector<QDockWidget*> panels;
    QAction* saveAction = nullptr;
    QAction* saveAsAction = nullptr;
    QAction* reloadAction = nullptr;
    QAction* exportAction = nullptr;
    QAction* importAction = nullptr;
};

} // namespace tolvik::viewer
