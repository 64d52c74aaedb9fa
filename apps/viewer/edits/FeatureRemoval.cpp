#include "apps/viewer/edits/FeatureRemoval.h"

#include "apps/viewer/document/Document.h"
#include "apps/viewer/features/FeatureTexts.h"
#include "citygml/CityGMLFeaturesFillVisitor.h"
#include "core/CityModelType.hxx"
#include "dem/ReliefFeatureType.hxx"
#include "gml/AbstractFeatureType.hxx"

#include <algorithm>
#include <cstddef>
#include <QJsonArray>
#include <QJsonObject>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace tolvik::viewer {

namespace {

const QString featureRemovalKind = QStringLiteral("removal");

constexpr std::size_t fewFeatures = 100;
// A row that goes has the model number all others anew.
constexpr int rowsOfOneEffort = 10000;
// A tree arranges all its nodes for one row that comes, or for several at once.
constexpr std::size_t rowsAtOnce = 64;

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

/// Whether the schema demands something in the member. Of the lists that hold features there is one in which
/// it does.
bool isNeeded(const citygml::Member& entry)
{
    return entry.isRequired() || (dynamic_cast<const dem::ReliefFeatureType*>(&entry.object()) != nullptr &&
                                  entry.name() == "reliefComponent");
}

bool isInside(const gml::AbstractFeatureType& feature,
              const std::unordered_set<const gml::AbstractFeatureType*>& others)
{
    for (auto* around = feature._container(); around != nullptr; around = around->_container()) {
        if (others.count(dynamic_cast<const gml::AbstractFeatureType*>(around)) != 0) {
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

/// How many rows go with features, at most: of few it is counted.
int mostRowsOf(Document& document, const FeatureRemoval::Features& features)
{
    if (features.size() > fewFeatures) {
        return document.model().rowCount();
    }
    std::size_t count = 0;
    for (gml::AbstractFeatureType* const feature : features) {
        count += featuresIn(*feature).size();
    }
    return static_cast<int>(count);
}

} // namespace

std::unique_ptr<FeatureRemoval> FeatureRemoval::prepare(Document& document, const Features& features)
{
    return std::unique_ptr<FeatureRemoval>(new FeatureRemoval(document, features));
}

std::unique_ptr<FeatureRemoval> FeatureRemoval::make(Document& document, const Features& features,
                                                     QString& refusal)
{
    std::unique_ptr<FeatureRemoval> removal = prepare(document, features);
    refusal = removal->performAll();
    return refusal.isEmpty() && removal->changes() > 0 ? std::move(removal) : nullptr;
}

void FeatureRemoval::addMaker()
{
    RecordedEdit::addMaker(featureRemovalKind, [](Document& document, const QJsonObject& record) {
        const Features features = FeatureLocator(document.model()).findAll(record["features"].toArray());
        return std::unique_ptr<RecordedEdit>(features.empty() ? nullptr : prepare(document, features));
    });
}

FeatureRemoval::FeatureRemoval(Document& document, Features features)
    : document(document), features(std::move(features)), mostRows(mostRowsOf(document, this->features)),
      chosen(this->features.begin(), this->features.end())
{
    setText(this->features.size() == 1
                ? tr("remove %1").arg(descriptionOf(*this->features.front()))
                : tr("remove %n feature(s)", nullptr, static_cast<int>(this->features.size())));
}

QString FeatureRemoval::kind() const
{
    return featureRemovalKind;
}

QJsonObject FeatureRemoval::record() const
{
    QJsonArray addresses;
    for (const Removed& removed : all) {
        addresses += removed.feature.toJson();
    }
    return {{"features", addresses}};
}

int FeatureRemoval::size() const
{
    // How many rows go is not known before all features are found.
    return static_cast<int>(features.size()) + mostRows;
}

int FeatureRemoval::effort() const
{
    return 1 + document.model().rowCount() / rowsOfOneEffort;
}

QString FeatureRemoval::perform(int number)
{
    if (number == 0) {
        const std::size_t given = features.size();
        features = inDocumentOrder(document, std::move(features));
        // Those that were there twice are null, so that the numbers stay.
        features.resize(given, nullptr);
    }
    const auto at = static_cast<std::size_t>(number);
    if (at < features.size()) {
        return features[at] != nullptr ? find(at) : QString();
    }
    removeNext();
    return QString();
}

void FeatureRemoval::turn(int change)
{
    if (change == 0) {
        endWalk();
        isGoingBack = !isGoingBack;
    }
    const auto at = static_cast<std::size_t>(change);
    if (at < all.size()) {
        isGoingBack ? putBack(all[at]) : locate(at);
    } else {
        isGoingBack ? addNextRows() : removeNext();
    }
}

void FeatureRemoval::endWalk()
{
    features = Features();
    chosen.clear();
    leaving.clear();
    located.reset();
    going.clear();
    coming.clear();
    areComingKnown = false;
}

FeatureLocator& FeatureRemoval::locator()
{
    if (located == nullptr) {
        located = std::make_unique<FeatureLocator>(document.model());
    }
    return *located;
}

/// Notes where a feature stands.
/// \return why it cannot be removed, or nothing
QString FeatureRemoval::find(std::size_t number)
{
    gml::AbstractFeatureType* const feature = features[number];
    if (feature->_container() == nullptr) {
        return tr("The document itself cannot be removed.");
    }
    if (isInside(*feature, chosen)) {
        return QString();
    }
    const citygml::Member entry = memberToLeave(*feature);
    auto* const owner = dynamic_cast<gml::AbstractFeatureType*>(&entry.object());
    if (owner == nullptr || (isNeeded(entry) && isLastToGo(entry))) {
        return tr("%1 cannot be removed, as what stands around it needs it.").arg(descriptionOf(*feature));
    }
    all.push_back({locator().addressOf(*feature),
                   locator().addressOf(*owner),
                   entry.name(),
                   entry.position(),
                   {},
                   false});
    rows += collectRows(feature, all.size() - 1);
    return QString();
}

/// Whether nothing is left of the entry's list when all go that are to go. To be asked once for each entry.
bool FeatureRemoval::isLastToGo(const citygml::Member& entry)
{
    return ++leaving[{&entry.object(), entry.name()}] == entry.list().size();
}

/// Finds a feature that is to go once more.
void FeatureRemoval::locate(std::size_t number)
{
    if (!all[number].isOut) {
        collectRows(locator().find(all[number].feature), number);
    }
}

/// Notes the rows of a feature and of everything inside.
///
/// \param feature null for one that has no row, as its way back was cut short
/// \return number of the rows
std::size_t FeatureRemoval::collectRows(gml::AbstractFeatureType* feature, std::size_t number)
{
    const Features inside = feature != nullptr ? featuresIn(*feature) : Features{nullptr};
    for (gml::AbstractFeatureType* const each : inside) {
        // What stands around the others goes last.
        going.push_back({each, number, each == inside.front()});
    }
    return inside.size();
}

void FeatureRemoval::removeNext()
{
    if (going.empty()) {
        return;
    }
    const Row row = going.back();
    going.pop_back();
    document.model().removeFeature(row.feature);
    if (row.isLast) {
        take(all[row.removed]);
    }
}

void FeatureRemoval::take(Removed& removed)
{
    gml::AbstractFeatureType* const owner = FeatureLocator(document.model()).find(removed.owner);
    removed.content = citygml::Member::named(*owner, removed.member)->take(removed.position);
    removed.isOut = true;
}

void FeatureRemoval::putBack(Removed& removed)
{
    if (removed.isOut) {
        gml::AbstractFeatureType* const owner = FeatureLocator(document.model()).find(removed.owner);
        citygml::Member::named(*owner, removed.member)->put(removed.position, removed.content);
        removed.isOut = false;
    }
}

/// Gives some of the features that are back their rows.
void FeatureRemoval::addNextRows()
{
    if (!areComingKnown) {
        coming = featuresWithoutRow();
        areComingKnown = true;
    }
    const auto count = std::min(coming.size(), rowsAtOnce);
    if (count > 0) {
        const auto first = coming.rbegin();
        document.model().addFeatures({first, first + static_cast<std::ptrdiff_t>(count)});
        coming.resize(coming.size() - count);
    }
}

/// The features that are back without a row, the last one first.
FeatureRemoval::Features FeatureRemoval::featuresWithoutRow()
{
    std::unordered_set<gml::AbstractFeatureType*> owners;
    Features found;
    for (const Removed& removed : all) {
        gml::AbstractFeatureType* const owner = locator().find(removed.owner);
        if (!owners.insert(owner).second) {
            continue;
        }
        for (gml::AbstractFeatureType* const feature : featuresIn(*owner)) {
            if (document.model().getRow(feature) < 0) {
                found.push_back(feature);
            }
        }
    }
    std::reverse(found.begin(), found.end());
    return found;
}

} // namespace tolvik::viewer
