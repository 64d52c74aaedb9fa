#include "framework/ModelInterface.h"

namespace tolvik {

ModelInterface::~ModelInterface() = default;

bool ModelInterface::envelope(const CoreModel& /*model*/, double (&/*lower*/)[3],
                              double (&/*upper*/)[3]) const
{
    return false;
}

} // namespace tolvik
