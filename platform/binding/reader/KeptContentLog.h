#pragma once

#include <cstddef>
#include <log4cplus/logger.h>
#include <map>
#include <string>
#include <string_view>

namespace citygml {
namespace binding {

/// What reading has to say goes here.
log4cplus::Logger readerLogger();

/// Counts what the reader keeps as it stands, and says at the debug level how often it met each kind. Where
/// nobody listens to that, it does nothing.
class KeptContentLog
{
public:
    /// How often each kind and name was met.
    using Counts = std::map<std::string, std::size_t>;

    explicit KeptContentLog(const log4cplus::Logger& logger);

    /// Tells whether anybody listens, so that nobody makes up names in vain.
    bool isOn() const { return on; }
    /// \param kind such as "comment"
    void add(const char* kind);
    /// \param name of the one, such as that of an element
    void add(const char* kind, std::string_view name);
    /// Adds what another log has counted.
    void add(const Counts& others);
    /// What was counted since the last call.
    Counts take();
    /// Says one line for each kind and name.
    void write() const;

private:
    log4cplus::Logger logger;
    bool on;
    Counts counts;
};

} // namespace binding
} // namespace citygml
