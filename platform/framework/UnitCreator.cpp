#include "framework/UnitCreator.h"

#include "framework/SingleUnit.h"

#include <QHash>

namespace tolvik {

SingleUnit* UnitCreator::getOrCreateSingleUnit(const QString& name, int exponent, int power)
{
    // Never destroyed: properties in objects of static lifetime may still point to units.
    static auto* const units = new QHash<QString, SingleUnit*>;
    SingleUnit*& unit = (*units)[name];
    if (unit == nullptr) {
        unit = new SingleUnit(name, exponent, power);
    }
    return unit;
}

} // namespace tolvik
