#pragma once

#include "scene/Camera.h"
#include "scene/FeatureTable.h"
#include "scene/LibraryObjects.h"
#include "scene/Looks.h"
#include "scene/PartStates.h"
#include "scene/TileWorkers.h"

#include <array>
#include <deque>
#include <map>
#include <memory>
#include <osg/BoundingBox>
#include <osg/Group>
#include <vector>

namespace tolvik::scene {

/// The features of one document as a scene that a Renderer draws.
/// \code
/// CityScene scene;
/// scene.begin(features, path);
/// while (scene.addSome(20)) {        // in slices, in milliseconds, on the document's thread
///     scene.takeFinished();          // what other threads have made of it so far is drawn from now on
/// }
/// while (scene.isBusy()) {
///     scene.waitForTile();
///     scene.takeFinished();
/// }
/// \endcode
/// The scene keeps pointers to the features and never looks into one of them outside of the operations that
/// are given features or say so: a host calls clear() before the document goes. All operations belong to one
/// thread.
class CityScene
{
public:
    struct Counts
    {
        std::size_t features = 0;
        std::size_t triangles = 0;
        /// Surfaces that have no area.
        std::size_t degenerate = 0;
        std::size_t tiles = 0;
    };

    CityScene();
    CityScene(const CityScene&) = delete;
    CityScene& operator=(const CityScene&) = delete;
    ~CityScene();

    /// Begins with another document.
    /// \param features all of it, a feature before those below it
    /// \param document path of its file, beside which pictures are looked for
    void begin(std::vector<const Feature*> features, const QString& document);
    /// Goes on adding features to the scene, and taking over what has changed in those that are there, for
    /// about so long.
    /// \return whether there is more to do
    bool addSome(int milliseconds);
    /// Puts the tiles that are ready into the scene.
    /// \return whether there were any
    bool takeFinished();
    /// Waits until a tile is ready; returns at once where none is awaited.
    void waitForTile() { workers.wait(); }
    /// Adds everything and waits for it.
    void addAll();
    /// Whether there is something to add or to take over, or tiles to wait for.
    bool isBusy() const { return hasWork() || workers.awaited() > 0; }
    /// How many of the features have been added, from 0 to 1.
    double progress() const;
    /// Forgets the document.
    void clear();

    /// Adds a feature that has come into the document.
    void add(const Feature& feature);
    /// Takes a feature out of the scene, before it goes. The features below it stay.
    void remove(const Feature& feature);
    /// Has anew what is drawn of a feature; of everything, if the feature is an appearance. addSome() does
    /// it.
    void rebuild(const Feature& feature);
    /// Uses another theme of the document's appearances, or none. addSome() makes everything anew.
    void setTheme(const QString& theme, bool isShown);

    FeatureTable& features() { return table; }
    const FeatureTable& features() const { return table; }
    const Looks& looks() const { return surfaceLooks; }
    Counts counts() const;

    /// The files that the document names, as it names them, and of which nothing is drawn: they were not
    /// found, could not be read, or are of a kind that is not read. Complete when nothing is to be done any
    /// more.
    QStringList missingFiles() const;

    /// Of the document's coordinates; what is drawn is relative to it.
    const citygml::Position& origin() const { return sceneOrigin; }
    /// Name of the coordinate system as the document gives it; empty where it gives none.
    const QString& coordinateSystem() const { return srsName; }
    /// Around all that is drawn of visible features, relative to the origin; invalid where there is nothing.
    osg::BoundingBoxd bounds() const;
    /// Around what is drawn of some features, hidden or not.
    osg::BoundingBoxd boundsOf(const std::vector<Slot>& which);

    /// Leaves out the tiles' edges that are so far away that the shaders would let none of them be seen.
    /// \param pixels height of the picture
    void leaveOutFarEdges(const Camera& camera, int pixels);
    /// What is drawn.
    osg::Group* root() const { return top; }

private:
    struct Tile
    {
        std::vector<Slot> members;
        osg::ref_ptr<osg::MatrixTransform> node;
        std::size_t triangles = 0;
        std::size_t degenerate = 0;
        double largestSurface = 0;
        /// Counts how often the tile has been sent; what comes of earlier times is not wanted any more.
        unsigned version = 0;
        bool isStale = false;
    };
    /// What has come of a place in the city, until it is enough for a tile.
    struct Pending
    {
        std::vector<Slot> members;
        Batch batch;
    };
    /// The features that are being walked through, for a new place or for a tile that is made anew. A large
    /// one takes several steps.
    struct Walk
    {
        std::vector<Slot> members;
        std::size_t reached = 0;          ///< of the members
        citygml::GeometryWalkPlace place; ///< in that member
        Batch batch;
        std::size_t tile = 0; ///< noTile for a feature that has none
    };
    using Cell = std::array<long, 2>;

    void letGo();
    bool hasWork() const;
    void workOn();
    void lookForAppearances();
    void readLooks();
    void addNext();
    void addFeature(const Feature& feature);
    void addAgain(Slot slot);
    void beginWalk(std::vector<Slot> members, std::size_t tile);
    void walkOn();
    void restartWalk();
    void endWalk();
    bool isWalking(Slot slot) const;
    void addToCell(Slot slot, Batch batch);
    static void join(Batch& batch, Batch more);
    void enlargeCells();
    void append(Slot slot, const citygml::GeometryPiece& piece, Batch& batch);
    void appendPiece(Slot slot, const citygml::GeometryPiece& piece, Batch& batch);
    void appendLibraryObject(Slot slot, const citygml::GeometryPiece& piece, Batch& batch);
    bool isDrawnElsewhere(const citygml::GeometryPiece& piece) const;
    void send(Pending pending);
    void sendAll();
    void sendToWorkers(std::size_t tile, unsigned version, Batch batch);
    void show(Tile& tile, const TileMesh& mesh);
    void makeStale(std::size_t tile);
    void makeAllStale();
    void rebuildTile(std::size_t tile);

    /// Of a document that has begun, in the order in which it is done: features are looked at for
    /// appearances, those are read, and features are added. Removed ones are null.
    /// @{
    std::vector<const Feature*> coming;
    std::size_t looked = 0;
    bool areLooksRead = true;
    std::size_t next = 0;
    /// @}
    Walk walk;
    std::map<Cell, Pending> cells;
    double cellSize = 0;
    std::vector<Tile> tiles;
    /// Those of the tiles that are to be made anew.
    std::deque<std::size_t> staleTiles;
    /// Features that had nothing to draw and may have now.
    std::deque<Slot> again;
    /// The tile that a feature is drawn in; noTile for one that is in none.
    std::vector<std::size_t> tileOf;
    TileWorkers workers;
    std::shared_ptr<const std::vector<LookArrays>> lookArrays;

    FeatureTable table;
    Looks surfaceLooks;
    DocumentFolder folder;
    LibraryObjects libraryObjects;
    QStringList missingObjects;
    citygml::Position sceneOrigin = {};
    bool hasOrigin = false;
    QString srsName;

    PartStates partStates;
    osg::ref_ptr<osg::Group> top = new osg::Group;
};

} // namespace tolvik::scene
