#pragma once

#include "apps/tables/TableExchange.h"
#include "apps/tables/TableImport.h"
#include "apps/viewer/features/SlicedWork.h"

#include <memory>
#include <QDialog>
#include <QFutureWatcher>
#include <QTimer>
#include <vector>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QProgressBar;
class QPushButton;
class QTableView;

namespace tolvik::viewer {

class Document;
class ImportPreview;

/// Shows what a table would change in the document. The table is read in a thread of its own, and features
/// are looked at in slices.
class ImportDialog : public QDialog
{
    Q_OBJECT

public:
    /// \param path     what OGR opens
    /// \param exchange lives longer
    /// \throws tables::TableError where the table cannot be read
    ImportDialog(Document& document, const tables::TableExchange& exchange, const QString& path,
                 QWidget* parent = nullptr);
    ~ImportDialog() override;

    /// What of the table was left out, a line each.
    const QStringList& remarks() const { return contents.remarks; }
    /// What it changes. To be called when it is accepted.
    const std::vector<tables::PlannedChange>& changes() const;

private:
    struct Contents
    {
        std::vector<tables::EditTable> tables;
        QStringList remarks;
        QString error; ///< empty where the table could be read
    };

    void makeOptions(const QStringList& columns);
    void makePreview();
    void makeButtons();
    void read();
    void planSoon();
    void plan();
    void showPlan();
    void stop();
    void show(int done, int steps);
    void tell(const QString& text);
    void updateButtons();

    Document& document;
    const tables::TableExchange& exchange;
    const QString path;
    QComboBox* idColumn;
    QCheckBox* create;
    QLineEdit* absentWord;
    QCheckBox* skipBad;
    QTableView* view;
    QLabel* message;
    QProgressBar* progress;
    QPushButton* importButton;

    QFutureWatcher<Contents> reading;
    Contents contents;
    std::unique_ptr<tables::TableImport> import;
    ImportPreview* preview;
    std::vector<tables::PlannedChange> found; ///< since the preview was last given some
    bool isPlanned = false;
    QTimer planTimer;
    SlicedWork work;
};

} // namespace tolvik::viewer
