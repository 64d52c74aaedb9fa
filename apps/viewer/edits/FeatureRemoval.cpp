#include "apps/viewer/edits/FeatureRemoval.h"

#include "apps/viewer/document/Document.h"
#include "apps/viewer/features/FeatureTexts.h"
#include "citygml/CityGMLFeaturesFillVisitor.h"
#include "core/CityModelType.hxx"
#include "gml/AbstractFeatureType.hxx"

#include <algorithm>
#include <QJsonArray>
#include <QJsonObject>
#include <unordered_map>
#include <unordered_set>

namespace tolvik::viewer {

namespace {

const QString featureRemovalKind = QStringLiteral("removal");

/// The member whose entry goes with a feature: that of the property element around it. Of a property element
/// that holds several features only the feature goes.
citygml::Member memberToLeave(gml::AbstractFeatureType& feature)
{
    const citygml::Member inside = citygml::Member::holding(feature);
    const bool isFeature = dynamic_cast<gml::AbstractFeatureType*>(&inside.object()) != nullptr;
    if (isFeature || inside.list().size() > 1 || inside.object()._container() == nullptr) {
        return inside;
    }
    return citygml::Member::holding(inside.object());
}

bool isInside(gml::AbstractFeatureType& feature, const FeatureRemoval::Features& others)
{
    for (auto* around = feature._container(); around != nullptr; around = around->_container()) {
        if (std::find(others.begin(), others.end(), dynamic_cast<gml::AbstractFeatureType*>(around)) !=
            others.end()) {
            return true;
        }
    }
    return false;
}

FeatureRemoval::Features featuresIn(gml::AbstractFeatureType& feature)
{
    CityGMLFeaturesFillVisitor visitor;
    feature.accept(&visitor);
    const auto& found = visitor.getModelFeatures();
    return FeatureRemoval::Features(found.begin(), found.end());
}

/// What is removed from the end on, and put back from the beginning on, leaves the addresses of all others as
/// they are.
FeatureRemoval::Features inDocumentOrder(Document& document, FeatureRemoval::Features features)
{
    if (features.size() < 2) {
        return features;
    }
    std::unordered_map<const gml::AbstractFeatureType*, std::size_t> places;
    for (const gml::AbstractFeatureType* const feature : featuresIn(*document.model().cityGML())) {
        places.emplace(feature, places.size());
    }
    std::sort(features.begin(), features.end(),
              [&places](const auto* a, const auto* b) { return places[a] < places[b]; });
    features.erase(std::unique(features.begin(), features.end()), features.end());
    return features;
}

} // namespace

std::unique_ptr<FeatureRemoval> FeatureRemoval::make(Document& document, const Features& features,
                                                     QString& refusal)
{
    std::unique_ptr<FeatureRemoval> removal(new FeatureRemoval(document));
    refusal = removal->findAll(features);
    if (!refusal.isEmpty() || removal->all.empty()) {
        return nullptr;
    }
    removal->setText(features.size() == 1
                         ? tr("remove %1 %2").arg(typeOf(*features.front()), nameOf(*features.front()))
                         : tr("remove %n feature(s)", nullptr, static_cast<int>(features.size())));
    removal->removeAll();
    return removal;
}

void FeatureRemoval::addMaker()
{
    RecordedEdit::addMaker(featureRemovalKind, [](Document& document, const QJsonObject& record) {
        const Features features = FeatureLocator(document.model()).findAll(record["features"].toArray());
        if (features.empty()) {
            return std::unique_ptr<RecordedEdit>();
        }
        QString refusal;
        return std::unique_ptr<RecordedEdit>(make(document, features, refusal));
    });
}

void FeatureRemoval::redo()
{
    if (!isDone) {
        removeAll();
        isDone = true;
    }
}

void FeatureRemoval::undo()
{
    for (Removed& removed : all) {
        putBack(removed);
    }
    addRows();
    isDone = false;
}

QString FeatureRemoval::kind() const
{
    return featureRemovalKind;
}

QJsonObject FeatureRemoval::record() const
{
    QJsonArray features;
    for (const Removed& removed : all) {
        features += removed.feature.toJson();
    }
    return {{"features", features}};
}

/// \return why a feature cannot be removed, or nothing
QString FeatureRemoval::findAll(const Features& features)
{
    FeatureLocator locator(document.model());
    for (gml::AbstractFeatureType* const feature : inDocumentOrder(document, features)) {
        if (feature->_container() == nullptr) {
            return tr("The document itself cannot be removed.");
        }
        if (isInside(*feature, features)) {
            continue;
        }
        const citygml::Member entry = memberToLeave(*feature);
        auto* const owner = dynamic_cast<gml::AbstractFeatureType*>(&entry.object());
        const bool isNeeded = entry.isRequired() && entry.list().size() == 1;
        if (owner == nullptr || isNeeded) {
            return tr("%1 %2 cannot be removed, as what stands around it needs it.")
                .arg(typeOf(*feature), nameOf(*feature));
        }
        all.push_back(
            {locator.addressOf(*feature), locator.addressOf(*owner), entry.name(), entry.position(), {}});
    }
    return QString();
}

void FeatureRemoval::removeAll()
{
    for (auto removed = all.rbegin(); removed != all.rend(); ++removed) {
        take(*removed);
    }
}

void FeatureRemoval::take(Removed& removed)
{
    FeatureLocator locator(document.model());
    gml::AbstractFeatureType* const owner = locator.find(removed.owner);
    gml::AbstractFeatureType* const feature = locator.find(removed.feature);
    std::optional<citygml::Member> member = citygml::Member::named(*owner, removed.member);
    const Features inside = featuresIn(*feature);
    for (auto each = inside.rbegin(); each != inside.rend(); ++each) {
        document.model().removeFeature(*each);
    }
    removed.content = member->take(removed.position);
}

void FeatureRemoval::putBack(Removed& removed)
{
    gml::AbstractFeatureType* const owner = FeatureLocator(document.model()).find(removed.owner);
    citygml::Member::named(*owner, removed.member)->put(removed.position, removed.content);
}

/// Gives the features that are back their rows.
void FeatureRemoval::addRows()
{
    FeatureLocator locator(document.model());
    std::unordered_set<gml::AbstractFeatureType*> owners;
    for (const Removed& removed : all) {
        owners.insert(locator.find(removed.owner));
    }
    for (gml::AbstractFeatureType* const owner : owners) {
        for (gml::AbstractFeatureType* const feature : featuresIn(*owner)) {
            document.model().addFeature(feature);
        }
    }
}

} // namespace tolvik::viewer
