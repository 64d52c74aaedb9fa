#include "scene/CityScene.h"

#include "gml/AbstractFeatureType.hxx"
#include "gml/BoundingShapeType.hxx"
#include "gml/EnvelopeType.hxx"
#include "scene/Shaders.h"
#include "scene/Vectors.h"

#include <algorithm>
#include <cmath>
#include <osg/Depth>
#include <osg/PolygonOffset>
#include <QElapsedTimer>
#include <unordered_set>
#include <utility>

namespace tolvik::scene {

namespace {

using citygml::GeometryPiece;
using citygml::Position;

constexpr std::size_t noTile = static_cast<std::size_t>(-1);
/// Of a tile, in corners: about 1,400 triangles.
constexpr std::size_t tileSize = 2800;
/// Of the cells that tiles are made of at first, in the units of the document.
constexpr double smallestCell = 100;
/// So many cells may be waiting for more.
constexpr std::size_t mostCells = 64;
/// So many pieces of a feature, or of a tile that is made anew, are taken at once.
constexpr std::size_t piecesOfStep = 500;
/// So many steps that take about a microsecond are done without a look at the clock.
constexpr std::size_t shortSteps = 64;
/// What no number of a coordinate system comes near; larger ones would be infinite in single precision.
constexpr double largestCoordinate = 1e15;

bool isFinite(const Position& position)
{
    return std::all_of(position.begin(), position.end(),
                       [](double part) { return std::isfinite(part) && std::abs(part) < largestCoordinate; });
}

Position placed(const std::array<double, 16>& m, const Position& p)
{
    Position result;
    for (std::size_t row = 0; row < 3; ++row) {
        result[row] = m[4 * row] * p[0] + m[4 * row + 1] * p[1] + m[4 * row + 2] * p[2] + m[4 * row + 3];
    }
    return result;
}

QString srsNameOf(const Feature& feature)
{
    if (feature.boundedBy().present() && feature.boundedBy()->Envelope().present() &&
        feature.boundedBy()->Envelope()->srsName().present()) {
        return QString::fromStdString(*feature.boundedBy()->Envelope()->srsName());
    }
    return QString();
}

} // namespace

CityScene::CityScene()
    : lookArrays(std::make_shared<std::vector<LookArrays>>(1)), partStates(makePartStates())
{
    osg::StateSet* const state = top->getOrCreateStateSet();
    table.bind(*state);
    state->addUniform(new osg::Uniform("picture", int(pictureUnit)));
    state->addUniform(new osg::Uniform("isBounded", false));
    // Faces are moved back a little, so that edges and lines upon them are seen.
    state->setAttributeAndModes(new osg::PolygonOffset(1, 1));
    state->setAttributeAndModes(new osg::Depth(osg::Depth::LESS));
    state->setMode(GL_LIGHTING, osg::StateAttribute::OFF);
    state->setMode(GL_CULL_FACE, osg::StateAttribute::OFF);
    state->setMode(GL_CLIP_DISTANCE0, osg::StateAttribute::ON);
}

CityScene::~CityScene() = default;

void CityScene::begin(std::vector<const Feature*> features, const QString& document)
{
    clear();
    coming = std::move(features);
    // Some more, for what may be added later.
    const std::size_t room = coming.size() + coming.size() / 8;
    table.reserve(room);
    tileOf.reserve(room);
    folder = DocumentFolder(document);
    surfaceLooks.begin(folder);
    areLooksRead = false;
    srsName = coming.empty() ? QString() : srsNameOf(*coming.front());
}

void CityScene::clear()
{
    workers.clear();
    top->removeChildren(0, top->getNumChildren());
    letGo();
    coming.clear();
    looked = 0;
    areLooksRead = true;
    next = 0;
    walk = Walk();
    cells.clear();
    staleTiles.clear();
    again.clear();
    tileOf.clear();
    libraryObjects = LibraryObjects();
    missingObjects.clear();
    cellSize = smallestCell;
    hasOrigin = false;
    sceneOrigin = {};
    srsName.clear();
}

/// Has what is large of a document end in another thread, where nobody waits for it. Everything goes at once:
/// tiles and looks share what is no more shared by several threads.
void CityScene::letGo()
{
    struct Former
    {
        std::vector<Tile> tiles;
        PartStates states;
        Looks looks;
        std::shared_ptr<void> numbers;
    };
    workers.discard(std::make_shared<Former>(
        Former{std::exchange(tiles, {}), partStates, std::exchange(surfaceLooks, Looks()), table.clear()}));
    partStates = makePartStates();
}

bool CityScene::hasWork() const
{
    return next < coming.size() || !areLooksRead || !walk.members.empty() || !again.empty() ||
           !cells.empty() || !staleTiles.empty();
}

bool CityScene::addSome(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (hasWork()) {
        workOn();
        if (timer.elapsed() >= milliseconds) {
            return hasWork();
        }
    }
    return false;
}

/// Does a step of what is to be done, which takes a few milliseconds at most.
void CityScene::workOn()
{
    if (looked < coming.size()) {
        lookForAppearances();
    } else if (!areLooksRead) {
        readLooks();
    } else if (!walk.members.empty()) {
        walkOn();
    } else if (next < coming.size()) {
        addNext();
    } else if (!again.empty()) {
        addAgain(again.front());
        again.pop_front();
    } else if (!cells.empty()) {
        sendAll();
    } else {
        rebuildTile(staleTiles.front());
        staleTiles.pop_front();
    }
}

void CityScene::lookForAppearances()
{
    const std::size_t end = std::min(coming.size(), looked + shortSteps);
    for (; looked < end; ++looked) {
        if (coming[looked] != nullptr) {
            surfaceLooks.note(*coming[looked]);
        }
    }
}

void CityScene::readLooks()
{
    for (std::size_t step = 0; step < shortSteps && !areLooksRead; ++step) {
        areLooksRead = !surfaceLooks.readNext();
    }
    if (areLooksRead) {
        lookArrays = std::make_shared<std::vector<LookArrays>>(surfaceLooks.arrays());
    }
}

void CityScene::addNext()
{
    if (const Feature* const feature = coming[next++]) {
        addFeature(*feature);
    }
    if (next == coming.size()) {
        coming = std::vector<const Feature*>();
        looked = next = 0;
    }
}

void CityScene::addAll()
{
    while (addSome(1000)) {
    }
    while (workers.awaited() > 0) {
        workers.wait();
        takeFinished();
    }
}

double CityScene::progress() const
{
    return coming.empty() ? 1 : static_cast<double>(next) / static_cast<double>(coming.size());
}

void CityScene::addFeature(const Feature& feature)
{
    const Slot slot = table.add(feature);
    tileOf.push_back(noTile);
    beginWalk({slot}, noTile);
}

/// Adds what a feature has to draw now that had nothing.
void CityScene::addAgain(Slot slot)
{
    if (tileOf[slot] == noTile) {
        beginWalk({slot}, noTile);
    }
}

void CityScene::beginWalk(std::vector<Slot> members, std::size_t tile)
{
    walk = Walk();
    walk.members = std::move(members);
    walk.tile = tile;
    walkOn();
}

void CityScene::walkOn()
{
    std::size_t left = piecesOfStep;
    for (; walk.reached < walk.members.size(); ++walk.reached, walk.place = {}) {
        const Slot slot = walk.members[walk.reached];
        // It may have gone meanwhile.
        const Feature* const feature = table.featureOf(slot);
        if (feature == nullptr) {
            continue;
        }
        if (walk.place.path.empty()) {
            table.clearLods(slot);
        }
        const bool isMore = citygml::walkGeometry(*feature, walk.place, [&](const GeometryPiece& piece) {
            append(slot, piece, walk.batch);
            return --left > 0;
        });
        if (isMore) {
            return;
        }
    }
    endWalk();
}

/// Forgets what has been walked through so far: it is of former looks or geometry.
void CityScene::restartWalk()
{
    walk.reached = 0;
    walk.place = {};
    walk.batch = Batch();
}

void CityScene::endWalk()
{
    Walk done = std::exchange(walk, Walk());
    if (done.tile == noTile) {
        addToCell(done.members.front(), std::move(done.batch));
    } else {
        sendToWorkers(done.tile, tiles[done.tile].version, std::move(done.batch));
    }
}

/// Whether a feature without a tile is being walked through.
bool CityScene::isWalking(Slot slot) const
{
    return !walk.members.empty() && walk.tile == noTile && walk.members.front() == slot;
}

void CityScene::addToCell(Slot slot, Batch batch)
{
    if (batch.patches.empty()) {
        return;
    }
    if (batch.positions.size() >= tileSize) {
        return send({{slot}, std::move(batch)});
    }
    const Position at = difference(batch.positions.front(), sceneOrigin);
    const Cell cell = {static_cast<long>(std::floor(at[0] / cellSize)),
                       static_cast<long>(std::floor(at[1] / cellSize))};
    Pending& pending = cells[cell];
    pending.members.push_back(slot);
    join(pending.batch, std::move(batch));
    if (pending.batch.positions.size() >= tileSize) {
        send(std::move(pending));
        cells.erase(cell);
    }
    if (cells.size() > mostCells) {
        enlargeCells();
    }
}

/// Appends one batch to another.
void CityScene::join(Batch& batch, Batch more)
{
    const auto positionCount = batch.positions.size();
    const auto runCount = static_cast<std::uint32_t>(batch.runs.size());
    for (citygml::PositionRun& run : more.runs) {
        run.begin += positionCount;
        run.end += positionCount;
    }
    for (Batch::Patch& patch : more.patches) {
        patch.firstRun += runCount;
    }
    if (!more.places.empty()) {
        batch.places.resize(positionCount);
    }
    const auto appendTo = [](auto& all, const auto& added) {
        all.insert(all.end(), added.begin(), added.end());
    };
    appendTo(batch.positions, more.positions);
    appendTo(batch.runs, more.runs);
    appendTo(batch.patches, more.patches);
    appendTo(batch.places, more.places);
}

/// Makes each four cells one: where few things stand, small cells never have enough for a tile.
void CityScene::enlargeCells()
{
    cellSize *= 2;
    std::map<Cell, Pending> former;
    former.swap(cells);
    for (auto& [cell, pending] : former) {
        const auto half = [](long number) { return number >= 0 ? number / 2 : (number - 1) / 2; };
        const Cell larger = {half(cell[0]), half(cell[1])};
        Pending& joined = cells[larger];
        joined.members.insert(joined.members.end(), pending.members.begin(), pending.members.end());
        join(joined.batch, std::move(pending.batch));
        if (joined.batch.positions.size() >= tileSize) {
            send(std::move(joined));
            cells.erase(larger);
        }
    }
}

void CityScene::append(Slot slot, const GeometryPiece& piece, Batch& batch)
{
    if (piece.kind == GeometryPiece::Kind::LibraryObject) {
        appendLibraryObject(slot, piece, batch);
    } else if (!isDrawnElsewhere(piece) &&
               std::all_of(piece.positions.begin(), piece.positions.end(), isFinite)) {
        appendPiece(slot, piece, batch);
    }
}

/// Whether a piece that a reference led to is drawn as part of the feature in which it stands.
bool CityScene::isDrawnElsewhere(const GeometryPiece& piece) const
{
    return piece.holder != nullptr && piece.holderLod == piece.lod;
}

void CityScene::appendPiece(Slot slot, const GeometryPiece& piece, Batch& batch)
{
    if (piece.positions.empty()) {
        return;
    }
    if (!hasOrigin) {
        sceneOrigin = piece.positions.front();
        hasOrigin = true;
    }
    Batch::Patch patch;
    patch.slot = slot;
    patch.lod = static_cast<std::int8_t>(piece.lod);
    patch.firstRun = static_cast<std::uint32_t>(batch.runs.size());
    switch (piece.kind) {
    case GeometryPiece::Kind::Line:
        patch.kind = Batch::Kind::Line;
        break;
    case GeometryPiece::Kind::Point:
        patch.kind = Batch::Kind::Point;
        batch.runs.push_back({batch.positions.size(), batch.positions.size() + 1, nullptr});
        break;
    default:
        patch.look = surfaceLooks.lookOf(piece);
    }
    for (citygml::PositionRun run : piece.runs) {
        run.begin += batch.positions.size();
        run.end += batch.positions.size();
        batch.runs.push_back(run);
    }
    patch.runCount = static_cast<std::uint32_t>(batch.runs.size()) - patch.firstRun;
    if (surfaceLooks.arrays()[patch.look].kind == LookKind::Texture) {
        batch.places.resize(batch.positions.size());
        surfaceLooks.appendPlaces(piece, patch.look, batch.places);
    }
    batch.positions.insert(batch.positions.end(), piece.positions.begin(), piece.positions.end());
    batch.patches.push_back(patch);
    table.addLod(slot, piece.lod);
}

void CityScene::appendLibraryObject(Slot slot, const GeometryPiece& piece, Batch& batch)
{
    const QString name = QString::fromStdString(piece.libraryObject).trimmed();
    const std::vector<Position>& corners = libraryObjects.trianglesOf(folder.find(name));
    if (corners.empty() && !name.isEmpty() && !missingObjects.contains(name)) {
        missingObjects << name;
    }
    GeometryPiece triangle = piece;
    triangle.kind = GeometryPiece::Kind::Surface;
    triangle.runs = {{0, 3, nullptr}};
    for (std::size_t i = 0; i + 2 < corners.size(); i += 3) {
        triangle.positions.clear();
        for (std::size_t corner = i; corner < i + 3; ++corner) {
            triangle.positions.push_back(placed(piece.placement, corners[corner]));
        }
        if (std::all_of(triangle.positions.begin(), triangle.positions.end(), isFinite)) {
            appendPiece(slot, triangle, batch);
        }
    }
}

void CityScene::send(Pending pending)
{
    const std::size_t number = tiles.size();
    for (const Slot slot : pending.members) {
        tileOf[slot] = number;
    }
    // Of surfaces upon each other the first is seen: the order must not depend on which tile is ready first.
    Tile tile;
    tile.members = std::move(pending.members);
    tile.node = new osg::MatrixTransform;
    top->addChild(tile.node);
    sendToWorkers(number, tile.version, std::move(pending.batch));
    tiles.push_back(std::move(tile));
}

void CityScene::sendToWorkers(std::size_t tile, unsigned version, Batch batch)
{
    if (lookArrays->size() != surfaceLooks.arrays().size()) {
        lookArrays = std::make_shared<std::vector<LookArrays>>(surfaceLooks.arrays());
    }
    workers.add(tile, version, std::move(batch), lookArrays);
}

/// Makes tiles of what has not been enough for one, neighbours together.
void CityScene::sendAll()
{
    for (auto& [cell, pending] : cells) {
        send(std::move(pending));
    }
    cells.clear();
}

bool CityScene::takeFinished()
{
    bool isNew = false;
    for (const TileWorkers::Result& result : workers.take()) {
        Tile& tile = tiles[result.tile];
        if (result.version == tile.version) {
            show(tile, result.mesh);
            isNew = true;
        }
    }
    return isNew;
}

void CityScene::show(Tile& tile, const TileMesh& mesh)
{
    tile.node->removeChildren(0, tile.node->getNumChildren());
    const Position offset = difference(mesh.origin, sceneOrigin);
    tile.node->setMatrix(osg::Matrixd::translate(offset[0], offset[1], offset[2]));
    for (const TileDrawable& drawable : mesh.drawables) {
        drawable.geometry->setStateSet(drawable.look != 0
                                           ? surfaceLooks.stateOf(drawable.look).get()
                                           : partStates[static_cast<std::size_t>(drawable.part)].get());
        drawable.geometry->setNodeMask(maskOf(drawable.part));
        tile.node->addChild(drawable.geometry);
    }
    tile.triangles = mesh.triangles;
    tile.degenerate = mesh.degenerate;
    tile.largestSurface = mesh.largestSurface;
}

void CityScene::leaveOutFarEdges(const Camera& camera, int pixels)
{
    for (const Tile& tile : tiles) {
        // Where the tile is nearest.
        const osg::BoundingSphere& around = tile.node->getBound();
        const osg::Vec3d place = around.center() + camera.toEye() * around.radius();
        const bool areFar = tile.largestSurface < smallestWithEdges * camera.pixelSize(place, pixels);
        for (unsigned i = 0; i < tile.node->getNumChildren(); ++i) {
            osg::Node& drawable = *tile.node->getChild(i);
            if ((drawable.getNodeMask() & (EdgeMask | FarEdgeMask)) != 0) {
                drawable.setNodeMask(areFar ? FarEdgeMask : EdgeMask);
            }
        }
    }
}

/// Has a tile made anew. What is under way of it is not shown any more: it may be of looks that are gone.
void CityScene::makeStale(std::size_t number)
{
    Tile& tile = tiles[number];
    ++tile.version;
    if (!walk.members.empty() && walk.tile == number) {
        walk = Walk();
    }
    if (!tile.isStale) {
        tile.isStale = true;
        staleTiles.push_back(number);
    }
}

void CityScene::makeAllStale()
{
    areLooksRead = false;
    restartWalk();
    sendAll();
    for (std::size_t number = 0; number < tiles.size(); ++number) {
        makeStale(number);
    }
}

void CityScene::rebuildTile(std::size_t number)
{
    tiles[number].isStale = false;
    beginWalk(tiles[number].members, number);
}

void CityScene::add(const Feature& feature)
{
    if (surfaceLooks.note(feature)) {
        setTheme(surfaceLooks.theme(), surfaceLooks.isShown());
    }
    coming.push_back(&feature);
}

void CityScene::remove(const Feature& feature)
{
    if (surfaceLooks.forget(feature)) {
        setTheme(surfaceLooks.theme(), surfaceLooks.isShown());
    }
    const Slot slot = table.slotOf(&feature);
    if (slot == noSlot) {
        std::replace(coming.begin() + static_cast<std::ptrdiff_t>(next), coming.end(), &feature,
                     static_cast<const Feature*>(nullptr));
        return;
    }
    table.remove(slot);
    if (tileOf[slot] != noTile) {
        std::vector<Slot>& which = tiles[tileOf[slot]].members;
        which.erase(std::remove(which.begin(), which.end(), slot), which.end());
        tileOf[slot] = noTile;
    }
}

void CityScene::rebuild(const Feature& feature)
{
    const Slot slot = table.slotOf(&feature);
    if (surfaceLooks.note(feature)) {
        setTheme(surfaceLooks.theme(), surfaceLooks.isShown());
    }
    if (slot == noSlot) {
        return;
    }
    if (isWalking(slot)) {
        return restartWalk();
    }
    if (tileOf[slot] == noTile) {
        // It may wait for the end of its tile.
        sendAll();
    }
    if (tileOf[slot] != noTile) {
        makeStale(tileOf[slot]);
    } else {
        again.push_back(slot);
    }
}

void CityScene::setTheme(const QString& theme, bool isShown)
{
    surfaceLooks.setTheme(theme, isShown);
    makeAllStale();
}

CityScene::Counts CityScene::counts() const
{
    Counts counts;
    counts.features = table.size();
    counts.tiles = tiles.size();
    for (const Tile& tile : tiles) {
        counts.triangles += tile.triangles;
        counts.degenerate += tile.degenerate;
    }
    return counts;
}

QStringList CityScene::missingFiles() const
{
    return surfaceLooks.missing() + missingObjects;
}

osg::BoundingBoxd CityScene::bounds() const
{
    osg::BoundingBoxd box;
    for (const Tile& tile : tiles) {
        for (unsigned i = 0; i < tile.node->getNumChildren(); ++i) {
            const osg::BoundingBox part = tile.node->getChild(i)->asGeometry()->getBoundingBox();
            const osg::Vec3d offset = tile.node->getMatrix().getTrans();
            box.expandBy(osg::Vec3d(part._min) + offset);
            box.expandBy(osg::Vec3d(part._max) + offset);
        }
    }
    return box;
}

osg::BoundingBoxd CityScene::boundsOf(const std::vector<Slot>& which)
{
    table.update();
    osg::BoundingBoxd box;
    const std::unordered_set<Slot> wanted(which.begin(), which.end());
    std::unordered_set<std::size_t> numbers;
    for (const Slot slot : which) {
        numbers.insert(tileOf[slot]);
    }
    numbers.erase(noTile);
    for (const std::size_t number : numbers) {
        const Tile& tile = tiles[number];
        for (unsigned i = 0; i < tile.node->getNumChildren(); ++i) {
            const osg::Geometry& geometry = *tile.node->getChild(i)->asGeometry();
            const auto& positions = static_cast<const osg::Vec3Array&>(*geometry.getVertexArray());
            const auto& tags =
                static_cast<const osg::UIntArray&>(*geometry.getVertexAttribArray(FeatureAttribute));
            for (std::size_t vertex = 0; vertex < positions.size(); ++vertex) {
                const Slot slot = slotOfTag(tags[vertex]);
                if (wanted.count(slot) != 0 && table.isLodShown(slot, lodOfTag(tags[vertex]))) {
                    box.expandBy(osg::Vec3d(positions[vertex]) + tile.node->getMatrix().getTrans());
                }
            }
        }
    }
    return box;
}

} // namespace tolvik::scene
