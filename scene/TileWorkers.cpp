#include "scene/TileWorkers.h"

#include <algorithm>
#include <sys/resource.h>
#include <utility>

namespace tolvik::scene {

namespace {

/// Has the threads of the window, which come with a little to do now and then, go first.
void yieldToOthers()
{
    // On Linux this is of the calling thread alone.
    setpriority(PRIO_PROCESS, 0, 10);
}

} // namespace

TileWorkers::~TileWorkers()
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        isEnding = true;
        jobs.clear();
    }
    jobsChanged.notify_all();
    for (std::thread& thread : threads) {
        thread.join();
    }
}

void TileWorkers::add(std::size_t tile, unsigned version, Batch batch, const Looks& looks)
{
    start();
    {
        const std::lock_guard<std::mutex> lock(mutex);
        jobs.push_back({tile, version, std::move(batch), looks, round});
    }
    jobsChanged.notify_one();
}

std::vector<TileWorkers::Result> TileWorkers::take()
{
    const std::lock_guard<std::mutex> lock(mutex);
    return std::exchange(results, {});
}

void TileWorkers::wait()
{
    std::unique_lock<std::mutex> lock(mutex);
    resultsChanged.wait(lock, [this] { return !results.empty() || (jobs.empty() && running == 0); });
}

std::size_t TileWorkers::awaited() const
{
    const std::lock_guard<std::mutex> lock(mutex);
    return jobs.size() + running + results.size();
}

void TileWorkers::clear()
{
    const std::lock_guard<std::mutex> lock(mutex);
    ++round;
    jobs.clear();
    results.clear();
}

void TileWorkers::discard(std::shared_ptr<void> object)
{
    if (!threads.empty()) {
        const std::lock_guard<std::mutex> lock(mutex);
        discarded.push_back(std::move(object));
        jobsChanged.notify_one();
    }
}

/// Starts the threads with the first tile: a scene without features has none.
void TileWorkers::start()
{
    const unsigned count = std::clamp(std::thread::hardware_concurrency(), 1U, 8U);
    while (threads.size() < count) {
        threads.emplace_back(&TileWorkers::run, this);
    }
}

void TileWorkers::run()
{
    yieldToOthers();
    std::unique_lock<std::mutex> lock(mutex);
    for (;;) {
        jobsChanged.wait(lock, [this] { return isEnding || !jobs.empty() || !discarded.empty(); });
        if (isEnding) {
            return;
        }
        if (!discarded.empty()) {
            auto former = std::exchange(discarded, {});
            lock.unlock();
            former.clear();
            lock.lock();
            continue;
        }
        const Job job = std::move(jobs.front());
        jobs.pop_front();
        ++running;
        lock.unlock();
        TileMesh mesh = buildTile(job.batch, *job.looks);
        lock.lock();
        --running;
        if (job.round == round) {
            results.push_back({job.tile, job.version, std::move(mesh)});
        }
        resultsChanged.notify_all();
    }
}

} // namespace tolvik::scene
