#pragma once

#include <memory>
#include <QFileInfo>
#include <QObject>
#include <QtTest>

namespace testsupport {

/// The application object that a test class runs under.
enum class Application { None, Core, Widgets };

/// A test class of the program; TEST_CLASS makes one.
class TestClass
{
public:
    using Create = std::unique_ptr<QObject> (*)();

    /// Enters the class into the list that the program's `main` runs. It stays there for good.
    /// \param metaObject names the test functions
    /// \param create     makes the test object, when its application is there
    TestClass(Application application, const QMetaObject& metaObject, Create create);
    TestClass(const TestClass&) = delete;
    TestClass& operator=(const TestClass&) = delete;

    const Application application;
    const QMetaObject& metaObject;
    const Create create;
};

/// Notes that a test was skipped since files are missing: the program then ends with the code that ctest
/// shows as "Skipped", if nothing failed.
void noteSkip();

} // namespace testsupport

// Qt looks every 50 milliseconds whether what a test waits for has come, and tests of windows wait much.
#undef QTRY_IMPL
#define QTRY_IMPL(expr, timeout) QTRY_LOOP_IMPL((expr), (timeout), 5)

/// Puts a test class into the program that its source file is linked into. A program may have several: `main`
/// runs those without an application object first, then those with a QCoreApplication, then those with a
/// QApplication. The program takes the options of Qt Test, and names of test functions of any of its classes.
#define TEST_CLASS(Class, application)                                                                       \
    static const testsupport::TestClass testClass##Class(                                                    \
        testsupport::Application::application, Class::staticMetaObject,                                      \
        [] { return std::unique_ptr<QObject>(new Class); });

/// Ends the test function, or the function of its data, as skipped where the file or directory is not there.
#define SKIP_WITHOUT(path)                                                                                   \
    do {                                                                                                     \
        if (!QFileInfo::exists(path)) {                                                                      \
            testsupport::noteSkip();                                                                         \
            QSKIP(qPrintable("there is no " + QFileInfo(path).absoluteFilePath()));                          \
        }                                                                                                    \
    } while (false)
