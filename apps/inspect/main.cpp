#include "CommandLine.h"

#include <clocale>
#include <QCoreApplication>
#include <QLocale>
#include <QTextCodec>

namespace {

/// The same text and numbers go in and out whatever the user's locale is.
void leaveLocale()
{
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    QLocale::setDefault(QLocale::c());
    std::setlocale(LC_ALL, "C");
}

} // namespace

int main(int argc, char* argv[])
{
    // No display is needed: nothing that the tool shows is painted.
    QCoreApplication application(argc, argv);
    leaveLocale();
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.append(QString::fromUtf8(argv[i]));
    }
    return tolvik::inspect::runCommandLine(arguments);
}
