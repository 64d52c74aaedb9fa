#pragma once

#include "apps/viewer/features/SlicedWork.h"
#include "apps/viewer/table/AttributeTableModel.h"
#include "apps/viewer/table/SelectionFigures.h"

#include <QTimer>
#include <QUrl>
#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QTableView;

namespace tolvik::viewer {

class Document;

/// The attributes of all features of one type in a table that can be sorted, filtered and edited, with
/// figures of the selected numbers below.
class AttributeTable : public QWidget
{
    Q_OBJECT

public:
    /// \param document shown; lives longer than the table
    explicit AttributeTable(Document& document, QWidget* parent = nullptr);
    ~AttributeTable() override;

    /// Shows the features of a type, if the document has any.
    void showType(const QString& type);

    /// The type of the features that it shows; empty for none.
    QString type() const;
    const QVector<PropertyPath>& columns() const { return model->columns(); }

public slots:
    /// Puts the selected cells on the clipboard, as text with tabs between them.
    void copy();
    /// The same, with the names of the columns in the first line.
    void copyWithTitles();
    /// Lets the user choose the columns.
    void chooseColumns();
    /// Selects the features of the selected cells in the document.
    void selectFeatures();

signals:
    /// A link was clicked. One that is a fragment alone names a feature.
    void linkActivated(const QUrl& link);

protected:
    void showEvent(QShowEvent* event) override;

private:
    /// Selected cells of one row, side by side.
    struct CellRun
    {
        int row;
        int first;
        int last;
    };

    void makeHeader();
    void makeTable();
    void refreshSoon();
    void stop();
    void fillTypes();
    void useType();
    void findColumns();
    void setColumns(const QVector<PropertyPath>& columns);
    QVector<PropertyPath> shownColumns() const;
    void figureSoon();
    void beginFigures();
    void figure(const CellRun& run);
    void showFigures();
    void copyCells(bool withTitles);
    QVector<CellRun> selectedCells() const;
    void tell(const QString& text);

    Document& document;
    AttributeTableModel* model;
    QTableView* view;
    QComboBox* types;
    QLineEdit* filterLine;
    QLabel* message;
    QLabel* figuresLabel;

    QVector<PropertyPath> allColumns;
    QVector<bool> usedColumns;
    QTimer filterTimer;
    QTimer refreshTimer;
    QTimer figureTimer;
    /// Whether the document has changed since the types were looked for.
    bool isStale = true;
    SlicedWork columnSearch;
    SlicedWork figuring;
    QVector<CellRun> figured;
    SelectionFigures figures;
};

} // namespace tolvik::viewer
