#include "framework/AbstractUnit.h"

namespace tolvik {

AbstractUnit::~AbstractUnit() = default;

} // namespace tolvik
