#pragma once

#include "PlatformExport.h"

#include <QString>

namespace tolvik {

class SingleUnit;

/// Hands out units, one for each name. They live as long as the process.
class TOLVIK_PLATFORM_EXPORT UnitCreator
{
public:
    /// The shared unit of that name. The two numbers count where the name is asked for the first time; later
    /// calls give the unit as it was made then.
    /// \param name     the unit as it is written; names differ by case
    /// \param exponent power of ten of the multiple, see SingleUnit
    /// \param power    power to which the multiple is raised, see SingleUnit
    /// \return never null; not owned by the caller
    static SingleUnit* getOrCreateSingleUnit(const QString& name, int exponent, int power);
};

} // namespace tolvik
