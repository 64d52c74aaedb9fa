#include "apps/viewer/view/SceneLink.h"

#include "apps/common/PropertyPath.h"
#include "apps/viewer/document/Document.h"
#include "apps/viewer/features/FeatureRows.h"
#include "framework/CoreProperty.h"

#include <algorithm>
#include <utility>

namespace tolvik::viewer {

using scene::Feature;
using scene::noSlot;
using scene::Slot;

namespace {

/// Of a slice of work, in milliseconds: short enough that nobody sees the window stand still.
constexpr int sliceLength = 12;
/// Between two steps of the progress, in milliseconds: the whole window is composed anew for each.
constexpr qint64 progressInterval = 250;
/// Between two looks whether other threads are ready, in milliseconds.
constexpr int waitingLength = 10;
/// Between two pictures while features are added, in milliseconds.
constexpr qint64 pictureInterval = 400;
/// Between two pictures, in times that a picture takes: most of the time is for the work and for the user.
constexpr qint64 pictureShare = 4;

} // namespace

SceneLink::SceneLink(Document& document, QObject* parent)
    : QObject(parent), document(document), city(std::make_unique<scene::CityScene>())
{
    CityGMLModel& model = document.model();
    connect(&model, &QAbstractItemModel::modelAboutToBeReset, this, &SceneLink::clear);
    connect(&model, &QAbstractItemModel::modelReset, this, &SceneLink::begin);
    connect(&model, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex&, int first, int last) { addRows(first, last); });
    connect(&model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [this](const QModelIndex&, int first, int last) { removeRows(first, last); });
    connect(&model, &QAbstractItemModel::dataChanged, this, &SceneLink::noteEdit);
    connect(&model, qOverload<const QList<QModelIndex>&>(&Model::visibilityChanged), this,
            &SceneLink::showVisibility);
    connect(&model, qOverload<const QModelIndex&>(&Model::visibilityChanged), this,
            [this](const QModelIndex& index) { showVisibility({index}); });
    connect(&model, &CityGMLModel::representationAboutToBeChanged, this, &SceneLink::rebuild);
    connect(&document.selection(), &QItemSelectionModel::selectionChanged, this, &SceneLink::showSelection);
    connect(&work, &QTimer::timeout, this, &SceneLink::workOn);
    edits.setSingleShot(true);
    connect(&edits, &QTimer::timeout, this, &SceneLink::takeEdits);
    begin();
}

SceneLink::~SceneLink() = default;

void SceneLink::clear()
{
    work.stop();
    edits.stop();
    reading.stop();
    edited.clear();
    city->clear();
    emit changed();
}

void SceneLink::begin()
{
    std::vector<const Feature*> features;
    const int count = document.model().rowCount();
    features.reserve(static_cast<std::size_t>(count));
    for (int row = 0; row < count; ++row) {
        features.push_back(document.model().getFeature(row));
    }
    city->begin(std::move(features), document.fileName());
    stateCount = 0;
    pictureTime = 0;
    sincePicture.invalidate();
    sinceProgress.start();
    isPictureAwaited = areTilesNew = false;
    isComing = count > 0;
    emit begun();
    if (count > 0) {
        work.start(0);
    }
}

void SceneLink::workOn()
{
    if (isPictureAwaited) {
        pictureTime = sincePicture.restart();
        isPictureAwaited = false;
    }
    const bool isMore = city->addSome(sliceLength);
    takeState();
    areTilesNew = city->takeFinished() || areTilesNew;
    if (isComing && sinceProgress.elapsed() > progressInterval) {
        sinceProgress.start();
        emit progressed(city->progress());
    }
    if (!isMore && !city->isBusy()) {
        goOn();
    } else {
        showTiles();
        work.setInterval(isMore ? 0 : waitingLength);
    }
}

/// Shows the first tiles at once, and the others by and by: a picture of a city takes a while itself.
void SceneLink::showTiles()
{
    const bool isTime = !sincePicture.isValid() ||
                        sincePicture.elapsed() > std::max(pictureInterval, pictureShare * pictureTime);
    if (areTilesNew && isTime) {
        areTilesNew = false;
        isPictureAwaited = true;
        sincePicture.start();
        emit changed();
    }
}

/// What is done when all features are there.
void SceneLink::goOn()
{
    work.stop();
    if (document.selection().hasSelection()) {
        city->features().setSelection(selectedFeatures());
    }
    if (!attribute.isEmpty()) {
        readColours();
    }
    emit changed();
    if (isComing) {
        isComing = false;
        emit finished();
    }
}

void SceneLink::finish()
{
    if (isBusy()) {
        city->addAll();
        takeState();
        goOn();
    }
}

void SceneLink::setTheme(const QString& theme, bool isShown)
{
    city->setTheme(theme, isShown);
    work.start(0);
}

/// Takes over which of the features that have come are hidden in the document.
void SceneLink::takeState()
{
    const CityGMLModel& model = document.model();
    for (; stateCount < city->features().size(); ++stateCount) {
        const int row = rowOf(stateCount);
        city->features().setHidden(stateCount, row < 0 || !model.isVisible(model.index(row, 0)));
    }
}

int SceneLink::rowOf(Slot slot) const
{
    return document.model().getRow(const_cast<Feature*>(city->features().featureOf(slot)));
}

Slot SceneLink::slotOfRow(int row) const
{
    return city->features().slotOf(document.model().getFeature(row));
}

std::vector<Slot> SceneLink::selectedFeatures() const
{
    const QVector<int> rows = selectedRows(document.selection());
    std::vector<Slot> selected;
    for (const int row : rows) {
        const Slot slot = slotOfRow(row);
        if (slot != noSlot) {
            selected.push_back(slot);
        }
    }
    return selected;
}

void SceneLink::showVisibility(const QList<QModelIndex>& indexes)
{
    const CityGMLModel& model = document.model();
    for (const QModelIndex& index : indexes) {
        const Slot slot = slotOfRow(index.row());
        if (slot != noSlot) {
            city->features().setHidden(slot, !model.isVisible(index));
        }
    }
    emit changed();
}

void SceneLink::showSelection()
{
    city->features().setSelection(selectedFeatures());
    emit changed();
}

void SceneLink::addRows(int first, int last)
{
    for (int row = first; row <= last; ++row) {
        city->add(*document.model().getFeature(row));
    }
    work.start(0);
}

void SceneLink::removeRows(int first, int last)
{
    for (int row = first; row <= last; ++row) {
        const Feature* const feature = document.model().getFeature(row);
        edited.remove(feature);
        city->remove(*feature);
    }
    if (city->isBusy()) {
        work.start(0);
    }
    emit changed();
}

void SceneLink::rebuild(const Feature* feature)
{
    CityGMLModel& model = document.model();
    city->rebuild(*feature);
    model.show(model.index(feature));
    work.start(0);
}

/// An edit of a property may concern the geometry as well as the colour.
void SceneLink::noteEdit(const QModelIndex& first, const QModelIndex& last, const QVector<int>& roles)
{
    if (!roles.contains(Qt::UserRole)) {
        return;
    }
    for (int row = first.row(); row <= last.row(); ++row) {
        edited.insert(document.model().getFeature(row));
    }
    edits.start(0);
}

void SceneLink::takeEdits()
{
    for (const Feature* const feature : qAsConst(edited)) {
        city->rebuild(*feature);
    }
    edited.clear();
    work.start(0);
}

void SceneLink::colourBy(const QString& path)
{
    attribute = path;
    reading.stop();
    if (path.isEmpty()) {
        city->features().resetColours();
        attributeColours = scene::AttributeColours();
        emit coloursChanged();
    } else if (!isBusy()) {
        readColours();
    }
    emit changed();
}

void SceneLink::readColours()
{
    const std::size_t count = city->features().size();
    values.assign(count, QVariant());
    reading.start(
        static_cast<int>(count), [this](int slot) { readValue(static_cast<Slot>(slot)); },
        [this] { findColours(); });
}

void SceneLink::readValue(Slot slot)
{
    QVariant& value = values[slot];
    value = valueOf(rowOf(slot));
    // A feature comes after the one around it.
    const Slot giver = city->features().valueGiverOf(slot);
    if (!value.isValid() && giver != noSlot) {
        value = values[giver];
    }
}

void SceneLink::findColours()
{
    const auto colouring = std::make_shared<scene::AttributeColouring>(std::exchange(values, {}));
    reading.start(
        static_cast<int>(colouring->steps()),
        [colouring](int step) { colouring->doStep(static_cast<std::size_t>(step)); },
        [this, colouring] { showColours(*colouring); });
}

/// Features that have come meanwhile have their colours when they are looked at in their turn.
void SceneLink::showColours(scene::AttributeColouring& colouring)
{
    for (Slot slot = 0; slot < colouring.size(); ++slot) {
        city->features().setColour(slot, colouring.colourOf(slot));
    }
    attributeColours = colouring.takeColours();
    emit coloursChanged();
    emit changed();
}

QVariant SceneLink::valueOf(int row) const
{
    const CityGMLModel& model = document.model();
    const CoreProperty* const root = row >= 0 ? model.getProperty(model.index(row, 0)) : nullptr;
    CoreProperty* const property = root != nullptr ? apps::propertyAt(*root, attribute) : nullptr;
    return property != nullptr ? property->value() : QVariant();
}

} // namespace tolvik::viewer
