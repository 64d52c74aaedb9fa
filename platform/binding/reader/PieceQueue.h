#pragma once

#include <algorithm>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace citygml {
namespace binding {

/// Reads pieces of a document in several threads, and hands them out in the order of the document.
template <class Piece>
class PieceQueue
{
public:
    /// \param read reads a piece, in any thread; throws nothing
    /// \param threads number of threads that read, the caller's included
    PieceQueue(std::function<void(Piece&)> read, unsigned threads) : readPiece(std::move(read))
    {
        try {
            for (unsigned i = 1; i < threads; ++i) {
                this->threads.emplace_back([this] { work(); });
            }
        } catch (const std::system_error&) {
            // With fewer threads it takes longer.
        }
    }
    /// What has not been begun is not read.
    ~PieceQueue()
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
    PieceQueue(const PieceQueue&) = delete;
    PieceQueue& operator=(const PieceQueue&) = delete;

    bool isEmpty() const { return pieces.empty(); }
    /// Whether there are as many pieces as the threads need to have no rest.
    bool isFull() const { return pieces.size() >= 2 * (threads.size() + 1); }
    /// Whether the first piece can be taken at once.
    bool isFirstRead() const
    {
        const std::lock_guard<std::mutex> lock(mutex);
        return !pieces.empty() && pieces.front().state == State::Read;
    }
    void add(std::unique_ptr<Piece> piece)
    {
        {
            const std::lock_guard<std::mutex> lock(mutex);
            pieces.push_back({std::move(piece), State::Waiting});
        }
        changed.notify_all();
    }
    /// The first piece, once it is read; until then the caller's thread reads, too.
    std::unique_ptr<Piece> take()
    {
        std::unique_lock<std::mutex> lock(mutex);
        while (pieces.front().state != State::Read) {
            readOrWait(lock);
        }
        std::unique_ptr<Piece> first = std::move(pieces.front().piece);
        pieces.pop_front();
        return first;
    }

private:
    enum class State { Waiting, BeingRead, Read };
    struct Entry
    {
        std::unique_ptr<Piece> piece;
        State state;
    };

    void work()
    {
        std::unique_lock<std::mutex> lock(mutex);
        while (!isEnding) {
            readOrWait(lock);
        }
    }

    /// Reads the first piece that nobody reads, without the lock, or else waits until something happens. An
    /// entry stays where it is while others come and go in front and behind.
    void readOrWait(std::unique_lock<std::mutex>& lock)
    {
        const auto waiting = std::find_if(pieces.begin(), pieces.end(),
                                          [](const Entry& entry) { return entry.state == State::Waiting; });
        if (waiting == pieces.end()) {
            changed.wait(lock);
            return;
        }
        Entry& entry = *waiting;
        entry.state = State::BeingRead;
        lock.unlock();
        readPiece(*entry.piece);
        lock.lock();
        entry.state = State::Read;
        changed.notify_all();
    }

    const std::function<void(Piece&)> readPiece;
    mutable std::mutex mutex;
    std::condition_variable changed;
    // In the order of the document. Only the caller adds and takes.
    std::deque<Entry> pieces;
    bool isEnding = false;
    std::vector<std::thread> threads;
};

} // namespace binding
} // namespace citygml
