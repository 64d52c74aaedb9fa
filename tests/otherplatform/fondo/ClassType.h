#pragma once

namespace Fondo {

/// A record that tells classes apart by its address.
class ClassType
{
};

} // namespace Fondo
