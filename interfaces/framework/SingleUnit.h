#pragma once

#include "framework/AbstractUnit.h"

namespace tolvik {

/// A unit that is a power of a decimal multiple of an SI unit: "km" is (3, 1), "cm2" is (-2, 2). A unit of
/// which nothing but the name is known is (0, 1), and counts as its own SI unit.
class TOLVIK_PLATFORM_EXPORT SingleUnit : public AbstractUnit
{
public:
    /// \param name     the unit as it is written
    /// \param exponent power of ten of the multiple
    /// \param power    power to which the multiple is raised
    SingleUnit(QString name, int exponent, int power);
    ~SingleUnit() override;

    QString name() const override;
    double toSI(double value) const override;
    double fromSI(double value) const override;

    /// Power of ten of the multiple.
    int exponent() const { return decimalExponent; }

    /// Power to which the multiple is raised.
    int power() const { return unitPower; }

private:
    QString unitName;
    int decimalExponent;
    int unitPower;
};

} // namespace tolvik
