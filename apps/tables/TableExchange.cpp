#include "apps/tables/TableExchange.h"

#include "apps/common/ProgramModule.h"

namespace tolvik::tables {

const TableExchange& TableExchange::load()
{
    using Instance = const TableExchange* (*)();
    return *reinterpret_cast<Instance>(apps::moduleEntry("tolvik-tables", "tolvikTableExchange"))();
}

} // namespace tolvik::tables
