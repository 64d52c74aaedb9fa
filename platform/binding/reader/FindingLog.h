#pragma once

#include "citygml/Findings.h"

#include <functional>
#include <log4cplus/logger.h>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace citygml {
namespace binding {

/// Collects what is wrong with a document, in groups, so that the same fault in every building of a city
/// takes no more memory than that of some.
class FindingLog
{
public:
    /// Asks of each finding whether it goes elsewhere; those of which that is true are not collected.
    void setTaker(std::function<bool(const Finding&)> asked) { taker = std::move(asked); }
    void add(Finding finding);
    /// All groups, the first first.
    std::vector<FindingGroup> take() { return std::move(groups); }

    /// Says one line for each group, and a last one for those that are too many to be told.
    static void write(const std::vector<FindingGroup>& groups, const log4cplus::Logger& logger);

private:
    FindingGroup& groupOf(const Finding& finding);

    std::function<bool(const Finding&)> taker;
    std::vector<FindingGroup> groups;
    // Indices of the groups by reason and path.
    std::map<std::pair<std::string, std::string>, std::size_t> known;
};

} // namespace binding
} // namespace citygml
