#include "platform/binding/reader/KeptContentLog.h"

#include <log4cplus/loggingmacros.h>

#include <utility>

namespace citygml {
namespace binding {

log4cplus::Logger readerLogger()
{
    return log4cplus::Logger::getInstance(LOG4CPLUS_TEXT("tolvik.citygml.DocumentReader"));
}

KeptContentLog::KeptContentLog(const log4cplus::Logger& logger)
    : logger(logger), on(logger.isEnabledFor(log4cplus::DEBUG_LOG_LEVEL))
{
}

void KeptContentLog::add(const char* kind)
{
    if (on) {
        ++counts[kind];
    }
}

void KeptContentLog::add(const char* kind, std::string_view name)
{
    if (on) {
        ++counts[std::string(kind).append(1, ' ').append(name)];
    }
}

void KeptContentLog::add(const Counts& others)
{
    for (const auto& other : others) {
        counts[other.first] += other.second;
    }
}

KeptContentLog::Counts KeptContentLog::take()
{
    return std::exchange(counts, Counts());
}

void KeptContentLog::write() const
{
    for (const auto& kind : counts) {
        LOG4CPLUS_DEBUG(logger, "kept as it stands: " << kind.first << " (" << kind.second << ")");
    }
}

} // namespace binding
} // namespace citygml
