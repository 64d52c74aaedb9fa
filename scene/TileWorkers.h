#pragma once

#include "scene/TileMesh.h"

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace tolvik::scene {

/// Builds tiles in threads of its own. The owner hands batches over and takes what is ready.
class TileWorkers
{
public:
    using Looks = std::shared_ptr<const std::vector<LookArrays>>;
    struct Result
    {
        std::size_t tile = 0;
        unsigned version = 0;
        TileMesh mesh;
    };

    TileWorkers() = default;
    TileWorkers(const TileWorkers&) = delete;
    TileWorkers& operator=(const TileWorkers&) = delete;
    /// Waits for the tiles that are being built; what has not begun is given up.
    ~TileWorkers();

    /// \param tile    a number by which the owner knows the result
    /// \param version another one, for a tile that is added again before it is ready
    void add(std::size_t tile, unsigned version, Batch batch, const Looks& looks);
    /// Takes what is ready.
    std::vector<Result> take();
    /// Waits until something is ready; returns at once where nothing is awaited.
    void wait();
    /// Number of tiles that were added and not taken yet.
    std::size_t awaited() const;
    /// Gives up what was added and not taken.
    void clear();
    /// Lets go of an object in one of the threads: that of a large one takes a while. Nobody else uses it,
    /// nor what it holds.
    void discard(std::shared_ptr<void> object);

private:
    struct Job
    {
        std::size_t tile = 0;
        unsigned version = 0;
        Batch batch;
        Looks looks;
        unsigned round = 0;
    };

    void start();
    void run();

    mutable std::mutex mutex;
    std::condition_variable jobsChanged;
    std::condition_variable resultsChanged;
    std::deque<Job> jobs;
    std::vector<Result> results;
    std::vector<std::shared_ptr<void>> discarded;
    std::size_t running = 0;
    /// Counts the calls of clear(): what was begun before is not wanted any more.
    unsigned round = 0;
    bool isEnding = false;
    std::vector<std::thread> threads;
};

} // namespace tolvik::scene
