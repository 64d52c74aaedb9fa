#pragma once

#include <string>
#include <string_view>

namespace citygml {
namespace binding {

/// A qualified name as a document writes it: a local name, with or without a prefix in front of a colon.
/// It points into the text that it was made of.
struct PrefixedName
{
    explicit PrefixedName(std::string_view name) : text(name)
    {
        const std::size_t colon = text.find(':');
        prefix = colon != std::string_view::npos ? text.substr(0, colon) : std::string_view();
        local = colon != std::string_view::npos ? text.substr(colon + 1) : text;
    }

    /// Whether there is at most one colon, and something on either side of it.
    bool isWellFormed() const
    {
        return !local.empty() && local.find(':') == std::string_view::npos &&
               prefix.empty() == (local.size() == text.size());
    }

    std::string_view text;
    std::string_view prefix;
    std::string_view local;
};

/// The two parts joined again; without a colon where the prefix is empty.
inline std::string prefixedName(std::string_view prefix, std::string_view local)
{
    std::string name(prefix);
    if (!prefix.empty()) {
        name += ':';
    }
    return name.append(local);
}

} // namespace binding
} // namespace citygml
