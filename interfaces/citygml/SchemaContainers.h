#pragma once

// Takes the place of the run-time's <xsd/cxx/tree/containers.hxx>; include that instead. It has the same
// classes for the members of schema classes, with the same operations, but one word each where a member holds
// objects. A city model is millions of mostly empty members, and with the run-time's own (24 bytes for an
// optional one, 40 for a sequence) they are most of its memory.

#include "BindingExport.h"

#include <xsd/cxx/config.hxx>
#include <xsd/cxx/tree/elements.hxx>

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <ostream>
#include <stdexcept>
#include <type_traits>
#include <vector>

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations" // std::auto_ptr, which the schema classes speak

namespace xsd {
namespace cxx {
namespace tree {

// Found as if they stood in the namespace of the run-time, but with other symbols: a program may link a
// second binding, which has the run-time's own.
inline namespace slim {

/// Whether a value is held as it is. Values of all other types are objects that know their container.
template <typename T>
struct fundamental_p
{
    static const bool r = std::is_arithmetic<T>::value;
};

/// What stands at the address that a word is.
template <typename T>
T* addressed(std::uintptr_t word)
{
    return reinterpret_cast<T*>(word); // NOLINT(performance-no-int-to-ptr): it was made from a pointer
}

/// What members that hold at most one object have in common: a word that is the object, or, as long as there
/// is none, the container of the member, marked by its lowest bit. An object itself knows the container.
class TOLVIK_BINDING_EXPORT single_object
{
public:
    bool present() const { return (word & emptyMark) == 0; }

protected:
    explicit single_object(container* owner) : word(empty(owner)) {}
    single_object(const single_object&) = delete;
    single_object& operator=(const single_object&) = delete;
    ~single_object()
    {
        if (present()) {
            delete object();
        }
    }

    type* object() const { return addressed<type>(word); }
    container* owner() const;
    /// Takes a copy in place of what is there.
    void setCopy(const type& value, flags f);
    /// Takes an object that has the right container already, or null.
    void replace(type* value);
    /// Leaves the member empty.
    /// \return what was there, without a container
    type* release();

private:
    static constexpr std::uintptr_t emptyMark = 1;
    static std::uintptr_t empty(container* owner)
    {
        return reinterpret_cast<std::uintptr_t>(owner) | emptyMark;
    }

    std::uintptr_t word;
};

template <typename T>
class single : public single_object
{
public:
    const T& get() const
    {
        assert(present());
        return *pointer();
    }
    T& get()
    {
        assert(present());
        return *pointer();
    }

    void set(const T& value) { setCopy(value, 0); }
    /// Takes ownership; null leaves the member empty.
    void set(std::auto_ptr<T> value)
    {
        if (value.get() != nullptr && value->_container() != owner()) {
            value->_container(owner());
        }
        replace(value.release());
    }
    std::auto_ptr<T> detach() { return std::auto_ptr<T>(static_cast<T*>(release())); }

protected:
    explicit single(container* owner) : single_object(owner) {}
    single(const single& other, flags f, container* owner) : single_object(owner)
    {
        if (other.present()) {
            setCopy(other.get(), f);
        }
    }
    single& operator=(const single& other)
    {
        if (this == &other) {
            return *this;
        }
        if (other.present()) {
            setCopy(other.get(), 0);
        } else {
            replace(nullptr);
        }
        return *this;
    }

    T* pointer() const { return static_cast<T*>(object()); }
};

/// A member that the schema requires. It is empty only while nobody has set it.
template <typename T, bool fundamental = fundamental_p<T>::r>
class one;

template <typename T>
class one<T, false> : public single<T>
{
public:
    explicit one(container* owner) : single<T>(owner) {}
    one(const T& value, container* owner) : single<T>(owner) { this->set(value); }
    one(std::auto_ptr<T> value, container* owner) : single<T>(owner) { this->set(value); }
    one(const one& other, flags f, container* owner) : single<T>(other, f, owner) {}
    one& operator=(const one& other) = default;
};

template <typename T>
class one<T, true>
{
public:
    explicit one(container*) {}
    one(const T& value, container*) : value(value), isSet(true) {}
    one(const one& other, flags, container*) : one(other) {}
    one(const one& other) = default;
    one& operator=(const one& other) = default;

    const T& get() const { return value; }
    T& get() { return value; }
    void set(const T& newValue)
    {
        value = newValue;
        isSet = true;
    }
    bool present() const { return isSet; }

    /// The member that holds a value, from a reference that one of its `get` returned. Writing through such a
    /// reference does not make an empty member present, `set` does.
    /// @{
    static const one& holding(const T& value) { return reinterpret_cast<const one&>(value); }
    static one& holding(T& value) { return reinterpret_cast<one&>(value); }
    /// @}

private:
    // The first field, so that its address is the member's.
    T value = T();
    bool isSet = false;
};

/// A member that may be absent. `get` and the two pointer operators need a present one.
template <typename T, bool fundamental = fundamental_p<T>::r>
class optional;

template <typename T>
class optional<T, false> : public single<T>
{
public:
    explicit optional(container* owner = nullptr) : single<T>(owner) {}
    explicit optional(const T& value, container* owner = nullptr) : single<T>(owner) { this->set(value); }
    explicit optional(std::auto_ptr<T> value, container* owner = nullptr) : single<T>(owner)
    {
        this->set(value);
    }
    optional(const optional& other, flags f = 0, container* owner = nullptr) : single<T>(other, f, owner) {}

    optional& operator=(const T& value)
    {
        if (!this->present() || &this->get() != &value) {
            this->set(value);
        }
        return *this;
    }
    optional& operator=(const optional& other) = default;

    const T* operator->() const { return this->pointer(); }
    T* operator->() { return this->pointer(); }
    const T& operator*() const { return this->get(); }
    T& operator*() { return this->get(); }
    explicit operator bool() const { return this->present(); }

    void reset() { this->replace(nullptr); }
};

template <typename T>
class optional<T, true>
{
public:
    explicit optional(container* = nullptr) {}
    explicit optional(const T& value, container* = nullptr) : value(value), isSet(true) {}
    optional(const optional& other, flags, container* = nullptr) : optional(other) {}
    optional(const optional& other) = default;

    optional& operator=(const T& newValue)
    {
        set(newValue);
        return *this;
    }
    optional& operator=(const optional& other) = default;

    const T* operator->() const { return &value; }
    T* operator->() { return &value; }
    const T& operator*() const { return value; }
    T& operator*() { return value; }
    explicit operator bool() const { return isSet; }

    bool present() const { return isSet; }
    const T& get() const { return value; }
    T& get() { return value; }
    void set(const T& newValue)
    {
        value = newValue;
        isSet = true;
    }
    void reset() { isSet = false; }

private:
    T value = T();
    bool isSet = false;
};

template <typename T, bool fundamental>
bool operator==(const optional<T, fundamental>& a, const optional<T, fundamental>& b)
{
    return a.present() && b.present() ? *a == *b : a.present() == b.present();
}
template <typename T, bool fundamental>
bool operator!=(const optional<T, fundamental>& a, const optional<T, fundamental>& b)
{
    return !(a == b);
}
template <typename T, bool fundamental>
bool operator<(const optional<T, fundamental>& a, const optional<T, fundamental>& b)
{
    return b.present() && (!a.present() || *a < *b);
}
template <typename T, bool fundamental>
bool operator>(const optional<T, fundamental>& a, const optional<T, fundamental>& b)
{
    return b < a;
}
template <typename T, bool fundamental>
bool operator<=(const optional<T, fundamental>& a, const optional<T, fundamental>& b)
{
    return !(b < a);
}
template <typename T, bool fundamental>
bool operator>=(const optional<T, fundamental>& a, const optional<T, fundamental>& b)
{
    return !(a < b);
}

/// What sequences of objects have in common: a word that is a block of pointers to the objects, or, as long
/// as there was none, the container of the member, marked by its lowest bit.
class TOLVIK_BINDING_EXPORT object_sequence
{
public:
    typedef std::size_t size_type;
    typedef std::ptrdiff_t difference_type;

    size_type size() const { return hasBlock() ? block()->size : 0; }
    size_type capacity() const { return hasBlock() ? block()->capacity : 0; }
    size_type max_size() const { return UINT32_MAX; }
    bool empty() const { return size() == 0; }
    void reserve(size_type count);
    void clear() { truncate(0); }
    void pop_back() { truncate(size() - 1); }

protected:
    explicit object_sequence(container* owner) : word(reinterpret_cast<std::uintptr_t>(owner) | emptyMark) {}
    object_sequence(const object_sequence& other, flags f, container* owner);
    object_sequence(const object_sequence&) = delete;
    object_sequence& operator=(const object_sequence& other);
    ~object_sequence();

    type** objects() const { return hasBlock() ? reinterpret_cast<type**>(block() + 1) : nullptr; }
    container* owner() const { return hasBlock() ? block()->owner : addressed<container>(word & ~emptyMark); }
    type* slot(size_type index) const
    {
        if (index >= size()) {
            throw std::out_of_range("no such element in a sequence of a schema object");
        }
        return objects()[index];
    }

    void truncate(size_type count);
    void appendCopies(size_type count, const type& value);
    /// Makes room for \a count null pointers at \a index.
    /// \return the first of them
    type** open(size_type index, size_type count);
    void insertCopies(size_type index, size_type count, const type& value);
    /// Takes ownership of the object, which has the right container already.
    void insertOwned(size_type index, type* value) { *open(index, 1) = value; }
    void erase(size_type first, size_type last);
    /// \return the object, without a container; leaves null in its place.
    type* release(size_type index);
    void swapWords(object_sequence& other) { std::swap(word, other.word); }

private:
    struct Block
    {
        container* owner;
        std::uint32_t size;
        std::uint32_t capacity;
    };
    static constexpr std::uintptr_t emptyMark = 1;

    bool hasBlock() const { return (word & emptyMark) == 0; }
    Block* block() const { return addressed<Block>(word); }

    std::uintptr_t word;
};

/// Goes over the objects of a sequence; \a T is const for one that only reads.
template <typename T>
class sequence_iterator
{
public:
    typedef std::random_access_iterator_tag iterator_category;
    typedef typename std::remove_const<T>::type value_type;
    typedef std::ptrdiff_t difference_type;
    typedef T* pointer;
    typedef T& reference;

    sequence_iterator() = default;
    explicit sequence_iterator(type** slot) : slot(slot) {}
    operator sequence_iterator<const T>() const { return sequence_iterator<const T>(slot); }

    reference operator*() const { return static_cast<T&>(**slot); }
    pointer operator->() const { return static_cast<T*>(*slot); }
    reference operator[](difference_type n) const { return static_cast<T&>(*slot[n]); }
    type** base() const { return slot; }

    sequence_iterator& operator++() { return *this += 1; }
    sequence_iterator& operator--() { return *this += -1; }
    sequence_iterator operator++(int) { return sequence_iterator(slot++); }
    sequence_iterator operator--(int) { return sequence_iterator(slot--); }
    sequence_iterator& operator+=(difference_type n)
    {
        slot += n;
        return *this;
    }
    sequence_iterator& operator-=(difference_type n) { return *this += -n; }
    friend sequence_iterator operator+(sequence_iterator i, difference_type n) { return i += n; }
    friend sequence_iterator operator+(difference_type n, sequence_iterator i) { return i += n; }
    friend sequence_iterator operator-(sequence_iterator i, difference_type n) { return i -= n; }

private:
    type** slot = nullptr;
};

template <typename A, typename B>
std::ptrdiff_t operator-(const sequence_iterator<A>& a, const sequence_iterator<B>& b)
{
    return a.base() - b.base();
}
template <typename A, typename B>
bool operator==(const sequence_iterator<A>& a, const sequence_iterator<B>& b)
{
    return a.base() == b.base();
}
template <typename A, typename B>
bool operator!=(const sequence_iterator<A>& a, const sequence_iterator<B>& b)
{
    return a.base() != b.base();
}
template <typename A, typename B>
bool operator<(const sequence_iterator<A>& a, const sequence_iterator<B>& b)
{
    return a.base() < b.base();
}
template <typename A, typename B>
bool operator>(const sequence_iterator<A>& a, const sequence_iterator<B>& b)
{
    return b < a;
}
template <typename A, typename B>
bool operator<=(const sequence_iterator<A>& a, const sequence_iterator<B>& b)
{
    return !(b < a);
}
template <typename A, typename B>
bool operator>=(const sequence_iterator<A>& a, const sequence_iterator<B>& b)
{
    return !(a < b);
}

/// A member that may stand any number of times. It owns its objects; what is added by reference is copied.
template <typename T, bool fundamental = fundamental_p<T>::r>
class sequence;

template <typename T>
class sequence<T, false> : public object_sequence
{
public:
    typedef T value_type;
    typedef T* pointer;
    typedef const T* const_pointer;
    typedef T& reference;
    typedef const T& const_reference;
    typedef sequence_iterator<T> iterator;
    typedef sequence_iterator<const T> const_iterator;
    typedef std::reverse_iterator<iterator> reverse_iterator;
    typedef std::reverse_iterator<const_iterator> const_reverse_iterator;

    explicit sequence(container* owner = nullptr) : object_sequence(owner) {}
    explicit sequence(size_type count, container* owner = nullptr) : sequence(count, T(), owner) {}
    sequence(size_type count, const T& value, container* owner = nullptr) : object_sequence(owner)
    {
        appendCopies(count, value);
    }
    template <typename I, typename = typename std::iterator_traits<I>::iterator_category>
    sequence(const I& first, const I& last, container* owner = nullptr) : object_sequence(owner)
    {
        assign(first, last);
    }
    sequence(const sequence& other, flags f = 0, container* owner = nullptr)
        : object_sequence(other, f, owner)
    {
    }
    sequence& operator=(const sequence& other) = default;

    void assign(size_type count, const T& value)
    {
        clear();
        appendCopies(count, value);
    }
    template <typename I, typename = typename std::iterator_traits<I>::iterator_category>
    void assign(const I& first, const I& last)
    {
        clear();
        insert(end(), first, last);
    }
    void resize(size_type count) { resize(count, T()); }
    void resize(size_type count, const T& value)
    {
        if (count < size()) {
            truncate(count);
        } else {
            appendCopies(count - size(), value);
        }
    }

    const_iterator begin() const { return const_iterator(objects()); }
    const_iterator end() const { return const_iterator(objects() + size()); }
    iterator begin() { return iterator(objects()); }
    iterator end() { return iterator(objects() + size()); }
    const_reverse_iterator rbegin() const { return const_reverse_iterator(end()); }
    const_reverse_iterator rend() const { return const_reverse_iterator(begin()); }
    reverse_iterator rbegin() { return reverse_iterator(end()); }
    reverse_iterator rend() { return reverse_iterator(begin()); }

    T& operator[](size_type index) { return static_cast<T&>(*objects()[index]); }
    const T& operator[](size_type index) const { return static_cast<const T&>(*objects()[index]); }
    T& at(size_type index) { return static_cast<T&>(*slot(index)); }
    const T& at(size_type index) const { return static_cast<const T&>(*slot(index)); }
    T& front() { return (*this)[0]; }
    const T& front() const { return (*this)[0]; }
    T& back() { return (*this)[size() - 1]; }
    const T& back() const { return (*this)[size() - 1]; }

    void push_back(const T& value) { insertCopies(size(), 1, value); }
    /// Takes ownership.
    void push_back(std::auto_ptr<T> value) { insert(end(), value); }
    /// \param pop whether the place goes too; else it holds no object
    std::auto_ptr<T> detach_back(bool pop = true)
    {
        std::auto_ptr<T> result(static_cast<T*>(release(size() - 1)));
        if (pop) {
            pop_back();
        }
        return result;
    }

    iterator insert(iterator position, const T& value)
    {
        const difference_type index = position - begin();
        insertCopies(static_cast<size_type>(index), 1, value);
        return begin() + index;
    }
    /// Takes ownership.
    iterator insert(iterator position, std::auto_ptr<T> value)
    {
        const difference_type index = position - begin();
        if (value->_container() != owner()) {
            value->_container(owner());
        }
        insertOwned(static_cast<size_type>(index), value.get());
        value.release();
        return begin() + index;
    }
    void insert(iterator position, size_type count, const T& value)
    {
        insertCopies(static_cast<size_type>(position - begin()), count, value);
    }
    template <typename I, typename = typename std::iterator_traits<I>::iterator_category>
    void insert(iterator position, const I& first, const I& last)
    {
        size_type index = static_cast<size_type>(position - begin());
        for (I i(first); i != last; ++i) {
            insertCopies(index++, 1, *i);
        }
    }

    iterator erase(iterator position) { return erase(position, position + 1); }
    iterator erase(iterator first, iterator last)
    {
        const difference_type index = first - begin();
        object_sequence::erase(static_cast<size_type>(index), static_cast<size_type>(last - begin()));
        return begin() + index;
    }
    /// Gives the object to \a result.
    /// \param eraseToo whether its position goes too; else that holds no object
    iterator detach(iterator position, std::auto_ptr<T>& result, bool eraseToo = true)
    {
        result.reset(static_cast<T*>(release(static_cast<size_type>(position - begin()))));
        return eraseToo ? erase(position) : ++position;
    }

    /// \param other has the same container
    void swap(sequence& other)
    {
        assert(owner() == other.owner());
        swapWords(other);
    }
};

template <typename T>
class sequence<T, true> : public std::vector<T>
{
public:
    explicit sequence(container* = nullptr) {}
    explicit sequence(typename std::vector<T>::size_type count, const T& value = T(), container* = nullptr)
        : std::vector<T>(count, value)
    {
    }
    template <typename I, typename = typename std::iterator_traits<I>::iterator_category>
    sequence(const I& first, const I& last, container* = nullptr) : std::vector<T>(first, last)
    {
    }
    sequence(const sequence& other, flags, container* = nullptr) : std::vector<T>(other) {}
    sequence(const sequence& other) = default;
    sequence& operator=(const sequence& other) = default;
};

template <typename T, bool fundamental>
bool operator==(const sequence<T, fundamental>& a, const sequence<T, fundamental>& b)
{
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin());
}
template <typename T, bool fundamental>
bool operator!=(const sequence<T, fundamental>& a, const sequence<T, fundamental>& b)
{
    return !(a == b);
}
template <typename T, bool fundamental>
void swap(sequence<T, fundamental>& a, sequence<T, fundamental>& b)
{
    a.swap(b);
}

} // namespace slim
} // namespace tree
} // namespace cxx
} // namespace xsd

#pragma GCC diagnostic pop
