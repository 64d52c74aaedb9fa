#include "support/LogRecorder.h"

#include <log4cplus/appender.h>
#include <log4cplus/spi/loggingevent.h>

namespace testsupport {

struct LogRecorder::Lines : log4cplus::Appender
{
    ~Lines() override { destructorImpl(); }
    void close() override {}
    void append(const log4cplus::spi::InternalLoggingEvent& event) override
    {
        messages.append(QString::fromStdString(log4cplus::getLogLevelManager().toString(event.getLogLevel()) +
                                               ' ' + event.getMessage()));
        file = QString::fromStdString(event.getFile());
    }

    QStringList messages;
    QString file;
};

LogRecorder::LogRecorder(const char* logger, log4cplus::LogLevel level)
    : logger(log4cplus::Logger::getInstance(logger)), formerLevel(this->logger.getLogLevel()),
      lines(new Lines)
{
    this->logger.setLogLevel(level);
    this->logger.addAppender(log4cplus::SharedAppenderPtr(lines.get()));
}

LogRecorder::~LogRecorder()
{
    logger.removeAppender(log4cplus::SharedAppenderPtr(lines.get()));
    logger.setLogLevel(formerLevel);
}

QStringList LogRecorder::take()
{
    QStringList messages;
    messages.swap(lines->messages);
    return messages;
}

QString LogRecorder::file() const
{
    return lines->file;
}

ModelLog::ModelLog() : LogRecorder("tolvik.UI.Models.CityGMLModel", log4cplus::NOT_SET_LOG_LEVEL) {}

ReaderLog::ReaderLog(log4cplus::LogLevel level) : LogRecorder("tolvik.citygml.DocumentReader", level) {}

} // namespace testsupport
