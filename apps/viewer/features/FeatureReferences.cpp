#include "apps/viewer/features/FeatureReferences.h"

#include "apps/viewer/document/Document.h"
#include "apps/viewer/features/FeatureRows.h"
#include "citygml/References.h"

#include <algorithm>

namespace tolvik::viewer {

QVector<FeatureReference> referencesOf(Document& document, int row)
{
    QVector<FeatureReference> references;
    for (const citygml::Reference& each : citygml::referencesOf(*document.model().getFeature(row))) {
        FeatureReference reference;
        reference.member = QString::fromStdString(*each.member);
        reference.target = QString::fromStdString(each.target);
        if (reference.target.startsWith(QLatin1Char('#'))) {
            reference.row = rowOfIdentifier(document, reference.target.mid(1));
        }
        // A geometry that is used twice refers within its own feature.
        const bool isKnown =
            std::any_of(references.begin(), references.end(), [&](const FeatureReference& other) {
                return other.member == reference.member && other.target == reference.target;
            });
        if (reference.row != row && !isKnown) {
            references.append(reference);
        }
    }
    return references;
}

ReferrerSearch::ReferrerSearch(Document& document, QObject* parent) : QObject(parent), document(document)
{
    const auto stop = [this] { work.stop(); };
    connect(&document.model(), &QAbstractItemModel::modelAboutToBeReset, this, stop);
    connect(&document.model(), &QAbstractItemModel::rowsInserted, this, stop);
    connect(&document.model(), &QAbstractItemModel::rowsRemoved, this, stop);
}

ReferrerSearch::~ReferrerSearch() = default;

void ReferrerSearch::start(int row)
{
    referring.clear();
    work.start(
        document.model().rowCount(),
        [this, row](int each) {
            const QVector<FeatureReference> references = referencesOf(document, each);
            if (std::any_of(references.begin(), references.end(),
                            [row](const FeatureReference& reference) { return reference.row == row; })) {
                referring.append(each);
            }
        },
        [this, row] { emit found(row, referring); });
}

} // namespace tolvik::viewer
