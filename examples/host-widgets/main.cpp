#include "Window.h"

#include <log4cplus/configurator.h>
#include <log4cplus/initializer.h>
#include <QApplication>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    log4cplus::Initializer logging;
    log4cplus::BasicConfigurator::doConfigure(); // what is wrong with a document goes to the log
    Window window;
    window.load(application.arguments().value(1));
    window.show();
    return application.exec();
}
