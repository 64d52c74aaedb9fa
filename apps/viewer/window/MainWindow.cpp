#include "apps/viewer/window/MainWindow.h"

#include "apps/viewer/application/Colours.h"
#include "apps/viewer/document/Document.h"
#include "apps/viewer/edits/EditGroup.h"
#include "apps/viewer/edits/FeatureRemoval.h"
#include "apps/viewer/edits/PropertyEdit.h"
#include "apps/viewer/exchange/TableCommands.h"
#include "apps/viewer/features/FeatureActions.h"
#include "apps/viewer/features/FeatureBrowser.h"
#include "apps/viewer/features/FeatureReferences.h"
#include "apps/viewer/features/FeatureRows.h"
#include "apps/viewer/features/FeatureTexts.h"
#include "apps/viewer/files/FileCommands.h"
#include "apps/viewer/files/RecentFiles.h"
#include "apps/viewer/findings/FindingsPanel.h"
#include "apps/viewer/log/LogAppender.h"
#include "apps/viewer/log/LogModel.h"
#include "apps/viewer/log/LogPanel.h"
#include "apps/viewer/properties/PropertyPanel.h"
#include "apps/viewer/recovery/Journal.h"
#include "apps/viewer/recovery/Recovery.h"
#include "apps/viewer/selection/SelectionLink.h"
#include "apps/viewer/table/AttributeTable.h"
#include "apps/viewer/view/ViewPanel.h"
#include "apps/viewer/window/EditProgress.h"
#include "apps/viewer/window/NoticeBar.h"
#include "apps/viewer/window/StatusProgress.h"
#include "framework/EditRangeDialog.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QSettings>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <QTreeView>
#include <QVBoxLayout>

namespace tolvik::viewer {

namespace {

constexpr int messageMilliseconds = 5000;

} // namespace

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent), shown(new Document(this)), log(new LogModel(this)), progress(new StatusProgress),
      features(new FeatureBrowser(*shown)), actionsOfFeatures(new FeatureActions(*shown, this)),
      journal(new Journal(*shown, this)), referrers(new ReferrerSearch(*shown, this))
{
    // The progress owns it.
    new EditProgress(shown->editRunner(), *progress);
    setAcceptDrops(true);
    setCentralWidget(makeMiddle());
    makePanels();
    statusBar()->addPermanentWidget(progress);
    fileCommands.reset(new FileCommands({*shown, *this, *features->tree(), *notice, *progress}));
    makeMenus();
    makeToolBar();
    connectDocument();
    resize(1440, 900);
    restoreLayout();
    updateTitle();
}

MainWindow::~MainWindow()
{
    // What loses the keyboard tells those who are still there.
    hide();
    // They show the document, which is a child of this like them, and an older one.
    fileCommands.reset();
    qDeleteAll(panels);
    delete takeCentralWidget();
}

void MainWindow::open(const QString& path)
{
    fileCommands->open(path);
}

MainWindow* MainWindow::openNew()
{
    auto* const window = new MainWindow;
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->show();
    return window;
}

void MainWindow::goToIdentifier(const QString& identifier)
{
    const int row = rowOfIdentifier(*shown, identifier);
    if (row >= 0) {
        features->goTo(row);
    } else {
        statusBar()->showMessage(tr("No feature has the identifier %1.").arg(identifier),
                                 messageMilliseconds);
    }
}

void MainWindow::offer(const std::shared_ptr<Recovery>& recovery)
{
    const QString name = QFileInfo(recovery->file()).fileName();
    notice->tell(
        tr("The program has ended with %Ln unsaved change(s) of %1.", nullptr, recovery->size()).arg(name));
    notice->offer(QStringLiteral("recover"), tr("&Recover"), [this, recovery] { recover(recovery); });
    notice->offer(QStringLiteral("discardRecovery"), tr("&Discard"), [recovery] { recovery->discard(); });
}

void MainWindow::recover(const std::shared_ptr<Recovery>& recovery)
{
    const QString name = QFileInfo(recovery->file()).fileName();
    const QString refusal = recovery->refusal();
    if (!refusal.isEmpty()) {
        notice->tell(tr("The changes of %1 cannot be recovered: %2.").arg(name, refusal));
        notice->offer(QStringLiteral("discardRecovery"), tr("&Discard"), [recovery] { recovery->discard(); });
        return;
    }
    // What is waited for may never come, or be another document.
    auto* const opening = new QObject(this);
    connect(fileCommands.get(), &FileCommands::opened, opening, [this, recovery, opening, name] {
        opening->deleteLater();
        if (QFileInfo(shown->fileName()) != QFileInfo(recovery->file())) {
            return;
        }
        recovery->applyTo(*shown, [this, recovery, name](const QString& reason) {
            if (reason.isEmpty()) {
                recovery->discard();
                log->add(LogModel::Information, tr("The changes of %1 are recovered.").arg(name));
            } else {
                notice->tell(tr("Not all changes of %1 could be recovered: %2.").arg(name, reason));
            }
        });
    });
    open(recovery->file());
}

void MainWindow::showReferences(int row)
{
    QMenu menu;
    const QVector<FeatureReference> references = referencesOf(*shown, row);
    for (const FeatureReference& each : references) {
        QAction* const action =
            menu.addAction(tr("%1: %2").arg(each.member, each.row >= 0 ? describe(each.row) : each.target));
        action->setEnabled(each.row >= 0);
        connect(action, &QAction::triggered, this, [this, target = each.row] { features->goTo(target); });
    }
    if (references.isEmpty()) {
        statusBar()->showMessage(tr("%1 refers to no other feature.").arg(describe(row)),
                                 messageMilliseconds);
    } else if (references.size() == 1 && references.first().row >= 0) {
        features->goTo(references.first().row);
    } else {
        menu.exec(QCursor::pos());
    }
}

/// Selects them, so that they can be gone through.
void MainWindow::showReferrers(int row, const QVector<int>& referring)
{
    if (referring.isEmpty()) {
        statusBar()->showMessage(tr("No feature refers to %1.").arg(describe(row)), messageMilliseconds);
        return;
    }
    features->goTo(referring.first());
    QItemSelection selection;
    for (const int each : referring) {
        selection.append(QItemSelectionRange(shown->model().index(each, 0), shown->model().index(each, 1)));
    }
    shown->selection().replace(selection);
    statusBar()->showMessage(tr("%Ln feature(s) refer to %1.", nullptr, referring.size()).arg(describe(row)),
                             messageMilliseconds);
}

QString MainWindow::describe(int row) const
{
    return descriptionOf(*shown->model().getFeature(row));
}

QWidget* MainWindow::makeMiddle()
{
    auto* const middle = new QWidget;
    auto* const layout = new QVBoxLayout(middle);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    notice = new NoticeBar;
    layout->addWidget(notice);
    layout->addWidget(makeView(), 1);
    return middle;
}

/// The city, with the keys and the menu of its features.
QWidget* MainWindow::makeView()
{
    city = new ViewPanel(*shown);
    city->setObjectName(QStringLiteral("view"));
    city->addActions(actionsOfFeatures->findChildren<QAction*>());
    connect(city, &ViewPanel::menuRequested, actionsOfFeatures, &FeatureActions::popUp);
    connect(city, &ViewPanel::told, this,
            [this](const QString& text) { statusBar()->showMessage(text, 5000); });
    connect(city, &ViewPanel::noticed, this,
            [this](const QString& text) { log->add(LogModel::Warning, text); });
    return city;
}

void MainWindow::makePanels()
{
    addPanel(tr("Features"), QStringLiteral("features"), features, Qt::LeftDockWidgetArea);
    for (QWidget* const view :
         {static_cast<QWidget*>(features->tree()->parentWidget()), static_cast<QWidget*>(features->list())}) {
        view->addActions(actionsOfFeatures->findChildren<QAction*>());
    }
    QDockWidget* const tableDock = addEditingPanels();
    findings = new FindingsPanel(*shown);
    QDockWidget* const logDock =
        addPanel(tr("Log"), QStringLiteral("logPanel"), new LogPanel(*log), Qt::BottomDockWidgetArea);
    findingsDock =
        addPanel(tr("Findings"), QStringLiteral("findingsPanel"), findings, Qt::BottomDockWidgetArea);
    tabifyDockWidget(tableDock, findingsDock);
    tabifyDockWidget(findingsDock, logDock);
    resizeDocks({panels.first(), findChild<QDockWidget*>(QStringLiteral("propertiesDock"))}, {360, 420},
                Qt::Horizontal);
    resizeDocks({logDock}, {150}, Qt::Vertical);
    connect(features, &FeatureBrowser::menuRequested, actionsOfFeatures, &FeatureActions::popUp);
    connect(findings, &FindingsPanel::featureRequested, this, &MainWindow::goToIdentifier);
}

/// The panels in which attributes are edited, and the edits that the features themselves get.
/// \return the panel of the table
QDockWidget* MainWindow::addEditingPanels()
{
    PropertyEdit::addMaker();
    FeatureRemoval::addMaker();
    EditGroup::addMaker();
    auto* const properties = new PropertyPanel(*shown);
    auto* const table = new AttributeTable(*shown);
    tableCommands = new TableCommands(*shown, *table, *this);
    addPanel(tr("Properties"), QStringLiteral("properties"), properties, Qt::RightDockWidgetArea);
    connect(properties, &PropertyPanel::linkActivated, this, &MainWindow::follow);
    connect(table, &AttributeTable::linkActivated, this, &MainWindow::follow);
    connect(actionsOfFeatures, &FeatureActions::removalRequested, this, &MainWindow::removeFeatures);
    return addPanel(tr("Table"), QStringLiteral("table"), table, Qt::BottomDockWidgetArea);
}

void MainWindow::follow(const QUrl& link)
{
    // A document may come from anywhere, and a click on a file could start a program.
    const bool isOfWeb = QStringList{"http", "https", "ftp", "mailto"}.contains(link.scheme());
    if (link.toString(QUrl::RemoveFragment).isEmpty()) {
        goToIdentifier(link.fragment());
    } else if (!isOfWeb || !QDesktopServices::openUrl(link)) {
        statusBar()->showMessage(tr("%1 is not opened.").arg(link.toString()), 5000);
    }
}

void MainWindow::removeFeatures(const QVector<int>& rows)
{
    if (fileCommands->isHeld()) {
        return;
    }
    FeatureRemoval::Features going;
    for (const int row : rows) {
        going.push_back(shown->model().getFeature(row));
    }
    if (going.size() > 1) {
        // Each row that goes would have the rest of the selection put together anew.
        shown->selection().clearSelection();
    }
    const QString refusal = shown->editRunner().perform(FeatureRemoval::prepare(*shown, going));
    if (!refusal.isEmpty()) {
        statusBar()->showMessage(refusal, 8000);
    }
}

QDockWidget* MainWindow::addPanel(const QString& title, const QString& name, QWidget* content,
                                  Qt::DockWidgetArea area)
{
    auto* const dock = new QDockWidget(title, this);
    dock->setObjectName(name + QStringLiteral("Dock"));
    dock->setWidget(content);
    addDockWidget(area, dock);
    panels.append(dock);
    return dock;
}

void MainWindow::makeMenus()
{
    menuBar()->addMenu(makeFileMenu());
    menuBar()->addMenu(makeEditMenu());
    auto* const featureMenu = new QMenu(tr("Featu&re"), this);
    actionsOfFeatures->addTo(*featureMenu);
    menuBar()->addMenu(featureMenu);
    menuBar()->addMenu(makeViewMenu());
    if (city->view() != nullptr) {
        city->addTo(*menuBar()->addMenu(tr("&City")));
    }
    menuBar()->addMenu(makeHelpMenu());
}

QMenu* MainWindow::makeFileMenu()
{
    auto* const menu = new QMenu(tr("&File"), this);
    FileCommands* const files = fileCommands.get();
    QAction* action = menu->addAction(tr("&New Window"), this, [] { openNew(); });
    action->setShortcut(QKeySequence::New);
    action = menu->addAction(style()->standardIcon(QStyle::SP_DialogOpenButton), tr("&Open..."), files,
                             &FileCommands::chooseAndOpen);
    action->setShortcut(QKeySequence::Open);
    action->setObjectName(QStringLiteral("open"));
    QMenu* const recent = menu->addMenu(tr("Open &Recent"));
    recent->setObjectName(QStringLiteral("recentFiles"));
    connect(recent, &QMenu::aboutToShow, this, [this, recent] { fillRecentFiles(*recent); });
    reloadAction = menu->addAction(style()->standardIcon(QStyle::SP_BrowserReload), tr("Re&load"), files,
                                   &FileCommands::reload);
    reloadAction->setShortcut(QKeySequence::Refresh);
    reloadAction->setObjectName(QStringLiteral("reload"));
    menu->addSeparator();
    saveAction = menu->addAction(style()->standardIcon(QStyle::SP_DialogSaveButton), tr("&Save"), files,
                                 &FileCommands::save);
    saveAction->setShortcut(QKeySequence::Save);
    saveAction->setObjectName(QStringLiteral("save"));
    saveAsAction = menu->addAction(tr("Save &As..."), files, &FileCommands::saveAs);
    saveAsAction->setShortcut(QKeySequence::SaveAs);
    saveAsAction->setObjectName(QStringLiteral("saveAs"));
    menu->addSeparator();
    exportAction = menu->addAction(tr("&Export Table..."), tableCommands, &TableCommands::exportTable);
    exportAction->setObjectName(QStringLiteral("exportTable"));
    importAction = menu->addAction(tr("&Import Table..."), tableCommands, &TableCommands::importTable);
    importAction->setObjectName(QStringLiteral("importTable"));
    menu->addSeparator();
    action = menu->addAction(tr("&Close Window"), this, &QWidget::close);
    action->setShortcut(QKeySequence::Close);
    action = menu->addAction(tr("&Quit"), qApp, &QApplication::closeAllWindows);
    action->setShortcut(QKeySequence::Quit);
    return menu;
}

void MainWindow::fillRecentFiles(QMenu& menu)
{
    menu.clear();
    const QStringList paths = recentFiles::list();
    for (const QString& path : paths) {
        // A & in a name is no mark of a key.
        QAction* const action = menu.addAction(QString(path).replace(QLatin1Char('&'), QLatin1String("&&")));
        connect(action, &QAction::triggered, this, [this, path] { open(path); });
    }
    menu.addSeparator();
    QAction* const clear = menu.addAction(tr("&Clear List"), this, [] { recentFiles::clear(); });
    clear->setEnabled(!paths.isEmpty());
}

QMenu* MainWindow::makeEditMenu()
{
    auto* const menu = new QMenu(tr("&Edit"), this);
    QAction* const undo = shown->undoStack().createUndoAction(this, tr("&Undo"));
    // The history itself would block the window.
    undo->disconnect(&shown->undoStack());
    connect(undo, &QAction::triggered, &shown->editRunner(), &EditRunner::undo);
    undo->setShortcut(QKeySequence::Undo);
    undo->setObjectName(QStringLiteral("undo"));
    QAction* const redo = shown->undoStack().createRedoAction(this, tr("&Redo"));
    redo->disconnect(&shown->undoStack());
    connect(redo, &QAction::triggered, &shown->editRunner(), &EditRunner::redo);
    redo->setShortcuts({QKeySequence(QKeySequence::Redo), QKeySequence(tr("Ctrl+Y"))});
    redo->setObjectName(QStringLiteral("redo"));
    menu->addAction(undo);
    menu->addAction(redo);
    menu->addSeparator();
    QAction* action = menu->addAction(tr("&Search Features"), features, &FeatureBrowser::focusSearch);
    action->setShortcut(QKeySequence::Find);
    action = menu->addAction(tr("&Next Hit"), features, &FeatureBrowser::goToNextHit);
    action->setShortcut(QKeySequence::FindNext);
    action = menu->addAction(tr("&Previous Hit"), features, &FeatureBrowser::goToPreviousHit);
    action->setShortcut(QKeySequence::FindPrevious);
    menu->addSeparator();
    action = menu->addAction(tr("Se&ttings..."), this, &MainWindow::showSettings);
    action->setObjectName(QStringLiteral("settings"));
    return menu;
}

QMenu* MainWindow::makeViewMenu()
{
    auto* const menu = new QMenu(tr("&View"), this);
    QAction* action = menu->addAction(tr("&Expand All"), features, &FeatureBrowser::expandAll);
    action->setShortcut(tr("Ctrl+Shift+E"));
    action = menu->addAction(tr("&Collapse All"), features, &FeatureBrowser::collapseAll);
    action->setShortcut(tr("Ctrl+Shift+W"));
    menu->addSeparator();
    menu->addMenu(makeColoursMenu());
    menu->addSeparator();
    for (QDockWidget* const panel : qAsConst(panels)) {
        menu->addAction(panel->toggleViewAction());
    }
    return menu;
}

QMenu* MainWindow::makeColoursMenu()
{
    auto* const menu = new QMenu(tr("C&olours"), this);
    auto* const choice = new QActionGroup(menu);
    const auto add = [&](const QString& text, Colours colours) {
        QAction* const action = menu->addAction(text, this, [colours] { chooseColours(colours); });
        action->setCheckable(true);
        action->setChecked(colours == chosenColours());
        choice->addAction(action);
    };
    add(tr("As the &Desktop"), Colours::Desktop);
    add(tr("&Light"), Colours::Light);
    add(tr("D&ark"), Colours::Dark);
    return menu;
}

QMenu* MainWindow::makeHelpMenu()
{
    auto* const menu = new QMenu(tr("&Help"), this);
    menu->addAction(tr("&About"), this, &MainWindow::showAbout);
    return menu;
}

void MainWindow::makeToolBar()
{
    QToolBar* const bar = addToolBar(tr("Tools"));
    bar->setObjectName(QStringLiteral("tools"));
    bar->addAction(findChild<QAction*>(QStringLiteral("open")));
    bar->addAction(saveAction);
    bar->addSeparator();
    for (const char* const name : {"undo", "redo"}) {
        auto* const action = findChild<QAction*>(QLatin1String(name));
        action->setIcon(style()->standardIcon(
            QLatin1String(name) == QLatin1String("undo") ? QStyle::SP_ArrowBack : QStyle::SP_ArrowForward));
        bar->addAction(action);
    }
}

void MainWindow::connectDocument()
{
    connect(shown, &Document::modifiedChanged, this, &MainWindow::updateTitle);
    connect(shown, &Document::fileNameChanged, this, &MainWindow::updateTitle);
    connect(fileCommands.get(), &FileCommands::opened, this, [this] {
        updateTitle();
        raiseFindings();
    });
    connect(findings, &FindingsPanel::changed, this, &MainWindow::countFindings);
    connect(fileCommands.get(), &FileCommands::told, this, &MainWindow::tell);
    connect(tableCommands, &TableCommands::told, this, &MainWindow::tell);
    connect(fileCommands.get(), &FileCommands::savingChanged, this, &MainWindow::holdEdits);
    connect(&shown->editRunner(), &EditRunner::begun, this, [this] { holdCommands(true); });
    connect(&shown->editRunner(), &EditRunner::ended, this, [this] { holdCommands(false); });
    connect(journal, &Journal::failed, this, [this](const QString& reason) {
        log->add(LogModel::Warning, tr("Changes are not kept for a recovery: %1").arg(reason));
    });
    connect(actionsOfFeatures, &FeatureActions::referencesRequested, this, &MainWindow::showReferences);
    connect(actionsOfFeatures, &FeatureActions::referrersRequested, referrers, &ReferrerSearch::start);
    connect(referrers, &ReferrerSearch::found, this, &MainWindow::showReferrers);
    connect(&LogSource::instance(), &LogSource::logged, log, &LogModel::add);
}

/// Tells something that may be looked up later.
void MainWindow::tell(int level, const QString& text)
{
    log->add(level, text);
    statusBar()->showMessage(text, messageMilliseconds);
}

/// Edits wait while the document is being written.
void MainWindow::holdEdits(bool hold)
{
    for (const char* const name : {"propertiesDock", "tableDock"}) {
        findChild<QDockWidget*>(QLatin1String(name))->widget()->setEnabled(!hold);
    }
    holdCommands(hold);
}

/// The commands that read or change the whole document wait.
void MainWindow::holdCommands(bool hold)
{
    enableFileActions(!hold && shown->isOpen());
    actionsOfFeatures->remove->setEnabled(!hold && shown->selection().hasSelection());
    findChild<QAction*>(QStringLiteral("open"))->setEnabled(!hold);
    findChild<QAction*>(QStringLiteral("undo"))->setEnabled(!hold && shown->undoStack().canUndo());
    findChild<QAction*>(QStringLiteral("redo"))->setEnabled(!hold && shown->undoStack().canRedo());
}

void MainWindow::updateTitle()
{
    const QString file = QFileInfo(shown->fileName()).fileName();
    //: Title of the window: name of the document, mark of unsaved changes, name of the program
    setWindowTitle(file.isEmpty() ? tr("Tolvik") : tr("%1[*] - Tolvik").arg(file));
    setWindowFilePath(shown->fileName());
    setWindowModified(shown->isModified());
    enableFileActions(shown->isOpen());
}

/// The actions that need a document which nobody is writing.
void MainWindow::enableFileActions(bool enable)
{
    for (QAction* const action : {saveAction, saveAsAction, reloadAction, exportAction, importAction}) {
        action->setEnabled(enable);
    }
}

void MainWindow::countFindings()
{
    //: Title of the panel, with the number of findings
    findingsDock->setWindowTitle(findings->count() == 0 ? tr("Findings")
                                                        : tr("Findings (%L1)").arg(findings->count()));
}

void MainWindow::raiseFindings()
{
    if (findings->count() != 0) {
        findingsDock->raise();
    }
}

void MainWindow::showAbout()
{
    QMessageBox::about(this, tr("About Tolvik"),
                       tr("<h3>Tolvik %1</h3><p>Shows and edits city models in CityGML 2.0.</p>")
                           .arg(QApplication::applicationVersion()));
}

void MainWindow::showSettings()
{
    const QString key = QStringLiteral("viewRanges");
    QVector<double> ranges;
    const QVariantList saved = QSettings().value(key).toList();
    for (const QVariant& each : saved) {
        ranges.append(each.toDouble());
    }
    // The dialog fills up what is missing.
    const std::unique_ptr<EditRangeDialog> dialog(shown->model().getEditRangeDialog(ranges));
    dialog->setParent(this, dialog->windowFlags());
    if (dialog->exec() == QDialog::Accepted) {
        const QVector<double> chosen = dialog->getRanges();
        QVariantList accepted;
        for (const double each : chosen) {
            accepted.append(each);
        }
        QSettings().setValue(key, accepted);
    }
}

void MainWindow::restoreLayout()
{
    const QSettings settings;
    restoreGeometry(settings.value(QStringLiteral("window/geometry")).toByteArray());
    restoreState(settings.value(QStringLiteral("window/state")).toByteArray());
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (fileCommands->isHeld() || !fileCommands->letGo()) {
        event->ignore();
        return;
    }
    fileCommands->cancelReading();
    QSettings settings;
    settings.setValue(QStringLiteral("window/geometry"), saveGeometry());
    settings.setValue(QStringLiteral("window/state"), saveState());
    event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasUrls()) {
        event->acceptProposedAction();
    }
}

/// The first document comes into this window, further ones into windows of their own.
void MainWindow::dropEvent(QDropEvent* event)
{
    MainWindow* window = this;
    const QList<QUrl> urls = event->mimeData()->urls();
    for (const QUrl& url : urls) {
        if (url.isLocalFile()) {
            (window != nullptr ? window : openNew())->open(url.toLocalFile());
            window = nullptr;
        }
    }
    event->acceptProposedAction();
}

} // namespace tolvik::viewer
