#include "framework/OperationListener.h"

namespace tolvik {

OperationListener::~OperationListener() = default;

} // namespace tolvik
