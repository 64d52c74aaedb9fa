#include "ApplyCommand.h"
#include "TableCommand.h"
#include "TableModule.h"

namespace {

class Commands : public tolvik::inspect::TableModule
{
public:
    int writeTables(const tolvik::inspect::TableOptions& options,
                    const tolvik::inspect::TableDocuments& documents) override
    {
        return tolvik::inspect::runTable(options, documents);
    }

    int joinColumns(const QString& out, const tolvik::inspect::TableDocuments& files) override
    {
        return tolvik::inspect::runColumns(out, files);
    }

    int applyTables(const tolvik::inspect::ApplyOptions& options,
                    const tolvik::inspect::TableDocuments& documents) override
    {
        return tolvik::inspect::runApply(options, documents);
    }
};

} // namespace

extern "C" __attribute__((visibility("default"))) tolvik::inspect::TableModule* tolvikTableModule();

/// The entry of the module for the terminal tool.
tolvik::inspect::TableModule* tolvikTableModule()
{
    static Commands commands;
    return &commands;
}
