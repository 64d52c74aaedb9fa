#pragma once

#include "BindingExport.h"

#include <utility>

namespace citygml {

/// What the rare pointers of the process point to. An entry is made, found and given up in any thread.
/// \param pointer address of the rare pointer
/// @{
/// \return null where it points to nothing
TOLVIK_BINDING_EXPORT void* rareObject(const void* pointer);
/// \param object null ends the entry
TOLVIK_BINDING_EXPORT void setRareObject(const void* pointer, void* object);
/// @}

/// Owns an object as std::auto_ptr does, for members that nearly always own none: it takes one byte. What it
/// owns stands in a table by the pointer's address, so that a use takes a look-up.
template <class T>
class RarePointer
{
public:
    /// Takes the object, which may be null, as its own.
    explicit RarePointer(T* object = nullptr) { reset(object); }

    /// Takes the object of the other pointer over, and changes that one, as std::auto_ptr does. Throws
    /// std::bad_alloc where the table cannot grow.
    /// @{
    // NOLINTBEGIN(performance-noexcept-move-constructor, misc-unconventional-assign-operator): see above
    RarePointer(RarePointer&& other) : RarePointer(other.release()) {}
    RarePointer& operator=(RarePointer&& other)
    {
        reset(other.release());
        return *this;
    }
    RarePointer& operator=(RarePointer& other) { return *this = std::move(other); }
    // NOLINTEND(performance-noexcept-move-constructor, misc-unconventional-assign-operator)
    /// @}

    ~RarePointer() { reset(); }

    /// The object, or null.
    T* get() const { return owns ? static_cast<T*>(rareObject(this)) : nullptr; }

    /// The object, which must be there.
    /// @{
    T& operator*() const { return *get(); }
    T* operator->() const { return get(); }
    /// @}

    /// Gives the object up without deleting it.
    T* release()
    {
        T* const object = get();
        hold(nullptr);
        return object;
    }

    /// Owns another object, or none, and deletes the present one.
    void reset(T* object = nullptr)
    {
        T* const former = get();
        if (former != object) {
            hold(object);
            delete former;
        }
    }

private:
    void hold(T* object)
    {
        if (owns || object != nullptr) {
            setRareObject(this, object);
            owns = object != nullptr;
        }
    }

    bool owns = false;
};

} // namespace citygml
