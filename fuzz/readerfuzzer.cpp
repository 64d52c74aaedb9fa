// The fuzz target: see README.md in this directory.

#include "fuzz/ReaderCase.h"

#include <log4cplus/initializer.h>
#include <log4cplus/logger.h>
#include <log4cplus/nullappender.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t largest);

namespace {

/// A piece of a document: an element from its first to its last character.
struct Element
{
    std::size_t begin;
    std::size_t end;
};

/// The elements of a text that may be XML, as far as their tags match by depth.
std::vector<Element> elementsOf(std::string_view text)
{
    std::vector<Element> result;
    std::vector<std::size_t> open;
    for (std::size_t i = text.find('<'); i != std::string_view::npos; i = text.find('<', i + 1)) {
        const std::size_t close = text.find('>', i);
        if (close == std::string_view::npos) {
            break;
        }
        if (text[i + 1] == '/') {
            if (!open.empty()) {
                result.push_back({open.back(), close + 1});
                open.pop_back();
            }
        } else if (text[close - 1] == '/') {
            result.push_back({i, close + 1});
        } else if (text[i + 1] != '!' && text[i + 1] != '?') {
            open.push_back(i);
        }
    }
    return result;
}

/// Puts in place of one range of a text another text.
std::string replaced(std::string_view text, const Element& range, std::string_view other)
{
    return std::string(text.substr(0, range.begin)).append(other).append(text.substr(range.end));
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    static const log4cplus::Initializer logging;
    log4cplus::Logger::getRoot().addAppender(log4cplus::SharedAppenderPtr(new log4cplus::NullAppender));
    return 0;
}

/// Besides bytes, whole elements are removed, repeated, moved and put in place of others.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t largest,
                                               unsigned seed)
{
    std::minstd_rand random(seed);
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const std::vector<Element> elements = random() % 2 != 0 ? elementsOf(text) : std::vector<Element>();
    if (elements.size() < 2) {
        return LLVMFuzzerMutate(data, size, largest);
    }
    const Element& a = elements[random() % elements.size()];
    const Element& b = elements[random() % elements.size()];
    const std::string_view other = text.substr(a.begin, a.end - a.begin);
    std::string result;
    switch (random() % 4) {
    case 0:
        result = replaced(text, a, std::string_view());
        break;
    case 1:
        result = replaced(text, {b.begin, b.begin}, other);
        break;
    case 2:
        result = replaced(text, {b.end, b.end}, other);
        break;
    default:
        result = replaced(text, b, other);
        break;
    }
    if (result.empty() || result.size() > largest) {
        return LLVMFuzzerMutate(data, size, largest);
    }
    std::copy(result.begin(), result.end(), data);
    return result.size();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string problem =
        tolvik::fuzz::runReaderCase(std::string_view(reinterpret_cast<const char*>(data), size));
    if (!problem.empty()) {
        std::fprintf(stderr, "%s\n", problem.c_str());
        std::abort();
    }
    return 0;
}
