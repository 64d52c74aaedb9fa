#pragma once

#include "apps/viewer/features/FeatureQuery.h"
#include "apps/viewer/features/SlicedWork.h"

#include <QBitArray>
#include <QMap>
#include <QTimer>
#include <QVector>
#include <string>

namespace tolvik::viewer {

class Document;

/// What is searched for in a document: which features are hits, and which remain in a filtered view.
///
/// Each change starts a round over all rows, in slices, after which done() is sent.
class FeatureSearch : public QObject
{
    Q_OBJECT

public:
    explicit FeatureSearch(Document& document, QObject* parent = nullptr);
    ~FeatureSearch() override;

    /// See FeatureQuery.
    void setQuery(const QString& text);
    /// Only features of that type count; an empty one stands for all types.
    void setType(const QString& type);
    /// Whether the filter leaves the hits alone.
    void setOnlyHits(bool only);

    bool isRunning() const { return work.isRunning() || restart.isActive(); }
    bool hasQuery() const { return !query.isEmpty(); }
    /// Whether anything is filtered out.
    bool isFiltering() const { return !type.isEmpty() || (onlyHits && hasQuery()); }

    /// Rows of the hits, in ascending order; none without a query. Those of the last round.
    const QVector<int>& hits() const { return foundRows; }
    bool isHit(int row) const { return row >= 0 && row < marks.size() && marks.testBit(row); }
    /// Rows that the filter leaves, in ascending order.
    const QVector<int>& remaining() const { return remainingRows; }
    /// The hit behind a row, or in front of it; goes on at the other end. -1 without a hit.
    int nextHit(int row) const;
    int previousHit(int row) const;

    /// The types of the document and how many features each has.
    const QMap<QString, int>& types() const { return typeCounts; }

signals:
    void done();
    void typesChanged();

private:
    void begin();
    void look(int row);
    void finish();

    Document& document;
    FeatureQuery query;
    QString type;
    bool onlyHits = false;
    std::string typeLabel; // of the round
    SlicedWork work;
    QTimer restart;
    QVector<int> foundRows, remainingRows;
    QBitArray marks;
    QMap<QString, int> typeCounts;

    // Of the round that is under way.
    QVector<int> newHits, newRemaining;
    QBitArray newMarks;
    QMap<std::string, int> newTypes;
};

} // namespace tolvik::viewer
