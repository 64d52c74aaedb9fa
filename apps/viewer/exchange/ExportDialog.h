#pragma once

#include "apps/tables/TableExchange.h"
#include "apps/viewer/edits/PropertyPath.h"
#include "apps/viewer/features/SlicedWork.h"

#include <memory>
#include <QDialog>
#include <QFutureWatcher>
#include <QStringList>
#include <QVector>

class QComboBox;
class QLabel;
class QProgressBar;
class QPushButton;

namespace tolvik::viewer {

class Document;

/// Asks which features go into a table and where it goes, and writes it. The features are read in slices, and
/// the file is written in a thread of its own.
class ExportDialog : public QDialog
{
    Q_OBJECT

public:
    /// What the table of attributes shows.
    struct Shown
    {
        QString type; ///< empty where it shows nothing
        QVector<PropertyPath> columns;
    };

    /// \param exchange lives longer
    ExportDialog(Document& document, const tables::TableExchange& exchange, const Shown& shown,
                 QWidget* parent = nullptr);
    ~ExportDialog() override;

    /// Where the table has gone, when the dialog is accepted.
    const QString& path() const { return target; }
    /// What is not in it as it is in the document, and what else is to be told, a line each.
    const QStringList& remarks() const { return told; }

public slots:
    /// Gives an export up that goes on. A file that is being written is written to its end.
    void reject() override;

private:
    void fillTypes();
    void updateColumns();
    QStringList chosenColumns() const;
    void chooseFile();
    void begin(const QString& path);
    void add(int row);
    void finish();
    void fail(const QString& reason);
    void end();
    void setBusy(bool busy);

    Document& document;
    const tables::TableExchange& exchange;
    const Shown shown;
    QComboBox* types;
    QComboBox* columns;
    QLabel* message;
    QProgressBar* progress;
    QPushButton* exportButton;
    QPushButton* cancelButton = nullptr;

    QString target;
    std::unique_ptr<tables::DocumentTables> writer;
    SlicedWork work;
    QFutureWatcher<QString> writing; ///< why the file cannot be written
    QStringList told;
};

} // namespace tolvik::viewer
