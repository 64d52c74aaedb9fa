#include "apps/viewer/application/Colours.h"
#include "apps/viewer/application/Translations.h"
#include "apps/viewer/document/Document.h"
#include "apps/viewer/features/FeatureBrowser.h"
#include "apps/viewer/files/FileCommands.h"
#include "apps/viewer/log/LogAppender.h"
#include "apps/viewer/recovery/Recovery.h"
#include "apps/viewer/window/MainWindow.h"

#include <cstdio>
#include <log4cplus/initializer.h>
#include <QApplication>
#include <QCommandLineParser>
#include <QLocale>
#include <QTimer>
#include <stdexcept>

using namespace tolvik::viewer;

namespace {

// So that what a window does when the event loop is idle has been done.
constexpr int settlingMilliseconds = 1000;

/// Writes a picture of the window when its document is there, and ends the program.
void takePicture(MainWindow& window, const QString& file)
{
    QObject::connect(&window.files(), &FileCommands::opened, &window, [&window, file] {
        window.browser().expandAll();
        // Below the root stands a feature that has something to show.
        window.browser().goTo(1);
        QTimer::singleShot(settlingMilliseconds, &window,
                           [&window, file] { QApplication::exit(window.grab().save(file) ? 0 : 1); });
    });
}

int showWindows(const QStringList& files, const QString& picture)
{
    MainWindow* const first = MainWindow::openNew();
    if (!picture.isEmpty()) {
        takePicture(*first, picture);
    }
    for (const QString& file : files) {
        (file == files.first() ? first : MainWindow::openNew())->open(file);
    }
    // One window each, as a window has one document.
    MainWindow* window = files.isEmpty() ? first : nullptr;
    for (std::unique_ptr<Recovery>& each : Recovery::findAll()) {
        (window != nullptr ? window : MainWindow::openNew())->offer(std::move(each));
        window = nullptr;
    }
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Tolvik"));
    QApplication::setApplicationName(QStringLiteral("tolvik-viewer"));
    QApplication::setApplicationVersion(QStringLiteral(TOLVIK_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("tolvik-viewer"));
    const log4cplus::Initializer logging;
    LogAppender::install();
    installTranslations(QLocale());

    QCommandLineParser arguments;
    arguments.setApplicationDescription(
        QApplication::translate("main", "Shows and edits city models in CityGML 2.0."));
    arguments.addHelpOption();
    arguments.addVersionOption();
    const QCommandLineOption colours(QStringLiteral("colours"),
                                     QApplication::translate("main", "desktop, light or dark"),
                                     QStringLiteral("COLOURS"));
    const QCommandLineOption picture(
        QStringLiteral("picture"),
        QApplication::translate("main", "Write a picture of the window to FILE, and end"),
        QStringLiteral("FILE"));
    arguments.addOptions({colours, picture});
    arguments.addPositionalArgument(QStringLiteral("FILE"),
                                    QApplication::translate("main", "Document to open"),
                                    QStringLiteral("[FILE...]"));
    arguments.process(application);
    applyColours(arguments.isSet(colours) ? coloursNamed(arguments.value(colours)) : chosenColours());

    try {
        return showWindows(arguments.positionalArguments(), arguments.value(picture));
    } catch (const std::runtime_error& error) {
        std::fprintf(stderr, "tolvik-viewer: %s\n", error.what());
        return 1;
    }
}
