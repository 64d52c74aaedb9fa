#pragma once

#include <log4cplus/logger.h>
#include <QString>
#include <QStringList>

namespace testsupport {

/// Writes down what a logger logs while the recorder lives.
class LogRecorder
{
public:
    /// \param logger name of the logger
    /// \param level  the least level that it logs meanwhile
    LogRecorder(const char* logger, log4cplus::LogLevel level);
    ~LogRecorder();
    LogRecorder(const LogRecorder&) = delete;
    LogRecorder& operator=(const LogRecorder&) = delete;

    /// The events so far, one line each: the level, a blank and the message. The recorder goes on with none.
    QStringList take();

    /// The source file that the last event was logged from.
    QString file() const;

private:
    struct Lines;

    log4cplus::Logger logger;
    log4cplus::LogLevel formerLevel;
    log4cplus::helpers::SharedObjectPtr<Lines> lines;
};

/// The log of the document model.
class ModelLog : public LogRecorder
{
public:
    ModelLog();
};

/// The log of the reader of documents.
class ReaderLog : public LogRecorder
{
public:
    explicit ReaderLog(log4cplus::LogLevel level);
};

} // namespace testsupport
