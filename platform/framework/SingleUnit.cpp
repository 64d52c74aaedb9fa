#include "framework/SingleUnit.h"

#include <cmath>
#include <utility>

namespace tolvik {

SingleUnit::SingleUnit(QString name, int exponent, int power)
    : unitName(std::move(name)), decimalExponent(exponent), unitPower(power)
{
}

SingleUnit::~SingleUnit() = default;

QString SingleUnit::name() const
{
    return unitName;
}

double SingleUnit::toSI(double value) const
{
    // Whole powers of ten are exact where a negative power is not, so a fraction is divided.
    const int scale = decimalExponent * unitPower;
    return scale < 0 ? value / std::pow(10.0, -scale) : value * std::pow(10.0, scale);
}

double SingleUnit::fromSI(double value) const
{
    const int scale = decimalExponent * unitPower;
    return scale < 0 ? value * std::pow(10.0, -scale) : value / std::pow(10.0, scale);
}

} // namespace tolvik
