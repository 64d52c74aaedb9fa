#include "apps/tables/TableExchange.h"
#include "apps/tables/TableExport.h"

namespace {

namespace tables = tolvik::tables;

class Exchange : public tables::TableExchange
{
public:
    std::unique_ptr<tables::DocumentTables> write(const tables::ExportOptions& options) const override
    {
        return std::make_unique<tables::TableExport>(options);
    }

    std::vector<tables::EditTable> read(const tables::EditSource& source, QStringList& remarks) const override
    {
        return tables::readTables(source, remarks);
    }

    QStringList columns(const QString& path) const override { return tables::columnsOf(path); }
};

} // namespace

extern "C" __attribute__((visibility("default"))) const tables::TableExchange* tolvikTableExchange();

/// The entry of the module for the desktop program.
const tables::TableExchange* tolvikTableExchange()
{
    static const Exchange exchange;
    return &exchange;
}
