#include "apps/viewer/log/LogAppender.h"

#include <log4cplus/logger.h>
#include <log4cplus/spi/loggingevent.h>

namespace tolvik::viewer {

LogSource& LogSource::instance()
{
    static auto* const source = new LogSource;
    return *source;
}

LogAppender::~LogAppender()
{
    destructorImpl();
}

void LogAppender::install()
{
    static bool isInstalled = false;
    if (!isInstalled) {
        isInstalled = true;
        log4cplus::Logger::getRoot().addAppender(log4cplus::SharedAppenderPtr(new LogAppender));
    }
}

void LogAppender::close()
{
    closed = true;
}

void LogAppender::append(const log4cplus::spi::InternalLoggingEvent& event)
{
    emit LogSource::instance().logged(event.getLogLevel(),
                                      QString::fromStdString(event.getMessage()).trimmed());
}

} // namespace tolvik::viewer
