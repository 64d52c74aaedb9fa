#pragma once

#include "apps/viewer/features/SlicedWork.h"
#include "apps/viewer/properties/ValueText.h"
#include "apps/viewer/table/AttributeRows.h"

#include <QAbstractTableModel>
#include <QFutureWatcher>
#include <QHash>
#include <string>

namespace tolvik::viewer {

class Document;

/// All features of one type as rows, with attributes of them as columns. Values are read from the document
/// when a view asks for them. Sorting and filtering read all rows, in slices, and sort them beside the
/// window; they take effect at the end of that.
class AttributeTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit AttributeTableModel(Document& document, QObject* parent = nullptr);
    ~AttributeTableModel() override;

    /// Shows the features of a type. Where rows of the document come or go they are to be shown anew, and
    /// before that none.
    /// \param label the features' `typeLabel`; empty for none
    void setType(const std::string& label);
    /// Shows these attributes. The sorting stays if its column does.
    void setColumns(const QVector<PropertyPath>& paths);
    const QVector<PropertyPath>& columns() const { return paths; }
    /// Shows only rows in which a cell has the text; upper and lower case count alike.
    void setFilter(const QString& text);

    /// Number of all features of the type.
    int featureCount() const { return all.size(); }
    /// The row of a feature in the document's model.
    int featureRow(int row) const { return shown[row]; }
    /// Rows of all features of the type in the document's model, in its order.
    const QVector<int>& featureRows() const { return all; }

    /// Gives a value to the attribute of a cell, as a step of the document's history.
    /// \return why it is refused, or nothing
    QString enter(const QModelIndex& index, const QVariant& value);

    /// What the cell holds; it is valid until the next call.
    const AttributeCell& cell(const QModelIndex& index) const;
    /// The whole text of a cell, with its unit.
    QString textOf(const AttributeCell& cell) const;
    /// The values of cells of a row that is passed by once, see AttributeRows::valuesOf().
    QVector<AttributeCell> valuesOf(int row, int firstColumn, int lastColumn) const
    {
        return rows.valuesOf(shown[row], firstColumn, lastColumn);
    }

    bool isBusy() const { return work.isRunning() || sorting.isRunning(); }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

signals:
    /// How far sorting and filtering have come with reading.
    void progressed(int done, int count);
    /// A sorting or filtering shows.
    void arranged();

private:
    struct Key
    {
        int rank = 2; ///< numbers come before texts, and what is absent last
        double number = 0.0;
        QString text;
        int row = 0;
    };
    static QVector<int> sortedRows(QVector<Key> keys, Qt::SortOrder order);

    QVector<int> rowsOf(const std::string& label) const;
    void arrange();
    bool isEditable(int column) const;
    void readRow(int row);
    void stop();
    void sortRead();
    void takeOrder();
    int placeOf(int row) const { return row < places.size() ? places[row] : -1; }
    void showRows(QVector<int> wanted);
    void setShown(QVector<int> wanted);
    void noteChange(const QModelIndex& first, const QModelIndex& last, const QVector<int>& roles);
    Key keyOf(int row, const AttributeCell& cell) const;
    QString titleOf(const PropertyPath& path) const;
    bool isFiltered() const { return !filter.isEmpty(); }

    Document& document;
    QVector<PropertyPath> paths;
    mutable AttributeRows rows;
    /// Of each column, whether it can be edited, as far as its first features tell; views ask for the flags
    /// of all cells of a column.
    mutable QHash<int, bool> editable;
    ValueText text;

    QVector<int> all;    ///< rows of the document's model
    QVector<int> shown;  ///< those of them that the filter leaves, in the order of the sorting
    QVector<int> places; ///< where each row of the document's model is shown; -1 for nowhere
    QString filter;
    PropertyPath sortPath; ///< empty for the order of the document
    Qt::SortOrder sortOrder = Qt::AscendingOrder;

    SlicedWork work;
    QVector<Key> keys;
    QFutureWatcher<QVector<int>> sorting;
};

} // namespace tolvik::viewer
