#include "Subject.h"

#include <benchmark/benchmark.h>
#include <exception>
#include <iostream>
#include <log4cplus/consoleappender.h>
#include <log4cplus/initializer.h>
#include <log4cplus/logger.h>
#include <QApplication>

/// `tolvik-benchmarks [--benchmark_filter=...]`, with the options of Google Benchmark; see Subject for what
/// it works on.
int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    const log4cplus::Initializer log;
    log4cplus::Logger root = log4cplus::Logger::getRoot();
    root.addAppender(log4cplus::SharedAppenderPtr(new log4cplus::ConsoleAppender(true)));
    root.setLogLevel(log4cplus::WARN_LOG_LEVEL);

    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    try {
        tolvik::Subject subject;
        benchmark::AddCustomContext("document", subject.description());
        benchmark::RunSpecifiedBenchmarks();
        subject.release(); // while the application lives
    } catch (const std::exception& error) {
        std::cerr << "tolvik-benchmarks: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
