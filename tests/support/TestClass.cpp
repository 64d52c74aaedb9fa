#include "support/TestClass.h"

#include <log4cplus/initializer.h>
#include <log4cplus/logger.h>
#include <log4cplus/nullappender.h>
#include <QApplication>
#include <QCoreApplication>
#include <vector>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

namespace testsupport {

namespace {

/// What ctest is told to take for "skipped".
constexpr int skippedCode = 77;

bool wasSkipped = false;

std::vector<const TestClass*>& testClasses()
{
    static std::vector<const TestClass*> classes;
    return classes;
}

/// The test function that an argument names, as `function` or `function:row`.
QByteArray functionOf(const QString& argument)
{
    return argument.section(':', 0, 0).toLatin1() + "()";
}

bool isFunctionOfAnyClass(const QString& argument)
{
    for (const TestClass* const each : testClasses()) {
        if (each->metaObject.indexOfMethod(functionOf(argument)) >= 0) {
            return true;
        }
    }
    return false;
}

/// Runs a class with the program's arguments, less the names of functions of other classes; not at all if
/// functions are named and the class has none of them.
/// \return how many test functions failed
int run(const TestClass& testClass, const QStringList& arguments)
{
    QStringList own;
    bool areNamed = false;
    bool hasNamed = false;
    for (const QString& argument : arguments) {
        const bool isFunction = isFunctionOfAnyClass(argument);
        const bool isOwn = testClass.metaObject.indexOfMethod(functionOf(argument)) >= 0;
        areNamed = areNamed || isFunction;
        hasNamed = hasNamed || isOwn;
        if (isOwn || !isFunction) {
            own.append(argument);
        }
    }
    if (areNamed && !hasNamed) {
        return 0;
    }
    const std::unique_ptr<QObject> object = testClass.create();
    return QTest::qExec(object.get(), own);
}

int runAll(Application application, const QStringList& arguments)
{
    int failures = 0;
    for (const TestClass* const each : testClasses()) {
        failures += each->application == application ? run(*each, arguments) : 0;
    }
    return failures;
}

/// Looks for leaks while the application is there: drivers that it unloads at its end leave blocks behind,
/// which cannot be told by their names then.
void lookForLeaks()
{
#ifdef __SANITIZE_ADDRESS__
    __lsan_do_leak_check();
#endif
}

bool hasClasses(Application application)
{
    for (const TestClass* const each : testClasses()) {
        if (each->application == application) {
            return true;
        }
    }
    return false;
}

} // namespace

TestClass::TestClass(Application application, const QMetaObject& metaObject, Create create)
    : application(application), metaObject(metaObject), create(create)
{
    testClasses().push_back(this);
}

void noteSkip()
{
    wasSkipped = true;
}

} // namespace testsupport

int main(int argc, char* argv[])
{
    using testsupport::Application;
    const log4cplus::Initializer logging;
    // What the classes log is the business of the tests that record it.
    log4cplus::Logger::getRoot().addAppender(log4cplus::SharedAppenderPtr(new log4cplus::NullAppender));
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    int failures = testsupport::runAll(Application::None, arguments);
    if (testsupport::hasClasses(Application::Core)) {
        const QCoreApplication application(argc, argv);
        failures += testsupport::runAll(Application::Core, arguments);
    }
    if (testsupport::hasClasses(Application::Widgets)) {
        QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
        const QApplication application(argc, argv);
        failures += testsupport::runAll(Application::Widgets, arguments);
        testsupport::lookForLeaks();
    }
    if (failures > 0) {
        return 1;
    }
    return testsupport::wasSkipped ? testsupport::skippedCode : 0;
}
