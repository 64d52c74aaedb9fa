#pragma once

#include <log4cplus/appender.h>
#include <QObject>

namespace tolvik::viewer {

/// Sends what is logged, in any thread, as a signal.
class LogSource : public QObject
{
    Q_OBJECT

public:
    /// The one of the program, which is never destroyed: the logger outlives everything.
    static LogSource& instance();

signals:
    /// Connections to objects of another thread than that which logs are queued.
    void logged(int level, const QString& text);

private:
    LogSource() = default;
};

/// Gives the log to LogSource.
class LogAppender : public log4cplus::Appender
{
public:
    LogAppender() = default;
    LogAppender(const LogAppender&) = delete;
    LogAppender& operator=(const LogAppender&) = delete;
    ~LogAppender() override;

    /// Makes such a one the appender of all loggers, once in a program.
    static void install();
    void close() override;

protected:
    void append(const log4cplus::spi::InternalLoggingEvent& event) override;
};

} // namespace tolvik::viewer
