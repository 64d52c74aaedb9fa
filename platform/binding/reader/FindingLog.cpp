#include "platform/binding/reader/FindingLog.h"

#include <log4cplus/loggingmacros.h>

#include <algorithm>
#include <cstdint>

namespace citygml {
namespace binding {

namespace {

constexpr std::size_t mostListed = 1000;
// A document may have another wrong text everywhere; what comes behind so many groups is one more.
constexpr std::size_t mostGroups = 1000;
constexpr std::size_t mostLines = 20;

} // namespace

void FindingLog::add(Finding finding)
{
    if (taker && taker(finding)) {
        return;
    }
    FindingGroup& group = groupOf(finding);
    ++group.count;
    if (group.first.size() < mostListed) {
        group.first.push_back(std::move(finding));
    }
}

FindingGroup& FindingLog::groupOf(const Finding& finding)
{
    std::pair<std::string, std::string> key(finding.reason, finding.path);
    const auto found = known.find(key);
    if (found != known.end()) {
        return groups[found->second];
    }
    if (known.size() == mostGroups) {
        if (groups.size() == mostGroups) {
            groups.push_back({"further findings", std::string(), 0, {}});
        }
        return groups.back();
    }
    groups.push_back({finding.reason, finding.path, 0, {}});
    known.emplace(std::move(key), groups.size() - 1);
    return groups.back();
}

void FindingLog::write(const std::vector<FindingGroup>& groups, const log4cplus::Logger& logger)
{
    for (std::size_t i = 0; i < std::min(groups.size(), mostLines); ++i) {
        const FindingGroup& group = groups[i];
        const Finding& first = group.first.front();
        LOG4CPLUS_WARN(logger, first.line << ':' << first.column << ": " << group.reason << ", in "
                                          << group.path << " (" << group.count << ")");
    }
    if (groups.size() > mostLines) {
        std::uint64_t rest = 0;
        for (std::size_t i = mostLines; i < groups.size(); ++i) {
            rest += groups[i].count;
        }
        LOG4CPLUS_WARN(logger, rest << " more findings of " << groups.size() - mostLines << " other kinds");
    }
}

} // namespace binding
} // namespace citygml
