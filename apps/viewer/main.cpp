#include "apps/viewer/window/MainWindow.h"

#include <log4cplus/initializer.h>
#include <QApplication>
#include <QCommandLineParser>

using namespace tolvik::viewer;

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tolvik-viewer"));
    QApplication::setApplicationVersion(QStringLiteral(TOLVIK_VERSION));
    const log4cplus::Initializer logging;

    QCommandLineParser arguments;
    arguments.setApplicationDescription(
        QApplication::translate("main", "Shows and edits city models in CityGML 2.0."));
    arguments.addHelpOption();
    arguments.addVersionOption();
    arguments.addPositionalArgument(QStringLiteral("FILE"),
                                    QApplication::translate("main", "Document to open"));
    arguments.process(application);

    MainWindow window;
    window.show();
    const QStringList files = arguments.positionalArguments();
    if (!files.isEmpty()) {
        window.open(files.first());
    }
    return QApplication::exec();
}
