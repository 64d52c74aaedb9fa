#include "apps/viewer/exchange/TableCommands.h"

#include "apps/tables/TableExchange.h"
#include "apps/viewer/document/Document.h"
#include "apps/viewer/edits/EditGroup.h"
#include "apps/viewer/exchange/ExportDialog.h"
#include "apps/viewer/exchange/ImportDialog.h"
#include "apps/viewer/exchange/TableEdits.h"
#include "apps/viewer/log/LogModel.h"
#include "apps/viewer/table/AttributeTable.h"

#include <QFileDialog>
#include <QFileInfo>
#include <stdexcept>

namespace tolvik::viewer {

TableCommands::TableCommands(Document& document, const AttributeTable& shown, QWidget& window)
    : QObject(&window), document(document), shown(shown), window(window)
{
}

TableCommands::~TableCommands() = default;

void TableCommands::exportTable()
{
    try {
        ExportDialog dialog(document, tables::TableExchange::load(), {shown.type(), shown.columns()},
                            &window);
        if (dialog.exec() == QDialog::Accepted) {
            tell(tr("%1 is written.").arg(QFileInfo(dialog.path()).fileName()), dialog.remarks());
        }
    } catch (const std::runtime_error& error) {
        emit told(LogModel::Error, QString::fromUtf8(error.what()));
    }
}

void TableCommands::importTable()
{
    const QString path = QFileDialog::getOpenFileName(
        &window, tr("Import Table"), QFileInfo(document.fileName()).path(),
        tr("Tables (*.csv *.gpkg *.geojson *.geojsonl *.fgb *.xlsx *.ods *.dbf);;All files (*)"));
    if (path.isEmpty()) {
        return;
    }
    const QString name = QFileInfo(path).fileName();
    try {
        ImportDialog dialog(document, tables::TableExchange::load(), path, &window);
        if (dialog.exec() == QDialog::Accepted) {
            perform(dialog, name);
        }
    } catch (const std::runtime_error& error) {
        emit told(LogModel::Error,
                  tr("%1 could not be imported: %2").arg(name, QString::fromUtf8(error.what())));
    }
}

/// Does what was planned, which may go on beside the window.
void TableCommands::perform(const ImportDialog& dialog, const QString& name)
{
    EditRunner& runner = document.editRunner();
    const int cells = static_cast<int>(dialog.changes().size());
    const int before = document.undoStack().index();
    const auto end = [this, name, cells, remarks = dialog.remarks(), before](const QString& refusal) {
        const bool isCancelled = refusal.isEmpty() && document.undoStack().index() == before;
        if (isCancelled) {
            return;
        }
        if (refusal.isEmpty()) {
            //: Name of a file
            tell(tr("%Ln cell(s) of %1 are imported.", nullptr, cells).arg(name), remarks);
        } else {
            emit told(LogModel::Error, tr("%1 could not be imported: %2").arg(name, refusal));
        }
    };
    const QString refusal =
        runner.perform(tableEdit(document, tr("import of %1").arg(name), dialog.changes()));
    if (!runner.isRunning()) {
        end(refusal);
        return;
    }
    auto* const running = new QObject(this);
    connect(&runner, &EditRunner::ended, running, [running, end](const QString& reason) {
        running->deleteLater();
        end(reason);
    });
}

void TableCommands::tell(const QString& done, const QStringList& remarks)
{
    for (const QString& remark : remarks) {
        emit told(LogModel::Warning, remark);
    }
    emit told(LogModel::Information, done);
}

} // namespace tolvik::viewer
