#pragma once

// Pieces of work done side by side, their results told in the order in which they were asked for.

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace zg {

/// Not more pieces wait than a few for each worker, so that memory stays flat however many there are. All
/// functions are called from the thread that made the queue; what is told is told there too.
class WorkQueue {
 public:
    /// What a piece of work leaves to tell.
    struct Result {
        std::string done;
        std::string failed;
        bool endsRun = false;  ///< what failed would fail for all that follow
    };

    /// Where the system has no more threads to give there are fewer workers; without any the pieces are done
    /// by who adds them.
    WorkQueue(int workers, std::function<void(const Result&)> tell);
    ~WorkQueue();
    WorkQueue(const WorkQueue&) = delete;
    WorkQueue& operator=(const WorkQueue&) = delete;

    /// Waits while the queue is full.
    void add(std::function<Result()> work);

    /// Waits until all is done and told.
    void finish();

 private:
    struct Piece {
        std::function<Result()> work;
        Result result;
        bool begun = false;
        bool ready = false;
    };
    void workOn();
    void tellReady(std::unique_lock<std::mutex>& lock);
    Piece* nextPiece();

    std::function<void(const Result&)> tell_;
    std::size_t capacity_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Piece> pieces_;  ///< from the oldest that was not told
    bool closed_ = false;
    std::vector<std::thread> workers_;
};

}  // namespace zg
