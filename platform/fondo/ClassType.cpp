#include "fondo/ClassType.h"

#include <utility>

namespace Fondo {

ClassType::ClassType(std::string name, const ClassType* base) : className(std::move(name)), baseType(base) {}

bool ClassType::isOfType(const ClassType& other) const
{
    for (const ClassType* record = this; record != nullptr; record = record->baseType) {
        if (record == &other) {
            return true;
        }
    }
    return false;
}

} // namespace Fondo
