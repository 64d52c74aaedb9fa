#pragma once

#include <QList>
#include <QModelIndex>
#include <QVector>

class QItemSelectionModel;

namespace tolvik::viewer {

class Document;

// Rows are those of the list of features, each once and in ascending order.

/// The selected features.
QVector<int> selectedRows(const QItemSelectionModel& selection);

/// The features of the rows and everything below them in the tree.
QVector<int> withAllBelow(Document& document, const QVector<int>& rows);

/// The indexes of the rows, column 0.
QList<QModelIndex> indexesOf(Document& document, const QVector<int>& rows);

/// The feature that has the identifier, or the one in which an object has it; -1 if there is none.
int rowOfIdentifier(Document& document, const QString& identifier);

} // namespace tolvik::viewer
