#pragma once

#include "platform/binding/reader/Piece.h"

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace citygml {
namespace binding {

/// Reads pieces of a document in several threads, and hands them out in the order of the document.
class PieceQueue
{
public:
    /// \param context outlives the queue
    /// \param threads number of threads that read, the caller's included
    PieceQueue(const RootContext& context, unsigned threads);
    /// What has not been begun is not read.
    ~PieceQueue();
    PieceQueue(const PieceQueue&) = delete;
    PieceQueue& operator=(const PieceQueue&) = delete;

    bool isEmpty() const { return pieces.empty(); }
    /// Whether there are as many pieces as the threads need to have no rest.
    bool isFull() const;
    /// Whether the first piece can be taken at once.
    bool isFirstRead() const;
    void add(std::unique_ptr<Piece> piece);
    /// The first piece, once it is read; until then the caller's thread reads, too.
    std::unique_ptr<Piece> take();

private:
    enum class State { Waiting, BeingRead, Read };
    struct Entry
    {
        std::unique_ptr<Piece> piece;
        State state;
    };

    void work();
    Entry* firstWaiting();
    void read(Entry& entry, std::unique_lock<std::mutex>& lock);

    const RootContext& context;
    mutable std::mutex mutex;
    std::condition_variable changed;
    // In the order of the document. Only the caller adds and takes.
    std::deque<Entry> pieces;
    bool isEnding = false;
    std::vector<std::thread> threads;
};

} // namespace binding
} // namespace citygml
