#include "citygml/RarePointer.h"

#include <array>
#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <mutex>
#include <unordered_map>

namespace citygml {

namespace {

/// A part of the table, so that threads that read a document rarely wait for each other.
struct alignas(64) Part
{
    std::mutex mutex;
    std::unordered_map<const void*, void*> objects;
    std::atomic<std::uint64_t> changes{1};
};

Part& partOf(const void* pointer)
{
    using Parts = std::array<Part, 64>;
    // Never deleted: objects of a document may live until the program ends.
    static auto* const parts = new Parts;
    constexpr std::size_t spread = 0x9E3779B97F4A7C15;
    return (*parts)[std::hash<const void*>()(pointer) * spread >> 58];
}

} // namespace

void* rareObject(const void* pointer)
{
    // All identifiers of a document are registered at the same root.
    struct Found
    {
        const void* pointer;
        void* object;
        std::uint64_t changes;
    };
    static thread_local Found last{};
    Part& part = partOf(pointer);
    const std::uint64_t changes = part.changes.load(std::memory_order_acquire);
    if (last.pointer != pointer || last.changes != changes) {
        const std::lock_guard<std::mutex> lock(part.mutex);
        const auto found = part.objects.find(pointer);
        last = {pointer, found != part.objects.end() ? found->second : nullptr, changes};
    }
    return last.object;
}

void setRareObject(const void* pointer, void* object)
{
    Part& part = partOf(pointer);
    const std::lock_guard<std::mutex> lock(part.mutex);
    if (object != nullptr) {
        part.objects[pointer] = object;
    } else {
        part.objects.erase(pointer);
    }
    part.changes.fetch_add(1, std::memory_order_release);
}

} // namespace citygml
