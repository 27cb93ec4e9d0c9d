#pragma once

// Runs pieces of work in parallel and reports their results in the order in which they were added.

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

class QThread;

namespace zg {

/// Only a few pieces per worker wait, so that memory use does not grow with their number. All functions are
/// called from the thread that created the queue; results are reported there too.
class WorkQueue {
 public:
    /// The result of a piece of work.
    struct Result {
        std::string done;
        std::string failed;
        bool endsRun = false;  ///< the error would also affect everything after it
    };

    /// If the system cannot create more threads there are fewer workers; without any, add does the work
    /// itself.
    WorkQueue(int workers, std::function<void(const Result&)> tell);
    ~WorkQueue();
    WorkQueue(const WorkQueue&) = delete;
    WorkQueue& operator=(const WorkQueue&) = delete;

    /// Waits while the queue is full.
    void add(std::function<Result()> work);

    /// Waits until all work is done and reported.
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
    std::deque<Piece> pieces_;  ///< starting with the oldest that has not been reported
    bool closed_ = false;
    std::vector<std::unique_ptr<QThread>> workers_;
};

}  // namespace zg
