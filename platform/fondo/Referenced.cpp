#include "fondo/Referenced.h"

#include "fondo/ClassType.h"

namespace Fondo {

Referenced::~Referenced() = default;

const std::string& Referenced::type() const
{
    return getType().name();
}

const ClassType& Referenced::getType() const
{
    return classType();
}

bool Referenced::isOfType(const ClassType& other) const
{
    return getType().isOfType(other);
}

const ClassType& Referenced::classType()
{
    static const ClassType record("Fondo::Referenced", nullptr);
    return record;
}

void Referenced::unref() const
{
    if (--references == 0) {
        delete this;
    }
}

} // namespace Fondo
