#include "platform/binding/reader/PieceQueue.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace citygml {
namespace binding {

PieceQueue::PieceQueue(const RootContext& context, unsigned threads) : context(context)
{
    try {
        for (unsigned i = 1; i < threads; ++i) {
            this->threads.emplace_back([this] { work(); });
        }
    } catch (const std::system_error&) {
        // With fewer threads it takes longer.
    }
}

PieceQueue::~PieceQueue()
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        isEnding = true;
    }
    changed.notify_all();
    for (std::thread& thread : threads) {
        thread.join();
    }
}

bool PieceQueue::isFull() const
{
    return pieces.size() >= 2 * (threads.size() + 1);
}

bool PieceQueue::isFirstRead() const
{
    const std::lock_guard<std::mutex> lock(mutex);
    return !pieces.empty() && pieces.front().state == State::Read;
}

void PieceQueue::add(std::unique_ptr<Piece> piece)
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        pieces.push_back({std::move(piece), State::Waiting});
    }
    changed.notify_all();
}

std::unique_ptr<Piece> PieceQueue::take()
{
    std::unique_lock<std::mutex> lock(mutex);
    while (pieces.front().state != State::Read) {
        if (Entry* const waiting = firstWaiting()) {
            read(*waiting, lock);
        } else {
            changed.wait(lock);
        }
    }
    std::unique_ptr<Piece> first = std::move(pieces.front().piece);
    pieces.pop_front();
    return first;
}

void PieceQueue::work()
{
    std::unique_lock<std::mutex> lock(mutex);
    while (!isEnding) {
        if (Entry* const waiting = firstWaiting()) {
            read(*waiting, lock);
        } else {
            changed.wait(lock);
        }
    }
}

PieceQueue::Entry* PieceQueue::firstWaiting()
{
    const auto found = std::find_if(pieces.begin(), pieces.end(),
                                    [](const Entry& entry) { return entry.state == State::Waiting; });
    return found != pieces.end() ? &*found : nullptr;
}

/// Reads a piece without the lock. An entry stays where it is while others come and go in front and behind.
void PieceQueue::read(Entry& entry, std::unique_lock<std::mutex>& lock)
{
    entry.state = State::BeingRead;
    lock.unlock();
    entry.piece->read(context);
    lock.lock();
    entry.state = State::Read;
    changed.notify_all();
}

} // namespace binding
} // namespace citygml
