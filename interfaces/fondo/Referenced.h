#pragma once

#include "PlatformExport.h"

#include <string>

namespace Fondo {

class ClassType;

/// Base of objects that are shared by an intrusive reference count.
///
/// The count starts at 0, so a new object belongs to nobody until the first RefPtr takes it. It is not
/// atomic: an object and all its RefPtr live on one thread. An object on the stack must never be given to a
/// RefPtr.
class TOLVIK_PLATFORM_EXPORT Referenced
{
public:
    Referenced() = default;

    /// A copy is a new object: nobody refers to it yet.
    Referenced(const Referenced&) {}

    /// References belong to the object, not to its value: the count stays.
    Referenced& operator=(const Referenced&) { return *this; }

    /// Name of the object's class, as its type record tells it.
    virtual const std::string& type() const;

    /// Type record of the object's class.
    virtual const ClassType& getType() const;

    /// Whether the object's class is the one that \a other records, or is derived from it.
    virtual bool isOfType(const ClassType& other) const;

    virtual ~Referenced();

    /// Type record of Referenced itself.
    static const ClassType& classType();

    /// Takes one reference.
    void ref() const { ++references; }

    /// Gives one reference up, and deletes the object with the last one.
    void unref() const;

    /// How many references there are.
    int referenceCount() const { return references; }

private:
    mutable int references = 0;
};

} // namespace Fondo
