#pragma once

#include "PlatformExport.h"

#include <string>

namespace Fondo {

/// The run-time type record of a class below Referenced. There is one record for each class, for the whole
/// process; records are told apart by their address.
///
/// A class with a record of its own adds two operations:
/// \code
/// static const Fondo::ClassType& classType();               // in the .cpp: a function-local static record
/// const Fondo::ClassType& getType() const override { return classType(); }
/// \endcode
class TOLVIK_PLATFORM_EXPORT ClassType
{
public:
    /// \param name name of the class
    /// \param base record of the nearest base class with a record, or null for the root; it must outlive this
    ClassType(std::string name, const ClassType* base);

    ClassType(const ClassType&) = delete;
    ClassType& operator=(const ClassType&) = delete;

    /// Name of the class.
    const std::string& name() const { return className; }

    /// Whether this is \a other or the record of a class derived from it.
    bool isOfType(const ClassType& other) const;

private:
    std::string className;
    const ClassType* baseType;
};

} // namespace Fondo
