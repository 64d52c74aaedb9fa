#pragma once

#include "PlatformExport.h"

#include <QString>

namespace tolvik {

/// A unit of measure, as a property shows it. Units are shared and never owned by properties.
class TOLVIK_PLATFORM_EXPORT AbstractUnit
{
public:
    AbstractUnit() = default;
    AbstractUnit(const AbstractUnit&) = delete;
    AbstractUnit& operator=(const AbstractUnit&) = delete;
    virtual ~AbstractUnit();

    /// The unit as it is written behind a number.
    virtual QString name() const = 0;

    /// \param value a number in this unit
    /// \return the same quantity in the unit's SI unit
    virtual double toSI(double value) const = 0;

    /// The inverse of toSI().
    virtual double fromSI(double value) const = 0;
};

} // namespace tolvik
