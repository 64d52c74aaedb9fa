#include "citygml/SchemaContainers.h"

#include <cstdlib>
#include <cstring>
#include <new>

namespace xsd {
namespace cxx {
namespace tree {

container* single_object::owner() const
{
    return present() ? object()->_container() : addressed<container>(word & ~emptyMark);
}

void single_object::setCopy(const type& value, flags f)
{
    replace(value._clone(f, owner()));
}

void single_object::replace(type* value)
{
    type* const old = present() ? object() : nullptr;
    word = value != nullptr ? reinterpret_cast<std::uintptr_t>(value) : empty(owner());
    delete old;
}

type* single_object::release()
{
    type* const value = object();
    const std::uintptr_t none = empty(owner());
    value->_container(nullptr);
    word = none;
    return value;
}

object_sequence::object_sequence(const object_sequence& other, flags f, container* owner)
    : object_sequence(owner)
{
    reserve(other.size());
    for (size_type i = 0; i < other.size(); ++i) {
        insertOwned(i, other.objects()[i]->_clone(f, owner));
    }
}

object_sequence& object_sequence::operator=(const object_sequence& other)
{
    if (this != &other) {
        clear();
        reserve(other.size());
        for (size_type i = 0; i < other.size(); ++i) {
            insertOwned(i, other.objects()[i]->_clone(0, owner()));
        }
    }
    return *this;
}

object_sequence::~object_sequence()
{
    if (hasBlock()) {
        truncate(0);
        std::free(block());
    }
}

void object_sequence::reserve(size_type count)
{
    if (count <= capacity()) {
        return;
    }
    if (count > max_size()) {
        throw std::length_error("too many elements in a sequence of a schema object");
    }
    const bool isFirst = !hasBlock();
    container* const kept = owner();
    // NOLINTNEXTLINE(bugprone-suspicious-realloc-usage): a block is found by the word, which stays
    void* memory = std::realloc(isFirst ? nullptr : block(), sizeof(Block) + count * sizeof(type*));
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    Block* const grown = static_cast<Block*>(memory);
    if (isFirst) {
        grown->owner = kept;
        grown->size = 0;
    }
    grown->capacity = static_cast<std::uint32_t>(count);
    word = reinterpret_cast<std::uintptr_t>(grown);
}

void object_sequence::truncate(size_type count)
{
    if (!hasBlock()) {
        return;
    }
    // An object that looks at the sequence while it dies must not find itself.
    while (block()->size > count) {
        delete objects()[--block()->size];
    }
}

type** object_sequence::open(size_type index, size_type count)
{
    const size_type needed = size() + count;
    if (needed > capacity()) {
        // Most sequences of a document have one element.
        reserve(std::max(needed, 2 * capacity()));
    }
    type** const first = objects() + index;
    if (count != 0) {
        std::memmove(first + count, first, (size() - index) * sizeof(type*));
        std::fill_n(first, count, nullptr);
        block()->size = static_cast<std::uint32_t>(needed);
    }
    return first;
}

void object_sequence::appendCopies(size_type count, const type& value)
{
    insertCopies(size(), count, value);
}

void object_sequence::insertCopies(size_type index, size_type count, const type& value)
{
    for (; count != 0; --count) {
        std::unique_ptr<type> copy(value._clone(0, owner()));
        *open(index++, 1) = copy.get();
        static_cast<void>(copy.release());
    }
}

void object_sequence::erase(size_type first, size_type last)
{
    for (size_type i = first; i < last; ++i) {
        delete objects()[i];
    }
    if (first < last) {
        std::memmove(objects() + first, objects() + last, (size() - last) * sizeof(type*));
        block()->size -= static_cast<std::uint32_t>(last - first);
    }
}

type* object_sequence::release(size_type index)
{
    type* const value = objects()[index];
    value->_container(nullptr);
    objects()[index] = nullptr;
    return value;
}

} // namespace tree
} // namespace cxx
} // namespace xsd
