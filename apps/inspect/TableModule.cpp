#include "TableModule.h"

#include "apps/common/ProgramModule.h"

namespace tolvik::inspect {

TableModule& TableModule::load()
{
    using Instance = TableModule* (*)();
    return *reinterpret_cast<Instance>(apps::moduleEntry("tolvik-tables", "tolvikTableModule"))();
}

} // namespace tolvik::inspect
