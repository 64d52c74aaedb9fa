#include "viewer/OpenedWindow.h"

#include "apps/viewer/document/Document.h"
#include "apps/viewer/features/FeatureBrowser.h"
#include "apps/viewer/features/FeatureRows.h"
#include "apps/viewer/features/FeatureTexts.h"
#include "apps/viewer/files/FileCommands.h"

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

using namespace tolvik::viewer;

namespace testsupport {

OpenedWindow::OpenedWindow(const QString& document)
{
    useFoldersOfTests();
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder.path());
    window = std::make_unique<MainWindow>();
    window->show();
    // On a display without a window manager keys go nowhere else.
    window->activateWindow();
    if (!QTest::qWaitForWindowActive(window.get())) {
        qWarning("the window does not become active");
    }
    if (!document.isEmpty()) {
        QFile::copy(document, file());
        QFile::setPermissions(file(), QFile::ReadOwner | QFile::WriteOwner);
        open(file());
    }
}

OpenedWindow::~OpenedWindow() = default;

void OpenedWindow::useFoldersOfTests()
{
    // Those of another run at the same time are not ours, but those of a process that a test starts are.
    static const char* const shared = "TOLVIK_TEST_FOLDERS";
    static const std::unique_ptr<QTemporaryDir> own =
        qEnvironmentVariableIsSet(shared) ? nullptr : std::make_unique<QTemporaryDir>();
    if (own != nullptr) {
        for (const char* const variable : {shared, "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME"}) {
            qputenv(variable, QFile::encodeName(own->path()));
        }
    }
    QCoreApplication::setOrganizationName(QStringLiteral("Tolvik"));
    QCoreApplication::setApplicationName(QStringLiteral("viewertest"));
}

bool OpenedWindow::open(const QString& path)
{
    QSignalSpy opened(&window->files(), &FileCommands::opened);
    window->open(path);
    return opened.wait(20000);
}

bool OpenedWindow::search(const QString& text)
{
    auto* const line = window->findChild<QLineEdit*>(QStringLiteral("search"));
    line->setFocus();
    line->selectAll();
    if (text.isEmpty()) {
        QTest::keyClick(line, Qt::Key_Delete);
    } else {
        QTest::keyClicks(line, text);
    }
    return QTest::qWaitFor([this] { return !window->browser().isSearching(); });
}

QStringList OpenedWindow::selected()
{
    QStringList identifiers;
    for (const int row : selectedRows(document().selection())) {
        identifiers.append(idOf(*document().model().getFeature(row)));
    }
    identifiers.sort();
    return identifiers;
}

int OpenedWindow::row(const QString& identifier)
{
    return rowOfIdentifier(document(), identifier);
}

void OpenedWindow::select(const QStringList& identifiers)
{
    QItemSelection selection;
    for (const QString& each : identifiers) {
        const QModelIndex index = document().model().index(row(each), 0);
        selection.append(QItemSelectionRange(index, index.siblingAtColumn(1)));
        document().selection().setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    }
    document().selection().select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void OpenedWindow::answer(int standardButton)
{
    auto* const waiting = new QTimer(qApp);
    waiting->setInterval(10);
    QObject::connect(waiting, &QTimer::timeout, waiting, [waiting, standardButton] {
        if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            waiting->deleteLater();
            waiting->stop();
            box->button(QMessageBox::StandardButton(standardButton))->click();
        }
    });
    waiting->start();
}

QStringList shownTexts(const QTreeView& view, int column)
{
    QStringList texts;
    for (QModelIndex index = view.model()->index(0, 0); index.isValid(); index = view.indexBelow(index)) {
        int level = 0;
        for (QModelIndex each = index.parent(); each.isValid(); each = each.parent()) {
            ++level;
        }
        texts.append(QString(level, QLatin1Char(' ')) + index.siblingAtColumn(column).data().toString());
    }
    return texts;
}

} // namespace testsupport
