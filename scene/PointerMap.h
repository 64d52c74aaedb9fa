#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tolvik::scene {

/// A map from addresses of objects to values, for millions of them. It is made of many small maps, which
/// make room at different times: a large one would stand still whenever it does.
template <typename Value>
class PointerMap
{
public:
    /// \return null for an object that is not there
    const Value* find(const void* object) const
    {
        const auto& part = partOf(object);
        const auto found = part.find(object);
        return found != part.end() ? &found->second : nullptr;
    }
    void set(const void* object, Value value) { partOf(object)[object] = std::move(value); }
    void erase(const void* object) { partOf(object).erase(object); }
    void clear() { parts = std::vector<Part>(partCount); }

private:
    using Part = std::unordered_map<const void*, Value>;
    static constexpr std::size_t partCount = 256;

    static std::size_t numberOf(const void* object)
    {
        // Addresses are multiples of eight at least, and near to each other.
        return (reinterpret_cast<std::uintptr_t>(object) >> 4) * 0x9e3779b97f4a7c15 >> 56;
    }
    Part& partOf(const void* object) { return parts[numberOf(object)]; }
    const Part& partOf(const void* object) const { return parts[numberOf(object)]; }

    std::vector<Part> parts = std::vector<Part>(partCount);
};

} // namespace tolvik::scene
