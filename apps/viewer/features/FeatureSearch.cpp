#include "apps/viewer/features/FeatureSearch.h"

#include "apps/viewer/document/Document.h"
#include "gml/AbstractFeatureType.hxx"

#include <algorithm>

namespace tolvik::viewer {

FeatureSearch::FeatureSearch(Document& document, QObject* parent) : QObject(parent), document(document)
{
    restart.setSingleShot(true);
    restart.setInterval(0);
    connect(&restart, &QTimer::timeout, this, &FeatureSearch::begin);
    const CityGMLModel& model = document.model();
    // What is under way counts rows that are no more.
    const auto beginAnew = [this] {
        work.stop();
        restart.start();
    };
    connect(&model, &QAbstractItemModel::modelAboutToBeReset, this, [this] {
        work.stop();
        foundRows.clear();
        remainingRows.clear();
        marks.clear();
    });
    connect(&model, &QAbstractItemModel::modelReset, this, beginAnew);
    connect(&model, &QAbstractItemModel::rowsInserted, this, beginAnew);
    connect(&model, &QAbstractItemModel::rowsRemoved, this, beginAnew);
}

FeatureSearch::~FeatureSearch() = default;

void FeatureSearch::setQuery(const QString& text)
{
    query = FeatureQuery(text);
    restart.start();
}

void FeatureSearch::setType(const QString& wanted)
{
    if (type != wanted) {
        type = wanted;
        restart.start();
    }
}

void FeatureSearch::setOnlyHits(bool only)
{
    if (onlyHits != only) {
        onlyHits = only;
        restart.start();
    }
}

void FeatureSearch::begin()
{
    const int rows = document.model().rowCount();
    typeLabel = type.toStdString();
    newHits.clear();
    newRemaining.clear();
    newTypes.clear();
    newMarks = QBitArray(rows);
    work.start(
        rows, [this](int row) { look(row); }, [this] { finish(); });
}

void FeatureSearch::look(int row)
{
    const std::string& label = document.model().getFeature(row)->typeLabel;
    ++newTypes[label];
    if (!typeLabel.empty() && label != typeLabel) {
        return;
    }
    const bool isHit = hasQuery() && query.matches(document.model(), row);
    if (isHit) {
        newHits.append(row);
        newMarks.setBit(row);
    }
    if (isHit || !onlyHits || !hasQuery()) {
        newRemaining.append(row);
    }
}

void FeatureSearch::finish()
{
    foundRows.swap(newHits);
    remainingRows.swap(newRemaining);
    marks.swap(newMarks);
    QMap<QString, int> counts;
    for (auto each = newTypes.cbegin(); each != newTypes.cend(); ++each) {
        counts.insert(QString::fromStdString(each.key()), each.value());
    }
    if (counts != typeCounts) {
        typeCounts = counts;
        emit typesChanged();
    }
    emit done();
}

int FeatureSearch::nextHit(int row) const
{
    if (foundRows.isEmpty()) {
        return -1;
    }
    const auto next = std::upper_bound(foundRows.begin(), foundRows.end(), row);
    return next != foundRows.end() ? *next : foundRows.first();
}

int FeatureSearch::previousHit(int row) const
{
    if (foundRows.isEmpty()) {
        return -1;
    }
    const auto here = std::lower_bound(foundRows.begin(), foundRows.end(), row);
    return here != foundRows.begin() ? *std::prev(here) : foundRows.last();
}

} // namespace tolvik::viewer
