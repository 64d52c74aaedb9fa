#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace citygml {
namespace binding {

/// Reads a number or a boolean as the schema spells it, whatever the locale; white space around it is
/// ignored.
///
/// \throws ValueError for any other text, and for a number that the type cannot hold.
template <typename T>
T parseNumber(std::string_view text);

/// Appends the shortest decimal text that reads back to the same bits, whatever the locale.
void formatNumber(double value, std::string& text);
void formatNumber(float value, std::string& text);
void formatNumber(long long value, std::string& text);
void formatNumber(unsigned long long value, std::string& text);
void formatNumber(bool value, std::string& text);
inline void formatNumber(int value, std::string& text)
{
    formatNumber(static_cast<long long>(value), text);
}

/// Reads numbers that white space parts.
///
/// \param[out] values takes them in place of what it holds
/// \throws ValueError for the first word that is no number.
void parseNumbers(std::string_view text, std::vector<double>& values);
/// Appends numbers with one blank between them.
void formatNumbers(const std::vector<double>& values, std::string& text);

} // namespace binding
} // namespace citygml
