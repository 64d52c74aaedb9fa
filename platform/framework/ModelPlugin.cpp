#include "framework/ModelPlugin.h"

namespace tolvik {

ModelPlugin::~ModelPlugin() = default;

} // namespace tolvik
