#pragma once

#include <cstddef>
#include <functional>
#include <type_traits>
#include <utility>

namespace Fondo {

/// Shares an object of a class derived from Referenced: holds one reference as long as it points to it.
template <class T>
class RefPtr
{
public:
    RefPtr() = default;

    /// Implicit, so that a new object can be handed over where a RefPtr is expected.
    RefPtr(T* object) : object(object) { acquire(); }

    /// Shares the object of another pointer; one that is moved from points to nothing.
    /// @{
    RefPtr(const RefPtr& other) : object(other.object) { acquire(); }

    RefPtr(RefPtr&& other) noexcept : object(std::exchange(other.object, nullptr)) {}

    template <class U, class = std::enable_if_t<std::is_convertible_v<U*, T*>>>
    RefPtr(const RefPtr<U>& other) : object(other.get())
    {
        acquire();
    }
    /// @}

    ~RefPtr() { release(object); }

    /// Gives the present object up for another one.
    /// @{
    RefPtr& operator=(const RefPtr& other)
    {
        if (this != &other) {
            assign(other.object);
        }
        return *this;
    }

    RefPtr& operator=(RefPtr&& other) noexcept
    {
        if (this != &other) {
            release(std::exchange(object, std::exchange(other.object, nullptr)));
        }
        return *this;
    }

    RefPtr& operator=(T* other)
    {
        assign(other);
        return *this;
    }
    /// @}

    /// The object, or null.
    T* get() const { return object; }

    /// The object, which must be there.
    /// @{
    T& operator*() const { return *object; }
    T* operator->() const { return object; }
    /// @}

    /// Whether there is an object.
    explicit operator bool() const { return object != nullptr; }

private:
    /// Takes the new object before it releases the old one, since the old one may own the new one.
    void assign(T* other)
    {
        if (object != other) {
            T* const old = std::exchange(object, other);
            acquire();
            release(old);
        }
    }

    void acquire() const
    {
        if (object != nullptr) {
            object->ref();
        }
    }

    static void release(T* object)
    {
        if (object != nullptr) {
            object->unref();
        }
    }

    T* object = nullptr;
};

template <class T, class U>
bool operator==(const RefPtr<T>& a, const RefPtr<U>& b)
{
    return a.get() == b.get();
}

template <class T, class U>
bool operator!=(const RefPtr<T>& a, const RefPtr<U>& b)
{
    return a.get() != b.get();
}

template <class T, class U>
bool operator==(const RefPtr<T>& a, const U* b)
{
    return a.get() == b;
}

template <class T, class U>
bool operator!=(const RefPtr<T>& a, const U* b)
{
    return a.get() != b;
}

template <class T>
bool operator==(const RefPtr<T>& a, std::nullptr_t)
{
    return a.get() == nullptr;
}

template <class T>
bool operator!=(const RefPtr<T>& a, std::nullptr_t)
{
    return a.get() != nullptr;
}

template <class T>
bool operator<(const RefPtr<T>& a, const RefPtr<T>& b)
{
    return std::less<T*>()(a.get(), b.get());
}

} // namespace Fondo
