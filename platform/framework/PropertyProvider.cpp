#include "framework/PropertyProvider.h"

namespace tolvik {

PropertyProvider::~PropertyProvider() = default;

} // namespace tolvik
