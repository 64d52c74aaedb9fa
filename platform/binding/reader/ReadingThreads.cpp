#include "citygml/ReadingThreads.h"

#include "platform/binding/reader/ReadingThreads.h"

#include <algorithm>
#include <atomic>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <thread>

namespace citygml {

namespace {

std::atomic<unsigned> threadsSet{0};
// More threads have nothing to do, and each takes memory.
constexpr unsigned mostThreads = 64;

/// \return 0 where the variable is not set, and where it is no number.
std::size_t numberInEnvironment(const char* variable)
{
    const char* const text = std::getenv(variable);
    std::size_t number = 0;
    if (text != nullptr) {
        const char* const end = text + std::strlen(text);
        if (std::from_chars(text, end, number).ptr != end) {
            return 0;
        }
    }
    return number;
}

} // namespace

unsigned readingThreads()
{
    std::size_t count = threadsSet.load();
    if (count == 0) {
        count = numberInEnvironment("TOLVIK_THREADS");
    }
    if (count == 0) {
        count = std::thread::hardware_concurrency();
    }
    return static_cast<unsigned>(std::clamp<std::size_t>(count, 1, mostThreads));
}

void setReadingThreads(unsigned count)
{
    threadsSet = count;
}

namespace binding {

std::size_t pieceSize()
{
    constexpr std::size_t usual = 1 << 19;
    const std::size_t count = numberInEnvironment("TOLVIK_PIECE_SIZE");
    return count != 0 ? count : usual;
}

} // namespace binding
} // namespace citygml
